// Mouse, keys and tooltips of a pane of tabs.

#include "tests/controls/tab_bench.h"

using namespace tab_test;

namespace
{

class TabPaneInput : public CTabBench
{
protected:
    TabPaneInput()
    {
        m_Log.Add(m_Pane.m_SigCloseClicked, "close");
        Focus();
    }
    void MakeHigh()
    {
        m_Tabs[1].close = true;  // the button at (75, 4, 87, 16)
        m_Tabs.m_SigChanged();
        m_Pane.SetAutoRowHeight(false);
        m_Pane.GetRowViewModel()->SetDefaultItemSize(23);
        m_Pane.SetSize({130, 25}, false);
        Settle();
    }
    void Press(int key, int keys = 0) { m_Host.Keyboard().Press(key, keys); }

    CSignalLog m_Log{m_Pane.m_SigCurrentTabChanged, "current"};
};

// The mouse -----------------------------------------------------------------------------------------------------------------

TEST_F(TabPaneInput, AClickMakesATabCurrentAndSelectsIt)
{
    m_Host.Mouse().Click(m_Pane, 50, 5);
    EXPECT_EQ(m_Log.Take(), "current(1, -1, true)");
    EXPECT_TRUE(Selection().IsItemSelected(1));
    m_Host.Mouse().Click(m_Pane, 100, 5);
    EXPECT_EQ(m_Log.Take(), "current(2, 1, true)");
    EXPECT_FALSE(Selection().IsItemSelected(1));
    m_Host.Mouse().Click(m_Pane, 100, 5);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(TabPaneInput, AClickWithShiftOrControlIsAPlainOne)
{
    m_Host.Mouse().Click(m_Pane, 5, 5);
    CHoldKeys const hold(m_Host, ksShift | ksControl);
    m_Host.Mouse().Click(m_Pane, 100, 5);
    EXPECT_EQ(m_Log.Take(), "current(0, -1, true) current(2, 0, true)");
    EXPECT_EQ(Selection().GetSelectedCount(), 1);
}

TEST_F(TabPaneInput, AClickBesideTheTabsChangesNothing)
{
    m_Pane.SetCurrentTab(1);
    m_Log.Clear();
    m_Host.Mouse().Click(m_Pane, 41, 5);  // between two
    m_Host.Mouse().Click(m_Pane, 50, 16);
    m_Host.Mouse().Click(m_Pane, 180, 5);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Pane.GetCurrentTab(), 1);
}

TEST_F(TabPaneInput, AClickOnADisabledTabChangesNothing)
{
    m_Tabs[1].enabled = false;
    m_Pane.SetCurrentTab(0);
    m_Log.Clear();
    m_Host.Mouse().Click(m_Pane, 50, 5);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Pane.GetCurrentTab(), 0);
}

TEST_F(TabPaneInput, OnlyTheLeftButtonChooses)
{
    m_Host.Mouse().Click(m_Pane, 50, 5, mbRight);
    m_Host.Mouse().Click(m_Pane, 50, 5, mbMiddle);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(TabPaneInput, ADragOutOfATabNeitherScrollsNorChooses)
{
    m_Host.Control().GetContent()->GetControl()->SetDragStartSensitivity({3, 3});
    m_Host.Mouse().Drag(m_Pane, 5, 5, 100, 5);
    m_Host.Mouse().Move(m_Pane, 350, 5);
    m_Host.Clock().Advance(500);
    EXPECT_EQ(m_Log.Text(), "current(0, -1, true)");
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 0);
    m_Host.Mouse().Release();
}

TEST_F(TabPaneInput, ACloseButtonClosesAndDoesNotChoose)
{
    MakeHigh();
    m_Host.Mouse().Click(m_Pane, 80, 10);
    EXPECT_EQ(m_Log.Take(), "close(1)");
    EXPECT_EQ(m_Pane.GetCurrentTab(), -1);
    m_Host.Mouse().Click(m_Pane, 60, 10);
    EXPECT_EQ(m_Log.Take(), "current(1, -1, true)");
}

TEST_F(TabPaneInput, ACloseButtonThatThePointerHasNotLitUpIsATab)
{
    MakeHigh();
    bool handled = false;
    m_Pane.SetCurProcessButtonDown(80, 10, ksLeft, mbLeft, &handled);
    EXPECT_TRUE(handled);
    EXPECT_EQ(m_Log.Take(), "current(1, -1, true)");
}

