#include "vexel/layout/container.h"

#include "vexel/core/control.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace vexel
{

CContainer::CContainer(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment)
{}

CContainer::~CContainer() = default;

void CContainer::SetNativeControl(ICustomControl* control)
{
    vexel_ptr<ICustomControl> const fresh(control);
    vexel_ptr<ICustomControl> const old = std::exchange(m_NativeControl, nullptr);
    if (old)
        old->m_SigFocusIn.disconnect(this, &CContainer::ControlFocusIn);
    m_NativeControl = fresh;
    CAliveGuard const alive(this);
    if (fresh)
    {
        fresh->m_SigFocusIn.connect(this, &CContainer::ControlFocusIn);
        fresh->SetVisible(IsDisplayable());
    }
    if (alive)
        UpdateControlPos();
}

void CContainer::SetOffset(rectangle<int> const& offset)
{
    if (offset == m_Offset)
        return;
    m_Offset = offset;
    rectangle<int> const pos = GetPos();
    SetPos(pos, false);
}

// Native calls may run handlers, which may take the control away or delete this element.
void CContainer::UpdateControlPos()
{
    vexel_ptr<ICustomControl> const control = m_NativeControl;
    if (!control)
        return;
    CAliveGuard const alive(this);
    control->SetTabStop(!GetCanHaveFocus());  // one that Tab reaches in the tree stands in no order besides
    rectangle<int> rect = GetContentRect();
    if (!GetDisplayableRect(&rect))
    {
        m_NeedShow = false;
        control->SetVisible(false);
        return;
    }
    ElementToControl(&rect);
    rect.left = std::max(rect.left, 0);
    m_ControlRect = rect;
    rectangle<int> sorted = rect;
    sorted.Normalize();
    control->SetPos(sorted.left, sorted.top, sorted.Width(), sorted.Height());
    if (!alive)
        return;
    FitControlPos(m_ControlRect);
    if (alive)
        m_NeedShow = !control->IsVisible();
}

// False: there is no control, or its handlers deleted this element.
bool CContainer::GetNaturalRect(rectangle<int>& rect)
{
    vexel_ptr<ICustomControl> const control = m_NativeControl;
    if (!control)
        return false;
    CAliveGuard const alive(this);
    control->Refresh();
    rect = control->GetRect();
    return alive.IsAlive();
}

void CContainer::FitHeight()
{
    rectangle<int> rect;
    if (!GetNaturalRect(rect))
        return;
    std::int64_t const height = std::int64_t{rect.bottom} + m_Offset.top - (std::int64_t{rect.top} + m_Offset.bottom);
    SetHeight(SaturateToInt(height), false);
}

void CContainer::FitWidth()
{
    rectangle<int> rect;
    if (!GetNaturalRect(rect))
        return;
    std::int64_t const width = std::int64_t{rect.right} + m_Offset.left - (std::int64_t{rect.left} + m_Offset.right);
    SetWidth(SaturateToInt(width), false);
}

void CContainer::CheckVisible()
{
    vexel_ptr<ICustomControl> const control = m_NativeControl;
    if (!control)
        return;
    if (IsDisplayable())
    {
        m_NeedShow = !control->IsVisible();
        return;
    }
    m_NeedShow = false;
    control->SetVisible(false);
}

void CContainer::ProcessNeedToShow()
{
    if (!std::exchange(m_NeedShow, false))
        return;
    vexel_ptr<ICustomControl> const control = m_NativeControl;
    if (control)
        control->SetVisible(true);
}

void CContainer::SetPos(rectangle<int> const& rect, bool force)
{
    CAliveGuard const alive(this);
    CVisualElement::SetPos(rect, force);
    if (alive)
        UpdateControlPos();
}

rectangle<int> CContainer::GetContentRect() const
{
    rectangle<int> rect = GetBounds();
    rect.Normalize();
    return {AddSaturated(rect.left, m_Offset.left), AddSaturated(rect.top, m_Offset.top),
            SubtractSaturated(rect.right, m_Offset.right), SubtractSaturated(rect.bottom, m_Offset.bottom)};
}

void CContainer::SetEnabled(bool enabled)
{
    CAliveGuard const alive(this);
    if (vexel_ptr<ICustomControl> const control = m_NativeControl)
        control->SetEnabled(enabled);
    if (alive)
        CVisualElement::SetEnabled(enabled);
}

void CContainer::DrawContent(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
    CAliveGuard const alive(this);
    UpdateControlPos();
    if (alive)
        ProcessNeedToShow();
}

void CContainer::AttributeChanged()
{
    if (vexel_ptr<ICustomControl> const control = m_NativeControl)
        control->Refresh();
}

void CContainer::HandleGetFocus(CVisualElement*, bool)
{
    if (vexel_ptr<ICustomControl> const control = m_NativeControl)
        control->SetFocus();
}

// The native focus stays where the user put it, unless the tab key moves it on into the tree.
void CContainer::HandleLostFocus(CVisualElement* other)
{
    ISysWindow* const window = GetControl() ? GetControl()->GetWindow() : nullptr;
    if (other && window && GetControl()->IsTabKeyProcessing())
        window->SetFocus();
}

void CContainer::HandleControlDestroy()
{
    vexel_ptr<ICustomControl> const old = std::exchange(m_NativeControl, nullptr);
    if (old)
        old->m_SigFocusIn.disconnect(this, &CContainer::ControlFocusIn);
}

void CContainer::HandleRefreshPos()
{
    if (!m_ManualPositioning)
        UpdateControlPos();
}

std::string CContainer::HandleAsString() const
{
    return m_NativeControl ? m_NativeControl->GetText() : std::string();
}

}  // namespace vexel
