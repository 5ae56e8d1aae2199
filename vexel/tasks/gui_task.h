#pragma once

#include "vexel/export.h"
#include "vexel/platform/threads.h"
#include "vexel/signals/signal.h"

#include <atomic>

namespace vexel
{

using namespace vexelbase;

/// Work whose one operation is to process data.
class VEXEL_API IDataProcessor : public IRunnable
{
public:
    virtual bool ProcessData() = 0;  ///< True: another round.
    bool Run() override { return ProcessData(); }
};

/// Work in the background whose results come to the GUI thread. All operations belong to the GUI thread.
class VEXEL_API IGUITask
{
public:
    virtual ~IGUITask();
    virtual void SetRunner(IRunner* runner) = 0;                    ///< Not owned.
    virtual void SetSynchronizer(ISynchronizer* synchronizer) = 0;  ///< Not owned. Null: results go nowhere.
    virtual void Execute() = 0;                                     ///< Starts; nothing happens without a runner.
    virtual void Stop() = 0;                                        ///< No result is posted any more.
};

/// What is handed over to the GUI thread: its run fires a signal. The queue that it is posted to owns it.
class VEXEL_API CRunnableProxy : public IRunnable
{
public:
    signal_t<> m_SigRun;

    bool Run() override
    {
        m_SigRun();
        return true;
    }
};

/// Runs InternalProcessData on a background runner, round after round, and after each of them has a member function of
/// the subclass called on the GUI thread.
///
/// Data that InternalProcessData shares with the GUI thread stand under a lock of the subclass; no lock is held while it
/// runs. A subclass calls Stop first thing in its destructor, as its data go before this base.
class VEXEL_API CGUITask : public IGUITask, public IDataProcessor
{
public:
    CGUITask() = default;
    ~CGUITask() override;
    CGUITask(CGUITask const&) = delete;
    CGUITask& operator=(CGUITask const&) = delete;

    void SetRunner(IRunner* runner) override { m_Runner = runner; }
    void SetSynchronizer(ISynchronizer* synchronizer) override { m_Synchronizer = synchronizer; }
    void Execute() override;
    /// Returns when the present round has ended; the runner is forgotten. Results posted before still arrive.
    void Stop() override;

    bool ProcessData() override;  ///< Background thread.

protected:
    virtual bool InternalProcessData() = 0;               ///< Background thread: the work. True: another round.
    virtual void InitUpdater(CRunnableProxy* proxy) = 0;  ///< Background thread: connects the result's slot.

    IRunner* GetTaskRunner() const { return m_Runner; }
    ISynchronizer* GetTaskSynchronizer() const { return m_Synchronizer; }

private:
    bool IsStopped() const;
    void PassBarrier() const;

    IRunner* m_Runner = nullptr;
    ISynchronizer* m_Synchronizer = nullptr;
    vexel_ptr<ILock> m_Lock;  // a barrier only: the flag is read and written behind it
    std::atomic<bool> m_Stopped{false};
};

}  // namespace vexel
