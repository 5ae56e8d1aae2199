#pragma once

#include "vexel/controls/picture_button.h"

namespace vexel
{

/// The flat picture button of title strips. Under the pointer its ground lights up. It can't take the focus.
class VEXEL_API CCaptionButton : public CPictureButton
{
public:
    CCaptionButton(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    /// Fills the content in white with `alpha` (0 to 255) of the parent's colour missing, or blends the parent's colour
    /// over a background picture. Nothing without a parent.
    void DrawBk(IPainter* painter, int alpha);

public:  // From CPictureButton
    void DrawHighlightedContent(IPainter* painter) override;
    void DrawPressedContent(IPainter* painter) override;

private:
    void DrawImageOrNormal(IPainter* painter, ImageInfo const& image);
};

}  // namespace vexel
