#pragma once

#include "vexel/controls/element_caption.h"
#include "vexel/layout/pane.h"

namespace vexel
{

/// A pane with a title strip, which is active as the frame is. A click on an inactive strip gives the focus to the first
/// element inside that takes it.
class VEXEL_API CTitledPane : public CPane
{
public:
    CTitledPane(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    CElementCaption& GetTitle() { return m_Caption; }  ///< At the top, as high as its font asks.
    CElementCaption const& GetTitle() const { return m_Caption; }
    void SetTitleAlignment(Alignment alignment) { m_Caption.SetAlignment(alignment); }

    // From CVisualElement ---------------------------------------------------------------------------------------------
    bool IsTransparent() const override { return m_Caption.IsTransparent(); }
    void HandleChildFocusChanged(CVisualElement* element, CVisualElement* other, bool got) override;

private:
    void HandleCaptionButtonDown(CVisualElement* caption, int x, int y, int keys, MouseButton button);

    CElementCaption m_Caption;
};

}  // namespace vexel
