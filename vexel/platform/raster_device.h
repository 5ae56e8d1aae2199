#pragma once

#include "vexel/export.h"
#include "vexel/platform/paint_device.h"
#include "vexel/platform/pixel_buffer.h"

#include <array>

namespace vexelbase
{

/// Rectangles that together cover what was touched. Adding never loses a pixel. Where there are too many they become one,
/// and from then on, until the next Clear, only half as many are kept apart: so a paint of everything costs little.
class VEXEL_API CDamage
{
public:
    static constexpr int Capacity = 128;

    void Add(rectangle<int> const& area);  ///< Half-open; an empty one is ignored.
    void Clear()
    {
        m_Count = 0;
        m_Limit = Capacity;
    }
    int GetCount() const { return m_Count; }
    rectangle<int> const& operator[](int index) const { return m_Rects[static_cast<std::size_t>(index)]; }

private:
    void Remove(int index);
    rectangle<int>& At(int index) { return m_Rects[static_cast<std::size_t>(index)]; }

    int m_Count = 0;
    int m_Limit = Capacity;
    int m_Last = 0;  // the one that took up the last area
    std::array<rectangle<int>, Capacity> m_Rects;
};

/// Pixel primitives on a CPixelBuffer, which backends share; text and native parts are the backend's.
/// Keeps account of what was touched.
class VEXEL_API CRasterDevice : public IPaintDevice
{
public:
    explicit CRasterDevice(CPixelBuffer& pixels) : m_Pixels(pixels) {}

    size<int> GetSize() const override { return m_Pixels.GetSize(); }
    void Fill(rectangle<int> const& area, std::uint32_t pixel, IPainter::RasterOperation operation) override;
    std::uint32_t ReadPixel(int x, int y) const override;
    void Blit(rectangle<int> const& target, rectangle<int> const& clip, CPixelBuffer const& picture,
              rectangle<int> const& source, IPainter::RasterOperation operation) override;
    void Blend(rectangle<int> const& area, CPixelBuffer const& picture, point<int> const& origin, int alpha) override;
    void Extract(rectangle<int> const& area, CPixelBuffer& picture, point<int> const& position) override;
    CPixelBuffer const* GetTarget() const override { return &m_Pixels; }
    void Edit(rectangle<int> const& area, IPixelEditor& editor) override;  ///< In place.

    /// Moves the pixels of `area` now, overlaps included; source and target are cut to the surface.
    /// Returns false if some target pixel of the surface had its source outside.
    bool Move(rectangle<int> const& area, int dx, int dy);

    CPixelBuffer& GetPixels() { return m_Pixels; }
    CPixelBuffer const& GetPixels() const { return m_Pixels; }
    CDamage& GetDamage() { return m_Damage; }

protected:
    /// Cuts the area to the surface, notes it as touched; false if nothing is left.
    bool Touch(rectangle<int>& area);

private:
    CPixelBuffer& m_Pixels;
    CDamage m_Damage;
};

}  // namespace vexelbase
