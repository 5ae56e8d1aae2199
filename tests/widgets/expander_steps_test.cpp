// The parts of an expander's work one by one: its directions, its steps, and what stands when it tells of them.

#include "tests/support/leaf.h"
#include "tests/support/slot.h"
#include "tests/widgets/expander_bench.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/expander_logic.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <utility>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A title of 30 x 20 and a body of 50 x 40.
using ExpanderStep = CExpanderBench;

class ExpanderAtSide : public testing::TestWithParam<Alignment>
{};
INSTANTIATE_TEST_SUITE_P(Side, ExpanderAtSide, testing::Values(alLeft, alRight, alTop, alBottom));

class CWaitingExpander : public CExpander
{
public:
    using CExpander::CExpander;
    using CExpander::InternalProcessData;
};

// An expander on its own with a title of 30 x 20 and a body of 48 x 40.
struct SPieces
{
    explicit SPieces(CExpander::ExpandDirection direction)
    {
        expander.SetExpandDirection(direction);
        expander.SetTitle(title);
        expander.SetBody(body);
    }
    CExpander expander{nullptr, {78, 60}, alNone};
    CLeaf* const title = new CLeaf(nullptr, {30, 20}, alNone, 1);
    CLeaf* const body = new CLeaf(nullptr, {48, 40}, alNone, 2);
};

}  // namespace

// Directions ------------------------------------------------------------------------------------------------------------------

TEST(ExpanderLogicAlone, StepsOfHeightsAnswerWhetherTheEndIsReached)
{
    SPieces it(CExpander::ExpandTopBottom);
    CTopBottomExpanderLogic logic;
    EXPECT_TRUE(logic.IsExpanded(&it.expander));
    for (int const extent : {50, 40, 30, 20})
    {
        EXPECT_FALSE(logic.UpdateSize(&it.expander, false));
        EXPECT_EQ(it.expander.GetSize(), (size<int>{78, extent}));
        EXPECT_TRUE(it.body->IsVisible());
    }
    EXPECT_TRUE(logic.UpdateSize(&it.expander, false));
    EXPECT_EQ(it.expander.GetSize(), (size<int>{78, 20}));
    EXPECT_FALSE(it.body->IsVisible());
    EXPECT_FALSE(logic.IsExpanded(&it.expander));

    it.body->SetVisible(true);
    it.expander.SetHeight(25, false);
    for (int const extent : {35, 45, 55})
    {
        EXPECT_FALSE(logic.UpdateSize(&it.expander, true));
        EXPECT_EQ(it.expander.GetSize(), (size<int>{78, extent}));
    }
    EXPECT_TRUE(logic.UpdateSize(&it.expander, true));
    EXPECT_EQ(it.expander.GetSize(), (size<int>{78, 60}));
    EXPECT_TRUE(logic.UpdateSize(&it.expander, true));
    EXPECT_EQ(it.expander.GetSize(), (size<int>{78, 60}));
}

TEST(ExpanderLogicAlone, StepsOfWidthsDoTheSame)
{
    SPieces it(CExpander::ExpandLeftRight);
    CLeftRightExpanderLogic logic;
    EXPECT_TRUE(logic.IsExpanded(&it.expander));
    for (int const extent : {66, 54, 42, 30})
    {
        EXPECT_FALSE(logic.UpdateSize(&it.expander, false));
        EXPECT_EQ(it.expander.GetSize(), (size<int>{extent, 60}));
    }
    EXPECT_TRUE(logic.UpdateSize(&it.expander, false));
    EXPECT_EQ(it.expander.GetSize(), (size<int>{30, 60}));
    EXPECT_FALSE(it.body->IsVisible());
    it.body->SetVisible(true);
    it.expander.SetWidth(30, false);
    for (int const extent : {42, 54, 66})
    {
        EXPECT_FALSE(logic.UpdateSize(&it.expander, true));
        EXPECT_EQ(it.expander.GetSize(), (size<int>{extent, 60}));
    }
    EXPECT_TRUE(logic.UpdateSize(&it.expander, true));
    EXPECT_EQ(it.expander.GetSize(), (size<int>{78, 60}));
}

