#include "resources/intake.h"

#include "resources/intake_stage.h"
#include "resources/path_text.h"

namespace quorvel::resources {
namespace {

namespace fs = std::filesystem;
using store::ResourceFolder;
using test::readBytes;
using test::snapshotOf;
using test::writeBytes;

class FileExistence : public test::IntakeStage {};

TEST_F(FileExistence, AFileExistsInAnyLetterCaseAndAFolderDoesNot) {
    writeBytes(gfx / "Coin.gif", "x");
    EXPECT_TRUE(FileExists(pathText(gfx / "Coin.gif")));
    EXPECT_TRUE(FileExists(pathText(gfx / "COIN.GIF")));
    EXPECT_TRUE(FileExists(pathText(folder.path() / "GAME/Resource/gfx/coin.gif")));
    EXPECT_FALSE(FileExists(pathText(gfx / "coin.gi")));
    EXPECT_FALSE(FileExists(pathText(gfx)));
    EXPECT_FALSE(FileExists(pathText(gfx) + QLatin1Char('/')));
    EXPECT_FALSE(FileExists(QString()));
}

TEST_F(FileExistence, StarsAndQuestionMarksAreCharactersLikeOthers) {
    writeBytes(gfx / "coin.gif", "x");
    EXPECT_FALSE(FileExists(pathText(gfx / "*.gif")));
    EXPECT_FALSE(FileExists(pathText(gfx / "coin.gi?")));
    writeBytes(gfx / "what?", "x");
    EXPECT_TRUE(FileExists(pathText(gfx / "what?")));
}

TEST_F(FileExistence, WhatCannotBeAskedForDoesNotExist) {
    EXPECT_FALSE(FileExists(pathText(gfx) + QLatin1Char('/') + QString(5000, QLatin1Char('x'))));
    EXPECT_FALSE(FileExists(pathText(gfx / "none/at/all.gif")));
    EXPECT_FALSE(FileExists(QStringLiteral("/dev/null")));
}

TEST_F(FileExistence, TwoSpellingsOfAPlaceHaveOneShortName) {
    fs::create_directory_symlink(gfx, folder / "link");
    EXPECT_EQ(GetShortName(folder / "link"), GetShortName(gfx));
    EXPECT_EQ(GetShortName(gfx / "../gfx"), GetShortName(gfx));
    EXPECT_EQ(GetShortName(folder / "nowhere"), folder / "nowhere");
}

class CheckFileName : public test::IntakeStage {};

TEST_F(CheckFileName, FifteenCharactersPassAndSixteenDoNot) {
    EXPECT_TRUE(intake.CheckFileName(QStringLiteral("elevenchars.gif")));
    EXPECT_TRUE(
        intake.CheckFileName(QString::fromUtf8("\xC3\xBC") + QStringLiteral("levenchars.gif")))
        << "characters count, not bytes";
    EXPECT_TRUE(intake.CheckFileName(QStringLiteral("a.gif")));
    expectSilence();
    EXPECT_FALSE(intake.CheckFileName(QStringLiteral("twelve_chars.gif")));
    EXPECT_EQ(notice().what, What::nameTooLong);
    EXPECT_EQ(notice().name, QStringLiteral("twelve_chars.gif"));
}

TEST_F(CheckFileName, ANameThatCannotBeKeptIsRefused) {
    EXPECT_FALSE(intake.CheckFileName(QStringLiteral("nul.gif")));
    EXPECT_EQ(notice().what, What::nameUnfit);
    EXPECT_EQ(notice().fault, NameFault::deviceName);
}

class CheckFileLoc : public test::IntakeStage {
  protected:
    CheckFileLoc() { writeBytes(pictures / "coin.gif", "new"); }
};

TEST_F(CheckFileLoc, AFileInTheRightFolderIsNeitherCopiedNorAskedFor) {
    writeBytes(gfx / "coin.gif", "there");
    writeBytes(mmedia / "ding.wav", "ding");
    fs::create_directory_symlink(gfx, folder / "link");
    const auto before = snapshotOf(folder.path() / "game");
    for (const int wrongFolder : {1, 2, 3, 9}) {
        rules.WrongFolder = wrongFolder;
        EXPECT_TRUE(check(gfx / "coin.gif"));
        EXPECT_TRUE(check(gfx / "../gfx/coin.gif")) << "another spelling of the folder";
        EXPECT_TRUE(check(folder / "link/coin.gif"));
        EXPECT_TRUE(check(mmedia / "ding.wav", ResourceFolder::mmedia));
    }
    expectSilence();
    EXPECT_EQ(snapshotOf(folder.path() / "game"), before);
}

TEST_F(CheckFileLoc, TheRightFolderIsKnownWhereTheProjectWasOpenedThroughALink) {
    rules.WrongFolder = 2;
    writeBytes(gfx / "coin.gif", "only one");
    fs::create_directory_symlink(folder / "game", folder / "link");
    project.ProjectFolder = store::textOf(folder.path() / "link") + "/";
    EXPECT_TRUE(check(gfx / "coin.gif"));
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "only one");
    expectSilence();
}

TEST_F(CheckFileLoc, TheRightFolderIsToldWhileDebugging) {
    writeBytes(mmedia / "ding.wav", "ding");
    rules.DebugMessages = true;
    EXPECT_TRUE(check(mmedia / "ding.wav", ResourceFolder::mmedia));
    EXPECT_EQ(notice().what, What::correctFolder);
    EXPECT_EQ(notice().folder, ResourceFolder::mmedia);
}

TEST_F(CheckFileLoc, OutOfIncomingAFileIsMovedWithoutAQuestion) {
    for (const int wrongFolder : {1, 2, 3}) {
        rules.WrongFolder = wrongFolder;
        writeBytes(gfx / "coin.gif", "old");
        writeBytes(incoming / "coin.gif", "from Incoming");
        EXPECT_TRUE(check(incoming / "coin.gif"));
        EXPECT_EQ(readBytes(gfx / "coin.gif"), "from Incoming");
        EXPECT_FALSE(fs::exists(incoming / "coin.gif"));
    }
    writeBytes(incoming / "ding.wav", "ding");
    EXPECT_TRUE(check(incoming / "ding.wav", ResourceFolder::mmedia));
    EXPECT_EQ(readBytes(mmedia / "ding.wav"), "ding");
    expectSilence();
}

TEST_F(CheckFileLoc, IncomingIsKnownInAnyLetterCaseAndByAnyWayToIt) {
    rules.WrongFolder = 9;
    fs::create_directory_symlink(incoming, folder / "way");
    const fs::path lower = folder.makeFolder("editor/incoming");
    for (const fs::path& place : {incoming, lower, folder / "way", incoming / "../Incoming",
                                  folder / "editor/../editor/incoming"}) {
        writeBytes(place / "coin.gif", "x");
        EXPECT_TRUE(check(place / "coin.gif")) << place;
        EXPECT_FALSE(fs::exists(place / "coin.gif")) << place;
    }
    expectSilence();
}

TEST_F(CheckFileLoc, AFolderThatIsOnlyCalledIncomingIsAnother) {
    rules.WrongFolder = 1;
    const fs::path other = folder.makeFolder("pictures/incoming");
    const fs::path below = folder.makeFolder("editor/Incoming/more");
    writeBytes(other / "a.gif", "x");
    writeBytes(below / "b.gif", "x");
    EXPECT_TRUE(check(other / "a.gif"));
    EXPECT_TRUE(check(below / "b.gif"));
    EXPECT_TRUE(fs::exists(other / "a.gif")) << "copied, not moved";
    EXPECT_TRUE(fs::exists(below / "b.gif"));
}

TEST_F(CheckFileLoc, IncomingThatIsTheProjectsFolderLosesNothing) {
    fs::remove_all(incoming);
    fs::create_directory_symlink(gfx, incoming);
    writeBytes(gfx / "coin.gif", "only one");
    EXPECT_TRUE(check(incoming / "coin.gif"));
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "only one");
    expectSilence();
}

