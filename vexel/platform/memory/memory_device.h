#pragma once

#include "vexel/export.h"
#include "vexel/platform/raster_device.h"

#include <vector>

namespace vexelbase::memory
{

/// Paints on a surface in memory: the shared pixel primitives, the square font and plain parts.
///
/// The square font. A character's cell at px = max(1, trunc(size * factor * scale)) is px wide, one more if bold, and
/// px high: ascent px * 6 / 8, descent the rest, no leading. At size 8 and scale 1: 8 wide, 6 + 2 high. Every UTF-8
/// character takes one cell, and so does every byte that is no part of one. Names, families and italics change no
/// width.
///
/// The glyph fills the cell from its left-top but for the last column and the last row with a pattern of blocks that
/// tells characters apart; the whole first row and column of it belong to every visible character. A blank paints
/// nothing. Bold paints the pattern twice, one pixel apart; italic moves the upper half one pixel to the right;
/// underline is the row below the ascent, strike-out the row at half the ascent, both over the whole run.
/// A rotated run is the upright one turned about its left-top: by quarters exactly, otherwise to the nearest pixel.
class VEXEL_MEMORY_API CMemoryDevice : public CRasterDevice
{
public:
    explicit CMemoryDevice(CPixelBuffer& pixels) : CRasterDevice(pixels) {}

    int MeasureRun(font const& textFont, char const* text, int length) override;
    void DrawRun(SRun const& run) override;
    void GetMetrics(font const& textFont, fontmetrics& metrics) override;
    /// Fills the rectangle with a colour of its own for each part and state, within a one-pixel frame; marks get their
    /// sign. Every pixel of the rectangle is painted.
    void DrawControlElement(IPainter::ControlElement element, rectangle<int> const& area, rectangle<int> const& clip,
                            int state) override;

private:
    std::vector<rectangle<int>> m_Glyphs;  // of the run that is being drawn; kept for its memory
};

}  // namespace vexelbase::memory
