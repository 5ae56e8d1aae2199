#pragma once

#include "vexel/platform/geometry.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/pixel_buffer.h"

#include <cstdint>

namespace vexelbase::detail
{

/// One pixel after drawing: the operation on the 24 colour bits, always opaque.
constexpr std::uint32_t Combine(std::uint32_t below, std::uint32_t drawn, IPainter::RasterOperation operation)
{
    switch (operation)
    {
    case IPainter::roXor:
        return 0xFF000000u | (below ^ drawn);
    case IPainter::roAnd:
        return 0xFF000000u | (below & drawn);
    default:
        return 0xFF000000u | drawn;
    }
}

/// Exact x / 255 for x up to 255 * 255, rounded down.
constexpr std::uint32_t DivideBy255(std::uint32_t x) { return (x + 1u + (x >> 8)) >> 8; }

/// The same for a number in each half of a word. Each quotient is in the lower byte of its half; the upper bytes are waste.
constexpr std::uint32_t DividePairBy255(std::uint32_t x) { return (x + 0x10001u + (x >> 8 & 0xFF00FFu)) >> 8; }

// In all of these `area` lies within `target`. --------------------------------------------------------------------

void FillPixels(CPixelBuffer& target, rectangle<int> const& area, std::uint32_t pixel,
                IPainter::RasterOperation operation);

/// One to one from the picture's position `from`, where all of it lies within `source`.
/// A plain copy may go to and from the same picture, overlapping.
void CopyPixels(CPixelBuffer& target, rectangle<int> const& area, CPixelBuffer const& source, point<int> const& from,
                IPainter::RasterOperation operation);

/// Every channel becomes (source * alpha + target * (255 - alpha)) / 255, for alpha 0..255. Of another picture only.
void BlendPixels(CPixelBuffer& target, rectangle<int> const& area, CPixelBuffer const& source, point<int> const& from,
                 int alpha);

/// The part `from` of the source stretched over `to`, of which only `area` is drawn. A target pixel gets the source
/// pixel under its centre, and stays where that lies beyond the source. Of another picture only.
void StretchPixels(CPixelBuffer& target, rectangle<int> const& to, rectangle<int> const& area,
                   CPixelBuffer const& source, rectangle<int> const& from, IPainter::RasterOperation operation);

/// The shade of a pixel in something disabled: (77 red + 150 green + 29 blue) / 256 in all channels, rounded down.
/// Black and white stay what they are, so that masks keep working.
constexpr std::uint32_t ToGrey(std::uint32_t pixel)
{
    std::uint32_t const level =
        (77u * (pixel >> 16 & 0xFFu) + 150u * (pixel >> 8 & 0xFFu) + 29u * (pixel & 0xFFu)) >> 8;
    return 0xFF000000u | level << 16 | level << 8 | level;
}

}  // namespace vexelbase::detail
