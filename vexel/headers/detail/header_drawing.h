#pragma once

#include "vexel/platform/color.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/palette.h"

namespace vexel::detail
{

using namespace vexelbase;

_color GetSystemColor(ISysPalette::SysColor number);  ///< None without a palette.

/// Pen and brush of the painter, put back at the end.
class CToolsHolder
{
public:
    explicit CToolsHolder(IPainter* painter)
        : m_Painter(painter), m_Pen(painter->GetPen()), m_Brush(painter->GetBrush())
    {}
    ~CToolsHolder()
    {
        m_Painter->SetPen(m_Pen);
        m_Painter->SetBrush(m_Brush);
    }
    CToolsHolder(CToolsHolder const&) = delete;
    CToolsHolder& operator=(CToolsHolder const&) = delete;

private:
    IPainter* const m_Painter;
    pen const m_Pen;
    brush const m_Brush;
};

void FillTriangle(IPainter* painter, point<double> const (&corners)[3], _color const& color);

/// The mark of a sorted section: a triangle in the square of that side with its left-top at (x, y).
void DrawSortTriangle(IPainter* painter, bool up, int x, int y, int side, _color const& color);

rectangle<int> Truncate(rectangle<double> const& rect);

}  // namespace vexel::detail
