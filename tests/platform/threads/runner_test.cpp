#include "vexel/platform/runner.h"

#include "tests/support/gate.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <stdexcept>
#include <thread>
#include <vector>

namespace vexel::test
{

namespace
{

using namespace vexelbase;

class CWork : public IRunnable
{
public:
    explicit CWork(std::function<bool()> work) : m_Work(std::move(work)) {}
    bool Run() override { return m_Work(); }

private:
    std::function<bool()> m_Work;
};

}  // namespace

TEST(Runner, RunsOnAThreadOfItsOwnUntilTheWorkSaysNo)
{
    CThreadRunner runner;
    CGate done;
    int rounds = 0;
    std::thread::id thread;
    CWork work([&] {
        thread = std::this_thread::get_id();
        if (++rounds < 3)
            return true;
        done.Open();
        return false;
    });
    EXPECT_FALSE(runner.IsRunning());
    runner.Run(&work);
    done.Wait();
    runner.Stop();
    EXPECT_EQ(rounds, 3);
    EXPECT_NE(thread, std::this_thread::get_id());
    EXPECT_FALSE(runner.IsRunning());
}

TEST(Runner, StopReturnsWhenTheWorkIsNoLongerInUse)
{
    CThreadRunner runner;
    CGate started;
    std::atomic<bool> inside = false;
    int plain = 0;  // written by the thread, read after Stop without a lock
    CWork work([&] {
        inside = true;
        started.Open();
        ++plain;
        std::this_thread::yield();
        inside = false;
        return true;
    });
    runner.Run(&work);
    started.Wait();
    EXPECT_TRUE(runner.IsRunning());
    runner.Stop();
    EXPECT_FALSE(inside);
    EXPECT_GE(plain, 1);
    EXPECT_FALSE(runner.IsRunning());
}

TEST(Runner, StopEndsAWait)
{
    CThreadRunner runner;
    bool ran = false;
    CWork work([&] { return ran = true; });
    runner.SetWait(1000 * 60 * 60);
    runner.Run(&work);
    EXPECT_TRUE(runner.IsRunning());
    runner.Stop();
    EXPECT_FALSE(ran);  // the wait comes before the first round too
}

TEST(Runner, TheWorkMaySetTheNextWait)
{
    CThreadRunner runner;
    CGate first;
    std::atomic<int> rounds = 0;
    CWork work([&] {
        ++rounds;
        runner.SetWait(1000 * 60 * 60);
        first.Open();
        return true;
    });
    runner.SetWait(-5);
    runner.Run(&work);
    first.Wait();
    runner.Stop();
    EXPECT_EQ(rounds, 1);
}

TEST(Runner, RunDoesNothingWhileWorkRuns)
{
    CThreadRunner runner;
    CGate go;
    CGate done;
    CWork first([&] {
        go.Wait();
        done.Open();
        return false;
    });
    bool secondRan = false;
    CWork second([&] {
        secondRan = true;
        return false;
    });
    runner.Run(&first);
    runner.Run(&second);
    go.Open();
    done.Wait();
    runner.Stop();
    EXPECT_FALSE(secondRan);
    runner.Run(nullptr);
    EXPECT_FALSE(runner.IsRunning());
}

TEST(Runner, CanBeStartedAgain)
{
    CThreadRunner runner;
    int rounds = 0;
    for (int i = 0; i < 50; ++i)
    {
        CGate done;
        CWork work([&] {
            ++rounds;
            done.Open();
            return i % 2 == 0;
        });
        int const before = rounds;
        runner.Run(&work);
        done.Wait();
        runner.Stop();
        EXPECT_GT(rounds, before);
    }
}

TEST(Runner, StartsAgainAfterWorkThatEndedByItselfWithoutAStop)
{
    CThreadRunner runner;
    for (int i = 0; i < 20; ++i)
    {
        CGate done;
        CWork work([&] {
            done.Open();
            return false;
        });
        while (runner.IsRunning())
            std::this_thread::yield();
        runner.Run(&work);
        done.Wait();
        while (runner.IsRunning())
            std::this_thread::yield();
    }
}

TEST(Runner, TheWorkMayStopItself)
{
    CThreadRunner runner;
    CGate stopped;
    std::atomic<int> rounds = 0;
    CWork work([&] {
        ++rounds;
        runner.Stop();
        EXPECT_FALSE(runner.IsRunning());
        stopped.Open();
        return true;
    });
    runner.Run(&work);
    stopped.Wait();
    EXPECT_FALSE(runner.IsRunning());

    // A new start waits for the end of that round.
    CGate second;
    CWork other([&] {
        second.Open();
        return false;
    });
    runner.Run(&other);
    second.Wait();
    runner.Stop();
    EXPECT_EQ(rounds, 1);
}

TEST(Runner, StoppingAnIdleRunnerDoesNothing)
{
    CThreadRunner runner;
    runner.Stop();
    runner.Stop();
    EXPECT_FALSE(runner.IsRunning());
}

TEST(Runner, ItsDestructionStopsTheWork)
{
    CGate started;
    std::atomic<int> rounds = 0;
    CWork work([&] {
        ++rounds;
        started.Open();
        return true;
    });
    {
        CThreadRunner runner;
        runner.Run(&work);
        started.Wait();
    }
    int const after = rounds;
    std::this_thread::yield();
    EXPECT_EQ(rounds, after);
}

namespace
{

/// Opens a gate when the thread that made it ends.
struct SAtThreadEnd
{
    ~SAtThreadEnd()
    {
        if (m_Gate)
            m_Gate->Open();
    }
    CGate* m_Gate = nullptr;
};
thread_local SAtThreadEnd t_AtThreadEnd;

}  // namespace

TEST(Runner, TheWorkMayDropTheLastReferenceToItsRunner)
{
    CGate go;
    CGate threadEnded;
    vexel_ptr<IRunner> runner(new CThreadRunner);
    int rounds = 0;
    CWork work([&] {
        t_AtThreadEnd.m_Gate = &threadEnded;
        go.Wait();
        ++rounds;
        runner.reset();
        return true;
    });
    runner->Run(&work);
    go.Open();
    threadEnded.Wait();
    EXPECT_EQ(rounds, 1);
    EXPECT_FALSE(runner);
}

TEST(Runner, AnExceptionEndsTheWorkAndIsReported)
{
    CThreadRunner runner;
    testing::internal::CaptureStderr();
    CWork work([]() -> bool { throw std::runtime_error("out of paint"); });
    runner.Run(&work);
    while (runner.IsRunning())
        std::this_thread::yield();
    runner.Stop();
    CWork other([]() -> bool { throw 7; });
    runner.Run(&other);
    while (runner.IsRunning())
        std::this_thread::yield();
    runner.Stop();
    std::string const report = testing::internal::GetCapturedStderr();
    EXPECT_NE(report.find("out of paint"), std::string::npos);
    EXPECT_NE(report.find("ended by an exception\n"), std::string::npos);
}

TEST(Runner, ManyRunnersRunSideBySide)
{
    std::atomic<int> sum = 0;
    CWork work([&] {
        ++sum;
        return true;
    });
    std::vector<vexel_ptr<IRunner>> runners;
    for (int i = 0; i < 8; ++i)
    {
        runners.emplace_back(new CThreadRunner);
        runners.back()->Run(&work);
    }
    while (sum < 100)
        std::this_thread::yield();
    for (auto const& runner : runners)
        runner->Stop();
    int const stopped = sum;
    EXPECT_EQ(sum, stopped);
}

TEST(Lock, LetsOneThreadInAtATime)
{
    vexel_ptr<ILock> const lock(new CLock);
    int count = 0;
    auto const add = [&] {
        for (int i = 0; i < 1000; ++i)
        {
            lock->Acquire();
            ++count;
            lock->Unlock();
        }
    };
    std::thread first(add);
    std::thread second(add);
    first.join();
    second.join();
    EXPECT_EQ(count, 2000);
}

}  // namespace vexel::test
