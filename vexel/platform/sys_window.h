#pragma once

#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/threads.h"

namespace vexelbase
{

class CVexelControl;
class IPainter;

/// A native window, or a child area of one. Pixels of its client area, origin at the left-top.
/// The surface keeps what was painted; only resizing, or a move that reads what was never there, asks for a full paint.
/// Its Post runs on the GUI thread after the present event and dies with the window.
class VEXEL_API ISysWindow : public ISynchronizer
{
public:
    enum ScrollType : int
    {
        stHorizontal = 1,
        stVertical = 2
    };

    // Area --------------------------------------------------------------------------------------------------------
    virtual rectangle<int> GetRect() const = 0;  ///< From (0, 0); right and bottom are the size.
    /// Asks for a native paint, which comes later and once for many requests. Legal during a paint.
    virtual void InvalidateRect(int left, int top, int right, int bottom) = 0;
    /// Invalidates and paints at once; while a paint is under way it only invalidates.
    virtual void UpdateNow() = 0;
    /// Moves the pixels of `area` (right and bottom included) now. What leaves the surface is lost, what is uncovered
    /// keeps its old pixels; pixels that would come from outside the surface make the next paint a full one.
    virtual void ScrollPixels(int dx, int dy, screen_rectangle<int> const& area) = 0;
    virtual void LockDrawing(bool lock) = 0;  ///< Counted; while locked nothing reaches the screen.
    /// The same object during a paint and for measuring between paints; null where there is no surface.
    virtual IPainter* GetPainter() = 0;

    // Focus and pointer -------------------------------------------------------------------------------------------
    virtual void SetFocus() = 0;
    virtual bool HasFocus() const = 0;
    virtual void SetOption(bool option) = 0;
    virtual void SetCursor(int cursor) = 0;  ///< 1 arrow, 7 resize up-down, 9 resize left-right, 12 hand, 13 no drop.
    virtual void CaptureMouse() = 0;         ///< Not counted.
    virtual void ReleaseMouse() = 0;
    virtual void TrackPointer() = 0;  ///< Asks that hovering and leaving be told.
    virtual void HideTooltip() = 0;
    virtual void ScreenToClient(point<int>* position) const = 0;
    virtual void ClientToScreen(point<int>* position) const = 0;

    // Life --------------------------------------------------------------------------------------------------------
    virtual bool IsDestroying() const = 0;  ///< True from the start of the native destruction.
    /// Who gets the native events; null: nobody. Set by CVexelControl.
    virtual void SetEventTarget(CVexelControl* target) = 0;
    virtual CVexelControl* GetEventTarget() const = 0;

    // Native children: hidden at first, owned by their references -------------------------------------------------
    virtual vexel_ptr<IScrollBar> CreateScrollBar(int type) = 0;
    virtual vexel_ptr<IEdit> CreateEdit(bool option) = 0;
    virtual vexel_ptr<IComboBox> CreateComboBox(bool editable) = 0;
    virtual vexel_ptr<IPopup> CreatePopup() = 0;
};

}  // namespace vexelbase
