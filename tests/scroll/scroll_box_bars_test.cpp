// The bars of a box around a scrolled pane: when they show, what their user does, and how they come and go.

#include "tests/scroll/scroll_box_support.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using namespace scroll_test;

namespace
{

using ScrollBoxBars = CBoxBench;

// Bars -------------------------------------------------------------------------------------------------------------------

TEST_F(ScrollBoxBars, APaneThatFitsShowsNoBarsAndNoCorner)
{
    Connect(100, 50);
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 199, 99}));
    EXPECT_FALSE(Vert()->IsVisible());
    EXPECT_FALSE(Horz()->IsVisible());
}

TEST_F(ScrollBoxBars, ARangeThatJustFitsShowsNoBar)
{
    Connect(10, 10);
    Connect(199, 99);
    EXPECT_EQ(Shown(), "");
    Connect(199, 100);
    EXPECT_EQ(Shown(), "vertical horizontal corner");  // for the pane is narrower now
}

TEST_F(ScrollBoxBars, ALongRangeShowsItsBarAtItsEdge)
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

TEST_F(ScrollBoxBars, BothBarsLeaveACornerBelowTheVerticalOne)
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

TEST_F(ScrollBoxBars, InANarrowPaneTheVerticalBarMakesTheHorizontalOneAppearInTheSameLayout)
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
TEST_F(ScrollBoxBars, BarsDontTakeTurnsWhereTheRangesFitWithoutAny)
{
    Connect(300, 40);
    EXPECT_EQ(Shown(), "horizontal");
    SetRanges(190, 90);
    EXPECT_EQ(Shown(), "");
    m_Host.Paint();
    EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 199, 99}));
    EXPECT_EQ(m_Host.Pending(), "");

    SetRanges(40, 300);
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical");
    SetRanges(190, 90);
    EXPECT_EQ(Shown(), "");
    m_Host.Paint();
    EXPECT_EQ(m_Host.Pending(), "");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ScrollBoxBars, RangesThatJustFitWithoutBarsNeedNoneWhicheverWasThere)
{
    Connect(300, 40);
    SetRanges(199, 99);
    EXPECT_EQ(Shown(), "");
    m_Host.Paint();
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(m_Host.Pending(), "");
    Connect(40, 300);
    SetRanges(199, 99);
    EXPECT_EQ(Shown(), "");
    m_Host.Paint();
    EXPECT_EQ(Shown(), "");
    EXPECT_EQ(m_Host.Pending(), "");
}

TEST_F(ScrollBoxBars, ABarThatComesWhereNoOtherGoesIsNeededEvenByLittle)
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

TEST_F(ScrollBoxBars, ABarThatStaysIsJudgedByThePaneAsItStands)
{
    Connect(300, 300);
    SetRanges(182, 90);  // fits once the horizontal bar is gone
    EXPECT_EQ(Shown(), "vertical");
    m_Host.Paint();
    EXPECT_EQ(Shown(), "");
    Connect(300, 300);
    SetRanges(190, 82);
    EXPECT_EQ(Shown(), "horizontal");
    m_Host.Paint();
    EXPECT_EQ(Shown(), "");
}

TEST_F(ScrollBoxBars, AModelWithoutAPaneHasNoBarYet)
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

TEST_F(ScrollBoxBars, OneBarComesAsTheOtherGoesWhereTheRoomOfThatIsNotEnough)
{
    Connect(40, 300);
    EXPECT_EQ(Shown(), "vertical");
    SetRanges(200, 82);  // of 199
    EXPECT_EQ(Shown(), "horizontal");
    m_Host.Paint();
    EXPECT_EQ(Info(Horz()), "0 to 200 by 5, page 199, at 0");
    SetRanges(182, 100);  // of 99
    EXPECT_EQ(Shown(), "vertical");
    m_Host.Paint();
    EXPECT_EQ(Info(Vert()), "0 to 100 by 5, page 99, at 0");
    EXPECT_EQ(m_Host.Pending(), "");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ScrollBoxBars, ALayoutOnDemandGivesEachBarItsRoomAtOnce)
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

TEST_F(ScrollBoxBars, InALowPaneTheHorizontalBarMakesTheVerticalOneAppear)
{
    Connect(400, 90);
    EXPECT_EQ(Shown(), "vertical horizontal corner");
    EXPECT_EQ(Info(Vert()), "0 to 90 by 5, page 82, at 0");
}

TEST_F(ScrollBoxBars, TheMetricOfTheSystemIsTheThicknessOfABar)
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

TEST_F(ScrollBoxBars, BarsThatAlwaysShowAreDisabledWhereThereIsNothingToScroll)
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

TEST_F(ScrollBoxBars, BarsThatNeverShowLeaveTheirRoom)
{
    Connect(400, 300);
    m_Box->GetHorzElement().SetPolicy(CScrollElement::spNever);
    m_Box->RefreshScroll();
    m_Host.Paint();
    EXPECT_EQ(Shown(), "vertical");
    EXPECT_EQ(m_Pane->GetPos(), (rectangle<int>{0, 0, 182, 99}));
}

TEST_F(ScrollBoxBars, TheCornerMayAlwaysShow)
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

TEST_F(ScrollBoxBars, BarsFollowTheSizeOfTheBox)
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

TEST_F(ScrollBoxBars, AMoveAloneOfTheBoxRefreshesItToo)
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

TEST_F(ScrollBoxBars, AReversedModelTurnsTheBar)
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

TEST_F(ScrollBoxBars, AViewThatFellOffTheEndComesBack)
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

TEST_F(ScrollBoxBars, AViewWhoseRangeComesToFitMovesBackToItsBeginning)
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

TEST_F(ScrollBoxBars, AModelThatRefreshesTheBoxWithinAMoveIsMovedOnce)
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

TEST_F(ScrollBoxBars, ADraggedBarMovesTheModelAndThePane)
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

TEST_F(ScrollBoxBars, TheMouseOnTheThumbScrolls)
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

TEST_F(ScrollBoxBars, ABarOfAReversedModelRunsFromTheOtherEnd)
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

TEST_F(ScrollBoxBars, ADisabledBoxHasDisabledBars)
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

TEST_F(ScrollBoxBars, ABoxThatWasDisabledBeforeHasDisabledBarsToo)
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

TEST_F(ScrollBoxBars, EnablingDoesNotEnableABarWithoutARange)
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

// Bars come and go -------------------------------------------------------------------------------------------------------------

TEST_F(ScrollBoxBars, HasBarsWhileItHasAControl)
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

TEST_F(ScrollBoxBars, BarsAreMadeAnewAndReleasedOnDemand)
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

TEST_F(ScrollBoxBars, WithItsWindowItsBarsGo)
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

TEST_F(ScrollBoxBars, ItsPartsAreItsOwn)
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

TEST_F(ScrollBoxBars, AHolderLaysItsBarOutWithEveryPlace)
{
    CScrollBox::CScrollContainer holder(nullptr, {16, 16}, alNone);
    auto* const child = new CVisualElement(&holder, {5, 5}, alClient);
    holder.SetPos({0, 0, 16, 50}, false);
    EXPECT_EQ(child->GetPos(), (rectangle<int>{0, 0, 16, 50}));
    child->SetPos({1, 2, 3, 4}, false);
    holder.SetPos({0, 0, 16, 50}, false);  // the same place, and yet
    EXPECT_EQ(child->GetPos(), (rectangle<int>{0, 0, 16, 50}));
}

TEST_F(ScrollBoxBars, LongRangesReachTheirEnds)
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
