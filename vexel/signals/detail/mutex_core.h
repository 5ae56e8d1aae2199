#pragma once

#include "vexel/signals/mutex.h"

#include <exception>

namespace plinth::threading
{

/// Tells the running thread from all others that run.
inline void const* this_thread() noexcept
{
#if __has_builtin(__builtin_thread_pointer)
    return __builtin_thread_pointer();
#else
    static constinit thread_local char mark = 0;
    return &mark;
#endif
}

/// Threads that wait for some mutex of one group; groups share out all mutexes by address. It lies outside the mutex,
/// because a thread that has just released one may not touch it any more: its next owner may already have destroyed it.
struct waiting_group
{
    std::atomic<std::uint32_t> m_count{0};
};
inline constexpr unsigned waiting_group_count = 32;
extern constinit waiting_group waiting_groups[waiting_group_count] __attribute__((visibility("hidden")));

/// The bodies of acquire and release, to be inlined where the signal core needs them.
struct mutex_core
{
    static void acquire(mutex_t& mutex) noexcept
    {
        void const* const self = this_thread();
        if (mutex.m_owner.load(std::memory_order_relaxed) == self)
            ++mutex.m_nested;
        else if (!take(mutex, self)) [[unlikely]]
            wait(mutex, self);
    }

    static void release(mutex_t& mutex) noexcept
    {
        if (mutex.m_owner.load(std::memory_order_relaxed) != this_thread()) [[unlikely]]
            std::terminate();
        if (mutex.m_nested != 0)
        {
            --mutex.m_nested;
            return;
        }
        unsigned const group = group_of(mutex);
        mutex.m_owner.store(nullptr, std::memory_order_release);
        if (waiting_groups[group].m_count.load(std::memory_order_relaxed) != 0) [[unlikely]]
            wake(group);
    }

private:
    static bool take(mutex_t& mutex, void const* self) noexcept
    {
        void const* nobody = nullptr;
        return mutex.m_owner.compare_exchange_strong(nobody, self, std::memory_order_acquire,
                                                     std::memory_order_relaxed);
    }

    static unsigned group_of(mutex_t const& mutex) noexcept
    {
        auto const address = reinterpret_cast<std::uintptr_t>(&mutex);
        return static_cast<unsigned>((address >> 5) ^ (address >> 12)) % waiting_group_count;
    }

    static void wait(mutex_t& mutex, void const* self) noexcept;
    static void wake(unsigned group) noexcept;
};

/// mutex_guard_t with the bodies inlined.
class core_guard
{
public:
    explicit core_guard(mutex_t& mutex) noexcept : m_mutex(mutex) { mutex_core::acquire(m_mutex); }
    ~core_guard() { mutex_core::release(m_mutex); }
    core_guard(core_guard const&) = delete;
    core_guard& operator=(core_guard const&) = delete;

private:
    mutex_t& m_mutex;
};

}  // namespace plinth::threading
