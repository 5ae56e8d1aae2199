#pragma once

#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/widgets/config_model.h"

namespace vexelbase
{
class IPainter;
}

namespace vexel
{

using namespace vexelbase;

/// The look and the metrics of the categories in a configuration viewer. Sizes are heights in pixels, `width` is that of a
/// category; rectangles are in the viewer's pixels.
class VEXEL_API ICategoryVis
{
public:
    enum State : unsigned int
    {
        stOpen = 1,  ///< The items are drawn.
        stHighlighted = 2
    };

    virtual ~ICategoryVis();

    virtual int GetExpandedSize(IPainter* painter, IConfigCategory const* category, int width) const = 0;
    virtual int GetCollapsedSize(IPainter* painter, IConfigCategory const* category, int width) const = 0;
    /// Makes the items' editors children of `parent`, places and shows them. `area` is the category's.
    virtual void ArrangeEditors(IPainter* painter, IConfigCategory* category, CVisualElement* parent,
                                rectangle<double> const& area) const = 0;
    /// `state`: bits of State. All of the rectangle has to be painted.
    virtual void Draw(IPainter* painter, IConfigCategory const* category, rectangle<double> const& rect, int width,
                      unsigned int state) const = 0;
};

/// Rounded boxes; labels in their left half, right-aligned, and editors in the right one. Metrics don't scale, but texts
/// do. A category below another one is indented.
class VEXEL_API CDefCategoryVis : public ICategoryVis
{
public:
    int GetExpandedSize(IPainter* painter, IConfigCategory const* category, int width) const override;
    int GetCollapsedSize(IPainter* painter, IConfigCategory const* category, int width) const override;
    void ArrangeEditors(IPainter* painter, IConfigCategory* category, CVisualElement* parent,
                        rectangle<double> const& area) const override;
    void Draw(IPainter* painter, IConfigCategory const* category, rectangle<double> const& rect, int width,
              unsigned int state) const override;

    void SetCaptionFont(IPainter* painter) const;  ///< Bold, and a little larger.
    void SetDescrFont(IPainter* painter) const;
};

}  // namespace vexel
