// The font and the colours in effect, out of what an element sets and what the system says.

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/recording_window.h"
#include "tests/support/scripted_system.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

class Look : public testing::Test
{
protected:
    Look()
    {
        m_Control.m_Window = &m_Window;
        m_Element.SetControl(&m_Control);
        m_Log.Clear();
    }

    CScriptedSystem m_System;  // its font: "Default", sans, size 8
    CCallLog m_Log;
    CRecordingControl m_Control{m_Log};
    CRecordingWindow m_Window{m_Log, 100, 50};
    CRecordingElement m_Element{m_Log, "element"};
};

using Fonts = Look;
using Colours = Look;

// Setting a font -------------------------------------------------------------------------------------------------------------

TEST_F(Fonts, AnyDifferenceIsStoredAndChangesTheAttributes)
{
    font value;
    auto const set = [&] {
        m_Element.SetFont(value);
        EXPECT_EQ(m_Element.GetOwnFont(), value);
        EXPECT_EQ(m_Log.Take({"AttributeChanged", "UpdateElement"}),
                  "element.AttributeChanged() control.UpdateElement(element, 2)");
    };

    value.name = "Other";
    set();
    value.family = 2;
    set();
    value.size = 12;
    set();
    value.style = 1;
    set();
    value.rotation = 900;
    set();
    value.factor = 1.5;
    set();
}

TEST_F(Fonts, AnEqualFontDoesNothing)
{
    font value;
    value.name = "Other";
    value.size = 12;
    m_Element.SetFont(value);
    m_Log.Clear();

    m_Element.SetFont(value);

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Fonts, TheFontOfAFreshElementSetAgainDoesNothing)
{
    m_Element.SetFont(font());

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Fonts, AFontDoesNotReachTheChildren)
{
    CRecordingElement child(m_Log, "child", &m_Element);
    font value;
    value.size = 12;

    m_Element.SetFont(value);

    EXPECT_EQ(child.GetFont().size, 8);
}

// The font in effect ---------------------------------------------------------------------------------------------------------

TEST_F(Fonts, ThatOfAFreshElementIsTheDefaultOne)
{
    EXPECT_EQ(m_Element.GetFont(), m_System.GetDefaultFont());
}

TEST_F(Fonts, WithASizeTheElementsOwnFontHoldsAlone)
{
    font value;
    value.size = 12;
    value.rotation = 900;
    value.factor = 2.0;
    m_Element.SetFont(value);

    EXPECT_EQ(m_Element.GetFont(), value);  // no name, family 4, size 12
}

TEST_F(Fonts, WithoutASizeTheFactorMultipliesTheDefaultSizeTruncated)
{
    font value;
    value.factor = 1.3;
    m_Element.SetFont(value);

    font const effective = m_Element.GetFont();
    EXPECT_EQ(effective.size, 10);  // 10.4
    EXPECT_EQ(effective.factor, 1.0);
    EXPECT_EQ(effective.name, "Default");
}

TEST_F(Fonts, TheFactorMultipliesADefaultSizeOfOneToo)
{
    font base = m_System.GetDefaultFont();
    base.size = 1;
    m_System.SetDefaultFont(base);
    font value;
    value.factor = 3.5;
    m_Element.SetFont(value);

    EXPECT_EQ(m_Element.GetFont().size, 3);
    EXPECT_EQ(m_Element.GetFont().factor, 1.0);
}

TEST_F(Fonts, ANegativeSizeCountsAsNotSet)
{
    font value;
    value.size = -5;
    m_Element.SetFont(value);

    EXPECT_EQ(m_Element.GetFont().size, 8);
}

TEST_F(Fonts, AStyleReplacesTheDefaultOne)
{
    font plain = m_System.GetDefaultFont();
    plain.style = 2;
    m_System.SetDefaultFont(plain);
    EXPECT_EQ(m_Element.GetFont().style, 2);

    font value;
    value.style = 1;
    m_Element.SetFont(value);

    EXPECT_EQ(m_Element.GetFont().style, 1);
    EXPECT_EQ(m_Element.GetFont().size, 8);
}

TEST_F(Fonts, ARotationCountsOnlyWithASize)
{
    font value;
    value.rotation = 900;
    m_Element.SetFont(value);
    EXPECT_EQ(m_Element.GetFont().rotation, 0);

    value.size = 8;
    m_Element.SetFont(value);
    EXPECT_EQ(m_Element.GetFont().rotation, 900);
}