TEST_F(TabPaneInput, NorIsOneOnTheTabThatThePointerHasLitUpBesideIt)
{
    MakeHigh();
    m_Host.Mouse().Move(m_Pane, 60, 10);
    ASSERT_EQ(m_Pane.GetVisualisationState(1), 1u);
    bool handled = false;
    m_Pane.SetCurProcessButtonDown(80, 10, ksLeft, mbLeft, &handled);
    EXPECT_EQ(m_Log.Take(), "current(1, -1, true)");
}

TEST_F(TabPaneInput, ATabThatSlidUnderThePointerIsNotClosedByTheSecondPress)
{
    MakeHigh();
    m_Tabs[2].close = true;  // 53 wide as well, so its button takes the place of the one that goes
    m_Tabs.Add("a").close = true;
    m_Tabs.m_SigChanged();
    Settle();
    auto const slot = Listen(m_Pane.m_SigCloseClicked, [&](CTabPane*, int tab) {
        m_Tabs.m_Tabs.erase(m_Tabs.m_Tabs.begin() + tab);
        m_Tabs.m_SigChanged();
    });
    m_Host.Mouse().Click(m_Pane, 80, 10);
    EXPECT_EQ(m_Log.Take(), "close(1)");
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 3u);  // the next one has its button there
    m_Host.Mouse().Click(m_Pane, 80, 10);
    EXPECT_EQ(m_Log.Take(), "close(1)");
    // "a" is 35 wide: its button is elsewhere, so it is neither lit up nor hit.
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 8u);
    m_Host.Mouse().Click(m_Pane, 80, 10);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Tabs.GetTabCount(), 2);
}

TEST_F(TabPaneInput, TheHighlightGoesWithItsTab)
{
    m_Host.Mouse().Move(m_Pane, 100, 5);
    EXPECT_EQ(m_Pane.GetVisualisationState(2), 1u);
    m_Tabs.m_Tabs.pop_back();
    m_Tabs.m_SigChanged();
    m_Tabs.Add("new");
    m_Tabs.m_SigChanged();
    EXPECT_EQ(m_Pane.GetVisualisationState(2), 8u);
}

TEST_F(TabPaneInput, TheHighlightFollowsTheMouseAndEndsBesideTheTabs)
{
    m_Host.Mouse().Move(m_Pane, 5, 5);
    EXPECT_EQ(m_Pane.GetVisualisationState(0), 1u);
    m_Host.Mouse().Move(m_Pane, 41, 5);
    EXPECT_EQ(m_Pane.GetVisualisationState(0), 8u);
    m_Host.Mouse().Move(m_Pane, 50, 5);
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 1u);
    m_Host.Mouse().Leave();
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 8u);
}

TEST_F(TabPaneInput, TheHighlightStandsWhileAButtonIsHeld)
{
    m_Host.Mouse().Press(m_Pane, 5, 5);
    m_Host.Mouse().Move(m_Pane, 50, 5);
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 8u);
    m_Host.Mouse().Release();
    m_Host.Mouse().Press(m_Pane, 5, 5, mbRight);
    m_Host.Mouse().Move(m_Pane, 50, 5);
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 8u);
    m_Host.Mouse().Release(mbRight);
}

// The dispatch --------------------------------------------------------------------------------------------------------------

TEST_F(TabPaneInput, MovesWithAnyOtherButtonGoOnAndLightUpNothing)
{
    for (int bit = 1; bit < 8; ++bit)
    {
        bool handled = false;
        EXPECT_FALSE(m_Pane.CDefTabHandler::ProcessMouseMove(50, 5, 1 << bit, mbNone, &handled)) << bit;
        EXPECT_FALSE(handled) << bit;
        EXPECT_EQ(m_Pane.GetVisualisationState(1), 8u) << bit;
    }
    bool handled = false;
    EXPECT_TRUE(m_Pane.CDefTabHandler::ProcessMouseMove(50, 5, ksControl, mbNone, &handled));
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 1u);
}

