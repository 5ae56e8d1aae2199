#pragma once

#include "vexel/platform/base_painter.h"
#include "vexel/platform/detail/polygon_fill.h"
#include "vexel/platform/pixel_buffer.h"

#include <vector>

namespace vexelbase
{

/// What shapes and pictures need for a moment.
struct CBasePainter::SScratch
{
    // A piece of one row of pixels.
    struct SSpan
    {
        int y = 0;
        int left = 0;
        int right = 0;
    };

    std::vector<point<double>> points;  // of a polygon, on the device
    std::vector<SSpan> spans;           // of an outline whose pieces overlap
    detail::CPolygonFill fill;
    CPixelBuffer pixels;  // a part of a picture, made grey or apart from the surface
};

}  // namespace vexelbase
