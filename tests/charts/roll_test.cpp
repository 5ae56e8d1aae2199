// The panel that rolls up to its caption strip.

#include "vexel/charts/roll.h"

#include "tests/support/game.h"
#include "tests/support/leaf.h"
#include "tests/support/slot.h"
#include "tests/support/virtual_order.h"
#include "vexel/core/base_control.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/random.h"
#include "vexel/testing/test_kit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A roll 60 thick at an edge of a window of 200 x 100, with a leaf in it and one beside it.
class CRollBench : public testing::Test
{
protected:
    explicit CRollBench(Alignment edge = alTop) : m_Roll(*new CRoll(m_Host.Root(), {60, 60}, edge))
    {
        NameElement(m_Roll, "roll");
        m_Roll.GetCaption().GetText().SetCaption("Name");
        new CLeaf(&m_Roll, {0, 0}, alClient, 1);
        new CLeaf(m_Host.Root(), {0, 0}, alClient, 2);
        m_Host.Paint();
    }
    bool IsUpright() const { return m_Roll.GetAlignment() == alLeft || m_Roll.GetAlignment() == alRight; }
    int GetThickness() const { return IsUpright() ? m_Roll.GetPos().Width() : m_Roll.GetPos().Height(); }
    void ClickStrip()
    {
        m_Host.Mouse().Leave();
        m_Host.Mouse().Click(m_Roll.GetCaption(), 2, 2);
        m_Host.Paint();
    }

    CTestHost m_Host{200, 100};
    CRoll& m_Roll;
};

using Roll = CRollBench;

class RollOnSide : public CRollBench, public testing::WithParamInterface<Alignment>
{
protected:
    RollOnSide() : CRollBench(GetParam()) {}
};
INSTANTIATE_TEST_SUITE_P(AtEdge, RollOnSide, testing::Values(alLeft, alRight, alTop, alBottom));

Alignment Opposite(Alignment edge)
{
    Alignment const opposite[] = {alNone, alRight, alLeft, alBottom, alTop, alClient};
    return opposite[edge];
}

}  // namespace

TEST(RollDefaults, TheStripStandsOppositeAndElsewhereAsTheRoll)
{
    for (Alignment const edge : {alNone, alLeft, alRight, alTop, alBottom, alClient})
    {
        CRoll const roll(nullptr, {50, 40}, edge);
        EXPECT_EQ(roll.GetCaption().GetAlignment(), Opposite(edge)) << edge;
        EXPECT_EQ(roll.GetCaption().GetSize(), (size<int>{20, 20}));
        EXPECT_EQ(roll.GetCaption().GetParent(), &roll);
        EXPECT_EQ(roll.GetSavedSize(), (size<int>{0, 0}));
        EXPECT_FALSE(roll.IsExpanded());
        EXPECT_EQ(roll.GetShape(), CBevel::ShapeNoFrame);
    }
}

TEST(RollVirtualOrder, ItAddsNoOperations)
{
    ExpectOrder(Place(&CVisualElement::HandleCopyToClipboard) + 1, &CRoll::DrawBackground);
    EXPECT_EQ(Place(&CRoll::SetSize), Place(&CVisualElement::SetSize));
}

// The arrow -------------------------------------------------------------------------------------------------------------------

TEST(RollArrow, GoesByTheEdgeAndTheState)
{
    struct SCase
    {
        Alignment edge;
        int folded;
        int expanded;
    };
    for (SCase const& each : {SCase{alLeft, 0, 2}, SCase{alRight, 2, 0}, SCase{alTop, 1, 3}, SCase{alBottom, 3, 1}})
    {
        CRoll roll(nullptr, {50, 40}, each.edge);
        EXPECT_EQ(roll.GetCaption().GetArrow().GetArrowType(), each.folded) << each.edge;
        roll.Expand(&roll.GetCaption());
        EXPECT_EQ(roll.GetCaption().GetArrow().GetArrowType(), each.expanded) << each.edge;
        roll.Expand(nullptr);
        EXPECT_EQ(roll.GetCaption().GetArrow().GetArrowType(), each.folded) << each.edge;
    }
}

TEST(RollArrow, StaysAtNoneOfTheEdges)
{
    for (Alignment const edge : {alNone, alClient})
    {
        CRoll roll(nullptr, {50, 40}, edge);
        for (auto const type : {CArrowButton::ArrowBottom, CArrowButton::ArrowLeft})
        {
            roll.GetCaption().GetArrow().SetArrowType(type);
            roll.Layout();
            EXPECT_EQ(roll.GetCaption().GetArrow().GetArrowType(), type);
        }
    }
}

