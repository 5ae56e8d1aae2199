#include "gallery/frame/toggle.h"

#include "gallery/frame/panel.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"

namespace gallery
{

CToggle::CToggle(CVisualElement* parent, size<int> const& extent, Alignment alignment, std::string const& text)
    : CVisualElement(parent, extent, alignment), m_Text(text)
{
    SetCanHaveFocus(true);
    SetCursor(12);
}

void CToggle::SetOn(bool on)
{
    if (on == m_On)
        return;
    m_On = on;
    Update(utElement);
    m_SigToggled(this, on);
}

void CToggle::DrawContent(IPainter* painter)
{
    rectangle<double> const rect = ToDouble(GetBounds());
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    double const scale = painter->GetDPIScale();
    double const side = ToInt(16 * scale);
    double const left = ToInt(8 * scale);
    double const top = ToInt((rect.bottom - side) / 2);
    int state = IsEnabled() ? 0 : IPainter::esDisabled;
    if (IsFocused())
        state |= IPainter::esFocused;
    painter->DrawControlElement(m_On ? IPainter::ceCheckChecked : IPainter::ceCheckUnchecked, left, top,
                                left + side - 1, top + side - 1, state);
    rectangle<double> text = rect;
    text.left = left + side + ToInt(6 * scale);
    painter->DrawString(text, m_Text, IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText, -1);
}

bool CToggle::HandleClick(int, int, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    SetOn(!m_On);
    return true;
}

bool CToggle::HandleKeyDown(int keys, int key)
{
    if (key != vkSpace || keys != 0)
        return false;
    SetOn(!m_On);
    return true;
}

}  // namespace gallery
