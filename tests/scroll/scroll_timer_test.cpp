// Scrolling an axis on a timer, faster and faster; and the filler between two bars.

#include "tests/scroll/scroll_support.h"
#include "vexel/core/base_control.h"
#include "vexel/scroll/scroll_corner.h"
#include "vexel/scroll/scroll_timer.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>

using namespace vexel;
using namespace vexel::test;
using namespace scroll_test;

namespace
{

class CAxisLike : public CScrollableElementEx
{
public:
    using CScrollableElementEx::CScrollableElementEx;
    int m_Updates = 0;
    void UpdateElement() override { ++m_Updates; }
};

// An axis at the top of a window of 200 x 100: 199 long. The model is in pixels, from 0 to 1000, at 500.
class ScrollTimer : public testing::Test
{
protected:
    ScrollTimer()
    {
        m_Axis->SetHorzScroll(&m_Model);
        m_Host.Paint();
    }
    // The starts that so many ticks set.
    std::string Ticks(int count)
    {
        m_Model.m_Calls.Take();
        m_Host.Clock().Advance(count * 100);
        return m_Model.m_Calls.Take();
    }

    CTestHost m_Host{200, 100};
    CAxisLike* m_Axis = new CAxisLike(m_Host.Root(), {20, 20}, alTop);
    CTestModel m_Model{0, 1000, 500};
    CScrollTimer m_Timer{m_Axis, 100, 4, 32, 4, 2};
};

TEST_F(ScrollTimer, StandsStillAtFirst)
{
    EXPECT_FALSE(m_Timer.IsRunning());
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
    EXPECT_EQ(Ticks(5), "");
}

TEST_F(ScrollTimer, GoesFasterEverySecondTick)
{
    EXPECT_TRUE(m_Timer.Start(true));
    EXPECT_TRUE(m_Timer.IsRunning());
    EXPECT_EQ(Describe(CTestHost::System().GetRunningPeriods()), "[100]");
    EXPECT_EQ(Ticks(6), "start(504) start(508) start(516) start(524) start(536) start(548)");
}

TEST_F(ScrollTimer, GoesNoFasterThanItsLargestStep)
{
    m_Model.m_Start = 0;
    m_Timer.Start(true);
    Ticks(14);  // twice each of 4, 8, 12, 16, 20, 24, 28
    EXPECT_EQ(m_Model.m_Start, 224.0);
    EXPECT_EQ(Ticks(4), "start(256) start(288) start(320) start(352)");
}

TEST_F(ScrollTimer, TheLargestStepCutsTheLastIncrement)
{
    CScrollTimer timer(m_Axis, 50, 1, 6, 4, 1);
    timer.Start(true);
    m_Host.Clock().Advance(250);
    EXPECT_EQ(m_Model.m_Calls.Take(), "start(501) start(506) start(512) start(518) start(524)");
}

TEST_F(ScrollTimer, AFirstStepAboveTheLargestStays)
{
    CScrollTimer timer(m_Axis, 100, 40, 32, 4, 1);
    timer.Start(true);
    EXPECT_EQ(Ticks(3), "start(540) start(580) start(620)");
}

TEST_F(ScrollTimer, BackwardItGoesTheSameWay)
{
    EXPECT_TRUE(m_Timer.Start(false));
    EXPECT_EQ(Ticks(3), "start(496) start(492) start(484)");
}

TEST_F(ScrollTimer, StepsArePixelsWhateverTheUnit)
{
    m_Model.m_Measure = {2.0, 1};  // 2 units a pixel
    m_Model.m_Start = 501;         // 250.5 pixels
    m_Timer.Start(true);
    EXPECT_EQ(Ticks(2), "start(508) start(516)");
}

TEST_F(ScrollTimer, ForwardItEndsWhereTheRangeStillFillsTheElement)
{
    m_Model.m_Start = 795;
    m_Timer.Start(true);
    EXPECT_EQ(Ticks(1), "start(799)");
    EXPECT_TRUE(m_Timer.IsRunning());
    EXPECT_EQ(Ticks(3), "start(801)");  // 1000 - 199
    EXPECT_FALSE(m_Timer.IsRunning());
}

TEST_F(ScrollTimer, OntoTheEndItDoesNotStopYet)
{
    m_Model.m_Start = 797;
    m_Timer.Start(true);
    EXPECT_EQ(Ticks(1), "start(801)");
    EXPECT_TRUE(m_Timer.IsRunning());
    EXPECT_EQ(Ticks(1), "start(801)");
    EXPECT_FALSE(m_Timer.IsRunning());
}

TEST_F(ScrollTimer, BackwardItEndsAtTheBeginning)
{
    m_Model.m_From = 100;
    m_Model.m_Start = 105;
    m_Timer.Start(false);
    EXPECT_EQ(Ticks(1), "start(101)");
    EXPECT_TRUE(m_Timer.IsRunning());
    EXPECT_EQ(Ticks(1), "start(100)");
    EXPECT_FALSE(m_Timer.IsRunning());
}

TEST_F(ScrollTimer, BackwardOntoTheBeginningItDoesNotStopYet)
{
    m_Model.m_Start = 4;
    m_Timer.Start(false);
    EXPECT_EQ(Ticks(1), "start(0)");
    EXPECT_TRUE(m_Timer.IsRunning());
}

TEST_F(ScrollTimer, OnAnUprightAxisTheHeightCounts)
{
    CTestModel model(0, 1000, 915);
    auto* const axis = new CAxisLike(m_Host.Root(), {20, 20}, alLeft);
    axis->SetVertScroll(&model);
    m_Host.Paint();  // from 21 to 99: 78 long
    CScrollTimer timer(axis, 100, 10, 10, 0, 1);
    EXPECT_TRUE(timer.Start(true));
    m_Host.Clock().Advance(300);
    EXPECT_EQ(model.m_Calls.Take(), "start(922)");
}

TEST_F(ScrollTimer, AStartDuringARunOnlyTurnsIt)
{
    m_Timer.Start(true);
    Ticks(3);  // 504 508 516, and one tick of the second speed is done
    EXPECT_TRUE(m_Timer.Start(false));
    EXPECT_EQ(Ticks(2), "start(508) start(496)");
    m_Host.Clock().Advance(50);
    m_Timer.Start(true);  // nor does the wait begin anew
    m_Model.m_Calls.Take();
    m_Host.Clock().Advance(50);
    EXPECT_EQ(m_Model.m_Calls.Take(), "start(508)");
}

TEST_F(ScrollTimer, AStartAfterAStopBeginsSlowlyAgain)
{
    m_Timer.Start(true);
    Ticks(3);
    m_Timer.Stop();
    EXPECT_FALSE(m_Timer.IsRunning());
    EXPECT_EQ(Ticks(3), "");
    m_Timer.Start(true);
    EXPECT_EQ(Ticks(3), "start(520) start(524) start(532)");
}

TEST_F(ScrollTimer, EachTickUpdatesTheWholeControlAndTells)
{
    CSignalLog log(m_Timer.m_SigTimerTick, "tick");
    m_Timer.Start(true);
    m_Axis->m_Updates = 0;
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Host.Clock().Advance(100);
    m_Host.Paint();
    EXPECT_EQ(m_Axis->m_Updates, 1);
    EXPECT_EQ(log.Take(), "tick()");
    m_Host.Clock().Advance(200);
    EXPECT_EQ(log.Take(), "tick() tick()");
}

TEST_F(ScrollTimer, TheLastTickIsToldToo)
{
    CSignalLog log(m_Timer.m_SigTimerTick, "tick");
    m_Model.m_Start = 800;
    m_Timer.Start(true);
    m_Host.Clock().Advance(500);
    EXPECT_EQ(log.Take(), "tick()");
}

TEST_F(ScrollTimer, WithoutAnElementOrAModelItDoesNotStart)
{
    CScrollTimer none(nullptr, 100, 4, 32, 4, 2);
    EXPECT_FALSE(none.Start(true));
    EXPECT_FALSE(none.IsRunning());
    m_Axis->SetHorzScroll(nullptr);
    EXPECT_FALSE(m_Timer.Start(true));
    EXPECT_FALSE(m_Timer.IsRunning());
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
}

TEST_F(ScrollTimer, ATickWithoutAModelTellsNobody)
{
    CSignalLog log(m_Timer.m_SigTimerTick, "tick");
    m_Timer.Start(true);
    m_Axis->SetHorzScroll(nullptr);
    m_Host.Clock().Advance(300);
    EXPECT_EQ(log.Take(), "");
    delete m_Axis;
    m_Host.Clock().Advance(300);
    EXPECT_EQ(log.Take(), "");
    EXPECT_FALSE(m_Timer.Start(true));
}

TEST_F(ScrollTimer, MayBeDeletedInItsTick)
{
    class CDeleter : public subscriber_base_t
    {
    public:
        void Tick(CScrollTimer* timer)
        {
            EXPECT_EQ(timer, m_Timer.get());
            m_Timer.reset();
        }
        std::unique_ptr<CScrollTimer> m_Timer;
    };
    CDeleter deleter;
    deleter.m_Timer = std::make_unique<CScrollTimer>(m_Axis, 100, 4, 32, 4, 2);
    deleter.m_Timer->m_SigTimerTick.connect(&deleter, &CDeleter::Tick);
    deleter.m_Timer->Start(true);
    m_Host.Clock().Advance(300);
    EXPECT_EQ(deleter.m_Timer, nullptr);
    EXPECT_EQ(m_Model.m_Calls.Take(), "start(504)");
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
}

TEST_F(ScrollTimer, TimerAndElementMayDieWhenTheModelMoves)
{
    auto timer = std::make_unique<CScrollTimer>(m_Axis, 100, 4, 32, 4, 2);
    timer->Start(true);
    m_Model.m_OnSetStart = [&] { timer.reset(); };
    m_Host.Clock().Advance(300);
    EXPECT_EQ(timer, nullptr);

    CSignalLog log(m_Timer.m_SigTimerTick, "tick");
    m_Timer.Start(true);
    m_Model.m_OnSetStart = [&] { delete std::exchange(m_Axis, nullptr); };
    m_Host.Clock().Advance(300);
    EXPECT_EQ(m_Axis, nullptr);
    EXPECT_FALSE(m_Timer.Start(true));
}

TEST_F(ScrollTimer, LeavesNoTimerBehind)
{
    int const before = vexelbase::memory::GetMemoryCounts().timers;
    {
        CScrollTimer timer(m_Axis, 100, 4, 32, 4, 2);
        timer.Start(true);
    }
    EXPECT_EQ(vexelbase::memory::GetMemoryCounts().timers, before);
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
}

// The corner ---------------------------------------------------------------------------------------------------------------

TEST(ScrollCorner, FillsItselfWithItsBackground)
{
    CTestHost host(60, 40);
    auto* const corner = new CScrollCorner(host.Root(), {16, 10}, alNone);
    corner->SetPos({10, 5, 26, 15}, false);
    corner->SetBkColor(color_table[5]);
    PaintLog const paint = host.FullPaint();
    EXPECT_THAT(paint.Of("CScrollCorner"), Draws("SetBrush magenta").Then("FillRect 0 0 16 10"));
    EXPECT_EQ(host.PixelAt(26, 15), color_table[5]);
    EXPECT_EQ(corner->GetSize(), (size<int>{16, 10}));
}

}  // namespace
