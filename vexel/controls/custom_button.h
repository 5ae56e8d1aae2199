#pragma once

#include "vexel/controls/button.h"

namespace vexel
{

/// A button whose subclasses draw it whole, one operation for each state.
class VEXEL_API CCustomButton : public CButton
{
public:
    using CButton::CButton;

public:  // From CButton
    void DrawContent(IPainter* painter) override;
    bool HandleMouseMove(int x, int y, int keys, MouseButton button) override;

public:  // Overridable
    /// `*handled` false, as here: the disabled button is then drawn as if it were enabled.
    virtual void DrawDisabledContent(IPainter*, bool& handled) { handled = false; }
    virtual void DrawNormalContent(IPainter* painter) = 0;
    virtual void DrawHighlightedContent(IPainter* painter) = 0;  ///< The pointer is inside the sensitive area.
    virtual void DrawPressedContent(IPainter* painter) = 0;
    virtual void DrawFocusRect(IPainter* painter);

protected:
    /// The pointer was inside the sensitive area when it last moved over the element.
    bool IsMouseInside() const { return m_MouseInside; }

private:
    bool m_MouseInside = false;
};

}  // namespace vexel