TEST(RollArrow, FollowsAStripThatIsDockedElsewhere)
{
    CRoll roll(nullptr, {50, 40}, alTop);
    roll.SetCaptionAlignment(alLeft);
    EXPECT_EQ(roll.GetCaption().GetAlignment(), alLeft);
    EXPECT_EQ(roll.GetCaption().GetArrow().GetArrowType(), CArrowButton::ArrowTop);  // by the roll's edge
}

// Rolling up and back ---------------------------------------------------------------------------------------------------------

TEST_P(RollOnSide, AClickOnTheStripRollsItUpToTheTextAndTheNextOneBack)
{
    EXPECT_EQ(GetThickness(), 60);
    m_Host.Mouse().Click(m_Roll.GetCaption(), 2, 2);
    EXPECT_TRUE(m_Roll.IsExpanded());
    EXPECT_EQ(m_Roll.GetSavedSize(), (size<int>{60, 60}));
    m_Host.Paint();
    // A line of text is 8 high; the roll keeps 2 on either side, and the strip, where it stands upright, 3 and 1.
    EXPECT_EQ(GetThickness(), IsUpright() ? 16 : 12);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");

    ClickStrip();
    EXPECT_FALSE(m_Roll.IsExpanded());
    EXPECT_EQ(m_Roll.GetSize(), (size<int>{60, 60}));
    EXPECT_EQ(GetThickness(), 60);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(RollOnSide, TheMarginsOfTheRollAreKept)
{
    m_Roll.SetContentOffset({1, 2, 3, 4});
    m_Roll.SetOffset({5, 6, 7, 8});
    m_Roll.Expand(&m_Roll.GetCaption());
    m_Host.Paint();
    // A line of 8, and across 1 + 3 + 5 + 7 and the strip's 3 + 1, or down 2 + 4 + 6 + 8.
    EXPECT_EQ(GetThickness(), 28);
    m_Roll.Expand(&m_Roll.GetCaption());
    m_Roll.SetContentOffset({0, 0, 0, 0});
    m_Roll.SetOffset({0, 0, 0, 0});
    m_Roll.Expand(&m_Roll.GetCaption());
    m_Host.Paint();
    EXPECT_EQ(GetThickness(), IsUpright() ? 12 : 8);
}

TEST_P(RollOnSide, TheTextIsMeasuredInItsOwnFont)
{
    font large = m_Roll.GetCaption().GetText().GetFont();
    large.size = 16;
    m_Roll.GetCaption().GetText().SetFont(large);
    m_Roll.Expand(&m_Roll.GetCaption());
    m_Host.Paint();
    EXPECT_EQ(GetThickness(), IsUpright() ? 24 : 20);
}

TEST_P(RollOnSide, RolledUpItKeepsItsLength)
{
    m_Roll.Expand(&m_Roll.GetCaption());
    EXPECT_EQ(m_Roll.GetSize(), IsUpright() ? (size<int>{16, 99}) : (size<int>{199, 12}));
}

TEST(RollElsewhere, AtNoneOfTheEdgesItTakesTheSizeThatItHas)
{
    CTestHost host(200, 100);
    auto* const roll = new CRoll(host.Root(), {60, 60}, alClient);
    host.Paint();
    roll->Expand(&roll->GetCaption());
    EXPECT_TRUE(roll->IsExpanded());
    EXPECT_EQ(roll->GetSavedSize(), (size<int>{60, 60}));
    EXPECT_EQ(roll->GetSize(), (size<int>{199, 99}));
}

TEST(RollElsewhere, WithoutAControlTheStripIsAsThickAsItWasMade)
{
    CRoll roll(nullptr, {60, 60}, alLeft);
    roll.Expand(&roll.GetCaption());
    EXPECT_EQ(roll.GetSize().width, 28);
    roll.Expand(nullptr);
    EXPECT_EQ(roll.GetSize(), (size<int>{60, 60}));
}

TEST_F(Roll, RollingIsLaidOutAndPainted)
{
    m_Roll.Expand(&m_Roll.GetCaption());
    PaintLog const log = m_Host.Paint();
    EXPECT_THAT(log.Of("roll"), Draws("FillRect 0 0 199 12"));
    m_Roll.Expand(&m_Roll.GetCaption());
    EXPECT_THAT(m_Host.Paint().Of("roll"), Draws("FillRect 0 0 199 60"));
}

TEST(RollElsewhere, ItIsPaintedAlsoWhereItsSizeStays)
{
    CTestHost host(200, 100);
    auto* const roll = new CRoll(host.Root(), {199, 99}, alNone);
    roll->SetPos({0, 0, 199, 99}, true);
    NameElement(*roll, "roll");
    host.Paint();
    roll->Expand(nullptr);
    EXPECT_FALSE(host.Paint().Of("roll").IsEmpty());
}

// Sizes from others -------------------------------------------------------------------------------------------------------------

TEST_F(Roll, ALargerSizeFromOutsideEndsTheExpandedState)
{
    size<int> const larger[] = {{199, 13}, {200, 12}, {200, 13}};
    for (size<int> const& extent : larger)
    {
        m_Roll.SetSize({60, 60}, false);
        m_Roll.Expand(nullptr);
        m_Host.Paint();
        ASSERT_EQ(m_Roll.GetSize(), (size<int>{199, 12}));
        m_Roll.SetSize(extent, false);
        EXPECT_FALSE(m_Roll.IsExpanded());
        EXPECT_EQ(m_Roll.GetSize(), extent);
        EXPECT_EQ(m_Roll.GetCaption().GetArrow().GetArrowType(), CArrowButton::ArrowTop);
    }
}

TEST_F(Roll, ASmallerOrEqualSizeFromOutsideLeavesItExpanded)
{
    m_Roll.Expand(nullptr);
    m_Host.Paint();
    size<int> const others[] = {{199, 12}, {198, 12}, {198, 11}};
    for (size<int> const& extent : others)
    {
        m_Roll.SetSize(extent, false);
        EXPECT_TRUE(m_Roll.IsExpanded());
        EXPECT_EQ(m_Roll.GetSize(), extent);
        EXPECT_EQ(m_Roll.GetCaption().GetArrow().GetArrowType(), CArrowButton::ArrowBottom);
    }
}

TEST_F(Roll, AFoldedOneTakesAnySize)
{
    m_Roll.SetSize({80, 80}, false);
    EXPECT_FALSE(m_Roll.IsExpanded());
    EXPECT_EQ(m_Roll.GetSize(), (size<int>{80, 80}));
    m_Roll.SetSize({-5, 7}, false);
    EXPECT_EQ(m_Roll.GetSize(), (size<int>{0, 7}));
}

TEST(RollScaled, ASizeIsComparedAsItIsScaled)
{
    CTestHost host(200, 100, 2.0);
    auto* const roll = new CRoll(host.Root(), {30, 30}, alTop);
    host.Paint();
    roll->Expand(nullptr);
    ASSERT_TRUE(roll->IsExpanded());
    int const thickness = roll->GetSize().height;
    roll->SetSize({50, thickness / 2}, true);
    EXPECT_TRUE(roll->IsExpanded());
    roll->SetSize({50, thickness / 2 + 1}, true);
    EXPECT_FALSE(roll->IsExpanded());
}

// Slots that do away with things -----------------------------------------------------------------------------------------------

TEST(RollDeletion, InAClickIsSurvived)
{
    for (int const way : {0, 1, 2})
    {
        CTestHost host(200, 100);
        auto* const parent = new CLeaf(host.Root(), {0, 0}, alClient, 1);
        auto* const roll = new CRoll(parent, {60, 60}, alTop);
        host.Paint();
        int fired = 0;
        auto const slot = Listen(roll->GetCaption().m_Clicked, [&](CControlCaption*) {
            ++fired;
            if (way == 0)
                delete roll;
            else if (way == 1)
                delete parent;
            else
                host.DestroyControl();
        });
        host.Mouse().Click(roll->GetCaption(), 2, 2);
        EXPECT_EQ(fired, 1);
        if (host.HasControl())
            host.Paint();
    }
}

namespace
{

// Its parent does something while the roll asks for another layout.
class CMeddler : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    std::function<void()> m_Deed;
    int m_Calls = 0;

    void ProcessRearrange(CVisualElement**) override
    {
        ++m_Calls;
        if (m_Deed)
            std::exchange(m_Deed, nullptr)();
    }
};

}  // namespace

