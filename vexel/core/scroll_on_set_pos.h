#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"

namespace vexel
{

/// Moves the pixels of an element that went from `oldPos` to `newPos` (parent's pixels), so that it need not be painted.
/// `bounds`: the part of the element that shows, in its own pixels; all zero: the element's whole area moves.
/// False: a part of the area does not show, so nothing was moved and the element repaints.
VEXEL_API bool ScrollOnSetPos(CVisualElement* element, rectangle<int> const& newPos, rectangle<int> const& oldPos,
                              rectangle<int> const& bounds);

/// True if all of `rect` (own pixels, right and bottom included) shows and no visible child lies on it, so that its pixels
/// can be moved on the screen. Overlapping siblings are not looked for.
VEXEL_API bool CanMovePixels(CVisualElement const* element, rectangle<int> const& rect);

}  // namespace vexel
