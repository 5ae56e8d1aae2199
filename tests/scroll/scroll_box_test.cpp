// A box around a scrolled pane: how moves get through it, and whom it connects.

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

}  // namespace