TEST(RollDeletion, AmidRollingIsSurvived)
{
    CTestHost host(200, 100);
    auto* const parent = new CMeddler(host.Root(), {0, 0}, alClient);
    auto* const roll = new CRoll(parent, {60, 60}, alTop);
    host.Paint();
    parent->m_Deed = [&] { delete roll; };
    host.Mouse().Click(roll->GetCaption(), 2, 2);
    EXPECT_EQ(parent->GetChildren()->GetCount(), 0);
    host.Paint();
}

TEST(RollElsewhere, ALayoutIsAskedForAlsoWhereTheSizeStays)
{
    CTestHost host(200, 100);
    auto* const parent = new CMeddler(host.Root(), {0, 0}, alClient);
    auto* const roll = new CRoll(parent, {199, 99}, alNone);
    roll->SetPos({0, 0, 199, 99}, true);
    host.Paint();
    parent->m_Calls = 0;
    roll->Expand(nullptr);
    EXPECT_EQ(roll->GetSize(), (size<int>{199, 99}));
    EXPECT_EQ(parent->m_Calls, 1);
}

TEST(RollDeletion, AnEndOfTheEventAmidRollingLeavesItListeningToSizes)
{
    CTestHost host(200, 100);
    auto* const parent = new CMeddler(host.Root(), {0, 0}, alClient);
    auto* const roll = new CRoll(parent, {60, 60}, alTop);
    host.Paint();
    parent->m_Deed = [] { throw vexel::cancel_processing(); };
    host.Mouse().Click(roll->GetCaption(), 2, 2);
    ASSERT_TRUE(roll->IsExpanded());
    roll->SetSize({300, 90}, false);
    EXPECT_FALSE(roll->IsExpanded());
}

