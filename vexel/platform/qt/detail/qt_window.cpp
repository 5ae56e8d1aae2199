#include "vexel/platform/qt/detail/qt_window.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/qt/detail/qt_device.h"
#include "vexel/platform/qt/detail/qt_system.h"
#include "vexel/platform/qt/detail/qt_widget.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QEnterEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QImage>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <array>
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

bool CQtWindow::s_ShowRepaints = false;

CQtWindow::CQtWindow(QWidget* parent)
{
    SetDevice(std::make_unique<CQtDevice>(GetPixels(), CQtSystem::Get().GetScale()));
    AllWindows().push_back(this);
    m_Widget = new CQtWidget(*this, parent);
    SyncSurface();
}

CQtWindow::~CQtWindow()
{
    std::vector<CQtWindow*>& all = AllWindows();
    all.erase(std::find(all.begin(), all.end(), this));
    if (!IsDestroying())
        StartDestroying();

    CQtWidget* widget = nullptr;
    {
        std::lock_guard const lock(m_WidgetMutex);
        widget = std::exchange(m_Widget, nullptr);
    }
    if (!widget)
        return;
    widget->Detach();
    if (widget->IsInEvent())
    {
        // Qt still stands in it.
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
    if (!IsDestroying())
        StartDestroying();
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
    m_Ratio = m_Widget->devicePixelRatioF();
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
    CEvent changed;
    return Send(&CVexelControl::OnSysColorChanged, &changed);
}

void CQtWindow::RequestFrame()
{
    if (m_Widget)
        QCoreApplication::postEvent(m_Widget, new QEvent(static_cast<QEvent::Type>(CQtWidget::FrameEvent())));
}

void CQtWindow::PresentDamage()
{
    CDamage& damage = GetDevice().GetDamage();
    if (m_Widget && damage.GetCount() > 0)
    {
        // Rectangles that come from top to bottom are only appended to a region.
        std::array<rectangle<int>, CDamage::Capacity> rects;
        for (int i = 0; i < damage.GetCount(); ++i)
            rects[static_cast<std::size_t>(i)] = damage[i];
        auto const end = rects.begin() + damage.GetCount();
        std::sort(rects.begin(), end, [](rectangle<int> const& a, rectangle<int> const& b) {
            return a.top != b.top ? a.top < b.top : a.left < b.left;
        });
        QRegion region;
        for (auto rect = rects.begin(); rect != end; ++rect)
        {
            int const left = FloorToInt(rect->left / m_Ratio);
            int const top = FloorToInt(rect->top / m_Ratio);
            region +=
                QRect(left, top, CeilToInt(rect->right / m_Ratio) - left, CeilToInt(rect->bottom / m_Ratio) - top);
        }
        m_Widget->update(region);
        if (s_ShowRepaints)
            FlashRepaint(region);
    }
    damage.Clear();
}

// The colour lies over what is shown, never on the surface.
void CQtWindow::FlashRepaint(QRegion const& region)
{
    m_Flash += region;
    QTimer::singleShot(250, m_Widget, [this, life = GetLifeToken()] {
        if (life.expired() || !m_Widget)
            return;
        m_Widget->update(m_Flash);
        m_Flash = QRegion();
    });
}

void CQtWindow::SetShowRepaints(bool show)
{
    s_ShowRepaints = show;
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

void CQtWindow::Show(QRegion const& region)
{
    if (!m_Widget)
        return;
    QPainter painter(m_Widget);
    QImage const image = ViewPixels(GetPixels());
    double const ratio = m_Widget->devicePixelRatioF();
    if (image.isNull())
        return;
    if (ratio != m_Ratio)
    {
        // The widget came to another screen: this once the old pixels are stretched.
        QCoreApplication::postEvent(m_Widget, new QEvent(static_cast<QEvent::Type>(CQtWidget::RatioEvent())));
        painter.drawImage(QRectF(m_Widget->rect()), image, QRectF(image.rect()));
        return;
    }

    painter.setCompositionMode(QPainter::CompositionMode_Source);
    if (ratio != 1.0)
        painter.scale(1.0 / ratio, 1.0 / ratio);
    int const shownWidth = CeilToInt(m_Widget->width() * ratio);
    int const shownHeight = CeilToInt(m_Widget->height() * ratio);
    for (QRect const& rect : region)
    {
        int const left = FloorToInt(rect.left() * ratio);
        int const top = FloorToInt(rect.top() * ratio);
        int const right = std::min(CeilToInt((rect.left() + rect.width()) * ratio), shownWidth);
        int const bottom = std::min(CeilToInt((rect.top() + rect.height()) * ratio), shownHeight);
        painter.drawImage(QPoint(left, top), image, QRect(left, top, right - left, bottom - top));
        if (right > image.width())
            painter.drawImage(QRect(image.width(), top, right - image.width(), bottom - top), image,
                              QRect(image.width() - 1, top, 1, bottom - top));
        if (bottom > image.height())
            painter.drawImage(QRect(left, image.height(), right - left, bottom - image.height()), image,
                              QRect(left, image.height() - 1, right - left, 1));
    }
    if (m_Flash.isEmpty())
        return;
    painter.resetTransform();
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    for (QRect const& rect : region.intersected(m_Flash))
        painter.fillRect(rect, QColor(255, 120, 0, 110));
}

void CQtWindow::WakeQueue()
{
    std::lock_guard const lock(m_WidgetMutex);
    if (m_Widget)
        QCoreApplication::postEvent(m_Widget, new QEvent(static_cast<QEvent::Type>(CQtWidget::QueueEvent())));
}

// Focus and pointer ------------------------------------------------------------------------------------------------

void CQtWindow::SetFocus()
{
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

vexel_ptr<IScrollBar> CQtWindow::CreateScrollBar(int)
{
    return {};
}

vexel_ptr<IEdit> CQtWindow::CreateEdit(bool)
{
    return {};
}

vexel_ptr<IComboBox> CQtWindow::CreateComboBox(bool)
{
    return {};
}

vexel_ptr<IPopup> CQtWindow::CreatePopup()
{
    return {};
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
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::ToolTip:
        return m_Widget && m_Widget->isEnabled();
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
        return accept(m_Input.Press(static_cast<QMouseEvent&>(event)));
    case QEvent::MouseButtonRelease:
        return accept(m_Input.Release(static_cast<QMouseEvent&>(event)));
    case QEvent::MouseButtonDblClick:
        return accept(m_Input.DoubleClick(static_cast<QMouseEvent&>(event)));
    case QEvent::MouseMove:
        return accept(m_Input.Move(static_cast<QMouseEvent&>(event)));
    case QEvent::Wheel:
        return accept(m_Input.Wheel(static_cast<QWheelEvent&>(event)));
    case QEvent::KeyPress:
        return accept(m_Input.KeyDown(static_cast<QKeyEvent&>(event)));
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
        ReleaseMouse();
        HideTooltip();
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

// False: the window is gone.
bool CQtWindow::FocusEntered(int reason)
{
    CFocusEvent sent;
    if (!Send(&CVexelControl::OnGetFocus, &sent))
        return false;
    bool const byTab = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    if (!byTab || !GetEventTarget())
        return true;
    // The control frees the event.
    return Send(&CVexelControl::OnCustomEvent,
                new CCustomEvent(reason == Qt::TabFocusReason ? CCustomEvent::ceFirstTabElement
                                                              : CCustomEvent::ceLastTabElement));
}

}  // namespace vexelbase::qt
