#pragma once

#include "vexel/platform/geometry.h"
#include "vexel/platform/pen.h"

#include <cstdint>
#include <vector>

namespace vexelbase::detail
{

/// Takes the parts of a figure: device rectangles, half-open, never empty, cut to what is visible.
class IAreaSink
{
public:
    virtual void Area(rectangle<int> const& area) = 0;

protected:
    ~IAreaSink() = default;
};

/// The lengths of a pen style, on and off by turns, in units of the pen's width. Count 0: without gaps.
struct SPenPattern
{
    int count = 0;
    int lengths[6] = {};
    int period = 1;
};
SPenPattern const& GetPenPattern(int style);

/// Draws outlines step by step, one pixel a step, with a square brush in the middle of which the pixel lies; of an even
/// width the brush takes one pixel more to the right and below. The pattern begins at the first step and goes on over
/// all the pieces of the figure. Only what may be seen is walked, however far the figure reaches beyond.
class CPenStroke
{
public:
    /// `visible`: device pixels, half-open; nothing else reaches the sink.
    CPenStroke(int style, int width, rectangle<int> const& visible, IAreaSink& sink);

    /// `count` steps along an axis from the pixel (x, y): one of dx and dy is -1 or 1, the other 0.
    void Run(std::int64_t x, std::int64_t y, int dx, int dy, std::int64_t count);
    /// The steps from one pixel to another; the last one only `withEnd`. The same pixels both ways: of two that are
    /// equally near the lower or the right one.
    /// Coordinates beyond half a billion are cut off where the line crosses that limit.
    void Line(point<double> const& from, point<double> const& to, bool withEnd);
    /// The outline of a rectangle (half-open), clockwise from its left-top, each pixel once.
    void Frame(rectangle<int> const& area);
    /// The closed outline through the points.
    void Outline(std::vector<point<double>> const& points);

private:
    // Steps with a phase of their own; the figure's phase stays.
    void Piece(std::int64_t x, std::int64_t y, int dx, int dy, std::int64_t count, std::int64_t phase);
    void Dash(std::int64_t x, std::int64_t y, int dx, int dy, std::int64_t first, std::int64_t count);
    void Skip(std::int64_t steps) { m_Phase = (m_Phase + steps) % m_Period; }
    void WalkLine(point<int> const& from, point<int> const& to, bool withEnd);

    SPenPattern const& m_Pattern;
    std::int64_t const m_Width;
    std::int64_t const m_Period;
    std::int64_t const m_Before;  // what the brush covers left of and above the pixel
    std::int64_t const m_Behind;  // and right of and below it
    rectangle<int> const m_Visible;
    IAreaSink& m_Sink;
    std::int64_t m_Phase = 0;
};

}  // namespace vexelbase::detail
