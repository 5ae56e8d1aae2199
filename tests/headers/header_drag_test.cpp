// Dragging the sections of a multi-level header.

#include "tests/headers/tree_bench.h"
#include "tests/support/slot.h"

#include <gmock/gmock.h>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

namespace
{

// A from 0 to 99 with a to 29, b to 69 and c to 99; b has x to 49 and y. B from 100 to 149 and C to the end, 199.
class HeaderDrag : public CTreeBench
{
protected:
    HeaderDrag() : CTreeBench("A(a:30 b(x:20 y:20) c:30) B:50 C:40"), m_Log(m_Header) {}

    // Presses there and moves far enough for a drag, to the second place.
    void Drag(int fromX, int fromY, int toX, int toY)
    {
        Press(fromX, fromY);
        Move(toX, toY);
    }
    void Drop() { m_Host.Mouse().Release(); }
    // The place that a drag from there is told of.
    int TargetOf(int fromX, int fromY, int toX, int toY)
    {
        int target = -1;
        auto const ear = Listen(m_Header.m_SigDragOver, [&](CHeader*, IHeaderItem*, int, int to) { target = to; });
        Drag(fromX, fromY, toX, toY);
        Drop();
        return target;
    }

    CHeaderLog m_Log;
    DragInfo m_Info;
};

}  // namespace

// Beginning ---------------------------------------------------------------------------------------------------------------

TEST_F(HeaderDrag, ASectionIsDraggedFromItsMiddle)
{
    Press(10, 30);
    m_Log.Clear();
    Move(20, 30);
    EXPECT_EQ(m_Log.Take(), "canDrag(a) dragOver(a 0 1)");
    EXPECT_EQ(Dragged(), &m_Header);
    EXPECT_EQ(Doing(), "2 a 0 3");
    EXPECT_EQ(m_Header.GetVisualisationState(&m_Tree["a"]), 3);
    Drop();
    EXPECT_EQ(m_Log.Take(), "dropped(a 0)");
    EXPECT_EQ(Doing(), "0 a -1 1");
    EXPECT_EQ(Dragged(), nullptr);
}

TEST_F(HeaderDrag, WhatLiesUnderThePointerAtTheDropIsHot)
{
    Drag(10, 30, 90, 30);  // over c
    m_Log.Clear();
    m_Host.Paint();
    Drop();
    EXPECT_EQ(m_Log.Take(), "dropped(a 0) canPress(c)");
    EXPECT_EQ(Doing(), "0 c -1 1");
    EXPECT_TRUE(IsRepaintPending(m_Host));
}

TEST_F(HeaderDrag, WithoutATargetNothingIsDropped)
{
    ASSERT_TRUE(m_Header.HandleStartDragging(10, 30, m_Info));
    m_Log.Clear();
    m_Header.HandleDropDone(&m_Header, 10, 30, m_Info);
    EXPECT_EQ(m_Log.Take(), "");
    m_Header.HandleDragFinished(nullptr, m_Info);
}

TEST_F(HeaderDrag, AParentHasNoColumn)
{
    Drag(20, 10, 30, 10);
    EXPECT_EQ(Doing(), "2 A -1 3");
    m_Log.Clear();
    Drop();
    EXPECT_EQ(m_Log.Take(), "dropped(A -1)");
}

TEST_F(HeaderDrag, NeitherGripNorButtonAreDragged)
{
    EXPECT_FALSE(m_Header.HandleStartDragging(27, 30, m_Info));  // a's grip
    EXPECT_FALSE(m_Header.HandleStartDragging(90, 10, m_Info));  // A's button
    EXPECT_TRUE(m_Header.HandleStartDragging(10, 30, m_Info));
    m_Header.HandleDragFinished(nullptr, m_Info);
}

TEST_F(HeaderDrag, WithoutTheStyleNothingIsDragged)
{
    m_Header.SetStyle(CHeader::hsResize | CHeader::hsPress);
    Drag(10, 30, 20, 30);
    EXPECT_EQ(Dragged(), nullptr);
    EXPECT_EQ(Doing(), "3 a 0 3");
    Drop();
}

