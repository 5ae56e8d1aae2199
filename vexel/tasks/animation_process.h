#pragma once

#include "vexel/export.h"
#include "vexel/platform/animation.h"
#include "vexel/platform/threads.h"

namespace vexel
{

using namespace vexelbase;

/// Drives an animation: waits a frame's delay, steps to the next frame and tells the widget to repaint. Shared by
/// counting references; all operations belong to the GUI thread.
class VEXEL_API IAnimationProcess : public vexelbase::CBase
{
public:
    /// The widget's side. Called on the GUI thread.
    class VEXEL_API IUpdater
    {
    public:
        virtual ~IUpdater();
        virtual void UpdateAnimation() = 0;    ///< The animation shows its next frame now.
        virtual bool IsUpdatable() const = 0;  ///< Before a step: whether the widget wants the frame.
    };

    virtual void SetAnimation(IAnimation* animation) = 0;  ///< Not owned. A start that waited for it happens now.
    /// Starts, or notes the wish until all it needs is there.
    virtual void StartAnimation() = 0;
    virtual void StopAnimation() = 0;
    virtual bool IsAnimated() const = 0;
    virtual void SetUpdater(IUpdater* updater) = 0;  ///< Not owned; null: nobody, and no frame is stepped.
    /// What takes the steps to the GUI thread, where the process needs that; not owned. Null stops it.
    virtual void SetProcessSynchronizer(ISynchronizer* synchronizer) = 0;
};

enum AnimationProcessType : int
{
    aptThread = 0,  ///< A thread waits, and hands each step over to the GUI thread.
    aptTimer = 1    ///< A timer of the GUI thread.
};

/// How the animation processes made from now on work. Threads at first.
VEXEL_API void SetDefAnimationProcess(AnimationProcessType type);
VEXEL_API vexel_ptr<IAnimationProcess> CreateAnimationProcess();  ///< Null if the type is neither of the two.

/// What both processes know.
class VEXEL_API CAnimationProcess : public IAnimationProcess
{
public:
    void SetUpdater(IUpdater* updater) override { m_Updater = updater; }

protected:
    /// Keeps the process alive for a scope in which the widget may give it up.
    vexel_ptr<IAnimationProcess> Keep();

    IAnimation* m_Animation = nullptr;
    IUpdater* m_Updater = nullptr;
};

}  // namespace vexel
