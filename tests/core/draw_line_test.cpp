#include "tests/support/canvas.h"

#include "vexel/antialiasing/line_band.h"
#include "vexel/core/draw_line.h"
#include "vexel/platform/memory/memory_painter.h"
#include "vexel/platform/pixel_editor.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

namespace vexel
{

namespace
{

class DrawLineTest : public testing::Test
{
protected:
    // What two columns show of a horizontal line, from above: red values in hex.
    unsigned Red(int x, int y) { return m_Canvas.Pixels().Row(y)[x] >> 16 & 255u; }

    tests::CCanvas m_Canvas{24, 16};
};

// A sample leaves 0.55848, 0.16702, 0.16702 and 0.10748 of 216 / 255: 120, 36, 36 and 23 of 255. In the middle two meet.
TEST_F(DrawLineTest, BlendsWith85HundredthsOfTheTopByte)
{
    m_Canvas.Pen(tests::Black);

    DrawLine(&m_Canvas.Painter(), {14, 4}, {2, 4}, CapNone, CapNone);

    EXPECT_EQ(Red(2, 4), 135u);  // 255 - 120
    EXPECT_EQ(Red(2, 5), 219u);  // 255 - 36
    EXPECT_EQ(Red(8, 4), 99u);   // 255 - 120 - 36
    EXPECT_EQ(Red(8, 5), 196u);  // 255 - 36 - 23
    EXPECT_EQ(Red(14, 4), 219u);
    EXPECT_EQ(Red(8, 3), 255u);
    EXPECT_EQ(Red(1, 4), 255u);
    EXPECT_EQ(Red(15, 4), 255u);
}

// Of the shares 0.47306 and 0.14148: red 94 and 28, green 47 and 14, blue 18 and 5, coverage 120 and 36.
TEST_F(DrawLineTest, HasThePensColourFromEndToEnd)
{
    m_Canvas.Pen(_color::FromRgb(200, 100, 40));

    DrawLine(&m_Canvas.Painter(), {14, 4}, {2, 4}, CapNone, CapNone);

    auto const rgb = [this](int x) { return m_Canvas.Pixels().Row(4)[x] & 0xFFFFFFu; };
    EXPECT_EQ(rgb(2), 229u << 16 | 182u << 8 | 153u);  // 135 of the white ground
    for (int x = 3; x <= 13; ++x)
        EXPECT_EQ(rgb(x), 221u << 16 | 160u << 8 | 122u) << x;  // 99 of it
}

TEST_F(DrawLineTest, RunsFromTheSecondEndToTheFirst)
{
    m_Canvas.Pen(tests::Black);

    DrawLine(&m_Canvas.Painter(), {2, 8}, {20, 8}, CapArrowWide, CapNone);

    // Samples begin a quarter of a step within the second end, and the first end has the arrow.
    EXPECT_EQ(Red(21, 8), 255u);
    EXPECT_LT(Red(20, 8), 255u);
    EXPECT_EQ(Red(4, 3), 255u);
    EXPECT_LT(Red(8, 7), 255u);
    EXPECT_EQ(Red(18, 7), 255u);
}

TEST_F(DrawLineTest, EndsAreMappedAndThenTruncated)
{
    m_Canvas.Pen(tests::Black);
    DrawLine(&m_Canvas.Painter(), {14.9, 4.9}, {2.9, 4.9}, CapNone, CapNone);
    tests::CCanvas mapped(24, 16);
    mapped.Pen(tests::Black);
    mapped.Map(0, 0, 10, 10, 2, 4, 20, 20);

    DrawLine(&mapped.Painter(), {6, 0.2}, {0, 0.2}, CapNone, CapNone);  // twice as far, from (2, 4)

    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 24; ++x)
            ASSERT_EQ(mapped.Pixels().Row(y)[x], m_Canvas.Pixels().Row(y)[x]) << x << ", " << y;
    point<double> corner{1, 1};
    mapped.Painter().ConvertCoord1(&corner, false);
    EXPECT_EQ(corner, (point<double>{4, 6}));  // the mapping is back
}

// Towards 0, not down.
TEST_F(DrawLineTest, EndsBelowZeroAreTruncatedToo)
{
    struct SEnds
    {
        point<double> first;
        point<double> second;
    };
    auto const drawn = [](SEnds const& ends) {
        tests::CCanvas canvas(24, 16);
        canvas.Pen(tests::Black);
        DrawLine(&canvas.Painter(), ends.first, ends.second, CapNone, CapNone);
        std::vector<std::uint32_t> pixels;
        for (int y = 0; y < 16; ++y)
            pixels.insert(pixels.end(), canvas.Pixels().Row(y), canvas.Pixels().Row(y) + 24);
        return pixels;
    };
    EXPECT_EQ(drawn({{14, 12}, {-2.9, -1.9}}), drawn({{14, 12}, {-2, -1}}));
    EXPECT_NE(drawn({{14, 12}, {-2.9, -1.9}}), drawn({{14, 12}, {-3, -1}}));
    EXPECT_NE(drawn({{14, 12}, {-2.9, -1.9}}), drawn({{14, 12}, {-2, -2}}));
    EXPECT_EQ(drawn({{-2.9, -1.9}, {14, 12}}), drawn({{-2, -1}, {14, 12}}));
    EXPECT_NE(drawn({{-2.9, -1.9}, {14, 12}}), drawn({{-3, -1}, {14, 12}}));
    EXPECT_NE(drawn({{-2.9, -1.9}, {14, 12}}), drawn({{-2, -2}, {14, 12}}));
}

// The stamps of a dotted line of one pixel are every other one of 13: the places 1, 3, 5 ... of a solid one.
TEST_F(DrawLineTest, ThePensStyleLeavesGaps)
{
    m_Canvas.Pen(tests::Black, pen::psDot);

    DrawLine(&m_Canvas.Painter(), {14, 4}, {2, 4}, CapNone, CapNone);

    EXPECT_EQ(Red(2, 4), 135u);  // the first alone: 255 - 120
    EXPECT_EQ(Red(3, 4), 219u);  // the right share of the first: 255 - 36
    EXPECT_EQ(Red(4, 4), 135u);
    EXPECT_EQ(Red(5, 4), 219u);
    EXPECT_EQ(Red(8, 4), 135u);
    EXPECT_EQ(Red(8, 5), 219u);
}

TEST_F(DrawLineTest, ASolidPenWithoutWidthDrawsNothing)
{
    for (int const width : {0, -3})
    {
        m_Canvas.Pen(tests::Black, pen::psSolid, width);
        DrawLine(&m_Canvas.Painter(), {14, 4}, {2, 4}, CapNone, CapNone);
        EXPECT_EQ(m_Canvas.Text(), tests::CCanvas(24, 16).Text()) << width;
    }
}

TEST_F(DrawLineTest, AColourWithoutTopByteDrawsNothing)
{
    m_Canvas.Pen(_color(0x000000FF), pen::psSolid, 3);

    DrawLine(&m_Canvas.Painter(), {14, 12}, {2, 3}, CapNone, CapArrowWide);

    EXPECT_EQ(m_Canvas.Text(), tests::CCanvas(24, 16).Text());
}

TEST_F(DrawLineTest, TheClipLimitsIt)
{
    m_Canvas.Pen(tests::Black, pen::psSolid, 5);
    m_Canvas->SetClipRect(4, 0, 8, 15, false);

    DrawLine(&m_Canvas.Painter(), {20, 8}, {1, 8}, CapNone, CapNone);

    EXPECT_EQ(Red(3, 8), 255u);
    EXPECT_NE(Red(4, 8), 255u);
    EXPECT_NE(Red(8, 8), 255u);
    EXPECT_EQ(Red(9, 8), 255u);
}

TEST_F(DrawLineTest, WhatIsTouchedIsNotedAsDamage)
{
    m_Canvas.Pen(tests::Black);
    m_Canvas.Device().GetDamage().Clear();

    DrawLine(&m_Canvas.Painter(), {14, 4}, {2, 4}, CapNone, CapNone);

    ASSERT_EQ(m_Canvas.Device().GetDamage().GetCount(), 1);
    rectangle<int> const damage = m_Canvas.Device().GetDamage()[0];
    EXPECT_TRUE(damage.left <= 2 && damage.top <= 4 && damage.right > 14 && damage.bottom > 5);
    EXPECT_TRUE(damage.left >= 0 && damage.top >= 1 && damage.right <= 19 && damage.bottom <= 9);
}

TEST_F(DrawLineTest, OnlyPlainLinesTakeTheBand)
{
    antialiasing::LineContourParams const plain = [] {
        antialiasing::LineContourParams line;
        line.m_End = {5, 3};
        return line;
    }();
    auto const draws = [&](auto const& change) {
        antialiasing::LineContourParams line = plain;
        change(line);
        return antialiasing::DrawLineInBand(line, m_Canvas.Painter());
    };
    EXPECT_TRUE(draws([](auto&) {}));
    EXPECT_TRUE(draws([](auto& line) { line.m_Width = 32; }));
    EXPECT_TRUE(draws([](auto& line) { line.m_End = line.m_Start; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_Width = 33; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_Density = 99; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_EndColor.m_Blue = 1; }));
    EXPECT_TRUE(draws([](auto& line) { line.m_StartColor.m_Red = line.m_EndColor.m_Red = 255; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_StartColor.m_Red = line.m_EndColor.m_Red = 256; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_StartColor.m_Green = line.m_EndColor.m_Green = 256; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_StartColor.m_Blue = line.m_EndColor.m_Blue = 256; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_StartCapOffset = 1; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_EndCapOffset = 1; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_Start.x = 0.5; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_End.y = 16777217; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_Intensity = 256; }));
    EXPECT_FALSE(draws([](auto& line) { line.m_Intensity = -1; }));
}

// A painter whose surface can't be changed in place and breaks once.
class CBreakingPainter : public CBasePainter
{
public:
    using CBasePainter::CBasePainter;
    void EditPixels(rectangle<int> const& area, IPixelEditor& editor) override
    {
        if (m_Breaks)
            throw std::runtime_error("lost");
        IPainter::EditPixels(area, editor);
    }
    bool m_Breaks = false;
};

TEST_F(DrawLineTest, NothingOfABrokenLineShowsInTheNext)
{
    m_Canvas.Pen(tests::Black);
    DrawLine(&m_Canvas.Painter(), {14, 4}, {2, 9}, CapNone, CapNone);
    tests::CCanvas other(24, 16);
    CBreakingPainter painter(other.Device(), false);
    painter.BeginPaint(IPainter::ssPaint);
    painter.SetPen({tests::Black, pen::psSolid, 1});

    painter.m_Breaks = true;
    EXPECT_THROW(DrawLine(&painter, {20, 2}, {1, 3}, CapNone, CapNone), std::runtime_error);
    painter.m_Breaks = false;
    DrawLine(&painter, {14, 4}, {2, 9}, CapNone, CapNone);  // by GetPixel and SetPixel

    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 24; ++x)
            ASSERT_EQ(other.Pixels().Row(y)[x], m_Canvas.Pixels().Row(y)[x]) << x << ", " << y;
}