TEST_F(HeaderDrag, ADraggedSectionLooksPressedAlsoWhereNoneCanBePressed)
{
    m_Header.SetStyle(CHeader::hsDrag);
    Drag(10, 30, 20, 30);
    EXPECT_EQ(Doing(), "2 a 0 3");
    Drop();
}

TEST_F(HeaderDrag, ARefusedDragLeavesThePress)
{
    auto const no = Listen(m_Header.m_SigCanDrag, [](CHeader*, IHeaderItem*, bool* allow) { *allow = false; });
    Drag(10, 30, 20, 30);
    EXPECT_EQ(Dragged(), nullptr);
    EXPECT_EQ(Doing(), "3 a 0 3");
    m_Log.Clear();
    Drop();
    EXPECT_EQ(m_Log.Take(), "clicked(a)");
}

TEST_F(HeaderDrag, AResizeIsNoDrag)
{
    Move(27, 30);
    m_Host.Mouse().Press();
    EXPECT_FALSE(m_Header.HandleStartDragging(10, 30, m_Info));
    m_Host.Mouse().Release();
}

TEST_F(HeaderDrag, TheItemIsTheSectionWithAllBelowItInItsParentsSpan)
{
    ASSERT_TRUE(m_Header.HandleStartDragging(40, 30, m_Info));  // b
    EXPECT_EQ(m_Info.m_Rect, (rectangle<int>{30, 20, 69, 60}));
    EXPECT_EQ(m_Info.m_Bounds, (rectangle<int>{0, 20, 99, 60}));
    EXPECT_NE(m_Info.m_Data, 0);
    m_Header.HandleDragFinished(nullptr, m_Info);
    EXPECT_EQ(m_Info.m_Rect, rectangle<int>());
    EXPECT_EQ(m_Info.m_Bounds, rectangle<int>());
    EXPECT_EQ(m_Info.m_Data, 0);
    ASSERT_TRUE(m_Header.HandleStartDragging(35, 50, m_Info));  // x, below b
    EXPECT_EQ(m_Info.m_Rect, (rectangle<int>{30, 40, 49, 60}));
    EXPECT_EQ(m_Info.m_Bounds, (rectangle<int>{30, 40, 69, 60}));
    m_Header.HandleDragFinished(nullptr, m_Info);
}

TEST_F(HeaderDrag, ATopLevelSectionIsKeptInTheHeaderOrInTheGivenBounds)
{
    ASSERT_TRUE(m_Header.HandleStartDragging(120, 30, m_Info));
    EXPECT_EQ(m_Info.m_Rect, (rectangle<int>{100, 0, 149, 60}));
    EXPECT_EQ(m_Info.m_Bounds, (rectangle<int>{0, 0, 199, 60}));
    m_Header.HandleDragFinished(nullptr, m_Info);
    m_Header.SetDragBounds({10, 0, 150, 60});
    ASSERT_TRUE(m_Header.HandleStartDragging(120, 30, m_Info));
    EXPECT_EQ(m_Info.m_Bounds, (rectangle<int>{10, 0, 150, 60}));
    m_Header.HandleDragFinished(nullptr, m_Info);
}

TEST_F(HeaderDrag, BoundsThatAreEmptyAreTheHeaders)
{
    m_Header.SetDragBounds({150, 0, 10, 60});
    ASSERT_TRUE(m_Header.HandleStartDragging(120, 30, m_Info));
    EXPECT_EQ(m_Info.m_Bounds, (rectangle<int>{0, 0, 199, 60}));
    m_Header.HandleDragFinished(nullptr, m_Info);
}

TEST_F(HeaderDrag, RectanglesAreTheControls)
{
    auto& second = *new CHeader(m_Host.Root(), {30, 60}, alTop);
    second.SetHorzScroll(&m_Scroll);
    second.SetModel(&m_Tree);
    m_Host.Paint();
    ASSERT_EQ(second.GetPos().top, 61);
    ASSERT_TRUE(second.HandleStartDragging(35, 50, m_Info));
    EXPECT_EQ(m_Info.m_Rect, (rectangle<int>{30, 101, 49, 121}));
    EXPECT_EQ(m_Info.m_Bounds, (rectangle<int>{30, 101, 69, 121}));
    second.HandleDragFinished(nullptr, m_Info);
}

