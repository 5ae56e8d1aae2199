#include "vexel/headers/header_tree.h"

#include "vexel/core/alive_guard.h"
#include "vexel/platform/convert.h"

#include <algorithm>

namespace vexel
{

namespace
{

constexpr int s_GripWidth = 8;  // pixels at any scale, from a section's right edge on to the left

}  // namespace

// The tree ------------------------------------------------------------------------------------------------------------------

unsigned long IHeaderItem::s_DestroyCount = 0;
unsigned long IHeaderItem::s_LastSerialNumber = 0;

IHeaderContainer::~IHeaderContainer() = default;

IHeaderModel::~IHeaderModel()
{
    CAliveLink::Forget(this);
    m_SigDestroy(this);
}

IHeaderItem::IHeaderItem() : m_SerialNumber(++s_LastSerialNumber) {}

IHeaderItem::~IHeaderItem()
{
    CAliveLink::Forget(this);
    ++s_DestroyCount;
}

bool IsVisualLeaf(IHeaderItem const& item)
{
    return item.GetExpandState() == IHeaderItem::esCollapsed || item.GetChildCount() <= 0;
}

// Walks ---------------------------------------------------------------------------------------------------------------------

IHeaderVisitor::~IHeaderVisitor() = default;
IHeaderItemDrawing::~IHeaderItemDrawing() = default;
IHeaderItemVisualisation::~IHeaderItemVisualisation() = default;

void WalkHeaderModel(IHeaderModel* model, IHeaderVisitor* visitor, int firstItem)
{
    if (!model || firstItem < 0)
        return;
    int const count = model->GetChildCount();
    for (int i = firstItem; i < count && !visitor->IsFinished(); ++i)
        WalkHeaderItem(model->GetChild(i), visitor, 0);
}

void WalkHeaderItem(IHeaderItem* item, IHeaderVisitor* visitor, int level)
{
    if (!item || !visitor->Visit(item, level))
        return;
    int const count = item->GetChildCount();
    for (int i = 0; i < count && !visitor->IsFinished(); ++i)
        WalkHeaderItem(item->GetChild(i), visitor, level + 1);
}

bool FindVisitor::Visit(IHeaderItem* item, int)
{
    if (!m_Found && CheckItem(item))
        m_Found = item;
    return !m_Found;
}

bool FindByModelIndex::CheckItem(IHeaderItem* item) const
{
    return item->GetModelIndex() == m_Index;
}

int CLevelCounter::GetLevelCount() const
{
    return std::max(m_MaxLevel, m_CurLevel) + 1;
}

bool CLevelCounter::Visit(IHeaderItem*, int level)
{
    if (level == 0)
    {
        m_MaxLevel = std::max(m_MaxLevel, m_CurLevel);
        m_CurLevel = 0;
    }
    else
    {
        m_CurLevel = std::max(m_CurLevel, level);
    }
    return true;
}

bool CWidthCalc::Visit(IHeaderItem* item, int)
{
    if (!IsVisualLeaf(*item))
        return true;
    m_Width = AddSaturated(m_Width, std::max(item->GetWidth(), 0));
    return false;
}

// Geometry ------------------------------------------------------------------------------------------------------------------

CPositionProcessor::CPositionProcessor(rectangle<double> const& rect, int levels, bool stretchLast)
    : m_StretchLast(stretchLast), m_Bounds(rect)
{
    if (levels < 1)
        return;
    m_Levels.assign(static_cast<std::size_t>(levels), {});
    m_Levels.front() = rect;
    m_LevelHeight = rect.Height() / levels;
}

int CPositionProcessor::GetItemWidth(IHeaderItem* item)
{
    CWidthCalc widths;
    WalkHeaderItem(item, &widths, 0);
    return widths.GetWidth();
}

bool CPositionProcessor::OverlapsBounds(rectangle<double> const& rect) const
{
    return rect.right >= m_Bounds.left && rect.left <= m_Bounds.right;
}

bool CPositionProcessor::Visit(IHeaderItem* item, int level)
{
    auto const place = static_cast<std::size_t>(level);
    if (level < 0 || place >= m_Levels.size())
        return false;
    int const width = GetItemWidth(item);
    rectangle<double> rect = m_Levels[place];
    IHeaderContainer* const parent = item->GetParent();
    int const siblings = parent ? parent->GetChildCount() : 0;
    bool const last = siblings > 0 && parent->GetChild(siblings - 1) == item;
    if (!(m_StretchLast && last))
        rect.right = rect.left + width - 1;
    m_Levels[place].left = rect.right + 1;
    bool const leaf = IsVisualLeaf(*item);
    if (!leaf)
    {
        double const bottom = rect.bottom;
        rect.bottom = rect.top + m_LevelHeight - 1;
        if (place + 1 < m_Levels.size())
            m_Levels[place + 1] = {rect.left, rect.bottom + 1, rect.right, bottom};
    }
    return ProcessSection(item, rect) && !leaf;
}

bool CDrawer::ProcessSection(IHeaderItem* item, rectangle<double> const& rect)
{
    if (!OverlapsBounds(rect))
        return false;
    m_Drawing->DrawSection(m_Painter, item, rect);
    return true;
}

bool CHitTester::ProcessSection(IHeaderItem* item, rectangle<double> const& rect)
{
    if (!OverlapsBounds(rect))
    {
        m_Result->m_Area = HeaderHitTestResult::haNothing;
        m_Result->m_Item = nullptr;
        return false;
    }
    if (m_X < rect.left || m_X > rect.right || m_Y < rect.top || m_Y > rect.bottom)
        return true;
    m_Result->m_Item = item;
    m_Result->m_Rect = {ToInt(rect.left), ToInt(rect.top), ToInt(rect.right), ToInt(rect.bottom)};
    rectangle<double> const button = m_Visualisation->GetExpandBtnRect(rect, item);
    if (button.Contains(m_X + s_GripShift, m_Y) && m_Visualisation->GetItemState(item) != 0)
        m_Result->m_Area = HeaderHitTestResult::haExpandButton;
    else if (rect.right - s_GripWidth <= m_X)
        m_Result->m_Area = HeaderHitTestResult::haGrip;
    else
        m_Result->m_Area = HeaderHitTestResult::haSection;
    m_Found = true;
    return true;
}

bool CRectCalculator::ProcessSection(IHeaderItem* item, rectangle<double> const& rect)
{
    if (item == m_Item)
    {
        m_Rect = rect;
        m_Found = true;
    }
    return !m_Found;
}

}  // namespace vexel
