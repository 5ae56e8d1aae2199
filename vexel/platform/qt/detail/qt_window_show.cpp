// How a window's surface comes to the screen. Where nobody else paints on the widget the surface is no memory of the
// window's own but the widget's pixels in the backing store: what is painted need not be copied, and moved pixels are moved
// once. Elsewhere, and until the store shows all of the surface, it is copied into the store.

#include "vexel/platform/convert.h"
#include "vexel/platform/qt/detail/qt_device.h"
#include "vexel/platform/qt/detail/qt_widget.h"
#include "vexel/platform/qt/detail/qt_window.h"

#include <QBackingStore>
#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <QTimer>

#include <algorithm>
#include <array>
#include <utility>

namespace vexelbase::qt
{

bool CQtWindow::s_ShowRepaints = false;

// In the store -----------------------------------------------------------------------------------------------------

bool CQtWindow::IsInStore() const
{
    return GetPixels().IsOnOther();
}

bool CQtWindow::MayUseStore() const
{
    return m_Widget && m_Widget->isVisible() && !s_ShowRepaints && m_Flash.isEmpty() && IsAloneInStore(*m_Widget);
}

SStorePixels CQtWindow::FindStore() const
{
    return m_Widget ? FindStorePixels(*m_Widget, m_Ratio, GetSurfaceSize()) : SStorePixels();
}

void CQtWindow::EnterStore()
{
    if (!m_Store.first || m_Suspect || GetDevice().GetDamage().GetCount() > 0 || GetShownSize() != GetSurfaceSize() ||
        !m_Missing.subtracted(GetChildRegion()).isEmpty() || FindStore() != m_Store)
        return;
    m_Missing = QRegion();
    m_HasNeighbours = HasNeighbours(*m_Widget);
    GetPixels().UseOther(m_Store.first, m_Store.stride);
}

// What others have painted is no part of the surface.
void CQtWindow::LeaveStore()
{
    if (!IsInStore())
        return;
    bool const there = FindStore() == m_Store;
    GetPixels().UseOwn(there);
    m_Store = {};
    if (!there || m_HasNeighbours)
        LoseSurface();
}

void CQtWindow::NeighbourComes()
{
    m_HasNeighbours = true;
    NeighbourMoves();
}

// From now until Qt paints, nothing tells which of the pixels are its.
void CQtWindow::NeighbourMoves()
{
    m_Suspect = true;
}

void CQtWindow::CheckStore()
{
    if (IsInStore() && FindStore() != m_Store)
        LeaveStore();
}

void CQtWindow::BeforePaint()
{
    if (IsInStore() && m_Widget && !m_Showing)
    {
        // The screen may still be reading what was shown last.
        if (QBackingStore* const store = m_Widget->backingStore())
        {
            store->beginPaint(m_Widget->rect().translated(m_Widget->mapTo(m_Widget->window(), QPoint(0, 0))));
            store->endPaint();
        }
    }
    CheckStore();
    if (!MayUseStore())
        LeaveStore();
    else if (!IsInStore())
        EnterStore();
}

IPainter* CQtWindow::GetPainter()
{
    CheckStore();
    return CBaseWindow::GetPainter();
}

void CQtWindow::ScrollPixels(int dx, int dy, screen_rectangle<int> const& area)
{
    CheckStore();
    if (IsInStore())
    {
        QRegion const children = GetChildRegion();
        rectangle<int> moved{
            std::min(area.left, AddSaturated(area.left, dx)), std::min(area.top, AddSaturated(area.top, dy)),
            std::max(area.right, AddSaturated(area.right, dx)), std::max(area.bottom, AddSaturated(area.bottom, dy))};
        moved.Intersect({-1, -1, GetSurfaceSize().width, GetSurfaceSize().height});
        if (children.intersects(ToQtRect(moved)) || !MayUseStore())
            LeaveStore();
    }
    CBaseWindow::ScrollPixels(dx, dy, area);
}

QRegion CQtWindow::GetChildRegion() const
{
    QRegion region;
    for (QObject const* const child : m_Widget->children())
        if (child->isWidgetType() && !static_cast<QWidget const*>(child)->isHidden())
            region += static_cast<QWidget const*>(child)->geometry();
    return region;
}

// Where Qt rounds up, the widget shows a pixel more than the surface has.
size<int> CQtWindow::GetShownSize() const
{
    return {CeilToInt(m_Widget->width() * m_Ratio), CeilToInt(m_Widget->height() * m_Ratio)};
}

// What was painted -------------------------------------------------------------------------------------------------

QRect CQtWindow::ToQtRect(rectangle<int> const& pixels) const
{
    int const left = FloorToInt(pixels.left / m_Ratio);
    int const top = FloorToInt(pixels.top / m_Ratio);
    return {left, top, CeilToInt(pixels.right / m_Ratio) - left, CeilToInt(pixels.bottom / m_Ratio) - top};
}

QRegion CQtWindow::ToQtRegion(CDamage const& damage) const
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
        region += ToQtRect(*rect);
    return region;
}

