// A box around a scrolled pane: its bars, how moves get through it, and whom it connects.

#include "tests/scroll/scroll_box_support.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/signal_log.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using namespace scroll_test;

namespace
{

using ScrollBox = CBoxBench;

// Bars -------------------------------------------------------------------------------------------------------------------

TEST_F(ScrollBox, APaneThatFitsShowsNoBarsAndNoCorner)
{
    Connect(100, 50);
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 199, 99}));
    EXPECT_FALSE(Vert()->IsVisible());
    EXPECT_FALSE(Horz()->IsVisible());
}

TEST_F(ScrollBox, ARangeThatJustFitsShowsNoBar)
{
    Connect(10, 10);
    Connect(199, 99);
    EXPECT_EQ(Shown(), "");
    Connect(199, 100);
    EXPECT_EQ(Shown(), "vertical horizontal corner");  // for the pane is narrower now
}

TEST_F(ScrollBox, ALongRangeShowsItsBarAtItsEdge)
{
    Connect(100, 300);
    EXPECT_EQ(Shown(), "vertical");
    EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 182, 99}));
    EXPECT_EQ(Vert()->GetNodeRect(), (rectangle<int>{183, 0, 199, 99}));
    EXPECT_TRUE(Vert()->IsVisible());
    EXPECT_FALSE(Horz()->IsVisible());
    EXPECT_EQ(Info(Vert()), "0 to 300 by 5, page 99, at 0");
    Connect(300, 50);
    EXPECT_EQ(Shown(), "horizontal");
    EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 199, 82}));
    EXPECT_EQ(Horz()->GetNodeRect(), (rectangle<int>{0, 83, 199, 99}));
    EXPECT_EQ(Info(Horz()), "0 to 300 by 5, page 199, at 0");
}

TEST_F(ScrollBox, BothBarsLeaveACornerBelowTheVerticalOne)
{
    Connect(400, 300);
    EXPECT_EQ(Shown(), "vertical horizontal corner");
    EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 182, 82}));
    EXPECT_EQ(Vert()->GetNodeRect(), (rectangle<int>{183, 0, 199, 82}));
    EXPECT_EQ(Horz()->GetNodeRect(), (rectangle<int>{0, 83, 182, 99}));
    rectangle<int> corner = Corner()->GetBounds();
    Corner()->ElementToControl(&corner);
    EXPECT_EQ(corner, (rectangle<int>{183, 83, 199, 99}));
    EXPECT_EQ(Info(Vert()), "0 to 300 by 5, page 82, at 0");
    EXPECT_EQ(Info(Horz()), "0 to 400 by 5, page 182, at 0");
}

TEST_F(ScrollBox, InANarrowPaneTheVerticalBarMakesTheHorizontalOneAppearInTheSameLayout)
{
    Connect(10, 10);
    Connect(190, 50);
    EXPECT_EQ(Shown(), "");  // 190 of 199
    m_Pane->m_Vert.m_To = 300;
    m_Box->RefreshScroll();
    m_Host.Window().RunFrame();
    EXPECT_EQ(Shown(), "vertical horizontal corner");
    EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 182, 82}));
    EXPECT_EQ(Info(Vert()), "0 to 300 by 5, page 82, at 0");
    EXPECT_EQ(Info(Horz()), "0 to 190 by 5, page 182, at 0");
    m_Host.Paint();
    EXPECT_EQ(m_Host.Pending(), "");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Pane->m_Vert.m_To = 40;
    m_Box->RefreshScroll();
    m_Host.Window().RunFrame();
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 199, 99}));
}

// The pane is 199 x 99 without bars, 182 wide beside one and 82 high above one.
TEST_F(ScrollBox, BarsDontTakeTurnsWhereTheRangesFitWithoutAny)
{
    Connect(300, 40);
    EXPECT_EQ(Shown(), "horizontal");
    m_Pane->m_Horz.m_To = 190;
    m_Pane->m_Vert.m_To = 90;
    m_Box->RefreshScroll();
    EXPECT_EQ(Shown(), "");
    m_Host.Paint();
    EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 199, 99}));
    EXPECT_EQ(m_Host.Pending(), "");

    m_Pane->m_Horz.m_To = 40;
    m_Pane->m_Vert.m_To = 300;
    m_Box->RefreshScroll();
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical");
    m_Pane->m_Horz.m_To = 190;
    m_Pane->m_Vert.m_To = 90;
    m_Box->RefreshScroll();
    EXPECT_EQ(Shown(), "");
    m_Host.Paint();
    EXPECT_EQ(m_Host.Pending(), "");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ScrollBox, RangesThatJustFitWithoutBarsNeedNoneWhicheverWasThere)
{
    Connect(300, 40);
    m_Pane->m_Horz.m_To = 199;
    m_Pane->m_Vert.m_To = 99;
    m_Box->RefreshScroll();
    EXPECT_EQ(Shown(), "");
    m_Host.Paint();
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(m_Host.Pending(), "");
    Connect(40, 300);
    m_Pane->m_Horz.m_To = 199;
    m_Pane->m_Vert.m_To = 99;
    m_Box->RefreshScroll();
    EXPECT_EQ(Shown(), "");
    m_Host.Paint();
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(m_Host.Pending(), "");
}

TEST_F(ScrollBox, ABarThatComesWhereNoOtherGoesIsNeededEvenByLittle)
{
    Connect(40, 40);
    EXPECT_EQ(Shown(), "");
    Connect(210, 40);
    EXPECT_EQ(Shown(), "horizontal");
    m_Pane->m_Vert.m_To = 90;  // of 82
    m_Box->RefreshScroll();
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical horizontal corner");
    Connect(40, 40);
    EXPECT_EQ(Shown(), "");
    Connect(40, 110);
    EXPECT_EQ(Shown(), "vertical");
    m_Pane->m_Horz.m_To = 190;  // of 182
    m_Box->RefreshScroll();
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical horizontal corner");
}

