#include "vexel/signals/mutex.h"

#include "vexel/signals/detail/mutex_core.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <new>

namespace plinth::threading
{

constinit waiting_group waiting_groups[waiting_group_count];

namespace
{

struct bed
{
    std::mutex m_mutex;
    std::condition_variable m_released;
};

// Never destroyed, so that signals may be used while the process ends.
bed& bed_of(unsigned group)
{
    alignas(bed) static unsigned char memory[waiting_group_count][sizeof(bed)];
    static bool const made = [] {
        for (auto& place : memory)
            new (place) bed;
        return true;
    }();
    static_cast<void>(made);
    return *std::launder(reinterpret_cast<bed*>(memory[group]));
}

}  // namespace

void mutex_t::acquire() noexcept
{
    mutex_core::acquire(*this);
}

void mutex_t::release() noexcept
{
    mutex_core::release(*this);
}

void mutex_core::wait(mutex_t& mutex, void const* self) noexcept
{
    // A release stores first and then looks for waiting threads, without a fence between the two, since a fence would
    // double its price. So it may overlook a thread that is only just lying down, which then sleeps on beside a free
    // mutex. That window is some nanoseconds wide; the time limit of the sleep closes it.
    constexpr auto limit = std::chrono::milliseconds(1);

    unsigned const group = group_of(mutex);
    bed& place = bed_of(group);
    std::unique_lock<std::mutex> lock(place.m_mutex);
    waiting_groups[group].m_count.fetch_add(1);
    while (!take(mutex, self))
        place.m_released.wait_for(lock, limit);
    waiting_groups[group].m_count.fetch_sub(1);
}

void mutex_core::wake(unsigned group) noexcept
{
    bed& place = bed_of(group);
    {
        // Whoever counted itself has tried and lain down once this is ours.
        std::lock_guard<std::mutex> const lock(place.m_mutex);
    }
    place.m_released.notify_all();
}

}  // namespace plinth::threading
