// How buttons are drawn: by the platform, with an edge, flat, over a background picture; custom buttons by state; arrows.

#include "vexel/controls/arrow_button.h"
#include "vexel/controls/button.h"
#include "vexel/controls/custom_button.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/memory/memory_palette.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

namespace
{

// A yellow button at (0, 0, 199, 40); the highlight is green, its text blue.
class ButtonPaint : public testing::Test
{
protected:
    ButtonPaint()
    {
        NameElement(m_Button, "button");
        m_Button.SetBkColor(color_table[3]);
        auto& palette = CTestHost::System().GetMemoryPalette();
        palette.SetColor(ISysPalette::scHighlight, color_table[13]);
        palette.SetColor(ISysPalette::scHighlightText, color_table[4]);
        palette.SetColor(ISysPalette::scControlText, color_table[14]);
        m_Host.Paint();
    }
    void BeFlat()
    {
        m_Button.SetNativeDrawing(false);
        m_Button.SetStyle(CButton::BorderFlat);
    }
    PaintLog Draw()
    {
        m_Button.Update(utElement);
        return m_Host.Paint().Of("button");
    }

    CTestHost m_Host{200, 100};
    CButton& m_Button = *new CButton(m_Host.Root(), {0, 40}, alTop);
};

}  // namespace

TEST_F(ButtonPaint, ThePlatformDrawsItUnderTheTextColourOfThePalette)
{
    m_Button.SetFgColor(color_table[6]);
    EXPECT_THAT(Draw(),
                Draws("SetTextColor red").Then("SetTextColor brown").Then("DrawControlElement 7 0 0 199 40 0x0"));
}

TEST_F(ButtonPaint, TheStateWordTellsDisabledFocusedHotAndPressed)
{
    EXPECT_EQ(m_Button.GetNativeState(), 0);
    m_Host.Mouse().Move(m_Button, 5, 5);
    EXPECT_EQ(m_Button.GetNativeState(), 4);
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Button.GetNativeState(), 2 + 8);
    m_Button.SetEnabled(false);
    EXPECT_EQ(m_Button.GetNativeState(), 1 + 2);
    m_Host.Unfocus();
    EXPECT_EQ(m_Button.GetNativeState(), 1);
}

TEST_F(ButtonPaint, ADisabledButtonKeepsTheGreyText)
{
    m_Button.SetEnabled(false);
    PaintLog const log = Draw();
    EXPECT_EQ(log.Count("SetTextColor*"), 1);
    EXPECT_THAT(log, Draws("SetTextColor grey"));
}

TEST_F(ButtonPaint, ItsContentMovesAPixelWhilePressed)
{
    m_Button.SetTextAlign(IPainter::AlignLeft | IPainter::AlignTop);
    m_Button.SetCaption("a");
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"a\" 11 0 188 40 0x109"));
    m_Host.Mouse().Press(m_Button, 5, 5);
    EXPECT_EQ(m_Button.GetInternalRect(), (rectangle<int>{1, 1, 200, 41}));
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"a\" 12 1 189 41 0x109"));
}

TEST_F(ButtonPaint, TheInternalRectangleIsInOrder)
{
    CButton odd(nullptr, {0, 0}, alNone);
    odd.SetPos({10, 20, 0, 0}, true);
    EXPECT_EQ(odd.GetInternalRect(), (rectangle<int>{-10, -20, 0, 0}));
}

TEST_F(ButtonPaint, TheFocusFrameIsThreeScaledPixelsInside)
{
    m_Host.Focus();
    m_Button.SetFocus(true);
    EXPECT_THAT(Draw(), Draws("FocusRect 3 3 196 37"));
    m_Host.SetScale(1.5);
    EXPECT_THAT(Draw(), Draws("FocusRect 4 4 195 36"));
}

TEST_F(ButtonPaint, AButtonThatIsTooSmallForTheFocusFrameHasNone)
{
    m_Host.Focus();
    m_Button.SetFocus(true);
    m_Button.SetHeight(6, false);
    EXPECT_THAT(m_Host.Paint().Of("button"), Draws("FocusRect 3 3 196 3"));
    m_Button.SetHeight(5, false);
    EXPECT_THAT(m_Host.Paint().Of("button"), Not(Draws("FocusRect*")));
}

