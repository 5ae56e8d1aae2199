#include "vexel/platform/memory/memory_system.h"

#include "vexel/platform/raster_picture.h"
#include "vexel/platform/xpm.h"
#include "vexel/signals/notify.h"
#include "vexel/testing/test_kit.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <stdexcept>
#include <thread>

namespace vexel
{
namespace
{

using namespace vexel::test;
using vexelbase::memory::CMemorySystem;
using vexelbase::memory::GetMemoryCounts;

// A timer whose ticks are written down with the time.
class CTicker : public CTimerNotify
{
public:
    CTicker(CMemorySystem& system, std::string& log, std::string const& name, int period)
        : m_System(system), m_Log(log), m_Name(name), m_Timer(system.CreateTimer(period, 0))
    {
        m_Timer->Subscribe(this, typeid(ITimerNotify), true);
    }
    void Start() { m_Timer->SetRunning(true); }
    void Stop() { m_Timer->SetRunning(false); }
    ISysTimer& Timer() { return *m_Timer; }
    void Drop() { m_Timer.reset(); }

    void OnTimer(CTimerEvent*) override
    {
        m_Log += (m_Log.empty() ? "" : " ") + m_Name + std::to_string(m_System.GetTime());
        if (m_Do)
            m_Do();
    }

    std::function<void()> m_Do;

private:
    CMemorySystem& m_System;
    std::string& m_Log;
    std::string m_Name;
    vexel_ptr<ISysTimer> m_Timer;
};

class MemoryTimer : public ::testing::Test
{
protected:
    CMemorySystem& m_System = CTestHost::System();
    std::string m_Log;
};

TEST_F(MemoryTimer, ANewTimerStandsStill)
{
    CTicker a(m_System, m_Log, "a", 100);
    EXPECT_FALSE(a.Timer().IsRunning());
    m_System.Advance(1000);
    EXPECT_EQ(m_Log, "");
    EXPECT_EQ(m_System.GetTime(), 1000);
}

TEST_F(MemoryTimer, ARunningTimerTicksOncePerPeriodAtItsOwnMoments)
{
    CTicker a(m_System, m_Log, "a", 100);
    a.Start();
    m_System.Advance(99);
    EXPECT_EQ(m_Log, "");
    m_System.Advance(1);
    EXPECT_EQ(m_Log, "a100");
    m_System.Advance(250);
    EXPECT_EQ(m_Log, "a100 a200 a300");
    EXPECT_EQ(m_System.GetTime(), 350);
}

TEST_F(MemoryTimer, TimersTickInTheOrderOfTheirMomentsAndThenOfTheirWaits)
{
    CTicker slow(m_System, m_Log, "slow", 60);
    CTicker quick(m_System, m_Log, "quick", 30);
    slow.Start();
    quick.Start();
    m_System.Advance(60);
    // At 60 both are due; slow has waited since 0, quick since its tick at 30.
    EXPECT_EQ(m_Log, "quick30 slow60 quick60");
}

TEST_F(MemoryTimer, StartingAgainBeginsTheWaitAnew)
{
    CTicker a(m_System, m_Log, "a", 100);
    a.Start();
    m_System.Advance(80);
    a.Start();
    m_System.Advance(80);
    EXPECT_EQ(m_Log, "");
    m_System.Advance(20);
    EXPECT_EQ(m_Log, "a180");
}

TEST_F(MemoryTimer, ANewPeriodBeginsTheWaitOfARunningTimerAnew)
{
    CTicker a(m_System, m_Log, "a", 100);
    a.Start();
    m_System.Advance(80);
    a.Timer().SetPeriod(50);
    m_System.Advance(60);
    EXPECT_EQ(m_Log, "a130");
}

TEST_F(MemoryTimer, ANewPeriodLeavesAStoppedTimerStopped)
{
    CTicker a(m_System, m_Log, "a", 100);
    a.Timer().SetPeriod(50);
    m_System.Advance(200);
    EXPECT_EQ(m_Log, "");
    a.Start();
    m_System.Advance(50);
    EXPECT_EQ(m_Log, "a250");
}

TEST_F(MemoryTimer, APeriodBelowOneCountsAsOne)
{
    CTicker a(m_System, m_Log, "a", 0);
    a.Start();
    m_System.Advance(2);
    EXPECT_EQ(m_Log, "a1 a2");
    a.Timer().SetPeriod(-5);
    m_System.Advance(1);
    EXPECT_EQ(m_Log, "a1 a2 a3");
}

TEST_F(MemoryTimer, ATickMayStopTheTimer)
{
    CTicker a(m_System, m_Log, "a", 10);
    a.m_Do = [&] { a.Stop(); };
    a.Start();
    m_System.Advance(100);
    EXPECT_EQ(m_Log, "a10");
    EXPECT_FALSE(a.Timer().IsRunning());
}

TEST_F(MemoryTimer, ATickMayRestartTheTimerWithAnotherPeriod)
{
    CTicker a(m_System, m_Log, "a", 10);
    a.m_Do = [&] { a.Timer().SetPeriod(40); };
    a.Start();
    m_System.Advance(100);
    EXPECT_EQ(m_Log, "a10 a50 a90");
}

TEST_F(MemoryTimer, ATickMayDropTheLastReferenceToItsTimer)
{
    CTicker a(m_System, m_Log, "a", 10);
    a.m_Do = [&] { a.Drop(); };
    a.Start();
    m_System.Advance(100);
    EXPECT_EQ(m_Log, "a10");
    EXPECT_THAT(CCensus::Look(), ::testing::IsEmpty());
}

TEST_F(MemoryTimer, ATickMayDeleteAnotherTimerThatIsDueAtTheSameMoment)
{
    CTicker a(m_System, m_Log, "a", 10);
    auto b = std::make_unique<CTicker>(m_System, m_Log, "b", 10);
    a.m_Do = [&] { b.reset(); };
    a.Start();
    b->Start();
    m_System.Advance(20);
    EXPECT_EQ(m_Log, "a10 a20");
}

TEST_F(MemoryTimer, ATimerStartedInATickFiresWithinTheSameAdvance)
{
    CTicker a(m_System, m_Log, "a", 10);
    CTicker b(m_System, m_Log, "b", 5);
    a.m_Do = [&] {
        b.Start();
        a.Stop();
    };
    a.Start();
    m_System.Advance(20);
    EXPECT_EQ(m_Log, "a10 b15 b20");
}

TEST_F(MemoryTimer, AnExceptionOfATickIsReportedAndTheTimerGoesOn)
{
    CTicker a(m_System, m_Log, "a", 10);
    a.m_Do = [] { throw std::runtime_error("tick failed"); };
    CExpectException twice("tick failed", 2);
    a.Start();
    m_System.Advance(20);
    EXPECT_EQ(m_Log, "a10 a20");
    EXPECT_EQ(twice.GetSeen(), 2);
}

TEST_F(MemoryTimer, ATimerOfASystemThatIsGoneNeverTicks)
{
    auto system = std::make_unique<CMemorySystem>();
    CTicker a(*system, m_Log, "a", 10);
    a.Start();
    system.reset();
    EXPECT_FALSE(a.Timer().IsRunning());
    a.Start();
    m_System.Advance(100);
    EXPECT_EQ(m_Log, "");
}

TEST_F(MemoryTimer, RunningPeriodsAreToldInTheOrderTheyFallDue)
{
    CTicker a(m_System, m_Log, "a", 100);
    CTicker b(m_System, m_Log, "b", 30);
    a.Start();
    b.Start();
    EXPECT_THAT(m_System.GetRunningPeriods(), ::testing::ElementsAre(30, 100));
    m_System.Advance(90);
    EXPECT_THAT(m_System.GetRunningPeriods(), ::testing::ElementsAre(100, 30));
}

// Background work --------------------------------------------------------------------------------------------------

class CWork : public IRunnable
{
public:
    explicit CWork(int rounds) : m_Rounds(rounds) {}
    bool Run() override
    {
        ++m_Ran;
        if (m_Do)
            m_Do();
        return m_Ran < m_Rounds;
    }

