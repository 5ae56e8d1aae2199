#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/test_kit.h"

namespace vexel
{

/// What the kit's tests act upon: a round lamp that a click in the bulb turns on and off.
class CLamp : public CVisualElement
{
public:
    CLamp(CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CVisualElement(parent, extent, alignment)
    {
    }

    bool IsLit() const { return m_Lit; }
    void SetLit(bool lit)
    {
        if (lit == m_Lit)
            return;
        m_Lit = lit;
        OnChange(this, utElement);
        m_SigLit(this, lit);
    }

    signal_t<CLamp*, bool> m_SigLit;

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
        int const side = bounds.right < bounds.bottom ? bounds.right : bounds.bottom;
        int const left = (bounds.right - side) / 2;
        int const top = (bounds.bottom - side) / 2;
        painter->SetBrush({m_Lit ? color_table[3] : color_table[8], brush::bsSolid});
        painter->RoundRect(left, top, left + side, top + side, side, side);
    }
    bool HandleClick(int, int, int, MouseButton button) override
    {
        if (button == mbLeft)
            SetLit(!m_Lit);
        return true;
    }

private:
    bool m_Lit = false;
};

} // namespace vexel
