// Every menu entry and every tool bar position: names, captions, shortcuts, tool tips, and when
// each can be used. The tables here are written by hand and not made from the shell's own.
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <QCoreApplication>
#include <QEnterEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>

#include "support/windows/shell_fixture.h"

namespace quorvel::test {
namespace {

struct MenuRow {
    const char* menu;
    const char* name;
    const char* caption;  ///< "-" is a separator
    const char* shortcut = "";
    bool visible = true;
};

const std::vector<MenuRow> kMenuRows = {
    {"FileMenu", "Filemen(1)", "&New Project"},
    {"FileMenu", "Filemen(2)", "&Open Project"},
    {"FileMenu", "Filemen(3)", "&Close Project"},
    {"FileMenu", "Filemen(8)", "-"},
    {"FileMenu", "Filemen(9)", "1", "Ctrl+A"},
    {"FileMenu", "Filemen(10)", "2", "Ctrl+B"},
    {"FileMenu", "Filemen(11)", "3", "Ctrl+C"},
    {"FileMenu", "Filemen(12)", "4", "Ctrl+D"},
    {"FileMenu", "Filemen(13)", "-"},
    {"FileMenu", "Filemen(14)", "E&xit", "Ctrl+X"},
    {"projectmenu", "projmen(0)", "&Scene-O-Matic"},
    {"projectmenu", "projmen(1)", "Add &New Scene"},
    {"projectmenu", "projmen(2)", "Edit &Locations/ Map"},
    {"projectmenu", "projmen(3)", "Edit Inventory &Items"},
    {"projectmenu", "projmen(4)", "Edit C&ue Cards"},
    {"projectmenu", "projmen(5)", "Edit &Mousepointers", "", false},
    {"projectmenu", "projmen(6)", "Edit &Text Files"},
    {"projectmenu", "projmen(7)", "&General Game Settings"},
    {"projectmenu", "projmen(8)", "&Customize Player"},
    {"projectmenu", "projmen(9)", "Opening Logo/ \"Credits\" Scene"},
    {"projectmenu", "projmen(10)", "Game \"Intro\""},
    {"projectmenu", "projmen(11)", "-"},
    {"projectmenu", "projmen(12)", "Project Security"},
    {"projectmenu", "projmen(13)", "View/ Edit Project In&fo"},
    {"scnmenu", "scnmen(1)", "Scene &Properties"},
    {"scnmenu", "scnmen(2)", "-"},
    {"scnmenu", "scnmen(3)", "Insert New &Object"},
    {"runmenu", "runmen(0)", ">> Quorvel &Player <<"},
    {"runmenu", "runmen(1)", "&Animated GIF Editor"},
    {"runmenu", "runmen(2)", "&Graphics Editor"},
    {"runmenu", "runmen(3)", "&Icon / Cursor Editor"},
    {"runmenu", "runmen(4)", "&Wav Editor"},
    {"runmenu", "runmen(5)", "&Midi Editor"},
    {"runmenu", "runmen(6)", "&Video Editor"},
    {"Optionsmen", "options(1)", "&Editor Options"},
    {"Optionsmen", "options(2)", "&Run-Menu Setup"},
    {"helpmenu", "helpmen(1)", "&Tip Of The Day"},
    {"helpmenu", "helpmen(2)", "skip", "", false},
    {"helpmenu", "helpmen(3)", "Help &Contents / Overview"},
    {"helpmenu", "helpmen(4)", "-"},
    {"helpmenu", "helpmen(5)", "Visit Website"},
    {"helpmenu", "helpmen(8)", "-"},
    {"helpmenu", "helpmen(9)", "&About"},
};

struct MenuName {
    const char* name;
    const char* caption;
};

const std::vector<MenuName> kMenus = {
    {"FileMenu", "&File"}, {"projectmenu", "&Project"}, {"scnmenu", "&Scene"},
    {"runmenu", "&Run"},   {"Optionsmen", "&Options"},  {"helpmenu", "&Help"},
};

const std::map<int, const char*> kToolTips = {
    {1, "Open Project"},
    {2, "Close Project"},
    {4, "View/ Edit Project Information"},
    {5, "Project Security"},
    {6, "Toggle Animations"},
    {7, "Toggle Borders"},
    {9, "Scene-O-Matic"},
    {10, "Add New Scene"},
    {11, "Edit Locations/ Map"},
    {12, "Edit Inventory Items"},
    {13, "Edit Cue Cards"},
    {14, "Edit Mousepointers"},
    {15, "Edit Text Files"},
    {16, "General Game Settings"},
    {17, "Customize Player"},
    {18, "Opening Logo/ \"Credits\" Scene"},
    {19, "Game \"Intro\""},
    {20, "Project Reports"},
    {22, "Scene Properties"},
    {23, "Insert New Object"},
    {25, "Run Quorvel Player"},
    {26, "Run Animated GIF Editor"},
    {27, "Run Graphics Editor"},
    {28, "Run Icon / Cursor Editor"},
    {29, "Run WAV Editor"},
    {30, "Run MIDI Editor"},
    {31, "Run Video Editor"},
    {33, "Help Pointer"},
};

const std::set<int> kToolGaps = {3, 8, 21, 24};
const std::set<int> kHiddenTools = {14, 20, 32};

QString q(const char* latin) {
    return QString::fromLatin1(latin);
}

class Commands : public ShellFixture {
  protected:
    QAction& tool(int position) { return action(QStringLiteral("Toolbar1(%1)").arg(position)); }

