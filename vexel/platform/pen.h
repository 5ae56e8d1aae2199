#pragma once

#include "vexel/platform/color.h"

namespace vexelbase
{

/// How lines and outlines are drawn.
struct pen
{
    enum PenStyle : int
    {
        psNone = 0,
        psSolid = 1,
        psDash = 2,
        psDot = 3,
        psDashDot = 4,
        psDashDotDot = 5,
        psAlternate = 6  ///< Every second pixel: focus rings.
    };

    _color color = color_table[1];
    int style = psSolid;
    int width = 1;  ///< Device pixels; below 1 counts as 1.

    friend bool operator==(pen const&, pen const&) = default;
};

/// How areas are filled.
struct brush
{
    enum BrushStyle : int { bsNone = 0, bsSolid = 1 };

    _color color = color_table[9];
    int style = bsSolid;

    friend bool operator==(brush const&, brush const&) = default;
};

} // namespace vexelbase
