#pragma once

#include "vexel/export.h"

#include <atomic>
#include <cstdint>

namespace plinth::threading
{

/// A recursive mutex. Taking a free one costs one atomic exchange; a thread that has to wait sleeps.
/// Waiting threads are not served in order. It may be destroyed as soon as nobody holds it or waits for it, also right
/// after another thread's release.
class VEXEL_API mutex_t
{
public:
    constexpr mutex_t() noexcept = default;
    mutex_t(mutex_t const&) = delete;
    mutex_t& operator=(mutex_t const&) = delete;

    /// Takes one level; waits while another thread holds the mutex.
    void acquire() noexcept;

    /// Gives one level back. Ends the process when the calling thread does not hold the mutex.
    void release() noexcept;

private:
    friend struct mutex_core;

    std::atomic<void const*> m_owner{nullptr};  ///< A mark of the thread that holds it.
    std::uint32_t m_nested = 0;                 ///< Levels beyond the first; the owner's alone.
};

/// Holds a mutex for a scope.
class mutex_guard_t
{
public:
    explicit mutex_guard_t(mutex_t& mutex) noexcept : m_mutex(mutex) { m_mutex.acquire(); }
    ~mutex_guard_t() { m_mutex.release(); }
    mutex_guard_t(mutex_guard_t const&) = delete;
    mutex_guard_t& operator=(mutex_guard_t const&) = delete;

private:
    mutex_t& m_mutex;
};

}  // namespace plinth::threading
