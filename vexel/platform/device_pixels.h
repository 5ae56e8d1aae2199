#pragma once

#include "vexel/platform/convert.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/system.h"

namespace vexelbase
{

/// A length of unscaled pixels on the present display, truncated. Widgets take each of their constants on its own.
inline int ToDevicePixels(double unscaled)
{
    return ToInt(unscaled * GetSystemScale());
}

/// A rectangle of whole pixels as the painter's operations take it.
inline rectangle<double> ToDouble(rectangle<int> const& rect)
{
    return {static_cast<double>(rect.left), static_cast<double>(rect.top), static_cast<double>(rect.right),
            static_cast<double>(rect.bottom)};
}

}  // namespace vexelbase
