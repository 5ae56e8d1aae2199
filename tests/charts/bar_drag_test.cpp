// A user drags a section of a bar to another place.

#include "tests/charts/bar_bench.h"
#include "tests/support/slot.h"

#include <gmock/gmock.h>

using namespace vexel;
using namespace vexel::test;
using testing::HasSubstr;
using testing::Not;

namespace
{

// Sections 0 to 50, 50 to 110, 110 to 150; the strip ends at 199. Sections can be dragged.
class BarDrag : public CBarOnSide
{
protected:
    BarDrag()
    {
        m_Bar.SetStyle(CBar::bsResizeSections);
        m_Log.Add(m_Bar.m_SigSectionDropped, "dropped");
    }
    // Ten sections of 50 pixels.
    void MakeLong()
    {
        m_Names.m_Count = 10;
        m_Steps.m_Steps.assign(10, 12.5);
        m_Steps.m_To = 10;
    }
    void Start(int along)
    {
        Press(along);
        Move(along + 4);
        ASSERT_EQ(Dragged(), &m_Bar);
    }
    std::string Drop(int from, int to)
    {
        Start(from);
        Move(to);
        m_Log.Clear();
        Release();
        EXPECT_EQ(m_Bar.GetDragSection(), -1);
        EXPECT_EQ(m_Bar.GetDropTarget(), -1);
        EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
        return m_Log.Take();
    }
    bool CanStart(int along, int across = 10)
    {
        DragInfo info;
        point<int> const where = At(along, across);
        bool const can = m_Bar.HandleStartDragging(where.x, where.y, info);
        m_Bar.HandleDragFinished(nullptr, info);
        return can;
    }
    int TargetAt(int along)
    {
        DragInfo info;
        point<int> const where = At(along);
        EXPECT_TRUE(m_Bar.HandleDragOver(&m_Bar, where.x, where.y, info));
        return m_Bar.GetDropTarget();
    }
    bool IsTimerRunning() { return m_Host.Pending().find("timer") != std::string::npos; }
    // Which way a tick goes: "", "forward", "backward".
    std::string ScrollsAt(int along)
    {
        TargetAt(along);
        double const before = m_Steps.m_Start;
        m_Host.Clock().Advance(100);
        std::string const way = m_Steps.m_Start > before ? "forward" : m_Steps.m_Start < before ? "backward" : "";
        EXPECT_EQ(way.empty(), !IsTimerRunning());
        m_Steps.m_Start = before;
        return way;
    }

    CSignalLog m_Log;
};
INSTANTIATE_TEST_SUITE_P(AtEdge, BarDrag, testing::Values(alTop, alBottom, alLeft, alRight));

}  // namespace

// The start -------------------------------------------------------------------------------------------------------------------

TEST_P(BarDrag, WithEitherStyleASectionCanBeDragged)
{
    unsigned long const styles[] = {0, 1, 2, 3, 4};
    bool const can[] = {false, true, true, true, false};
    for (int i = 0; i < 5; ++i)
    {
        m_Bar.SetStyle(styles[i]);
        EXPECT_EQ(CanStart(70), can[i]) << i;
    }
}

TEST_P(BarDrag, TheDraggedItemIsTheSectionInTheControlsPixels)
{
    DragInfo info;
    point<int> const where = At(70);
    ASSERT_TRUE(m_Bar.HandleStartDragging(where.x, where.y, info));
    EXPECT_EQ(m_Bar.GetDragSection(), 1);
    rectangle<int> expected = Span(50, 110);
    expected.Offset(m_Bar.GetPos().left, m_Bar.GetPos().top);
    EXPECT_EQ(info.m_Rect, expected);
}

TEST_P(BarDrag, InAStripThatBeginsLaterTheItemStandsWhereItIsDrawn)
{
    NarrowPane();
    DragInfo info;
    point<int> const where = At(100);
    ASSERT_TRUE(m_Bar.HandleStartDragging(where.x, where.y, info));
    rectangle<int> expected = Span(80, 140);
    expected.Offset(m_Bar.GetPos().left, m_Bar.GetPos().top);
    EXPECT_EQ(info.m_Rect, expected);
}

