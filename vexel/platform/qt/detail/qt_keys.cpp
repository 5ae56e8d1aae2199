#include "vexel/platform/qt/detail/qt_keys.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace vexelbase::qt
{

namespace
{

struct SKey
{
    int native;
    int virtualKey;
};

// Those that are neither letters, digits nor function keys.
constexpr SKey Keys[] = {
    {Qt::Key_Backspace, vkBackspace},
    {Qt::Key_Tab, vkTab},
    {Qt::Key_Backtab, vkTab},
    {Qt::Key_Clear, 12},
    {Qt::Key_Return, vkReturn},
    {Qt::Key_Enter, vkReturn},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, vkEscape},
    {Qt::Key_Space, vkSpace},
    {Qt::Key_PageUp, vkPageUp},
    {Qt::Key_PageDown, vkPageDown},
    {Qt::Key_End, vkEnd},
    {Qt::Key_Home, vkHome},
    {Qt::Key_Left, vkLeft},
    {Qt::Key_Up, vkUp},
    {Qt::Key_Right, vkRight},
    {Qt::Key_Down, vkDown},
    {Qt::Key_Print, 44},
    {Qt::Key_Insert, vkInsert},
    {Qt::Key_Delete, vkDelete},
    {Qt::Key_Help, 47},
    {Qt::Key_Meta, 91},
    {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
};

// On X11 and Wayland the upper row's keys 1 to 9 and 0 have the codes 10 to 19, whatever is printed on them.
int DigitOfUpperRow(quint32 scanCode)
{
    constexpr quint32 first = 10;
    constexpr quint32 count = 10;
    if (scanCode < first || scanCode >= first + count)
        return 0;
    static bool const known = [] {
        QString const platform = QGuiApplication::platformName();
        return platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
    }();
    return known ? '0' + static_cast<int>((scanCode - first + 1) % count) : 0;
}

}  // namespace

int ToKeyState(Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons)
{
    int result = 0;
    if (buttons & Qt::LeftButton)
        result |= ksLeft;
    if (buttons & Qt::RightButton)
        result |= ksRight;
    if (buttons & Qt::MiddleButton)
        result |= ksMiddle;
    if (modifiers & Qt::ShiftModifier)
        result |= ksShift;
    if (modifiers & Qt::ControlModifier)
        result |= ksControl;
    if (modifiers & Qt::AltModifier)
        result |= ksAlt;
    return result;
}

MouseButton ToMouseButton(Qt::MouseButton button)
{
    switch (button)
    {
    case Qt::LeftButton:
        return mbLeft;
    case Qt::MiddleButton:
        return mbMiddle;
    case Qt::RightButton:
        return mbRight;
    default:
        return mbNone;
    }
}

MouseButton ToHeldButton(Qt::MouseButtons buttons)
{
    if (buttons & Qt::LeftButton)
        return mbLeft;
    if (buttons & Qt::RightButton)
        return mbRight;
    if (buttons & Qt::MiddleButton)
        return mbMiddle;
    return mbNone;
}

int ToVirtualKey(QKeyEvent const& event)
{
    int const key = event.key();
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))
        return key;  // the same codes
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return vkF1 + (key - Qt::Key_F1);
    for (SKey const& known : Keys)
    {
        if (known.native == key)
            return known.virtualKey;
    }
    return DigitOfUpperRow(event.nativeScanCode());
}

}  // namespace vexelbase::qt
