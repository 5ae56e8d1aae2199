#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"

namespace vexel::test
{

/// A coloured area with a frame and a diagonal, so that no part of it looks like another: a wrong pixel is seen.
class CLeaf : public CVisualElement
{
public:
    CLeaf(CVisualElement* parent, size<int> const& extent, Alignment alignment, int look)
        : CVisualElement(parent, extent, alignment)
    {
        SetBkColor(color_table[9 + look % 18]);
    }

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const rect = GetBounds();
        painter->Rectangle(0, 0, rect.right, rect.bottom);
        painter->MoveTo(0, 0);
        painter->LineTo(rect.right, rect.bottom);
    }
};

}  // namespace vexel::test