    int m_Ran = 0;
    std::function<void()> m_Do;

private:
    int m_Rounds;
};

class MemoryRunner : public ::testing::Test
{
protected:
    CMemorySystem& m_System = CTestHost::System();
};

TEST_F(MemoryRunner, WorkRunsOnlyWhenAskedToUntilItIsDone)
{
    CWork work(3);
    vexel_ptr<IRunner> const runner = m_System.GetRunner();
    runner->Run(&work);
    EXPECT_TRUE(runner->IsRunning());
    EXPECT_EQ(work.m_Ran, 0);
    EXPECT_EQ(m_System.StepBackground(), 1);
    EXPECT_EQ(work.m_Ran, 1);
    EXPECT_EQ(m_System.RunBackground(), 2);
    EXPECT_EQ(work.m_Ran, 3);
    EXPECT_FALSE(runner->IsRunning());
    EXPECT_EQ(m_System.RunBackground(), 0);
}

TEST_F(MemoryRunner, TheWaitPassesOnTheVirtualClockBeforeEachRoundTheFirstOneToo)
{
    CWork work(3);
    vexel_ptr<IRunner> const runner = m_System.GetRunner();
    runner->SetWait(50);
    runner->Run(&work);
    EXPECT_EQ(m_System.RunBackground(), 0);
    m_System.Advance(49);
    EXPECT_EQ(m_System.RunBackground(), 0);
    m_System.Advance(1);
    EXPECT_EQ(m_System.RunBackground(), 1);
    m_System.Advance(50);
    EXPECT_EQ(m_System.RunBackground(), 1);
    EXPECT_EQ(work.m_Ran, 2);
    runner->Stop();
}

TEST_F(MemoryRunner, AWaitSetInARoundHoldsForTheNextOne)
{
    CWork work(3);
    vexel_ptr<IRunner> const runner = m_System.GetRunner();
    work.m_Do = [&] { runner->SetWait(20); };
    runner->Run(&work);
    EXPECT_EQ(m_System.RunBackground(), 1);
    m_System.Advance(20);
    EXPECT_EQ(m_System.RunBackground(), 1);
    runner->Stop();
}

TEST_F(MemoryRunner, StopInARoundEndsTheLoop)
{
    CWork work(100);
    vexel_ptr<IRunner> const runner = m_System.GetRunner();
    work.m_Do = [&] { runner->Stop(); };
    runner->Run(&work);
    EXPECT_EQ(m_System.RunBackground(), 1);
    EXPECT_FALSE(runner->IsRunning());
}

TEST_F(MemoryRunner, ARunnerMayStopAndStartOtherWorkInARound)
{
    CWork first(100);
    CWork second(2);
    vexel_ptr<IRunner> const runner = m_System.GetRunner();
    first.m_Do = [&] {
        runner->Stop();
        runner->Run(&second);
    };
    runner->Run(&first);
    EXPECT_EQ(m_System.RunBackground(), 3);
    EXPECT_EQ(first.m_Ran, 1);
    EXPECT_EQ(second.m_Ran, 2);
}

TEST_F(MemoryRunner, SecondWorkIsNotTakenWhileTheFirstRuns)
{
    CWork first(2);
    CWork second(2);
    vexel_ptr<IRunner> const runner = m_System.GetRunner();
    runner->Run(&first);
    runner->Run(&second);
    m_System.RunBackground();
    EXPECT_EQ(first.m_Ran, 2);
    EXPECT_EQ(second.m_Ran, 0);
}

TEST_F(MemoryRunner, EachAskGivesARunnerOfItsOwn)
{
    CWork one(1);
    CWork other(1);
    vexel_ptr<IRunner> const a = m_System.GetRunner();
    vexel_ptr<IRunner> const b = m_System.GetRunner();
    a->Run(&one);
    EXPECT_FALSE(b->IsRunning());
    b->Run(&other);
    EXPECT_EQ(m_System.GetRunningRunners(), 2);
    EXPECT_EQ(m_System.RunBackground(), 2);
}

TEST_F(MemoryRunner, ARoundMayStopAnotherRunnerThatIsDue)
{
    CWork one(1);
    CWork other(1);
    vexel_ptr<IRunner> const a = m_System.GetRunner();
    vexel_ptr<IRunner> const b = m_System.GetRunner();
    one.m_Do = [&] { b->Stop(); };
    a->Run(&one);
    b->Run(&other);
    EXPECT_EQ(m_System.RunBackground(), 1);
    EXPECT_EQ(other.m_Ran, 0);
}

TEST_F(MemoryRunner, RunBackgroundStopsAtItsLimit)
{
    CWork work(1000000);
    vexel_ptr<IRunner> const runner = m_System.GetRunner();
    runner->Run(&work);
    EXPECT_EQ(m_System.RunBackground(7), 7);
    EXPECT_TRUE(runner->IsRunning());
    runner->Stop();
}

TEST_F(MemoryRunner, AnExceptionEndsTheWorkAndIsReported)
{
    CWork work(5);
    vexel_ptr<IRunner> const runner = m_System.GetRunner();
    work.m_Do = [] { throw std::runtime_error("work failed"); };
    CExpectException once("work failed");
    runner->Run(&work);
    EXPECT_EQ(m_System.RunBackground(), 1);
    EXPECT_FALSE(runner->IsRunning());
}

TEST_F(MemoryRunner, RealThreadsRunByThemselves)
{
    m_System.UseRealThreads(true);
    CWork work(3);
    vexel_ptr<IRunner> const runner = m_System.GetRunner();
    runner->Run(&work);
    while (runner->IsRunning())
        std::this_thread::yield();
    runner->Stop();
    EXPECT_EQ(work.m_Ran, 3);
    EXPECT_EQ(m_System.RunBackground(), 0);
}

// The machine ------------------------------------------------------------------------------------------------------

TEST(MemorySystem, MakesItselfTheCurrentSystemAndPutsTheFormerOneBack)
{
    ISystem* const before = GetCurrentSystem();
    {
        CMemorySystem system;
        EXPECT_EQ(GetCurrentSystem(), &system);
        {
            CMemorySystem inner;
            EXPECT_EQ(GetCurrentSystem(), &inner);
        }
        EXPECT_EQ(GetCurrentSystem(), &system);
    }
    EXPECT_EQ(GetCurrentSystem(), before);
}

TEST(MemorySystem, StartsWithScaleOneMetricsSixteenAndAFontOfSizeEight)
{
    CMemorySystem system;
    EXPECT_EQ(system.GetScale(), 1.0);
    EXPECT_EQ(system.GetSystemMetric(0), 16);
    EXPECT_EQ(system.GetSystemMetric(1), 16);
    EXPECT_EQ(system.GetSystemMetric(2), 0);
    EXPECT_EQ(system.GetSystemMetric(-1), 0);
    font const textFont = GetDefaultGUIFont();
    EXPECT_EQ(textFont.name, "Square");
    EXPECT_EQ(textFont.family, 1);
    EXPECT_EQ(textFont.size, 8);
    EXPECT_EQ(textFont.style, 0);
    EXPECT_EQ(textFont.rotation, 0);
    EXPECT_EQ(textFont.factor, 1.0);
    EXPECT_EQ(system.GetWorkArea({10, 10}), (rectangle<int>{0, 0, 4096, 4096}));
}

TEST(MemorySystem, TheScaleCanBeSetAndReadThroughTheFreeFunction)
{
    CMemorySystem system;
    system.SetScale(1.5);
    EXPECT_EQ(GetSystemScale(), 1.5);
    EXPECT_EQ(GetDefaultGUIFont().size, 8);
}

TEST(MemorySystem, TheClipboardKeepsText)
{
    CMemorySystem system;
    EXPECT_EQ(system.GetClipboard()->GetText(), "");
    system.GetClipboard()->SetText("kept");
    EXPECT_EQ(system.GetClipboard()->GetText(), "kept");
}

TEST(MemorySystem, PaletteColoursAreFixedUntilSet)
{
    CMemorySystem system;
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scFace), _color(0xFFC0C0C0));
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scHighlight), _color(0xFFC06030));  // 30 60 C0
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scLiteral), color_table[0]);
    system.GetMemoryPalette().SetColor(ISysPalette::scFace, color_table[6]);
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scFace), color_table[6]);
    system.Reset();
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scFace), _color(0xFFC0C0C0));
}

