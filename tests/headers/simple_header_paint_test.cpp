// What a header draws.

#include "tests/headers/header_bench.h"
#include "tests/support/paint_calls.h"
#include "tests/support/test_images.h"
#include "vexel/views/continuous_item_view_model.h"

#include <gmock/gmock.h>

using namespace vexel;
using namespace vexel::test;
using testing::ElementsAre;
using testing::Not;

namespace
{

// Sections 0 to 49, 50 to 109, 110 to 149; the strip ends at 199.
using SimpleHeaderPaint = CHeaderBench;
using SimpleHeaderPaintOnSide = CHeaderOnSide;
INSTANTIATE_TEST_SUITE_P(AtEdge, SimpleHeaderPaintOnSide, testing::Values(alTop, alBottom, alLeft, alRight));

// Not at the top, so its own edges show.
class SimpleHeaderEdges : public CHeaderBench
{
protected:
    SimpleHeaderEdges() : CHeaderBench(alBottom, {8, 12, 7}) {}

    // The header's first 30 pixels in its two uppermost and its two lowest rows.
    std::string Pixels()
    {
        Draw();
        CLegend legend = CLegend::Empty();
        legend.Set('y', color_table[3]).Set('#', _color::FromRgb(0x40, 0x40, 0x40));
        legend.Set('+', _color::FromRgb(0x80, 0x80, 0x80)).Set('-', _color::FromRgb(0xF0, 0xF0, 0xF0));
        return m_Host.PixelText({0, 179, 30, 181}, legend) + m_Host.PixelText({0, 198, 30, 200}, legend);
    }
};

// Writes down what it is asked to draw.
class CTellingHeader : public CSimpleHeader
{
public:
    using CSimpleHeader::CSimpleHeader;
    std::string m_Told;

    void DrawSectionRect(IPainter* painter, rectangle<double> const& rect, int section) override
    {
        m_Told += "section " + std::to_string(section) + " " + Describe(rect) + "; ";
        CSimpleHeader::DrawSectionRect(painter, rect, section);
    }
    void DrawEmptyArea(IPainter* painter, double left, double top, double right, double bottom) override
    {
        m_Told += "empty " + Describe(rectangle<double>{left, top, right, bottom}) + "; ";
        CSimpleHeader::DrawEmptyArea(painter, left, top, right, bottom);
    }
};

}  // namespace

// The strip ---------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderPaintOnSide, WithoutAModelItDrawsItsBackgroundAlone)
{
    m_Header.SetModel(nullptr);
    PaintLog const log = Draw();
    EXPECT_EQ(CallsFrom(log, "FillRect"), IsUpright() ? "0 0 20 199" : "0 0 199 20");
    EXPECT_THAT(log, Draws("SetBrush yellow").Then("FillRect*"));
    EXPECT_THAT(log, Not(Draws("DrawControlElement*")));
    EXPECT_THAT(log, Not(Draws("DrawString*")));
    EXPECT_THAT(log, Not(Draws("SetClipRect*")));
}

TEST_P(SimpleHeaderPaintOnSide, WithoutAScrollModelItDrawsItsBackgroundAlone)
{
    m_Header.SetHorzScroll(nullptr);
    m_Header.SetVertScroll(nullptr);
    PaintLog const log = Draw();
    EXPECT_EQ(CallsFrom(log, "FillRect"), IsUpright() ? "0 0 20 199" : "0 0 199 20");
    EXPECT_THAT(log, Not(Draws("DrawString*")));
    EXPECT_THAT(log, Not(Draws("SetClipRect*")));
}

