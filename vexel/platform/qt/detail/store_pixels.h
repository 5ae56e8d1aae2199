#pragma once

#include "vexel/platform/geometry.h"

#include <cstddef>
#include <cstdint>

class QWidget;

namespace vexelbase::qt
{

/// Where a widget's pixels stand in the picture behind its top-level widget.
struct SStorePixels
{
    std::uint32_t* first = nullptr;  ///< The left-top pixel; null: they can't be had.
    std::ptrdiff_t stride = 0;       ///< Pixels from a row to the next one.

    bool operator==(SStorePixels const&) const = default;
};

/// `ratio`: device pixels for one of Qt's. Null where the picture is no plain one in memory, has another ratio, or doesn't
/// hold that many pixels from the widget's corner on, or where this is no whole pixel. Qt makes another picture when it
/// likes.
SStorePixels FindStorePixels(QWidget const& widget, double ratio, size<int> const& extent);

/// Nobody else paints where the widget stands, apart from child widgets that cover all that is below them.
bool IsAloneInStore(QWidget const& widget);

/// Children, siblings of it or of what it stands in, shown or not: those that may paint there without the widget hearing.
bool HasNeighbours(QWidget const& widget);

}  // namespace vexelbase::qt
