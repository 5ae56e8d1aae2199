#pragma once

#include <cstddef>
#include <cstdint>

namespace plinth::_internal
{

/// A doubly linked list of nodes (with m_next and m_previous) that owns them. Some discarded nodes are kept as spares, and
/// one lies in the list itself, so that short lists and steady use need no allocation.
template <class Node> class node_list
{
public:
    node_list() noexcept { keep(&m_built_in); }
    node_list(node_list const&) = delete;
    node_list& operator=(node_list const&) = delete;
    ~node_list()
    {
        clear();
        while (m_spare)
        {
            Node* const node = take_spare();
            if (node != &m_built_in)
                delete node;
        }
    }

    Node* first() const noexcept { return m_first; }
    std::size_t size() const noexcept { return m_size; }

    /// A node outside the list, blank but for its links. It goes on to push_back or discard. Throws std::bad_alloc.
    Node* make() { return m_spare ? take_spare() : new Node; }

    void discard(Node* node) noexcept
    {
        if (node == &m_built_in || m_spare_count < most_spares)
            keep(node);
        else
            delete node;
    }

    void push_back(Node* node) noexcept
    {
        node->m_next = nullptr;
        node->m_previous = m_last;
        (m_last ? m_last->m_next : m_first) = node;
        m_last = node;
        ++m_size;
    }

    /// Takes a node out of the list and leaves its own links as they are. It goes on to discard.
    void unhook(Node* node) noexcept
    {
        (node->m_previous ? node->m_previous->m_next : m_first) = node->m_next;
        (node->m_next ? node->m_next->m_previous : m_last) = node->m_previous;
        --m_size;
    }

    void remove(Node* node) noexcept
    {
        unhook(node);
        discard(node);
    }

    void clear() noexcept
    {
        while (m_first)
            remove(m_first);
    }

private:
    static constexpr std::uint32_t most_spares = 3;

    void keep(Node* node) noexcept
    {
        node->m_next = m_spare;
        m_spare = node;
        ++m_spare_count;
    }

    Node* take_spare() noexcept
    {
        Node* const node = m_spare;
        m_spare = node->m_next;
        --m_spare_count;
        return node;
    }

    Node* m_first = nullptr;
    Node* m_last = nullptr;
    Node* m_spare = nullptr;
    std::size_t m_size = 0;
    std::uint32_t m_spare_count = 0;
    Node m_built_in;
};

}  // namespace plinth::_internal
