// How tabs look, and which of them are painted anew.

#include "tests/controls/tab_bench.h"
#include "tests/support/leaf.h"
#include "vexel/platform/palette.h"

using namespace tab_test;
using testing::HasSubstr;
using testing::Not;

namespace
{

// In the colours of the memory backend: ground white, highlight #3060C0, shadow #808080, dark shadow #404040.
class TabPanePaint : public CTabBench
{
protected:
    ~TabPanePaint() override { SetPicture(false); }

    void SetPicture(bool on)
    {
        if (!m_Host.HasWindow())
            return;
        IPainter& painter = *m_Host.Window().GetPainter();
        painter.m_BkImage = on ? CTestHost::System().CreateRasterPicture(size<int>{200, 60}) : nullptr;
        painter.m_BkImageColor = color_table[9];
    }
    void MakeHigh()
    {
        m_Pane.SetAutoRowHeight(false);
        m_Pane.GetRowViewModel()->SetDefaultItemSize(23);
        m_Pane.SetSize({130, 25}, false);
        Settle();
    }
    /// The calls of the tab between these pixels in a full paint.
    std::string PaintTab(int from, int to)
    {
        std::string text;
        bool inside = false;
        for (std::string const& call : FullPaint().Calls())
        {
            if (call.starts_with("SetClipRect "))
                inside =
                    MatchesPattern(call, "SetClipRect " + std::to_string(from) + " 0 " + std::to_string(to - 1) + " *");
            else if (call == "ResetClip")
                inside = false;
            else if (inside)
                text += call + "\n";
        }
        return text;
    }
};

TEST_F(TabPanePaint, APlainTabHasAGreyFrameOnTheGround)
{
    EXPECT_EQ(PaintTab(43, 86), "SetBrush white\n"
                                "FillRect 43 0 85 18\n"
                                "SetPen #808080\n"
                                "SetBrush white\n"
                                "Rectangle 43 2 81 14\n"
                                "SetFont \"Square\" 8 bold\n"
                                "SetTextColor black\n"
                                "DrawString \"def\" 51 2 79 14 0x121 3\n");
}

TEST_F(TabPanePaint, ATabUnderTheMouseTakesAThirdOfTheHighlight)
{
    m_Host.Mouse().Move(m_Pane, 50, 5);
    EXPECT_THAT(PaintTab(43, 86), HasSubstr("SetPen #3060C0\n"
                                            "SetBrush #C0CFEC\n"  // 0.7 of 255 and 0.3 of 0x30, 0x60 and 0xC0
                                            "Rectangle 43 2 81 14\n"));
}

TEST_F(TabPanePaint, ASelectedTabTakesMostOfTheHighlight)
{
    m_Pane.SetCurrentTab(1);
    EXPECT_THAT(PaintTab(43, 86), HasSubstr("SetPen #404040\n"
                                            "SetBrush #829FD9\n"  // 0.4 of 255 and 0.6 of the highlight
                                            "Rectangle 43 2 81 14\n"
                                            "SetFont \"Square\" 8 bold\n"
                                            "SetTextColor white\n"));
}

TEST_F(TabPanePaint, TheCurrentTabInTheFocusHasAFocusFrame)
{
    m_Pane.SetCurrentTab(1);
    Focus();
    EXPECT_THAT(PaintTab(43, 86), HasSubstr("Rectangle 43 2 81 14\n"
                                            "FocusRect 45 4 79 12\n"));
    EXPECT_THAT(PaintTab(0, 43), Not(HasSubstr("FocusRect")));
}

TEST_F(TabPanePaint, ADisabledTabIsGrey)
{
    m_Tabs[1].enabled = false;
    m_Tabs[1].image = 0;
    m_Tabs.m_SigTabChanged(1);  // 59 wide
    Settle();
    EXPECT_THAT(PaintTab(43, 102), HasSubstr("SetPen #808080\n"
                                             "SetBrush white\n"
                                             "Rectangle 43 2 97 14\n"
                                             "SetFont \"Square\" 8 bold\n"
                                             "SetTextColor #808080\n"));
    EXPECT_EQ(m_Images.Take(), "disabled 0 at 47 3");
}

TEST_F(TabPanePaint, AnImageStandsBeforeTheTextInTheMiddleOfTheHeight)
{
    m_Tabs[1].image = 0;  // 16 x 10
    m_Tabs[1].flags = 36;
    m_Tabs.m_SigTabChanged(1);
    Settle();
    EXPECT_THAT(PaintTab(43, 102), HasSubstr("DrawString \"def\" 67 2 95 14 0x124 3\n"));  // 43 + 4 + 16 + 4
    EXPECT_EQ(m_Images.Take(), "draw 0 at 47 3");                                          // (2 + 14 - 10) / 2
}

TEST_F(TabPanePaint, AnImageWithoutAListTakesNoRoom)
{
    m_Host.Control().SetImageList(nullptr);
    m_Tabs[1].image = 0;
    m_Tabs.m_SigTabChanged(1);
    Settle();
    EXPECT_THAT(PaintTab(43, 86), HasSubstr("DrawString \"def\" 51 2 79 14 0x121 3\n"));
}

// Close buttons -------------------------------------------------------------------------------------------------------------

TEST_F(TabPanePaint, ACloseButtonShowsOnTabsThatAreHotOrSelected)
{
    m_Tabs[1].close = true;  // 53 wide, the content to 91
    m_Tabs.m_SigTabChanged(1);
    MakeHigh();  // the content from 2 to 18
    EXPECT_THAT(PaintTab(43, 96), HasSubstr("DrawString \"def\" 51 2 89 18 0x121 3\n"));
    EXPECT_THAT(PaintTab(43, 96), Not(HasSubstr("LineTo")));
    m_Pane.SetCurrentTab(1);
    // The button from 75 to 87 and from 4 to 16; the cross 3 inside. The text ends 2 before 74.
    EXPECT_THAT(PaintTab(43, 96), HasSubstr("Rectangle 43 2 91 18\n"
                                            "SetPen white 2\n"
                                            "MoveTo 78 7\n"
                                            "LineTo 84 13\n"
                                            "MoveTo 78 13\n"
                                            "LineTo 84 7\n"
                                            "SetFont \"Square\" 8 bold\n"
                                            "SetTextColor white\n"
                                            "DrawString \"def\" 51 2 72 18 0x121 3\n"));
}

TEST_F(TabPanePaint, ACloseButtonUnderTheMouseIsRedOnYellow)
{
    m_Tabs[1].close = true;
    m_Tabs.m_SigTabChanged(1);
    MakeHigh();
    m_Host.Mouse().Move(m_Pane, 80, 10);
    EXPECT_EQ(m_Pane.GetVisualisationState(1), 3u);
    EXPECT_THAT(PaintTab(43, 96), HasSubstr("SetPen red\n"
                                            "SetBrush yellow\n"
                                            "RoundRect 75 4 87 16 1 1\n"
                                            "SetPen red 2\n"
                                            "MoveTo 78 7\n"
                                            "LineTo 84 13\n"));
}

TEST_F(TabPanePaint, ADisabledTabShowsNoCloseButton)
{
    m_Tabs[1].close = true;
    m_Tabs[1].enabled = false;
    m_Tabs.m_SigTabChanged(1);
    MakeHigh();
    m_Pane.SetCurrentTab(1);
    m_Host.Mouse().Move(m_Pane, 80, 10);
    EXPECT_THAT(PaintTab(43, 96), Not(HasSubstr("LineTo")));
}

TEST_F(TabPanePaint, WithoutStateTheButtonDrawsNothing)
{
    struct SShow : CVisualElement
    {
        SShow(CVisualElement* parent, CTabPane& pane) : CVisualElement(parent, {10, 20}, alBottom), m_Pane(pane) {}
        void DrawContent(IPainter* painter) override
        {
            m_Pane.DrawCloseButton(painter, 0, {0, 0, 12, 12}, tsPlain | tsFocused);
        }
        CTabPane& m_Pane;
    };
    auto& show = *new SShow(m_Host.Root(), m_Pane);
    NameElement(show, "show");
    EXPECT_THAT(m_Host.FullPaint().Of("show"), Not(Draws("LineTo*")));
}

TEST_F(TabPanePaint, FrameAndButtonGrowWithTheScale)
{
    struct SShow : CVisualElement
    {
        SShow(CVisualElement* parent, CTabPane& pane) : CVisualElement(parent, {50, 50}, alTop), m_Pane(pane) {}
        void DrawContent(IPainter* painter) override
        {
            m_Pane.DrawTab(painter, 0, {0, 0, 40, 20}, tsFocused | tsSelected);
            m_Pane.DrawCloseButton(painter, 0, {10, 0, 34, 24}, tsHot | tsHotClose);
        }
        CTabPane& m_Pane;
    };
    {
        CTestHost host(200, 90, 2.0);
        auto& pane = *new CTestPane(host.Root(), {0, 20}, alBottom);
        auto& show = *new SShow(host.Root(), pane);
        NameElement(show, "show");
        EXPECT_THAT(host.FullPaint().Of("show"), Draws("Rectangle 0 0 40 20")
                                                     .Then("FocusRect 4 4 36 16")
                                                     .Then("SetPen red 2")
                                                     .Then("SetBrush yellow")
                                                     .Then("RoundRect 10 0 34 24 2 2"));
    }
    CTestHost::System().SetScale(1.0);
}

TEST_F(TabPanePaint, TheCrossStandsWholeSpacesInside)
{
    struct SShow : CVisualElement
    {
        SShow(CVisualElement* parent, CTabPane& pane) : CVisualElement(parent, {20, 20}, alTop), m_Pane(pane) {}
        void DrawContent(IPainter* painter) override { m_Pane.DrawCloseButton(painter, 0, {0, 0, 12, 12}, tsSelected); }
        CTabPane& m_Pane;
    };
    {
        CTestHost host(200, 60, 1.4);
        auto& pane = *new CTestPane(host.Root(), {0, 20}, alBottom);
        auto& show = *new SShow(host.Root(), pane);
        NameElement(show, "show");
        // A space of 2.8 is one of 2 pixels, and one and a half of these are 3.
        EXPECT_THAT(host.FullPaint().Of("show"), Draws("MoveTo 3 3").Then("LineTo 9 9"));
    }
    CTestHost::System().SetScale(1.0);
}

TEST_F(TabPanePaint, AtAnotherScaleTheCrossHasAnEvenWidth)
{
    CTestHost host(400, 60, 1.5);
    auto& pane = *new CTestPane(host.Root(), {0, 20}, alTop);
    NameElement(pane, "pane");
    pane.SetModel(&m_Tabs);
    m_Tabs[0].close = true;
    pane.SetAutoRowHeight(false);
    pane.GetRowViewModel()->SetDefaultItemSize(34);
    pane.Layout();
    pane.SetCurrentTab(0);
    host.Paint();
    // Two spaces of 3: the pen 2 wide, the cross 4 inside. The tab is 15 + 39 + 6 + 18 = 78 wide, the content ends at 71;
    // the button stands from 47 to 65, and from (3 + 27 - 18) / 2 = 6 to 24.
    EXPECT_THAT(host.FullPaint().Of("pane"), Draws("Rectangle 0 3 71 27")
                                                 .Then("SetPen white 2")
                                                 .Then("MoveTo 51 10")
                                                 .Then("LineTo 61 20")
                                                 .Then("MoveTo 51 20")
                                                 .Then("LineTo 61 10")
                                                 .Then("DrawString \"abc\" 12 3 43 27 0x121 3"));
    m_Pane.SetModel(nullptr);
    CTestHost::System().SetScale(1.0);
}

// Gaps ----------------------------------------------------------------------------------------------------------------------

TEST_F(TabPanePaint, AGapShowsItsImageInTheMiddle)
{
    m_Tabs[0].spacer = 20;
    m_Tabs[0].spacerImage = 1;  // 6 x 4
    m_Tabs[2].spacerImage = 1;  // none comes behind it
    m_Tabs.m_SigChanged();
    Settle();
    // The first tab is 63 wide, its content ends at 38; the gap from 42 to 62: (42 + 62 - 6) / 2, (0 + 18 - 4) / 2.
    EXPECT_THAT(PaintTab(0, 63), HasSubstr("FillRect 0 0 62 18\n"));
    EXPECT_THAT(PaintTab(0, 63), HasSubstr("Rectangle 0 2 38 14\n"));
    m_Images.Take();
    FullPaint();
    EXPECT_EQ(m_Images.Take(), "draw 1 at 49 7");
}

TEST_F(TabPanePaint, AGapShowsItsImageOnlyWhileTheNextTabIsWhollyInView)
{
    m_Tabs[1].spacerImage = 1;
    m_Tabs.m_SigChanged();  // 43, 49, 43: the third ends with pixel 134
    m_Host.Resize(136, 60);
    FullPaint();
    EXPECT_EQ(m_Images.Take(), "draw 1 at 85 7");  // (85 + 91 - 6) / 2
    m_Host.Resize(135, 60);                        // the view is 134 wide
    FullPaint();
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(TabPanePaint, AWiderViewShowsTheImageOfAGapThatStoodThereWithout)
{
    m_Tabs[1].spacerImage = 1;
    m_Tabs.m_SigChanged();
    m_Host.Resize(400, 60);
    auto& right = *new CLeaf(m_Host.Root(), {300, 10}, alRight, 1);
    m_Pane.SetAlignment(alClient);
    Settle();
    right.SetWidth(200, false);
    m_Host.Paint();
    EXPECT_EQ(m_Images.Take(), "draw 1 at 85 7");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    right.SetWidth(300, false);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// Grounds -------------------------------------------------------------------------------------------------------------------

TEST_F(TabPanePaint, WhatIsBesideTheTabsIsFilledWithTheGround)
{
    m_Pane.SetBkColor(color_table[11]);
    PaintLog const paint = FullPaint();
    EXPECT_THAT(paint, Draws("SetBrush orange").Then("FillRect 129 0 199 18"));
    EXPECT_THAT(paint, Draws("SetBrush orange").Then("FillRect 0 19 199 19"));
}

TEST_F(TabPanePaint, ATransparentPaneFillsNothing)
{
    m_Pane.SetTransparent(true);
    EXPECT_THAT(FullPaint(), Not(Draws("FillRect 129 *")));
    EXPECT_THAT(FullPaint(), Not(Draws("FillRect 0 19 *")));
    EXPECT_THAT(PaintTab(43, 86), Not(HasSubstr("FillRect 43 0")));
    EXPECT_THAT(PaintTab(43, 86), HasSubstr("AlphaBlend 39x13 43 2 81 14 127\n"
                                            "SetPen #808080\n"
                                            "SetBrush none\n"
                                            "Rectangle 43 2 81 14\n"));
}

TEST_F(TabPanePaint, OverAPictureTabsHaveOtherColoursAndBlend)
{
    SetPicture(true);
    EXPECT_EQ(m_Pane.GetBackgroundColor(1, 8).m_Value, 0xFFFFFFFFu);
    EXPECT_EQ(m_Pane.GetBackgroundColor(1, 1).m_Value, 0xFFE5BFACu);  // 0.6 of 255 and 0.4 of the highlight
    EXPECT_EQ(m_Pane.GetBackgroundColor(1, 4).m_Value, 0xFFC06030u);  // the highlight
    std::string const calls = PaintTab(43, 86);
    EXPECT_THAT(calls, HasSubstr("DrawRasterPictureEx 200x60 43 0 85 18 from 43 0 85 18\n"));
    EXPECT_THAT(calls, HasSubstr("AlphaBlend 39x13 43 2 81 14 127\n"));
}

TEST_F(TabPanePaint, ATabFarWiderThanTheViewBlendsOnlyWhatShows)
{
    m_Pane.SetTransparent(true);
    View().SetItemSize(1, 1000000000);
    Settle();
    EXPECT_THAT(FullPaint(), Draws("AlphaBlend 157x13 43 2 199 14 127"));
}

TEST_F(TabPanePaint, ARowHigherThanTheViewIsFilledAllTheSame)
{
    m_Pane.SetSize({130, 12}, false);
    m_Pane.SetItemVisualisation(nullptr);
    Settle();
    EXPECT_THAT(PaintTab(43, 86), HasSubstr("FillRect 43 0 85 18\n"));
}

// Another look --------------------------------------------------------------------------------------------------------------

/// Writes down what it is asked for.
class CPlainLook : public ITabVisualisation
{
public:
    std::string m_Log;
    bool m_DrawsEmptyArea = true;

    rectangle<double> GetCloseBtnRect(rectangle<double> const& content) const override
    {
        return {content.right - 9, content.top, content.right, content.top + 9};
    }
    rectangle<double> GetTabContentRect(rectangle<double> const& rect, unsigned int) const override { return rect; }
    int GetItemOptimalWidth(IPainter*, int tab) const override { return 30 + tab; }
    int GetItemAdditionalHeight() const override { return 3; }
    int GetItemAdditionalWidth() const override { return 5; }
    void DrawBackground(IPainter*, int tab, rectangle<double> const&, unsigned int state) override
    {
        Note("ground", tab, state);
    }
    void DrawTab(IPainter*, int tab, rectangle<double> const&, unsigned int state) override { Note("tab", tab, state); }
    void DrawTabContent(IPainter*, int tab, rectangle<double> const& content, unsigned int state) override
    {
        Note("content to " + std::to_string(static_cast<int>(content.right)), tab, state);
    }
    void DrawCloseButton(IPainter*, int tab, rectangle<double> const&, unsigned int state) override
    {
        Note("close", tab, state);
    }
    _color GetBackgroundColor(int, unsigned int) override { return color_table[3]; }
    _color GetTextColor(int, unsigned int) override { return color_table[4]; }
    _color GetFrameColor(int, unsigned int) override { return color_table[5]; }
    bool DrawEmptyArea(IPainter*, rectangle<double> const& rect, _color const& ground, bool transparent) override
    {
        m_Log += "empty " + vexel::test::Describe(rect) + (ground == color_table[9] ? " white" : " other") +
                 (transparent ? " glass; " : "; ");
        return m_DrawsEmptyArea;
    }

private:
    void Note(std::string const& what, int tab, unsigned int state)
    {
        m_Log += what + " " + std::to_string(tab) + " state " + std::to_string(state) + "; ";
    }
};

TEST_F(TabPanePaint, AnotherLookMeasuresAndDraws)
{
    CPlainLook look;
    m_Tabs.m_Tabs.resize(2);
    m_Tabs[1].close = true;
    m_Pane.SetItemVisualisation(&look);
    EXPECT_EQ(m_Pane.GetItemVisualisation(), &look);
    m_Tabs.m_SigChanged();
    m_Pane.SetCurrentTab(1);
    EXPECT_EQ(View().GetItemSize(0), 30);
    EXPECT_EQ(View().GetItemSize(1), 31);
    EXPECT_EQ(m_Pane.GetRowViewModel()->GetItemSize(0), 12);  // 8 + 1 + 3
    Settle();
    look.m_Log.clear();
    m_Host.FullPaint();
    EXPECT_EQ(look.m_Log, "ground 0 state 8; tab 0 state 8; content to 29 0 state 8; "
                          "ground 1 state 4; tab 1 state 4; close 1 state 4; content to 50 1 state 4; "
                          "empty (0, 12, 199, 12) white; ");
    m_Pane.SetItemVisualisation(nullptr);
    EXPECT_EQ(m_Pane.GetItemVisualisation(), &m_Pane);
}

TEST_F(TabPanePaint, AreasThatTheLookDoesNotDrawAreFilled)
{
    CPlainLook look;
    m_Pane.SetItemVisualisation(&look);
    Settle();
    EXPECT_THAT(FullPaint(), Not(Draws("FillRect 0 12 199 12")));
    look.m_DrawsEmptyArea = false;
    EXPECT_THAT(FullPaint(), Draws("FillRect 0 12 199 12"));
    m_Pane.SetItemVisualisation(nullptr);
}

TEST_F(TabPanePaint, ALookThatDiesGivesThePaneItsOwnBack)
{
    {
        CPlainLook look;
        m_Pane.SetItemVisualisation(&look);
        Settle();
    }
    EXPECT_EQ(m_Pane.GetItemVisualisation(), &m_Pane);
    EXPECT_EQ(m_Pane.GetRowViewModel()->GetItemSize(0), 19);
    EXPECT_EQ(DrawnTabs(), "0 1 2");
}

TEST_F(TabPanePaint, ARowTooHighForTheViewIsNotTheLooksToGround)
{
    CPlainLook look;
    m_Pane.SetItemVisualisation(&look);
    m_Pane.SetAutoRowHeight(false);
    m_Pane.GetRowViewModel()->SetDefaultItemSize(13);
    m_Pane.SetSize({130, 12}, false);  // its pixels 0 to 12 show the row
    m_Host.Paint();
    look.m_Log.clear();
    m_Host.FullPaint();
    EXPECT_THAT(look.m_Log, HasSubstr("ground 0"));
    m_Pane.SetSize({130, 11}, false);
    m_Host.Paint();
    look.m_Log.clear();
    PaintLog const paint = m_Host.FullPaint().Of("pane");
    EXPECT_THAT(look.m_Log, Not(HasSubstr("ground")));
    EXPECT_THAT(look.m_Log, HasSubstr("tab 0"));
    EXPECT_THAT(paint, Draws("FillRect 30 0 60 12"));
    m_Pane.SetItemVisualisation(nullptr);
}

// What is painted anew ------------------------------------------------------------------------------------------------------

TEST_F(TabPanePaint, TheMouseRepaintsTheTabItLeavesAndTheOneItComesTo)
{
    m_Host.Mouse().Move(m_Pane, 5, 5);
    EXPECT_EQ(DrawnTabs(), "0");
    m_Host.Mouse().Move(m_Pane, 6, 5);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Host.Mouse().Move(m_Pane, 50, 5);
    EXPECT_EQ(DrawnTabs(), "0 1");
    m_Host.Mouse().Leave();
    m_Pane.TakeDraws();
    PaintLog const paint = m_Host.Paint().Of("pane");
    EXPECT_EQ(m_Pane.TakeDraws(), "1");
    EXPECT_EQ(paint.Count("FillRect *"), 1);  // and neither the area behind the tabs nor that below
    EXPECT_THAT(paint, Draws("FillRect 43 0 85 18"));
}

TEST_F(TabPanePaint, ACloseButtonThatLightsUpRepaintsItsTab)
{
    m_Tabs[1].close = true;
    m_Tabs.m_SigTabChanged(1);
    MakeHigh();
    m_Host.Mouse().Move(m_Pane, 60, 10);
    m_Host.Paint();
    m_Host.Mouse().Move(m_Pane, 80, 10);
    EXPECT_EQ(DrawnTabs(), "1");
    m_Host.Mouse().Move(m_Pane, 60, 10);
    EXPECT_EQ(DrawnTabs(), "1");
}

TEST_F(TabPanePaint, AnotherCurrentTabRepaintsTwo)
{
    m_Pane.SetCurrentTab(0);
    EXPECT_EQ(DrawnTabs(), "0");
    m_Pane.SetCurrentTab(2);
    EXPECT_EQ(DrawnTabs(), "0 2");
    m_Pane.SetCurrentTab(-1);
    EXPECT_EQ(DrawnTabs(), "2");
}

TEST_F(TabPanePaint, AToggleRepaintsItself)
{
    m_Pane.SetToggled(true);
    Settle();
    m_Pane.ToggleTab(1, true);
    EXPECT_EQ(DrawnTabs(), "1");
    m_Pane.ToggleTab(1, false);
    EXPECT_EQ(DrawnTabs(), "1");
}

TEST_F(TabPanePaint, TheFocusRepaintsTheCurrentTab)
{
    m_Host.Focus();
    m_Pane.SetFocus(true);
    m_Pane.SetCurrentTab(1);
    Settle();
    m_Host.Unfocus();
    EXPECT_EQ(DrawnTabs(), "1");
    m_Host.Focus();
    EXPECT_EQ(DrawnTabs(), "1");
    auto& other = *new CLeaf(m_Host.Root(), {10, 10}, alBottom, 1);
    other.SetCanHaveFocus(true);
    Settle();
    other.SetFocus(true);
    EXPECT_EQ(DrawnTabs(), "1");
    m_Pane.SetFocus(true);
    EXPECT_EQ(DrawnTabs(), "1");
}

TEST_F(TabPanePaint, TheFocusRepaintsNothingWithoutACurrentTab)
{
    m_Host.Focus();
    m_Pane.SetFocus(true);
    EXPECT_EQ(DrawnTabs(), "");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TabPanePaint, AChangedTabIsRepaintedAlone)
{
    m_Tabs[1].text = "xyz";  // as wide as before
    m_Tabs.m_SigTabChanged(1);
    EXPECT_EQ(DrawnTabs(), "1");
    m_Tabs.m_SigTabChanged(3);
    m_Tabs.m_SigTabChanged(-1);
    EXPECT_EQ(DrawnTabs(), "");
}

TEST_F(TabPanePaint, AChangedTabOutOfViewRepaintsNothing)
{
    for (int i = 0; i < 20; ++i)
        m_Tabs.Add("xyz");
    m_Tabs.m_SigChanged();
    m_Pane.SetFirstVisibleTab(10);
    Settle();
    m_Tabs[4].text = "wxyz";  // all together are as wide as before, or the parent would lay out and paint
    m_Tabs[5].text = "xy";
    m_Tabs.m_SigTabChanged(4);
    EXPECT_EQ(DrawnTabs(), "");
    m_Tabs[20].text = "zyx";
    m_Tabs.m_SigTabChanged(20);
    EXPECT_EQ(DrawnTabs(), "");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TabPanePaint, AChangedModelRepaintsAll)
{
    m_Tabs[1].text = "xyz";
    m_Tabs.m_SigChanged();
    EXPECT_EQ(DrawnTabs(), "0 1 2");
}

TEST_F(TabPanePaint, ATabThatGrowsMovesThePixelsOfThoseBehindIt)
{
    for (int i = 0; i < 3; ++i)
        m_Tabs.Add("xyz");
    m_Tabs.m_SigChanged();
    m_Host.Resize(400, 60);
    Settle();
    m_Tabs[0].text = "abcd";
    m_Tabs.m_SigTabChanged(0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TabPanePaint, AStepOfScrollingPaintsWhatComesIntoView)
{
    for (int i = 0; i < 10; ++i)
        m_Tabs.Add("xyz");
    m_Tabs.m_SigChanged();
    Settle();
    m_Pane.SetFirstVisibleTab(1);
    // Four are in view, and part of a fifth; the fourth, whose neighbour came into view, may show another gap.
    EXPECT_EQ(DrawnTabs(), "3 4 5");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Pane.SetFirstVisibleTab(0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TabPanePaint, OverAPictureScrollingPaintsAll)
{
    for (int i = 0; i < 10; ++i)
        m_Tabs.Add("xyz");
    m_Tabs.m_SigChanged();
    SetPicture(true);
    m_Host.FullPaint();
    Settle();
    m_Pane.SetFirstVisibleTab(1);
    EXPECT_EQ(DrawnTabs(), "1 2 3 4 5");
}

TEST_F(TabPanePaint, OverAPictureAPaneThatMovesIsPaintedAnew)
{
    auto& left = *new CLeaf(m_Host.Root(), {10, 10}, alLeft, 1);
    m_Pane.SetAlignment(alClient);
    SetPicture(true);
    m_Host.FullPaint();
    Settle();
    left.SetWidth(20, false);
    EXPECT_EQ(DrawnTabs(), "0 1 2");
}

TEST_F(TabPanePaint, OverAPictureAPaneThatIsPutIntoItsPlaceByForceIsPaintedAnew)
{
    SetPicture(true);
    m_Host.FullPaint();
    Settle();
    m_Host.Mouse().Move(m_Pane, 5, 5);  // the tab under it waits
    m_Pane.SetPos(m_Pane.GetPos(), true);
    EXPECT_EQ(DrawnTabs(), "0 1 2");
}

TEST_F(TabPanePaint, APaneThatIsNoLongerTransparentIsPaintedAnewEvenWhereOneTabWaits)
{
    m_Pane.SetTransparent(true);
    Settle();
    m_Host.Mouse().Move(m_Pane, 5, 5);
    m_Pane.SetTransparent(false);
    EXPECT_EQ(DrawnTabs(), "0 1 2");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TabPanePaint, TheSameHoldsOverAPicture)
{
    SetPicture(true);
    m_Pane.SetTransparent(true);
    m_Host.FullPaint();
    Settle();
    m_Host.Mouse().Move(m_Pane, 5, 5);
    m_Pane.SetTransparent(false);
    EXPECT_EQ(DrawnTabs(), "0 1 2");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TabPanePaint, WhatATabDrawsIsCutToItsPlace)
{
    m_Tabs[0].flags = 33 | IPainter::AlignSingleLine;  // would run on
    m_Tabs[0].text = "abcdefgh";
    m_Pane.SetAutoSize(false);
    Settle();
    std::string const next = m_Host.PixelText({43, 0, 86, 19});
    m_Tabs.m_SigTabChanged(0);
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelText({43, 0, 86, 19}), next);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(TabPanePaint, ATabOfWhichOneLineShowsIsCutToIt)
{
    CPlainLook look;
    m_Pane.SetItemVisualisation(&look);
    m_Host.Resize(62, 60);  // the view is 61 wide, as the first two tabs: pixel 61 is the third one's
    PaintLog const paint = FullPaint();
    EXPECT_THAT(paint, Draws("SetClipRect 30 0 60 11").Then("SetClipRect 61 0 92 11"));
    m_Pane.SetItemVisualisation(nullptr);
}

TEST_F(TabPanePaint, WithoutAModelNothingButTheGroundIsDrawn)
{
    m_Pane.SetModel(nullptr);
    EXPECT_THAT(FullPaint(), Draws("FillRect 0 0 199 18"));
    EXPECT_EQ(m_Pane.TakeDraws(), "");
}

}  // namespace
