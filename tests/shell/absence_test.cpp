// The system ends the editor while windows stand open, or the session ends: what is kept and what
// is told.
#include "shell/absence.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>

#include "groups/property_form.h"
#include "support/windows/project_fixture.h"

namespace quorvel::test {
namespace {

using forms::Answer;
using forms::Box;

class Absence : public ProjectFixture {
  protected:
    void openGame() {
        open(ProjectBuilder().scenes(3).object(1, 3, 1, 100, 120));
        ASSERT_TRUE(shell->project().ProjectOpen);
    }
    /// Opens the scene's properties; `author` works in them.
    void inSceneProperties(const std::function<void(groups::PropertyForm&)>& author) {
        withWindow(
            QStringLiteral("sceneimage"), [this] { action(QStringLiteral("scnmen(1)")).trigger(); },
            [&author](QWidget& window) { author(dynamic_cast<groups::PropertyForm&>(window)); });
    }
    void inHotSpot(const std::function<void(groups::PropertyForm&)>& author) {
        shell->actions().PopupObject = 3;
        withWindow(
            QStringLiteral("linkPropf"), [this] { shell->actions().ShowObjectProps(1); },
            [&author](QWidget& window) { author(dynamic_cast<groups::PropertyForm&>(window)); });
    }
    static void type(QWidget& window, const char* name, const QString& text) {
        auto& box = control<QLineEdit>(window, QString::fromLatin1(name));
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, text);
    }
    /// A number that no field can hold.
    static void typeTooLarge(QWidget& window) {
        control<QTabBar>(window, QStringLiteral("Pages")).setCurrentIndex(1);
        control<QCheckBox>(window, QStringLiteral("Check1")).click();
        type(window, "Text3(0)", QStringLiteral("70000"));
    }
    QString sceneName() {
        return QString::fromStdString(readBytes(files.storePath(1), 0, 15)).trimmed();
    }
    bool ended() {
        return waitUntil([this] { return quits == 1; });
    }
};

TEST_F(Absence, APropertyWindowIsLeftAsByOk) {
    openGame();
    inSceneProperties([this](groups::PropertyForm& window) {
        type(window, "Text2", QStringLiteral("The tower"));
        shell->endByRequest();
    });
    ASSERT_TRUE(ended());
    EXPECT_EQ(sceneName(), QStringLiteral("The tower"));
    EXPECT_TRUE(complaints.isEmpty()) << complaints.join(u'|').toStdString();
    EXPECT_TRUE(boxes.shown().empty());
}

TEST_F(Absence, APropertyWindowThatRefusesIsTold) {
    openGame();
    const std::string before = readBytes(files.storePath(1), 0, 4395);
    inHotSpot([this](groups::PropertyForm& window) {
        typeTooLarge(window);
        shell->endByRequest();
    });
    ASSERT_TRUE(ended());
    EXPECT_TRUE(boxes.shown().empty()) << "nobody could read it";
    ASSERT_EQ(complaints.size(), 2) << complaints.join(u'|').toStdString();
    EXPECT_EQ(complaints[0],
              QStringLiteral("The number 70000 cannot be saved. Numbers can be from -32768 to "
                             "32767. Please enter another one."));
    EXPECT_TRUE(complaints[1].startsWith(QStringLiteral("What was changed in the window \"")));
    EXPECT_EQ(readBytes(files.storePath(1), 0, 4395), before);
}

TEST_F(Absence, WhatStandsBeforeAPropertyWindowGoesFirst) {
    openGame();
    forms::MessageBoxes real;
    inSceneProperties([&](groups::PropertyForm& window) {
        type(window, "Text2", QStringLiteral("The tower"));
        QFileDialog dialog(&window, QStringLiteral("Choose a picture"));
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        QTimer::singleShot(0, &dialog, [&] {
            QTimer::singleShot(0, &dialog, [this] { shell->endByRequest(); });
            EXPECT_EQ(
                real.show({.text = QStringLiteral("Is it\n\nso?"), .buttons = Box::Buttons::yesNo}),
                Answer::no);
        });
        EXPECT_EQ(dialog.exec(), QDialog::Rejected);
    });
    ASSERT_TRUE(ended());
    EXPECT_EQ(sceneName(), QStringLiteral("The tower"));
    EXPECT_EQ(complaints,
              (QStringList{QStringLiteral("Is it so?"),
                           QStringLiteral("The window \"Choose a picture\" was left as by "
                                          "Cancel.")}));
}

TEST_F(Absence, OtherWindowsAreDroppedAndTold) {
    openGame();
    for (const char* entry : {"projmen(1)", "scnmen(3)", "options(1)", "projmen(12)"}) {
        complaints.clear();
        quits = 0;
        if (shell == nullptr) {
            start({text(files.projectPath())});
        }
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [this, &look] {
            if (QApplication::activeModalWidget() != nullptr) {
                look.stop();
                shell->endByRequest();
            }
        });
        look.start(5);
        action(QString::fromLatin1(entry)).trigger();
        ASSERT_TRUE(ended()) << entry;
        ASSERT_EQ(complaints.size(), 1) << entry;
        EXPECT_TRUE(complaints.front().startsWith(QStringLiteral("The window \"")));
        EXPECT_TRUE(complaints.front().endsWith(QStringLiteral("\" was left as by Cancel.")));
        shell.reset();
    }
}

