#include "vexel/platform/pixel_buffer.h"

#include <algorithm>

namespace vexelbase
{

namespace
{

size<int> WithoutNegative(size<int> const& extent)
{
    return {std::max(extent.width, 0), std::max(extent.height, 0)};
}

std::size_t CountPixels(size<int> const& extent)
{
    return static_cast<std::size_t>(extent.width) * static_cast<std::size_t>(extent.height);
}

}  // namespace

// Windows are resized step by step while their edge is dragged, so that memory is kept, with some in reserve.
void CPixelBuffer::Resize(size<int> const& extent, std::uint32_t pixel)
{
    size<int> const wanted = WithoutNegative(extent);
    if (wanted == m_Size)
        return;
    std::size_t const count = CountPixels(wanted);
    if (count > m_Pixels.capacity() || count < m_Pixels.capacity() / 4)
    {
        Move(wanted, pixel);
        return;
    }

    int const height = std::min(wanted.height, m_Size.height);
    int const kept = std::min(wanted.width, m_Size.width);
    if (count > m_Pixels.size())
        m_Pixels.resize(count);
    std::uint32_t* const pixels = m_Pixels.data();
    auto const from = [&](int y) {
        return pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(m_Size.width);
    };
    auto const to = [&](int y) {
        return pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(wanted.width);
    };
    if (wanted.width < m_Size.width)
    {
        for (int y = 1; y < height; ++y)
            std::copy(from(y), from(y) + kept, to(y));
    }
    else if (wanted.width > m_Size.width)
    {
        for (int y = height - 1; y >= 0; --y)
        {
            std::copy_backward(from(y), from(y) + kept, to(y) + kept);
            std::fill(to(y) + kept, to(y) + wanted.width, pixel);
        }
    }
    m_Pixels.resize(count);
    std::fill(to(height), pixels + count, pixel);
    m_Size = wanted;
}

void CPixelBuffer::Move(size<int> const& wanted, std::uint32_t pixel)
{
    CPixelBuffer resized;
    std::size_t const count = CountPixels(wanted);
    resized.m_Pixels.reserve(m_Pixels.empty() ? count : count + count / 4);
    resized.m_Pixels.assign(count, pixel);
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
