// The main routine of the test programs that play.
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "support/temp_folder.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    // Where sound servers would look for their sockets. None of them is asked, and none complains
    // that there is no such place.
    const quorvel::test::TempFolder runtime;
    qputenv("XDG_RUNTIME_DIR", runtime.path().c_str());
    if (!qEnvironmentVariableIsSet("ALSOFT_LOGLEVEL")) {
        qputenv("ALSOFT_LOGLEVEL", "0");
    }
    QCoreApplication application(argc, argv);
    // What GStreamer knows of its plug-ins; made by the first test and used by the others.
    if (!qEnvironmentVariableIsSet("GST_REGISTRY")) {
        const auto registry =
            std::filesystem::path(argv[0]).replace_filename("gstreamer-registry.bin");
        qputenv("GST_REGISTRY", std::filesystem::absolute(registry).c_str());
    }
    return RUN_ALL_TESTS();
}