TEST_F(CheckFileLoc, TheFirstChoiceCopies) {
    rules.WrongFolder = 1;
    EXPECT_TRUE(check(pictures / "coin.gif"));
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "new");
    EXPECT_TRUE(fs::exists(pictures / "coin.gif"));
    expectSilence();
}

TEST_F(CheckFileLoc, TheSecondChoiceMovesAndLetsEventsRunBefore) {
    rules.WrongFolder = 2;
    int whole = 0;
    questions.whileWorking = [&] {
        EXPECT_TRUE(fs::exists(pictures / "coin.gif")) << "there until the copy is whole";
        whole += fs::exists(gfx / "coin.gif") ? 1 : 0;
    };
    EXPECT_TRUE(check(pictures / "coin.gif"));
    EXPECT_EQ(whole, 1);
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "new");
    EXPECT_FALSE(fs::exists(pictures / "coin.gif"));
    expectSilence();
}

TEST_F(CheckFileLoc, TheThirdChoiceAsks) {
    questions.pick = Pick::copy;
    EXPECT_TRUE(check(pictures / "coin.gif"));
    EXPECT_TRUE(fs::exists(pictures / "coin.gif"));
    EXPECT_EQ(questions.asked, std::vector<std::string>{"copy or move"});
    fs::remove(gfx / "coin.gif");
    questions.pick = Pick::move;
    EXPECT_TRUE(check(pictures / "coin.gif"));
    EXPECT_FALSE(fs::exists(pictures / "coin.gif"));
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "new");
}

