// An animation driven by a runner that waits and a hand-over to the GUI thread, here by hand.

#include "tests/support/virtual_order.h"
#include "tests/tasks/animation.h"
#include "vexel/tasks/repeatable_operation.h"
#include "vexel/tasks/thread_animation_process.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>

using namespace tasks_test;
using namespace vexel::test;

namespace
{

// Locks: a is the delay's, b the task's.
class ThreadAnimation : public testing::Test
{
protected:
    ThreadAnimation() { m_Process->SetUpdater(&m_Updater); }

    void Start()
    {
        m_Process->SetAnimation(&m_Animation);
        m_Process->SetProcessSynchronizer(&m_Queue);
        m_Process->StartAnimation();
        m_Log.Take();
    }
    CLoggedRunner& Runner() { return *m_System.m_LastRunner; }

    CLog m_Log;
    CTaskSystem m_System{m_Log};
    CLoggedQueue m_Queue{m_Log};
    CLoggedAnimation m_Animation{m_Log, {10, 20, 30}};
    CLoggedUpdater m_Updater{m_Log};
    vexel_ptr<CThreadAnimationProcess> m_Process{new CThreadAnimationProcess};
};

// Starting ---------------------------------------------------------------------------------------------------------

TEST_F(ThreadAnimation, AStartReadsTheDelayAndRunsARunner)
{
    m_Process->SetAnimation(&m_Animation);
    m_Process->SetProcessSynchronizer(&m_Queue);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_FALSE(m_Process->IsAnimated());
    m_Process->StartAnimation();
    EXPECT_EQ(m_Log.Take(), "delay lock(a) runner lock(b) start");
    EXPECT_TRUE(m_Process->IsAnimated());
}

TEST_F(ThreadAnimation, AStartWhileItRunsReadsTheDelayAlone)
{
    Start();
    m_Process->StartAnimation();
    EXPECT_EQ(m_Log.Take(), "delay a+ a-");
    EXPECT_TRUE(m_Process->IsAnimated());
}

TEST_F(ThreadAnimation, AStartBeforeTheAnimationStartsOnceItIsSet)
{
    m_Process->SetProcessSynchronizer(&m_Queue);
    m_Process->StartAnimation();
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_FALSE(m_Process->IsAnimated());
    m_Process->SetAnimation(&m_Animation);
    EXPECT_EQ(m_Log.Take(), "delay lock(a) runner lock(b) start");
    EXPECT_TRUE(m_Process->IsAnimated());
}

TEST_F(ThreadAnimation, AStartBeforeTheSynchronizerStartsOnceItIsSet)
{
    m_Process->SetAnimation(&m_Animation);
    m_Process->StartAnimation();
    EXPECT_EQ(m_Log.Take(), "");
    m_Process->SetProcessSynchronizer(&m_Queue);
    EXPECT_EQ(m_Log.Take(), "delay lock(a) runner lock(b) start");
    EXPECT_TRUE(m_Process->IsAnimated());
}

TEST_F(ThreadAnimation, AStartBeforeEverythingStartsWithTheLastPiece)
{
    m_Process->StartAnimation();
    m_Process->SetAnimation(&m_Animation);
    EXPECT_FALSE(m_Process->IsAnimated());
    m_Process->SetProcessSynchronizer(&m_Queue);
    EXPECT_TRUE(m_Process->IsAnimated());
}

TEST_F(ThreadAnimation, AStopTakesAPendingStartBack)
{
    m_Process->StartAnimation();
    m_Process->StopAnimation();
    m_Process->SetAnimation(&m_Animation);
    m_Process->SetProcessSynchronizer(&m_Queue);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_FALSE(m_Process->IsAnimated());
}

TEST_F(ThreadAnimation, AStartThatHasHappenedIsNotPendingAnyMore)
{
    m_Process->StartAnimation();
    m_Process->SetAnimation(&m_Animation);
    m_Process->SetProcessSynchronizer(&m_Queue);
    CLoggedAnimation other(m_Log, {50});
    m_Log.Take();
    m_Process->SetAnimation(&other);
    EXPECT_EQ(m_Log.Take(), "");
    m_Process->SetAnimation(&m_Animation);
}

TEST_F(ThreadAnimation, RefreshingStartsWhatIsPendingAndReady)
{
    m_Process->Refresh();
    EXPECT_EQ(m_Log.Take(), "");
    m_Process->SetAnimation(&m_Animation);
    m_Process->SetProcessSynchronizer(&m_Queue);
    m_Process->Refresh();
    EXPECT_EQ(m_Log.Take(), "") << "no start is pending";
}

TEST_F(ThreadAnimation, RefreshingARunningOneStopsIt)
{
    Start();
    m_Process->Refresh();
    EXPECT_EQ(m_Log.Take(), "b+ b- halt");
    EXPECT_FALSE(m_Process->IsAnimated());
}

TEST_F(ThreadAnimation, TellingARunningOneItsSynchronizerAgainStopsIt)
{
    Start();
    m_Process->SetProcessSynchronizer(&m_Queue);
    EXPECT_EQ(m_Log.Take(), "b+ b- halt");
    EXPECT_FALSE(m_Process->IsAnimated());
}

TEST_F(ThreadAnimation, WithoutASynchronizerItStops)
{
    Start();
    m_Process->SetProcessSynchronizer(nullptr);
    EXPECT_FALSE(m_Process->IsAnimated());
    m_Process->StartAnimation();
    EXPECT_FALSE(m_Process->IsAnimated());
    m_Process->SetProcessSynchronizer(&m_Queue);
    EXPECT_TRUE(m_Process->IsAnimated()) << "the start was pending";
}

TEST_F(ThreadAnimation, WithoutItsAnimationItDoesNotPostToAFormerSynchronizer)
{
    Start();
    vexel_ptr<CLoggedRunner> const runner(&Runner());
    m_Process->SetAnimation(nullptr);
    m_Process->StartAnimation();
    m_Process->SetProcessSynchronizer(nullptr);
    EXPECT_FALSE(runner->IsRunning());
    EXPECT_FALSE(m_Process->ProcessData());
    EXPECT_TRUE(m_Queue.m_Posted.empty());

    CLoggedQueue other(m_Log);
    m_Process->SetProcessSynchronizer(&other);
    EXPECT_FALSE(m_Process->IsAnimated());
    m_Process->SetAnimation(&m_Animation);
    EXPECT_TRUE(m_Process->IsAnimated()) << "the start was pending all the while";
    Runner().Round();
    EXPECT_TRUE(m_Queue.m_Posted.empty());
    EXPECT_EQ(other.m_Posted.size(), 1u);
}

// Stopping ---------------------------------------------------------------------------------------------------------

TEST_F(ThreadAnimation, AStopStopsTheTaskAndItsRunner)
{
    Start();
    m_Process->StopAnimation();
    EXPECT_EQ(m_Log.Take(), "b+ b- halt");
    EXPECT_FALSE(m_Process->IsAnimated());
    m_Process->DoStopAnimation();
    EXPECT_EQ(m_Log.Take(), "b+ b-");
}

TEST_F(ThreadAnimation, AStartAfterAStopRunsANewRunnerForTheSameSynchronizer)
{
    Start();
    m_Process->StopAnimation();
    m_Log.Take();
    m_Process->StartAnimation();
    EXPECT_EQ(m_Log.Take(), "delay a+ a- runner b+ b- start");
    Runner().Round();
    EXPECT_EQ(m_Queue.m_Posted.size(), 1u);
}

TEST_F(ThreadAnimation, WithoutItsAnimationItIsNotAnimated)
{
    Start();
    m_Process->SetAnimation(nullptr);
    EXPECT_FALSE(m_Process->IsAnimated());
    EXPECT_TRUE(Runner().Round());
    m_Log.Take();
    m_Queue.Run();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ThreadAnimation, ARunnerThatHasEndedIsNoAnimation)
{
    Start();
    Runner().Stop();
    EXPECT_FALSE(m_Process->IsAnimated());
}

// The hand-over ----------------------------------------------------------------------------------------------------

TEST_F(ThreadAnimation, ARoundSetsTheNextWaitAndPosts)
{
    Start();
    EXPECT_TRUE(Runner().Round());
    EXPECT_EQ(m_Log.Take(), "b+ b- a+ a- wait(10) b+ b- post");
}

TEST_F(ThreadAnimation, WhatIsPostedStepsStoresTheDelayAndUpdates)
{
    Start();
    Runner().Round();
    m_Log.Take();
    m_Queue.Run();
    EXPECT_EQ(m_Log.Take(), "wanted? next delay a+ a- update");
    EXPECT_EQ(m_Animation.m_Frame, 1);
}

TEST_F(ThreadAnimation, ANewFramesDelayTakesEffectWithTheNextWait)
{
    Start();
    Runner().Round();
    m_Queue.Run();
    m_Log.Take();
    Runner().Round();
    EXPECT_EQ(m_Log.Take(), "b+ b- a+ a- wait(20) b+ b- post");
    m_Queue.Run();
    m_Log.Take();
    Runner().Round();
    EXPECT_EQ(m_Log.Take(), "b+ b- a+ a- wait(30) b+ b- post");
}

TEST_F(ThreadAnimation, AFrameThatIsNotWantedIsSkippedAndTheDelayStays)
{
    Start();
    Runner().Round();
    m_Updater.m_Wants = false;
    m_Log.Take();
    m_Queue.Run();
    EXPECT_EQ(m_Log.Take(), "wanted?");
    EXPECT_EQ(m_Animation.m_Frame, 0);
    Runner().Round();
    EXPECT_EQ(m_Log.Take(), "b+ b- a+ a- wait(10) b+ b- post");
}

TEST_F(ThreadAnimation, AFrameWithoutADelayStaysForAMillisecond)
{
    for (int const delay : {0, -5})
    {
        m_Animation.m_Delays = {delay};
        Start();
        Runner().Round();
        EXPECT_EQ(m_Log.Take(), "b+ b- a+ a- wait(1) b+ b- post");
        m_Process->StopAnimation();
    }
}

TEST_F(ThreadAnimation, WithoutAnUpdaterOrAnAnimationNothingIsStepped)
{
    Start();
    m_Process->SetUpdater(nullptr);
    m_Process->UpdateData();
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Animation.m_Frame, 0);
    m_Process->SetUpdater(&m_Updater);
    m_Process->SetAnimation(nullptr);
    m_Process->UpdateData();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ThreadAnimation, AStepBeforeTheFirstStartHasNoLockToPass)
{
    m_Process->SetAnimation(&m_Animation);
    m_Process->UpdateData();
    EXPECT_EQ(m_Log.Take(), "wanted? next delay update");
}

