#pragma once

#include "vexel/export.h"
#include "vexel/signals/mutex.h"

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace plinth
{
namespace _internal
{

class signal_base_t;
class subscriber_base_t;
struct subscriber_state_t;
struct signal_state_t;

/// A member function of any class and signature as two opaque words: function address or virtual index, and `this`
/// adjustment.
struct typeless_connection_t
{
    std::uintptr_t m_function = 0;
    std::ptrdiff_t m_adjustment = 0;

    friend bool operator==(typeless_connection_t const&, typeless_connection_t const&) = default;
};

/// A caster function of any signature.
using typeless_caster_t = void (*)();

/// Whom an emission calls, and how.
struct connection_t
{
    void* m_receiver = nullptr;                 ///< The object as the caster expects it.
    subscriber_base_t* m_subscriber = nullptr;  ///< The same object's subscriber part; null: cleared.
    typeless_connection_t m_method;
    typeless_caster_t m_caster = nullptr;

    /// The subscriber and the caster play no part.
    friend bool operator==(connection_t const& a, connection_t const& b)
    {
        return a.m_receiver == b.m_receiver && a.m_method == b.m_method;
    }
};

/// A place in a signal's list of connections.
struct connection_node_t
{
    connection_node_t* m_next = nullptr;
    connection_node_t* m_previous = nullptr;
    connection_t m_connection;
};

/// What an emission keeps on the stack: all that it may touch once a slot has destroyed the signal.
struct onstack_signal_state_t
{
    threading::mutex_t* m_mutex;
    bool m_valid;   ///< The flag of the outermost emission; false: the signal is gone.
    bool* m_flag;   ///< The flag in use: the outermost emission's.
    bool m_nested;  ///< This is not the outermost emission.
};

/// Anything that may be the target of a connection. When it dies it leaves all signals that it knows.
///
/// The list of these signals and its mutex are made at the first connection. Until then the object holds one word
/// besides its virtual table. The same holds for the connections, flag and mutex of a signal, which shares the word.
class VEXEL_API subscriber_base_t
{
public:
    constexpr subscriber_base_t() noexcept = default;
    subscriber_base_t(subscriber_base_t const&) = delete;
    subscriber_base_t& operator=(subscriber_base_t const&) = delete;
    virtual ~subscriber_base_t()
    {
        if (m_word.load(std::memory_order_relaxed) > signal_tag)
            die();
    }

    // For signals: what this subscriber knows of them --------------------------------------------------------------

    /// Notes `signal` once more. Throws std::bad_alloc, then nothing has happened.
    void on_connect(signal_base_t* signal);

    /// Forgets every note of `signal`, also when it still holds another connection to this subscriber. So who has two
    /// member functions on one signal disconnects both before dying.
    void on_disconnect(signal_base_t* signal);

    /// Leaves all signals that are noted.
    void disconnect_all_signals();

    /// How often `signal` is noted.
    std::size_t count_signal(signal_base_t const* signal) const;
    /// How many notes there are in all.
    std::size_t signal_count() const;

protected:
    /// The word is an address of a state, with this bit set in a signal, or no more than this bit.
    static constexpr std::uintptr_t signal_tag = 1;

    explicit constexpr subscriber_base_t(std::uintptr_t word) noexcept : m_word(word) {}

    std::atomic<std::uintptr_t> m_word{0};

private:
    friend class signal_base_t;

    subscriber_state_t* find_state() const;
    subscriber_state_t& get_state();
    void die();
};

/// The untyped core of a signal: an ordered list of connections. A signal is itself a subscriber, so that it may be a
/// slot of another signal, by its operator().
///
/// Operations may be called on any thread. Each holds the signal's recursive mutex for its whole length, an emission
/// while it calls slots, too; inside it takes the mutex of the subscriber concerned. disconnect_all_signals takes the
/// two in the other order: a receiver must not die on one thread while another one connects or disconnects it. Nor may
/// a signal die while another thread uses it.
class VEXEL_API signal_base_t : public subscriber_base_t
{
public:
    constexpr signal_base_t() noexcept : subscriber_base_t(signal_tag) {}
    /// Legal in a slot of its own emission: no further slot is called, the emission returns without touching the signal.
    ~signal_base_t() override
    {
        if (!is_unconnected())
            leave_connections();
    }

    /// Appends a connection. One that exists already is reported to the assertion reporter and not added again.
    /// Throws std::bad_alloc, then nothing has happened.
    void _insert(connection_t const& connection);
    /// Removes a connection, during an emission by clearing it in place. One that doesn't exist is reported to the
    /// assertion reporter. It is the argument's subscriber that forgets the signal.
    void _erase(connection_t const& connection);
    /// Removes all, during an emission by clearing them in place.
    void _erase_all();

    /// Called by a dying subscriber: removes its connections without calling it back.
    void on_subscriber_destroy(subscriber_base_t* subscriber);

    /// The length of the list, with the connections that the emission under way has cleared.
    std::size_t connection_count() const;

    // The emission's helpers ---------------------------------------------------------------------------------------
    // The first two don't touch the signal, which may be gone.

    /// After a slot: false when it has destroyed the signal. This level of the emission is then over, its mutex released.
    static bool check_valid_state_after_call(onstack_signal_state_t& state);
    /// Ends an emission: the outermost one removes what was cleared.
    static void post_call(onstack_signal_state_t& state);
    /// Removes what was cleared. Not during an emission, which is reported to the assertion reporter.
    void remove_invalid_connections() const;

protected:
    /// Nothing was ever connected to this signal, nor was it a slot itself.
    bool is_unconnected() const { return m_word.load(std::memory_order_relaxed) <= signal_tag; }

    /// What an emission does per signature: calls the connections from `node` on, until state's flag is false.
    using slot_loop_t = void (*)(connection_node_t const* node, onstack_signal_state_t const& state, void* arguments);

    /// Emits; the signal must not be unconnected.
    void emit_by(slot_loop_t loop, void* arguments) const;

private:
    signal_state_t* find_signal_state() const;
    signal_state_t& get_signal_state();
    void leave_connections();
};

}  // namespace _internal

using _internal::connection_t;
using _internal::onstack_signal_state_t;
using _internal::signal_base_t;
using _internal::subscriber_base_t;
using _internal::typeless_connection_t;

}  // namespace plinth

namespace vexel
{

using plinth::signal_base_t;
using plinth::subscriber_base_t;

}  // namespace vexel
