#pragma once

#include "vexel/platform/geometry.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vexelbase
{

class CPixelBuffer;

namespace qt
{

/// How much of each pixel a glyph covers, 0 to 255. `bits`: `height` rows of `stride` bytes, 0 behind `width`.
struct SCoverage
{
    static constexpr int StrideStep = 8;  ///< Strides are multiples of it, so that groups of pixels can be read whole.

    int left = 0;  ///< From the pen position at the run's left-top, in device pixels.
    int top = 0;
    int width = 0;
    int height = 0;
    int stride = 0;
    std::uint8_t const* bits = nullptr;

    static constexpr int StrideOf(int width) { return (width + StrideStep - 1) / StrideStep * StrideStep; }
    bool IsEmpty() const { return width <= 0 || height <= 0; }
};

/// Quarter turns counter-clockwise.
enum class ETurn : int
{
    None = 0,
    Quarter = 1,
    Half = 2,
    ThreeQuarters = 3
};

/// Turns a coverage about the pen position: the pixel (u, v) of the upright frame goes to (v, -u-1) by a quarter turn.
/// `bits` gets the turned pixels and must live as long as the result is used.
SCoverage TurnCoverage(SCoverage const& upright, ETurn turn, std::vector<std::uint8_t>& bits);

/// Where a rectangle of the upright frame lies after the turn; half-open, relative to the pivot.
rectangle<int> TurnRectangle(rectangle<int> const& upright, ETurn turn);

/// Paints the covered part of each pixel with `pixel`: channel = (new * c + old * (255 - c)) / 255, rounded.
/// (x, y) is the pen position. `clip` must lie within the buffer.
void BlendCoverage(CPixelBuffer& pixels, rectangle<int> const& clip, int x, int y, SCoverage const& coverage,
                   std::uint32_t pixel);

/// Puts premultiplied pixels 0xAARRGGBB over the buffer. `place`: where they lie; `clip` must lie within the buffer.
void BlendPremultiplied(CPixelBuffer& pixels, rectangle<int> const& clip, rectangle<int> const& place,
                        std::uint32_t const* source);

}  // namespace qt
}  // namespace vexelbase