TEST_P(SimpleHeaderPaintOnSide, SectionsAreDrawnOneBehindTheOtherAndThenTheEmptyEnd)
{
    CTellingHeader header(m_Host.Root(), {20, 20}, GetParam());
    m_Host.Paint();
    header.SetCentralPane(&m_Pane);
    header.SetHorzScroll(&m_Scroll);
    header.SetVertScroll(&m_Scroll);
    header.SetModel(&m_Sections);
    rectangle<int> const strip = m_Pane.GetPos();  // 20 shorter than the header now
    EXPECT_EQ(IsUpright() ? strip.Height() : strip.Width(), 199);
    m_Host.Paint();
    std::string expected;
    for (auto const& [name, from, to] : std::vector<std::tuple<std::string, int, int>>{
             {"section 0", 0, 49}, {"section 1", 50, 109}, {"section 2", 110, 149}, {"empty", 150, 199}})
        expected += name + " " + Describe(Span(from, to)) + "; ";
    EXPECT_EQ(header.m_Told, expected);
    header.ReParent(nullptr, false);
}

TEST_P(SimpleHeaderPaintOnSide, ItsWorkIsCutToTheStrip)
{
    m_Pane.SetAlignment(alNone);
    m_Pane.SetPos(IsUpright() ? rectangle<int>{40, 30, 160, 169} : rectangle<int>{30, 40, 169, 160}, false);
    PaintLog const log = Draw();
    EXPECT_EQ(CallsFrom(log, "SetClipRect"), IsUpright() ? "0 30 20 169" : "30 0 169 20");
    EXPECT_THAT(log, Draws("FillRect*").Then("SetClipRect*").Then("DrawStringEx \"A\"*").Then("ResetClip"));
    EXPECT_THAT(log, Draws(IsUpright() ? "DrawStringEx \"A\" 0 34 20 75*" : "DrawStringEx \"A\" 34 0 75 20*"));
}

TEST_F(SimpleHeaderPaint, SectionsBeforeTheStartAndBeyondTheEndAreLeftOut)
{
    m_Scroll.m_Start = 70;
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 -20 0 39 20 0x0; 0 40 0 79 20 0x0; 0 80 0 209 20 0x1");

    m_Scroll.m_Start = -5;
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"),
              "0 5 0 54 20 0x0; 0 55 0 114 20 0x0; 0 115 0 154 20 0x0; 0 155 0 209 20 0x1");

    m_Scroll.m_Start = 0;
    m_Sections.m_Widths = {199, 50, 10};
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 0 0 198 20 0x0; 0 199 0 248 20 0x0");
    m_Sections.m_Widths = {200, 50, 10};
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 0 0 199 20 0x0");
    m_Sections.m_Widths = {100, 50, 49};
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"),
              "0 0 0 99 20 0x0; 0 100 0 149 20 0x0; 0 150 0 198 20 0x0; 0 199 0 209 20 0x1");
    m_Sections.m_Widths = {100, 50, 50};
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 0 0 99 20 0x0; 0 100 0 149 20 0x0; 0 150 0 199 20 0x0");
}

TEST_F(SimpleHeaderPaint, WithoutSectionsAllOfItIsTheEmptyEnd)
{
    m_Sections.m_Widths.clear();
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 0 0 209 20 0x1");
}

TEST_F(SimpleHeaderPaint, WithoutSectionsThereIsNoLastOneToExpand)
{
    m_Sections.m_Widths.clear();
    m_Header.ExpandLastSection(true);
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 0 0 209 20 0x1");
}

TEST_F(SimpleHeaderPaint, BehindTheLastSectionAllOfItIsTheEmptyEnd)
{
    m_Scroll.m_Start = 150;
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 0 0 209 20 0x1");
}

TEST_F(SimpleHeaderPaint, TheLastExpandedSectionLeavesNoEmptyEnd)
{
    m_Header.ExpandLastSection(true);
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 0 0 49 20 0x0; 0 50 0 109 20 0x0; 0 110 0 199 20 0x0");
}

TEST_F(SimpleHeaderPaint, TheOnlySectionIsCutToTheHeader)
{
    m_Sections.m_Widths = {300};
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 0 0 199 20 0x0");
    m_Scroll.m_Start = 30;
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 0 0 199 20 0x0");
    EXPECT_EQ(CallsFrom(Draw(), "DrawStringEx"), "\"A\" 4 0 195 20 0x121");
    m_Sections.m_Widths = {300, 10};
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 -30 0 269 20 0x0");
}

