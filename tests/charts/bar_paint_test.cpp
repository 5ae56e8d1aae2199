// What a bar draws.

#include "tests/charts/bar_bench.h"
#include "tests/support/slot.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/palette.h"

#include <gmock/gmock.h>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

namespace
{

// Writes down what it is asked to draw.
class CTellingBar : public CBar
{
public:
    using CBar::CBar;
    std::string m_Told;

    void DrawSection(IPainter* painter, rectangle<int> const& rect, int section, bool selected) override
    {
        m_Told += std::to_string(section) + (selected ? "!" : "") + " " + Describe(rect) + "; ";
        CBar::DrawSection(painter, rect, section, selected);
    }
};

// Sections 0 to 50, 50 to 110, 110 to 150; the strip ends at 199.
class BarSections : public CBarOnSideOf<CTellingBar>
{
protected:
    std::string Told()
    {
        m_Bar.m_Told.clear();
        Draw();
        return m_Bar.m_Told;
    }
    std::string Section(int index, int from, int to, bool selected = false) const
    {
        return std::to_string(index) + (selected ? "!" : "") + " " + Describe(Span(from, to)) + "; ";
    }
};
INSTANTIATE_TEST_SUITE_P(AtEdge, BarSections, testing::Values(alTop, alBottom, alLeft, alRight));

using BarPaint = CBarBench;
class BarPaintOnSide : public CBarOnSide
{};
INSTANTIATE_TEST_SUITE_P(AtEdge, BarPaintOnSide, testing::Values(alTop, alBottom, alLeft, alRight));

}  // namespace

// Which sections ----------------------------------------------------------------------------------------------------------------

TEST_P(BarSections, AreDrawnOneBehindTheOther)
{
    EXPECT_EQ(Told(), Section(0, 0, 50) + Section(1, 50, 110) + Section(2, 110, 150));
}

TEST_P(BarSections, AreDrawnFromTheFirstInView)
{
    m_Steps.m_Start = 0.5;
    EXPECT_EQ(Told(), Section(0, -25, 25) + Section(1, 25, 85) + Section(2, 85, 125));
    m_Steps.m_Start = 1;
    EXPECT_EQ(Told(), Section(1, 0, 60) + Section(2, 60, 100));
    m_Steps.m_Start = 3;
    EXPECT_EQ(Told(), "");
    m_Steps.m_Start = -1;  // there are no sections before the first one
    EXPECT_EQ(Told(), Section(0, 0, 50) + Section(1, 50, 110) + Section(2, 110, 150));
}

TEST_P(BarSections, AreCutAtTheEndOfTheView)
{
    m_Steps.m_Steps = {12.5, 37.25, 10};
    EXPECT_EQ(Told(), Section(0, 0, 50) + Section(1, 50, 199));
    m_Steps.m_Steps = {12.5, 37, 10};
    EXPECT_EQ(Told(), Section(0, 0, 50) + Section(1, 50, 198) + Section(2, 198, 199));
    m_Steps.m_Steps = {1e9, 1, 1};
    EXPECT_EQ(Told(), Section(0, 0, 199));
}

TEST_P(BarSections, WhoseEdgesAreAlmostWholeEndThere)
{
    m_Steps.m_Steps = {12.5 - 1e-10, 15, 10};  // a hair below 50 pixels
    EXPECT_EQ(Told(), Section(0, 0, 50) + Section(1, 50, 110) + Section(2, 110, 150));
}

TEST_P(BarSections, SelectedInEitherWayAreToldSo)
{
    m_Bar.SetSelectedSections({0});
    EXPECT_EQ(Told(), Section(0, 0, 50, true) + Section(1, 50, 110) + Section(2, 110, 150));
    Click(70);
    Click(120, ksShift);
    EXPECT_EQ(Told(), Section(0, 0, 50) + Section(1, 50, 110, true) + Section(2, 110, 150, true));
}

TEST_P(BarSections, ADraggedOneLeavesAGap)
{
    m_Bar.SetStyle(CBar::bsResizeSections);
    Press(70);
    Move(74);
    ASSERT_EQ(m_Bar.GetDragSection(), 1);
    m_Bar.m_Told.clear();
    m_Host.Paint();
    std::string const picture = IsUpright() ? "1 (0, 0, 20, 60); " : "1 (0, 0, 60, 20); ";
    EXPECT_EQ(m_Bar.m_Told, Section(0, 0, 50) + Section(2, 110, 150) + picture);
    Release();
    EXPECT_EQ(Told(), Section(0, 0, 50) + Section(1, 50, 110, true) + Section(2, 110, 150));
}