TEST_F(ScrollBox, ABarThatStaysIsJudgedByThePaneAsItStands)
{
    Connect(300, 300);
    m_Pane->m_Horz.m_To = 182;
    m_Pane->m_Vert.m_To = 90;  // fits once the horizontal bar is gone
    m_Box->RefreshScroll();
    EXPECT_EQ(Shown(), "vertical");
    m_Host.Paint();
    EXPECT_EQ(Shown(), "");
    Connect(300, 300);
    m_Pane->m_Horz.m_To = 190;
    m_Pane->m_Vert.m_To = 82;
    m_Box->RefreshScroll();
    EXPECT_EQ(Shown(), "horizontal");
    m_Host.Paint();
    EXPECT_EQ(Shown(), "");
}

TEST_F(ScrollBox, AModelWithoutAPaneHasNoBarYet)
{
    CTestModel horz(0, 300), vert(0, 300);
    m_Box->SetHorzScroll(&horz);
    m_Box->SetVertScroll(&vert);
    m_Host.Paint();
    EXPECT_EQ(Shown(), "");
    m_Box->SetCentralPane(m_Pane);
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical horizontal corner");
    m_Box->SetHorzScroll(nullptr);
    m_Box->SetVertScroll(nullptr);
}

TEST_F(ScrollBox, OneBarComesAsTheOtherGoesWhereTheRoomOfThatIsNotEnough)
{
    Connect(40, 300);
    EXPECT_EQ(Shown(), "vertical");
    m_Pane->m_Horz.m_To = 200;  // of 199
    m_Pane->m_Vert.m_To = 82;
    m_Box->RefreshScroll();
    EXPECT_EQ(Shown(), "horizontal");
    m_Host.Paint();
    EXPECT_EQ(Info(Horz()), "0 to 200 by 5, page 199, at 0");
    m_Pane->m_Horz.m_To = 182;
    m_Pane->m_Vert.m_To = 100;  // of 99
    m_Box->RefreshScroll();
    EXPECT_EQ(Shown(), "vertical");
    m_Host.Paint();
    EXPECT_EQ(Info(Vert()), "0 to 100 by 5, page 99, at 0");
    EXPECT_EQ(m_Host.Pending(), "");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ScrollBox, ALayoutOnDemandGivesEachBarItsRoomAtOnce)
{
    Connect(10, 10);
    Connect(190, 50);
    for (int round = 0; round < 2; ++round)
    {
        m_Pane->m_Vert.m_To = 300;
        m_Box->RefreshScroll();
        m_Host.Root()->ForceRearrange();
        EXPECT_EQ(Shown(), "vertical horizontal corner");
        EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 182, 82}));
        EXPECT_EQ(Info(Horz()), "0 to 190 by 5, page 182, at 0");
        rectangle<int> corner = Corner()->GetBounds();
        Corner()->ElementToControl(&corner);
        EXPECT_EQ(corner, (rectangle<int>{183, 83, 199, 99}));
        m_Pane->m_Vert.m_To = 40;
        m_Box->RefreshScroll();
        m_Host.Root()->ForceRearrange();
        EXPECT_EQ(Shown(), "");
        EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 199, 99}));
    }
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ScrollBox, InALowPaneTheHorizontalBarMakesTheVerticalOneAppear)
{
    Connect(400, 90);
    EXPECT_EQ(Shown(), "vertical horizontal corner");
    EXPECT_EQ(Info(Vert()), "0 to 90 by 5, page 82, at 0");
}

TEST_F(ScrollBox, TheMetricOfTheSystemIsTheThicknessOfABar)
{
    CTestHost::System().SetMetric(0, 20);
    CTestHost::System().SetMetric(1, 20);
    CTestHost host(200, 100);
    auto* const box = new CScrollBox(host.Root(), {10, 10}, alClient);
    auto* const pane = new CTestPane(box);
    pane->m_Horz.m_To = 400;
    pane->m_Vert.m_To = 300;
    box->ConnectElement(pane, CScrollBox::ctBoth, true);
    host.Paint();
    EXPECT_EQ(pane->GetPos(), (rectangle<int>{0, 0, 178, 78}));
}

TEST_F(ScrollBox, BarsThatAlwaysShowAreDisabledWhereThereIsNothingToScroll)
{
    Connect(100, 50);
    m_Box->GetVertElement().SetPolicy(CScrollElement::spAlways);
    m_Box->RefreshScroll();
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical");
    EXPECT_FALSE(Vert()->IsNodeEnabled());
    m_Pane->m_Vert.m_To = 300;
    m_Box->RefreshScroll();
    EXPECT_TRUE(Vert()->IsNodeEnabled());
}

TEST_F(ScrollBox, BarsThatNeverShowLeaveTheirRoom)
{
    Connect(400, 300);
    m_Box->GetHorzElement().SetPolicy(CScrollElement::spNever);
    m_Box->RefreshScroll();
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical");
    EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 182, 99}));
}

TEST_F(ScrollBox, TheCornerMayAlwaysShow)
{
    Connect(100, 300);
    m_Box->SetCornerAlways(true);
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical corner");
    EXPECT_EQ(Vert()->GetNodeRect(), (rectangle<int>{183, 0, 199, 82}));
    m_Box->SetCornerAlways(false);
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical");
    EXPECT_EQ(Vert()->GetNodeRect(), (rectangle<int>{183, 0, 199, 99}));
}

