#include "vexel/platform/detail/pen_stroke.h"

#include "vexel/platform/convert.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vexelbase::detail
{

namespace
{

// Lines are walked with whole numbers within this distance of the origin, so that products of two distances fit.
constexpr double LineLimit = 536870912.0;
// What a coordinate may be before a line is cut to the limit; beyond it slopes would lose all meaning.
constexpr double CoordinateLimit = 1e15;

double Tame(double value) { return value != value ? 0.0 : std::clamp(value, -CoordinateLimit, CoordinateLimit); }

std::int64_t FloorDivide(std::int64_t a, std::int64_t b)
{
    std::int64_t const quotient = a / b;
    return a % b != 0 && (a < 0) != (b < 0) ? quotient - 1 : quotient;
}

std::int64_t CountSteps(point<double> const& from, point<double> const& to)
{
    return static_cast<std::int64_t>(
        std::max(std::abs(std::floor(to.x) - std::floor(from.x)), std::abs(std::floor(to.y) - std::floor(from.y))));
}

// Narrows the part [enter, leave] of a line, 0 to 1, to where start + t * distance lies within the limits.
void CutToLimits(double start, double distance, double& enter, double& leave)
{
    if (distance == 0)
    {
        if (std::abs(start) > LineLimit)
            leave = -1;
        return;
    }
    double const a = (-LineLimit - start) / distance;
    double const b = (LineLimit - start) / distance;
    enter = std::max(enter, std::min(a, b));
    leave = std::min(leave, std::max(a, b));
}

bool IsNear(point<double> const& value) { return std::abs(value.x) <= LineLimit && std::abs(value.y) <= LineLimit; }

// The first k in [low, high) for which the test holds, or high; it must hold for all k behind one for which it does.
template <class Test> std::int64_t FindFirst(std::int64_t low, std::int64_t high, Test test)
{
    while (low < high)
    {
        std::int64_t const middle = low + (high - low) / 2;
        if (test(middle))
            high = middle;
        else
            low = middle + 1;
    }
    return low;
}

}  // namespace

SPenPattern const& GetPenPattern(int style)
{
    static constexpr SPenPattern solid;
    static constexpr SPenPattern patterned[] = {
        {2, {6, 3}, 9}, {2, {2, 2}, 4}, {4, {6, 2, 2, 2}, 12}, {6, {6, 2, 2, 2, 2, 2}, 16}, {2, {1, 1}, 2}};
    return style < pen::psDash || style > pen::psAlternate ? solid : patterned[style - pen::psDash];
}

CPenStroke::CPenStroke(int style, int width, rectangle<int> const& visible, IAreaSink& sink)
    : m_Pattern(GetPenPattern(style)), m_Width(std::max(width, 1)), m_Period(m_Width * m_Pattern.period),
      m_Before((m_Width - 1) / 2), m_Behind(m_Width / 2), m_Visible(visible), m_Sink(sink)
{}

void CPenStroke::Run(std::int64_t x, std::int64_t y, int dx, int dy, std::int64_t count)
{
    if (count <= 0)
        return;
    Piece(x, y, dx, dy, count, m_Phase);
    Skip(count);
}

void CPenStroke::Piece(std::int64_t x, std::int64_t y, int dx, int dy, std::int64_t count, std::int64_t phase)
{
    // The steps whose brush touches what is visible.
    std::int64_t const start = dx != 0 ? x : y;
    std::int64_t const low = (dx != 0 ? m_Visible.left : m_Visible.top) - m_Behind;
    std::int64_t const high = (dx != 0 ? m_Visible.right : m_Visible.bottom) + m_Before;  // excluded
    bool const onward = dx + dy > 0;
    std::int64_t const first = std::max<std::int64_t>(0, onward ? low - start : start - high + 1);
    std::int64_t const last = std::min(count, onward ? high - start : start - low + 1);  // excluded
    std::int64_t const across = dx != 0 ? y : x;
    if (first >= last || across + m_Behind < (dx != 0 ? m_Visible.top : m_Visible.left) ||
        across - m_Before >= (dx != 0 ? m_Visible.bottom : m_Visible.right))
        return;
    if (m_Pattern.count == 0)
    {
        Dash(x, y, dx, dy, first, last - first);
        return;
    }

    std::int64_t left = (phase + first) % m_Period;
    int index = 0;
    while (left >= m_Width * m_Pattern.lengths[index])
        left -= m_Width * m_Pattern.lengths[index++];
    for (std::int64_t step = first; step < last;)
    {
        std::int64_t const length = std::min(m_Width * m_Pattern.lengths[index] - left, last - step);
        if (index % 2 == 0)
            Dash(x, y, dx, dy, step, length);
        step += length;
        left = 0;
        index = index + 1 == m_Pattern.count ? 0 : index + 1;
    }
}

void CPenStroke::Dash(std::int64_t x, std::int64_t y, int dx, int dy, std::int64_t first, std::int64_t count)
{
    std::int64_t const x1 = x + dx * first;
    std::int64_t const y1 = y + dy * first;
    std::int64_t const x2 = x1 + dx * (count - 1);
    std::int64_t const y2 = y1 + dy * (count - 1);
    rectangle<int> area{SaturateToInt(std::min(x1, x2) - m_Before), SaturateToInt(std::min(y1, y2) - m_Before),
                        SaturateToInt(std::max(x1, x2) + m_Behind + 1), SaturateToInt(std::max(y1, y2) + m_Behind + 1)};
    area.Intersect(m_Visible);
    if (!area.IsEmpty())
        m_Sink.Area(area);
}

void CPenStroke::Frame(rectangle<int> const& area)
{
    std::int64_t const left = area.left;
    std::int64_t const top = area.top;
    std::int64_t const right = std::int64_t{area.right} - 1;
    std::int64_t const bottom = std::int64_t{area.bottom} - 1;
    if (top == bottom)
    {
        Run(left, top, 1, 0, right - left + 1);
        return;
    }
    if (left == right)
    {
        Run(left, top, 0, 1, bottom - top + 1);
        return;
    }
    Run(left, top, 1, 0, right - left + 1);
    Run(right, top + 1, 0, 1, bottom - top);
    Run(right - 1, bottom, -1, 0, right - left);
    Run(left, bottom - 1, 0, -1, bottom - top - 1);
}

void CPenStroke::Outline(std::vector<point<double>> const& points)
{
    if (points.empty())
        return;
    bool const isPoint = std::all_of(points.begin(), points.end(),
                                     [&](point<double> const& other) {
                                         return FloorToInt(other.x) == FloorToInt(points[0].x) &&
                                                FloorToInt(other.y) == FloorToInt(points[0].y);
                                     });
    if (points.size() <= 2 || isPoint)
    {
        Line(points.front(), points.back(), true);
        return;
    }
    for (std::size_t i = 0; i < points.size(); ++i)
        Line(points[i], points[i + 1 < points.size() ? i + 1 : 0], false);
}

void CPenStroke::Line(point<double> const& from, point<double> const& to, bool withEnd)
{
    point<double> const start{Tame(from.x), Tame(from.y)};
    point<double> const end{Tame(to.x), Tame(to.y)};
    if (IsNear(start) && IsNear(end))
    {
        WalkLine({FloorToInt(start.x), FloorToInt(start.y)}, {FloorToInt(end.x), FloorToInt(end.y)}, withEnd);
        return;
    }

    double const width = end.x - start.x;
    double const height = end.y - start.y;
    double enter = 0;
    double leave = 1;
    CutToLimits(start.x, width, enter, leave);
    CutToLimits(start.y, height, enter, leave);
    std::int64_t const steps = CountSteps(start, end) + (withEnd ? 1 : 0);
    std::int64_t const phase = m_Phase;
    if (enter <= leave)
    {
        point<double> const first{start.x + enter * width, start.y + enter * height};
        point<double> const last{start.x + leave * width, start.y + leave * height};
        Skip(CountSteps(start, first));
        WalkLine({FloorToInt(first.x), FloorToInt(first.y)}, {FloorToInt(last.x), FloorToInt(last.y)},
                 leave < 1 || withEnd);
    }
    m_Phase = phase;
    Skip(steps);
}

void CPenStroke::WalkLine(point<int> const& from, point<int> const& to, bool withEnd)
{
    std::int64_t const width = std::int64_t{to.x} - from.x;
    std::int64_t const height = std::int64_t{to.y} - from.y;
    bool const flat = std::abs(width) >= std::abs(height);
    // Along the longer way one pixel a step, across it the nearest pixel: rounded down from the exact value plus a half,
    // which is the same number whichever end the steps are counted from.
    std::int64_t const along = flat ? width : height;
    std::int64_t const across = flat ? height : width;
    std::int64_t const steps = std::abs(along);
    std::int64_t const count = steps + (withEnd ? 1 : 0);
    int const forward = along < 0 ? -1 : 1;
    if (across == 0)
    {
        Run(from.x, from.y, flat ? forward : 0, flat ? 0 : forward, count);
        return;
    }
    auto const offset = [&](std::int64_t k) { return FloorDivide(2 * k * across + steps, 2 * steps); };

    // The steps that may be seen.
    std::int64_t const start = flat ? from.x : from.y;
    std::int64_t const low = (flat ? m_Visible.left : m_Visible.top) - m_Behind;
    std::int64_t const high = (flat ? m_Visible.right : m_Visible.bottom) + m_Before;
    std::int64_t first = std::max<std::int64_t>(0, forward > 0 ? low - start : start - high + 1);
    std::int64_t last = std::min(count, forward > 0 ? high - start : start - low + 1);
    std::int64_t const startAcross = flat ? from.y : from.x;
    std::int64_t const lowAcross = (flat ? m_Visible.top : m_Visible.left) - m_Behind - startAcross;
    std::int64_t const highAcross = (flat ? m_Visible.bottom : m_Visible.right) + m_Before - startAcross;
    if (across > 0)
    {
        first = FindFirst(first, last, [&](std::int64_t k) { return offset(k) >= lowAcross; });
        last = FindFirst(first, last, [&](std::int64_t k) { return offset(k) >= highAcross; });
    }
    else
    {
        first = FindFirst(first, last, [&](std::int64_t k) { return offset(k) < highAcross; });
        last = FindFirst(first, last, [&](std::int64_t k) { return offset(k) < lowAcross; });
    }

    if (first < last)
    {
        std::int64_t const whole = 2 * steps;
        std::int64_t position = offset(first);
        std::int64_t rest = 2 * first * across + steps - position * whole;
        std::int64_t runStart = first;
        std::int64_t const stepRest = 2 * across;
        auto const emit = [&](std::int64_t behind)
        {
            std::int64_t const x = flat ? from.x + forward * runStart : from.x + position;
            std::int64_t const y = flat ? from.y + position : from.y + forward * runStart;
            Piece(x, y, flat ? forward : 0, flat ? 0 : forward, behind - runStart, m_Phase + runStart);
        };
        for (std::int64_t k = first + 1; k < last; ++k)
        {
            rest += stepRest;
            if (rest >= 0 && rest < whole)
                continue;
            emit(k);
            runStart = k;
            position += rest < 0 ? -1 : 1;
            rest += rest < 0 ? whole : -whole;
        }
        emit(last);
    }
    Skip(count);
}

}  // namespace vexelbase::detail
