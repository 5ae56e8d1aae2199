#include "vexel/platform/memory/memory_painter.h"

#include "vexel/platform/memory/describe.h"
#include "vexel/platform/raster_picture.h"
#include "vexel/platform/xpm.h"

#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <utility>

namespace vexelbase::memory
{

namespace
{

IPaintRecorder* g_Recorder = nullptr;

// The pieces, parted by blanks.
std::string Join(std::initializer_list<std::string> pieces)
{
    std::string text;
    for (std::string const& piece : pieces)
    {
        if (!text.empty() && !piece.empty())
            text += ' ';
        text += piece;
    }
    return text;
}

std::string Numbers(std::initializer_list<double> values)
{
    std::string text;
    for (double const value : values)
        text += (text.empty() ? "" : " ") + DescribeNumber(value);
    return text;
}

std::string Numbers(rectangle<double> const& rect)
{
    return Numbers({rect.left, rect.top, rect.right, rect.bottom});
}

std::string Flags(int flags)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%X", static_cast<unsigned>(flags));
    return text;
}

std::string SizeOf(IRasterPicture* picture)
{
    if (!picture)
        return "null";
    return std::to_string(picture->GetSize().width) + "x" + std::to_string(picture->GetSize().height);
}

std::string Named(IPainter::RasterOperation operation)
{
    switch (operation)
    {
    case IPainter::roCopy:
        return "copy";
    case IPainter::roXor:
        return "xor";
    case IPainter::roAnd:
        return "and";
    }
    return std::to_string(operation);
}

std::string NamedUnlessCopy(IPainter::RasterOperation operation)
{
    return operation == IPainter::roCopy ? std::string() : Named(operation);
}

std::string Quoted(char const* text, int count)
{
    if (!text)
        return "null";
    return DescribeText(count < 0 ? std::string(text)
                                  : std::string(text, ::strnlen(text, static_cast<std::size_t>(count))));
}

}  // namespace

IPaintRecorder::~IPaintRecorder() = default;

IPaintRecorder* SetPaintRecorder(IPaintRecorder* recorder)
{
    return std::exchange(g_Recorder, recorder);
}

/// One call from outside: tells the recorder, and keeps the calls that it makes itself from being told.
class CMemoryPainter::CCall
{
public:
    template <class Text> CCall(CMemoryPainter& painter, Text const& text) : CCall(painter)
    {
        if (g_Recorder && m_Painter.m_Silent == 1)
            g_Recorder->PainterCalled(m_Painter, m_Painter.m_Formatting ? 1 : 0, text());
    }
    explicit CCall(CMemoryPainter& painter) : m_Painter(painter) { ++m_Painter.m_Silent; }
    ~CCall() { --m_Painter.m_Silent; }
    CCall(CCall const&) = delete;
    CCall& operator=(CCall const&) = delete;

private:
    CMemoryPainter& m_Painter;
};

// Bracket, mapping, clip -------------------------------------------------------------------------------------------

void CMemoryPainter::BeginPaint(StdSettings settings)
{
    CCall const call(*this, [&] { return "BeginPaint " + std::to_string(settings); });
    CBasePainter::BeginPaint(settings);
}

void CMemoryPainter::EndPaint()
{
    CCall const call(*this, [] { return "EndPaint"; });
    CBasePainter::EndPaint();
}

void CMemoryPainter::SetCoordSystem(MapMode mode, CoordInfo const* info)
{
    CCall const call(*this, [&] {
        std::string text = "SetCoordSystem " + std::to_string(mode);
        if (info)
            text += " " + Numbers({info->m_LogicalOrigin.x, info->m_LogicalOrigin.y, info->m_LogicalExtent.width,
                                   info->m_LogicalExtent.height, double(info->m_DeviceOrigin.x),
                                   double(info->m_DeviceOrigin.y), double(info->m_DeviceExtent.width),
                                   double(info->m_DeviceExtent.height)});
        return text;
    });
    CBasePainter::SetCoordSystem(mode, info);
}

void CMemoryPainter::SetClipRect(double left, double top, double right, double bottom, bool exclude)
{
    CCall const call(*this, [&] {
        return Join({"SetClipRect", Numbers({left, top, right, bottom}), exclude ? "exclude" : ""});
    });
    CBasePainter::SetClipRect(left, top, right, bottom, exclude);
}

void CMemoryPainter::SimpleSetClipRect(rectangle<double> const& rect, bool exclude)
{
    CCall const call(*this, [&] { return Join({"SimpleSetClipRect", Numbers(rect), exclude ? "exclude" : ""}); });
    CBasePainter::SimpleSetClipRect(rect, exclude);
}

void CMemoryPainter::ResetClip()
{
    CCall const call(*this, [] { return "ResetClip"; });
    CBasePainter::ResetClip();
}

// Tools ------------------------------------------------------------------------------------------------------------

