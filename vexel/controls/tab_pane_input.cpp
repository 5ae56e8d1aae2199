// What stands where; mouse, keys, focus and tooltips.

#include "vexel/controls/tab_pane.h"
#include "vexel/core/control.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/native_controls.h"
#include "vexel/views/item_walks.h"

namespace vexel
{

// What stands where ---------------------------------------------------------------------------------------------------------

IImageList* CTabPane::GetImages() const
{
    return GetControl() ? GetControl()->GetImageList() : nullptr;
}

rectangle<double> CTabPane::GetTabRect(int tab) const
{
    range<int> const span = Utils::GetItemIndexRange(GetColumnViewModel(), tab, {0, GetBounds().right});
    return {static_cast<double>(span.first), 0.0, static_cast<double>(span.second) - GetGap(tab),
            GetRowViewModel()->GetItemSize(0) - 1.0};
}

bool CTabPane::GetTabByPos(int x, int* tab, screen_rectangle<int>* rect) const
{
    int const found = Utils::HitTest(GetColumnViewModel(), x);
    if (!IsTab(found))
        return false;
    if (tab)
        *tab = found;
    if (rect)
    {
        rectangle<double> const content =
            m_Visualisation->GetTabContentRect(GetTabRect(found), GetVisualisationState(found));
        *rect = {ToInt(content.left), ToInt(content.top), ToInt(content.right), ToInt(content.bottom)};
    }
    return true;
}

CTabPane::SHit CTabPane::HitTest(int x, int y) const
{
    int tab = -1;
    screen_rectangle<int> area;
    if (!GetTabByPos(x, &tab, &area))
        return {};
    rectangle<int> const content{area.left, area.top, area.right, area.bottom};
    if (!content.Contains(x, y))
        return {};
    SHit hit;
    hit.kind = hkTab;
    hit.tab = tab;
    hit.rect = content;
    if (m_Model->IsTabEnabled(tab) && m_Model->HasTabCloseButton(tab))
    {
        rectangle<double> const close = m_Visualisation->GetCloseBtnRect(
            m_Visualisation->GetTabContentRect(GetTabRect(tab), GetVisualisationState(tab)));
        if (!close.IsEmpty() && close.Contains(x, y))
            hit.kind = hkCloseButton;
    }
    return hit;
}

unsigned int CTabPane::GetVisualisationState(int tab) const
{
    if (IsTab(tab) && !m_Model->IsTabEnabled(tab))
        return tsDisabled | tsPlain;
    ISelectionModel const* const selection = GetColumnSelectionModel();
    unsigned int state = 0;
    if (tab >= 0 && tab == m_HotTab)
        state = m_HotOnClose ? tsHot | tsHotClose : tsHot;
    if (selection->IsItemSelected(tab))
        state |= tsSelected;
    if (state == 0)
        state = tsPlain;
    if (tab >= 0 && tab == selection->GetCurrent() && IsFocused())
        state |= tsFocused;
    return state;
}

// Marks ---------------------------------------------------------------------------------------------------------------------

void CTabPane::MarkTab(int tab)
{
    if (tab >= 0)
        GetColumnViewModel()->AddDirtyItems(tab, tab);
}

void CTabPane::MarkCurrent()
{
    ISelectionModel* const selection = GetColumnSelectionModel();
    if (int const current = selection->GetCurrent(); current >= 0)
        selection->AddDirtyItems(current, current);
}

void CTabPane::SetHot(int tab, bool onClose)
{
    if (tab == m_HotTab && onClose == m_HotOnClose)
        return;
    if (tab != m_HotTab)
        MarkTab(m_HotTab);
    MarkTab(tab);
    m_HotTab = tab;
    m_HotOnClose = onClose;
    Update(utElement);
}

// Another tab may have come under the pointer.
void CTabPane::RefreshHot()
{
    if (m_HotTab < 0)
        return;
    point<int> const mouse = GetMousePos();
    SHit const hit = HitTest(mouse.x, mouse.y);
    SetHot(hit.tab, hit.kind == hkCloseButton);
}

// Mouse ---------------------------------------------------------------------------------------------------------------------

bool CTabPane::SetCurProcessButtonDown(int x, int y, int, MouseButton button, bool* handled)
{
    *handled = true;
    SHit const hit = HitTest(x, y);
    if (hit.kind == hkNothing || !m_Model->IsTabEnabled(hit.tab))
        return false;
    // Tabs may have moved since the pointer has.
    if (hit.kind == hkCloseButton && m_HotOnClose && m_HotTab == hit.tab)
    {
        m_SigCloseClicked(this, hit.tab);
        return true;
    }
    bool columnHandled = false;
    return GetColumnHandler().HandleButtonDown(x, y, m_Toggled ? ksControl : 0, button, &columnHandled);
}

bool CTabPane::HighlightingMouseMove(int x, int y, int, MouseButton, bool* handled)
{
    SHit const hit = HitTest(x, y);
    if (hit.kind != hkNothing)
        SetHot(hit.tab, hit.kind == hkCloseButton);
    else if (m_HotTab >= 0)
        HighlightingMouseLeave(handled);
    return true;
}

void CTabPane::HighlightingMouseLeave(bool*)
{
    if (m_HotTab >= 0)
        SetHot(-1, false);
}

// Keys and focus ------------------------------------------------------------------------------------------------------------

bool CTabPane::SetCurProcessKeyDown(int key)
{
    bool const turns = key == vkReturn || key == vkSpace;
    if (!m_Toggled && turns)
        return true;
    bool handled = false;
    return GetColumnHandler().HandleKeyDown(ksControl, turns ? vkSpace : key, &handled);
}

void CTabPane::CurrentColumnChanged(int old, int& now)
{
    if (!m_Model)
        return;
    int const count = GetTabCount();
    if (now >= 0 && now < count)
    {
        int const step = now > old ? 1 : -1;
        int tab = now;
        while (tab >= 0 && tab < count && !m_Model->IsTabEnabled(tab))
            tab += step;
        now = tab >= 0 && tab < count ? tab : old;
    }
    else if (now >= count)
        now = old;
}

void CTabPane::HandleGetFocus(CVisualElement* other, bool focused)
{
    if (focused)
        MarkCurrent();
    Base::HandleGetFocus(other, focused);
}

void CTabPane::HandleLostFocus(CVisualElement* other)
{
    MarkCurrent();
    Base::HandleLostFocus(other);
}

void CTabPane::GetTooltipAttr(CTooltipEvent* event)
{
    SHit const hit = HitTest(event->m_X, event->m_Y);
    if (hit.kind == hkNothing)
        return;
    event->m_HotRect = hit.rect;
    event->m_Text = m_Model->GetTabTooltip(hit.tab);
}

}  // namespace vexel