TEST_F(ThreadAnimation, AQueuedStepStillComesAfterAStop)
{
    Start();
    Runner().Round();
    m_Process->StopAnimation();
    m_Log.Take();
    m_Queue.Run();
    EXPECT_EQ(m_Log.Take(), "wanted? next delay a+ a- update");
    EXPECT_EQ(m_Animation.m_Frame, 1);
    m_Queue.Run();
    EXPECT_EQ(m_Log.Take(), "") << "once";
}

TEST_F(ThreadAnimation, AQueuedStepDoesNotReachADeadProcess)
{
    Start();
    Runner().Round();
    Runner().Round();
    m_Process.reset();
    m_Log.Take();
    m_Queue.Run();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ThreadAnimation, ItsEndStopsItsRunnerFirst)
{
    Start();
    vexel_ptr<CLoggedRunner> const runner(&Runner());
    m_Process.reset();
    EXPECT_THAT(m_Log.Take(), testing::StartsWith("b+ b- halt"));
    EXPECT_FALSE(runner->IsRunning());
}

TEST_F(ThreadAnimation, WithoutARunnerAFurtherRoundHasNothingToWaitFor)
{
    EXPECT_TRUE(m_Process->InternalProcessData());
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ThreadAnimation, AStoppedOneDoesNoFurtherRound)
{
    Start();
    vexel_ptr<CLoggedRunner> const runner(&Runner());
    m_Process->StopAnimation();
    m_Log.Take();
    EXPECT_FALSE(m_Process->ProcessData());
    EXPECT_EQ(m_Log.Take(), "b+ b-");
}