TEST_P(BarDrag, OnlySectionsAreDragged)
{
    EXPECT_TRUE(CanStart(48));
    EXPECT_TRUE(CanStart(150));
    EXPECT_FALSE(CanStart(151));
    EXPECT_FALSE(CanStart(-1));
    EXPECT_FALSE(CanStart(70, 21));
    m_Bar.SetCategoryModel(nullptr);
    EXPECT_FALSE(CanStart(70));
}

TEST_P(BarDrag, TwoSelectedSectionsAreNotDragged)
{
    m_Bar.SetSelectedSections({2});
    EXPECT_TRUE(CanStart(70));
    m_Bar.SetSelectedSections({0, 2});
    EXPECT_FALSE(CanStart(70));
    m_Bar.SetSelectedSections({});
    Click(10, ksShift);
    EXPECT_TRUE(CanStart(70));
    Click(70, ksShift);  // a stretch of two
    EXPECT_FALSE(CanStart(70));
    m_Bar.SetSelectedSections({});
    Click(70);
    Click(70, ksShift);  // the same one in both
    EXPECT_FALSE(CanStart(70));
}

TEST_P(BarDrag, NothingIsDraggedDuringAResize)
{
    Press(48);
    EXPECT_EQ(m_Bar.GetState(), CBar::stResizingSection);
    EXPECT_FALSE(CanStart(70));
    Move(60);
    EXPECT_EQ(Dragged(), nullptr);
    Release();
    EXPECT_TRUE(CanStart(70));
}

TEST_P(BarDrag, NothingIsDraggedAtTheRightOfTheElement)
{
    m_Steps.m_Steps = {12.5, 15, 25};  // 110 to 210
    if (IsUpright())
    {
        EXPECT_TRUE(CanStart(70, 16));
        EXPECT_FALSE(CanStart(70, 17));
    }
    else
    {
        EXPECT_TRUE(CanStart(195));
        EXPECT_FALSE(CanStart(196));
    }
}

// The target ------------------------------------------------------------------------------------------------------------------

TEST_P(BarDrag, ItIsDroppedBeforeOrBehindTheSectionUnderThePointer)
{
    EXPECT_EQ(TargetAt(10), 0);
    EXPECT_EQ(TargetAt(25), 0);
    EXPECT_EQ(TargetAt(26), 1);
    EXPECT_EQ(TargetAt(50), 1);
    EXPECT_EQ(TargetAt(80), 1);
    EXPECT_EQ(TargetAt(81), 2);
    EXPECT_EQ(TargetAt(149), 3);
    EXPECT_EQ(TargetAt(150), 3);
    EXPECT_EQ(TargetAt(170), 3);
    EXPECT_EQ(TargetAt(-30), 0);
    EXPECT_EQ(TargetAt(300), 3);
}

TEST_P(BarDrag, BesideTheStripItIsDroppedAtItsEnds)
{
    NarrowPane();
    EXPECT_EQ(TargetAt(10), 0);
    EXPECT_EQ(TargetAt(180), 3);
    EXPECT_EQ(TargetAt(60), 1);
}

TEST_P(BarDrag, WithoutAScrollModelTheViewsStartIsBeforeAll)
{
    m_Bar.SetHorzScroll(nullptr);
    m_Bar.SetVertScroll(nullptr);
    EXPECT_EQ(TargetAt(0), 0);
}

TEST_P(BarDrag, TheFreeEdgeIsNoObstacle)
{
    m_Bar.SetStyle(3);
    m_Steps.m_Steps = {12.5, 15, 25};
    EXPECT_EQ(TargetAt(199), 3);
}

TEST_P(BarDrag, AForeignElementIsNotTaken)
{
    DragInfo info;
    EXPECT_FALSE(m_Bar.HandleDragOver(&m_Pane, 10, 10, info));
    EXPECT_FALSE(m_Bar.HandleDragOver(nullptr, 10, 10, info));
    EXPECT_EQ(m_Bar.GetDropTarget(), -1);
}