TEST(ExpanderLogicAlone, AtOnceItShowsOrHidesTheBodyAndAsksForTheRoom)
{
    SPieces wide(CExpander::ExpandRightLeft);
    CRightLeftExpanderLogic widths;
    widths.Expand(&wide.expander, false);
    EXPECT_FALSE(widths.IsExpanded(&wide.expander));
    EXPECT_EQ(wide.expander.GetSize(), (size<int>{30, 60}));
    widths.Expand(&wide.expander, true);
    EXPECT_TRUE(widths.IsExpanded(&wide.expander));
    EXPECT_EQ(wide.expander.GetSize(), (size<int>{78, 60}));

    SPieces high(CExpander::ExpandBottomTop);
    CBottomTopExpanderLogic heights;
    heights.Expand(&high.expander, false);
    EXPECT_FALSE(heights.IsExpanded(&high.expander));
    EXPECT_EQ(high.expander.GetSize(), (size<int>{78, 20}));
    heights.Expand(&high.expander, true);
    EXPECT_TRUE(heights.IsExpanded(&high.expander));
    EXPECT_EQ(high.expander.GetSize(), (size<int>{78, 60}));
}

TEST(ExpanderLogicAlone, ItDocksTitleAndBody)
{
    CExpander expander(nullptr, {10, 10}, alTop);
    auto* const title = new CLeaf(nullptr, {30, 20}, alNone, 1);
    auto* const body = new CLeaf(nullptr, {30, 20}, alNone, 2);
    CRightLeftExpanderLogic logic;
    logic.UpdateTitle(&expander, title);
    logic.UpdateBody(&expander, body);
    EXPECT_EQ(title->GetAlignment(), alRight);
    EXPECT_EQ(title->GetParent(), &expander);
    EXPECT_EQ(body->GetAlignment(), alClient);
    EXPECT_EQ(body->GetParent(), &expander);
    logic.UpdateTitle(&expander, nullptr);
    logic.UpdateBody(&expander, nullptr);
    EXPECT_EQ(expander.GetChildren()->GetCount(), 2);
}

