// Mouse and tooltips.

#include "vexel/core/control.h"
#include "vexel/headers/detail/header_drawing.h"
#include "vexel/headers/detail/header_index.h"
#include "vexel/headers/header.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/events.h"

#include <algorithm>

namespace vexel
{

namespace
{

constexpr int s_Arrow = 1;  // cursors
constexpr int s_ResizeAlong = 9;

}  // namespace

// True: allowed, and the item is still there. Slots may delete the header; the event ends then.
bool CHeader::Ask(signal_t<CHeader*, IHeaderItem*, bool*>& signal, IHeaderItem* item)
{
    CAliveGuard const alive(this);
    CAlivePtr<IHeaderItem> const itemAlive(item);
    bool allow = true;
    signal(this, item, &allow);
    alive.Check();
    Sync();
    return allow && itemAlive && GetIndex().Find(item) >= 0;
}

// The column that a section's grip belongs to.
IHeaderItem* CHeader::GetLastLeaf(IHeaderItem* item) const
{
    int const node = item ? GetIndex().Find(item) : -1;
    return node < 0 ? item : m_Index->GetItem(m_Index->GetLastLeaf(node));
}

bool CHeader::HandleMouseMove(int x, int y, int keys, MouseButton button)
{
    if (!IsEnabled())
        return false;
    Sync();
    if (m_Processing.m_State != Processing::stIdle && button != mbLeft)
    {
        // The release went elsewhere.
        CAliveGuard const alive(this);
        if (m_Processing.m_State == Processing::stPressed)
        {
            m_Processing.m_State = Processing::stIdle;
            OnChange(this, utElement);
            alive.Check();
        }
        HandleButtonUp(x, y, keys, mbLeft);
        alive.Check();
    }
    switch (m_Processing.m_State)
    {
    case Processing::stPressed:
        m_Processing.m_Anchor = x;
        return true;
    case Processing::stResizing:
        return ResizeTo(x, y, keys);
    case Processing::stDragging:
        return true;
    default:
        break;
    }
    HitTestResult const hit = HitTest(x, y);
    if (hit.m_Area == HitTestResult::haGrip && (m_Style & hsResize))
    {
        bool const allowed = Ask(m_SigCanResize, GetLastLeaf(hit.m_Item));
        SetCursor(allowed ? s_ResizeAlong : s_Arrow);
        if (!allowed)
        {
            m_Processing.Clear();
            OnChange(this, utElement);
            return false;
        }
        ProcessHotSection(HitTest(x, y));  // a slot may have changed the tree
        return false;
    }
    SetCursor(s_Arrow);
    ProcessHotSection(hit);
    return false;
}

bool CHeader::ResizeTo(int x, int y, int keys)
{
    IHeaderItem* const item = m_Processing.m_Item;
    int const width = std::max(SubtractSaturated(x, m_Processing.m_Anchor), m_MinWidth);
    if (!item || width == item->GetWidth())
        return true;
    CAliveGuard const alive(this);
    CAlivePtr<IHeaderItem> const itemAlive(item);
    bool allow = true;
    m_SigResizing(this, item, width, &allow);
    alive.Check();
    Sync();
    if (m_Processing.m_State != Processing::stResizing || m_Processing.m_Item != item || !itemAlive)
        return true;  // a slot has ended it
    if (!allow)
    {
        SetCursor(s_Arrow);
        HandleButtonUp(x, y, keys, mbLeft);
        return true;
    }
    SetItemSize(m_Processing.m_ItemIndex, width);
    alive.Check();
    OnChange(this, utElement);
    alive.Check();
    if (itemAlive)
        m_SigResized(this, item, width);
    return true;
}

void CHeader::SetHot(IHeaderItem* item, int hotState)
{
    IHeaderItem* const now = hotState == vsNormal ? nullptr : item;
    if (now == m_Processing.m_Item && hotState == m_Processing.m_HotState)
        return;
    m_Processing.m_Item = now;
    m_Processing.m_HotState = hotState;
    OnChange(this, utElement);
}

void CHeader::ProcessHotSection(HitTestResult const& result)
{
    if (!GetControl() || GetControl()->GetMouseElement() != this)
        return;
    bool const grip = result.m_Area == HitTestResult::haGrip;
    IHeaderItem* const item = grip ? GetLastLeaf(result.m_Item) : result.m_Item;
    bool const resizes = grip && (m_Style & hsResize);
    bool const presses = result.m_Area == HitTestResult::haSection && (m_Style & hsPress);
    int hot = result.m_Area == HitTestResult::haExpandButton ? int{vsButtonHot} : int{vsNormal};
    if (resizes || presses)
    {
        if (item == m_Processing.m_Item && m_Processing.m_HotState == vsHot)
            return;
        hot = Ask(resizes ? m_SigCanResize : m_SigCanPress, item) ? vsHot : vsNormal;
    }
    SetHot(item, hot);
}

bool CHeader::HandleButtonDown(int x, int y, int, MouseButton button)
{
    CAliveGuard const alive(this);
    SetFocus(true);
    alive.Check();
    Sync();
    HitTestResult const hit = HitTest(x, y);
    if (button != mbLeft || hit.m_Area == HitTestResult::haNothing)
        return true;
    CaptureMouse();
    m_Processing.m_Item = hit.m_Item;
    m_Processing.m_ItemIndex = GetVisibleIndex(hit.m_Item);
    if (hit.m_Area == HitTestResult::haSection && (m_Style & hsPress))
    {
        bool const allowed = Ask(m_SigCanPress, hit.m_Item);
        if (allowed && m_Processing.m_Item == hit.m_Item)
        {
            m_Processing.m_Anchor = x;
            m_Processing.m_State = Processing::stPressed;
            m_Processing.m_HotState = vsPressed;
        }
        else
        {
            m_Processing.Clear();
        }
    }
    else if (hit.m_Area == HitTestResult::haExpandButton)
    {
        ExpandItem(hit.m_Item, m_Visualisation->GetItemState(hit.m_Item) == IHeaderItem::esCollapsed);
        alive.Check();
        ProcessHotSection(HitTest(x, y));
    }
    // The cursor tells that the grip was armed, by a move over it that the owner allowed.
    else if (hit.m_Area == HitTestResult::haGrip && GetCursor() != s_Arrow)
    {
        m_Processing.m_State = Processing::stResizing;
        m_Processing.m_Anchor = hit.m_Rect.left;
        if (m_Processing.m_ItemIndex < 0)
        {
            m_Processing.m_Item = GetLastLeaf(hit.m_Item);
            m_Processing.m_ItemIndex = GetVisibleIndex(m_Processing.m_Item);
            m_Processing.m_Anchor = ToInt(GetItemRect(m_Processing.m_Item).left);
        }
    }
    OnChange(this, utElement);
    return true;
}

bool CHeader::HandleButtonUp(int, int, int, MouseButton button)
{
    CAliveGuard const alive(this);
    Sync();
    if (button == mbLeft)
    {
        if (m_Processing.m_State == Processing::stPressed && m_Processing.m_Item)
        {
            m_SigClicked(this, m_Processing.m_Item);
            alive.Check();
            Sync();
        }
        if (m_Processing.m_State != Processing::stDragging)
        {
            m_Processing.m_State = Processing::stIdle;
            m_Processing.m_ItemIndex = -1;
            m_Processing.m_Anchor = 0;
        }
        if (m_Processing.m_HotState != vsNormal)  // what can't be pressed doesn't become hot by a release
            m_Processing.m_HotState = vsHot;
        OnChange(this, utElement);
        alive.Check();
    }
    ReleaseMouse();
    return true;
}

bool CHeader::HandleDoubleClick(int x, int y, int, MouseButton button)
{
    Sync();
    HitTestResult const hit = HitTest(x, y);
    if (button != mbLeft || hit.m_Area != HitTestResult::haGrip)
        return false;
    m_SigGripDoubleClicked(this, GetLastLeaf(hit.m_Item));
    return true;
}

void CHeader::HandleMouseLeave(CVisualElement*)
{
    Sync();
    if (m_Processing.m_State == Processing::stPressed)
        m_Processing.m_State = Processing::stIdle;
    if (m_Processing.m_State != Processing::stIdle)
        return;
    bool const changes = m_Processing.m_Item != nullptr;
    m_Processing.Clear();
    if (changes)
        OnChange(this, utElement);
}

bool CHeader::HandleOnTooltip(CTooltipEvent* event)
{
    Sync();
    HitTestResult const hit = HitTest(event->m_X, event->m_Y);
    if (hit.m_Area != HitTestResult::haSection)
        return false;
    rectangle<int> rect = hit.m_Rect;
    rect.Normalize();
    rectangle<int> const bounds = GetBounds();
    rect = {std::max(rect.left, bounds.left), std::max(rect.top, bounds.top), std::min(rect.right, bounds.right),
            std::min(rect.bottom, bounds.bottom)};
    rectangle<int> inControl = rect;
    ElementToControl(&inControl);

    CAliveGuard const alive(this);
    CAlivePtr<IHeaderItem> const item(hit.m_Item);
    std::string text;
    SetHeaderTooltip(event->m_X, event->m_Y, hit.m_Item,
                     {inControl.left, inControl.top, inControl.right, inControl.bottom}, &text);
    alive.Check();
    if (text.empty() && item)
        text = item->GetDescription();
    if (text.empty() && item)
    {
        bool const narrow = GetItemOptimalWidth(item.get()) > AddSaturated(rect.Width(), 1);
        if (narrow || rect.Height() < 2 * GetTextLineHeight())
            text = item->GetText();
    }
    event->m_Text = text;
    event->m_HotRect = rect;
    return true;
}

void CHeader::SetEnabled(bool enabled)
{
    CAliveGuard const alive(this);
    CScrollableElementEx::SetEnabled(enabled);
    if (!alive || enabled || m_Processing.m_State == Processing::stDragging)
        return;
    m_Processing.Clear();
    if (GetControl() && GetControl()->GetCapture() == this)
        ReleaseMouse();
}

void CHeader::ProcessSetControl(IControl* control)
{
    m_Processing.Clear();
    m_Drag = {};
    StopScrolling(ISysWindow::stHorizontal);
    CScrollableElementEx::ProcessSetControl(control);
}

void CHeader::HandleControlChangeFocus(bool)
{
    OnChange(this, utElement);  // texts are dimmed without the focus
}

}  // namespace vexel
