// Something that happens once, a delay after it was asked for last.

#include "tests/support/slot.h"
#include "tests/tasks/task_system.h"
#include "vexel/tasks/postponed_operation.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>

using namespace tasks_test;
using namespace vexel::test;

namespace
{

class Postponed : public testing::Test
{
protected:
    CLog m_Log;
    CTaskSystem m_System{m_Log};
    CPostponedOperation m_Operation{30};
};

TEST_F(Postponed, SchedulingMakesATimerSubscribesAndRunsIt)
{
    EXPECT_EQ(m_Log.Take(), "");
    m_Operation.Schedule();
    EXPECT_EQ(m_Log.Take(), "timer(30, 0) subscribe(timer, notify) stop run");
}

TEST_F(Postponed, SchedulingAgainRestartsTheSameTimer)
{
    m_Operation.Schedule();
    m_Log.Take();
    m_Operation.Schedule();
    EXPECT_EQ(m_Log.Take(), "stop run");
    m_System.m_LastTimer->Tick();
    m_Log.Take();
    m_Operation.Schedule();
    EXPECT_EQ(m_Log.Take(), "stop run") << "after it has fired, too";
}

TEST_F(Postponed, ATickStopsTheTimerAndThenFires)
{
    auto const slot = Listen(m_Operation.m_SigFire, [this]() { m_Log.Add("fire"); });
    m_Operation.Schedule();
    m_Log.Take();
    m_System.m_LastTimer->Tick();
    EXPECT_EQ(m_Log.Take(), "stop fire");
}

TEST_F(Postponed, FiresWithoutATimerToo)
{
    auto const slot = Listen(m_Operation.m_SigFire, [this]() { m_Log.Add("fire"); });
    CTimerEvent event;
    m_Operation.OnTimer(&event);
    EXPECT_EQ(m_Log.Take(), "fire");
}

TEST_F(Postponed, ItsTimerGoesWithIt)
{
    {
        CPostponedOperation operation(30);
        operation.Schedule();
        EXPECT_EQ(m_System.m_Timers, 1);
    }
    EXPECT_EQ(m_System.m_Timers, 0);
}

TEST(PostponedAlone, WithoutASystemNothingHappens)
{
    ISystem* const before = SetCurrentSystem(nullptr);
    CPostponedOperation operation(30);
    operation.Schedule();
    SetCurrentSystem(before);
}

// On a clock -------------------------------------------------------------------------------------------------------

class PostponedOnClock : public testing::Test
{
protected:
    memory::CMemorySystem& m_System = CTestHost::System();
    std::unique_ptr<CPostponedOperation> m_Operation = std::make_unique<CPostponedOperation>(30);
    CSignalLog m_Log{m_Operation->m_SigFire, "fire"};
};

TEST_F(PostponedOnClock, FiresOnceAfterTheDelay)
{
    m_System.Advance(100);
    m_Operation->Schedule();
    m_System.Advance(29);
    EXPECT_EQ(m_Log.Take(), "");
    m_System.Advance(1);
    EXPECT_EQ(m_Log.Take(), "fire()");
    m_System.Advance(200);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_TRUE(m_System.GetRunningPeriods().empty());
}

TEST_F(PostponedOnClock, ABurstOfRequestsLeadsToOneFiringAfterTheLast)
{
    m_Operation->Schedule();
    m_System.Advance(20);
    m_Operation->Schedule();
    m_System.Advance(20);
    m_Operation->Schedule();
    m_System.Advance(29);
    EXPECT_EQ(m_Log.Take(), "");
    m_System.Advance(1);
    EXPECT_EQ(m_Log.Take(), "fire()");
    m_System.Advance(200);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(PostponedOnClock, MayBeScheduledAgainByItsSlot)
{
    int left = 2;
    auto const slot = Listen(m_Operation->m_SigFire, [&]() {
        if (left-- > 0)
            m_Operation->Schedule();
    });
    m_Operation->Schedule();
    m_System.Advance(89);
    EXPECT_EQ(m_Log.Count(), 2);
    m_System.Advance(200);
    EXPECT_EQ(m_Log.Count(), 3);
}

TEST_F(PostponedOnClock, WithoutADelayItFiresWithTheNextTick)
{
    CPostponedOperation quick(0);
    CSignalLog log(quick.m_SigFire, "fire");
    quick.Schedule();
    EXPECT_EQ(log.Text(), "");
    m_System.Advance(1);
    EXPECT_EQ(log.Text(), "fire()");
}

TEST_F(PostponedOnClock, DoesNotFireWhenItIsGone)
{
    m_Operation->Schedule();
    m_Operation.reset();
    m_System.Advance(200);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_TRUE(m_System.GetRunningPeriods().empty());
}

TEST_F(PostponedOnClock, MayDieByItsSlot)
{
    auto const slot = Listen(m_Operation->m_SigFire, [&]() { m_Operation.reset(); });
    m_Operation->Schedule();
    m_System.Advance(200);
    EXPECT_EQ(m_Log.Text(), "fire()");
}

}  // namespace
