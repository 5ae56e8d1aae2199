#pragma once

#include <cstddef>
#include <cstdlib>
#include <functional>
#include <new>

// Counts what this thread allocates, and lets an allocation fail. It stands for the operators of the whole program, so
// it is included by the one source of a program of its own.
namespace vexel::test
{

inline constexpr long NoFailure = -1;

struct SAllocations
{
    static inline thread_local long s_UntilFailure = NoFailure;  ///< So many still succeed.
    static inline thread_local long s_Made = 0;
    static inline thread_local long s_Alive = 0;

    static void* Make(std::size_t bytes)
    {
        if (s_UntilFailure == 0)
            return nullptr;
        if (s_UntilFailure > 0)
            --s_UntilFailure;
        ++s_Made;
        ++s_Alive;
        return std::malloc(bytes ? bytes : 1);
    }
    static void Free(void* memory)
    {
        if (memory)
            --s_Alive;
        std::free(memory);
    }
};

/// How many allocations `deed` makes.
template <class Deed> long CountAllocations(Deed const& deed)
{
    long const before = SAllocations::s_Made;
    deed();
    return SAllocations::s_Made - before;
}

/// Runs `deed` with its first, second, third ... allocation failing, each time on what `before` has made anew, until it
/// succeeds. `after` looks at what a failure left; then a second try must succeed. Returns the number of failures.
template <class World>
int FailAtEach(std::function<void(World&)> const& before, std::function<void(World&)> const& deed,
               std::function<void(World&)> const& after)
{
    for (long allowed = 0;; ++allowed)
    {
        World world;
        before(world);
        bool failed = false;
        SAllocations::s_UntilFailure = allowed;
        try
        {
            deed(world);
        }
        catch (std::bad_alloc const&)
        {
            failed = true;
        }
        SAllocations::s_UntilFailure = NoFailure;
        if (!failed)
            return static_cast<int>(allowed);
        after(world);
        deed(world);
    }
}

}  // namespace vexel::test

void* operator new(std::size_t bytes)
{
    if (void* const memory = vexel::test::SAllocations::Make(bytes))
        return memory;
    throw std::bad_alloc();
}

void* operator new[](std::size_t bytes)
{
    return operator new(bytes);
}

void* operator new(std::size_t bytes, std::nothrow_t const&) noexcept
{
    return vexel::test::SAllocations::Make(bytes);
}

void operator delete(void* memory) noexcept
{
    vexel::test::SAllocations::Free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    vexel::test::SAllocations::Free(memory);
}

void operator delete[](void* memory) noexcept
{
    vexel::test::SAllocations::Free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    vexel::test::SAllocations::Free(memory);
}
