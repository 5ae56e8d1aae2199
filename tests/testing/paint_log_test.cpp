#include "vexel/testing/paint_log.h"

#include "tests/testing/lamp.h"
#include "vexel/platform/memory/memory_painter.h"
#include "vexel/platform/text_formatter.h"
#include "vexel/platform/xpm.h"

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <sstream>

namespace vexel
{
namespace
{

using namespace vexel::test;
using ::testing::ElementsAre;
using ::testing::Not;

// Paints what a test tells it to.
class CCanvas : public CVisualElement
{
public:
    CCanvas(CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CVisualElement(parent, extent, alignment)
    {
    }
    std::function<void(IPainter&)> m_Draw;

protected:
    void DrawContent(IPainter* painter) override
    {
        if (m_Draw)
            m_Draw(*painter);
    }
};

class PaintLogTest : public ::testing::Test
{
protected:
    // The calls that the canvas made in its DrawContent.
    std::vector<std::string> CallsOf(std::function<void(IPainter&)> const& draw)
    {
        m_Canvas.m_Draw = [&](IPainter& painter) {
            painter.SetDrawMode(IPainter::roXor);  // a mark where they begin
            painter.SetDrawMode(IPainter::roCopy);
            draw(painter);
        };
        m_Canvas.Update(utElement);
        std::vector<std::string> calls = m_Host.Paint().Of("CCanvas").Calls();
        m_Canvas.m_Draw = {};
        auto const mark = std::find(calls.begin(), calls.end(), "SetDrawMode copy");
        EXPECT_NE(mark, calls.end());
        auto const end = std::find(calls.begin(), calls.end(), "ResetClip");
        return std::vector<std::string>(mark + 1, end);
    }

