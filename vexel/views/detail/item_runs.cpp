#include "vexel/views/detail/item_runs.h"

#include "vexel/platform/convert.h"
#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/discrete_item_view_model.h"

#include <algorithm>
#include <typeinfo>

namespace vexel::detail
{

CItemRuns::CItemRuns(IBaseItemViewModel const& model) : m_Model(model)
{
    std::type_info const& type = typeid(model);
    if (type == typeid(CDefaultDiscreteItemViewModel) || type == typeid(CNonEqualItemsViewModel))
        m_Sizes = &static_cast<CDefaultDiscreteItemViewModel const&>(model).GetItemSizes();
    else if (type == typeid(CDefaultColumnViewModel))
        m_Sizes = &static_cast<CDefaultColumnViewModel const&>(model).GetItemSizes();
    else if (type != typeid(CSimpleDiscreteItemViewModel) && type != typeid(CEqualItemsViewModel))
    {
        m_Positions = dynamic_cast<IItemPositions const*>(&model);
        return;
    }
    m_IsKnown = true;
    m_DefaultSize = model.GetDefaultItemSize();
    if (m_Sizes && m_Sizes->IsEmpty())
        m_Sizes = nullptr;
}

std::int64_t CItemRuns::Sum(int from, int to) const
{
    if (from >= to)
        return 0;
    if (m_IsKnown)
    {
        CItemSizeMap::SSum const exceptions = m_Sizes ? m_Sizes->Sum(from, to) : CItemSizeMap::SSum{};
        return (std::int64_t{to} - from - exceptions.count) * m_DefaultSize + exceptions.size;
    }
    if (m_Positions)
        return m_Positions->GetItemPosition(to) - m_Positions->GetItemPosition(from);
    std::int64_t sum = 0;
    for (int i = from; i < to; ++i)
        sum += m_Model.GetItemSize(i);
    return sum;
}

CItemRuns::SRun CItemRuns::Forward(int index, int limit)
{
    if (!m_IsKnown)
        return {m_Model.GetItemSize(index), 1};
    if (!m_Sizes)
        return {m_DefaultSize, limit - index};
    Nodes const& nodes = m_Sizes->GetNodes();
    if (!m_HasPlace)
        m_Place = nodes.LowerBound(index);
    m_HasPlace = true;
    while (m_Place != nodes.end() && m_Place->key < index)
        ++m_Place;
    if (m_Place == nodes.end() || m_Place->key >= limit)
        return {m_DefaultSize, limit - index};
    if (m_Place->key == index)
        return {m_Place->value, 1};
    return {m_DefaultSize, m_Place->key - index};
}

CItemRuns::SRun CItemRuns::Backward(int index)
{
    if (!m_IsKnown)
        return {m_Model.GetItemSize(index), 1};
    if (!m_Sizes)
        return {m_DefaultSize, AddSaturated(index, 1)};
    Nodes const& nodes = m_Sizes->GetNodes();
    if (!m_HasPlace)
        m_Place = nodes.LowerBound(std::int64_t{index} + 1);
    m_HasPlace = true;
    while (m_Place != nodes.begin())
    {
        auto before = m_Place;
        --before;
        if (before->key == index)
            return {before->value, 1};
        if (before->key < index)
            return {m_DefaultSize, index - before->key};
        m_Place = before;
    }
    return {m_DefaultSize, AddSaturated(index, 1)};
}

int CItemRuns::Skip(int limit, std::int64_t& room) const
{
    if (m_Positions && room > 0)
    {
        int const index = std::min(m_Positions->FindItemAt(room), limit - 1);
        room -= m_Positions->GetItemPosition(index);
        return index;
    }
    if (!m_Sizes || m_DefaultSize < 0)  // below 0, more items may need less room
        return 0;
    int index = 0;
    std::int64_t skipped = 0;
    CItemSizeMap::Nodes::SSum sum;
    m_Sizes->GetNodes().SkipBlocks(
        [&](int lastKey, auto const& with) {
            std::int64_t const size = (std::int64_t{lastKey} + 1 - with.count) * m_DefaultSize + with.weight;
            if (lastKey >= limit - 1 || size > room)
                return false;
            index = lastKey + 1;
            skipped = size;
            return true;
        },
        sum);
    room -= skipped;
    return index;
}

}  // namespace vexel::detail
