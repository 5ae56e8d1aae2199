#pragma once

#include "vexel/antialiasing/detail/convert.h"
#include "vexel/antialiasing/line_contour.h"

#include <cmath>
#include <cstdint>

namespace antialiasing::detail
{

/// Where the walk along a line stands. Whoever stamps the rows reads it.
struct SLineCursor
{
    double x = 0;
    double y = 0;
    double dx = 0;  ///< One step along the line.
    double dy = 0;
    vexelbase::point<double> crossStep;  ///< From one sample of a row to the next.
    vexelbase::point<double> halfSpan;   ///< From the first sample of a row to its middle.
};

/// Walks one cap. `stamp(count)` is to stamp a row at the cursor; `next()` is called once behind each row.
template <class Stamp, class Next>
void WalkCap(CLineContour::CapParams const& cap, bool atStart, unsigned long density, SLineCursor& cursor,
             Stamp const& stamp, Next const& next)
{
    if (cap.m_Style == CapNone || cap.m_Offset > cap.m_Length)
        return;
    std::uint32_t const steps =
        ToUnsigned(std::floor(static_cast<double>(density) * (cap.m_Length - cap.m_Offset) / 100.0 + 0.5));

    // A row of 2 * half + 1 samples from one side to the other.
    auto const row = [&](std::uint32_t half) {
        unsigned long const intervals = 2ul * half;
        if (intervals != 0)
        {
            cursor.crossStep = {2 * cursor.halfSpan.x / static_cast<double>(intervals),
                                2 * cursor.halfSpan.y / static_cast<double>(intervals)};
        }
        stamp(intervals + 1);
        cursor.x += cursor.dx;
        cursor.y += cursor.dy;
    };

    if (cap.m_Style == CapArrowNarrow || cap.m_Style == CapArrowWide)
    {
        vexelbase::point<double> const side{-cursor.dy * cap.m_HalfWidth, cursor.dx * cap.m_HalfWidth};
        double const intervals = static_cast<double>(steps) - 1;
        vexelbase::point<double> growth{side.x / intervals, side.y / intervals};
        cursor.halfSpan = side;
        if (atStart)
            cursor.halfSpan = {};
        else
            growth = {-growth.x, -growth.y};
        if (steps == 0)
            return;
        for (std::uint32_t i = 0; i < steps; ++i)
        {
            double const half = cursor.dy == 0 ? cursor.halfSpan.y / cursor.dx : cursor.halfSpan.x / -cursor.dy;
            row(ToUnsigned(std::ceil(half)));
            cursor.halfSpan.x += growth.x;
            cursor.halfSpan.y += growth.y;
            next();
        }
        return;
    }

    if (steps == 0)
        return;
    double const radius = cap.m_Length / 2;
    double const step = cap.m_Length / steps;
    double place = -radius;
    for (std::uint32_t i = 0; i < steps; ++i)
    {
        double const half = std::sqrt(radius * radius - place * place);
        cursor.halfSpan = {-cursor.dy * half, cursor.dx * half};
        // On a horizontal line this is no number, and the row a single sample.
        row(ToUnsigned(std::ceil(std::abs(cursor.halfSpan.x / -cursor.dy))));
        next();
        place += step;
    }
}

/// Whether a pen of this style is down at sample `i` of a line that is `width` wide.
inline bool IsPenDown(int style, std::uint64_t i, unsigned long width)
{
    switch (style)
    {
    case 1:
        return true;
    case 2:
        return (i / width & 3u) != 0;
    case 3:
        return (i / width & 1u) != 0;
    case 4:
    {
        std::uint64_t const part = i % (6 * width) / width;
        return part != 3 && part != 5;
    }
    case 5:
    {
        std::uint64_t const part = i / width;
        return (part & 1u) != 0 || (part & 7u) == 2;
    }
    default:
        return false;
    }
}

/// Walks start cap, body and end cap of a line, or the caps alone. `cap(params, atStart)` is to walk a cap, `stamp(count)`
/// to stamp a row of the body at the cursor; `next()` is called once behind each place of the body, stamped or not.
template <class Cap, class Stamp, class Next>
void WalkLine(LINE_CONTOUR_PARAMS const& line, bool capsOnly, SLineCursor& cursor, Cap const& cap, Stamp const& stamp,
              Next const& next)
{
    double const width = line.m_End.x - line.m_Start.x, height = line.m_End.y - line.m_Start.y;
    double const length = std::sqrt(width * width + height * height);
    double const density = static_cast<double>(line.m_Density);

    CLineContour::CapParams start, end;
    start.m_Length = end.m_Length = 5;  // what the styles that aren't listed would like
    start.Set(line.m_StartCap, line.m_Width, length, line.m_StartCapOffset, line.m_EndCapOffset);
    end.Set(line.m_EndCap, line.m_Width, length, line.m_EndCapOffset, line.m_StartCapOffset);

    double const count = ToUnsigned(std::ceil(density * length / 100.0));
    cursor.dx = width / count;
    cursor.dy = height / count;
    bool const odd = (line.m_Width & 1u) != 0;
    cursor.x = line.m_Start.x + 0.25 * cursor.dx + (odd && cursor.dx != 0 ? 0 : 0.25);
    cursor.y = line.m_Start.y + 0.25 * cursor.dy + (odd && cursor.dy != 0 ? 0 : 0.25);
    cursor.x -= start.m_Radius * cursor.dx;
    cursor.y -= start.m_Radius * cursor.dy;

    cap(start, true);

    double const startRest = std::fmax(0.0, start.m_Length - start.m_Offset - start.m_Radius);
    double const endRest = std::fmax(0.0, end.m_Length - end.m_Offset - end.m_Radius);
    std::uint32_t const places = ToUnsigned(std::floor(density * (length - startRest - endRest + 0.5) / 100.0));
    if (capsOnly)
    {
        cursor.x += places * cursor.dx;
        cursor.y += places * cursor.dy;
    }
    else
    {
        // The row and the place of the end cap don't depend on whether the pen draws a body.
        double const steps = static_cast<double>(line.m_Width) - 1;
        cursor.crossStep = {-cursor.dy, cursor.dx};
        cursor.halfSpan = {cursor.crossStep.x * steps / 2, cursor.crossStep.y * steps / 2};
        // The patterns begin one width in, but for those of the solid line and the one of dashes and dots.
        std::uint64_t const first = line.m_PenStyle == 1 || line.m_PenStyle == 4 ? 0 : line.m_Width;
        for (std::uint64_t i = first; i < first + places; ++i)
        {
            if (line.m_Width != 0 && IsPenDown(line.m_PenStyle, i, line.m_Width))
                stamp(line.m_Width);
            cursor.x += cursor.dx;
            cursor.y += cursor.dy;
            next();
        }
    }

    cap(end, false);
}

}  // namespace antialiasing::detail
