// How the column of messages follows its end, and when it doesn't.

#include "tests/support/slot.h"
#include "tests/widgets/log_lines.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/memory/memory_scroll_bar.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/event_log.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

using Rect = rectangle<int>;

namespace
{

// All logs go to their end later, as long as it lives.
class CAsync
{
public:
    CAsync() { CEventLog::UseAsyncAutoScroll(true); }
    ~CAsync() { CEventLog::UseAsyncAutoScroll(false); }
};

// Twenty lines in a view 200 wide and 59 high: the log is 292 high, so that its end shows from 234 on. Each further line
// adds 13.
class EventLogScroll : public testing::Test
{
protected:
    EventLogScroll()
    {
        NameElement(m_Log, "log");
        m_Container->SetScrolled(&m_Log);
        m_Log.SetModel(&m_Lines);
        m_Host.Paint();
    }
    int Start() const { return -m_Log.GetPos().top; }
    void ScrollTo(int start)
    {
        m_Container->GetCentralPart().SetVertStart(start);
        m_Host.Paint();
        ASSERT_EQ(Start(), start);
    }
    void Press(int key, int keys = 0)
    {
        m_Host.Focus();
        m_Log.SetFocus(true);
        m_Host.Keyboard().Press(key, keys);
        m_Host.Paint();
    }

    CLogLines m_Lines{20};
    CTestHost m_Host{200, 60};
    CScrollContainer* m_Container = new CScrollContainer(m_Host.Root(), {10, 10}, alClient);
    CEventLog& m_Log = *new CEventLog(nullptr, {50, 10}, alNone);
};

}  // namespace

// Without automatic scrolling -----------------------------------------------------------------------------------------------

TEST_F(EventLogScroll, StaysWhereItIsUnlessItIsToldToFollow)
{
    ScrollTo(234);
    m_Lines.Append("x");
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetPos(), (Rect{0, -234, 50, 71}));
    ScrollTo(0);
    m_Lines.Append("x");
    m_Host.Paint();
    EXPECT_EQ(Start(), 0);
    EXPECT_FALSE(m_Log.IsScrollPending());
}

