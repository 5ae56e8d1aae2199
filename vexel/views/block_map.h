#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

namespace vexel
{

/// A sorted map from int that keeps its nodes in blocks: some bytes a node, few cache misses a lookup, and sums over
/// parts of it without a walk over all nodes. `Weight::Of(key, value)` is what a node adds to a sum.
///
/// Places (iterators) hold until the map is changed; a changing operation gives back the place to go on from.
template <class Value, class Weight> class CBlockMap
{
public:
    struct SNode
    {
        int key;
        Value value;

        friend bool operator==(SNode const&, SNode const&) = default;
    };
    struct SSum
    {
        int count = 0;
        std::int64_t weight = 0;
    };

private:
    struct SBlock
    {
        std::vector<SNode> nodes;  // never empty
        std::int64_t weight = 0;
    };

public:
    /// Goes both ways. At the end it may only go back, at the beginning only on.
    class iterator
    {
    public:
        using iterator_category = std::bidirectional_iterator_tag;
        using value_type = SNode;
        using difference_type = std::ptrdiff_t;
        using pointer = SNode const*;
        using reference = SNode const&;

        iterator() = default;

        reference operator*() const { return (*m_Blocks)[m_Block].nodes[m_Place]; }
        pointer operator->() const { return &**this; }
        iterator& operator++()
        {
            if (++m_Place == (*m_Blocks)[m_Block].nodes.size())
                ++m_Block, m_Place = 0;
            return *this;
        }
        iterator& operator--()
        {
            if (m_Place == 0)
                m_Place = (*m_Blocks)[--m_Block].nodes.size();
            --m_Place;
            return *this;
        }
        iterator operator++(int)
        {
            iterator const old = *this;
            ++*this;
            return old;
        }
        iterator operator--(int)
        {
            iterator const old = *this;
            --*this;
            return old;
        }
        friend bool operator==(iterator const& a, iterator const& b)
        {
            return a.m_Block == b.m_Block && a.m_Place == b.m_Place;
        }

    private:
        friend class CBlockMap;
        iterator(std::vector<SBlock> const& blocks, std::size_t block, std::size_t place)
            : m_Blocks(&blocks), m_Block(block), m_Place(place)
        {}

        std::vector<SBlock> const* m_Blocks = nullptr;
        std::size_t m_Block = 0;  // the number of blocks: the end
        std::size_t m_Place = 0;
    };

    bool IsEmpty() const { return m_Blocks.empty(); }
    int GetCount() const { return static_cast<int>(m_Count); }
    std::int64_t GetWeight() const { return m_Weight; }
    iterator begin() const { return {m_Blocks, 0, 0}; }
    iterator end() const { return {m_Blocks, m_Blocks.size(), 0}; }

    /// The first node whose key is not below `key`, or the end. Wider than a key, so that "one below" never wraps.
    iterator LowerBound(std::int64_t key) const
    {
        auto const last = std::lower_bound(m_LastKeys.begin(), m_LastKeys.end(), key, IsBelow);
        if (last == m_LastKeys.end())
            return end();
        auto const block = static_cast<std::size_t>(last - m_LastKeys.begin());
        auto const& nodes = m_Blocks[block].nodes;
        auto const node = std::lower_bound(nodes.begin(), nodes.end(), key, IsNodeBelow);
        return {m_Blocks, block, static_cast<std::size_t>(node - nodes.begin())};
    }
    /// The node of that key, or the end.
    iterator Find(int key) const
    {
        iterator const found = LowerBound(key);
        return found != end() && found->key == key ? found : end();
    }

    void Clear()
    {
        m_Blocks.clear();
        m_LastKeys.clear();
        m_Count = 0;
        m_Weight = 0;
    }
    /// Leaves a node that is there already as it is.
    iterator Insert(int key, Value value)
    {
        iterator place = LowerBound(key);
        if (place != end() && place->key == key)
            return place;
        place = MakeRoom(place);
        SBlock& block = m_Blocks[place.m_Block];
        block.nodes.insert(block.nodes.begin() + static_cast<std::ptrdiff_t>(place.m_Place), SNode{key, value});
        m_LastKeys[place.m_Block] = block.nodes.back().key;
        ++m_Count;
        AddWeight(block, Weight::Of(key, value));
        return place;
    }
    /// Inserts, or replaces the value.
    iterator Assign(int key, Value value)
    {
        iterator const place = Insert(key, value);
        SetValue(place, value);
        return place;
    }
    void SetValue(iterator place, Value value)
    {
        SBlock& block = m_Blocks[place.m_Block];
        SNode& node = block.nodes[place.m_Place];
        AddWeight(block, Weight::Of(node.key, value) - Weight::Of(node.key, node.value));
        node.value = value;
    }
    iterator Erase(iterator place)
    {
        iterator next = place;
        return Erase(place, ++next);
    }
    /// All from `from` up to, not including, `to`. Gives back the node behind them.
    iterator Erase(iterator from, iterator to)
    {
        if (from == to)
            return to;
        // In the last block first, for it may be the first one too, and places behind what is erased move.
        bool const within = from.m_Block == to.m_Block;
        if (to.m_Place > 0)
            EraseNodes(to.m_Block, within ? from.m_Place : 0, to.m_Place);
        if (within)
            return from;
        if (from.m_Place > 0)
        {
            EraseNodes(from.m_Block, from.m_Place, m_Blocks[from.m_Block].nodes.size());
            ++from.m_Block;
            from.m_Place = 0;
        }
        EraseBlocks(from.m_Block, to.m_Block);
        return from;
    }

    /// Over the nodes whose keys are below `key`.
    SSum SumBelow(std::int64_t key) const
    {
        iterator const place = LowerBound(key);
        SSum sum;
        for (std::size_t i = 0; i < place.m_Block; ++i)
        {
            sum.count += static_cast<int>(m_Blocks[i].nodes.size());
            sum.weight += m_Blocks[i].weight;
        }
        sum.count += static_cast<int>(place.m_Place);
        for (std::size_t i = 0; i < place.m_Place; ++i)
        {
            SNode const& node = m_Blocks[place.m_Block].nodes[i];
            sum.weight += Weight::Of(node.key, node.value);
        }
        return sum;
    }
    /// Skips whole blocks. `pass(lastKey, sum)` answers whether to go on behind that node, with the sum up to and
    /// including it. Gives back the beginning of the first block that doesn't pass, and the sum before it.
    template <class Pass> iterator SkipBlocks(Pass pass, SSum& sum) const
    {
        std::size_t i = 0;
        for (; i < m_Blocks.size(); ++i)
        {
            SSum const with{sum.count + static_cast<int>(m_Blocks[i].nodes.size()), sum.weight + m_Blocks[i].weight};
            if (!pass(m_LastKeys[i], with))
                break;
            sum = with;
        }
        return {m_Blocks, i, 0};
    }

private:
    static constexpr std::size_t s_MaxNodes = 256;  // of a block

    static bool IsBelow(int key, std::int64_t than) { return key < than; }
    static bool IsNodeBelow(SNode const& node, std::int64_t than) { return node.key < than; }

    void AddWeight(SBlock& block, std::int64_t weight)
    {
        block.weight += weight;
        m_Weight += weight;
    }

    // Where a node can be inserted before the given place; its block is not full.
    iterator MakeRoom(iterator place)
    {
        if (m_Blocks.empty())
        {
            InsertBlock(0);
            return begin();
        }
        if (place == end())
        {
            place = {m_Blocks, m_Blocks.size() - 1, m_Blocks.back().nodes.size()};
            if (place.m_Place == s_MaxNodes)  // keys that come in order fill their blocks
            {
                InsertBlock(m_Blocks.size());
                return {m_Blocks, m_Blocks.size() - 1, 0};
            }
        }
        if (m_Blocks[place.m_Block].nodes.size() < s_MaxNodes)
            return place;
        Split(place.m_Block);
        if (place.m_Place > s_MaxNodes / 2)
            return {m_Blocks, place.m_Block + 1, place.m_Place - s_MaxNodes / 2};
        return place;
    }
    void InsertBlock(std::size_t at)
    {
        m_Blocks.emplace(m_Blocks.begin() + static_cast<std::ptrdiff_t>(at));
        m_LastKeys.insert(m_LastKeys.begin() + static_cast<std::ptrdiff_t>(at), 0);
    }
    void Split(std::size_t at)
    {
        InsertBlock(at + 1);
        SBlock& low = m_Blocks[at];
        SBlock& high = m_Blocks[at + 1];
        auto const half = low.nodes.begin() + s_MaxNodes / 2;
        high.nodes.assign(half, low.nodes.end());
        low.nodes.erase(half, low.nodes.end());
        for (SNode const& node : high.nodes)
            high.weight += Weight::Of(node.key, node.value);
        low.weight -= high.weight;
        m_LastKeys[at] = low.nodes.back().key;
        m_LastKeys[at + 1] = high.nodes.back().key;
    }
    // Some of the nodes of one block, not all.
    void EraseNodes(std::size_t at, std::size_t from, std::size_t to)
    {
        SBlock& block = m_Blocks[at];
        for (std::size_t i = from; i < to; ++i)
            AddWeight(block, -Weight::Of(block.nodes[i].key, block.nodes[i].value));
        block.nodes.erase(block.nodes.begin() + static_cast<std::ptrdiff_t>(from),
                          block.nodes.begin() + static_cast<std::ptrdiff_t>(to));
        m_Count -= to - from;
        m_LastKeys[at] = block.nodes.back().key;
    }
    void EraseBlocks(std::size_t from, std::size_t to)
    {
        for (std::size_t i = from; i < to; ++i)
        {
            m_Count -= m_Blocks[i].nodes.size();
            m_Weight -= m_Blocks[i].weight;
        }
        auto const first = static_cast<std::ptrdiff_t>(from);
        auto const last = static_cast<std::ptrdiff_t>(to);
        m_Blocks.erase(m_Blocks.begin() + first, m_Blocks.begin() + last);
        m_LastKeys.erase(m_LastKeys.begin() + first, m_LastKeys.begin() + last);
    }

    std::vector<SBlock> m_Blocks;
    std::vector<int> m_LastKeys;  // of each block
    std::size_t m_Count = 0;
    std::int64_t m_Weight = 0;
};

}  // namespace vexel
