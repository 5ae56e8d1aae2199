#include "vexel/controls/custom_button.h"

#include "vexel/controls/detail/focus_frame.h"
#include "vexel/platform/painter.h"

namespace vexel
{

void CCustomButton::DrawContent(IPainter* painter)
{
    CAliveGuard const alive(this);
    painter->m_PenDirty = false;
    if (!IsEnabled())
    {
        bool handled = false;
        DrawDisabledContent(painter, handled);
        if (handled || !alive)
            return;
    }
    if (GetClickStage() == StagePressed)
        DrawPressedContent(painter);
    else if (m_MouseInside && IsUnderMouse())
        DrawHighlightedContent(painter);
    else
        DrawNormalContent(painter);
    if (alive && IsFocused())
        DrawFocusRect(painter);
}

void CCustomButton::DrawFocusRect(IPainter* painter)
{
    int const inset = 3;  // at any scale
    rectangle<int> rect = GetContentRect();
    rect.Normalize();
    detail::DrawFocusFrame(painter,
                           {static_cast<double>(rect.left), static_cast<double>(rect.top),
                            static_cast<double>(rect.right), static_cast<double>(rect.bottom)},
                           inset);
}

bool CCustomButton::HandleMouseMove(int x, int y, int keys, MouseButton button)
{
    bool const inside = IsMouseOverButton(x, y);
    if (inside != m_MouseInside)
    {
        CAliveGuard const alive(this);
        m_MouseInside = inside;
        Update(utElement);
        alive.Check();
    }
    return CButton::HandleMouseMove(x, y, keys, button);
}

}  // namespace vexel
