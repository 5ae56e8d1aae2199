#include "vexel/platform/detail/pixel_transfer.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace vexelbase::detail
{

namespace
{

std::size_t ByteCount(int pixels)
{
    return static_cast<std::size_t>(pixels) * sizeof(std::uint32_t);
}

// Walks along one axis of a stretched picture: the source pixel under the centre of each target pixel,
// floor((2 i + 1) * source extent / (2 * target extent)), without a division per pixel.
class CSourceWalk
{
public:
    /// `index`: of the target pixel to begin with, from the target's first one.
    CSourceWalk(std::int64_t index, std::int64_t sourceExtent, std::int64_t targetExtent)
        : m_Denominator(2 * targetExtent), m_StepWhole(2 * sourceExtent / m_Denominator),
          m_StepRest(2 * sourceExtent % m_Denominator)
    {
        // With i * s = q * t + r, (2 i + 1) * s / (2 t) is q + (2 r + s) / (2 t). Extents and i are below 2^32, so that
        // no product leaves 64 bits.
        std::uint64_t const product = static_cast<std::uint64_t>(index) * static_cast<std::uint64_t>(sourceExtent);
        std::uint64_t const target = static_cast<std::uint64_t>(targetExtent);
        std::int64_t const rest = 2 * static_cast<std::int64_t>(product % target) + sourceExtent;
        m_Position = static_cast<std::int64_t>(product / target) + rest / m_Denominator;
        m_Rest = rest % m_Denominator;
    }

    std::int64_t GetPosition() const { return m_Position; }
    void Next()
    {
        m_Position += m_StepWhole;
        m_Rest += m_StepRest;
        if (m_Rest >= m_Denominator)
        {
            m_Rest -= m_Denominator;
            ++m_Position;
        }
    }

private:
    std::int64_t m_Denominator;
    std::int64_t m_StepWhole;
    std::int64_t m_StepRest;
    std::int64_t m_Position;
    std::int64_t m_Rest;
};

// Sets `width` pixels, by fours; the last four may overlap those before.
inline void FillRow(std::uint32_t* row, int width, std::uint32_t pixel)
{
    if (width < 4)
    {
        for (int x = 0; x < width; ++x)
            row[x] = pixel;
        return;
    }
    std::uint32_t const four[4] = {pixel, pixel, pixel, pixel};
    for (int x = 0; x < width - 4; x += 4)
        std::memcpy(row + x, four, sizeof four);
    std::memcpy(row + width - 4, four, sizeof four);
}

}  // namespace

void FillPixels(CPixelBuffer& target, rectangle<int> const& area, std::uint32_t pixel,
                IPainter::RasterOperation operation)
{
    int const width = area.Width();
    for (int y = area.top; y < area.bottom; ++y)
    {
        std::uint32_t* const row = target.Row(y) + area.left;
        switch (operation)
        {
        case IPainter::roXor:
            for (int x = 0; x < width; ++x)
                row[x] ^= pixel & 0xFFFFFFu;
            break;
        case IPainter::roAnd:
            for (int x = 0; x < width; ++x)
                row[x] &= pixel | 0xFF000000u;
            break;
        default:
            FillRow(row, width, pixel | 0xFF000000u);
        }
    }
}

void CopyPixels(CPixelBuffer& target, rectangle<int> const& area, CPixelBuffer const& source, point<int> const& from,
                IPainter::RasterOperation operation)
{
    int const width = area.Width();
    int const height = area.Height();
    if (operation != IPainter::roXor && operation != IPainter::roAnd)
    {
        // Rows that are still to be read are never written before: down the picture from the last row on.
        bool const fromBelow = from.y < area.top;
        for (int i = 0; i < height; ++i)
        {
            int const y = fromBelow ? height - 1 - i : i;
            std::uint32_t* const to = target.Row(area.top + y) + area.left;
            std::uint32_t const* const drawn = source.Row(from.y + y) + from.x;
            if (&target == &source && from.y == area.top)
                std::memmove(to, drawn, ByteCount(width));
            else
                CopyPixelRow(to, drawn, width);
        }
        return;
    }
    for (int y = 0; y < height; ++y)
    {
        std::uint32_t* const to = target.Row(area.top + y) + area.left;
        std::uint32_t const* const drawn = source.Row(from.y + y) + from.x;
        if (operation == IPainter::roXor)
        {
            for (int x = 0; x < width; ++x)
                to[x] = 0xFF000000u | (to[x] ^ drawn[x]);
        }
        else
        {
            for (int x = 0; x < width; ++x)
                to[x] = 0xFF000000u | (to[x] & drawn[x]);
        }
    }
}

void BlendPixels(CPixelBuffer& target, rectangle<int> const& area, CPixelBuffer const& source, point<int> const& from,
                 int alpha)
{
    std::uint32_t const share = static_cast<std::uint32_t>(alpha);
    std::uint32_t const rest = 255u - share;
    int const width = area.Width();
    for (int y = 0; y < area.Height(); ++y)
    {
        std::uint32_t* const to = target.Row(area.top + y) + area.left;
        std::uint32_t const* const drawn = source.Row(from.y + y) + from.x;
        for (int x = 0; x < width; ++x)
        {
            // Red and blue side by side, 16 bits each.
            std::uint32_t const outer = (drawn[x] & 0xFF00FFu) * share + (to[x] & 0xFF00FFu) * rest;
            std::uint32_t const green = (drawn[x] >> 8 & 0xFFu) * share + (to[x] >> 8 & 0xFFu) * rest;
            to[x] = 0xFF000000u | (DividePairBy255(outer) & 0xFF00FFu) | DivideBy255(green) << 8;
        }
    }
}

void StretchPixels(CPixelBuffer& target, rectangle<int> const& to, rectangle<int> const& area,
                   CPixelBuffer const& source, rectangle<int> const& from, IPainter::RasterOperation operation)
{
    if (to.IsEmpty() || from.IsEmpty() || area.IsEmpty())
        return;
    std::int64_t const toWidth = std::int64_t{to.right} - to.left;
    std::int64_t const toHeight = std::int64_t{to.bottom} - to.top;
    std::int64_t const fromWidth = std::int64_t{from.right} - from.left;
    std::int64_t const fromHeight = std::int64_t{from.bottom} - from.top;

    CSourceWalk const left(std::int64_t{area.left} - to.left, fromWidth, toWidth);
    CSourceWalk down(std::int64_t{area.top} - to.top, fromHeight, toHeight);
    for (int y = area.top; y < area.bottom; ++y, down.Next())
    {
        std::int64_t const sourceY = from.top + down.GetPosition();
        if (sourceY < 0 || sourceY >= source.GetHeight())
            continue;
        std::uint32_t* const row = target.Row(y);
        std::uint32_t const* const drawn = source.Row(static_cast<int>(sourceY));
        CSourceWalk along = left;
        for (int x = area.left; x < area.right; ++x, along.Next())
        {
            std::int64_t const sourceX = from.left + along.GetPosition();
            if (sourceX >= 0 && sourceX < source.GetWidth())
                row[x] = Combine(row[x], drawn[sourceX], operation);
        }
    }
}

}  // namespace vexelbase::detail
