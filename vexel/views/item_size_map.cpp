#include "vexel/views/item_size_map.h"

#include "vexel/headers/index_translator.h"

#include <utility>

namespace vexel
{

int CItemSizeMap::Get(int index, int otherwise) const
{
    auto const found = m_Nodes.Find(index);
    return found == m_Nodes.end() ? otherwise : found->value;
}

void CItemSizeMap::Remove(int index)
{
    auto const found = m_Nodes.Find(index);
    if (found != m_Nodes.end())
        m_Nodes.Erase(found);
}

void CItemSizeMap::Translate(IIndexTranslator const& translator)
{
    Nodes const old = m_Nodes;
    m_Nodes.Clear();
    for (auto const& [index, size] : old)
    {
        bool removed = false;
        int const now = translator.TranslateIndex(index, &removed);
        if (!removed && now >= 0)
            m_Nodes.Assign(now, size);
    }
}

CItemSizeMap::SSum CItemSizeMap::Sum(int from, int to) const
{
    if (from >= to)
        return {};
    auto const high = m_Nodes.SumBelow(to);
    auto const low = from > 0 ? m_Nodes.SumBelow(from) : Nodes::SSum{};  // there are none below 0
    return {high.count - low.count, high.weight - low.weight};
}

}  // namespace vexel
