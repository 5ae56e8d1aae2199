#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/platform/ref_ptr.h"

namespace vexel
{

/// A plain element with a frame, and room between its edges, the frame and its children.
class VEXEL_API CBevel : public CVisualElement
{
public:
    /// As for the free function DrawBorder.
    enum BorderStyle : int
    {
        BorderFlat = 0,
        BorderRaised = 1,
        BorderSunken = 2
    };
    enum BorderShape : int
    {
        ShapeBox = 0,
        ShapeThinBox = 1,
        ShapeTopLine = 2,
        ShapeBottomLine = 3,
        ShapeLeftLine = 4,
        ShapeRightLine = 5,
        ShapeNothing = 6,
        ShapeNoFrame = 7  ///< From here on no frame is drawn.
    };

    using CVisualElement::CVisualElement;

    BorderStyle GetStyle() const { return m_Style; }
    void SetStyle(BorderStyle style);
    BorderShape GetShape() const { return m_Shape; }
    void SetShape(BorderShape shape);
    rectangle<int> const& GetOffset() const { return m_Offset; }
    void SetOffset(rectangle<int> const& offset);  ///< From the edges to the frame, each side on its own.
    rectangle<int> const& GetContentOffset() const { return m_ContentOffset; }
    void
    SetContentOffset(rectangle<int> offset);  ///< From the frame to the children; 2 each at first. Lays nothing out.
    rectangle<double> GetBevelRect() const;   ///< Where the frame runs; own pixels.

public:                                              // From CVisualElement
    rectangle<int> GetContentRect() const override;  ///< Its ends are exchanged where there is no room.
    void DrawContent(IPainter* painter) override;

public:  // Overridable
    virtual void DrawBackground(IPainter* painter);

private:
    rectangle<int> GetFrame() const;

    BorderStyle m_Style = BorderFlat;
    BorderShape m_Shape = ShapeNoFrame;
    rectangle<int> m_Offset;
    rectangle<int> m_ContentOffset{2, 2, 2, 2};
    vexel_ptr<ICustomPaletteEx> m_EdgePalette;  // made when a frame is first drawn in a colour of its own
};

}  // namespace vexel
