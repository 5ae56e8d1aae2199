#pragma once

#include "vexel/export.h"
#include "vexel/platform/threads.h"

#include <memory>
#include <mutex>
#include <thread>

namespace vexelbase
{

/// The runner of all backends with real threads: one std::thread for each start, none before and after.
/// An exception of the runnable ends the loop and is reported on stderr; so is a thread that can't be made, and then
/// nothing runs.
class VEXEL_API CThreadRunner : public IRunner
{
public:
    CThreadRunner();
    ~CThreadRunner() override;  ///< Stops.

    void Run(IRunnable* runnable) override;
    void Stop() override;
    bool IsRunning() const override;
    void SetWait(int milliseconds) override;

private:
    struct SShared;

    std::shared_ptr<SShared> m_Shared;  // with the thread, which may outlive a runner that dies in its own round
    std::thread m_Thread;
};

/// The lock of all backends.
class VEXEL_API CLock : public ILock
{
public:
    void Acquire() override { m_Mutex.lock(); }
    void Unlock() override { m_Mutex.unlock(); }

private:
    std::mutex m_Mutex;
};

}  // namespace vexelbase
