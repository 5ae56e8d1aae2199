#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <utility>
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
    static constexpr std::size_t s_MaxNodes = 256;  // of a block
    static constexpr std::size_t s_Group = 32;      // nodes that stand together in a few cache lines

    // The last key of each group of a block; the largest int where there is none.
    using group_keys = std::array<int, s_MaxNodes / s_Group>;
    struct alignas(64) SLeaf
    {
        std::array<SNode, s_MaxNodes> nodes;
    };
    struct SBlock
    {
        std::unique_ptr<SLeaf> leaf;
        std::size_t count = 0;  // never 0 between operations
        std::int64_t weight = 0;

        SNode* First() const { return leaf->nodes.data(); }
        SNode const& Last() const { return leaf->nodes[count - 1]; }
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

        reference operator*() const { return (*m_Blocks)[m_Block].leaf->nodes[m_Place]; }
        pointer operator->() const { return &**this; }
        iterator& operator++()
        {
            if (++m_Place == (*m_Blocks)[m_Block].count)
                ++m_Block, m_Place = 0;
            return *this;
        }
        iterator& operator--()
        {
            if (m_Place == 0)
                m_Place = (*m_Blocks)[--m_Block].count;
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

    CBlockMap() = default;
    CBlockMap(CBlockMap const& other) { *this = other; }
    CBlockMap(CBlockMap&& other) noexcept { Swap(other); }
    ~CBlockMap() = default;
    CBlockMap& operator=(CBlockMap const& other)
    {
        if (this == &other)
            return *this;
        std::vector<SBlock> blocks;
        blocks.reserve(other.m_Blocks.size());
        for (SBlock const& block : other.m_Blocks)
            blocks.push_back({std::make_unique<SLeaf>(*block.leaf), block.count, block.weight});
        m_LastKeys = other.m_LastKeys;
        m_GroupKeys = other.m_GroupKeys;
        m_Blocks = std::move(blocks);
        m_Count = other.m_Count;
        m_Weight = other.m_Weight;
        return *this;
    }
    CBlockMap& operator=(CBlockMap&& other) noexcept
    {
        CBlockMap taken(std::move(other));
        Swap(taken);
        return *this;
    }
    void Swap(CBlockMap& other) noexcept
    {
        m_Blocks.swap(other.m_Blocks);
        m_LastKeys.swap(other.m_LastKeys);
        m_GroupKeys.swap(other.m_GroupKeys);
        std::swap(m_Count, other.m_Count);
        std::swap(m_Weight, other.m_Weight);
    }

    bool IsEmpty() const { return m_Blocks.empty(); }
    int GetCount() const { return static_cast<int>(m_Count); }
    std::int64_t GetWeight() const { return m_Weight; }
    iterator begin() const { return {m_Blocks, 0, 0}; }
    iterator end() const { return {m_Blocks, m_Blocks.size(), 0}; }

    /// The first node whose key is not below `key`, or the end. Wider than a key, so that "one below" never wraps.
    iterator LowerBound(std::int64_t key) const
    {
        if (m_Blocks.empty() || key > m_LastKeys.back())
            return end();
        int const wanted = static_cast<int>(std::max<std::int64_t>(key, std::numeric_limits<int>::min()));
        std::size_t const block = FindBlock(wanted);
        SLeaf const& leaf = *m_Blocks[block].leaf;
        std::size_t place = 0;
        for (int const last : m_GroupKeys[block])
            place += last < wanted ? s_Group : 0;
        std::size_t const groupEnd = std::min(place + s_Group, m_Blocks[block].count);
        std::size_t below = 0;
        for (std::size_t i = place; i < groupEnd; ++i)
            below += leaf.nodes[i].key < wanted;
        return {m_Blocks, block, place + below};
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
        m_GroupKeys.clear();
        m_Count = 0;
        m_Weight = 0;
    }
    /// Leaves a node that is there already as it is.
    iterator Insert(int key, Value value)
    {
        iterator const place = LowerBound(key);
        return place != end() && place->key == key ? place : InsertAt(place, key, value);
    }
    /// The key isn't there, and LowerBound of it is `place`.
    iterator InsertAt(iterator place, int key, Value value)
    {
        place = MakeRoom(place);
        SBlock& block = m_Blocks[place.m_Block];
        SNode* const first = block.First();
        std::move_backward(first + place.m_Place, first + block.count, first + block.count + 1);
        first[place.m_Place] = {key, value};
        ++block.count;
        ++m_Count;
        AddWeight(block, Weight::Of(key, value));
        NodesMoved(place.m_Block, place.m_Place);
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
        SNode& node = block.leaf->nodes[place.m_Place];
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
            EraseNodes(from.m_Block, from.m_Place, m_Blocks[from.m_Block].count);
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
            sum.count += static_cast<int>(m_Blocks[i].count);
            sum.weight += m_Blocks[i].weight;
        }
        sum.count += static_cast<int>(place.m_Place);
        for (std::size_t i = 0; i < place.m_Place; ++i)
        {
            SNode const& node = m_Blocks[place.m_Block].leaf->nodes[i];
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
            SSum const with{sum.count + static_cast<int>(m_Blocks[i].count), sum.weight + m_Blocks[i].weight};
            if (!pass(m_LastKeys[i], with))
                break;
            sum = with;
        }
        return {m_Blocks, i, 0};
    }

private:
    // The first block whose last key is not below; there is one.
    std::size_t FindBlock(int key) const
    {
        // Without branches, which no processor could foresee: halved, then counted in what are a few cache lines.
        int const* base = m_LastKeys.data();
        std::size_t count = m_LastKeys.size();
        while (count > s_Group)
        {
            std::size_t const half = count / 2;
            base += base[half - 1] < key ? half : 0;
            count -= half;
        }
        std::size_t below = 0;
        for (std::size_t i = 0; i < count; ++i)
            below += base[i] < key;
        return static_cast<std::size_t>(base - m_LastKeys.data()) + below;
    }

    void AddWeight(SBlock& block, std::int64_t weight)
    {
        block.weight += weight;
        m_Weight += weight;
    }

    // The nodes of a block from this place on are others.
    void NodesMoved(std::size_t at, std::size_t place)
    {
        SBlock const& block = m_Blocks[at];
        m_LastKeys[at] = block.Last().key;
        group_keys& keys = m_GroupKeys[at];
        for (std::size_t group = place / s_Group; group < keys.size(); ++group)
        {
            std::size_t const last = group * s_Group + s_Group - 1;
            if (last < block.count)
                keys[group] = block.leaf->nodes[last].key;
            else
                keys[group] = last < block.count + s_Group - 1 ? block.Last().key : std::numeric_limits<int>::max();
        }
    }

    // Where a node can be inserted before the given place; its block is not full.
    iterator MakeRoom(iterator place)
    {
        if (m_Blocks.empty())
        {
            InsertBlock(0);
            return {m_Blocks, 0, 0};
        }
        if (place == end())
        {
            place = {m_Blocks, m_Blocks.size() - 1, m_Blocks.back().count};
            if (place.m_Place == s_MaxNodes)  // keys that come in order fill their blocks
            {
                InsertBlock(m_Blocks.size());
                return {m_Blocks, m_Blocks.size() - 1, 0};
            }
        }
        if (m_Blocks[place.m_Block].count < s_MaxNodes)
            return place;
        Split(place.m_Block);
        if (place.m_Place > s_MaxNodes / 2)
            return {m_Blocks, place.m_Block + 1, place.m_Place - s_MaxNodes / 2};
        return place;
    }
    void InsertBlock(std::size_t at)
    {
        SBlock block;
        block.leaf = std::make_unique<SLeaf>();
        auto const place = static_cast<std::ptrdiff_t>(at);
        m_LastKeys.insert(m_LastKeys.begin() + place, 0);
        m_GroupKeys.insert(m_GroupKeys.begin() + place, group_keys{});
        m_Blocks.insert(m_Blocks.begin() + place, std::move(block));
    }
    void Split(std::size_t at)
    {
        InsertBlock(at + 1);
        SBlock& low = m_Blocks[at];
        SBlock& high = m_Blocks[at + 1];
        constexpr std::size_t half = s_MaxNodes / 2;
        std::copy(low.First() + half, low.First() + low.count, high.First());
        high.count = low.count - half;
        low.count = half;
        for (std::size_t i = 0; i < high.count; ++i)
            high.weight += Weight::Of(high.leaf->nodes[i].key, high.leaf->nodes[i].value);
        low.weight -= high.weight;
        NodesMoved(at, half);
        NodesMoved(at + 1, 0);
    }
    // Some of the nodes of one block, not all.
    void EraseNodes(std::size_t at, std::size_t from, std::size_t to)
    {
        SBlock& block = m_Blocks[at];
        SNode* const first = block.First();
        for (std::size_t i = from; i < to; ++i)
            AddWeight(block, -Weight::Of(first[i].key, first[i].value));
        std::move(first + to, first + block.count, first + from);
        block.count -= to - from;
        m_Count -= to - from;
        NodesMoved(at, from > 0 ? from - 1 : 0);  // the group before may be the last one now
    }
    void EraseBlocks(std::size_t from, std::size_t to)
    {
        for (std::size_t i = from; i < to; ++i)
        {
            m_Count -= m_Blocks[i].count;
            m_Weight -= m_Blocks[i].weight;
        }
        auto const first = static_cast<std::ptrdiff_t>(from);
        auto const last = static_cast<std::ptrdiff_t>(to);
        m_Blocks.erase(m_Blocks.begin() + first, m_Blocks.begin() + last);
        m_LastKeys.erase(m_LastKeys.begin() + first, m_LastKeys.begin() + last);
        m_GroupKeys.erase(m_GroupKeys.begin() + first, m_GroupKeys.begin() + last);
    }

    std::vector<SBlock> m_Blocks;
    // Of each block. Apart from the nodes: what a lookup reads before it knows its group is small enough to stay in
    // the caches.
    std::vector<int> m_LastKeys;
    std::vector<group_keys> m_GroupKeys;
    std::size_t m_Count = 0;
    std::int64_t m_Weight = 0;
};

}  // namespace vexel
