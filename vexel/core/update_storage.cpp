#include "vexel/core/update_storage.h"

#include <algorithm>

namespace vexel
{

void CUpdateStorage::UpdateItems(int a, int b)
{
    m_Items.emplace_back(std::min(a, b), std::max(a, b));
}

IDirtyItemSet::DirtyType CUpdateStorage::GetItemType(int index) const
{
    if (m_Items.empty())
        return dirtyNone;
    for (auto const& [first, last] : m_Items)
        if (first <= index && index <= last)
            return dirtyItem;
    return dirtyOther;
}

}  // namespace vexel
