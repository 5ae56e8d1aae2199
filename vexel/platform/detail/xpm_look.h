#pragma once

#include "vexel/platform/color.h"

namespace vexelbase::detail
{

/// A colour in the look of something disabled: its grey level, half-way to the face colour. None stays none.
_color GetDisabledLook(_color const& color, _color const& face);

}  // namespace vexelbase::detail
