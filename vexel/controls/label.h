#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/layout/layout.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/painter.h"

#include <string>

namespace vexel
{

VEXEL_API extern char const* const DefaultDelimiters;  ///< Behind these a plain text may be wrapped.
VEXEL_API extern char const* const HTMLDelimiters;     ///< The same for a text with mark-up.

// The one place where a text and an image are put side by side: the image before the text, in the direction of the
// layout. `flags`: IPainter::AlignmentFlags, as for an upright text; where two of an axis are set, the image goes by the
// first of left, right, centre or of top, bottom, centre. `imageIndex` -1, or no `images`: no image. `imageSpace`: the gap
// between the two, none without a text. `layout`: null for one that runs to the right. `formatter`: null for plain text.
// An image that is larger than its place is left out, but the text keeps clear of it.

/// Draws in the painter's font, text colour and present coordinates; with AlignMeasureOnly it draws nothing. Returns what
/// text and image take, all zero for nothing.
VEXEL_API rectangle<int> DrawLabel(IPainter* painter, rectangle<int> const& rect, std::string const& text, int flags,
                                   int imageSpace, IImageList* images, int imageIndex, ILayout* layout,
                                   char const* delimiters, IPainter::ITextFormatter* formatter);

/// What DrawLabel would draw at a point: 0 nothing, 1 the image, 2 the text; the image wins. The image counts as a square
/// as high as it is wide. Must be called inside a paint bracket.
VEXEL_API int LabelHitTest(point<double> const& where, IPainter* painter, rectangle<int> const& rect,
                           std::string const& text, int flags, int imageSpace, IImageList* images, int imageIndex,
                           ILayout* layout, char const* delimiters, IPainter::ITextFormatter* formatter);

}  // namespace vexel
