#include "vexel/controls/arrow_button.h"

#include "vexel/core/dpi.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/painter.h"

namespace vexel
{

CArrowButton::CArrowButton(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CButton(parent, extent, alignment), m_ArrowSize(ToDevicePixels(8.0))
{}

void CArrowButton::SetArrowType(ArrowType type)
{
    if (type == m_ArrowType)
        return;
    m_ArrowType = type;
    OnChange(this, utElement);
}

void CArrowButton::SetArrowSize(int size)
{
    ApplyDPIScale(size);
    if (size == m_ArrowSize)
        return;
    m_ArrowSize = size;
    OnChange(this, utElement);
}

void CArrowButton::DrawContent(IPainter* painter)
{
    CAliveGuard const alive(this);
    CButton::DrawContent(painter);
    if (!alive)
        return;
    pen line = IsEnabled() ? pen{GetFgColor(), pen::psSolid, 2} : painter->GetPen();
    line.width = 2;
    painter->SetPen(line);
    rectangle<int> const content = GetContentRect();
    if (content.Width() > m_ArrowSize && content.Height() > m_ArrowSize)
        DrawArrow(painter);
}

void CArrowButton::DrawArrow(IPainter* painter) const
{
    rectangle<int> r = GetInternalRect();
    r.Normalize();
    int const s = m_ArrowSize;
    int const h = s / 2;
    int const d = ToInt(painter->GetDPIScale() * 4.0);

    // Where the first head begins, its tip and its other end from there, and the way to the second head.
    point<int> start{(r.right - r.left - s) / 2 + r.left, (r.bottom - r.top - s) / 2 + r.top};
    point<int> tip;
    point<int> end;
    point<int> step;
    switch (m_ArrowType)
    {
    case ArrowLeft:
        start.x = r.right - (r.right - (r.left + s)) / 2;
        tip = {-h, h};
        end = {0, s};
        step = {-d, 0};
        break;
    case ArrowTop:
        start.y = r.bottom - (r.bottom - (r.top + s)) / 2;
        tip = {h, -h};
        end = {s, 0};
        step = {0, -d};
        break;
    case ArrowRight:
        tip = {h, h};
        end = {0, s};
        step = {d, 0};
        break;
    case ArrowBottom:
        tip = {h, h};
        end = {s, 0};
        step = {0, d};
        break;
    }
    for (int i = 0; i < 2; ++i)
    {
        int const x = start.x + i * step.x;
        int const y = start.y + i * step.y;
        painter->MoveTo(x, y);
        painter->LineTo(x + tip.x, y + tip.y);
        painter->LineTo(x + end.x, y + end.y);
    }
}

}  // namespace vexel