// The drop --------------------------------------------------------------------------------------------------------------------

TEST_P(BarDrag, ADropTellsFromAndToAsItStandsAfterwards)
{
    EXPECT_EQ(Drop(10, 81), "dropped(0, 1)");
    EXPECT_EQ(Drop(10, 140), "dropped(0, 2)");
    EXPECT_EQ(Drop(70, 5), "dropped(1, 0)");
    EXPECT_EQ(Drop(120, 30), "dropped(2, 1)");
    EXPECT_EQ(Drop(70, 400), "dropped(1, 2)");
    EXPECT_EQ(Drop(70, -40), "dropped(1, 0)");
}

TEST_P(BarDrag, ADropOnItsOwnPlaceOrJustBehindItTellsNothing)
{
    EXPECT_EQ(Drop(70, 60), "");
    EXPECT_EQ(Drop(70, 100), "");
    EXPECT_EQ(Drop(70, 40), "");
    EXPECT_EQ(Drop(70, 115), "");
}

TEST_P(BarDrag, APressedSectionIsClickedOrMovedBeforeItIsDropped)
{
    m_Log.Add(m_Bar.m_SigSectionMoved, "moved").Add(m_Bar.m_SigSectionClicked, "clicked");
    EXPECT_EQ(Drop(70, 140), "moved(1, 2) dropped(1, 2)");
    Start(54);
    Move(49);
    m_Log.Clear();
    Release();
    EXPECT_EQ(m_Log.Text(), "clicked(1)");
}

TEST_P(BarDrag, ADroppedSectionKeepsItsSelection)
{
    EXPECT_EQ(Drop(70, 140), "dropped(1, 2)");  // the press has selected it
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(m_Bar.GetSelAnchor(), -1);
}

TEST_P(BarDrag, ADroppedSectionOfAStretchKeepsItsSelection)
{
    Start(70);
    m_Bar.SetSelectedSections({});
    CHoldKeys const shift(m_Host, ksShift);
    m_Bar.HandleButtonDown(At(70).x, At(70).y, ksShift, mbLeft);
    EXPECT_EQ(m_Bar.GetRangeSelection().GetSelectedItems(), 1);
    Move(140);
    Release();
    EXPECT_EQ(Selected(), "2");
    EXPECT_TRUE(m_Bar.GetRangeSelection().IsEmpty());
    EXPECT_EQ(m_Bar.GetSelAnchor(), -1);
}

TEST_P(BarDrag, AnotherSelectionStaysUnderADrop)
{
    m_Bar.SetSelectedSections({1, 2});
    Press(70, ksControl);  // takes section 1 out
    Move(74);
    ASSERT_EQ(Dragged(), &m_Bar);
    Move(5);
    Release();
    EXPECT_EQ(m_Log.Text(), "dropped(1, 0)");
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(m_Bar.GetSelAnchor(), 1);
}

TEST_P(BarDrag, ASectionThatGoesIsDroppedNowhere)
{
    Start(120);
    m_Names.m_Count = 2;
    m_Names.m_SigChanged();
    Move(10);
    m_Host.Paint();
    Release();
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Bar.GetDragSection(), -1);
}

