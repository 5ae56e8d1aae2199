#include "vexel/charts/zoomer.h"

#include "vexel/platform/painter.h"

#include <algorithm>
#include <cmath>

namespace vexel
{

namespace
{

constexpr int s_SignRoom = 16;  // at either end; pixels at any scale, as all here
constexpr int s_SignGap = 6;    // behind the "+"
constexpr int s_ThumbWidth = 6;
constexpr int s_MinHeight = 4;  // of what has room for a groove
constexpr int s_MinusFlags = IPainter::AlignLeft | IPainter::AlignVCenter;
constexpr int s_PlusFlags = IPainter::AlignRight | IPainter::AlignVCenter;

// Of the palette in the painter, else of the default one.
_color GetColor(IPainter const& painter, ISysPalette::SysColor number)
{
    return painter.m_Palette ? painter.m_Palette->GetColor(number) : GetDefaultPalette()->GetColor(number);
}

void SetPenColor(IPainter* painter, ISysPalette::SysColor number)
{
    painter->SetPen({GetColor(*painter, number), pen::psSolid, 1});
}

// A line around the corner (cornerX, cornerY).
void DrawAngle(IPainter* painter, int x1, int y1, int cornerX, int cornerY, int x2, int y2)
{
    painter->MoveTo(x1, y1);
    painter->LineTo(cornerX, cornerY);
    painter->LineTo(x2, y2);
}

}  // namespace

CZoomer::CZoomer(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment)
{}

void CZoomer::SetSliderPos(double position)
{
    if (position >= 0.0 && position <= 1.0)
        m_Pos = position;
    OnChange(this, utElement);
}

// How far the thumb's left edge can go.
double CZoomer::GetWay() const
{
    rectangle<int> const bounds = GetBounds();
    return static_cast<double>(bounds.right) - bounds.left - 2 * s_SignRoom - s_ThumbWidth;
}

// Painting ------------------------------------------------------------------------------------------------------------------

void CZoomer::DrawBackground(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

void CZoomer::DrawContent(IPainter* painter)
{
    CAliveGuard const alive(this);
    DrawBackground(painter);
    if (!alive)
        return;
    rectangle<int> const bounds = GetBounds();
    int const left = ToInt(GetWay() * m_Pos + s_SignRoom);
    m_ThumbRect = {left, bounds.top, AddSaturated(left, s_ThumbWidth), bounds.bottom};
    if (GetWay() < 0 || bounds.bottom < s_MinHeight)
        return;
    DrawSign(painter, "-", bounds.right, s_MinusFlags);
    DrawSign(painter, "+", bounds.right - s_SignGap, s_PlusFlags);
    DrawGroove(painter);
    DrawThumb(painter);
}

void CZoomer::DrawSign(IPainter* painter, char const* text, int right, int flags) const
{
    rectangle<int> const bounds = GetBounds();
    painter->DrawString({static_cast<double>(bounds.left), static_cast<double>(bounds.top), static_cast<double>(right),
                         static_cast<double>(bounds.bottom)},
                        text, flags, -1);
}

void CZoomer::DrawGroove(IPainter* painter) const
{
    auto const [l, t, r, b] = GetBounds();
    int const x1 = l + s_SignRoom;
    int const x2 = r - s_SignRoom;
    SetPenColor(painter, ISysPalette::scDarkShadow);
    DrawAngle(painter, x1, b - 1, x1, t + 3, x2, t + 3);
    SetPenColor(painter, ISysPalette::scShadow);
    DrawAngle(painter, x1, b - 2, x1, t + 2, x2, t + 2);
    SetPenColor(painter, ISysPalette::scLight);
    DrawAngle(painter, x2, t + 2, x2, b - 1, x1, b - 1);
}

void CZoomer::DrawThumb(IPainter* painter) const
{
    auto const [l, t, r, b] = m_ThumbRect;
    painter->SetBrush({GetColor(*painter, ISysPalette::scFace), brush::bsSolid});
    painter->FillRect(l, t, r, b);
    SetPenColor(painter, ISysPalette::scDarkShadow);
    DrawAngle(painter, l, b, r, b, r, t);
    SetPenColor(painter, ISysPalette::scShadow);
    DrawAngle(painter, l + 1, b - 1, r - 1, b - 1, r - 1, t + 1);
    SetPenColor(painter, ISysPalette::scLight);
    DrawAngle(painter, l, b - 1, l, t, r - 1, t);
}

// Input ---------------------------------------------------------------------------------------------------------------------

bool CZoomer::HandleButtonDown(int x, int y, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    CAliveGuard const alive(this);
    if (m_ThumbRect.Contains(x, y))
    {
        m_Dragging = true;
        m_LastX = x;
        CaptureMouse();
    }
    else
    {
        m_Pos = std::clamp(m_Pos + (x > m_ThumbRect.right ? slider_step : -slider_step), 0.0, 1.0);
        OnChange(this, utElement);
    }
    alive.Check();
    if (!m_Dragging)
        m_SigPosChanged(m_Pos);
    return true;
}

bool CZoomer::HandleMouseMove(int x, int, int, MouseButton)
{
    if (!m_Dragging)
        return false;
    rectangle<int> const bounds = GetBounds();
    if (x < bounds.left + s_SignRoom)
    {
        m_Pos = 0.0;
    }
    else if (x > bounds.right - s_SignRoom)
    {
        m_Pos = 1.0;
    }
    else
    {
        CAliveGuard const alive(this);
        double const moved = (static_cast<double>(m_LastX) - x) / GetWay();
        if (std::isfinite(moved))
            m_Pos = std::clamp(m_Pos - moved, 0.0, 1.0);
        m_LastX = x;
        m_SigPosChanging(m_Pos);
        alive.Check();
    }
    OnChange(this, utElement);
    return true;
}

bool CZoomer::HandleButtonUp(int, int, int, MouseButton button)
{
    if (button != mbLeft || !m_Dragging)
        return false;
    CAliveGuard const alive(this);
    m_Dragging = false;
    ReleaseMouse();
    alive.Check();
    m_SigPosChanged(m_Pos);
    return true;
}

}  // namespace vexel
