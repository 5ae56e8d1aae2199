#include "vexel/platform/detail/polygon_fill.h"

#include "vexel/platform/convert.h"

#include <algorithm>

namespace vexelbase::detail
{

namespace
{

// Products of two distances must fit 64 bits.
constexpr int PointLimit = 536870912;

point<int> ToPixel(point<double> const& value)
{
    return {std::clamp(FloorToInt(value.x), -PointLimit, PointLimit),
            std::clamp(FloorToInt(value.y), -PointLimit, PointLimit)};
}

}  // namespace

void CPolygonFill::Fill(std::vector<point<double>> const& points, rectangle<int> const& visible, IAreaSink& sink)
{
    m_Edges.clear();
    m_Active.clear();
    int lowest = visible.top;
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        point<int> a = ToPixel(points[i]);
        point<int> b = ToPixel(points[i + 1 < points.size() ? i + 1 : 0]);
        if (a.y > b.y)
            std::swap(a, b);
        if (a.y == b.y || b.y <= visible.top || a.y >= visible.bottom)
            continue;
        m_Edges.push_back({a.y, b.y, a.x, std::int64_t{b.x} - a.x});
        lowest = std::max(lowest, b.y);
    }
    std::sort(m_Edges.begin(), m_Edges.end(), [](SEdge const& a, SEdge const& b) { return a.top < b.top; });

    std::size_t next = 0;
    int const end = std::min(visible.bottom, lowest);
    for (int y = visible.top; y < end; ++y)
    {
        auto const isOver = [y](SEdge const& edge) { return edge.bottom <= y; };
        m_Active.erase(std::remove_if(m_Active.begin(), m_Active.end(), isOver), m_Active.end());
        for (; next < m_Edges.size() && m_Edges[next].top <= y; ++next)
            m_Active.push_back(m_Edges[next]);
        FillRow(y, visible, sink);
    }
}

void CPolygonFill::FillRow(int y, rectangle<int> const& visible, IAreaSink& sink)
{
    m_Crossings.clear();
    for (SEdge const& edge : m_Active)
    {
        std::int64_t const height = std::int64_t{edge.bottom} - edge.top;
        std::int64_t const product = (std::int64_t{y} - edge.top) * edge.dx;
        std::int64_t whole = product / height;
        std::int64_t rest = product % height;
        if (rest < 0)
        {
            --whole;
            rest += height;
        }
        m_Crossings.push_back({edge.x + whole, rest, height});
    }
    std::sort(m_Crossings.begin(), m_Crossings.end(),
              [](SCrossing const& a, SCrossing const& b)
              { return a.whole != b.whole ? a.whole < b.whole : a.rest * b.height < b.rest * a.height; });

    for (std::size_t i = 0; i + 1 < m_Crossings.size(); i += 2)
    {
        SCrossing const& enter = m_Crossings[i];
        SCrossing const& leave = m_Crossings[i + 1];
        rectangle<int> span{SaturateToInt(enter.whole + (enter.rest > 0 ? 1 : 0)), y, SaturateToInt(leave.whole + 1),
                            y + 1};
        span.Intersect(visible);
        if (!span.IsEmpty())
            sink.Area(span);
    }
}

}  // namespace vexelbase::detail
