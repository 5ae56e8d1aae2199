#pragma once

namespace vexelbase
{

class IPainter;

namespace detail
{

/// How many bytes from the start of a run fit into `maxWidth` in the painter's font, whole characters only, and their
/// width. Measures some dozens of prefixes at most, none much longer than what fits.
int FitRun(IPainter* painter, char const* text, int length, int maxWidth, int& width);

}  // namespace detail

}  // namespace vexelbase