TEST_F(DrawLineTest, FindsRowsThatLieApart)
{
    m_Canvas.Pen(tests::Black, pen::psSolid, 3);
    tests::CCanvas other(24, 16);
    other.Pen(tests::Black, pen::psSolid, 3);
    std::vector<std::uint32_t> memory(40 * 16, 0xFFFFFFFFu);
    other.Pixels().UseOther(memory.data(), 40);

    for (point<double> const& end : {point<double>{20, 12}, {5, 14}, {20, 2}})
    {
        DrawLine(&m_Canvas.Painter(), end, {2, 2}, CapArrowWide, CapCircle7);
        DrawLine(&other.Painter(), end, {2, 2}, CapArrowWide, CapCircle7);
    }

    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 40; ++x)
            ASSERT_EQ(memory[static_cast<std::size_t>(y * 40 + x)], x < 24 ? m_Canvas.Pixels().Row(y)[x] : 0xFFFFFFFFu)
                << x << ", " << y;
    other.Pixels().UseOwn(false);
}

class CRecorder : public memory::IPaintRecorder
{
public:
    CRecorder() : m_Before(memory::SetPaintRecorder(this)) {}
    ~CRecorder() override { memory::SetPaintRecorder(m_Before); }
    void PainterCalled(memory::CMemoryPainter&, int, std::string const& call) override { m_Text += call + "\n"; }
    std::string m_Text;

private:
    memory::IPaintRecorder* m_Before;
};

TEST_F(DrawLineTest, ARecorderIsToldOfEveryPixel)
{
    memory::CMemoryPainter painter(m_Canvas.Device(), false);
    painter.BeginPaint(IPainter::ssPaint);
    painter.SetPen({tests::Black, pen::psSolid, 1});
    CRecorder recorder;

    DrawLine(&painter, {3, 4}, {2, 4}, CapNone, CapNone);

    EXPECT_EQ(recorder.m_Text, "SetCoordSystem 0\n"
                               "SetPixel 2 4 #878787\n"
                               "SetPixel 3 4 #DBDBDB\n"
                               "SetPixel 2 5 #DBDBDB\n"
                               "SetPixel 3 5 #E8E8E8\n"
                               "SetCoordSystem 0 0 0 0 0 0 0 0 0\n");
    EXPECT_EQ(Red(2, 4), 0x87u);
}

}  // namespace

}  // namespace vexel