TEST_F(ExpanderStep, AnotherDirectionKeepsTheBody)
{
    m_Expander.SetExpandDirection(CExpander::ExpandBottomTop);
    EXPECT_EQ(m_Expander.GetBody(), &m_Body);
    EXPECT_EQ(m_Body.GetParent(), &m_Expander);
    EXPECT_EQ(m_Title.GetParent(), nullptr);
    m_Expander.SetTitle(&m_Title);
    EXPECT_EQ(m_Title.GetAlignment(), alBottom);
    EXPECT_EQ(Extent(), 60);
    m_Expander.SetExpandDirection(static_cast<CExpander::ExpandDirection>(-1));
    EXPECT_EQ(m_Expander.GetExpandDirection(), -1);
    EXPECT_EQ(m_Expander.GetTitle(), nullptr);
    m_Expander.SetTitle(&m_Title);
    EXPECT_EQ(m_Title.GetAlignment(), alTop);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ExpanderStep, APartThatIsSetAgainStays)
{
    m_Expander.SetTitle(&m_Title);
    m_Expander.SetBody(&m_Body);
    EXPECT_EQ(m_Expander.GetTitle(), &m_Title);
    EXPECT_EQ(m_Expander.GetBody(), &m_Body);
    EXPECT_EQ(m_Title.GetParent(), &m_Expander);
    EXPECT_EQ(m_Body.GetParent(), &m_Expander);
    EXPECT_EQ(m_Expander.GetChildren()->GetCount(), 2);
    EXPECT_EQ(Extent(), 60);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// When it is told -------------------------------------------------------------------------------------------------------------

TEST_F(ExpanderStep, AtOnceItIsToldWhenAllIsDone)
{
    std::string story;
    m_Expander.m_Deed = [&] { story = std::to_string(Extent()) + (m_Body.IsVisible() ? " shown" : " hidden"); };
    m_Expander.Expand(false, false);
    EXPECT_EQ(story, "20 hidden");
    m_Expander.m_Deed = [&] { story = std::to_string(Extent()) + (m_Body.IsVisible() ? " shown" : " hidden"); };
    m_Expander.Expand(true, false);
    EXPECT_EQ(story, "60 shown");
}

TEST_F(ExpanderStep, InStepsItIsToldWhenTheyHaveBegun)
{
    std::string story;
    m_Expander.m_Deed = [&] { story = std::to_string(Extent()) + (IsRunning() ? " running" : " at rest"); };
    m_Expander.Expand(false, true);
    EXPECT_EQ(story, "60 running");
    EXPECT_TRUE(m_Expander.IsSizing());
}

TEST_F(ExpanderStep, ToldOfAnExpandItMayTurnAround)
{
    m_Expander.m_Deed = [&] { m_Expander.Expand(true, true); };
    m_Expander.Expand(false, true);
    EXPECT_EQ(m_Expander.m_Calls, "close open ");
    EXPECT_TRUE(m_Expander.IsExpanded());
    Step();
    EXPECT_EQ(Extent(), 60);
    EXPECT_FALSE(IsRunning());
}

// Steps -----------------------------------------------------------------------------------------------------------------------

TEST_F(ExpanderStep, WhatIsOpenOpensInOneStepAndWhatIsClosedCloses)
{
    m_Expander.Expand(true, true);
    EXPECT_TRUE(m_Expander.IsExpanded());
    Step();
    EXPECT_EQ(Extent(), 60);
    EXPECT_FALSE(m_Expander.IsSizing());
    EXPECT_FALSE(IsRunning());

    m_Expander.Expand(false, false);
    m_Expander.Expand(false, true);
    EXPECT_FALSE(m_Expander.IsExpanded());
    Step();
    EXPECT_EQ(Extent(), 20);
    EXPECT_FALSE(m_Body.IsVisible());
    EXPECT_FALSE(m_Expander.IsSizing());
    EXPECT_FALSE(IsRunning());
}

TEST_F(ExpanderStep, AStepWithoutStepsUnderWayDoesNothing)
{
    m_Expander.UpdateSize();
    EXPECT_EQ(Extent(), 60);
    EXPECT_TRUE(m_Body.IsVisible());
    m_Expander.Expand(false, false);
    m_Expander.UpdateSize();
    EXPECT_EQ(Extent(), 20);
    EXPECT_FALSE(m_Body.IsVisible());
}

TEST_F(ExpanderStep, AStepByHandIsOneOfThem)
{
    m_Expander.Expand(false, true);
    m_Expander.UpdateSize();
    EXPECT_EQ(Extent(), 50);
    Step();
    EXPECT_EQ(Extent(), 40);
    for (int i = 0; i < 3; ++i)
        m_Expander.UpdateSize();
    EXPECT_EQ(Extent(), 20);
    EXPECT_FALSE(IsRunning());
}

TEST_P(ExpanderAtSide, ABodyThatHasNoRoomAmidTheStepsLeavesNothingBesideTheFrame)
{
    // Steps of 16 from 72 to 8, where the body still shows; it is hidden in the one after.
    CTestHost host(200, 200);
    auto* const parent = new CBevel(host.Root(), {0, 0}, alClient);
    parent->SetBkColor(color_table[3]);
    auto* const expander = new CExpander(parent, {0, 0}, GetParam());
    bool const sideways = GetParam() == alLeft || GetParam() == alRight;
    auto* const body = new CBevel(nullptr, {64, 64}, alNone);
    body->SetBkColor(color_table[5]);
    auto* const inside = new CLeaf(body, {0, 0}, alClient, 2);
    expander->SetBody(body);
    for (bool const backward : {false, true})
    {
        std::unique_ptr<CVisualElement> const former(expander->GetTitle());
        expander->SetExpandDirection(sideways ? (backward ? CExpander::ExpandRightLeft : CExpander::ExpandLeftRight)
                                              : (backward ? CExpander::ExpandBottomTop : CExpander::ExpandTopBottom));
        expander->SetTitle(new CLeaf(nullptr, {8, 8}, alNone, 1));
        for (bool const open : {false, true, false, true})
        {
            expander->Expand(open, true);
            for (int i = 0; i < 6; ++i)
            {
                host.StepBackground();
                host.RunPending();
                host.Clock().Advance(10);
                EXPECT_EQ(host.CompareWithFullPaint(), "") << open << " " << i;
                inside->SetVisible(!inside->IsVisible());  // the body asks for a layout of its own
                EXPECT_EQ(host.CompareWithFullPaint(), "") << open << " " << i;
            }
            EXPECT_FALSE(expander->IsSizing());
        }
    }
}

TEST(ExpanderTask, ItsRoundsGoOnAsLongAsThereAreSteps)
{
    CTestHost host(200, 200);
    auto* const expander = new CWaitingExpander(host.Root(), {30, 10}, alTop);
    expander->SetTitle(new CLeaf(nullptr, {30, 20}, alNone, 1));
    expander->SetBody(new CLeaf(nullptr, {30, 40}, alNone, 2));
    host.Paint();
    EXPECT_FALSE(expander->InternalProcessData());
    expander->Expand(false, true);
    EXPECT_TRUE(expander->InternalProcessData());
    expander->Expand(true, true);
    EXPECT_TRUE(expander->InternalProcessData());
    expander->StopSizing();
    EXPECT_FALSE(expander->InternalProcessData());
}

TEST_F(ExpanderStep, AnotherDirectionAmidTheStepsGoesOnInTheOtherExtent)
{
    m_Expander.Expand(false, true);
    Step();
    EXPECT_EQ(m_Expander.GetSize(), (size<int>{30, 50}));
    m_Expander.SetExpandDirection(CExpander::ExpandLeftRight);
    EXPECT_EQ(m_Expander.GetSize(), (size<int>{30, 50}));
    for (int const extent : {18, 6, 0})  // a body of 50 by 12, and no title
    {
        EXPECT_TRUE(m_Expander.IsSizing());
        Step();
        EXPECT_EQ(m_Expander.GetSize(), (size<int>{extent, 50}));
    }
    EXPECT_FALSE(m_Expander.IsSizing());
    EXPECT_FALSE(IsRunning());
    delete &m_Title;
}

TEST_F(ExpanderStep, ABodyThatIsTakenAwayAmidTheStepsLeavesThemWithoutAStep)
{
    m_Expander.Expand(false, true);
    Step();
    m_Expander.SetBody(nullptr);
    for (int i = 0; i < 5; ++i)
        Step();
    EXPECT_EQ(Extent(), 50);
    m_Expander.SetBody(&m_Body);
    Step();
    EXPECT_EQ(Extent(), 40);
    m_Expander.SetBody(nullptr);
    m_Expander.Expand(true, true);
    Step();
    EXPECT_EQ(Extent(), 20);  // beyond title and nothing
    EXPECT_FALSE(m_Expander.IsSizing());
    EXPECT_FALSE(m_Expander.IsExpanded());
    delete &m_Body;
}

TEST_F(ExpanderStep, PartsOfAnyExtentAreAdded)
{
    int const most = std::numeric_limits<int>::max();
    m_Body.SetHeight(most, false);
    EXPECT_EQ(Extent(), most);
    m_Expander.Expand(false, false);
    EXPECT_EQ(Extent(), 20);
    m_Expander.Expand(true, true);
    for (int i = 0; i < 8 && m_Expander.IsSizing(); ++i)
        m_Expander.UpdateSize();
    EXPECT_EQ(Extent(), most);
    EXPECT_FALSE(m_Expander.IsSizing());
    m_Title.SetHeight(most, false);
    EXPECT_EQ(Extent(), most);
    m_Expander.SetOffset({most, most, most, most});
    m_Expander.Expand(false, false);
    EXPECT_EQ(Extent(), most);
    m_Body.SetHeight(40, false);
    m_Title.SetHeight(20, false);
    m_Expander.SetOffset({0, -100, 0, 0});
    m_Expander.Expand(true, false);
    EXPECT_EQ(Extent(), 0);
    m_Expander.SetOffset({0, 0, 0, 0});
    m_Expander.Expand(true, false);
    EXPECT_EQ(Extent(), 60);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ExpanderStep, OfTwoThatMoveEachHasItsOwnSteps)
{
    auto* const other = new CTestExpander(&m_Parent, {30, 10}, alTop);
    other->SetTitle(new CLeaf(nullptr, {30, 10}, alNone, 4));
    other->SetBody(new CLeaf(nullptr, {30, 80}, alNone, 5));
    m_Host.Paint();
    m_Expander.Expand(false, true);
    other->Expand(false, true);
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 2);
    Step();
    EXPECT_EQ(Extent(), 50);
    EXPECT_EQ(other->GetSize().height, 70);
    m_Expander.StopSizing();
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 1);
    Step();
    EXPECT_EQ(Extent(), 50);
    EXPECT_EQ(other->GetSize().height, 50);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ExpanderStep, TurnedAroundAsTheBodyIsHiddenItOpensAgain)
{
    m_Expander.Expand(false, true);
    bool turned = false;
    auto const slot = Listen(m_Body.m_SigVisible, [&](CVisualElement*, bool shown) {
        if (!shown && !std::exchange(turned, true))
            m_Expander.Expand(true, true);
    });
    for (int i = 0; i < 5; ++i)
        Step();
    EXPECT_TRUE(turned);
    EXPECT_TRUE(m_Expander.IsSizing());
    EXPECT_TRUE(m_Expander.IsExpanded());
    for (int i = 0; i < 4; ++i)
        Step();
    EXPECT_EQ(Extent(), 60);
    EXPECT_FALSE(m_Expander.IsSizing());
}