// Targets -----------------------------------------------------------------------------------------------------------------

TEST_F(HeaderDrag, TheTargetIsAPlaceAmongTheSiblings)
{
    EXPECT_EQ(TargetOf(10, 30, 14, 30), 0);  // the left half of a, up to 14
    EXPECT_EQ(TargetOf(10, 30, 16, 30), 1);
    EXPECT_EQ(TargetOf(10, 30, 35, 30), 1);  // the left half of b, 30 to 69
    EXPECT_EQ(TargetOf(10, 30, 55, 30), 2);
    EXPECT_EQ(TargetOf(10, 30, 80, 30), 2);
    EXPECT_EQ(TargetOf(10, 30, 90, 30), 3);
}

TEST_F(HeaderDrag, BeforeTheParentTheTargetIsTheFirstAndBehindItTheLast)
{
    EXPECT_EQ(TargetOf(35, 50, 25, 50), 0);  // x in b, 30 to 69
    EXPECT_EQ(TargetOf(35, 50, 75, 50), 2);
    EXPECT_EQ(TargetOf(10, 30, 150, 30), 3);  // a in A, which ends at 99
    EXPECT_EQ(TargetOf(120, 30, -5, 30), 0);
    EXPECT_EQ(TargetOf(120, 30, 205, 30), 3);
}

TEST_F(HeaderDrag, OverASectionBelowTheTargetIsTheSiblingThatHoldsIt)
{
    EXPECT_EQ(TargetOf(10, 30, 45, 50), 1);   // x, in the left half of b
    EXPECT_EQ(TargetOf(10, 30, 55, 50), 2);   // y, in its right half
    EXPECT_EQ(TargetOf(120, 30, 20, 50), 0);  // in A
}

TEST_F(HeaderDrag, OverASectionAboveThereIsNoSiblingAndTheTargetIsTheLast)
{
    EXPECT_EQ(TargetOf(10, 30, 20, 10), 3);   // over A
    EXPECT_EQ(TargetOf(10, 30, 40, 100), 3);  // below the header
}

TEST_F(HeaderDrag, AtTheParentsLeftEdgeThePointerIsNotBeforeIt)
{
    EXPECT_EQ(TargetOf(10, 30, 0, 30), 0);
    EXPECT_EQ(TargetOf(10, 30, 0, 10), 3);  // over A, no sibling
}

TEST_F(HeaderDrag, TheTargetIsAtTheRealPointAlsoOfNarrowSections)
{
    m_Tree.Read("P:50 Q:2 R:2 S:60");  // 0 to 49, 50 to 51, 52 to 53, from 54
    m_Tree.m_SigChanged();
    EXPECT_EQ(TargetOf(10, 30, 50, 30), 1);
    EXPECT_EQ(TargetOf(10, 30, 51, 30), 2);
    EXPECT_EQ(TargetOf(10, 30, 53, 30), 3);
    EXPECT_EQ(TargetOf(10, 30, 54, 30), 3);
}

