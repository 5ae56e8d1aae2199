#pragma once

#include "vexel/export.h"
#include "vexel/layout/layout.h"
#include "vexel/platform/color.h"
#include "vexel/platform/font.h"
#include "vexel/platform/geometry.h"

#include <string>

namespace vexel
{

/// The look and the metrics of a slider. Rectangles are in the slider's pixels and include their edges; `state` is that of
/// IPainter::ElementState: disabled, focused, hot. The layout turns along and across into x and y.
class VEXEL_API ISliderDrawingModel
{
public:
    virtual ~ISliderDrawingModel();

    /// May change what one point's caption is drawn with.
    virtual void GetAttr(int point, font& font, _color& text, _color& background, int& state) const = 0;
    /// Narrows the place of a caption, which a press on it has to hit.
    virtual void GetContentRect(int point, int state, rectangle<double>& rect, ILayout* layout) const = 0;
    /// The tools are set by GetAttr, and the brush has the background colour.
    virtual void OnDrawPointCaption(IPainter* painter, rectangle<double> const& rect, int point, int state,
                                    std::string const& caption, ILayout* layout) const = 0;
    virtual size<int> GetPointerSize(ILayout* layout) const = 0;  ///< Along, across.
    virtual void OnDrawPointer(IPainter* painter, rectangle<double> const& rect, int state, ILayout* layout) const = 0;
    virtual rectangle<int> GetSlotRect(rectangle<double> const& bounds, ILayout* layout) const = 0;  ///< The track.
    virtual void OnDrawSlot(IPainter* painter, rectangle<double> const& rect, int state, ILayout* layout) const = 0;
};

/// A thin sunken track, a raised pointer, captions below it. A layout of null is that of the left edge.
class VEXEL_API CDefSliderDrawingModel : public ISliderDrawingModel
{
public:
    void GetAttr(int, font&, _color&, _color&, int&) const override {}
    void GetContentRect(int point, int state, rectangle<double>& rect, ILayout* layout) const override;
    void OnDrawPointCaption(IPainter* painter, rectangle<double> const& rect, int point, int state,
                            std::string const& caption, ILayout* layout) const override;
    size<int> GetPointerSize(ILayout* layout) const override;
    void OnDrawPointer(IPainter* painter, rectangle<double> const& rect, int state, ILayout* layout) const override;
    rectangle<int> GetSlotRect(rectangle<double> const& bounds, ILayout* layout) const override;
    void OnDrawSlot(IPainter* painter, rectangle<double> const& rect, int state, ILayout* layout) const override;
};

/// Of all sliders without a look of their own.
extern VEXEL_API CDefSliderDrawingModel s_DefSliderDrawingModel;

}  // namespace vexel
