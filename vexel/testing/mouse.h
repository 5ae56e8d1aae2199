#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/events.h"
#include "vexel/platform/geometry.h"

namespace vexel::test
{

class CTestHost;

/// The user's mouse. It moves the pointer of the memory system, which tells the windows as a desktop does: a move goes to
/// the window under the pointer, or to that which holds the capture; a window that the pointer leaves is told, if it
/// asked to be; a press closes popups that it is outside of.
///
/// Positions: pixels of the element that is given, otherwise pixels of the host's control. They may lie outside. Elements
/// must have been laid out (host.Paint()). The key state of the events follows from the buttons and keys that are held.
class VEXEL_TESTING_API CMouse
{
public:
    explicit CMouse(CTestHost& host) : m_Host(host) {}

    // Where: to move to the place where the pointer stands makes no event ------------------------------------------
    void Move(int x, int y);
    void Move(CVisualElement const& element, int x, int y);
    void Leave();                          ///< Far outside of the host's window.
    vexelbase::point<int> GetPos() const;  ///< Control pixels.

    // Buttons, after a move to the position where one is given -----------------------------------------------------
    void Press(vexelbase::MouseButton button = vexelbase::mbLeft);
    void Press(int x, int y, vexelbase::MouseButton button = vexelbase::mbLeft);
    void Press(CVisualElement const& element, int x, int y, vexelbase::MouseButton button = vexelbase::mbLeft);
    void Release(vexelbase::MouseButton button = vexelbase::mbLeft);
    void Release(int x, int y, vexelbase::MouseButton button = vexelbase::mbLeft);
    void Release(CVisualElement const& element, int x, int y, vexelbase::MouseButton button = vexelbase::mbLeft);
    /// Press and release.
    void Click(vexelbase::MouseButton button = vexelbase::mbLeft);
    void Click(int x, int y, vexelbase::MouseButton button = vexelbase::mbLeft);
    void Click(CVisualElement const& element, int x, int y, vexelbase::MouseButton button = vexelbase::mbLeft);
    /// Two clicks; the second press comes as a press and then as a double click.
    void DoubleClick(vexelbase::MouseButton button = vexelbase::mbLeft);
    void DoubleClick(int x, int y, vexelbase::MouseButton button = vexelbase::mbLeft);
    void DoubleClick(CVisualElement const& element, int x, int y, vexelbase::MouseButton button = vexelbase::mbLeft);
    void PressAgain(vexelbase::MouseButton button = vexelbase::mbLeft);  ///< The second press of a double click alone.
    bool IsHeld(vexelbase::MouseButton button) const;
    /// The button comes up without any event, as if another program had taken it.
    void LoseRelease(vexelbase::MouseButton button = vexelbase::mbLeft);

    /// Press at the start, then moves in `steps` equal steps to the end, which is in the same pixels. The button stays
    /// held: Release() drops.
    void Drag(int fromX, int fromY, int toX, int toY, int steps = 4);
    void Drag(CVisualElement const& element, int fromX, int fromY, int toX, int toY, int steps = 4);

    // The rest -----------------------------------------------------------------------------------------------------
    void Wheel(int notches);  ///< Above 0: away from the user.
    void Wheel(int x, int y, int notches);
    void Wheel(CVisualElement const& element, int x, int y, int notches);
    void Hover();  ///< The pointer has rested where it is: OnHover.
    void Hover(int x, int y);
    void Hover(CVisualElement const& element, int x, int y);

private:
    vexelbase::point<int> ToControl(CVisualElement const& element, int x, int y) const;

    CTestHost& m_Host;
};

} // namespace vexel::test