TEST_F(ScrollBox, BarsFollowTheSizeOfTheBox)
{
    Connect(10, 10);
    Connect(190, 95);
    EXPECT_EQ(Shown(), "");
    m_Host.Resize(200, 80);
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical horizontal corner");
    EXPECT_EQ(Info(Vert()), "0 to 95 by 5, page 62, at 0");
    m_Host.Resize(400, 200);
    m_Host.Paint();
    EXPECT_EQ(Shown(), "");
}

TEST_F(ScrollBox, AMoveAloneOfTheBoxRefreshesItToo)
{
    m_Box->SetAlignment(alNone);
    m_Box->SetPos({0, 0, 199, 99}, true);
    Connect(100, 300);
    m_Pane->m_Vert.m_To = 500;
    m_Box->SetPos({0, 0, 199, 99}, false);  // nothing has changed
    EXPECT_EQ(Info(Vert()), "0 to 300 by 5, page 99, at 0");
    m_Box->SetPos({1, 0, 200, 99}, false);
    EXPECT_EQ(Info(Vert()), "0 to 500 by 5, page 99, at 0");
    m_Pane->m_Vert.m_To = 600;
    m_Box->SetPos({1, 0, 200, 99}, true);
    EXPECT_EQ(Info(Vert()), "0 to 600 by 5, page 99, at 0");
    m_Pane->m_Vert.m_To = 700;
    m_Box->SetPos({1, 0, 200, 109}, false);  // of no alignment: it lays nothing out
    EXPECT_EQ(Info(Vert()), "0 to 700 by 5, page 99, at 0");
}

TEST_F(ScrollBox, AReversedModelTurnsTheBar)
{
    m_Pane->m_Vert.m_From = 300;
    m_Pane->m_Vert.m_Start = 250;
    Connect(100, 0);
    EXPECT_EQ(Info(Vert()), "0 to 300 by 5, page 99, at 50, inverted");
    m_Pane->m_Vert.m_Start = 80;  // 220 from the beginning, and thus 19 too far
    m_Box->RefreshScroll();
    EXPECT_EQ(Info(Vert()), "0 to 300 by 5, page 99, at 201, inverted");
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 0.0);
}

TEST_F(ScrollBox, AViewThatFellOffTheEndComesBack)
{
    Connect(100, 300);
    m_Box->GetWrappedVertScroll()->SetStart(201);
    m_Host.Paint();
    m_Pane->m_Calls.Take();
    m_Pane->m_Vert.m_To = 250;
    m_Box->RefreshScroll();
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 151.0);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(0, 50)");
    EXPECT_EQ(Info(Vert()), "0 to 250 by 5, page 99, at 151");
}

TEST_F(ScrollBox, AViewWhoseRangeComesToFitMovesBackToItsBeginning)
{
    auto* const header = new CTestPane(m_Box, alTop);
    Connect(400, 300);
    m_Box->ConnectElement(header, CScrollBox::ctHorizontal, false);
    m_Box->GetWrappedVertScroll()->SetStart(60);
    m_Box->GetWrappedHorzScroll()->SetStart(30);
    m_Host.Paint();
    m_Pane->m_Calls.Take();
    header->m_Calls.Take();
    m_Pane->m_Vert.m_To = 40;
    m_Pane->m_Horz.m_To = 50;
    m_Box->RefreshScroll();
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 0.0);
    EXPECT_EQ(m_Pane->m_Horz.m_Start, 0.0);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(0, 60) scroll(30, 0)");
    EXPECT_EQ(header->m_Calls.Take(), "scroll(0, 60) scroll(30, 0)");
    m_Box->GetWrappedVertScroll()->SetStart(20);  // there and back
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(0, -20) scroll(0, 20)");
    m_Box->SetReportPixels(false);
    m_Box->GetWrappedVertScroll()->SetStart(20);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "");
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 0.0);
}

TEST_F(ScrollBox, AModelThatRefreshesTheBoxWithinAMoveIsMovedOnce)
{
    Connect(100, 50);
    m_Pane->m_Vert.m_OnSetStart = [&] { m_Box->RefreshScroll(); };
    m_Box->GetWrappedVertScroll()->SetStart(20);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 0.0);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "");  // it never got away from 0
    m_Pane->m_Vert.m_OnSetStart = [&] {
        m_Pane->m_Vert.m_OnSetStart = nullptr;
        m_Box->RefreshScroll();
    };
    m_Box->GetWrappedVertScroll()->SetStart(20);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 0.0);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "");
    m_Pane->m_Vert.m_OnSetStart = nullptr;
    Connect(100, 300);
    m_Box->GetWrappedVertScroll()->SetStart(150);
    m_Pane->m_Vert.m_OnSetStart = [&] { m_Box->RefreshScroll(); };
    m_Pane->m_Calls.Take();
    m_Pane->m_Vert.m_To = 200;
    m_Box->RefreshScroll();
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 101.0);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(0, 49)");
}

// The user at the bar ------------------------------------------------------------------------------------------------------

TEST_F(ScrollBox, ADraggedBarMovesTheModelAndThePane)
{
    Connect(400, 300);
    Vert()->DragThumb(50);
    EXPECT_EQ(m_Pane->m_Vert.m_Calls.Take(), "start(50)");
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(0, -50)");
    Vert()->DragThumb(20);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(0, 30)");
    Horz()->DragThumb(70);
    EXPECT_EQ(m_Pane->m_Horz.m_Calls.Take(), "start(70)");
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(-70, 0)");
    Vert()->StepLine(1);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 25.0);
    Vert()->StepPage(1);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 107.0);
    Vert()->DragThumb(1000);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 218.0);  // 300 - 82
}

