#include "forms/intake_boxes.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include "forms/pick_form.h"
#include "support/windows/played_author.h"

namespace quorvel::forms {
namespace {

using resources::IntakeNotice;
using resources::NameFault;
using resources::Pick;
using store::ErrorNumber;
using store::ResourceFolder;
using What = IntakeNotice::What;

class IntakeBoxesTest : public testing::Test {
  protected:
    void expectBox(const IntakeNotice& notice, const char* text, const char* title = "Quorvel") {
        boxes.forget();
        questions.tell(notice);
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_EQ(boxes.shown().front().text, QString::fromUtf8(text));
        EXPECT_EQ(boxes.shown().front().title, QString::fromLatin1(title));
        EXPECT_EQ(boxes.shown().front().buttons, Box::Buttons::ok);
    }
    test::PlayedBoxes boxes;
    IntakeBoxes questions{boxes};
};

TEST_F(IntakeBoxesTest, TheFixedTextsAreExact) {
    expectBox({.what = What::nameTooLong, .name = QStringLiteral("twelve_chars.gif")},
              "Quorvel only supports filenames up to 11 characters long (15 including the .xxx "
              "extension).\n\nThe file you chose exceeds that limit.  Please rename the file and "
              "try again.");
    expectBox({.what = What::wrongFolderUnknown},
              "Oooooops...  Something is wrong.  Check the 'CheckFileLoc' Function in Module1",
              "Uh-Oh");
    expectBox({.what = What::correctFolder, .folder = ResourceFolder::gfx}, "Correct Folder (gfx)",
              "Test - Remove this feature");
    expectBox({.what = What::correctFolder, .folder = ResourceFolder::mmedia},
              "Correct Folder (mmedia)", "Test - Remove this feature");
}

TEST_F(IntakeBoxesTest, AnUnfitNameIsToldWithItsReason) {
    const auto expectReason = [this](NameFault fault, const std::string& reason) {
        expectBox({.what = What::nameUnfit, .name = QStringLiteral("x.gif"), .fault = fault},
                  ("Quorvel cannot use the filename \"x.gif\".\n\n" + reason +
                   "  Please rename the file and try again.")
                      .c_str());
    };
    expectReason(NameFault::empty, "The filename is empty.");
    expectReason(NameFault::outsideCodePage,
                 "It has a character that a game cannot keep: only those of the Windows character "
                 "set for Western Europe (1252) are possible.");
    expectReason(NameFault::reservedCharacter,
                 "It has a character that a Windows filename cannot have:  < > : \" / \\ | ? *  or "
                 "a control character.");
    expectReason(NameFault::blankAtAnEnd, "It begins or ends with a blank.");
    expectReason(NameFault::dotAtTheEnd, "It ends with a dot.");
    expectReason(NameFault::deviceName, "On Windows it is the name of a device.");
}

TEST_F(IntakeBoxesTest, ARefusedSourceIsToldWithItsReason) {
    expectBox({.what = What::sourceMissing, .file = "/a/b.gif"}, "Could not locate:\n\n/a/b.gif");
    expectBox({.what = What::sourceIsLink, .file = "/a/b.gif"},
              "Quorvel cannot use:\n\n/a/b.gif\n\nIt is a link.  Please choose the file itself.");
    expectBox({.what = What::sourceIsFolder, .file = "/a/b.gif"},
              "Quorvel cannot use:\n\n/a/b.gif\n\nIt is a folder.  Please choose a file.");
    expectBox(
        {.what = What::sourceIsDevice, .file = "/a/b.gif"},
        "Quorvel cannot use:\n\n/a/b.gif\n\nIt is a pipe or a device.  Please choose a file.");
}

TEST_F(IntakeBoxesTest, AFailureSaysWhatFailedWhichFileAndWhy) {
    expectBox({.what = What::notCopied,
               .name = QStringLiteral("b.gif"),
               .file = "/game/b.gif",
               .error = ErrorNumber::diskFull},
              "The file \"b.gif\" could not be brought into the project.  Nothing was changed.\n\n"
              "Error 61 (Disk full)\n/game/b.gif");
    expectBox({.what = What::sourceNotDeleted,
               .name = QStringLiteral("b.gif"),
               .file = "/a/b.gif",
               .error = ErrorNumber::accessError},
              "The file \"b.gif\" was copied to the project, but could not be deleted where it "
              "was.\n\nError 75 (Path/File access error)\n/a/b.gif");
    expectBox(
        {.what = What::targetIsFolder, .name = QStringLiteral("b.gif"), .file = "/game/B.gif"},
        "The file \"b.gif\" could not be brought into the project.  There is a folder of "
        "that name:\n\n/game/B.gif");
}

TEST_F(IntakeBoxesTest, TheQuestionOfReplacingIsAnsweredByYesAlone) {
    boxes.answer(Answer::yes).answer(Answer::no);
    EXPECT_TRUE(questions.mayReplace(QStringLiteral("coin.gif")));
    EXPECT_FALSE(questions.mayReplace(QStringLiteral("coin.gif")));
    const Box& box = boxes.shown().front();
    EXPECT_EQ(box.text, QStringLiteral("coin.gif already exists.\n\nDo you want to replace it?"));
    EXPECT_EQ(box.buttons, Box::Buttons::yesNo);
    EXPECT_TRUE(box.destroys);
}

TEST_F(IntakeBoxesTest, TheBoxOfLongNamesOffersAShorterOne) {
    const QString longName = QStringLiteral("twelve_chars.gif");
    const QString shorter = QStringLiteral("twelve_char.gif");
    boxes.answer(Answer::ok).answer(Answer::other);
    EXPECT_FALSE(questions.useShorter(longName, shorter));
    EXPECT_TRUE(questions.useShorter(longName, shorter));
    const Box& box = boxes.shown().front();
    EXPECT_EQ(box.text, boxOf({.what = What::nameTooLong, .name = longName}).text);
    EXPECT_EQ(box.title, QStringLiteral("Quorvel"));
    EXPECT_EQ(box.buttons, Box::Buttons::ok);
    EXPECT_EQ(box.other, QStringLiteral("Use \"twelve_char.gif\""));
}

class PickCMTest : public IntakeBoxesTest {
  protected:
    /// Asks, and lets the author use the window; the answer comes back.
    Pick ask(const std::function<void(QWidget&)>& author) {
        Pick pick = Pick::none;
        test::withWindow(
            QStringLiteral("PickCM"), [&] { pick = questions.copyOrMove(); }, author);
        return pick;
    }
    static QPushButton& button(QWidget& window, int index) {
        return test::control<QPushButton>(window, elementName(QStringLiteral("Command1"), index));
    }
};

TEST_F(PickCMTest, TheTextsAreExact) {
    ask([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Quorvel"));
        QStringList texts;
        for (const auto* label : window.findChildren<QLabel*>()) {
            texts << label->text();
        }
        EXPECT_EQ(
            texts,
            (QStringList{QStringLiteral("The file you have chosen is not in the project's correct "
                                        "\"resource\" folder."),
                         QStringLiteral("What would you like to do?"),
                         QStringLiteral("NOTE: You can have this automatically decided for you!  "
                                        "Choose 'Editor Options' from the Options Menu on the main "
                                        "window.")}));
        EXPECT_EQ(button(window, 0).text(), QStringLiteral("COPY the file"));
        EXPECT_EQ(button(window, 1).text(), QStringLiteral("MOVE the file"));
        button(window, 0).click();
    });
}

TEST_F(PickCMTest, EachButtonIsAnAnswer) {
    EXPECT_EQ(ask([](QWidget& window) { button(window, 0).click(); }), Pick::copy);
    EXPECT_EQ(ask([](QWidget& window) { button(window, 1).click(); }), Pick::move);
    EXPECT_EQ(ask([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Return); }), Pick::copy);
}

TEST_F(PickCMTest, NothingButAButtonLeavesIt) {
    EXPECT_EQ(ask([](QWidget& window) {
                  QTest::keyClick(&window, Qt::Key_Escape);
                  EXPECT_TRUE(window.isVisible());
                  EXPECT_FALSE(window.close());
                  EXPECT_TRUE(window.isVisible());
                  EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowCloseButtonHint));
                  button(window, 1).click();
              }),
              Pick::move);
}

