#include "vexel/platform/pixel_buffer.h"

#include <algorithm>

namespace vexelbase
{

namespace
{

size<int> WithoutNegative(size<int> const& extent) { return {std::max(extent.width, 0), std::max(extent.height, 0)}; }

std::size_t CountPixels(size<int> const& extent)
{
    return static_cast<std::size_t>(extent.width) * static_cast<std::size_t>(extent.height);
}

}  // namespace

void CPixelBuffer::Resize(size<int> const& extent, std::uint32_t pixel)
{
    size<int> const wanted = WithoutNegative(extent);
    if (wanted == m_Size)
        return;
    CPixelBuffer resized;
    resized.m_Pixels.assign(CountPixels(wanted), pixel);
    resized.m_Size = wanted;

    int const width = std::min(wanted.width, m_Size.width);
    int const height = std::min(wanted.height, m_Size.height);
    for (int y = 0; y < height; ++y)
        std::copy_n(Row(y), width, resized.Row(y));
    *this = std::move(resized);
}

void CPixelBuffer::Renew(size<int> const& extent)
{
    size<int> const wanted = WithoutNegative(extent);
    m_Size = {};
    m_Pixels.resize(CountPixels(wanted));
    m_Size = wanted;
}

}  // namespace vexelbase
