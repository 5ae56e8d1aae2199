#pragma once

#include "vexel/platform/detail/pen_stroke.h"
#include "vexel/platform/geometry.h"

#include <cstdint>
#include <vector>

namespace vexelbase::detail
{

/// Finds the inside of polygons by the even-odd rule. Its memory is kept from one polygon to the next.
class CPolygonFill
{
public:
    /// Hands over the pixels whose centre lies inside or on the border between two edges, row by row. Of the edges'
    /// lower ends and of level edges nothing is said; who wants the whole border draws it besides.
    void Fill(std::vector<point<double>> const& points, rectangle<int> const& visible, IAreaSink& sink);

private:
    // An edge that crosses rows top to bottom - 1.
    struct SEdge
    {
        int top = 0;
        int bottom = 0;
        int x = 0;            // at the top
        std::int64_t dx = 0;  // over the whole height
    };
    // Where an edge crosses a row: whole + rest / height.
    struct SCrossing
    {
        std::int64_t whole = 0;
        std::int64_t rest = 0;
        std::int64_t height = 1;
    };

    void FillRow(int y, rectangle<int> const& visible, IAreaSink& sink);

    std::vector<SEdge> m_Edges;
    std::vector<SEdge> m_Active;
    std::vector<SCrossing> m_Crossings;
};

}  // namespace vexelbase::detail
