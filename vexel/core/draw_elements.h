#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"

namespace vexel
{

/// Paints the visible elements of a list in its order, each in its own coordinates. `clip`: pixels of the elements'
/// parent; elements wholly outside are skipped, all zero skips none. So are those wholly outside of the painter's clip.
/// Null list or null entries: nothing.
/// Leaves the last element's mapping in the painter.
VEXEL_API void DrawElements(IVisualElements* list, IPainter* painter, rectangle<int> const& clip);

}  // namespace vexel
