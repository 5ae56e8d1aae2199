#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/views/dirty_item_set.h"

#include <utility>
#include <vector>

namespace vexel
{

/// Dirty items as a plain row of inclusive pairs, in the order they came, without merging. Where nobody paints, some
/// thousands of them become one that covers them all.
class VEXEL_API CUpdateStorage : public IDirtyItemSet
{
public:
    CUpdateStorage() = default;
    CUpdateStorage(int first, int last) { UpdateItems(first, last); }

    void UpdateItems(int a, int b);  ///< Adds the range between them, both included, in any order.
    bool IsEmpty() const { return m_Items.empty(); }

    void AddDirtyItems(int first, int last) override { UpdateItems(first, last); }
    DirtyType GetItemType(int index) const override;
    void OnEndDraw() override { m_Items.clear(); }  ///< Keeps the memory.

private:
    std::vector<std::pair<int, int>> m_Items;
};

}  // namespace vexel
