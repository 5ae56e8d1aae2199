#include "gallery/frame/page_list.h"

#include "gallery/frame/panel.h"
#include "vexel/core/dpi.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"

#include <algorithm>

namespace gallery
{

CPageList::CPageList(CVisualElement* parent, size<int> const& extent, Alignment alignment,
                     std::vector<std::string> titles)
    : CVisualElement(parent, extent, alignment), m_Titles(std::move(titles))
{
    SetCanHaveFocus(true);
    SetBkColor(ISysPalette::scWindow);
    SetFgColor(ISysPalette::scWindowText);
}

void CPageList::SetCurrent(int index)
{
    index = std::clamp(index, 0, std::max(0, static_cast<int>(m_Titles.size()) - 1));
    if (index == m_Current)
        return;
    m_Current = index;
    Update(utElement);
    m_SigChosen(this, index);
}

int CPageList::GetRowHeight() const
{
    int height = 28;
    ApplyDPIScale(height);
    return height;
}

int CPageList::GetRowAt(int y) const
{
    int const row = y / GetRowHeight();
    return y >= 0 && row < static_cast<int>(m_Titles.size()) ? row : -1;
}

void CPageList::SetHot(int row)
{
    if (row == m_Hot)
        return;
    m_Hot = row;
    Update(utElement);
}

void CPageList::DrawContent(IPainter* painter)
{
    rectangle<double> const rect = ToDouble(GetBounds());
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    ISysPalette* const palette = GetSysPalette();
    double const indent = ToInt(12 * painter->GetDPIScale());
    for (int i = 0; i < static_cast<int>(m_Titles.size()); ++i)
    {
        rectangle<double> row{rect.left, static_cast<double>(i * GetRowHeight()), rect.right,
                              static_cast<double>((i + 1) * GetRowHeight() - 1)};
        if (i == m_Current || i == m_Hot)
        {
            brush fill;
            fill.color = palette->GetColor(i == m_Current ? ISysPalette::scHighlight : ISysPalette::scFace);
            painter->SetBrush(fill);
            painter->FillRect(row.left, row.top, row.right, row.bottom);
        }
        painter->SetTextColor(i == m_Current ? palette->GetColor(ISysPalette::scHighlightText) : GetFgColor());
        row.left += indent;
        painter->DrawString(row, m_Titles[static_cast<std::size_t>(i)],
                            IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText, -1);
    }
    pen line;
    line.color = palette->GetColor(ISysPalette::scShadow);
    painter->SetPen(line);
    painter->MoveTo(rect.right, rect.top);
    painter->LineTo(rect.right, rect.bottom);
}

bool CPageList::HandleButtonDown(int, int y, int, MouseButton button)
{
    int const row = GetRowAt(y);
    if (button != mbLeft || row < 0)
        return false;
    SetCurrent(row);
    return true;
}

bool CPageList::HandleMouseMove(int, int y, int, MouseButton)
{
    SetHot(GetRowAt(y));
    return true;
}

void CPageList::HandleMouseLeave(CVisualElement*)
{
    SetHot(-1);
}

bool CPageList::HandleKeyDown(int, int key)
{
    switch (key)
    {
    case vkUp:
        SetCurrent(m_Current - 1);
        return true;
    case vkDown:
        SetCurrent(m_Current + 1);
        return true;
    case vkHome:
        SetCurrent(0);
        return true;
    case vkEnd:
        SetCurrent(static_cast<int>(m_Titles.size()) - 1);
        return true;
    default:
        return false;
    }
}

}  // namespace gallery
