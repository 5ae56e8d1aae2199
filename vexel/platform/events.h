#pragma once

#include "vexel/export.h"
#include "vexel/platform/font.h"
#include "vexel/platform/geometry.h"
#include "vexel/signals/event.h"

#include <string>

namespace vexelbase
{

enum MouseButton : int
{
    mbNone = 0,
    mbLeft = 1,
    mbMiddle = 2,
    mbRight = 3
};

/// The key state word of input events: the state after the event. No lock keys.
enum KeyState : int
{
    ksLeft = 0x1,
    ksRight = 0x2,
    ksMiddle = 0x4,
    ksShift = 0x100,
    ksControl = 0x200,
    ksAlt = 0x400
};

/// Virtual keys that the framework names; letters and digits are their upper-case ASCII codes.
enum VirtualKey : int
{
    vkBackspace = 8,
    vkTab = 9,
    vkReturn = 13,
    vkEscape = 27,
    vkSpace = 32,
    vkPageUp = 33,
    vkPageDown = 34,
    vkEnd = 35,
    vkHome = 36,
    vkLeft = 37,
    vkUp = 38,
    vkRight = 39,
    vkDown = 40,
    vkInsert = 45,
    vkDelete = 46,
    vkF1 = 112  ///< Up to F24.
};

/// Mouse: control pixels. Press and release carry their button, a move the button that is held (the left one first).
class VEXEL_API CMouseEvent : public CEvent
{
public:
    CMouseEvent() = default;
    CMouseEvent(int x, int y, int keys, MouseButton button) : m_Keys(keys), m_X(x), m_Y(y), m_Button(button) {}

    int m_Keys = 0;
    int m_X = 0;
    int m_Y = 0;
    MouseButton m_Button = mbNone;
};

class VEXEL_API CMouseWheelEvent : public CMouseEvent
{
public:
    CMouseWheelEvent() = default;
    CMouseWheelEvent(int x, int y, int keys, MouseButton button, int delta)
        : CMouseEvent(x, y, keys, button), m_Delta(delta)
    {}

    int m_Delta = 0;  ///< Whole notches; above 0: away from the user.
};

class VEXEL_API CKeyboardEvent : public CEvent
{
public:
    CKeyboardEvent() = default;
    CKeyboardEvent(int keys, int virtualKey, char character = 0)
        : m_Keys(keys), m_VirtualKey(virtualKey), m_Character(character)
    {}

    int GetVirtualKey() const { return m_VirtualKey; }
    char GetCharacterCode() const
    {
        return m_Character;
    }  ///< One UTF-8 byte; a longer character comes as several events.

    int m_Keys = 0;
    bool m_PassOn = true;  ///< Cleared: the key moved the focus, nobody else may act on it.

private:
    int m_VirtualKey = 0;
    char m_Character = 0;
};

/// A tooltip is asked for, or the pointer moves on while one shows.
class VEXEL_API CTooltipEvent : public CEvent
{
public:
    int m_X = 0;
    int m_Y = 0;
    rectangle<int> m_HotRect;  ///< While the pointer stays in it the tip stands; control coordinates, all zero: none.
    rectangle<int> m_BoundsRect;  ///< Where the tip should stand; control coordinates, all zero: at the pointer.
    std::string m_Text;           ///< Empty: no tip.
    bool m_Multiline = false;
    font m_Font;
};

class VEXEL_API CContextMenuEvent : public CEvent
{
public:
    CContextMenuEvent() = default;
    CContextMenuEvent(int x, int y) : m_X(x), m_Y(y) {}

    int m_X = 0;
    int m_Y = 0;
};

/// Focus enters the control by tabbing. The receiver owns the object and frees it.
class VEXEL_API CCustomEvent : public CEvent
{
public:
    enum Identifier : int
    {
        ceFirstTabElement = 0,
        ceLastTabElement = 1
    };

    explicit CCustomEvent(int id) : m_Id(id) {}

    int m_Id = 0;
};

/// A scroll bar moved.
class VEXEL_API CScrollEvent : public CEvent
{
public:
    enum ScrollAction : int
    {
        saThumb = 0,
        saRangeChanged = 1,  ///< The position was pushed back by a change of range.
        saLine = 2,
        saPage = 3,
        saSetValue = 4
    };

    CScrollEvent() = default;
    CScrollEvent(double position, ScrollAction action) : m_Position(position), m_Action(action) {}

    double m_Position = 0;  ///< The position asked for, in the bar's own sense.
    ScrollAction m_Action = saThumb;
};

class VEXEL_API CEditKeyDownEvent : public CEvent
{
public:
    CEditKeyDownEvent() = default;
    CEditKeyDownEvent(int keys, int virtualKey, char character = 0)
        : m_Keys(keys), m_VirtualKey(virtualKey), m_Character(character)
    {}

    int m_Keys = 0;
    int m_VirtualKey = 0;
    char m_Character = 0;
};

class VEXEL_API CWindowEvent : public CEvent
{};
class VEXEL_API CFocusEvent : public CEvent
{};
class VEXEL_API CTimerEvent : public CEvent
{};
class VEXEL_API CChangeTextEvent : public CEvent
{};
class VEXEL_API CVisibleChangeEvent : public CEvent
{};
class VEXEL_API CEditMouseWheelEvent : public CEvent
{
public:
    int m_Delta = 0;
};

}  // namespace vexelbase
