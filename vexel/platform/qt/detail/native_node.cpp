#include "vexel/platform/qt/detail/native_node.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/qt/detail/qt_system.h"
#include "vexel/platform/qt/detail/qt_window.h"

#include <QApplication>
#include <QFocusEvent>
#include <QFont>
#include <QWidget>

#include <algorithm>

namespace vexelbase::qt
{

CQtNativeNode::CQtNativeNode(CQtWindow& window) : m_Window(&window)
{
    window.AddNative(*this);
}

CQtNativeNode::~CQtNativeNode()
{
    if (m_Window)
        m_Window->RemoveNative(*this);
}

void CQtNativeNode::Take(QWidget* widget, SNativeLink& link)
{
    m_Widget = widget;
    m_Link = &link;
    widget->hide();
    // In Qt's own order the window stands for them: where Tab goes among them the window says.
    if (widget->focusPolicy() != Qt::NoFocus)
        widget->setFocusPolicy(Qt::ClickFocus);
    SyncFont();
}

void CQtNativeNode::GiveUp()
{
    if (CQtWindow* const window = std::exchange(m_Window, nullptr))
        window->RemoveNative(*this);
    DropWidget();
}

void CQtNativeNode::WindowGoes()
{
    m_Window = nullptr;
    DropWidget();
}

void CQtNativeNode::DropWidget()
{
    QWidget* const widget = std::exchange(m_Widget, nullptr);
    if (!widget)
        return;
    std::exchange(m_Link, nullptr)->owner = nullptr;
    if (widget->hasFocus())
        widget->clearFocus();
    widget->hide();
    // Its parent may be deleted at once, while Qt stands in this one.
    if (CInQt::Is())
        widget->setParent(nullptr);
    widget->deleteLater();
}

void CQtNativeNode::WidgetGoes()
{
    m_Widget = nullptr;
    m_Link = nullptr;
}

double CQtNativeNode::GetScale() const
{
    return CQtSystem::Get().GetScale();
}

double CQtNativeNode::GetRatio() const
{
    return m_Window ? m_Window->GetRatio() : 1.0;
}

// Place and visibility ---------------------------------------------------------------------------------------------

void CQtNativeNode::Place(rectangle<int> const& rect)
{
    if (rect == m_Rect && !m_Moved)
        return;
    m_Rect = rect;
    m_Moved = true;
    if (m_Window && !m_Window->IsInPaint())
        Apply();
}

void CQtNativeNode::WantVisible(bool visible)
{
    m_WantedVisible = visible;
    if (m_Window && !m_Window->IsInPaint())
        Apply();
}

void CQtNativeNode::Apply()
{
    if (!m_Widget)
        return;
    std::weak_ptr<int> const life = m_Life;
    if (std::exchange(m_Moved, false))
        m_Widget->setGeometry(ToQtRect(m_Rect, GetRatio()));
    if (life.expired() || !m_Widget || m_WantedVisible != m_Widget->isHidden())
        return;
    bool const visible = m_WantedVisible;
    if (!visible && HasFocus())
        m_Widget->clearFocus();
    if (life.expired() || !m_Widget)
        return;
    m_Widget->setVisible(visible);
    if (!life.expired())
        VisibleChanged(visible);
}

bool CQtNativeNode::IsShown() const
{
    return m_Widget && m_Widget->isVisible();
}

void CQtNativeNode::LookChanged()
{
    if (!m_Widget)
        return;
    SyncFont();
    m_Moved = true;
    if (m_Window && !m_Window->IsInPaint())
        Apply();
}

// Where the system's scale is more than the window's ratio, letters are to grow with it.
void CQtNativeNode::SyncFont()
{
    double const zoom = GetScale() / GetRatio();
    QFont wanted = QApplication::font(m_Widget);
    if (zoom == 1.0)
    {
        m_Widget->setFont(QFont());
        return;
    }
    if (wanted.pointSizeF() > 0)
        wanted.setPointSizeF(wanted.pointSizeF() * zoom);
    else
        wanted.setPixelSize(std::max(1, ToInt(wanted.pixelSize() * zoom)));
    m_Widget->setFont(wanted);
}

size<int> CQtNativeNode::GetNaturalSize() const
{
    if (!m_Widget)
        return {m_Rect.Width(), m_Rect.Height()};
    m_Widget->ensurePolished();
    QSize const hint = m_Widget->sizeHint();
    return {CeilToInt(hint.width() * GetRatio()), CeilToInt(hint.height() * GetRatio())};
}

// Focus ------------------------------------------------------------------------------------------------------------

bool CQtNativeNode::HasFocus() const
{
    QWidget const* const focus = QApplication::focusWidget();
    return m_Widget && focus && (focus == m_Widget || m_Widget->isAncestorOf(focus));
}

bool CQtNativeNode::TakesTab() const
{
    return m_TabStop && TakesFocusByTab() && IsShown() && m_Widget->isEnabled();
}

void CQtNativeNode::TakeFocus(Qt::FocusReason reason)
{
    if (m_Widget)
        m_Widget->setFocus(reason);
}

void CQtNativeNode::WantFocus()
{
    if (!m_Window || !m_Widget || !m_Widget->isEnabled())
        return;
    if (IsShown())
        TakeFocus(Qt::OtherFocusReason);
    else
        m_Window->FocusWhenShown(*this);
}

void CQtNativeNode::WantEnabled(bool enabled)
{
    if (!m_Widget || enabled == m_Widget->isEnabledTo(m_Widget->parentWidget()))
        return;
    // Qt would give the focus to the next widget.
    if (!enabled && HasFocus())
        m_Widget->clearFocus();
    if (m_Widget)
        m_Widget->setEnabled(enabled);
}

// Events -----------------------------------------------------------------------------------------------------------

bool CQtNativeNode::HandleEvent(QEvent&)
{
    return false;
}

void CQtNativeNode::EventDone(QEvent& event)
{
    switch (event.type())
    {
    case QEvent::FocusIn:
        if (m_Window)
            m_Window->NativeGotFocus();
        GotFocus();
        break;
    case QEvent::Show:
        Shown();
        if (m_Window && IsShown())
            m_Window->NativeShown(*this);
        break;
    case QEvent::Enter:
        // For the window the pointer has left.
        if (m_Window)
            m_Window->PointerEnteredNative();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        event.accept();  // the window lies under the control, it does not get these too
        break;
    default:
        break;
    }
}

}  // namespace vexelbase::qt
