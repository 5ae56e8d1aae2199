#include "vexel/antialiasing/line_contour.h"

#include "vexel/antialiasing/detail/line_walk.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace antialiasing
{

namespace
{

constexpr double NarrowHalfWidth = 0.21255656168466908;  // for a length of 1
constexpr double WideHalfWidth = 0.3249196962561462;
constexpr double LargestCap = 0.4;  // of the line's length
constexpr unsigned long Margin = 5;

bool IsArrow(CapStyle style)
{
    return style == CapArrowNarrow || style == CapArrowWide;
}

double HalfWidthRatio(CapStyle style)
{
    return style == CapArrowNarrow ? NarrowHalfWidth : WideHalfWidth;
}

// How long the cap would like to be, `otherwise` for those that aren't listed.
double NominalLength(CapStyle style, unsigned long width, double otherwise)
{
    switch (style)
    {
    case CapNone:
        return 0;
    case CapArrowNarrow:
    case CapArrowWide:
        return 3 * static_cast<double>(width) + 4;
    case CapCircle:
        return static_cast<double>(width);
    case CapCircle5:
        return 5;
    case CapCircle7:
        return 7;
    case CapCircle10:
        return 10;
    }
    return otherwise;
}

unsigned long WithMargin(double reach)
{
    return detail::ToUnsigned(std::ceil(reach)) + Margin;
}

}  // namespace

LineContourParams::LineContourParams()
{
    m_Width = 1;
    m_Density = 100;
    m_PenStyle = 1;
    m_Intensity = 255;
    m_StartColor.m_Alpha = 255;
    m_EndColor.m_Alpha = 255;
}

void CLineContour::CapParams::Set(CapStyle style, unsigned long width, double length, double offset, double otherOffset)
{
    m_Style = style;
    m_Offset = offset;
    m_Radius = 0;
    m_HalfWidth = 0;
    if (style == CapNone)
    {
        m_Length = 0;
        m_ExtraArea = (width >> 1) + Margin;
        return;
    }
    double const limit = std::min((offset + otherOffset + length) * LargestCap, length);
    m_Length = std::min(limit, NominalLength(style, width, m_Length));
    if (IsArrow(style))
        m_HalfWidth = m_Length * HalfWidthRatio(style);
    else
        m_Radius = m_Length / 2;
    m_ExtraArea = WithMargin(std::max(m_Radius, m_HalfWidth));
}

unsigned long CLineContour::GetExtraArea(CapStyle style, unsigned long width)
{
    if (style == CapNone)
        return (width >> 1) + Margin;
    double const length = std::min(LargestCap * std::numeric_limits<double>::max(), NominalLength(style, width, 5));
    return WithMargin(IsArrow(style) ? length * HalfWidthRatio(style) : length * 0.5);
}

void CLineContour::Generate(CContour* first, CContour* second)
{
    CColorInfo colour = m_StartColor;
    CColorInfoR step;
    bool const gradient = m_StartColor.m_Red != m_EndColor.m_Red || m_StartColor.m_Green != m_EndColor.m_Green ||
                          m_StartColor.m_Blue != m_EndColor.m_Blue || m_StartColor.m_Alpha != m_EndColor.m_Alpha;
    if (gradient)
    {
        // A little less than the whole way, so that rounding doesn't overshoot the end.
        double const length =
            std::sqrt((m_End.x - m_Start.x) * (m_End.x - m_Start.x) + (m_End.y - m_Start.y) * (m_End.y - m_Start.y));
        double const count = detail::ToUnsigned(std::ceil(static_cast<double>(m_Density) * length / 100.0));
        auto const part = [count](unsigned long from, unsigned long to) {
            return (static_cast<double>(to) - static_cast<double>(from)) * 0.999 / (count + 1);
        };
        step.m_Red = part(m_StartColor.m_Red, m_EndColor.m_Red);
        step.m_Green = part(m_StartColor.m_Green, m_EndColor.m_Green);
        step.m_Blue = part(m_StartColor.m_Blue, m_EndColor.m_Blue);
        step.m_Alpha = part(m_StartColor.m_Alpha, m_EndColor.m_Alpha);
    }
    m_Opacity = m_Intensity / 255.0;

    detail::SLineCursor cursor;
    auto const takeSpans = [&] {
        m_CrossStep = cursor.crossStep;
        m_HalfSpan = cursor.halfSpan;
    };
    detail::WalkLine(
        *this, m_CaptionsOnly, cursor,
        [&](CapParams const& cap, bool atStart) {
            if (!atStart)
                takeSpans();
            DrawCaption(cap, atStart, cursor.x, cursor.y, cursor.dx, cursor.dy, colour, step, gradient);
            cursor.crossStep = m_CrossStep;
            cursor.halfSpan = m_HalfSpan;
        },
        [&](unsigned long count) {
            takeSpans();
            AddPoint(cursor.x, cursor.y, colour, count);
        },
        [&] {
            if (gradient)
                colour += step;
        });

    if (first)
        Overlay(first, second);
}

void CLineContour::GenerateCaptionsOnly()
{
    m_CaptionsOnly = true;
    Generate(nullptr, nullptr);
    m_CaptionsOnly = false;
}

void CLineContour::DrawCaption(CapParams cap, bool atStart, double& x, double& y, double dx, double dy,
                               CColorInfo& colour, CColorInfoR& step, bool gradient)
{
    detail::SLineCursor cursor{x, y, dx, dy, m_CrossStep, m_HalfSpan};
    detail::WalkCap(
        cap, atStart, m_Density, cursor,
        [&](unsigned long count) {
            m_CrossStep = cursor.crossStep;
            m_HalfSpan = cursor.halfSpan;
            AddPoint(cursor.x, cursor.y, colour, count);
        },
        [&] {
            if (gradient)
                colour += step;
        });
    m_HalfSpan = cursor.halfSpan;
    x = cursor.x;
    y = cursor.y;
}

void CLineContour::AddPoint(double x, double y, CColorInfo& colour, unsigned long count)
{
    if (count == 0)
        return;
    if (count == 1)
    {
        CContour::AddPoint(x, y, colour, 0, m_Opacity);
        return;
    }
    double px = x - m_HalfSpan.x, py = y - m_HalfSpan.y;
    for (unsigned long i = 0; i < count; ++i)
    {
        CContour::AddPoint(px, py, colour, 0, m_Opacity);
        px += m_CrossStep.x;
        py += m_CrossStep.y;
    }
}

}  // namespace antialiasing
