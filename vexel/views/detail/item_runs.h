#pragma once

#include "vexel/views/item_positions.h"
#include "vexel/views/item_size_map.h"
#include "vexel/views/item_view_model.h"

#include <cstdint>

namespace vexel::detail
{

/// The sizes of a model's items as runs of equal ones, so that a walk over a default size takes one step, however many
/// items have it. That is known of the models of this folder. Others are asked for sums if they know their positions
/// (IItemPositions); the rest, classes derived from those of this folder among them, for each item.
class CItemRuns
{
public:
    struct SRun
    {
        int size;
        int count;
    };

    explicit CItemRuns(IBaseItemViewModel const& model);

    std::int64_t Sum(int from, int to) const;  ///< Of the items `from` up to, not including, `to`.

    /// From `index` on to larger ones, below `limit`. Within one walk the indices must grow.
    SRun Forward(int index, int limit);
    /// From `index` on to smaller ones, down to 0. Within one walk the indices must shrink.
    SRun Backward(int index);

    /// Skips items whose sizes together are at most `room`, not the one before `limit`: gives back an item to walk on
    /// from, with what is left of the room. They count from item 0.
    int Skip(int limit, std::int64_t& room) const;

private:
    using Nodes = CItemSizeMap::Nodes;

    IBaseItemViewModel const& m_Model;
    IItemPositions const* m_Positions = nullptr;  // of a model that isn't known otherwise
    bool m_IsKnown = false;                       // all but the exceptions have the default size
    CItemSizeMap const* m_Sizes = nullptr;        // the exceptions; null: none
    int m_DefaultSize = 0;
    bool m_HasPlace = false;  // a walk has begun
    Nodes::iterator m_Place;  // forward: the next exception; backward: the one behind the next
};

}  // namespace vexel::detail
