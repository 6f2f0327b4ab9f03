/// A gate that holds up whoever comes, until it is opened.
#pragma once

#include <condition_variable>
#include <mutex>

namespace quorvel::test {

/// For tests of what happens while another thread is stuck. Opens by itself when it goes.
class Gate {
  public:
    Gate() = default;
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;
    ~Gate() {
        open();
        // Nobody may stand in it when it goes.
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return inside_ == 0; });
    }

    /// Returns once the gate is open.
    void pass() {
        std::unique_lock lock(mutex_);
        ++guests_;
        ++inside_;
        changed_.notify_all();
        changed_.wait(lock, [this] { return open_; });
        --inside_;
        changed_.notify_all();
    }
    void open() {
        const std::lock_guard lock(mutex_);
        open_ = true;
        changed_.notify_all();
    }
    /// Returns once somebody has come.
    void waitForGuest() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return guests_ > 0; });
    }

  private:
    std::mutex mutex_;
    std::condition_variable changed_;
    int guests_ = 0;
    int inside_ = 0;
    bool open_ = false;
};

}  // namespace quorvel::test
