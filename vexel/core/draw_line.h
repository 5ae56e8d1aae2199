#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"

namespace vexel
{

/// What ends an antialiased line: the same as antialiasing::CapStyle, which tells the shapes.
enum CapStyle : int
{
    CapNone = 0,
    CapArrowNarrow = 1,
    CapArrowWide = 2,
    CapCircle = 3,
    CapCircle5 = 4,
    CapCircle7 = 5,
    CapCircle10 = 6
};

/// Draws an antialiased line with the painter's pen from `p1`, which gets `cap1`, to `p2`. The ends are logical; on the
/// device they are truncated to whole pixels, and the pen's width counts there. The line is as opaque as 0.85 of the top
/// byte of the pen's colour, so a colour of 0x00BBGGRR draws nothing.
///
/// Dashes and dots are as long as the pen is wide, and begin at `p2`. Clip and surface limit what is painted.
VEXEL_API void DrawLine(IPainter* painter, point<double> const& p1, point<double> const& p2, CapStyle cap1,
                        CapStyle cap2);

/// The same, by a contour and pixel by pixel: slow, and what the pixels of DrawLine are measured by.
VEXEL_API void DrawLineByContour(IPainter* painter, point<double> const& p1, point<double> const& p2, CapStyle cap1,
                                 CapStyle cap2);

}  // namespace vexel
