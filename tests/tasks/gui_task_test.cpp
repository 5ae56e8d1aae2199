// Work on a background runner whose results come to the GUI thread.

#include "tests/tasks/task_system.h"
#include "vexel/tasks/gui_task.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace tasks_test;
using namespace vexel::test;

namespace
{

class CTask : public plinth::subscriber_base_t, public CGUITask
{
public:
    explicit CTask(CLog& log) : m_Log(log) {}
    ~CTask() override { Stop(); }

    bool m_More = true;
    std::function<void()> m_OnWork;
    CRunnableProxy* m_Proxy = nullptr;  // the last one

protected:
    bool InternalProcessData() override
    {
        m_Log.Add("work");
        if (m_OnWork)
            m_OnWork();
        return m_More;
    }
    void InitUpdater(CRunnableProxy* proxy) override
    {
        m_Log.Add("connect");
        m_Proxy = proxy;
        proxy->m_SigRun.connect(this, &CTask::Show);
    }

private:
    void Show() { m_Log.Add("show"); }

    CLog& m_Log;
};

class GuiTask : public testing::Test
{
protected:
    // With a lock, which the first start makes.
    void Start()
    {
        m_Task->SetRunner(m_Runner.get());
        m_Task->SetSynchronizer(&m_Queue);
        m_Task->Execute();
        m_Log.Take();
    }

