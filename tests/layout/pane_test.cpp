// A frame that shows whether the focus lies inside.

#include "tests/support/canvas.h"
#include "tests/support/scripted_system.h"
#include "vexel/core/base_control.h"
#include "vexel/layout/pane.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

namespace
{

CVisualElement* AddField(CVisualElement* parent)
{
    auto* const field = new CVisualElement(parent, {10, 10}, alLeft);
    field->SetCanHaveFocus(true);
    return field;
}

// A pane at (0, 0, 99, 30) with two fields, and a third field below it.
class Pane : public testing::Test
{
protected:
    Pane()
    {
        m_Host.Name(*m_Pane, "pane");
        m_Host.Name(*m_One, "one");
        m_Host.Name(*m_Two, "two");
        m_Host.Name(*m_Outside, "outside");
        m_Host.Focus();
        m_Outside->SetFocus(true);
        m_Host.Paint();
    }
    // Whether it is painted next, by its own wish.
    bool IsRepainted() { return !m_Host.Paint().Of("pane").IsEmpty(); }

    CTestHost m_Host{100, 60};
    CPane* m_Pane = new CPane(m_Host.Root(), {0, 30}, alTop);
    CVisualElement* m_One = AddField(m_Pane);
    CVisualElement* m_Two = AddField(m_Pane);
    CVisualElement* m_Outside = AddField(m_Host.Root());
};

TEST_F(Pane, ItsContentStandsInsideOfTheFrame)
{
    EXPECT_EQ(m_Pane->GetContentRect(), (rectangle<int>{1, 1, 98, 29}));
    EXPECT_EQ(m_One->GetPos(), (rectangle<int>{1, 1, 11, 29}));
}

TEST_F(Pane, IsInactiveAtFirst)
{
    EXPECT_FALSE(m_Pane->IsActive());
}

TEST_F(Pane, DrawsAFrameInTheShadowColourAndNothingInside)
{
    PaintLog const log = m_Host.FullPaint().Of("pane");
    EXPECT_THAT(
        log, Draws("SetPen #808080").Then("SetBrush none").Then("Rectangle 0 0 99 30"));  // the memory system's shadow
    EXPECT_EQ(log.Count("Rectangle*"), 1);
    EXPECT_THAT(log, Not(Draws("FillRect*")));
}

TEST_F(Pane, ItsFrameIsOnePixelOnItsBounds)
{
    _color const shadow(0xFF808080);
    m_Host.FullPaint();
    EXPECT_EQ(m_Host.PixelAt(0, 0), shadow);
    EXPECT_EQ(m_Host.PixelAt(99, 30), shadow);
    EXPECT_EQ(m_Host.PixelAt(50, 30), shadow);
    EXPECT_EQ(m_Host.PixelAt(99, 15), shadow);
    EXPECT_NE(m_Host.PixelAt(98, 29), shadow);
    EXPECT_NE(m_Host.PixelAt(50, 1), shadow);
}

TEST_F(Pane, ColoursComeFromTheSystemPalette)
{
    EXPECT_EQ(m_Pane->GetActiveColor(), GetCurrentSystem()->GetPalette()->GetColor(ISysPalette::scHighlight));
    EXPECT_EQ(m_Pane->GetInactiveColor(), GetCurrentSystem()->GetPalette()->GetColor(ISysPalette::scShadow));
}

TEST_F(Pane, TheFocusInsideMakesItActiveAndRepaintsIt)
{
    m_One->SetFocus(true);
    EXPECT_TRUE(m_Pane->IsActive());
    PaintLog const log = m_Host.Paint();
    EXPECT_THAT(log.Of("pane"), Draws("SetPen #3060C0").Then("SetBrush none").Then("Rectangle 0 0 99 30"));
    EXPECT_EQ(m_Host.PixelAt(0, 0), _color(0xFFC06030));
}

TEST_F(Pane, TheFocusThatLeavesMakesItInactiveAndRepaintsIt)
{
    m_One->SetFocus(true);
    m_Host.Paint();
    m_Outside->SetFocus(true);
    EXPECT_FALSE(m_Pane->IsActive());
    EXPECT_TRUE(IsRepainted());
    EXPECT_EQ(m_Host.PixelAt(0, 0), _color(0xFF808080));
}

TEST_F(Pane, TheFocusThatMovesFromOneChildToAnotherCausesNoRepaintOfThePane)
{
    m_One->SetFocus(true);
    m_Host.Paint();
    m_Two->SetFocus(true);
    EXPECT_TRUE(m_Pane->IsActive());
    EXPECT_FALSE(IsRepainted());
}

TEST_F(Pane, ThePaneItselfIsInside)
{
    m_Pane->SetCanHaveFocus(true);
    m_Pane->SetFocus(true);
    EXPECT_TRUE(m_Pane->IsActive());
    m_Host.Paint();
    m_Pane->HandleChildFocusChanged(m_One, m_Pane, false);
    EXPECT_TRUE(m_Pane->IsActive());
    EXPECT_FALSE(IsRepainted());
    m_One->SetFocus(true);
    EXPECT_TRUE(m_Pane->IsActive());
}

TEST_F(Pane, TheFocusOfOthersDoesNotConcernIt)
{
    CVisualElement* const other = AddField(m_Host.Root());
    m_Host.Paint();
    other->SetFocus(true);
    EXPECT_FALSE(m_Pane->IsActive());
    EXPECT_FALSE(IsRepainted());
}

TEST_F(Pane, TheSameNewsTwiceRepaintsItOnce)
{
    m_Pane->HandleChildFocusChanged(m_One, nullptr, true);
    EXPECT_TRUE(IsRepainted());
    m_Pane->HandleChildFocusChanged(m_Two, m_Outside, true);
    EXPECT_FALSE(IsRepainted());
    m_Pane->HandleChildFocusChanged(m_One, m_Two, false);
    EXPECT_TRUE(m_Pane->IsActive()) << "it went to another child";
    m_Pane->HandleChildFocusChanged(m_One, nullptr, false);
    EXPECT_FALSE(m_Pane->IsActive());
}

TEST_F(Pane, APaneInAPaneTakesTheFocusWithoutTheOuterOneLosingIt)
{
    auto* const inner = new CPane(m_Pane, {40, 0}, alRight);
    CVisualElement* const deep = AddField(inner);
    m_Host.Name(*inner, "inner");
    m_Host.Name(*deep, "deep");
    m_One->SetFocus(true);
    m_Host.Paint();

    deep->SetFocus(true);
    EXPECT_TRUE(inner->IsActive());
    EXPECT_TRUE(m_Pane->IsActive());
    PaintLog log = m_Host.Paint();
    EXPECT_FALSE(log.Of("inner").IsEmpty());
    EXPECT_TRUE(log.Of("pane").IsEmpty());

    m_One->SetFocus(true);
    EXPECT_FALSE(inner->IsActive());
    EXPECT_TRUE(m_Pane->IsActive());
    log = m_Host.Paint();
    EXPECT_FALSE(log.Of("inner").IsEmpty());
    EXPECT_TRUE(log.Of("pane").IsEmpty());
}

TEST_F(Pane, ASubclassChoosesTheColours)
{
    struct SBright : CPane
    {
        using CPane::CPane;
        _color GetActiveColor() const override { return color_table[6]; }
        _color GetInactiveColor() const override { return color_table[3]; }
    };
    auto* const bright = new SBright(m_Host.Root(), {20, 0}, alRight);
    CVisualElement* const field = AddField(bright);
    m_Host.Name(*bright, "bright");
    EXPECT_THAT(m_Host.FullPaint().Of("bright"), Draws("SetPen yellow").Then("Rectangle *"));
    field->SetFocus(true);
    EXPECT_THAT(m_Host.FullPaint().Of("bright"), Draws("SetPen red").Then("Rectangle *"));
}

// Without a window -------------------------------------------------------------------------------------------------

TEST(PaneAlone, WithoutASystemPaletteNothingIsDrawn)
{
    CScriptedSystem system;
    CPane pane(nullptr, {9, 9}, alNone);
    pane.SetPos({0, 0, 3, 2}, false);
    vexelbase::tests::CCanvas canvas(5, 4);

    system.m_HasPalette = false;
    pane.DrawContent(&canvas.Painter());
    EXPECT_EQ(canvas.Text(), ".....\n.....\n.....\n.....\n");

    system.m_HasPalette = true;
    pane.DrawContent(&canvas.Painter());
    EXPECT_EQ(canvas.Text(), "????.\n?..?.\n????.\n.....\n");
}

}  // namespace