TEST_F(ExpanderStep, TurnedAroundAsTheBodyIsShownItClosesAgain)
{
    m_Expander.Expand(false, false);
    m_Expander.SetHeight(59, false);
    m_Expander.Expand(true, true);
    auto const slot = Listen(m_Body.m_SigVisible, [&](CVisualElement*, bool shown) {
        if (shown)
            m_Expander.Expand(false, true);
    });
    Step();  // the last one
    EXPECT_EQ(Extent(), 60);
    EXPECT_TRUE(m_Expander.IsSizing());
    EXPECT_FALSE(m_Expander.IsExpanded());
    for (int i = 0; i < 5; ++i)
        Step();
    EXPECT_EQ(Extent(), 20);
    EXPECT_FALSE(m_Body.IsVisible());
}

TEST_P(ExpanderAtSide, TheFrameShowsBesideABodyWithoutExtent)
{
    // A step of 10 from 31 leaves a line of pixels beside the title.
    CTestHost host(200, 200);
    bool const sideways = GetParam() == alLeft || GetParam() == alRight;
    auto* const expander = new CExpander(host.Root(), {0, 0}, GetParam());
    new CLeaf(host.Root(), {0, 0}, alClient, 3);
    expander->SetBkColor(color_table[3]);
    expander->SetExpandDirection(sideways ? CExpander::ExpandLeftRight : CExpander::ExpandTopBottom);
    expander->SetTitle(new CLeaf(nullptr, {20, 20}, alNone, 1));
    expander->SetBody(new CLeaf(nullptr, {40, 40}, alNone, 2));
    expander->SetSize({31, 31}, false);
    host.Paint();
    expander->Expand(false, true);
    host.StepBackground();
    host.RunPending();
    EXPECT_EQ(expander->GetSize(), sideways ? (size<int>{21, 31}) : (size<int>{31, 21}));
    EXPECT_EQ(host.CompareWithFullPaint(), "");
    expander->StopSizing();
}

