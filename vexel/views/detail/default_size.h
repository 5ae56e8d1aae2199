#pragma once

#include "vexel/platform/convert.h"
#include "vexel/platform/system.h"

namespace vexel::detail
{

/// What an item is in a model that nobody has told a size: 20 pixels times the display scale.
inline int GetInitialItemSize()
{
    constexpr double itemSize = 20.0;  // at scale 1
    vexelbase::ISystem* const system = vexelbase::GetCurrentSystem();
    return vexelbase::ToInt(itemSize * (system ? system->GetScale() : 1.0));
}

}  // namespace vexel::detail
