// Model, columns and geometry.

#include "vexel/headers/header.h"

#include "vexel/headers/detail/header_drawing.h"
#include "vexel/headers/detail/header_index.h"
#include "vexel/platform/convert.h"
#include "vexel/scroll/scroll_converter.h"

#include <algorithm>
#include <limits>

namespace vexel
{

namespace
{

constexpr int s_LineSpace = 4;  // pixels at any scale: what a level is higher than its text

}  // namespace

// The list of columns -------------------------------------------------------------------------------------------------------

bool CHeader::CViewModelItems::Visit(IHeaderItem* item, int)
{
    if (!IsVisualLeaf(*item))
        return true;
    m_Items.push_back(item);
    m_FullWidth = AddSaturated(m_FullWidth, std::max(item->GetWidth(), 0));
    return false;
}

int CHeader::CViewModelItems::GetItemIndex(IHeaderItem* item) const
{
    auto const found = std::find(m_Items.begin(), m_Items.end(), item);
    return found == m_Items.end() ? -1 : static_cast<int>(found - m_Items.begin());
}

int CHeader::CViewModelItems::GetItemIndex(int modelIndex) const
{
    auto const found = std::find_if(m_Items.begin(), m_Items.end(),
                                    [&](IHeaderItem const* item) { return item->GetModelIndex() == modelIndex; });
    return found == m_Items.end() ? -1 : static_cast<int>(found - m_Items.begin());
}

// Life ----------------------------------------------------------------------------------------------------------------------

CHeader::CHeader(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CScrollableElementEx(parent, extent, alignment), CNativeDrawingFlavor(false),
      m_Index(std::make_unique<detail::CHeaderIndex>())
{
    m_StretchLastItem = true;
    CHeader::SetAlignment(alignment);
    m_SigChanged.connect(this, &CHeader::ColumnsChanged);
}

CHeader::~CHeader() = default;

// Model ---------------------------------------------------------------------------------------------------------------------

void CHeader::SetModel(IHeaderModel* model)
{
    if (m_Model)
    {
        m_Model->m_SigChanged.disconnect(this, &CHeader::UpdateAfterChange);
        m_Model->m_SigDestroy.disconnect(this, &CHeader::ModelDies);
    }
    m_Model = model;
    if (m_Model)
    {
        m_Model->m_SigChanged.connect(this, &CHeader::UpdateAfterChange);
        m_Model->m_SigDestroy.connect(this, &CHeader::ModelDies);
    }
    CAliveGuard const alive(this);
    BuildViewModelItems();
    m_Processing.Clear();
    m_Drag.m_Item = nullptr;
    m_SyncedVersion = GetIndex().GetVersion();
    RecreateElements();
    if (alive)
        TreeChanged();
}

void CHeader::ModelDies(IHeaderModel*)
{
    m_Model = nullptr;
    UpdateAfterChange();
}

void CHeader::BuildViewModelItems()
{
    m_IsStale = true;
}

void CHeader::UpdateAfterChange()
{
    CAliveGuard const alive(this);
    BuildViewModelItems();
    Sync();
    if (alive)
        TreeChanged();
}

// What is known of the tree, read anew where it may have changed.
detail::CHeaderIndex const& CHeader::GetIndex() const
{
    if (m_IsStale || m_KnownDestroyCount != IHeaderItem::GetDestroyCount())
    {
        m_IsStale = false;
        m_KnownDestroyCount = IHeaderItem::GetDestroyCount();
        m_Index->Build(m_Model);
    }
    return *m_Index;
}

// Items that are gone are asked for nothing any more.
void CHeader::Sync()
{
    detail::CHeaderIndex const& index = GetIndex();
    if (m_SyncedVersion == index.GetVersion())
        return;
    m_SyncedVersion = index.GetVersion();
    std::vector<IHeaderItem const*> kept{m_Processing.m_Item, m_Drag.m_Item};
    for (auto const& [number, anchor] : m_Elements)
        kept.push_back(anchor.m_Item);
    std::sort(kept.begin(), kept.end());
    std::vector<IHeaderItem const*> there;
    for (IHeaderItem const* item : index.GetItems())
        if (item && std::binary_search(kept.begin(), kept.end(), item))
            there.push_back(item);
    std::sort(there.begin(), there.end());
    auto const isThere = [&](CHeaderItemRef const& item) {
        return std::binary_search(there.begin(), there.end(), static_cast<IHeaderItem const*>(item)) && item.Is(item);
    };

    if (!isThere(m_Drag.m_Item))
        m_Drag.m_Item = nullptr;
    if (m_Processing.m_Item && !isThere(m_Processing.m_Item))
    {
        int const state = m_Processing.m_State;
        m_Processing.Clear();
        if (state == Processing::stDragging)  // which the control ends
            m_Processing.m_State = state;
    }
    else if (m_Processing.m_ItemIndex >= 0)
    {
        m_Processing.m_ItemIndex = GetVisibleIndex(m_Processing.m_Item);
    }
    for (auto& [number, anchor] : m_Elements)
        if (!isThere(anchor.m_Item))
            anchor.m_Item = nullptr;
    FindItems(false);
}

// Whoever shows the columns starts anew.
void CHeader::TreeChanged()
{
    CAliveGuard const alive(this);
    int const view = GetViewSize();
    if (view >= 0 && std::int64_t{GetOffset()} + view > GetFullItemsSize())
        SetOffset(std::max(SubtractSaturated(GetFullItemsSize(), view), 0));
    if (!alive)
        return;
    AddDirtyItems(0, std::numeric_limits<int>::max());
    m_SigChanged();
}

// Something about the columns: their places, too.
void CHeader::ColumnsChanged()
{
    CAliveGuard const alive(this);
    UpdateElementsPos();
    if (alive)
        OnChange(this, utElement);
}

// View model ----------------------------------------------------------------------------------------------------------------

void CHeader::SetOffset(int offset)
{
    CSimpleContinuousItemViewModel::SetOffset(offset);
}

int CHeader::GetCount() const
{
    return GetIndex().GetTotal().leaves;
}

int CHeader::GetFullItemsSize() const
{
    if (m_SingleWidth > 0 && GetCount() == 1)
        return m_SingleWidth;
    return SaturateToInt(GetIndex().GetTotal().width);
}

int CHeader::GetItemSize(int index) const
{
    detail::CHeaderIndex const& tree = GetIndex();
    int const node = tree.FindLeaf(index);
    if (node < 0)
        return -1;
    if (m_SingleWidth > 0 && GetCount() == 1)
        return m_SingleWidth;
    return SaturateToInt(tree.GetSize(node).width);
}

void CHeader::SetItemSize(int index, int size)
{
    if (index >= 0 && index < GetCount())
        CSimpleContinuousItemViewModel::SetItemSize(index, size);
}

int CHeader::GetViewSize() const
{
    return m_ViewWidth >= 0 ? m_ViewWidth : GetBounds().right;
}

void CHeader::SaveItemWidth(int index, int size)
{
    int const node = GetIndex().FindLeaf(index);
    if (node < 0)
        return;
    unsigned long const version = m_Index->GetVersion();
    CAliveGuard const alive(this);
    m_Index->GetItem(node)->SetWidth(size);
    // Unless the item has told of a change, whereupon all was read anew.
    if (alive && !m_IsStale && GetIndex().GetVersion() == version)
        m_Index->UpdateWidth(node);
}

std::int64_t CHeader::GetItemPosition(int index) const
{
    detail::CHeaderIndex const& tree = GetIndex();
    if (index <= 0)
        return 0;
    if (index >= tree.GetTotal().leaves)
        return m_SingleWidth > 0 && tree.GetTotal().leaves == 1 ? m_SingleWidth : tree.GetTotal().width;
    return tree.GetBefore(tree.FindLeaf(index)).width;
}

int CHeader::FindItemAt(std::int64_t position) const
{
    detail::CHeaderIndex const& tree = GetIndex();
    if (m_SingleWidth > 0 && tree.GetTotal().leaves == 1)
        return position < m_SingleWidth ? 0 : 1;
    int const node = tree.FindLeafAt(position);
    return node < 0 ? tree.GetTotal().leaves : tree.GetBefore(node).leaves;
}

// Columns -------------------------------------------------------------------------------------------------------------------

IHeaderItem* CHeader::GetHeaderItem(int index) const
{
    int const node = GetIndex().FindLeaf(index);
    return node < 0 ? nullptr : m_Index->GetItem(node);
}

int CHeader::VisibleIndex2ModelIndex(int index) const
{
    IHeaderItem const* const item = GetHeaderItem(index);
    return item ? item->GetModelIndex() : -1;
}

int CHeader::GetVisibleIndex(IHeaderItem* item) const
{
    detail::CHeaderIndex const& tree = GetIndex();
    int const node = item ? tree.Find(item) : -1;
    return node >= 0 && tree.IsVisualLeaf(node) && tree.IsShown(node) ? tree.GetBefore(node).leaves : -1;
}

int CHeader::GetVisibleIndex(int modelIndex) const
{
    int const count = GetCount();
    for (int i = 0; i < count; ++i)
        if (VisibleIndex2ModelIndex(i) == modelIndex)
            return i;
    return -1;
}

void CHeader::SetSingleWidth(int width)
{
    if (width == m_SingleWidth)
        return;
    m_SingleWidth = width;
    TreeChanged();
}

void CHeader::SetSingleColumnFit(bool fit)
{
    if (fit == m_SingleColumnFit)
        return;
    m_SingleColumnFit = fit;
    ColumnsChanged();
}

// Style ---------------------------------------------------------------------------------------------------------------------

void CHeader::SetStyle(unsigned style)
{
    if (style == m_Style)
        return;
    m_Style = style;
    OnChange(this, utElement);
}

void CHeader::SetItemVisualisation(IHeaderItemVisualisation* visualisation)
{
    IHeaderItemVisualisation* const now = visualisation ? visualisation : this;
    if (now == m_Visualisation)
        return;
    m_Visualisation = now;
    ColumnsChanged();
}

void CHeader::RecalculateHeight()
{
    int const levels = m_Model ? GetIndex().GetLevelCount() : 0;
    SetSize({GetSize().width, levels * (GetTextLineHeight() + s_LineSpace)}, false);
}

// Sections ------------------------------------------------------------------------------------------------------------------

void CHeader::ExpandItem(IHeaderItem* item, bool expand)
{
    if (!item)
        return;
    CAliveGuard const alive(this);
    CAlivePtr<IHeaderItem> const itemAlive(item);
    int const node = GetIndex().Find(item);
    unsigned long const version = m_Index->GetVersion();
    item->Expand(expand);
    if (!alive)
        return;
    bool const sameTree = itemAlive && node >= 0 && !m_IsStale && GetIndex().GetVersion() == version &&
                          item->GetChildCount() == m_Index->GetChildCount(node);
    if (sameTree)
        m_Index->UpdateState(node);
    else
        BuildViewModelItems();
    Sync();
    if (m_Processing.m_ItemIndex >= 0)
        m_Processing.m_ItemIndex = GetVisibleIndex(m_Processing.m_Item);
    if (alive)
        TreeChanged();
    if (alive && itemAlive)
        m_SigExpanded(this, item, expand);
}

rectangle<double> CHeader::GetHeaderRect() const
{
    rectangle<double> rect = ToDouble(GetBounds());
    if (IScrollModel* const model = GetScrollModel())
        rect.left -= CScrollConverter(model).L2P(model->GetStart());
    return rect;
}

detail::CHeaderGeometry CHeader::GetGeometry() const
{
    return {GetIndex(), GetHeaderRect(), m_StretchLastItem};
}

rectangle<double> CHeader::GetItemRect(IHeaderItem const* item) const
{
    int const node = item ? GetIndex().Find(item) : -1;
    return node < 0 ? rectangle<double>() : GetGeometry().GetRect(node);
}

CHeader::HitTestResult CHeader::HitTest(int x, int y) const
{
    HitTestResult result;
    if (!GetBounds().Contains(x, y))
        return result;
    rectangle<double> const strip = GetHeaderRect();
    double const along = x >= CHitTester::s_GripShift ? x - CHitTester::s_GripShift : x;
    CHitTester tester(strip, 0, m_StretchLastItem, &result, along, y, m_Visualisation);
    GetGeometry().ForEachAt(along, [&](int node, rectangle<double> const& rect) {
        tester.ProcessSection(m_Index->GetItem(node), rect);
        return tester.IsFinished();
    });
    return result;
}

void CHeader::CutRectByBounds(rectangle<double>& rect) const
{
    if (!m_SingleColumnFit || GetCount() != 1)
        return;
    rectangle<int> const bounds = GetBounds();
    rect.left = std::max(rect.left, static_cast<double>(bounds.left));
    rect.right = std::min(rect.right, static_cast<double>(bounds.right));
}

}  // namespace vexel
