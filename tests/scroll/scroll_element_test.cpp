// A bar driven from a model: range, page, position, and what it asks for.

#include "tests/scroll/scroll_support.h"
#include "vexel/scroll/scroll_element.h"
#include "vexel/testing/signal_log.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using namespace scroll_test;

namespace
{

// Everything that happens stands in one log: calls of the bar, and "scroll(action, value)" for the signal.
class ScrollElement : public testing::Test, public subscriber_base_t
{
protected:
    ScrollElement()
    {
        m_Element.m_SigScroll.connect(this, &ScrollElement::Scrolled);
        m_Element.SetScrollBar(m_Bar.get());
    }
    void Scrolled(CScrollEvent::ScrollAction action, double value)
    {
        m_Log.Add("scroll(" + Describe(static_cast<int>(action)) + ", " + Describe(value) + ")");
    }
    std::string Recalculate(CTestModel& model, int page)
    {
        m_Log.Take();
        m_Element.Recalculate(&model, page);
        return m_Log.Take();
    }
    void UserScrolls(double position, CScrollEvent::ScrollAction action)
    {
        CScrollEvent event(position, action);
        m_Element.ScrollBarOnScroll(&event);
    }

    CLog m_Log;
    vexel_ptr<CTestBar> m_Bar{new CTestBar(m_Log)};
    CScrollElement m_Element;
};

TEST_F(ScrollElement, StartsWithoutABarEnabledAndAutomatic)
{
    CScrollElement element;
    EXPECT_EQ(element.GetScrollBar(), nullptr);
    EXPECT_FALSE(element.IsScrollBarVisible());
    EXPECT_TRUE(element.IsEnabled());
    EXPECT_EQ(element.GetPolicy(), CScrollElement::spAutomatic);
    EXPECT_EQ(element.GetVal(), 0.0);
}

TEST_F(ScrollElement, WithoutABarNothingHappens)
{
    m_Element.SetScrollBar(nullptr);
    m_Element.SetPolicy(CScrollElement::spAlways);
    CTestModel model(0, 50, 20);
    EXPECT_EQ(Recalculate(model, 100), "");
    EXPECT_FALSE(m_Element.IsScrollBarVisible());
    EXPECT_EQ(model.m_Calls.Take(), "");
    m_Element.SetVal(3);
    UserScrolls(3, CScrollEvent::saLine);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Element.GetVal(), 0.0);
}

TEST_F(ScrollElement, GivesTheBarTheRangeInPhysicalUnits)
{
    CTestModel model(10, 110, 30);
    model.m_Measure = {1.0, 2};
    model.m_LineStep = 7;
    EXPECT_EQ(Recalculate(model, 40), "info(0: 0 to 200 by 7, page 40, at 40) enable");
    EXPECT_TRUE(m_Element.IsScrollBarVisible());
    EXPECT_EQ(model.m_Calls.Take(), "");
    EXPECT_EQ(m_Element.GetVal(), 30.0);  // at 40, which is 20 units above 10
}

TEST_F(ScrollElement, RangeAndPositionAreTruncated)
{
    CTestModel model(0, 100.9, 20.9);
    EXPECT_EQ(Recalculate(model, 40), "info(0: 0 to 100 by 5, page 40, at 20) enable");
}

TEST_F(ScrollElement, APageBelowOneCountsAsOne)
{
    CTestModel model(0, 100, 0);
    EXPECT_EQ(Recalculate(model, 1), "info(0: 0 to 100 by 5, page 1, at 0) enable");
    EXPECT_EQ(Recalculate(model, 0), "info(0: 0 to 100 by 5, page 1, at 0) enable");
    EXPECT_EQ(Recalculate(model, -30), "info(0: 0 to 100 by 5, page 1, at 0) enable");
}

TEST_F(ScrollElement, AReversedModelGivesAnInvertedBarThatCountsFromItsBeginning)
{
    CTestModel model(100, 0, 70);
    EXPECT_EQ(Recalculate(model, 40), "info(0: 0 to 100 by 5, page 40, at 30, inverted) enable");
}

TEST_F(ScrollElement, ABarThatMayNotBeEnabledIsNot)
{
    m_Element.SetEnabled(false);
    CTestModel model(0, 100, 0);
    EXPECT_EQ(Recalculate(model, 40), "info(0: 0 to 100 by 5, page 40, at 0)");
    EXPECT_TRUE(m_Element.IsScrollBarVisible());
}

