// The widths of tabs, what stands where, and how the strip scrolls.

#include "tests/controls/tab_bench.h"

using namespace tab_test;

namespace
{

class TabPaneLayout : public CTabBench
{
protected:
    std::string Widths()
    {
        std::string text;
        for (int i = 0; i < View().GetCount(); ++i)
            text += (i ? " " : "") + std::to_string(View().GetItemSize(i));
        return text;
    }
};

TEST_F(TabPaneLayout, ATabIsAsWideAsItsTextAndTheRoomAroundIt)
{
    EXPECT_EQ(Widths(), "43 43 43");
    m_Tabs[1].text = "";
    m_Tabs[2].text = "j";
    m_Tabs.m_SigChanged();
    EXPECT_EQ(Widths(), "43 12 25");  // 10 + 2; 10 + 9 + 4 + 2
}

TEST_F(TabPaneLayout, AnImageTakesItsWidthAndACloseButtonItsOwn)
{
    m_Tabs[0].image = 0;     // 16 wide
    m_Tabs[1].close = true;  // 12 in place of 2
    m_Tabs[2].image = 0;
    m_Tabs[2].close = true;
    m_Tabs[2].text = "";
    m_Tabs.m_SigChanged();
    EXPECT_EQ(Widths(), "59 53 38");  // 43 + 16; 10 + 31 + 12; 10 + 16 + 12
}

TEST_F(TabPaneLayout, ThePaneAsksForAllTabsAndAPixel)
{
    EXPECT_EQ(m_Pane.GetSize().width, 130);  // 1 + 3 * 43
    EXPECT_EQ(m_Pane.GetSize().height, 19);
    EXPECT_EQ(m_Pane.GetBounds().bottom, 19);
}

TEST_F(TabPaneLayout, GapsBelongToTheTabBeforeThemButTheLastOneHasNone)
{
    m_Tabs[0].spacer = 10;
    m_Tabs[1].spacerImage = 0;  // 16 wide
    m_Tabs[2].spacer = 30;
    m_Tabs.m_SigChanged();
    EXPECT_EQ(Widths(), "53 59 43");
    EXPECT_EQ(m_Pane.GetSpacerWidth(0), 10);
    EXPECT_EQ(m_Pane.GetSpacerWidth(1), 16);
    EXPECT_EQ(m_Pane.GetSpacerWidth(2), 30);
    EXPECT_EQ(m_Pane.GetSpacerWidth(3), 0);
    EXPECT_EQ(m_Pane.GetSpacerWidth(-1), 0);
    EXPECT_EQ(Describe(m_Pane.HitTest(20, 5)), "1 0 (0, 2, 38, 14)");  // 53 - 1 - 10 - 4
    EXPECT_EQ(m_Pane.HitTest(40, 5).kind, CTabPane::hkNothing);
    EXPECT_EQ(Describe(m_Pane.HitTest(60, 5)), "1 1 (53, 2, 91, 14)");     // to 111 - 16 - 4
    EXPECT_EQ(Describe(m_Pane.HitTest(150, 5)), "1 2 (112, 2, 150, 14)");  // the last one: to 154 - 4
}

TEST_F(TabPaneLayout, AWidthAboveNullWinsOverTheSpacerImage)
{
    m_Tabs[0].spacer = 3;
    m_Tabs[0].spacerImage = 0;
    EXPECT_EQ(m_Pane.GetSpacerWidth(0), 3);
    m_Tabs[0].spacer = -4;
    EXPECT_EQ(m_Pane.GetSpacerWidth(0), 16);
    m_Tabs[0].spacerImage = -1;
    EXPECT_EQ(m_Pane.GetSpacerWidth(0), 0);
}

TEST_F(TabPaneLayout, WithoutAutomaticSizeTabsAreLaidOutWhenAskedOnly)
{
    m_Pane.SetAutoSize(false);
    m_Tabs[0].text = "abcde";
    m_Tabs.m_SigChanged();
    m_Tabs.m_SigTabChanged(0);
    EXPECT_EQ(Widths(), "43 43 43");
    m_Pane.Layout();
    EXPECT_EQ(Widths(), "61 43 43");
}

TEST_F(TabPaneLayout, WithAutomaticSizeAChangedTabIsLaidOut)
{
    m_Tabs[1].text = "d";
    m_Tabs.m_SigTabChanged(1);
    EXPECT_EQ(Widths(), "43 25 43");
    EXPECT_EQ(m_Pane.GetSize().width, 112);
}

TEST_F(TabPaneLayout, IsLaidOutWhenItComesIntoAControl)
{
    auto* const pane = new CTestPane(nullptr, {10, 10}, alTop);
    pane->SetModel(&m_Tabs);
    pane->SetAutoSize(true);
    EXPECT_EQ(pane->GetColumnViewModel()->GetItemSize(0), 20);
    pane->ReParent(m_Host.Root(), true);
    EXPECT_GT(pane->GetColumnViewModel()->GetItemSize(0), 30);
}

TEST_F(TabPaneLayout, AllIsMeasuredInOneBracketInThePanesFont)
{
    font large;
    large.size = 16;
    m_Pane.SetFont(large);  // letters of 16, not bold; the scale is 2: 4, 8 and 8
    m_Pane.Layout();
    EXPECT_EQ(Widths(), "80 80 80");  // 20 + 48 + 8 + 4
    EXPECT_FALSE(m_Host.Window().GetPainter()->m_Painting);
    EXPECT_EQ(m_Pane.GetSize().height, 37);  // 16 + 1 + 20
}

TEST_F(TabPaneLayout, ScaledDisplaysScaleFontAndSpaces)
{
    CTestHost host(400, 60, 1.5);
    host.Control().SetImageList(&m_Images);
    auto& pane = *new CTestPane(host.Root(), {0, 20}, alTop);
    CTestTabs tabs({"ab", "cd"});
    tabs[1].close = true;
    pane.SetModel(&tabs);
    pane.SetAutoSize(true);
    host.Paint();
    // The font has 8 points, so the scale is 1 * 1.5, and 2, 4 and 4 of it are 3, 6 and 6: 15 in addition.
    EXPECT_EQ(pane.GetItemAdditionalHeight(), 15);
    EXPECT_EQ(pane.GetItemAdditionalWidth(), 15);
    EXPECT_EQ(pane.GetRowViewModel()->GetItemSize(0), 28);     // 12 + 1 + 15
    EXPECT_EQ(pane.GetColumnViewModel()->GetItemSize(0), 50);  // 15 + 26 + 6 + 3: a bold letter is 13 wide
    EXPECT_EQ(pane.GetColumnViewModel()->GetItemSize(1), 65);  // 15 + 26 + 6 + 18
    rectangle<double> const close = pane.GetCloseBtnRect({0, 0, 100, 40});
    EXPECT_EQ(close, (rectangle<double>{76, 11, 94, 29}));              // 12 points times 1.5, 6 from the right
    EXPECT_EQ(Describe(pane.HitTest(55, 10)), "1 1 (50, 3, 108, 21)");  // 3 above, 6 on the right and below
    pane.SetEqualWidths(true);
    EXPECT_EQ(dynamic_cast<CEqualItemsViewModel*>(pane.GetColumnViewModel())->GetMinItemSize(), 75);
    EXPECT_EQ(dynamic_cast<CEqualItemsViewModel*>(pane.GetColumnViewModel())->GetMaxItemSize(), 150);
    host.Control().SetImageList(nullptr);
    CTestHost::System().SetScale(1.0);
}

// Close buttons -------------------------------------------------------------------------------------------------------------

TEST_F(TabPaneLayout, ATabWithASmallFontHasACloseButtonOfTwelve)
{
    EXPECT_EQ(m_Pane.GetCloseBtnRect({0, 0, 100, 20}), (rectangle<double>{84, 4, 96, 16}));
    font ten;
    ten.size = 10;
    m_Pane.SetFont(ten);  // scale 1.25: 12 * 1.25 = 15, and 4 * 1.25 = 5
    EXPECT_EQ(m_Pane.GetCloseBtnRect({0, 0, 100, 20}), (rectangle<double>{80, 2.5, 95, 17.5}));
    font sixteen;
    sixteen.size = 16;
    m_Pane.SetFont(sixteen);  // scale 2: 16 * 2
    EXPECT_EQ(m_Pane.GetCloseBtnRect({0, 0, 100, 40}), (rectangle<double>{60, 4, 92, 36}));
}

TEST_F(TabPaneLayout, ATabTooNarrowOrTooLowForACloseButtonHasNone)
{
    EXPECT_EQ(m_Pane.GetCloseBtnRect({0, 0, 17, 20}), (rectangle<double>{1, 4, 13, 16}));
    EXPECT_EQ(m_Pane.GetCloseBtnRect({0, 0, 16, 20}), rectangle<double>());
    EXPECT_EQ(m_Pane.GetCloseBtnRect({0, 0, 100, 13}), (rectangle<double>{84, 0.5, 96, 12.5}));
    EXPECT_EQ(m_Pane.GetCloseBtnRect({0, 0, 100, 12}), rectangle<double>());
}

TEST_F(TabPaneLayout, TheContentLeavesRoomAboveAndMoreOnTheRightAndBelow)
{
    EXPECT_EQ(m_Pane.GetTabContentRect({10, 0, 60, 18}, 8), (rectangle<double>{10, 2, 56, 14}));
    EXPECT_EQ(m_Pane.GetTabContentRect({60, 18, 10, 0}, 1), (rectangle<double>{10, 2, 56, 14}));
}

// What stands where ---------------------------------------------------------------------------------------------------------

TEST_F(TabPaneLayout, ATabIsHitInItsContentEdgesIncluded)
{
    EXPECT_EQ(Describe(m_Pane.HitTest(0, 2)), "1 0 (0, 2, 38, 14)");
    EXPECT_EQ(Describe(m_Pane.HitTest(38, 14)), "1 0 (0, 2, 38, 14)");
    EXPECT_EQ(m_Pane.HitTest(39, 5).kind, CTabPane::hkNothing);
    EXPECT_EQ(m_Pane.HitTest(5, 1).kind, CTabPane::hkNothing);
    EXPECT_EQ(m_Pane.HitTest(5, 15).kind, CTabPane::hkNothing);
    EXPECT_EQ(m_Pane.HitTest(-1, 5).kind, CTabPane::hkNothing);
    EXPECT_EQ(m_Pane.HitTest(130, 5).kind, CTabPane::hkNothing);
    EXPECT_EQ(m_Pane.HitTest(130, 5).tab, -1);
}

TEST_F(TabPaneLayout, ACloseButtonIsHitForItself)
{
    m_Tabs[1].close = true;
    m_Tabs.m_SigChanged();
    // Content 43 to 91: the button stands from 91 - 12 - 4 = 75 to 87, and from (2 + 14 - 12) / 2 = 2 to 14.
    EXPECT_EQ(Describe(m_Pane.HitTest(74, 5)), "1 1 (43, 2, 91, 14)");
}

TEST_F(TabPaneLayout, ACloseButtonNeedsRoomAboveIt)
{
    // The content is 12 high, as the button, which would begin at its top: so there is none.
    m_Tabs[1].close = true;
    m_Tabs.m_SigChanged();
    EXPECT_EQ(Describe(m_Pane.HitTest(80, 5)), "1 1 (43, 2, 91, 14)");
    m_Pane.SetAutoRowHeight(false);
    m_Pane.GetRowViewModel()->SetDefaultItemSize(23);
    EXPECT_EQ(Describe(m_Pane.HitTest(80, 8)), "2 1 (43, 2, 91, 18)");
    EXPECT_EQ(Describe(m_Pane.HitTest(75, 4)), "2 1 (43, 2, 91, 18)");
    EXPECT_EQ(Describe(m_Pane.HitTest(87, 16)), "2 1 (43, 2, 91, 18)");
    EXPECT_EQ(Describe(m_Pane.HitTest(88, 16)), "1 1 (43, 2, 91, 18)");
    m_Tabs[1].enabled = false;
    EXPECT_EQ(Describe(m_Pane.HitTest(80, 8)), "1 1 (43, 2, 91, 18)");
}

TEST_F(TabPaneLayout, APositionAlongTheStripHasATabWhateverItsHeight)
{
    int tab = -1;
    screen_rectangle<int> rect;
    EXPECT_TRUE(m_Pane.GetTabByPos(85, &tab, &rect));
    EXPECT_EQ(tab, 1);
    EXPECT_EQ(rect, (screen_rectangle<int>{43, 2, 81, 14}));
    EXPECT_TRUE(m_Pane.GetTabByPos(86, &tab, nullptr));
    EXPECT_EQ(tab, 2);
    EXPECT_FALSE(m_Pane.GetTabByPos(129, &tab, &rect));
    EXPECT_EQ(tab, 2);
    EXPECT_TRUE(m_Pane.GetTabByPos(3, nullptr, nullptr));
}

TEST_F(TabPaneLayout, AStretchedLastTabReachesToTheEnd)
{
    View().SetStretchLastItem(true);
    EXPECT_EQ(Describe(m_Pane.HitTest(190, 5)), "1 2 (86, 2, 195, 14)");
}

// Equal widths --------------------------------------------------------------------------------------------------------------

TEST_F(TabPaneLayout, EqualTabsFillTheViewWithinBounds)
{
    m_Pane.SetEqualWidths(true);
    EXPECT_TRUE(m_Pane.GetEqualWidths());
    EXPECT_EQ(Widths(), "66 66 66");  // 199 / 3
    m_Tabs.m_Tabs.resize(1);
    m_Tabs.m_SigChanged();
    EXPECT_EQ(Widths(), "100");
    for (int i = 0; i < 5; ++i)
        m_Tabs.Add("x");
    m_Tabs.m_SigChanged();
    EXPECT_EQ(Widths(), "66 66 66 66 66 66");  // three fit, of 50 at least
}

TEST_F(TabPaneLayout, EqualTabsHaveNoGaps)
{
    m_Tabs[0].spacer = 10;
    m_Pane.SetEqualWidths(true);
    EXPECT_EQ(Describe(m_Pane.HitTest(30, 5)), "1 0 (0, 2, 61, 14)");
}

TEST_F(TabPaneLayout, EqualTabsAskForNoGaps)
{
    m_Tabs[0].spacer = 10;
    m_Pane.SetEqualWidths(true);
    m_Pane.SetSize({7, 7}, false);
    m_Pane.Layout();
    EXPECT_EQ(m_Pane.GetSize().width, 130);
}

TEST_F(TabPaneLayout, ChangingBackKeepsWhatTheOtherWidthsWere)
{
    m_Pane.SetEqualWidths(true);
    m_Pane.SetEqualWidths(false);
    EXPECT_FALSE(m_Pane.GetEqualWidths());
    EXPECT_EQ(Widths(), "43 43 43");
}

TEST_F(TabPaneLayout, TheNumberOfTabsGoesAlong)
{
    m_Pane.SetEqualWidths(true);
    m_Tabs.Add("j");
    m_Tabs.m_SigChanged();
    m_Pane.SetEqualWidths(false);
    EXPECT_EQ(View().GetCount(), 4);
    m_Pane.SetEqualWidths(false);
    EXPECT_EQ(View().GetCount(), 4);
}

TEST_F(TabPaneLayout, EqualTabsAreNotLaidOutByThemselves)
{
    m_Pane.SetEqualWidths(true);
    m_Pane.SetSize({7, 7}, false);
    m_Pane.SetAutoSize(true);
    m_Tabs.m_SigTabChanged(0);
    m_Tabs.m_SigChanged();
    EXPECT_EQ(m_Pane.GetSize().width, 7);
    m_Pane.Layout();
    EXPECT_EQ(m_Pane.GetSize().width, 130);  // asks for what they would need
    EXPECT_EQ(Widths(), "66 66 66");
}

TEST_F(TabPaneLayout, TheStableTabStaysInView)
{
    for (int i = 0; i < 20; ++i)
        m_Tabs.Add("xyz");
    m_Tabs.m_SigChanged();
    m_Host.Paint();
    m_Pane.SetStableTab(2);
    EXPECT_EQ(m_Pane.GetStableTab(), 2);
    m_Host.Resize(100, 60);
    m_Host.Paint();
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 1);  // two of 43 fit into 99
    m_Pane.SetEqualWidths(true);
    EXPECT_EQ(m_Pane.GetStableTab(), 2);  // those made later know it too
    m_Host.Resize(60, 60);
    m_Host.Paint();
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 2);
}