    CLog m_Log;
    CTaskSystem m_System{m_Log};
    vexel_ptr<CLoggedRunner> m_Runner{new CLoggedRunner(m_Log)};
    CLoggedQueue m_Queue{m_Log};
    std::unique_ptr<CTask> m_Task = std::make_unique<CTask>(m_Log);
};

// Starting and stopping --------------------------------------------------------------------------------------------

TEST_F(GuiTask, TheFirstStartMakesTheLock)
{
    m_Task->SetRunner(m_Runner.get());
    m_Task->Execute();
    EXPECT_EQ(m_Log.Take(), "lock(a) start");
}

TEST_F(GuiTask, FurtherStartsPassTheLock)
{
    Start();
    m_Task->Execute();
    EXPECT_EQ(m_Log.Take(), "a+ a- start");
}

TEST_F(GuiTask, WithoutARunnerNothingStarts)
{
    m_Task->Execute();
    EXPECT_EQ(m_Log.Take(), "lock(a)");
    m_Task->Execute();
    EXPECT_EQ(m_Log.Take(), "a+ a-");
    m_Task->SetRunner(m_Runner.get());
    m_Task->Execute();
    EXPECT_EQ(m_Log.Take(), "a+ a- start");
}

TEST_F(GuiTask, WithoutASystemItRunsWithoutALock)
{
    ISystem* const system = SetCurrentSystem(nullptr);
    m_Task->SetRunner(m_Runner.get());
    m_Task->SetSynchronizer(&m_Queue);
    m_Task->Execute();
    EXPECT_TRUE(m_Runner->Round());
    EXPECT_EQ(m_Log.Take(), "start work connect post");
    SetCurrentSystem(system);
}

TEST_F(GuiTask, TheRunnerGetsTheDataProcessor)
{
    Start();
    EXPECT_EQ(m_Runner->GetRunnable(), static_cast<IDataProcessor*>(m_Task.get()));
}

TEST_F(GuiTask, StoppingPassesTheLockAndStopsTheRunner)
{
    Start();
    m_Task->Stop();
    EXPECT_EQ(m_Log.Take(), "a+ a- halt");
}

TEST_F(GuiTask, AStoppedTaskHasForgottenItsRunner)
{
    Start();
    m_Task->Stop();
    m_Log.Take();
    m_Task->Stop();
    EXPECT_EQ(m_Log.Take(), "a+ a-");
    m_Task->Execute();
    EXPECT_EQ(m_Log.Take(), "a+ a-");
}

TEST_F(GuiTask, StoppingOneThatNeverRanDoesNothing)
{
    m_Task->Stop();
    EXPECT_EQ(m_Log.Take(), "");
}

// A round ----------------------------------------------------------------------------------------------------------

TEST_F(GuiTask, ARoundWorksAndPostsBetweenTwoPassesOfTheLock)
{
    Start();
    EXPECT_TRUE(m_Runner->Round());
    EXPECT_EQ(m_Log.Take(), "a+ a- work a+ a- connect post");
    ASSERT_EQ(m_Queue.m_Posted.size(), 1u);
    EXPECT_EQ(m_Queue.m_Posted[0].get(), m_Task->m_Proxy);
}

TEST_F(GuiTask, WhatIsPostedCallsTheTask)
{
    Start();
    m_Runner->Round();
    m_Log.Take();
    m_Queue.Run();
    EXPECT_EQ(m_Log.Take(), "show");
}

TEST_F(GuiTask, TheWorkSaysWhetherThereIsAnotherRound)
{
    Start();
    m_Task->m_More = false;
    EXPECT_FALSE(m_Runner->Round());
    EXPECT_EQ(m_Log.Take(), "a+ a- work a+ a- connect post") << "its result is posted all the same";
}

TEST_F(GuiTask, WithoutASynchronizerTheResultGoesNowhere)
{
    Start();
    m_Task->SetSynchronizer(nullptr);
    EXPECT_TRUE(m_Runner->Round());
    EXPECT_EQ(m_Log.Take(), "a+ a- work a+ a-");
    m_Task->m_More = false;
    EXPECT_FALSE(m_Runner->Round());
}

TEST_F(GuiTask, AStoppedTaskDoesNoWork)
{
    Start();
    m_Task->Stop();
    m_Log.Take();
    EXPECT_FALSE(m_Task->ProcessData());
    EXPECT_EQ(m_Log.Take(), "a+ a-");
}

TEST_F(GuiTask, StoppedDuringTheWorkItPostsNothing)
{
    Start();
    m_Task->m_OnWork = [this] { m_Task->Stop(); };
    EXPECT_TRUE(m_Task->ProcessData()) << "what the work has said";
    EXPECT_EQ(m_Log.Take(), "a+ a- work a+ a- halt a+ a-");
    EXPECT_TRUE(m_Queue.m_Posted.empty());
}

TEST_F(GuiTask, AStartAfterAStopLetsItWorkAgain)
{
    Start();
    m_Task->Stop();
    m_Task->SetRunner(m_Runner.get());
    m_Task->Execute();
    m_Log.Take();
    EXPECT_TRUE(m_Runner->Round());
    EXPECT_EQ(m_Log.Take(), "a+ a- work a+ a- connect post");
}

TEST_F(GuiTask, EachRoundPostsAResultOfItsOwn)
{
    Start();
    m_Runner->Round();
    m_Runner->Round();
    m_Log.Take();
    EXPECT_EQ(m_Queue.m_Posted.size(), 2u);
    m_Queue.Run();
    EXPECT_EQ(m_Log.Take(), "show show");
}

TEST_F(GuiTask, WhatWasPostedBeforeAStopStillArrives)
{
    Start();
    m_Runner->Round();
    m_Task->Stop();
    m_Log.Take();
    m_Queue.Run();
    EXPECT_EQ(m_Log.Take(), "show");
}

TEST_F(GuiTask, WhatWasPostedDoesNotReachADeadTask)
{
    Start();
    m_Runner->Round();
    m_Task.reset();
    m_Log.Take();
    m_Queue.Run();
    EXPECT_EQ(m_Log.Take(), "");
}

// Parts ------------------------------------------------------------------------------------------------------------

TEST(RunnableProxy, ItsRunFiresItsSignal)
{
    CRunnableProxy proxy;
    CSignalLog log(proxy.m_SigRun, "run");
    EXPECT_TRUE(proxy.Run());
    EXPECT_EQ(log.Text(), "run()");
    EXPECT_FALSE(proxy.IsDynamicRunnable());
}

TEST(DataProcessor, ItsRunProcessesData)
{
    struct SProcessor : IDataProcessor
    {
        int m_Left = 1;
        bool ProcessData() override { return m_Left-- > 0; }
    } processor;
    IRunnable& runnable = processor;
    EXPECT_TRUE(runnable.Run());
    EXPECT_FALSE(runnable.Run());
    EXPECT_FALSE(runnable.IsDynamicRunnable());
}

// On the memory system ---------------------------------------------------------------------------------------------

TEST(GuiTaskInWindow, WorksInTheBackgroundAndShowsInTheForeground)
{
    CTestHost host(20, 20);
    CLog log;
    vexel_ptr<IRunner> const runner = host.System().GetRunner();
    CTask task(log);
    task.m_OnWork = [&] { runner->SetWait(50); };
    task.SetRunner(runner.get());
    task.SetSynchronizer(&host.Window());
    task.Execute();
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(host.RunBackground(), 1);
    EXPECT_EQ(log.Take(), "work connect");
    EXPECT_EQ(host.RunPending(), 1);
    EXPECT_EQ(log.Take(), "show");
    EXPECT_EQ(host.RunBackground(), 0);
    host.Clock().Advance(50);
    task.m_More = false;
    EXPECT_EQ(host.RunBackground(), 1);
    EXPECT_EQ(log.Take(), "work connect");
    EXPECT_FALSE(runner->IsRunning());
    host.RunPending();
    EXPECT_EQ(log.Take(), "show");
}

}  // namespace
