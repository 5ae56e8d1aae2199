#include "vexel/platform/runner.h"

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <exception>
#include <system_error>

namespace vexelbase
{

struct CThreadRunner::SShared
{
    std::mutex mutex;
    std::condition_variable changed;
    std::thread::id thread;  // that runs the loop
    bool running = false;    // a loop is on and is not to stop
    int wait = 0;

    void Loop(IRunnable* runnable);
    void SetRunning(bool on)
    {
        std::lock_guard const lock(mutex);
        running = on;
    }

private:
    bool Wait();
};

// False: the loop is to stop.
bool CThreadRunner::SShared::Wait()
{
    std::unique_lock lock(mutex);
    if (wait > 0)
        changed.wait_for(lock, std::chrono::milliseconds(wait), [this] { return !running; });
    return running;
}

void CThreadRunner::SShared::Loop(IRunnable* runnable)
{
    {
        std::lock_guard const lock(mutex);
        thread = std::this_thread::get_id();
    }
    try
    {
        while (Wait() && runnable->Run())
        {}
    }
    catch (std::exception const& error)
    {
        std::fprintf(stderr, "vexel: background work ended by an exception: %s\n", error.what());
    }
    catch (...)
    {
        std::fprintf(stderr, "vexel: background work ended by an exception\n");
    }
    std::lock_guard const lock(mutex);
    running = false;
    thread = std::thread::id();
}

CThreadRunner::CThreadRunner() : m_Shared(std::make_shared<SShared>()) {}

CThreadRunner::~CThreadRunner()
{
    CThreadRunner::Stop();
    if (m_Thread.joinable())
        m_Thread.detach();  // the last reference went in the running round itself; the loop ends behind it
}

void CThreadRunner::Run(IRunnable* runnable)
{
    if (!runnable || IsRunning())
        return;
    if (m_Thread.joinable())
        m_Thread.join();  // the former loop has ended, or does so with its present round

    m_Shared->SetRunning(true);
    try
    {
        m_Thread = std::thread([shared = m_Shared, runnable] { shared->Loop(runnable); });
    }
    catch (std::system_error const& error)
    {
        m_Shared->SetRunning(false);
        std::fprintf(stderr, "vexel: no thread for background work: %s\n", error.what());
    }
}

void CThreadRunner::Stop()
{
    {
        std::lock_guard const lock(m_Shared->mutex);
        m_Shared->running = false;
        m_Shared->changed.notify_all();
        if (m_Shared->thread == std::this_thread::get_id())
            return;
    }
    if (m_Thread.joinable())
        m_Thread.join();
}

bool CThreadRunner::IsRunning() const
{
    std::lock_guard const lock(m_Shared->mutex);
    return m_Shared->running;
}

void CThreadRunner::SetWait(int milliseconds)
{
    std::lock_guard const lock(m_Shared->mutex);
    m_Shared->wait = milliseconds > 0 ? milliseconds : 0;
}

}  // namespace vexelbase