TEST_F(Absence, BoxesBecomeLines) {
    shell::AttendedBoxes attended(boxes, [this](const QString& line) { complaints << line; });
    boxes.answer(Answer::yes);
    EXPECT_EQ(attended.show({.text = QStringLiteral("?"), .buttons = Box::Buttons::yesNo}),
              Answer::yes);
    EXPECT_EQ(boxes.shown().size(), 1U);
    attended.setAttended(false);
    const auto answerTo = [&attended](Box::Buttons buttons) {
        return attended.show({.text = QStringLiteral("One.\n\nTwo."),
                              .title = QStringLiteral("Warning"),
                              .buttons = buttons});
    };
    EXPECT_EQ(answerTo(Box::Buttons::ok), Answer::ok);
    EXPECT_EQ(answerTo(Box::Buttons::okCancel), Answer::cancel);
    EXPECT_EQ(answerTo(Box::Buttons::yesNo), Answer::no);
    EXPECT_EQ(answerTo(Box::Buttons::yesNoCancel), Answer::cancel);
    EXPECT_EQ(boxes.shown().size(), 1U);
    EXPECT_EQ(complaints.front(), QStringLiteral("Warning: One. Two."));
}

// The session ends and a session manager asks first

TEST_F(Absence, ASessionManagerThatAllowsQuestionsGetsThem) {
    for (const Answer answer : {Answer::yes, Answer::no, Answer::cancel}) {
        openIn(projects.makeFolder("game " + std::to_string(static_cast<int>(answer))),
               ProjectBuilder().scenes(2));
        boxes.forget();
        boxes.answer(answer);
        inSceneProperties([&](groups::PropertyForm& window) {
            type(window, "Text2", QStringLiteral("The tower"));
            EXPECT_EQ(shell->saveForSession(true), answer != Answer::cancel);
            EXPECT_TRUE(window.isVisible()) << "the session may go on after all";
            EXPECT_EQ(window.isChanged(), answer != Answer::yes);
            window.close();
        });
        ASSERT_EQ(boxes.shown().size(), 1U);
        EXPECT_EQ(boxes.shown().front().buttons, Box::Buttons::yesNoCancel);
        EXPECT_EQ(sceneName(),
                  answer == Answer::yes ? QStringLiteral("The tower") : QStringLiteral("Scene 1"));
        leave();
    }
}

TEST_F(Absence, OneThatAllowsNoneGetsWhatCanBeSaved) {
    openGame();
    inSceneProperties([this](groups::PropertyForm& window) {
        type(window, "Text2", QStringLiteral("The tower"));
        EXPECT_TRUE(shell->saveForSession(false));
        EXPECT_EQ(sceneName(), QStringLiteral("The tower")) << "on the disk";
        window.close();
    });
    inHotSpot([this](groups::PropertyForm& window) {
        typeTooLarge(window);
        EXPECT_TRUE(shell->saveForSession(false));
        window.close();
    });
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(complaints.size(), 1);
}

TEST_F(Absence, ARefusalKeepsTheSession) {
    openGame();
    boxes.answer(Answer::yes);
    inHotSpot([this](groups::PropertyForm& window) {
        typeTooLarge(window);
        EXPECT_FALSE(shell->saveForSession(true));
        EXPECT_EQ(boxes.shown().size(), 2U) << "the question and the reason";
        window.close();
    });
    EXPECT_TRUE(complaints.isEmpty());
}

TEST_F(Absence, WithoutChangesNobodyIsAsked) {
    openGame();
    shell->scene().header(store::HeaderString::SceneName) = "Edited";
    inSceneProperties([this](groups::PropertyForm& window) {
        EXPECT_TRUE(shell->saveForSession(true));
        window.close();
    });
    EXPECT_TRUE(boxes.shown().empty());
    EXPECT_EQ(sceneName(), QStringLiteral("Edited"));
    leave();
    start();
    EXPECT_TRUE(shell->saveForSession(true));
}

}  // namespace
}  // namespace quorvel::test
