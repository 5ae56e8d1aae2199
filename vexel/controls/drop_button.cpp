#include "vexel/controls/drop_button.h"

#include "vexel/controls/detail/arrow_width.h"
#include "vexel/controls/detail/keys.h"

#include <algorithm>

namespace vexel
{

// Drop button -------------------------------------------------------------------------------------------------------------

rectangle<int> CDropButton::GetInternalRect() const
{
    rectangle<int> rect = CButton::GetInternalRect();
    rect.right = SubtractSaturated(rect.right, detail::GetArrowWidth());
    return rect;
}

size<int> CDropButton::GetAutoSizeAdditionalExtent() const
{
    size<int> extent = GetDrawingAdditionalExtent();
    extent.width = AddSaturated(extent.width, detail::GetArrowWidth());
    return extent;
}

size<int> CDropButton::GetDrawingAdditionalExtent() const
{
    return CButton::GetAutoSizeAdditionalExtent();
}

void CDropButton::DrawContent(IPainter* painter)
{
    CAliveGuard const alive(this);
    CButton::DrawContent(painter);
    if (!alive)
        return;
    // A pressed one moves, but not out of the button: nobody would wipe it off there.
    rectangle<int> const rect = CButton::GetInternalRect();
    rectangle<int> bounds = GetBounds();
    bounds.Normalize();
    painter->DrawControlElement(IPainter::ceDropArrow, SubtractSaturated(rect.right, detail::GetArrowWidth()), rect.top,
                                std::min(rect.right, bounds.right), std::min(rect.bottom, bounds.bottom),
                                GetNativeState());
}

bool CDropButton::HandleKeyDown(int keys, int key)
{
    if (!detail::IsDropKey(keys, key))
        return false;
    m_SigDropDown(this);
    return true;
}

// Combo button ------------------------------------------------------------------------------------------------------------

CComboButton::CComboButton(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CButton(parent, extent, alignment)
{
    SetCanHaveFocus(false);
}

void CComboButton::DrawContent(IPainter* painter)
{
    painter->m_PenDirty = false;
    rectangle<int> const bounds = GetBounds();
    painter->DrawControlElement(IPainter::ceComboArrow, bounds.left, bounds.top, bounds.right, bounds.bottom,
                                GetNativeState());
}

void CComboButton::RecalculateSize()
{
    SetWidth(detail::GetArrowWidth(), false);
}

}  // namespace vexel