TEST_F(EventLogScroll, ItsEndIsOneBelowItsLastPixel)
{
    m_Log.GotoEnd();
    EXPECT_EQ(Start(), 234);  // 292 + 1 - 59
    m_Host.Paint();
    EXPECT_EQ(Start(), 234);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// At once -------------------------------------------------------------------------------------------------------------------

TEST_F(EventLogScroll, FollowsItsEndAtOnce)
{
    m_Log.SetAutoScroll(true);
    EXPECT_TRUE(m_Log.IsAutoScroll());
    ScrollTo(234);
    m_Lines.Append("x");
    EXPECT_EQ(m_Log.GetPos(), (Rect{0, -247, 50, 58})) << "laid out already";
    EXPECT_FALSE(m_Log.IsScrollPending());
    m_Host.Paint();
    EXPECT_EQ(Start(), 247);
    m_Lines.AppendNumbers(10);
    EXPECT_EQ(Start(), 377);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLogScroll, FromFivePixelsAboveItsEndItFollowsStill)
{
    m_Log.SetAutoScroll(true);
    ScrollTo(228);  // 228 + 59 + 5 is its bottom
    m_Lines.Append("x");
    m_Host.Paint();
    EXPECT_EQ(Start(), 247);
}

TEST_F(EventLogScroll, AUserWhoHasScrolledUpByMoreIsNotPulledBack)
{
    m_Log.SetAutoScroll(true);
    ScrollTo(227);
    m_Lines.Append("x");
    m_Host.Paint();
    EXPECT_EQ(Start(), 227);
    m_Lines.AppendNumbers(50);
    m_Host.Paint();
    EXPECT_EQ(Start(), 227);
    ScrollTo(0);
    m_Lines.Append("x");
    m_Host.Paint();
    EXPECT_EQ(Start(), 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLogScroll, AUserWhoComesBackToTheEndIsTakenAlongAgain)
{
    m_Log.SetAutoScroll(true);
    ScrollTo(100);
    m_Lines.Append("x");
    m_Host.Paint();
    ScrollTo(247);
    m_Lines.Append("y");
    m_Host.Paint();
    EXPECT_EQ(Start(), 260);
}

TEST_F(EventLogScroll, ALogThatFillsItsViewForTheFirstTimeFollows)
{
    CLogLines lines(1);
    m_Log.SetModel(&lines);
    m_Log.SetAutoScroll(true);
    m_Host.Paint();
    EXPECT_EQ(Start(), 0);
    EXPECT_EQ(m_Log.GetPos().bottom, 45);
    lines.Append("x");
    m_Host.Paint();
    EXPECT_EQ(Start(), 0);  // 58
    lines.Append("y");
    m_Host.Paint();
    EXPECT_EQ(Start(), 13);  // 71 + 1 - 59
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Log.SetModel(&m_Lines);
}

TEST_F(EventLogScroll, FollowsANewBoxBelowToo)
{
    m_Log.SetAutoScroll(true);
    ScrollTo(234);
    auto* const box = new CVisualElement(&m_Log, {10, 20}, alTop);
    m_Host.Paint();
    EXPECT_EQ(Start(), 255);
    box->SetHeight(30, false);
    m_Host.Paint();
    EXPECT_EQ(Start(), 265);
    box->SetVisible(false);
    m_Host.Paint();
    EXPECT_EQ(Start(), 234);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLogScroll, FollowsToTheEndWhenLinesAreTakenAway)
{
    m_Log.SetAutoScroll(true);
    ScrollTo(234);
    m_Lines.Shrink(10);
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize().height, 162);
    EXPECT_EQ(Start(), 104);
    m_Lines.Shrink(0);
    m_Host.Paint();
    m_Lines.AppendNumbers(5);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLogScroll, AWiderLineFollowsAllTheSame)
{
    m_Log.SetAutoScroll(true);
    ScrollTo(234);
    m_Lines.Append("a line that makes it wider");
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize().width, 229);
    EXPECT_EQ(Start(), 264) << "the lower bar takes 17";  // 305 + 1 - 42
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLogScroll, AHiddenLogKeepsItsPlace)
{
    m_Log.SetAutoScroll(true);
    ScrollTo(100);
    m_Container->SetVisible(false);
    m_Lines.Append("x");
    m_Container->SetVisible(true);
    m_Host.Paint();
    EXPECT_EQ(Start(), 100);
    EXPECT_EQ(m_Log.GetPos().Height(), 305);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// Later ---------------------------------------------------------------------------------------------------------------------

TEST_F(EventLogScroll, GoesToItsEndWithTheNextLayoutIfItIsToldSo)
{
    CAsync const async;
    EXPECT_TRUE(CEventLog::s_UseAsyncAutoScroll);
    m_Log.SetAutoScroll(true);
    ScrollTo(234);
    m_Lines.Append("x");
    EXPECT_EQ(Start(), 234);
    EXPECT_TRUE(m_Log.IsScrollPending());
    m_Lines.Append("y");
    EXPECT_EQ(Start(), 234);
    EXPECT_TRUE(m_Log.IsScrollPending());
    m_Host.Paint();
    EXPECT_EQ(Start(), 260);
    EXPECT_FALSE(m_Log.IsScrollPending());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLogScroll, TheNextPlaceItGetsTakesItToItsEnd)
{
    CAsync const async;
    m_Log.SetAutoScroll(true);
    ScrollTo(234);
    m_Lines.Append("x");
    m_Log.SetPos({0, -200, 50, 105}, false);
    EXPECT_FALSE(m_Log.IsScrollPending());
    EXPECT_EQ(m_Log.GetPos(), (Rect{0, -247, 50, 58}));
    m_Log.SetPos({0, -200, 50, 105}, false);
    EXPECT_EQ(Start(), 200) << "once";
}

TEST_F(EventLogScroll, LaterOrAtOnceAUserWhoHasScrolledUpIsNotPulledBack)
{
    CAsync const async;
    m_Log.SetAutoScroll(true);
    ScrollTo(227);
    m_Lines.Append("x");
    EXPECT_FALSE(m_Log.IsScrollPending());
    m_Host.Paint();
    EXPECT_EQ(Start(), 227);
    ScrollTo(241);  // 247 - 6
    m_Lines.Append("x");
    EXPECT_TRUE(m_Log.IsScrollPending());
    m_Host.Paint();
    EXPECT_EQ(Start(), 260);
}

TEST_F(EventLogScroll, NothingIsPendingWithoutAutomaticScrolling)
{
    CAsync const async;
    ScrollTo(234);
    m_Lines.Append("x");
    EXPECT_FALSE(m_Log.IsScrollPending());
    m_Host.Paint();
    EXPECT_EQ(Start(), 234);
}

TEST_F(EventLogScroll, WhatIsPendingIsDoneWhicheverModeThereIsByThen)
{
    {
        CAsync const async;
        m_Log.SetAutoScroll(true);
        ScrollTo(234);
        m_Lines.Append("x");
    }
    m_Log.SetAutoScroll(false);
    m_Host.Paint();
    EXPECT_EQ(Start(), 247);
}

// By hand -------------------------------------------------------------------------------------------------------------------

TEST_F(EventLogScroll, KeysMoveItAndItFollowsAgainFromItsEnd)
{
    m_Log.SetAutoScroll(true);
    Press(vkEnd, ksControl);
    EXPECT_EQ(Start(), 234);
    Press(vkUp);
    EXPECT_EQ(Start(), 224);
    m_Lines.Append("x");
    m_Host.Paint();
    EXPECT_EQ(Start(), 224);
    Press(vkPageUp);
    EXPECT_EQ(Start(), 165);
    Press(vkHome, ksControl);
    EXPECT_EQ(Start(), 0);
    Press(vkEnd, ksControl);
    EXPECT_EQ(Start(), 247);
    m_Lines.Append("y");
    m_Host.Paint();
    EXPECT_EQ(Start(), 260);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLogScroll, TheWheelMovesItALineOfText)
{
    m_Host.Mouse().Wheel(m_Log, 30, 20, -3);
    m_Host.Paint();
    EXPECT_EQ(Start(), 24);
    m_Host.Mouse().Wheel(m_Log, 30, 60, 1);
    m_Host.Paint();
    EXPECT_EQ(Start(), 16);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLogScroll, TheBarKnowsHowHighItIs)
{
    auto const bar = [&] {
        auto* const first = m_Host.Native<vexelbase::memory::CMemoryScrollBar>();
        auto& found = first->IsVertical() ? *first : *m_Host.Native<vexelbase::memory::CMemoryScrollBar>(1);
        SScrollBarInfo info;
        found.GetInfo(info);
        return Describe(info.position) + " of " + Describe(info.maximum);
    };
    EXPECT_EQ(bar(), "0 of 293");
    m_Log.SetAutoScroll(true);
    ScrollTo(234);
    m_Lines.Append("x");
    m_Host.Paint();
    EXPECT_EQ(bar(), "247 of 306");
}

// In a view that isn't a container ------------------------------------------------------------------------------------------

TEST_F(EventLogScroll, UnderASmallerParentItGoesUpByWhatItAsksForBelowIt)
{
    auto& pane = *new CVisualElement(m_Host.Root(), {10, 10}, alNone);
    pane.SetPos({20, 5, 119, 54}, false);
    auto& log = *new CEventLog(&pane, {50, 10}, alNone);
    CLogLines lines(20);
    log.SetPos({0, 0, 50, 292}, false);
    log.SetModel(&lines);
    EXPECT_EQ(log.GetSize().height, 292);
    log.SetAutoScroll(true);
    log.GotoEnd();
    EXPECT_EQ(log.GetPos(), (Rect{0, -244, 50, 48}));  // 292 + 1 - 49
    lines.Append("x");
    EXPECT_EQ(log.GetSize().height, 305);
    int const start = -log.GetPos().top;
    EXPECT_GE(start, 257);
    log.SetPos({0, -100, 50, 205}, false);
    lines.Append("x");
    EXPECT_EQ(log.GetPos().top, -100);
    log.SetModel(nullptr);
}

TEST_F(EventLogScroll, WhereNothingOfItShowsThereIsNoEndToFollow)
{
    auto& pane = *new CVisualElement(m_Host.Root(), {10, 10}, alNone);
    auto& log = *new CEventLog(&pane, {50, 10}, alNone);
    CLogLines lines(20);
    log.SetPos({0, 0, 50, 292}, false);
    log.SetAutoScroll(true);
    log.SetModel(&lines);
    log.SetPos({0, -290, 50, 2}, false);
    lines.Append("x");  // the pane has no extent
    EXPECT_EQ(log.GetPos().top, -290);
    log.SetModel(nullptr);
}

TEST_F(EventLogScroll, ALogWithoutAParentTakesLines)
{
    CEventLog log(nullptr, {50, 10}, alTop);
    log.SetAutoScroll(true);
    CLogLines lines(20);
    log.SetModel(&lines);
    lines.Append("x");
    EXPECT_EQ(log.GetPos(), (Rect{0, 0, 0, 0}));
    EXPECT_FALSE(log.IsScrollPending());
    log.SetPos({0, -5, 50, 40}, true);
    EXPECT_EQ(log.GetPos().top, -5);
}
