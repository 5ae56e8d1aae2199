// How push buttons are drawn: by the platform, with an edge, flat, over a background picture.

#include "vexel/controls/button.h"
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

// Palettes and odd states ---------------------------------------------------------------------------------------------

namespace
{

/// Draws with a palette of its own installed in the painter, as a widget around the button might.
class CPainted
{
public:
    explicit CPainted(CTestHost& host) : m_Painter(*host.Window().GetPainter())
    {
        m_Painter.BeginPaint(IPainter::ssPaint);
        m_Painter.m_Palette = CreateCustomPalette();
    }
    ~CPainted()
    {
        m_Painter.m_Palette = nullptr;
        m_Painter.EndPaint();
    }
    ICustomPaletteEx& Palette() { return *m_Painter.m_Palette; }
    IPainter* get() { return &m_Painter; }

private:
    IPainter& m_Painter;
};

unsigned int Bits(_color const& color)
{
    return color.m_Value;
}

}  // namespace

TEST_F(ButtonPaint, TheTextColoursComeFromThePaintersPalette)
{
    CPainted painter(m_Host);
    painter.Palette().SetColor(ISysPalette::scControlText, color_table[11]);
    painter.Palette().SetColor(ISysPalette::scHighlightText, color_table[12]);
    m_Button.DrawContent(painter.get());
    EXPECT_EQ(painter.get()->GetTextColor(), color_table[11]);
    m_Button.SetStyle(CButton::BorderFlat);
    m_Button.HandleKeyDown(0, vkSpace);
    m_Button.DrawContent(painter.get());
    EXPECT_EQ(painter.get()->GetTextColor(), color_table[12]);
}

TEST_F(ButtonPaint, TheFlatColoursComeFromThePaintersPalette)
{
    BeFlat();
    CPainted painter(m_Host);
    painter.Palette().SetColor(ISysPalette::scShadow, color_table[6]);
    painter.Palette().SetColor(ISysPalette::scDarkShadow, color_table[11]);
    painter.Palette().SetColor(ISysPalette::scHighlight, color_table[4]);
    m_Button.DrawBackground(painter.get());
    EXPECT_EQ(painter.get()->GetPen().color, color_table[6]);
    EXPECT_EQ(painter.get()->GetPen().width, 1);
    EXPECT_EQ(painter.get()->GetPen().style, pen::psSolid);
    m_Button.HandleKeyDown(0, vkSpace);
    m_Button.DrawBackground(painter.get());
    EXPECT_EQ(painter.get()->GetPen().color, color_table[11]);
    m_Host.Mouse().Move(m_Button, 5, 5);
    m_Button.DrawBackground(painter.get());
    EXPECT_EQ(painter.get()->GetPen().color, color_table[4]);
}

TEST_F(ButtonPaint, ColoursAreMixedInSinglePrecisionAndOpaque)
{
    BeFlat();
    m_Button.SetBkColor(_color::FromRgb(65, 60, 255));
    CPainted painter(m_Host);
    painter.Palette().SetColor(ISysPalette::scHighlight, _color::FromRgb(0, 0, 255));
    m_Host.Mouse().Move(m_Button, 5, 5);
    m_Button.DrawBackground(painter.get());
    EXPECT_EQ(Bits(painter.get()->GetBrush().color), 0xFFFF3337u);  // 55.25, 51, 255
    m_Button.HandleKeyDown(0, vkSpace);
    m_Button.DrawBackground(painter.get());
    EXPECT_EQ(Bits(painter.get()->GetBrush().color), 0xFFFF2427u);  // 39, 36, 255
}

TEST_F(ButtonPaint, AFlatTransparentButtonWithoutABackgroundPictureIsFilled)
{
    BeFlat();
    m_Button.SetTransparent(true);
    EXPECT_THAT(Draw(), Draws("SetBrush yellow").Then("FillRect 0 0 199 40").Then("Rectangle 0 0 199 40"));
}

