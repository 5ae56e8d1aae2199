#include "tests/support/canvas.h"

#include "vexel/core/draw_line.h"
#include "vexel/testing/random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <ostream>
#include <sstream>
#include <string>
#include <utility>

// DrawLine against what it is measured by: two surfaces that get the same lines, one in each way, stay equal in every
// pixel. VEXEL_LINES sets how many lines.

namespace vexel
{

namespace
{

using test::CTestRandom;

int GetLineCount(int usual)
{
    char const* const text = std::getenv("VEXEL_LINES");
    return text && std::atoi(text) > 0 ? std::atoi(text) : usual;
}

struct SLine
{
    point<double> p1;
    point<double> p2;
    CapStyle cap1 = CapNone;
    CapStyle cap2 = CapNone;
    pen ink;
    int clip = 0;  // 0 none, 1 a rectangle, 2 a rectangle with a hole
    rectangle<double> clipRect;

    friend std::ostream& operator<<(std::ostream& out, SLine const& line)
    {
        return out << "(" << line.p1.x << ", " << line.p1.y << ") - (" << line.p2.x << ", " << line.p2.y << "), caps "
                   << line.cap1 << " " << line.cap2 << ", width " << line.ink.width << ", style " << line.ink.style
                   << std::hex << ", colour " << line.ink.color.m_Value << std::dec << ", clip " << line.clip;
    }
};

constexpr int Width = 160;
constexpr int Height = 120;

SLine RandomLine(CTestRandom& random)
{
    SLine line;
    int const kind = random.Int(0, 99);
    // Most are short, for there are so many; some go far beyond the surface.
    double const length = kind < 60   ? random.Real(0, 30)
                          : kind < 90 ? random.Real(0, 120)
                          : kind < 99 ? random.Real(0, 600)
                                      : random.Real(0, 3000);
    double angle = random.Real(0, 6.283185307179586);
    if (random.Chance(20))
        angle = random.Int(0, 7) * 0.78539816339744831;
    line.p1 = {random.Real(-20, Width + 20), random.Real(-20, Height + 20)};
    line.p2 = {line.p1.x + length * std::cos(angle), line.p1.y + length * std::sin(angle)};
    if (random.Chance(20))
    {
        // Whole ends, so that exact horizontals, verticals and diagonals stay such.
        line.p1 = {std::trunc(line.p1.x), std::trunc(line.p1.y)};
        line.p2 = {line.p1.x + std::round(length * std::cos(angle)), line.p1.y + std::round(length * std::sin(angle))};
    }
    line.cap1 = static_cast<CapStyle>(random.Chance(50) ? 0 : random.Int(0, 7));
    line.cap2 = static_cast<CapStyle>(random.Chance(50) ? 0 : random.Int(0, 7));
    line.ink.width = random.Chance(40) ? random.Int(1, 3) : random.Int(0, 12);
    line.ink.style = random.Chance(60) ? 1 : random.Int(0, 6);
    std::uint32_t const alpha = random.Chance(70) ? 255 : static_cast<std::uint32_t>(random.Int(0, 255));
    std::uint32_t const colour = random.Chance(20) ? 0 : static_cast<std::uint32_t>(random.Next()) & 0xFFFFFFu;
    line.ink.color = _color(alpha << 24 | colour);
    line.clip = random.Chance(80) ? 0 : random.Int(1, 2);
    line.clipRect = {random.Real(0, 80), random.Real(0, 60), random.Real(80, 160), random.Real(60, 120)};
    return line;
}

class CSurface
{
public:
    CSurface() : m_Canvas(Width, Height) {}

    void Draw(SLine const& line, decltype(DrawLine) draw)
    {
        CBasePainter& painter = m_Canvas.Painter();
        painter.SetPen(line.ink);
        painter.ResetClip();
        rectangle<double> const& clip = line.clipRect;
        if (line.clip > 0)
            painter.SetClipRect(clip.left, clip.top, clip.right, clip.bottom, false);
        if (line.clip > 1)
            painter.SetClipRect(clip.left + 10, clip.top + 10, clip.left + 30, clip.top + 20, true);
        draw(&painter, line.p1, line.p2, line.cap1, line.cap2);
    }
    CPixelBuffer& Pixels() { return m_Canvas.Pixels(); }
    void Fill(std::uint32_t pixel)
    {
        for (int y = 0; y < Height; ++y)
            std::fill_n(Pixels().Row(y), Width, pixel);
    }

private:
    tests::CCanvas m_Canvas;
};

// The first pixel that differs; empty if none does.
std::string Compare(CPixelBuffer const& a, CPixelBuffer const& b)
{
    if (std::memcmp(a.Row(0), b.Row(0), sizeof(std::uint32_t) * Width * Height) == 0)
        return {};
    for (int y = 0; y < Height; ++y)
        for (int x = 0; x < Width; ++x)
            if (a.Row(y)[x] != b.Row(y)[x])
            {
                std::ostringstream text;
                text << std::hex << a.Row(y)[x] << " instead of " << b.Row(y)[x] << std::dec << " at " << x << ", "
                     << y;
                return text.str();
            }
    return {};
}

// Whether lines come out the same. `change(line, random)` may make them special.
template <class Change> void CompareLines(int count, Change const& change)
{
    CTestRandom random;
    CSurface fast, slow;
    for (int i = 0; i < count; ++i)
    {
        if (i % 50 == 0)
        {
            std::uint32_t const pixel = 0xFF000000u | static_cast<std::uint32_t>(random.Next());
            fast.Fill(pixel);
            slow.Fill(pixel);
        }
        SLine line = RandomLine(random);
        change(line, random);
        fast.Draw(line, DrawLine);
        slow.Draw(line, DrawLineByContour);
        ASSERT_EQ(Compare(fast.Pixels(), slow.Pixels()), "") << "line " << i << ": " << line;
    }
}

TEST(DrawLineDifference, EveryPixelIsThatOfTheContour)
{
    CompareLines(GetLineCount(10000), [](SLine&, CTestRandom&) {});
}

// Up to the widest that the band takes, and beyond.
TEST(DrawLineDifference, EveryPixelOfAWideLineIsThatOfTheContour)
{
    CompareLines(GetLineCount(10000) / 25,
                 [](SLine& line, CTestRandom& random) { line.ink.width = random.Int(13, 34); });
}

// Long enough for caps that are not cut: up to 65 pixels wide.
TEST(DrawLineDifference, EveryPixelOfALargeArrowIsThatOfTheContour)
{
    CompareLines(GetLineCount(10000) / 100, [](SLine& line, CTestRandom& random) {
        double const angle = random.Real(0, 6.283185307179586);
        double const length = random.Real(240, 320);
        double const dx = length * std::cos(angle);
        double const dy = length * std::sin(angle);
        double const x = random.Real(20, Width - 20);
        double const y = random.Real(20, Height - 20);
        line.p1 = {x, y};
        line.p2 = {x + dx, y + dy};
        if (random.Bool())
            std::swap(line.p1, line.p2);
        line.cap1 = random.Bool() ? CapArrowWide : CapCircle;
        line.cap2 = random.Bool() ? CapArrowWide : CapArrowNarrow;
        line.ink.width = random.Int(24, 32);
    });
}

}  // namespace

}  // namespace vexel
