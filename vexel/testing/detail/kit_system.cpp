#include "vexel/testing/detail/kit_system.h"

namespace vexel::test::detail
{

namespace
{
// Never deleted: class-wide timers and pictures, and statics of tests, may outlive all else.
vexelbase::memory::CMemorySystem* g_Own = nullptr;
} // namespace

vexelbase::memory::CMemorySystem* FindKitSystem()
{
    auto* const current = dynamic_cast<vexelbase::memory::CMemorySystem*>(vexelbase::GetCurrentSystem());
    return current ? current : g_Own;
}

vexelbase::memory::CMemorySystem& KitSystem()
{
    vexelbase::ISystem* const current = vexelbase::GetCurrentSystem();
    if (!FindKitSystem())
    {
        g_Own = new vexelbase::memory::CMemorySystem;
        if (current)
            vexelbase::SetCurrentSystem(current);
    }
    else if (!current)
        vexelbase::SetCurrentSystem(g_Own);
    return *FindKitSystem();
}

} // namespace vexel::test::detail
