#pragma once

#include "vexel/export.h"
#include "vexel/platform/ref_ptr.h"

namespace vexelbase
{

/// A piece of work for a runner or a queue.
class VEXEL_API IRunnable
{
public:
    virtual ~IRunnable();
    virtual bool Run() = 0;  ///< A runner repeats it while it answers true; a queue runs it once.
    virtual bool IsDynamicRunnable() const { return false; }
};

/// Runs a runnable on a background thread of its own. All operations belong to the GUI thread, but for Stop, IsRunning
/// and SetWait, which the running work may call too.
class VEXEL_API IRunner : public CBase
{
public:
    /// Starts `while (runnable->Run())`, waiting the set time before each round. The runnable is not owned and must
    /// live until Stop has returned. Does nothing while one runs already. After a Stop by the running work it waits for
    /// the end of that round.
    virtual void Run(IRunnable* runnable) = 0;
    /// Ends the loop, a wait included, and returns when the runnable is no longer in use; called from the running work
    /// itself it returns at once and the loop ends after the round.
    virtual void Stop() = 0;
    virtual bool IsRunning() const = 0;  ///< False as soon as it is to stop, or the runnable answered false.
    /// Before each round; 0 by default, below 0 counts as 0. A wait under way keeps its length.
    virtual void SetWait(int milliseconds) = 0;
};

/// Takes work to the GUI thread.
class VEXEL_API ISynchronizer
{
public:
    virtual ~ISynchronizer();
    /// From any thread. The GUI thread runs it after the present event, in order, and then deletes it; what is still
    /// waiting when the queue's owner goes is deleted unrun. Null does nothing.
    virtual void Post(IRunnable* runnable) = 0;
};

/// A plain lock, not recursive.
class VEXEL_API ILock : public CBase
{
public:
    virtual void Acquire() = 0;
    virtual void Unlock() = 0;
};

}  // namespace vexelbase
