#pragma once

#include <condition_variable>
#include <mutex>

namespace vexel::test
{

/// A gate that threads wait at until it is opened.
class CGate
{
public:
    void Open()
    {
        std::lock_guard const lock(m_Mutex);
        m_Open = true;
        m_Changed.notify_all();
    }
    void Wait()
    {
        std::unique_lock lock(m_Mutex);
        m_Changed.wait(lock, [this] { return m_Open; });
    }

private:
    std::mutex m_Mutex;
    std::condition_variable m_Changed;
    bool m_Open = false;
};

}  // namespace vexel::test
