// Something that a timer repeats.

#include "tests/tasks/task_system.h"
#include "vexel/tasks/repeatable_operation.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace tasks_test;
using namespace vexel::test;

namespace
{

class COperation : public CRepeatableOperation
{
public:
    explicit COperation(int interval) : CRepeatableOperation(interval) {}
    std::function<void()> m_OnRepeat;
    int m_Count = 0;

protected:
    void ProcessRepeatOperation() override
    {
        ++m_Count;
        if (auto const action = m_OnRepeat)
            action();
    }
};

class Repeatable : public testing::Test
{
protected:
    CLog m_Log;
    CTaskSystem m_System{m_Log};
    COperation m_Operation{100};
};

TEST_F(Repeatable, DoesNotRepeatAtFirst)
{
    EXPECT_EQ(m_Operation.GetRepeatInterval(), 100);
    EXPECT_FALSE(m_Operation.IsRepeating());
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Repeatable, StartingMakesATimerSubscribesAndRunsIt)
{
    m_Operation.StartRepeating();
    EXPECT_EQ(m_Log.Take(), "timer(100, 0) subscribe(timer, notify) period(100) run");
    EXPECT_TRUE(m_Operation.IsRepeating());
}

TEST_F(Repeatable, StartingAgainRunsTheSameTimerAnew)
{
    m_Operation.StartRepeating();
    m_Log.Take();
    m_Operation.StartRepeating();
    EXPECT_EQ(m_Log.Take(), "period(100) run");
}

TEST_F(Repeatable, StartingWithAnIntervalOfNothingMakesNoTimer)
{
    for (int const interval : {0, -1})
    {
        m_Operation.SetRepeatInterval(interval);
        m_Operation.StartRepeating();
        EXPECT_EQ(m_Log.Take(), "");
        EXPECT_FALSE(m_Operation.IsRepeating());
    }
}

TEST_F(Repeatable, StoppingStopsUnsubscribesAndDropsTheTimer)
{
    m_Operation.StartRepeating();
    m_Log.Take();
    m_Operation.StopRepeating();
    EXPECT_EQ(m_Log.Take(), "stop unsubscribe(notify)");
    EXPECT_FALSE(m_Operation.IsRepeating());
    EXPECT_EQ(m_System.m_Timers, 0);
}

TEST_F(Repeatable, StartingAfterAStopMakesANewTimer)
{
    m_Operation.StartRepeating();
    m_Operation.StopRepeating();
    m_Log.Take();
    m_Operation.StartRepeating();
    EXPECT_EQ(m_Log.Take(), "timer(100, 0) subscribe(timer, notify) period(100) run");
}

TEST_F(Repeatable, StoppingWithoutATimerDoesNothing)
{
    m_Operation.StopRepeating();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Repeatable, TheSameIntervalDoesNothingToTheTimer)
{
    m_Operation.StartRepeating();
    m_Log.Take();
    m_Operation.SetRepeatInterval(100);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Repeatable, AnotherIntervalLetsARunningTimerRunOn)
{
    m_Operation.StartRepeating();
    m_Log.Take();
    m_Operation.SetRepeatInterval(50);
    EXPECT_EQ(m_Log.Take(), "period(50) run");
    EXPECT_EQ(m_Operation.GetRepeatInterval(), 50);
    m_Operation.SetRepeatInterval(0);
    EXPECT_EQ(m_Log.Take(), "period(0) run");
}

TEST_F(Repeatable, AnotherIntervalLeavesAStoppedTimerStopped)
{
    m_Operation.StartRepeating();
    m_System.m_LastTimer->SetRunning(false);
    m_Log.Take();
    m_Operation.SetRepeatInterval(50);
    EXPECT_EQ(m_Log.Take(), "period(50) stop");
    EXPECT_FALSE(m_Operation.IsRepeating());
}

TEST_F(Repeatable, AnotherIntervalBeforeTheStartIsTheTimers)
{
    m_Operation.SetRepeatInterval(70);
    EXPECT_EQ(m_Log.Take(), "");
    m_Operation.StartRepeating();
    EXPECT_EQ(m_Log.Take(), "timer(70, 0) subscribe(timer, notify) period(70) run");
}

TEST_F(Repeatable, EachTickRepeatsIt)
{
    m_Operation.StartRepeating();
    EXPECT_EQ(m_Operation.m_Count, 0) << "not with the start";
    m_System.m_LastTimer->Tick();
    m_System.m_LastTimer->Tick();
    EXPECT_EQ(m_Operation.m_Count, 2);
}

TEST_F(Repeatable, ItsTimerGoesWithIt)
{
    {
        COperation operation(30);
        operation.StartRepeating();
        EXPECT_EQ(m_System.m_Timers, 1);
    }
    EXPECT_EQ(m_System.m_Timers, 0);
}

TEST_F(Repeatable, ATimerThatOthersHoldDoesNotReachADeadOperation)
{
    vexel_ptr<CLoggedTimer> timer;
    {
        COperation operation(30);
        operation.StartRepeating();
        timer = vexel_ptr<CLoggedTimer>(m_System.m_LastTimer);
    }
    EXPECT_FALSE(timer->IsSubscribed(typeid(ITimerNotify)));
    timer->Tick();
}

TEST_F(Repeatable, ATimersTickHasANameOfItsOwn)
{
    struct SNotify : CRepeatTimerNotify
    {
        CTimerEvent* m_Event = nullptr;
        void OnRepeatTimer(CTimerEvent* event) override { m_Event = event; }
    } notify;
    CTimerEvent event;
    notify.OnTimer(&event);
    EXPECT_EQ(notify.m_Event, &event);
}

TEST(RepeatableAlone, WithoutASystemNothingHappens)
{
    ISystem* const before = SetCurrentSystem(nullptr);
    COperation operation(100);
    operation.StartRepeating();
    EXPECT_FALSE(operation.IsRepeating());
    operation.SetRepeatInterval(5);
    operation.StopRepeating();
    SetCurrentSystem(before);
}

// On a clock -------------------------------------------------------------------------------------------------------

class RepeatableOnClock : public testing::Test
{
protected:
    memory::CMemorySystem& m_System = CTestHost::System();
    std::unique_ptr<COperation> m_Operation = std::make_unique<COperation>(100);
};

TEST_F(RepeatableOnClock, RepeatsAfterEachInterval)
{
    m_Operation->StartRepeating();
    m_System.Advance(99);
    EXPECT_EQ(m_Operation->m_Count, 0);
    m_System.Advance(1);
    EXPECT_EQ(m_Operation->m_Count, 1);
    m_System.Advance(250);
    EXPECT_EQ(m_Operation->m_Count, 3);
    m_Operation->StopRepeating();
    m_System.Advance(500);
    EXPECT_EQ(m_Operation->m_Count, 3);
}

TEST_F(RepeatableOnClock, StartingAgainWaitsAnew)
{
    m_Operation->StartRepeating();
    m_System.Advance(60);
    m_Operation->StartRepeating();
    m_System.Advance(60);
    EXPECT_EQ(m_Operation->m_Count, 0);
    m_System.Advance(40);
    EXPECT_EQ(m_Operation->m_Count, 1);
}

TEST_F(RepeatableOnClock, AnotherIntervalWaitsAnew)
{
    m_Operation->StartRepeating();
    m_System.Advance(90);
    m_Operation->SetRepeatInterval(20);
    m_System.Advance(19);
    EXPECT_EQ(m_Operation->m_Count, 0);
    m_System.Advance(1);
    EXPECT_EQ(m_Operation->m_Count, 1);
}

TEST_F(RepeatableOnClock, MayStopInItsOwnTick)
{
    m_Operation->m_OnRepeat = [this] { m_Operation->StopRepeating(); };
    m_Operation->StartRepeating();
    m_System.Advance(500);
    EXPECT_EQ(m_Operation->m_Count, 1);
    EXPECT_TRUE(m_System.GetRunningPeriods().empty());
}

TEST_F(RepeatableOnClock, MayStopAndStartInItsOwnTick)
{
    m_Operation->m_OnRepeat = [this] {
        m_Operation->StopRepeating();
        m_Operation->StartRepeating();
    };
    m_Operation->StartRepeating();
    m_System.Advance(300);
    EXPECT_EQ(m_Operation->m_Count, 3);
}

TEST_F(RepeatableOnClock, MayChangeItsIntervalInItsOwnTick)
{
    m_Operation->m_OnRepeat = [this] { m_Operation->SetRepeatInterval(10); };
    m_Operation->StartRepeating();
    m_System.Advance(130);
    EXPECT_EQ(m_Operation->m_Count, 4);
}

TEST_F(RepeatableOnClock, MayDieInItsOwnTick)
{
    int ticks = 0;
    m_Operation->m_OnRepeat = [&] {
        ++ticks;
        m_Operation.reset();
    };
    m_Operation->StartRepeating();
    m_System.Advance(500);
    EXPECT_EQ(ticks, 1);
    EXPECT_TRUE(m_System.GetRunningPeriods().empty());
}

}  // namespace