TEST_F(HeaderDrag, TheOwnerMovesTheSectionToWhereItWasLastOver)
{
    IHeaderItem* over = nullptr;
    int target = -1;
    auto const ear = Listen(m_Header.m_SigDragOver, [&](CHeader*, IHeaderItem* item, int, int to) {
        over = item;
        target = to;
    });
    auto const move = Listen(m_Header.m_SigDropped, [&](CHeader*, IHeaderItem* item, int) {
        EXPECT_EQ(item, over);
        CItemTree::Move(static_cast<CItem*>(item), target);
        m_Tree.m_SigChanged();
    });
    Drag(10, 30, 90, 30);
    Drop();
    EXPECT_EQ(m_Tree.Text(), "A(b(x:20 y:20) c:30 a:30) B C:40");
    EXPECT_EQ(Columns(), "x:20 y:20 c:30 a:30 B:50 C:40");
    Drag(120, 30, 20, 10);  // B over the left half of A
    Drop();
    EXPECT_EQ(m_Tree.Text(), "B A(b(x:20 y:20) c:30 a:30) C:40");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(HeaderDrag, AForeignSourceIsNotTaken)
{
    EXPECT_FALSE(m_Header.HandleDragOver(&m_Pane, 10, 30, m_Info));
    Drag(10, 30, 20, 30);
    m_Log.Clear();
    EXPECT_FALSE(m_Header.HandleDragOver(&m_Pane, 10, 30, m_Info));
    EXPECT_EQ(m_Log.Take(), "");
    Drop();
    EXPECT_FALSE(m_Header.HandleDragOver(&m_Header, 10, 30, m_Info));  // no gesture any more
}

TEST_F(HeaderDrag, ADroppedItemThatHasGoneIsToldToNobody)
{
    Drag(35, 50, 45, 50);
    m_Tree.Remove(&m_Tree["b"]);
    m_Tree.m_SigChanged();
    m_Host.Paint();
    m_Log.Clear();
    Drop();
    EXPECT_EQ(m_Log.Take().find("dropped"), std::string::npos);
    EXPECT_EQ(m_Header.GetProcessing().m_State, 0);
}

// Scrolling ---------------------------------------------------------------------------------------------------------------

TEST_F(HeaderDrag, BeyondTheEndsTheViewScrolls)
{
    m_Scroll.m_Start = 50;
    m_Scroll.m_To = 100;
    Drag(120, 30, 205, 30);
    EXPECT_TRUE(m_Header.IsScrolling());
    m_Host.Clock().Advance(200);
    EXPECT_EQ(m_Scroll.m_Start, 66);
    Move(100, 30);
    EXPECT_FALSE(m_Header.IsScrolling());
    Move(-5, 30);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Scroll.m_Start, 58);
    Drop();
    EXPECT_FALSE(m_Header.IsScrolling());
}

TEST_F(HeaderDrag, TheEndsThemselvesAreInside)
{
    m_Scroll.m_Start = 50;
    m_Scroll.m_To = 100;
    for (auto const& [outside, inside] : std::vector<std::pair<int, int>>{{200, 199}, {-1, 0}})
    {
        Drag(120, 30, outside, 30);
        EXPECT_TRUE(m_Header.IsScrolling()) << outside;
        Move(inside, 30);
        EXPECT_FALSE(m_Header.IsScrolling()) << inside;
        Drop();
    }
}

TEST_F(HeaderDrag, ADragThatIsBrokenOffScrollsNoMore)
{
    Drag(120, 30, 205, 30);
    ASSERT_TRUE(m_Header.IsScrolling());
    DragInfo info;
    m_Header.HandleDragFinished(nullptr, info);
    EXPECT_FALSE(m_Header.IsScrolling());
    Drop();
}

TEST_F(HeaderDrag, AHeaderThatLeavesItsControlForgetsTheDrag)
{
    Drag(120, 30, 205, 30);
    m_Header.ReParent(nullptr, true);
    EXPECT_EQ(Doing(), "0 - -1 0");
    EXPECT_FALSE(m_Header.IsScrolling());
    Drop();
    delete &m_Header;
}

TEST_F(HeaderDrag, ASectionLongerThanItsBoundsIsCutToThem)
{
    m_Tree.Read("A(a:300 b:300) B:50");
    m_Tree.m_SigChanged();
    m_Scroll.m_Start = 20;
    ASSERT_TRUE(m_Header.HandleStartDragging(50, 10, m_Info));
    EXPECT_EQ(m_Info.m_Rect, (rectangle<int>{0, 0, 199, 60}));
    m_Header.HandleDragFinished(nullptr, m_Info);
    ASSERT_TRUE(m_Header.HandleStartDragging(50, 50, m_Info));  // a fits into A
    EXPECT_EQ(m_Info.m_Rect, (rectangle<int>{-20, 30, 279, 60}));
    m_Header.HandleDragFinished(nullptr, m_Info);
}