TEST_F(Fonts, ANameReplacesTheDefaultOne)
{
    font value;
    value.name = "Other";
    m_Element.SetFont(value);

    EXPECT_EQ(m_Element.GetFont().name, "Other");
    EXPECT_EQ(m_Element.GetFont().family, 1);
    EXPECT_EQ(m_Element.GetFont().size, 8);
}

TEST_F(Fonts, AnotherFamilyTakesTheDefaultNameAwaySoThatItDecides)
{
    font value;
    value.family = 2;
    m_Element.SetFont(value);

    EXPECT_EQ(m_Element.GetFont().family, 2);
    EXPECT_EQ(m_Element.GetFont().name, "");
}

TEST_F(Fonts, AnotherFamilyKeepsTheElementsOwnName)
{
    font value;
    value.family = 2;
    value.name = "Other";
    m_Element.SetFont(value);

    EXPECT_EQ(m_Element.GetFont().family, 2);
    EXPECT_EQ(m_Element.GetFont().name, "Other");
}

TEST_F(Fonts, TheDefaultFamilyKeepsTheDefaultName)
{
    font value;
    value.family = 1;
    m_Element.SetFont(value);

    EXPECT_EQ(m_Element.GetFont().family, 1);
    EXPECT_EQ(m_Element.GetFont().name, "Default");
}

TEST_F(Fonts, AnotherDefaultFontIsFollowed)
{
    font value;
    value.style = 1;
    m_Element.SetFont(value);
    EXPECT_EQ(m_Element.GetFont().size, 8);

    font larger = m_System.GetDefaultFont();
    larger.size = 16;
    larger.name = "Larger";
    m_System.SetDefaultFont(larger);

    EXPECT_EQ(m_Element.GetFont().size, 16);
    EXPECT_EQ(m_Element.GetFont().name, "Larger");
    EXPECT_EQ(m_Element.GetFont().style, 1);
}

// Measures -----------------------------------------------------------------------------------------------------------------

TEST_F(Fonts, TheSizeScaleIsAnEighthOfTheSize)
{
    EXPECT_EQ(m_Element.GetSizeScale(), 1.0);

    font value;
    value.size = 12;
    m_Element.SetFont(value);
    EXPECT_EQ(m_Element.GetSizeScale(), 1.5);

    value.size = 1;
    m_Element.SetFont(value);
    EXPECT_EQ(m_Element.GetSizeScale(), 0.125);
}

TEST_F(Fonts, TheSizeScaleIsOneWhereTheSizeComesToNothing)
{
    font value;
    value.factor = 0.1;  // 0.8 points, truncated
    m_Element.SetFont(value);
    ASSERT_EQ(m_Element.GetFont().size, 0);

    EXPECT_EQ(m_Element.GetSizeScale(), 1.0);
}

TEST_F(Fonts, TheLineHeightIsTheSumOfTheMetricsMeasuredInABracket)
{
    EXPECT_EQ(m_Element.GetTextLineHeight(), 9);

    EXPECT_EQ(m_Log.Take(), "painter.BeginPaint(3) painter.SetFont(Default 8) painter.GetFontMetrics() "
                            "painter.EndPaint()");
}

TEST_F(Fonts, TheLineHeightOpensNoBracketWhileThePainterPaints)
{
    m_Window.m_Painter.m_Painting = true;

    EXPECT_EQ(m_Element.GetTextLineHeight(), 9);

    EXPECT_EQ(m_Log.Take(), "painter.SetFont(Default 8) painter.GetFontMetrics()");
}

TEST_F(Fonts, TheLineHeightIsMinusOneWithoutAControlOrAWindow)
{
    CVisualElement loose(nullptr, {0, 0}, alNone);
    EXPECT_EQ(loose.GetTextLineHeight(), -1);

    m_Control.m_Window = nullptr;
    EXPECT_EQ(m_Element.GetTextLineHeight(), -1);
}

// Colours ------------------------------------------------------------------------------------------------------------------

class CPalette : public ICustomPalette
{
public:
    _color GetColor(ISysPalette::SysColor number) const override
    {
        return _color(0xFF770000u + static_cast<unsigned>(number));
    }
    void SetColor(ISysPalette::SysColor, _color const&) override {}
};

TEST_F(Colours, AreLookedUpInTheSystemsPalette)
{
    m_Element.SetBkColor(ISysPalette::scHighlight);
    m_Element.SetFgColor(ISysPalette::scHighlightText);

    EXPECT_EQ(m_Element.GetBkColor(), _color(0xFF000009));
    EXPECT_EQ(m_Element.GetFgColor(), _color(0xFF00000A));
}