TEST_P(BarSections, OfOneSizeAndWithoutAnyAreNotWalkedThrough)
{
    m_Names.m_Count = 2147483647;
    m_Steps.m_Fixed = true;
    m_Steps.m_Measure = {0.5, 0};
    EXPECT_EQ(Told(), "");
    m_Steps.m_Measure = {0.025, 2};
    EXPECT_EQ(Told(), Section(0, 0, 80) + Section(1, 80, 160) + Section(2, 160, 199));
}

TEST_P(BarSections, WithoutWidthAreDrawnAllTheSame)
{
    m_Steps.m_Steps = {12.5, 0, 10};
    EXPECT_EQ(Told(), Section(0, 0, 50) + Section(1, 50, 50) + Section(2, 50, 90));
}

// The order of it -----------------------------------------------------------------------------------------------------------------

TEST_P(BarPaintOnSide, WithoutAModelNothingIsDrawn)
{
    m_Bar.SetCategoryModel(nullptr);
    PaintLog log = Draw();
    EXPECT_FALSE(log.IsEmpty());
    EXPECT_EQ(log.Count("FillRect*") + log.Count("DrawString*") + log.Count("SetClipRect*"), 0);
    EXPECT_FALSE(m_Bar.IsTargetChanged());
    m_Bar.SetCategoryModel(&m_Names);
    m_Bar.SetHorzScroll(nullptr);
    m_Bar.SetVertScroll(nullptr);
    log = Draw();
    EXPECT_EQ(log.Count("FillRect*") + log.Count("DrawString*") + log.Count("SetClipRect*"), 0);
}

TEST_P(BarPaintOnSide, TheBackgroundComesFirstAndTheFontIsPutBack)
{
    PaintLog const log = Draw();
    std::string const whole = IsUpright() ? "0 0 20 199" : "0 0 199 20";
    std::string const font = IsUpright() ? "SetFont \"Square\" 8 rotation 2700" : "SetFont \"Square\" 8";
    EXPECT_THAT(log, Draws("SetFont \"Square\" 8")
                         .Then("SetBrush yellow")
                         .Then("FillRect " + whole)
                         .Then("SetCoordSystem 3 0 0 *")
                         .Then("SetClipRect*")
                         .Then(font)
                         .Then("DrawString \"A\" *")
                         .Then("DrawString \"B\" *")
                         .Then("DrawString \"C\" *")
                         .Then("SetFont \"Square\" 8")
                         .Then("ResetClip"));
}

TEST_P(BarPaintOnSide, TextsAreTurnedOnlyIfTheyShallBe)
{
    m_Bar.SetRotateText(false);
    EXPECT_THAT(Draw(), Not(Draws("SetFont*rotation*")));
}

TEST_P(BarPaintOnSide, CaptionsStandInTheMiddle)
{
    EXPECT_THAT(Draw(),
                Draws(IsUpright() ? "DrawString \"B\" 0 50 19 110 0x164" : "DrawString \"B\" 50 0 110 19 0x164"));
}

TEST_F(BarPaint, ASectionIsFramedAndNotFilled)
{
    m_Names.m_Count = 1;
    PaintLog const log = Draw();
    // The mapping is turned down over: 0 is the bar's foot, which is 20 on the screen.
    EXPECT_THAT(log, Draws("SetBrush #F0F0F0")
                         .Then("FillRect 0 19 0 0")
                         .Then("FillRect 0 19 50 19")
                         .Then("SetBrush #404040")
                         .Then("FillRect 50 19 50 0")
                         .Then("FillRect 0 0 50 0")
                         .Then("DrawString \"A\" 0 0 50 19 0x164"));
    EXPECT_EQ(log.Count("FillRect*"), 5);
}

TEST_F(BarPaint, ASectionLooksRaised)
{
    m_Names.m_Count = 1;
    m_Steps.m_Steps = {2};
    Draw();
    CLegend legend = CLegend::Empty();
    legend.Set('y', color_table[3]).Set('#', _color::FromRgb(0x40, 0x40, 0x40));
    legend.Set('-', _color::FromRgb(0xF0, 0xF0, 0xF0));
    // Its own 8 pixels and one of the background; the row above is the strip's outermost one.
    EXPECT_EQ(m_Host.PixelText({0, 0, 10, 4}, legend), "yyyyyyyyyy\n"
                                                       "--------#y\n"
                                                       "-yyyyyyy#y\n"
                                                       "-yyyyyyy#y\n");
    EXPECT_EQ(m_Host.PixelText({0, 18, 10, 21}, legend), "-yyyyyyy#y\n"
                                                         "-yyyyyyy#y\n"
                                                         "#########y\n");
}

