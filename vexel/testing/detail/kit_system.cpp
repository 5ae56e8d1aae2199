#include "vexel/testing/detail/kit_system.h"

namespace vexel::test::detail
{

vexelbase::memory::CMemorySystem& KitSystem()
{
    if (auto* const current = dynamic_cast<vexelbase::memory::CMemorySystem*>(vexelbase::GetCurrentSystem()))
        return *current;
    // Never deleted: class-wide timers and pictures, and statics of tests, may outlive all else.
    static auto* const own = new vexelbase::memory::CMemorySystem;
    if (!vexelbase::GetCurrentSystem())
        vexelbase::SetCurrentSystem(own);
    return *own;
}

} // namespace vexel::test::detail
