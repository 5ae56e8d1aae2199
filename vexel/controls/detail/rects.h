#pragma once

#include "vexel/core/fwd.h"
#include "vexel/platform/geometry.h"

namespace vexel::detail
{

/// A rectangle of an element's pixels for the painter.
inline rectangle<double> ToDouble(rectangle<int> const& rect)
{
    return {static_cast<double>(rect.left), static_cast<double>(rect.top), static_cast<double>(rect.right),
            static_cast<double>(rect.bottom)};
}

}  // namespace vexel::detail
