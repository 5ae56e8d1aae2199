#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/color.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/pixel_buffer.h"

#include <string>
#include <vector>

namespace vexel::test
{

/// Which letter stands for which colour in a picture written as text. Colours are told apart by their 24 bits.
class VEXEL_TESTING_API CLegend
{
public:
    /// White '.', black '#', red 'r', green 'g', blue 'b', yellow 'y', cyan 'c', magenta 'm', orange 'o', grey 'e',
    /// dark grey 'd', light grey 'l'. Every other colour is '?'.
    CLegend();
    /// No colour at all: every pixel is '?'.
    static CLegend Empty();

    /// The letter stands for the colour from now on, and no longer for another one.
    CLegend& Set(char letter, vexelbase::_color const& color);
    char GetLetter(std::uint32_t pixel) const;  ///< '?' for colours without a letter.

private:
    struct SEntry
    {
        char letter;
        std::uint32_t pixel;
    };
    std::vector<SEntry> m_Entries;
};

/// The part of a picture as text, a letter a pixel, each row ended by a line feed. `area`: right and bottom excluded; cut
/// to the picture.
VEXEL_TESTING_API std::string PixelsToText(vexelbase::CPixelBuffer const& pixels, vexelbase::rectangle<int> const& area,
                                           CLegend const& legend = CLegend());
VEXEL_TESTING_API std::string PixelsToText(vexelbase::CPixelBuffer const& pixels, CLegend const& legend = CLegend());

/// What tells two pictures apart, or an empty text: their sizes; or the first differing pixel with both colours, how many
/// differ and where, and both pictures there as text. Compares the 24 colour bits.
VEXEL_TESTING_API std::string ComparePixels(vexelbase::CPixelBuffer const& expected,
                                            vexelbase::CPixelBuffer const& actual, CLegend const& legend = CLegend());

} // namespace vexel::test
