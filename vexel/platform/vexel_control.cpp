#include "vexel/platform/vexel_control.h"

#include "vexel/platform/sys_window.h"

#include <memory>

namespace vexelbase
{

namespace
{

// Takes a painter through FireEvent, which knows events only.
class CDrawEvent : public CEvent
{
public:
    explicit CDrawEvent(IPainter* painter) : m_Painter(painter) {}

    IPainter* m_Painter;
};

}  // namespace

template <> void INotify::Handle<&IDrawingNotify::OnDraw>(CEvent* event)
{
    static_cast<IDrawingNotify*>(this)->OnDraw(static_cast<CDrawEvent*>(event)->m_Painter);
}

CVexelControl::CVexelControl(ISysWindow* window, bool owns) : m_OwnsWindow(owns)
{
    SetSupportedEvent(typeid(IDrawingNotify));
    SetSupportedEvent(typeid(IMouseNotify));
    SetSupportedEvent(typeid(IMouseClickNotify));
    SetSupportedEvent(typeid(IMouseHoverNotify));
    SetSupportedEvent(typeid(IKeyboardNotify));
    SetSupportedEvent(typeid(IWindowNotify));
    SetSupportedEvent(typeid(IFocusNotify));
    SetSupportedEvent(typeid(IContextMenuNotify));
    SetSupportedEvent(typeid(ITooltipNotify));
    SetSupportedEvent(typeid(IScrollNotify));
    SetSupportedEvent(typeid(ICustomEventNotify));
    SetSupportedEvent(typeid(ISystemNotify));
    CVexelControl::SetSysWindow(window);
}

CVexelControl::~CVexelControl() { CVexelControl::SetSysWindow(nullptr); }

// Window --------------------------------------------------------------------------------------------------------------

void CVexelControl::SetSysWindow(ISysWindow* window)
{
    if (window == m_Window)
        return;
    ISysWindow* const former = m_Window;
    if (former && former->GetEventTarget() == this)
        former->SetEventTarget(nullptr);
    m_Window = window;
    if (window)
        window->SetEventTarget(this);
    if (!m_OwnsWindow)
        return;
    // A window that is being destroyed natively may be what calls this.
    if (former && !former->IsDestroying())
        std::erase_if(m_OwnedWindows, [former](auto const& owned) { return owned.get() == former; });
    if (window)
        m_OwnedWindows.emplace_back(window);
}

void* CVexelControl::GetHandle() const { return m_Window; }

void CVexelControl::Refresh()
{
    if (m_Window)
        m_Window->UpdateNow();
}

void CVexelControl::Invalidate()
{
    if (!m_Window)
        return;
    rectangle<int> const area = m_Window->GetRect();
    m_Window->InvalidateRect(area.left, area.top, area.right, area.bottom);
}

void CVexelControl::InternalBeginUpdate()
{
    if (m_Window)
        m_Window->LockDrawing(true);
}

void CVexelControl::InternalEndUpdate()
{
    if (m_Window)
        m_Window->LockDrawing(false);
}

// Native events: nothing of the control is touched after a firing, for it may be gone ---------------------------------

void CVexelControl::OnDraw(IPainter* painter)
{
    CDrawEvent event(painter);
    FireEvent(typeid(IDrawingNotify), &INotify::Handle<&IDrawingNotify::OnDraw>, &event, false);
}

void CVexelControl::OnButtonDown(CMouseEvent* event) { Fire<&IMouseNotify::OnButtonDown>(*this, event, true); }

void CVexelControl::OnButtonUp(CMouseEvent* event) { Fire<&IMouseNotify::OnButtonUp>(*this, event, true); }

void CVexelControl::OnMouseMove(CMouseEvent* event) { Fire<&IMouseNotify::OnMouseMove>(*this, event, true); }

void CVexelControl::OnWheel(CMouseWheelEvent* event) { Fire<&IMouseNotify::OnWheel>(*this, event, true); }

void CVexelControl::OnClick(CMouseEvent* event) { Fire<&IMouseClickNotify::OnClick>(*this, event, true); }

void CVexelControl::OnDoubleClick(CMouseEvent* event) { Fire<&IMouseClickNotify::OnDoubleClick>(*this, event, true); }

void CVexelControl::OnHover(CMouseEvent* event) { Fire<&IMouseHoverNotify::OnHover>(*this, event, true); }

void CVexelControl::OnLeave(CMouseEvent* event) { Fire<&IMouseHoverNotify::OnLeave>(*this, event, true); }

void CVexelControl::OnKeyDown(CKeyboardEvent* event) { Fire<&IKeyboardNotify::OnKeyDown>(*this, event, true); }

void CVexelControl::OnKeyUp(CKeyboardEvent* event) { Fire<&IKeyboardNotify::OnKeyUp>(*this, event, true); }

void CVexelControl::OnChar(CKeyboardEvent* event) { Fire<&IKeyboardNotify::OnChar>(*this, event, true); }

void CVexelControl::OnResize(CWindowEvent* event) { Fire<&IWindowNotify::OnResize>(*this, event, true); }

void CVexelControl::OnMove(CWindowEvent* event) { Fire<&IWindowNotify::OnMove>(*this, event, true); }

void CVexelControl::OnDestroy(CWindowEvent* event) { Fire<&IWindowNotify::OnDestroy>(*this, event, true); }

void CVexelControl::OnShow(CWindowEvent* event) { Fire<&IWindowNotify::OnShow>(*this, event, true); }

void CVexelControl::OnHide(CWindowEvent* event) { Fire<&IWindowNotify::OnHide>(*this, event, true); }

void CVexelControl::OnGetFocus(CFocusEvent* event) { Fire<&IFocusNotify::OnGetFocus>(*this, event, true); }

void CVexelControl::OnLostFocus(CFocusEvent* event) { Fire<&IFocusNotify::OnLostFocus>(*this, event, true); }

void CVexelControl::OnContextMenu(CContextMenuEvent* event)
{
    Fire<&IContextMenuNotify::OnContextMenu>(*this, event, true);
}

void CVexelControl::OnTooltip(CTooltipEvent* event) { Fire<&ITooltipNotify::OnTooltip>(*this, event, true); }

void CVexelControl::OnTooltipTrack(CTooltipEvent* event) { Fire<&ITooltipNotify::OnTooltipTrack>(*this, event, true); }

void CVexelControl::OnHorzScroll(CScrollEvent* event) { Fire<&IScrollNotify::OnHorzScroll>(*this, event, true); }

void CVexelControl::OnVertScroll(CScrollEvent* event) { Fire<&IScrollNotify::OnVertScroll>(*this, event, true); }

void CVexelControl::OnCustomEvent(CCustomEvent* event)
{
    std::unique_ptr<CCustomEvent> const owned(event);
    Fire<&ICustomEventNotify::OnCustomEvent>(*this, event, true);
}

void CVexelControl::OnSysColorChanged(CEvent* event) { Fire<&ISystemNotify::OnSysColorChanged>(*this, event, true); }

}  // namespace vexelbase
