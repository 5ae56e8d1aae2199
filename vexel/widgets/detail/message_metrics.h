#pragma once

#include "vexel/controls/caption.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/system.h"

namespace vexel::detail
{

/// What stands around the parts of boxes with messages; device pixels.
inline int GetBaseOffset()
{
    return ToDevicePixels(10);
}

/// What captions that size themselves bring along of it; device pixels.
inline int GetTextSizeCorrection()
{
    return 3 * CCaption::GetAutoSizeExtent().height;
}

}  // namespace vexel::detail