void CMemoryPainter::SetPen(pen const& value)
{
    CCall const call(*this, [&] { return "SetPen " + DescribePen(value); });
    CBasePainter::SetPen(value);
}

void CMemoryPainter::SetBrush(brush const& value)
{
    CCall const call(*this, [&] { return "SetBrush " + DescribeBrush(value); });
    CBasePainter::SetBrush(value);
}

void CMemoryPainter::SetFont(font const& value)
{
    CCall const call(*this, [&] { return "SetFont " + DescribeFont(value); });
    CBasePainter::SetFont(value);
}

void CMemoryPainter::SetTextColor(_color const& color)
{
    CCall const call(*this, [&] { return "SetTextColor " + DescribeColor(color); });
    CBasePainter::SetTextColor(color);
}

void CMemoryPainter::SetBkColor(_color const& color)
{
    CCall const call(*this, [&] { return "SetBkColor " + DescribeColor(color); });
    CBasePainter::SetBkColor(color);
}

void CMemoryPainter::SetDrawMode(RasterOperation mode)
{
    CCall const call(*this, [&] { return "SetDrawMode " + Named(mode); });
    CBasePainter::SetDrawMode(mode);
}

// Shapes -----------------------------------------------------------------------------------------------------------

void CMemoryPainter::MoveTo(double x, double y)
{
    CCall const call(*this, [&] { return "MoveTo " + Numbers({x, y}); });
    CBasePainter::MoveTo(x, y);
}

void CMemoryPainter::LineTo(double x, double y)
{
    CCall const call(*this, [&] { return "LineTo " + Numbers({x, y}); });
    CBasePainter::LineTo(x, y);
}

void CMemoryPainter::Rectangle(double left, double top, double right, double bottom)
{
    CCall const call(*this, [&] { return "Rectangle " + Numbers({left, top, right, bottom}); });
    CBasePainter::Rectangle(left, top, right, bottom);
}

void CMemoryPainter::FillRect(double left, double top, double right, double bottom)
{
    CCall const call(*this, [&] { return "FillRect " + Numbers({left, top, right, bottom}); });
    CBasePainter::FillRect(left, top, right, bottom);
}

void CMemoryPainter::RoundRect(double left, double top, double right, double bottom, double radiusX, double radiusY)
{
    CCall const call(*this, [&] { return "RoundRect " + Numbers({left, top, right, bottom, radiusX, radiusY}); });
    CBasePainter::RoundRect(left, top, right, bottom, radiusX, radiusY);
}

void CMemoryPainter::Polygon(point<double> const* points, int count)
{
    CCall const call(*this, [&] {
        std::string text = "Polygon";
        for (int i = 0; i < count; ++i)
            text += " " + Numbers({points[i].x, points[i].y});
        return text;
    });
    CBasePainter::Polygon(points, count);
}

void CMemoryPainter::FocusRect(double left, double top, double right, double bottom)
{
    CCall const call(*this, [&] { return "FocusRect " + Numbers({left, top, right, bottom}); });
    CBasePainter::FocusRect(left, top, right, bottom);
}

void CMemoryPainter::SetPixel(double x, double y, _color color)
{
    CCall const call(*this, [&] { return Join({"SetPixel", Numbers({x, y}), DescribeColor(color)}); });
    CBasePainter::SetPixel(x, y, color);
}

// Text -------------------------------------------------------------------------------------------------------------

size<double> CMemoryPainter::DrawString(rectangle<double> const& rect, char const* text, int flags, int count)
{
    if (flags & AlignMeasureOnly)
    {
        CCall const call(*this);
        return CBasePainter::DrawString(rect, text, flags, count);
    }
    CCall const call(*this, [&] {
        return Join({"DrawString", Quoted(text, count), Numbers(rect), Flags(flags),
                     count < 0 ? std::string() : std::to_string(count)});
    });
    return CBasePainter::DrawString(rect, text, flags, count);
}

size<double> CMemoryPainter::DrawStringEx(rectangle<double> const& rect, char const* text, int flags, int count,
                                          char const* delimiters, ITextFormatter* formatter)
{
    if (flags & AlignMeasureOnly)
    {
        CCall const call(*this);
        return CBasePainter::DrawStringEx(rect, text, flags, count, delimiters, formatter);
    }
    auto const describe = [&] {
        return Join({"DrawStringEx", Quoted(text, count), Numbers(rect), Flags(flags),
                     count < 0 ? std::string() : std::to_string(count)});
    };
    if (!formatter)
    {
        CCall const call(*this, describe);
        return CBasePainter::DrawStringEx(rect, text, flags, count, delimiters, formatter);
    }
    {
        CCall const call(*this, describe);
    }
    // What the formatter does on its own is told too, one deeper.
    struct SFormatting
    {
        int& depth;
        explicit SFormatting(int& d) : depth(d) { ++depth; }
        ~SFormatting() { --depth; }
    } const formatting(m_Formatting);
    return CBasePainter::DrawStringEx(rect, text, flags, count, delimiters, formatter);
}

