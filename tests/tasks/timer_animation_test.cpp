// Which process drives an animation, and the one on a timer.

#include "tests/tasks/animation.h"
#include "vexel/tasks/thread_animation_process.h"
#include "vexel/tasks/timer_animation_process.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace tasks_test;
using namespace vexel::test;

namespace
{

// Which one --------------------------------------------------------------------------------------------------------

TEST(AnimationProcess, IsAThreadUnlessToldOtherwise)
{
    EXPECT_EQ(static_cast<int>(aptThread), 0);
    EXPECT_EQ(static_cast<int>(aptTimer), 1);
    vexel_ptr<IAnimationProcess> const process = CreateAnimationProcess();
    EXPECT_TRUE(dynamic_cast<CThreadAnimationProcess*>(process.get()));
    EXPECT_EQ(process->GetRefCount(), 1);
}

TEST(AnimationProcess, IsATimerIfToldSo)
{
    CProcessType const type(aptTimer);
    vexel_ptr<IAnimationProcess> const process = CreateAnimationProcess();
    EXPECT_TRUE(dynamic_cast<CTimerAnimationProcess*>(process.get()));
    EXPECT_EQ(process->GetRefCount(), 1);
}

TEST(AnimationProcess, IsNothingOfAnotherKind)
{
    for (int const kind : {2, -1, 77})
    {
        CProcessType const type(static_cast<AnimationProcessType>(kind));
        EXPECT_FALSE(CreateAnimationProcess());
    }
}

// By timer, step by step -------------------------------------------------------------------------------------------

class TimerAnimation : public testing::Test
{
protected:
    TimerAnimation() { m_Process.SetUpdater(&m_Updater); }

