#include "shell/termination_signals.h"

#include <utility>

#ifdef Q_OS_UNIX

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

#include <QSocketNotifier>

namespace quorvel::shell {
namespace {

constexpr std::array kSignals = {SIGTERM, SIGINT, SIGHUP};

// A signal handler may touch nothing but a descriptor, and has no other way to know it than a
// global: it writes a byte that wakes the event loop.
std::array<int, 2> wakeUp = {-1, -1};

void onSignal(int /*signal*/) {
    const char byte = 1;
    const auto written = ::write(wakeUp[0], &byte, 1);
    static_cast<void>(written);
}

void install(void (*handler)(int)) {
    for (const int signal : kSignals) {
        struct sigaction action = {};
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        ::sigaction(signal, &action, nullptr);
    }
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> end) : end_(std::move(end)) {
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, wakeUp.data()) != 0) {
        return;
    }
    auto* notifier = new QSocketNotifier(wakeUp[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (::read(wakeUp[1], &byte, 1) == 1) {
            end_();
        }
    });
    install(onSignal);
}

TerminationSignals::~TerminationSignals() {
    install(SIG_DFL);
    for (int& end : wakeUp) {
        ::close(end);
        end = -1;
    }
}

}  // namespace quorvel::shell

#else

namespace quorvel::shell {

TerminationSignals::TerminationSignals(std::function<void()> end) : end_(std::move(end)) {}
TerminationSignals::~TerminationSignals() = default;

}  // namespace quorvel::shell

#endif
