#include "vexel/controls/highlighting_handler.h"

namespace vexel
{

bool CHighlightingHandler::ProcessMouseMove(int x, int y, int keys, MouseButton button, bool* handled)
{
    if (keys & ksLeft)
    {
        *handled = true;
        return true;
    }
    constexpr int buttons = 0xff;
    if (keys & buttons)
        return false;
    return HighlightingMouseMove(x, y, keys, button, handled);
}

bool CHighlightingHandler::ProcessButtonDown(int x, int y, int keys, MouseButton button, bool* handled)
{
    if (keys & ksLeft)
        return SetCurProcessButtonDown(x, y, keys, button, handled);
    *handled = true;
    return false;
}

bool CDefTabHandler::ProcessKeyDown(int, int key, bool* handled)
{
    *handled = true;
    return SetCurProcessKeyDown(key);
}

}  // namespace vexel
