#pragma once

#include "vexel/export.h"
#include "vexel/platform/font.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/painter.h"

#include <cstdint>

namespace vexelbase
{

class CPixelBuffer;
class IPixelEditor;

/// What a backend must be able to do for the painter. All coordinates are device pixels; rectangles exclude their right
/// and bottom edge and have already been cut to the clip, but not to the surface. Pixels are words 0xFFRRGGBB.
class VEXEL_API IPaintDevice
{
public:
    virtual ~IPaintDevice();

    virtual size<int> GetSize() const = 0;

    // Pixels ------------------------------------------------------------------------------------------------------
    virtual void Fill(rectangle<int> const& area, std::uint32_t pixel, IPainter::RasterOperation operation) = 0;
    virtual std::uint32_t ReadPixel(int x, int y) const = 0;  ///< White outside the surface.
    /// Draws `source` (a part of `picture`) stretched over `target` (nearest pixel), only what lies in `clip`.
    /// What lies beyond the picture draws nothing. The picture is never the device's own target.
    virtual void Blit(rectangle<int> const& target, rectangle<int> const& clip, CPixelBuffer const& picture,
                      rectangle<int> const& source, IPainter::RasterOperation operation) = 0;
    /// Blends one to one: pixel (x, y) of `area` with (x - origin.x, y - origin.y) of the picture. `alpha`: 0 to 255.
    /// What lies beyond the picture blends nothing. The picture is never the device's own target.
    virtual void Blend(rectangle<int> const& area, CPixelBuffer const& picture, point<int> const& origin,
                       int alpha) = 0;
    /// Copies `area` of the surface to `position` of the picture; what lies beyond either is left out.
    virtual void Extract(rectangle<int> const& area, CPixelBuffer& picture, point<int> const& position) = 0;
    /// The pixels that are painted on, so that a picture drawn onto itself is recognized; null if there are none.
    virtual CPixelBuffer const* GetTarget() const { return nullptr; }
    /// Lets the editor change the part of `area` that lies on the surface. By default by ReadPixel and Fill, one by one.
    virtual void Edit(rectangle<int> const& area, IPixelEditor& editor);

    // Text: one unbroken run, UTF-8, ill-formed bytes shown as replacement characters ------------------------------
    struct SRun
    {
        font const* textFont = nullptr;  ///< Effective: family and size set; the factor is still to be applied.
        char const* text = nullptr;
        int length = 0;
        /// Left-top of the upright run; the run is turned about this point by the font's rotation. The point is a corner
        /// between pixels: a run of width w and height h covers the columns x to x + h - 1 and the rows y - w to y - 1
        /// at rotation 900, and the columns x - h to x - 1 and the rows y to y + w - 1 at 2700.
        int x = 0;
        int y = 0;
        std::uint32_t pixel = 0xFF000000u;
        rectangle<int> clip;
    };
    virtual int MeasureRun(font const& textFont, char const* text, int length) = 0;
    virtual void DrawRun(SRun const& run) = 0;
    virtual void GetMetrics(font const& textFont, fontmetrics& metrics) = 0;

    // Parts -------------------------------------------------------------------------------------------------------
    /// Covers `area` wholly with the part's picture, only what lies in `clip`.
    virtual void DrawControlElement(IPainter::ControlElement element, rectangle<int> const& area,
                                    rectangle<int> const& clip, int state) = 0;
};

}  // namespace vexelbase