TEST_F(SimpleHeaderPaint, WithAViewModelAloneSectionsHaveNoCaptions)
{
    CDefaultColumnViewModel columns;
    columns.SetCount(2);
    columns.SetDefaultItemSize(60);
    m_Header.SetModel(nullptr);
    m_Header.SetViewModel(&columns);
    PaintLog const log = Draw();
    EXPECT_EQ(CallsFrom(log, "DrawControlElement"), "0 0 0 59 20 0x0; 0 60 0 119 20 0x0; 0 120 0 209 20 0x1");
    EXPECT_EQ(CallsFrom(log, "DrawStringEx"), "");
    columns.SetStretchLastItem(true);
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"), "0 0 0 59 20 0x0; 0 60 0 199 20 0x0");
    m_Header.SetViewModel(nullptr);
}

// States -------------------------------------------------------------------------------------------------------------------

TEST_F(SimpleHeaderPaint, NativeSectionsShowTheirState)
{
    Move(10);
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"),
              "0 0 0 49 20 0x4; 0 50 0 109 20 0x0; 0 110 0 149 20 0x0; 0 150 0 209 20 0x1");
    m_Host.Mouse().Press();
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement").substr(0, 15), "0 0 0 49 20 0xC");
    m_Header.SetEnabled(false);
    EXPECT_EQ(CallsFrom(Draw(), "DrawControlElement"),
              "0 0 0 49 20 0x9; 0 50 0 109 20 0x1; 0 110 0 149 20 0x1; 0 150 0 209 20 0x1");
    Release();
}

TEST_F(SimpleHeaderPaint, OnlyTheTopHeaderIsNativeAndOnlyIfItMayBe)
{
    EXPECT_THAT(Draw(), Draws("DrawControlElement*"));
    m_Header.SetNativeDrawing(false);
    EXPECT_THAT(Draw(), Not(Draws("DrawControlElement*")));
    m_Header.SetNativeDrawing(true);
    for (Alignment const side : {alBottom, alLeft, alRight})
    {
        m_Header.SetAlignment(side);
        m_Host.Paint();
        PaintLog const log = Draw();
        EXPECT_THAT(log, Not(Draws("DrawControlElement*"))) << side;
        EXPECT_THAT(log, Draws("DrawStringEx*")) << side;
    }
}

TEST_F(SimpleHeaderEdges, OtherwiseSectionsAreRaised)
{
    EXPECT_EQ(Pixels(), "-------#-----------#------#---\n"
                        "-yyyyy+#-yyyyyyyyy+#-yyyy+#-yy\n"
                        "-++++++#-++++++++++#-+++++#-++\n"
                        "##############################\n");
}

TEST_F(SimpleHeaderEdges, APressedSectionIsSunken)
{
    m_Header.SetStyle(CSimpleHeader::hsPress);
    Press(16);
    EXPECT_EQ(Pixels(), "-------############-------#---\n"
                        "-yyyyy+##++++++++++--yyyy+#-yy\n"
                        "-++++++##+yyyyyyyyy--+++++#-++\n"
                        "########------------##########\n");
    Release();
}

// Neighbours share the line between them.
TEST_F(SimpleHeaderEdges, FlatSectionsHaveOneLineBetweenThem)
{
    m_Header.SetStyle(CSimpleHeader::hsPress | CSimpleHeader::hsFlat);
    EXPECT_EQ(Pixels(), "++++++++++++++++++++++++++++++\n"
                        "yyyyyyy+yyyyyyyyyyy+yyyyyy+yyy\n"
                        "yyyyyyy+yyyyyyyyyyy+yyyyyy+yyy\n"
                        "++++++++++++++++++++++++++++++\n");
    Press(16);
    EXPECT_EQ(Pixels(), "++++++++###########+++++++++++\n"
                        "yyyyyyy+#+++++++++++yyyyyy+yyy\n"
                        "yyyyyyy+#+yyyyyyyyy+yyyyyy+yyy\n"
                        "++++++++-----------+++++++++++\n");
    Release();
}