TEST_P(BarDrag, ADropWithoutADragTellsNothing)
{
    DragInfo info;
    m_Bar.HandleDropDone(&m_Bar, 10, 10, info);
    TargetAt(140);
    m_Bar.HandleDropDone(&m_Bar, 10, 10, info);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_P(BarDrag, AControlThatIsLeftEndsTheDrag)
{
    MakeLong();
    Start(70);
    Move(300);
    EXPECT_TRUE(IsTimerRunning());
    m_Bar.ReParent(nullptr, true);
    EXPECT_EQ(m_Bar.GetDragSection(), -1);
    EXPECT_EQ(m_Bar.GetDropTarget(), -1);
    EXPECT_FALSE(IsTimerRunning());
    m_Bar.ReParent(m_Host.Root(), true);
}

// Scrolling -------------------------------------------------------------------------------------------------------------------

TEST_P(BarDrag, NearTheEndsTheStripScrolls)
{
    MakeLong();
    m_Steps.m_Start = 2;
    EXPECT_EQ(ScrollsAt(100), "");
    EXPECT_EQ(ScrollsAt(0), "backward");
    EXPECT_EQ(ScrollsAt(-30), "backward");
    EXPECT_EQ(ScrollsAt(1), "backward");  // before section 2, which is the view's start
    EXPECT_EQ(ScrollsAt(26), "");
    EXPECT_EQ(ScrollsAt(175), "");
    EXPECT_EQ(ScrollsAt(176), "forward");  // behind section 5, which ends at 200
    EXPECT_EQ(ScrollsAt(300), "forward");
    EXPECT_EQ(ScrollsAt(100), "");
}

TEST_P(BarDrag, APlaceOnTheViewsEndIsStillInside)
{
    MakeLong();
    m_Steps.m_Start = 0.5;          // sections begin at -25, 25, 75, 125, 175
    EXPECT_EQ(ScrollsAt(199), "");  // before section 4
    EXPECT_EQ(ScrollsAt(200), "forward");
    m_Steps.m_Start = 0;
    m_Steps.m_Steps[0] = 12.25;  // section 4 begins at 199
    EXPECT_EQ(ScrollsAt(180), "");
    EXPECT_EQ(m_Bar.GetDropTarget(), 4);
    m_Steps.m_Steps[0] = 12.5;  // at 200
    EXPECT_EQ(ScrollsAt(180), "forward");
    EXPECT_EQ(m_Bar.GetDropTarget(), 4);
}

// Sections of 50 from 30 on.
TEST_P(BarDrag, InAStripThatBeginsLaterItScrollsByWhereItIsDrawn)
{
    MakeLong();
    NarrowPane();
    m_Steps.m_Start = 2;
    EXPECT_EQ(ScrollsAt(31), "");  // before section 2, at 30
    EXPECT_EQ(ScrollsAt(29), "backward");
    EXPECT_EQ(ScrollsAt(160), "");  // before section 5, at 180
    EXPECT_EQ(ScrollsAt(190), "forward");
    m_Steps.m_Start = 0;
    TargetAt(1);
    EXPECT_FALSE(IsTimerRunning());
    TargetAt(0);  // not inside the view, though section 0 is
    EXPECT_TRUE(IsTimerRunning());
}

// What the timer can reach: 301, where 199 pixels are left.
TEST_P(BarDrag, InAStripThatBeginsLaterADragToItsEndDoesNotScrollBack)
{
    MakeLong();
    NarrowPane();
    m_Steps.m_Start = 5.9;
    EXPECT_EQ(ScrollsAt(300), "forward");
    m_Steps.m_Start = 6.1;
    EXPECT_EQ(ScrollsAt(300), "");
    EXPECT_EQ(m_Bar.GetDropTarget(), 10);
}

TEST_P(BarDrag, AStripThatShowsItsEndDoesNotScrollForward)
{
    EXPECT_EQ(ScrollsAt(300), "");
    MakeLong();
    m_Steps.m_Start = 6.02;  // 301 of 500 pixels, 199 are shown
    EXPECT_EQ(ScrollsAt(300), "");
    m_Steps.m_Start = 5.9;
    EXPECT_EQ(ScrollsAt(300), "forward");
    m_Bar.SetHorzScroll(nullptr);
    m_Bar.SetVertScroll(nullptr);
    EXPECT_EQ(ScrollsAt(300), "");
}

TEST_P(BarDrag, ScrollingBecomesFaster)
{
    MakeLong();
    Start(70);
    Move(300);
    for (double const pixels : {4.0, 8.0, 16.0, 24.0, 36.0, 48.0})
    {
        m_Host.Clock().Advance(100);
        EXPECT_NEAR(m_Steps.m_Start * 50, pixels, 1e-9);
    }
    m_Host.Clock().Advance(1400);
    m_Host.Clock().Advance(50);
    EXPECT_NEAR(m_Steps.m_Start * 50, 301, 1e-9);
    EXPECT_FALSE(IsTimerRunning());
    Release();
}

TEST_P(BarDrag, ScrollingBecomesNoFasterThan32PixelsATick)
{
    m_Names.m_Count = 30;
    m_Steps.m_Steps.assign(30, 12.5);
    m_Steps.m_To = 30;
    Start(70);
    Move(300);
    m_Host.Clock().Advance(99);
    EXPECT_EQ(m_Steps.m_Start, 0);
    m_Host.Clock().Advance(1);
    EXPECT_NEAR(m_Steps.m_Start * 50, 4, 1e-9);
    m_Host.Clock().Advance(1300);  // two of 4, 8, 12, 16, 20, 24 and 28
    EXPECT_NEAR(m_Steps.m_Start * 50, 224, 1e-9);
    for (double const pixels : {256.0, 288.0, 320.0, 352.0, 384.0})
    {
        m_Host.Clock().Advance(100);
        EXPECT_NEAR(m_Steps.m_Start * 50, pixels, 1e-9);
    }
    Release();
}

TEST_P(BarDrag, ATickMovesTheTarget)
{
    MakeLong();
    Start(70);
    m_Host.Paint();
    EXPECT_FALSE(m_Bar.IsTargetChanged());
    Move(300);
    EXPECT_EQ(m_Bar.GetDropTarget(), 10);
    m_Host.Paint();
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Bar.GetDropTarget(), 4);  // 0.08 and the 3.98 of the view
    EXPECT_TRUE(m_Bar.IsTargetChanged());
    m_Host.Paint();
    EXPECT_FALSE(m_Bar.IsTargetChanged());
    Release();
    EXPECT_EQ(m_Log.Text(), "dropped(1, 3)");
    EXPECT_FALSE(IsTimerRunning());
}

