#pragma once

#include "vexel/platform/native_controls.h"

namespace gallery
{

/// The image list of the pages: a red disc, a blue square, a green triangle, each 16 unscaled pixels.
vexelbase::IImageList& GetSampleImages();

}  // namespace gallery
