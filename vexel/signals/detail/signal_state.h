#pragma once

#include "vexel/signals/detail/node_index.h"
#include "vexel/signals/detail/node_list.h"
#include "vexel/signals/signal_base.h"

#include <memory>

namespace plinth::_internal
{

/// Lists longer than this are searched by an index.
inline constexpr std::size_t longest_plain_list = 16;

/// A note of a signal.
struct signal_node
{
    signal_node* m_next = nullptr;
    signal_node* m_previous = nullptr;
    signal_base_t* m_signal = nullptr;
};

/// The signals that a subscriber is connected to, one note per connection.
class signal_list
{
public:
    signal_node* first() const noexcept { return m_nodes.first(); }
    std::size_t size() const noexcept { return m_nodes.size(); }

    /// Throws std::bad_alloc, then nothing has happened.
    void append(signal_base_t* signal);
    void remove_all(signal_base_t* signal) noexcept;
    void clear() noexcept;

private:
    static std::size_t hash_of(signal_base_t const* signal) noexcept
    {
        return hash_words(reinterpret_cast<std::uintptr_t>(signal));
    }
    void make_index();

    node_list<signal_node> m_nodes;
    std::unique_ptr<node_index<signal_node>> m_index;
};

/// The connections of a signal in their order.
class connection_list
{
public:
    /// A node and its place in the index, not in the list yet; given back unless appended.
    class new_node
    {
    public:
        explicit new_node(connection_list& list);
        ~new_node()
        {
            if (m_node)
                m_list.m_nodes.discard(m_node);
        }
        new_node(new_node const&) = delete;
        new_node& operator=(new_node const&) = delete;

    private:
        friend class connection_list;
        connection_list& m_list;
        connection_node_t* m_node = nullptr;
    };

    connection_node_t* first() const noexcept { return m_nodes.first(); }
    std::size_t size() const noexcept { return m_nodes.size(); }

    connection_node_t* find(connection_t const& connection) const noexcept;
    connection_node_t* find_subscriber(subscriber_base_t const* subscriber) const noexcept;

    void append(new_node& node, connection_t const& connection) noexcept;
    void remove(connection_node_t* node) noexcept;
    void clear() noexcept;  ///< No emission may run, or none that goes on.

    /// Clears the connection; its node stays.
    void invalidate(connection_node_t* node) noexcept;
    /// Removes all cleared ones from the list. Their nodes stay where they are, and still lead on, until tidy: an
    /// emission may stand on them.
    void remove_invalid() noexcept;
    /// Removes all cleared ones. No emission may run.
    void tidy() noexcept
    {
        if (m_untidy) [[unlikely]]
            tidy_up();
    }

private:
    struct indices
    {
        node_index<connection_node_t> m_by_target;
        node_index<connection_node_t> m_by_subscriber;

        void reserve_one();
        void insert(connection_node_t* node) noexcept;
        void erase(connection_node_t const* node) noexcept;
    };

    static std::size_t hash_of(connection_t const& connection) noexcept
    {
        return hash_words(reinterpret_cast<std::uintptr_t>(connection.m_receiver), connection.m_method.m_function);
    }
    static std::size_t hash_of(subscriber_base_t const* subscriber) noexcept
    {
        return hash_words(reinterpret_cast<std::uintptr_t>(subscriber));
    }
    void make_index();
    void tidy_up() noexcept;

    node_list<connection_node_t> m_nodes;
    std::unique_ptr<indices> m_index;
    connection_node_t* m_removed = nullptr;  ///< Nodes out of the list, chained by m_previous.
    bool m_untidy = false;
};

/// What a connected subscriber has.
struct subscriber_state_t
{
    signal_list m_signals;
    threading::mutex_t m_mutex;

    static void destroy(subscriber_state_t* state, bool is_signal) noexcept;
};

/// What a connected signal has besides. Its mutex, the second base, lies here and not in the signal, since it must outlive
/// a signal that dies in its own emission; such an emission knows nothing but the mutex.
struct signal_state_t : subscriber_state_t, threading::mutex_t
{
    connection_list m_connections;
    bool* m_is_valid_flag = nullptr;  ///< While an emission runs, the flag on the stack of the outermost one.

    static signal_state_t& of(onstack_signal_state_t const& state)
    {
        return static_cast<signal_state_t&>(*state.m_mutex);
    }
};

}  // namespace plinth::_internal
