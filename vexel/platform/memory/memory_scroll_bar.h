#pragma once

#include "vexel/export.h"
#include "vexel/platform/memory/native_control.h"

namespace vexelbase::memory
{

/// A scroll bar. Its thickness is the system's metric; along its length stand an arrow as long as it is thick, the track
/// with the thumb, and another arrow; a bar shorter than two arrows is all arrows.
///
/// The record's position runs from minimum to maximum - page. With `inverted` the thumb stands from the other end: an
/// event's position is always the thumb's distance from the left or top end, so that it is maximum - page - the record's.
class VEXEL_MEMORY_API CMemoryScrollBar final : public CMemoryNativeControl<IScrollBar>
{
public:
    CMemoryScrollBar(CMemorySystem& system, CMemoryNode& window, bool vertical);

    bool IsVertical() const { return m_Vertical; }

    // The user: each moves the thumb, cut to its range, and fires if that changed anything; nothing while disabled --------
    void DragThumb(double fromEnd);  ///< To this distance from the left or top end.
    void StepLine(int steps);        ///< Below 0: toward the left or top.
    void StepPage(int pages);
    double GetThumbPos() const;      ///< The distance from the left or top end.
    /// Where the thumb stands, in the bar's pixels along its length: first and behind the last.
    range<int> GetThumbPixels() const;

    // From IScrollBar ---------------------------------------------------------------------------------------------
    void GetInfo(SScrollBarInfo& info) const override { info = m_Info; }
    void SetInfo(SScrollBarInfo const& info) override { m_Info = info; }
    double GetScrollPos() const override { return m_Info.position; }
    void SetScrollPos(double position) override;
    void Refresh() override;
    std::string GetText() const override { return {}; }

    // From CMemoryNode --------------------------------------------------------------------------------------------
    bool TakesFocus() const override { return false; }
    void NodeMouseMove(CMouseEvent& event) override;
    void NodeButtonDown(CMouseEvent& event, bool doubled) override;
    void NodeButtonUp(CMouseEvent& event) override;
    void NodeWheel(CMouseWheelEvent& event) override;
    void NodeLostCapture() override { m_Dragging = false; }

private:
    double GetRoom() const;  // how far the thumb can go
    void UserMoves(double fromEnd, CScrollEvent::ScrollAction action);
    int Along(CMouseEvent const& event) const { return m_Vertical ? event.m_Y : event.m_X; }
    range<int> GetTrack() const;

    bool const m_Vertical;
    SScrollBarInfo m_Info;
    bool m_Dragging = false;
    int m_Grip = 0;  // where in the thumb it was taken
};

} // namespace vexelbase::memory
