#include "vexel/platform/base_painter.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/detail/base_painter_scratch.h"
#include "vexel/platform/detail/pixel_transfer.h"
#include "vexel/platform/pixel_buffer.h"

#include <algorithm>

namespace vexelbase
{

namespace
{

// The pixels of a picture between two inclusive corners.
rectangle<int> ToPicture(double left, double top, double right, double bottom)
{
    rectangle<int> rect{FloorToInt(left), FloorToInt(top), FloorToInt(right), FloorToInt(bottom)};
    rect.Normalize();
    rect.right = AddSaturated(rect.right, 1);
    rect.bottom = AddSaturated(rect.bottom, 1);
    return rect;
}

rectangle<int> Shifted(rectangle<int> const& rect, int dx, int dy)
{
    return {AddSaturated(rect.left, dx), AddSaturated(rect.top, dy), AddSaturated(rect.right, dx),
            AddSaturated(rect.bottom, dy)};
}

// Limits a device rectangle to the extent of a picture that is drawn from its left-top.
void Limit(rectangle<int>& area, size<int> const& extent)
{
    area.right = std::min(area.right, AddSaturated(area.left, extent.width));
    area.bottom = std::min(area.bottom, AddSaturated(area.top, extent.height));
}

}  // namespace

// The pixels to draw from. In disabled mode, or where a picture is drawn onto itself, a copy is drawn instead, which
// holds the wanted part alone; `source` is then told in its pixels.
CPixelBuffer const& CBasePainter::PrepareSource(CPixelBuffer const& pixels, rectangle<int>& source)
{
    if (!m_DisabledMode && &pixels != m_Device.GetTarget())
        return pixels;
    CPixelBuffer& copy = Scratch().pixels;
    rectangle<int> part = source;
    if (!pixels.Cut(part))
        part = {};
    copy.Renew({part.Width(), part.Height()});
    for (int y = 0; y < copy.GetHeight(); ++y)
    {
        std::uint32_t const* const from = pixels.Row(part.top + y) + part.left;
        if (m_DisabledMode)
            std::transform(from, from + copy.GetWidth(), copy.Row(y), detail::ToGrey);
        else
            std::copy_n(from, copy.GetWidth(), copy.Row(y));
    }
    source = Shifted(source, -part.left, -part.top);  // no end is lost: where the part was cut, it begins at 0
    return copy;
}

void CBasePainter::DrawControlElement(ControlElement element, double left, double top, double right, double bottom,
                                      int state)
{
    rectangle<int> const area = ToDevice(left, top, right, bottom);
    m_Clip.ForEach(area, [&](rectangle<int> const& part) { m_Device.DrawControlElement(element, area, part, state); });
}

void CBasePainter::DrawRasterPicture(IRasterPicture* picture, double left, double top, double right, double bottom,
                                     RasterOperation operation)
{
    if (!picture)
        return;
    CPixelBuffer const& pixels = picture->GetPixels();
    rectangle<int> const whole = ToDevice(left, top, right, bottom);
    rectangle<int> area = whole;
    Limit(area, pixels.GetSize());
    area.Intersect(GetVisible());
    if (area.IsEmpty())
        return;
    rectangle<int> source{area.left - whole.left, area.top - whole.top, area.right - whole.left,
                          area.bottom - whole.top};
    CPixelBuffer const& drawn = PrepareSource(pixels, source);
    m_Clip.ForEach(area, [&](rectangle<int> const& part) { m_Device.Blit(area, part, drawn, source, operation); });
}

void CBasePainter::DrawRasterPictureEx(IRasterPicture* picture, double left, double top, double right, double bottom,
                                       double sourceLeft, double sourceTop, double sourceRight, double sourceBottom,
                                       RasterOperation operation)
{
    if (!picture)
        return;
    rectangle<int> const target = ToDevice(left, top, right, bottom);
    rectangle<int> visible = target;
    visible.Intersect(GetVisible());
    rectangle<int> source = ToPicture(sourceLeft, sourceTop, sourceRight, sourceBottom);
    if (visible.IsEmpty() || source.IsEmpty())
        return;
    CPixelBuffer const& drawn = PrepareSource(picture->GetPixels(), source);
    m_Clip.ForEach(visible, [&](rectangle<int> const& part) { m_Device.Blit(target, part, drawn, source, operation); });
}

void CBasePainter::ExtractRasterPicture(IRasterPicture* picture, double left, double top, double right, double bottom)
{
    if (picture)
        m_Device.Extract(ToDevice(left, top, right, bottom), picture->GetPixels(), {0, 0});
}

void CBasePainter::ExtractRasterPictureEx(IRasterPicture* picture, double left, double top, double right, double bottom,
                                          double targetLeft, double targetTop, double targetRight, double targetBottom)
{
    if (!picture)
        return;
    rectangle<int> const area = ToDevice(left, top, right, bottom);
    rectangle<int> part = area;
    part.Intersect({0, 0, m_Device.GetSize().width, m_Device.GetSize().height});
    rectangle<int> const target = ToPicture(targetLeft, targetTop, targetRight, targetBottom);
    rectangle<int> drawn = target;
    if (part.IsEmpty() || !picture->GetPixels().Cut(drawn))
        return;
    CPixelBuffer& copy = Scratch().pixels;
    copy.Renew({part.Width(), part.Height()});
    m_Device.Extract(part, copy, {0, 0});
    rectangle<int> const source = Shifted(area, -part.left, -part.top);
    detail::StretchPixels(picture->GetPixels(), target, drawn, copy, source, roCopy);
}

void CBasePainter::AlphaBlend(double left, double top, double right, double bottom, IRasterPicture* picture, int alpha)
{
    if (!picture || alpha <= 0)
        return;
    CPixelBuffer const& pixels = picture->GetPixels();
    rectangle<int> const whole = ToDevice(left, top, right, bottom);
    rectangle<int> area = whole;
    Limit(area, pixels.GetSize());
    area.Intersect(GetVisible());
    if (area.IsEmpty())
        return;
    rectangle<int> source{area.left - whole.left, area.top - whole.top, area.right - whole.left,
                          area.bottom - whole.top};
    CPixelBuffer const& drawn = PrepareSource(pixels, source);
    point<int> const origin{area.left - source.left, area.top - source.top};
    m_Clip.ForEach(area,
                   [&](rectangle<int> const& part) { m_Device.Blend(part, drawn, origin, std::min(alpha, 255)); });
}

}  // namespace vexelbase
