#include "media/job_thread.h"

#include <utility>

namespace quorvel::media {

void JobQueue::post(Job job) {
    add(Clock::time_point::min(), std::move(job));
}

void JobQueue::postAfter(std::chrono::milliseconds delay, Job job) {
    add(Clock::now() + delay, std::move(job));
}

/// Jobs of one time keep their order, so all that are due at once have the same, the earliest.
void JobQueue::add(Clock::time_point due, Job job) {
    {
        const std::lock_guard lock(mutex_);
        if (closed_) {
            return;
        }
        jobs_.emplace(due, std::move(job));
    }
    changed_.notify_all();
}

void JobQueue::close(Job last) {
    std::multimap<Clock::time_point, Job> dropped;  // goes outside the lock
    {
        const std::lock_guard lock(mutex_);
        if (closed_) {
            return;
        }
        closed_ = true;
        dropped.swap(jobs_);
        jobs_.emplace(Clock::time_point::min(), std::move(last));
    }
    changed_.notify_all();
}

void JobQueue::run() {
    std::unique_lock lock(mutex_);
    while (!closed_ || !jobs_.empty()) {
        if (jobs_.empty()) {
            changed_.wait(lock);
        } else if (const auto due = jobs_.begin()->first; due > Clock::now()) {
            changed_.wait_until(lock, due);
        } else {
            Job job = std::move(jobs_.begin()->second);
            jobs_.erase(jobs_.begin());
            lock.unlock();
            job();
            job = nullptr;  // what it holds goes outside the lock
            lock.lock();
        }
    }
    done_ = true;
    // Under the lock: whoever waits may destroy the queue as soon as it is free.
    changed_.notify_all();
}

JobQueue::Wait JobQueue::waitFor(std::unique_lock<std::mutex>& lock, const bool& done,
                                 std::chrono::milliseconds patience) {
    changed_.wait_for(lock, patience, [&] { return done || sparing_ > 0; });
    if (done) {
        return Wait::done;
    }
    return sparing_ > 0 ? Wait::spared : Wait::late;
}

JobQueue::Wait JobQueue::waitUntilDone(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    return waitFor(lock, done_, patience);
}

JobQueue::Wait JobQueue::postAndWait(Job job, std::chrono::milliseconds patience) {
    const auto done = std::make_shared<bool>(false);  // the job may outlive the waiting
    post([this, done, job = std::move(job)] {
        job();
        const std::lock_guard lock(mutex_);
        *done = true;
        changed_.notify_all();
    });
    std::unique_lock lock(mutex_);
    return waitFor(lock, *done, patience);
}

void JobQueue::spare(int more) {
    const std::lock_guard lock(mutex_);
    sparing_ += more;
    changed_.notify_all();
}

JobThread::~JobThread() {
    if (thread_.joinable()) {
        queue_->close([] {});
        thread_.detach();
    }
}

void JobThread::start() {
    if (!thread_.joinable()) {
        thread_ = std::thread([queue = queue_] { queue->run(); });
    }
}

bool JobThread::finish(JobQueue::Job last, std::chrono::milliseconds patience) {
    if (!thread_.joinable()) {
        return true;
    }
    queue_->close(std::move(last));
    const bool done = queue_->waitUntilDone(patience) == JobQueue::Wait::done;
    if (done) {
        thread_.join();
    } else {
        thread_.detach();
    }
    return done;
}

}  // namespace quorvel::media
