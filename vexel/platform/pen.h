#pragma once

#include "vexel/platform/color.h"

namespace vexelbase
{

/// How lines and outlines are drawn. A style without a name counts as solid; a pen without colour draws nothing.
struct pen
{
    /// The patterns are told in steps on and off, where a step is as long as the pen is wide. They begin where the line
    /// begins, and run on around the corners of a figure.
    enum PenStyle : int
    {
        psNone = 0,
        psSolid = 1,
        psDash = 2,        ///< 6 on, 3 off.
        psDot = 3,         ///< 2 on, 2 off.
        psDashDot = 4,     ///< 6 on, 2 off, 2 on, 2 off.
        psDashDotDot = 5,  ///< 6 on, 2 off, 2 on, 2 off, 2 on, 2 off.
        psAlternate = 6    ///< Every second pixel: focus rings.
    };

    _color color = color_table[1];
    int style = psSolid;
    /// Device pixels; below 1 counts as 1. Each pixel of the line is widened to a square in whose middle it stands; where
    /// the width is even, the square has one column and one row more to the right and below.
    int width = 1;

    friend bool operator==(pen const&, pen const&) = default;
};

/// How areas are filled. A style without a name counts as solid; a brush without colour fills nothing.
struct brush
{
    enum BrushStyle : int { bsNone = 0, bsSolid = 1 };

    _color color = color_table[9];
    int style = bsSolid;

    friend bool operator==(brush const&, brush const&) = default;
};

} // namespace vexelbase
