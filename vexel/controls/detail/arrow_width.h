#pragma once

#include "vexel/core/fwd.h"
#include "vexel/platform/system.h"

namespace vexel::detail
{

/// Of a drop arrow, in device pixels: that of a vertical scroll bar.
inline int GetArrowWidth()
{
    ISystem* const system = GetCurrentSystem();
    return system ? system->GetSystemMetric(ISystem::smScrollBarWidth) : 0;
}

}  // namespace vexel::detail