TEST_F(TabPaneLayout, TheStableTabIsThatOfBothWidths)
{
    m_Pane.SetEqualWidths(true);
    m_Pane.SetStableTab(2);
    EXPECT_EQ(m_Pane.GetStableTab(), 2);
    m_Pane.SetEqualWidths(false);
    EXPECT_EQ(m_Pane.GetStableTab(), 2);
    m_Pane.SetStableTab(1);
    m_Pane.SetEqualWidths(true);
    EXPECT_EQ(m_Pane.GetStableTab(), 1);
}

TEST_F(TabPaneLayout, WithoutAStableTabTheCurrentOneStaysInView)
{
    for (int i = 0; i < 20; ++i)
        m_Tabs.Add("xyz");
    m_Tabs.m_SigChanged();
    m_Host.Paint();
    m_Pane.SetCurrentTab(3);
    m_Pane.SetFirstVisibleTab(0);
    m_Host.Resize(100, 60);
    m_Host.Paint();
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 2);
}

TEST_F(TabPaneLayout, TheCurrentOfEqualTabsStaysInViewToo)
{
    for (int i = 0; i < 20; ++i)
        m_Tabs.Add("xyz");
    m_Tabs.m_SigChanged();
    m_Pane.SetEqualWidths(true);
    m_Host.Paint();
    m_Pane.SetCurrentTab(2);
    m_Pane.SetFirstVisibleTab(0);
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 0);
    m_Host.Resize(110, 60);  // two of 50 at least
    m_Host.Paint();
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 1);
}

