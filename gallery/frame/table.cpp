#include "gallery/frame/table.h"

#include "vexel/platform/painter.h"
#include "vexel/platform/palette.h"
#include "vexel/platform/system.h"

namespace gallery
{

namespace
{

_color const g_Yellow{0x66E0FF};

_color SystemColor(ISysPalette::SysColor number)
{
    ISysPalette const* const palette = GetSysPalette();
    return palette ? palette->GetColor(number) : _color();
}

/// The ground of the window with some sixteenths of another colour: what is pale on a light ground is dark on a dark one.
_color Tinted(_color const& tint, int sixteenths)
{
    _color const ground = SystemColor(ISysPalette::scWindow);
    auto const mix = [&](int shift) {
        int const from = static_cast<int>(ground.m_Value >> shift & 0xFFu);
        int const to = static_cast<int>(tint.m_Value >> shift & 0xFFu);
        return (from * (16 - sixteenths) + to * sixteenths) / 16;
    };
    return _color::FromRgb(mix(0), mix(8), mix(16));
}

_color Background(CCellLook::SCell const& cell)
{
    if (cell.state & isSelected)
        return SystemColor(cell.focused ? ISysPalette::scHighlight : ISysPalette::scHalfLight);
    return cell.row % 2 == 1 ? Tinted(SystemColor(ISysPalette::scHighlight), 1) : SystemColor(ISysPalette::scWindow);
}

}  // namespace

void CCellLook::Draw(IPainter* painter, rectangle<double> const& rect, SCell const& cell, std::string const& text,
                     std::string const& highlight) const
{
    bool const selected = (cell.state & isSelected) != 0;
    painter->SetBrush({Background(cell), brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    painter->SetBrush({Tinted(SystemColor(ISysPalette::scWindowText), 2), brush::bsSolid});
    painter->FillRect(rect.left, rect.bottom, rect.right, rect.bottom);
    painter->FillRect(rect.right, rect.top, rect.right, rect.bottom);

    double const margin = 4 * GetSystemScale();
    rectangle<double> const box{rect.left + margin, rect.top, rect.right - margin, rect.bottom - 1};
    if (!highlight.empty())
    {
        painter->SetBrush({Tinted(g_Yellow, 9), brush::bsSolid});
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
