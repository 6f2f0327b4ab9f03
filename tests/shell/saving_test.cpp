// Saving a scene while others work on its store, and while it cannot be saved at all.
#include <gtest/gtest.h>

#include "shell/scene_fixture.h"
#include "support/mounts.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;
using forms::Answer;

constexpr std::size_t kRecord = sizeof(store::SceneRecord);
const QString kLost = QStringLiteral("An unexpected error has occured:\n53 / File not found\n\n");
const QString kCut = QStringLiteral("An unexpected error has occured:\n63 / Bad record number\n\n");
const QString kStays = QStringLiteral(
    "\n\nIf you click No, nothing is written, and the scene stays in the editor as it is.");
const QString kCloseAnyway = QStringLiteral(
    "The current scene could not be saved.\n\nDo you want to close the project anyway and lose the "
    "changes to this scene?");

class Saving : public SceneFixture {
  protected:
    /// Three scenes, an object in the first, which the author has moved to 200.
    void openAndEdit() {
        open(ProjectBuilder().scenes(3).object(1, 4, 5, 100, 100));
        store_ = files.storePath(1);
        carry({110, 110}, {210, 210});
    }
    /// Another program puts a file of its own in the store's place, as many do when they save.
    void replaceStore(const std::string& bytes) {
        writeBytes(projects / "new", bytes);
        fs::create_hard_link(store_, projects / "aside");
        fs::rename(projects / "new", store_);
    }
    /// The store with another name for scene `number`.
    std::string withName(int number, const std::string& name) {
        std::string bytes = readBytes(store_);
        return bytes.replace(recordAt(number), name.size(), name);
    }
    bool signStands() { return element(QStringLiteral("SaveSign")).isVisible(); }
    QString sceneEntry(int number) { return list("Combo1").itemText(number); }
    QString onlyBox() {
        EXPECT_EQ(boxes.shown().size(), 1U) << boxes.texts().join(u'|').toStdString();
        return boxes.shown().empty() ? QString() : boxes.shown().back().text;
    }
    QString path() { return text(store_); }

    fs::path store_;
};

TEST_F(Saving, AStoreThatAnotherTookThePlaceOfIsTakenWithTheScene) {
    openAndEdit();
    const std::string old = readBytes(store_);
    replaceStore(withName(2, "Elsewhere"));
    boxes.answer(Answer::yes);
    next();
    EXPECT_EQ(onlyBox(),
              kLost +
                  QStringLiteral("This file is not the one that was opened.  Another one was put "
                                 "in its place while the project was open:\n\n%1\n\nDo you want to "
                                 "go on with the file as it is now and write your scene over its "
                                 "scene 1?")
                      .arg(path()) +
                  kStays);
    EXPECT_TRUE(boxes.shown().front().destroys);
    EXPECT_EQ(stored(1, 4, 2), 200);
    EXPECT_EQ(current(), 2);
    EXPECT_EQ(shell->scene().header(store::HeaderString::SceneName), "Elsewhere");
    EXPECT_EQ(sceneEntry(2), QStringLiteral("2 (Elsewhere)"));
    EXPECT_EQ(readBytes(projects / "aside"), old) << "nobody's file any more";
    previous();
    EXPECT_EQ(boxes.shown().size(), 1U);
    EXPECT_FALSE(signStands());
}

TEST_F(Saving, AStoreThatIsNotTakenKeepsTheAuthorAndHisWork) {
    openAndEdit();
    const std::string other = withName(2, "Elsewhere");
    replaceStore(other);
    boxes.answer(Answer::no);
    next();
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(slot(4).SlotInt(2), 200);
    EXPECT_EQ(readBytes(store_), other);
    EXPECT_TRUE(signStands());
    // He puts his own file back.
    fs::rename(projects / "aside", store_);
    boxes.forget();
    next();
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(current(), 2);
    EXPECT_EQ(stored(1, 4, 2), 200);
    EXPECT_FALSE(signStands());
}

TEST_F(Saving, ASceneThatNobodyEditedIsNotWrittenIntoAnotherStore) {
    open(ProjectBuilder().scenes(3));
    store_ = files.storePath(1);
    const std::string other = withName(1, "Theirs ");
    replaceStore(other);
    boxes.answer(Answer::yes);
    next();
    EXPECT_TRUE(onlyBox().endsWith(
        QStringLiteral("\n\nDo you want to go on with the file as it is now?") + kStays));
    EXPECT_EQ(readBytes(store_), other);
    EXPECT_EQ(current(), 2);
    previous();
    EXPECT_EQ(shell->scene().header(store::HeaderString::SceneName), "Theirs");
}