TEST_F(ThreadAnimation, MayBeGivenUpByTheUpdate)
{
    Start();
    Runner().Round();
    Runner().Round();
    m_Updater.m_OnUpdate = [this] { m_Process.reset(); };
    m_Queue.Run();
    EXPECT_EQ(m_Animation.m_Frame, 1);
}

TEST_F(ThreadAnimation, MayBeGivenUpByTheQuestion)
{
    Start();
    Runner().Round();
    m_Updater.m_OnQuestion = [this] { m_Process.reset(); };
    m_Queue.Run();
    EXPECT_EQ(m_Animation.m_Frame, 1) << "the step under way still comes";
}

TEST_F(ThreadAnimation, MayBeStoppedByTheUpdate)
{
    Start();
    vexel_ptr<CLoggedRunner> const runner(&Runner());
    runner->Round();
    m_Updater.m_OnUpdate = [this] { m_Process->StopAnimation(); };
    m_Queue.Run();
    EXPECT_FALSE(m_Process->IsAnimated());
    EXPECT_FALSE(runner->IsRunning());
}

TEST_F(ThreadAnimation, SeveralOfThemHaveRunnersOfTheirOwn)
{
    Start();
    CLoggedRunner& first = Runner();
    CThreadAnimationProcess other;
    CLoggedAnimation animation(m_Log, {5});
    other.SetAnimation(&animation);
    other.SetProcessSynchronizer(&m_Queue);
    other.StartAnimation();
    EXPECT_NE(&first, &Runner());
    other.StopAnimation();
    EXPECT_TRUE(m_Process->IsAnimated());
}

