#include "vexel/headers/detail/header_drawing.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/system.h"

namespace vexel::detail
{

_color GetSystemColor(ISysPalette::SysColor number)
{
    ISysPalette const* const palette = GetSysPalette();
    return palette ? palette->GetColor(number) : _color();
}

void FillTriangle(IPainter* painter, point<double> const (&corners)[3], _color const& color)
{
    CToolsHolder const holder(painter);
    painter->SetPen({color, pen::psSolid, 1});
    painter->SetBrush({color, brush::bsSolid});
    painter->Polygon(corners, 3);
}

void DrawSortTriangle(IPainter* painter, bool up, int x, int y, int side, _color const& color)
{
    auto const corner = [](int cx, int cy) { return point<double>{static_cast<double>(cx), static_cast<double>(cy)}; };
    int const h = side / 2;
    if (up)
        FillTriangle(painter,
                     {corner(x + (side + 1) / 2, y + h), corner(x + side, y + side - 1), corner(x + 1, y + side - 1)},
                     color);
    else
        FillTriangle(painter, {corner(x, y + h), corner(x + side - 1, y + h), corner(x + h, y + 2 * h)}, color);
}

rectangle<int> Truncate(rectangle<double> const& rect)
{
    return {ToInt(rect.left), ToInt(rect.top), ToInt(rect.right), ToInt(rect.bottom)};
}

}  // namespace vexel::detail
