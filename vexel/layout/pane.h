#pragma once

#include "vexel/core/visual_element.h"

namespace vexel
{

/// A group with a frame of one pixel, whose colour shows whether the focus lies inside.
class VEXEL_API CPane : public CVisualElement
{
public:
    CPane(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    bool IsActive() const { return m_Active; }  ///< The focus lies inside.
    virtual _color GetActiveColor() const;      ///< Of the frame: the system's highlight.
    virtual _color GetInactiveColor() const;    ///< The system's shadow.

    // From CVisualElement ---------------------------------------------------------------------------------------------
    rectangle<int> GetContentRect() const override;  ///< Inside of the frame.
    void DrawContent(IPainter* painter) override;    ///< The frame; nothing without a system palette.
    void HandleChildFocusChanged(CVisualElement* element, CVisualElement* other, bool got) override;

private:
    bool m_Active = false;
};

}  // namespace vexel
