#pragma once

#include "vexel/signals/signal.h"
#include "vexel/tasks/animation_process.h"
#include "vexel/tasks/gui_task.h"

#include <atomic>

namespace vexel
{

/// A thread waits and posts, the GUI thread steps and repaints. Without a synchronizer it waits with its start.
/// What crosses the threads is the delay alone.
class VEXEL_API CThreadAnimationProcess : public subscriber_base_t,  // the step is a slot of the proxy that is posted
                                          public CAnimationProcess,
                                          public CGUITask
{
public:
    CThreadAnimationProcess() = default;
    ~CThreadAnimationProcess() override;  ///< Stops first, so that nothing is posted afterwards.

    void SetAnimation(IAnimation* animation) override;
    void StartAnimation() override;
    void StopAnimation() override { DoStopAnimation(); }
    bool IsAnimated() const override;
    void SetProcessSynchronizer(ISynchronizer* synchronizer) override;

    void DoStopAnimation();
    void Refresh();     ///< Starts if all is there and a start waits; stops if it runs and that isn't so.
    void UpdateData();  ///< One step. A step that was posted before a stop still comes.

    bool InternalProcessData() override;
    void InitUpdater(CRunnableProxy* proxy) override;

private:
    void StopTask();
    void StoreDelay(int delay);
    void PassDelayBarrier() const;

    ISynchronizer* m_Synchronizer = nullptr;  // what was told; the task has it only while it runs
    vexel_ptr<ILock> m_DelayLock;             // a barrier only
    std::atomic<int> m_Delay{0};              // milliseconds to the next frame
    bool m_StartPending = false;
    vexel_ptr<IRunner> m_OwnRunner;  // the task's
};

}  // namespace vexel