TEST_F(ScrollBox, TheMouseOnTheThumbScrolls)
{
    Connect(100, 300);
    range<int> const thumb = Vert()->GetThumbPixels();
    ASSERT_EQ(thumb.first, 16);  // behind the arrow
    m_Host.Mouse().Press(190, 20);
    m_Host.Mouse().Move(190, 30);
    double const first = m_Pane->m_Vert.m_Start;
    EXPECT_GT(first, 0.0);
    m_Host.Mouse().Move(190, 95);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 201.0);
    m_Host.Mouse().Release();
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ScrollBox, ABarOfAReversedModelRunsFromTheOtherEnd)
{
    m_Pane->m_Vert.m_From = 300;
    m_Pane->m_Vert.m_Start = 0;
    Connect(100, 0);
    // Start 0 is the last position; the bar stands at 300 - 0 cut to 201, turned: at its top or left.
    Vert()->DragThumb(50);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 151.0);  // 300 - 50 - 99
    Vert()->DragThumb(0);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 201.0);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(0, 151) scroll(0, 50)");
}

TEST_F(ScrollBox, ADisabledBoxHasDisabledBars)
{
    Connect(400, 300);
    m_Box->SetEnabled(false);
    EXPECT_FALSE(m_Box->IsEnabled());
    EXPECT_FALSE(Vert()->IsNodeEnabled());
    EXPECT_FALSE(Horz()->IsNodeEnabled());
    m_Box->RefreshScroll();
    EXPECT_FALSE(Vert()->IsNodeEnabled());
    Vert()->DragThumb(50);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 0.0);
    m_Pane->m_Horz.m_To = 500;
    m_Box->SetEnabled(true);
    EXPECT_TRUE(Vert()->IsNodeEnabled());
    EXPECT_TRUE(Horz()->IsNodeEnabled());
    EXPECT_EQ(Info(Horz()), "0 to 500 by 5, page 182, at 0");
}

TEST_F(ScrollBox, ABoxThatWasDisabledBeforeHasDisabledBarsToo)
{
    Connect(400, 300);
    m_Box->ReParent(nullptr, false);
    m_Box->SetEnabled(false);
    CTestHost other(150, 80);
    m_Box->ReParent(other.Root(), true);
    other.Paint();
    EXPECT_FALSE(Vert()->IsNodeEnabled());
    Vert()->DragThumb(50);
    Horz()->DragThumb(50);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 0.0);
    EXPECT_EQ(m_Pane->m_Horz.m_Start, 0.0);
    m_Box->SetEnabled(true);
    Vert()->DragThumb(50);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 50.0);
    delete m_Box;
}

TEST_F(ScrollBox, EnablingDoesNotEnableABarWithoutARange)
{
    Connect(100, 300);
    m_Box->SetEnabled(false);
    m_Box->SetEnabled(true);
    EXPECT_TRUE(Vert()->IsNodeEnabled());
    m_Box->GetHorzElement().SetPolicy(CScrollElement::spAlways);
    m_Box->RefreshScroll();
    m_Host.Paint();
    EXPECT_TRUE(Horz()->IsVisible());
    EXPECT_FALSE(Horz()->IsNodeEnabled());
}

// Moves by code --------------------------------------------------------------------------------------------------------------

TEST_F(ScrollBox, AMoveTellsTheDistanceInPixelsRounded)
{
    CTestModel model(0, 1000, 100);
    EXPECT_EQ(m_Box->ScrollImp(&model, 150), 50);
    EXPECT_EQ(m_Box->ScrollImp(&model, 120.4), -30);  // floor(-29.6 + 0.5)
    EXPECT_EQ(m_Box->ScrollImp(&model, 120.9), 1);    // floor(0.5 + 0.5)
    model.m_Start = 10;
    EXPECT_EQ(m_Box->ScrollImp(&model, 12.5), 3);
    model.m_Start = 12.5;
    EXPECT_EQ(m_Box->ScrollImp(&model, 10), -2);
    model.m_Measure = {1.0, 3};
    model.m_Start = 10;
    EXPECT_EQ(m_Box->ScrollImp(&model, 12), 6);
    EXPECT_EQ(m_Box->ScrollImp(&model, 12), 0);
}

TEST_F(ScrollBox, AMoveCountsAsTheModelTookIt)
{
    CTestModel model(0, 100, 90);
    model.m_CutsStart = true;
    EXPECT_EQ(m_Box->ScrollImp(&model, 150), 10);
    EXPECT_EQ(model.m_Start, 100.0);
}

TEST_F(ScrollBox, OnAReversedModelTheDistanceIsTurned)
{
    CTestModel model(1000, 0, 100);
    EXPECT_EQ(m_Box->ScrollImp(&model, 150), -50);
    EXPECT_EQ(m_Box->ScrollImp(&model, 120), 30);
}

TEST_F(ScrollBox, WithoutAModelThereIsNoDistance)
{
    EXPECT_EQ(m_Box->ScrollImp(nullptr, 150), 0);
}

TEST_F(ScrollBox, DistancesMayBeUnwanted)
{
    Connect(100, 300);
    m_Box->SetReportPixels(false);
    EXPECT_EQ(m_Box->ScrollImp(&m_Pane->m_Vert, 50), 0);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 50.0);
    m_Box->VertScroll(CScrollEvent::saLine, 70);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 70.0);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "");
}

TEST_F(ScrollBox, AMoveWithinAMoveIsNone)
{
    CTestModel outer(0, 1000, 0), inner(0, 1000, 0);
    int answer = -1;
    outer.m_OnSetStart = [&] { answer = m_Box->ScrollImp(&inner, 50); };
    EXPECT_EQ(m_Box->ScrollImp(&outer, 30), 30);
    EXPECT_EQ(answer, 0);
    EXPECT_EQ(inner.m_Calls.Take(), "");
    outer.m_OnSetStart = nullptr;
    EXPECT_EQ(m_Box->ScrollImp(&inner, 50), 50);  // and afterwards one is possible again
}

