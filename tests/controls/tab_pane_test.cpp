// The model, the current tab, toggles, and what the signals of a pane tell.

#include "tests/controls/tab_bench.h"

using namespace tab_test;

namespace
{

class TabPane : public CTabBench
{
protected:
    CSignalLog m_Log{m_Pane.m_SigCurrentTabChanged, "current"};
};

TEST_F(TabPane, BeginsWithTabsOfTheirOwnWidthAndNothingSelected)
{
    CTabPane pane(nullptr, {100, 26}, alNone);
    EXPECT_EQ(pane.GetModel(), nullptr);
    EXPECT_EQ(pane.GetItemVisualisation(), &pane);
    EXPECT_FALSE(pane.GetEqualWidths());
    EXPECT_FALSE(pane.IsAutoSize());
    EXPECT_FALSE(pane.IsToggled());
    EXPECT_TRUE(pane.IsTransparent());
    EXPECT_EQ(pane.GetCurrentTab(), -1);
    EXPECT_EQ(pane.GetStableTab(), -1);
    EXPECT_EQ(pane.GetFirstVisibleTab(), 0);
    EXPECT_EQ(pane.GetRowViewModel()->GetCount(), 1);
    EXPECT_EQ(pane.GetRowViewModel()->GetItemSize(0), 26);  // the height that it was made with
    EXPECT_EQ(pane.GetColumnHandler().GetSelectionType(), CEventHandlerBase::stOneItem);
    EXPECT_EQ(pane.GetOwnFont().style, font::fsBold);
    EXPECT_EQ(pane.GetOwnFont().name, "");
    EXPECT_EQ(pane.GetOwnFont().family, 4);
    EXPECT_EQ(pane.GetOwnFont().size, 0);
    EXPECT_EQ(pane.GetOwnFont().factor, 1.0);
}

TEST_F(TabPane, HasTheDefaultTabHandlerBeforeTheTooltipsAndTheRows)
{
    CEventHandler const* const first = m_Pane.GetEventHandlers();
    EXPECT_EQ(first, static_cast<CDefTabHandler*>(&m_Pane));
    EXPECT_EQ(first->GetNext(), static_cast<CTooltipEventHandler*>(&m_Pane));
    EXPECT_EQ(first->GetNext()->GetNext(), &m_Pane.GetRowHandler());
    EXPECT_EQ(first->GetNext()->GetNext()->GetNext(), nullptr);
}

TEST_F(TabPane, TakesScaleAndHeightOverWhereTheParentHasTheSameFont)
{
    font bold;
    bold.style = font::fsBold;
    m_Host.Root()->SetFont(bold);
    CTabPane pane(m_Host.Root(), {10, 10}, alNone);
    EXPECT_EQ(pane.GetRowViewModel()->GetItemSize(0), 19);
}

// The model -----------------------------------------------------------------------------------------------------------------

TEST_F(TabPane, TakesTheNumberOfTabsFromItsModel)
{
    EXPECT_EQ(View().GetCount(), 3);
    m_Tabs.Add("jkl");
    EXPECT_EQ(View().GetCount(), 3);  // nobody has told
    m_Tabs.m_SigChanged();
    EXPECT_EQ(View().GetCount(), 4);
    m_Pane.SetModel(nullptr);
    EXPECT_EQ(View().GetCount(), 0);
}

TEST_F(TabPane, TheModelInUseSetAgainChangesNothing)
{
    m_Tabs.Add("jkl");
    m_Pane.SetModel(&m_Tabs);
    EXPECT_EQ(View().GetCount(), 3);
}

TEST_F(TabPane, HearsNothingOfAModelThatItNoLongerUses)
{
    CTestTabs other({"a"});
    m_Pane.SetModel(&other);
    EXPECT_EQ(View().GetCount(), 1);
    m_Tabs.m_SigChanged();
    m_Tabs.m_SigTabChanged(0);
    EXPECT_EQ(View().GetCount(), 1);
    Settle();
    m_Tabs.m_SigTabChanged(0);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Pane.SetModel(&m_Tabs);
}

TEST_F(TabPane, ForgetsAModelThatDies)
{
    {
        CTestTabs other({"a", "b"});
        m_Pane.SetModel(&other);
    }
    EXPECT_EQ(m_Pane.GetModel(), nullptr);
    EXPECT_EQ(View().GetCount(), 0);
    EXPECT_EQ(DrawnTabs(), "");
    EXPECT_EQ(Describe(m_Pane.HitTest(5, 5)), "0 -1 (0, 0, 0, 0)");
}

TEST_F(TabPane, NeverAsksForATabThatTheModelNoLongerHas)
{
    m_Tabs.m_Tabs.pop_back();
    m_Tabs.m_Tabs.pop_back();  // untold: two of the three columns show nothing
    m_Pane.Update(utElement);
    EXPECT_EQ(DrawnTabs(), "0");
    m_Host.Mouse().Click(m_Pane, 50, 5);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Host.Tooltip(m_Pane, 90, 5), "");
    m_Tabs.m_SigTabChanged(2);
    EXPECT_EQ(m_Pane.GetSpacerWidth(2), 0);
}

