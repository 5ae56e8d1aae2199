// Custom buttons, which their subclasses draw by state; arrow buttons.

#include "vexel/controls/arrow_button.h"
#include "vexel/controls/custom_button.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

namespace
{

class CByState : public CCustomButton
{
public:
    using CCustomButton::CCustomButton;

    void DrawDisabledContent(IPainter* painter, bool& handled) override
    {
        m_Drawn += "disabled ";
        m_HandledBefore = handled;
        CCustomButton::DrawDisabledContent(painter, handled);
        handled = handled || m_Handle;
    }
    void DrawNormalContent(IPainter*) override { m_Drawn += "normal "; }
    void DrawHighlightedContent(IPainter*) override { m_Drawn += "highlighted "; }
    void DrawPressedContent(IPainter*) override { m_Drawn += "pressed "; }
    void DrawFocusRect(IPainter* painter) override
    {
        m_Drawn += "focus ";
        CCustomButton::DrawFocusRect(painter);
    }
    bool IsMouseOverButton(int x, int) const override { return x < 50; }

    std::string m_Drawn;
    bool m_Handle = false;
    bool m_HandledBefore = true;
};

class CustomButton : public testing::Test
{
protected:
    CustomButton()
    {
        NameElement(m_Button, "button");
        m_Host.Paint();
    }
    std::string Draw()
    {
        m_Button.m_Drawn.clear();
        m_Button.Update(utElement);
        m_Host.Paint();
        return m_Button.m_Drawn;
    }

    CTestHost m_Host{200, 100};
    CByState& m_Button = *new CByState(m_Host.Root(), {0, 40}, alTop);
};

}  // namespace

TEST_F(CustomButton, TheStateDecidesWhatIsDrawn)
{
    m_Button.SetCanHaveFocus(false);
    EXPECT_EQ(Draw(), "normal ");
    m_Host.Mouse().Move(m_Button, 60, 5);
    EXPECT_EQ(Draw(), "normal ");
    m_Host.Mouse().Move(m_Button, 40, 5);
    EXPECT_EQ(Draw(), "highlighted ");
    m_Host.Mouse().Press();
    EXPECT_EQ(Draw(), "pressed ");
    m_Host.Mouse().Move(5, 90);
    EXPECT_EQ(Draw(), "normal ");
}

TEST_F(CustomButton, WithoutAControlItIsDrawnAsNormal)
{
    CByState alone(nullptr, {10, 10}, alNone);
    alone.HandleMouseMove(5, 5, 0, mbNone);
    alone.DrawContent(m_Host.Window().GetPainter());
    EXPECT_EQ(alone.m_Drawn, "normal ");
}

TEST_F(CustomButton, EnteringAndLeavingTheSensitiveAreaRepaints)
{
    m_Host.Mouse().Move(m_Button, 60, 5);
    m_Host.Paint();
    m_Host.Mouse().Move(m_Button, 40, 5);
    EXPECT_EQ(m_Host.Paint().Elements(), "button");
    m_Host.Mouse().Move(m_Button, 30, 5);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Host.Mouse().Move(m_Button, 70, 5);
    EXPECT_EQ(m_Host.Paint().Elements(), "button");
}

TEST_F(CustomButton, DisabledItFallsThroughToTheNormalDrawingUnlessThatWasHandled)
{
    m_Button.SetEnabled(false);
    EXPECT_EQ(Draw(), "disabled normal ");
    EXPECT_FALSE(m_Button.m_HandledBefore);
    m_Button.m_Handle = true;
    EXPECT_EQ(Draw(), "disabled ");
}

TEST_F(CustomButton, TheFocusFrameIsThreePixelsInsideAtAnyScale)
{
    m_Host.Focus();
    m_Button.SetFocus(true);
    m_Host.SetScale(2);
    m_Button.Update(utElement);
    EXPECT_THAT(m_Host.Paint().Of("button"), Draws("FocusRect 3 3 196 37"));
    EXPECT_EQ(Draw(), "normal focus ");
}

TEST_F(CustomButton, ThePenMarkIsCleared)
{
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.m_PenDirty = true;
    m_Button.DrawContent(&painter);
    EXPECT_FALSE(painter.m_PenDirty);
}