    CTestHost m_Host{60, 40};
    CCanvas m_Canvas{m_Host.Root(), {60, 40}, alClient};
};

TEST_F(PaintLogTest, ToolsAreWrittenByWhatTheyAre)
{
    m_Host.Paint();
    EXPECT_THAT(CallsOf([](IPainter& p) {
                    p.SetBrush({color_table[3], brush::bsSolid});
                    p.SetBrush({color_table[3], brush::bsNone});
                    p.SetPen({color_table[8], pen::psSolid, 1});
                    p.SetPen({color_table[6], pen::psDash, 3});
                    p.SetPen({color_table[6], pen::psSolid, 2});
                    p.SetPen({color_table[6], pen::psNone, 2});
                    p.SetTextColor(_color::FromRgb(0x12, 0x34, 0xAB));
                    p.SetTextColor(color_table[0]);
                    p.SetTextColor(_color(0xFFFFFF));
                    p.SetBkColor(color_table[9]);
                }),
                ElementsAre("SetBrush yellow", "SetBrush none", "SetPen grey", "SetPen red dash 3", "SetPen red 2",
                            "SetPen none", "SetTextColor #1234AB", "SetTextColor none", "SetTextColor white/00",
                            "SetBkColor white"));
}

TEST_F(PaintLogTest, FontsSayNameSizeAndWhatIsUnusual)
{
    m_Host.Paint();
    EXPECT_THAT(CallsOf([](IPainter& p) {
                    font value;
                    value.name = "Square";
                    value.family = font::ffSans;
                    value.size = 8;
                    p.SetFont(value);
                    value.style = font::fsBold | font::fsItalic | font::fsUnderline | font::fsStrikeOut;
                    value.rotation = 2700;
                    value.factor = 1.3;
                    value.family = font::ffMono;
                    p.SetFont(value);
                }),
                ElementsAre("SetFont \"Square\" 8",
                            "SetFont \"Square\" 8 bold italic underline strikeout rotation 2700 factor 1.3 family 2"));
}

TEST_F(PaintLogTest, ShapesAreWrittenWithTheShortestNumbers)
{
    m_Host.Paint();
    EXPECT_THAT(CallsOf([](IPainter& p) {
                    p.MoveTo(0, 4);
                    p.LineTo(9.5, 4);
                    p.Rectangle(1, 2, 3, 4);
                    p.FillRect(0, 0, 0.1, -0.0);
                    p.RoundRect(0, 9, 20, 29, 20, 20);
                    p.FocusRect(1.5, 2, 18, 9);
                    point<double> const corners[] = {{0, 0}, {4, 4}, {8, 0}};
                    p.Polygon(corners, 3);
                    p.SetPixel(3, 4, color_table[6]);
                }),
                ElementsAre("MoveTo 0 4", "LineTo 9.5 4", "Rectangle 1 2 3 4", "FillRect 0 0 0.1 0",
                            "RoundRect 0 9 20 29 20 20", "FocusRect 1.5 2 18 9", "Polygon 0 0 4 4 8 0",
                            "SetPixel 3 4 red"));
}

TEST_F(PaintLogTest, TextsAreQuotedAndMeasuringIsLeftOut)
{
    m_Host.Paint();
    EXPECT_THAT(CallsOf([](IPainter& p) {
                    rectangle<double> const rect{0, 0, 50, 20};
                    p.DrawString(rect, "a \"b\"\n", 0x121, -1);
                    p.DrawString(rect, std::string("hidden"), 1, 3);
                    p.DrawString(rect, "measured", IPainter::AlignMeasureOnly, -1);
                    p.DrawStringEx(rect, "plain", 0x24, -1, TextDelimiters, nullptr);
                    p.GetTextSize("measured", nullptr);
                    fontmetrics metrics;
                    p.GetFontMetrics(&metrics);
                }),
                ElementsAre("DrawString \"a \\\"b\\\"\\n\" 0 0 50 20 0x121", "DrawString \"hid\" 0 0 50 20 0x1 3",
                            "DrawStringEx \"plain\" 0 0 50 20 0x24"));
}

TEST_F(PaintLogTest, WhatAFormatterDrawsIsWrittenOneDeeper)
{
    m_Host.Paint();
    CDefTextFormatter formatter;
    m_Canvas.m_Draw = [&](IPainter& p) {
        p.DrawStringEx({0, 0, 30, 30}, "ab cd", 0, -1, TextDelimiters, &formatter);
        p.DrawStringEx({0, 0, 30, 30}, "ab cd", IPainter::AlignMeasureOnly, -1, TextDelimiters, &formatter);
    };
    m_Canvas.Update(utElement);
    PaintLog const log = m_Host.Paint();
    EXPECT_THAT(log, Draws("DrawStringEx \"ab cd\" 0 0 30 30 0x0").Then("DrawRun 0 0 \"ab*").Then("DrawRun 0 8 \"cd\""));
    EXPECT_EQ(log.Count("DrawStringEx*"), 1);
    EXPECT_NE(log.Text().find("\n  DrawStringEx \"ab cd\""), std::string::npos) << log.Text();
    EXPECT_NE(log.Text().find("\n    DrawRun 0 8 \"cd\""), std::string::npos) << log.Text();
}

TEST_F(PaintLogTest, PicturesAreWrittenByTheirSizeAndCallsOnThemApart)
{
    m_Host.Paint();
    vexel_ptr<IRasterPicture> const picture = CTestHost::System().CreateRasterPicture(size<int>{16, 8});
    EXPECT_THAT(CallsOf([&](IPainter& p) {
                    IRasterPicture* const raster = picture.get();
                    p.DrawRasterPicture(raster, 0, 0, 15, 7, IPainter::roCopy);
                    p.DrawRasterPicture(raster, 0, 0, 15, 7, IPainter::roXor);
                    p.DrawRasterPictureEx(raster, 0, 0, 31, 15, 0, 0, 15, 7, IPainter::roAnd);
                    p.ExtractRasterPicture(raster, 1, 2, 3, 4);
                    p.ExtractRasterPictureEx(raster, 1, 2, 3, 4, 5, 6, 7, 7);
                    p.AlphaBlend(0, 0, 15, 7, raster, 127);
                    raster->GetPainter()->BeginPaint(IPainter::ssPaint);
                    raster->GetPainter()->FillRect(0, 0, 3, 3);
                    raster->GetPainter()->EndPaint();
                }),
                ElementsAre("DrawRasterPicture 16x8 0 0 15 7", "DrawRasterPicture 16x8 0 0 15 7 xor",
                            "DrawRasterPictureEx 16x8 0 0 31 15 from 0 0 15 7 and", "ExtractRasterPicture 16x8 1 2 3 4",
                            "ExtractRasterPictureEx 16x8 1 2 3 4 to 5 6 7 7", "AlphaBlend 16x8 0 0 15 7 127",
                            "picture BeginPaint 2", "picture FillRect 0 0 3 3", "picture EndPaint"));
}

TEST_F(PaintLogTest, PartsImagesClipsAndMappingsAreWritten)
{
    static char const* lines[] = {"2 1 2 1", ". c #FFFFFF", "# c #000000", ".#"};
    m_Host.Paint();
    EXPECT_THAT(CallsOf([&](IPainter& p) {
                    p.DrawControlElement(IPainter::cePushButton, 0, 0, 39, 19, IPainter::esPressed);
                    XPMImage const image(XPMBuf(lines, true));
                    p.DrawXPM(image, 3, 4, 0, 0, -1, -1, IPainter::roCopy);
                    p.DrawXPM(image, 3, 4, 1, 0, 1, 1, IPainter::roXor);
                    p.SetClipRect(0, 0, 9, 9, false);
                    p.SetClipRect(2, 2, 7, 7, true);
                    p.SimpleSetClipRect({0, 0, 10, 10}, false);
                    IPainter::CoordInfo info;
                    info.m_LogicalExtent = {20, 40};
                    info.m_DeviceOrigin = {10, 5};
                    info.m_DeviceExtent = {20, -40};
                    p.SetCoordSystem(IPainter::mmCustom, &info);
                    p.SetCoordSystem(IPainter::mmDevice, nullptr);
                }),
                ElementsAre("DrawControlElement 7 0 0 39 19 0x8", "DrawXPM 2x1 3 4", "DrawXPM 2x1 3 4 from 1 0 1 1 xor",
                            "SetClipRect 0 0 9 9", "SetClipRect 2 2 7 7 exclude", "SimpleSetClipRect 0 0 10 10",
                            "SetCoordSystem 3 0 0 20 40 10 5 20 -40", "SetCoordSystem 0"));
}

// Elements ---------------------------------------------------------------------------------------------------------

TEST(PaintLog, NamesThePaintedElementsInTheirOrder)
{
    CTestHost host(100, 40);
    CLamp left(host.Root(), {20, 20}, alLeft);
    CLamp right(host.Root(), {20, 20}, alRight);
    CLamp hidden(host.Root(), {20, 20}, alTop);
    hidden.SetVisible(false);
    host.Name(right, "right");
    EXPECT_EQ(host.Paint().Elements(), "CContent CLamp right");
    EXPECT_EQ(host.Paint().Elements(), "");
    right.Update(utElement);
    EXPECT_EQ(host.Paint().Elements(), "right");
}

TEST(PaintLog, ANameGoesWithItsElement)
{
    CTestHost host(100, 40);
    alignas(CLamp) unsigned char place[sizeof(CLamp)];
    auto* lamp = new (place) CLamp(host.Root(), {20, 20}, alLeft);
    host.Name(*lamp, "first");
    EXPECT_EQ(ElementName(lamp), "first");
    lamp->~CLamp();
    lamp = new (place) CLamp(host.Root(), {20, 20}, alLeft);
    EXPECT_EQ(ElementName(lamp), "CLamp");
    lamp->~CLamp();
}

TEST(PaintLog, GivesWhatOneElementDrewItself)
{
    CTestHost host(100, 40);
    CLamp left(host.Root(), {20, 20}, alLeft);
    CLamp right(host.Root(), {30, 20}, alRight);
    host.Name(left, "left");
    host.Name(right, "right");
    PaintLog const paint = host.Paint();
    EXPECT_EQ(paint.Of("left").Count("RoundRect*"), 1);
    EXPECT_EQ(paint.Of("right").Count("RoundRect*"), 1);
    EXPECT_THAT(paint.Of("left"), Draws("RoundRect 0 9 20 29 20 20"));
    EXPECT_THAT(paint.Of("right"), Draws("RoundRect 0 4 30 34 30 30"));
    EXPECT_THAT(paint.Of("left"), Not(Draws("RoundRect 0 4 30 34 30 30")));
    EXPECT_TRUE(paint.Of("CLamp").IsEmpty());
}

TEST(PaintLog, APaintWithoutAFrameIsEmpty)
{
    CTestHost host(10, 10);
    PaintLog const first = host.Paint();
    EXPECT_GE(first.GetFrames(), 1);
    PaintLog const second = host.Paint();
    EXPECT_EQ(second.GetFrames(), 0);
    EXPECT_TRUE(second.IsEmpty());
    EXPECT_EQ(second.Text(), "");
}

TEST(PaintLog, OnlyTheHostsOwnWindowIsWritten)
{
    CTestHost host(10, 10);
    CTestHost other(10, 10);
    CLamp lamp(other.Root(), {5, 5}, alLeft);
    EXPECT_THAT(host.Paint(), Not(Draws("RoundRect*")));
    EXPECT_THAT(other.Paint(), Draws("RoundRect*"));
}

TEST(PaintLog, NothingIsWrittenOutsideOfPaint)
{
    CTestHost host(10, 10);
    host.Paint();
    PaintLog const log = host.Paint();
    host.Window().GetPainter()->SetBrush({color_table[3], brush::bsSolid});
    EXPECT_TRUE(log.IsEmpty());
    EXPECT_EQ(vexelbase::memory::SetPaintRecorder(nullptr), nullptr);
}

// Draws ------------------------------------------------------------------------------------------------------------

class DrawsMatcher : public ::testing::Test
{
protected:
    DrawsMatcher()
    {
        CTestHost host(20, 20);
        CCanvas canvas(host.Root(), {20, 20}, alClient);
        host.Paint();
        canvas.m_Draw = [](IPainter& p) {
            p.MoveTo(1, 1);
            p.LineTo(2, 2);
            p.LineTo(3, 3);
        };
        canvas.Update(utElement);
        m_Log = host.Paint();
    }
    template <class Matcher> std::string Explanation(Matcher const& matcher) const
    {
        std::ostringstream out;
        matcher.MatchAndExplain(m_Log, &out);
        return out.str();
    }

