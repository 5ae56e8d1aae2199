// The steps of a splitter's drag one by one: what stands when each signal comes, and what ends a drag.

#include "tests/support/leaf.h"
#include "tests/support/slot.h"
#include "tests/widgets/splitter_bench.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vexel;
using namespace vexel::test;

namespace
{

// The first sibling is 60 thick, the bar 5 and the second one 132.
using SplitterStep = CSplitterBench;

class SplitterStepOnSide : public CSplitterBench, public testing::WithParamInterface<Alignment>
{
protected:
    SplitterStepOnSide() : CSplitterBench(GetParam()) {}
    int Stored() const { return IsSideways() ? m_First.GetSize().width : m_First.GetSize().height; }
};
INSTANTIATE_TEST_SUITE_P(AtEdge, SplitterStepOnSide, testing::Values(alLeft, alRight, alTop, alBottom));

class CTellingSplitter : public CSplitter
{
public:
    using CSplitter::CSplitter;
    std::string m_Calls;

    void DrawHighlighted(bool highlighted) override
    {
        m_Calls += highlighted ? "on " : "off ";
        CSplitter::DrawHighlighted(highlighted);
    }
};

}  // namespace

// Signals and what stands then ------------------------------------------------------------------------------------------------

TEST_P(SplitterStepOnSide, ProposalAndStepComeBeforeAnythingMovesAndTheMoveAfterTheSizeIsKept)
{
    m_Bar.SetRefreshWhileMoving(true);
    std::string story;
    auto const note = [&](char const* what) {
        story += what + std::to_string(Thickness(m_First)) + "," + std::to_string(Stored()) + " ";
    };
    auto const proposed = Listen(m_Bar.m_SizeProposed, [&](CSplitter*, size<int> const&) { note("proposed "); });
    auto const delta = Listen(m_Bar.m_Delta, [&](CSplitter*, int) { note("delta "); });
    auto const moved = Listen(m_Bar.m_Moved, [&](CSplitter*) { note("moved "); });
    Press();
    Pull(10);
    EXPECT_EQ(story, "proposed 60,60 delta 60,60 moved 70,70 ");
}

TEST_P(SplitterStepOnSide, AtTheEndTheSizeIsKeptAndThePointerStillHeld)
{
    int stored = 0;
    bool held = false;
    auto const finished = Listen(m_Bar.m_Finished, [&](CSplitter* bar) {
        stored = Stored();
        held = bar->GetControl()->GetCapture() == bar;
    });
    Press();
    Pull(10);
    m_Host.Mouse().Release();
    EXPECT_EQ(stored, 70);
    EXPECT_TRUE(held);
    EXPECT_EQ(m_Bar.GetControl()->GetCapture(), nullptr);
}

