#include "vexel/signals/mutex.h"

#include <gtest/gtest.h>

#include <thread>

using plinth::threading::mutex_guard_t;
using plinth::threading::mutex_t;

namespace
{

constinit mutex_t s_global;

TEST(Mutex, MayBeTakenAgainByItsOwner)
{
    mutex_t mutex;
    mutex.acquire();
    mutex.acquire();
    mutex.acquire();
    mutex.release();
    mutex.release();
    mutex.release();

    // It is free: another thread gets it.
    std::thread other([&] {
        mutex.acquire();
        mutex.release();
    });
    other.join();
}

TEST(Mutex, MayBeAConstantInitializedGlobal)
{
    mutex_guard_t const outer(s_global);
    mutex_guard_t const inner(s_global);
}

TEST(MutexDeathTest, ReleaseByAThreadThatDoesNotHoldItEndsTheProcess)
{
    EXPECT_DEATH(
        {
            mutex_t mutex;
            mutex.release();
        },
        "");
    EXPECT_DEATH(
        {
            mutex_t mutex;
            mutex.acquire();
            mutex.release();
            mutex.release();
        },
        "");
    EXPECT_DEATH(
        {
            mutex_t mutex;
            mutex.acquire();
            std::thread other([&] { mutex.release(); });
            other.join();
        },
        "");
}

}  // namespace