TEST_F(SimpleHeaderPaint, TheFlatLookStretchesAnUprightSectionUpward)
{
    m_Header.SetAlignment(alLeft);
    m_Host.Paint();
    m_Header.SetStyle(CSimpleHeader::hsFlat);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("FillRect 0 -1 0 49").Then("DrawStringEx \"A\" 0 4 20 45*").Then("FillRect 0 49 0 109"));
    EXPECT_THAT(log, Draws("FillRect 0 149 0 199"));
}

// The caption -----------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderPaintOnSide, TheCaptionKeepsFourPixelsFree)
{
    // An upright header's flags are turned with it; its text is turned twice and stands straight.
    PaintLog const log = Draw();
    EXPECT_EQ(CallsFrom(log, "DrawStringEx"),
              IsUpright() ? "\"A\" 0 4 20 45 0x10C; \"B\" 0 54 20 105 0x10C; \"C\" 0 114 20 145 0x10C"
                          : "\"A\" 4 0 45 20 0x121; \"B\" 54 0 105 20 0x121; \"C\" 114 0 145 20 0x121");
    std::string const turned = IsUpright() ? "SetFont \"Square\" 8 rotation 2700" : "SetFont \"Square\" 8";
    EXPECT_THAT(log, Draws("SetClipRect*").Then(turned).Then("SetFont \"Square\" 8").Then("DrawStringEx \"A\"*"));
    EXPECT_THAT(log, Draws("DrawStringEx \"C\"*").Then(turned).Then("SetFont \"Square\" 8"));
}

TEST_P(SimpleHeaderPaintOnSide, APressedCaptionMovesByAPixelBothWays)
{
    m_Header.SetStyle(CSimpleHeader::hsPress);
    Press(60);
    EXPECT_EQ(CallsFrom(Draw(), "DrawStringEx"),
              IsUpright() ? "\"A\" 0 4 20 45 0x10C; \"B\" 1 55 21 106 0x10C; \"C\" 0 114 20 145 0x10C"
                          : "\"A\" 4 0 45 20 0x121; \"B\" 55 1 106 21 0x121; \"C\" 114 0 145 20 0x121");
    Release();
}

TEST_F(SimpleHeaderPaint, TheModelAlignsTheCaptions)
{
    m_Sections.m_TextAlign = 0x0C;
    EXPECT_EQ(CallsFrom(Draw(), "DrawStringEx").substr(0, 25), "\"A\" 4 0 45 20 0x11C; \"B\" ");
    m_Header.SetAlignment(alBottom);
    m_Host.Paint();
    EXPECT_EQ(CallsFrom(Draw(), "DrawStringEx").substr(0, 25), "\"A\" 4 0 45 20 0x10C; \"B\" ");
}

TEST_F(SimpleHeaderPaint, ADisabledCaptionIsGreyByItsColourAlone)
{
    m_Header.SetEnabled(false);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetTextColor grey").Then("DrawStringEx \"A\" 4 0 45 20 0x121"));
}

TEST_F(SimpleHeaderPaint, TheImageStandsThreeScaledPixelsBeforeTheCaption)
{
    CTestImages images{{{10, 10}, {12, 8}}};
    m_Host.Control().SetImageList(&images);
    m_Sections.m_ImageIndex = 1;
    m_Sections.m_Widths = {80};
    EXPECT_EQ(CallsFrom(Draw(), "DrawStringEx"), "\"A\" 19 0 75 20 0x121");
    EXPECT_EQ(images.Take(), "draw 1 at 4 6");
    m_Host.SetScale(2.5);
    m_Host.Paint();
    images.Take();
    EXPECT_EQ(CallsFrom(Draw(), "DrawStringEx"), "\"A\" 23 0 75 20 0x121");  // 7.5
    m_Host.SetScale(1);
    m_Host.Control().SetImageList(nullptr);
}