TEST_F(CheckFileLoc, WithoutAnAnswerNothingIsUsable) {
    questions.pick = Pick::none;
    EXPECT_FALSE(check(pictures / "coin.gif"));
    EXPECT_FALSE(fs::exists(gfx / "coin.gif"));
    EXPECT_TRUE(fs::exists(pictures / "coin.gif"));
}

TEST_F(CheckFileLoc, AnUnknownChoiceIsToldAndTakesNothing) {
    for (const int wrongFolder : {0, 4, -1}) {
        questions.told.clear();
        rules.WrongFolder = wrongFolder;
        EXPECT_FALSE(check(pictures / "coin.gif"));
        EXPECT_EQ(notice().what, What::wrongFolderUnknown);
    }
    EXPECT_FALSE(fs::exists(gfx / "coin.gif"));
}

TEST_F(CheckFileLoc, RefusingTheReplacementLeavesBothFiles) {
    writeBytes(gfx / "coin.gif", "old");
    questions.replace = false;
    const auto before = snapshotOf(folder.path());
    for (const int wrongFolder : {1, 2}) {
        rules.WrongFolder = wrongFolder;
        questions.asked.clear();
        EXPECT_FALSE(check(pictures / "coin.gif"));
        EXPECT_EQ(questions.asked, std::vector<std::string>{"replace coin.gif"});
    }
    rules.WrongFolder = 3;
    questions.pick = Pick::move;
    questions.asked.clear();
    EXPECT_FALSE(check(pictures / "coin.gif"));
    EXPECT_EQ(questions.asked, (std::vector<std::string>{"copy or move", "replace coin.gif"}));
    EXPECT_EQ(snapshotOf(folder.path()), before);
}

TEST_F(CheckFileLoc, ReplacesWhenTheAuthorAgrees) {
    writeBytes(gfx / "coin.gif", "old");
    questions.replace = true;
    rules.WrongFolder = 2;
    EXPECT_TRUE(check(pictures / "coin.gif"));
    EXPECT_EQ(readBytes(gfx / "coin.gif"), "new");
    EXPECT_FALSE(fs::exists(pictures / "coin.gif"));
}

TEST_F(CheckFileLoc, ATargetInOtherLetterCaseIsReplacedAndNotMadeTwice) {
    writeBytes(gfx / "COIN.gif", "old");
    rules.WrongFolder = 1;
    questions.replace = true;
    EXPECT_TRUE(check(pictures / "coin.gif"));
    EXPECT_EQ(questions.asked, std::vector<std::string>{"replace coin.gif"});
    EXPECT_EQ(snapshotOf(gfx), (test::FolderSnapshot{{"COIN.gif", "new"}}));

    writeBytes(incoming / "Coin.GIF", "newer");
    EXPECT_TRUE(check(incoming / "Coin.GIF"));
    EXPECT_EQ(snapshotOf(gfx), (test::FolderSnapshot{{"COIN.gif", "newer"}}));
}

TEST_F(CheckFileLoc, TheProjectsFoldersAreFoundInAnyLetterCase) {
    fs::rename(gfx, gfx.parent_path() / "GFX");
    fs::rename(gfx.parent_path(), folder / "game/Resource");
    rules.WrongFolder = 1;
    EXPECT_TRUE(check(pictures / "coin.gif"));
    EXPECT_EQ(readBytes(folder / "game/Resource/GFX/coin.gif"), "new");
    EXPECT_TRUE(check(folder / "game/Resource/GFX/coin.gif"));
    expectSilence();
}

TEST_F(CheckFileLoc, TheOtherResourceFolderIsAWrongFolder) {
    rules.WrongFolder = 1;
    writeBytes(gfx / "intro.avi", "film");
    EXPECT_TRUE(check(gfx / "intro.avi", ResourceFolder::mmedia));
    EXPECT_EQ(readBytes(mmedia / "intro.avi"), "film");
}

