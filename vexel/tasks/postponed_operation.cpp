#include "vexel/tasks/postponed_operation.h"

namespace vexel
{

CPostponedOperation::~CPostponedOperation()
{
    m_Timer.reset();
}

void CPostponedOperation::Schedule()
{
    if (!m_Timer)
    {
        ISystem* const system = GetCurrentSystem();
        if (!system)
            return;
        m_Timer = system->CreateTimer(m_Delay, 0);
        if (!m_Timer)
            return;
        m_Timer->Subscribe(this, typeid(ITimerNotify), true);
    }
    m_Timer->SetRunning(false);
    m_Timer->SetRunning(true);
}

void CPostponedOperation::OnTimer(CTimerEvent*)
{
    if (m_Timer)
        m_Timer->SetRunning(false);  // a repeating timer, used once
    m_SigFire();
}

}  // namespace vexel
