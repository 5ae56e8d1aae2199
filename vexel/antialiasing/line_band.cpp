#include "vexel/antialiasing/line_band.h"

#include "vexel/antialiasing/detail/band.h"
#include "vexel/antialiasing/detail/line_walk.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace antialiasing
{

namespace
{

constexpr double FurthestEnd = 16777216;

// Lent to one line at a time. What an exception interrupts is not given back.
thread_local std::unique_ptr<detail::CBand> t_Band;

bool HasOneColour(LINE_CONTOUR_PARAMS const& line)
{
    CColorInfo const &a = line.m_StartColor, &b = line.m_EndColor;
    return a.m_Red == b.m_Red && a.m_Green == b.m_Green && a.m_Blue == b.m_Blue && a.m_Alpha == b.m_Alpha &&
           a.m_Red <= 255 && a.m_Green <= 255 && a.m_Blue <= 255;
}

bool FitsBand(LINE_CONTOUR_PARAMS const& line)
{
    auto const isNear = [](double coordinate) { return std::abs(coordinate) <= FurthestEnd; };
    // Ends on pixels are equal or at least one apart; what lies in between would be walked more densely.
    auto const isWhole = [](double coordinate) { return coordinate == std::trunc(coordinate); };
    auto const fits = [&](vexelbase::point<double> const& end) {
        return isNear(end.x) && isNear(end.y) && isWhole(end.x) && isWhole(end.y);
    };
    return line.m_Width <= detail::CBand::WidestLine && line.m_Density == 100 && line.m_Intensity >= 0 &&
           line.m_Intensity <= 255 && line.m_StartCapOffset == 0 && line.m_EndCapOffset == 0 && fits(line.m_Start) &&
           fits(line.m_End) && HasOneColour(line);
}

// How far from the line samples lie.
double Reach(LINE_CONTOUR_PARAMS const& line)
{
    double reach = std::max(static_cast<double>(line.m_Width) - 1, 0.0) / 2;
    double const length = std::hypot(line.m_End.x - line.m_Start.x, line.m_End.y - line.m_Start.y);
    for (CapStyle const style : {line.m_StartCap, line.m_EndCap})
    {
        CLineContour::CapParams cap;
        cap.m_Length = 5;
        cap.Set(style, line.m_Width, length, 0, 0);
        reach = std::max({reach, cap.m_Radius, cap.m_HalfWidth});
    }
    return reach;
}

}  // namespace

bool DrawLineInBand(LINE_CONTOUR_PARAMS const& line, vexelbase::IPainter& painter)
{
    if (!FitsBand(line))
        return false;
    if (line.m_Start == line.m_End)
        return true;  // no length: nothing is stamped

    std::unique_ptr<detail::CBand> band = std::move(t_Band);
    if (!band)
        band = std::make_unique<detail::CBand>();
    band->Begin(line.m_Start, line.m_End, Reach(line), line.m_StartColor, line.m_Intensity / 255.0, painter);

    detail::SLineCursor cursor;
    auto const stamp = [&](unsigned long count) {
        band->MoveTo(cursor.x, cursor.y);
        if (count == 1)
            band->AddRow(cursor.x, cursor.y, {}, 1);
        else
            band->AddRow(cursor.x - cursor.halfSpan.x, cursor.y - cursor.halfSpan.y, cursor.crossStep, count);
    };
    auto const next = [] {};
    detail::WalkLine(
        line, false, cursor,
        [&](CLineContour::CapParams const& cap, bool atStart) {
            detail::WalkCap(cap, atStart, line.m_Density, cursor, stamp, next);
        },
        stamp, next);
    band->End();
    t_Band = std::move(band);
    return true;
}

}  // namespace antialiasing
