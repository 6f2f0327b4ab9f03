// The main routine of every test program that shows windows.
#include <gtest/gtest.h>

#include <QApplication>

#include "forms/look.h"
#include "support/windows/clean_desk.h"

int main(int argc, char** argv) {
    // Programs that a test starts are not searched for leaks when they end: the search traces the
    // process from outside and may fall over it while it goes.
    qputenv("ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":detect_leaks=0");
    ::testing::InitGoogleTest(&argc, argv);
    // Tests need no screen; one that is set on purpose is used.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    quorvel::forms::applyLook(application, quorvel::forms::lookFromEnvironment());
    // GoogleTest owns its listeners.
    ::testing::UnitTest::GetInstance()->listeners().Append(new quorvel::test::CleanDesk);
    return RUN_ALL_TESTS();
}
