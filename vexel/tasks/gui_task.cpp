#include "vexel/tasks/gui_task.h"

#include "vexel/platform/system.h"

#include <memory>

namespace vexel
{

IGUITask::~IGUITask() = default;

CGUITask::~CGUITask()
{
    CGUITask::Stop();
}

void CGUITask::PassBarrier() const
{
    if (!m_Lock)
        return;
    m_Lock->Acquire();
    m_Lock->Unlock();
}

bool CGUITask::IsStopped() const
{
    PassBarrier();
    return m_Stopped;
}

void CGUITask::Execute()
{
    PassBarrier();
    m_Stopped = false;
    if (!m_Lock)
        if (ISystem* const system = GetCurrentSystem())
            m_Lock = system->CreateLock();
    if (m_Runner)
        m_Runner->Run(static_cast<IDataProcessor*>(this));
}

void CGUITask::Stop()
{
    PassBarrier();
    m_Stopped = true;
    if (!m_Runner)
        return;
    m_Runner->Stop();
    m_Runner = nullptr;
}

bool CGUITask::ProcessData()
{
    if (IsStopped())
        return false;
    bool const goesOn = InternalProcessData();
    if (IsStopped() || !m_Synchronizer)
        return goesOn;
    auto proxy = std::make_unique<CRunnableProxy>();
    InitUpdater(proxy.get());
    m_Synchronizer->Post(proxy.release());
    return goesOn;
}

}  // namespace vexel
