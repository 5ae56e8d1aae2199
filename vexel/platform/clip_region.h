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
    /// Everything may be painted.
    void Reset()
    {
        m_Unlimited = true;
        m_First = {};
        m_More.clear();
    }
    void Set(rectangle<int> const& area);        ///< Only the rectangle; nothing if it is empty.
    void Intersect(rectangle<int> const& area);  ///< What is in both.
    /// Takes the rectangle out; `surface` stands for everything where the region is unlimited.
    void Exclude(rectangle<int> const& area, rectangle<int> const& surface);
    /// All zero if unlimited. If nothing is left, an empty rectangle that isn't all zero and that Set takes as such.
    rectangle<int> GetBounds() const;

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
    std::size_t GetCount() const { return 1 + m_More.size(); }
    rectangle<int>& At(std::size_t index) { return index == 0 ? m_First : m_More[index - 1]; }
    void DropEmpty();

    bool m_Unlimited = true;
    rectangle<int> m_First;  // empty: then nothing may be painted, and there are no more
    std::vector<rectangle<int>> m_More;
};

}  // namespace vexelbase