TEST_F(TabPaneInput, MovesWithTheLeftButtonEndAtTheDefaultHandler)
{
    CDefTabHandler& handler = m_Pane;
    bool handled = false;
    EXPECT_TRUE(handler.ProcessMouseMove(5, 5, ksLeft, mbLeft, &handled));
    EXPECT_TRUE(handled);
    handled = false;
    EXPECT_FALSE(handler.ProcessMouseMove(5, 5, ksRight, mbRight, &handled));
    EXPECT_FALSE(handler.ProcessMouseMove(5, 5, ksMiddle | ksShift, mbMiddle, &handled));
    EXPECT_FALSE(handled);
    EXPECT_TRUE(handler.ProcessMouseMove(5, 5, ksShift, mbNone, &handled));
    EXPECT_FALSE(handled);  // others hear of it
    EXPECT_EQ(m_Pane.GetVisualisationState(0), 1u);
    handler.ProcessMouseLeave(&handled);
    EXPECT_FALSE(handled);
    EXPECT_EQ(m_Pane.GetVisualisationState(0), 8u);
}

TEST_F(TabPaneInput, PressesAndKeysEndAtTheDefaultHandler)
{
    CDefTabHandler& handler = m_Pane;
    bool handled = false;
    EXPECT_FALSE(handler.ProcessButtonDown(5, 5, ksRight, mbRight, &handled));
    EXPECT_TRUE(handled);
    handled = false;
    EXPECT_TRUE(handler.ProcessButtonDown(5, 5, ksLeft, mbLeft, &handled));
    EXPECT_TRUE(handled);
    handled = false;
    EXPECT_TRUE(handler.ProcessKeyDown(0, vkRight, &handled));
    EXPECT_TRUE(handled);
    handled = false;
    EXPECT_FALSE(handler.ProcessKeyDown(0, vkEnd, &handled));
    EXPECT_TRUE(handled);
    EXPECT_EQ(m_Log.Text(), "current(0, -1, true) current(1, 0, true)");
}

// Keys ----------------------------------------------------------------------------------------------------------------------

TEST_F(TabPaneInput, LeftAndRightMoveTheCurrentTab)
{
    m_Pane.SetCurrentTab(1);
    m_Log.Clear();
    Press(vkRight);
    EXPECT_EQ(m_Log.Take(), "current(2, 1, true)");
    Press(vkRight);
    EXPECT_EQ(m_Log.Take(), "");
    Press(vkLeft);
    Press(vkLeft);
    EXPECT_EQ(m_Log.Take(), "current(1, 2, true) current(0, 1, true)");
    Press(vkLeft);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_TRUE(Selection().IsItemSelected(0));
    EXPECT_EQ(Selection().GetSelectedCount(), 1);
}

TEST_F(TabPaneInput, OtherKeysMoveNothing)
{
    m_Pane.SetCurrentTab(1);
    m_Log.Clear();
    for (int const key : {vkUp, vkDown, vkHome, vkEnd, vkPageUp, vkPageDown, vkSpace, vkReturn})
        Press(key);
    Press('A', ksControl);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Selection().GetSelectedCount(), 1);
}

TEST_F(TabPaneInput, SpaceAndReturnAreTakenByTabsThatAreNoToggles)
{
    EXPECT_TRUE(m_Pane.SetCurProcessKeyDown(vkSpace));
    EXPECT_TRUE(m_Pane.SetCurProcessKeyDown(vkReturn));
    EXPECT_FALSE(m_Pane.SetCurProcessKeyDown(vkDown));
}

TEST_F(TabPaneInput, KeysPassOverDisabledTabs)
{
    m_Tabs.Add("jkl");
    m_Tabs[1].enabled = false;
    m_Tabs[2].enabled = false;
    m_Tabs.m_SigChanged();
    m_Pane.SetCurrentTab(0);
    m_Log.Clear();
    Press(vkRight);
    EXPECT_EQ(m_Log.Take(), "current(3, 0, true)");
    Press(vkLeft);
    EXPECT_EQ(m_Log.Take(), "current(0, 3, true)");
}

TEST_F(TabPaneInput, KeysStayWhereOnlyDisabledTabsLieBeyond)
{
    m_Tabs[0].enabled = false;
    m_Tabs[2].enabled = false;
    m_Pane.SetCurrentTab(1);
    m_Log.Clear();
    Press(vkRight);
    Press(vkLeft);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Pane.GetCurrentTab(), 1);
    EXPECT_TRUE(Selection().IsItemSelected(1));
}

TEST_F(TabPaneInput, KeysInAnEmptyPaneMakeNothingCurrent)
{
    m_Tabs.m_Tabs.clear();
    m_Tabs.m_SigChanged();
    Press(vkLeft);
    Press(vkRight);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Pane.GetCurrentTab(), -1);
}

