#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"

namespace vexel
{

// Two drawers of the rubber-band frame of a selection. Drawing a frame twice erases it. DrawSelection takes the old
// rectangle (left, top, right, bottom) and then the new one and draws both.

/// Draws the focus frame. Corners are device pixels.
struct VEXEL_API FocusRectDrawer
{
    static void DrawRect(IPainter* painter, double left, double top, double right, double bottom);
    static void DrawSelection(IPainter* painter, double oldLeft, double oldTop, double oldRight, double oldBottom,
                              double newLeft, double newTop, double newRight, double newBottom);
};

/// Inverts a frame of one unit. Corners are logical. Leaves its brush and pen in the painter.
struct VEXEL_API XORRectDrawer
{
    static void DrawRect(IPainter* painter, double left, double top, double right, double bottom);
    static void DrawSelection(IPainter* painter, double oldLeft, double oldTop, double oldRight, double oldBottom,
                              double newLeft, double newTop, double newRight, double newBottom);
};

}  // namespace vexel
