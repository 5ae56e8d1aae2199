#include "vexel/platform/clip_region.h"

#include <algorithm>

namespace vexelbase
{

namespace
{

// Says "nothing" without being all zero, which says "no clip".
constexpr rectangle<int> Nothing{-1, -1, -1, -1};

}  // namespace

void CClipRegion::Set(rectangle<int> const& area)
{
    m_Unlimited = false;
    m_First = area.IsEmpty() ? Nothing : area;
    m_More.clear();
}

void CClipRegion::Intersect(rectangle<int> const& area)
{
    if (m_Unlimited)
    {
        Set(area);
        return;
    }
    m_First.Intersect(area);
    if (m_More.empty())
    {
        if (m_First.IsEmpty())
            m_First = Nothing;
        return;
    }
    for (rectangle<int>& rect : m_More)
        rect.Intersect(area);
    DropEmpty();
}

void CClipRegion::Exclude(rectangle<int> const& area, rectangle<int> const& surface)
{
    if (m_Unlimited)
        Set(surface);
    std::size_t const count = GetCount();
    for (std::size_t i = 0; i < count; ++i)
    {
        rectangle<int> const whole = At(i);
        rectangle<int> hole = whole;
        hole.Intersect(area);
        if (hole.IsEmpty())
            continue;

        // Strips above and below over the full width, pieces left and right between them.
        rectangle<int> const pieces[4] = {{whole.left, whole.top, whole.right, hole.top},
                                          {whole.left, hole.top, hole.left, hole.bottom},
                                          {hole.right, hole.top, whole.right, hole.bottom},
                                          {whole.left, hole.bottom, whole.right, whole.bottom}};
        bool first = true;
        At(i) = Nothing;
        for (rectangle<int> const& piece : pieces)
        {
            if (piece.IsEmpty())
                continue;
            if (first)
                At(i) = piece;
            else
                m_More.push_back(piece);
            first = false;
        }
    }
    DropEmpty();
}

rectangle<int> CClipRegion::GetBounds() const
{
    rectangle<int> bounds = m_First;
    for (rectangle<int> const& rect : m_More)
    {
        bounds.left = std::min(bounds.left, rect.left);
        bounds.top = std::min(bounds.top, rect.top);
        bounds.right = std::max(bounds.right, rect.right);
        bounds.bottom = std::max(bounds.bottom, rect.bottom);
    }
    return bounds;
}

void CClipRegion::DropEmpty()
{
    auto const isEmpty = [](rectangle<int> const& rect) { return rect.IsEmpty(); };
    m_More.erase(std::remove_if(m_More.begin(), m_More.end(), isEmpty), m_More.end());
    if (!m_First.IsEmpty())
        return;
    m_First = Nothing;
    if (!m_More.empty())
    {
        m_First = m_More.back();
        m_More.pop_back();
    }
}

}  // namespace vexelbase
