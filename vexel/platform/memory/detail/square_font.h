#pragma once

#include "vexel/platform/font.h"
#include "vexel/platform/geometry.h"

#include <cstdint>
#include <vector>

namespace vexelbase::memory
{

/// One character of a UTF-8 text. Takes it from the front of `text`; a byte that is no part of a character counts as
/// one character of its own, 0xFFFD.
std::uint32_t TakeCharacter(char const*& text, char const* end);
int CountCharacters(char const* text, int length);

/// The square font at one size; see CMemoryDevice.
struct SSquareFont
{
    int px = 1;
    int advance = 1;
    int ascent = 0;
    int descent = 1;
    int style = 0;

    SSquareFont(font const& textFont, double scale);

    /// Appends the rectangles of one character's glyph, left-top of its cell at (x, 0); they don't overlap much.
    void AddGlyph(std::uint32_t character, int x, std::vector<rectangle<int>>& rects) const;
    /// Appends the lines under and through a run.
    void AddLines(int width, std::vector<rectangle<int>>& rects) const;
};

}  // namespace vexelbase::memory
