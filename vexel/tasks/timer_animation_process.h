#pragma once

#include "vexel/tasks/animation_process.h"
#include "vexel/tasks/repeatable_operation.h"

namespace vexel
{

/// Steps on a timer of the GUI thread: the first step comes with the start, each further one after the delay of the
/// frame then shown.
class VEXEL_API CTimerAnimationProcess : public CAnimationProcess, public CRepeatableOperation
{
public:
    CTimerAnimationProcess();

    void SetAnimation(IAnimation* animation) override;
    void StartAnimation() override;
    void StopAnimation() override;
    bool IsAnimated() const override { return m_Animation && IsRepeating(); }
    void SetProcessSynchronizer(ISynchronizer*) override {}

    void ProcessRepeatOperation() override;

private:
    bool m_StartPending = false;
};

}  // namespace vexel