// No range, or one that fits ---------------------------------------------------------------------------------------------

TEST_F(ScrollElement, WithoutAModelTheBarIsDisabledAndShowsOnlyIfItAlwaysDoes)
{
    m_Element.Recalculate(nullptr, 40);
    EXPECT_EQ(m_Log.Take(), "disable");
    EXPECT_FALSE(m_Element.IsScrollBarVisible());
    m_Element.SetPolicy(CScrollElement::spAlways);
    m_Element.Recalculate(nullptr, 40);
    EXPECT_EQ(m_Log.Take(), "disable");
    EXPECT_TRUE(m_Element.IsScrollBarVisible());
    m_Element.SetPolicy(CScrollElement::spNever);
    m_Element.Recalculate(nullptr, 40);
    EXPECT_EQ(m_Log.Take(), "disable");
    EXPECT_FALSE(m_Element.IsScrollBarVisible());
}

TEST_F(ScrollElement, ABarThatNeverShowsIsDisabledAndTheModelStays)
{
    CTestModel model(0, 100, 90);
    Recalculate(model, 40);
    m_Element.SetPolicy(CScrollElement::spNever);
    model.m_To = 3000000000.0;
    EXPECT_EQ(Recalculate(model, 40), "disable");
    EXPECT_FALSE(m_Element.IsScrollBarVisible());
    EXPECT_EQ(model.m_Calls.Take(), "");  // nor is its scale touched
}

TEST_F(ScrollElement, ARangeNoLongerThanThePageDisablesTheBarAndMovesTheModelToItsLowerEnd)
{
    CTestModel model(10, 60, 30);
    EXPECT_EQ(Recalculate(model, 50), "disable");
    EXPECT_FALSE(m_Element.IsScrollBarVisible());
    EXPECT_EQ(model.m_Calls.Take(), "start(10)");
    EXPECT_EQ(Recalculate(model, 50), "disable");
    EXPECT_EQ(model.m_Calls.Take(), "");  // it is there
    m_Element.SetPolicy(CScrollElement::spAlways);
    EXPECT_EQ(Recalculate(model, 50), "disable");
    EXPECT_TRUE(m_Element.IsScrollBarVisible());
    EXPECT_EQ(Recalculate(model, 49), "info(0: 0 to 50 by 5, page 49, at 0) enable");
}

TEST_F(ScrollElement, TheLowerEndOfAReversedModelIsItsTo)
{
    CTestModel model(60, 10, 30);
    EXPECT_EQ(Recalculate(model, 80), "disable");
    EXPECT_EQ(model.m_Calls.Take(), "start(10)");
}

TEST_F(ScrollElement, ADisabledBarKeepsItsOldRange)
{
    CTestModel model(0, 100, 20);
    Recalculate(model, 40);
    Recalculate(model, 200);
    EXPECT_EQ(m_Bar->m_Info.maximum, 100.0);
    EXPECT_EQ(m_Bar->m_Info.page, 40.0);
    EXPECT_EQ(m_Bar->m_Info.position, 20.0);
}

// Off the end ------------------------------------------------------------------------------------------------------------

TEST_F(ScrollElement, AViewThatFellOffTheEndIsAskedBackOnceBeforeTheBarHearsOfIt)
{
    CTestModel model(0, 100, 60);
    EXPECT_EQ(Recalculate(model, 40), "info(0: 0 to 100 by 5, page 40, at 60) enable");  // at the very end
    model.m_To = 90;
    EXPECT_EQ(Recalculate(model, 40), "scroll(1, 50) info(0: 0 to 90 by 5, page 40, at 50) enable");
    EXPECT_EQ(model.m_Calls.Take(), "");  // whoever hears it moves the model
}

TEST_F(ScrollElement, APositionBeyondIsBroughtBackInLogicalUnits)
{
    CTestModel model(10, 110, 100);
    model.m_Measure = {1.0, 2};
    EXPECT_EQ(Recalculate(model, 50), "scroll(1, 85) info(0: 0 to 200 by 5, page 50, at 150) enable");
}

TEST_F(ScrollElement, AReversedViewThatFellOffGoesToItsLowerEnd)
{
    CTestModel model(100, 5, 40);
    // At 60 of 95, so 20 too far with a page of 55; the signal asks for physical 0, which is the lower end.
    EXPECT_EQ(Recalculate(model, 55), "scroll(1, 5) info(0: 0 to 95 by 5, page 55, at 40, inverted) enable");
}

