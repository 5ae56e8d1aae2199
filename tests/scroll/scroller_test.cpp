// A panel with arrow buttons above and below what does not fit.

#include "tests/support/call_log.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"
#include "vexel/core/base_control.h"
#include "vexel/scroll/scroller.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

class CPlaced : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;
    std::string m_Places;
    bool m_Full = true;
    void SetPos(rectangle<int> const& rect, bool force) override
    {
        m_Places += (m_Places.empty() ? "(" : " (") + Text(rect) + (force ? ", force)" : ")");
        CVisualElement::SetPos(rect, force);
    }
    bool IsFullRepainted() const override { return m_Full; }
    void DrawContent(IPainter* painter) override { painter->Rectangle(0, 0, GetBounds().right, GetBounds().bottom); }
    std::string Take() { return std::exchange(m_Places, {}); }
};

// Fills a window of 100 x 80. With the buttons, of 12 each, the view is 53 high.
class Scroller : public testing::Test
{
protected:
    Scroller() { m_Scroller->SetScrolled(m_Content); }
    void Ask(int height)
    {
        m_Content->SetSize({10, height}, false);
        m_Host.Paint();
    }
    CScroller::CCentralPart& Part() { return m_Scroller->GetCentralPart(); }
    CArrowButton& Top() { return m_Scroller->GetTopButton(); }
    CArrowButton& Bottom() { return m_Scroller->GetBottomButton(); }
    void Click(CArrowButton& button)
    {
        m_Host.Mouse().Click(button, 50, 5);
        m_Host.Paint();
    }
    // Which buttons show and which of them are enabled.
    std::string Buttons()
    {
        if (!Top().IsVisible() && !Bottom().IsVisible())
            return "none";
        EXPECT_TRUE(Top().IsVisible() && Bottom().IsVisible());
        return std::string(Top().IsEnabled() ? "up" : "-") + " " + (Bottom().IsEnabled() ? "down" : "-");
    }

    CTestHost m_Host{100, 80};
    CScroller* m_Scroller = new CScroller(m_Host.Root(), {10, 10}, alClient);
    CPlaced* m_Content = new CPlaced(nullptr, {10, 200}, alTop);
};

TEST_F(Scroller, ItsPartsAreAsTheyShouldBeFromTheStart)
{
    CScroller scroller(nullptr, {30, 40}, alLeft);
    EXPECT_EQ(scroller.GetScrolled(), nullptr);
    EXPECT_EQ(scroller.GetSize(), (size<int>{30, 40}));
    EXPECT_EQ(scroller.GetAlignment(), alLeft);
    for (CArrowButton* const button : {&scroller.GetTopButton(), &scroller.GetBottomButton()})
    {
        EXPECT_EQ(button->GetParent(), &scroller);
        EXPECT_EQ(button->GetSize(), (size<int>{12, 12}));
        EXPECT_FALSE(button->IsDynamic());
        EXPECT_TRUE(button->IsAutoRepeat());
        EXPECT_FALSE(button->GetCanHaveFocus());
        EXPECT_EQ(button->GetArrowSize(), 6);
        EXPECT_EQ(button->GetStyle(), CButton::BorderFlat);
        EXPECT_EQ(button->GetShape(), CButton::ShapeNoFrame);
        EXPECT_FALSE(button->IsVisible());
    }
    EXPECT_EQ(scroller.GetTopButton().GetAlignment(), alTop);
    EXPECT_EQ(scroller.GetBottomButton().GetAlignment(), alBottom);
    EXPECT_EQ(scroller.GetTopButton().GetArrowType(), CArrowButton::ArrowTop);
    EXPECT_EQ(scroller.GetBottomButton().GetArrowType(), CArrowButton::ArrowBottom);
    CScroller::CCentralPart& part = scroller.GetCentralPart();
    EXPECT_EQ(part.GetSize(), (size<int>{12, 12}));
    EXPECT_EQ(part.GetAlignment(), alClient);
    EXPECT_FALSE(part.IsDynamic());
    EXPECT_EQ(part.GetParent(), &scroller);
    EXPECT_EQ(part.GetStep(), 20);
    EXPECT_EQ(part.GetOffset(), 0);
}