// Scrolling -----------------------------------------------------------------------------------------------------------------

TEST_F(TabPaneLayout, TellsWhetherItCanScroll)
{
    for (int i = 0; i < 5; ++i)
        m_Tabs.Add("xyz");
    CSignalLog log(m_Pane.m_SigScrollStateChanged, "scroll");
    m_Tabs.m_SigChanged();
    EXPECT_EQ(log.Entries().back(), "scroll(false, true)");
    log.Clear();
    m_Pane.SetFirstVisibleTab(2);
    EXPECT_EQ(log.Take(), "scroll(true, true)");
    m_Pane.SetFirstVisibleTab(4);  // the last four
    EXPECT_EQ(log.Take(), "scroll(true, false)");
    m_Pane.SetFirstVisibleTab(4);
    m_Pane.SetFirstVisibleTab(8);  // there is none
    m_Pane.SetFirstVisibleTab(-1);
    EXPECT_EQ(log.Take(), "");
    EXPECT_EQ(m_Pane.GetFirstVisibleTab(), 4);
    m_Host.Resize(500, 60);
    m_Host.Paint();
    EXPECT_EQ(log.Entries().back(), "scroll(false, false)");
}

TEST_F(TabPaneLayout, ALayoutTellsOnce)
{
    CSignalLog log(m_Pane.m_SigScrollStateChanged, "scroll");
    m_Tabs[0].text = "abcd";
    m_Tabs[1].text = "abcd";
    m_Tabs[2].text = "abcd";
    m_Pane.Layout();
    EXPECT_EQ(log.Take(), "scroll(false, false)");
    m_Pane.Layout();
    EXPECT_EQ(log.Take(), "");
}

