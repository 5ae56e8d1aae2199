#pragma once

#include "vexel/platform/base_painter.h"
#include "vexel/platform/base_picture.h"
#include "vexel/platform/raster_device.h"

#include <string>
#include <vector>

namespace vexelbase::tests
{

/// A device of pixels alone: text is nothing, native parts are areas filled in magenta.
class CPixelDevice : public CRasterDevice
{
public:
    using CRasterDevice::CRasterDevice;

    int MeasureRun(font const&, char const*, int) override { return 0; }
    void DrawRun(SRun const&) override {}
    void GetMetrics(font const&, fontmetrics& metrics) override { metrics = {}; }
    void DrawControlElement(IPainter::ControlElement element, rectangle<int> const& area, rectangle<int> const& clip,
                            int state) override;

    struct SPart
    {
        IPainter::ControlElement element;
        rectangle<int> area;
        rectangle<int> clip;
        int state;
    };
    std::vector<SPart> m_Parts;  ///< What DrawControlElement was called with.
};

/// A picture that is painted on by such a device.
class CPixelPicture : public CBasePicture
{
public:
    using CBasePicture::CBasePicture;

protected:
    std::unique_ptr<IPaintDevice> CreateDevice(CPixelBuffer& pixels) const override;
    vexel_ptr<IRasterPicture> CreateSame(size<int> const& extent) const override;
};

/// Pixels as text, a letter each, rows ended by a line feed: white '.', black '#', red 'r', green 'g', blue 'b',
/// yellow 'y', cyan 'c', magenta 'm', others '?'.
std::string ToText(CPixelBuffer const& pixels);
/// A picture from such a text.
vexel_ptr<IRasterPicture> MakePicture(std::string const& text);

inline _color const White = color_table[9];
inline _color const Black = color_table[1];
inline _color const Red = color_table[6];
inline _color const Green = color_table[13];
inline _color const Blue = color_table[4];
inline _color const Yellow = color_table[3];
inline _color const Cyan = color_table[12];
inline _color const Magenta = color_table[5];
inline _color const NoColor = color_table[0];

/// White pixels with a painter, on which a paint is open. Its first brush is hollow, its first pen black and one wide.
class CCanvas
{
public:
    CCanvas(int width, int height);
    explicit CCanvas(std::string const& text);  ///< As wide, high and coloured as the text picture.

    CBasePainter* operator->() { return &m_Painter; }
    CBasePainter& Painter() { return m_Painter; }
    CPixelBuffer& Pixels() { return m_Pixels; }
    CPixelDevice& Device() { return m_Device; }
    std::string Text() const { return ToText(m_Pixels); }

    void Pen(_color const& color, int style = pen::psSolid, int width = 1);
    void Brush(_color const& color) { m_Painter.SetBrush({color, brush::bsSolid}); }
    void NoBrush() { m_Painter.SetBrush({White, brush::bsNone}); }
    void NoPen() { Pen(Black, pen::psNone); }
    void Line(double x1, double y1, double x2, double y2);
    /// Maps logical (left, top) with an extent onto a device origin and extent.
    void Map(double left, double top, double width, double height, int x, int y, int deviceWidth, int deviceHeight);
    /// Moves what is drawn by whole pixels.
    void Shift(int dx, int dy) { Map(0, 0, 1, 1, dx, dy, 1, 1); }

private:
    CPixelBuffer m_Pixels;
    CPixelDevice m_Device;
    CBasePainter m_Painter;
};

}  // namespace vexelbase::tests
