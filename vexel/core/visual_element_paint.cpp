// Painting: the element's own pass, lists of elements, the moving of pixels, background pictures.

#include "vexel/core/control.h"
#include "vexel/core/draw_elements.h"
#include "vexel/core/element_observer.h"
#include "vexel/core/scroll_on_set_pos.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/raster_picture.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"

#include <algorithm>

namespace vexel
{

namespace
{

// The painter's mark of a disabled element goes with the element's pass, however that ends.
class CDisabledMode
{
public:
    CDisabledMode(CAlivePtr<IPainter> const& painter, bool disabled) : m_Painter(painter)
    {
        m_Painter->m_DisabledMode = disabled;
    }
    ~CDisabledMode()
    {
        if (m_Painter)
            m_Painter->m_DisabledMode = false;
    }
    CDisabledMode(CDisabledMode const&) = delete;
    CDisabledMode& operator=(CDisabledMode const&) = delete;

private:
    CAlivePtr<IPainter> const& m_Painter;
};

bool IsOutside(rectangle<int> const& pos, rectangle<int> const& clip)
{
    return pos.IsEmpty() || clip.left >= pos.right || clip.top >= pos.bottom || clip.right <= pos.left ||
           clip.bottom <= pos.top;
}

// Of an element (right and bottom included) and the painter's clip: device pixels, all zero for none.
bool IsClippedAway(IPainter::CoordInfo const& info, rectangle<double> const& clip)
{
    if (clip.IsZero())
        return false;
    point<int> const& origin = info.m_DeviceOrigin;
    return origin.x >= clip.right || origin.y >= clip.bottom ||
           static_cast<double>(origin.x) + info.m_DeviceExtent.width < clip.left ||
           static_cast<double>(origin.y) + info.m_DeviceExtent.height < clip.top;
}

bool IsInside(rectangle<int> const& inner, rectangle<int> const& outer)
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

}  // namespace

// The element's pass ------------------------------------------------------------------------------------------------------

void CVisualElement::OnDraw(IPainter* painter)
{
    if (m_Pos.IsEmpty() || !m_Visible)
        return;
    if (IElementObserver* const observer = GetElementObserver())
        observer->ElementPainted(this, painter);
    if (painter->IsFullPaint())
        Invalidate();

    CAliveGuard const alive(this);
    CAlivePtr<IPainter> const surface(painter);
    CDisabledMode const disabled(surface, !m_Enabled);
    SetUpPainter(painter);
    m_SigDraw(this, painter);
    if (!alive || !surface)
        return;
    DrawContent(painter);
    if (!alive || !surface)
        return;
    if (m_Children.GetCount() > 0)
    {
        DrawElements(&m_Children, painter, GetDrawBounds());
        if (!alive)
            return;
    }
    m_ValidRect = m_Pos;
}

void CVisualElement::SetUpPainter(IPainter* painter) const
{
    painter->SetFont(GetEffectiveFont());
    painter->SetBrush({GetBkColor(), brush::bsSolid});
    _color const color = m_Enabled ? GetFgColor() : color_table[8];
    painter->SetTextColor(color);
    painter->SetPen({color, pen::psSolid, 1});
    painter->m_PenDirty = false;
}

void DrawElements(IVisualElements* list, IPainter* painter, rectangle<int> const& clip)
{
    if (!list)
        return;
    CAlivePtr<IVisualElements> const alive(list);
    CAlivePtr<IPainter> const surface(painter);
    IPainter::CoordInfo info;
    bool const clipped = !clip.IsZero();
    rectangle<double> const painted = painter->GetClipRect();
    CVisualElement const* lastParent = nullptr;
    point<int> origin;

    int const count = list->GetCount();
    for (int i = 0; i < count && i < list->GetCount(); ++i)
    {
        CVisualElement* const element = list->GetItem(i);
        if (!element || !element->IsVisible())
            continue;
        rectangle<int> const& pos = element->GetPos();
        if (clipped && IsOutside(pos, clip))
            continue;
        if (CVisualElement const* const parent = element->GetParent(); parent != lastParent)
        {
            origin = {};
            if (parent)
                parent->ElementToControl(&origin);
            lastParent = parent;
        }
        info.m_DeviceOrigin = {AddSaturated(origin.x, pos.left), AddSaturated(origin.y, pos.top)};
        info.m_DeviceExtent = {SubtractSaturated(pos.right, pos.left), SubtractSaturated(pos.bottom, pos.top)};
        info.m_LogicalExtent = {static_cast<double>(info.m_DeviceExtent.width),
                                static_cast<double>(info.m_DeviceExtent.height)};
        if (IsClippedAway(info, painted))
            continue;
        painter->SetCoordSystem(IPainter::mmCustom, &info);
        CVisualElement::s_DrawnWithParent = lastParent && list == &lastParent->m_Children;
        element->OnDraw(painter);
        if (!alive || !surface)
            return;
    }
}

bool CVisualElement::IsFullRepainted() const
{
    for (CVisualElement const* const child : m_Children)
        if (child->m_Visible && !child->IsFullRepainted())
            return false;
    return true;
}

rectangle<double> CVisualElement::GetDrawRect(IPainter* painter) const
{
    rectangle<int> rect = GetContentRect();
    ElementToControl(&rect);
    rectangle<double> result = ToDouble(rect);
    if (painter)
        painter->DeconvertCoord2(&result, false);
    return result;
}

rectangle<double> CVisualElement::GetDrawValidRect(IPainter* painter) const
{
    rectangle<int> rect = GetValidRect();
    ElementToControl(&rect);
    rectangle<double> result = ToDouble(rect);
    if (painter)
        painter->DeconvertCoord2(&result, false);
    return result;
}

// Moving pixels -----------------------------------------------------------------------------------------------------------

bool ScrollOnSetPos(CVisualElement* element, rectangle<int> const& newPos, rectangle<int> const& oldPos,
                    rectangle<int> const& bounds)
{
    if (!element || newPos.LeftTop() == oldPos.LeftTop())
        return true;
    CVisualElement const* const parent = element->GetParent();
    IControl* const control = element->GetControl();
    if (!parent || !control || !element->IsDisplayable())
        return true;

    int const dx = SubtractSaturated(newPos.left, oldPos.left);
    int const dy = SubtractSaturated(newPos.top, oldPos.top);
    rectangle<int> area;  // the parent's pixels
    if (bounds.IsZero())
    {
        area = oldPos;
        area.right = std::min(area.right, SubtractSaturated(newPos.right, dx));
        area.bottom = std::min(area.bottom, SubtractSaturated(newPos.bottom, dy));
    }
    else
    {
        area = bounds;
        if (dx < 0)
            area.left = SubtractSaturated(area.left, dx);
        else
            area.right = SubtractSaturated(area.right, dx);
        if (dy < 0)
            area.top = SubtractSaturated(area.top, dy);
        else
            area.bottom = SubtractSaturated(area.bottom, dy);
        point<int> const corner = element->GetPos().LeftTop();
        area = {AddSaturated(area.left, corner.x), AddSaturated(area.top, corner.y), AddSaturated(area.right, corner.x),
                AddSaturated(area.bottom, corner.y)};
    }
    if (area.IsEmpty())
        return true;

    // Pixels of others would move along, or be covered, where the area doesn't show as a whole before and after.
    rectangle<int> const target{AddSaturated(area.left, dx), AddSaturated(area.top, dy), AddSaturated(area.right, dx),
                                AddSaturated(area.bottom, dy)};
    rectangle<int> shown = {std::min(area.left, target.left), std::min(area.top, target.top),
                            std::max(area.right, target.right), std::max(area.bottom, target.bottom)};
    if (!parent->GetDisplayableRect(&shown) || !IsInside(area, shown) || !IsInside(target, shown))
    {
        element->OnChange(element, utElement);
        return false;
    }

    parent->ElementToControl(&area);
    control->ScrollContent(dx, dy, {area.left, area.top, area.right, area.bottom});
    return true;
}

bool CanMovePixels(CVisualElement const* element, rectangle<int> const& rect)
{
    rectangle<int> shown = rect;
    if (!element->GetDisplayableRect(&shown) || shown != rect)
        return false;
    IChildren* const children = element->GetChildren();
    for (int i = 0; i < children->GetCount(); ++i)
    {
        CVisualElement const* const child = children->GetItem(i);
        rectangle<int> const& pos = child->GetPos();
        if (child->IsVisible() && pos.left <= rect.right && rect.left <= pos.right && pos.top <= rect.bottom &&
            rect.top <= pos.bottom)
            return false;
    }
    return true;
}

// Background pictures -----------------------------------------------------------------------------------------------------

bool CVisualElement::GetBkImage(vexel_ptr<IRasterPicture>& picture, _color& color, rectangle<int>& placement)
{
    for (CVisualElement* element = this; element; element = element->m_Parent)
        if (element->HandleGetBkImage(picture, color, placement))
            return true;
    ISysWindow* const window = m_Control ? m_Control->GetWindow() : nullptr;
    IPainter* const painter = window ? window->GetPainter() : nullptr;
    if (!painter)
        return false;
    picture = painter->m_BkImage;
    color = painter->m_BkImageColor;
    placement = painter->m_BkImagePlacement;
    return picture != nullptr;
}

bool CVisualElement::IsBkImagePresented() const
{
    vexel_ptr<IRasterPicture> picture;
    _color color;
    rectangle<int> placement;
    const_cast<CVisualElement*>(this)->GetBkImage(picture, color, placement);
    return picture != nullptr;
}

rectangle<int> CVisualElement::GetBkImageRect(rectangle<int>& rect)
{
    ISysWindow* const window = m_Control ? m_Control->GetWindow() : nullptr;
    IPainter* const painter = window ? window->GetPainter() : nullptr;
    return painter ? GetBkImageRectEx(rect, painter->m_BkImage, painter->m_BkImagePlacement) : rectangle<int>();
}

rectangle<int> CVisualElement::GetBkImageRectEx(rectangle<int>& rect, vexel_ptr<IRasterPicture> picture,
                                                rectangle<int> const& placement)
{
    if (!picture)
        return {};
    ISysWindow* const window = m_Control ? m_Control->GetWindow() : nullptr;
    size<int> const extent = picture->GetSize();
    rectangle<int> const area = window ? window->GetRect() : rectangle<int>();

    rectangle<int> image;
    if (placement.left >= 0)
    {
        image.left = placement.left;
        image.right = AddSaturated(image.left, extent.width);
    }
    else
    {
        image.right = SubtractSaturated(area.right, placement.right);
        image.left = SubtractSaturated(image.right, extent.width);
    }
    if (placement.top >= 0)
    {
        image.top = placement.top;
        image.bottom = AddSaturated(image.top, extent.height);
    }
    else
    {
        image.bottom = SubtractSaturated(area.bottom, placement.bottom);
        image.top = SubtractSaturated(image.bottom, extent.height);
    }

    rectangle<int> part = rect;
    ElementToControl(&part);
    part.Intersect(image);
    rect = part;
    ControlToElement(&rect);
    part.Offset(-image.left, -image.top);
    return part;
}

bool CVisualElement::DrawBkImage(IPainter* painter, rectangle<int> const& rect, size<int> const& tile)
{
    vexel_ptr<IRasterPicture> picture;
    _color color;
    rectangle<int> placement;
    GetBkImage(picture, color, placement);
    return DrawBkImageEx(painter, rect, picture, color, placement, tile);
}

bool CVisualElement::DrawBkImageEx(IPainter* painter, rectangle<int> const& rect, vexel_ptr<IRasterPicture> picture,
                                   _color const& color, rectangle<int> const& placement, size<int> const& tile)
{
    if (!painter || !picture)
        return false;
    painter->SetBrush({color, brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);

    rectangle<int> shown = rect;
    rectangle<int> const part = GetBkImageRectEx(shown, picture, placement);
    if (shown.IsEmpty())
        return true;
    if (tile.width < 1 && tile.height < 1)
    {
        painter->DrawRasterPictureEx(picture.get(), shown.left, shown.top, shown.right, shown.bottom, part.left,
                                     part.top, part.right, part.bottom, IPainter::roCopy);
        return true;
    }
    vexel_ptr<IRasterPicture> const pixel = GetCurrentSystem()->CreateRasterPicture({1, 1});
    IPainter* const pixelPainter = pixel->GetPainter();
    pixelPainter->BeginPaint(IPainter::ssPaint);
    pixelPainter->DrawRasterPicture(picture.get(), -part.left, -part.top, 0, 0, IPainter::roCopy);
    pixelPainter->EndPaint();
    vexel_ptr<IRasterPicture> const stretched = pixel->Scale(tile);
    painter->DrawRasterPicture(stretched.get(), shown.left, shown.top, AddSaturated(shown.left, tile.width - 1),
                               AddSaturated(shown.top, tile.height - 1), IPainter::roCopy);
    return true;
}

void CVisualElement::DrawBlendBk(IPainter* painter, rectangle<int> const& rect, brush const& fill, int alpha)
{
    size<int> const extent{AddSaturated(std::max(SubtractSaturated(rect.right, rect.left), -1), 1),
                           AddSaturated(std::max(SubtractSaturated(rect.bottom, rect.top), -1), 1)};
    vexel_ptr<IRasterPicture> const picture = GetCurrentSystem()->CreateRasterPicture(extent);
    IPainter* const picturePainter = picture->GetPainter();
    picturePainter->BeginPaint(IPainter::ssPaint);
    picturePainter->SetBrush(fill);
    picturePainter->FillRect(0, 0, extent.width - 1, extent.height - 1);
    picturePainter->EndPaint();
    painter->AlphaBlend(rect.left, rect.top, rect.right, rect.bottom, picture.get(), alpha);
}

}  // namespace vexel
