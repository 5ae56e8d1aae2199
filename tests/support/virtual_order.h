#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cstddef>
#include <cstdint>

// The order of virtual operations is binary interface: new ones go last.
namespace vexel::test
{

namespace detail
{

struct SMemberWords
{
    std::uintptr_t function;
    std::ptrdiff_t adjustment;
};

template <class Function> std::size_t PlaceOfMember(Function function)
{
    auto const words = std::bit_cast<SMemberWords>(function);
    EXPECT_EQ(words.function % 2, 1u) << "not virtual";
    return words.function / sizeof(void*);
}

}  // namespace detail

/// The place in the virtual table, as the C++ ABI of Linux writes it into a pointer to a member function. The
/// destructor takes places 0 and 1.
template <class Class, class Result, class... Args> std::size_t Place(Result (Class::*function)(Args...))
{
    return detail::PlaceOfMember(function);
}
template <class Class, class Result, class... Args> std::size_t Place(Result (Class::*function)(Args...) const)
{
    return detail::PlaceOfMember(function);
}

/// These stand one behind the other, from place `first` on.
template <class... Members> void ExpectOrder(std::size_t first, Members... members)
{
    std::size_t place = first;
    for (std::size_t const found : {Place(members)...})
        EXPECT_EQ(found, place++);
}

}  // namespace vexel::test
