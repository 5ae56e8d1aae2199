#pragma once

#include "vexel/core/fwd.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/system.h"

namespace vexel::detail
{

/// A widget's constant on the present display, truncated; each constant on its own.
inline int Scaled(double unscaled)
{
    return ToInt(unscaled * GetSystemScale());
}

}  // namespace vexel::detail
