#pragma once

#include "vexel/core/visual_element.h"

namespace vexel
{

/// Fills the corner between two bars with its background.
class VEXEL_API CScrollCorner : public CVisualElement
{
public:
    CScrollCorner(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    void DrawContent(IPainter* painter) override;
};

}  // namespace vexel
