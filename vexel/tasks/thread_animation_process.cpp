#include "vexel/tasks/thread_animation_process.h"

#include "vexel/platform/system.h"

#include <algorithm>

namespace vexel
{

CThreadAnimationProcess::~CThreadAnimationProcess()
{
    DoStopAnimation();
}

void CThreadAnimationProcess::SetAnimation(IAnimation* animation)
{
    m_Animation = animation;
    if (m_StartPending)
        StartAnimation();
}

void CThreadAnimationProcess::SetProcessSynchronizer(ISynchronizer* synchronizer)
{
    m_Synchronizer = synchronizer;
    if (!m_Animation)
        StopTask();  // without its animation it still runs, and would go on posting to the former one
    Refresh();
}

void CThreadAnimationProcess::Refresh()
{
    bool const ready = m_Animation && m_StartPending && m_Synchronizer;
    bool const animated = IsAnimated();
    if (!animated && ready)
        StartAnimation();
    if (animated && !ready)
        StopAnimation();
}

void CThreadAnimationProcess::StartAnimation()
{
    if (!m_Animation || !m_Synchronizer)
    {
        m_StartPending = true;
        return;
    }
    StoreDelay(m_Animation->GetDelay());
    ISystem* const system = GetCurrentSystem();
    if (!m_DelayLock && system)
        m_DelayLock = system->CreateLock();
    if (!GetTaskRunner() && system)
    {
        m_OwnRunner = system->GetRunner();
        SetRunner(m_OwnRunner.get());
    }
    if (!GetTaskSynchronizer())
        SetSynchronizer(m_Synchronizer);
    if (GetTaskRunner() && !GetTaskRunner()->IsRunning())
        Execute();
    m_StartPending = false;
}

void CThreadAnimationProcess::DoStopAnimation()
{
    StopTask();
    m_StartPending = false;
}

void CThreadAnimationProcess::StopTask()
{
    Stop();
    SetSynchronizer(nullptr);
    SetRunner(nullptr);
    m_OwnRunner.reset();
}

bool CThreadAnimationProcess::IsAnimated() const
{
    return m_Animation && GetTaskRunner() && GetTaskRunner()->IsRunning();
}

void CThreadAnimationProcess::UpdateData()
{
    vexel_ptr<IAnimationProcess> const self = Keep();
    if (!m_Animation || !m_Updater || !m_Updater->IsUpdatable())
        return;
    m_Animation->NextFrame();
    StoreDelay(m_Animation->GetDelay());
    m_Updater->UpdateAnimation();
}

bool CThreadAnimationProcess::InternalProcessData()
{
    IRunner* const runner = GetTaskRunner();
    if (!runner)
        return true;
    PassDelayBarrier();
    runner->SetWait(std::max(m_Delay.load(), 1));  // as for timers: without any wait the steps would fill the queue
    return true;
}

void CThreadAnimationProcess::InitUpdater(CRunnableProxy* proxy)
{
    proxy->m_SigRun.connect(this, &CThreadAnimationProcess::UpdateData);
}

void CThreadAnimationProcess::StoreDelay(int delay)
{
    PassDelayBarrier();
    m_Delay = delay;
}

void CThreadAnimationProcess::PassDelayBarrier() const
{
    if (!m_DelayLock)
        return;
    m_DelayLock->Acquire();
    m_DelayLock->Unlock();
}

}  // namespace vexel