TEST_F(BarPaint, ASelectedSectionIsFilledWithTheHighlight)
{
    m_Names.m_Count = 1;
    m_Bar.SetFgColor(color_table[6]);
    m_Bar.SetSelectedSections({0});
    std::string const highlight = Describe(GetSysPalette()->GetColor(ISysPalette::scHighlight));
    std::string const text = Describe(GetSysPalette()->GetColor(ISysPalette::scHighlightText));
    EXPECT_THAT(Draw(), Draws("SetTextColor red")
                            .Then("SetBrush " + highlight)
                            .Then("FillRect 0 0 50 19")
                            .Then("SetTextColor " + text)
                            .Then("FillRect 0 19 0 0")
                            .Then("DrawString \"A\" 0 0 50 19 0x164")
                            .Then("SetTextColor red"));
}

TEST_F(BarPaint, APaletteInThePainterIsUsedAndStays)
{
    m_Names.m_Count = 1;
    m_Bar.SetSelectedSections({0});
    vexel_ptr<ICustomPaletteEx> const palette = CreateCustomPalette();
    palette->SetColor(ISysPalette::scHighlight, color_table[10]);
    palette->SetColor(ISysPalette::scHighlightText, color_table[11]);
    palette->SetColor(ISysPalette::scLight, color_table[4]);
    IPainter* used = nullptr;
    auto const slot = Listen(m_Bar.m_SigDraw, [&](CVisualElement*, IPainter* painter) {
        painter->m_Palette = palette;
        used = painter;
    });
    EXPECT_THAT(Draw(), Draws("SetBrush " + Describe(color_table[10]))
                            .Then("FillRect 0 0 50 19")
                            .Then("SetTextColor " + Describe(color_table[11]))
                            .Then("SetBrush " + Describe(color_table[4]))
                            .Then("DrawString \"A\"*"));
    EXPECT_EQ(used->m_Palette.get(), palette.get());
    used->m_Palette = nullptr;
}

TEST_F(BarPaint, ItsOwnPaletteIsTakenOutOfThePainter)
{
    m_Bar.SetSelectedSections({0});
    IPainter* used = nullptr;
    auto const slot = Listen(m_Bar.m_SigDraw, [&](CVisualElement*, IPainter* painter) { used = painter; });
    Draw();
    EXPECT_EQ(used->m_Palette.get(), nullptr);
}

TEST_F(BarPaint, ASectionIsDrawnByNumberWithoutAModel)
{
    CBar bare(nullptr, {20, 20}, alTop);
    auto const slot = Listen(m_Pane.m_SigDraw, [&](CVisualElement*, IPainter* painter) {
        bare.DrawSection(painter, {10, 20, 40, 60}, 7, false);
    });
    m_Pane.Update(utElement);
    EXPECT_THAT(m_Host.Paint(), Draws("DrawString \"7\" 10 20 40 59 0x164"));
}

TEST_F(BarPaint, PenAndBrushAreAsBefore)
{
    DragInfo info;
    ASSERT_TRUE(m_Bar.HandleDragOver(&m_Bar, 70, 10, info));  // a place to drop, and nothing that is dragged
    brush const ground{color_table[13], brush::bsSolid};
    pen const ink{color_table[4], pen::psDot, 3};
    int drawn = 0;
    auto const slot = Listen(m_Pane.m_SigDraw, [&](CVisualElement*, IPainter* painter) {
        painter->SetBrush(ground);
        painter->SetPen(ink);
        m_Bar.DrawSection(painter, {10, 20, 40, 60}, 0, true);
        EXPECT_EQ(painter->GetBrush(), ground);
        EXPECT_EQ(painter->GetPen(), ink);
        m_Bar.HandleDrawDragItem(painter, info, true, nullptr);
        EXPECT_EQ(painter->GetBrush(), ground);
        EXPECT_EQ(painter->GetPen(), ink);
        ++drawn;
    });
    m_Pane.Update(utElement);
    EXPECT_THAT(m_Host.Paint(), Draws("FillRect 10 20 40 59").Then("Polygon *"));
    EXPECT_EQ(drawn, 1);
}

TEST_F(BarPaint, ASpaceIsALineAtTheTop)
{
    CBar bare(nullptr, {20, 20}, alTop);
    auto const slot = Listen(m_Pane.m_SigDraw, [&](CVisualElement*, IPainter* painter) {
        bare.DrawSpace(painter, {10, 20, 40, 60});
    });
    m_Pane.Update(utElement);
    EXPECT_THAT(m_Host.Paint(), Draws("SetBrush #F0F0F0").Then("FillRect 10 20 40 20"));
}