TEST_F(Colours, AreLookedUpInTheElementsOwnPaletteFirst)
{
    CPalette palette;
    m_Element.m_Palette = &palette;

    EXPECT_EQ(m_Element.GetBkColor(), _color(0xFF770003));
    EXPECT_EQ(m_Element.GetFgColor(), _color(0xFF770008));
}

TEST_F(Colours, AreNoneWithoutAnyPalette)
{
    m_System.m_HasPalette = false;

    EXPECT_EQ(m_Element.GetBkColor(), _color(0, true));
    EXPECT_EQ(m_Element.GetFgColor(), _color(0, true));
}

TEST_F(Colours, ALiteralOneTakesThePlaceOfThePalettes)
{
    CPalette palette;
    m_Element.m_Palette = &palette;

    m_Element.SetBkColor(_color(0xFF112233));
    m_Element.SetFgColor(_color(0xFF445566));

    EXPECT_EQ(m_Element.GetBkColor(), _color(0xFF112233));
    EXPECT_EQ(m_Element.GetFgColor(), _color(0xFF445566));
    EXPECT_EQ(m_Element.GetBkSysColor(), 14);
    EXPECT_EQ(m_Element.GetFgSysColor(), 14);
}

TEST_F(Colours, ANumberTakesThePlaceOfALiteralOne)
{
    m_Element.SetBkColor(_color(0xFF112233));
    m_Element.SetFgColor(_color(0xFF445566));

    m_Element.SetBkColor(ISysPalette::scFace);
    m_Element.SetFgColor(ISysPalette::scControlText);

    EXPECT_EQ(m_Element.GetBkColor(), _color(0xFF000003));
    EXPECT_EQ(m_Element.GetFgColor(), _color(0xFF000008));
}

TEST_F(Colours, EachChangeChangesTheAttributesOnce)
{
    m_Element.SetBkColor(_color(0xFF112233));
    EXPECT_EQ(m_Log.Take({"AttributeChanged"}), "element.AttributeChanged()");
    m_Element.SetBkColor(_color(0xFF112234));
    EXPECT_EQ(m_Log.Take({"AttributeChanged"}), "element.AttributeChanged()");
    m_Element.SetBkColor(ISysPalette::scTooltip);
    EXPECT_EQ(m_Log.Take({"AttributeChanged"}), "element.AttributeChanged()");

    m_Element.SetFgColor(_color(0xFF112233));
    EXPECT_EQ(m_Log.Take({"AttributeChanged"}), "element.AttributeChanged()");
    m_Element.SetFgColor(_color(0xFF112234));
    EXPECT_EQ(m_Log.Take({"AttributeChanged"}), "element.AttributeChanged()");
    m_Element.SetFgColor(ISysPalette::scTooltip);
    EXPECT_EQ(m_Log.Take({"AttributeChanged"}), "element.AttributeChanged()");
}

TEST_F(Colours, ThePresentOneSetAgainDoesNothing)
{
    m_Element.SetBkColor(ISysPalette::scFace);
    m_Element.SetFgColor(ISysPalette::scControlText);
    EXPECT_EQ(m_Log.Take(), "");

    m_Element.SetBkColor(_color(0xFF112233));
    m_Element.SetFgColor(_color(0xFF112233));
    m_Log.Clear();
    m_Element.SetBkColor(_color(0xFF112233));
    m_Element.SetFgColor(_color(0xFF112233));
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(Colours, ALiteralOneThatLooksLikeThePresentOneDoesNothingAndThePaletteStays)
{
    m_Element.SetBkColor(_color(0xFF000003));
    m_Element.SetFgColor(_color(0xFF000008));

    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Element.GetBkSysColor(), 3);
    EXPECT_EQ(m_Element.GetFgSysColor(), 8);
}

TEST_F(Colours, OnlyTheValueIsCompared)
{
    m_Element.SetBkColor(_color(0xFF000003, true));

    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Element.GetBkSysColor(), 3);
}

TEST_F(Colours, TheTopByteIsPartOfTheValue)
{
    m_Element.SetFgColor(_color(0xFFFFFFFF));
    m_Log.Clear();

    m_Element.SetFgColor(_color(0x00FFFFFF));

    EXPECT_EQ(m_Log.Take({"AttributeChanged"}), "element.AttributeChanged()");
}

TEST_F(Colours, BackgroundAndForegroundAreIndependent)
{
    m_Element.SetBkColor(_color(0xFF112233));
    EXPECT_EQ(m_Element.GetFgColor(), _color(0xFF000008));

    m_Element.SetFgColor(_color(0xFF445566));
    EXPECT_EQ(m_Element.GetBkColor(), _color(0xFF112233));
}

}  // namespace