TEST_F(ButtonPaint, OverABackgroundPictureARestingButtonWithoutFrameIsThePictureAlone)
{
    BeFlat();
    m_Button.SetTransparent(true);
    m_Button.SetShape(CButton::ShapeNoFrame);
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.m_BkImage = CTestHost::System().CreateRasterPicture(size<int>{200, 100});
    painter.m_BkImageColor = color_table[9];

    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetBrush white").Then("FillRect 0 0 199 40").Then("DrawRasterPictureEx*"));
    EXPECT_EQ(log.Count("FillRect*"), 1);
    EXPECT_THAT(log, Not(Draws("AlphaBlend*")));
    EXPECT_THAT(log, Not(Draws("Rectangle*")));

    m_Host.Mouse().Move(m_Button, 5, 5);
    EXPECT_THAT(Draw(), Draws("AlphaBlend*").Then("Rectangle 0 0 199 40"));
    painter.m_BkImage = nullptr;
}

TEST_F(ButtonPaint, AFlatPressedButtonWithoutFrameIsFilledWithItsOwnColourUntilItIsHot)
{
    BeFlat();
    m_Button.SetShape(static_cast<CButton::BorderShape>(7));
    m_Button.HandleKeyDown(0, vkSpace);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetBrush yellow").Then("FillRect 0 0 199 40"));
    EXPECT_EQ(log.Count("SetBrush #*"), 0);
}

TEST_F(ButtonPaint, AThinBoxKeepsItsFrameWhileItRests)
{
    BeFlat();
    m_Button.SetShape(CButton::ShapeThinBox);
    EXPECT_THAT(Draw(), Draws("Rectangle 0 0 199 40"));
}

TEST_F(ButtonPaint, ShapeAndStyleReachTheEdge)
{
    m_Button.SetNativeDrawing(false);
    m_Button.SetStyle(CButton::BorderSunken);
    Draw();
    EXPECT_EQ(m_Host.PixelAt(0, 10).m_Value & 0xFFFFFFu, 0x005A5Au);
    EXPECT_EQ(m_Host.PixelAt(199, 10).m_Value & 0xFFFFFFu, 0xCCFFFFu);
    std::string const box = m_Host.PixelText({0, 0, 4, 4});
    m_Button.SetShape(CButton::ShapeThinBox);
    Draw();
    EXPECT_NE(m_Host.PixelText({0, 0, 4, 4}), box);
    // Pressed it is the box again, whatever its shape.
    m_Button.SetStyle(CButton::BorderRaised);
    m_Button.HandleKeyDown(0, vkSpace);
    Draw();
    EXPECT_EQ(m_Host.PixelText({0, 0, 4, 4}), box);
}

TEST_F(ButtonPaint, AnEdgeTakesNoNoticeOfThePointer)
{
    m_Button.SetNativeDrawing(false);
    Draw();
    auto const rest = m_Host.PixelText();
    m_Host.Mouse().Move(m_Button, 5, 5);
    Draw();
    EXPECT_EQ(m_Host.PixelText(), rest);
}

TEST_F(ButtonPaint, WithoutAControlAFlatButtonIsNeverHot)
{
    CButton alone(nullptr, {0, 0}, alNone);
    alone.SetPos({0, 0, 20, 10}, true);
    alone.SetBkColor(color_table[3]);
    alone.SetNativeDrawing(false);
    alone.SetStyle(CButton::BorderFlat);
    alone.HandleMouseHover(nullptr);
    CPainted painter(m_Host);
    painter.Palette().SetColor(ISysPalette::scShadow, color_table[6]);
    alone.DrawBackground(painter.get());
    EXPECT_EQ(painter.get()->GetPen().color, color_table[6]);
    EXPECT_EQ(painter.get()->GetBrush().color, color_table[3]);
    EXPECT_EQ(alone.GetNativeState(), 0);
}

TEST_F(ButtonPaint, PressedWhileDisabledTheStateWordTellsBoth)
{
    m_Button.SetEnabled(false);
    m_Button.HandleKeyDown(0, vkSpace);
    EXPECT_EQ(m_Button.GetNativeState(), 1 + 8);
    EXPECT_THAT(Draw(), Draws("DrawControlElement 7 0 0 199 40 0x9"));
}

TEST_F(ButtonPaint, PressedUnderThePointerItIsNotHot)
{
    m_Button.SetCanHaveFocus(false);
    m_Host.Mouse().Press(m_Button, 5, 5);
    EXPECT_EQ(m_Button.GetNativeState(), 8);
}