TEST_F(ScrollBox, AMoveThatIsEndedByAnExceptionIsOver)
{
    CTestModel model(0, 1000, 0);
    model.m_OnSetStart = [] { throw vexel::cancel_processing(); };
    EXPECT_THROW(m_Box->ScrollImp(&model, 30), vexel::cancel_processing);
    model.m_OnSetStart = nullptr;
    EXPECT_EQ(m_Box->ScrollImp(&model, 50), 20);
}

TEST_F(ScrollBox, MovesByCodeDoNotMoveTheBar)
{
    Connect(400, 300);
    m_Box->VertScroll(CScrollEvent::saLine, 40);
    m_Box->HorzScroll(CScrollEvent::saThumb, 30);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(0, -40) scroll(-30, 0)");
    EXPECT_EQ(Vert()->GetScrollPos(), 0.0);
    m_Box->RefreshScroll();
    EXPECT_EQ(Vert()->GetScrollPos(), 40.0);
    EXPECT_EQ(Horz()->GetScrollPos(), 30.0);
    m_Box->VertScroll(CScrollEvent::saLine, 40);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "");  // no distance, no scroll
}

TEST_F(ScrollBox, AMoveIsPaintedAtTheNextFrameOrAtOnce)
{
    Connect(400, 300);
    int const frames = m_Host.Window().GetFrameCount();
    m_Box->VertScroll(CScrollEvent::saLine, 40);
    EXPECT_EQ(m_Host.Window().GetFrameCount(), frames);
    EXPECT_TRUE(m_Host.IsFramePending());
    m_Host.Paint();
    m_Box->SetUpdateAtOnce(true);
    int const painted = m_Host.Window().GetFrameCount();
    m_Box->VertScroll(CScrollEvent::saLine, 60);
    EXPECT_EQ(m_Host.Window().GetFrameCount(), painted + 1);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Box->HorzScroll(CScrollEvent::saLine, 60);
    EXPECT_EQ(m_Host.Window().GetFrameCount(), painted + 2);
    m_Box->HorzScroll(CScrollEvent::saLine, 60);
    EXPECT_EQ(m_Host.Window().GetFrameCount(), painted + 2);  // nothing moved
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ScrollBox, ItselfNeedsNoRepaintByAScroll)
{
    EXPECT_FALSE(m_Box->ScrollContent(5, 5));
    EXPECT_FALSE(m_Box->IsFullRepainted());
    PaintLog const paint = m_Host.FullPaint();
    EXPECT_EQ(paint.Of("CScrollBox").Count("FillRect*"), 0);
}

TEST_F(ScrollBox, AMoveLeavesOnlyTheUncoveredStripToBePainted)
{
    Connect(400, 300);
    EXPECT_EQ(m_Pane->GetValidRect(), (rectangle<int>{0, 0, 182, 82}));
    m_Host.Mouse().Wheel(*m_Pane, 10, 10, -3);
    EXPECT_EQ(m_Pane->GetValidRect(), (rectangle<int>{0, 0, 182, 79}));
    Horz()->StepLine(2);
    EXPECT_EQ(m_Pane->GetValidRect(), (rectangle<int>{0, 0, 172, 79}));
    m_Host.Paint();
    EXPECT_EQ(m_Pane->GetValidRect(), (rectangle<int>{0, 0, 182, 82}));
    Vert()->DragThumb(0);
    EXPECT_EQ(m_Pane->GetValidRect(), (rectangle<int>{0, 3, 182, 82}));
}

// Wheel ----------------------------------------------------------------------------------------------------------------------

TEST_F(ScrollBox, ANotchGoesOneUnitOfTheVerticalAxis)
{
    Connect(400, 300);
    m_Host.Mouse().Wheel(*m_Pane, 10, 10, -3);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 3.0);
    EXPECT_EQ(m_Pane->m_Horz.m_Start, 0.0);
    EXPECT_EQ(Vert()->GetScrollPos(), 3.0);  // the bar follows
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(0, -3)");
    m_Host.Mouse().Wheel(*m_Pane, 10, 10, 1);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 2.0);
}

TEST_F(ScrollBox, AListenerSaysHowFarANotchGoes)
{
    class CListener : public subscriber_base_t
    {
    public:
        void Ask(CVisualElement* element, int& step)
        {
            EXPECT_EQ(step, 1);
            m_Asked = element;
            step = 12;
        }
        CVisualElement* m_Asked = nullptr;
    };
    CListener listener;
    m_Box->m_SigGetWheelStep.connect(&listener, &CListener::Ask);
    Connect(400, 300);
    m_Host.Mouse().Wheel(*m_Pane, 10, 10, -2);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 24.0);
    EXPECT_EQ(listener.m_Asked, m_Box);
}

TEST_F(ScrollBox, WithoutAVerticalBarTheWheelGoesAlong)
{
    Connect(400, 50);
    m_Host.Mouse().Wheel(*m_Pane, 10, 10, -3);
    EXPECT_EQ(m_Pane->m_Horz.m_Start, 3.0);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 0.0);
    EXPECT_EQ(Horz()->GetScrollPos(), 3.0);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(-3, 0)");
}

TEST_F(ScrollBox, WithoutAnyBarTheWheelIsNotItsBusiness)
{
    Connect(100, 50);
    EXPECT_FALSE(m_Box->HandleWheel(10, 10, 0, mbNone, -1));
    EXPECT_EQ(m_Pane->m_Vert.m_Calls.Take(), "");
    Connect(100, 300);
    EXPECT_TRUE(m_Box->HandleWheel(10, 10, 0, mbNone, 1));  // at the beginning already, but its business
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 0.0);
    m_Box->SetVertScroll(nullptr);
    EXPECT_FALSE(m_Box->HandleWheel(10, 10, 0, mbNone, -1));
}

