// What stands between a project file and its scene: versions, security codes, old settings, and
// what the author is told about each.
#include <array>
#include <gtest/gtest.h>
#include <utility>

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>

#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

using forms::Answer;
using forms::Box;

const QString kGateTitle = QStringLiteral("Error loading project!");
const QString kNewer = QStringLiteral(
    "This project was created with a newer version of Quorvel.\nAlthough it might load, some parts "
    "may not be available for you to edit,\nand attempting to edit the project could cause Quorvel "
    "to crash.\nWould you like to continue loading the project anyway?");
const QString kOlder = QStringLiteral(
    "This project was created with an older version of Quorvel.\nA project update is necessary in "
    "order to use this\nproject with this version of Quorvel.");

class Gates : public ShellFixture {
  protected:
    void open(const TestProject& files) { start({text(files.projectPath())}); }

    void expectNoProject() {
        EXPECT_FALSE(shell->project().ProjectOpen);
        EXPECT_FALSE(shell->project().ProjectLoading);
        EXPECT_FALSE(shell->project().projectFile.isOpen());
        EXPECT_FALSE(shell->project().sceneFile.isOpen());
        EXPECT_EQ(main().windowTitle(), QStringLiteral("Quorvel"));
        EXPECT_EQ(action(QStringLiteral("projfolder")).text(),
                  QStringLiteral("(No Project Loaded)"));
        EXPECT_FALSE(action(QStringLiteral("Filemen(3)")).isEnabled());
        EXPECT_FALSE(action(QStringLiteral("projmen(12)")).isEnabled());
        EXPECT_EQ(control<QWidget>(main(), QStringLiteral("CurScene")).property("text").toString(),
                  QStringLiteral("---"));
        EXPECT_EQ(visibleWindow(QStringLiteral("OpenProj")), nullptr);
        EXPECT_EQ(shell->settings().RecentProj[0], QString()) << "not remembered";
    }
    void expectOneBox(const QString& text, Box::Buttons buttons = Box::Buttons::ok) {
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_EQ(boxes.shown()[0].text, text);
        EXPECT_EQ(boxes.shown()[0].title, kGateTitle);
        EXPECT_EQ(boxes.shown()[0].icon, Box::Icon::critical);
        EXPECT_EQ(boxes.shown()[0].buttons, buttons);
    }
};

// Versions

class OpeningVersions : public Gates, public ::testing::WithParamInterface<int> {};
class RefusedVersions : public Gates, public ::testing::WithParamInterface<int> {};

TEST_P(OpeningVersions, OpenSilentlyAndAreWrittenAs300) {
    const TestProject files =
        ProjectBuilder().version(static_cast<std::int16_t>(GetParam())).build(projects.path());
    open(files);
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(boxes.shown().empty());
    leave();
    EXPECT_EQ(readInt(files.projectPath(), 310), 300);
}
INSTANTIATE_TEST_SUITE_P(From5To300, OpeningVersions, ::testing::Values(5, 6, 299, 300));

TEST_P(RefusedVersions, AreToldAndLeftAlone) {
    const TestProject files =
        ProjectBuilder().version(static_cast<std::int16_t>(GetParam())).build(projects.path());
    const FolderSnapshot before = snapshotOf(projects.path());
    boxes.whileShown = [](const Box&) {
        EXPECT_EQ(visibleWindow(QStringLiteral("OpenProj")), nullptr) << "it leaves first";
    };
    open(files);
    expectOneBox(kOlder);
    expectNoProject();
    leave();
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}
INSTANTIATE_TEST_SUITE_P(Below5, RefusedVersions, ::testing::Values(4, 1, 0, -1, -32768));

TEST_F(Gates, ANewerProjectOpensWhenTheAuthorWantsItAndKeepsItsNumber) {
    const TestProject files = ProjectBuilder().version(301).build(projects.path());
    boxes.answer(Answer::yes);
    open(files);
    expectOneBox(kNewer, Box::Buttons::yesNo);
    EXPECT_TRUE(shell->project().ProjectOpen);
    leave();
    EXPECT_EQ(readInt(files.projectPath(), 310), 301);
}

TEST_F(Gates, ANewerProjectStaysClosedOtherwise) {
    const TestProject files = ProjectBuilder().version(32767).build(projects.path());
    const FolderSnapshot before = snapshotOf(projects.path());
    boxes.answer(Answer::no);
    open(files);
    expectOneBox(kNewer, Box::Buttons::yesNo);
    expectNoProject();
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}

TEST_F(Gates, TheNumberOfANewerProjectDoesNotPassToTheNextOne) {
    const TestProject newer = ProjectBuilder().version(400).build(projects.makeFolder("a"));
    const TestProject usual = ProjectBuilder().build(projects.makeFolder("b"));
    boxes.answer(Answer::yes);
    start({text(newer.projectPath()), text(usual.projectPath())});
    leave();
    EXPECT_EQ(readInt(newer.projectPath(), 310), 400);
    EXPECT_EQ(readInt(usual.projectPath(), 310), 300);
}

