#pragma once

#include "vexel/platform/painter.h"

namespace vexel::detail
{

/// Marks the focus that far inside of a rectangle; not where that leaves nothing, since the mark would stand outside.
inline void DrawFocusFrame(vexelbase::IPainter* painter, vexelbase::rectangle<double> const& rect, int inset)
{
    vexelbase::rectangle<double> const inside{rect.left + inset, rect.top + inset, rect.right - inset,
                                              rect.bottom - inset};
    if (inside.left <= inside.right && inside.top <= inside.bottom)
        painter->FocusRect(inside.left, inside.top, inside.right, inside.bottom);
}

}  // namespace vexel::detail
