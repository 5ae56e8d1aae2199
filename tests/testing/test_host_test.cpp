#include "vexel/testing/test_host.h"

#include "tests/testing/event_control.h"
#include "tests/testing/lamp.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/signals/notify.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <sstream>

namespace vexel
{
namespace
{

using namespace vexel::test;

TEST(TestHost, AClickInTheBulbLightsItOnceAndRepaintsOnlyTheLamp)
{
    CTestHost host(100, 40);
    CLamp lamp(host.Root(), {20, 20}, alLeft);  // docked: (0, 0, 20, 39), bulb (0, 9, 20, 29)
    CLamp other(host.Root(), {20, 20}, alRight);
    CSignalLog log(lamp.m_SigLit, "lit");
    host.Paint();

    host.Mouse().Click(lamp, 10, 10);

    EXPECT_EQ(log.Text(), "lit(true)");
    PaintLog const paint = host.Paint();
    EXPECT_EQ(paint.Elements(), "CLamp");
    EXPECT_THAT(paint, Draws("SetBrush yellow").Then("RoundRect 0 9 20 29 20 20"));
}

TEST(TestHost, HasARootAControlAndAWindowWithoutFocus)
{
    CTestHost host(100, 40);
    EXPECT_EQ(host.Root(), host.Control().GetContent());
    EXPECT_EQ(host.Control().GetWindow(), &host.Window());
    EXPECT_EQ(host.Window().GetRect(), (rectangle<int>{0, 0, 100, 40}));
    EXPECT_FALSE(host.Window().HasFocus());
    EXPECT_EQ(GetCurrentSystem(), &CTestHost::System());
    host.Paint();
    EXPECT_EQ(Describe(host.Root()), "CContent");
}

TEST(TestHost, ScaleIsTheSystems)
{
    CTestHost host(100, 40, 1.5);
    EXPECT_EQ(GetSystemScale(), 1.5);
    CLamp lamp(host.Root(), {21, 20}, alLeft);
    host.Paint();
    EXPECT_EQ(lamp.GetPos().right, 31);  // 31.5 truncated
    host.SetScale(2.0);
    EXPECT_EQ(GetSystemScale(), 2.0);
}

TEST(TestHost, TheNextTestHasScaleOneAgain)
{
    CTestHost host(10, 10);
    EXPECT_EQ(GetSystemScale(), 1.0);
}

TEST(TestHost, TakesAControlOfTheTestsOwnMaking)
{
    class COwnControl : public CBaseControl
    {
    public:
        using CBaseControl::CBaseControl;
    };
    CTestHost host(30, 30, [](ISysWindow* window) { return std::make_unique<COwnControl>(window); });
    EXPECT_NE(dynamic_cast<COwnControl*>(&host.Control()), nullptr);
}

TEST(TestHost, HostsStandBesideEachOther)
{
    CTestHost first(100, 40);
    CTestHost second(100, 40);
    CTestHost third(100, 40);
    EXPECT_EQ(first.Window().GetScreenPos(), (point<int>{200, 100}));
    EXPECT_EQ(second.Window().GetScreenPos(), (point<int>{210, 190}));
    EXPECT_EQ(third.Window().GetScreenPos(), (point<int>{220, 280}));
}

// Frames and pixels ------------------------------------------------------------------------------------------------

TEST(TestHost, PaintsRealPixels)
{
    CTestHost host(8, 6);
    CLamp lamp(host.Root(), {3, 6}, alLeft);
    lamp.SetBkColor(color_table[4]);
    lamp.SetFgColor(color_table[1]);
    host.Paint();
    EXPECT_EQ(host.PixelText({4, 0, 8, 1}), "....\n");
    EXPECT_EQ(host.PixelText({0, 0, 4, 1}), "bbbb\n");  // edges included
    EXPECT_EQ(host.PixelAt(0, 0), color_table[4]);
    EXPECT_TRUE(host.PixelAt(8, 0).m_None);
}

TEST(TestHost, AFullPaintDrawsEverythingAnew)
{
    CTestHost host(100, 40);
    CLamp lamp(host.Root(), {20, 20}, alLeft);
    host.Paint();
    EXPECT_FALSE(host.IsFramePending());
    PaintLog const paint = host.FullPaint();
    EXPECT_EQ(paint.Elements(), "CContent CLamp");
    EXPECT_EQ(paint.GetFrames(), 1);
}

TEST(TestHost, ComparesWhatWasPaintedByPartsWithAFullPaint)
{
    CTestHost host(30, 10);
    CLamp lamp(host.Root(), {10, 10}, alLeft);
    lamp.SetBkColor(color_table[4]);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
    lamp.SetLit(true);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
    host.Window().GetPixels().Row(1)[2] = 0xFF00FF00u;  // as if a pixel had been forgotten
    EXPECT_THAT(host.CompareWithFullPaint(), ::testing::StartsWith("first difference at (2, 1): "));
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST(TestHost, ANewSizeLaysOutAndPaintsEverything)
{
    CTestHost host(100, 40);
    CLamp lamp(host.Root(), {20, 20}, alLeft);
    host.Paint();
    host.Resize(60, 30);
    EXPECT_TRUE(host.IsFramePending());
    EXPECT_EQ(host.Paint().Elements(), "CContent CLamp");
    EXPECT_EQ(lamp.GetPos(), (rectangle<int>{0, 0, 20, 29}));
    EXPECT_EQ(host.Pixels().GetSize(), (size<int>{60, 30}));
}

TEST(TestHost, SavesItsPixelsAsAPngFile)
{
    CTestHost host(3, 2);
    host.Paint();
    std::string const path = ::testing::TempDir() + "vexel_test_host.png";
    host.SavePng(path);
    std::ifstream file(path, std::ios::binary);
    std::stringstream content;
    content << file.rdbuf();
    std::remove(path.c_str());
    // Signature 8, header 25, data 12 + 2 + 5 + 2 * 10 + 4, end 12.
    EXPECT_EQ(content.str().size(), 88u);
    EXPECT_EQ(content.str().substr(1, 3), "PNG");
}

// Queue, background, time ------------------------------------------------------------------------------------------

class CPost : public IRunnable
{
public:
    CPost(ISynchronizer& target, int left, CSignalLog& log) : m_Target(target), m_Left(left), m_Log(log) {}
    bool Run() override
    {
        m_Log.Note("run" + std::to_string(m_Left));
        if (m_Left != 0)
            m_Target.Post(new CPost(m_Target, m_Left - 1, m_Log));
        return false;
    }

private:
    ISynchronizer& m_Target;
    int m_Left;
    CSignalLog& m_Log;
};

TEST(TestHost, RunPendingRunsWhatIsPostedUntilNothingIsLeft)
{
    CTestHost host(10, 10);
    CSignalLog log;
    host.Window().Post(new CPost(host.Window(), 2, log));
    host.Paint();
    EXPECT_EQ(host.Pending(), "1 posted");
    EXPECT_EQ(host.RunPending(), 3);
    EXPECT_EQ(log.Text(), "run2 run1 run0");
    EXPECT_EQ(host.RunPending(), 0);
}

class TestHostFailures : public ::testing::Test
{
protected:
    TestHostFailures()
    {
        s_Failures.clear();
        m_Before = SetFailureReporter([](std::string const& message) { s_Failures.push_back(message); });
    }
    ~TestHostFailures() override { SetFailureReporter(m_Before); }

    static std::vector<std::string> s_Failures;
    FailureReporter m_Before;
};

std::vector<std::string> TestHostFailures::s_Failures;

TEST_F(TestHostFailures, PostedWorkWithoutAnEndFailsTheTest)
{
    CTestHost host(10, 10);
    CSignalLog log;
    host.Window().Post(new CPost(host.Window(), -1, log));
    host.RunPending();
    EXPECT_THAT(s_Failures, ::testing::ElementsAre(::testing::HasSubstr("without an end")));
    host.Window().DropPosted();
}

class CEndless : public IRunnable
{
public:
    bool Run() override { return ++m_Ran, true; }
    int m_Ran = 0;
};

TEST_F(TestHostFailures, BackgroundWorkWithoutAnEndFailsTheTest)
{
    CTestHost host(10, 10);
    CEndless work;
    vexel_ptr<IRunner> const runner = CTestHost::System().GetRunner();
    runner->Run(&work);
    host.RunBackground();
    EXPECT_THAT(s_Failures, ::testing::ElementsAre(::testing::HasSubstr("without an end")));
    runner->Stop();
}

TEST_F(TestHostFailures, APictureThatCantBeWrittenFailsTheTest)
{
    CTestHost host(10, 10);
    host.SavePng(::testing::TempDir() + "no such folder/picture.png");
    EXPECT_THAT(s_Failures, ::testing::ElementsAre(::testing::HasSubstr("can't write")));
}

TEST(TestHost, BackgroundWorkRunsByHandAndWaitsOnTheClock)
{
    CTestHost host(10, 10);
    CEndless work;
    vexel_ptr<IRunner> const runner = CTestHost::System().GetRunner();
    runner->SetWait(30);
    runner->Run(&work);
    EXPECT_EQ(host.RunBackground(), 0);
    host.Clock().Advance(30);
    EXPECT_EQ(host.Clock().Now(), 30);
    EXPECT_EQ(host.RunBackground(), 1);
    host.Clock().Advance(30);
    EXPECT_EQ(host.StepBackground(), 1);
    EXPECT_EQ(work.m_Ran, 2);
    runner->Stop();
}

TEST(TestHost, SaysWhatIsPending)
{
    CTestHost host(10, 10);
    EXPECT_EQ(host.Pending(), "frame");
    host.Paint();
    EXPECT_EQ(host.Pending(), "");
    CEndless work;
    vexel_ptr<IRunner> const runner = CTestHost::System().GetRunner();
    runner->Run(&work);
    vexel_ptr<ISysTimer> const timer = CTestHost::System().CreateTimer(100, 0);
    timer->SetRunning(true);
    EXPECT_EQ(host.Clock().GetRunningTimers(), 1);
    host.Root()->Update(utElement);
    EXPECT_EQ(host.Pending(), "frame, timer 100, runner");
    runner->Stop();
}

// The desktop ------------------------------------------------------------------------------------------------------

TEST(TestHost, TheWindowGetsAndLosesTheFocus)
{
    CTestHost host(10, 10);
    CSignalLog log(host.Control().m_SigGetFocus, "focus");
    log.Add(host.Control().m_SigLostFocus, "blur");
    host.Focus();
    EXPECT_TRUE(host.Window().HasFocus());
    host.Focus();
    host.Unfocus();
    EXPECT_FALSE(host.Window().HasFocus());
    EXPECT_EQ(log.Text(), "focus() blur()");
}

TEST(TestHost, TabbingInGivesTheFocusToTheFirstOrTheLastElement)
{
    CTestHost host(100, 40);
    CLamp first(host.Root(), {20, 20}, alLeft);
    CLamp last(host.Root(), {20, 20}, alLeft);
    first.SetCanHaveFocus(true);
    last.SetCanHaveFocus(true);
    host.Paint();
    host.TabInto(false);
    EXPECT_EQ(host.Control().GetFocusedElement(), &last);
    host.Unfocus();
    host.TabInto();
    EXPECT_EQ(host.Control().GetFocusedElement(), &first);
}

TEST(TestHost, AsksForTheTipOfTheElementUnderThePointer)
{
    CTestHost host(100, 40);
    CLamp lamp(host.Root(), {20, 20}, alRight);
    lamp.SetTooltip("A lamp");
    host.Paint();
    EXPECT_EQ(host.Tooltip(lamp, 5, 5), "A lamp");
    EXPECT_TRUE(host.Window().GetTooltip().shown);
    EXPECT_EQ(host.Window().GetTooltip().hotRect, (rectangle<int>{79, 0, 99, 39}));
    EXPECT_EQ(host.Tooltip(5, 5), "");
    EXPECT_FALSE(host.Window().GetTooltip().shown);
}

TEST(TestHost, AsksForTheContextMenuOfTheElementUnderThePointer)
{
    CTestHost host(100, 40);
    CLamp lamp(host.Root(), {20, 20}, alRight);
    CSignalLog log(lamp.m_SigContextMenu, "menu");
    host.Paint();
    host.ContextMenu(lamp, 3, 4);
    host.ContextMenu(3, 4);
    EXPECT_EQ(log.Text(), "menu(3, 4)");
}

TEST(TestHost, TellsThatTheColoursHaveChanged)
{
    CTestHost host(100, 40);
    CSignalLog log(host.Control().m_SigSysColorChanged, "colors");
    host.SysColorChange();
    EXPECT_EQ(log.Text(), "colors()");
}

TEST(TestHost, TheControlOutlivesItsWindow)
{
    CTestHost host(100, 40);
    CLamp lamp(host.Root(), {20, 20}, alLeft);
    CSignalLog log(host.Control().m_SigDestroyed, "destroyed");
    log.Add(lamp.m_SigControlDestroy, "control");
    host.Paint();
    host.DestroyWindow();
    EXPECT_FALSE(host.HasWindow());
    EXPECT_EQ(host.Control().GetWindow(), nullptr);
    EXPECT_EQ(log.Text(), "destroyed() control()");
    // The user does not notice.
    host.Mouse().Click(lamp, 3, 3);
    host.Keyboard().Press('A');
    EXPECT_TRUE(host.Paint().IsEmpty());
    host.Focus();
    host.Resize(3, 3);
    EXPECT_EQ(host.Tooltip(1, 1), "");
}

TEST(TestHost, TheControlMayGoBeforeItsWindow)
{
    CTestHost host(100, 40);
    host.Paint();
    host.DestroyControl();
    EXPECT_FALSE(host.HasControl());
    host.Mouse().Click(3, 3);
    EXPECT_EQ(host.Window().GetEventTarget(), nullptr);
}

} // namespace
} // namespace vexel