// Security

constexpr std::array<std::pair<int, std::uintmax_t>, 5> kCodePlaces = {
    {{1, 205}, {2, 110}, {3, 207}, {4, 217}, {5, 0}}};

ProjectBuilder fullProject(std::int16_t code) {
    return ProjectBuilder().scenes(2).locations(1).items(1).cards(1).securityCode(code);
}

class SecurityCodes : public Gates, public ::testing::WithParamInterface<std::pair<int, int>> {};

TEST_P(SecurityCodes, OneStoreThatDiffersIsNamed) {
    const auto [store, code] = GetParam();
    const TestProject files = fullProject(static_cast<std::int16_t>(code)).build(projects.path());
    patchInt(files.storePath(store), kCodePlaces.at(static_cast<std::size_t>(store - 1)).second,
             4999);
    const FolderSnapshot before = snapshotOf(projects.path());
    boxes.whileShown = [](const Box&) {
        EXPECT_EQ(visibleWindow(QStringLiteral("OpenProj")), nullptr);
    };
    open(files);
    expectOneBox(QStringLiteral(" Project Security Failure: Quorvel%1.dat\n").arg(store));
    expectNoProject();
    leave();
    EXPECT_EQ(differences(before, snapshotOf(projects.path())), "");
}
INSTANTIATE_TEST_SUITE_P(EachStore, SecurityCodes,
                         ::testing::Values(std::pair{1, 1234}, std::pair{2, 1234},
                                           std::pair{3, 1234}, std::pair{4, 1234},
                                           std::pair{5, 1234}, std::pair{1, 0}, std::pair{4, 0}));

TEST_F(Gates, SeveralStoresAreNamedInTheirOrder) {
    const TestProject files = fullProject(77).build(projects.path());
    patchInt(files.storePath(5), 0, -1);
    patchInt(files.storePath(2), 110, 78);
    open(files);
    expectOneBox(
        QStringLiteral(" Project Security Failure: Quorvel2.dat\n Project Security "
                       "Failure: Quorvel5.dat\n"));
    expectNoProject();
}

TEST_F(Gates, CodesThatAgreeOpenAndSwitchSecurityOn) {
    const TestProject files = fullProject(1234).build(projects.path());
    const FolderSnapshot before = snapshotOf(projects.path());
    open(files);
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_TRUE(shell->project().SecurityOn);
    EXPECT_EQ(shell->project().SecurityCode, 1234);
    leave();
    EXPECT_EQ(readInt(files.projectPath(), 304), 1234);
    for (const auto& [store, offset] : kCodePlaces) {
        EXPECT_EQ(readInt(files.storePath(store), offset), 1234) << store;
    }
    EXPECT_EQ(snapshotOf(projects.path()).size(), before.size());
}

