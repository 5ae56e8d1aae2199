// The bar between two siblings.

#include "vexel/widgets/splitter.h"

#include "tests/support/leaf.h"
#include "tests/support/slot.h"
#include "tests/support/virtual_order.h"
#include "tests/widgets/splitter_bench.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

using Splitter = CSplitterBench;

class SplitterOnSide : public CSplitterBench, public testing::WithParamInterface<Alignment>
{
protected:
    SplitterOnSide() : CSplitterBench(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(AtEdge, SplitterOnSide, testing::Values(alLeft, alRight, alTop, alBottom));

struct SPlaces
{
    rectangle<int> first;
    rectangle<int> bar;
    rectangle<int> second;
};

}  // namespace

// Beginnings ------------------------------------------------------------------------------------------------------------------

TEST(SplitterDefaults, AreAsTold)
{
    CSplitter bar(nullptr, {5, 7}, alLeft);
    EXPECT_EQ(bar.GetFirst(), nullptr);
    EXPECT_EQ(bar.GetSecond(), nullptr);
    EXPECT_EQ(bar.GetMinSize(), 20);
    EXPECT_TRUE(bar.IsLiveResize());
    EXPECT_FALSE(bar.IsRefreshWhileMoving());
    EXPECT_FALSE(bar.IsHighlight());
    EXPECT_EQ(bar.GetShape(), CBevel::ShapeNoFrame);
    EXPECT_EQ(bar.GetSize(), (size<int>{5, 7}));
}

TEST(SplitterDefaults, ANegativeSmallestSizeIsZero)
{
    CSplitter bar(nullptr, {5, 5}, alLeft);
    bar.SetMinSize(-1);
    EXPECT_EQ(bar.GetMinSize(), 0);
    bar.SetMinSize(33);
    EXPECT_EQ(bar.GetMinSize(), 33);
}

TEST(SplitterDefaults, ThePointerIsThatOfTheDirection)
{
    CSplitter bar(nullptr, {5, 5}, alLeft);
    EXPECT_EQ(bar.GetCursor(), 9);
    for (Alignment const edge : {alTop, alRight, alBottom, alNone, alLeft, alClient})
    {
        bar.SetAlignment(edge);
        EXPECT_EQ(bar.GetAlignment(), edge);
        EXPECT_EQ(bar.GetCursor(), edge == alLeft || edge == alRight ? 9 : 7) << edge;
        CSplitter const other(nullptr, {5, 5}, edge);
        EXPECT_EQ(other.GetCursor(), bar.GetCursor());
    }
}

TEST(SplitterVirtualOrder, ItsOneOperationStandsBehindThoseOfABevel)
{
    EXPECT_EQ(Place(&CSplitter::DrawHighlighted), Place(&CBevel::DrawBackground) + 1);
    EXPECT_EQ(Place(&CSplitter::SetPos), Place(&CVisualElement::SetPos));
    EXPECT_EQ(Place(&CSplitter::HandleMouseHover), Place(&CVisualElement::HandleMouseHover));
}

// A drag ----------------------------------------------------------------------------------------------------------------------

TEST_P(SplitterOnSide, TheBarMovesAndTheSiblingsFollow)
{
    SPlaces const before[] = {{},
                              {{0, 0, 60, 199}, {61, 0, 66, 199}, {67, 0, 199, 199}},
                              {{139, 0, 199, 199}, {133, 0, 138, 199}, {0, 0, 132, 199}},
                              {{0, 0, 199, 60}, {0, 61, 199, 66}, {0, 67, 199, 199}},
                              {{0, 139, 199, 199}, {0, 133, 199, 138}, {0, 0, 199, 132}}};
    SPlaces const after[] = {{},
                             {{0, 0, 70, 199}, {71, 0, 76, 199}, {77, 0, 199, 199}},
                             {{129, 0, 199, 199}, {123, 0, 128, 199}, {0, 0, 122, 199}},
                             {{0, 0, 199, 70}, {0, 71, 199, 76}, {0, 77, 199, 199}},
                             {{0, 129, 199, 199}, {0, 123, 199, 128}, {0, 0, 199, 122}}};
    Press();
    EXPECT_EQ(m_Bar.GetControl()->GetCapture(), &m_Bar);
    EXPECT_EQ(m_First.GetPos(), before[GetParam()].first);
    EXPECT_EQ(m_Bar.GetPos(), before[GetParam()].bar);
    EXPECT_EQ(m_Second.GetPos(), before[GetParam()].second);
    EXPECT_EQ(m_Log.Take(), "");

    Pull(10);
    EXPECT_EQ(m_Log.Take(),
              IsSideways() ? "proposed((70, 60)) delta(10) moved()" : "proposed((60, 70)) delta(10) moved()");
    EXPECT_EQ(m_First.GetPos(), after[GetParam()].first);
    EXPECT_EQ(m_Bar.GetPos(), after[GetParam()].bar);
    EXPECT_EQ(m_Second.GetPos(), after[GetParam()].second);
    EXPECT_EQ(m_First.GetSize(), (size<int>{60, 60}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");

    Pull(-3);
    EXPECT_EQ(m_Log.Take(),
              IsSideways() ? "proposed((57, 60)) delta(-3) moved()" : "proposed((60, 57)) delta(-3) moved()");
    EXPECT_EQ(Thickness(m_First), 67);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "finished()");
    EXPECT_EQ(m_First.GetSize(), IsSideways() ? (size<int>{67, 60}) : (size<int>{60, 67}));
    EXPECT_EQ(m_Bar.GetControl()->GetCapture(), nullptr);
    m_Host.Paint();
    EXPECT_EQ(Thickness(m_First), 67);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(SplitterOnSide, ADragOfTwoPixelsMovesNothingAndRaisesNothing)
{
    Press();
    rectangle<int> const before = m_Bar.GetPos();
    for (int const wobble : {1, 2, -1, -2, 0})
        Pull(wobble);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Bar.GetPos(), before);
    Pull(3);
    EXPECT_EQ(m_Log.Count("moved"), 1);
    EXPECT_EQ(Thickness(m_First), 63);
    Pull(-3);
    EXPECT_EQ(Thickness(m_First), 60);
}

TEST_P(SplitterOnSide, AcrossItselfItMovesNothing)
{
    Press();
    m_Host.Mouse().Move(m_Bar, IsSideways() ? 2 : 50, IsSideways() ? 50 : 2);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_P(SplitterOnSide, StopsWhereASiblingIsAtTheSmallestSize)
{
    Press();
    Pull(-50);  // 60 - 50 is 10 less than 20
    EXPECT_EQ(m_Log.Take(),
              IsSideways() ? "proposed((10, 60)) delta(-50) moved()" : "proposed((60, 10)) delta(-50) moved()");
    EXPECT_EQ(Thickness(m_First), 20);
    EXPECT_EQ(Thickness(m_Second), 172);
    Pull(160);  // 172 - 160 is 8 less than 20
    EXPECT_EQ(Thickness(m_First), 172);
    EXPECT_EQ(Thickness(m_Second), 20);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(SplitterOnSide, WithBothSiblingsAtTheSmallestSizeNoDragMovesIt)
{
    m_Host.Resize(48, 48);
    m_First.SetSize({20, 20}, false);
    m_Host.Paint();
    ASSERT_EQ(Thickness(m_First), 20);
    ASSERT_EQ(Thickness(m_Second), 20);  // 0 to 47: 21 pixels, 6 and 21
    Press();
    for (int const pull : {5, -5, 40, -40})
    {
        Pull(pull);
        EXPECT_EQ(Thickness(m_First), 20) << pull;
        EXPECT_EQ(Thickness(m_Second), 20) << pull;
    }
}

TEST_P(SplitterOnSide, WhereASiblingIsTooSmallAlreadyNothingChanges)
{
    m_Bar.SetMinSize(120);
    Press();
    Pull(10);
    EXPECT_EQ(m_Log.Take(), IsSideways() ? "proposed((70, 60)) delta(10)" : "proposed((60, 70)) delta(10)");
    EXPECT_EQ(Thickness(m_First), 60);
    EXPECT_EQ(Thickness(m_Second), 132);
    EXPECT_FALSE(m_Bar.UpdateSplitterPos(10));
}

TEST_P(SplitterOnSide, WithoutLiveResizeAllIsMovedAtTheEnd)
{
    m_Bar.SetLiveResize(false);
    Press();
    Pull(30);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(Thickness(m_First), 60);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), IsSideways() ? "proposed((90, 60)) delta(30) moved() finished()"
                                         : "proposed((60, 90)) delta(30) moved() finished()");
    EXPECT_EQ(Thickness(m_First), 90);
    EXPECT_EQ(m_First.GetSize(), IsSideways() ? (size<int>{90, 60}) : (size<int>{60, 90}));
    EXPECT_TRUE(m_Host.IsFramePending());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Splitter, AReleaseIsToldAlsoWhereNothingMoved)
{
    Press();
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "finished()");
}

TEST_F(Splitter, OnlyTheLeftButtonDrags)
{
    m_Host.Mouse().Press(m_Bar, 2, 2, mbRight);
    EXPECT_EQ(m_Bar.GetControl()->GetCapture(), nullptr);
    Pull(30);
    m_Host.Mouse().Release(mbRight);
    EXPECT_EQ(Thickness(m_First), 60);
    EXPECT_TRUE(m_Bar.HandleButtonDown(1, 1, 0, mbLeft));
    EXPECT_FALSE(m_Bar.HandleButtonDown(1, 1, 0, mbRight));
    EXPECT_FALSE(m_Bar.HandleButtonDown(1, 1, 0, mbMiddle));
}

TEST_F(Splitter, WithoutTheCaptureAMoveDoesNothing)
{
    EXPECT_FALSE(m_Bar.HandleMouseMove(50, 0, 0, mbLeft));
    EXPECT_FALSE(m_Bar.UpdateElementSize(50, 0));
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Splitter, AMoveAnswersWhetherItWasAStep)
{
    Press();
    EXPECT_FALSE(m_Bar.HandleMouseMove(4, 2, 0, mbLeft));
    EXPECT_TRUE(m_Bar.HandleMouseMove(5, 2, 0, mbLeft));
    m_Bar.SetLiveResize(false);
    EXPECT_FALSE(m_Bar.HandleMouseMove(50, 2, 0, mbLeft));
}

TEST_F(Splitter, AReleaseThatWasLostEndsTheDragWithTheNextMove)
{
    Press();
    Pull(10);
    m_Log.Clear();
    m_Host.Mouse().LoseRelease();
    Pull(20);
    EXPECT_EQ(m_Bar.GetControl()->GetCapture(), nullptr);
    EXPECT_EQ(Thickness(m_First), 70);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Splitter, AStepInvalidatesTheWindow)
{
    Press();
    m_Host.Paint();
    ASSERT_FALSE(m_Host.IsFramePending());
    Pull(2);
    EXPECT_FALSE(m_Host.IsFramePending());
    Pull(3);
    EXPECT_TRUE(m_Host.IsFramePending());
}

// The size that is kept -------------------------------------------------------------------------------------------------------

TEST_F(Splitter, WithoutRefreshingTheSizeWaitsForTheEnd)
{
    Press();
    Pull(10);
    EXPECT_EQ(m_First.GetSize().width, 60);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_First.GetSize().width, 70);
}

