#include "vexel/testing/pixels.h"

#include "vexel/platform/memory/describe.h"

#include <algorithm>
#include <utility>

namespace vexel::test
{

namespace
{

constexpr std::uint32_t ColorBits = 0xFFFFFFu;

std::string DescribePixel(std::uint32_t pixel)
{
    return vexelbase::memory::DescribeColor(CPixelBuffer::ToColor(pixel));
}

std::string DescribeSize(CPixelBuffer const& pixels)
{
    return std::to_string(pixels.GetWidth()) + "x" + std::to_string(pixels.GetHeight());
}

} // namespace

CLegend::CLegend()
{
    constexpr std::pair<char, int> letters[] = {{'.', 9}, {'#', 1},  {'r', 6},  {'g', 13}, {'b', 4}, {'y', 3},
                                                {'c', 12}, {'m', 5}, {'o', 11}, {'e', 8},  {'d', 7}, {'l', 23}};
    for (auto const& [letter, index] : letters)
        Set(letter, vexelbase::color_table[index]);
}

CLegend CLegend::Empty()
{
    CLegend legend;
    legend.m_Entries.clear();
    return legend;
}

CLegend& CLegend::Set(char letter, vexelbase::_color const& color)
{
    std::uint32_t const pixel = CPixelBuffer::ToPixel(color) & ColorBits;
    std::erase_if(m_Entries, [&](SEntry const& entry) { return entry.letter == letter || entry.pixel == pixel; });
    m_Entries.push_back({letter, pixel});
    return *this;
}

char CLegend::GetLetter(std::uint32_t pixel) const
{
    for (SEntry const& entry : m_Entries)
    {
        if (entry.pixel == (pixel & ColorBits))
            return entry.letter;
    }
    return '?';
}

std::string PixelsToText(CPixelBuffer const& pixels, rectangle<int> const& area, CLegend const& legend)
{
    rectangle<int> part = area;
    std::string text;
    if (!pixels.Cut(part))
        return text;
    for (int y = part.top; y < part.bottom; ++y)
    {
        for (int x = part.left; x < part.right; ++x)
            text += legend.GetLetter(pixels.Row(y)[x]);
        text += '\n';
    }
    return text;
}

std::string PixelsToText(CPixelBuffer const& pixels, CLegend const& legend)
{
    return PixelsToText(pixels, {0, 0, pixels.GetWidth(), pixels.GetHeight()}, legend);
}

std::string ComparePixels(CPixelBuffer const& expected, CPixelBuffer const& actual, CLegend const& legend)
{
    if (expected.GetSize() != actual.GetSize())
        return "the pictures have different sizes: " + DescribeSize(expected) + " expected, " + DescribeSize(actual) +
               " found";

    int count = 0;
    point<int> first;
    rectangle<int> where;  // edges included
    for (int y = 0; y < expected.GetHeight(); ++y)
    {
        for (int x = 0; x < expected.GetWidth(); ++x)
        {
            if (((expected.Row(y)[x] ^ actual.Row(y)[x]) & ColorBits) == 0)
                continue;
            if (count++ == 0)
            {
                first = {x, y};
                where = {x, y, x, y};
            }
            where = {std::min(where.left, x), where.top, std::max(where.right, x), y};
        }
    }
    if (count == 0)
        return {};

    // What can be read: the differences with a margin, around the first one where there are many.
    constexpr int margin = 2, most = 72;
    rectangle<int> shown{where.left - margin, where.top - margin, where.right + margin + 1, where.bottom + margin + 1};
    if (shown.Width() > most)
    {
        shown.left = std::max(shown.left, first.x - most / 2);
        shown.right = std::min(shown.right, shown.left + most);
    }
    shown.bottom = std::min(shown.bottom, shown.top + most / 2);
    expected.Cut(shown);

    auto const position = [](int x, int y) { return "(" + std::to_string(x) + ", " + std::to_string(y) + ")"; };
    return "first difference at " + position(first.x, first.y) + ": " + DescribePixel(expected.Row(first.y)[first.x]) +
           " expected, " + DescribePixel(actual.Row(first.y)[first.x]) + " found; " + std::to_string(count) +
           " pixels differ, from " + position(where.left, where.top) + " to " + position(where.right, where.bottom) +
           "\nexpected, from " + position(shown.left, shown.top) + ":\n" + PixelsToText(expected, shown, legend) +
           "found:\n" + PixelsToText(actual, shown, legend);
}

} // namespace vexel::test
