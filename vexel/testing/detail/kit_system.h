#pragma once

#include "vexel/platform/memory/memory_system.h"

namespace vexel::test::detail
{

/// The kit's memory system, made when first asked for and kept until the process ends. If another memory system is the
/// current one it is taken instead.
vexelbase::memory::CMemorySystem& KitSystem();

} // namespace vexel::test::detail
