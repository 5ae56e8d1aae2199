#pragma once

#include "vexel/core/fwd.h"
#include "vexel/platform/palette.h"

namespace vexel::detail
{

/// The desktop's colour as it is now; plain grey ones without a system.
inline _color GetSystemColor(ISysPalette::SysColor number)
{
    ISysPalette const* const palette = GetSysPalette();
    return palette ? palette->GetColor(number) : GetDefaultPalette()->GetColor(number);
}

}  // namespace vexel::detail
