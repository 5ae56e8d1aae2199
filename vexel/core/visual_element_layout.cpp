// Sizes, rectangles, the placing of children, and the conversions between the coordinate systems.

#include "vexel/core/control.h"
#include "vexel/core/detail/element_parts.h"
#include "vexel/core/dpi.h"
#include "vexel/core/scroll_on_set_pos.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"

#include <algorithm>
#include <cstdint>

namespace vexel
{

namespace
{

std::int64_t Extent(int low, int high)
{
    return std::int64_t{high} - low;
}

bool HasSameExtent(rectangle<int> const& a, rectangle<int> const& b)
{
    return Extent(a.left, a.right) == Extent(b.left, b.right) && Extent(a.top, a.bottom) == Extent(b.top, b.bottom);
}

// Cuts the child's rectangle off the remaining area. The next one starts one further on.
rectangle<int> Dock(rectangle<int>& area, Alignment alignment, size<int> const& extent)
{
    rectangle<int> rect = area;
    switch (alignment)
    {
    case alLeft:
        rect.right = std::min(AddSaturated(area.left, extent.width), area.right);
        area.left = AddSaturated(rect.right, 1);
        break;
    case alRight:
        rect.left = std::max(SubtractSaturated(area.right, extent.width), area.left);
        area.right = SubtractSaturated(rect.left, 1);
        break;
    case alTop:
        rect.bottom = std::min(AddSaturated(area.top, extent.height), area.bottom);
        area.top = AddSaturated(rect.bottom, 1);
        break;
    case alBottom:
        rect.top = std::max(SubtractSaturated(area.bottom, extent.height), area.top);
        area.bottom = SubtractSaturated(rect.top, 1);
        break;
    default:
        break;
    }
    return rect;
}

// The last origin that was worked out: a chain of parents is walked once per list of siblings, not once per element.
struct
{
    CVisualElement const* element = nullptr;
    unsigned long version = 0;
    point<int> origin;
} s_LastOrigin;

}  // namespace

// Sizes ---------------------------------------------------------------------------------------------------------------------

void CVisualElement::SetSize(size<int> const& extent, bool scale)
{
    size<int> asked = extent;
    if (scale)
        ApplyDPIScale(asked);
    asked.width = std::max(asked.width, 0);
    asked.height = std::max(asked.height, 0);
    if (asked == m_Size)
        return;
    m_Size = asked;
    OnRearrange(this);
}

void CVisualElement::SetWidth(int width, bool scale)
{
    SetSize({width, m_Size.height}, scale);
}

void CVisualElement::SetHeight(int height, bool scale)
{
    SetSize({m_Size.width, height}, scale);
}

void CVisualElement::SetAlignment(Alignment alignment)
{
    if (alignment == m_Alignment)
        return;
    m_Alignment = alignment;
    OnRearrange(this);
}

// Rectangles ----------------------------------------------------------------------------------------------------------------

rectangle<int> CVisualElement::GetContentRect() const
{
    return GetBounds();
}

rectangle<int> CVisualElement::GetValidRect() const
{
    return {SubtractSaturated(m_ValidRect.left, m_Pos.left), SubtractSaturated(m_ValidRect.top, m_Pos.top),
            SubtractSaturated(m_ValidRect.right, m_Pos.left), SubtractSaturated(m_ValidRect.bottom, m_Pos.top)};
}

void CVisualElement::SetPos(rectangle<int> const& rect, bool force)
{
    if (!force && rect == m_Pos)
        return;
    rectangle<int> const old = m_Pos;
    m_Pos = rect;
    ++s_TreeVersion;

    CAliveGuard const alive(this);
    bool const moved = m_Pos.LeftTop() != old.LeftTop();
    bool const layOut = force || (m_Alignment != alNone && m_Visible && !HasSameExtent(m_Pos, old));
    // Pixels move only with the left-top and in a tree that shows; otherwise nobody asks for the picture's kind.
    bool const movesPixels = moved && m_Parent && m_Control;
    bool const fullRepainted = (movesPixels || !layOut) && IsFullRepainted();
    if (movesPixels && !fullRepainted)
    {
        ScrollOnSetPos(this, m_Pos, old, GetDrawBounds());
        if (!alive)
            return;
    }

    if (layOut)
    {
        LayOutChildren(force);
        if (!alive)
            return;
        m_SigSize(this);
        if (!alive)
            return;
    }
    else if (fullRepainted && IsScrollableOnSetPos())
    {
        bool const stands = !movesPixels || ScrollOnSetPos(this, m_Pos, old, GetDrawBounds());
        if (!alive)
            return;
        if (stands)
            m_ValidRect = m_Pos;
    }

    bool const empty = m_ValidRect.left == m_ValidRect.right && m_ValidRect.top == m_ValidRect.bottom;
    if (moved || empty)
        Invalidate();
}

// Siblings lie apart in memory, so that waiting for it is most of what a long list costs.
void CVisualElement::Prefetch() const
{
    for (void const* place :
         {static_cast<void const*>(this), static_cast<void const*>(&m_SigSize), static_cast<void const*>(&m_Pos),
          static_cast<void const*>(&m_ValidRect), static_cast<void const*>(&m_Children)})
        __builtin_prefetch(place);
}

// Docks the visible children in their order. The element repaints as a whole, and what its children asked for meanwhile is
// dropped, unless one child fills everything.
void CVisualElement::LayOutChildren(bool force)
{
    CAliveGuard const alive(this);
    IControl* const control = m_Control;
    int const noted = control ? control->GetUpdatesLastPos() : 0;
    rectangle<int> area = GetContentRect();
    CAlivePtr<CVisualElement> client(nullptr);

    int const count = m_Children.GetCount();
    for (int i = 0; i < count && i < m_Children.GetCount(); ++i)
    {
        CVisualElement* const child = m_Children.GetItem(i);
        if (i + 2 < m_Children.GetCount())
            m_Children.GetItem(i + 2)->Prefetch();
        if (!child->m_Visible || child->m_Alignment == alNone)
            continue;
        if (child->m_Alignment == alClient)
        {
            client.Watch(child);
            continue;
        }
        rectangle<int> const rect = Dock(area, child->m_Alignment, child->m_Size);
        child->SetPos(rect, force);
        if (!alive)
            return;
    }
    if (client && client->m_Parent == this)  // it may have left meanwhile
    {
        client->SetPos(area, force);
        if (!alive)
            return;
        area = {};
    }
    if (area.IsZero() && GetContentRect() == GetBounds())
        return;
    if (control && m_Control == control)
        control->ClearUpdates(noted);
    OnChange(this, utElement);
}

// Conversions -----------------------------------------------------------------------------------------------------------------

point<int> CVisualElement::GetOrigin() const
{
    point<int> origin;
    if (s_LastOrigin.version == s_TreeVersion && s_LastOrigin.element == this)
        return s_LastOrigin.origin;
    if (s_LastOrigin.version == s_TreeVersion && m_Parent && s_LastOrigin.element == m_Parent)
    {
        origin = {AddSaturated(s_LastOrigin.origin.x, m_Pos.left), AddSaturated(s_LastOrigin.origin.y, m_Pos.top)};
    }
    else
    {
        std::int64_t x = 0;
        std::int64_t y = 0;
        for (CVisualElement const* element = this; element; element = element->m_Parent)
        {
            x += element->m_Pos.left;
            y += element->m_Pos.top;
        }
        origin = {SaturateToInt(x), SaturateToInt(y)};
    }
    s_LastOrigin = {this, s_TreeVersion, origin};
    return origin;
}

void CVisualElement::ElementToControl(point<int>* position) const
{
    point<int> const origin = GetOrigin();
    position->x = AddSaturated(position->x, origin.x);
    position->y = AddSaturated(position->y, origin.y);
}

void CVisualElement::ElementToControl(rectangle<int>* rect) const
{
    point<int> const origin = GetOrigin();
    *rect = {AddSaturated(rect->left, origin.x), AddSaturated(rect->top, origin.y), AddSaturated(rect->right, origin.x),
             AddSaturated(rect->bottom, origin.y)};
}

void CVisualElement::ControlToElement(point<int>* position) const
{
    point<int> const origin = GetOrigin();
    position->x = SubtractSaturated(position->x, origin.x);
    position->y = SubtractSaturated(position->y, origin.y);
}

void CVisualElement::ControlToElement(rectangle<int>* rect) const
{
    point<int> const origin = GetOrigin();
    *rect = {SubtractSaturated(rect->left, origin.x), SubtractSaturated(rect->top, origin.y),
             SubtractSaturated(rect->right, origin.x), SubtractSaturated(rect->bottom, origin.y)};
}

void CVisualElement::DP2LP(point<double>* position)
{
    ISysWindow* const window = m_Control ? m_Control->GetWindow() : nullptr;
    IPainter* const painter = window ? window->GetPainter() : nullptr;
    if (!painter)
        return;
    detail::CMeasuring const measuring(painter);
    if (measuring.IsOwn())
        SetCoordSystem(painter);
    point<int> pixel{ToInt(position->x), ToInt(position->y)};
    ElementToControl(&pixel);
    *position = {static_cast<double>(pixel.x), static_cast<double>(pixel.y)};
    painter->DeconvertCoord1(position, false);
}

void CVisualElement::LP2DP(point<double>* position)
{
    ISysWindow* const window = m_Control ? m_Control->GetWindow() : nullptr;
    IPainter* const painter = window ? window->GetPainter() : nullptr;
    if (!painter)
        return;
    detail::CMeasuring const measuring(painter);
    if (measuring.IsOwn())
        SetCoordSystem(painter);
    painter->ConvertCoord1(position, false);
    point<int> pixel{ToInt(position->x), ToInt(position->y)};
    ControlToElement(&pixel);
    *position = {static_cast<double>(pixel.x), static_cast<double>(pixel.y)};
}

point<int> CVisualElement::GetMousePos() const
{
    ISysWindow* const window = m_Control ? m_Control->GetWindow() : nullptr;
    ISystem* const system = window ? GetCurrentSystem() : nullptr;
    IPointer* const pointer = system ? system->GetPointer() : nullptr;
    if (!pointer)
        return {};
    point<int> position = pointer->GetPos();
    window->ScreenToClient(&position);
    ControlToElement(&position);
    return position;
}

bool CVisualElement::GetDisplayableRect(rectangle<int>* rect) const
{
    rectangle<int> shown = *rect;
    point<int> offset;
    bool displayable = true;
    for (CVisualElement const* element = this; element; element = element->m_Parent)
    {
        if (element->m_Visible)
            shown.Intersect(element->GetContentRect());
        if (!element->m_Visible || shown.left >= shown.right || shown.top >= shown.bottom)
        {
            displayable = false;
            shown = {};
            break;
        }
        point<int> const corner = element->m_Pos.LeftTop();
        shown = {AddSaturated(shown.left, corner.x), AddSaturated(shown.top, corner.y),
                 AddSaturated(shown.right, corner.x), AddSaturated(shown.bottom, corner.y)};
        offset = {AddSaturated(offset.x, corner.x), AddSaturated(offset.y, corner.y)};
    }
    displayable = displayable && !shown.IsZero();
    *rect = {SubtractSaturated(shown.left, offset.x), SubtractSaturated(shown.top, offset.y),
             SubtractSaturated(shown.right, offset.x), SubtractSaturated(shown.bottom, offset.y)};
    return displayable;
}

}  // namespace vexel