TEST_F(ScrollElement, NothingIsAskedBackWhereTheRangeFitsThePage)
{
    CTestModel model(0, 40, 30);
    EXPECT_EQ(Recalculate(model, 40), "disable");
    EXPECT_EQ(model.m_Calls.Take(), "start(0)");
}

// Whole items ------------------------------------------------------------------------------------------------------------

class ScrollElementOfItems : public ScrollElement
{
protected:
    // Six items of 10, 20, 30, 10, 20, 10; the measure of such a model: one item is `pixels` bar units.
    ScrollElementOfItems()
    {
        m_Model.m_From = 0;
        m_Model.m_To = 6;
        m_Model.m_Fixed = false;
        m_Model.m_Inseparable = true;
        m_Model.m_Steps = {1, 1, 1, 1, 1, 1};
    }
    CTestModel m_Model;
};

TEST_F(ScrollElementOfItems, ThePageCountsInWholeItems)
{
    // 1 item is 10 units: a page of 35 is room for 3.5 items, of which 3 are whole.
    m_Model.m_Measure = {1.0, 10};
    EXPECT_EQ(Recalculate(m_Model, 35), "info(0: 0 to 60 by 5, page 30, at 0) enable");
    EXPECT_EQ(Recalculate(m_Model, 30), "info(0: 0 to 60 by 5, page 30, at 0) enable");
    EXPECT_EQ(Recalculate(m_Model, 29), "info(0: 0 to 60 by 5, page 20, at 0) enable");
}

TEST_F(ScrollElementOfItems, ItemsOfOtherSizesFillThePageByTheirSizes)
{
    m_Model.m_Steps = {1, 2, 3, 1, 2, 1};
    m_Model.m_Measure = {1.0, 10};
    // Room for 4.5: item 0 (1) leaves 3.5, item 1 (2) leaves 1.5, item 2 (3) doesn't fit: 2 items, 20 units.
    EXPECT_EQ(Recalculate(m_Model, 45), "info(0: 0 to 60 by 5, page 20, at 0) enable");
    // Room for 6: 1 + 2 + 3, nothing left; item 3 (1) doesn't fit in 0.
    EXPECT_EQ(Recalculate(m_Model, 60), "info(0: 0 to 60 by 5, page 30, at 0) enable");
}

TEST_F(ScrollElementOfItems, ThePartOfTheFirstItemThatShowsCounts)
{
    m_Model.m_Steps = {4, 2, 2, 2, 2, 2};
    m_Model.m_Measure = {1.0, 10};
    m_Model.m_Start = 0.5;
    // First item shows 4 - 0.5 = 3.5 of its 4: 0.875. Room 5 - 3.5 = 1.5: item 1 (2) doesn't fit. 8.75 units.
    EXPECT_EQ(Recalculate(m_Model, 50), "info(0: 0 to 60 by 5, page 8.75, at 5) enable");
    // Room 6 - 3.5 = 2.5: item 1 fits, 0.5 is left. 18.75 units.
    EXPECT_EQ(Recalculate(m_Model, 60), "info(0: 0 to 60 by 5, page 18.75, at 5) enable");
}

TEST_F(ScrollElementOfItems, AFirstItemLargerThanThePageIsThePage)
{
    m_Model.m_Steps = {9, 1, 1, 1, 1, 1};
    m_Model.m_Measure = {1.0, 10};
    EXPECT_EQ(Recalculate(m_Model, 35), "info(0: 0 to 60 by 5, page 10, at 0) enable");
}

TEST_F(ScrollElementOfItems, NoItemBehindTheLastIsCounted)
{
    m_Model.m_Measure = {1.0, 10};
    m_Model.m_Start = 4;
    // Room for 10, but behind item 4 there is item 5 alone: 2 items, at 40 of 60.
    EXPECT_EQ(Recalculate(m_Model, 100), "info(0: 0 to 60 by 5, page 20, at 40) enable");
}

TEST_F(ScrollElementOfItems, ItemsThatFitBringTheModelToItsLowerEnd)
{
    m_Model.m_Measure = {1.0, 10};
    EXPECT_EQ(Recalculate(m_Model, 60), "disable");
    EXPECT_EQ(Recalculate(m_Model, 600), "disable");
    EXPECT_FALSE(m_Element.IsScrollBarVisible());
    EXPECT_EQ(Recalculate(m_Model, 59), "info(0: 0 to 60 by 5, page 50, at 0) enable");
}

