/// A thread that does jobs one after the other, and that can be left behind when one hangs.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

namespace quorvel::media {

/// The jobs that wait for a JobThread. Every routine may be called from every thread.
class JobQueue {
  public:
    using Job = std::function<void()>;
    using Clock = std::chrono::steady_clock;

    /// Jobs run in the order in which they were posted. After close() nothing is taken any more.
    void post(Job job);
    /// Runs `job` when `delay` has passed, unless the queue has been closed by then.
    void postAfter(std::chrono::milliseconds delay, Job job);

  private:
    friend class JobThread;

    void add(Clock::time_point due, Job job);
    void run();
    void close(Job last);
    bool waitUntilDone(std::chrono::milliseconds patience);

    std::mutex mutex_;
    std::condition_variable changed_;
    std::multimap<Clock::time_point, Job> jobs_;
    bool closed_ = false;
    bool done_ = false;
};

/// Runs the jobs of a queue. The thread begins with start(), not before.
class JobThread {
  public:
    JobThread() = default;
    JobThread(const JobThread&) = delete;
    JobThread& operator=(const JobThread&) = delete;
    /// Ends the thread without waiting for it, unless finish() has been called.
    ~JobThread();

    void start();
    [[nodiscard]] bool isStarted() const { return thread_.joinable(); }
    [[nodiscard]] const std::shared_ptr<JobQueue>& queue() const { return queue_; }

    /// Lets the job that runs come to its end, drops the others, runs `last` and ends the thread;
    /// false when it has not ended after `patience`. It is left to itself then, with its queue.
    bool finish(JobQueue::Job last, std::chrono::milliseconds patience);

  private:
    std::shared_ptr<JobQueue> queue_ = std::make_shared<JobQueue>();
    std::thread thread_;
};

}  // namespace quorvel::media