TEST_F(ButtonPaint, ADisabledFlatButtonThatIsPressedKeepsThePressedTextColour)
{
    m_Button.SetStyle(CButton::BorderFlat);
    m_Button.SetEnabled(false);
    m_Button.HandleKeyDown(0, vkSpace);
    EXPECT_THAT(Draw(), Draws("SetTextColor grey").Then("SetTextColor blue"));
}

TEST_F(ButtonPaint, WithoutThePlatformTheTextHasTheButtonsOwnColour)
{
    m_Button.SetFgColor(color_table[6]);
    m_Button.SetNativeDrawing(false);
    PaintLog log = Draw();
    EXPECT_EQ(log.Count("SetTextColor*"), 1);
    EXPECT_THAT(log, Draws("SetTextColor red"));
    m_Button.SetStyle(CButton::BorderFlat);
    EXPECT_EQ(Draw().Count("SetTextColor*"), 1);
}

TEST_F(ButtonPaint, TheGroundComesFirstThenTheTextThenTheFocusFrame)
{
    m_Host.Focus();
    m_Button.SetFocus(true);
    m_Button.SetCaption("a");
    EXPECT_THAT(Draw(), Draws("DrawControlElement*").Then("DrawStringEx \"a\"*").Then("FocusRect*"));
}

TEST_F(ButtonPaint, TheFocusFrameOfAFlatButtonScalesBeforeItsPixelComesOff)
{
    m_Host.Focus();
    m_Button.SetFocus(true);
    BeFlat();
    m_Host.SetScale(1.9);  // 5.7
    EXPECT_THAT(Draw(), Draws("FocusRect 4 4 195 36"));
}

TEST_F(ButtonPaint, PressedOnlyAFlatStyleChangesTheTextColour)
{
    m_Button.HandleKeyDown(0, vkSpace);
    PaintLog log = Draw();
    EXPECT_THAT(log, Draws("SetTextColor brown"));
    EXPECT_THAT(log, Not(Draws("SetTextColor blue")));
    m_Button.SetNativeDrawing(false);
    log = Draw();
    EXPECT_THAT(log, Not(Draws("SetTextColor blue")));
}

TEST_F(ButtonPaint, PressedByKeyUnderThePointerADisabledFlatButtonStillHasTheHotFrame)
{
    BeFlat();
    m_Host.Mouse().Move(m_Button, 5, 5);
    m_Button.SetEnabled(false);
    m_Button.HandleKeyDown(0, vkSpace);
    EXPECT_THAT(Draw(), Draws("SetBrush #99FF00").Then("SetPen green").Then("Rectangle 0 0 199 40"));
}

TEST_F(ButtonPaint, DisabledUnderThePointerAButtonWithoutFrameHasNone)
{
    BeFlat();
    m_Button.SetShape(CButton::ShapeNoFrame);
    m_Host.Mouse().Move(m_Button, 5, 5);
    m_Button.SetEnabled(false);
    EXPECT_THAT(Draw(), Not(Draws("Rectangle*")));
}

TEST_F(ButtonPaint, TheFocusFrameStandsInTheBoundsInOrder)
{
    // Draws the other button in its place.
    class CCanvas : public CVisualElement
    {
    public:
        CCanvas(CVisualElement* parent, CVisualElement& drawn) : CVisualElement(parent, {0, 20}, alTop), m_Drawn(drawn)
        {}
        void DrawContent(IPainter* painter) override { m_Drawn.DrawContent(painter); }

    private:
        CVisualElement& m_Drawn;
    };
    auto* const odd = new CButton(m_Host.Root(), {0, 0}, alNone);
    odd->SetPos({110, 120, 100, 100}, true);
    auto* const canvas = new CCanvas(m_Host.Root(), *odd);
    NameElement(*canvas, "canvas");
    m_Host.Focus();
    odd->SetFocus(true);
    m_Host.Paint();
    canvas->Update(utElement);
    EXPECT_THAT(m_Host.Paint().Of("canvas"), Draws("FocusRect -7 -17 -3 -3"));
}
