#pragma once

#include "vexel/export.h"
#include "vexel/platform/system.h"

namespace vexel
{

using namespace vexelbase;

// Timers that widgets may share, with a period of 100 ms and stopped at first. Each is made on the first call and stays
// for the run of the process, or until another system is installed. Null without a system.
VEXEL_API ISysTimer* GetVertScrollTimer();
VEXEL_API ISysTimer* GetHorzScrollTimer();

}  // namespace vexel
