#pragma once

#include "vexel/export.h"
#include "vexel/platform/geometry.h"

namespace vexelbase
{

class IPainter;

enum BorderShape : int
{
    bsBox = 0,      ///< Edge of two lines.
    bsThinBox = 1,  ///< Edge of one line.
    bsTopLine = 2,
    bsBottomLine = 3,
    bsLeftLine = 4,
    bsRightLine = 5,
    bsNothing = 6,
    bsFrame = 7  ///< One line around, never filled.
};

enum BorderStyle : int
{
    bsFlat = 0,
    bsRaised = 1,
    bsSunken = 2
};

/// Draws an edge on the inclusive logical rectangle, with the painter's palette or else the default one.
/// Lines are one pixel wide at any mapping. Raised: left and top in number 4, right and bottom in 7, and where the edge
/// has two lines in 6 inside of that; right and bottom own the corners. Sunken: the sides exchanged. Flat: always one
/// line, in 6. Lines of open shapes are drawn like that side of a box. Unknown shapes draw nothing, unknown styles flat.
/// `fill`: boxes (shapes 0 and 1) are filled with the face colour, number 3; other shapes never are.
/// Leaves the painter's pen and brush as they were.
VEXEL_API void DrawBorder(IPainter* painter, rectangle<double> const& rect, BorderShape shape, BorderStyle style,
                          bool fill);

}  // namespace vexelbase