TEST_F(ScrollElementOfItems, AnItemOfNoSizeDoesNotFit)
{
    m_Model.m_Measure = {1.0, 10};
    m_Model.m_Steps = {1, 1, 0, 1, 1, 1};
    EXPECT_EQ(Recalculate(m_Model, 50), "info(0: 0 to 60 by 5, page 20, at 0) enable");
}

TEST_F(ScrollElementOfItems, ItemsOfNoSizeHarmNobody)
{
    m_Model.m_Measure = {1.0, 10};
    m_Model.m_Steps = {0, 0, 0, 0, 0, 0};
    Recalculate(m_Model, 35);
    m_Model.m_Start = 2.5;
    Recalculate(m_Model, 35);
    SScrollBarInfo const info = m_Bar->m_Info;
    EXPECT_EQ(info.page, info.page);  // a number
}

TEST_F(ScrollElementOfItems, ABillionItemsAreNotWalkedThrough)
{
    m_Model.m_To = 1e9;
    m_Model.m_Steps = {};
    m_Model.m_StepsAsked = 0;
    EXPECT_EQ(Recalculate(m_Model, 50), "info(0: 0 to 1e+09 by 5, page 50, at 0) enable");
    EXPECT_LT(m_Model.m_StepsAsked, 100);
}

// Long ranges ------------------------------------------------------------------------------------------------------------

TEST_F(ScrollElement, ALongRangeIsSpreadOverTheBar)
{
    CTestModel model(0, 3000000000.0, 1500000000.0);
    Recalculate(model, 40);
    EXPECT_EQ(m_Bar->m_Info.maximum, 2147483646.0);
    EXPECT_EQ(m_Bar->m_Info.position, 1073741823.0);
    EXPECT_EQ(m_Bar->m_Info.page, 40.0);
    EXPECT_DOUBLE_EQ(model.m_Measure.first, 3000000000.0 / 2147483646.0);
    model.m_Calls.Take();
    Recalculate(model, 40);
    EXPECT_EQ(model.m_Calls.Take(), "");  // once
}

TEST_F(ScrollElement, ALongRangeWithAFixedMeasureIsCountedBeyondWholeNumbers)
{
    CTestModel model(0, 1e18, 0);
    model.m_TakesMeasure = false;
    Recalculate(model, 40);
    EXPECT_TRUE(m_Element.IsScrollBarVisible());
    UserScrolls(1e18, CScrollEvent::saThumb);
    EXPECT_EQ(m_Log.Take(), "scroll(0, 1e+18)");
    UserScrolls(3e9, CScrollEvent::saThumb);
    EXPECT_EQ(m_Log.Take(), "scroll(0, 3e+09)");
}

// The user ---------------------------------------------------------------------------------------------------------------

TEST_F(ScrollElement, TellsWhatTheUserAsksForAndLeavesTheModelAlone)
{
    CTestModel model(10, 110, 10);
    model.m_Measure = {1.0, 2};
    Recalculate(model, 40);
    UserScrolls(50, CScrollEvent::saLine);
    EXPECT_EQ(m_Log.Take(), "scroll(2, 35)");
    UserScrolls(50.9, CScrollEvent::saThumb);  // truncated
    EXPECT_EQ(m_Log.Take(), "scroll(0, 35)");
    UserScrolls(160, CScrollEvent::saPage);
    EXPECT_EQ(m_Log.Take(), "scroll(3, 90)");
    UserScrolls(161, CScrollEvent::saPage);  // 161 + 40 is past 200
    EXPECT_EQ(m_Log.Take(), "scroll(3, 90)");
    EXPECT_EQ(model.m_Calls.Take(), "");
    EXPECT_EQ(m_Bar->m_Info.position, 0.0);
}

TEST_F(ScrollElement, OnAReversedAxisTheEndsAreExchanged)
{
    CTestModel model(100, 0, 100);
    Recalculate(model, 40);
    UserScrolls(0, CScrollEvent::saThumb);
    EXPECT_EQ(m_Log.Take(), "scroll(0, 60)");  // maximum - page
    UserScrolls(60, CScrollEvent::saThumb);
    EXPECT_EQ(m_Log.Take(), "scroll(0, 0)");
    UserScrolls(75, CScrollEvent::saThumb);
    EXPECT_EQ(m_Log.Take(), "scroll(0, 0)");
    UserScrolls(10, CScrollEvent::saThumb);
    EXPECT_EQ(m_Log.Take(), "scroll(0, 50)");
}

