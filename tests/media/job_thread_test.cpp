#include "media/job_thread.h"

#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace quorvel::media {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST(AJobThread, RunsJobsInOrderThenTheLast) {
    JobThread thread;
    std::vector<int> seen;
    std::promise<void> here;
    thread.start();
    thread.queue()->post([&] { seen.push_back(1); });
    thread.queue()->post([&] { seen.push_back(2); });
    thread.queue()->post([&] { here.set_value(); });
    here.get_future().wait();
    EXPECT_TRUE(thread.finish([&] { seen.push_back(3); }, 5s));
    EXPECT_THAT(seen, ElementsAre(1, 2, 3));
}

TEST(AJobThread, HasNoThreadBeforeItIsStarted) {
    JobThread thread;
    EXPECT_FALSE(thread.isStarted());
    bool ran = false;
    EXPECT_TRUE(thread.finish([&] { ran = true; }, 0s));
    EXPECT_FALSE(ran);
}

TEST(AJobThread, RunsALaterJobLater) {
    JobThread thread;
    thread.start();
    std::vector<int> seen;
    std::promise<void> both;
    const auto begin = JobQueue::Clock::now();
    thread.queue()->postAfter(50ms, [&] {
        seen.push_back(2);
        both.set_value();
    });
    thread.queue()->post([&] { seen.push_back(1); });
    both.get_future().wait();
    EXPECT_GE(JobQueue::Clock::now() - begin, 50ms);
    EXPECT_THAT(seen, ElementsAre(1, 2));
}

TEST(AJobThread, DropsAtTheEndWhatHasNotBegun) {
    JobThread thread;
    thread.start();
    bool ran = false;
    thread.queue()->postAfter(1h, [&] { ran = true; });
    EXPECT_TRUE(thread.finish([] {}, 5s));
    thread.queue()->post([&] { ran = true; });
    EXPECT_FALSE(ran);
}

TEST(AJobThread, IsLeftBehindWhenAJobHangs) {
    auto thread = std::make_unique<JobThread>();
    const auto queue = thread->queue();
    thread->start();
    std::promise<void> hang;
    std::promise<void> ended;
    std::promise<void> begun;
    queue->post([&] {
        begun.set_value();
        hang.get_future().wait();
    });
    begun.get_future().wait();
    const auto begin = JobQueue::Clock::now();
    EXPECT_FALSE(thread->finish([&] { ended.set_value(); }, 100ms));
    thread.reset();
    EXPECT_LT(JobQueue::Clock::now() - begin, 2s);
    hang.set_value();
    EXPECT_EQ(ended.get_future().wait_for(5s), std::future_status::ready) << "it still ends";
}

}  // namespace
}  // namespace quorvel::media
