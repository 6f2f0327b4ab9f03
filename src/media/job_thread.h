/// A thread that does jobs one after the other, and that can be left behind when one hangs.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
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

    /// How waiting for a job has ended.
    enum class Wait : std::uint8_t {
        done,    ///< it has run
        spared,  ///< the thread is at something that nobody has to wait for
        late,    ///< neither within the time that was given
    };

    /// Within a job: nobody has to wait for it as long as this stands.
    class Spare {
      public:
        explicit Spare(JobQueue& queue) : queue_(queue) { queue_.spare(1); }
        Spare(const Spare&) = delete;
        Spare& operator=(const Spare&) = delete;
        ~Spare() { queue_.spare(-1); }

      private:
        JobQueue& queue_;
    };

    /// Jobs run in the order in which they were posted. After close() nothing is taken any more.
    void post(Job job);
    /// Runs `job` when `delay` has passed, unless the queue has been closed by then.
    void postAfter(std::chrono::milliseconds delay, Job job);
    /// Posts `job` and waits for it, and so for all that were posted before it.
    Wait postAndWait(Job job, std::chrono::milliseconds patience);

  private:
    friend class JobThread;

    void add(Clock::time_point due, Job job);
    void run();
    void close(Job last);
    Wait waitUntilDone(std::chrono::milliseconds patience);
    Wait waitFor(std::unique_lock<std::mutex>& lock, const bool& done,
                 std::chrono::milliseconds patience);
    void spare(int more);

    std::mutex mutex_;
    std::condition_variable changed_;
    std::multimap<Clock::time_point, Job> jobs_;
    bool closed_ = false;
    bool done_ = false;
    int sparing_ = 0;
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
    /// false when it has not ended after `patience`, or is at something that nobody has to wait
    /// for. It is left to itself then, with its queue.
    bool finish(JobQueue::Job last, std::chrono::milliseconds patience);

  private:
    std::shared_ptr<JobQueue> queue_ = std::make_shared<JobQueue>();
    std::thread thread_;
};

}  // namespace quorvel::media
