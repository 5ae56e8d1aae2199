#include "vexel/headers/simple_header_model.h"

#include <algorithm>
#include <numeric>

namespace vexel
{

void CSimpleHeaderModel::InitStartOrder(int count)
{
    m_Order.clear();
    SetCount(count);
}

void CSimpleHeaderModel::SetCount(int count)
{
    std::size_t const old = m_Order.size();
    m_Order.resize(static_cast<std::size_t>(std::max(count, 0)));
    if (m_Order.size() > old)
        std::iota(m_Order.begin() + static_cast<std::ptrdiff_t>(old), m_Order.end(), static_cast<int>(old));
}

void CSimpleHeaderModel::InsertSection(int position, int modelIndex)
{
    m_Order.insert(m_Order.begin() + position, modelIndex);
}

void CSimpleHeaderModel::RemoveSection(int position)
{
    m_Order.erase(m_Order.begin() + position);
}

void CSimpleHeaderModel::SetModelIndex(int position, int modelIndex)
{
    if (IndexIsValid(position))
        m_Order[static_cast<std::size_t>(position)] = modelIndex;
}

bool CSimpleHeaderModel::IndexIsValid(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < m_Order.size();
}

int CSimpleHeaderModel::VisibleIndex2ModelIndex(int index) const
{
    return IndexIsValid(index) ? m_Order[static_cast<std::size_t>(index)] : -1;
}

int CSimpleHeaderModel::ModelIndex2Index(int modelIndex) const
{
    auto const found = std::find(m_Order.begin(), m_Order.end(), modelIndex);
    return found == m_Order.end() ? -1 : static_cast<int>(found - m_Order.begin());
}

void CSimpleHeaderModel::OnMoveSection(CSimpleHeader*, int from, int to)
{
    if (!IndexIsValid(from) || !IndexIsValid(to))
        return;
    auto const source = m_Order.begin() + from;
    auto const target = m_Order.begin() + to;
    if (from < to)
        std::rotate(source, source + 1, target + 1);
    else
        std::rotate(target, source, source + 1);
    m_Translator = CMoveTranslator(from, to);
}

}  // namespace vexel
