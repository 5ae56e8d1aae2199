#include "vexel/signals/detail/signal_state.h"

namespace plinth::_internal
{

void signal_list::append(signal_base_t* signal)
{
    if (!m_index && size() >= longest_plain_list) [[unlikely]]
        make_index();
    if (m_index)
        m_index->reserve_one();
    signal_node* const node = m_nodes.make();
    node->m_signal = signal;
    m_nodes.push_back(node);
    if (m_index)
        m_index->insert(node, hash_of(signal));
}

void signal_list::remove_all(signal_base_t* signal) noexcept
{
    if (!m_index)
    {
        for (signal_node* node = first(); node;)
        {
            signal_node* const next = node->m_next;
            if (node->m_signal == signal)
                m_nodes.remove(node);
            node = next;
        }
        return;
    }
    std::size_t const hash = hash_of(signal);
    while (signal_node* const node = m_index->find(hash, [&](signal_node& n) { return n.m_signal == signal; }))
    {
        m_index->erase(node, hash);
        m_nodes.remove(node);
    }
}

void signal_list::clear() noexcept
{
    m_nodes.clear();
    m_index.reset();
}

void signal_list::make_index()
{
    auto index = std::make_unique<node_index<signal_node>>();
    for (signal_node* node = first(); node; node = node->m_next)
    {
        index->reserve_one();
        index->insert(node, hash_of(node->m_signal));
    }
    m_index = std::move(index);
}

connection_list::new_node::new_node(connection_list& list) : m_list(list)
{
    if (!list.m_index && list.size() >= longest_plain_list) [[unlikely]]
        list.make_index();
    if (list.m_index)
        list.m_index->reserve_one();
    m_node = list.m_nodes.make();
}

void connection_list::append(new_node& node, connection_t const& connection) noexcept
{
    node.m_node->m_connection = connection;
    m_nodes.push_back(node.m_node);
    if (m_index)
        m_index->insert(node.m_node);
    node.m_node = nullptr;
}

connection_node_t* connection_list::find(connection_t const& connection) const noexcept
{
    if (m_index)
        return m_index->m_by_target.find(hash_of(connection),
                                         [&](connection_node_t& n) { return n.m_connection == connection; });
    for (connection_node_t* node = first(); node; node = node->m_next)
    {
        if (node->m_connection == connection)
            return node;
    }
    return nullptr;
}

connection_node_t* connection_list::find_subscriber(subscriber_base_t const* subscriber) const noexcept
{
    if (m_index)
        return m_index->m_by_subscriber.find(
            hash_of(subscriber), [&](connection_node_t& n) { return n.m_connection.m_subscriber == subscriber; });
    for (connection_node_t* node = first(); node; node = node->m_next)
    {
        if (node->m_connection.m_subscriber == subscriber)
            return node;
    }
    return nullptr;
}

void connection_list::remove(connection_node_t* node) noexcept
{
    if (m_index)
        m_index->erase(node);
    m_nodes.remove(node);
}

void connection_list::clear() noexcept
{
    m_nodes.clear();
    m_index.reset();
    tidy();
}

void connection_list::invalidate(connection_node_t* node) noexcept
{
    if (m_index)
        m_index->erase(node);
    node->m_connection = connection_t();
    m_untidy = true;
}

void connection_list::remove_invalid() noexcept
{
    for (connection_node_t* node = first(); node; node = node->m_next)
    {
        if (node->m_connection.m_subscriber)
            continue;
        m_nodes.unhook(node);
        node->m_previous = m_removed;
        m_removed = node;
    }
}

void connection_list::tidy_up() noexcept
{
    remove_invalid();
    while (connection_node_t* const node = m_removed)
    {
        m_removed = node->m_previous;
        m_nodes.discard(node);
    }
    m_untidy = false;
}

void connection_list::make_index()
{
    auto index = std::make_unique<indices>();
    for (connection_node_t* node = first(); node; node = node->m_next)
    {
        if (!node->m_connection.m_subscriber)
            continue;
        index->reserve_one();
        index->insert(node);
    }
    m_index = std::move(index);
}

void connection_list::indices::reserve_one()
{
    m_by_target.reserve_one();
    m_by_subscriber.reserve_one();
}

void connection_list::indices::insert(connection_node_t* node) noexcept
{
    m_by_target.insert(node, hash_of(node->m_connection));
    m_by_subscriber.insert(node, hash_of(node->m_connection.m_subscriber));
}

void connection_list::indices::erase(connection_node_t const* node) noexcept
{
    m_by_target.erase(node, hash_of(node->m_connection));
    m_by_subscriber.erase(node, hash_of(node->m_connection.m_subscriber));
}

void subscriber_state_t::destroy(subscriber_state_t* state, bool is_signal) noexcept
{
    if (is_signal)
        delete static_cast<signal_state_t*>(state);
    else
        delete state;
}

}  // namespace plinth::_internal
