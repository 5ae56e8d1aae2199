#include "tests/support/canvas.h"

#include <algorithm>

namespace vexelbase::tests
{

namespace
{

struct SLetter
{
    char letter;
    _color color;
};
SLetter const Letters[] = {{'.', White}, {'#', Black},  {'r', Red},  {'g', Green},
                           {'b', Blue},  {'y', Yellow}, {'c', Cyan}, {'m', Magenta}};

char ToLetter(std::uint32_t pixel)
{
    for (SLetter const& entry : Letters)
    {
        if (CPixelBuffer::ToPixel(entry.color) == pixel)
            return entry.letter;
    }
    return '?';
}

CPixelBuffer FromText(std::string const& text)
{
    int const width = static_cast<int>(std::min(text.find('\n'), text.size()));
    int const height = static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    CPixelBuffer pixels({width, height});
    std::size_t at = 0;
    for (int y = 0; y < height; ++y, ++at)
    {
        for (int x = 0; x < width; ++x, ++at)
        {
            for (SLetter const& entry : Letters)
            {
                if (entry.letter == text[at])
                    pixels.Row(y)[x] = CPixelBuffer::ToPixel(entry.color);
            }
        }
    }
    return pixels;
}

}  // namespace

void CPixelDevice::DrawControlElement(IPainter::ControlElement element, rectangle<int> const& area,
                                      rectangle<int> const& clip, int state)
{
    m_Parts.push_back({element, area, clip, state});
    Fill(clip, CPixelBuffer::ToPixel(Magenta), IPainter::roCopy);
}

std::unique_ptr<IPaintDevice> CPixelPicture::CreateDevice(CPixelBuffer& pixels) const
{
    return std::make_unique<CPixelDevice>(pixels);
}

vexel_ptr<IRasterPicture> CPixelPicture::CreateSame(size<int> const& extent) const
{
    return MakeRef<CPixelPicture>(extent);
}

std::string ToText(CPixelBuffer const& pixels)
{
    std::string text;
    for (int y = 0; y < pixels.GetHeight(); ++y)
    {
        for (int x = 0; x < pixels.GetWidth(); ++x)
            text += ToLetter(pixels.Row(y)[x]);
        text += '\n';
    }
    return text;
}

vexel_ptr<IRasterPicture> MakePicture(std::string const& text)
{
    CPixelBuffer const pixels = FromText(text);
    vexel_ptr<IRasterPicture> picture = MakeRef<CPixelPicture>(pixels.GetSize());
    picture->GetPixels() = pixels;
    return picture;
}

CCanvas::CCanvas(int width, int height) : m_Pixels({width, height}), m_Device(m_Pixels), m_Painter(m_Device, false)
{
    m_Painter.BeginPaint(IPainter::ssPaint);
    NoBrush();
}

CCanvas::CCanvas(std::string const& text) : CCanvas(0, 0) { m_Pixels = FromText(text); }

void CCanvas::Pen(_color const& color, int style, int width)
{
    pen value;
    value.color = color;
    value.style = style;
    value.width = width;
    m_Painter.SetPen(value);
}

void CCanvas::Line(double x1, double y1, double x2, double y2)
{
    m_Painter.MoveTo(x1, y1);
    m_Painter.LineTo(x2, y2);
}

void CCanvas::Map(double left, double top, double width, double height, int x, int y, int deviceWidth, int deviceHeight)
{
    IPainter::CoordInfo info;
    info.m_LogicalOrigin = {left, top};
    info.m_LogicalExtent = {width, height};
    info.m_DeviceOrigin = {x, y};
    info.m_DeviceExtent = {deviceWidth, deviceHeight};
    m_Painter.SetCoordSystem(IPainter::mmCustom, &info);
}

}  // namespace vexelbase::tests
