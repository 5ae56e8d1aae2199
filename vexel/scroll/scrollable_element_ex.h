#pragma once

#include "vexel/layout/layout_flavor.h"
#include "vexel/platform/painter.h"
#include "vexel/scroll/scrollable_element.h"

namespace vexel
{

/// A scrollable element that lies along one edge of a scrolled view, a header or an axis: it follows the model of that
/// edge's axis alone, and can paint in the model's logical units.
class VEXEL_API CScrollableElementEx : public CScrollableElement,
                                       public CLayoutFlavor  // one code for all four edges
{
public:
    CScrollableElementEx(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    /// The vertical model at the left and right edge, the horizontal one at top and bottom, else null.
    IScrollModel* GetScrollModel() const;
    /// The own content, narrowed along the edge to what the central pane spans: an axis is as long as what it serves. In
    /// control pixels, or in the painter's logical units if one is given. Without a pane it is empty.
    rectangle<double> GetAxisRect(IPainter* painter) const;

public:  // From CVisualElement
    void SetAlignment(Alignment alignment) override;
    /// Along: from the model's start on, by its measure, backwards where the model is reversed. Across: pixels, growing
    /// away from the view's inner side at the top and left edge. Without a control or model the mapping stays.
    void SetCoordSystem(IPainter* painter) override;

public:  // Overridable
    /// The mapping of an element at the top or bottom edge. Null model: nothing is filled in.
    virtual void FillHorizontal(IPainter::CoordInfo* info, IScrollModel* model);
    virtual void FillVertical(IPainter::CoordInfo* info, IScrollModel* model);  ///< At the left or right edge.
};

}  // namespace vexel
