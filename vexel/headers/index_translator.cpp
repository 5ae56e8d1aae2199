#include "vexel/headers/index_translator.h"

#include "vexel/platform/convert.h"

#include <algorithm>
#include <cstdint>

namespace vexel
{

IIndexTranslator::~IIndexTranslator() = default;

int CAddRemoveTranslator::TranslateIndex(int index, bool* removed) const
{
    if (removed)
        *removed = false;
    if (index <= m_Index)
        return index;
    if (m_Delta > 0)
        return vexelbase::AddSaturated(index, m_Delta);
    if (index > std::int64_t{m_Index} - m_Delta)
        return index + m_Delta;
    if (removed)
        *removed = true;
    return m_Index;
}

int CMoveTranslator::TranslateIndex(int index, bool* removed) const
{
    if (removed)
        *removed = false;
    if (index < std::min(m_From, m_To) || index > std::max(m_From, m_To))
        return index;
    if (index == m_From)
        return m_To;
    return m_To > m_From ? index - 1 : index + 1;
}

}  // namespace vexel
