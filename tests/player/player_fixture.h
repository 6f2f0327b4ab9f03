/// The player's window on a game of its own.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QTest>
#include <QWindow>

#include "player/player_window.h"
#include "store/objects.h"
#include "support/file_bytes.h"
#include "support/gif_bytes.h"
#include "support/project_builder.h"
#include "support/temp_folder.h"
#include "support/windows/played_author.h"

namespace quorvel::test {

class PlayerFixture : public ::testing::Test {
  protected:
    void build() { files = builder.build(folder.path()); }
    void play() {
        window = std::make_unique<player::PlayerWindow>(folder.path());
        window->show();
        window->begin();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    }
    void buildAndPlay() {
        build();
        play();
    }

    QWidget& child(const QString& name) { return control<QWidget>(*window, name); }
    QWidget& sceneWindow() { return child(QStringLiteral("SceneWindow")); }
    QWidget& animation(int k) { return child(QStringLiteral("Animation(%1)").arg(k)); }
    QWidget& area(int k) { return child(QStringLiteral("Area(%1)").arg(k)); }
    QWidget& link(int n) { return child(QStringLiteral("Link(%1)").arg(n)); }
    QString message() {
        const auto& label = control<QLabel>(*window, QStringLiteral("Message"));
        return label.isVisible() ? label.text() : QString();
    }
    /// The colour at a point of the scene, as it is on the screen.
    QColor colourAt(QPoint at) {
        return window->grab().toImage().pixelColor(sceneWindow().mapTo(window.get(), at));
    }
    /// A click at a point of the scene, given to the window as the desktop would.
    void click(QPoint at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(window->windowHandle(), button, {},
                          sceneWindow().mapTo(window.get(), at));
        QCoreApplication::processEvents();
    }

    TempFolder folder;
    ProjectBuilder builder;
    TestProject files;
    std::unique_ptr<player::PlayerWindow> window;
};

}  // namespace quorvel::test
