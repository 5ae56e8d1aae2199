#include "vexel/core/alive_guard.h"

#include "vexel/signals/cancel_processing.h"

#include <cstdint>

namespace vexel
{

CAliveLink* CAliveLink::s_Innermost = nullptr;

void CAliveLink::ForgetInChain(void const* object, std::size_t bytes)
{
    auto const start = reinterpret_cast<std::uintptr_t>(object);
    for (CAliveLink* link = s_Innermost; link; link = link->m_Outer)
        if (reinterpret_cast<std::uintptr_t>(link->m_Object) - start < bytes)
            link->m_Object = nullptr;
}

void CAliveLink::Cancel()
{
    throw cancel_processing();
}

} // namespace vexel