TEST_F(Gates, EmptyItemAndCardStoresAgreeWithAnyCode) {
    const TestProject files = ProjectBuilder().securityCode(4711).build(projects.path());
    open(files);
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_TRUE(shell->project().SecurityOn);
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(Gates, TheFailureAfterANewerVersionBeginsWithItsText) {
    const TestProject files = fullProject(9).version(301).build(projects.path());
    patchInt(files.storePath(3), 207, 8);
    boxes.answer(Answer::yes);
    open(files);
    ASSERT_EQ(boxes.shown().size(), 2U);
    EXPECT_EQ(boxes.shown()[1].text,
              kNewer + QStringLiteral(" Project Security Failure: Quorvel3.dat\n"));
    expectNoProject();
}

TEST_F(Gates, AProjectThatNeverSawItsFirstCloseIsReported) {
    const TestProject files = ProjectBuilder().build(projects.path());
    patchInt(files.projectPath(), 304, 1);
    open(files);
    expectOneBox(
        QStringLiteral(" Project Security Failure: Quorvel1.dat\n Project Security "
                       "Failure: Quorvel2.dat\n Project Security Failure: "
                       "Quorvel4.dat\n"));
    expectNoProject();
}

// Old settings

const QString kOldCommon = QStringLiteral(
    "Quorvel has detected that this project was originally created with a previous version.  Until "
    "this project is updated, you will not be able to take advantage of some new features that are "
    "available.  ");

TEST_F(Gates, OldSettingsAreToldOnceTheProjectStands) {
    const TestProject files =
        ProjectBuilder()
            .editSettings([](store::GameSettingsRecord& record) { record.CustomLayoutFlag = 0; })
            .build(projects.path());
    boxes.whileShown = [this](const Box&) {
        EXPECT_TRUE(shell->project().ProjectOpen);
        EXPECT_NE(visibleWindow(QStringLiteral("OpenProj")), nullptr) << "it leaves afterwards";
        EXPECT_TRUE(action(QStringLiteral("Filemen(3)")).isEnabled());
    };
    open(files);
    ASSERT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(boxes.shown()[0].title, QStringLiteral("Old Settings Detected"));
    EXPECT_EQ(boxes.shown()[0].icon, Box::Icon::information);
    EXPECT_EQ(boxes.shown()[0].text,
              kOldCommon + QStringLiteral(
                               "To automatically update this project, click on the "
                               "'Project|Customize Player' menu at your earliest convenience.  You "
                               "will be guided through the simple, one-time update process!"));
    EXPECT_FALSE(shell->project().OldSettings);
    boxes.whileShown = nullptr;
}

TEST_F(Gates, OldSettingsOfAReadOnlyProjectCannotBeUpdated) {
    const TestProject files =
        ProjectBuilder()
            .editSettings([](store::GameSettingsRecord& record) { record.CustomLayoutFlag = 0; })
            .build(projects.path());
    // A folder that is not there makes the attributes fail, and with them the whole project.
    std::filesystem::remove(projects / "resource/mmedia");
    open(files);
    ASSERT_EQ(boxes.shown().size(), 3U);
    EXPECT_EQ(boxes.shown()[2].title, QStringLiteral("Old Settings Detected"));
    EXPECT_EQ(boxes.shown()[2].icon, Box::Icon::exclamation);
    EXPECT_EQ(boxes.shown()[2].text,
              kOldCommon +
                  QStringLiteral(
                      "Because the project files are 'Read Only' however, it is impossible to "
                      "update the project at this time.  If this project is located on a CD-ROM or "
                      "other non-writable media, please copy it to your hard drive so that the "
                      "project can be updated."));
}

// The progress window

struct Step {
    QString heading, status, percent;
    int bar;
    friend bool operator==(const Step&, const Step&) = default;
};

TEST_F(Gates, TheProgressWindowShowsEachStage) {
    const TestProject files = fullProject(0).build(projects.path());
    start();
    std::vector<Step> seen;
    const auto look = [&] {
        QWidget* window = visibleWindow(QStringLiteral("OpenProj"));
        if (window == nullptr) {
            return;
        }
        const auto label = [&](const char* name) {
            return control<QLabel>(*window, QString::fromLatin1(name)).text();
        };
        const Step now{label("Label1"), label("Status"), label("Perc"),
                       control<QProgressBar>(*window, QStringLiteral("ProgressBar1")).value()};
        if (seen.empty() || seen.back() != now) {
            seen.push_back(now);
        }
    };
    // Every stage lets events run, so a timer sees each of them.
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, look);
    watch.start(0);
    dialogs.choice = text(files.projectPath());
    action(QStringLiteral("Filemen(2)")).trigger();
    watch.stop();

    const QString loading = QStringLiteral("Loading Project...");
    const std::vector<Step> expected = {
        {loading, QStringLiteral("Reading Project Information"), QStringLiteral("0%"), 0},
        {loading, QStringLiteral("Verifying Project Files"), QStringLiteral("0%"), 0},
        {loading, QStringLiteral("Reading Scene Information"), QStringLiteral("0%"), 0},
        {loading, QStringLiteral("Reading Location Information"), QStringLiteral("20%"), 20},
        {loading, QStringLiteral("Reading Inventory Item Information"), QStringLiteral("40%"), 40},
        {loading, QStringLiteral("Reading General Game Information"), QStringLiteral("60%"), 60},
        {loading, QStringLiteral("Reading Cue Card Information"), QStringLiteral("80%"), 80},
        {loading, QStringLiteral("Reading Cue Card Information"), QStringLiteral("100%"), 100},
        {QStringLiteral("Project Opened Successfully"), QStringLiteral("Complete"),
         QStringLiteral("100%"), 100},
    };
    std::string all;
    for (const Step& step : seen) {
        all += (step.heading + u'/' + step.status + u'/' + step.percent + u'\n').toStdString();
    }
    EXPECT_EQ(seen, expected) << all;
}

TEST_F(Gates, TheMainWindowComesForwardWithTheProject) {
    const TestProject files = ProjectBuilder().build(projects.path());
    start();
    main().showMinimized();
    dialogs.choice = text(files.projectPath());
    action(QStringLiteral("Filemen(2)")).trigger();
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_FALSE(main().isMinimized());
}

TEST_F(Gates, TheProgressWindowCannotBeLeft) {
    const TestProject files = ProjectBuilder().build(projects.path());
    start();
    dialogs.choice = text(files.projectPath());
    withWindow(
        QStringLiteral("OpenProj"), [this] { action(QStringLiteral("Filemen(2)")).trigger(); },
        [](QWidget& window) {
            EXPECT_EQ(control<QLabel>(window, QStringLiteral("Label2")).text(),
                      QStringLiteral("Current Operation"));
            EXPECT_EQ(control<QLabel>(window, QStringLiteral("Label3")).text(),
                      QStringLiteral("Progress"));
            EXPECT_TRUE(dynamic_cast<QDialog&>(window).isModal());
            dynamic_cast<QDialog&>(window).reject();
            EXPECT_TRUE(window.isVisible());
            window.close();
            EXPECT_TRUE(window.isVisible());
        });
    EXPECT_TRUE(shell->project().ProjectOpen);
}

}  // namespace
}  // namespace quorvel::test
