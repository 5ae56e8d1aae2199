#include "vexel/tasks/animation_process.h"

#include "vexel/tasks/thread_animation_process.h"
#include "vexel/tasks/timer_animation_process.h"

namespace vexel
{

namespace
{

AnimationProcessType s_DefaultType = aptThread;

}  // namespace

IAnimationProcess::IUpdater::~IUpdater() = default;

vexel_ptr<IAnimationProcess> CAnimationProcess::Keep()
{
    return GetRefCount() > 0 ? vexel_ptr<IAnimationProcess>(this) : vexel_ptr<IAnimationProcess>::Borrow(this);
}

void SetDefAnimationProcess(AnimationProcessType type)
{
    s_DefaultType = type;
}

vexel_ptr<IAnimationProcess> CreateAnimationProcess()
{
    switch (s_DefaultType)
    {
    case aptThread:
        return MakeRef<CThreadAnimationProcess>();
    case aptTimer:
        return MakeRef<CTimerAnimationProcess>();
    }
    return nullptr;
}

}  // namespace vexel
