#pragma once

#include "vexel/signals/signal_base.h"

#include <bit>
#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>

namespace plinth
{
namespace _internal
{

/// Stands for an unused argument position.
struct dummy_t
{};

template <class... Args> struct arguments_t
{};

/// arguments_t of those positions that are in use; the unused ones must be the last ones.
template <class Used, class... Rest> struct used_arguments;
template <class... Used> struct used_arguments<arguments_t<Used...>>
{
    using type = arguments_t<Used...>;
};
template <class... Used, class First, class... Rest> struct used_arguments<arguments_t<Used...>, First, Rest...>
{
    using type = typename used_arguments<arguments_t<Used..., First>, Rest...>::type;
};
template <class... Used, class... Rest> struct used_arguments<arguments_t<Used...>, dummy_t, Rest...>
{
    static_assert((std::is_same_v<Rest, dummy_t> && ...), "an argument behind an unused position");
    using type = arguments_t<Used...>;
};
template <class... Args> using used_arguments_t = typename used_arguments<arguments_t<>, Args...>::type;

/// The class that declares a member function.
template <class MemberFunction> struct declarer;
template <class Class, class Function> struct declarer<Function Class::*>
{
    using type = Class;
};

// The two halves of signal_templ, by the arguments that are in use -----------------------------------------------------

template <class Arguments> class emitter_t;

/// Emits: the loop that hands on the arguments.
template <class... Args> class emitter_t<arguments_t<Args...>> : public signal_base_t
{
    static_assert((!std::is_rvalue_reference_v<Args> && ...), "only one slot could take what the reference refers to");

public:
    constexpr emitter_t() noexcept = default;

    /// Calls each connection in order, with those that slots add on the way. Values are copied for each slot, references
    /// and pointers are handed on as they are. The first exception of a slot ends the emission and reaches the caller.
    void operator()(Args... args) const
    {
        if (this->is_unconnected())
            return;
        arguments_pack arguments(args...);
        this->emit_by(&call_slots, &arguments);
    }

private:
    using arguments_pack = std::tuple<std::conditional_t<std::is_scalar_v<Args>, Args, Args&>...>;

    static void call_slots(connection_node_t const* node, onstack_signal_state_t const& state, void* arguments)
    {
        call_slots(node, state.m_flag, *static_cast<arguments_pack*>(arguments), std::index_sequence_for<Args...>());
    }

    template <std::size_t... Indices>
    static void call_slots(connection_node_t const* node, bool const* valid, arguments_pack const& arguments,
                           std::index_sequence<Indices...>)
    {
        using caster_t = void (*)(void*, typeless_connection_t, Args...);
        for (; node; node = node->m_next)
        {
            connection_t const& connection = node->m_connection;
            if (!connection.m_subscriber)
                continue;
            reinterpret_cast<caster_t>(connection.m_caster)(connection.m_receiver, connection.m_method,
                                                            std::get<Indices>(arguments)...);
            if (!*valid)
                return;
        }
    }
};

template <class Receiver, class MemberFunction, class Arguments> class casting_t;

template <class Receiver, class MemberFunction, class... Args>
class casting_t<Receiver, MemberFunction, arguments_t<Args...>>
{
    static_assert(std::is_invocable_v<MemberFunction, Receiver*, Args...>,
                  "the member function doesn't take the signal's arguments");

public:
    static void caster(void* object, typeless_connection_t method, Args... args)
    {
        static_cast<void>(
            (static_cast<Receiver*>(object)->*std::bit_cast<MemberFunction>(method))(std::forward<Args>(args)...));
    }
};

/// Per receiver class and type of member function: only the static `caster`, which turns an object back into a Receiver
/// and calls the member function on it, virtually if it is virtual. Its result is dropped.
template <class Receiver, class MemberFunction, class A1 = dummy_t, class A2 = dummy_t, class A3 = dummy_t,
          class A4 = dummy_t, class A5 = dummy_t, class A6 = dummy_t>
class signal_templ : public casting_t<Receiver, MemberFunction, used_arguments_t<A1, A2, A3, A4, A5, A6>>
{};

/// Per signature: the emission.
template <class A1, class A2, class A3, class A4, class A5, class A6>
class signal_templ<dummy_t, dummy_t, A1, A2, A3, A4, A5, A6>
    : public emitter_t<used_arguments_t<A1, A2, A3, A4, A5, A6>>
{
public:
    constexpr signal_templ() noexcept = default;
};

/// A signal with up to six arguments.
///
///     signal_t<CLamp*, bool> m_SigLit;
///     m_SigLit.connect(this, &CRoom::LampLit);   // void CRoom::LampLit(CLamp*, bool)
///     m_SigLit(this, true);
///     m_First.connect(&m_Second, &signal_t<>::operator());
///
/// Slots run in the order of connection. A slot may connect (and is reached by the same emission), disconnect, emit
/// again, delete its receiver or any other, and delete the signal. See signal_base_t about threads.
template <class A1 = dummy_t, class A2 = dummy_t, class A3 = dummy_t, class A4 = dummy_t, class A5 = dummy_t,
          class A6 = dummy_t>
class signal_t : public signal_templ<dummy_t, dummy_t, A1, A2, A3, A4, A5, A6>
{
public:
    constexpr signal_t() noexcept = default;

    /// Connects a member function, which may be const and return anything, of `receiver`, whose class must derive from
    /// subscriber_base_t. It is called while both live. See signal_base_t::_insert.
    template <class Receiver, class MemberFunction> void connect(Receiver* receiver, MemberFunction method)
    {
        this->_insert(make_connection(receiver, method));
    }

    /// Ends a connection, named by the arguments of its connect. See signal_base_t::_erase. An inline member function
    /// may have an address of its own in each shared library; who connected one disconnects it in the same library.
    template <class Receiver, class MemberFunction> void disconnect(Receiver* receiver, MemberFunction method)
    {
        this->_erase(make_connection(receiver, method));
    }

private:
    template <class Receiver, class MemberFunction>
    static connection_t make_connection(Receiver* receiver, MemberFunction method)
    {
        static_assert(std::is_member_function_pointer_v<MemberFunction>);
        static_assert(std::is_convertible_v<Receiver*, subscriber_base_t*>, "the receiver is no subscriber_base_t");
        // The class that declares the function, whatever class it was named by: it is the same connection for both.
        using declarer_t = typename declarer<MemberFunction>::type;
        using casting = signal_templ<declarer_t, MemberFunction, A1, A2, A3, A4, A5, A6>;

        connection_t connection;
        connection.m_receiver = static_cast<declarer_t*>(receiver);
        connection.m_subscriber = receiver;
        connection.m_method = std::bit_cast<typeless_connection_t>(method);
        connection.m_caster = reinterpret_cast<typeless_caster_t>(&casting::caster);
        return connection;
    }
};

}  // namespace _internal

using _internal::dummy_t;
using _internal::signal_t;
using _internal::signal_templ;

}  // namespace plinth

namespace vexel
{

using plinth::dummy_t;
using plinth::signal_t;

}  // namespace vexel
