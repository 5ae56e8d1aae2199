#pragma once

#include "vexel/platform/memory/memory_system.h"

namespace vexel::test::detail
{

/// The current system if it is a memory system. Otherwise the kit's own, which is made when first asked for, kept until the
/// process ends, and made the current one if there is none.
vexelbase::memory::CMemorySystem& KitSystem();

/// The same without making anything: null if there is none.
vexelbase::memory::CMemorySystem* FindKitSystem();

} // namespace vexel::test::detail