TEST_P(SplitterStepOnSide, TheFirstSiblingMovesBeforeTheBarAndTheSecondOneLast)
{
    CSignalLog places;
    places.Add(m_First.m_SigSize, "first");
    places.Add(m_Bar.m_SigSize, "bar");
    places.Add(m_Second.m_SigSize, "second");
    EXPECT_TRUE(m_Bar.UpdateSplitterPos(10));
    EXPECT_EQ(places.Take(), "first() bar() second()");
    EXPECT_TRUE(m_Bar.UpdateSplitterPos(-10));
    EXPECT_EQ(places.Take(), "first() bar() second()");
    EXPECT_TRUE(m_Bar.UpdateSplitterPos(0));
    EXPECT_EQ(places.Take(), "bar()");
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_P(SplitterStepOnSide, AStepWithoutRoomIsAStepAllTheSame)
{
    m_Bar.SetMinSize(120);
    Press();
    m_Host.Paint();
    EXPECT_TRUE(m_Bar.UpdateElementSize(IsSideways() ? 40 : 2, IsSideways() ? 2 : 40));
    EXPECT_EQ(m_Log.Count("delta"), 1);
    EXPECT_EQ(m_Log.Count("moved"), 0);
    EXPECT_TRUE(m_Bar.HandleMouseMove(IsSideways() ? 40 : 2, IsSideways() ? 2 : 40, 0, mbLeft));
    EXPECT_TRUE(m_Host.IsFramePending());
}

TEST_P(SplitterStepOnSide, TheBarIsHeldWhereItWasPressed)
{
    m_Host.Mouse().Press(m_Bar, IsSideways() ? 4 : 1, IsSideways() ? 1 : 4);
    m_Host.Mouse().Move(m_Bar, 6, 6);
    EXPECT_EQ(m_Log.Take(), "");
    m_Host.Mouse().Move(m_Bar, 12, 12);
    bool const forward = GetParam() == alLeft || GetParam() == alTop;
    EXPECT_EQ(Thickness(m_First), forward ? 68 : 52);
    m_Host.Mouse().Release();

    m_Host.Paint();
    m_Host.Mouse().Press(m_Bar, 0, 0);
    m_Host.Mouse().Move(m_Bar, 5, 5);
    EXPECT_EQ(Thickness(m_First), forward ? 73 : 47);
}

TEST_P(SplitterStepOnSide, WhereTheFirstSiblingWouldBeTooSmallNothingMoves)
{
    m_Bar.SetMinSize(100);
    EXPECT_FALSE(m_Bar.UpdateSplitterPos(60));  // 92 and 100
    EXPECT_EQ(Thickness(m_First), 60);
    EXPECT_EQ(Thickness(m_Bar), 5);
    EXPECT_EQ(Thickness(m_Second), 132);
    m_Bar.SetMinSize(96);
    EXPECT_TRUE(m_Bar.UpdateSplitterPos(60));  // 96 each
    EXPECT_EQ(Thickness(m_First), 96);
    EXPECT_EQ(Thickness(m_Second), 96);
}

TEST_P(SplitterStepOnSide, PointersFarAwayStopAtTheSmallestSizes)
{
    int const least = std::numeric_limits<int>::min();
    int const most = std::numeric_limits<int>::max();
    bool const forward = GetParam() == alLeft || GetParam() == alTop;
    Press();
    EXPECT_TRUE(m_Bar.UpdateElementSize(most, most));
    EXPECT_EQ(Thickness(m_First), forward ? 172 : 20);
    EXPECT_EQ(Thickness(m_Second), forward ? 20 : 172);
    EXPECT_TRUE(m_Bar.UpdateElementSize(least, least));
    EXPECT_EQ(Thickness(m_First), forward ? 20 : 172);
    EXPECT_EQ(Thickness(m_Second), forward ? 172 : 20);
    EXPECT_EQ(Thickness(m_Bar), 5);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(SplitterStepOnSide, TheSizeAlongTheBarIsNotTouched)
{
    m_First.SetPos({0, 0, 33, 44}, false);
    m_Bar.RefreshElementSize();
    EXPECT_EQ(m_First.GetSize(), IsSideways() ? (size<int>{33, 60}) : (size<int>{60, 44}));
}

// What ends a drag ------------------------------------------------------------------------------------------------------------

TEST_F(SplitterStep, AnyOtherButtonOfAMoveLetsThePointerGo)
{
    for (MouseButton const button : {mbNone, mbMiddle, mbRight})
    {
        m_Bar.HandleButtonDown(2, 2, 0, mbLeft);
        ASSERT_EQ(m_Bar.GetControl()->GetCapture(), &m_Bar);
        EXPECT_FALSE(m_Bar.HandleMouseMove(50, 2, 0, button));
        EXPECT_EQ(m_Bar.GetControl()->GetCapture(), nullptr);
        EXPECT_EQ(Thickness(m_First), 60);
    }
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(SplitterStep, ThePointerOfAnotherElementIsNotLetGo)
{
    m_Second.CaptureMouse();
    EXPECT_FALSE(m_Bar.HandleMouseMove(50, 2, 0, mbNone));
    EXPECT_FALSE(m_Bar.HandleMouseMove(50, 2, 0, mbLeft));
    EXPECT_EQ(m_Bar.GetControl()->GetCapture(), &m_Second);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(SplitterStep, AnotherButtonThatGoesDownChangesNothingAndOneThatComesUpEndsTheDrag)
{
    Press();
    EXPECT_FALSE(m_Bar.HandleButtonDown(40, 40, 0, mbRight));
    Pull(10);
    EXPECT_EQ(Thickness(m_First), 70);
    m_Log.Clear();
    m_Bar.HandleButtonUp(2, 2, 0, mbRight);
    EXPECT_EQ(m_Log.Take(), "finished()");
    EXPECT_EQ(m_First.GetSize().width, 70);
    EXPECT_EQ(m_Bar.GetControl()->GetCapture(), nullptr);
}

TEST_F(SplitterStep, AReleaseWithoutADragKeepsTheSizeToo)
{
    m_First.SetPos({0, 0, 80, 199}, false);
    m_Bar.HandleButtonUp(2, 2, 0, mbLeft);
    EXPECT_EQ(m_Log.Take(), "finished()");
    EXPECT_EQ(m_First.GetSize(), (size<int>{80, 60}));
    m_Bar.SetLiveResize(false);
    m_Bar.HandleButtonUp(50, 2, 0, mbLeft);
    EXPECT_EQ(m_Log.Take(), "finished()");
}

TEST_F(SplitterStep, WithoutLiveResizeAWobbleIsNoMove)
{
    m_Bar.SetLiveResize(false);
    Press();
    Pull(2);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "finished()");
    EXPECT_EQ(Thickness(m_First), 60);
}

TEST(SplitterBesideAHiddenSibling, UncoversWhatIsBehind)
{
    for (Alignment const edge : {alLeft, alRight, alTop, alBottom})
        for (int hidden = 0; hidden < 2; ++hidden)
        {
            CTestHost host(200, 200);
            auto* const parent = new CBevel(host.Root(), {0, 0}, alClient);
            parent->SetBkColor(color_table[3]);
            auto* const first = new CLeaf(parent, {60, 60}, edge, 1);
            auto* const bar = new CSplitter(parent, {5, 5}, edge);
            auto* const second = new CLeaf(parent, {0, 0}, alClient, 2);
            bar->SetElements(first, second);
            host.Paint();
            (hidden == 0 ? first : second)->SetVisible(false);
            host.Paint();
            rectangle<int> const before = bar->GetPos();
            host.Mouse().Press(*bar, 2, 2);
            for (int const pull : {10, -10, 15})
            {
                host.Mouse().Move(*bar, 2 + pull, 2 + pull);
                EXPECT_NE(bar->GetPos(), before);
                EXPECT_EQ(host.CompareWithFullPaint(), "") << edge << " " << hidden;
                host.Mouse().Move(*bar, 2 + pull, 2 + pull);
            }
            host.Mouse().Release();
            EXPECT_EQ(host.CompareWithFullPaint(), "");
        }
}

TEST_F(SplitterStep, WithoutLiveResizeAReleaseRefreshesTheWindowWhateverMoved)
{
    m_Bar.SetElements(nullptr, &m_Second);
    for (bool const live : {true, false})
    {
        m_Bar.SetLiveResize(live);
        Press();
        m_Host.Paint();
        m_Host.Mouse().Release();
        EXPECT_EQ(m_Host.IsFramePending(), !live);
        m_Host.Paint();
    }
}

namespace
{

// Siblings that are filled by what stands in them.
class SplitterOfContainers : public testing::TestWithParam<Alignment>
{
protected:
    CVisualElement* NewContainer(size<int> const& extent, Alignment alignment, int look)
    {
        auto* const container = new CVisualElement(m_Host.Root(), extent, alignment);
        new CLeaf(container, {0, 0}, alClient, look);
        return container;
    }

    CTestHost m_Host{200, 200};
};
INSTANTIATE_TEST_SUITE_P(AtEdge, SplitterOfContainers, testing::Values(alLeft, alRight, alTop, alBottom));

}  // namespace

TEST_P(SplitterOfContainers, LooksAsIfPaintedAtOnceHoweverOftenItMovedBefore)
{
    CVisualElement* const first = NewContainer({60, 60}, GetParam(), 1);
    auto* const bar = new CSplitter(m_Host.Root(), {5, 5}, GetParam());
    bar->SetBkColor(color_table[3]);
    bar->SetElements(first, NewContainer({0, 0}, alClient, 2));
    m_Host.Paint();
    for (int const by : {1, 10, 60, -1, -10, -60})
        for (int times = 1; times <= 3; ++times)
        {
            m_Host.Mouse().Press(*bar, 2, 2);
            for (int i = 0; i < times; ++i)
            {
                m_Host.Mouse().Move(*bar, 2 + by + i, 2 + by + i);
                bar->UpdateSplitterPos(by);
            }
            EXPECT_EQ(m_Host.CompareWithFullPaint(), "") << by << " " << times;
            m_Host.Mouse().Release();
            EXPECT_EQ(m_Host.CompareWithFullPaint(), "") << by << " " << times;
        }
}

// Elsewhere -------------------------------------------------------------------------------------------------------------------

TEST_F(SplitterStep, AnotherEdgeTurnsTheDrag)
{
    m_First.SetAlignment(alTop);
    m_Bar.SetAlignment(alTop);
    m_Host.Paint();
    ASSERT_EQ(m_Bar.GetPos(), (rectangle<int>{0, 61, 199, 66}));
    Press();
    m_Host.Mouse().Move(m_Bar, 50, 12);
    EXPECT_EQ(m_Log.Take(), "proposed((60, 70)) delta(10) moved()");
    EXPECT_EQ(m_First.GetPos(), (rectangle<int>{0, 0, 199, 70}));
    m_Host.Mouse().Release();
    EXPECT_EQ(m_First.GetSize(), (size<int>{60, 70}));
}

TEST_F(SplitterStep, AtNoneOfTheEdgesASizeIsNotKeptEither)
{
    m_First.SetPos({0, 0, 80, 90}, false);
    for (Alignment const place : {alNone, alClient})
    {
        m_Bar.SetAlignment(place);
        m_Bar.RefreshElementSize();
        EXPECT_EQ(m_First.GetSize(), (size<int>{60, 60}));
    }
}

TEST(SplitterAlone, OutsideOfAControlStepsMoveTheSiblingsAllTheSame)
{
    CSplitter bar(nullptr, {5, 0}, alLeft);
    CLeaf first(nullptr, {60, 0}, alLeft, 1);
    CLeaf second(nullptr, {60, 0}, alLeft, 2);
    first.SetPos({0, 0, 60, 9}, false);
    bar.SetPos({61, 0, 66, 9}, false);
    second.SetPos({67, 0, 127, 9}, false);
    bar.SetElements(&first, &second);
    EXPECT_FALSE(bar.UpdateElementSize(30, 0));
    EXPECT_FALSE(bar.HandleMouseMove(30, 0, 0, mbLeft));
    EXPECT_TRUE(bar.UpdateSplitterPos(-7));
    EXPECT_EQ(first.GetPos(), (rectangle<int>{0, 0, 53, 9}));
    EXPECT_EQ(bar.GetPos(), (rectangle<int>{54, 0, 59, 9}));
    EXPECT_EQ(second.GetPos(), (rectangle<int>{60, 0, 127, 9}));
    bar.RefreshElementSize();
    EXPECT_EQ(first.GetSize(), (size<int>{53, 0}));
    EXPECT_TRUE(bar.HandleButtonDown(1, 1, 0, mbLeft));
    bar.HandleButtonUp(1, 1, 0, mbLeft);
}

TEST(SplitterAlone, HighlightingIsDoneBeforeItIsTold)
{
    CTestHost host(200, 200);
    auto* const bar = new CTellingSplitter(host.Root(), {5, 0}, alLeft);
    bar->SetBkColor(color_table[3]);
    bar->SetFgColor(color_table[5]);
    bar->SetHighlight(true);
    host.Paint();
    std::string told;
    auto const slot = Listen(bar->m_Highlighted, [&](CSplitter* of, bool on) {
        told += of == bar && of->GetBkColor() == color_table[on ? 5 : 3] ? "done " : "not yet ";
    });
    host.Mouse().Move(*bar, 2, 2);
    EXPECT_EQ(bar->m_Calls, "on ");
    host.Mouse().Leave();
    EXPECT_EQ(bar->m_Calls, "on off ");
    EXPECT_EQ(told, "done done ");
    bar->SetHighlight(false);
    host.Mouse().Move(*bar, 2, 2);
    host.Mouse().Leave();
    EXPECT_EQ(bar->m_Calls, "on off ");
}

namespace
{

class CRepaintingLeaf : public CLeaf
{
public:
    using CLeaf::CLeaf;

    void SetSize(size<int> const& extent, bool scale) override
    {
        CLeaf::SetSize(extent, scale);
        OnChange(this, utElement);
    }
};

}  // namespace

TEST(SplitterAlone, WhatTheFirstSiblingRepaintsForItsNewSizeIsDropped)
{
    CTestHost host(200, 200);
    auto* const first = new CRepaintingLeaf(host.Root(), {60, 0}, alLeft, 1);
    auto* const bar = new CSplitter(host.Root(), {5, 0}, alLeft);
    bar->SetElements(first, new CLeaf(host.Root(), {0, 0}, alClient, 2));
    host.Paint();
    first->SetPos({0, 0, 80, 199}, false);
    host.Paint();
    int const waiting = bar->GetControl()->GetUpdatesLastPos();
    bar->RefreshElementSize();
    EXPECT_EQ(first->GetSize().width, 80);
    EXPECT_EQ(bar->GetControl()->GetUpdatesLastPos(), waiting + 1);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}
