#include "vexel/signals/mutex.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

using plinth::threading::mutex_guard_t;
using plinth::threading::mutex_t;

namespace
{

TEST(MutexThreads, OnlyOneThreadAtATimeHoldsItOnWhateverLevel)
{
    constexpr int threads = 4;
    constexpr int rounds = 5000;
    mutex_t mutex;
    long count = 0;
    std::vector<std::thread> all;
    for (int i = 0; i < threads; ++i)
        all.emplace_back([&] {
            for (int round = 0; round < rounds; ++round)
            {
                mutex_guard_t const outer(mutex);
                long const before = count;
                {
                    mutex_guard_t const inner(mutex);
                    if (round % 64 == 0)
                        std::this_thread::yield();
                }
                count = before + 1;
            }
        });
    for (std::thread& thread : all)
        thread.join();
    EXPECT_EQ(count, 20000);
}

TEST(MutexThreads, AThreadThatWaitsGetsItAfterTheLastLevelIsReleased)
{
    mutex_t mutex;
    bool released = false;
    bool seen = false;
    std::atomic<bool> starts{false};

    mutex.acquire();
    mutex.acquire();
    std::thread waits([&] {
        starts = true;
        mutex.acquire();
        seen = released;
        mutex.release();
    });
    while (!starts)
        std::this_thread::yield();
    mutex.release();
    for (int i = 0; i < 100; ++i)
        std::this_thread::yield();
    released = true;
    mutex.release();
    waits.join();
    EXPECT_TRUE(seen);
}

TEST(MutexThreads, ManyThreadsThatWaitForOneHolderAllGetIt)
{
    mutex_t mutex;
    std::atomic<int> starting{0};
    int got = 0;
    mutex.acquire();
    std::vector<std::thread> all;
    for (int i = 0; i < 8; ++i)
        all.emplace_back([&] {
            ++starting;
            mutex.acquire();
            ++got;
            mutex.release();
        });
    while (starting != 8)
        std::this_thread::yield();
    mutex.release();
    for (std::thread& thread : all)
        thread.join();
    EXPECT_EQ(got, 8);
}

TEST(MutexThreads, MayBeDestroyedRightAfterAnotherThreadsRelease)
{
    for (int round = 0; round < 300; ++round)
    {
        auto mutex = std::make_unique<mutex_t>();
        bool done = false;
        std::thread other([&] {
            mutex->acquire();
            done = true;
            mutex->release();
        });
        // Who sees `done` under the mutex knows that the other one needs it no more.
        while (true)
        {
            mutex->acquire();
            bool const over = done;
            mutex->release();
            if (over)
                break;
            std::this_thread::yield();
        }
        mutex.reset();
        other.join();
    }
}

TEST(MutexThreads, TwoOfThemTakenInTurnsDoNotLoseAWakeUp)
{
    // Threads that hand a token to each other, always waiting for the other one's release.
    mutex_t mutex;
    int turn = 0;
    auto const play = [&](int me) {
        for (int rounds = 0; rounds < 2000;)
        {
            mutex.acquire();
            if (turn == me)
            {
                turn = 1 - me;
                ++rounds;
            }
            mutex.release();
            std::this_thread::yield();
        }
    };
    std::thread other(play, 1);
    play(0);
    other.join();
    EXPECT_EQ(turn, 0);
}

}  // namespace