TEST_F(Splitter, RefreshingWhileMovingSetsItWithEachStep)
{
    m_Bar.SetRefreshWhileMoving(true);
    Press();
    Pull(10);
    EXPECT_EQ(m_First.GetSize().width, 70);
    m_Log.Clear();
    Pull(10);
    EXPECT_EQ(m_Log.Take(), "proposed((80, 60)) delta(10) moved()");
    EXPECT_EQ(m_First.GetSize().width, 80);
}

TEST_F(Splitter, ALayoutThatWaitsFindsTheSizeOfTheStep)
{
    Press();
    m_Host.Root()->OnRearrange(&m_Second);
    ASSERT_TRUE(m_Bar.GetControl()->IsRearrangeNeeded());
    Pull(10);
    EXPECT_EQ(m_First.GetSize().width, 70);
    m_Host.Paint();
    EXPECT_EQ(Thickness(m_First), 70);
}

TEST_F(Splitter, RefreshingRepaintsTheParentAlone)
{
    m_First.SetPos({0, 0, 80, 199}, false);
    m_Host.Paint();
    m_Host.Root()->SetBkColor(color_table[3]);
    m_Host.Paint();
    int const waiting = m_Bar.GetControl()->GetUpdatesLastPos();
    m_Bar.RefreshElementSize();
    EXPECT_EQ(m_First.GetSize(), (size<int>{80, 60}));
    EXPECT_EQ(m_Bar.GetControl()->GetUpdatesLastPos(), waiting + 1);
    EXPECT_TRUE(m_Bar.GetControl()->IsRearrangeNeeded());
}