    CLog m_Log;
    CTaskSystem m_System{m_Log};
    CLoggedAnimation m_Animation{m_Log, {10, 20, 30}};
    CLoggedUpdater m_Updater{m_Log};
    CTimerAnimationProcess m_Process;
};

TEST_F(TimerAnimation, ItsIntervalStartsAtOneHundred)
{
    EXPECT_EQ(m_Process.GetRepeatInterval(), 100);
    EXPECT_FALSE(m_Process.IsAnimated());
}

TEST_F(TimerAnimation, AStartStepsAtOnceAndThenRunsTheTimerWithTheNewFramesDelay)
{
    m_Process.SetAnimation(&m_Animation);
    EXPECT_EQ(m_Log.Take(), "");
    m_Process.StartAnimation();
    EXPECT_EQ(m_Log.Take(), "wanted? next delay update timer(20, 0) subscribe(timer, notify) period(20) run");
    EXPECT_TRUE(m_Process.IsAnimated());
}

TEST_F(TimerAnimation, ATickStepsAndWaitsTheNewFramesDelayBeforeTheWidgetUpdates)
{
    m_Process.SetAnimation(&m_Animation);
    m_Process.StartAnimation();
    m_Log.Take();
    m_System.m_LastTimer->Tick();
    EXPECT_EQ(m_Log.Take(), "wanted? next delay period(30) run update");
    m_System.m_LastTimer->Tick();
    EXPECT_EQ(m_Log.Take(), "wanted? next delay period(10) run update");
}

TEST_F(TimerAnimation, AFrameThatIsNotWantedIsSkippedAndTheDelayStays)
{
    m_Process.SetAnimation(&m_Animation);
    m_Process.StartAnimation();
    m_Log.Take();
    m_Updater.m_Wants = false;
    m_System.m_LastTimer->Tick();
    EXPECT_EQ(m_Log.Take(), "wanted?");
    EXPECT_EQ(m_Animation.m_Frame, 1);
    EXPECT_EQ(m_Process.GetRepeatInterval(), 20);
}

TEST_F(TimerAnimation, AStartThatIsNotWantedWaitsTheFirstInterval)
{
    m_Updater.m_Wants = false;
    m_Process.SetAnimation(&m_Animation);
    m_Process.StartAnimation();
    EXPECT_EQ(m_Log.Take(), "wanted? timer(100, 0) subscribe(timer, notify) period(100) run");
}

TEST_F(TimerAnimation, AStartThatShowsAFrameWithoutADelayMakesNoTimer)
{
    m_Animation.m_Delays = {10, 0};
    m_Process.SetAnimation(&m_Animation);
    m_Process.StartAnimation();
    EXPECT_EQ(m_Log.Take(), "wanted? next delay update");
    EXPECT_FALSE(m_Process.IsAnimated());
}

TEST_F(TimerAnimation, WithoutAnUpdaterNothingIsStepped)
{
    m_Process.SetUpdater(nullptr);
    m_Process.SetAnimation(&m_Animation);
    m_Process.StartAnimation();
    EXPECT_EQ(m_Log.Take(), "timer(100, 0) subscribe(timer, notify) period(100) run");
    m_System.m_LastTimer->Tick();
    EXPECT_EQ(m_Log.Take(), "");
    m_Process.SetUpdater(&m_Updater);
    m_System.m_LastTimer->Tick();
    EXPECT_EQ(m_Log.Take(), "wanted? next delay period(20) run update");
}

TEST_F(TimerAnimation, AStartBeforeTheAnimationStartsOnceItIsThere)
{
    m_Process.StartAnimation();
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_FALSE(m_Process.IsAnimated());
    m_Process.SetAnimation(&m_Animation);
    EXPECT_EQ(m_Log.Take(), "wanted? next delay update timer(20, 0) subscribe(timer, notify) period(20) run");
    EXPECT_TRUE(m_Process.IsAnimated());
}

TEST_F(TimerAnimation, AStopTakesAPendingStartBack)
{
    m_Process.StartAnimation();
    m_Process.StopAnimation();
    m_Process.SetAnimation(&m_Animation);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_FALSE(m_Process.IsAnimated());
}

TEST_F(TimerAnimation, AStartThatHasHappenedIsNotPendingAnyMore)
{
    CLoggedAnimation other(m_Log, {50, 60});
    m_Process.StartAnimation();
    m_Process.SetAnimation(&m_Animation);
    m_Log.Take();
    m_Process.SetAnimation(&other);
    EXPECT_EQ(m_Log.Take(), "");
    m_System.m_LastTimer->Tick();
    EXPECT_EQ(m_Log.Take(), "wanted? next delay period(60) run update");
    EXPECT_EQ(other.m_Frame, 1);
    m_Process.StopAnimation();
    m_Log.Take();
    m_Process.SetAnimation(&m_Animation);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(TimerAnimation, NoAnimationLeavesAStartPending)
{
    m_Process.StartAnimation();
    m_Process.SetAnimation(nullptr);
    EXPECT_EQ(m_Log.Take(), "");
    m_Process.SetAnimation(&m_Animation);
    EXPECT_TRUE(m_Process.IsAnimated());
}

TEST_F(TimerAnimation, AStopDropsTheTimer)
{
    m_Process.SetAnimation(&m_Animation);
    m_Process.StartAnimation();
    m_Log.Take();
    m_Process.StopAnimation();
    EXPECT_EQ(m_Log.Take(), "stop unsubscribe(notify)");
    EXPECT_FALSE(m_Process.IsAnimated());
    EXPECT_EQ(m_System.m_Timers, 0);
    m_Process.StopAnimation();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(TimerAnimation, WithoutItsAnimationOrWithAStoppedTimerItIsNotAnimated)
{
    m_Process.SetAnimation(&m_Animation);
    m_Process.StartAnimation();
    m_Process.SetAnimation(nullptr);
    EXPECT_FALSE(m_Process.IsAnimated());
    m_Log.Take();
    m_System.m_LastTimer->Tick();
    EXPECT_EQ(m_Log.Take(), "");
    m_Process.SetAnimation(&m_Animation);
    EXPECT_TRUE(m_Process.IsAnimated());
    m_System.m_LastTimer->SetRunning(false);
    EXPECT_FALSE(m_Process.IsAnimated());
}

TEST_F(TimerAnimation, NeedsNoSynchronizer)
{
    CLoggedQueue queue(m_Log);
    m_Process.SetProcessSynchronizer(&queue);
    m_Process.SetAnimation(&m_Animation);
    m_Process.StartAnimation();
    m_Log.Take();
    m_Process.SetProcessSynchronizer(nullptr);
    EXPECT_TRUE(m_Process.IsAnimated());
    m_System.m_LastTimer->Tick();
    EXPECT_EQ(m_Log.Take(), "wanted? next delay period(30) run update");
    EXPECT_TRUE(queue.m_Posted.empty());
}

TEST_F(TimerAnimation, ItsAnimationAndItsUpdaterAreNotItsOwn)
{
    vexel_ptr<CLoggedAnimation> animation(new CLoggedAnimation(m_Log, {10}));
    m_Process.SetAnimation(animation.get());
    EXPECT_EQ(animation->GetRefCount(), 1);
}

// On a clock -------------------------------------------------------------------------------------------------------

class TimerAnimationOnClock : public testing::Test
{
protected:
    TimerAnimationOnClock()
    {
        m_Process->SetUpdater(&m_Updater);
        m_Process->SetAnimation(&m_Animation);
    }

    memory::CMemorySystem& m_System = CTestHost::System();
    CLog m_Log;
    CLoggedAnimation m_Animation{m_Log, {10, 20, 30}};
    CLoggedUpdater m_Updater{m_Log};
    vexel_ptr<CTimerAnimationProcess> m_Process{new CTimerAnimationProcess};
};

TEST_F(TimerAnimationOnClock, EachFrameStaysForItsDelay)
{
    m_Process->StartAnimation();
    EXPECT_EQ(m_Animation.m_Frame, 1);
    m_System.Advance(19);
    EXPECT_EQ(m_Animation.m_Frame, 1);
    m_System.Advance(1);
    EXPECT_EQ(m_Animation.m_Frame, 2);
    m_System.Advance(29);
    EXPECT_EQ(m_Animation.m_Frame, 2);
    m_System.Advance(1);
    EXPECT_EQ(m_Animation.m_Frame, 0);
    m_System.Advance(10);
    EXPECT_EQ(m_Animation.m_Frame, 1);
}

TEST_F(TimerAnimationOnClock, MayBeStoppedByTheUpdate)
{
    m_Process->StartAnimation();
    m_Updater.m_OnUpdate = [this] { m_Process->StopAnimation(); };
    m_System.Advance(500);
    EXPECT_EQ(m_Animation.m_Frame, 2);
    EXPECT_TRUE(m_System.GetRunningPeriods().empty());
}

TEST_F(TimerAnimationOnClock, MayBeGivenUpByTheUpdate)
{
    m_Process->StartAnimation();
    m_Updater.m_OnUpdate = [this] { m_Process.reset(); };
    m_System.Advance(500);
    EXPECT_EQ(m_Animation.m_Frame, 2);
    EXPECT_TRUE(m_System.GetRunningPeriods().empty());
}

TEST_F(TimerAnimationOnClock, MayBeGivenUpByTheQuestion)
{
    m_Process->StartAnimation();
    m_Updater.m_OnQuestion = [this] { m_Process.reset(); };
    m_System.Advance(500);
    EXPECT_EQ(m_Animation.m_Frame, 2) << "the step under way still comes";
    EXPECT_TRUE(m_System.GetRunningPeriods().empty());
}

TEST_F(TimerAnimationOnClock, MayBeGivenUpByTheUpdateOfItsStart)
{
    CTimerAnimationProcess* const process = m_Process.get();
    m_Updater.m_OnUpdate = [this] { m_Process.reset(); };
    process->StartAnimation();
    m_System.Advance(500);
    EXPECT_EQ(m_Animation.m_Frame, 1);
    EXPECT_TRUE(m_System.GetRunningPeriods().empty());
}

}  // namespace
