#pragma once

#include "vexel/export.h"
#include "vexel/platform/geometry.h"

#include <cstddef>
#include <cstdint>
#include <functional>

namespace vexelbase
{

/// A part of a surface, to be changed in place. Pixels are words 0xFFRRGGBB; the top byte must stay 0xFF.
struct SPixelArea
{
    rectangle<int> area;              ///< Device pixels, right and bottom excluded; never empty.
    std::uint32_t* pixels = nullptr;  ///< The left-top one.
    std::ptrdiff_t stride = 0;        ///< From one row to the next.

    std::uint32_t* At(int x, int y) const { return pixels + (y - area.top) * stride + (x - area.left); }
};

/// Who changes pixels in bulk; see IPainter::EditPixels.
class VEXEL_API IPixelEditor
{
public:
    virtual ~IPixelEditor();
    /// Reads and writes pixels of the part, and no others. Must not draw.
    virtual void Edit(SPixelArea const& part) = 0;
};

/// Lets the editor change a copy of the area, for surfaces that don't lie in memory. `read` fetches a pixel, `write` is
/// called with each that the editor changed, row by row.
VEXEL_API void EditPixelCopy(rectangle<int> const& area, IPixelEditor& editor,
                             std::function<std::uint32_t(int x, int y)> const& read,
                             std::function<void(int x, int y, std::uint32_t pixel)> const& write);

}  // namespace vexelbase
