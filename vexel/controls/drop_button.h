#pragma once

#include "vexel/controls/button.h"

namespace vexel
{

/// A button with a drop arrow at its right end. Of the keys only alt and down operates it.
class VEXEL_API CDropButton : public CButton
{
public:
    using CButton::CButton;

    signal_t<CDropButton*> m_SigDropDown;  ///< Alt and down was pressed.

public:  // From CButton
    void DrawContent(IPainter* painter) override;
    bool HandleKeyDown(int keys, int key) override;
    rectangle<int> GetInternalRect() const override;  ///< Without the arrow.
    size<int> GetAutoSizeAdditionalExtent() const override;
    size<int> GetDrawingAdditionalExtent() const override;
};

/// The arrow of a combo box. As wide as a vertical scroll bar; never takes the focus.
class VEXEL_API CComboButton : public CButton
{
public:
    CComboButton(CVisualElement* parent, size<int> const& extent, Alignment alignment);

public:  // From CButton
    void DrawContent(IPainter* painter) override;
    void RecalculateSize() override;
};

}  // namespace vexel
