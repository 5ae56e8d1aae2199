// The frame whose body is shown and hidden, at once or in steps.

#include "vexel/widgets/expander.h"

#include "tests/support/leaf.h"
#include "tests/support/slot.h"
#include "tests/support/virtual_order.h"
#include "tests/widgets/expander_bench.h"
#include "vexel/controls/caption.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/expander_logic.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>

using namespace vexel;
using namespace vexel::test;

namespace
{

using Expander = CExpanderBench;

class ExpanderInDirection : public CExpanderBench, public testing::WithParamInterface<CExpander::ExpandDirection>
{
protected:
    ExpanderInDirection() : CExpanderBench(GetParam()) {}
    int Along() const { return IsSideways(GetParam()) ? m_Expander.GetSize().width : m_Expander.GetSize().height; }
};
INSTANTIATE_TEST_SUITE_P(Direction, ExpanderInDirection,
                         testing::Values(CExpander::ExpandTopBottom, CExpander::ExpandBottomTop,
                                         CExpander::ExpandLeftRight, CExpander::ExpandRightLeft,
                                         static_cast<CExpander::ExpandDirection>(17)));

}  // namespace

// Beginnings ------------------------------------------------------------------------------------------------------------------

TEST(ExpanderDefaults, AreAsTold)
{
    CExpander const expander(nullptr, {30, 10}, alTop);
    EXPECT_EQ(expander.GetExpandDirection(), 0);
    EXPECT_EQ(expander.GetTitle(), nullptr);
    EXPECT_EQ(expander.GetBody(), nullptr);
    EXPECT_FALSE(expander.IsSizing());
    EXPECT_FALSE(expander.IsExpanded());
    EXPECT_EQ(expander.GetOffset(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(expander.GetContentOffset(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(expander.GetShape(), CBevel::ShapeNoFrame);
    EXPECT_EQ(expander.GetSize(), (size<int>{30, 10}));
}

TEST(ExpanderVirtualOrder, OfTheExpanderAndItsLogic)
{
    EXPECT_EQ(Place(&CExpander::HandleExpand), Place(&CBevel::DrawBackground) + 1);
    EXPECT_EQ(Place(&CExpander::ProcessRearrange), Place(&CVisualElement::ProcessRearrange));
    EXPECT_EQ(Place(&CExpander::HandleControlDestroy), Place(&CVisualElement::HandleControlDestroy));
    ExpectOrder(2, &CExpanderLogic::Expand, &CExpanderLogic::IsExpanded, &CExpanderLogic::UpdateSize,
                &CExpanderLogic::GetTitleAlignment);
}

TEST(ExpanderLogics, EachHasASideForTheTitle)
{
    EXPECT_EQ(CTopBottomExpanderLogic().GetTitleAlignment(), alTop);
    EXPECT_EQ(CBottomTopExpanderLogic().GetTitleAlignment(), alBottom);
    EXPECT_EQ(CLeftRightExpanderLogic().GetTitleAlignment(), alLeft);
    EXPECT_EQ(CRightLeftExpanderLogic().GetTitleAlignment(), alRight);
}

// Parts -----------------------------------------------------------------------------------------------------------------------

TEST_P(ExpanderInDirection, TheTitleIsDockedToItsSideAndTheBodyFillsTheRest)
{
    Alignment const sides[] = {alTop, alBottom, alLeft, alRight};
    EXPECT_EQ(m_Title.GetAlignment(), GetParam() == 17 ? alTop : sides[GetParam()]);
    EXPECT_EQ(m_Title.GetParent(), &m_Expander);
    EXPECT_EQ(m_Body.GetAlignment(), alClient);
    EXPECT_EQ(m_Body.GetParent(), &m_Expander);
    EXPECT_EQ(m_Expander.GetTitle(), &m_Title);
    EXPECT_EQ(m_Expander.GetBody(), &m_Body);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Expander, ANewPartTakesTheFormerOnesPlace)
{
    auto* const title = new CLeaf(nullptr, {0, 30}, alNone, 4);
    m_Expander.SetTitle(title);
    EXPECT_EQ(m_Title.GetParent(), nullptr);
    EXPECT_EQ(m_Expander.GetTitle(), title);
    EXPECT_EQ(Extent(), 70);
    auto* const body = new CLeaf(nullptr, {0, 50}, alNone, 5);
    m_Expander.SetBody(body);
    EXPECT_EQ(m_Body.GetParent(), nullptr);
    EXPECT_EQ(Extent(), 80);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Expander.SetBody(nullptr);
    EXPECT_EQ(body->GetParent(), nullptr);
    EXPECT_EQ(m_Expander.GetBody(), nullptr);
    EXPECT_EQ(Extent(), 30);
    m_Expander.SetTitle(nullptr);
    EXPECT_EQ(Extent(), 0);
    delete title;
    delete body;
    delete &m_Title;
    delete &m_Body;
}

TEST_F(Expander, AnotherDirectionDetachesTheTitle)
{
    m_Expander.SetExpandDirection(CExpander::ExpandTopBottom);
    EXPECT_EQ(m_Expander.GetTitle(), &m_Title);
    m_Expander.SetExpandDirection(CExpander::ExpandRightLeft);
    EXPECT_EQ(m_Expander.GetExpandDirection(), CExpander::ExpandRightLeft);
    EXPECT_EQ(m_Expander.GetTitle(), nullptr);
    EXPECT_EQ(m_Title.GetParent(), nullptr);
    m_Expander.SetTitle(&m_Title);
    EXPECT_EQ(m_Title.GetAlignment(), alRight);
    EXPECT_EQ(m_Expander.GetSize().width, 80);
}

TEST_F(Expander, APartThatDiesOrIsTakenAwayIsForgotten)
{
    delete &m_Title;
    EXPECT_EQ(m_Expander.GetTitle(), nullptr);
    m_Body.ReParent(&m_Parent, true);
    EXPECT_EQ(m_Expander.GetBody(), nullptr);
    m_Expander.Expand(false, false);
    EXPECT_TRUE(m_Body.IsVisible());
    EXPECT_EQ(Extent(), 0);
    m_Expander.SetBody(nullptr);
    EXPECT_EQ(m_Body.GetParent(), &m_Parent);
}

// At once ---------------------------------------------------------------------------------------------------------------------

TEST_P(ExpanderInDirection, ExpandedItAsksForTitleAndBodyAndFoldedForTheTitle)
{
    bool const sideways = IsSideways(GetParam());
    m_Expander.Expand(false, false);
    EXPECT_EQ(m_Expander.m_Calls, "close ");
    EXPECT_FALSE(m_Body.IsVisible());
    EXPECT_FALSE(m_Expander.IsExpanded());
    EXPECT_EQ(m_Expander.GetSize(), sideways ? (size<int>{30, 10}) : (size<int>{30, 20}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Expander.Expand(true, false);
    EXPECT_EQ(m_Expander.m_Calls, "close open ");
    EXPECT_TRUE(m_Body.IsVisible());
    EXPECT_TRUE(m_Expander.IsExpanded());
    EXPECT_EQ(m_Expander.GetSize(), sideways ? (size<int>{80, 10}) : (size<int>{30, 60}));
    EXPECT_FALSE(IsRunning());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_P(ExpanderInDirection, OffsetsOfTheFrameAreAdded)
{
    m_Expander.SetOffset({1, 2, 3, 4});
    m_Expander.SetContentOffset({10, 20, 30, 40});
    m_Expander.Expand(false, false);
    EXPECT_EQ(Along(), IsSideways(GetParam()) ? 74 : 86);  // 1 + 3 + 10 + 30 + 30, or 2 + 4 + 20 + 40 + 20
    m_Expander.Expand(true, false);
    EXPECT_EQ(Along(), IsSideways(GetParam()) ? 124 : 126);
}

TEST(ExpanderAlone, WithoutABodyItAsksForFrameAndTitle)
{
    CExpander expander(nullptr, {30, 100}, alTop);
    auto* const title = new CLeaf(nullptr, {30, 20}, alNone, 1);
    expander.SetTitle(title);
    for (bool const expand : {true, false, true})
    {
        expander.SetHeight(100, false);
        expander.Expand(expand, false);
        EXPECT_EQ(expander.GetSize(), (size<int>{30, 20}));
        EXPECT_FALSE(expander.IsExpanded());
    }
}

TEST(ExpanderAlone, WithoutAnythingItAsksForItsFrame)
{
    CExpander expander(nullptr, {30, 100}, alTop);
    expander.SetContentOffset({0, 3, 0, 4});
    expander.Expand(true, false);
    EXPECT_EQ(expander.GetSize(), (size<int>{30, 7}));
}

TEST(ExpanderScaled, PartsAreTakenAsTheyAskScaled)
{
    CTestHost host(200, 200, 1.5);
    auto* const expander = new CExpander(host.Root(), {30, 10}, alTop);
    expander->SetTitle(new CLeaf(nullptr, {30, 20}, alNone, 1));
    expander->SetBody(new CLeaf(nullptr, {30, 40}, alNone, 2));
    host.Paint();
    EXPECT_EQ(expander->GetSize(), (size<int>{45, 90}));  // 30 and 60
    EXPECT_EQ(expander->GetPos(), (rectangle<int>{0, 0, 199, 90}));
    expander->Expand(false, true);
    host.StepBackground();
    host.RunPending();
    EXPECT_EQ(expander->GetSize().height, 75);
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST_F(Expander, ItsSizeFollowsThoseOfItsParts)
{
    EXPECT_EQ(Extent(), 60);
    m_Title.SetHeight(25, false);
    EXPECT_EQ(Extent(), 65);
    m_Body.SetHeight(50, false);
    EXPECT_EQ(Extent(), 75);
    m_Expander.Expand(false, false);
    m_Body.SetHeight(60, false);
    EXPECT_EQ(Extent(), 25);
    m_Title.SetHeight(20, false);
    EXPECT_EQ(Extent(), 20);
    m_Expander.Expand(true, false);
    EXPECT_EQ(Extent(), 80);
    m_Body.SetVisible(false);
    EXPECT_EQ(Extent(), 20);
    EXPECT_FALSE(m_Expander.IsExpanded());
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// In steps --------------------------------------------------------------------------------------------------------------------

TEST_P(ExpanderInDirection, AnimatedItClosesAndOpensByQuartersOfTheBody)
{
    // A body of 40 moves by 10, and one of 50 by 12.
    std::vector<int> const closing =
        IsSideways(GetParam()) ? std::vector<int>{68, 56, 44, 32, 30} : std::vector<int>{50, 40, 30, 20, 20};
    std::vector<int> const opening =
        IsSideways(GetParam()) ? std::vector<int>{42, 54, 66, 78, 80} : std::vector<int>{30, 40, 50, 60};
    m_Expander.Expand(false, true);
    EXPECT_EQ(m_Expander.m_Calls, "close ");
    EXPECT_EQ(Along(), IsSideways(GetParam()) ? 80 : 60);
    for (std::size_t i = 0; i < closing.size(); ++i)
    {
        EXPECT_TRUE(IsRunning());
        EXPECT_TRUE(m_Expander.IsSizing());
        EXPECT_FALSE(m_Expander.IsExpanded());
        EXPECT_TRUE(m_Body.IsVisible());
        Step();
        EXPECT_EQ(Along(), closing[i]);
        EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    }
    EXPECT_FALSE(m_Body.IsVisible());
    EXPECT_FALSE(m_Expander.IsSizing());
    EXPECT_FALSE(IsRunning());

    m_Expander.Expand(true, true);
    EXPECT_FALSE(m_Body.IsVisible());
    for (std::size_t i = 0; i < opening.size(); ++i)
    {
        EXPECT_TRUE(IsRunning());
        EXPECT_TRUE(m_Expander.IsExpanded());
        Step();
        EXPECT_EQ(Along(), opening[i]);
        EXPECT_TRUE(m_Body.IsVisible());
        EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    }
    EXPECT_FALSE(m_Expander.IsSizing());
    EXPECT_FALSE(IsRunning());
    EXPECT_EQ(m_Expander.m_Calls, "close open ");
}

TEST_F(Expander, TheStepsAreTenMillisecondsApart)
{
    m_Expander.Expand(false, true);
    EXPECT_EQ(m_Host.RunBackground(), 1);
    m_Host.Clock().Advance(9);
    EXPECT_EQ(m_Host.RunBackground(), 0);
    m_Host.Clock().Advance(1);
    EXPECT_EQ(m_Host.RunBackground(), 1);
    m_Expander.StopSizing();
}

TEST_F(Expander, TurnedAroundItReversesWithoutStoppingTheTask)
{
    m_Expander.Expand(false, true);
    Step();
    EXPECT_EQ(Extent(), 50);
    m_Expander.Expand(true, true);
    EXPECT_TRUE(IsRunning());
    EXPECT_TRUE(m_Expander.IsExpanded());
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 1);
    Step();
    EXPECT_EQ(Extent(), 60);
    EXPECT_FALSE(m_Expander.IsSizing());
    EXPECT_EQ(m_Expander.m_Calls, "close open ");

    m_Expander.Expand(false, true);
    m_Expander.Expand(true, true);
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 1);
    Step();
    EXPECT_EQ(Extent(), 60);
    EXPECT_FALSE(IsRunning());
}

TEST_F(Expander, ABodyOfLessThanFourPixelsDoesNotGetOn)
{
    m_Body.SetHeight(3, false);
    ASSERT_EQ(Extent(), 23);
    m_Expander.Expand(false, true);
    for (int i = 0; i < 10; ++i)
        Step();
    EXPECT_EQ(Extent(), 23);
    EXPECT_TRUE(m_Expander.IsSizing());
    EXPECT_TRUE(IsRunning());
    m_Expander.StopSizing();
    EXPECT_FALSE(IsRunning());

    m_Body.SetHeight(4, false);
    m_Expander.Expand(false, true);
    for (int const extent : {23, 22, 21, 20, 20})
    {
        EXPECT_TRUE(m_Expander.IsSizing());
        Step();
        EXPECT_EQ(Extent(), extent);
    }
    EXPECT_FALSE(m_Expander.IsSizing());
}

TEST_F(Expander, AStopLeavesTheSizeAsItIsAndStepsOnTheirWayDoNothing)
{
    m_Expander.Expand(false, true);
    Step();
    m_Host.StepBackground();  // posted
    m_Expander.StopSizing();
    EXPECT_FALSE(m_Expander.IsSizing());
    EXPECT_FALSE(IsRunning());
    m_Host.RunPending();
    EXPECT_EQ(Extent(), 50);
    EXPECT_TRUE(m_Expander.IsExpanded());
}

TEST_F(Expander, AStepThatIsPostedTwiceBeforeTheEndDoesNotGoPastIt)
{
    m_Expander.Expand(false, true);
    for (int i = 0; i < 8; ++i)
    {
        m_Host.StepBackground();
        m_Host.Clock().Advance(10);
    }
    m_Host.RunPending();
    EXPECT_EQ(Extent(), 20);
    m_Expander.Expand(true, true);
    for (int i = 0; i < 8; ++i)
    {
        m_Host.StepBackground();
        m_Host.Clock().Advance(10);
    }
    m_Host.RunPending();
    EXPECT_EQ(Extent(), 60);
    EXPECT_TRUE(m_Body.IsVisible());
}

TEST_F(Expander, ExpandedAtOnceItEndsTheSteps)
{
    m_Expander.Expand(true, true);
    m_Expander.Expand(false, false);
    EXPECT_FALSE(m_Expander.IsSizing());
    EXPECT_FALSE(IsRunning());
    EXPECT_FALSE(m_Expander.IsExpanded());
    m_Host.RunPending();
    EXPECT_EQ(Extent(), 20);
}

TEST_F(Expander, APartThatChangesAmidTheStepsMovesTheirEnd)
{
    m_Expander.Expand(false, true);
    Step();
    m_Title.SetHeight(35, false);
    EXPECT_EQ(Extent(), 50);
    Step();
    EXPECT_EQ(Extent(), 40);
    Step();
    EXPECT_EQ(Extent(), 35);
    EXPECT_FALSE(m_Expander.IsSizing());
}

TEST_F(Expander, AStepPaintsNothingOutsideOfTheParent)
{
    m_Parent.SetAlignment(alTop);
    m_Parent.SetSize({0, 100}, false);
    auto* const elsewhere = new CLeaf(m_Host.Root(), {0, 0}, alClient, 7);
    NameElement(*elsewhere, "elsewhere");
    m_Host.Paint();
    m_Expander.Expand(false, true);
    EXPECT_FALSE(m_Host.IsFramePending());
    Step();
    EXPECT_EQ(m_Host.Paint().Elements(), "title body rest");  // title and body cover the expander
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Expander.StopSizing();
}

// Windows ---------------------------------------------------------------------------------------------------------------------

TEST_F(Expander, OutsideOfAControlTheStepsWaitAndInTheNextOneTheyGoOn)
{
    m_Expander.Expand(false, true);
    Step();
    m_Expander.ReParent(nullptr, false);
    EXPECT_FALSE(IsRunning());
    EXPECT_TRUE(m_Expander.IsSizing());
    EXPECT_FALSE(m_Expander.IsExpanded());
    CTestHost other(100, 100);
    m_Expander.ReParent(other.Root(), true);
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 1);
    for (int i = 0; i < 4; ++i)
    {
        other.StepBackground();
        other.RunPending();
        other.Clock().Advance(10);
    }
    EXPECT_EQ(Extent(), 20);
    EXPECT_FALSE(m_Expander.IsSizing());
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 0);
}

TEST_F(Expander, AWindowThatGoesEndsTheTask)
{
    m_Expander.Expand(false, true);
    m_Host.DestroyWindow();
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 0);
    m_Expander.Expand(true, true);
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 0);
    EXPECT_TRUE(m_Expander.IsExpanded());
}

TEST_F(Expander, AnExpanderThatDiesEndsItsTask)
{
    m_Expander.Expand(false, true);
    m_Host.StepBackground();
    delete &m_Expander;
    EXPECT_EQ(CTestHost::System().GetRunningRunners(), 0);
    m_Host.RunPending();
}

// Slots that do away with things ----------------------------------------------------------------------------------------------

TEST(ExpanderDeletion, OfAnythingOnTheWayIsSurvived)
{
    for (bool const animated : {true, false})
        for (bool const expand : {true, false})
            for (int where = 0; where < 4; ++where)
                for (int deed = 0; deed < 6; ++deed)
                {
                    CTestHost host(200, 200);
                    auto* const parent = new CVisualElement(host.Root(), {0, 0}, alClient);
                    auto* const expander = new CTestExpander(parent, {30, 10}, alTop);
                    auto* const title = new CLeaf(nullptr, {0, 20}, alNone, 1);
                    auto* const body = new CLeaf(nullptr, {0, 40}, alNone, 2);
                    expander->SetTitle(title);
                    expander->SetBody(body);
                    expander->Expand(!expand, false);
                    host.Paint();
                    CAlivePtr<CVisualElement> const alive(expander);
                    int done = 0;
                    auto const act = [&] {
                        if (done++ > 0)
                            return;
                        if (deed == 0)
                            delete expander;
                        else if (deed == 1)
                            delete title;
                        else if (deed == 2)
                            delete body;
                        else if (deed == 3)
                            delete parent;
                        else if (deed == 4)
                            host.DestroyControl();
                        else
                            expander->SetBody(nullptr);
                    };
                    auto const shown = Listen(body->m_SigVisible, [&](CVisualElement*, bool) {
                        if (where == 0)
                            act();
                    });
                    auto const laidOut = Listen(expander->m_SigSize, [&](CVisualElement*) {
                        if (where == 1)
                            act();
                    });
                    auto const titled = Listen(title->m_SigSize, [&](CVisualElement*) {
                        if (where == 2)
                            act();
                    });
                    if (where == 3)
                        expander->m_Deed = act;
                    expander->Expand(expand, animated);
                    for (int i = 0; i < 8 && host.HasControl(); ++i)
                    {
                        host.Paint();
                        host.StepBackground();
                        host.RunPending();
                        host.Clock().Advance(10);
                    }
                    EXPECT_GT(done, 0) << where << " " << deed;
                    if (alive)
                        expander->StopSizing();
                    bool const isDetached = deed == 5;
                    if (host.HasControl())
                        host.Paint();
                    if (isDetached)
                        delete body;
                }
}

namespace
{

// Does something while another layout is asked for.
class CMeddler : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    std::function<void()> m_Deed;

    void ProcessRearrange(CVisualElement**) override
    {
        if (m_Deed)
            std::exchange(m_Deed, nullptr)();
    }
};

}  // namespace

TEST(ExpanderDeletion, WhileItAsksForALayoutIsSurvived)
{
    for (int way = 0; way < 6; ++way)
    {
        CTestHost host(200, 200);
        auto* const parent = new CMeddler(host.Root(), {0, 0}, alClient);
        auto* const expander = new CExpander(parent, {30, 10}, alTop);
        auto title = std::make_unique<CLeaf>(nullptr, size<int>{0, 20}, alNone, 1);
        auto body = std::make_unique<CLeaf>(nullptr, size<int>{0, 40}, alNone, 2);
        title->SetDynamic(false);
        body->SetDynamic(false);
        expander->SetTitle(title.get());
        expander->SetBody(body.get());
        host.Paint();
        if (way == 5)
            expander->Expand(false, true);
        parent->m_Deed = [&] { delete expander; };
        if (way == 0)
            expander->Expand(false, false);
        else if (way == 1)
            expander->SetTitle(nullptr);
        else if (way == 2)
            expander->SetBody(nullptr);
        else if (way == 3)
            title->SetHeight(30, false);
        else if (way == 4)
            expander->SetExpandDirection(CExpander::ExpandLeftRight);
        else
        {
            host.StepBackground();
            host.RunPending();
        }
        EXPECT_EQ(parent->GetChildren()->GetCount(), 0) << way;
        EXPECT_EQ(CTestHost::System().GetRunningRunners(), 0);
        host.Paint();
    }
}

TEST(ExpanderSteps, RepaintTheirOwnColumnAlone)
{
    CTestHost host(300, 200);
    CVisualElement other(host.Root(), {100, 0}, alLeft);
    CCaption neighbour(&other, {0, 20}, alTop);
    CVisualElement column(host.Root(), {0, 0}, alClient);
    CExpander expander(&column, {0, 24}, alTop);
    CCaption title(nullptr, {0, 20}, alTop);
    CCaption body(nullptr, {0, 80}, alClient);
    CCaption below(&column, {0, 0}, alClient);
    title.SetDynamic(false);
    body.SetDynamic(false);
    expander.SetTitle(&title);
    expander.SetBody(&body);
    expander.Expand(false, false);
    NameElement(other, "other");
    NameElement(neighbour, "neighbour");
    NameElement(title, "title");
    NameElement(below, "below");
    host.Paint();

    expander.Expand(true, true);
    for (int step = 0; step < 3; ++step)
    {
        expander.UpdateSize();
        PaintLog const log = host.Paint();
        EXPECT_TRUE(log.Of("other").IsEmpty()) << step;
        EXPECT_TRUE(log.Of("neighbour").IsEmpty()) << step;
        EXPECT_FALSE(log.Of("below").IsEmpty()) << step;
        EXPECT_EQ(host.CompareWithFullPaint(), "");
    }
}