TEST_F(ScrollBox, AWheelThatMovesNothingDoesNotRefresh)
{
    Connect(100, 300);
    m_Pane->m_Vert.m_To = 500;
    m_Box->HandleWheel(10, 10, 0, mbNone, 1);
    EXPECT_EQ(Info(Vert()), "0 to 300 by 5, page 99, at 0");
    m_Box->HandleWheel(10, 10, 0, mbNone, -1);
    EXPECT_EQ(Info(Vert()), "0 to 500 by 5, page 99, at 1");
}

// Connections ----------------------------------------------------------------------------------------------------------------

TEST_F(ScrollBox, ThePaneGivesItsModelsAndGetsTheBoxesInTheirPlace)
{
    Connect(400, 300);
    EXPECT_EQ(m_Box->GetCentralPane(), m_Pane);
    EXPECT_EQ(m_Box->GetHorzScroll(), &m_Pane->m_Horz);
    EXPECT_EQ(m_Box->GetVertScroll(), &m_Pane->m_Vert);
    EXPECT_EQ(m_Pane->GetHorzScroll(), m_Box->GetWrappedHorzScroll());
    EXPECT_EQ(m_Pane->GetVertScroll(), m_Box->GetWrappedVertScroll());
}

TEST_F(ScrollBox, APaneMayBeConnectedOnOneAxis)
{
    m_Pane->m_Vert.m_To = 300;
    m_Pane->m_Horz.m_To = 400;
    m_Box->ConnectElement(m_Pane, CScrollBox::ctVertical, true);
    m_Host.Paint();
    EXPECT_EQ(m_Box->GetHorzScroll(), nullptr);
    EXPECT_EQ(m_Box->GetVertScroll(), &m_Pane->m_Vert);
    EXPECT_EQ(m_Pane->GetHorzScroll(), &m_Pane->m_Horz);
    EXPECT_EQ(m_Pane->GetVertScroll(), m_Box->GetWrappedVertScroll());
    EXPECT_EQ(Shown(), "vertical");
    m_Box->ConnectElement(m_Pane, CScrollBox::ctHorizontal, true);
    m_Host.Paint();
    EXPECT_EQ(m_Box->GetHorzScroll(), &m_Pane->m_Horz);
    EXPECT_EQ(Shown(), "vertical horizontal corner");
}

TEST_F(ScrollBox, AConnectionMadeTwiceChangesNothing)
{
    Connect(400, 300);
    m_Box->ConnectElement(m_Pane, CScrollBox::ctBoth, true);
    EXPECT_EQ(m_Box->GetVertScroll(), &m_Pane->m_Vert);
    m_Box->GetWrappedVertScroll()->SetStart(30);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 30.0);
}

TEST_F(ScrollBox, NobodyIsConnectedByNull)
{
    Connect(400, 300);
    m_Box->ConnectElement(nullptr, CScrollBox::ctBoth, true);
    m_Box->ConnectElement(nullptr, CScrollBox::ctBoth, false);
    m_Box->SetCentralPane(nullptr);
    EXPECT_EQ(m_Box->GetCentralPane(), m_Pane);
    EXPECT_EQ(m_Box->GetVertScroll(), &m_Pane->m_Vert);
}

TEST_F(ScrollBox, AHeaderScrollsAlongWithThePane)
{
    auto* const header = new CTestPane(m_Box, alTop);
    m_Box->GetChildren()->MoveItem(m_Box->GetChildren()->GetCount() - 1, 0);
    Connect(400, 300);
    m_Box->ConnectElement(header, CScrollBox::ctHorizontal, false);
    EXPECT_EQ(header->GetHorzScroll(), m_Box->GetWrappedHorzScroll());
    EXPECT_EQ(header->GetVertScroll(), &header->m_Vert);
    EXPECT_EQ(m_Box->GetCentralPane(), m_Pane);
    EXPECT_EQ(m_Box->GetHorzScroll(), &m_Pane->m_Horz);
    m_Box->ConnectElement(header, CScrollBox::ctVertical, false);
    EXPECT_EQ(header->GetVertScroll(), m_Box->GetWrappedVertScroll());

    header->GetHorzScroll()->SetStart(40);  // as if dragged in the header
    EXPECT_EQ(m_Pane->m_Horz.m_Start, 40.0);
    EXPECT_EQ(Horz()->GetScrollPos(), 40.0);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(-40, 0)");
    EXPECT_EQ(header->m_Calls.Take(), "scroll(-40, 0)");
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ScrollBox, AHeaderKnowsThePaneThatItServes)
{
    Connect(400, 300);
    CScrollableElement header(nullptr, {10, 10}, alNone);
    m_Box->ConnectElement(&header, CScrollBox::ctHorizontal, false);
    EXPECT_EQ(header.GetCentralPane(), m_Pane);
    EXPECT_EQ(header.GetVertScroll(), nullptr);
    CScrollableElement side(nullptr, {10, 10}, alNone);
    m_Box->ConnectElement(&side, CScrollBox::ctVertical, false);
    EXPECT_EQ(side.GetCentralPane(), m_Pane);
    EXPECT_EQ(side.GetHorzScroll(), nullptr);
    EXPECT_EQ(side.GetVertScroll(), m_Box->GetWrappedVertScroll());
}

TEST_F(ScrollBox, ModelsMayBeSetByHand)
{
    CTestModel model(0, 500, 20);
    m_Box->SetCentralPane(m_Pane);
    m_Box->SetVertScroll(&model);
    EXPECT_EQ(m_Box->GetVertScroll(), &model);
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical");
    EXPECT_EQ(Info(Vert()), "0 to 500 by 5, page 99, at 20");
    EXPECT_EQ(m_Box->GetWrappedVertScroll()->GetTo(), 500.0);
    m_Box->SetHorzScroll(&model);
    m_Host.Paint();
    EXPECT_EQ(Info(Horz()), "0 to 500 by 5, page 182, at 20");
    m_Box->SetVertScroll(nullptr);
    m_Box->SetHorzScroll(nullptr);
    m_Host.Paint();
    EXPECT_EQ(Shown(), "");
}

