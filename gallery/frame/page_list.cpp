#include "gallery/frame/page_list.h"

#include "vexel/core/dpi.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"

#include <algorithm>

namespace gallery
{

CPageList::CRows::CRows(CVisualElement* parent, std::vector<std::string> const& titles)
    : CRowViewer(parent, {0, 0}, alClient), m_Titles(titles)
{
    AttributeChanged();  // with the own height
    GetRowViewModel()->SetCount(static_cast<int>(titles.size()));
}

int CPageList::CRows::CalculateDefaultRowHeight() const
{
    int height = 28;
    ApplyDPIScale(height);
    return height;
}

void CPageList::CRows::SetHot(int row)
{
    if (row == m_Hot)
        return;
    GetRowViewModel()->AddDirtyItems(m_Hot, m_Hot);
    GetRowViewModel()->AddDirtyItems(row, row);
    m_Hot = row;
    Update(utElement);
}

void CPageList::CRows::SetPos(rectangle<int> const& rect, bool force)
{
    bool const isFirst = GetRowViewModel()->GetViewSize() < 1;
    CAliveGuard const alive(this);
    CRowViewer::SetPos(rect, force);
    if (alive && isFirst && GetRowViewModel()->GetViewSize() >= 1)
        GetRowHandler().MakeCurrentVisible(false);
}

void CPageList::CRows::DrawRow(IPainter* painter, int row, int, int state, rectangle<double> const& rect,
                               IDirtyItemSet::DirtyType dirty)
{
    if (dirty == IDirtyItemSet::dirtyOther)
        return;
    bool const current = (state & isCurrent) != 0;
    ISysPalette* const palette = GetSysPalette();
    _color ground = GetBkColor();
    if (current || row == m_Hot)
        ground = palette->GetColor(current ? ISysPalette::scHighlight : ISysPalette::scFace);
    painter->SetBrush({ground, brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    painter->SetTextColor(current ? palette->GetColor(ISysPalette::scHighlightText) : GetFgColor());
    double const indent = ToInt(12 * painter->GetDPIScale());
    painter->DrawString({rect.left + indent, rect.top, rect.right, rect.bottom},
                        m_Titles[static_cast<std::size_t>(row)],
                        IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText, -1);
}

CPageList::CPageList(CVisualElement* parent, size<int> const& extent, Alignment alignment,
                     std::vector<std::string> titles)
    : CScrollBox(parent, extent, alignment), m_Titles(std::move(titles)), m_Rows(this, m_Titles)
{
    m_Rows.SetDynamic(false);
    m_Rows.SetSelectionType(CEventHandlerBase::stOneItem);
    m_Rows.AddEventHandler(this);
    ConnectElement(&m_Rows, ctVertical, true);
    m_Rows.GetRowSelectionModel()->SetCurrent(0);
    m_Rows.GetRowSelectionModel()->m_SigCurrentChanged.connect(this, &CPageList::CurrentChanged);
}

void CPageList::SetCurrent(int index)
{
    CDiscreteItemEventHandler& handler = m_Rows.GetRowHandler();
    CAliveGuard const alive(this);
    handler.SetCurrentItem(std::clamp(index, 0, std::max(0, static_cast<int>(m_Titles.size()) - 1)));
    if (alive && m_Rows.GetRowViewModel()->GetViewSize() >= 1)
        handler.MakeCurrentVisible(false);
}

void CPageList::CurrentChanged(int, int now)
{
    m_SigChosen(this, now);
}

bool CPageList::ProcessMouseMove(int, int y, int, MouseButton, bool*)
{
    m_Rows.SetHot(m_Rows.GetRowHandler().GetItemIndex(0, y));
    return false;
}

void CPageList::ProcessMouseLeave(bool*)
{
    m_Rows.SetHot(-1);
}

}  // namespace gallery