// In a window ------------------------------------------------------------------------------------------------------

TEST(ThreadAnimationInWindow, EachFrameStaysForTheDelayOfTheOneBefore)
{
    CTestHost host(20, 20);
    CLog log;
    CLoggedAnimation animation(log, {10, 20, 30});
    CLoggedUpdater updater(log);
    vexel_ptr<IAnimationProcess> const process = CreateAnimationProcess();
    process->SetUpdater(&updater);
    process->StartAnimation();
    process->SetAnimation(&animation);
    process->SetProcessSynchronizer(&host.Window());
    auto const pass = [&](int milliseconds) {
        host.Clock().Advance(milliseconds);
        host.RunBackground();
        host.RunPending();
        return animation.m_Frame;
    };
    EXPECT_EQ(pass(0), 1) << "the first one at once";
    EXPECT_EQ(pass(9), 1);
    EXPECT_EQ(pass(1), 2) << "10, as the start read it";
    EXPECT_EQ(pass(19), 2);
    EXPECT_EQ(pass(1), 0) << "20, as the first step read it";
    EXPECT_EQ(pass(30), 1);
    process->StopAnimation();
    EXPECT_EQ(pass(500), 1);
}

// Interfaces -------------------------------------------------------------------------------------------------------

TEST(TasksVirtualOrder, OfTasksAndAnimations)
{
    ExpectOrder(2, &IAnimationProcess::AddRef, &IAnimationProcess::Release, &IAnimationProcess::SetAnimation,
                &IAnimationProcess::StartAnimation, &IAnimationProcess::StopAnimation, &IAnimationProcess::IsAnimated,
                &IAnimationProcess::SetUpdater, &IAnimationProcess::SetProcessSynchronizer);
    ExpectOrder(2, &IAnimationProcess::IUpdater::UpdateAnimation, &IAnimationProcess::IUpdater::IsUpdatable);
    ExpectOrder(2, &IGUITask::SetRunner, &IGUITask::SetSynchronizer, &IGUITask::Execute, &IGUITask::Stop);
    ExpectOrder(2, &IRunnable::Run, &IRunnable::IsDynamicRunnable, &IDataProcessor::ProcessData);
    struct STask : CGUITask
    {
        static void Check()
        {
            ExpectOrder(6, &CGUITask::ProcessData, &STask::InternalProcessData, &STask::InitUpdater);
        }
    };
    STask::Check();
    ExpectOrder(Place(&ITimerNotify::OnTimer) + 1, &CRepeatTimerNotify::OnRepeatTimer);
    struct SOperation : CRepeatableOperation
    {
        static void Check()
        {
            ExpectOrder(Place(&CRepeatTimerNotify::OnRepeatTimer) + 1, &SOperation::ProcessRepeatOperation);
        }
    };
    SOperation::Check();
}

}  // namespace
