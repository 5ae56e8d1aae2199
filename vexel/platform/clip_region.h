#pragma once

#include "vexel/export.h"
#include "vexel/platform/geometry.h"

#include <cstddef>
#include <vector>

namespace vexelbase
{

/// What may be painted: everything, or the inside of some device rectangles that don't overlap (half-open).
/// The usual clip is one rectangle and needs no memory of its own.
class VEXEL_API CClipRegion
{
public:
    bool IsUnlimited() const { return m_Unlimited; }
    void Reset();                                      ///< Everything may be painted.
    void Set(rectangle<int> const& area);              ///< Only the rectangle.
    void Intersect(rectangle<int> const& area);        ///< What is in both.
    void Exclude(rectangle<int> const& area, rectangle<int> const& surface);  ///< Takes it out; `surface` stands for everything.
    rectangle<int> GetBounds() const;                  ///< All zero if unlimited; an empty rectangle that isn't all zero if nothing is left.

    /// Calls `draw` with each part of `area` that may be painted.
    template <class Draw> void ForEach(rectangle<int> const& area, Draw&& draw) const
    {
        if (m_Unlimited)
        {
            if (!area.IsEmpty())
                draw(area);
            return;
        }
        rectangle<int> part = area;
        part.Intersect(m_First);
        if (!part.IsEmpty())
            draw(part);
        for (rectangle<int> const& rect : m_More)
        {
            part = area;
            part.Intersect(rect);
            if (!part.IsEmpty())
                draw(part);
        }
    }

private:
    bool m_Unlimited = true;
    rectangle<int> m_First;
    std::vector<rectangle<int>> m_More;
};

} // namespace vexelbase
