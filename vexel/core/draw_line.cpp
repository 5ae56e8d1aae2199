#include "vexel/core/draw_line.h"

#include "vexel/antialiasing/line_band.h"
#include "vexel/antialiasing/line_contour.h"
#include "vexel/core/drawing_context.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"

#include <algorithm>
#include <cmath>

namespace vexel
{

namespace
{

using antialiasing::LINE_CONTOUR_PARAMS;

// The line in device pixels. It runs from the second end to the first.
antialiasing::LineContourParams ToDeviceLine(IPainter& painter, point<double> p1, point<double> p2, CapStyle cap1,
                                             CapStyle cap2)
{
    painter.ConvertCoord1(&p1, false);
    painter.ConvertCoord1(&p2, false);
    pen const ink = painter.GetPen();

    antialiasing::LineContourParams line;
    line.m_Start = {std::trunc(p2.x), std::trunc(p2.y)};
    line.m_End = {std::trunc(p1.x), std::trunc(p1.y)};
    line.m_StartCap = static_cast<antialiasing::CapStyle>(cap2);
    line.m_EndCap = static_cast<antialiasing::CapStyle>(cap1);
    line.m_Width = static_cast<unsigned long>(std::max(ink.width, 0));
    line.m_PenStyle = ink.style;
    line.m_StartColor.m_Red = static_cast<unsigned long>(ink.color.Red());
    line.m_StartColor.m_Green = static_cast<unsigned long>(ink.color.Green());
    line.m_StartColor.m_Blue = static_cast<unsigned long>(ink.color.Blue());
    line.m_EndColor = line.m_StartColor;
    line.m_Intensity = ToInt(ink.color.Alpha() * 0.85);
    return line;
}

void DrawByContour(IPainter& painter, LINE_CONTOUR_PARAMS const& line)
{
    antialiasing::CLineContour contour;
    static_cast<LINE_CONTOUR_PARAMS&>(contour) = line;
    contour.Generate(nullptr, nullptr);
    contour.Normalize(254);
    CDrawingContext context(&painter);
    contour.Draw(&context);
}

// Draws on the plain device. What throws leaves the painter in that state.
template <class Draw> void OnDevice(IPainter& painter, Draw const& draw)
{
    IPainter::MapMode mode = IPainter::mmDevice;
    IPainter::CoordInfo info;
    painter.GetCoordSystem(mode, &info);
    painter.SetCoordSystem(IPainter::mmDevice, nullptr);
    draw();
    painter.SetCoordSystem(mode, &info);
}

}  // namespace

void DrawLine(IPainter* painter, point<double> const& p1, point<double> const& p2, CapStyle cap1, CapStyle cap2)
{
    antialiasing::LineContourParams const line = ToDeviceLine(*painter, p1, p2, cap1, cap2);
    OnDevice(*painter, [&] {
        if (!antialiasing::DrawLineInBand(line, *painter))
            DrawByContour(*painter, line);
    });
}

void DrawLineByContour(IPainter* painter, point<double> const& p1, point<double> const& p2, CapStyle cap1,
                       CapStyle cap2)
{
    antialiasing::LineContourParams const line = ToDeviceLine(*painter, p1, p2, cap1, cap2);
    OnDevice(*painter, [&] { DrawByContour(*painter, line); });
}

}  // namespace vexel