// What is drawn -------------------------------------------------------------------------------------------------------------

TEST_F(HeaderDrag, TheSectionIsDrawnWithItsSubtreeHalfTransparent)
{
    Drag(40, 30, 50, 30);  // b, 30 to 69; 10 to the right
    PaintLog const log = m_Host.Paint();
    // The picture is 3 wider and 1 higher than the section's 39 x 40.
    EXPECT_THAT(
        log,
        Draws("picture FillRect 0 0 41 40").Then("picture DrawStringEx \"b\"*").Then("picture DrawStringEx \"x\"*"));
    EXPECT_THAT(log, Draws("AlphaBlend 42x41 40 20 81 60 70"));
    EXPECT_THAT(log, Not(Draws("picture DrawStringEx \"a\"*")));
    Drop();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(HeaderDrag, TheSubtreeStandsInThePictureAsOnTheStrip)
{
    Drag(40, 30, 50, 30);
    PaintLog const log = m_Host.Paint();
    EXPECT_THAT(
        log,
        Draws("picture FillRect 0 0 39 19").Then("picture FillRect 0 20 19 40").Then("picture FillRect 20 20 39 40"));
    Drop();
}

TEST_F(HeaderDrag, AWideSectionIsDrawnAsFarAsItShows)
{
    m_Tree.Read("A(a:1000000 b:1000000) B:50");
    m_Tree.m_SigChanged();
    m_Scroll.m_To = 3000000;
    m_Scroll.m_Start = 500000;
    m_Host.Paint();
    Drag(50, 10, 60, 10);
    PaintLog const log = m_Host.Paint();
    EXPECT_THAT(log, Draws("AlphaBlend 202x61 0 0 201 60 70"));
    EXPECT_THAT(log, Not(Draws("picture DrawStringEx \"b\"*")));
    Drop();
}

TEST_F(HeaderDrag, ARedMarkShowsTheTarget)
{
    Drag(10, 30, 35, 30);  // before b, which begins at 30
    PaintLog const log = m_Host.Paint();
    EXPECT_THAT(log, Draws("AlphaBlend*").Then("SetBrush red").Then("Polygon 24 52 36 52 30 58"));
    Move(90, 30);  // behind c, which ends at 99
    EXPECT_THAT(m_Host.Paint(), Draws("SetBrush red").Then("Polygon 93 52 105 52 99 58"));
    Drop();
}

TEST_F(HeaderDrag, TheMarkStaysInTheHeaderAndInsideTheClip)
{
    m_Scroll.m_Start = 10;  // a from -10
    m_Header.Update(utElement);
    m_Host.Paint();
    Drag(5, 50, 12, 50);
    Move(2, 50);
    EXPECT_THAT(m_Host.Paint(), Draws("Polygon -6 52 6 52 0 58"));
    Drop();
    m_Header.DrawDraggingPointer(m_Host.Window().GetPainter(), &m_Tree["B"], 0, {});  // nothing stands there
}

TEST_F(HeaderDrag, TheMarkIsCutOnlyWhereAClipIsGiven)
{
    struct SMarked : CHeader
    {
        using CHeader::CHeader;
        void DrawContent(IPainter* painter) override { DrawDraggingPointer(painter, nullptr, 1, m_Clip); }
        rectangle<double> m_Clip;
    };
    auto& header = *new SMarked(m_Host.Root(), {60, 60}, alTop);
    NameElement(header, "marked");
    header.SetModel(&m_Tree);  // B begins at 100
    m_Host.Paint();
    header.Update(utElement);
    PaintLog const whole = m_Host.Paint().Of("marked");
    EXPECT_THAT(whole, Draws("SetBrush red").Then("Polygon*"));
    EXPECT_THAT(whole, Not(Draws("SetClipRect*")));
    header.m_Clip = {0, 0, 99, 60};
    header.Update(utElement);
    EXPECT_THAT(m_Host.Paint().Of("marked"), Draws("SetClipRect*").Then("Polygon*").Then("ResetClip"));
}
