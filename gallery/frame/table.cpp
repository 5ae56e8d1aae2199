#include "gallery/frame/table.h"

#include "vexel/platform/painter.h"
#include "vexel/platform/palette.h"
#include "vexel/platform/system.h"

namespace gallery
{

namespace
{

_color const g_Line{0xE4E4E4};
_color const g_Tint{0xFBF7F2};
_color const g_Mark{0x66E0FF};

_color SystemColor(ISysPalette::SysColor number)
{
    ISysPalette const* const palette = GetSysPalette();
    return palette ? palette->GetColor(number) : _color();
}

_color Background(CCellLook::SCell const& cell)
{
    if (cell.state & isSelected)
        return SystemColor(cell.focused ? ISysPalette::scHighlight : ISysPalette::scHalfLight);
    return cell.row % 2 == 1 ? g_Tint : SystemColor(ISysPalette::scWindow);
}

}  // namespace

void CCellLook::Draw(IPainter* painter, rectangle<double> const& rect, SCell const& cell, std::string const& text,
                     std::string const& highlight) const
{
    bool const selected = (cell.state & isSelected) != 0;
    painter->SetBrush({Background(cell), brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    painter->SetBrush({g_Line, brush::bsSolid});
    painter->FillRect(rect.left, rect.bottom, rect.right, rect.bottom);
    painter->FillRect(rect.right, rect.top, rect.right, rect.bottom);

    double const margin = 4 * GetSystemScale();
    rectangle<double> const box{rect.left + margin, rect.top, rect.right - margin, rect.bottom - 1};
    if (!highlight.empty())
    {
        painter->SetBrush({g_Mark, brush::bsSolid});
        for (std::size_t at = text.find(highlight); at != std::string::npos; at = text.find(highlight, at + 1))
        {
            double const from = painter->GetTextSize(text, nullptr, static_cast<int>(at)).width;
            double const width = painter->GetTextSize(highlight, nullptr).width;
            if (!selected && box.left + from + width <= box.right)
                painter->FillRect(box.left + from, rect.top + 2, box.left + from + width - 1, rect.bottom - 3);
        }
    }
    painter->SetTextColor(
        SystemColor(selected && cell.focused ? ISysPalette::scHighlightText : ISysPalette::scWindowText));
    painter->DrawString(box, text, m_TextFlags, -1);

    if (!(cell.state & isCurrent) || !cell.focused)
        return;
    painter->FocusRect(rect.left, rect.top, rect.right - 1, rect.bottom - 1);
}

void CTextHeaderModel::Sort(int index)
{
    int const column = VisibleIndex2ModelIndex(index);
    m_Direction = column == m_SortedColumn && m_Direction == 1 ? 2 : 1;
    m_SortedColumn = column;
    m_SigChanged();
}

}  // namespace gallery
