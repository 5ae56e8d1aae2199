#include "vexel/views/selection_model.h"

#include "vexel/headers/index_translator.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/geometry.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace vexel
{

namespace
{

using Selection = CSelectionTmpl<int>;
using Nodes = Selection::Nodes;

// The one run or index that is selected; nothing if there are none or several.
std::optional<range<int>> FindOnlyRun(Nodes const& nodes)
{
    int runs = 0;
    for (auto node = nodes.begin(); node != nodes.end() && runs < 2; ++node)
        runs += node->value != Selection::selEnd;
    if (runs != 1)
        return {};
    auto node = nodes.LowerBound(0);
    if (node == nodes.end())
        return {};
    int const first = node->key;
    if (node->value == Selection::selBegin && ++node == nodes.end())
        return {};
    return range<int>{first, node->key};
}

// Selects each of these, whatever is selected already. A run goes in as one where nothing is near.
void AddRun(Selection& selection, int low, int high)
{
    Nodes const& nodes = selection.GetNodes();
    auto const near = nodes.LowerBound(std::int64_t{low} - 1);
    bool const isFree = near == nodes.end() || (near->key > std::int64_t{high} + 1 && near->value != Selection::selEnd);
    if (isFree)
        return selection.SetItemsSelection(low, high, true);
    for (std::int64_t i = low; i <= high; ++i)
        selection.SetItemsSelection(static_cast<int>(i), static_cast<int>(i), true);
}

// Collects indices that follow each other before it selects them.
class CRunCollector
{
public:
    explicit CRunCollector(Selection& target) : m_Target(target) {}
    void Add(int index)
    {
        if (!m_IsEmpty && index == std::int64_t{m_High} + 1)
        {
            m_High = index;
            return;
        }
        Flush();
        m_IsEmpty = false;
        m_Low = m_High = index;
    }
    void Flush()
    {
        if (!m_IsEmpty)
            AddRun(m_Target, m_Low, m_High);
        m_IsEmpty = true;
    }

private:
    Selection& m_Target;
    bool m_IsEmpty = true;
    int m_Low = 0;
    int m_High = 0;
};

}  // namespace

void CSelectionModelBase::SetCurrent(int index)
{
    int const old = m_Current;
    m_Current = index;
    if (index == old)
        return;
    AddDirtyItems(old, old);
    AddDirtyItems(index, index);
    CModelGuard const alive(this);
    m_SigChanged();
    if (alive)
        m_SigCurrentChanged(old, index);
}

void CSelectionModelBase::SelectItem(int index, bool select)
{
    if (index < 0 || IsItemSelected(index) == select)
        return;
    AddDirtyItems(index, index);
    SetItemSelectionImp(index, select);
    CModelGuard const alive(this);
    m_SigChanged();
    if (alive && select)
        m_SigSelectionChanged();
}

void CSelectionModelBase::SetSelectionRange(int a, int b)
{
    int const low = std::min(a, b);
    int const high = std::max(a, b);
    if (GetSelectedCount() > 1)
        AddDirtyItems(0, std::numeric_limits<int>::max());
    else
        AddDirtyItems(low, high);
    ClearSelectionImp();
    SetItemsSelectionImp(low, high, true);
    CModelGuard const alive(this);
    m_SigChanged();
    if (alive)
        m_SigSelectionChanged();
}

void CSelectionModelBase::ClearSelection()
{
    if (IsSelectionEmpty())
        return;
    AddDirtyItems(0, std::numeric_limits<int>::max());
    ClearSelectionImp();
    m_SigChanged();
}

void CDefaultSelectionModel::UpdateModelState(IIndexTranslator* translator)
{
    if (!translator || !translator->TranslationIsPresented())
        return;
    int const oldCurrent = m_Current;
    m_Current = translator->TranslateIndex(oldCurrent, nullptr);

    Nodes const old = m_Selection.GetNodes();
    m_Selection.Clear();
    bool moved = false;
    CRunCollector collector(m_Selection);
    for (auto node = old.begin(); node != old.end(); ++node)
    {
        int const first = node->key;
        if (node->value == Selection::selBegin)
            while (std::next(node) != old.end() && node->value != Selection::selEnd)
                ++node;
        for (std::int64_t i = first; i <= node->key; ++i)
        {
            int const index = static_cast<int>(i);
            int const now = translator->TranslateIndex(index, nullptr);
            moved = moved || now != index;
            if (now >= 0)
                collector.Add(now);
        }
    }
    collector.Flush();

    bool const currentMoved = m_Current != oldCurrent;
    int const newCurrent = m_Current;
    CModelGuard const alive(this);
    if (currentMoved || moved)
        m_SigAllStale();
    if (alive && (currentMoved || moved))
        m_SigChanged();
    if (alive && currentMoved)
        m_SigCurrentChanged(oldCurrent, newCurrent);
    if (alive && moved)
        m_SigSelectionChanged();
}

void CDefaultSelectionModel::SetSelectionRange(int a, int b)
{
    int const low = std::min(a, b);
    int const high = std::max(a, b);
    if (auto const run = FindOnlyRun(m_Selection.GetNodes()))
    {
        if (run->first != low)
            AddDirtyItems(low, high);
        if (run->second != high)
            AddDirtyItems(low, high);
    }
    else
        AddDirtyItems(0, std::numeric_limits<int>::max());
    AddDirtyItems(low, high);
    m_Selection.Clear();
    m_Selection.SetItemsSelection(low, high, true);
    CModelGuard const alive(this);
    m_SigChanged();
    if (alive)
        m_SigSelectionChanged();
}

bool CDefaultSelectionModel::GetNextSelectedItem(int& index) const
{
    Nodes const& nodes = m_Selection.GetNodes();
    auto node = nodes.LowerBound(index);
    if (node == nodes.end())
        return false;
    bool const atNode = node->key == index;
    if ((node->value == Selection::selBegin && atNode) || (node->value == Selection::selEnd && !atNode))
    {
        index = AddSaturated(index, 1);
        return true;
    }
    if (atNode && ++node == nodes.end())
        return false;
    index = node->key;
    return true;
}

}  // namespace vexel