TEST_F(Scroller, ContentThatFitsShowsNoButtons)
{
    Ask(79);
    EXPECT_EQ(Buttons(), "none");
    EXPECT_EQ(Part().GetOffset(), 0);
    EXPECT_EQ(Part().GetPos(), (rectangle<int>{0, 0, 99, 79}));
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 99, 79}));
    Ask(30);
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 99, 30}));
}

TEST_F(Scroller, ContentThatDoesNotFitGetsButtonsAboveAndBelow)
{
    Ask(80);
    EXPECT_EQ(Buttons(), "- down");
    EXPECT_EQ(Top().GetPos(), (rectangle<int>{0, 0, 99, 12}));
    EXPECT_EQ(Bottom().GetPos(), (rectangle<int>{0, 67, 99, 79}));
    EXPECT_EQ(Part().GetPos(), (rectangle<int>{0, 13, 99, 66}));
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 99, 80}));
    EXPECT_EQ(m_Content->GetAlignment(), alNone);
    EXPECT_EQ(m_Content->GetParent(), &Part());
    EXPECT_EQ(m_Scroller->GetScrolled(), m_Content);
}

TEST_F(Scroller, TheButtonsPushTheContentByTwentyPixels)
{
    Ask(200);
    Click(Bottom());
    EXPECT_EQ(Part().GetOffset(), -20);
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, -20, 99, 180}));
    EXPECT_EQ(Buttons(), "up down");
    Click(Bottom());
    EXPECT_EQ(Part().GetOffset(), -40);
    Click(Top());
    EXPECT_EQ(Part().GetOffset(), -20);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Scroller, StepsDoNotScale)
{
    CTestHost host(200, 160, 2.0);
    auto* const scroller = new CScroller(host.Root(), {10, 10}, alClient);
    scroller->SetScrolled(new CVisualElement(nullptr, {10, 600}, alNone));
    host.Paint();
    scroller->GetCentralPart().OnBottomButtonClick(nullptr);
    host.Paint();
    EXPECT_EQ(scroller->GetCentralPart().GetOffset(), -20);
    CTestHost::System().SetScale(1.0);
}

TEST_F(Scroller, TheLastStepIsCutAndDisablesItsButton)
{
    Ask(200);
    for (int i = 0; i < 7; ++i)
        Click(Bottom());
    EXPECT_EQ(Part().GetOffset(), -140);
    EXPECT_EQ(Buttons(), "up down");
    Click(Bottom());
    EXPECT_EQ(Part().GetOffset(), -147);  // 53 - 200
    EXPECT_EQ(Buttons(), "up -");
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, -147, 99, 53}));
}

TEST_F(Scroller, UpFromTheStartStaysAtTheStart)
{
    Ask(200);
    Part().OnTopButtonClick(&Top());
    m_Host.Paint();
    EXPECT_EQ(Part().GetOffset(), 0);
    EXPECT_EQ(Buttons(), "- down");
    Click(Bottom());
    Part().SetStep(500);
    Click(Top());
    EXPECT_EQ(Part().GetOffset(), 0);
    EXPECT_EQ(Buttons(), "- down");
}

TEST_F(Scroller, AClickWaitsForTheLayoutToBeCut)
{
    Ask(200);
    Part().OnTopButtonClick(&Top());
    EXPECT_TRUE(m_Host.IsFramePending());
    EXPECT_EQ(m_Content->GetPos().top, 0);
    m_Host.Paint();
    Part().OnBottomButtonClick(&Bottom());
    EXPECT_EQ(m_Content->GetPos().top, 0);
    m_Host.Paint();
    EXPECT_EQ(m_Content->GetPos().top, -20);
}

TEST_F(Scroller, AHeldButtonGoesOn)
{
    Ask(200);
    m_Host.Mouse().Press(Bottom(), 50, 5);
    m_Host.Clock().Advance(600);
    m_Host.Paint();
    EXPECT_EQ(Part().GetOffset(), -60);  // every 200 ms
    m_Host.Clock().Advance(4000);
    m_Host.Paint();
    EXPECT_EQ(Part().GetOffset(), -147);
    m_Host.Mouse().Release();
    m_Host.Paint();
    EXPECT_EQ(Part().GetOffset(), -147);
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
}

