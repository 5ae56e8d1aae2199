#pragma once

#include "vexel/platform/events.h"
#include "vexel/platform/geometry.h"

#include <QPoint>
#include <QPointF>

class QContextMenuEvent;
class QEnterEvent;
class QFocusEvent;
class QHelpEvent;
class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QString;
class QWheelEvent;

namespace vexelbase::qt
{

class CQtWindow;

/// Turns Qt's input events into the framework's. Each operation answers whether the event was dealt with; the window,
/// and this object with it, may be gone afterwards.
class CQtInput
{
public:
    explicit CQtInput(CQtWindow& window) : m_Window(window) {}

    // Mouse -------------------------------------------------------------------------------------------------------
    bool Press(QMouseEvent const& event);
    bool Release(QMouseEvent const& event);
    bool Move(QMouseEvent const& event);
    bool DoubleClick(QMouseEvent const& event);
    bool Enter(QEnterEvent const& event);
    bool Leave();            ///< While the window has captured the pointer it waits for the end of that.
    bool LeaveIfStillDue();  ///< To be called when the capture has ended.
    bool IsLeaveDue() const { return m_LeaveDue; }
    bool Wheel(QWheelEvent const& event);  ///< Sideways movements are left to others.
    bool ContextMenu(QContextMenuEvent const& event);

    // Keyboard ----------------------------------------------------------------------------------------------------
    bool KeyDown(QKeyEvent const& event);
    bool KeyUp(QKeyEvent const& event);
    bool InputMethod(QInputMethodEvent const& event);

    // Tooltips ----------------------------------------------------------------------------------------------------
    bool Tooltip(QHelpEvent const& event);
    void HideTooltip();

    /// Without what is no character, such as the control codes of keys.
    static QString GetPrintable(QString const& text);
    /// How far a wheel was turned, in parts of a notch; 0: sideways.
    static int GetWheelDelta(QWheelEvent const& event);
    /// Whole notches of a wheel's movement (120 each), the rest being kept. A movement that turns round starts anew.
    static int TakeNotches(int& rest, int delta);

private:
    struct SMove
    {
        int x = 0;
        int y = 0;
        int keys = 0;
        bool operator==(SMove const&) const = default;
    };

    point<int> ToPixels(QPointF const& position) const;
    bool SendMove(QPointF const& position, Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons);
    bool SendCharacters(QString const& text, int keys);
    void ShowTooltip(CTooltipEvent const& event);

    CQtWindow& m_Window;
    int m_WheelRest = 0;  // 120ths of a notch
    bool m_TooltipShown = false;
    bool m_JustEntered = false;  // the last move was the pointer's entering
    bool m_LeaveDue = false;     // it left while it was captured
    SMove m_LastMove;
};

}  // namespace vexelbase::qt
