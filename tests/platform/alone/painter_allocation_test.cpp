// A program of its own, since it counts what the whole process allocates.

#include "tests/support/allocation.h"
#include "tests/support/canvas.h"

#include <gtest/gtest.h>

namespace vexelbase::tests
{

namespace
{

// A paint with everything in it but text.
void PaintAll(IPainter& painter, IRasterPicture* picture, font const& longName)
{
    painter.BeginPaint(IPainter::ssPaint);
    painter.SetFont(longName);
    IPainter::CoordInfo info;
    info.m_LogicalExtent = {40, 30};
    info.m_DeviceExtent = {60, 30};
    painter.SetCoordSystem(IPainter::mmCustom, &info);
    painter.SetClipRect(1, 1, 38, 28, false);
    painter.SetClipRect(10, 10, 20, 20, true);
    painter.SetClipRect(15, 15, 25, 25, true);
    for (int mode : {0, 2, 7})
    {
        painter.SetDrawMode(static_cast<IPainter::RasterOperation>(mode));
        for (int style = 0; style <= 6; ++style)
        {
            pen line;
            line.style = style;
            line.width = style;
            painter.SetPen(line);
            painter.SetBrush({Red, style & 1});
            painter.FillRect(0, 0, 39, 29);
            painter.Rectangle(3, 3, 30, 20);
            painter.RoundRect(2, 2, 37, 27, 9, 8);
            point<double> const points[] = {{1, 1}, {35, 9}, {8, 25}, {20, 0}, {30, 28}};
            painter.Polygon(points, 5);
            painter.MoveTo(0, 0);
            painter.LineTo(39, 17);
            painter.FocusRect(4, 4, 34, 24);
            painter.BeginPaint(IPainter::ssMeasure);
            painter.EndPaint();
        }
        for (bool disabled : {false, true})
        {
            auto const operation = static_cast<IPainter::RasterOperation>(mode);
            painter.m_DisabledMode = disabled;
            painter.DrawRasterPicture(picture, 3, 3, 30, 30, operation);
            painter.DrawRasterPictureEx(picture, 3, 3, 30, 25, 0, 0, 9, 9, operation);
            painter.AlphaBlend(0, 0, 30, 30, picture, 100);
        }
        painter.ExtractRasterPicture(picture, 0, 0, 9, 9);
        painter.ExtractRasterPictureEx(picture, 0, 0, 9, 9, 0, 0, 4, 4);
    }
    painter.EndPaint();
}

}  // namespace

TEST(PainterAllocation, IsNoneFromTheSecondPaintOn)
{
    CPixelBuffer pixels({60, 40});
    CPixelDevice device(pixels);
    CBasePainter painter(device, false);
    vexel_ptr<IRasterPicture> const picture = MakeRef<CPixelPicture>(size<int>{10, 10});
    font longName;
    longName.name = "A font whose name is too long to be kept without memory of its own";
    PaintAll(painter, picture.get(), longName);

    EXPECT_EQ(vexel::test::CountAllocations([] { ::operator delete(::operator new(1)); }), 1);
    EXPECT_EQ(vexel::test::CountAllocations([&] { PaintAll(painter, picture.get(), longName); }), 0);
}

}  // namespace vexelbase::tests