void CQtWindow::PresentDamage()
{
    CDamage& damage = GetDevice().GetDamage();
    if (m_Widget && damage.GetCount() > 0)
    {
        QRegion const region = ToQtRegion(damage);
        m_Widget->update(region);
        m_Missing += region;
        if (IsInStore())
            RestoreChildren(region);
        if (s_ShowRepaints)
            FlashRepaint(region);
    }
    damage.Clear();
}

// Child widgets that were painted over paint themselves again.
void CQtWindow::RestoreChildren(QRegion const& region)
{
    QRegion const children = GetChildRegion();
    if (!children.intersects(region))
        return;
    m_Missing -= children;
    for (QObject* const object : m_Widget->children())
    {
        if (!object->isWidgetType())
            continue;
        auto* const child = static_cast<QWidget*>(object);
        child->update(region.translated(-child->pos()));
    }
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

// A paint event ----------------------------------------------------------------------------------------------------

void CQtWindow::Show(QRegion const& region)
{
    if (!m_Widget)
        return;
    bool const toStore = IsPaintedToStore();
    bool const stood = IsInStore();
    CheckStore();
    if (IsInStore() && toStore)
    {
        // What nothing has asked for a neighbour may have painted over. It is painted on a surface, for whoever stands above
        // the window, or in it, is not painted again now.
        bool const suspect = std::exchange(m_Suspect, false);
        if (m_HasNeighbours && (suspect || !region.subtracted(m_Missing).isEmpty()))
            LeaveStore();
        m_Missing -= region;
        m_Missing -= GetChildRegion();
    }
    if (stood && !IsInStore() && !PaintNow())
        return;
    if (toStore && (IsInStore() || CopyToStore(region)))
        return;
    QPainter painter(m_Widget);
    Draw(painter, region);
}

// A paint event may also be meant for a picture of the widget.
bool CQtWindow::IsPaintedToStore() const
{
    QBackingStore* const store = m_Widget->backingStore();
    return store && m_Widget->GetPaintTarget() == store->paintDevice();
}

// False: the window or its widget is gone.
bool CQtWindow::PaintNow()
{
    std::weak_ptr<int> const life = GetLifeToken();
    bool const outer = std::exchange(m_Showing, true);
    PaintFrame();
    if (life.expired())
        return false;
    m_Showing = outer;
    return m_Widget != nullptr;
}

// QPainter would share large areas out to threads, which takes longer than the copying. False: not all was done.
bool CQtWindow::CopyToStore(QRegion const& region)
{
    SStorePixels const store = FindStore();
    if (!store.first || !m_Flash.isEmpty())
        return false;
    CPixelBuffer const& pixels = GetPixels();
    size<int> const shown = GetShownSize();
    auto const copy = [&](QRect const& rect) {
        rectangle<int> area{FloorToInt(rect.left() * m_Ratio), FloorToInt(rect.top() * m_Ratio),
                            CeilToInt((rect.left() + rect.width()) * m_Ratio),
                            CeilToInt((rect.top() + rect.height()) * m_Ratio)};
        area.Intersect({0, 0, shown.width, shown.height});
        if (area.IsEmpty() || area.right > pixels.GetWidth() || area.bottom > pixels.GetHeight())
            return area.IsEmpty();
        for (int y = area.top; y < area.bottom; ++y)
            CopyPixelRow(store.first + y * store.stride + area.left, pixels.Row(y) + area.left, area.Width());
        return true;
    };
    if (!std::all_of(region.begin(), region.end(), copy))
        return false;
    if (store != m_Store)
    {
        m_Missing = m_Widget->rect();
        m_Widget->WatchNeighbours();
    }
    m_Store = store;
    m_Missing -= region;
    m_Suspect = false;
    return true;
}

void CQtWindow::Draw(QPainter& painter, QRegion const& region)
{
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
    size<int> const shown = GetShownSize();
    for (QRect const& rect : region)
    {
        int const left = FloorToInt(rect.left() * ratio);
        int const top = FloorToInt(rect.top() * ratio);
        int const right = std::min(CeilToInt((rect.left() + rect.width()) * ratio), shown.width);
        int const bottom = std::min(CeilToInt((rect.top() + rect.height()) * ratio), shown.height);
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

}  // namespace vexelbase::qt
