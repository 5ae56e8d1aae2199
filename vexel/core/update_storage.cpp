#include "vexel/core/update_storage.h"

#include <algorithm>

namespace vexel
{

namespace
{

// A view that is never painted, since it is hidden, goes on collecting.
constexpr std::size_t s_MostPairs = 4096;

}  // namespace

void CUpdateStorage::UpdateItems(int a, int b)
{
    if (m_Items.size() >= s_MostPairs)
    {
        std::pair<int, int> all = m_Items.front();
        for (auto const& [first, last] : m_Items)
            all = {std::min(all.first, first), std::max(all.second, last)};
        m_Items.assign(1, all);
    }
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