TEST_F(ScrollElement, HearsTheBarThatItIsSubscribedTo)
{
    CTestModel model(0, 100, 0);
    Recalculate(model, 40);
    m_Bar->Subscribe(&m_Element, typeid(IScrollBarNotify), true);
    CScrollEvent event(30, CScrollEvent::saThumb);
    Fire<&IScrollBarNotify::ScrollBarOnScroll>(*m_Bar, &event, true);
    EXPECT_EQ(m_Log.Take(), "scroll(0, 30)");
}

// Values -----------------------------------------------------------------------------------------------------------------

TEST_F(ScrollElement, AValueTravelsOnAsTheBarAcceptedIt)
{
    CTestModel model(10, 110, 10);
    model.m_Measure = {1.0, 2};
    Recalculate(model, 40);
    m_Element.SetVal(35.3);
    EXPECT_EQ(m_Log.Take(), "pos(50) scroll(4, 35)");
    EXPECT_EQ(m_Element.GetVal(), 35.0);
    m_Bar->m_Limit = 160;
    m_Element.SetVal(1000);
    EXPECT_EQ(m_Log.Take(), "pos(1980) scroll(4, 90)");
    EXPECT_EQ(m_Element.GetVal(), 90.0);
    EXPECT_EQ(model.m_Calls.Take(), "");
}

TEST_F(ScrollElement, ValuesWithoutAModelAreZero)
{
    m_Bar->m_Info.position = 30;
    EXPECT_EQ(m_Element.GetVal(), 0.0);
    m_Element.SetVal(7);
    EXPECT_EQ(m_Log.Take(), "pos(0) scroll(4, 0)");
}

// Lifetime ---------------------------------------------------------------------------------------------------------------

class CDeleter : public subscriber_base_t
{
public:
    explicit CDeleter(CScrollElement* element) : m_Element(element)
    {
        element->m_SigScroll.connect(this, &CDeleter::Scrolled);
    }
    void Scrolled(CScrollEvent::ScrollAction, double) { delete std::exchange(m_Element, nullptr); }

    CScrollElement* m_Element;
};

TEST_F(ScrollElement, MayBeDeletedByWhoeverHearsIt)
{
    CTestModel model(0, 100, 90);
    for (int way = 0; way < 4; ++way)
    {
        auto* const element = new CScrollElement;
        element->SetScrollBar(m_Bar.get());
        m_Bar->Subscribe(element, typeid(IScrollBarNotify), true);
        if (way > 0)
            element->Recalculate(&model, 10);
        CDeleter deleter(element);
        CScrollEvent event(30, CScrollEvent::saThumb);
        switch (way)
        {
        case 0:
            element->Recalculate(&model, 40);
            break;
        case 1:
            element->SetVal(5);
            break;
        case 2:
            element->ScrollBarOnScroll(&event);
            break;
        default:
            Fire<&IScrollBarNotify::ScrollBarOnScroll>(*m_Bar, &event, true);
            break;
        }
        EXPECT_EQ(deleter.m_Element, nullptr) << way;
        EXPECT_FALSE(m_Bar->IsSubscribed(typeid(IScrollBarNotify)));
    }
}

TEST_F(ScrollElement, TheModelMayGoInTheSignal)
{
    class CLetGo : public subscriber_base_t
    {
    public:
        void Scrolled(CScrollEvent::ScrollAction, double)
        {
            // What a box does whose model goes: it recalculates without one.
            m_Element->Recalculate(nullptr, 40);
            m_Model.reset();
        }
        CScrollElement* m_Element = nullptr;
        std::unique_ptr<CTestModel> m_Model = std::make_unique<CTestModel>(0, 100, 90);
    };
    CLetGo letGo;
    letGo.m_Element = &m_Element;
    m_Element.m_SigScroll.connect(&letGo, &CLetGo::Scrolled);
    m_Element.Recalculate(letGo.m_Model.get(), 40);
    EXPECT_EQ(letGo.m_Model, nullptr);
    EXPECT_EQ(m_Element.GetVal(), 0.0);
    EXPECT_FALSE(m_Element.IsScrollBarVisible());
}

}  // namespace