// The current tab -----------------------------------------------------------------------------------------------------------

TEST_F(TabPane, ATabMadeCurrentIsSelectedAndTold)
{
    m_Pane.SetCurrentTab(1);
    EXPECT_EQ(m_Log.Take(), "current(1, -1, true)");
    EXPECT_EQ(m_Pane.GetCurrentTab(), 1);
    EXPECT_TRUE(Selection().IsItemSelected(1));
    m_Pane.SetCurrentTab(2);
    EXPECT_EQ(m_Log.Take(), "current(2, 1, true)");
    EXPECT_FALSE(Selection().IsItemSelected(1));
    EXPECT_TRUE(Selection().IsItemSelected(2));
    EXPECT_EQ(Selection().GetSelectedCount(), 1);
}

TEST_F(TabPane, TheCurrentTabMadeCurrentAgainChangesNothing)
{
    m_Pane.SetCurrentTab(1);
    Settle();
    m_Log.Clear();
    m_Pane.SetCurrentTab(1);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(TabPane, NoTabIsCurrentWithAnIndexBelowNull)
{
    m_Pane.SetCurrentTab(1);
    m_Log.Clear();
    m_Pane.SetCurrentTab(-7);
    EXPECT_EQ(m_Log.Text(), "current(-1, 1, true)");
    EXPECT_EQ(Selection().GetSelectedCount(), 0);
}

TEST_F(TabPane, CodeMayMakeADisabledTabCurrent)
{
    m_Tabs[1].enabled = false;
    m_Pane.SetCurrentTab(1);
    EXPECT_EQ(m_Pane.GetCurrentTab(), 1);
}

TEST_F(TabPane, ACurrentTabOutOfViewComesToTheMiddle)
{
    for (int i = 0; i < 20; ++i)
        m_Tabs.Add("xyz");
    m_Tabs.m_SigChanged();
    m_Host.Paint();
    m_Pane.SetCurrentTab(12);
    // 199 - 43 = 156 are free, half of it is 78: two tabs before it overshoot, so one stands there.
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 11);
    m_Pane.SetCurrentTab(22);
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 19);  // four are in view: the last view full
}

TEST_F(TabPane, ASlotThatMakesAnotherTabCurrentHasItsWay)
{
    auto const slot = Listen(m_Pane.m_SigCurrentTabChanged, [&](CTabPane* pane, int now, int, bool) {
        if (now == 1)
            pane->SetCurrentTab(2);
    });
    m_Pane.SetCurrentTab(1);
    EXPECT_EQ(m_Pane.GetCurrentTab(), 2);
    EXPECT_TRUE(Selection().IsItemSelected(2));
    EXPECT_FALSE(Selection().IsItemSelected(1));
}

TEST_F(TabPane, AnotherSelectionModelIsHeardInPlaceOfTheFormerOne)
{
    CDefaultSelectionModel other;
    ISelectionModel& own = Selection();
    m_Pane.SetColumnSelectionModel(&other);
    own.SetCurrent(2);
    EXPECT_EQ(m_Log.Text(), "");
    other.SetCurrent(1);
    EXPECT_EQ(m_Log.Take(), "current(1, -1, true)");
    m_Pane.SetColumnSelectionModel(&other);  // not heard twice
    other.SetCurrent(0);
    EXPECT_EQ(m_Log.Take(), "current(0, 1, true)");
    m_Pane.SetColumnSelectionModel(nullptr);
    own.SetCurrent(0);
    EXPECT_EQ(m_Log.Take(), "current(0, 2, true)");
}

TEST_F(TabPane, GoesBackToItsOwnSelectionModelWhereAnotherOneDies)
{
    {
        CDefaultSelectionModel other;
        m_Pane.SetColumnSelectionModel(&other);
        m_Pane.SetEqualWidths(true);
    }
    m_Pane.SetCurrentTab(2);
    EXPECT_EQ(m_Log.Text(), "current(2, -1, true)");
}

// Toggles -------------------------------------------------------------------------------------------------------------------

TEST_F(TabPane, OfTabsThatBecomeTogglesTheCurrentOneIsOn)
{
    m_Pane.SetCurrentTab(1);
    m_Log.Clear();
    m_Pane.SetToggled(true);
    EXPECT_TRUE(m_Pane.IsToggled());
    EXPECT_FALSE(m_Pane.IsTabToggled(0));
    EXPECT_TRUE(m_Pane.IsTabToggled(1));
    EXPECT_EQ(m_Pane.GetColumnHandler().GetSelectionType(), CEventHandlerBase::stFree);
    EXPECT_EQ(m_Log.Text(), "current(1, 1, true)");
}

