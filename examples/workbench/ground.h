#pragma once

#include "vexel/controls/caption.h"
#include "vexel/platform/painter.h"

namespace workbench
{

using namespace vexel;

/// An area of its background colour.
class CGround : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

protected:
    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
    }
};

/// A line of text at the top.
inline CCaption* AddText(CVisualElement* parent, int height, std::string const& text)
{
    auto* const caption = new CCaption(parent, {0, height}, alTop);
    caption->SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText);
    caption->SetCaption(text);
    return caption;
}

}  // namespace workbench
