#include "store/save_thread.h"

#include <future>
#include <gmock/gmock.h>
#include <mutex>

namespace velmora {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using testing::ElementsAre;

constexpr auto patience = 60s;

/// What the jobs did. Shared with jobs that outlive their test.
class Log {
public:
    void add(const std::string& entry) {
        const std::lock_guard lock(mutex_);
        entries_.push_back(entry);
        times_.push_back(Clock::now());
    }
    std::vector<std::string> entries() const {
        const std::lock_guard lock(mutex_);
        return entries_;
    }
    std::vector<Clock::time_point> times() const {
        const std::lock_guard lock(mutex_);
        return times_;
    }
    bool waitFor(const std::string& entry) const {
        for (const auto end = Clock::now() + patience; Clock::now() < end; std::this_thread::sleep_for(1ms))
            if (const auto all = entries(); std::ranges::find(all, entry) != all.end())
                return true;
        return false;
    }

private:
    mutable std::mutex mutex_;
    std::vector<std::string> entries_;
    std::vector<Clock::time_point> times_;
};

/// Jobs that log their names, and jobs that block until the disk is released. Real: threads wait for each
/// other.
class SaveThreadTest : public testing::Test {
protected:
    SaveThread::Job job(const std::string& name, bool succeeds = true) const {
        return [name, succeeds, log = log] {
            log->add(name);
            return succeeds;
        };
    }
    SaveThread::Job blockedJob(const std::string& name) {
        return [name, log = log, released = disk.get_future().share()] {
            log->add(name + " begins");
            released.wait();
            log->add(name + " ends");
            return true;
        };
    }

    std::promise<void> disk;
    std::shared_ptr<Log> log = std::make_shared<Log>();
};

} // namespace

TEST_F(SaveThreadTest, RunsTheNewestJobOfEachFileInTheOrderOfTheirTurns) {
    SaveThread thread;
    thread.save("history", blockedJob("history 1"));
    ASSERT_TRUE(log->waitFor("history 1 begins"));
    thread.save("settings", job("settings 1"));
    thread.save("art", job("art 1"));
    for (const char* number :
         {"2", "3"}) { // the history comes last: its pause begins when its first job ends
        thread.save("history", job(std::string("history ") + number));
        thread.save("settings", job(std::string("settings ") + number));
    }
    EXPECT_FALSE(thread.flush(1ms)) << "the disk is blocked, and no call waited for it";
    disk.set_value();
    EXPECT_TRUE(thread.flush(patience));
    EXPECT_THAT(log->entries(),
                ElementsAre("history 1 begins", "history 1 ends", "settings 3", "art 1", "history 3"));
}

TEST_F(SaveThreadTest, WritesAtOnceAndThenTheNewestValueAfterEachPause) {
    constexpr auto pause = 100ms;
    SaveThread thread({.pause = pause});
    for (int change = 0; change <= 50; ++change) {
        thread.save("settings", [number = std::to_string(change), log = log] {
            std::this_thread::sleep_for(30ms); // further changes come during a job
            log->add(number);
            return true;
        });
        if (change == 0) {
            ASSERT_TRUE(log->waitFor("0"));
        }
        std::this_thread::sleep_for(10ms);
    }
    ASSERT_TRUE(log->waitFor("50")) << "without a flush";
    const auto times = log->times();
    EXPECT_GE(times.size(), 3u);
    for (std::size_t i = 1; i < times.size(); ++i)
        EXPECT_GE(times[i] - times[i - 1], pause);
}

TEST_F(SaveThreadTest, AFlushReportsAFailureUntilTheFileIsSaved) {
    SaveThread thread;
    EXPECT_TRUE(thread.flush(0ms)) << "nothing waits";
    thread.save("history", job("full disk", false));
    EXPECT_FALSE(thread.flush(patience));
    thread.save("settings", job("settings"));
    EXPECT_FALSE(thread.flush(patience));
    thread.save("history", job("history"));
    EXPECT_TRUE(thread.flush(patience));
}

TEST_F(SaveThreadTest, TheDestructorRunsWaitingJobsAndLeavesAHangingOne) {
    {
        SaveThread thread({.pause = 1h});
        thread.save("history", job("first"));
        ASSERT_TRUE(thread.flush(patience));
        thread.save("history", job("last"));
    }
    EXPECT_THAT(log->entries(), ElementsAre("first", "last"));
    {
        SaveThread thread({.hanging = 50ms});
        thread.save("history", blockedJob("history"));
        ASSERT_TRUE(log->waitFor("history begins"));
        thread.save("settings", job("settings"));
    }
    disk.set_value();
    ASSERT_TRUE(log->waitFor("history ends"));
    EXPECT_THAT(log->entries(), ElementsAre("first", "last", "history begins", "history ends"));
}

} // namespace velmora