size<double> CMemoryPainter::GetTextSize(std::string const& text, font const* textFont, int count, bool logical,
                                         bool rotated)
{
    CCall const call(*this);
    return CBasePainter::GetTextSize(text, textFont, count, logical, rotated);
}

void CMemoryPainter::DrawRun(int x, int y, char const* text, int length)
{
    CCall const call(*this, [&] {
        return Join({"DrawRun", std::to_string(x), std::to_string(y),
                     DescribeText(std::string(text, static_cast<std::size_t>(length)))});
    });
    CBasePainter::DrawRun(x, y, text, length);
}

// Parts and pictures -----------------------------------------------------------------------------------------------

void CMemoryPainter::DrawControlElement(ControlElement element, double left, double top, double right, double bottom,
                                        int state)
{
    CCall const call(*this, [&] {
        return Join({"DrawControlElement", std::to_string(element), Numbers({left, top, right, bottom}), Flags(state)});
    });
    CBasePainter::DrawControlElement(element, left, top, right, bottom, state);
}

void CMemoryPainter::DrawRasterPicture(IRasterPicture* picture, double left, double top, double right, double bottom,
                                       RasterOperation operation)
{
    CCall const call(*this, [&] {
        return Join(
            {"DrawRasterPicture", SizeOf(picture), Numbers({left, top, right, bottom}), NamedUnlessCopy(operation)});
    });
    CBasePainter::DrawRasterPicture(picture, left, top, right, bottom, operation);
}

void CMemoryPainter::DrawRasterPictureEx(IRasterPicture* picture, double left, double top, double right, double bottom,
                                         double sourceLeft, double sourceTop, double sourceRight, double sourceBottom,
                                         RasterOperation operation)
{
    CCall const call(*this, [&] {
        return Join({"DrawRasterPictureEx", SizeOf(picture), Numbers({left, top, right, bottom}), "from",
                     Numbers({sourceLeft, sourceTop, sourceRight, sourceBottom}), NamedUnlessCopy(operation)});
    });
    CBasePainter::DrawRasterPictureEx(picture, left, top, right, bottom, sourceLeft, sourceTop, sourceRight,
                                      sourceBottom, operation);
}

void CMemoryPainter::ExtractRasterPicture(IRasterPicture* picture, double left, double top, double right, double bottom)
{
    CCall const call(*this, [&] {
        return Join({"ExtractRasterPicture", SizeOf(picture), Numbers({left, top, right, bottom})});
    });
    CBasePainter::ExtractRasterPicture(picture, left, top, right, bottom);
}

void CMemoryPainter::ExtractRasterPictureEx(IRasterPicture* picture, double left, double top, double right,
                                            double bottom, double targetLeft, double targetTop, double targetRight,
                                            double targetBottom)
{
    CCall const call(*this, [&] {
        return Join({"ExtractRasterPictureEx", SizeOf(picture), Numbers({left, top, right, bottom}), "to",
                     Numbers({targetLeft, targetTop, targetRight, targetBottom})});
    });
    CBasePainter::ExtractRasterPictureEx(picture, left, top, right, bottom, targetLeft, targetTop, targetRight,
                                         targetBottom);
}

void CMemoryPainter::AlphaBlend(double left, double top, double right, double bottom, IRasterPicture* picture,
                                int alpha)
{
    CCall const call(*this, [&] {
        return Join({"AlphaBlend", SizeOf(picture), Numbers({left, top, right, bottom}), std::to_string(alpha)});
    });
    CBasePainter::AlphaBlend(left, top, right, bottom, picture, alpha);
}

void CMemoryPainter::DrawXPM(XPMImage const& image, double x, double y, int sourceX, int sourceY, int sourceWidth,
                             int sourceHeight, RasterOperation operation)
{
    CCall const call(*this, [&] {
        std::string const extent = std::to_string(image.GetWidth()) + "x" + std::to_string(image.GetHeight());
        std::string part;
        if (sourceX != 0 || sourceY != 0 || sourceWidth != -1 || sourceHeight != -1)
            part = "from " + Numbers({double(sourceX), double(sourceY), double(sourceWidth), double(sourceHeight)});
        return Join({"DrawXPM", extent, Numbers({x, y}), part, NamedUnlessCopy(operation)});
    });
    CBasePainter::DrawXPM(image, x, y, sourceX, sourceY, sourceWidth, sourceHeight, operation);
}

void CMemoryPainter::EditPixels(rectangle<int> const& area, IPixelEditor& editor)
{
    if (g_Recorder && m_Silent == 0)
        IPainter::EditPixels(area, editor);
    else
        CBasePainter::EditPixels(area, editor);
}

}  // namespace vexelbase::memory
