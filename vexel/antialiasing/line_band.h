#pragma once

#include "vexel/antialiasing/line_contour.h"
#include "vexel/export.h"

namespace vexelbase
{
class IPainter;
}

namespace antialiasing
{

/// Draws a line as a CLineContour does that is generated, normalized at 254 and drawn: pixel for pixel the same, but many
/// times as fast. It gathers coverage in a band of cells that runs along with the line, instead of in maps, reckons in
/// single precision where that settles the outcome, and changes the surface through IPainter::EditPixels. The painter's
/// mapping must be mmDevice. Memory doesn't grow with the length of the line.
///
/// False if the line is none for this way, and then nothing is drawn: if it is wider than 32 pixels, has a gradient, cut
/// caps or another density than 100, or if it ends more than 2 to the power 24 pixels away.
VEXEL_API bool DrawLineInBand(LINE_CONTOUR_PARAMS const& line, vexelbase::IPainter& painter);

}  // namespace antialiasing