// Sections of 50 from 30 on; the view ends at 199.
TEST_P(BarDrag, InAStripThatBeginsLaterATickCountsFromThere)
{
    MakeLong();
    NarrowPane();
    TargetAt(190);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 3);  // 160 / 50 + 0.5
    TargetAt(130);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 2);
    TargetAt(199);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 3);  // 169 / 50
}

TEST_P(BarDrag, AModelThatCountsBelowNothingHasNoTarget)
{
    m_Names.m_Count = -5;
    EXPECT_EQ(TargetAt(70), 0);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 0);
}

TEST_P(BarDrag, TheTargetOfATickGoesByThePointersPlace)
{
    MakeLong();
    m_Steps.m_Start = 1.5;
    TargetAt(100);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 4);  // 1.5 + 2 + 0.5
    TargetAt(99);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 3);
    TargetAt(0);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 2);
    TargetAt(-10);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 2);
    m_Steps.m_Start = 1.25;
    TargetAt(0);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 2);  // the view's start: rounded up
    TargetAt(1);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 1);  // 1.25 + 0.02 + 0.5
    m_Steps.m_Start = 1.5;
    TargetAt(198);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 5);  // 1.5 + 3.96 + 0.5
    TargetAt(199);
    m_Steps.m_Start = 1.99;
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 5);  // the floor of 1.99 + 3.98
    m_Steps.m_Start = 8;
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 10);
    m_Bar.SetHorzScroll(nullptr);
    m_Bar.SetVertScroll(nullptr);
    m_Bar.OnSigTimerTick(nullptr);
    EXPECT_EQ(m_Bar.GetDropTarget(), 10);
}

// The picture -----------------------------------------------------------------------------------------------------------------

namespace
{

std::string Numbers(rectangle<int> const& rect)
{
    return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) + " " +
           std::to_string(rect.bottom);
}

}  // namespace

