#include "vexel/tasks/repeatable_operation.h"

#include <utility>

namespace vexel
{

// The timer goes before this object leaves its senders.
CRepeatableOperation::~CRepeatableOperation()
{
    m_Timer.reset();
}

void CRepeatableOperation::SetRepeatInterval(int milliseconds)
{
    if (milliseconds == m_RepeatInterval)
        return;
    m_RepeatInterval = milliseconds;
    if (!m_Timer)
        return;
    bool const running = m_Timer->IsRunning();
    m_Timer->SetPeriod(milliseconds);
    m_Timer->SetRunning(running);
}

void CRepeatableOperation::StartRepeating()
{
    if (m_RepeatInterval <= 0)
        return;
    if (!m_Timer)
    {
        ISystem* const system = GetCurrentSystem();
        if (!system)
            return;
        vexel_ptr<ISysTimer> timer = system->CreateTimer(m_RepeatInterval, 0);
        if (!timer)
            return;
        timer->Subscribe(this, typeid(ITimerNotify), true);
        m_Timer = std::move(timer);
    }
    m_Timer->SetPeriod(m_RepeatInterval);
    m_Timer->SetRunning(true);
}

void CRepeatableOperation::StopRepeating()
{
    if (!m_Timer)
        return;
    vexel_ptr<ISysTimer> const timer = std::exchange(m_Timer, nullptr);
    timer->SetRunning(false);
    timer->Unsubscribe(this, typeid(ITimerNotify), true);
}

}  // namespace vexel
