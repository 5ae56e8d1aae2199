#include "vexel/platform/memory/detail/square_font.h"

#include "vexel/platform/convert.h"

#include <algorithm>

namespace vexelbase::memory
{

namespace
{

constexpr std::uint32_t Replacement = 0xFFFD;

bool IsBlank(std::uint32_t character)
{
    return character <= 0x20 || character == 0x7F || character == 0xA0;
}

// Nine bits, different for all characters below 512.
unsigned PatternOf(std::uint32_t character)
{
    return character < 512 ? character : (character * 2654435761u >> 23) & 511u;
}

}  // namespace

std::uint32_t TakeCharacter(char const*& text, char const* end)
{
    unsigned const first = static_cast<unsigned char>(*text++);
    if (first < 0x80)
        return first;
    int const more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4 || end - text < more)
        return Replacement;
    std::uint32_t value = first & (0x3Fu >> more);
    for (int i = 0; i < more; ++i)
    {
        unsigned const next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0u) != 0x80u)
            return Replacement;
        value = value << 6 | (next & 0x3Fu);
    }
    // Longer than need be, half of a pair, or too large.
    if ((more == 2 && (value < 0x800 || (value >= 0xD800 && value < 0xE000))) ||
        (more == 3 && (value < 0x10000 || value > 0x10FFFF)))
        return Replacement;
    text += more;
    return value;
}

int CountCharacters(char const* text, int length)
{
    char const* const end = text + length;
    int count = 0;
    for (; text < end; ++count)
        TakeCharacter(text, end);
    return count;
}

SSquareFont::SSquareFont(font const& textFont, double scale) : style(textFont.style)
{
    px = std::clamp(ToInt(textFont.size * textFont.factor * scale), 1, 4096);
    advance = px + (style & font::fsBold ? 1 : 0);
    ascent = px * 6 / 8;
    descent = px - ascent;
}

void SSquareFont::AddGlyph(std::uint32_t character, int x, std::vector<rectangle<int>>& rects) const
{
    if (IsBlank(character))
        return;
    int const extent = std::max(px - 1, 1);
    int const inner = extent - 1;  // beside the first row and column
    unsigned const pattern = PatternOf(character);

    std::size_t const start = rects.size();
    rects.push_back({0, 0, extent, 1});
    if (extent > 1)
        rects.push_back({0, 1, 1, extent});
    for (int row = 0; row < 3; ++row)
    {
        for (int column = 0; column < 3; ++column)
        {
            rectangle<int> const block{1 + inner * column / 3, 1 + inner * row / 3, 1 + inner * (column + 1) / 3,
                                       1 + inner * (row + 1) / 3};
            if ((pattern >> (row * 3 + column) & 1u) && !block.IsEmpty())
                rects.push_back(block);
        }
    }

    if (style & font::fsItalic)
    {
        // The upper half leans over; what crosses the middle is parted there.
        int const middle = px / 2;
        std::size_t const end = rects.size();
        for (std::size_t i = start; i < end; ++i)
        {
            rectangle<int> lower = rects[i];
            if (lower.top >= middle)
                continue;
            rects[i].bottom = std::min(lower.bottom, middle);
            rects[i].left += 1;
            rects[i].right += 1;
            lower.top = middle;
            if (!lower.IsEmpty())
                rects.push_back(lower);
        }
    }
    for (std::size_t i = start; i < rects.size(); ++i)
    {
        rects[i].right += style & font::fsBold ? 1 : 0;
        rects[i].Offset(x, 0);
    }
}

void SSquareFont::AddLines(int width, std::vector<rectangle<int>>& rects) const
{
    if (style & font::fsUnderline)
        rects.push_back({0, ascent, width, ascent + 1});
    if (style & font::fsStrikeOut)
        rects.push_back({0, ascent / 2, width, ascent / 2 + 1});
}

}  // namespace vexelbase::memory
