#include "gallery/frame/panel.h"

#include "vexel/core/dpi.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

#include <algorithm>

namespace gallery
{

CPanel::CPanel(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment)
{}

void CPanel::SetText(std::string const& text)
{
    if (text == m_Text)
        return;
    m_Text = text;
    Update(utElement);
}

void CPanel::SetTextFlags(int flags)
{
    if (flags == m_Flags)
        return;
    m_Flags = flags;
    Update(utElement);
}

void CPanel::SetFrame(bool frame)
{
    if (frame == m_Frame)
        return;
    m_Frame = frame;
    Update(utElement);
}

void CPanel::DrawContent(IPainter* painter)
{
    rectangle<double> rect = ToDouble(GetBounds());
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    if (m_Frame)
    {
        brush hollow;
        hollow.style = brush::bsNone;
        painter->SetBrush(hollow);
        pen line;
        line.color = GetSysPalette()->GetColor(ISysPalette::scShadow);
        painter->SetPen(line);
        painter->Rectangle(rect.left, rect.top, rect.right, rect.bottom);
    }
    if (m_Text.empty())
        return;
    double const margin = ToInt(m_Margin * painter->GetDPIScale());
    rect.left += margin;
    rect.right -= margin;
    painter->DrawString(rect, m_Text, m_Flags, -1);
}

CLabel::CLabel(CVisualElement* parent, size<int> const& extent, Alignment alignment, std::string const& text)
    : CPanel(parent, extent, alignment)
{
    SetTextFlags(IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText);
    SetMargin(8);
    SetText(text);
}

CGrid::CGrid(CVisualElement* parent, size<int> const& extent, Alignment alignment, size<int> const& cell, int gap)
    : CPanel(parent, extent, alignment), m_Cell(cell), m_Gap(gap)
{}

void CGrid::SetPos(rectangle<int> const& rect, bool force)
{
    CPanel::SetPos(rect, force);
    size<int> cell = m_Cell;
    int gap = m_Gap;
    ApplyDPIScale(cell);
    ApplyDPIScale(gap);
    int const columns = std::max(1, (GetBounds().right - gap) / (cell.width + gap));
    for (int i = 0; i < GetChildren()->GetCount(); ++i)
    {
        int const left = gap + i % columns * (cell.width + gap);
        int const top = gap + i / columns * (cell.height + gap);
        rectangle<int> const place{left, top, left + cell.width - 1, top + cell.height - 1};
        CVisualElement* const child = GetChildren()->GetItem(i);
        if (force || child->GetPos() != place)
            child->SetPos(place, true);
    }
}

CSample::CSample(CVisualElement* parent, std::string const& caption, Draw draw)
    : CVisualElement(parent, {0, 0}, alNone), m_Caption(caption), m_Draw(std::move(draw))
{}

void CSample::DrawContent(IPainter* painter)
{
    rectangle<double> rect = ToDouble(GetBounds());
    pen const line = painter->GetPen();
    _color const text = painter->GetTextColor();
    brush ground;
    ground.color = GetSysPalette()->GetColor(ISysPalette::scWindow);
    painter->SetBrush(ground);
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);

    rectangle<double> caption = rect;
    caption.top = caption.bottom - ToInt(16 * painter->GetDPIScale());
    painter->SetTextColor(GetSysPalette()->GetColor(ISysPalette::scShadow));
    painter->DrawString(caption, m_Caption, IPainter::AlignHCenter | IPainter::AlignVCenter | IPainter::AlignFitText,
                        -1);

    double const margin = ToInt(6 * painter->GetDPIScale());
    rectangle<double> const inside{rect.left + margin, rect.top + margin, rect.right - margin, caption.top - margin};
    brush fill;
    fill.color = color_table[24];
    painter->SetBrush(fill);
    painter->SetPen(line);
    painter->SetTextColor(text);
    m_Draw(painter, inside);
}

}  // namespace gallery
