// Work on real threads whose results come to this one.

#include "tests/tasks/threads/thread_queue.h"
#include "vexel/tasks/gui_task.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <limits>
#include <memory>
#include <thread>

using namespace tasks_test;
using namespace vexel;
using namespace vexel::test;

namespace
{

// Counts on its thread, and hands the count over under a lock of its own.
class CCounter : public plinth::subscriber_base_t, public CGUITask
{
public:
    ~CCounter() override { Stop(); }

    std::function<void()> m_OnWork;
    int m_Last =
        std::numeric_limits<int>::max();  // rounds; a fast machine works off any smaller number while others wait
    int m_Shown = 0;                      // what was seen last on the GUI thread
    int m_Shows = 0;
    std::thread::id m_WorkThread;  // read once it has stopped
    std::thread::id m_ShowThread;

protected:
    bool InternalProcessData() override
    {
        m_WorkThread = std::this_thread::get_id();
        if (m_OnWork)
            m_OnWork();
        std::lock_guard const lock(m_DataLock);
        return ++m_Count < m_Last;
    }
    void InitUpdater(CRunnableProxy* proxy) override { proxy->m_SigRun.connect(this, &CCounter::Show); }

private:
    void Show()
    {
        std::lock_guard const lock(m_DataLock);
        m_Shown = m_Count;
        ++m_Shows;
        m_ShowThread = std::this_thread::get_id();
    }

    std::mutex m_DataLock;
    int m_Count = 0;
};

class TaskThreads : public testing::Test
{
protected:
    TaskThreads() { CTestHost::System().UseRealThreads(true); }

    void Start()
    {
        m_Runner = CTestHost::System().GetRunner();
        m_Task->SetRunner(m_Runner.get());
        m_Task->SetSynchronizer(&m_Queue);
        m_Task->Execute();
    }

    CThreadQueue m_Queue;
    vexel_ptr<IRunner> m_Runner;
    std::unique_ptr<CCounter> m_Task = std::make_unique<CCounter>();
};

TEST_F(TaskThreads, WorkIsDoneOnAnotherThreadAndShownOnThisOne)
{
    Start();
    ASSERT_TRUE(m_Queue.Wait(3));
    m_Queue.Run();
    m_Task->Stop();
    m_Queue.Run();
    EXPECT_GE(m_Task->m_Shows, 3);
    EXPECT_GE(m_Task->m_Shown, m_Task->m_Shows);
    EXPECT_EQ(m_Task->m_ShowThread, std::this_thread::get_id());
    EXPECT_NE(m_Task->m_WorkThread, std::this_thread::get_id());
}

TEST_F(TaskThreads, EachRoundIsShownOnce)
{
    m_Task->m_Last = 50;
    Start();
    ASSERT_TRUE(m_Queue.Wait(50));
    m_Task->Stop();
    m_Queue.Run();
    EXPECT_EQ(m_Task->m_Shows, 50);
    EXPECT_EQ(m_Task->m_Shown, 50);
}

TEST_F(TaskThreads, AfterAStopNothingIsPosted)
{
    for (int round = 0; round < 50; ++round)
    {
        Start();
        ASSERT_TRUE(m_Queue.Wait(1));
        m_Task->Stop();
        EXPECT_FALSE(m_Runner->IsRunning());
        std::size_t const posted = m_Queue.GetCount();
        std::this_thread::yield();
        EXPECT_EQ(m_Queue.GetCount(), posted);
        m_Queue.Run();
    }
}

TEST_F(TaskThreads, AStopDuringTheWorkWaitsForItsEnd)
{
    CGate begun;
    CGate gate;
    std::atomic<bool> finished{false};
    m_Task->m_OnWork = [&] {
        begun.Open();
        gate.Wait();
        finished = true;
    };
    Start();
    begun.Wait();
    std::thread opener([&] { gate.Open(); });
    m_Task->Stop();
    EXPECT_TRUE(finished);
    opener.join();
}

TEST_F(TaskThreads, ATaskMayDieWhileItRunsAndItsResultsWait)
{
    for (int round = 0; round < 50; ++round)
    {
        m_Task = std::make_unique<CCounter>();
        Start();
        ASSERT_TRUE(m_Queue.Wait(1));
        m_Task.reset();
        m_Queue.Run();
    }
}

TEST_F(TaskThreads, AStoppedTaskRunsAgain)
{
    for (int round = 0; round < 20; ++round)
    {
        Start();
        ASSERT_TRUE(m_Queue.Wait(2));
        m_Task->Stop();
        m_Queue.Run();
        int const shows = m_Task->m_Shows;
        Start();
        ASSERT_TRUE(m_Queue.Wait(1));
        m_Queue.Run();
        EXPECT_GT(m_Task->m_Shows, shows);
        m_Task->Stop();
        m_Queue.Run();
    }
}

}  // namespace
