#include "vexel/antialiasing/contour.h"
#include "vexel/antialiasing/drawing_context.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>

namespace antialiasing
{

namespace
{

// Reckoned in 32 bits: of pixels more than 46340 apart it tells nothing.
double Distance(tagPOINT const& a, tagPOINT const& b)
{
    std::uint32_t const dx = static_cast<std::uint32_t>(a.x - b.x), dy = static_cast<std::uint32_t>(a.y - b.y);
    return std::sqrt(static_cast<double>(static_cast<std::int32_t>(dx * dx + dy * dy)));
}

// The larger one of the distances along the axes.
long AxisDistance(tagPOINT const& a, tagPOINT const& b)
{
    return std::max(std::abs(a.x - b.x), std::abs(a.y - b.y));
}

}  // namespace

template <class Move> void CContour::BuildAmbientAreaBy(Move const& move, bool both)
{
    if (m_Contour.empty())
        return;
    auto const add = [&](int direction) {
        Map moved;
        for (auto const& [position, pixel] : m_Contour)
            moved.insert({move(position, direction), pixel});
        AddAmbientPoints(moved);
    };
    m_Ambient.clear();
    add(1);
    if (both)
        add(-1);
    IndexAmbientPoints();
}

void CContour::BuildAmbientArea(int dx, int dy, bool both)
{
    BuildAmbientAreaBy(
        [=](tagPOINT const& position, long direction) {
            return tagPOINT{position.x + direction * dx, position.y + direction * dy};
        },
        both);
}

void CContour::BuildAmbientArea(int cx, int cy, int dx, int dy, bool both)
{
    auto const away = [](long value, long centre, long distance) {
        return value > centre ? value + distance : value < centre ? value - distance : 0L;
    };
    BuildAmbientAreaBy(
        [=](tagPOINT const& position, long direction) {
            return tagPOINT{away(position.x, cx, direction * dx), away(position.y, cy, direction * dy)};
        },
        both);
}

void CContour::AddAmbientPoints(Map const& map)
{
    for (auto const& [position, pixel] : map)
        if (m_Contour.count(position) == 0 && m_Solid.count(position) == 0 && m_Overlaid.count(position) == 0)
            m_Ambient.m_Primary.insert({position, NoColor});
}

void CContour::IndexAmbientPoints()
{
    auto& area = m_Ambient.m_Owner->m_Primary;
    if (area.empty() || m_Contour.empty())
        return;

    constexpr long lowest = std::numeric_limits<int>::min();
    // Never behind the last one, so that there is a distance to begin with.
    auto cursor = area.lower_bound(m_Contour.begin()->first);
    if (cursor == area.end())
        --cursor;
    auto start = area.begin();
    long column = lowest;
    for (auto const& [position, pixel] : m_Contour)
    {
        // The last answer is one for this pixel too: the nearest is not further away in columns.
        long const reach = AxisDistance(position, cursor->first);
        if (position.x - reach != column)
        {
            column = position.x - reach;
            start = area.lower_bound({column, lowest});
        }
        auto best = start;
        double distance = Distance(position, best->first);
        long right = position.x + reach;
        for (auto i = std::next(start); i != area.end(); ++i)
        {
            double const next = Distance(position, i->first);
            if (next < distance)
            {
                best = i;
                distance = next;
                right = position.x + AxisDistance(position, best->first);
            }
            else if (i->first.x > right)
            {
                break;
            }
        }
        cursor = best;
        m_Ambient.m_Secondary.insert({position, &best->second});
    }
}

void CContour::ShareAmbientArea(CContour& other)
{
    if (other.m_Ambient.m_Primary.empty())
        return;
    if (m_Ambient.m_Owner != &other.m_Ambient)
    {
        m_Ambient.detach();
        if (&other != this)
        {
            if (!m_Ambient.m_Saved)
                m_Ambient.m_Saved = std::make_unique<AmbientIndex>();
            *m_Ambient.m_Saved = std::exchange(m_Ambient.m_Secondary, {});
            m_Ambient.m_Owner = &other.m_Ambient;
            other.m_Ambient.m_Sharers.insert(&m_Ambient);
        }
    }
    IndexAmbientPoints();
}

void CContour::UpdateAmbientColors(vexel::IDrawingContext* context)
{
    for (auto& [position, colour] : m_Ambient.m_Primary)
        colour = context->GetPixel(position.x, position.y);
}

unsigned long CContour::GetAmbientColorForPt(tagPOINT const& position) const
{
    if (!HasAmbientArea())
        return NoColor;
    auto const found = m_Ambient.m_Secondary.find(position);
    return found == m_Ambient.m_Secondary.end() ? NoColor : *found->second;
}

}  // namespace antialiasing