TEST_P(BarDrag, TheSectionIsDrawnAsItIsNotSelectedAndHalfTransparent)
{
    Start(70);
    Move(90);
    PaintLog const log = m_Host.Paint();
    std::string const extent = IsUpright() ? "20 60" : "60 20";
    std::string const edges = IsUpright() ? "19 60" : "60 19";
    EXPECT_THAT(log,
                Draws("picture BeginPaint 2")
                    .Then("picture SetBrush yellow")
                    .Then("picture FillRect 0 0 " + extent)
                    .Then(IsUpright() ? "picture SetFont \"Square\" 8 rotation 2700" : "picture SetFont \"Square\" 8")
                    .Then("picture SetTextColor blue")
                    .Then("picture DrawString \"B\" 0 0 " + edges + " 0x164")
                    .Then("picture EndPaint")
                    .Then((IsUpright() ? "AlphaBlend 20x60 " : "AlphaBlend 60x20 ") + Numbers(Span(70, 130)) + " 127"));
    m_Bar.SetDragTransparency(55);
    Move(91);
    EXPECT_THAT(m_Host.Paint(), Draws("AlphaBlend * " + Numbers(Span(71, 131)) + " 200"));
}

TEST_P(BarDrag, TheSectionIsKeptInsideTheView)
{
    Start(70);
    Move(500, 150);
    EXPECT_THAT(m_Host.Paint(), Draws("AlphaBlend * " + Numbers(Span(139, 199)) + " 127"));
    Move(-500, -150);
    EXPECT_THAT(m_Host.Paint(), Draws("AlphaBlend * " + Numbers(Span(0, 60)) + " 127"));
}

TEST_P(BarDrag, ASectionLongerThanTheViewIsCutToIt)
{
    m_Steps.m_Steps[1] = 1e6;
    Start(70);
    EXPECT_THAT(m_Host.Paint(), Draws("AlphaBlend * " + Numbers(Span(0, 199)) + " 127"));
}

TEST_P(BarDrag, APointerStandsWhereItWouldBeDropped)
{
    Start(70);
    Move(120);
    auto const at = [this](int along, int across) {
        point<int> const place = At(along, across);
        return std::to_string(place.x) + " " + std::to_string(place.y);
    };
    EXPECT_THAT(m_Host.Paint(), Draws("AlphaBlend*")
                                    .Then("SetPen red")
                                    .Then("SetBrush red")
                                    .Then("MoveTo " + at(110, 20))
                                    .Then("LineTo " + at(110, 35))
                                    .Then("Polygon " + at(110, 20) + " " + at(106, 28) + " " + at(114, 28)));
    Move(140);
    EXPECT_THAT(m_Host.Paint(), Draws("MoveTo " + at(150, 20)));
}

TEST_P(BarDrag, APointerStandsBeforeSectionZeroToo)
{
    Start(70);
    Move(10);
    point<int> const tip = At(0, 20);
    EXPECT_THAT(m_Host.Paint(), Draws("MoveTo " + std::to_string(tip.x) + " " + std::to_string(tip.y)));
}

TEST_P(BarDrag, InAStripThatBeginsLaterThePointerDoesToo)
{
    NarrowPane();
    Start(100);
    Move(150);
    point<int> const tip = At(140, 20);
    EXPECT_THAT(m_Host.Paint(), Draws("MoveTo " + std::to_string(tip.x) + " " + std::to_string(tip.y)));
}

TEST_P(BarDrag, NothingIsLeftOfItAfterwards)
{
    Start(70);
    Move(140);
    m_Host.Paint();
    Release();
    PaintLog const log = m_Host.Paint();
    EXPECT_THAT(log, Not(Draws("AlphaBlend*")));
    EXPECT_THAT(log, Not(Draws("Polygon*")));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(BarDrag, OutsideOfADragAnItemIsNotDrawn)
{
    DragInfo info;
    info.m_Rect = {0, 0, 50, 20};
    m_Host.Paint();
    auto const slot = Listen(m_Bar.m_SigDraw, [&](CVisualElement*, IPainter* painter) {
        m_Bar.HandleDrawDragItem(painter, info, true, nullptr);
    });
    PaintLog const log = Draw();
    EXPECT_THAT(log, Not(Draws("AlphaBlend*")));
    EXPECT_THAT(log, Not(Draws("Polygon*")));
}