TEST(MemorySystem, ADarkThemeHasLightTextsAndGoesWithAReset)
{
    CMemorySystem system;
    system.GetMemoryPalette().SetDark();
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scWindow), _color(0xFF202020));
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scWindowText), _color(0xFFE8E8E8));
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scFace), _color(0xFF383838));
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scHighlight), _color(0xFFA05820));  // 20 58 A0
    system.Reset();
    EXPECT_EQ(GetSysPalette()->GetColor(ISysPalette::scWindow), _color(0xFFFFFFFF));
}

TEST(MemorySystem, PicturesStartWhiteAndMayBeEmpty)
{
    CMemorySystem system;
    vexel_ptr<IRasterPicture> const picture = system.CreateRasterPicture(size<int>{3, 2});
    EXPECT_EQ(PixelsToText(picture->GetPixels()), "...\n...\n");
    EXPECT_EQ(system.CreateRasterPicture(size<int>{0, 0})->GetSize(), (size<int>{0, 0}));
}

TEST(MemorySystem, APictureFromXpmHasWhiteWhereTheImageIsTransparent)
{
    static char const* lines[] = {"3 2 3 1", "  c None", "# c #000000", "r c #FF0000", "# r", " r "};
    CMemorySystem system;
    vexel_ptr<IRasterPicture> const picture = system.CreateRasterPicture(XPMBuf(lines, true));
    EXPECT_EQ(PixelsToText(picture->GetPixels()), "#.r\n.r.\n");
}

