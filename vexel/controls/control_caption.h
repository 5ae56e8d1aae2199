#pragma once

#include "vexel/controls/arrow_button.h"
#include "vexel/controls/element_caption.h"

namespace vexel
{

/// A title strip that is clicked as a whole, with an arrow that points to the side it is docked away from. It is active
/// while the pointer is over it.
class VEXEL_API CControlCaption : public CElementCaption
{
public:
    CControlCaption(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    signal_t<CControlCaption*> m_Clicked;  ///< By the left button, anywhere on the strip. A slot may delete the strip.

    CArrowButton& GetArrow() { return m_Arrow; }
    void Layout();  ///< The arrow's place and direction by the strip's edge.
    void ProcessClick(CVisualElement* element, int x, int y, int keys, MouseButton button);

public:  // From CElementCaption
    /// The arrow goes by the edge that the strip had before; Layout brings it up to date.
    void SetAlignment(Alignment alignment) override;
    void HandleChildrenMouseHover(CVisualElement* previous) override;
    void HandleChildrenMouseLeave(CVisualElement* next) override;
    void SetActive(bool active) override;  ///< The arrow is raised while active.

private:
    CArrowButton m_Arrow;
};

}  // namespace vexel
