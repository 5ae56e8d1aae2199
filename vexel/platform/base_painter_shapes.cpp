#include "vexel/platform/base_painter.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/detail/base_painter_scratch.h"
#include "vexel/platform/detail/pen_stroke.h"
#include "vexel/platform/detail/round_corner.h"
#include "vexel/platform/pixel_buffer.h"

#include <algorithm>
#include <cmath>

namespace vexelbase
{

namespace
{

void FillRound(rectangle<int> const& area, detail::CRoundCorner const& corner, rectangle<int> const& visible,
               detail::IAreaSink& sink)
{
    auto const fill = [&](int left, int top, int right, int bottom) {
        rectangle<int> part{left, top, right, bottom};
        part.Intersect(visible);
        if (!part.IsEmpty())
            sink.Area(part);
    };
    auto const isVisible = [&](int y) { return y >= visible.top && y < visible.bottom; };
    for (int row = 0; row < corner.GetRadiusY(); ++row)
    {
        int const upper = area.top + row;
        int const lower = area.bottom - 1 - row;
        if (!isVisible(upper) && !isVisible(lower))
            continue;
        int const inset = corner.GetInset(row);
        fill(area.left + inset, upper, area.right - inset, upper + 1);
        fill(area.left + inset, lower, area.right - inset, lower + 1);
    }
    fill(area.left, area.top + corner.GetRadiusY(), area.right, area.bottom - corner.GetRadiusY());
}

// Clockwise from the left end of the top edge.
void StrokeRound(rectangle<int> const& area, detail::CRoundCorner const& corner, detail::CPenStroke& stroke)
{
    std::int64_t const left = area.left;
    std::int64_t const top = area.top;
    std::int64_t const right = std::int64_t{area.right} - 1;
    std::int64_t const bottom = std::int64_t{area.bottom} - 1;
    int const inset = corner.GetInset(0);
    int const rows = corner.GetRadiusY();
    std::int64_t const side = bottom - top + 1 - 2 * std::int64_t{rows};

    stroke.Run(left + inset, top, 1, 0, right - left + 1 - 2 * inset);
    for (int row = 1; row < rows; ++row)
    {
        int const length = corner.GetOutlineLength(row);
        stroke.Run(right - corner.GetInset(row) - length + 1, top + row, 1, 0, length);
    }
    stroke.Run(right, top + rows, 0, 1, side);
    for (int row = rows - 1; row > 0; --row)
        stroke.Run(right - corner.GetInset(row), bottom - row, -1, 0, corner.GetOutlineLength(row));
    stroke.Run(right - inset, bottom, -1, 0, right - left + 1 - 2 * inset);
    for (int row = 1; row < rows; ++row)
    {
        int const length = corner.GetOutlineLength(row);
        stroke.Run(left + corner.GetInset(row) + length - 1, bottom - row, -1, 0, length);
    }
    stroke.Run(left, bottom - rows, 0, -1, side);
    for (int row = rows - 1; row > 0; --row)
        stroke.Run(left + corner.GetInset(row), top + row, 1, 0, corner.GetOutlineLength(row));
}

}  // namespace

/// Fills areas in one colour.
class CBasePainter::CFillSink final : public detail::IAreaSink
{
public:
    CFillSink(CBasePainter& painter, std::uint32_t pixel, RasterOperation operation)
        : m_Painter(painter), m_Pixel(pixel), m_Operation(operation)
    {}

    void Area(rectangle<int> const& area) override { m_Painter.FillDevice(area, m_Pixel, m_Operation); }

private:
    CBasePainter& m_Painter;
    std::uint32_t m_Pixel;
    RasterOperation m_Operation;
};

/// Gathers areas that may overlap and fills each pixel once at the end.
class CBasePainter::CUnionSink final : public detail::IAreaSink
{
public:
    CUnionSink(detail::IAreaSink& sink, std::vector<SScratch::SSpan>& spans) : m_Sink(sink), m_Spans(spans)
    {
        m_Spans.clear();
    }

    void Area(rectangle<int> const& area) override
    {
        if (area == m_Last)
            return;
        m_Last = area;
        for (int y = area.top; y < area.bottom; ++y)
            m_Spans.push_back({y, area.left, area.right});
        if (m_Spans.size() > m_Limit)
        {
            Join();
            m_Limit = 2 * m_Spans.size() + FirstLimit;
        }
    }

    void Flush()
    {
        Join();
        for (SScratch::SSpan const& span : m_Spans)
            m_Sink.Area({span.left, span.y, span.right, span.y + 1});
    }

private:
    // Of a long outline with a wide pen there may be far more spans than pixels, so they are joined on the way too.
    static constexpr std::size_t FirstLimit = 50000;

    void Join()
    {
        std::sort(m_Spans.begin(), m_Spans.end(), [](SScratch::SSpan const& a, SScratch::SSpan const& b) {
            return a.y != b.y ? a.y < b.y : a.left < b.left;
        });
        std::size_t count = 0;
        for (SScratch::SSpan const& span : m_Spans)
        {
            if (count > 0 && m_Spans[count - 1].y == span.y && span.left <= m_Spans[count - 1].right)
                m_Spans[count - 1].right = std::max(m_Spans[count - 1].right, span.right);
            else
                m_Spans[count++] = span;
        }
        m_Spans.resize(count);
    }

