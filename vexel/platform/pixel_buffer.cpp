#include "vexel/platform/pixel_buffer.h"

#include <algorithm>
#include <utility>

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

CPixelBuffer& CPixelBuffer::operator=(CPixelBuffer const& other)
{
    if (this == &other)
        return *this;
    Renew(other.m_Size);
    for (int y = 0; y < m_Size.height; ++y)
        std::copy_n(other.Row(y), m_Size.width, Row(y));
    return *this;
}

CPixelBuffer& CPixelBuffer::operator=(CPixelBuffer&& other) noexcept
{
    if (this == &other)
        return *this;
    m_Pixels = std::exchange(other.m_Pixels, {});
    m_Size = std::exchange(other.m_Size, {});
    m_First = std::exchange(other.m_First, nullptr);
    m_Stride = std::exchange(other.m_Stride, 0);
    return *this;
}

void CPixelBuffer::StandOnOwn()
{
    m_First = m_Pixels.data();
    m_Stride = m_Size.width;
}

void CPixelBuffer::UseOther(std::uint32_t* first, std::ptrdiff_t stride)
{
    m_First = first;
    m_Stride = stride;
}

void CPixelBuffer::UseOwn(bool copy)
{
    std::uint32_t const* from = m_First;
    std::ptrdiff_t const stride = m_Stride;
    bool const other = IsOnOther();
    StandOnOwn();
    if (!other || !copy)
        return;
    for (int y = 0; y < m_Size.height; ++y, from += stride)
        CopyPixelRow(Row(y), from, m_Size.width);
}

// Windows are resized step by step while their edge is dragged, so that memory is kept, with some in reserve.
void CPixelBuffer::Resize(size<int> const& extent, std::uint32_t pixel)
{
    size<int> const wanted = WithoutNegative(extent);
    if (wanted == m_Size)
        return;
    UseOwn(true);
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
    StandOnOwn();
}

void CPixelBuffer::Move(size<int> const& wanted, std::uint32_t pixel)
{
    CPixelBuffer resized;
    std::size_t const count = CountPixels(wanted);
    resized.m_Pixels.reserve(m_Pixels.empty() ? count : count + count / 4);
    resized.m_Pixels.assign(count, pixel);
    resized.m_Size = wanted;
    resized.StandOnOwn();

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
    StandOnOwn();
}

}  // namespace vexelbase
