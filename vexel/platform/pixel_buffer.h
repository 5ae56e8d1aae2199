#pragma once

#include "vexel/export.h"
#include "vexel/platform/color.h"
#include "vexel/platform/geometry.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace vexelbase
{

/// A 32-bit picture in memory: one word 0xFFRRGGBB a pixel, rows from the top. The memory is its own, without gaps between
/// rows, unless it was told to use another's.
class VEXEL_API CPixelBuffer
{
public:
    CPixelBuffer() = default;
    explicit CPixelBuffer(size<int> const& extent, std::uint32_t pixel = 0xFFFFFFFFu) { Resize(extent, pixel); }
    CPixelBuffer(CPixelBuffer const& other) { *this = other; }
    CPixelBuffer(CPixelBuffer&& other) noexcept { *this = std::move(other); }
    CPixelBuffer& operator=(CPixelBuffer const& other);  ///< The copy has memory of its own.
    CPixelBuffer& operator=(CPixelBuffer&& other) noexcept;
    ~CPixelBuffer() = default;

    size<int> GetSize() const { return m_Size; }
    int GetWidth() const { return m_Size.width; }
    int GetHeight() const { return m_Size.height; }
    rectangle<int> GetRect() const { return {0, 0, m_Size.width, m_Size.height}; }  ///< Half-open.
    std::uint32_t* Row(int y) { return m_First + y * m_Stride; }
    std::uint32_t const* Row(int y) const { return m_First + y * m_Stride; }
    std::ptrdiff_t GetStride() const { return m_Stride; }  ///< Pixels from a row to the next one.
    bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < m_Size.width && y < m_Size.height; }

    /// Takes a new size; what lies in both sizes stays, the rest gets `pixel`. Negative extents count as 0.
    void Resize(size<int> const& extent, std::uint32_t pixel);
    /// Takes a new size for other pixels: what the rows hold afterwards is not told. Keeps the memory for the next time.
    void Renew(size<int> const& extent);

    // Another's memory -----------------------------------------------------------------------------------------------
    /// Has its rows there from now on, `stride` pixels from one to the next, with what stands there; its own memory is
    /// kept. The other memory must last until the picture leaves it, by UseOwn or with a new size.
    void UseOther(std::uint32_t* first, std::ptrdiff_t stride);
    /// Goes back to its own memory; `copy`: with what the rows hold now. Else they hold what they held before UseOther.
    void UseOwn(bool copy);
    bool IsOnOther() const { return m_First != m_Pixels.data(); }

    /// Cuts a half-open rectangle to the picture; false if nothing is left.
    bool Cut(rectangle<int>& area) const
    {
        area.Intersect(GetRect());
        return !area.IsEmpty();
    }

    static constexpr std::uint32_t ToPixel(_color const& color)
    {
        std::uint32_t const v = color.m_Value;
        return 0xFF000000u | (v & 0xFFu) << 16 | (v & 0xFF00u) | (v >> 16 & 0xFFu);
    }
    static constexpr _color ToColor(std::uint32_t pixel)
    {
        return _color(0xFF000000u | (pixel & 0xFFu) << 16 | (pixel & 0xFF00u) | (pixel >> 16 & 0xFFu));
    }

private:
    void Move(size<int> const& wanted, std::uint32_t pixel);
    void StandOnOwn();

    size<int> m_Size;
    std::uint32_t* m_First = nullptr;
    std::ptrdiff_t m_Stride = 0;
    std::vector<std::uint32_t> m_Pixels;
};

/// Copies pixels that don't overlap. In pieces: above some size the C library copies by an instruction that is many times
/// slower where the two places lie at the same distance from a page's beginning, as rows of one picture often do.
inline void CopyPixelRow(std::uint32_t* to, std::uint32_t const* from, int count)
{
    constexpr int piece = 256;
    for (; count > piece; count -= piece, to += piece, from += piece)
        std::memcpy(to, from, piece * sizeof *to);
    std::memcpy(to, from, static_cast<std::size_t>(count) * sizeof *to);
}

}  // namespace vexelbase
