/// Being asked by the system to end: the one unit that handles signals.
#pragma once

#include <functional>

#include <QObject>

namespace quorvel::shell {

/// Calls `end` from the event loop when the process is asked to end (SIGTERM, SIGINT, SIGHUP), so
/// that a logout or a stop from outside closes the project in order. On systems without signals
/// nothing is called. One at a time.
class TerminationSignals : public QObject {
    Q_OBJECT
  public:
    explicit TerminationSignals(std::function<void()> end);
    ~TerminationSignals() override;

  private:
    std::function<void()> end_;
};

}  // namespace quorvel::shell
