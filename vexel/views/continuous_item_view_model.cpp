#include "vexel/views/continuous_item_view_model.h"

#include "vexel/headers/index_translator.h"
#include "vexel/platform/convert.h"
#include "vexel/views/detail/default_size.h"
#include "vexel/views/detail/item_runs.h"
#include "vexel/views/item_walks.h"

#include <algorithm>

namespace vexel
{

namespace
{

// The items that have come into view. All hit tests are made where the model stands now.
void AddUncovered(IContinuousItemViewModel& model, int oldOffset)
{
    int const view = model.GetViewSize();
    int const delta = SubtractSaturated(oldOffset, model.GetOffset());
    int const pastEdge = SaturateToInt(std::int64_t{delta} + view - 1);
    int const a = delta <= 0 ? Utils::HitTest(&model, pastEdge) : Utils::HitTest(&model, 0);
    int b = delta <= 0 ? Utils::HitTest(&model, SubtractSaturated(view, 1)) : Utils::HitTest(&model, delta);
    if (delta <= 0 && b < 0)
        b = a;
    if (a >= 0 && b >= 0)
        model.AddDirtyItems(b, a);
}

// SetOffset; `stored` is the model's field.
void ChangeOffset(IContinuousItemViewModel& model, int& stored, int offset)
{
    if (offset == stored)
        return;
    int const old = std::exchange(stored, offset);
    int const view = model.GetViewSize();
    int const full = model.GetFullItemsSize();
    if (view >= 0 && std::int64_t{offset} + view > full)
        stored = SubtractSaturated(full, view);
    stored = std::max(stored, 0);
    if (stored == old)
        return;
    AddUncovered(model, old);
    bool handled = true;
    CModelGuard const alive(&model);
    model.m_SigSizeChanged(0, SubtractSaturated(old, stored), &handled);
    if (!alive)
        return;
    if (!handled)
        model.AddDirtyItems(0, model.GetCount());
    model.m_SigChanged();
}

// SetViewSize, once the new size is stored. `old` is not below 0.
void ViewSizeChanged(IContinuousItemViewModel& model, int old, int size, bool invalidateAll)
{
    if (size > old)
    {
        CModelGuard const alive(&model);
        int const full = model.GetFullItemsSize();
        if (std::int64_t{full} - model.GetOffset() < size)
            model.SetOffset(std::max(SubtractSaturated(full, size), 0));
        if (!alive)
            return;
        if (int const edge = Utils::HitTest(&model, old); edge >= 0)
            model.AddDirtyItems(edge, model.GetCount());
    }
    int const count = model.GetCount();
    if (size != old)
        model.AddDirtyItems(count, count);  // the empty area behind the items
    if (invalidateAll)
        model.AddDirtyItems(0, count);
    if (size != old)
        model.m_SigChanged();
}

// The part of SetItemSize that comes before the store: the viewer moves pixels while the old sizes still hold. False if
// a slot deleted the model.
bool AnnounceItemSize(IContinuousItemViewModel& model, int index, int old, int size)
{
    int const edge = Utils::HitTest(&model, model.GetViewSize());
    int const limit = std::min(AddSaturated(index, 1), model.GetCount());
    int const position = SaturateToInt(detail::CItemRuns(model).Sum(0, limit) - model.GetOffset());
    bool handled = false;
    CModelGuard const alive(&model);
    model.m_SigSizeChanged(position, SubtractSaturated(size, old), &handled);
    if (!alive)
        return false;
    int const count = model.GetCount();
    if (!handled)
    {
        model.AddDirtyItems(index, count);
        return true;
    }
    model.AddDirtyItems(index, AddSaturated(index, 1));
    if (edge >= 0)
        model.AddDirtyItems(edge, count);
    return true;
}

}  // namespace

void CSimpleContinuousItemViewModel::SetItemSize(int index, int size)
{
    int const old = GetItemSize(index);
    if (size == old)
        return;
    if (!AnnounceItemSize(*this, index, old, size))
        return;
    CModelGuard const alive(this);
    SaveItemWidth(index, size);  // in a place of the application's, which may do anything
    if (!alive)
        return;
    UpdateFullWidth(SubtractSaturated(size, old));
    m_SigChanged();
}

void CSimpleContinuousItemViewModel::SetViewSize(int size, bool invalidateAll)
{
    int const old = std::max(GetViewSize(), 0);
    SaveViewWidth(size);
    ViewSizeChanged(*this, old, size, invalidateAll);
}

void CSimpleContinuousItemViewModel::SetOffset(int offset)
{
    ChangeOffset(*this, m_Offset, offset);
}

CDefaultColumnViewModel::CDefaultColumnViewModel() : m_DefaultItemSize(detail::GetInitialItemSize()) {}

void CDefaultColumnViewModel::UpdateModelState(IIndexTranslator* translator)
{
    if (!translator || !translator->TranslationIsPresented())
        return;
    if (!m_ItemSizes.IsEmpty())
    {
        m_ItemSizes.Translate(*translator);
        m_FullSize = 0;
    }
    CModelGuard const alive(this);
    m_SigAllStale();
    if (alive)
        m_SigChanged();
}

void CDefaultColumnViewModel::SetCount(int count)
{
    m_Count = count;
    AllChanged();
}

void CDefaultColumnViewModel::SetDefaultItemSize(int size)
{
    if (size == m_DefaultItemSize)
        return;
    m_DefaultItemSize = size;
    AllChanged();
}

void CDefaultColumnViewModel::AllChanged()
{
    m_FullSize = 0;
    AddDirtyItems(0, std::numeric_limits<int>::max());
    if (m_Offset >= GetFullItemsSize())
        m_Offset = 0;
    m_SigChanged();
}

void CDefaultColumnViewModel::SetItemSize(int index, int size)
{
    if (index < 0)
        return;
    int const old = GetItemSize(index);
    int const now = size < 1 ? m_DefaultItemSize : size;
    if (now == old)
        return;
    if (!AnnounceItemSize(*this, index, old, now))
        return;
    if (now == m_DefaultItemSize)
        m_ItemSizes.Remove(index);
    else
        m_ItemSizes.Set(index, size);
    if (m_FullSize > 0 && index < m_Count)
        m_FullSize += std::int64_t{now} - old;
    m_SigChanged();
}

void CDefaultColumnViewModel::SetViewSize(int size, bool invalidateAll)
{
    int const old = std::max(m_ViewSize, 0);
    m_ViewSize = size;
    ViewSizeChanged(*this, old, size, invalidateAll);
}

void CDefaultColumnViewModel::SetOffset(int offset)
{
    ChangeOffset(*this, m_Offset, offset);
}

int CDefaultColumnViewModel::GetFullItemsSize() const
{
    if (m_FullSize <= 0)
    {
        CItemSizeMap::SSum const exceptions = m_ItemSizes.Sum(0, m_Count);
        m_FullSize = exceptions.size;
        if (m_Count > m_ItemSizes.GetCount())
            m_FullSize += (std::int64_t{m_Count} - exceptions.count) * m_DefaultItemSize;
    }
    return SaturateToInt(m_FullSize);
}

void COneItemViewModel::Changed(bool changed)
{
    if (changed == m_Changed)
        return;
    m_Changed = changed;
    m_SigChanged();
}

void COneItemViewModel::SetViewSize(int size, bool)
{
    if (size == m_ViewSize)
        return;
    bool const grew = m_ViewSize < size;
    m_ViewSize = size;
    CModelGuard const alive(this);
    Changed(grew);
    if (alive)
        SetOffset(m_Offset);
}

void COneItemViewModel::SetOffset(int offset)
{
    int const now = std::max(std::min(offset, SubtractSaturated(m_Size, m_ViewSize)), 0);
    if (now == m_Offset)
        return;
    bool handled = true;
    CModelGuard const alive(this);
    m_SigSizeChanged(now, SubtractSaturated(m_Offset, now), &handled);
    if (!alive)
        return;
    m_Offset = now;
    Changed(true);
}

}  // namespace vexel
