#include "vexel/core/base.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <new>

namespace vexel
{

namespace
{

/// Memory whose object is not there yet: arguments of its constructor are still worked out, among which may be more
/// objects, on the heap or by value.
struct SPending
{
    void* block = nullptr;
    std::size_t bytes = 0;
};

constexpr int s_MaxPending = 32;  // a `new` among the arguments of a `new`, and so on; the outermost lose their marks
std::array<SPending, s_MaxPending> s_Pending;
int s_Count = 0;

void Remove(int index) noexcept
{
    std::move(s_Pending.begin() + index + 1, s_Pending.begin() + s_Count, s_Pending.begin() + index);
    --s_Count;
}

}  // namespace

void* CBase::operator new(std::size_t bytes)
{
    void* const block = ::operator new(bytes);
    if (s_Count == s_MaxPending)
        Remove(0);
    s_Pending[static_cast<std::size_t>(s_Count++)] = {block, bytes};
    return block;
}

void CBase::operator delete(void* block) noexcept
{
    // Where an argument of the constructor threw, the mark must not reach another object in the same place.
    for (int i = s_Count - 1; i >= 0; --i)
        if (s_Pending[static_cast<std::size_t>(i)].block == block)
            Remove(i);
    ::operator delete(block);
}

// The first object in a block takes its mark; members by value come after it.
bool CBase::TakeMark(void const* object) noexcept
{
    auto const place = reinterpret_cast<std::uintptr_t>(object);
    for (int i = s_Count - 1; i >= 0; --i)
    {
        SPending const& pending = s_Pending[static_cast<std::size_t>(i)];
        if (place - reinterpret_cast<std::uintptr_t>(pending.block) >= pending.bytes)
            continue;
        Remove(i);
        return true;
    }
    return false;
}

CBase::CBase() : m_Dynamic(TakeMark(this)) {}

CBase::~CBase() = default;

}  // namespace vexel
