#pragma once

#include "vexel/platform/xpm.h"

namespace vexel::detail
{

/// The built-in grounds of round buttons, 500 by 47 pixels, shaded from top to bottom. `state`: 0 disabled, 1 under the
/// pointer, 2 at rest, 3 pressed. No lines for any other.
vexelbase::XPMBuf MakeShadedPicture(int state);

}  // namespace vexel::detail