TEST_F(Saving, AStoreWithFewerScenesGetsTheSceneBehindItsLast) {
    open(ProjectBuilder().scenes(3).currentScene(3).object(3, 4, 5, 100, 100));
    store_ = files.storePath(1);
    carry({110, 110}, {210, 210});
    const std::string first = readBytes(store_, 0, kRecord);
    replaceStore(first);
    boxes.answer(Answer::yes);
    previous();
    EXPECT_TRUE(onlyBox().contains(QStringLiteral("add your scene to it as scene 2?")));
    EXPECT_EQ(readBytes(store_).size(), 2 * kRecord);
    EXPECT_EQ(readBytes(store_, 0, kRecord), first);
    EXPECT_EQ(stored(2, 4, 2), 200);
    EXPECT_EQ(shell->project().NumberOfScenes, 2);
    EXPECT_EQ(list("Combo1").count(), 3);
    EXPECT_EQ(sceneEntry(2), QStringLiteral("2 (Scene 3)"));
    EXPECT_EQ(current(), 2);
    EXPECT_EQ(number().text(), QStringLiteral("2"));
    EXPECT_FALSE(button("Command6").isEnabled());
}

TEST_F(Saving, ASceneThatWasLostMeanwhileIsNotGoneTo) {
    openAndEdit();
    replaceStore(readBytes(store_, 0, kRecord));
    boxes.answer(Answer::yes);
    next();
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(stored(1, 4, 2), 200);
    EXPECT_EQ(shell->project().NumberOfScenes, 1);
    EXPECT_FALSE(button("Command6").isEnabled());
    EXPECT_EQ(readBytes(store_).size(), kRecord);
}

TEST_F(Saving, AStoreThatWasCutIsToldAndNotFilledUp) {
    open(ProjectBuilder().scenes(3).currentScene(3).object(3, 4, 5, 100, 100));
    store_ = files.storePath(1);
    carry({110, 110}, {210, 210});
    const std::string first = readBytes(store_, 0, kRecord);
    truncateFile(store_, kRecord);
    boxes.answer(Answer::no).answer(Answer::yes);
    previous();
    EXPECT_EQ(
        onlyBox(),
        kCut +
            QStringLiteral("A part of this file is missing.  It was cut off while the project "
                           "was open:\n\n%1\n\nDo you want to go on with the file as it is "
                           "now and add your scene to it as scene 2?")
                .arg(path()) +
            kStays);
    EXPECT_EQ(readBytes(store_), first);
    EXPECT_EQ(current(), 3);
    previous();
    EXPECT_EQ(readBytes(store_).size(), 2 * kRecord);
    EXPECT_EQ(readBytes(store_, 0, kRecord), first);
    EXPECT_EQ(stored(2, 4, 2), 200);
}

TEST_F(Saving, HalfASceneOfAStoreThatWasCutIsNotWrittenOver) {
    open(ProjectBuilder().scenes(3).currentScene(3).object(3, 4, 5, 100, 100));
    store_ = files.storePath(1);
    carry({110, 110}, {210, 210});
    for (const std::uintmax_t length : {2 * kRecord + 4000, kRecord + 100}) {
        truncateFile(store_, length);
        const std::string before = readBytes(store_);
        boxes.forget();
        previous();
        EXPECT_TRUE(onlyBox().endsWith(
            QStringLiteral("\n\nThere is no place for your scene in it.  The scene stays in the "
                           "editor as it is.")));
        EXPECT_EQ(readBytes(store_), before);
        EXPECT_EQ(current(), 3);
        EXPECT_EQ(slot(4).SlotInt(2), 200);
    }
}

TEST_F(Saving, ASceneOfAStoreThatWasCutIsNotShownAsAnEmptyOne) {
    open(ProjectBuilder().scenes(3).object(1, 4, 5, 100, 100));
    store_ = files.storePath(1);
    truncateFile(store_, 2 * kRecord);
    boxes.answer(Answer::no);
    number().setText(QStringLiteral("3"));
    Q_EMIT number().returnPressed();
    EXPECT_EQ(current(), 1);
    EXPECT_TRUE(onlyBox().startsWith(kCut));
    EXPECT_EQ(readBytes(store_).size(), 2 * kRecord);
}