TEST_F(TabPaneInput, ATabThatIsReachedByKeyComesIntoView)
{
    for (int i = 0; i < 10; ++i)
        m_Tabs.Add("xyz");
    m_Tabs.m_SigChanged();
    Settle();
    m_Pane.SetCurrentTab(3);  // in the middle: the view begins at 2 and ends with 5
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 2);
    Press(vkRight);
    Press(vkRight);
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 2);
    Press(vkRight);
    EXPECT_EQ(m_Pane.GetCurrentTab(), 6);
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 3);
}

// Toggles -------------------------------------------------------------------------------------------------------------------

TEST_F(TabPaneInput, AClickTurnsAToggleOver)
{
    m_Pane.SetToggled(true);
    m_Host.Mouse().Click(m_Pane, 5, 5);
    EXPECT_EQ(m_Log.Take(), "current(0, 0, true)");
    m_Host.Mouse().Click(m_Pane, 50, 5);
    EXPECT_EQ(m_Log.Take(), "current(1, 1, true)");
    EXPECT_TRUE(m_Pane.IsTabToggled(0));
    EXPECT_TRUE(m_Pane.IsTabToggled(1));
    m_Host.Mouse().Click(m_Pane, 50, 5);
    EXPECT_EQ(m_Log.Take(), "current(1, 1, false)");
    m_Host.Mouse().Click(m_Pane, 5, 5);
    EXPECT_EQ(m_Log.Take(), "current(0, 0, false)");
    EXPECT_FALSE(m_Pane.IsTabToggled(0));
}

TEST_F(TabPaneInput, SpaceAndReturnTurnTheCurrentToggleOver)
{
    m_Pane.SetToggled(true);
    m_Pane.SetCurrentTab(1);
    Press(vkSpace);
    EXPECT_EQ(m_Log.Take(), "current(1, 1, true)");
    Press(vkReturn);
    EXPECT_EQ(m_Log.Take(), "current(1, 1, false)");
    EXPECT_FALSE(m_Pane.IsTabToggled(1));
}

TEST_F(TabPaneInput, KeysMoveFromToggleToToggleAndSwitchNone)
{
    m_Pane.SetToggled(true);
    m_Pane.SetCurrentTab(0);
    Press(vkRight);
    EXPECT_EQ(m_Pane.GetCurrentTab(), 1);
    EXPECT_EQ(Selection().GetSelectedCount(), 0);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(TabPaneInput, TheKeyASwitchesAllTogglesOn)
{
    m_Pane.SetToggled(true);
    Press('A');
    EXPECT_EQ(Selection().GetSelectedCount(), 3);
}

// Tooltips ------------------------------------------------------------------------------------------------------------------

TEST_F(TabPaneInput, EachTabHasItsTooltip)
{
    m_Tabs[0].tooltip = "first";
    m_Tabs[1].tooltip = "second";
    EXPECT_EQ(m_Host.Tooltip(m_Pane, 5, 5), "first");
    EXPECT_EQ(m_Host.Tooltip(m_Pane, 50, 5), "second");
    EXPECT_EQ(m_Host.Tooltip(m_Pane, 100, 5), "");
    EXPECT_EQ(m_Host.Tooltip(m_Pane, 41, 5), "");
}

TEST_F(TabPaneInput, ATooltipStandsForTheContentOfItsTab)
{
    m_Tabs[1].tooltip = "second";
    CTooltipEvent event;
    event.m_X = 50;
    event.m_Y = 5;
    EXPECT_TRUE(m_Pane.ProcessTooltip(&event));
    EXPECT_EQ(event.m_Text, "second");
    EXPECT_EQ(event.m_HotRect, (rectangle<int>{43, 2, 81, 14}));
}

TEST_F(TabPaneInput, ATooltipGoesWhenThePaneScrollsOrAMenuOpens)
{
    m_Tabs[0].tooltip = "first";
    ASSERT_EQ(m_Host.Tooltip(m_Pane, 5, 5), "first");
    m_Pane.ScrollContent(1, 0);
    EXPECT_FALSE(m_Host.Window().GetTooltip().shown);
    ASSERT_EQ(m_Host.Tooltip(m_Pane, 6, 5), "first");
    m_Host.ContextMenu(m_Pane, 6, 5);
    EXPECT_FALSE(m_Host.Window().GetTooltip().shown);
}

}  // namespace