TEST_F(ScrollBox, AnotherPaneIsMeasuredFromThenOn)
{
    Connect(400, 300);
    auto* const other = new CVisualElement(m_Box, {10, 10}, alNone);
    other->SetPos({0, 0, 50, 40}, false);
    m_Box->SetCentralPane(other);
    EXPECT_EQ(Info(Vert()), "0 to 300 by 5, page 40, at 0");
    EXPECT_EQ(Info(Horz()), "0 to 400 by 5, page 50, at 0");
}

// The models in wraps --------------------------------------------------------------------------------------------------------

TEST_F(ScrollBox, AMoveThroughTheWrapMovesPaneAndBar)
{
    Connect(400, 300);
    m_Box->GetWrappedVertScroll()->SetStart(60);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 60.0);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(0, -60)");
    EXPECT_EQ(Vert()->GetScrollPos(), 60.0);
    m_Box->GetWrappedHorzScroll()->SetStart(70);
    EXPECT_EQ(m_Pane->m_Horz.m_Start, 70.0);
    EXPECT_EQ(m_Pane->m_Calls.Take(), "scroll(-70, 0)");
    EXPECT_EQ(Horz()->GetScrollPos(), 70.0);
}

TEST_F(ScrollBox, TheWrapAnswersAsTheModel)
{
    Connect(400, 300);
    IScrollModel* const wrap = m_Box->GetWrappedVertScroll();
    CTestModel& model = m_Pane->m_Vert;
    model.m_From = -20;
    model.m_Start = 30;
    model.m_LineStep = 9;
    model.m_Measure = {2.0, 3};
    model.m_Steps = {4, 5};
    EXPECT_EQ(wrap->GetFrom(), -20.0);
    EXPECT_EQ(wrap->GetTo(), 300.0);
    EXPECT_EQ(wrap->GetStart(), 30.0);
    EXPECT_EQ(wrap->GetMinScrollDistance(), 9);
    EXPECT_EQ(wrap->GetMeasure(), (std::pair<double, int>{2.0, 3}));
    EXPECT_EQ(wrap->GetStepSize(1), 5.0);
    for (bool const on : {false, true})
    {
        model.m_Fixed = on;
        EXPECT_EQ(wrap->IsFixedStepSize(), on);
        model.m_Inseparable = on;
        EXPECT_EQ(wrap->IsInseparableStep(), on);
    }
}

TEST_F(ScrollBox, AScaleSetThroughTheWrapReachesTheBar)
{
    Connect(400, 300);
    m_Box->GetWrappedVertScroll()->SetMeasure({1.0, 2});
    EXPECT_EQ(m_Pane->m_Vert.m_Measure, (std::pair<double, int>{1.0, 2}));
    EXPECT_EQ(Info(Vert()), "0 to 600 by 5, page 82, at 0");
}

TEST_F(ScrollBox, AnUpdateThroughTheWrapRefreshesAndStaysThere)
{
    Connect(400, 300);
    m_Pane->m_Vert.m_To = 500;
    m_Pane->m_Vert.m_Calls.Take();
    m_Box->GetWrappedVertScroll()->Update();
    EXPECT_EQ(Info(Vert()), "0 to 500 by 5, page 82, at 0");
    m_Pane->m_Vert.m_To = 600;
    m_Box->GetWrappedHorzScroll()->Update();
    EXPECT_EQ(Info(Vert()), "0 to 600 by 5, page 82, at 0");
    EXPECT_EQ(m_Pane->m_Vert.m_Calls.Take(), "");
}

TEST_F(ScrollBox, TheWrapKeepsStepSizesOutOfReach)
{
    Connect(400, 300);
    m_Pane->m_Vert.m_To = 500;
    m_Pane->m_Vert.m_Calls.Take();
    m_Box->GetWrappedVertScroll()->SetStepSize(1, 7);
    EXPECT_EQ(m_Pane->m_Vert.m_Calls.Take(), "");
    EXPECT_EQ(Info(Vert()), "0 to 500 by 5, page 82, at 0");
}

TEST_F(ScrollBox, AWrapWithoutAModelIsAnEmptyRange)
{
    IScrollModel* const wrap = m_Box->GetWrappedVertScroll();
    EXPECT_EQ(wrap->GetFrom(), 0.0);
    EXPECT_EQ(wrap->GetTo(), 0.0);
    EXPECT_EQ(wrap->GetStart(), 0.0);
    EXPECT_EQ(wrap->GetMeasure(), (std::pair<double, int>{1.0, 1}));
    EXPECT_TRUE(wrap->IsFixedStepSize());
    EXPECT_FALSE(wrap->IsInseparableStep());
    wrap->SetStart(5);
    wrap->SetMeasure({2.0, 3});
    wrap->SetStepSize(1, 2);
    wrap->Update();
    EXPECT_EQ(wrap->GetStart(), 0.0);
}

TEST_F(ScrollBox, WithoutBarsMovesStillMove)
{
    CScrollBox box(nullptr, {10, 10}, alNone);
    CTestPane pane(nullptr);
    pane.m_Vert.m_To = 300;
    box.ConnectElement(&pane, CScrollBox::ctBoth, true);
    box.GetWrappedVertScroll()->SetStart(50);
    EXPECT_EQ(pane.m_Vert.m_Start, 50.0);
    EXPECT_EQ(box.GetVertBar(), nullptr);
    EXPECT_FALSE(box.HandleWheel(0, 0, 0, mbNone, -1));
}

