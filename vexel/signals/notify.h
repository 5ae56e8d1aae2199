#pragma once

#include "vexel/export.h"
#include "vexel/signals/event_sender.h"

namespace vexelbase
{

class IPainter;
class CMouseEvent;
class CMouseWheelEvent;
class CKeyboardEvent;
class CWindowEvent;
class CFocusEvent;
class CTimerEvent;
class CContextMenuEvent;
class CTooltipEvent;
class CScrollEvent;
class CCustomEvent;
class CChangeTextEvent;
class CEditKeyDownEvent;
class CVisibleChangeEvent;
class CEditMouseWheelEvent;

// The notify interfaces. One object subscribes to one of them at a time per sender. Each derives from INotify alone and
// not virtually: a firing converts the subscriber back to the interface (see Fire). The order is binary interface.

class VEXEL_API IDrawingNotify : public INotify
{
public:
    virtual void OnDraw(IPainter* painter) = 0;
};

class VEXEL_API IMouseNotify : public INotify
{
public:
    virtual void OnButtonDown(CMouseEvent* event) = 0;
    virtual void OnButtonUp(CMouseEvent* event) = 0;
    virtual void OnMouseMove(CMouseEvent* event) = 0;
    virtual void OnWheel(CMouseWheelEvent* event) = 0;
};

class VEXEL_API IMouseClickNotify : public INotify
{
public:
    virtual void OnClick(CMouseEvent* event) = 0;
    virtual void OnDoubleClick(CMouseEvent* event) = 0;
};

class VEXEL_API IMouseHoverNotify : public INotify
{
public:
    virtual void OnHover(CMouseEvent* event) = 0;
    virtual void OnLeave(CMouseEvent* event) = 0;
};

class VEXEL_API IKeyboardNotify : public INotify
{
public:
    virtual void OnKeyDown(CKeyboardEvent* event) = 0;
    virtual void OnKeyUp(CKeyboardEvent* event) = 0;
    virtual void OnChar(CKeyboardEvent* event) = 0;
};

class VEXEL_API IWindowNotify : public INotify
{
public:
    virtual void OnResize(CWindowEvent* event) = 0;
    virtual void OnMove(CWindowEvent* event) = 0;
    virtual void OnDestroy(CWindowEvent* event) = 0;
    virtual void OnShow(CWindowEvent* event) = 0;
    virtual void OnHide(CWindowEvent* event) = 0;
};

class VEXEL_API IFocusNotify : public INotify
{
public:
    virtual void OnGetFocus(CFocusEvent* event) = 0;
    virtual void OnLostFocus(CFocusEvent* event) = 0;
};

class VEXEL_API ITimerNotify : public INotify
{
public:
    virtual void OnTimer(CTimerEvent* event) = 0;
};

class VEXEL_API IContextMenuNotify : public INotify
{
public:
    virtual void OnContextMenu(CContextMenuEvent* event) = 0;
};

class VEXEL_API ITooltipNotify : public INotify
{
public:
    virtual void OnTooltip(CTooltipEvent* event) = 0;
    virtual void OnTooltipTrack(CTooltipEvent* event) = 0;
};

class VEXEL_API IScrollNotify : public INotify
{
public:
    virtual void OnHorzScroll(CScrollEvent* event) = 0;
    virtual void OnVertScroll(CScrollEvent* event) = 0;
};

class VEXEL_API ICustomEventNotify : public INotify
{
public:
    virtual void OnCustomEvent(CCustomEvent* event) = 0;
};

class VEXEL_API ISystemNotify : public INotify
{
public:
    virtual void OnSysColorChanged(CEvent* event) = 0;
};

class VEXEL_API IScrollBarNotify : public INotify
{
public:
    virtual void ScrollBarOnScroll(CScrollEvent* event) = 0;
};

class VEXEL_API IEditNotify : public INotify
{
public:
    virtual void EditOnChangeText(CChangeTextEvent* event) = 0;
    virtual void EditOnChar(CEditKeyDownEvent* event) = 0;
    virtual void EditOnKeyDown(CEditKeyDownEvent* event) = 0;
    virtual void EditOnReturnPress(CEvent* event) = 0;
    virtual void EditOnVisibleChange(CVisibleChangeEvent* event) = 0;
    virtual void EditOnMouseWheel(CEditMouseWheelEvent* event) = 0;
};

/// A subscriber that leaves its senders when it dies. It hears of them by the notices, so whoever subscribes it passes
/// `notify` true. A sender stands once however often one subscribes to it.
/// `T`: one of the interfaces above, also the type under which the object is subscribed.
template <class T> class CSubscriber : public T
{
public:
    CSubscriber() : m_senders(CreateDefSenderList()) {}
    CSubscriber(CSubscriber const&) = delete;
    CSubscriber& operator=(CSubscriber const&) = delete;

    /// Ends the process when a sender throws.
    ~CSubscriber() override
    {
        while (IEventSender* const sender = m_senders->First())
        {
            sender->Unsubscribe(this, typeid(T), false);
            m_senders->Remove(sender);
        }
        delete m_senders;
    }

    void NoticeStarted(IEventSender* sender) override
    {
        if (!m_senders->Contains(sender))
            m_senders->Add(sender);
    }
    void NoticeStopped(IEventSender* sender) override { m_senders->Remove(sender); }

private:
    IEventSenderList* m_senders;
};

/// A timer's subscriber; OnTimer does nothing until overridden.
class VEXEL_API CTimerNotify : public CSubscriber<ITimerNotify>
{
public:
    void OnTimer(CTimerEvent*) override {}
};

/// A scroll bar's subscriber.
class VEXEL_API CScrollBarNotify : public CSubscriber<IScrollBarNotify>
{};

/// An edit's subscriber: what remains to be overridden are its keys and return.
class VEXEL_API CEditNotify : public CSubscriber<IEditNotify>
{
public:
    void EditOnChangeText(CChangeTextEvent*) override {}
    void EditOnChar(CEditKeyDownEvent*) override {}
    void EditOnVisibleChange(CVisibleChangeEvent*) override {}
    void EditOnMouseWheel(CEditMouseWheelEvent*) override {}
};

}  // namespace vexelbase
