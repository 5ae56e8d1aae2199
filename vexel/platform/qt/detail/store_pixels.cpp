#include "vexel/platform/qt/detail/store_pixels.h"

#include "vexel/platform/convert.h"

#include <QBackingStore>
#include <QImage>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace vexelbase::qt
{

SStorePixels FindStorePixels(QWidget const& widget, double ratio, size<int> const& extent)
{
    QBackingStore* const store = widget.backingStore();
    QPaintDevice* const device = store ? store->paintDevice() : nullptr;
    if (!device || device->devType() != QInternal::Image)
        return {};
    auto& image = *static_cast<QImage*>(device);
    if (image.format() != QImage::Format_RGB32 || image.devicePixelRatio() != ratio)
        return {};

    QPointF const corner = widget.mapTo(widget.window(), QPointF(0, 0)) * ratio;
    if (corner.x() != std::round(corner.x()) || corner.y() != std::round(corner.y()))
        return {};
    point<int> const at{ToInt(corner.x()), ToInt(corner.y())};
    if (at.x < 0 || at.y < 0 || extent.width <= 0 || extent.height <= 0 || at.x > image.width() - extent.width ||
        at.y > image.height() - extent.height)
        return {};
    std::ptrdiff_t const stride = image.bytesPerLine() / 4;
    return {reinterpret_cast<std::uint32_t*>(image.bits()) + at.y * stride + at.x, stride};
}

namespace
{

bool IsInnerWidget(QObject const* object)
{
    return object->isWidgetType() && !static_cast<QWidget const*>(object)->isWindow();
}

bool IsShownWidget(QObject const* object)
{
    return IsInnerWidget(object) && !static_cast<QWidget const*>(object)->isHidden();
}

bool IsOpaque(QWidget const& widget)
{
    bool const fills = widget.autoFillBackground() && widget.palette().brush(widget.backgroundRole()).isOpaque();
    return (fills || widget.testAttribute(Qt::WA_OpaquePaintEvent)) && widget.mask().isEmpty();
}

}  // namespace

bool IsAloneInStore(QWidget const& widget)
{
    QObjectList const& children = widget.children();
    bool const covered = std::all_of(children.begin(), children.end(), [](QObject const* child) {
        return !IsShownWidget(child) || IsOpaque(*static_cast<QWidget const*>(child));
    });
    if (!covered || !widget.mask().isEmpty())
        return false;

    // Later siblings, of it and of what it stands in, lie above it.
    QRect area = widget.rect();
    for (QWidget const* inner = &widget;; inner = inner->parentWidget())
    {
        if (inner->graphicsEffect() || inner->graphicsProxyWidget())
            return false;
        if (inner->isWindow() || !inner->parentWidget())
            return true;
        area.translate(inner->pos());
        if (!inner->parentWidget()->rect().contains(area))
            return false;
        QObjectList const& siblings = inner->parentWidget()->children();
        for (qsizetype i = siblings.indexOf(const_cast<QWidget*>(inner)) + 1; i < siblings.size(); ++i)
            if (IsShownWidget(siblings[i]) && static_cast<QWidget const*>(siblings[i])->geometry().intersects(area))
                return false;
    }
}

bool HasNeighbours(QWidget const& widget)
{
    QObjectList const& children = widget.children();
    if (std::any_of(children.begin(), children.end(), IsInnerWidget))
        return true;
    for (QWidget const* inner = &widget; !inner->isWindow() && inner->parentWidget(); inner = inner->parentWidget())
    {
        QObjectList const& siblings = inner->parentWidget()->children();
        if (std::count_if(siblings.begin(), siblings.end(), IsInnerWidget) > 1)
            return true;
    }
    return false;
}

}  // namespace vexelbase::qt