TEST_F(CustomButton, ThePointerIsRememberedWhileItIsElsewhere)
{
    m_Button.SetCanHaveFocus(false);
    m_Host.Mouse().Move(m_Button, 40, 5);
    m_Host.Mouse().Move(5, 90);
    EXPECT_EQ(Draw(), "normal ");  // inside, but another element is under the pointer
    m_Host.Mouse().Move(m_Button, 45, 5);
    EXPECT_EQ(Draw(), "highlighted ");
}

TEST_F(CustomButton, PressedByKeyItIsDrawnPressedAndThenAsNormal)
{
    m_Host.Focus();
    m_Button.SetFocus(true);
    m_Host.Keyboard().Down(vkSpace);
    EXPECT_EQ(Draw(), "pressed focus ");
    m_Host.Keyboard().Up(vkSpace);
    EXPECT_EQ(Draw(), "normal focus ");
}

TEST_F(CustomButton, DisabledUnderThePointerItIsHighlightedAllTheSame)
{
    m_Host.Mouse().Move(m_Button, 40, 5);
    m_Button.SetEnabled(false);
    EXPECT_EQ(Draw(), "disabled highlighted ");
}

TEST_F(CustomButton, WhereTheDisabledDrawingWasHandledThereIsNoFocusFrame)
{
    m_Host.Focus();
    m_Button.SetFocus(true);
    m_Button.SetEnabled(false);
    m_Button.SetFocus(true);
    ASSERT_TRUE(m_Button.IsFocused());
    EXPECT_EQ(Draw(), "disabled normal focus ");
    m_Button.m_Handle = true;
    EXPECT_EQ(Draw(), "disabled ");
}

TEST_F(CustomButton, EnabledItIsNotAskedForItsDisabledLook)
{
    m_Button.m_Handle = true;
    EXPECT_EQ(Draw(), "normal ");
}

TEST_F(CustomButton, ItMayDieAsItIsDrawn)
{
    class CDying : public CByState
    {
    public:
        using CByState::CByState;
        void DrawDisabledContent(IPainter*, bool&) override { delete this; }
        void DrawNormalContent(IPainter*) override { delete this; }
    };
    for (bool const enabled : {true, false})
    {
        auto* const dying = new CDying(m_Host.Root(), {0, 40}, alTop);
        dying->SetEnabled(enabled);
        m_Host.Focus();
        dying->SetFocus(true);
        m_Host.Paint();
        EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
    }
}

TEST_F(CustomButton, NothingButItsSubclassesDrawsIt)
{
    m_Button.SetCaption("unseen");
    m_Host.Paint();
    m_Button.Update(utElement);
    PaintLog const log = m_Host.Paint().Of("button");
    EXPECT_THAT(log, Not(Draws("DrawControlElement*")));
    EXPECT_THAT(log, Not(Draws("DrawString*")));
    EXPECT_THAT(log, Not(Draws("FillRect*")));
}

TEST_F(CustomButton, AMoveOverALinkIsTheCaptionsToAnswer)
{
    EXPECT_FALSE(m_Button.HandleMouseMove(60, 5, 0, mbNone));
    EXPECT_FALSE(m_Button.HandleMouseMove(40, 5, 0, mbNone));
    m_Button.UseHTML(true);
    m_Button.OnDrawLink("there", 5, {35, 0, 80, 10});
    EXPECT_TRUE(m_Button.HandleMouseMove(100, 5, 0, mbNone));
    EXPECT_EQ(m_Button.GetCursor(), 1);
    EXPECT_TRUE(m_Button.HandleMouseMove(40, 5, 0, mbNone));
    EXPECT_EQ(m_Button.GetCursor(), 12);
}

TEST_F(CustomButton, TheFocusFrameStandsInItsContent)
{
    class CFramed : public CByState
    {
    public:
        using CByState::CByState;
        rectangle<int> GetContentRect() const override { return {90, 30, 10, 20}; }
    };
    auto* const framed = new CFramed(m_Host.Root(), {0, 40}, alTop);
    NameElement(*framed, "framed");
    m_Host.Focus();
    framed->SetFocus(true);
    EXPECT_THAT(m_Host.Paint().Of("framed"), Draws("FocusRect 13 23 87 27"));
}