TEST(MemorySystem, LocksExcludeEachOther)
{
    CMemorySystem system;
    vexel_ptr<ILock> const lock = system.CreateLock();
    int shared = 0;
    auto const add = [&] {
        for (int i = 0; i < 1000; ++i)
        {
            lock->Acquire();
            ++shared;
            lock->Unlock();
        }
    };
    std::thread other(add);
    add();
    other.join();
    EXPECT_EQ(shared, 2000);
}

TEST(MemorySystem, CountsWhatLives)
{
    CMemorySystem system;
    auto const before = GetMemoryCounts();
    {
        vexel_ptr<ISysTimer> const timer = system.CreateTimer(10, 0);
        vexel_ptr<IRasterPicture> const picture = system.CreateRasterPicture(size<int>{1, 1});
        vexel_ptr<IRasterPicture> const copy = picture->Copy();
        vexel_ptr<IRunner> const runner = system.GetRunner();
        vexel_ptr<ILock> const lock = system.CreateLock();
        timer->SetRunning(true);
        EXPECT_EQ(GetMemoryCounts().timers, before.timers + 1);
        EXPECT_EQ(GetMemoryCounts().runningTimers, before.runningTimers + 1);
        EXPECT_EQ(GetMemoryCounts().pictures, before.pictures + 2);
        EXPECT_EQ(GetMemoryCounts().runners, before.runners + 1);
        EXPECT_EQ(GetMemoryCounts().locks, before.locks + 1);
    }
    EXPECT_EQ(GetMemoryCounts().timers, before.timers);
    EXPECT_EQ(GetMemoryCounts().pictures, before.pictures);
    EXPECT_EQ(GetMemoryCounts().runners, before.runners);
    EXPECT_EQ(GetMemoryCounts().locks, before.locks);
}

}  // namespace
}  // namespace vexel
