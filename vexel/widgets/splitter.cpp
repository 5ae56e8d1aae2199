#include "vexel/widgets/splitter.h"

#include "vexel/core/control.h"
#include "vexel/platform/sys_window.h"

#include <cstdint>

namespace vexel
{

namespace
{

int const g_UpDownCursor = 7;
int const g_LeftRightCursor = 9;
int const g_Wobble = 2;  // pixels at any scale that are no move

rectangle<int> Moved(rectangle<int> const& rect, int dx, int dy)
{
    return {AddSaturated(rect.left, dx), AddSaturated(rect.top, dy), AddSaturated(rect.right, dx),
            AddSaturated(rect.bottom, dy)};
}

}  // namespace

CSplitter::CSplitter(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CBevel(parent, extent, alignment)
{
    CSplitter::SetAlignment(alignment);
}

void CSplitter::SetElements(CVisualElement* first, CVisualElement* second)
{
    m_First.Watch(first);
    m_Second.Watch(second);
}

void CSplitter::SetMinSize(int pixels)
{
    m_MinSize = pixels < 0 ? 0 : pixels;
}

void CSplitter::SetAlignment(Alignment alignment)
{
    if (ChangeLayout(alignment))
        SetCursor(alignment == alLeft || alignment == alRight ? g_LeftRightCursor : g_UpDownCursor);
    CBevel::SetAlignment(alignment);
}

void CSplitter::SetPos(rectangle<int> const& rect, bool)
{
    CBevel::SetPos(rect, true);
}

// The drag ------------------------------------------------------------------------------------------------------------------

bool CSplitter::IsCapturing() const
{
    return GetControl() && GetControl()->GetCapture() == this;
}

void CSplitter::InvalidateWindow()
{
    ISysWindow* const window = GetControl() ? GetControl()->GetWindow() : nullptr;
    if (!window)
        return;
    rectangle<int> const area = window->GetRect();
    window->InvalidateRect(area.left, area.top, area.right, area.bottom);
}

bool CSplitter::HandleButtonDown(int x, int y, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    CaptureMouse();
    m_StartX = x;
    m_StartY = y;
    return true;
}

bool CSplitter::HandleMouseMove(int x, int y, int, MouseButton button)
{
    if (!IsCapturing())
        return false;
    if (button != mbLeft)
    {
        // The release was lost.
        ReleaseMouse();
        return false;
    }
    CAliveGuard const alive(this);
    if (!m_LiveResize || !UpdateElementSize(x, y))
        return false;
    if (alive)
        InvalidateWindow();
    return true;
}

bool CSplitter::HandleButtonUp(int x, int y, int, MouseButton button)
{
    bool const consumed = button == mbLeft;
    CAliveGuard const alive(this);
    if (!m_LiveResize)
    {
        UpdateElementSize(x, y);
        if (!alive)
            return consumed;
        InvalidateWindow();
    }
    RefreshElementSize();
    if (!alive)
        return consumed;
    m_Finished(this);
    if (alive)
        ReleaseMouse();
    return consumed;
}

bool CSplitter::UpdateElementSize(int x, int y)
{
    if (!m_First || !IsCapturing())
        return false;
    double const dx = static_cast<double>(x) - m_StartX;
    double const dy = static_cast<double>(y) - m_StartY;
    int delta = ToInt(GetAcross(dx, dy));
    if (delta >= -g_Wobble && delta <= g_Wobble)
        return false;
    if (GetAlignment() == alRight || GetAlignment() == alBottom)
        delta = SubtractSaturated(0, delta);

    size<int> const stored = m_First->GetSize();
    point<double> moved{static_cast<double>(stored.width), static_cast<double>(stored.height)};
    IncAcross(&moved, delta);
    CAliveGuard const alive(this);
    m_SizeProposed(this, size<int>{ToInt(moved.x), ToInt(moved.y)});
    if (!alive)
        return true;
    m_Delta(this, delta);
    if (!alive || !UpdateSplitterPos(delta) || !alive)
        return true;
    // A layout that waits would put the siblings back to the sizes that they were given.
    if (m_RefreshWhileMoving || (GetControl() && GetControl()->IsRearrangeNeeded()))
    {
        RefreshElementSize();
        if (!alive)
            return true;
    }
    m_Moved(this);
    return true;
}

int CSplitter::CheckDelta(int delta) const
{
    if (!m_First || !m_Second)
        return delta;
    auto const across = [this](rectangle<int> const& rect) {
        return ToInt(GetAcross(SubtractSaturated(rect.right, rect.left), SubtractSaturated(rect.bottom, rect.top)));
    };
    std::int64_t const first = std::int64_t{across(m_First->GetPos())} + delta;
    std::int64_t const second = std::int64_t{across(m_Second->GetPos())} - delta;
    std::int64_t result = delta;
    if (first < m_MinSize)
        result += m_MinSize - first;
    else if (second < m_MinSize)
        result -= m_MinSize - second;
    return SaturateToInt(result);
}

bool CSplitter::UpdateSplitterPos(int delta)
{
    if (!m_First || !m_Second)
        return false;
    int const step = CheckDelta(delta);
    rectangle<int> first = m_First->GetPos();
    rectangle<int> second = m_Second->GetPos();
    rectangle<int> bar = GetPos();
    bool const sideways = GetAlignment() == alLeft || GetAlignment() == alRight;
    switch (GetAlignment())
    {
    case alLeft:
        first.right = AddSaturated(first.right, step);
        bar = Moved(bar, step, 0);
        second.left = AddSaturated(second.left, step);
        break;
    case alRight:
        first.left = SubtractSaturated(first.left, step);
        bar = Moved(bar, SubtractSaturated(0, step), 0);
        second.right = SubtractSaturated(second.right, step);
        break;
    case alTop:
        first.bottom = AddSaturated(first.bottom, step);
        bar = Moved(bar, 0, step);
        second.top = AddSaturated(second.top, step);
        break;
    case alBottom:
        first.top = SubtractSaturated(first.top, step);
        bar = Moved(bar, 0, SubtractSaturated(0, step));
        second.bottom = SubtractSaturated(second.bottom, step);
        break;
    default:
        return false;
    }
    auto const isTooSmall = [this, sideways](rectangle<int> const& rect) {
        return (sideways ? SubtractSaturated(rect.right, rect.left) : SubtractSaturated(rect.bottom, rect.top)) <
               m_MinSize;
    };
    if (isTooSmall(first) || isTooSmall(second))
        return false;

    CAliveGuard const alive(this);
    CAlivePtr<CVisualElement> const one(m_First.get());
    CAlivePtr<CVisualElement> const other(m_Second.get());
    one->SetPos(first, false);
    if (alive)
        SetPos(bar, false);
    if (other)
        other->SetPos(second, false);
    if (step == 0)
        return true;
    // One's moved picture may have come over what another has moved on: nothing of theirs stands.
    if (one)
        one->OnChange(one.get(), utElement);
    if (other)
        other->OnChange(other.get(), utElement);
    // The place of a hidden one shows what is behind.
    bool const isSomeHidden = (one && !one->IsVisible()) || (other && !other->IsVisible());
    if (alive && isSomeHidden && GetParent())
        GetParent()->OnChange(GetParent(), utElement);
    return true;
}

void CSplitter::RefreshElementSize()
{
    if (!m_First)
        return;
    size<int> extent = m_First->GetSize();
    rectangle<int> const& pos = m_First->GetPos();
    if (GetAlignment() == alLeft || GetAlignment() == alRight)
        extent.width = SubtractSaturated(pos.right, pos.left);
    else if (GetAlignment() == alTop || GetAlignment() == alBottom)
        extent.height = SubtractSaturated(pos.bottom, pos.top);

    CAliveGuard const alive(this);
    IControl* const control = GetControl();
    int const noted = control ? control->GetUpdatesLastPos() : 0;
    m_First->SetSize(extent, false);
    if (!alive)
        return;
    if (control && GetControl() == control)
        control->ClearUpdates(noted);
    if (CVisualElement* const parent = GetParent())
        parent->OnChange(parent, utElement);
}

// Highlighting --------------------------------------------------------------------------------------------------------------

void CSplitter::HandleMouseHover(CVisualElement*)
{
    ChangeHighlight(true);
}

void CSplitter::HandleMouseLeave(CVisualElement*)
{
    ChangeHighlight(false);
}

void CSplitter::ChangeHighlight(bool highlighted)
{
    if (!m_Highlight)
        return;
    CAliveGuard const alive(this);
    DrawHighlighted(highlighted);
    if (alive)
        m_Highlighted(this, highlighted);
}

void CSplitter::DrawHighlighted(bool)
{
    // Colours of the system are exchanged as such, so that they go on following the desktop.
    ISysPalette::SysColor const front = GetFgSysColor();
    ISysPalette::SysColor const back = GetBkSysColor();
    _color const frontColor = GetFgColor();
    _color const backColor = GetBkColor();
    CAliveGuard const alive(this);
    if (back == ISysPalette::scLiteral)
        SetFgColor(backColor);
    else
        SetFgColor(back);
    if (!alive)
        return;
    if (front == ISysPalette::scLiteral)
        SetBkColor(frontColor);
    else
        SetBkColor(front);
}

}  // namespace vexel
