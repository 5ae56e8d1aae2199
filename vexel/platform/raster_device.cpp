#include "vexel/platform/raster_device.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/detail/pixel_transfer.h"
#include "vexel/platform/pixel_editor.h"

#include <algorithm>

namespace vexelbase
{

namespace
{

std::int64_t CountPixels(rectangle<int> const& rect)
{
    return (std::int64_t{rect.right} - rect.left) * (std::int64_t{rect.bottom} - rect.top);
}

rectangle<int> Join(rectangle<int> const& a, rectangle<int> const& b)
{
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

bool Covers(rectangle<int> const& outer, rectangle<int> const& inner)
{
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

// Moved by a distance, as far as numbers go.
rectangle<int> Shifted(rectangle<int> const& rect, int dx, int dy)
{
    return {AddSaturated(rect.left, dx), AddSaturated(rect.top, dy), AddSaturated(rect.right, dx),
            AddSaturated(rect.bottom, dy)};
}

}  // namespace

// CDamage ----------------------------------------------------------------------------------------------------------

void CDamage::Add(rectangle<int> const& area)
{
    // So many pixels in excess are cheaper than one more rectangle.
    constexpr std::int64_t smallWaste = 64;

    if (area.IsEmpty())
        return;
    // What is painted next most often lies in or beside what was painted last.
    if (m_Last < m_Count)
    {
        rectangle<int>& last = At(m_Last);
        if (Covers(last, area))
            return;
        rectangle<int> const joined = Join(last, area);
        if (CountPixels(joined) - CountPixels(last) - CountPixels(area) <= smallWaste)
        {
            last = joined;
            return;
        }
    }

    rectangle<int> added = area;
    for (int i = 0; i < m_Count;)
    {
        rectangle<int> const& rect = At(i);
        if (Covers(rect, added))
        {
            m_Last = i;
            return;
        }
        rectangle<int> const joined = Join(rect, added);
        std::int64_t const waste = CountPixels(joined) - CountPixels(rect) - CountPixels(added);
        if (waste <= smallWaste)
        {
            added = joined;
            Remove(i);
            i = 0;
            continue;
        }
        ++i;
    }
    if (m_Count == m_Limit)
    {
        for (int i = 0; i < m_Count; ++i)
            added = Join(added, At(i));
        m_Count = 0;
        m_Limit = std::max(1, m_Limit / 2);
    }
    m_Last = m_Count;
    At(m_Count++) = added;
}

void CDamage::Remove(int index)
{
    --m_Count;
    At(index) = At(m_Count);
}

// CRasterDevice ----------------------------------------------------------------------------------------------------

bool CRasterDevice::Touch(rectangle<int>& area)
{
    if (!m_Pixels.Cut(area))
        return false;
    m_Damage.Add(area);
    return true;
}

void CRasterDevice::Fill(rectangle<int> const& area, std::uint32_t pixel, IPainter::RasterOperation operation)
{
    rectangle<int> part = area;
    if (Touch(part))
        detail::FillPixels(m_Pixels, part, pixel, operation);
}

std::uint32_t CRasterDevice::ReadPixel(int x, int y) const
{
    return m_Pixels.Contains(x, y) ? m_Pixels.Row(y)[x] : 0xFFFFFFFFu;
}

void CRasterDevice::Blit(rectangle<int> const& target, rectangle<int> const& clip, CPixelBuffer const& picture,
                         rectangle<int> const& source, IPainter::RasterOperation operation)
{
    if (target.IsEmpty() || source.IsEmpty())
        return;
    rectangle<int> area = target;
    area.Intersect(clip);
    bool const oneToOne = std::int64_t{target.right} - target.left == std::int64_t{source.right} - source.left &&
                          std::int64_t{target.bottom} - target.top == std::int64_t{source.bottom} - source.top;
    if (!oneToOne)
    {
        if (Touch(area))
            detail::StretchPixels(m_Pixels, target, area, picture, source, operation);
        return;
    }

    // Where the picture would lie on the surface if it were drawn whole.
    std::int64_t const left = std::int64_t{target.left} - source.left;
    std::int64_t const top = std::int64_t{target.top} - source.top;
    area.Intersect({SaturateToInt(left), SaturateToInt(top), SaturateToInt(left + picture.GetWidth()),
                    SaturateToInt(top + picture.GetHeight())});
    if (Touch(area))
    {
        point<int> const from{static_cast<int>(area.left - left), static_cast<int>(area.top - top)};
        detail::CopyPixels(m_Pixels, area, picture, from, operation);
    }
}

void CRasterDevice::Blend(rectangle<int> const& area, CPixelBuffer const& picture, point<int> const& origin, int alpha)
{
    rectangle<int> part = area;
    part.Intersect(Shifted(picture.GetRect(), origin.x, origin.y));
    if (Touch(part))
        detail::BlendPixels(m_Pixels, part, picture, {part.left - origin.x, part.top - origin.y}, alpha);
}

void CRasterDevice::Extract(rectangle<int> const& area, CPixelBuffer& picture, point<int> const& position)
{
    rectangle<int> part = area;
    if (!m_Pixels.Cut(part))
        return;
    // Where the part comes to lie in the picture; wide, since both ends are anywhere.
    std::int64_t const dx = std::int64_t{position.x} - area.left;
    std::int64_t const dy = std::int64_t{position.y} - area.top;
    rectangle<int> to{SaturateToInt(part.left + dx), SaturateToInt(part.top + dy), SaturateToInt(part.right + dx),
                      SaturateToInt(part.bottom + dy)};
    if (picture.Cut(to))
    {
        point<int> const from{static_cast<int>(to.left - dx), static_cast<int>(to.top - dy)};
        detail::CopyPixels(picture, to, m_Pixels, from, IPainter::roCopy);
    }
}

void CRasterDevice::Edit(rectangle<int> const& area, IPixelEditor& editor)
{
    rectangle<int> part = area;
    if (Touch(part))
        editor.Edit({part, m_Pixels.Row(part.top) + part.left, m_Pixels.GetStride()});
}

bool CRasterDevice::Move(rectangle<int> const& area, int dx, int dy)
{
    rectangle<int> wanted = Shifted(area, dx, dy);
    if (!m_Pixels.Cut(wanted))
        return true;

    rectangle<int> from = area;
    rectangle<int> to{};
    if (m_Pixels.Cut(from))
    {
        to = Shifted(from, dx, dy);
        if (m_Pixels.Cut(to) && (dx != 0 || dy != 0))
        {
            m_Damage.Add(to);
            detail::CopyPixels(m_Pixels, to, m_Pixels, {to.left - dx, to.top - dy}, IPainter::roCopy);
        }
    }
    return to == wanted;
}

}  // namespace vexelbase