// Bit by bit ----------------------------------------------------------------------------------------------------------------

namespace
{

// What got less than it asked for, or no room at all, lies over its neighbours: an owner takes such rolls out. Of what stands
// in a strip nothing is asked.
bool IsMisplaced(CVisualElement* element)
{
    rectangle<int> const& pos = element->GetPos();
    Alignment const dock = element->GetAlignment();
    bool const inside = dynamic_cast<CRoll*>(element->GetParent());
    bool const squeezed = ((dock == alLeft || dock == alRight) && pos.Width() < element->GetSize().width) ||
                          ((dock == alTop || dock == alBottom) && pos.Height() < element->GetSize().height);
    return (inside && SticksOut(element)) || (dynamic_cast<CRoll*>(element) && (squeezed || SticksOut(element)));
}

void PaintWithoutMisplaced(CTestHost& host, std::vector<CRoll*>& rolls)
{
    for (host.Paint(); !rolls.empty() && FindShown(host.Root(), IsMisplaced); host.Paint())
    {
        rolls.back()->ReParent(nullptr, true);
        delete rolls.back();
        rolls.pop_back();
        host.Root()->Update(utElement);
    }
}

}  // namespace

TEST(IncrementalRolls, LookAsIfPaintedAtOnce)
{
    CTestRandom random;
    int compared = 0;
    for (int game = 0; game < 200; ++game)
    {
        CTestHost host(random.Int(60, 200), random.Int(60, 160), random.Bool() ? 1.0 : 1.5);
        std::vector<CRoll*> rolls;
        for (int i = random.Int(1, 3); i > 0; --i)
        {
            auto* const roll = new CRoll(host.Root(), {random.Int(10, 60), random.Int(10, 60)},
                                         static_cast<Alignment>(random.Int(alLeft, alBottom)));
            roll->SetShape(static_cast<CBevel::BorderShape>(random.Int(0, 7)));
            roll->GetCaption().GetText().SetCaption("Caption");
            new CLeaf(roll, {0, 0}, alClient, random.Int(0, 20));
            rolls.push_back(roll);
        }
        new CLeaf(host.Root(), {0, 0}, alClient, random.Int(0, 20));
        PaintWithoutMisplaced(host, rolls);
        for (int round = 0; round < 40 && !rolls.empty(); ++round)
        {
            CRoll& roll = *rolls[static_cast<std::size_t>(random.Int(0, static_cast<int>(rolls.size()) - 1))];
            switch (random.Int(0, 5))
            {
            case 0:
                roll.SetSize({random.Int(0, 80), random.Int(0, 80)}, random.Bool());
                break;
            case 1:
                roll.SetCaptionAlignment(static_cast<Alignment>(random.Int(alLeft, alBottom)));
                break;
            case 2:
                roll.SetEnabled(random.Bool());
                break;
            case 3:
                roll.Expand(nullptr);
                break;
            default:
                host.Mouse().Click(roll.GetCaption(), 2, 2);
                break;
            }
            PaintWithoutMisplaced(host, rolls);
            ASSERT_EQ(host.CompareWithFullPaint(), "") << DescribeTree(host.Root());
            compared += rolls.empty() ? 0 : 1;
        }
    }
    EXPECT_GT(compared, 100);
}
