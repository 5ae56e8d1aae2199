#include "vexel/signals/signal_base.h"

#include "vexel/signals/assertion.h"
#include "vexel/signals/detail/mutex_core.h"
#include "vexel/signals/detail/signal_state.h"

#include <memory>

namespace plinth::_internal
{

using threading::core_guard;
using threading::mutex_core;

static_assert(sizeof(connection_t) == 5 * sizeof(void*));
static_assert(sizeof(signal_base_t) == 2 * sizeof(void*));

// The state -----------------------------------------------------------------------------------------------------------

inline subscriber_state_t* subscriber_base_t::find_state() const
{
    return reinterpret_cast<subscriber_state_t*>(m_word.load(std::memory_order_acquire) & ~signal_tag);
}

inline signal_state_t* signal_base_t::find_signal_state() const
{
    return static_cast<signal_state_t*>(find_state());
}

subscriber_state_t& subscriber_base_t::get_state()
{
    if (subscriber_state_t* const state = find_state()) [[likely]]
        return *state;

    // Several threads may get here; the first one's state stays.
    std::uintptr_t word = m_word.load(std::memory_order_relaxed);
    bool const is_signal = (word & signal_tag) != 0;
    subscriber_state_t* const made = is_signal ? new signal_state_t : new subscriber_state_t;
    std::uintptr_t expected = word & signal_tag;
    if (m_word.compare_exchange_strong(expected, reinterpret_cast<std::uintptr_t>(made) | (word & signal_tag),
                                       std::memory_order_acq_rel, std::memory_order_acquire))
        return *made;

    subscriber_state_t::destroy(made, is_signal);
    return *reinterpret_cast<subscriber_state_t*>(expected & ~signal_tag);
}

inline signal_state_t& signal_base_t::get_signal_state()
{
    return static_cast<signal_state_t&>(get_state());
}

// Subscribers ---------------------------------------------------------------------------------------------------------

void subscriber_base_t::on_connect(signal_base_t* signal)
{
    subscriber_state_t& state = get_state();
    core_guard const guard(state.m_mutex);
    state.m_signals.append(signal);
}

void subscriber_base_t::on_disconnect(signal_base_t* signal)
{
    subscriber_state_t* const state = find_state();
    if (!state)
        return;
    core_guard const guard(state->m_mutex);
    state->m_signals.remove_all(signal);
}

void subscriber_base_t::disconnect_all_signals()
{
    subscriber_state_t* const state = find_state();
    if (!state)
        return;
    core_guard const guard(state->m_mutex);
    for (signal_node* node = state->m_signals.first(); node; node = node->m_next)
        node->m_signal->on_subscriber_destroy(this);
    state->m_signals.clear();
}

std::size_t subscriber_base_t::count_signal(signal_base_t const* signal) const
{
    subscriber_state_t* const state = find_state();
    if (!state)
        return 0;
    core_guard const guard(state->m_mutex);
    std::size_t count = 0;
    for (signal_node* node = state->m_signals.first(); node; node = node->m_next)
        count += node->m_signal == signal;
    return count;
}

std::size_t subscriber_base_t::signal_count() const
{
    subscriber_state_t* const state = find_state();
    if (!state)
        return 0;
    core_guard const guard(state->m_mutex);
    return state->m_signals.size();
}

void subscriber_base_t::die()
{
    disconnect_all_signals();
    subscriber_state_t* const state = find_state();
    bool const is_signal = (m_word.load(std::memory_order_relaxed) & signal_tag) != 0;
    // The state of a signal that dies in its emission holds the mutex that the emission still needs.
    if (is_signal && static_cast<signal_state_t*>(state)->m_is_valid_flag)
        return;
    subscriber_state_t::destroy(state, is_signal);
}

// Signals -------------------------------------------------------------------------------------------------------------

namespace
{

void report_unknown_connection()
{
    ReportAssertion("\"signal_t::disconnect: attempt to disconnect unknown connection\" && subscriber_found",
                    "functor/signal", 314, "void plinth::_internal::signal_base_t::_erase(const connection_t &)");
}

}  // namespace

void signal_base_t::_insert(connection_t const& connection)
{
    signal_state_t& state = get_signal_state();
    core_guard const guard(state);
    if (state.m_connections.find(connection)) [[unlikely]]
    {
        ReportAssertion("\"signal_t::_insert: this connection is already exists.\" == NULL", "functor/signal", 299,
                        "void plinth::_internal::signal_base_t::_insert(const connection_t &)");
        return;
    }
    // All that may fail comes before the first change.
    connection_list::new_node node(state.m_connections);
    connection.m_subscriber->on_connect(this);
    state.m_connections.append(node, connection);
}

void signal_base_t::_erase(connection_t const& connection)
{
    signal_state_t* const found_state = find_signal_state();
    if (!found_state) [[unlikely]]
        return report_unknown_connection();
    signal_state_t& state = *found_state;
    core_guard const guard(state);
    connection_node_t* const found = state.m_connections.find(connection);
    if (!found) [[unlikely]]
        return report_unknown_connection();
    if (state.m_is_valid_flag)
        state.m_connections.invalidate(found);
    else
        state.m_connections.remove(found);
    if (connection.m_subscriber)
        connection.m_subscriber->on_disconnect(this);
}

void signal_base_t::_erase_all()
{
    signal_state_t* const state = find_signal_state();
    if (!state)
        return;
    core_guard const guard(*state);
    bool const emitting = state->m_is_valid_flag != nullptr;
    for (connection_node_t* node = state->m_connections.first(); node; node = node->m_next)
    {
        if (!node->m_connection.m_subscriber)
            continue;
        node->m_connection.m_subscriber->on_disconnect(this);
        if (emitting)
            state->m_connections.invalidate(node);
    }
    if (!emitting)
        state->m_connections.clear();
}

void signal_base_t::on_subscriber_destroy(subscriber_base_t* subscriber)
{
    signal_state_t* const state = find_signal_state();
    if (!state)
        return;
    core_guard const guard(*state);
    while (connection_node_t* const node = state->m_connections.find_subscriber(subscriber))
    {
        if (state->m_is_valid_flag)
            state->m_connections.invalidate(node);
        else
            state->m_connections.remove(node);
    }
}

std::size_t signal_base_t::connection_count() const
{
    signal_state_t* const state = find_signal_state();
    if (!state)
        return 0;
    core_guard const guard(*state);
    return state->m_connections.size();
}

void signal_base_t::leave_connections()
{
    signal_state_t& state = *find_signal_state();
    if (state.m_is_valid_flag)
        *state.m_is_valid_flag = false;
    _erase_all();
    state.m_connections.clear();
}

// Emission ------------------------------------------------------------------------------------------------------------

namespace
{

inline void begin_call(signal_state_t& signal, onstack_signal_state_t& state)
{
    mutex_core::acquire(signal);
    state.m_mutex = &signal;
    state.m_valid = true;
    state.m_nested = signal.m_is_valid_flag != nullptr;
    if (!state.m_nested)
        signal.m_is_valid_flag = &state.m_valid;
    state.m_flag = signal.m_is_valid_flag;
}

// `signal`: the state, which a signal that died in its emission has left to the emission.

inline bool check_valid(signal_state_t& signal, onstack_signal_state_t& state)
{
    if (*state.m_flag) [[likely]]
        return true;
    mutex_core::release(signal);
    if (!state.m_nested)
        subscriber_state_t::destroy(&signal, true);
    return false;
}

inline void end_call(signal_state_t& signal, onstack_signal_state_t& state)
{
    if (*state.m_flag && !state.m_nested)
    {
        signal.m_is_valid_flag = nullptr;
        signal.m_connections.tidy();
    }
    mutex_core::release(signal);
}

}  // namespace

void signal_base_t::emit_by(slot_loop_t loop, void* arguments) const
{
    signal_state_t& signal = *find_signal_state();
    onstack_signal_state_t state;
    begin_call(signal, state);
    connection_node_t const* const first = signal.m_connections.first();
    if (first && *state.m_flag)
    {
        try
        {
            loop(first, state, arguments);
        }
        catch (...)
        {
            if (check_valid(signal, state))
                end_call(signal, state);
            throw;
        }
        if (!check_valid(signal, state))
            return;
    }
    end_call(signal, state);
}

bool signal_base_t::check_valid_state_after_call(onstack_signal_state_t& state)
{
    return check_valid(signal_state_t::of(state), state);
}

void signal_base_t::post_call(onstack_signal_state_t& state)
{
    end_call(signal_state_t::of(state), state);
}

void signal_base_t::remove_invalid_connections() const
{
    signal_state_t* const state = find_signal_state();
    if (!state)
        return;
    core_guard const guard(*state);
    if (state->m_is_valid_flag) [[unlikely]]
        ReportAssertion("!m_is_valid_flag", "functor/signal", 348,
                        "void plinth::_internal::signal_base_t::remove_invalid_connections() const");
    state->m_connections.remove_invalid();
    if (!state->m_is_valid_flag)
        state->m_connections.tidy();
}

}  // namespace plinth::_internal
