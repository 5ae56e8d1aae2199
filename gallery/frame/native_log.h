#pragma once

#include "vexel/platform/events.h"
#include "vexel/platform/vexel_control.h"
#include "vexel/signals/notify.h"

namespace gallery
{

/// Writes a line "native ..." for each native event that a control fires to its subscribers.
class CNativeLog : public vexelbase::CSubscriber<vexelbase::IMouseNotify>,
                   public vexelbase::CSubscriber<vexelbase::IMouseClickNotify>,
                   public vexelbase::CSubscriber<vexelbase::IKeyboardNotify>,
                   public vexelbase::CSubscriber<vexelbase::IWindowNotify>,
                   public vexelbase::CSubscriber<vexelbase::IFocusNotify>,
                   public vexelbase::CSubscriber<vexelbase::IContextMenuNotify>,
                   public vexelbase::CSubscriber<vexelbase::ITooltipNotify>
{
public:
    explicit CNativeLog(vexelbase::CVexelControl& control);

    void OnButtonDown(vexelbase::CMouseEvent* event) override;
    void OnButtonUp(vexelbase::CMouseEvent* event) override;
    void OnMouseMove(vexelbase::CMouseEvent* event) override;
    void OnWheel(vexelbase::CMouseWheelEvent* event) override;
    void OnClick(vexelbase::CMouseEvent* event) override;
    void OnDoubleClick(vexelbase::CMouseEvent* event) override;
    void OnKeyDown(vexelbase::CKeyboardEvent* event) override;
    void OnKeyUp(vexelbase::CKeyboardEvent* event) override;
    void OnChar(vexelbase::CKeyboardEvent* event) override;
    void OnResize(vexelbase::CWindowEvent* event) override;
    void OnMove(vexelbase::CWindowEvent* event) override;
    void OnDestroy(vexelbase::CWindowEvent* event) override;
    void OnShow(vexelbase::CWindowEvent* event) override;
    void OnHide(vexelbase::CWindowEvent* event) override;
    void OnGetFocus(vexelbase::CFocusEvent* event) override;
    void OnLostFocus(vexelbase::CFocusEvent* event) override;
    void OnContextMenu(vexelbase::CContextMenuEvent* event) override;
    void OnTooltip(vexelbase::CTooltipEvent* event) override;
    void OnTooltipTrack(vexelbase::CTooltipEvent* event) override;

private:
    vexelbase::CVexelControl& m_Control;
};

}  // namespace gallery
