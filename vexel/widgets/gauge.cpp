#include "vexel/widgets/gauge.h"

#include "vexel/platform/painter.h"

#include <algorithm>

namespace vexel
{

CGauge::CGauge(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CTransparentFlavor<CVisualElement>(parent, extent, alignment)
{
    SetFgColor(ISysPalette::scHighlight);
}

void CGauge::SetMin(double value)
{
    if (value == m_Min)
        return;
    m_Min = value;
    if (m_Value < value)
        m_Value = value;
    Update(utElement);
}

void CGauge::SetMax(double value)
{
    if (value == m_Max)
        return;
    m_Max = value;
    if (m_Value > value)
        m_Value = value;
    Update(utElement);
}

void CGauge::Increase(double step)
{
    if (step == 0)
        return;
    double value = m_Value + step;
    if (value > m_Max)
        value = m_Max;
    if (value < m_Min)
        value = m_Min;
    if (value == m_Value)
        return;
    m_Value = value;
    Update(utElement);
}

void CGauge::Reset()
{
    if (m_Value == m_Min)
        return;
    m_Value = m_Min;
    Update(utElement);
}

int CGauge::GetDrawingVal() const
{
    rectangle<int> const bounds = GetBounds();
    if (!(m_Min < m_Max))
        return bounds.left;
    return ToInt((m_Value - m_Min) * bounds.Width() / (m_Max - m_Min));
}

void CGauge::DrawBackground(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

void CGauge::DrawContent(IPainter* painter)
{
    CAliveGuard const alive(this);
    if (!IsTransparent())
        DrawBackground(painter);
    if (!alive)
        return;
    rectangle<int> const bounds = GetBounds();
    int const right =
        std::min(GetDrawingVal(), bounds.right);  // a minimum may have pulled the value beyond the maximum
    painter->SetBrush({GetFgColor(), brush::bsSolid});
    // A rectangle whose ends are equal is filled a pixel wide.
    if (right > bounds.left)
        painter->FillRect(bounds.left, bounds.top, right, bounds.bottom);
}

std::string CGauge::HandleAsString() const
{
    double const range = m_Max - m_Min;
    int const percent = range != 0 ? ToInt(m_Value * 100.0 / range) : 0;
    return "[" + std::to_string(percent) + "%]";
}

}  // namespace vexel