TEST_F(Scroller, WhenThePanelGrowsTheContentsEndStaysAtItsFoot)
{
    Ask(200);
    for (int i = 0; i < 8; ++i)
        Click(Bottom());
    m_Host.Resize(100, 100);
    m_Host.Paint();
    EXPECT_EQ(Part().GetOffset(), -127);  // 73 - 200
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, -127, 99, 73}));
    EXPECT_EQ(Buttons(), "up -");
    m_Host.Resize(60, 300);
    m_Host.Paint();
    EXPECT_EQ(Buttons(), "none");
    EXPECT_EQ(Part().GetOffset(), 0);
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 59, 200}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Scroller, ContentThatShrinksComesBack)
{
    Ask(200);
    for (int i = 0; i < 8; ++i)
        Click(Bottom());
    Ask(100);
    EXPECT_EQ(Part().GetOffset(), -47);  // 53 - 100
    Ask(40);
    EXPECT_EQ(Buttons(), "none");
    EXPECT_EQ(Part().GetOffset(), 0);
    EXPECT_EQ(Part().GetPos(), (rectangle<int>{0, 0, 99, 79}));
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 99, 40}));
    Ask(200);
    EXPECT_EQ(Part().GetPos(), (rectangle<int>{0, 13, 99, 66}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Scroller, ALayoutOnDemandGivesTheViewTheButtonsRoomAtOnce)
{
    Ask(200);
    auto* const docked = new CVisualElement(m_Content, {5, 5}, alTop);
    m_Host.Paint();
    for (int round = 0; round < 3; ++round)
    {
        m_Content->SetSize({10, 40}, false);
        m_Host.Root()->ForceRearrange();
        EXPECT_EQ(Buttons(), "none");
        EXPECT_EQ(Part().GetPos(), (rectangle<int>{0, 0, 99, 79}));
        m_Content->SetSize({10, 200}, false);
        docked->SetSize({5, 6 + round}, false);
        m_Host.Root()->ForceRearrange();
        EXPECT_EQ(Part().GetPos(), (rectangle<int>{0, 13, 99, 66}));
    }
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Scroller, TheContentGetsTheForceOfThePlace)
{
    Ask(200);
    m_Content->Take();
    Part().SetPos({0, 13, 99, 60}, false);
    EXPECT_EQ(m_Content->Take(), "(0 0 99 200)");
    Part().SetPos({0, 13, 99, 60}, true);
    EXPECT_EQ(m_Content->Take(), "(0 0 99 200, force)");
}

TEST_F(Scroller, WithoutContentItIsAnEmptyPanel)
{
    CTestHost host(50, 40);
    auto* const scroller = new CScroller(host.Root(), {10, 10}, alClient);
    host.Paint();
    EXPECT_FALSE(scroller->GetTopButton().IsVisible());
    EXPECT_FALSE(scroller->GetBottomButton().IsVisible());
    EXPECT_FALSE(scroller->IsFullRepainted());
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST_F(Scroller, IsRepaintedAsAWholeIfItsContentIs)
{
    EXPECT_TRUE(m_Scroller->IsFullRepainted());
    m_Content->m_Full = false;
    EXPECT_FALSE(m_Scroller->IsFullRepainted());
}

TEST_F(Scroller, OtherContentTakesThePlaceOfTheFormer)
{
    Ask(200);
    Click(Bottom());
    auto* const other = new CPlaced(nullptr, {10, 30}, alBottom);
    m_Scroller->SetScrolled(other);
    std::unique_ptr<CPlaced> const former(m_Content);
    m_Host.Paint();
    EXPECT_EQ(former->GetParent(), nullptr);
    EXPECT_EQ(m_Scroller->GetScrolled(), other);
    EXPECT_EQ(other->GetAlignment(), alNone);
    EXPECT_EQ(other->GetParent(), &Part());
    EXPECT_EQ(Buttons(), "none");
    EXPECT_EQ(other->GetPos(), (rectangle<int>{0, 0, 99, 30}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Scroller, ContentThatLeftMayBeShownAgain)
{
    Ask(200);
    m_Content->ReParent(nullptr, true);
    m_Host.Paint();
    m_Scroller->SetScrolled(m_Content);
    m_Host.Paint();
    EXPECT_EQ(m_Content->GetParent(), &Part());
    EXPECT_EQ(m_Content->GetPos(), (rectangle<int>{0, 0, 99, 200}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Scroller, ContentThatStandsElsewhereIsLeftAlone)
{
    Ask(200);
    CVisualElement elsewhere(nullptr, {10, 10}, alNone);
    m_Content->ReParent(&elsewhere, true);
    m_Content->SetPos({1, 2, 3, 4}, false);
    m_Content->Take();
    m_Host.Resize(120, 90);
    m_Host.Paint();
    Part().OnBottomButtonClick(nullptr);
    m_Host.Paint();
    EXPECT_EQ(m_Content->Take(), "");
    EXPECT_FALSE(m_Scroller->IsFullRepainted());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Scroller, ContentThatDiesIsForgotten)
{
    Ask(200);
    Click(Bottom());
    delete m_Content;
    EXPECT_EQ(m_Scroller->GetScrolled(), nullptr);
    m_Host.Paint();
    Part().OnBottomButtonClick(&Bottom());
    m_Host.Paint();
    EXPECT_FALSE(m_Scroller->IsFullRepainted());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Scroller, RepaintsBelowEndAtTheView)
{
    Ask(200);
    auto* const leaf = new CVisualElement(m_Content, {5, 5}, alNone);
    leaf->SetPos({5, 5, 30, 30}, false);
    m_Host.Name(*leaf, "leaf");
    m_Host.Paint();
    leaf->Update(utElement);
    PaintLog const paint = m_Host.Paint();
    EXPECT_EQ(paint.Count("FillRect 0 0 99 53"), 1);  // the whole view
    EXPECT_THAT(paint.Elements(), testing::HasSubstr("leaf"));
    CVisualElement* element = leaf;
    Part().ProcessChange(&element);
    EXPECT_EQ(element, &Part());
    element = leaf;
    Part().ProcessRearrange(&element);
    EXPECT_EQ(element, &Part());
}

TEST_F(Scroller, ARemovalBelowKeepsTheViewsRepaint)
{
    Ask(200);
    auto* const leaf = new CVisualElement(m_Content, {5, 5}, alNone);
    leaf->SetPos({5, 5, 30, 30}, false);
    m_Host.Paint();
    Part().Update(utElement);
    delete leaf;
    EXPECT_EQ(m_Host.Paint().Count("FillRect 0 0 99 53"), 1);
}

TEST_F(Scroller, LayoutsBelowEndAtTheView)
{
    Ask(200);
    auto* const docked = new CVisualElement(m_Content, {5, 30}, alTop);
    m_Host.Paint();
    EXPECT_EQ(docked->GetPos(), (rectangle<int>{0, 0, 99, 30}));
    docked->SetSize({5, 50}, false);
    m_Host.Paint();
    EXPECT_EQ(docked->GetPos(), (rectangle<int>{0, 0, 99, 50}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(Scroller, WhatDoesNotShowIsNotPainted)
{
    m_Content->SetBkColor(color_table[10]);
    Ask(200);
    EXPECT_NE(m_Host.PixelAt(50, 70), color_table[10]);  // the button
    EXPECT_EQ(m_Host.PixelAt(50, 66), color_table[10]);
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->BeginPaint(IPainter::ssPaint);
    painter->SimpleSetClipRect({3, 4, 50, 60}, false);
    Part().OnDraw(painter);
    EXPECT_EQ(painter->GetClipRect(), (rectangle<double>{3, 4, 50, 60}));
    painter->EndPaint();
    Part().SetVisible(false);
    EXPECT_EQ(m_Host.FullPaint().Of("CCentralPart").Count("FillRect*"), 0);
}

TEST_F(Scroller, AButtonMayTakeThePanelAway)
{
    class CDeleter : public subscriber_base_t
    {
    public:
        void Clicked(CButton*) { delete std::exchange(m_Scroller, nullptr); }
        CScroller* m_Scroller = nullptr;
    };
    Ask(200);
    CDeleter deleter;
    deleter.m_Scroller = m_Scroller;
    Bottom().m_Clicked.connect(&deleter, &CDeleter::Clicked);
    m_Host.Mouse().Press(Bottom(), 50, 5);
    m_Host.Clock().Advance(200);  // in the button's own tick
    EXPECT_EQ(deleter.m_Scroller, nullptr);
    m_Host.Mouse().Release();
    m_Host.Paint();
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
}

}  // namespace