    detail::IAreaSink& m_Sink;
    std::vector<SScratch::SSpan>& m_Spans;
    std::size_t m_Limit = FirstLimit;
    rectangle<int> m_Last;
};

// Draws an outline with the pen. `overlaps`: its steps may meet the same pixel twice even with a pen of width 1.
template <class Draw> void CBasePainter::DrawOutline(bool overlaps, Draw draw)
{
    rectangle<int> const visible = GetVisible();
    if (!HasPen() || visible.IsEmpty())
        return;
    CFillSink fill(*this, CPixelBuffer::ToPixel(m_Pen.color), m_DrawMode);
    if (m_DrawMode != roXor || (!overlaps && m_Pen.width <= 1))
    {
        detail::CPenStroke stroke(m_Pen.style, m_Pen.width, visible, fill);
        draw(stroke);
        return;
    }
    CUnionSink united(fill, Scratch().spans);
    detail::CPenStroke stroke(m_Pen.style, m_Pen.width, visible, united);
    draw(stroke);
    united.Flush();
}

void CBasePainter::MoveTo(double x, double y)
{
    m_Position = {x, y};
}

void CBasePainter::LineTo(double x, double y)
{
    point<double> const from{m_AxisX.Map(m_Position.x), m_AxisY.Map(m_Position.y)};
    point<double> const to{m_AxisX.Map(x), m_AxisY.Map(y)};
    m_Position = {x, y};
    DrawOutline(false, [&](detail::CPenStroke& stroke) { stroke.Line(from, to, true); });
}

void CBasePainter::FillRect(double left, double top, double right, double bottom)
{
    if (HasBrush())
        FillDevice(ToDevice(left, top, right, bottom), CPixelBuffer::ToPixel(m_Brush.color), roCopy);
}

void CBasePainter::Rectangle(double left, double top, double right, double bottom)
{
    rectangle<int> const area = ToDevice(left, top, right, bottom);
    if (HasBrush())
        FillDevice(area, CPixelBuffer::ToPixel(m_Brush.color), roCopy);
    DrawOutline(false, [&](detail::CPenStroke& stroke) { stroke.Frame(area); });
}

void CBasePainter::RoundRect(double left, double top, double right, double bottom, double radiusX, double radiusY)
{
    rectangle<int> const area = ToDevice(left, top, right, bottom);
    auto const radius = [](double extent, int start, int end) {
        std::int64_t const half = (std::int64_t{end} - start) / 2;
        return static_cast<int>(std::min<std::int64_t>(FloorToInt(std::abs(extent)), half));
    };
    detail::CRoundCorner const corner(radius(m_AxisX.MapExtent(radiusX), area.left, area.right),
                                      radius(m_AxisY.MapExtent(radiusY), area.top, area.bottom));
    if (corner.GetRadiusX() < 1 || corner.GetRadiusY() < 1)
    {
        Rectangle(left, top, right, bottom);
        return;
    }
    if (HasBrush())
    {
        CFillSink sink(*this, CPixelBuffer::ToPixel(m_Brush.color), roCopy);
        FillRound(area, corner, GetVisible(), sink);
    }
    DrawOutline(false, [&](detail::CPenStroke& stroke) { StrokeRound(area, corner, stroke); });
}

void CBasePainter::Polygon(point<double> const* points, int count)
{
    if (!points || count <= 0)
        return;
    std::vector<point<double>>& corners = Scratch().points;
    corners.clear();
    for (int i = 0; i < count; ++i)
        corners.push_back({m_AxisX.Map(points[i].x), m_AxisY.Map(points[i].y)});

    rectangle<int> const visible = GetVisible();
    if (visible.IsEmpty())
        return;
    if (HasBrush())
    {
        CFillSink sink(*this, CPixelBuffer::ToPixel(m_Brush.color), roCopy);
        Scratch().fill.Fill(corners, visible, sink);
        detail::CPenStroke border(pen::psSolid, 1, visible, sink);
        border.Outline(corners);
    }
    DrawOutline(true, [&](detail::CPenStroke& stroke) { stroke.Outline(corners); });
}

void CBasePainter::FocusRect(double left, double top, double right, double bottom)
{
    rectangle<int> const visible = GetVisible();
    if (visible.IsEmpty())
        return;
    CFillSink sink(*this, 0xFFFFFFFFu, roXor);
    detail::CPenStroke stroke(pen::psAlternate, 1, visible, sink);
    stroke.Frame(ToDevice(left, top, right, bottom));
}

void CBasePainter::SetPixel(double x, double y, _color color)
{
    if (!color.m_None)
        FillDevice(ToDevice(x, y, x, y), CPixelBuffer::ToPixel(color), roCopy);
}

_color CBasePainter::GetPixel(double x, double y) const
{
    point<int> const position = ToDevice(x, y);
    return CPixelBuffer::ToColor(m_Device.ReadPixel(position.x, position.y));
}

void CBasePainter::EditPixels(rectangle<int> const& area, IPixelEditor& editor)
{
    m_Clip.ForEach(area, [&](rectangle<int> const& part) { m_Device.Edit(part, editor); });
}

}  // namespace vexelbase
