#include "vexel/platform/painter.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/paint_device.h"
#include "vexel/platform/pixel_buffer.h"
#include "vexel/platform/pixel_editor.h"

namespace vexelbase
{

namespace
{

using Conversion = void (IPainter::*)(point<double>*, bool) const;

// A rectangle's corners, by way of two consecutive points.
void ConvertCorners(IPainter const& painter, Conversion conversion, rectangle<double>& value, bool extent)
{
    point<double> corners[2] = {value.LeftTop(), value.RightBottom()};
    (painter.*conversion)(corners, extent);
    value = {corners[0].x, corners[0].y, corners[1].x, corners[1].y};
}

}  // namespace

IPainter::~IPainter() = default;
IPaintDevice::~IPaintDevice() = default;

void IPainter::ConvertCoord2(rectangle<double>* value, bool extent) const
{
    ConvertCorners(*this, &IPainter::ConvertCoord2, *value, extent);
}

void IPainter::DeconvertCoord2(rectangle<double>* value, bool extent) const
{
    ConvertCorners(*this, &IPainter::DeconvertCoord2, *value, extent);
}

size<double> IPainter::DrawString(rectangle<double> const& rect, std::string const& text, int flags, int count)
{
    int const length = SaturateToInt(static_cast<std::int64_t>(text.size()));
    return DrawString(rect, text.c_str(), flags, count < 0 || count > length ? length : count);
}

void IPainter::EditPixels(rectangle<int> const& area, IPixelEditor& editor)
{
    EditPixelCopy(
        area, editor, [this](int x, int y) { return CPixelBuffer::ToPixel(GetPixel(x, y)); },
        [this](int x, int y, std::uint32_t pixel) { SetPixel(x, y, CPixelBuffer::ToColor(pixel)); });
}

void IPaintDevice::Edit(rectangle<int> const& area, IPixelEditor& editor)
{
    rectangle<int> part = area;
    part.Intersect({0, 0, GetSize().width, GetSize().height});
    EditPixelCopy(
        part, editor, [this](int x, int y) { return ReadPixel(x, y); },
        [this](int x, int y, std::uint32_t pixel) {
            Fill({x, y, x + 1, y + 1}, pixel, IPainter::roCopy);
        });
}

}  // namespace vexelbase
