#include "vexel/platform/qt/detail/qt_window.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/qt/detail/in_qt.h"
#include "vexel/platform/qt/detail/native_node.h"
#include "vexel/platform/qt/detail/qt_device.h"
#include "vexel/platform/qt/detail/qt_edit.h"
#include "vexel/platform/qt/detail/qt_popup.h"
#include "vexel/platform/qt/detail/qt_scroll_bar.h"
#include "vexel/platform/qt/detail/qt_system.h"
#include "vexel/platform/qt/detail/qt_widget.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QEnterEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace vexelbase::qt
{

namespace
{

std::vector<CQtWindow*>& AllWindows()
{
    static auto* const windows = new std::vector<CQtWindow*>;  // outlives every static window
    return *windows;
}

Qt::CursorShape ToShape(int cursor)
{
    switch (cursor)
    {
    case 7:
        return Qt::SizeVerCursor;
    case 9:
        return Qt::SizeHorCursor;
    case 12:
        return Qt::PointingHandCursor;
    case 13:
        return Qt::ForbiddenCursor;
    default:
        return Qt::ArrowCursor;
    }
}

}  // namespace

CQtWindow::CQtWindow(QWidget* parent)
{
    SetDevice(std::make_unique<CQtDevice>(GetPixels(), CQtSystem::Get().GetScale()));
    AllWindows().push_back(this);
    m_Widget = new CQtWidget(*this, parent);
    SyncSurface();
}

CQtWindow::CQtWindow(QWidget* owner, CQtPopup& popup) : m_OwnPopup(&popup)
{
    SetDevice(std::make_unique<CQtDevice>(GetPixels(), CQtSystem::Get().GetScale()));
    AllWindows().push_back(this);
    m_Widget = new CQtWidget(*this, owner, Qt::Popup | Qt::FramelessWindowHint);
    SyncSurface();
}

CQtWindow::~CQtWindow()
{
    std::vector<CQtWindow*>& all = AllWindows();
    all.erase(std::find(all.begin(), all.end(), this));
    if (!IsDestroying())
        StartDestroying();
    GiveUpNatives();

    CQtWidget* widget = nullptr;
    {
        std::lock_guard const lock(m_WidgetMutex);
        widget = std::exchange(m_Widget, nullptr);
    }
    if (!widget)
        return;
    widget->Detach();
    if (CInQt::Is())
    {
        // Qt may still stand in it.
        widget->hide();
        widget->deleteLater();
    }
    else
    {
        delete widget;
    }
}

void CQtWindow::DestroyAll()
{
    // A control that hears of the end of its window may delete others.
    std::vector<CQtWindow*> const& all = AllWindows();
    for (;;)
    {
        auto const found =
            std::find_if(all.begin(), all.end(), [](CQtWindow const* window) { return window->m_Widget; });
        if (found == all.end())
            return;
        delete (*found)->m_Widget;
    }
}

void CQtWindow::WidgetGoes()
{
    {
        std::lock_guard const lock(m_WidgetMutex);
        m_Widget = nullptr;
    }
    GetPixels().UseOwn(false);
    std::weak_ptr<int> const life = GetLifeToken();
    if (!IsDestroying())
        StartDestroying();
    if (!life.expired())
        GiveUpNatives();
}

// Those that are still held lose their native side with the widget, whose children they are.
void CQtWindow::GiveUpNatives()
{
    m_FocusWhenShown = nullptr;
    std::vector<CQtNativeNode*> const natives = std::exchange(m_Natives, {});
    for (CQtNativeNode* const native : natives)
        native->WindowGoes();
    while (!m_Popups.empty())
    {
        CQtPopup* const popup = m_Popups.back();
        m_Popups.pop_back();
        popup->OwnerGone();
    }
}

QWidget* CQtWindow::GetWidget() const
{
    return m_Widget;
}

CQtDevice& CQtWindow::GetQtDevice()
{
    return static_cast<CQtDevice&>(GetDevice());
}

// Surface ----------------------------------------------------------------------------------------------------------

size<int> CQtWindow::GetWantedSize() const
{
    auto const pixels = [this](int extent) { return ToInt(std::round(std::max(0, extent) * m_Ratio)); };
    return {pixels(m_Widget->width()), pixels(m_Widget->height())};
}

void CQtWindow::SyncSurface()
{
    if (!m_Widget || IsDestroying())
        return;
    CheckStore();
    double const ratio = m_Widget->devicePixelRatioF();
    if (std::exchange(m_Ratio, ratio) != ratio && !ForAllNatives([](CQtNativeNode& native) { native.LookChanged(); }))
        return;
    size<int> const wanted = GetWantedSize();
    if (wanted == GetPixels().GetSize())
        return;
    std::weak_ptr<int> const life = GetLifeToken();
    ResizeSurface(wanted);
    // The new size is painted before Qt shows it.
    if (!life.expired() && m_Widget && m_Widget->isVisible() && IsFramePending())
        PaintFrame();
}

// Text and parts are sized by the scale of the system, so that all windows measure alike.
bool CQtWindow::SyncScale()
{
    double const scale = CQtSystem::Get().GetScale();
    if (GetQtDevice().GetRatio() == scale)
        return true;
    GetQtDevice().SetRatio(scale);
    return LookChanged();
}

bool CQtWindow::LookChanged()
{
    CQtSystem::Get().RefreshLook();
    if (!ForAllNatives([](CQtNativeNode& native) { native.LookChanged(); }))
        return false;
    CEvent changed;
    return Send(&CVexelControl::OnSysColorChanged, &changed);
}

void CQtWindow::RequestFrame()
{
    if (m_Widget)
        QCoreApplication::postEvent(m_Widget, new QEvent(static_cast<QEvent::Type>(CQtWidget::FrameEvent())));
}

void CQtWindow::SyncAllScales()
{
    // A control that hears of it may delete windows.
    std::vector<std::pair<CQtWindow*, std::weak_ptr<int>>> all;
    for (CQtWindow* const window : AllWindows())
        all.emplace_back(window, window->GetLifeToken());
    for (auto const& [window, life] : all)
    {
        if (!life.expired() && window->m_Widget)
            window->SyncScale();
    }
}

void CQtWindow::WakeQueue()
{
    std::lock_guard const lock(m_WidgetMutex);
    if (m_Widget)
        QCoreApplication::postEvent(m_Widget, new QEvent(static_cast<QEvent::Type>(CQtWidget::QueueEvent())));
}

// Pointer ----------------------------------------------------------------------------------------------------------

void CQtWindow::SetCursor(int cursor)
{
    if (!m_Widget || m_Cursor == cursor)
        return;
    m_Cursor = cursor;
    m_Widget->setCursor(ToShape(cursor));
}

void CQtWindow::CaptureMouse()
{
    if (m_Widget && m_Widget->isVisible())
        m_Widget->grabMouse();
}

void CQtWindow::ReleaseMouse()
{
    if (!m_Widget || QWidget::mouseGrabber() != m_Widget)
        return;
    m_Widget->releaseMouse();
    if (m_Input.IsLeaveDue())
        QCoreApplication::postEvent(m_Widget, new QEvent(static_cast<QEvent::Type>(CQtWidget::ReleaseEvent())));
}

void CQtWindow::ScreenToClient(point<int>* position) const
{
    if (!m_Widget)
        return;
    // The widget's corner is rounded once, so that both ways agree to the pixel.
    double const scale = CQtSystem::GetScreenRatio();
    QPointF const corner = m_Widget->mapToGlobal(QPointF(0, 0)) * scale;
    double const factor = m_Ratio / scale;
    position->x = FloorToInt((position->x - std::round(corner.x())) * factor);
    position->y = FloorToInt((position->y - std::round(corner.y())) * factor);
}

void CQtWindow::ClientToScreen(point<int>* position) const
{
    if (!m_Widget)
        return;
    double const scale = CQtSystem::GetScreenRatio();
    QPointF const corner = m_Widget->mapToGlobal(QPointF(0, 0)) * scale;
    double const factor = scale / m_Ratio;
    position->x = FloorToInt(std::round(corner.x()) + position->x * factor);
    position->y = FloorToInt(std::round(corner.y()) + position->y * factor);
}

// Native children --------------------------------------------------------------------------------------------------

vexel_ptr<IScrollBar> CQtWindow::CreateScrollBar(int type)
{
    if (!m_Widget || IsDestroying())
        return {};
    return MakeRef<CQtScrollBar>(*this, type == stVertical);
}

vexel_ptr<IEdit> CQtWindow::CreateEdit(bool)
{
    if (!m_Widget || IsDestroying())
        return {};
    return MakeRef<CQtEdit>(*this);
}

vexel_ptr<IComboBox> CQtWindow::CreateComboBox(bool editable)
{
    if (!m_Widget || IsDestroying())
        return {};
    return MakeRef<CQtComboBox>(*this, editable);
}

vexel_ptr<IPopup> CQtWindow::CreatePopup()
{
    if (!m_Widget || IsDestroying())
        return {};
    return MakeRef<CQtPopup>(*this);
}

void CQtWindow::RemoveNative(CQtNativeNode& native)
{
    std::erase(m_Natives, &native);
    if (m_FocusWhenShown == &native)
        m_FocusWhenShown = nullptr;
}

void CQtWindow::RemovePopup(CQtPopup& popup)
{
    std::erase(m_Popups, &popup);
}

void CQtWindow::NativeShown(CQtNativeNode& native)
{
    if (m_FocusWhenShown != &native)
        return;
    m_FocusWhenShown = nullptr;
    native.TakeFocus(Qt::OtherFocusReason);
}

// Each may delete others, or the window: then it answers false.
template <class Work> bool CQtWindow::ForAllNatives(Work const& work)
{
    std::weak_ptr<int> const life = GetLifeToken();
    std::vector<std::pair<CQtNativeNode*, std::weak_ptr<int>>> all;
    for (CQtNativeNode* const native : m_Natives)
        all.emplace_back(native, native->GetLife());
    for (auto const& [native, nativeLife] : all)
    {
        if (nativeLife.expired())
            continue;
        work(*native);
        if (life.expired())
            return false;
    }
    return true;
}

void CQtWindow::AfterPaint()
{
    ForAllNatives([](CQtNativeNode& native) { native.Apply(); });
}

// Events -----------------------------------------------------------------------------------------------------------

bool CQtWindow::NeedsQtFirst(QEvent const& event)
{
    switch (event.type())
    {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
    case QEvent::FontChange:
    case QEvent::ScreenChangeInternal:
        return true;
    default:
        return false;
    }
}

bool CQtWindow::IsForWindow(QEvent const& event) const
{
    switch (event.type())
    {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::ToolTip:
        return m_Widget && m_Widget->isEnabled();
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
        // What a native control did not want is none of the window's.
        return m_Widget && m_Widget->isEnabled() && !IsNativeFocused();
    default:
        return NeedsQtFirst(event) || event.type() == CQtWidget::FrameEvent() ||
               event.type() == CQtWidget::QueueEvent() || event.type() == CQtWidget::RatioEvent() ||
               event.type() == CQtWidget::ReleaseEvent();
    }
}

bool CQtWindow::HandleEvent(QEvent& event)
{
    // For events that go on to the parent widget when nobody deals with them.
    auto const accept = [&event](bool dealtWith) {
        event.setAccepted(dealtWith);
        return dealtWith;
    };

    switch (event.type())
    {
    case QEvent::MouseButtonPress:
        if (PressOutside(event))
            return true;
        return accept(m_Input.Press(static_cast<QMouseEvent&>(event)));
    case QEvent::MouseButtonRelease:
        return accept(m_Input.Release(static_cast<QMouseEvent&>(event)));
    case QEvent::MouseButtonDblClick:
        if (PressOutside(event))
            return true;
        return accept(m_Input.DoubleClick(static_cast<QMouseEvent&>(event)));
    case QEvent::MouseMove:
        return accept(m_Input.Move(static_cast<QMouseEvent&>(event)));
    case QEvent::Wheel:
        return accept(m_Input.Wheel(static_cast<QWheelEvent&>(event)));
    case QEvent::KeyPress:
    {
        std::weak_ptr<int> const life = GetLifeToken();
        bool const dealtWith = m_Input.KeyDown(static_cast<QKeyEvent&>(event));
        if (dealtWith || life.expired() || !m_OwnPopup || static_cast<QKeyEvent&>(event).key() != Qt::Key_Escape)
            return accept(dealtWith);
        m_OwnPopup->Close(0);
        return accept(true);
    }
    case QEvent::KeyRelease:
        return accept(m_Input.KeyUp(static_cast<QKeyEvent&>(event)));
    case QEvent::InputMethod:
        return accept(m_Input.InputMethod(static_cast<QInputMethodEvent&>(event)));
    case QEvent::ContextMenu:
        return accept(m_Input.ContextMenu(static_cast<QContextMenuEvent&>(event)));
    case QEvent::ToolTip:
        return m_Input.Tooltip(static_cast<QHelpEvent&>(event));
    case QEvent::Enter:
        return m_Input.Enter(static_cast<QEnterEvent&>(event));
    case QEvent::Leave:
        return m_Input.Leave();
    case QEvent::FocusIn:
        FocusEntered(static_cast<QFocusEvent&>(event).reason());
        return true;
    case QEvent::FocusOut:
    {
        if (m_FocusHeld > 0 || !std::exchange(m_ToldOfFocus, false))
            return true;
        CFocusEvent sent;
        Send(&CVexelControl::OnLostFocus, &sent);
        return true;
    }
    case QEvent::Resize:
        SyncSurface();
        return true;
    case QEvent::Move:
    {
        CWindowEvent sent;
        Send(&CVexelControl::OnMove, &sent);
        return true;
    }
    case QEvent::Show:
    {
        CWindowEvent sent;
        // What was to be painted while nobody could see it.
        if (Send(&CVexelControl::OnShow, &sent) && m_Widget && IsFramePending())
            PaintFrame();
        return true;
    }
    case QEvent::Hide:
    {
        LeaveStore();
        ReleaseMouse();
        HideTooltip();
        if (m_OwnPopup)
            m_OwnPopup->Hidden();
        std::weak_ptr<int> const life = GetLifeToken();
        std::vector<CQtPopup*> const popups = m_Popups;
        for (CQtPopup* const popup : popups)
        {
            if (life.expired())
                return true;
            if (std::find(m_Popups.begin(), m_Popups.end(), popup) != m_Popups.end())
                popup->Close(0);
        }
        if (life.expired())
            return true;
        CWindowEvent sent;
        Send(&CVexelControl::OnHide, &sent);
        return true;
    }
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
    case QEvent::FontChange:
        LookChanged();
        return true;
    case QEvent::ScreenChangeInternal:
        if (SyncScale())
            SyncSurface();
        return true;
    default:
        break;
    }

    if (event.type() == CQtWidget::FrameEvent())
    {
        if (m_Widget && m_Widget->isVisible())
            PaintFrame();
    }
    else if (event.type() == CQtWidget::QueueEvent())
    {
        RunQueue();
    }
    else if (event.type() == CQtWidget::ReleaseEvent())
    {
        m_Input.LeaveIfStillDue();
    }
    else if (event.type() == CQtWidget::RatioEvent())
    {
        if (SyncScale())
            SyncSurface();
    }
    return true;
}

// A press beside a popup closes it before it is told to what lies there. Not all platforms of Qt would do that.
bool CQtWindow::PressOutside(QEvent& event)
{
    auto const& press = static_cast<QMouseEvent&>(event);
    if (!m_OwnPopup || !m_Widget || QWidget::mouseGrabber() == m_Widget ||
        m_Widget->rect().contains(press.position().toPoint()))
        return false;
    event.accept();
    QPointF const at = press.globalPosition();
    auto const again = [at, button = press.button(), buttons = press.buttons(),
                        modifiers = press.modifiers()](QPointF const& place) {
        return QMouseEvent(QEvent::MouseButtonPress, place, at, button, buttons, modifiers);
    };
    m_OwnPopup->Close(0);
    if (auto* const below = dynamic_cast<CQtWidget*>(QApplication::activePopupWidget()))
    {
        QWidget* const child = below->childAt(below->mapFromGlobal(at).toPoint());
        QWidget* const target = child ? child : below;
        QMouseEvent passed = again(target->mapFromGlobal(at));
        QCoreApplication::sendEvent(target, &passed);
        return true;
    }
    QWidget* const below = QApplication::activePopupWidget() ? nullptr : QApplication::widgetAt(at.toPoint());
    QWidget const* const modal = QApplication::activeModalWidget();
    QWindow* const native = below ? below->window()->windowHandle() : nullptr;
    if (native && (!modal || modal == below->window()))
        QCoreApplication::postEvent(native, again(native->mapFromGlobal(at)).clone());
    return true;
}

}  // namespace vexelbase::qt