// Sort marks ------------------------------------------------------------------------------------------------------------------

TEST_F(SimpleHeaderPaint, ASortMarkStandsBehindTheCaption)
{
    m_Sections.m_Sorting = {1, 2, -1};
    PaintLog const log = Draw();
    // A caption is 8 wide, so the marks stand at 12 + 3, 62 + 3 and 122 + 3, and 6 down; they are 9 large.
    EXPECT_EQ(CallsFrom(log, "Polygon"), "20 10 24 14 16 14; 65 10 73 10 69 14; 125 10 133 10 129 14");
    EXPECT_EQ(CallsFrom(log, "DrawStringEx"),
              "\"A\" 4 0 30 20 0x121; \"B\" 54 0 90 20 0x121; \"C\" 114 0 130 20 0x121");
    EXPECT_THAT(log, Draws("DrawStringEx \"A\"*").Then("SetPen #404040").Then("SetBrush #404040").Then("Polygon*"));
}

TEST_P(SimpleHeaderPaintOnSide, ASortMarkStandsBehindTheCaptionOnEachSide)
{
    m_Sections.m_Sorting = {1, 0, 0};
    EXPECT_EQ(CallsFrom(Draw(), "Polygon"), IsUpright() ? "11 19 15 23 7 23" : "20 10 24 14 16 14");
}

TEST_F(SimpleHeaderPaint, ASortMarkStaysInItsSection)
{
    m_Sections.m_TextAlign = 0x22;  // right: the caption ends at the edge of its box
    m_Sections.m_Sorting = {2, 2};
    m_Sections.m_Widths = {50, 12};
    // 49 - 15 + 3; then 61 - 15 lies before the section, which begins at 50
    EXPECT_EQ(CallsFrom(Draw(), "Polygon").substr(0, 30), "33 10 41 10 37 14; 53 10 61 10");
}

TEST_F(SimpleHeaderPaint, AMarkOfAPressedSectionGoesAlong)
{
    m_Header.SetStyle(CSimpleHeader::hsPress);
    m_Sections.m_Sorting = {2};
    Press(10);
    EXPECT_EQ(CallsFrom(Draw(), "Polygon"), "16 11 24 11 20 15");
    Release();
}

TEST_F(SimpleHeaderPaint, MarksScale)
{
    m_Host.SetScale(2);
    m_Host.Paint();
    m_Sections.m_Sorting = {1};
    m_Sections.m_Widths = {90};
    PaintLog const log = Draw();
    // 16 is the caption's width: 4 + 16 + 6; 30 - 12 large
    EXPECT_EQ(CallsFrom(log, "Polygon"), "35 11 44 19 27 19");
    EXPECT_EQ(CallsFrom(log, "DrawStringEx").substr(0, 14), "\"A\" 4 0 55 20 ");
}

TEST_F(SimpleHeaderPaint, MarksAreFilledTriangles)
{
    m_Header.SetAlignment(alBottom);  // (0, 179, 199, 199)
    m_Sections.m_Sorting = {1, 2};
    m_Host.Paint();
    Draw();
    CLegend legend = CLegend::Empty();
    legend.Set('.', color_table[3]).Set('#', _color::FromRgb(0x40, 0x40, 0x40));
    EXPECT_EQ(m_Host.PixelText({15, 188, 26, 195}, legend), "...........\n"
                                                            ".....#.....\n"
                                                            "....###....\n"
                                                            "...#####...\n"
                                                            "..#######..\n"
                                                            ".#########.\n"
                                                            "...........\n");
    EXPECT_EQ(m_Host.PixelText({64, 188, 75, 195}, legend), "...........\n"
                                                            ".#########.\n"
                                                            "..#######..\n"
                                                            "...#####...\n"
                                                            "....###....\n"
                                                            ".....#.....\n"
                                                            "...........\n");
}