    /// Names of the entries that can be used now, separators left out.
    std::set<std::string> enabledEntries() {
        std::set<std::string> names;
        for (const QAction* one : main().findChildren<QAction*>()) {
            if (one->objectName().endsWith(QLatin1Char(')')) && one->isEnabled() &&
                !one->isSeparator()) {
                names.insert(one->objectName().toStdString());
            }
        }
        return names;
    }
};

TEST_F(Commands, TheMenuBarHasItsMenusInOrder) {
    start();
    const QList<QAction*> heads = main().menuBar()->actions();
    ASSERT_EQ(static_cast<std::size_t>(heads.size()), kMenus.size() + 1);
    for (std::size_t i = 0; i < kMenus.size(); ++i) {
        const QAction* head = heads[static_cast<qsizetype>(i)];
        EXPECT_EQ(head->objectName(), q(kMenus[i].name));
        EXPECT_EQ(head->text(), q(kMenus[i].caption));
        ASSERT_NE(head->menu(), nullptr);
        EXPECT_TRUE(head->isVisible());
    }
    EXPECT_EQ(heads.back()->objectName(), QStringLiteral("projfolder"));
    EXPECT_EQ(heads.back()->text(), QStringLiteral("(No Project Loaded)"));
}

TEST_F(Commands, EveryMenuEntryStandsAsItIsNamed) {
    start();
    std::map<QString, qsizetype> next;
    for (const MenuRow& row : kMenuRows) {
        SCOPED_TRACE(row.name);
        const QList<QAction*> entries = action(q(row.menu)).menu()->actions();
        const qsizetype at = next[q(row.menu)]++;
        ASSERT_LT(at, entries.size());
        const QAction* entry = entries[at];
        EXPECT_EQ(entry->objectName(), q(row.name));
        EXPECT_EQ(entry->isVisible(), row.visible);
        if (q(row.caption) == QStringLiteral("-")) {
            EXPECT_TRUE(entry->isSeparator());
            continue;
        }
        EXPECT_FALSE(entry->isSeparator());
        EXPECT_EQ(entry->text(), q(row.caption));
        EXPECT_EQ(entry->shortcut().toString(QKeySequence::PortableText), q(row.shortcut));
        EXPECT_FALSE(entry->isCheckable());
    }
    for (const auto& [menu, count] : next) {
        EXPECT_EQ(action(menu).menu()->actions().size(), count) << menu.toStdString();
    }
}

/// The keys of the tool bar's buttons; the other positions have none.
const std::map<int, const char*> kToolKeys = {
    {1, "Open"},          {2, "Close"},     {4, "ProjInformation"}, {5, "ProjSec"},
    {9, "SceneMatic"},    {10, "addscene"}, {11, "editlocations"},  {12, "edititems"},
    {13, "editcues"},     {14, "editmp"},   {15, "edtext"},         {16, "gengamesettings"},
    {17, "customplayer"}, {18, "LogCred"},  {19, "GameInt"},        {20, "projrep"},
    {22, "scnproperts"},  {23, "newob"},    {25, "runPlayer"},      {26, "runANIM"},
    {27, "rungrafix"},    {28, "runicon"},  {29, "runwav"},         {30, "runmidi"},
    {31, "runavi"}};

TEST_F(Commands, TheToolBarHasThirtyThreePositions) {
    start();
    const QList<QAction*> positions =
        control<QToolBar>(main(), QStringLiteral("Toolbar1")).actions();
    ASSERT_EQ(positions.size(), 33);
    for (int n = 1; n <= 33; ++n) {
        SCOPED_TRACE(n);
        const QAction* one = positions[n - 1];
        EXPECT_EQ(one->objectName(), QStringLiteral("Toolbar1(%1)").arg(n));
        EXPECT_EQ(one->isVisible(), !kHiddenTools.contains(n));
        EXPECT_EQ(one->isSeparator(), kToolGaps.contains(n));
        EXPECT_EQ(one->isCheckable(), n == 6 || n == 7);
        const auto key = kToolKeys.find(n);
        EXPECT_EQ(one->property("key").toString(),
                  key == kToolKeys.end() ? QString() : q(key->second));
        if (const auto tip = kToolTips.find(n); tip != kToolTips.end()) {
            EXPECT_EQ(one->toolTip(), q(tip->second));
            EXPECT_FALSE(one->icon().isNull());
            EXPECT_FALSE(one->icon().pixmap(20, 20).toImage().isNull());
        }
    }
}

TEST_F(Commands, WithoutAProjectOnlyWhatNeedsNoneCanBeUsed) {
    start();
    EXPECT_EQ(enabledEntries(), (std::set<std::string>{"Filemen(1)", "Filemen(2)", "Filemen(14)",
                                                       "options(1)", "helpmen(1)", "helpmen(3)",
                                                       "helpmen(5)", "helpmen(9)", "Toolbar1(1)"}));
}

const std::set<std::string> kEnabledWithAProject = {
    "Filemen(3)",  "Filemen(9)",   "Filemen(14)",  "projmen(1)",   "projmen(12)",  "scnmen(1)",
    "scnmen(3)",   "runmen(0)",    "Toolbar1(1)",  "Toolbar1(2)",  "Toolbar1(5)",  "Toolbar1(6)",
    "Toolbar1(7)", "Toolbar1(10)", "Toolbar1(22)", "Toolbar1(23)", "Toolbar1(25)", "options(1)",
    "helpmen(1)",  "helpmen(3)",   "helpmen(5)",   "helpmen(9)"};

TEST_F(Commands, AProjectEnablesItsEntriesAndClosingTakesThemBack) {
    const TestProject files = ProjectBuilder().build(projects.path());
    start({text(files.projectPath())});
    EXPECT_EQ(enabledEntries(), kEnabledWithAProject);
    action(QStringLiteral("Toolbar1(2)")).trigger();
    EXPECT_FALSE(shell->project().ProjectOpen);
    EXPECT_EQ(enabledEntries(),
              (std::set<std::string>{"Filemen(1)", "Filemen(2)", "Filemen(9)", "Filemen(14)",
                                     "options(1)", "helpmen(1)", "helpmen(3)", "helpmen(5)",
                                     "helpmen(9)", "Toolbar1(1)"}));
}

TEST_F(Commands, TwentyObjectsLeaveNoRoomForAnother) {
    ProjectBuilder builder;
    for (int slot = 1; slot <= 20; ++slot) {
        builder.object(1, slot, 5, static_cast<std::int16_t>(10 * slot), 50);
    }
    const TestProject full = builder.build(projects.makeFolder("full"));
    const TestProject free =
        builder.editSlot(1, 7, [](store::ObjectSlotRecord& slot) { slot.SlotInt1 = -1; })
            .build(projects.makeFolder("free"));
    start({text(full.projectPath())});
    EXPECT_FALSE(action(QStringLiteral("scnmen(3)")).isEnabled());
    EXPECT_FALSE(tool(23).isEnabled());
    dialogs.choice = text(free.projectPath());
    tool(1).trigger();
    EXPECT_TRUE(action(QStringLiteral("scnmen(3)")).isEnabled());
    EXPECT_TRUE(tool(23).isEnabled());
}

TEST_F(Commands, AllThatNeedsAProjectFollowsIt) {
    // All entries have an answer here, so that each rule shows.
    start();
    shell::CommandState state;
    for (int n = 0; n <= static_cast<int>(shell::Command::toggleBorders); ++n) {
        state.available.insert(static_cast<shell::Command>(n));
    }
    state.available.erase(shell::Command::none);
    const std::set<std::string> always = {"Filemen(1)", "Filemen(2)", "Filemen(14)", "options(1)",
                                          "options(2)", "helpmen(1)", "helpmen(3)",  "helpmen(5)",
                                          "helpmen(9)", "Toolbar1(1)"};
    main().applyCommandState(state, shell->settings());
    EXPECT_EQ(enabledEntries(), always);

    // What is hidden counts as disabled: 5 of the menu, 14 and 20 of the tool bar.
    std::set<std::string> withProject = always;
    withProject.erase("Filemen(1)");
    withProject.erase("Filemen(2)");
    withProject.insert({"Filemen(3)", "scnmen(1)", "runmen(0)"});
    for (const int n : {0, 1, 2, 3, 4, 6, 7, 8, 9, 10, 12, 13}) {
        withProject.insert("projmen(" + std::to_string(n) + ")");
    }
    for (const int n : {2, 4, 5, 6, 7, 9, 10, 11, 12, 13, 15, 16, 17, 18, 19, 22, 25}) {
        withProject.insert("Toolbar1(" + std::to_string(n) + ")");
    }
    state.projectOpen = true;
    state.sceneStored = true;
    state.roomForObject = false;
    main().applyCommandState(state, shell->settings());
    EXPECT_EQ(enabledEntries(), withProject);

    withProject.insert({"scnmen(3)", "Toolbar1(23)"});
    state.roomForObject = true;
    main().applyCommandState(state, shell->settings());
    EXPECT_EQ(enabledEntries(), withProject);
}

TEST_F(Commands, ASlotOfTheRunMenuFollowsItsProgram) {
    start();
    shell->settings().RunProgram[1] = QStringLiteral("/usr/bin/true");
    shell->settings().RunProgram[5] = QStringLiteral("\"/a b/c\" -x");
    shell->settings().SaveEditorSettings();
    leave();
    start();
    for (int n = 1; n <= 6; ++n) {
        SCOPED_TRACE(n);
        const bool defined = n == 2 || n == 6;
        EXPECT_EQ(action(QStringLiteral("runmen(%1)").arg(n)).isEnabled(), defined);
        EXPECT_EQ(tool(25 + n).isEnabled(), defined);
    }
    action(QStringLiteral("runmen(2)")).trigger();
    tool(31).trigger();
    EXPECT_EQ(programs.started,
              (QStringList{QStringLiteral("/usr/bin/true"), QStringLiteral("\"/a b/c\" -x")}));
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(Commands, AProgramThatDoesNotStartIsTold) {
    start();
    shell->settings().RunProgram[0] = QStringLiteral("/no/such %1 & <b>");
    shell->settings().SaveEditorSettings();
    leave();
    start();
    programs.succeed = false;
    action(QStringLiteral("runmen(1)")).trigger();
    EXPECT_EQ(boxes.texts(), QStringList{QStringLiteral(
                                 "Could not open \"/no/such %1 & <b>\"\nPlease check the path and "
                                 "try again.")});
    EXPECT_EQ(boxes.shown().front().title, QStringLiteral("Error Opening File"));
}

TEST_F(Commands, TheTogglesFollowTheirButtons) {
    const TestProject files = ProjectBuilder()
                                  .editProject([](store::ProjectRecord& record) {
                                      record.ViewBorders = 0;
                                      record.ViewAnimations = 0;
                                  })
                                  .build(projects.path());
    start({text(files.projectPath())});
    EXPECT_FALSE(tool(6).isChecked());
    EXPECT_FALSE(tool(7).isChecked());
    tool(6).trigger();
    EXPECT_TRUE(tool(6).isChecked());
    EXPECT_TRUE(main().view().animationsOn());
    EXPECT_FALSE(main().view().bordersOn());
    tool(7).trigger();
    EXPECT_TRUE(tool(7).isChecked());
    EXPECT_TRUE(main().view().bordersOn());
    tool(7).trigger();
    EXPECT_FALSE(tool(7).isChecked());
    EXPECT_FALSE(main().view().bordersOn());
}

TEST_F(Commands, TheOpenEntryAsksForAProject) {
    const TestProject files = ProjectBuilder().fileName("A & B.qvl").build(projects.path());
    start();
    action(QStringLiteral("Filemen(2)")).trigger();
    EXPECT_FALSE(shell->project().ProjectOpen) << "the dialog was left";
    ASSERT_EQ(dialogs.asked.size(), 1U);
    EXPECT_EQ(dialogs.asked[0].title, QStringLiteral("Choose a project to open"));
    EXPECT_EQ(dialogs.asked[0].filter, QStringLiteral("Quorvel Projects (*.qvl)|*.qvl|"));
    EXPECT_EQ(dialogs.asked[0].fileName, QString());
    EXPECT_TRUE(boxes.shown().empty());

    dialogs.choice = text(files.projectPath());
    tool(1).trigger();
    EXPECT_TRUE(shell->project().ProjectOpen);
    EXPECT_EQ(shell->project().ProjectFileName, "A & B.qvl");
    EXPECT_EQ(action(QStringLiteral("projfolder")).text(),
              QStringLiteral("Project Folder is ") + text(projects.path()) + QLatin1Char('/'));
}

TEST_F(Commands, TheEntriesForAnotherProjectSayWhyTheyAreOff) {
    const TestProject files = ProjectBuilder().build(projects.path());
    start({text(files.projectPath())});
    auto& line = control<QLabel>(main(), q("StatusTip"));
    auto& menu = control<QMenu>(main(), q("FileMenu"));
    QMenuBar* bar = main().menuBar();
    const auto point = [&](const QString& entry) {
        QTest::mouseMove(&menu, menu.actionGeometry(&action(entry)).center());
        return waitUntil([&] { return menu.activeAction() == &action(entry); });
    };
    for (const char* entry : {"Filemen(1)", "Filemen(2)"}) {
        SCOPED_TRACE(entry);
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu.menuAction()).center());
        ASSERT_TRUE(waitUntil([&] { return menu.isVisible(); }));
        EXPECT_FALSE(action(q(entry)).isEnabled());
        ASSERT_TRUE(point(q(entry)));
        EXPECT_TRUE(line.isVisible());
        EXPECT_EQ(line.text(), q("Close the project first."));
        EXPECT_TRUE(waitUntil([&] { return line.width() >= line.sizeHint().width(); }))
            << "nothing is cut";
        ASSERT_TRUE(point(q("Filemen(3)")));
        EXPECT_FALSE(line.isVisible()) << "this one can be used";
        ASSERT_TRUE(point(q(entry)));
        menu.close();
        bar->setActiveAction(nullptr);
        EXPECT_TRUE(waitUntil([&] { return !line.isVisible(); })) << "the menu was left";
    }
    EXPECT_TRUE(tool(1).isEnabled());
    EXPECT_TRUE(action(q("Filemen(9)")).isEnabled()) << "a recent project";
    action(q("Filemen(3)")).trigger();
    EXPECT_EQ(action(q("Filemen(1)")).statusTip(), QString());
    EXPECT_EQ(action(q("Filemen(2)")).statusTip(), QString());
}

TEST_F(Commands, EntriesThatWaitForTheirWindowSaySo) {
    const QString waits = q("This window is not part of this version yet.");
    const TestProject files = ProjectBuilder().build(projects.path());
    for (const bool open : {false, true}) {
        start(open ? QStringList(text(files.projectPath())) : QStringList());
        for (const char* entry :
             {"projmen(0)", "projmen(2)", "projmen(3)", "projmen(4)", "projmen(6)", "projmen(7)",
              "projmen(8)", "projmen(9)", "projmen(10)", "projmen(13)", "options(2)", "Toolbar1(4)",
              "Toolbar1(9)", "Toolbar1(11)", "Toolbar1(16)", "Toolbar1(19)"}) {
            EXPECT_FALSE(action(q(entry)).isEnabled()) << entry;
            EXPECT_EQ(action(q(entry)).statusTip(), waits) << entry;
        }
        for (const char* entry :
             {"projmen(1)", "projmen(12)", "scnmen(1)", "runmen(0)", "runmen(1)", "Toolbar1(1)",
              "Toolbar1(10)", "Toolbar1(26)", "Toolbar1(33)"}) {
            EXPECT_NE(action(q(entry)).statusTip(), waits) << entry;
        }
        // A button that is off tells it as well.
        QWidget* button = control<QToolBar>(main(), q("Toolbar1")).widgetForAction(&tool(9));
        QEnterEvent enter({2, 2}, {2, 2}, {2, 2});
        QCoreApplication::sendEvent(button, &enter);
        EXPECT_EQ(control<QLabel>(main(), q("StatusTip")).text(), waits);
        leave();
    }
}

TEST_F(Commands, AProjectStaysOpenUntilAnotherIsChosen) {
    const TestProject first = ProjectBuilder().build(projects.makeFolder("first"));
    const TestProject second = ProjectBuilder().build(projects.makeFolder("second"));
    start({text(first.projectPath())});
    int asked = 0;
    dialogs.whileAsked = [&] {
        ++asked;
        EXPECT_TRUE(shell->project().ProjectOpen);
        EXPECT_TRUE(std::filesystem::equivalent(shell->project().folder(), first.folder));
    };
    tool(1).trigger();
    EXPECT_TRUE(shell->project().ProjectOpen) << "the dialog was left";
    EXPECT_TRUE(std::filesystem::equivalent(shell->project().folder(), first.folder));
    dialogs.choice = text(second.projectPath());
    tool(1).trigger();
    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(std::filesystem::equivalent(shell->project().folder(), second.folder));
}

}  // namespace
}  // namespace quorvel::test