    PaintLog m_Log;
};

TEST_F(DrawsMatcher, FindsCallsInOrderAndSkipsTheRest)
{
    EXPECT_THAT(m_Log, Draws("MoveTo 1 1"));
    EXPECT_THAT(m_Log, Draws("MoveTo 1 1").Then("LineTo 3 3"));
    EXPECT_THAT(m_Log, Draws("LineTo*").Then("LineTo*"));
}

TEST_F(DrawsMatcher, DoesNotFindWhatIsMissingOutOfOrderOrTooFewTimes)
{
    EXPECT_THAT(m_Log, Not(Draws("LineTo 4 4")));
    EXPECT_THAT(m_Log, Not(Draws("LineTo 3 3").Then("MoveTo 1 1")));
    EXPECT_THAT(m_Log, Not(Draws("MoveTo 1 1").Then("MoveTo 1 1")));
    EXPECT_THAT(m_Log, Not(Draws("LineTo*").Then("LineTo*").Then("LineTo*")));
    EXPECT_THAT(m_Log, Not(Draws("LineTo")));
}

TEST_F(DrawsMatcher, SaysWhichCallWasNotFound)
{
    EXPECT_EQ(Explanation(Draws("LineTo 4 4")), "which has no \"LineTo 4 4\"");
    EXPECT_EQ(Explanation(Draws("LineTo 3 3").Then("MoveTo 1 1")), "which has no \"MoveTo 1 1\" behind the \"LineTo 3 3\"");
}

TEST_F(DrawsMatcher, TheLogIsPrintedAsAWhole)
{
    std::string const printed = ::testing::PrintToString(m_Log);
    EXPECT_EQ(printed.substr(0, printed.find('\n')), "a paint of 1 frame:");
    EXPECT_NE(printed.find("CCanvas\n"), std::string::npos);
    EXPECT_NE(printed.find("  MoveTo 1 1\n  LineTo 2 2\n  LineTo 3 3\n"), std::string::npos);
}

TEST(Pattern, AStarStandsForAnyCharactersAndABackslashTakesItsMeaning)
{
    EXPECT_TRUE(MatchesPattern("SetPen red", "SetPen red"));
    EXPECT_FALSE(MatchesPattern("SetPen red", "SetPen"));
    EXPECT_FALSE(MatchesPattern("SetPen", "SetPen red"));
    EXPECT_TRUE(MatchesPattern("SetPen red", "*"));
    EXPECT_TRUE(MatchesPattern("", "*"));
    EXPECT_FALSE(MatchesPattern("x", ""));
    EXPECT_TRUE(MatchesPattern("abcabd", "*abd"));
    EXPECT_TRUE(MatchesPattern("a1b2b3", "a*b*3"));
    EXPECT_FALSE(MatchesPattern("a1b2", "a*b*3"));
    EXPECT_TRUE(MatchesPattern("a*b", "a\\*b"));
    EXPECT_FALSE(MatchesPattern("axb", "a\\*b"));
    EXPECT_TRUE(MatchesPattern("a\\b", "a\\b"));
}

} // namespace
} // namespace vexel
