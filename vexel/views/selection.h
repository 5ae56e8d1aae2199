#pragma once

#include "vexel/export.h"
#include "vexel/views/block_map.h"

#include <cstdint>

namespace vexel
{

template <class Index> class CSelectionTmpl;

/// Selected indices as a sorted map of runs: two nodes for a run, one for an index alone, however many indices a run
/// has. Runs are inclusive.
template <> class VEXEL_API CSelectionTmpl<int>
{
public:
    enum SelType : int
    {
        selOne = 0,    ///< This index alone.
        selBegin = 1,  ///< A run starts here; its end follows.
        selEnd = 2     ///< A run ends here.
    };
    struct SCountWeight  // over begins and ends that take turns, these add up to the number of indices
    {
        static std::int64_t Of(int index, SelType type)
        {
            return type == selOne ? 1 : type == selBegin ? -std::int64_t{index} : std::int64_t{index} + 1;
        }
    };
    using Nodes = CBlockMap<SelType, SCountWeight>;
    using iterator = Nodes::iterator;

    bool IsSelected(int index) const;
    /// Selects a run, or selects or deselects one index, where `a` and `b` are equal.
    ///
    /// A run can't be deselected in one call; that does nothing. A run may touch others or swallow them; but where it
    /// begins or ends inside another one, that one gets a second begin or end, so callers clear first. An index that
    /// is deselected must be selected.
    void SetItemsSelection(int a, int b, bool select);
    /// The number of selected indices, at most the largest int. Doesn't walk, unless a run has a second begin or end;
    /// then a begin counts with the first end that follows it.
    int GetSelectedItems() const;
    bool IsEmpty() const { return m_Nodes.IsEmpty(); }
    void Clear();

    Nodes const& GetNodes() const { return m_Nodes; }  ///< The runs, in order of index.

private:
    void SelectRun(int low, int high);
    void SelectOne(int index);
    void DeselectOne(int index);
    void erase(iterator& place);  // leaves it at the next node
    void CheckRuns(int low, int high);

    Nodes m_Nodes;
    bool m_Regular = true;  // begins and ends take turns
};

}  // namespace vexel