TEST_F(ButtonPaint, AFlatButtonHasTheFocusFrameOnePixelFurtherOut)
{
    m_Host.Focus();
    m_Button.SetFocus(true);
    m_Button.SetStyle(CButton::BorderFlat);
    EXPECT_THAT(Draw(), Draws("FocusRect 3 3 196 37"));  // still native
    m_Button.SetNativeDrawing(false);
    EXPECT_THAT(Draw(), Draws("FocusRect 2 2 197 38"));
}

TEST_F(ButtonPaint, ItCoolsDownAlsoAfterItsStageWasResetUnderThePointer)
{
    m_Host.Mouse().Move(m_Button, 5, 5);
    m_Button.SetEnabled(false);
    m_Button.SetEnabled(true);
    EXPECT_THAT(m_Host.Paint().Of("button"), Draws("DrawControlElement * 0x4"));
    m_Host.Mouse().Move(5, 90);
    EXPECT_THAT(m_Host.Paint().Of("button"), Draws("DrawControlElement * 0x0"));
}

// With an edge ------------------------------------------------------------------------------------------------------------

TEST_F(ButtonPaint, WithoutThePlatformItHasARaisedEdgeOfItsOwnColour)
{
    m_Button.SetNativeDrawing(false);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetBrush yellow").Then("FillRect 0 0 199 40"));
    EXPECT_THAT(log, Not(Draws("DrawControlElement*")));
    // 80 hundredths of the way from yellow to white on the left, 65 to black on the right.
    EXPECT_EQ(m_Host.PixelAt(0, 10).m_Value & 0xFFFFFFu, 0xCCFFFFu);
    EXPECT_EQ(m_Host.PixelAt(199, 10).m_Value & 0xFFFFFFu, 0x005A5Au);
    EXPECT_EQ(m_Host.Window().GetPainter()->m_Palette, nullptr);
}

TEST_F(ButtonPaint, PressedItHasASunkenBox)
{
    m_Button.SetNativeDrawing(false);
    m_Button.SetShape(CButton::ShapeNoFrame);
    m_Host.Mouse().Press(m_Button, 5, 5);
    Draw();
    EXPECT_EQ(m_Host.PixelAt(0, 10).m_Value & 0xFFFFFFu, 0x005A5Au);
    EXPECT_EQ(m_Host.PixelAt(199, 10).m_Value & 0xFFFFFFu, 0xCCFFFFu);
}

TEST_F(ButtonPaint, WithoutAFrameItIsOnlyFilled)
{
    m_Button.SetNativeDrawing(false);
    m_Button.SetShape(CButton::ShapeNoFrame);
    EXPECT_EQ(Draw().Count("FillRect*"), 1);
    EXPECT_EQ(m_Host.PixelAt(0, 10).m_Value & 0xFFFFFFu, 0x00FFFFu);
}

TEST_F(ButtonPaint, APaletteOfThePainterIsUsedAndKept)
{
    m_Button.SetNativeDrawing(false);
    IPainter& painter = *m_Host.Window().GetPainter();
    auto const palette = CreateCustomPalette();
    palette->SetColor(ISysPalette::scFace, color_table[6]);
    painter.BeginPaint(IPainter::ssPaint);
    painter.m_Palette = palette;
    m_Button.DrawBackground(&painter);
    EXPECT_EQ(painter.m_Palette, palette);
    painter.m_Palette = nullptr;
    painter.EndPaint();
    EXPECT_EQ(m_Host.PixelAt(100, 20).m_Value & 0xFFFFFFu, 0x0000FFu);
}

TEST_F(ButtonPaint, ThePenMarkIsCleared)
{
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    painter.m_PenDirty = true;
    m_Button.DrawBackground(&painter);
    EXPECT_FALSE(painter.m_PenDirty);
    painter.EndPaint();
}

// Flat --------------------------------------------------------------------------------------------------------------------

TEST_F(ButtonPaint, AFlatButtonRestsInItsColourWithAShadowFrame)
{
    BeFlat();
    EXPECT_THAT(Draw(), Draws("SetBrush yellow")
                            .Then("FillRect 0 0 199 40")
                            .Then("SetBrush yellow")
                            .Then("SetPen #808080")
                            .Then("Rectangle 0 0 199 40"));
}

