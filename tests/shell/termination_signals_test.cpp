#include "shell/termination_signals.h"

#include <csignal>
#include <gtest/gtest.h>

#include "support/windows/played_author.h"

namespace quorvel::test {
namespace {

#ifdef Q_OS_UNIX
TEST(TerminationSignals, AreAnsweredFromTheEventLoop) {
    int asked = 0;
    const shell::TerminationSignals watcher([&asked] { ++asked; });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        std::raise(signal);
    }
    EXPECT_EQ(asked, 0) << "nothing runs inside the signal handler";
    EXPECT_TRUE(waitUntil([&] { return asked == 3; }));
}
#endif

}  // namespace
}  // namespace quorvel::test
