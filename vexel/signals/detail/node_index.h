#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace plinth::_internal
{

/// Spreads the bits of words that are mostly addresses.
inline std::size_t hash_words(std::uintptr_t a, std::uintptr_t b = 0) noexcept
{
    std::uint64_t h = (a ^ (b << 32 | b >> 32)) * 0x9E3779B97F4A7C15u;
    return static_cast<std::size_t>(h ^ h >> 32);
}

/// Finds the nodes of a long list by a hash of a key of theirs: open addressing with linear steps, at most half full.
/// Several nodes may share a key.
template <class Node> class node_index
{
public:
    node_index() : m_cells(64) {}  ///< Throws std::bad_alloc.

    /// Makes room for one more, so that the next insert needs no memory. Throws std::bad_alloc.
    void reserve_one()
    {
        if (2 * (m_used + 1) <= m_cells.size())
            return;
        std::vector<cell> cells(2 * m_cells.size());
        cells.swap(m_cells);
        for (cell const& c : cells)
        {
            if (c.m_node)
                place(c);
        }
    }

    void insert(Node* node, std::size_t hash) noexcept
    {
        place({node, hash});
        ++m_used;
    }

    /// Takes out a node that is in.
    void erase(Node const* node, std::size_t hash) noexcept
    {
        std::size_t hole = hash & mask();
        while (m_cells[hole].m_node != node)
            hole = (hole + 1) & mask();
        --m_used;

        // Close the gap: what stands behind and may stand in the hole moves there.
        std::size_t at = hole;
        while (true)
        {
            at = (at + 1) & mask();
            cell const& c = m_cells[at];
            if (!c.m_node)
                break;
            std::size_t const from_home = (at - c.m_hash) & mask();
            std::size_t const from_hole = (at - hole) & mask();
            if (from_home >= from_hole)
            {
                m_cells[hole] = c;
                hole = at;
            }
        }
        m_cells[hole] = cell();
    }

    /// A node with the hash for which `is_it(node)` holds, or null.
    template <class Test> Node* find(std::size_t hash, Test&& is_it) const
    {
        for (std::size_t at = hash & mask(); m_cells[at].m_node; at = (at + 1) & mask())
        {
            if (m_cells[at].m_hash == hash && is_it(*m_cells[at].m_node))
                return m_cells[at].m_node;
        }
        return nullptr;
    }

private:
    struct cell
    {
        Node* m_node = nullptr;
        std::size_t m_hash = 0;
    };

    std::size_t mask() const noexcept { return m_cells.size() - 1; }

    void place(cell const& c) noexcept
    {
        std::size_t at = c.m_hash & mask();
        while (m_cells[at].m_node)
            at = (at + 1) & mask();
        m_cells[at] = c;
    }

    std::vector<cell> m_cells;
    std::size_t m_used = 0;
};

}  // namespace plinth::_internal
