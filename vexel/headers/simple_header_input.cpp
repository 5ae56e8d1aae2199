// Mouse, tooltips and the dragging of sections.

#include "vexel/core/control.h"
#include "vexel/headers/simple_header.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/events.h"

#include <algorithm>

namespace vexel
{

namespace
{

constexpr int s_Arrow = 1;  // cursors
constexpr int s_ResizeAcross = 7;
constexpr int s_ResizeAlong = 9;

}  // namespace

// True: allowed. Slots may delete the header; the event ends then.
bool CSimpleHeader::Ask(signal_t<CSimpleHeader*, int, bool*>& signal, int section)
{
    CAliveGuard const alive(this);
    bool allow = true;
    signal(this, section, &allow);
    alive.Check();
    return allow;
}

bool CSimpleHeader::HandleMouseMove(int x, int y, int keys, MouseButton button)
{
    if (m_State != stIdle && button != mbLeft)
    {
        // The release went elsewhere.
        CAliveGuard const alive(this);
        if (m_State == stPressed)
        {
            m_State = stIdle;
            OnChange(this, utElement);
            alive.Check();
        }
        HandleButtonUp(x, y, keys, mbLeft);
        alive.Check();
    }
    int const along = AlongOf(x, y);
    switch (m_State)
    {
    case stPressed:
        m_Anchor = along;
        return true;
    case stResizing:
        ResizeTo(along, x, y, keys);
        return true;
    case stDragging:
        ScrollWhileDragging({x, y});
        OnChange(this, utElement);
        return true;
    case stIdle:
        break;
    }
    HitTestResult const result = HitTest({x, y});
    if (result.m_Area == htDivider && (m_Style & hsResize))
    {
        if (Ask(m_SigCanResize, result.m_Section))
            SetCursor(GetAlignment() == alLeft || GetAlignment() == alRight ? s_ResizeAcross : s_ResizeAlong);
    }
    else
    {
        SetCursor(s_Arrow);
    }
    ProcessHotSection(result);
    return false;
}

void CSimpleHeader::ResizeTo(int position, int x, int y, int keys)
{
    int const width = std::max(SubtractSaturated(position, m_Anchor), m_MinSectionWidth);
    int const section = m_ActiveSection;
    if (width == GetItemWidth(section))
        return;
    CAliveGuard const alive(this);
    bool allow = true;
    m_SigResizing(this, section, width, &allow);
    alive.Check();
    if (!allow)
    {
        SetCursor(s_Arrow);
        HandleButtonUp(x, y, keys, mbLeft);
        return;
    }
    if (m_ViewModel)
    {
        m_ViewModel->SetItemSize(section, width);
        alive.Check();
    }
    OnChange(this, utElement);
    alive.Check();
    m_SigResized(this, section, width);
}

// Beyond the strip's ends the view scrolls on, as long as the pointer rests there.
void CSimpleHeader::ScrollWhileDragging(point<int> const& position)
{
    HitTestArea const area = HitTest(position).m_Area;
    int const along = AlongOf(position);
    rectangle<int> const bounds = GetBounds();
    int const extent = AlongOf(bounds.right, bounds.bottom);
    bool const before = area == htBefore || (area == htNothing && along < 0);
    bool const behind = area == htBehind || (area == htNothing && along > extent);
    if ((before || behind) && !IsScrolling())
        StartScrolling(ISysWindow::stHorizontal, before ? sdBackward : sdForward, true);
    else
        CheckScrolling(along, extent, area);
}

void CSimpleHeader::CheckScrolling(int position, int extent, HitTestArea area)
{
    bool const inside = area == htNothing && position >= 0 && position <= extent;
    if (area == htSection || area == htDivider || inside)
        StopScrolling(ISysWindow::stHorizontal);
}

void CSimpleHeader::ProcessHotSection(HitTestResult const& result)
{
    if (!(m_Style & (hsPress | hsResize)))
        return;
    bool const presses = (m_Style & hsPress) && result.m_Area == htSection;
    bool const resizes = (m_Style & hsResize) && result.m_Area == htDivider;
    if (presses || resizes)
    {
        if (result.m_Section == m_HotSection)
            return;
        bool const allowed = Ask(presses ? m_SigCanPress : m_SigCanResize, result.m_Section);
        m_HotSection = allowed ? result.m_Section : -1;
        OnChange(this, utElement);
        return;
    }
    if (m_HotSection == -1)
        return;
    m_HotSection = -1;
    OnChange(this, utElement);
}

bool CSimpleHeader::HandleButtonDown(int x, int y, int, MouseButton button)
{
    CAliveGuard const alive(this);
    SetFocus(true);
    alive.Check();
    HitTestResult const result = HitTest({x, y});
    if (button != mbLeft || result.m_Area == htNothing)
        return true;
    CaptureMouse();
    // The cursor tells that the divider was armed, by a move over it that the owner allowed.
    if (result.m_Area == htDivider && GetCursor() != s_Arrow)
    {
        m_State = stResizing;
        m_ActiveSection = result.m_Section;
        m_Anchor = AlongOf(result.m_Rect.left, result.m_Rect.top);
    }
    else if (result.m_Area == htSection && (m_Style & hsPress))
    {
        if (Ask(m_SigCanPress, result.m_Section))
        {
            m_State = stPressed;
            m_ActiveSection = result.m_Section;
            m_Anchor = AlongOf(x, y);
        }
        OnChange(this, utElement);
    }
    return true;
}

bool CSimpleHeader::HandleButtonUp(int, int, int, MouseButton button)
{
    CAliveGuard const alive(this);
    if (button == mbLeft)
    {
        if (m_State == stResizing)
        {
            m_ActiveSection = -1;
        }
        else if (m_State == stDragging)
        {
            StopScrolling(ISysWindow::stHorizontal);
        }
        else if (m_State == stPressed)
        {
            m_SigSectionClicked(this, m_ActiveSection);
            alive.Check();
            OnChange(this, utElement);
            alive.Check();
            m_ActiveSection = -1;
        }
        m_State = stIdle;
        m_Anchor = 0;
    }
    ReleaseMouse();
    return true;
}

bool CSimpleHeader::HandleDoubleClick(int x, int y, int, MouseButton button)
{
    HitTestResult const result = HitTest({x, y});
    if (button != mbLeft || result.m_Area != htDivider)
        return false;
    m_SigDividerDoubleClicked(this, result.m_Section);
    return true;
}

void CSimpleHeader::HandleMouseLeave(CVisualElement*)
{
    CAliveGuard const alive(this);
    if (m_State == stPressed)
    {
        m_State = stIdle;
        OnChange(this, utElement);
    }
    if (alive && m_HotSection != -1)
    {
        m_HotSection = -1;
        OnChange(this, utElement);
    }
}

bool CSimpleHeader::HandleOnTooltip(CTooltipEvent* event)
{
    HitTestResult const result = HitTest({event->m_X, event->m_Y});
    if (result.m_Area != htSection)
        return false;
    event->m_Text = GetItemDescription(result.m_Section);
    rectangle<int> rect = result.m_Rect;
    rect.Normalize();
    rectangle<int> const bounds = GetBounds();
    rect.right = std::min(rect.right, bounds.right);
    rect.bottom = std::min(rect.bottom, bounds.bottom);
    event->m_HotRect = rect;
    return true;
}

// Dragging a section --------------------------------------------------------------------------------------------------------

bool CSimpleHeader::HandleStartDragging(int x, int y, DragInfo& info)
{
    HitTestResult const result = HitTest({x, y});
    if (result.m_Area != htSection || m_State == stResizing || !(m_Style & hsDrag))
        return false;
    m_ActiveSection = result.m_Section;
    info.m_Rect = result.m_Rect;
    ElementToControl(&info.m_Rect);
    info.m_Bounds = m_DragRect.IsEmpty() ? GetBounds() : m_DragRect;
    ElementToControl(&info.m_Bounds);
    bool const allow = Ask(m_SigCanDrag, result.m_Section);
    if (allow)
        m_State = stDragging;
    return allow;
}

void CSimpleHeader::HandleDragFinished(CVisualElement*, DragInfo& info)
{
    info.m_Rect = {};
    info.m_Bounds = {};
    info.m_Data = 0;
    m_State = stIdle;
    m_Anchor = 0;
}

bool CSimpleHeader::HandleDragOver(CVisualElement* source)
{
    return source == this;
}

bool CSimpleHeader::HandleDragOver(CVisualElement* source, int x, int y, DragInfo&)
{
    if (!HandleDragOver(source))
        return false;
    m_SigDragOver(this, m_ActiveSection, HitTest({x, y}).m_Section);
    return true;
}

void CSimpleHeader::HandleDropDone(CVisualElement*, int x, int y, DragInfo&)
{
    HitTestResult const result = HitTest({x, y});
    int target = -1;
    switch (result.m_Area)
    {
    case htSection:
    case htDivider:
        target = result.m_Section;
        break;
    case htEmptyEnd:
    case htBefore:  // goes to the end, too
        target = GetSectionCount() - 1;
        break;
    case htNothing:
        if (AlongOf(x, y) < 0)
            target = GetSectionCount() - 1;
        break;
    case htBehind:
        break;
    }
    int const moved = m_ActiveSection;
    if (target >= 0 && moved >= 0)
    {
        CAliveGuard const alive(this);
        m_SigSectionMoved(this, moved, target);
        alive.Check();
        if (m_ViewModel && m_Model)
            m_ViewModel->UpdateModelState(static_cast<IIndexTranslator*>(m_Model));
        alive.Check();
        OnChange(this, utElement);
        alive.Check();
    }
    m_ActiveSection = -1;
}

}  // namespace vexel
