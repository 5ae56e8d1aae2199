// The timers that widgets share.

#include "tests/tasks/task_system.h"
#include "vexel/tasks/scroll_timers.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace tasks_test;
using namespace vexel::test;

namespace
{

// They stay for the whole process.
CWarmUp const g_SharedTimers([] {
    GetVertScrollTimer();
    GetHorzScrollTimer();
});

TEST(ScrollTimers, EachIsMadeOnceAndStopped)
{
    CTestHost::System();
    EXPECT_NE(GetVertScrollTimer(), nullptr);
    EXPECT_EQ(GetVertScrollTimer(), GetVertScrollTimer());
    EXPECT_EQ(GetHorzScrollTimer(), GetHorzScrollTimer());
    EXPECT_NE(GetVertScrollTimer(), GetHorzScrollTimer());
    EXPECT_FALSE(GetVertScrollTimer()->IsRunning());
    EXPECT_FALSE(GetHorzScrollTimer()->IsRunning());
}

TEST(ScrollTimers, TickTenTimesASecond)
{
    struct STicks : CTimerNotify
    {
        int m_Count = 0;
        void OnTimer(CTimerEvent*) override { ++m_Count; }
    };
    memory::CMemorySystem& system = CTestHost::System();
    for (ISysTimer* const timer : {GetVertScrollTimer(), GetHorzScrollTimer()})
    {
        STicks ticks;
        timer->Subscribe(&ticks, typeid(ITimerNotify), true);
        timer->SetRunning(true);
        EXPECT_EQ(system.GetRunningPeriods(), std::vector<int>{100});
        system.Advance(299);
        EXPECT_EQ(ticks.m_Count, 2);
        timer->SetRunning(false);
        timer->Unsubscribe(&ticks, true);
    }
}

TEST(ScrollTimers, AreMadeByTheSystemOnTheFirstCall)
{
    CLog log;
    {
        CTaskSystem system(log);
        GetVertScrollTimer();
        EXPECT_EQ(log.Take(), "timer(100, 0)");
        GetVertScrollTimer();
        EXPECT_EQ(log.Take(), "");
        GetHorzScrollTimer();
        EXPECT_EQ(log.Take(), "timer(100, 0)");
        GetHorzScrollTimer();
        EXPECT_EQ(log.Take(), "");
        // The next system gets timers of its own.
        CTestHost::System();
        EXPECT_NE(GetVertScrollTimer(), nullptr);
        EXPECT_NE(GetHorzScrollTimer(), nullptr);
    }
    EXPECT_EQ(log.Take(), "");
}

}  // namespace
