/// The way from the media threads back to an object of the event loop.
#pragma once

#include <functional>
#include <mutex>

#include <QObject>

namespace quorvel::media {

/// Shared by a receiver and by threads that may outlive it: what is posted after close() is lost.
class Outbox {
  public:
    explicit Outbox(QObject* receiver) : receiver_(receiver) {}

    /// Runs `call` in the receiver's event loop. May be called from every thread.
    void post(std::function<void()> call);
    /// To be called by the receiver before it goes.
    void close();

  private:
    std::mutex mutex_;
    QObject* receiver_;
};

}  // namespace quorvel::media