TEST(ExpanderLayout, AChangeWithinABodyWithRoomLaysOutTheBodyAlone)
{
    CTestHost host(200, 200);
    auto* const expander = new CExpander(host.Root(), {0, 0}, alTop);
    auto* const title = new CLeaf(nullptr, {20, 20}, alNone, 1);
    auto* const body = new CVisualElement(nullptr, {40, 40}, alNone);
    auto* const inside = new CLeaf(body, {0, 10}, alTop, 2);
    expander->SetTitle(title);
    expander->SetBody(body);
    host.Paint();
    int titles = 0;
    int bodies = 0;
    auto const titled = Listen(title->m_SigSize, [&](CVisualElement*) { ++titles; });
    auto const bodied = Listen(body->m_SigSize, [&](CVisualElement*) { ++bodies; });
    inside->SetHeight(15, false);
    host.Paint();
    EXPECT_EQ(titles, 0);
    EXPECT_EQ(bodies, 1);
    EXPECT_EQ(inside->GetPos(), (rectangle<int>{0, 0, 199, 15}));
}

namespace
{

// Makes the title larger as the expander asks for a layout.
class CTitleGrower : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    CVisualElement* m_Title = nullptr;

    void ProcessRearrange(CVisualElement**) override
    {
        if (m_Title)
            std::exchange(m_Title, nullptr)->SetHeight(30, false);
    }
};

}  // namespace

TEST(ExpanderLayout, APartThatChangesAsTheExpanderAsksForALayoutCounts)
{
    CTestHost host(200, 200);
    auto* const parent = new CTitleGrower(host.Root(), {0, 0}, alClient);
    auto* const expander = new CExpander(parent, {0, 0}, alTop);
    expander->SetTitle(new CLeaf(nullptr, {20, 20}, alNone, 1));
    auto* const body = new CLeaf(nullptr, {40, 40}, alNone, 2);
    expander->SetBody(body);
    host.Paint();
    parent->m_Title = expander->GetTitle();
    body->SetHeight(50, false);
    EXPECT_EQ(expander->GetSize().height, 80);
}

TEST(ExpanderLayout, WidthsAreTakenAsTheyAskScaled)
{
    CTestHost host(200, 200, 1.5);
    auto* const expander = new CExpander(host.Root(), {30, 10}, alLeft);
    expander->SetExpandDirection(CExpander::ExpandLeftRight);
    expander->SetTitle(new CLeaf(nullptr, {20, 30}, alNone, 1));
    expander->SetBody(new CLeaf(nullptr, {40, 30}, alNone, 2));
    EXPECT_EQ(expander->GetSize(), (size<int>{90, 15}));  // 30 and 60
    expander->Expand(false, true);
    expander->UpdateSize();
    EXPECT_EQ(expander->GetSize(), (size<int>{75, 15}));
    expander->Expand(false, false);
    EXPECT_EQ(expander->GetSize(), (size<int>{30, 15}));
}
