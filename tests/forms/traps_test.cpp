// What the traps of readers and writers tell.
#include "forms/traps.h"

#include <gtest/gtest.h>

#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

using store::ErrorNumber;
using store::RuntimeError;

class TrapWords : public ::testing::Test {
  protected:
    store::Project project;
    PlayedBoxes boxes;
    forms::Traps traps{boxes, project};
};

TEST_F(TrapWords, ARoutineThatSucceedsIsSilent) {
    int runs = 0;
    EXPECT_TRUE(traps.reading(QStringLiteral("GetProjData"), [&] { ++runs; }));
    EXPECT_TRUE(traps.writing([&] { ++runs; }));
    EXPECT_EQ(runs, 2);
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(TrapWords, ReadersNameTheirProcedure) {
    EXPECT_FALSE(traps.reading(QStringLiteral("ReadItemList"),
                               [] { throw RuntimeError(ErrorNumber::pathNotFound, "/%3"); }));
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].text, QStringLiteral("Error 76 (Path not found) in procedure "
                                                    "ReadItemList of Module SceneData"));
    EXPECT_EQ(boxes.shown()[0].icon, forms::Box::Icon::information);
    EXPECT_EQ(boxes.shown()[0].buttons, forms::Box::Buttons::ok);
    EXPECT_FALSE(project.ReadOnlyProject);
}

TEST_F(TrapWords, RefusedAccessIsToldOncePerProject) {
    const auto refused = [] { throw RuntimeError(ErrorNumber::accessError); };
    EXPECT_FALSE(traps.writing(refused));
    EXPECT_FALSE(traps.writing(refused));
    EXPECT_EQ(boxes.texts(),
              QStringList{QStringLiteral(
                  "Err #75 / Path/File access error\nCould not write data!  Possible cause: "
                  "Project file(s) attribute set to 'Read Only'.")});
    EXPECT_TRUE(project.ReadOnlyProject);
    project.clear();
    EXPECT_FALSE(traps.writing(refused));
    EXPECT_EQ(boxes.shown().size(), 2U) << "the next project is told anew";
}

TEST_F(TrapWords, ABrowsedProjectIsNotToldAgain) {
    project.ReadOnlyProject = true;
    EXPECT_FALSE(traps.writing([] { throw RuntimeError(ErrorNumber::accessError); }));
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(TrapWords, AnyOtherWriteErrorIsToldEachTime) {
    const auto full = [] { throw RuntimeError(ErrorNumber::diskFull); };
    EXPECT_FALSE(traps.writing(full));
    EXPECT_FALSE(traps.writing(full));
    const QString text = QStringLiteral("An unexpected error has occured:\n61 / Disk full");
    EXPECT_EQ(boxes.texts(), (QStringList{text, text}));
    EXPECT_FALSE(project.ReadOnlyProject);
}

}  // namespace
}  // namespace quorvel::test