TEST_F(Splitter, ItsOwnPlaceIsAlwaysLaidOutAndPainted)
{
    m_Host.Paint();
    int sizes = 0;
    auto const slot = Listen(m_Bar.m_SigSize, [&](CVisualElement*) { ++sizes; });
    rectangle<int> const pos = m_Bar.GetPos();
    m_Bar.SetPos(pos, false);
    EXPECT_EQ(sizes, 1);
    EXPECT_EQ(m_Host.Paint().Elements(), "bar");
}

// Steps by program ------------------------------------------------------------------------------------------------------------

TEST_F(Splitter, AStepIsCutToWhatTheSiblingsCanGive)
{
    // 60 and 132.
    EXPECT_EQ(m_Bar.CheckDelta(10), 10);
    EXPECT_EQ(m_Bar.CheckDelta(-40), -40);
    EXPECT_EQ(m_Bar.CheckDelta(-41), -40);
    EXPECT_EQ(m_Bar.CheckDelta(112), 112);
    EXPECT_EQ(m_Bar.CheckDelta(113), 112);
    EXPECT_EQ(m_Bar.CheckDelta(0x7fffffff), 112);
    EXPECT_EQ(m_Bar.CheckDelta(-0x7fffffff - 1), -40);
    m_Bar.SetMinSize(70);
    EXPECT_EQ(m_Bar.CheckDelta(0), 10);  // the first one is 10 short
    EXPECT_EQ(m_Bar.CheckDelta(-5), 10);
    m_Bar.SetMinSize(100);
    EXPECT_EQ(m_Bar.CheckDelta(60), 32);  // 120 and 72: 28 short
    EXPECT_EQ(m_Bar.CheckDelta(30), 40);  // 90: the first one is asked first
    EXPECT_EQ(m_Bar.CheckDelta(35), 40);  // 95 and 97: the first one alone
    EXPECT_EQ(m_Bar.CheckDelta(40), 32);  // 100 and 92: the second one
}