// Arrows ------------------------------------------------------------------------------------------------------------------

namespace
{

// An arrow of 8 in a button at (0, 0, 31, 21): across its middle from (12, 7) on, and 11 steps right of it.
class ArrowButton : public testing::Test
{
protected:
    ArrowButton()
    {
        NameElement(m_Button, "button");
        m_Button.SetFgColor(color_table[4]);
        m_Host.Paint();
    }
    PaintLog Draw()
    {
        m_Button.Update(utElement);
        return m_Host.Paint().Of("button");
    }

    CTestHost m_Host{32, 22};
    CArrowButton& m_Button = *new CArrowButton(m_Host.Root(), {0, 0}, alClient);
};

}  // namespace

TEST_F(ArrowButton, ItStartsLeftAndEightScaledPixels)
{
    EXPECT_EQ(m_Button.GetArrowType(), CArrowButton::ArrowLeft);
    EXPECT_EQ(m_Button.GetArrowSize(), 8);
    m_Host.SetScale(1.7);
    CArrowButton scaled(nullptr, {0, 0}, alNone);
    EXPECT_EQ(scaled.GetArrowSize(), 13);  // 13.6
    scaled.SetArrowSize(10);
    EXPECT_EQ(scaled.GetArrowSize(), 17);
}

TEST_F(ArrowButton, TypeAndSizeRepaintOnAChange)
{
    m_Button.SetArrowType(CArrowButton::ArrowLeft);
    m_Button.SetArrowSize(8);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Button.SetArrowType(CArrowButton::ArrowRight);
    EXPECT_FALSE(m_Host.Paint().IsEmpty());
    m_Button.SetArrowSize(9);
    EXPECT_FALSE(m_Host.Paint().IsEmpty());
}

TEST_F(ArrowButton, Left)
{
    // x = 31 - (31 - 8) / 2 = 20, y = (21 - 8) / 2 = 6
    EXPECT_THAT(Draw(), Draws("SetPen blue 2")
                            .Then("MoveTo 20 6")
                            .Then("LineTo 16 10")
                            .Then("LineTo 20 14")
                            .Then("MoveTo 16 6")
                            .Then("LineTo 12 10")
                            .Then("LineTo 16 14"));
}

TEST_F(ArrowButton, Top)
{
    m_Button.SetArrowType(CArrowButton::ArrowTop);
    // x = (31 - 8) / 2 = 11, y = 21 - (21 - 8) / 2 = 15
    EXPECT_THAT(Draw(), Draws("MoveTo 11 15")
                            .Then("LineTo 15 11")
                            .Then("LineTo 19 15")
                            .Then("MoveTo 11 11")
                            .Then("LineTo 15 7")
                            .Then("LineTo 19 11"));
}

TEST_F(ArrowButton, Right)
{
    m_Button.SetArrowType(CArrowButton::ArrowRight);
    EXPECT_THAT(Draw(), Draws("MoveTo 11 6")
                            .Then("LineTo 15 10")
                            .Then("LineTo 11 14")
                            .Then("MoveTo 15 6")
                            .Then("LineTo 19 10")
                            .Then("LineTo 15 14"));
}

TEST_F(ArrowButton, Bottom)
{
    m_Button.SetArrowType(CArrowButton::ArrowBottom);
    EXPECT_THAT(Draw(), Draws("MoveTo 11 6")
                            .Then("LineTo 15 10")
                            .Then("LineTo 19 6")
                            .Then("MoveTo 11 10")
                            .Then("LineTo 15 14")
                            .Then("LineTo 19 10"));
}

TEST_F(ArrowButton, TheArrowMovesWithThePress)
{
    m_Button.SetArrowType(CArrowButton::ArrowRight);
    m_Host.Mouse().Press(m_Button, 5, 5);
    EXPECT_THAT(Draw(), Draws("MoveTo 12 7").Then("LineTo 16 11").Then("LineTo 12 15"));
}

TEST_F(ArrowButton, TheStepFollowsTheScale)
{
    m_Host.SetScale(1.5);
    m_Button.SetArrowType(CArrowButton::ArrowRight);
    EXPECT_THAT(Draw(), Draws("MoveTo 11 6").Then("MoveTo 17 6"));
}