TEST_F(Saving, AStoreThatIsGoneIsPutBackWithAllItsScenes) {
    openAndEdit();
    const std::string before = readBytes(store_);
    fs::remove(store_);
    boxes.answer(Answer::yes);
    next();
    EXPECT_EQ(onlyBox(),
              kLost +
                  QStringLiteral("This file is not there any more.  It was moved, renamed or "
                                 "deleted while the project was open:\n\n%1\n\nDo you want to put "
                                 "the file back, with all scenes as they were saved last and with "
                                 "the scene that you are working on?")
                      .arg(path()) +
                  kStays);
    EXPECT_EQ(current(), 2);
    EXPECT_EQ(stored(1, 4, 2), 200);
    EXPECT_EQ(readBytes(store_).substr(kRecord), before.substr(kRecord));
    previous();
    carry({210, 210}, {310, 310});
    next();
    EXPECT_EQ(stored(1, 4, 2), 300);
    EXPECT_EQ(boxes.shown().size(), 1U);
}

TEST_F(Saving, WithoutItsFolderTheSceneWaits) {
    openAndEdit();
    fs::rename(projects / "resource", projects / "taken out");
    next();
    EXPECT_TRUE(onlyBox().endsWith(
        QStringLiteral("\n\nThe scene stays in the editor as it is.  It can be saved when the "
                       "folder is back in its place.")));
    EXPECT_EQ(current(), 1);
    EXPECT_TRUE(signStands());
    fs::rename(projects / "taken out", projects / "resource");
    boxes.forget();
    next();
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(stored(1, 4, 2), 200);
    EXPECT_FALSE(signStands());
}

TEST_F(Saving, AFolderInTheStoresPlaceIsTold) {
    openAndEdit();
    fs::rename(store_, projects / "aside");
    fs::create_directory(store_);
    next();
    EXPECT_EQ(onlyBox(), QStringLiteral("Err #75 / Path/File access error\nCould not write data!  "
                                        "Possible cause: Project file(s) attribute set to 'Read "
                                        "Only'."));
    EXPECT_TRUE(fs::is_empty(store_));
}

// The record of the scene, written by another editor

TEST_F(Saving, ARecordThatOthersWroteIsOverwrittenWhenTheAuthorSaysSo) {
    openAndEdit();
    patchBytes(store_, 0, "Theirs ");
    const std::string theirs = readBytes(store_);
    boxes.answer(Answer::no).answer(Answer::yes);
    next();
    EXPECT_EQ(onlyBox(),
              QStringLiteral("Scene 1 was changed by another program after you went to it:\n\n%1"
                             "\n\nDo you want to write your scene over it?")
                      .arg(path()) +
                  kStays);
    EXPECT_TRUE(boxes.shown().front().destroys);
    EXPECT_EQ(readBytes(store_), theirs);
    EXPECT_EQ(current(), 1);
    EXPECT_EQ(slot(4).SlotInt(2), 200);
    EXPECT_TRUE(signStands());
    next();
    EXPECT_EQ(current(), 2);
    EXPECT_EQ(stored(1, 4, 2), 200);
    EXPECT_EQ(readBytes(store_, 0, 7), "Scene 1");
    EXPECT_FALSE(signStands());
}

TEST_F(Saving, ARecordThatOthersWroteStaysWhereTheAuthorChangedNothing) {
    open(ProjectBuilder().scenes(2).object(1, 4, 5, 100, 100));
    store_ = files.storePath(1);
    patchBytes(store_, 0, "Theirs ");
    const std::string theirs = readBytes(store_);
    next();
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(readBytes(store_), theirs);
    EXPECT_EQ(current(), 2);
    previous();
    EXPECT_EQ(shell->scene().header(store::HeaderString::SceneName), "Theirs");
    next();
    EXPECT_TRUE(boxes.shown().empty()) << "what was read is what is there";
}

TEST_F(Saving, WhatTheCanvasMendsIsNoChangeOfTheAuthor) {
    open(ProjectBuilder()
             .scenes(2)
             .object(1, 1, 1, 10, 10)
             .editSlot(1, 1, [](store::ObjectSlotRecord& slot) {
                 slot.SlotInt4To29[25] = 7;
                 slot.SlotStr[4] = "3";
             }));
    store_ = files.storePath(1);
    patchBytes(store_, 0, "Theirs ");
    next();
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(readBytes(store_, 0, 7), "Theirs ");
}

