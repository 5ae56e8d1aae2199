#pragma once

#include "tests/support/gate.h"
#include "vexel/platform/threads.h"

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace tasks_test
{

using vexel::test::CGate;

/// A queue that any thread posts to, and that is run by the test.
class CThreadQueue : public vexelbase::ISynchronizer
{
public:
    void Post(vexelbase::IRunnable* runnable) override
    {
        std::lock_guard const lock(m_Mutex);
        m_Posted.emplace_back(runnable);
        m_Changed.notify_all();
    }
    /// Waits until so many are posted; false if that takes too long.
    bool Wait(std::size_t count, std::chrono::milliseconds limit = std::chrono::seconds(60))
    {
        std::unique_lock lock(m_Mutex);
        return m_Changed.wait_for(lock, limit, [&] { return m_Posted.size() >= count; });
    }
    std::size_t GetCount()
    {
        std::lock_guard const lock(m_Mutex);
        return m_Posted.size();
    }
    /// Runs what is posted now.
    void Run()
    {
        std::vector<std::unique_ptr<vexelbase::IRunnable>> posted;
        {
            std::lock_guard const lock(m_Mutex);
            posted.swap(m_Posted);
        }
        for (auto& runnable : posted)
        {
            runnable->Run();
            runnable.reset();
        }
    }

private:
    std::mutex m_Mutex;
    std::condition_variable m_Changed;
    std::vector<std::unique_ptr<vexelbase::IRunnable>> m_Posted;
};

}  // namespace tasks_test