TEST_F(TabPane, TogglesAreSwitchedByCodeEachForItself)
{
    m_Pane.SetToggled(true);
    m_Pane.ToggleTab(0, true);
    m_Pane.ToggleTab(2, true);
    EXPECT_TRUE(m_Pane.IsTabToggled(0));
    EXPECT_FALSE(m_Pane.IsTabToggled(1));
    EXPECT_TRUE(m_Pane.IsTabToggled(2));
    EXPECT_EQ(m_Log.Take(), "current(-1, -1, false) current(-1, -1, false)");  // none is current
    m_Pane.ToggleTab(0, false);
    EXPECT_FALSE(m_Pane.IsTabToggled(0));
    EXPECT_EQ(m_Log.Take(), "");
    m_Pane.ToggleTab(2, true);  // is on already
    m_Pane.ToggleTab(3, true);
    m_Pane.ToggleTab(-1, true);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_FALSE(m_Pane.IsTabToggled(3));
}

TEST_F(TabPane, TabsThatAreNoTogglesAreNeitherSwitchedNorOn)
{
    m_Pane.SetCurrentTab(1);
    m_Pane.ToggleTab(2, true);
    EXPECT_FALSE(Selection().IsItemSelected(2));
    EXPECT_FALSE(m_Pane.IsTabToggled(1));
}

TEST_F(TabPane, ACurrentToggleIsNotToldAndSelectsNothing)
{
    m_Pane.SetToggled(true);
    m_Log.Clear();
    m_Pane.SetCurrentTab(1);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Selection().GetSelectedCount(), 0);
}

TEST_F(TabPane, TabsThatNoLongerAreTogglesHaveTheCurrentOneSelected)
{
    m_Pane.SetToggled(true);
    m_Pane.ToggleTab(0, true);
    m_Pane.ToggleTab(2, true);
    m_Pane.SetCurrentTab(1);
    m_Pane.SetToggled(false);
    EXPECT_EQ(Selection().GetSelectedCount(), 1);
    EXPECT_TRUE(Selection().IsItemSelected(1));
}

// States --------------------------------------------------------------------------------------------------------------------

TEST_F(TabPane, ATabThatNothingConcernsIsPlain)
{
    EXPECT_EQ(m_Pane.GetVisualisationState(0), 8u);
    EXPECT_EQ(m_Pane.GetVisualisationState(-1), 8u);
    EXPECT_EQ(m_Pane.GetVisualisationState(3), 8u);
}

TEST_F(TabPane, TheStateTellsWhereTheMouseIs)
{
    m_Tabs[1].close = true;  // 53 wide: the button stands at x from 76 on
    m_Tabs.m_SigChanged();
    m_Host.Mouse().Move(m_Pane, 50, 5);
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 1u);
    EXPECT_EQ(m_Pane.GetVisualisationState(0), 8u);
    m_Pane.SetCurrentTab(1);
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 5u);
    Focus();
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 37u);
    EXPECT_EQ(m_Pane.GetVisualisationState(0), 8u);
    m_Host.Mouse().Leave();
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 36u);
}

TEST_F(TabPane, ACurrentTabThatIsPlainKeepsThatInTheFocus)
{
    m_Pane.SetToggled(true);
    m_Pane.SetCurrentTab(0);
    Focus();
    EXPECT_EQ(m_Pane.GetVisualisationState(0), 40u);
    m_Host.Unfocus();
    EXPECT_EQ(m_Pane.GetVisualisationState(0), 8u);
}

TEST_F(TabPane, ADisabledTabHasOneStateWhateverConcernsIt)
{
    m_Tabs[1].enabled = false;
    m_Pane.SetCurrentTab(1);
    Focus();
    m_Host.Mouse().Move(m_Pane, 50, 5);
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 24u);
}

// The control ---------------------------------------------------------------------------------------------------------------

TEST_F(TabPane, TakesTheWindowOfItsControlForItsTooltips)
{
    EXPECT_EQ(m_Pane.GetWindow(), &m_Host.Window());
    m_Pane.ReParent(nullptr, true);
    EXPECT_EQ(m_Pane.GetWindow(), nullptr);
    m_Pane.HideTooltip();
    m_Pane.ReParent(m_Host.Root(), true);
    EXPECT_EQ(m_Pane.GetWindow(), &m_Host.Window());
    m_Host.DestroyWindow();
    EXPECT_EQ(m_Pane.GetWindow(), nullptr);
    m_Pane.HideTooltip();
}

TEST(TabPaneAlone, WithoutAControlItCanDoAllButMeasure)
{
    CTestHost::System();
    CTestTabs tabs({"abc", "def"});
    CTabPane pane(nullptr, {100, 20}, alNone);
    EXPECT_EQ(pane.GetWindow(), nullptr);
    pane.SetModel(&tabs);
    pane.SetAutoSize(true);
    pane.Layout();
    pane.SetPos({0, 0, 100, 20}, false);
    EXPECT_EQ(Describe(pane.HitTest(25, 5)), "1 1 (20, 2, 35, 15)");  // the default width of 20
    pane.SetCurrentTab(1);
    pane.SetEqualWidths(true);
    pane.CheckAnimation();
    pane.UpdateAnimation();
    bool handled = false;
    pane.HighlightingMouseMove(25, 5, 0, mbNone, &handled);
    pane.HideTooltip();
    EXPECT_EQ(pane.GetCurrentTab(), 1);
}

}  // namespace
