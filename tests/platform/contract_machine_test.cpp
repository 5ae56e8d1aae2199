#include "tests/platform/contract_bench.h"

#include "vexel/signals/notify.h"

#include "vexel/testing/expect_report.h"

#include <atomic>
#include <stdexcept>

// Timers, runners, locks, the clipboard and what else the system gives.

namespace vexelbase::tests
{

namespace
{

class ContractTimer : public CContractTest
{
protected:
    // Hears a timer. The work may drop the timer.
    class CTick : public ITimerNotify
    {
    public:
        CTick(ISysTimer& timer, std::function<void()> work = {}) : m_Work(std::move(work))
        {
            timer.Subscribe(this, typeid(ITimerNotify), true);
        }
        void NoticeStarted(IEventSender*) override {}
        void NoticeStopped(IEventSender*) override { ++m_Stopped; }
        void OnTimer(CTimerEvent*) override
        {
            ++m_Count;
            if (m_Work)
                m_Work();
        }

        int m_Count = 0;
        int m_Stopped = 0;

    private:
        std::function<void()> m_Work;
    };

    /// Lets a clock of its own tick so often, at 10 milliseconds each.
    void PassTicks(int count)
    {
        vexel_ptr<ISysTimer> const clock = System().CreateTimer(10, 0);
        CTick tick(*clock);
        clock->SetRunning(true);
        ASSERT_TRUE(Bench().RunUntil([&] { return tick.m_Count >= count; }));
        clock->Unsubscribe(&tick, false);
    }
};

class ContractMachine : public CContractTest
{};

}  // namespace

// Timers -----------------------------------------------------------------------------------------------------------

TEST_F(ContractTimer, IsMadeStopped)
{
    vexel_ptr<ISysTimer> const timer = System().CreateTimer(1, 0);
    CTick tick(*timer);
    EXPECT_FALSE(timer->IsRunning());
    PassTicks(3);
    EXPECT_EQ(tick.m_Count, 0);
    timer->Unsubscribe(&tick, false);
}

TEST_F(ContractTimer, TicksAgainAndAgainUntilItIsStopped)
{
    vexel_ptr<ISysTimer> const timer = System().CreateTimer(5, 0);
    CTick tick(*timer);
    timer->SetRunning(true);
    EXPECT_TRUE(timer->IsRunning());
    EXPECT_EQ(tick.m_Count, 0);
    EXPECT_TRUE(Bench().RunUntil([&] { return tick.m_Count >= 3; }));
    timer->SetRunning(false);
    EXPECT_FALSE(timer->IsRunning());
    int const before = tick.m_Count;
    PassTicks(3);
    EXPECT_EQ(tick.m_Count, before);
    timer->Unsubscribe(&tick, false);
}

TEST_F(ContractTimer, MayBeStoppedInItsTick)
{
    vexel_ptr<ISysTimer> const timer = System().CreateTimer(1, 0);
    CTick tick(*timer, [&] { timer->SetRunning(false); });
    timer->SetRunning(true);
    EXPECT_TRUE(Bench().RunUntil([&] { return tick.m_Count > 0; }));
    PassTicks(3);
    EXPECT_EQ(tick.m_Count, 1);
    timer->SetRunning(true);
    EXPECT_TRUE(Bench().RunUntil([&] { return tick.m_Count > 1; }));
    EXPECT_EQ(tick.m_Count, 2);
    timer->Unsubscribe(&tick, false);
}

TEST_F(ContractTimer, MayBeReleasedInItsTickAndTellsItsSubscribers)
{
    vexel_ptr<ISysTimer> timer = System().CreateTimer(1, 0);
    CTick first(*timer, [&] { timer.reset(); });
    CTick second(*timer);
    timer->SetRunning(true);
    EXPECT_TRUE(Bench().RunUntil([&] { return first.m_Count > 0; }));
    PassTicks(3);
    EXPECT_EQ(first.m_Count, 1);
    EXPECT_EQ(second.m_Count, 1);  // it lives until its tick is over
    EXPECT_EQ(first.m_Stopped, 1);
    EXPECT_EQ(second.m_Stopped, 1);
}

TEST_F(ContractTimer, ReleasedWhileItRunsTicksNoMore)
{
    vexel_ptr<ISysTimer> timer = System().CreateTimer(1, 0);
    CTick tick(*timer);
    timer->SetRunning(true);
    timer.reset();
    PassTicks(3);
    EXPECT_EQ(tick.m_Count, 0);
    EXPECT_EQ(tick.m_Stopped, 1);
}

TEST_F(ContractTimer, OfTheShorterPeriodTicksFirst)
{
    vexel_ptr<ISysTimer> const slow = System().CreateTimer(60000, 0);
    vexel_ptr<ISysTimer> const fast = System().CreateTimer(10, 0);
    CTick slowTick(*slow);
    CTick fastTick(*fast);
    slow->SetRunning(true);
    fast->SetRunning(true);
    EXPECT_TRUE(Bench().RunUntil([&] { return fastTick.m_Count > 1; }));
    EXPECT_EQ(slowTick.m_Count, 0);
    slow->SetPeriod(1);  // the wait starts anew
    EXPECT_TRUE(slow->IsRunning());
    EXPECT_TRUE(Bench().RunUntil([&] { return slowTick.m_Count > 0; }));
    slow->Unsubscribe(&slowTick, false);
    fast->Unsubscribe(&fastTick, false);
}

TEST_F(ContractTimer, ANewPeriodStartsNoStoppedOne)
{
    vexel_ptr<ISysTimer> const timer = System().CreateTimer(60000, 0);
    CTick tick(*timer);
    timer->SetPeriod(-4);  // counts as 1
    EXPECT_FALSE(timer->IsRunning());
    PassTicks(2);
    EXPECT_EQ(tick.m_Count, 0);
    timer->SetRunning(true);
    EXPECT_TRUE(Bench().RunUntil([&] { return tick.m_Count > 0; }));
    timer->Unsubscribe(&tick, false);
}

TEST_F(ContractTimer, StartedAgainAndAgainNeverTicks)
{
    vexel_ptr<ISysTimer> const late = System().CreateTimer(25, 0);
    vexel_ptr<ISysTimer> const clock = System().CreateTimer(10, 0);
    CTick lateTick(*late);
    CTick clockTick(*clock, [&] { late->SetRunning(true); });
    late->SetRunning(true);
    clock->SetRunning(true);
    EXPECT_TRUE(Bench().RunUntil([&] { return clockTick.m_Count >= 20; }));
    EXPECT_EQ(lateTick.m_Count, 0);
    EXPECT_TRUE(late->IsRunning());
    late->Unsubscribe(&lateTick, false);
    clock->Unsubscribe(&clockTick, false);
}

TEST_F(ContractTimer, ATickThatThrowsStopsNoFurtherOne)
{
    vexel::test::CExpectException const reports("a tick", 2);
    vexel_ptr<ISysTimer> const timer = System().CreateTimer(1, 0);
    CTick tick(*timer, [&] {
        if (tick.m_Count == 2)
            timer->SetRunning(false);
        throw std::runtime_error("a tick");
    });
    timer->SetRunning(true);
    EXPECT_TRUE(Bench().RunUntil([&] { return tick.m_Count >= 2; }));
    timer->Unsubscribe(&tick, false);
}

// Threads ----------------------------------------------------------------------------------------------------------

TEST_F(ContractMachine, GivesAFreshRunnerEachTimeWhichRepeatsItsWork)
{
    class CWork : public IRunnable
    {
    public:
        bool Run() override { return ++m_Count < 3; }
        std::atomic<int> m_Count{0};
    };
    CWork work;
    vexel_ptr<IRunner> const first = System().GetRunner();
    vexel_ptr<IRunner> const second = System().GetRunner();
    EXPECT_NE(first.get(), second.get());
    EXPECT_FALSE(first->IsRunning());
    first->Run(&work);
    EXPECT_FALSE(second->IsRunning());
    EXPECT_TRUE(Bench().RunUntil([&] { return work.m_Count == 3 && !first->IsRunning(); }));
    first->Stop();
    EXPECT_EQ(work.m_Count, 3);
    first->Run(&work);  // once more
    EXPECT_TRUE(Bench().RunUntil([&] { return work.m_Count == 4; }));
    first->Stop();
    EXPECT_FALSE(first->IsRunning());
}

TEST_F(ContractMachine, AStoppedRunnerRunsNoMoreAndAWaitIsInterrupted)
{
    class CWork : public IRunnable
    {
    public:
        bool Run() override
        {
            ++m_Count;
            return true;
        }
        std::atomic<int> m_Count{0};
    };
    CWork work;
    vexel_ptr<IRunner> const runner = System().GetRunner();
    runner->SetWait(1000000);  // before the first round too
    runner->Run(&work);
    EXPECT_TRUE(runner->IsRunning());
    runner->Stop();
    EXPECT_FALSE(runner->IsRunning());
    EXPECT_EQ(work.m_Count, 0);
}

TEST_F(ContractMachine, ALockIsTakenAndGivenBack)
{
    vexel_ptr<ILock> const lock = System().CreateLock();
    for (int i = 0; i < 3; ++i)
    {
        lock->Acquire();
        lock->Unlock();
    }
    EXPECT_NE(System().CreateLock().get(), lock.get());
}

// The rest ---------------------------------------------------------------------------------------------------------

TEST_F(ContractMachine, TheClipboardGivesBackWhatItWasGiven)
{
    IClipboard& clipboard = *System().GetClipboard();
    for (char const* text : {"plain", "two\nlines\tand a tab", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", " ", ""})
    {
        clipboard.SetText(text);
        EXPECT_EQ(clipboard.GetText(), text);
    }
}

TEST_F(ContractMachine, TheDefaultFontIsWhole)
{
    font const value = System().GetDefaultFont();
    EXPECT_FALSE(value.name.empty());
    EXPECT_NE(value.family, font::ffDefault);
    EXPECT_GE(value.size, 1);
    EXPECT_EQ(value.rotation, 0);
    EXPECT_EQ(value.factor, 1.0);
    EXPECT_EQ(GetDefaultGUIFont(), value);
}

TEST_F(ContractMachine, KnowsItsMetricsAndNoOthers)
{
    EXPECT_GT(System().GetSystemMetric(ISystem::smScrollBarWidth), 0);
    EXPECT_GT(System().GetSystemMetric(ISystem::smScrollBarHeight), 0);
    EXPECT_EQ(System().GetSystemMetric(2), 0);
    EXPECT_EQ(System().GetSystemMetric(-1), 0);
}

TEST_F(ContractMachine, TellsAWorkAreaAroundAPoint)
{
    rectangle<int> const area = System().GetWorkArea({10, 10});
    EXPECT_GT(area.Width(), 0);
    EXPECT_GT(area.Height(), 0);
}

TEST_F(ContractMachine, IsFoundAsTheCurrentOne)
{
    ASSERT_TRUE(GetCurrentSystem());
    EXPECT_EQ(GetSystemScale(), System().GetScale());
    EXPECT_EQ(GetSysPalette(), System().GetPalette());
    EXPECT_TRUE(GetDefaultPalette());
}

}  // namespace vexelbase::tests