TEST_F(ArrowButton, TheStepIsTruncated)
{
    m_Host.SetScale(1.2);  // 4.8
    m_Button.SetArrowType(CArrowButton::ArrowRight);
    EXPECT_THAT(Draw(), Draws("MoveTo 11 6").Then("MoveTo 15 6"));
}

TEST_F(ArrowButton, TheArrowStandsInTheInternalRectangleInOrder)
{
    class CTurned : public CArrowButton
    {
    public:
        using CArrowButton::CArrowButton;
        rectangle<int> GetInternalRect() const override { return {31, 21, 2, 2}; }
    };
    m_Button.SetVisible(false);
    auto* const turned = new CTurned(m_Host.Root(), {0, 0}, alClient);
    NameElement(*turned, "turned");
    // x = 31 - (31 - 10) / 2 = 21, y = (19 - 8) / 2 + 2 = 7
    EXPECT_THAT(m_Host.Paint().Of("turned"), Draws("MoveTo 21 7").Then("LineTo 17 11").Then("LineTo 21 15"));
}

TEST_F(ArrowButton, DisabledItsPenIsThePaintersMadeTwoWide)
{
    m_Button.SetEnabled(false);
    EXPECT_THAT(Draw(), Draws("SetPen grey 2").Then("MoveTo 20 6"));
}

TEST_F(ArrowButton, AContentNoLargerThanTheArrowShowsNone)
{
    m_Button.SetArrowSize(20);
    EXPECT_THAT(Draw(), Draws("MoveTo*"));
    m_Button.SetArrowSize(21);
    EXPECT_THAT(Draw(), Not(Draws("MoveTo*")));
    m_Host.Resize(22, 40);
    EXPECT_THAT(Draw(), Not(Draws("MoveTo*")));
    m_Host.Resize(23, 40);
    EXPECT_THAT(Draw(), Draws("MoveTo*"));
}

TEST_F(ArrowButton, AnOddArrowHasItsTipAtHalfItsSizeRoundedDown)
{
    m_Button.SetArrowSize(9);
    // x = 31 - (31 - 9) / 2 = 20, y = (21 - 9) / 2 = 6
    EXPECT_THAT(Draw(), Draws("MoveTo 20 6").Then("LineTo 16 10").Then("LineTo 20 15").Then("MoveTo 16 6"));
    m_Button.SetArrowType(CArrowButton::ArrowTop);
    // x = (31 - 9) / 2 = 11, y = 21 - (21 - 9) / 2 = 15
    EXPECT_THAT(Draw(), Draws("MoveTo 11 15").Then("LineTo 15 11").Then("LineTo 20 15").Then("MoveTo 11 11"));
    m_Button.SetArrowType(CArrowButton::ArrowRight);
    EXPECT_THAT(Draw(), Draws("MoveTo 11 6").Then("LineTo 15 10").Then("LineTo 11 15").Then("MoveTo 15 6"));
    m_Button.SetArrowType(CArrowButton::ArrowBottom);
    EXPECT_THAT(Draw(), Draws("MoveTo 11 6").Then("LineTo 15 10").Then("LineTo 20 6").Then("MoveTo 11 10"));
}

TEST_F(ArrowButton, TheArrowComesLastOverTextAndFocusFrame)
{
    m_Button.SetCaption("a");
    m_Host.Focus();
    m_Button.SetFocus(true);
    EXPECT_THAT(Draw(), Draws("DrawControlElement*")
                            .Then("DrawStringEx*")
                            .Then("FocusRect*")
                            .Then("SetPen blue 2")
                            .Then("MoveTo 20 6"));
}

TEST_F(ArrowButton, ItsSizeIsGivenInUnscaledPixelsAndComparedInScaledOnes)
{
    m_Host.SetScale(2);
    m_Button.SetArrowSize(8);
    EXPECT_EQ(m_Button.GetArrowSize(), 16);
    m_Host.Paint();
    m_Button.SetArrowSize(8);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Button.SetArrowSize(0);
    EXPECT_EQ(m_Button.GetArrowSize(), 0);
    EXPECT_TRUE(m_Host.IsFramePending());
}
