#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"

namespace vexel
{

// Multiplies each integer by the display scale and truncates it, if automatic scaling is on and the scale is above 1.
VEXEL_API void ApplyDPIScale(rectangle<int>& rect);
VEXEL_API void ApplyDPIScale(size<int>& extent);
VEXEL_API void ApplyDPIScale(int& value);

}  // namespace vexel
