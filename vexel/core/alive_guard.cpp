#include "vexel/core/alive_guard.h"

#include "vexel/signals/cancel_processing.h"

namespace vexel
{

CAliveLink* CAliveLink::s_Innermost = nullptr;

void CAliveLink::ForgetInChain(void const* object)
{
    for (CAliveLink* link = s_Innermost; link; link = link->m_Outer)
        if (link->m_Object == object)
            link->m_Object = nullptr;
}

void CAliveLink::Cancel()
{
    throw cancel_processing();
}

} // namespace vexel