TEST_F(Splitter, AtNoneOfTheEdgesNothingMoves)
{
    for (Alignment const place : {alNone, alClient})
    {
        m_Bar.SetAlignment(place);
        EXPECT_FALSE(m_Bar.UpdateSplitterPos(10));
        EXPECT_EQ(m_First.GetPos(), (rectangle<int>{0, 0, 60, 199}));
    }
}

TEST_F(Splitter, WithoutBothSiblingsNothingMoves)
{
    m_Bar.SetElements(&m_First, nullptr);
    EXPECT_FALSE(m_Bar.UpdateSplitterPos(10));
    EXPECT_EQ(m_Bar.CheckDelta(10), 10);
    m_Bar.SetElements(nullptr, &m_Second);
    EXPECT_FALSE(m_Bar.UpdateSplitterPos(10));
    Press();
    Pull(20);
    EXPECT_EQ(m_Log.Take(), "");
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "finished()");
}

TEST_F(Splitter, SiblingsThatDieAreForgotten)
{
    delete &m_First;
    EXPECT_EQ(m_Bar.GetFirst(), nullptr);
    delete &m_Second;
    EXPECT_EQ(m_Bar.GetSecond(), nullptr);
    Press();
    Pull(20);
    m_Host.Mouse().Release();
    m_Bar.RefreshElementSize();
    EXPECT_EQ(m_Log.Take(), "finished()");
}

