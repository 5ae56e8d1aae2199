#include "table_grid.h"

#include "row_sort.h"

#include "vexel/core/control.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/palette.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"
#include "vexel/views/item_walks.h"

#include <algorithm>
#include <limits>

namespace table
{

namespace
{

_color const g_Line{0xE4E4E4};
_color const g_Tint{0xFBF7F2};
constexpr int s_Inset = 5;  // between a cell's edge and its text; these are multiplied by the display scale
constexpr int s_MarkRoom = 20;
constexpr int s_NarrowestColumn = 80;
constexpr int s_WidestColumn = 360;

}  // namespace

void CColumns::SetColumns(std::vector<std::string> captions, int count)
{
    m_Captions = std::move(captions);
    while (GetItemCount() < count)
        m_Captions.push_back(std::to_string(GetItemCount() + 1));
    SetCount(GetItemCount());
    m_SigChanged();
}

void CColumns::SetSorted(int column, Direction direction)
{
    m_SortedColumn = column;
    m_Direction = direction;
    m_SigChanged();
}

CTableGrid::CTableGrid(CVisualElement* parent, size<int> const& extent, Alignment alignment, Text text)
    : CGridViewer(parent, extent, alignment), m_Text(std::move(text))
{
    SetBkColor(ISysPalette::scWindow);
    AttributeChanged();  // with the own margin
}

void CTableGrid::ShowAnew()
{
    m_Shown = {-1, -1};
    GetRowViewModel()->AddDirtyItems(0, std::numeric_limits<int>::max());
    Update(utElement);
}

int CTableGrid::MeasureColumn(int section, std::string const& caption, int firstRow, int lastRow) const
{
    ISysWindow* const window = GetControl() ? GetControl()->GetWindow() : nullptr;
    IPainter* const painter = window ? window->GetPainter() : nullptr;
    if (!painter)
        return GetColumnViewModel()->GetDefaultItemSize();
    double const scale = GetSystemScale();
    painter->BeginPaint(IPainter::ssMeasure);
    font const own = GetFont();
    double width = painter->GetTextSize(caption, &own).width + s_MarkRoom * scale;
    for (int row = firstRow; row <= lastRow; ++row)
        width = std::max(width, painter->GetTextSize(m_Text(row, section), &own).width);
    painter->EndPaint();
    return ToInt(std::clamp(width + 2 * s_Inset * scale + 2, s_NarrowestColumn * scale, s_WidestColumn * scale));
}

void CTableGrid::DrawCell(IPainter* painter, int row, int, int section, int, int state, rectangle<double> const& rect,
                          IDirtyItemSet::DirtyType dirty)
{
    if (dirty == IDirtyItemSet::dirtyOther)
        return;
    ISysPalette const& palette = *GetSysPalette();
    bool const selected = (state & isSelected) != 0;
    bool const focused = IsFocused();
    _color background = row % 2 == 1 ? g_Tint : palette.GetColor(ISysPalette::scWindow);
    if (selected)
        background = palette.GetColor(focused ? ISysPalette::scHighlight : ISysPalette::scHalfLight);
    painter->SetBrush({background, brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    painter->SetBrush({g_Line, brush::bsSolid});
    painter->FillRect(rect.left, rect.bottom, rect.right, rect.bottom);
    painter->FillRect(rect.right, rect.top, rect.right, rect.bottom);

    std::string const text = m_Text(row, section);
    double number = 0;
    int const side = ReadNumber(text, number) ? IPainter::AlignRight : IPainter::AlignLeft;
    double const inset = s_Inset * GetSystemScale();
    painter->SetTextColor(
        palette.GetColor(selected && focused ? ISysPalette::scHighlightText : ISysPalette::scWindowText));
    painter->DrawString({rect.left + inset, rect.top, rect.right - inset, rect.bottom - 1}, text,
                        side | IPainter::AlignVCenter | IPainter::AlignFitText, -1);

    if ((state & isCurrent) && focused)
        painter->FocusRect(rect.left, rect.top, rect.right - 1, rect.bottom - 1);
}

void CTableGrid::ProcessEndDraw()
{
    CGridViewer::ProcessEndDraw();
    IDiscreteItemViewModel const* const rows = GetRowViewModel();
    if (rows->GetCount() == 0 || rows->GetViewSize() < 1)
        return;
    range<int> const shown{rows->GetStartItem(), Utils::GetLastVisibleItem(rows)};
    if (shown == m_Shown)
        return;
    m_Shown = shown;
    m_SigShown(shown.first, shown.second);
}

}  // namespace table
