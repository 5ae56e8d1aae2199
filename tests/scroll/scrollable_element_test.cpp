// An element that knows what scrolls: its automatic scroll, whom a scroll concerns, and sums of unequal steps.

#include "tests/scroll/scroll_support.h"
#include "vexel/core/base_control.h"
#include "vexel/scroll/scrollable_element.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>

using namespace vexel;
using namespace vexel::test;
using namespace scroll_test;

namespace
{

ISysWindow::ScrollType constexpr horizontal = ISysWindow::stHorizontal;
ISysWindow::ScrollType constexpr vertical = ISysWindow::stVertical;
auto constexpr both = static_cast<ISysWindow::ScrollType>(3);
auto constexpr nowhere = static_cast<ISysWindow::ScrollType>(0);

// Both models go from 0 to 1000 and stand at 500.
class ScrollableElement : public testing::Test
{
protected:
    ScrollableElement()
    {
        m_Element.SetHorzScroll(&m_Horz);
        m_Element.SetVertScroll(&m_Vert);
    }
    std::string Periods() const { return Describe(m_System.GetRunningPeriods()); }
    std::string Starts() const { return Describe(m_Horz.m_Start) + " " + Describe(m_Vert.m_Start); }

    vexelbase::memory::CMemorySystem& m_System = CTestHost::System();
    CTestModel m_Horz{0, 1000, 500};
    CTestModel m_Vert{0, 1000, 500};
    CScrollableElement m_Element{nullptr, {10, 10}, alNone};
};

TEST_F(ScrollableElement, KnowsNothingAtFirst)
{
    CScrollableElement element(nullptr, {10, 10}, alTop);
    EXPECT_EQ(element.GetVertScroll(), nullptr);
    EXPECT_EQ(element.GetHorzScroll(), nullptr);
    EXPECT_EQ(element.GetCentralPane(), nullptr);
    EXPECT_FALSE(element.IsScrolling());
    EXPECT_EQ(element.GetCentralRect(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(element.GetAlignment(), alTop);
    EXPECT_EQ(element.GetSize(), (size<int>{10, 10}));
    EXPECT_EQ(Periods(), "[]");
}

TEST_F(ScrollableElement, StoresModelsAndPaneAndDoesNothingElse)
{
    EXPECT_EQ(m_Element.GetHorzScroll(), &m_Horz);
    EXPECT_EQ(m_Element.GetVertScroll(), &m_Vert);
    EXPECT_EQ(m_Horz.m_Calls.Take(), "");
    EXPECT_EQ(m_Vert.m_Calls.Take(), "");
    CVisualElement pane(nullptr, {10, 10}, alNone);
    m_Element.SetCentralPane(&pane);
    EXPECT_EQ(m_Element.GetCentralPane(), &pane);
    m_Element.SetCentralPane(nullptr);
    EXPECT_EQ(m_Element.GetCentralPane(), nullptr);
    m_Element.SetVertScroll(nullptr);
    m_Element.SetHorzScroll(nullptr);
    EXPECT_EQ(m_Element.GetVertScroll(), nullptr);
    EXPECT_EQ(m_Element.GetHorzScroll(), nullptr);
}

TEST_F(ScrollableElement, TheCentralRectIsThePanesContentInControlPixels)
{
    class CInset : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        rectangle<int> GetContentRect() const override { return {2, 3, 20, 30}; }
    };
    CVisualElement root(nullptr, {0, 0}, alNone);
    root.SetPos({100, 200, 300, 400}, false);  // of no parent: its place counts all the same
    CInset pane(&root, {10, 10}, alNone);
    pane.SetDynamic(false);
    pane.SetPos({5, 7, 45, 47}, false);
    m_Element.SetCentralPane(&pane);
    point<int> origin{0, 0};
    pane.ElementToControl(&origin);
    EXPECT_EQ(m_Element.GetCentralRect(), (rectangle<int>{origin.x + 2, origin.y + 3, origin.x + 20, origin.y + 30}));
}

TEST_F(ScrollableElement, APaneThatDiesIsForgotten)
{
    auto pane = std::make_unique<CVisualElement>(nullptr, size<int>{10, 10}, alNone);
    pane->SetPos({5, 7, 45, 47}, false);
    m_Element.SetCentralPane(pane.get());
    pane.reset();
    EXPECT_EQ(m_Element.GetCentralPane(), nullptr);
    EXPECT_TRUE(m_Element.GetCentralRect().IsZero());
}

// The condition of an axis -----------------------------------------------------------------------------------------------

TEST_F(ScrollableElement, AConditionHoldsWithoutWatchingThePointer)
{
    CScrollableElement::ScrollCondition condition;
    EXPECT_EQ(condition.GetDirection(), sdNone);
    EXPECT_TRUE(condition.ScrollIsPossible());
    condition.Init(sdForward, false);
    EXPECT_EQ(condition.GetDirection(), sdForward);
    m_System.MovePointer({900, 900});
    EXPECT_TRUE(condition.ScrollIsPossible());
}

TEST_F(ScrollableElement, AWatchedPointerMayMoveTwoPixelsOnEachAxis)
{
    CScrollableElement::ScrollCondition condition;
    m_System.MovePointer({100, 200});
    condition.Init(sdBackward, true);
    EXPECT_EQ(condition.GetDirection(), sdBackward);
    struct
    {
        point<int> pointer;
        bool possible;
    } const cases[] = {{{100, 200}, true},  {{102, 198}, true},  {{98, 202}, true},
                       {{103, 200}, false}, {{97, 200}, false},  {{100, 203}, false},
                       {{100, 197}, false}, {{102, 203}, false}, {{101, 201}, true}};
    for (auto const& entry : cases)
    {
        m_System.MovePointer(entry.pointer);
        EXPECT_EQ(condition.ScrollIsPossible(), entry.possible) << entry.pointer.x << " " << entry.pointer.y;
    }
    m_System.MovePointer({500, 500});
    condition.Clear();
    EXPECT_EQ(condition.GetDirection(), sdNone);
    EXPECT_TRUE(condition.ScrollIsPossible());
    condition.Init(sdForward, true);  // watches from where the pointer is now
    EXPECT_TRUE(condition.ScrollIsPossible());
}

// Starting and stopping --------------------------------------------------------------------------------------------------

TEST_F(ScrollableElement, ScrollsForwardByEightUnitsEveryHundredMilliseconds)
{
    m_Element.StartScrolling(horizontal, sdForward, false);
    EXPECT_TRUE(m_Element.IsScrolling());
    EXPECT_EQ(Periods(), "[100]");
    EXPECT_EQ(Starts(), "500 500");
    m_System.Advance(99);
    EXPECT_EQ(Starts(), "500 500");
    m_System.Advance(1);
    EXPECT_EQ(Starts(), "508 500");
    m_System.Advance(300);
    EXPECT_EQ(Starts(), "532 500");
    m_Element.StopScrolling(horizontal);
    EXPECT_FALSE(m_Element.IsScrolling());
    EXPECT_EQ(Periods(), "[]");
    m_System.Advance(300);
    EXPECT_EQ(Starts(), "532 500");
}

TEST_F(ScrollableElement, AnyOtherDirectionGoesBackward)
{
    m_Element.StartScrolling(horizontal, sdBackward, false);
    m_System.Advance(100);
    EXPECT_EQ(Starts(), "492 500");
    m_Element.StopScrolling(horizontal);
    m_Element.StartScrolling(horizontal, sdNone, false);
    m_System.Advance(100);
    EXPECT_EQ(Starts(), "484 500");
    m_Element.StopScrolling(horizontal);
    m_Element.StartScrolling(horizontal, static_cast<ScrollDirection>(7), false);
    m_System.Advance(100);
    EXPECT_EQ(Starts(), "476 500");
}

TEST_F(ScrollableElement, ByItsOwnTheVerticalAxisRunsTheTimerAndMovesNothing)
{
    m_Element.StartScrolling(vertical, sdForward, false);
    EXPECT_FALSE(m_Element.IsScrolling());
    EXPECT_EQ(Periods(), "[100]");
    m_System.Advance(500);
    EXPECT_EQ(Starts(), "500 500");
    EXPECT_EQ(Periods(), "[100]");
    EXPECT_EQ(m_Vert.m_Calls.Take(), "");
    m_Element.StopScrolling(vertical);  // none is armed, so nothing stops
    EXPECT_EQ(Periods(), "[100]");
}

TEST_F(ScrollableElement, BothAxesTogetherKeepTheirDirectionsTheHorizontalOneFirst)
{
    CLog log;
    m_Horz.m_OnSetStart = [&] { log.Add("horizontal"); };
    m_Vert.m_OnSetStart = [&] { log.Add("vertical"); };
    m_Element.StartScrolling(both, sdForward, false);
    EXPECT_TRUE(m_Element.IsScrolling());
    m_System.Advance(100);
    EXPECT_EQ(Starts(), "492 492");  // none was set, and none goes backward
    EXPECT_EQ(log.Take(), "horizontal vertical");
}

TEST_F(ScrollableElement, WhileOneIsArmedAnotherStartOnlyRunsTheTimer)
{
    m_System.MovePointer({100, 100});
    m_Element.StartScrolling(horizontal, sdForward, false);
    m_Element.StartScrolling(horizontal, sdBackward, true);
    m_Element.StartScrolling(both, sdBackward, true);
    m_System.MovePointer({200, 200});
    m_System.Advance(100);
    EXPECT_EQ(Starts(), "508 500");
    EXPECT_EQ(Periods(), "[100]");
}

TEST_F(ScrollableElement, AStoppedAxisTakesTheTimerOfTheOtherAlong)
{
    m_Element.StartScrolling(both, sdForward, false);
    m_Element.StopScrolling(horizontal);
    EXPECT_TRUE(m_Element.IsScrolling());  // the vertical one is armed still
    EXPECT_EQ(Periods(), "[]");
    m_Element.StartScrolling(vertical, sdForward, false);  // arms nothing, but the timer runs again
    m_System.Advance(100);
    EXPECT_EQ(Starts(), "500 492");
    m_Element.StopScrolling(vertical);
    EXPECT_FALSE(m_Element.IsScrolling());
    EXPECT_EQ(Periods(), "[]");
}

TEST_F(ScrollableElement, StoppingWhatIsNotArmedDoesNothing)
{
    m_Element.StartScrolling(horizontal, sdForward, false);
    m_Element.StopScrolling(vertical);
    m_Element.StopScrolling(nowhere);
    EXPECT_TRUE(m_Element.IsScrolling());
    EXPECT_EQ(Periods(), "[100]");
}

TEST_F(ScrollableElement, StoppingBothAxesAtOnceKeepsTheDirections)
{
    m_Element.StartScrolling(horizontal, sdForward, false);
    m_Element.StopScrolling(both);
    EXPECT_FALSE(m_Element.IsScrolling());
    EXPECT_EQ(Periods(), "[]");
    m_Element.StartScrolling(both, sdNone, false);
    m_System.Advance(100);
    EXPECT_EQ(Starts(), "508 492");  // forward as it was; the vertical one never had a direction
}

TEST_F(ScrollableElement, StoppingOneAxisForgetsItsDirection)
{
    m_Element.StartScrolling(horizontal, sdForward, false);
    m_Element.StopScrolling(horizontal);
    m_Element.StartScrolling(both, sdNone, false);
    m_System.Advance(100);
    EXPECT_EQ(Starts(), "492 492");
}

TEST_F(ScrollableElement, AMoveOfThePointerByThreePixelsEndsItWithoutALastStep)
{
    m_System.MovePointer({100, 100});
    m_Element.StartScrolling(horizontal, sdForward, true);
    m_System.MovePointer({102, 98});
    m_System.Advance(100);
    EXPECT_EQ(Starts(), "508 500");
    m_System.MovePointer({103, 98});
    EXPECT_TRUE(m_Element.IsScrolling());  // until the next tick
    m_System.Advance(100);
    EXPECT_EQ(Starts(), "508 500");
    EXPECT_FALSE(m_Element.IsScrolling());
    EXPECT_EQ(Periods(), "[]");
    EXPECT_EQ(m_Horz.m_Calls.Take(), "start(508)");
}

TEST_F(ScrollableElement, EndsWhenTheModelHasGone)
{
    m_Element.StartScrolling(horizontal, sdForward, false);
    m_Element.SetHorzScroll(nullptr);
    m_System.Advance(100);
    EXPECT_FALSE(m_Element.IsScrolling());
    EXPECT_EQ(Periods(), "[]");
}

TEST_F(ScrollableElement, TheTickReadsWhatIsArmedAgainForTheSecondAxis)
{
    m_Element.StartScrolling(both, sdForward, false);
    m_Horz.m_OnSetStart = [&] { m_Element.StopScrolling(vertical); };
    m_System.Advance(100);
    EXPECT_EQ(Starts(), "492 500");
}

// Steps ------------------------------------------------------------------------------------------------------------------

TEST_F(ScrollableElement, AStepBeyondTheEndLandsOnItAndStopsInTheSameCall)
{
    m_Horz.m_Start = 997;
    m_Element.StartScrolling(horizontal, sdForward, false);
    m_System.Advance(100);
    EXPECT_EQ(m_Horz.m_Calls.Take(), "start(1000)");
    EXPECT_FALSE(m_Element.IsScrolling());
    EXPECT_EQ(Periods(), "[]");
}

TEST_F(ScrollableElement, AStepOntoTheEndDoesNotStopYet)
{
    m_Horz.m_Start = 992;
    m_Element.StartScrolling(horizontal, sdForward, false);
    m_System.Advance(100);
    EXPECT_EQ(m_Horz.m_Calls.Take(), "start(1000)");
    EXPECT_TRUE(m_Element.IsScrolling());
    m_System.Advance(100);
    EXPECT_EQ(m_Horz.m_Calls.Take(), "start(1000)");  // set in every case
    EXPECT_FALSE(m_Element.IsScrolling());
}

TEST_F(ScrollableElement, BackwardItEndsAtTheOtherEnd)
{
    m_Horz.m_From = 10;
    m_Horz.m_Start = 18;
    m_Element.StartScrolling(horizontal, sdBackward, false);
    m_System.Advance(100);
    EXPECT_EQ(m_Horz.m_Calls.Take(), "start(10)");
    EXPECT_TRUE(m_Element.IsScrolling());
    m_System.Advance(100);
    EXPECT_EQ(m_Horz.m_Calls.Take(), "start(10)");
    EXPECT_FALSE(m_Element.IsScrolling());
}

TEST_F(ScrollableElement, AStepMayBeDoneByHandOnEitherAxis)
{
    m_Element.DoScroll(vertical, sdForward);
    EXPECT_EQ(Starts(), "500 508");
    m_Element.DoScroll(vertical, sdBackward);
    m_Element.DoScroll(vertical, sdNone);
    EXPECT_EQ(Starts(), "500 492");
    m_Element.DoScroll(horizontal, sdForward);
    EXPECT_EQ(Starts(), "508 492");
    EXPECT_FALSE(m_Element.IsScrolling());
}

TEST_F(ScrollableElement, AStepOnNoAxisDoesNothing)
{
    m_Element.StartScrolling(horizontal, sdForward, false);
    m_Element.DoScroll(nowhere, sdForward);
    EXPECT_EQ(Starts(), "500 500");
    EXPECT_TRUE(m_Element.IsScrolling());
}

TEST_F(ScrollableElement, AStepOnBothAxesAtOnceOnlyDisarmsThem)
{
    m_Element.StartScrolling(both, sdForward, false);
    m_Element.DoScroll(both, sdForward);
    EXPECT_EQ(Starts(), "500 500");
    EXPECT_FALSE(m_Element.IsScrolling());
    EXPECT_EQ(Periods(), "[]");
}

TEST_F(ScrollableElement, AStepByHandBeyondTheEndStopsThatAxisAlone)
{
    m_Element.StartScrolling(both, sdForward, false);
    m_Vert.m_Start = 999;
    m_Element.DoScroll(vertical, sdForward);
    EXPECT_EQ(Starts(), "500 1000");
    EXPECT_TRUE(m_Element.IsScrolling());
    EXPECT_EQ(Periods(), "[]");
    m_Element.StopScrolling(vertical);
    EXPECT_TRUE(m_Element.IsScrolling());  // the horizontal one
    m_Element.StopScrolling(horizontal);
    EXPECT_FALSE(m_Element.IsScrolling());
}

TEST_F(ScrollableElement, ReversedModelsAreNotCateredFor)
{
    m_Horz.m_From = 1000;
    m_Horz.m_To = 0;
    m_Element.StartScrolling(horizontal, sdForward, false);
    m_System.Advance(100);
    EXPECT_EQ(m_Horz.m_Calls.Take(), "start(0)");  // 508 is above GetTo()
    EXPECT_FALSE(m_Element.IsScrolling());
    m_Horz.m_Start = 500;
    m_Element.DoScroll(horizontal, sdBackward);
    EXPECT_EQ(m_Horz.m_Calls.Take(), "start(1000)");  // 492 is below GetFrom()
}

TEST_F(ScrollableElement, MayStopOrDieInItsTick)
{
    m_Element.StartScrolling(horizontal, sdForward, false);
    m_Horz.m_OnSetStart = [&] { m_Element.StopScrolling(horizontal); };
    m_System.Advance(200);
    EXPECT_EQ(m_Horz.m_Start, 508.0);

    for (bool atEnd : {false, true})
    {
        auto* element = new CScrollableElement(nullptr, {10, 10}, alNone);
        CTestModel horz(0, 1000, atEnd ? 999 : 500);
        element->SetHorzScroll(&horz);
        element->SetVertScroll(&m_Vert);
        horz.m_OnSetStart = [&] { delete std::exchange(element, nullptr); };
        element->StartScrolling(both, sdForward, false);
        element->StopScrolling(both);
        element->StartScrolling(horizontal, sdForward, false);
        m_System.Advance(300);
        EXPECT_EQ(element, nullptr);
        EXPECT_EQ(Periods(), "[]");
    }

    auto* element = new CScrollableElement(nullptr, {10, 10}, alNone);
    element->SetHorzScroll(&m_Horz);
    element->SetVertScroll(&m_Vert);
    m_Horz.m_OnSetStart = [&] { delete std::exchange(element, nullptr); };
    element->StartScrolling(both, sdForward, false);
    m_System.Advance(300);  // it goes before the vertical axis had its turn
    EXPECT_EQ(element, nullptr);
    EXPECT_EQ(m_Vert.m_Start, 500.0);
}

// Whom a scroll concerns -------------------------------------------------------------------------------------------------

TEST_F(ScrollableElement, AScrollConcernsItByItsEdge)
{
    struct
    {
        Alignment alignment;
        bool x, y;  // whether a distance on this axis alone concerns it
    } const cases[] = {{alNone, true, true}, {alLeft, false, true},   {alRight, false, true},
                       {alTop, true, false}, {alBottom, true, false}, {alClient, true, true}};
    for (auto const& entry : cases)
    {
        CScrollableElement element(nullptr, {10, 10}, entry.alignment);
        EXPECT_EQ(element.ScrollContent(5, 0), entry.x) << entry.alignment;
        EXPECT_EQ(element.ScrollContent(-5, 0), entry.x) << entry.alignment;
        EXPECT_EQ(element.ScrollContent(0, 5), entry.y) << entry.alignment;
        EXPECT_EQ(element.ScrollContent(0, -5), entry.y) << entry.alignment;
        EXPECT_FALSE(element.ScrollContent(0, 0)) << entry.alignment;
        EXPECT_TRUE(element.ScrollContent(5, 5)) << entry.alignment;
    }
    CScrollableElement odd(nullptr, {10, 10}, static_cast<Alignment>(6));
    EXPECT_FALSE(odd.ScrollContent(5, 5));
}

// Unequal steps ----------------------------------------------------------------------------------------------------------

TEST_F(ScrollableElement, WholeStepsAreReplacedByTheirSizesAndTheFractionStays)
{
    CTestModel model(2.7, 10);
    model.m_Fixed = false;
    model.m_Steps = {100, 100, 10, 20, 30, 40};
    EXPECT_EQ(m_Element.AddStepsInfo(5.5, &model), 62.5);  // 2 + 10 + 20 + 30 + 0.5
    EXPECT_EQ(m_Element.AddStepsInfo(2, &model), 2.0);
    EXPECT_EQ(m_Element.AddStepsInfo(2.9, &model), 2.9);
    EXPECT_EQ(m_Element.AddStepsInfo(3, &model), 12.0);
    EXPECT_EQ(m_Element.AddStepsInfo(1.5, &model), 1.5);  // below the range
    model.m_Fixed = true;
    EXPECT_EQ(m_Element.AddStepsInfo(5.5, &model), 5.5);
}

TEST_F(ScrollableElement, RangesBelowZeroBeginAtTheStepTruncatedTowardZero)
{
    CTestModel model(-1.5, 10);
    model.m_Fixed = false;
    model.m_Steps = {10, 20};
    EXPECT_EQ(m_Element.AddStepsInfo(1, &model), 10.0);  // -1 + 1 (step -1) + 10 (step 0)
    EXPECT_EQ(m_Element.AddStepsInfo(-1.25, &model), -1.25);
}

TEST_F(ScrollableElement, TheWayBackBeginsAtThePosition)
{
    CTestModel model(0, 10, 2.9);
    model.m_Fixed = false;
    model.m_Steps = {100, 100, 10, 20, 30, 40};
    EXPECT_EQ(m_Element.DelStepsInfo(32, &model), 4.0);  // 2 and 30, which are steps 2 and 3
    EXPECT_EQ(m_Element.DelStepsInfo(32.5, &model), 4.5);
    EXPECT_EQ(m_Element.DelStepsInfo(39.5, &model), -17.5);  // 7.5 are left: step 4 is taken whole, 7.5 - 30 + 5
    EXPECT_EQ(m_Element.DelStepsInfo(2.9, &model), 2.9);
    EXPECT_EQ(m_Element.DelStepsInfo(1.9, &model), 1.9);  // before the position
    model.m_Fixed = true;
    EXPECT_EQ(m_Element.DelStepsInfo(32, &model), 32.0);
}

TEST_F(ScrollableElement, StepsThatGoNowhereEndTheWayBack)
{
    class CStill : public CTestModel
    {
    public:
        double GetStepSize(double) const override { return 0.0; }
    };
    CStill model;
    model.m_Fixed = false;
    static_cast<void>(m_Element.DelStepsInfo(50, &model));
    static_cast<void>(m_Element.AddStepsInfo(50, &model));
    static_cast<void>(m_Element.DelStepsInfo(50, nullptr));
    static_cast<void>(m_Element.AddStepsInfo(50, nullptr));
}

}  // namespace