TEST_F(ButtonPaint, AHotFlatButtonTakesFifteenHundredthsOfTheHighlight)
{
    BeFlat();
    m_Host.Mouse().Move(m_Button, 5, 5);
    // From green (0, 255, 0) 0.85 of the way to yellow (255, 255, 0): red 216.75.
    EXPECT_THAT(Draw(), Draws("SetBrush #D8FF00").Then("SetPen green").Then("Rectangle 0 0 199 40"));
}

TEST_F(ButtonPaint, APressedFlatButtonTakesFortyHundredthsOfTheHighlightAndItsTextColour)
{
    BeFlat();
    m_Host.Mouse().Press(m_Button, 5, 5);
    EXPECT_THAT(Draw(),
                Draws("SetTextColor blue").Then("SetBrush #99FF00").Then("SetPen green").Then("Rectangle 0 0 199 40"));
}

TEST_F(ButtonPaint, PressedByKeyAFlatButtonHasADarkFrame)
{
    BeFlat();
    m_Button.HandleKeyDown(0, vkSpace);
    EXPECT_THAT(Draw(), Draws("SetBrush #99FF00").Then("SetPen #404040").Then("Rectangle 0 0 199 40"));
}

TEST_F(ButtonPaint, ADisabledFlatButtonUnderThePointerRests)
{
    BeFlat();
    m_Button.SetEnabled(false);
    m_Host.Mouse().Move(m_Button, 5, 5);
    EXPECT_THAT(Draw(), Draws("SetPen #808080").Then("Rectangle 0 0 199 40"));
}

TEST_F(ButtonPaint, AFlatButtonWithoutFrameHasOneOnlyWhileHot)
{
    BeFlat();
    m_Button.SetShape(CButton::ShapeNoFrame);
    EXPECT_THAT(Draw(), Not(Draws("Rectangle*")));
    m_Button.HandleKeyDown(0, vkSpace);
    EXPECT_THAT(Draw(), Not(Draws("Rectangle*")));
    m_Host.Mouse().Move(m_Button, 5, 5);
    EXPECT_THAT(Draw(), Draws("SetBrush #99FF00").Then("Rectangle 0 0 199 40"));
}

TEST_F(ButtonPaint, ThePressedTextColourOfAFlatStyleWinsOverTheNativeOne)
{
    m_Button.SetStyle(CButton::BorderFlat);
    m_Host.Mouse().Press(m_Button, 5, 5);
    EXPECT_THAT(Draw(), Draws("SetTextColor brown").Then("SetTextColor blue"));
}

TEST_F(ButtonPaint, OverABackgroundPictureAFlatTransparentButtonIsBlended)
{
    BeFlat();
    m_Button.SetTransparent(true);
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.m_BkImage = CTestHost::System().CreateRasterPicture(size<int>{200, 100});
    painter.m_BkImageColor = color_table[9];

    EXPECT_THAT(Draw(), Draws("DrawRasterPictureEx*")
                            .Then("picture SetBrush yellow")
                            .Then("AlphaBlend 200x41 0 0 199 40 127")
                            .Then("SetBrush none")
                            .Then("SetPen #808080")
                            .Then("Rectangle 0 0 199 40"));
    m_Host.Mouse().Move(m_Button, 5, 5);
    EXPECT_THAT(Draw(), Draws("picture SetBrush #7FFF00").Then("AlphaBlend*"));
    m_Host.Mouse().Press();
    EXPECT_THAT(Draw(), Draws("picture SetBrush green").Then("AlphaBlend*"));

    m_Button.SetTransparent(false);
    EXPECT_THAT(Draw(), Not(Draws("AlphaBlend*")));
    painter.m_BkImage = nullptr;
}

TEST_F(ButtonPaint, AnEdgeIsPaintedTheSameBitByBitAndAtOnce)
{
    m_Button.SetNativeDrawing(false);
    m_Button.SetCaption("abc");
    m_Host.Mouse().Press(m_Button, 5, 5);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Button.SetStyle(CButton::BorderFlat);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// Custom buttons ----------------------------------------------------------------------------------------------------------

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
