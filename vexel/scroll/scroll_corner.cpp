#include "vexel/scroll/scroll_corner.h"

#include "vexel/platform/painter.h"

namespace vexel
{

CScrollCorner::CScrollCorner(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment)
{}

void CScrollCorner::DrawContent(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

}  // namespace vexel
