// The native focus of a window, and where Tab leads among it, its native controls and the rest of the program.

#include "vexel/platform/qt/detail/native_node.h"
#include "vexel/platform/qt/detail/qt_widget.h"
#include "vexel/platform/qt/detail/qt_window.h"

#include <QApplication>
#include <QPointer>

namespace vexelbase::qt
{

void CQtWindow::SetFocus()
{
    m_FocusWhenShown = nullptr;
    if (!m_Widget || m_Widget->hasFocus())
        return;
    // From another window of this program the focus is taken along. Where the program is not in front it is taken when
    // the user turns to it.
    QWidget* const top = m_Widget->window();
    if (m_Widget->isVisible() && QApplication::activeWindow() && QApplication::activeWindow() != top &&
        !QApplication::activePopupWidget())
        top->activateWindow();
    m_Widget->setFocus(Qt::OtherFocusReason);
}

bool CQtWindow::HasFocus() const
{
    return m_Widget && m_Widget->hasFocus();
}

bool CQtWindow::IsNativeFocused() const
{
    return std::any_of(m_Natives.begin(), m_Natives.end(),
                       [](CQtNativeNode const* native) { return native->HasFocus(); });
}

// False: the window is gone.
bool CQtWindow::FocusEntered(int reason)
{
    m_FocusWhenShown = nullptr;
    if (m_FocusHeld > 0)
        return true;
    if (reason == Qt::BacktabFocusReason && m_FocusHeld == 0)
    {
        // Its native controls stand behind the window itself.
        if (CQtNativeNode* const last = FindTabStop(nullptr, false))
        {
            std::weak_ptr<int> const life = GetLifeToken();
            last->TakeFocus(Qt::BacktabFocusReason);
            return !life.expired();
        }
    }
    m_ToldOfFocus = true;
    CFocusEvent sent;
    if (!Send(&CVexelControl::OnGetFocus, &sent))
        return false;
    bool const byTab = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    return !byTab || EnterByTab(reason == Qt::TabFocusReason);
}

// False: the window is gone.
bool CQtWindow::EnterByTab(bool forward)
{
    if (!GetEventTarget())
        return true;
    // The control frees the event.
    return Send(&CVexelControl::OnCustomEvent,
                new CCustomEvent(forward ? CCustomEvent::ceFirstTabElement : CCustomEvent::ceLastTabElement));
}

// Tells the control what was held back. False: the window is gone.
bool CQtWindow::SettleFocus()
{
    if (m_FocusHeld > 0 || !m_Widget || m_Widget->hasFocus() == m_ToldOfFocus)
        return true;
    if (!m_ToldOfFocus)
        return FocusEntered(Qt::OtherFocusReason);
    m_ToldOfFocus = false;
    CFocusEvent sent;
    return Send(&CVexelControl::OnLostFocus, &sent);
}

// The native control that Tab goes to next; null for `from`: the window itself. Null: there is none.
CQtNativeNode* CQtWindow::FindTabStop(CQtNativeNode const* from, bool forward) const
{
    CQtNativeNode* before = nullptr;
    bool passed = from == nullptr;
    for (CQtNativeNode* const native : m_Natives)
    {
        if (native == from)
        {
            if (!forward)
                return before;
            passed = true;
        }
        else if (native->TakesTab())
        {
            if (forward && passed)
                return native;
            before = native;
        }
    }
    return forward ? nullptr : before;
}

// To another widget than the window's own.
bool CQtWindow::MoveFocusOut(bool forward)
{
    QPointer<CQtWidget> const widget(m_Widget);
    Qt::FocusPolicy const policy = widget->focusPolicy();
    widget->setFocusPolicy(Qt::ClickFocus);
    bool const moved = widget->MoveFocus(forward);
    if (widget)
        widget->setFocusPolicy(policy);
    return moved;
}

void CQtWindow::LeaveByTab(bool forward)
{
    if (forward)
    {
        if (CQtNativeNode* const native = FindTabStop(nullptr, true))
            return native->TakeFocus(Qt::TabFocusReason);
    }
    std::weak_ptr<int> const life = GetLifeToken();
    if (MoveFocusOut(forward) || life.expired() || !m_Widget)
        return;
    CQtNativeNode* const last = forward ? nullptr : FindTabStop(nullptr, false);
    if (last)
        last->TakeFocus(Qt::BacktabFocusReason);
    else if (SettleFocus())
        EnterByTab(forward);
}

void CQtWindow::TabFromNative(CQtNativeNode& native, int keys)
{
    if (!m_Widget)
        return;
    bool const forward = (keys & ksShift) == 0;
    std::weak_ptr<int> const life = GetLifeToken();
    if (native.IsTabStop())
    {
        if (CQtNativeNode* const next = FindTabStop(&native, forward))
            return next->TakeFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        // Qt moves on from the widget that has the focus.
        ++m_FocusHeld;
        m_Widget->setFocus(Qt::OtherFocusReason);
        bool const moved = !life.expired() && m_Widget && forward && MoveFocusOut(true);
        if (life.expired())
            return;
        --m_FocusHeld;
        if (!moved && SettleFocus())
            EnterByTab(forward);
        return;
    }

    // The control leads Tab through its own order, in which the native control stands. For that the window has the
    // focus, without the control's being told: it would give it back to where it was.
    ++m_FocusHeld;
    m_Widget->setFocus(Qt::OtherFocusReason);
    if (life.expired())
        return;
    CKeyboardEvent sent(keys, vkTab);
    bool const lives = Send(&CVexelControl::OnKeyDown, &sent);
    if (!lives)
        return;
    --m_FocusHeld;
    if (m_Widget && m_Widget->hasFocus() && sent.m_PassOn && sent.IsContinue())
        LeaveByTab(forward);
    else
        SettleFocus();
}

}  // namespace vexelbase::qt