TEST_F(Saving, TheSecurityCodeOfTheRecordAsksNothing) {
    open(ProjectBuilder().scenes(2).securityCode(77).object(1, 4, 5, 100, 100));
    store_ = files.storePath(1);
    for (const int code : {1, 500}) {
        carry({110, 110}, {111, 111});
        patchInt(store_, 205, static_cast<std::int16_t>(code));
        next();
        previous();
        carry({111, 111}, {110, 110});
    }
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(Saving, ATestRunAsksToo) {
    openAndEdit();
    patchBytes(store_, 0, "Theirs ");
    boxes.answer(Answer::yes);
    action(QStringLiteral("runmen(0)")).trigger();
    EXPECT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(stored(1, 4, 2), 200);
    EXPECT_EQ(programs.started.size(), 1);
}

TEST_F(Saving, ScenesThatOthersAddedAreNotWrittenOver) {
    openAndEdit();
    std::string theirs = readBytes(store_, kRecord, kRecord);
    theirs.replace(0, 7, "Theirs ");
    appendBytes(store_, theirs);
    addScene(0);
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(current(), 5);
    EXPECT_EQ(recordBytes(4), theirs);
    EXPECT_EQ(list("Combo1").count(), 6);
    EXPECT_EQ(sceneEntry(4), QStringLiteral("4 (Theirs)"));
}

// Closing with what could not be saved

TEST_F(Saving, ClosingAsksWhenOthersWroteTheRecord) {
    openAndEdit();
    patchBytes(store_, 0, "Theirs ");
    boxes.answer(Answer::no).answer(Answer::no);
    action(QStringLiteral("Filemen(3)")).trigger();
    ASSERT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(boxes.shown().back().text, kCloseAnyway);
    EXPECT_EQ(slot(4).SlotInt(2), 200);
    boxes.answer(Answer::no).answer(Answer::yes);
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_EQ(readBytes(store_, 0, 7), "Theirs ");
    EXPECT_EQ(stored(1, 4, 2), 100);
    EXPECT_FALSE(signStands());
}

class SavingOnADisc : public Saving {
  protected:
    void openOnDisc() {
        files =
            ProjectBuilder()
                .scenes(3)
                .object(1, 4, 5, 100, 100)
                .object(2, 1, 1, 10, 10)
                .editSlot(2, 1, [](store::ObjectSlotRecord& slot) { slot.SlotInt4To29[25] = 7; })
                .build(projects.path());
        disc_.emplace(projects.path());
        if (disc_->isMounted()) {
            start({text(files.projectPath())});
            boxes.forget();
        }
    }
    std::optional<ReadOnlyMount> disc_;
};

TEST_F(SavingOnADisc, TheSignStandsFromTheBeginningToTheEnd) {
    openOnDisc();
    if (!disc_->isMounted()) {
        GTEST_SKIP() << disc_->whyNot();
    }
    EXPECT_TRUE(signStands());
    next();
    EXPECT_TRUE(signStands());
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_FALSE(signStands());
    disc_.reset();
    boxes.forget();
    shell->openProject(text(files.projectPath()));
    EXPECT_FALSE(signStands());
}

TEST_F(SavingOnADisc, ClosingAsksWhenSomethingWouldBeLost) {
    openOnDisc();
    if (!disc_->isMounted()) {
        GTEST_SKIP() << disc_->whyNot();
    }
    carry({110, 110}, {210, 210});
    boxes.answer(Answer::no);
    action(QStringLiteral("Filemen(3)")).trigger();
    ASSERT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(boxes.shown().back().text, kCloseAnyway);
    EXPECT_EQ(slot(4).SlotInt(2), 200);
    boxes.answer(Answer::yes);
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_FALSE(shell->project().ProjectOpen);
}

TEST_F(SavingOnADisc, ClosingAsksNothingWhereNothingWasChanged) {
    openOnDisc();
    if (!disc_->isMounted()) {
        GTEST_SKIP() << disc_->whyNot();
    }
    next();  // to a scene that the canvas mends
    action(QStringLiteral("Filemen(3)")).trigger();
    EXPECT_FALSE(shell->project().ProjectOpen);
    for (const QString& told : boxes.texts()) {
        EXPECT_NE(told, kCloseAnyway);
    }
}

TEST_F(Saving, TheSignGoesWhenASaveSucceeds) {
    const SmallDisk disk(64);
    if (!disk.isMounted()) {
        GTEST_SKIP() << disk.whyNot();
    }
    files = ProjectBuilder().object(1, 4, 5, 100, 100).build(disk.path());
    // The record ends where the file does: it needs a block more.
    truncateFile(files.storePath(1), 4000);
    start({text(files.projectPath())});
    EXPECT_FALSE(signStands());
    carry({110, 110}, {210, 210});
    disk.fill();
    action(QStringLiteral("runmen(0)")).trigger();
    EXPECT_TRUE(signStands());
    disk.makeRoom();
    action(QStringLiteral("runmen(0)")).trigger();
    EXPECT_FALSE(signStands());
    EXPECT_EQ(stored(1, 4, 2), 200);
}

}  // namespace
}  // namespace quorvel::test
