#include "vexel/tasks/timer_animation_process.h"

namespace vexel
{

namespace
{

constexpr int s_FirstInterval = 100;  // milliseconds, until a frame has told its own

}  // namespace

CTimerAnimationProcess::CTimerAnimationProcess() : CRepeatableOperation(s_FirstInterval) {}

void CTimerAnimationProcess::SetAnimation(IAnimation* animation)
{
    m_Animation = animation;
    if (m_StartPending)
        StartAnimation();
}

void CTimerAnimationProcess::StartAnimation()
{
    if (!m_Animation)
    {
        m_StartPending = true;
        return;
    }
    m_StartPending = false;
    vexel_ptr<IAnimationProcess> const self = Keep();
    ProcessRepeatOperation();
    StartRepeating();
}

void CTimerAnimationProcess::StopAnimation()
{
    m_StartPending = false;
    StopRepeating();
}

void CTimerAnimationProcess::ProcessRepeatOperation()
{
    vexel_ptr<IAnimationProcess> const self = Keep();
    if (!m_Animation || !m_Updater || !m_Updater->IsUpdatable())
        return;
    m_Animation->NextFrame();
    SetRepeatInterval(m_Animation->GetDelay());
    m_Updater->UpdateAnimation();
}

}  // namespace vexel
