#pragma once

#include "vexel/export.h"
#include "vexel/platform/events.h"
#include "vexel/signals/event_sender.h"
#include "vexel/signals/notify.h"

#include <memory>
#include <vector>

namespace vexelbase
{

class IImageList;
class IPainter;
class ISysWindow;

/// A control on a native window: gets the window's events as virtual calls and fires each to its subscribers.
class VEXEL_API CVexelControl : public IDrawingNotify,
                                public IMouseNotify,
                                public IMouseClickNotify,
                                public IMouseHoverNotify,
                                public IKeyboardNotify,
                                public IWindowNotify,
                                public IFocusNotify,
                                public IContextMenuNotify,
                                public ITooltipNotify,
                                public IScrollNotify,
                                public ICustomEventNotify,
                                public ISystemNotify,
                                public CImplEventSender<IEventSender>
{
public:
    /// `window`: may be null until SetSysWindow. `owns`: the control deletes each window that it was given: when it takes
    /// another one, or when it goes if the window is being destroyed natively by then.
    CVexelControl(ISysWindow* window, bool owns);
    ~CVexelControl() override;
    CVexelControl(CVexelControl const&) = delete;
    CVexelControl& operator=(CVexelControl const&) = delete;

    ISysWindow* GetWindow() const { return m_Window; }  ///< Null once the window is destroyed.
    /// Leaves the present window and takes this one's events. With null it is also how a window that is being destroyed
    /// natively takes leave, after OnDestroy.
    virtual void SetSysWindow(ISysWindow* window);
    virtual void* GetHandle() const;  ///< The window, as an opaque value.
    virtual bool CanBeFocused() const { return true; }
    virtual void Refresh();              ///< Paints the whole window now.
    virtual void Invalidate();           ///< Asks for a paint of the whole window.
    virtual void InternalBeginUpdate();  ///< Locks drawing, counted.
    virtual void InternalEndUpdate();

    IImageList* GetImageList() const { return m_ImageList; }
    void SetImageList(IImageList* list) { m_ImageList = list; }  ///< Not owned.

    void NoticeStarted(IEventSender*) override {}
    void NoticeStopped(IEventSender*) override {}

    // Native events, on the GUI thread. A subscriber may delete the control; what overrides these must take care ----
    void OnDraw(IPainter* painter) override;
    void OnButtonDown(CMouseEvent* event) override;
    void OnButtonUp(CMouseEvent* event) override;
    void OnMouseMove(CMouseEvent* event) override;
    void OnWheel(CMouseWheelEvent* event) override;
    void OnClick(CMouseEvent* event) override;
    void OnDoubleClick(CMouseEvent* event) override;
    void OnHover(CMouseEvent* event) override;
    void OnLeave(CMouseEvent* event) override;
    void OnKeyDown(CKeyboardEvent* event) override;
    void OnKeyUp(CKeyboardEvent* event) override;
    void OnChar(CKeyboardEvent* event) override;
    void OnResize(CWindowEvent* event) override;
    void OnMove(CWindowEvent* event) override;
    void OnDestroy(CWindowEvent* event) override;  ///< The window is there until it returns to the backend.
    void OnShow(CWindowEvent* event) override;
    void OnHide(CWindowEvent* event) override;
    void OnGetFocus(CFocusEvent* event) override;
    void OnLostFocus(CFocusEvent* event) override;
    void OnContextMenu(CContextMenuEvent* event) override;
    void OnTooltip(CTooltipEvent* event) override;
    void OnTooltipTrack(CTooltipEvent* event) override;
    void OnHorzScroll(CScrollEvent* event) override;
    void OnVertScroll(CScrollEvent* event) override;
    void OnCustomEvent(CCustomEvent* event) override;  ///< Frees the event after firing it.
    void OnSysColorChanged(CEvent* event) override;

private:
    ISysWindow* m_Window = nullptr;
    bool const m_OwnsWindow;
    std::vector<std::unique_ptr<ISysWindow>> m_OwnedWindows;  // the present one, and former ones that couldn't go yet
    IImageList* m_ImageList = nullptr;
};

}  // namespace vexelbase
