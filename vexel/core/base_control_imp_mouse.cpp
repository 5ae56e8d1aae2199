// Mouse, tooltip and context menu events, and drag and drop.

#include "vexel/core/base_control_imp.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/events.h"
#include "vexel/platform/sys_window.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace vexel
{

namespace
{

constexpr int s_DefaultCursor = 1;
constexpr int s_NoDropCursor = 13;

point<int> InElement(CVisualElement const& element, point<int> position)
{
    element.ControlToElement(&position);
    return position;
}

bool IsFurther(int a, int b, int distance)
{
    std::int64_t const delta = std::int64_t{a} - b;
    return delta > distance || -delta > distance;
}

// Moves one axis of the item into its bounds without changing its extent; the later correction wins.
void KeepWithin(int& low, int& high, int limitLow, int limitHigh)
{
    if (low < limitLow)
    {
        int const step = SubtractSaturated(limitLow, low);
        low = limitLow;
        high = AddSaturated(high, step);
    }
    if (high > limitHigh)
    {
        int const step = SubtractSaturated(high, limitHigh);
        high = limitHigh;
        low = SubtractSaturated(low, step);
    }
}

}  // namespace

// Mouse ----------------------------------------------------------------------------------------------------------------------

void CBaseControlImp::ProcessMouseMove(CMouseEvent* event)
{
    if (!FindWindow())
        return;
    point<int> const position{event->m_X, event->m_Y};
    if (event->m_Button == mbNone && m_PressedElement)
    {
        // The release was lost. What the next paint has to do for a drag stays.
        m_MouseFlags &= unsigned{mfMakeBackground | mfPutBackground};
        m_PressedElement = nullptr;
    }
    CAlivePtr<CBaseControlImp> const alive(this);
    if (CVisualElement* const target = GetMouseTarget())
    {
        point<int> const inner = InElement(*target, position);
        target->ProcessMouseMove(inner.x, inner.y, event->m_Keys, event->m_Button);
        alive.Check();
    }
    if (m_PressedElement && !m_DraggedElement && IsClicked() && !(m_MouseFlags & mfRefused) &&
        (IsFurther(position.x, m_PressPos.x, m_DragStartSensitivity.width) ||
         IsFurther(position.y, m_PressPos.y, m_DragStartSensitivity.height)))
    {
        TryStartDrag();
        alive.Check();
    }
    if (m_DraggedElement)
    {
        MoveDrag(position);
        alive.Check();
    }
    else
    {
        m_LastMousePos = position;
    }
}

void CBaseControlImp::ProcessButtonDown(CMouseEvent* event)
{
    if (!FindWindow())
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    m_MouseFlags |= mfClicked;
    m_PressPos = {event->m_X, event->m_Y};
    if (!m_MouseElement)
    {
        ProcessMouseMove(event);
        alive.Check();
        if (!m_MouseElement)
            return;
    }
    m_PressedElement = m_MouseElement;
    if (CVisualElement* const target = GetMouseTarget())
    {
        point<int> const inner = InElement(*target, m_PressPos);
        target->ProcessButtonDown(inner.x, inner.y, event->m_Keys, event->m_Button);
    }
}

void CBaseControlImp::ProcessButtonUp(CMouseEvent* event)
{
    if (!FindWindow())
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    point<int> const position{event->m_X, event->m_Y};
    m_MouseFlags &= ~unsigned{mfClicked | mfRefused};
    m_PressedElement = nullptr;
    CAlivePtr<CVisualElement> const dragged(m_DraggedElement);
    if (CVisualElement* const target = GetMouseTarget())
    {
        point<int> const inner = InElement(*target, position);
        target->ProcessButtonUp(inner.x, inner.y, event->m_Keys, event->m_Button);
        alive.Check();
    }
    m_DraggedElement = nullptr;
    if (dragged)
        FinishDrag(dragged.get(), position);
}

void CBaseControlImp::ProcessDoubleClick(CMouseEvent* event)
{
    CVisualElement* const target = FindWindow() ? GetMouseTarget() : nullptr;
    if (!target)
        return;
    point<int> const inner = InElement(*target, {event->m_X, event->m_Y});
    target->ProcessDoubleClick(inner.x, inner.y, event->m_Keys, event->m_Button);
}

void CBaseControlImp::ProcessWheel(CMouseWheelEvent* event)
{
    CVisualElement* const target = FindWindow() ? GetMouseTarget() : nullptr;
    if (!target)
        return;
    point<int> const inner = InElement(*target, {event->m_X, event->m_Y});
    target->ProcessWheel(inner.x, inner.y, event->m_Keys, event->m_Button, event->m_Delta);
}

// Hover ----------------------------------------------------------------------------------------------------------------------

void CBaseControlImp::SetMouseElement(CVisualElement* element)
{
    if (element == m_MouseElement)
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    CAlivePtr<CVisualElement> const next(element);
    CAlivePtr<CVisualElement> const previous(m_MouseElement);
    if (previous)
    {
        LeaveMouseElement(element);
        if (!alive)
            return;
    }
    m_MouseElement = next && next->GetControl() == this ? next.get() : nullptr;  // a slot may have removed it
    if (m_MouseElement)
        m_MouseElement->ProcessMouseHover(previous.get());
}

void CBaseControlImp::LeaveMouseElement(CVisualElement* next)
{
    CAlivePtr<CBaseControlImp> const alive(this);
    m_MouseElement->ProcessMouseLeave(next);
    if (alive)
        SetWindowCursor(s_DefaultCursor);
}

void CBaseControlImp::ProcessLeave(CMouseEvent*)
{
    if (!FindWindow() || !m_MouseElement)
        return;
    CAlivePtr<CBaseControlImp> const alive(this);
    LeaveMouseElement(nullptr);
    if (!alive)
        return;
    m_MouseElement = nullptr;
    SetWindowCursor(s_DefaultCursor);
}

void CBaseControlImp::ProcessOnHover(CMouseEvent*)
{
    if (m_Capture)
        SetWindowCursor(m_Capture->GetCursor());
}

// Tooltip and context menu ----------------------------------------------------------------------------------------------------

void CBaseControlImp::ProcessTooltip(CTooltipEvent* event)
{
    if (!FindWindow() || !m_MouseElement || m_DraggedElement)
        return;
    point<int> const inner = InElement(*m_MouseElement, {event->m_X, event->m_Y});
    event->m_X = inner.x;
    event->m_Y = inner.y;
    m_MouseElement->ProcessTooltip(event);
}

void CBaseControlImp::ProcessTooltipTrack(CTooltipEvent* event)
{
    if (!FindWindow() || !m_MouseElement)
        return;
    point<int> const inner = InElement(*m_MouseElement, {event->m_X, event->m_Y});
    event->m_X = inner.x;
    event->m_Y = inner.y;
    m_MouseElement->ProcessTooltipTrack(event);
}

void CBaseControlImp::ProcessContextMenu(CContextMenuEvent* event)
{
    CVisualElement* const target = m_MouseElement ? m_MouseElement : m_Root;
    if (!FindWindow() || !target)
        return;
    point<int> const inner = InElement(*target, {event->m_X, event->m_Y});
    target->ProcessContextMenu(inner.x, inner.y);
}

// Drag and drop ---------------------------------------------------------------------------------------------------------------

void CBaseControlImp::SetDragTarget(CVisualElement* element)
{
    if (!IsForeign(element))
        m_DragTarget = element;
}

void CBaseControlImp::StartDragging(CVisualElement* element, DragInfo const& info)
{
    if (IsForeign(element))
        return;
    m_DraggedElement = element;
    *m_DragInfo = info;
    m_MouseFlags |= mfMakeBackground;
}

void CBaseControlImp::TryStartDrag()
{
    CAlivePtr<CBaseControlImp> const alive(this);
    CAlivePtr<CVisualElement> const pressed(m_PressedElement);
    std::shared_ptr<DragInfo> const info = m_DragInfo;
    *info = DragInfo();
    point<int> const inner = InElement(*pressed.get(), m_PressPos);
    bool const allowed = pressed->CanStartDragging(pressed.get(), inner.x, inner.y, *info);
    alive.Check();
    if (!allowed || !pressed || m_PressedElement != pressed.get())
    {
        m_MouseFlags |= mfRefused;
        return;
    }
    m_DraggedElement = pressed.get();
    m_MouseFlags |= mfMakeBackground;
    if (ISysWindow* const window = FindWindow())
        window->CaptureMouse();
}

void CBaseControlImp::MoveDrag(point<int> const& position)
{
    CAlivePtr<CBaseControlImp> const alive(this);
    CAlivePtr<CVisualElement> const dragged(m_DraggedElement);
    std::shared_ptr<DragInfo> const info = m_DragInfo;

    int const dx = SubtractSaturated(position.x, m_LastMousePos.x);
    int const dy = SubtractSaturated(position.y, m_LastMousePos.y);
    m_LastMousePos = position;  // at once: the item must not go this way twice if a slot ends the event
    rectangle<int>& rect = info->m_Rect;
    rect = {AddSaturated(rect.left, dx), AddSaturated(rect.top, dy), AddSaturated(rect.right, dx),
            AddSaturated(rect.bottom, dy)};
    if (!info->m_Bounds.IsZero())
    {
        KeepWithin(rect.left, rect.right, info->m_Bounds.left, info->m_Bounds.right);
        KeepWithin(rect.top, rect.bottom, info->m_Bounds.top, info->m_Bounds.bottom);
    }

    CVisualElement* const target = m_Capture ? m_Capture : m_MouseElement;
    m_DragTarget = target;
    bool accepted = false;
    if (target)
    {
        point<int> const inner = InElement(*target, position);
        accepted = target->DragOver(dragged.get(), target, inner.x, inner.y, *info);
        alive.Check();
        if (!dragged || m_DraggedElement != dragged.get())
            return;  // the drag has ended meanwhile
    }
    if (accepted && m_DragTarget)
    {
        SetWindowCursor(s_DefaultCursor);
        m_MouseFlags |= mfAccepted;
    }
    else
    {
        SetWindowCursor(s_NoDropCursor);
        m_MouseFlags &= ~unsigned{mfAccepted};
    }
    dragged->OnChange(dragged.get(), info->m_GlobalUpdate ? utGlobal : utElement);
    alive.Check();
    InvalidateWindow();  // a hidden element asks for nothing, and the item moves all the same
    if (dragged)
        m_SigDragMove(dragged.get(), position.x, position.y);
}

void CBaseControlImp::FinishDrag(CVisualElement* draggedElement, point<int> const& position)
{
    CAlivePtr<CBaseControlImp> const alive(this);
    CAlivePtr<CVisualElement> const dragged(draggedElement);
    std::shared_ptr<DragInfo> const info = m_DragInfo;

    // However the drag ends, the next paint puts the background back, and nobody is left to drop on.
    class CDragEnd
    {
    public:
        explicit CDragEnd(CAlivePtr<CBaseControlImp> const& control) : m_Control(control) {}
        ~CDragEnd()
        {
            if (!m_Control)
                return;
            ForgetTarget();
            m_Control->m_MouseFlags |= mfPutBackground;
            m_Control->InvalidateWindow();  // the dragged element asks for nothing while it is hidden
        }
        void ForgetTarget()
        {
            if (std::exchange(m_Forgotten, true))
                return;
            m_Control->m_MouseFlags &= ~unsigned{mfAccepted};
            m_Control->m_DragTarget = nullptr;
        }

    private:
        CAlivePtr<CBaseControlImp> const& m_Control;
        bool m_Forgotten = false;
    } end(alive);

    if (ISysWindow* const window = FindWindow())
        window->ReleaseMouse();
    CAlivePtr<CVisualElement> const target(m_DragTarget);
    if ((m_MouseFlags & mfAccepted) && target)
    {
        point<int> const inner = InElement(*target.get(), position);
        target->DropDone(dragged.get(), target.get(), inner.x, inner.y, *info);
        alive.Check();
        if (dragged)
            dragged->DragFinished(dragged.get(), m_MouseElement, *info);
        alive.Check();
        if (target)
            SetWindowCursor(target->GetCursor());
    }
    else
    {
        dragged->DragFinished(dragged.get(), nullptr, *info);
        alive.Check();
    }
    end.ForgetTarget();
    if (!dragged)
        return;
    dragged->OnChange(dragged.get(), info->m_GlobalUpdate ? utGlobal : utElement);
    alive.Check();
    if (dragged)
        m_SigDragEnd(dragged.get());
}

}  // namespace vexel
