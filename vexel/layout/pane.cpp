#include "vexel/layout/pane.h"

#include "vexel/platform/painter.h"
#include "vexel/platform/palette.h"

namespace vexel
{

namespace
{

_color SystemColor(ISysPalette::SysColor number)
{
    ISysPalette* const palette = GetSysPalette();
    return palette ? palette->GetColor(number) : _color();
}

}  // namespace

CPane::CPane(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment)
{}

_color CPane::GetActiveColor() const
{
    return SystemColor(ISysPalette::scHighlight);
}

_color CPane::GetInactiveColor() const
{
    return SystemColor(ISysPalette::scShadow);
}

rectangle<int> CPane::GetContentRect() const
{
    rectangle<int> const bounds = GetBounds();
    return {bounds.left + 1, bounds.top + 1, SubtractSaturated(bounds.right, 1), SubtractSaturated(bounds.bottom, 1)};
}

void CPane::DrawContent(IPainter* painter)
{
    if (!GetSysPalette())
        return;
    painter->SetPen({m_Active ? GetActiveColor() : GetInactiveColor(), pen::psSolid, 1});
    painter->SetBrush({_color(), brush::bsNone});
    rectangle<int> const bounds = GetBounds();
    painter->Rectangle(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

void CPane::HandleChildFocusChanged(CVisualElement*, CVisualElement* other, bool got)
{
    // A focus that moves from one inner element to another changes nothing.
    if (IsAncestor(other, this) || got == m_Active)
        return;
    m_Active = got;
    Update(utElement);
}

}  // namespace vexel