TEST(SplitterFollowing, OneSplitterMovesAnother)
{
    CTestHost host(200, 200);
    auto* const upper = new CVisualElement(host.Root(), {0, 100}, alTop);
    auto* const lower = new CVisualElement(host.Root(), {0, 0}, alClient);
    CSplitter* bars[2];
    CLeaf* firsts[2];
    for (int i = 0; i < 2; ++i)
    {
        CVisualElement* const parent = i == 0 ? upper : lower;
        firsts[i] = new CLeaf(parent, {60, 0}, alLeft, 1);
        bars[i] = new CSplitter(parent, {5, 0}, alLeft);
        bars[i]->SetElements(firsts[i], new CLeaf(parent, {0, 0}, alClient, 2));
    }
    bars[0]->m_Delta.connect(bars[1], &CSplitter::HandleUpdateSplitterPos);
    bars[0]->m_Finished.connect(bars[1], &CSplitter::HandleRefreshSizes);
    host.Paint();
    host.Mouse().Press(*bars[0], 2, 2);
    host.Mouse().Move(*bars[0], 12, 2);
    EXPECT_EQ(firsts[1]->GetPos().Width(), 70);
    EXPECT_EQ(firsts[1]->GetSize().width, 60);
    host.Mouse().Release();
    EXPECT_EQ(firsts[1]->GetSize().width, 70);
    host.Paint();
    EXPECT_EQ(firsts[1]->GetPos().Width(), 70);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST(SplitterScaled, WhatItIsMadeWithScalesAndTheSmallestSizeDoesNot)
{
    CTestHost host(200, 200, 1.5);
    auto* const first = new CLeaf(host.Root(), {60, 0}, alLeft, 1);
    auto* const bar = new CSplitter(host.Root(), {5, 0}, alLeft);
    auto* const second = new CLeaf(host.Root(), {0, 0}, alClient, 2);
    bar->SetElements(first, second);
    host.Paint();
    EXPECT_EQ(first->GetPos(), (rectangle<int>{0, 0, 90, 199}));
    EXPECT_EQ(bar->GetPos(), (rectangle<int>{91, 0, 98, 199}));
    EXPECT_EQ(bar->CheckDelta(-100), -70);
    host.Mouse().Drag(*bar, 2, 2, 12, 2, 1);
    EXPECT_EQ(first->GetPos(), (rectangle<int>{0, 0, 100, 199}));
    host.Mouse().Release();
    EXPECT_EQ(first->GetSize().width, 100);
    host.Paint();
    EXPECT_EQ(first->GetPos(), (rectangle<int>{0, 0, 100, 199}));
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

// Highlighting ----------------------------------------------------------------------------------------------------------------

TEST_F(Splitter, WithHighlightingTheColoursSwapUnderThePointer)
{
    m_Bar.SetBkColor(color_table[3]);
    m_Bar.SetFgColor(ISysPalette::scHighlight);
    _color const front = m_Bar.GetFgColor();
    m_Bar.SetHighlight(true);
    m_Host.Mouse().Move(m_Bar, 2, 2);
    EXPECT_EQ(m_Log.Take(), "highlighted(true)");
    EXPECT_EQ(m_Bar.GetFgColor(), color_table[3]);
    EXPECT_EQ(m_Bar.GetBkColor(), front);
    EXPECT_EQ(m_Bar.GetBkSysColor(), ISysPalette::scHighlight);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Host.Mouse().Leave();
    EXPECT_EQ(m_Log.Take(), "highlighted(false)");
    EXPECT_EQ(m_Bar.GetBkColor(), color_table[3]);
    EXPECT_EQ(m_Bar.GetFgSysColor(), ISysPalette::scHighlight);
}

TEST_F(Splitter, WithoutItNothingHappens)
{
    _color const back = m_Bar.GetBkColor();
    m_Host.Mouse().Move(m_Bar, 2, 2);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Bar.GetBkColor(), back);
}

TEST_F(Splitter, TheSwapGoesByTheCallsAndNotByTheArgument)
{
    m_Bar.SetBkColor(color_table[3]);
    m_Bar.SetFgColor(color_table[5]);
    m_Bar.DrawHighlighted(false);
    EXPECT_EQ(m_Bar.GetBkColor(), color_table[5]);
    EXPECT_EQ(m_Bar.GetFgColor(), color_table[3]);
    m_Bar.DrawHighlighted(false);
    EXPECT_EQ(m_Bar.GetBkColor(), color_table[3]);
    EXPECT_EQ(m_Bar.GetFgColor(), color_table[5]);
}