TEST_F(TabPaneLayout, OtherWidthsTellHowFarTheyScroll)
{
    for (int i = 0; i < 5; ++i)
        m_Tabs.Add("xyz");
    m_Tabs.m_SigChanged();
    CSignalLog log(m_Pane.m_SigScrollStateChanged, "scroll");
    m_Pane.SetEqualWidths(true);
    EXPECT_EQ(log.Entries().back(), "scroll(false, true)");
}

TEST_F(TabPaneLayout, APaneWithoutTabsCannotScroll)
{
    CSignalLog log(m_Pane.m_SigScrollStateChanged, "scroll");
    m_Pane.SetModel(nullptr);
    EXPECT_EQ(log.Entries().back(), "scroll(false, false)");
}

TEST_F(TabPaneLayout, TenThousandTabsAreNotWalkedToScrollHitAndPaint)
{
    m_Tabs.m_Tabs.assign(10000, STab());
    m_Tabs.m_SigChanged();
    m_Host.Paint();
    m_Tabs.m_Questions = 0;
    m_Pane.SetFirstVisibleTab(5000);
    m_Host.Paint();
    m_Host.Mouse().Move(m_Pane, 30, 5);
    m_Host.Paint();
    m_Host.Mouse().Move(m_Pane, 50, 5);
    m_Host.Paint();
    m_Pane.UpdateAnimation();
    EXPECT_LT(m_Tabs.m_Questions, 1000);  // 17 tabs are in view
}

}  // namespace
