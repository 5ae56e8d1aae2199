#pragma once

#include "vexel/core/fwd.h"
#include "vexel/platform/events.h"

namespace vexel::detail
{

/// Opens what drops down: alt and down, with nothing else held.
inline bool IsDropKey(int keys, int key)
{
    return key == vkDown && keys == ksAlt;
}

}  // namespace vexel::detail
