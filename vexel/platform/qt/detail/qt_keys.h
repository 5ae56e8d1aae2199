#pragma once

#include "vexel/platform/events.h"

#include <Qt>

class QKeyEvent;

namespace vexelbase::qt
{

/// The framework's key state word. Keypad, group and lock keys do not count.
int ToKeyState(Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons);

MouseButton ToMouseButton(Qt::MouseButton button);   ///< mbNone for buttons that the framework does not know.
MouseButton ToHeldButton(Qt::MouseButtons buttons);  ///< The left one before the right one before the middle one.

/// The virtual key, 0 for keys without one. A digit of the upper row keeps its number while shift is held.
int ToVirtualKey(QKeyEvent const& event);

}  // namespace vexelbase::qt
