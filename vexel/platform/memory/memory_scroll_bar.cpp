#include "vexel/platform/memory/memory_scroll_bar.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/signals/notify.h"

#include <algorithm>

namespace vexelbase::memory
{

namespace
{
constexpr int LeastThumb = 4;
constexpr int LinesPerNotch = 3;
} // namespace

CMemoryScrollBar::CMemoryScrollBar(CMemorySystem& system, CMemoryNode& window, bool vertical)
    : CMemoryNativeControl<IScrollBar>(system, window), m_Vertical(vertical)
{
    SetSupportedEvent(typeid(IScrollBarNotify));
    int const width = system.GetSystemMetric(ISystem::smScrollBarWidth);
    int const height = system.GetSystemMetric(ISystem::smScrollBarHeight);
    Place(0, 0, vertical ? width : 3 * width, vertical ? 3 * height : height);
}

double CMemoryScrollBar::GetRoom() const
{
    return std::max(m_Info.maximum - m_Info.page - m_Info.minimum, 0.0);
}

double CMemoryScrollBar::GetThumbPos() const
{
    double const position = std::clamp(m_Info.position - m_Info.minimum, 0.0, GetRoom());
    return m_Info.inverted ? GetRoom() - position : position;
}

void CMemoryScrollBar::SetScrollPos(double position)
{
    m_Info.position = std::clamp(position, m_Info.minimum, m_Info.minimum + GetRoom());
}

void CMemoryScrollBar::Refresh()
{
    rectangle<int> const rect = GetNodeRect();
    int const thickness =
        GetSystem().GetSystemMetric(m_Vertical ? ISystem::smScrollBarWidth : ISystem::smScrollBarHeight);
    Place(rect.left, rect.top, m_Vertical ? thickness : rect.Width(), m_Vertical ? rect.Height() : thickness);
}

// The user ---------------------------------------------------------------------------------------------------------

void CMemoryScrollBar::UserMoves(double fromEnd, CScrollEvent::ScrollAction action)
{
    if (!IsNodeEnabled())
        return;
    double const wanted = std::clamp(fromEnd, 0.0, GetRoom());
    if (wanted == GetThumbPos())
        return;
    m_Info.position = m_Info.minimum + (m_Info.inverted ? GetRoom() - wanted : wanted);
    CScrollEvent event(m_Info.minimum + wanted, action);
    Do([&] { Fire<&IScrollBarNotify::ScrollBarOnScroll>(*this, &event, true); });
}

void CMemoryScrollBar::DragThumb(double fromEnd)
{
    UserMoves(fromEnd, CScrollEvent::saThumb);
}

void CMemoryScrollBar::StepLine(int steps)
{
    UserMoves(GetThumbPos() + steps * m_Info.lineStep, CScrollEvent::saLine);
}

void CMemoryScrollBar::StepPage(int pages)
{
    UserMoves(GetThumbPos() + pages * m_Info.page, CScrollEvent::saPage);
}

range<int> CMemoryScrollBar::GetTrack() const
{
    rectangle<int> const& rect = GetNodeRect();
    int const length = m_Vertical ? rect.Height() : rect.Width();
    int const arrow = std::min(m_Vertical ? rect.Width() : rect.Height(), length / 2);
    return {arrow, length - arrow};
}

range<int> CMemoryScrollBar::GetThumbPixels() const
{
    range<int> const track = GetTrack();
    int const length = track.second - track.first;
    double const whole = m_Info.maximum - m_Info.minimum;
    if (GetRoom() <= 0 || whole <= 0 || length <= 0)
        return {track.first, track.second};
    int const thumb = std::clamp(ToInt(length * (m_Info.page / whole)), std::min(LeastThumb, length), length);
    int const start = track.first + ToInt((length - thumb) * (GetThumbPos() / GetRoom()));
    return {start, start + thumb};
}

void CMemoryScrollBar::NodeButtonDown(CMouseEvent& event, bool)
{
    if (event.m_Button != mbLeft)
        return;
    int const at = Along(event);
    range<int> const track = GetTrack();
    range<int> const thumb = GetThumbPixels();
    if (at < track.first)
        StepLine(-1);
    else if (at >= track.second)
        StepLine(1);
    else if (at < thumb.first)
        StepPage(-1);
    else if (at >= thumb.second)
        StepPage(1);
    else
    {
        m_Dragging = true;
        m_Grip = at - thumb.first;
        GetSystem().SetCaptureNode(this);
    }
}

void CMemoryScrollBar::NodeMouseMove(CMouseEvent& event)
{
    if (!m_Dragging)
        return;
    range<int> const track = GetTrack();
    range<int> const thumb = GetThumbPixels();
    int const way = track.second - track.first - (thumb.second - thumb.first);
    if (way > 0)
        DragThumb(GetRoom() * (Along(event) - m_Grip - track.first) / way);
}

void CMemoryScrollBar::NodeButtonUp(CMouseEvent&)
{
    if (m_Dragging)
        GetSystem().SetCaptureNode(nullptr);
}

void CMemoryScrollBar::NodeWheel(CMouseWheelEvent& event)
{
    StepLine(-LinesPerNotch * event.m_Delta);
}

} // namespace vexelbase::memory
