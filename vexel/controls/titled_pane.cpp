#include "vexel/controls/titled_pane.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/system.h"

namespace vexel
{

namespace
{

// Scaled once: where sizes are scaled automatically, the element scales by itself what it is made with.
size<int> GetTitleExtent()
{
    double const unscaled = 18;
    double const scale = GetSystemScale();
    int const extent = ToInt(GetDPIAutoScale() && scale > 1.0 ? unscaled : unscaled * scale);
    return {extent, extent};
}

}  // namespace

CTitledPane::CTitledPane(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CPane(parent, extent, alignment), m_Caption(this, GetTitleExtent(), alTop)
{
    m_Caption.SetDynamic(false);
    m_Caption.m_SigButtonDown.connect(this, &CTitledPane::HandleCaptionButtonDown);
}

void CTitledPane::HandleChildFocusChanged(CVisualElement* element, CVisualElement* other, bool got)
{
    CAliveGuard const alive(this);
    CPane::HandleChildFocusChanged(element, other, got);
    if (alive && !IsAncestor(other, this))
        m_Caption.SetActive(got);
}

void CTitledPane::HandleCaptionButtonDown(CVisualElement*, int, int, int, MouseButton)
{
    if (m_Caption.IsActive())
        return;
    if (CVisualElement* const first = GetFirstTabElement())
        first->SetFocus(true);
}

}  // namespace vexel