// Bars come and go -------------------------------------------------------------------------------------------------------------

TEST_F(ScrollBox, HasBarsWhileItHasAControl)
{
    EXPECT_EQ(vexelbase::memory::GetMemoryCounts().nativeControls, 2);
    Connect(400, 300);
    EXPECT_TRUE(Vert()->IsVertical());
    EXPECT_FALSE(Horz()->IsVertical());
    m_Box->ReParent(nullptr, false);
    EXPECT_EQ(m_Box->GetVertBar(), nullptr);
    EXPECT_EQ(m_Box->GetHorzBar(), nullptr);
    EXPECT_EQ(m_Box->GetVertElement().GetScrollBar(), nullptr);
    EXPECT_EQ(m_Box->GetHorzElement().GetScrollBar(), nullptr);
    EXPECT_EQ(vexelbase::memory::GetMemoryCounts().nativeControls, 0);
    EXPECT_EQ(m_Box->GetVertScroll(), &m_Pane->m_Vert);  // models stay
    m_Box->GetWrappedVertScroll()->SetStart(50);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 50.0);

    CTestHost other(150, 80);
    m_Box->ReParent(other.Root(), true);
    other.Paint();
    EXPECT_EQ(Shown(), "vertical horizontal corner");
    EXPECT_EQ(Info(Vert()), "0 to 300 by 5, page 62, at 50");
    EXPECT_EQ(Vert()->GetOwnerWindow(), &other.Window());
    Vert()->DragThumb(80);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 80.0);
    delete m_Box;
    EXPECT_EQ(vexelbase::memory::GetMemoryCounts().nativeControls, 0);
}

TEST_F(ScrollBox, BarsAreMadeAnewAndReleasedOnDemand)
{
    Connect(400, 300);
    m_Box->CreateScrollbars(m_Box->GetControl());
    EXPECT_EQ(vexelbase::memory::GetMemoryCounts().nativeControls, 2);
    m_Box->RefreshScroll();
    m_Host.FullPaint();
    EXPECT_EQ(Info(Vert()), "0 to 300 by 5, page 82, at 0");
    Vert()->DragThumb(30);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 30.0);
    m_Box->CreateScrollbars(nullptr);
    EXPECT_EQ(m_Box->GetVertBar(), nullptr);
    EXPECT_EQ(vexelbase::memory::GetMemoryCounts().nativeControls, 0);
    m_Box->CreateScrollbars(m_Box->GetControl());
    m_Box->ReleaseScrollbars();
    m_Box->ReleaseScrollbars();
    EXPECT_EQ(m_Box->GetHorzBar(), nullptr);
    EXPECT_EQ(vexelbase::memory::GetMemoryCounts().nativeControls, 0);
    m_Box->GetWrappedVertScroll()->SetStart(60);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 60.0);
}

TEST_F(ScrollBox, WithItsWindowItsBarsGo)
{
    Connect(400, 300);
    m_Host.DestroyWindow();
    EXPECT_EQ(m_Box->GetVertBar(), nullptr);
    EXPECT_EQ(m_Box->GetHorzBar(), nullptr);
    EXPECT_EQ(vexelbase::memory::GetMemoryCounts().nativeControls, 0);
    m_Box->GetWrappedVertScroll()->SetStart(50);
    EXPECT_EQ(m_Pane->m_Vert.m_Start, 50.0);
    m_Box->RefreshScroll();
    m_Box->SetEnabled(false);
    m_Box->SetEnabled(true);
}

TEST_F(ScrollBox, ItsPartsAreItsOwn)
{
    auto* const box = new CScrollBox(nullptr, {10, 10}, alNone);
    for (int i = 0; i < box->GetChildren()->GetCount(); ++i)
        EXPECT_FALSE(box->GetChildren()->GetItem(i)->IsDynamic());
    EXPECT_EQ(box->GetChildren()->GetCount(), 2);
    EXPECT_EQ(box->GetChildren()->GetItem(0)->GetAlignment(), alRight);
    EXPECT_EQ(box->GetChildren()->GetItem(1)->GetAlignment(), alBottom);
    EXPECT_EQ(box->GetChildren()->GetItem(0)->GetSize().width, 16);
    EXPECT_EQ(box->GetChildren()->GetItem(1)->GetSize().height, 16);
    delete box;
}

TEST_F(ScrollBox, AHolderLaysItsBarOutWithEveryPlace)
{
    CScrollBox::CScrollContainer holder(nullptr, {16, 16}, alNone);
    auto* const child = new CVisualElement(&holder, {5, 5}, alClient);
    holder.SetPos({0, 0, 16, 50}, false);
    EXPECT_EQ(child->GetPos(), (rectangle<int>{0, 0, 16, 50}));
    child->SetPos({1, 2, 3, 4}, false);
    holder.SetPos({0, 0, 16, 50}, false);  // the same place, and yet
    EXPECT_EQ(child->GetPos(), (rectangle<int>{0, 0, 16, 50}));
}

TEST_F(ScrollBox, LongRangesReachTheirEnds)
{
    for (double const length : {3e9, 1e18})
    {
        m_Pane->m_Vert.m_Measure = {1.0, 1};
        m_Pane->m_Vert.m_Start = 0;
        Connect(100, length);
        EXPECT_EQ(Vert()->GetThumbPos(), 0.0);
        Vert()->DragThumb(1e19);
        EXPECT_NEAR(m_Pane->m_Vert.m_Start, length * (1 - 99.0 / 2147483646.0), length * 1e-9);
        Vert()->DragThumb(0);
        EXPECT_EQ(m_Pane->m_Vert.m_Start, 0.0);
        m_Host.Paint();
        EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    }
}

}  // namespace
