#include "vexel/views/discrete_item_view_model.h"

#include "vexel/headers/index_translator.h"
#include "vexel/platform/convert.h"
#include "vexel/views/detail/default_size.h"
#include "vexel/views/item_walks.h"
#include "vexel/views/selection_model.h"

#include <algorithm>
#include <utility>

namespace vexel
{

CSimpleDiscreteItemViewModel::CSimpleDiscreteItemViewModel() : m_DefaultItemSize(detail::GetInitialItemSize()) {}

void CSimpleDiscreteItemViewModel::UpdateModelState(IIndexTranslator* translator)
{
    if (!translator || !translator->TranslationIsPresented())
        return;
    int const old = m_StartItem;
    m_StartItem = std::clamp(translator->TranslateIndex(old, nullptr), 0, Utils::CalcMaxStart(this));
    CModelGuard const alive(this);
    m_SigAllStale();
    if (alive && m_StartItem != old)
        m_SigChanged();
}

void CSimpleDiscreteItemViewModel::SetCount(int count)
{
    CModelGuard const alive(this);
    m_Count = count;
    if (GetStartItem() >= count)
        SetStartItem(0);
    if (!alive)
        return;
    AddDirtyItems(0, std::numeric_limits<int>::max());
    m_SigChanged();
}

void CSimpleDiscreteItemViewModel::SetDefaultItemSize(int size)
{
    m_DefaultItemSize = size;
    AddDirtyItems(0, std::numeric_limits<int>::max());
    m_SigChanged();
}

void CSimpleDiscreteItemViewModel::SetViewSize(int size, bool invalidateAll)
{
    CModelGuard const alive(this);
    int const old = std::max(m_ViewSize, 0);
    m_ViewSize = size;
    if (size > old)
    {
        int const maxStart = Utils::CalcMaxStart(this);
        if (maxStart < GetStartItem())
            SetStartItem(maxStart);
        else if (int const edge = Utils::HitTestImpl(this, old, GetStartItem()); edge >= 0)
            AddDirtyItems(edge, m_Count);
        if (!alive)
            return;
    }
    if (size != old)
        AddDirtyItems(m_Count, m_Count);  // the empty area behind the items
    if (invalidateAll)
        AddDirtyItems(0, m_Count);
    if (size != old)
        m_SigChanged();
}

void CSimpleDiscreteItemViewModel::SetStartItem(int item)
{
    if (item == m_StartItem)
        return;
    int const oldStart = m_StartItem;
    int const oldLast = Utils::GetLastVisibleItem(this);
    m_StartItem = std::max(item, 0);
    if (m_ViewSize >= 1)
        m_StartItem = std::min(m_StartItem, Utils::CalcMaxStart(this));
    int const start = m_StartItem;

    // What comes into view. It is marked even if in the end nothing moves.
    if (start >= oldStart)
        AddDirtyItems(AddSaturated(oldLast, 1), SubtractSaturated(m_Count, 1));
    else
        AddDirtyItems(start, oldStart - 1);
    if (start == oldStart)
        return;

    bool handled = false;
    int delta = 1;
    if (start < oldLast && oldStart < Utils::GetLastVisibleItem(this))  // the views overlap
    {
        handled = true;
        int const distance = Utils::GetItemsSize(this, oldStart, start);
        delta = start > oldStart ? -distance : distance;
    }
    CModelGuard const alive(this);
    m_SigSizeChanged(0, delta, &handled);
    if (!alive)
        return;
    if (!handled)
        AddDirtyItems(0, m_Count);
    m_SigChanged();
}

void CItemAnchor::SetAnchorModel(ISelectionModel* model)
{
    if (m_AnchorModel)
        m_AnchorModel->m_SigDestroy.disconnect(this, &CItemAnchor::AnchorModelDies);
    m_AnchorModel = model;
    if (m_AnchorModel)
        m_AnchorModel->m_SigDestroy.connect(this, &CItemAnchor::AnchorModelDies);
}

int CItemAnchor::FindAnchor() const
{
    return m_AnchorItem < 0 && m_AnchorModel ? m_AnchorModel->GetCurrent() : m_AnchorItem;
}

void CEqualItemsViewModel::UpdateView()
{
    int const view = GetViewSize();
    int const count = GetCount();
    if (view < 1 || count < 1 || m_MinItemSize < 1)
        return;
    int const fit = view / m_MinItemSize;
    if (fit < 1)
        return;
    int const shown = std::min(fit, count);
    int const itemSize = std::min(view / shown, m_MaxItemSize);
    int start = std::min(count - shown, GetStartItem());
    int const anchor = FindAnchor();
    if (anchor >= 0)
    {
        if (anchor < start)
            start = anchor;
        if (anchor >= std::int64_t{start} + shown)
            start = anchor - shown + 1;
    }
    CModelGuard const alive(this);
    SetStartItem(start);
    if (alive)
        CSimpleDiscreteItemViewModel::SetDefaultItemSize(itemSize);
}

void CEqualItemsViewModel::SetCount(int count)
{
    if (count == GetCount())
        return;
    CModelGuard const alive(this);
    CSimpleDiscreteItemViewModel::SetCount(count);
    if (alive)
        UpdateView();
}

void CEqualItemsViewModel::SetViewSize(int size, bool invalidateAll)
{
    if (size == GetViewSize() && !invalidateAll)
        return;
    CModelGuard const alive(this);
    CSimpleDiscreteItemViewModel::SetViewSize(size, invalidateAll);
    if (alive)
        UpdateView();
    if (!alive)
        return;
    AddDirtyBottomEdge();
}

void CEqualItemsViewModel::SetStartItem(int item)
{
    int const old = GetStartItem();
    CModelGuard const alive(this);
    CSimpleDiscreteItemViewModel::SetStartItem(item);
    if (alive && GetStartItem() < old)
        AddDirtyBottomEdge();
}

// The row that the view's edge cuts, and its neighbour.
void CEqualItemsViewModel::AddDirtyBottomEdge()
{
    int const edge = AddSaturated(GetStartItem(), GetViewSize() / std::max(GetDefaultItemSize(), 1));
    AddDirtyItems(edge, AddSaturated(edge, 1));
}

void CDefaultDiscreteItemViewModel::UpdateModelState(IIndexTranslator* translator)
{
    if (!translator || !translator->TranslationIsPresented())
        return;
    // A slot may delete the translator or this model.
    CItemSizeMap sizes = m_ItemSizes;
    sizes.Translate(*translator);
    CModelGuard const alive(this);
    CSimpleDiscreteItemViewModel::UpdateModelState(translator);
    if (!alive)
        return;
    m_ItemSizes = std::move(sizes);
    m_SigChanged();
}

void CDefaultDiscreteItemViewModel::SetItemSize(int index, int size)
{
    if (index < 0)
        return;
    int const old = GetItemSize(index);
    int const now = size < 1 ? GetDefaultItemSize() : size;
    int const last = Utils::GetLastVisibleItem(this);
    int const maxStart = Utils::CalcMaxStart(this);
    CModelGuard const alive(this);
    if (maxStart < GetStartItem())
        SetStartItem(maxStart);
    if (!alive || now == old)
        return;

    // Pixels are moved while the old sizes still hold.
    int const start = GetStartItem();
    bool handled = false;
    if (start <= index && index < last - 2)
    {
        handled = true;
        m_SigSizeChanged(Utils::GetItemsSize(this, start, index + 1), SubtractSaturated(now, old), &handled);
        if (!alive)
            return;
    }
    if (handled)
    {
        AddDirtyItems(index, index + 2);
        AddDirtyItems(last, GetCount());
    }
    else if (start < index)
    {
        AddDirtyItems(index, GetCount());
    }
    else if (start == index)
    {
        m_SigAllStale();
        if (!alive)
            return;
    }

    if (now == GetDefaultItemSize())
        m_ItemSizes.Remove(index);
    else
        m_ItemSizes.Set(index, size);
    m_SigChanged();
}

void CNonEqualItemsViewModel::UpdateView()
{
    int const last = Utils::GetLastVisibleItem(this);
    int start = GetStartItem();
    int const anchor = FindAnchor();
    if (anchor >= 0)
    {
        if (anchor < start)
            start = anchor;
        if (anchor > last)
            start = Utils::GetStartItem(this, anchor);
    }
    SetStartItem(std::max(start, 0));
}

void CNonEqualItemsViewModel::SetCount(int count)
{
    if (count == GetCount())
        return;
    CModelGuard const alive(this);
    CDefaultDiscreteItemViewModel::SetCount(count);
    if (alive)
        UpdateView();
}

void CNonEqualItemsViewModel::SetViewSize(int size, bool invalidateAll)
{
    if (size == GetViewSize() && !invalidateAll)
        return;
    CModelGuard const alive(this);
    CDefaultDiscreteItemViewModel::SetViewSize(size, invalidateAll);
    if (alive)
        UpdateView();
    if (!alive)
        return;
    int const last = Utils::GetLastVisibleItem(this);
    AddDirtyItems(SubtractSaturated(last, 1), AddSaturated(last, 1));
}

void CNonEqualItemsViewModel::SetStartItem(int item)
{
    int const old = GetStartItem();
    CModelGuard const alive(this);
    CDefaultDiscreteItemViewModel::SetStartItem(item);
    if (!alive || GetStartItem() >= old)
        return;
    int const last = Utils::GetLastVisibleItem(this);
    AddDirtyItems(last, AddSaturated(last, 1));
}

}  // namespace vexel