TEST_F(CheckFileLoc, AnotherNameKeepsTheRulesOfTheFolders) {
    const QString as = QStringLiteral("new.gif");
    const auto take = [&](const fs::path& path) {
        return intake.CheckFileLoc(resources::pathText(path), store::ResourceFolder::gfx, as);
    };
    rules.WrongFolder = 2;
    writeBytes(pictures / "a_very_long_name.gif", "moved");
    EXPECT_TRUE(take(pictures / "a_very_long_name.gif"));
    EXPECT_EQ(readBytes(gfx / "new.gif"), "moved");
    EXPECT_FALSE(fs::exists(pictures / "a_very_long_name.gif"));

    fs::remove(gfx / "new.gif");
    writeBytes(incoming / "a_very_long_name.gif", "incoming");
    EXPECT_TRUE(take(incoming / "a_very_long_name.gif"));
    EXPECT_EQ(readBytes(gfx / "new.gif"), "incoming");
    EXPECT_FALSE(fs::exists(incoming / "a_very_long_name.gif"));

    fs::remove(gfx / "new.gif");
    writeBytes(gfx / "a_very_long_name.gif", "there");
    EXPECT_TRUE(take(gfx / "a_very_long_name.gif"));
    EXPECT_EQ(readBytes(gfx / "new.gif"), "there");
    EXPECT_TRUE(fs::exists(gfx / "a_very_long_name.gif")) << "it may be in use elsewhere";
    expectSilence();
}

TEST_F(CheckFileLoc, UnderAnotherNameNothingIsReplacedUnsaid) {
    const QString as = QStringLiteral("new.gif");
    writeBytes(gfx / "New.GIF", "old");
    for (const fs::path& from : {incoming, gfx, pictures}) {
        SCOPED_TRACE(from);
        rules.WrongFolder = 1;
        writeBytes(from / "a_very_long_name.gif", "x");
        EXPECT_FALSE(intake.CheckFileLoc(resources::pathText(from / "a_very_long_name.gif"),
                                         store::ResourceFolder::gfx, as));
        EXPECT_EQ(questions.asked.back(), "replace new.gif");
        EXPECT_EQ(readBytes(gfx / "New.GIF"), "old");
        EXPECT_TRUE(fs::exists(from / "a_very_long_name.gif"));
    }
    EXPECT_EQ(questions.asked.size(), 3U);
}

TEST_F(CheckFileName, ALongNameIsOfferedAsAShorterOneThatIsFree) {
    const QString name = QStringLiteral("twelve_chars.gif");
    EXPECT_EQ(intake.nameInField(name, store::ResourceFolder::gfx), QString());
    EXPECT_EQ(questions.asked.back(), "use twelve_char.gif for twelve_chars.gif");
    questions.takesShorter = true;
    EXPECT_EQ(intake.nameInField(name, store::ResourceFolder::gfx),
              QStringLiteral("twelve_char.gif"));
    writeBytes(gfx / "TWELVE_CHAR.GIF", "in any letter case");
    EXPECT_EQ(intake.nameInField(name, store::ResourceFolder::gfx),
              QStringLiteral("twelve_cha2.gif"));
    EXPECT_EQ(intake.nameInField(name, store::ResourceFolder::mmedia),
              QStringLiteral("twelve_char.gif"))
        << "in the other folder it is free";
    EXPECT_TRUE(questions.told.empty());
    EXPECT_EQ(intake.nameInField(QStringLiteral("coin.gif"), store::ResourceFolder::gfx),
              QStringLiteral("coin.gif"));
    EXPECT_EQ(intake.nameInField(QStringLiteral("a.fifteen_letters"), store::ResourceFolder::gfx),
              QString());
    EXPECT_EQ(notice().what, What::nameTooLong) << "there is no shorter one";
}

TEST_F(CheckFileLoc, CheckReplaceAsksOnlyForWhatIsThere) {
    EXPECT_TRUE(intake.CheckReplace(gfx / "coin.gif"));
    EXPECT_TRUE(questions.asked.empty());
    writeBytes(gfx / "Coin.gif", "old");
    EXPECT_FALSE(intake.CheckReplace(gfx / "coin.gif"));
    questions.replace = true;
    EXPECT_TRUE(intake.CheckReplace(gfx / "coin.gif"));
    fs::create_symlink(folder / "nowhere", gfx / "torn.gif");
    EXPECT_TRUE(intake.CheckReplace(gfx / "torn.gif"));
    EXPECT_EQ(questions.asked, (std::vector<std::string>{"replace coin.gif", "replace coin.gif",
                                                         "replace torn.gif"}));
}

}  // namespace
}  // namespace quorvel::resources
