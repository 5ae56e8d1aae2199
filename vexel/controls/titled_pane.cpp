#include "vexel/controls/titled_pane.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/system.h"

namespace vexel
{

namespace
{

constexpr double s_TitleExtent = 18;  // unscaled pixels

}  // namespace

CTitledPane::CTitledPane(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CPane(parent, extent, alignment), m_Caption(this, {0, 0}, alTop)
{
    m_Caption.SetDynamic(false);
    ISystem* const system = GetCurrentSystem();
    int const title = ToInt(s_TitleExtent * (system ? system->GetScale() : 1.0));
    m_Caption.SetSize({title, title}, false);  // scaled once, whether or not sizes are scaled automatically
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