TEST_F(IntakeBoxesTest, ALongCopyShowsHowFarItIs) {
    const QString name = QStringLiteral("intro.avi");
    const QString window = QStringLiteral("CopyingFile");
    questions.working(name, 10, 100);
    questions.working(name, 20, 100);
    EXPECT_EQ(test::visibleWindow(window), nullptr) << "a short copy shows nothing";
    questions.patience = 0;
    questions.working(name, 40, 100);
    QWidget* shown = test::visibleWindow(window);
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(test::control<QProgressBar>(*shown, QStringLiteral("ProgressBar1")).value(), 40);
    EXPECT_EQ(test::control<QLabel>(*shown, QStringLiteral("Label1")).text(),
              QStringLiteral("Bringing \"intro.avi\" into the project...   Please wait."));
    EXPECT_FALSE(shown->close());
    questions.working(name, 100, 100);
    EXPECT_EQ(test::visibleWindow(window), nullptr);
}

TEST_F(IntakeBoxesTest, AFailedCopyTakesItsWindowAway) {
    questions.patience = 0;
    const QString name = QStringLiteral("intro.avi");
    questions.working(name, 10, 100);
    questions.working(name, 20, 100);
    ASSERT_NE(test::visibleWindow(QStringLiteral("CopyingFile")), nullptr);
    questions.tell({.what = What::notCopied, .name = name});
    EXPECT_EQ(test::visibleWindow(QStringLiteral("CopyingFile")), nullptr);
}

}  // namespace
}  // namespace quorvel::forms
