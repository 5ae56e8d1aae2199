#include "vexel/antialiasing/contour.h"

#include "vexel/antialiasing/detail/blend.h"
#include "vexel/antialiasing/detail/convert.h"
#include "vexel/antialiasing/detail/shares.h"

#include <algorithm>

namespace antialiasing
{

namespace
{

// Adds to a channel, which is then at least 0.
void AddClamped(unsigned long& channel, unsigned long more)
{
    channel = static_cast<unsigned long>(std::max(0L, static_cast<long>(channel) + static_cast<long>(more)));
}

void AddClamped(CColorInfo& pixel, CColorInfo const& more)
{
    AddClamped(pixel.m_Red, more.m_Red);
    AddClamped(pixel.m_Green, more.m_Green);
    AddClamped(pixel.m_Blue, more.m_Blue);
    AddClamped(pixel.m_Alpha, more.m_Alpha);
}

template <class Value> void Shift(std::map<tagPOINT, Value>& map, OffsetPtPred const& shift)
{
    std::map<tagPOINT, Value> const old = std::exchange(map, {});
    for (auto const& [position, value] : old)
        map.insert({shift(position), value});
}

}  // namespace

CContour::~CContour() = default;

void CContour::Clear()
{
    m_Solid.clear();
    m_Contour.clear();
    m_Overlaid.clear();
    m_Ambient.clear();
    m_Forced.clear();
    m_Last.clear();
    m_Bounds = {};
}

void CContour::Copy(CContour const& other)
{
    *this = other;
}

void CContour::SetParams(CContour const& other)
{
    m_Mode = other.m_Mode;
    m_Bounds = other.m_Bounds;
}

// Gathering ----------------------------------------------------------------------------------------------------------

void CContour::AddPoint(double x, double y, CColorInfo& colour, unsigned long flags, double alpha)
{
    detail::SShares const shares = detail::ComputeShares(x, y, m_Mode, alpha);
    if (!shares.stamped)
        return;
    if (shares.onPixel)
    {
        AddPoint(m_Contour, shares.left, shares.top, colour, 1.0);
    }
    else
    {
        struct
        {
            int x;
            int y;
        } const corners[4] = {{shares.left, shares.top},
                              {shares.left, shares.bottom},
                              {shares.right, shares.top},
                              {shares.right, shares.bottom}};
        for (std::size_t i = 0; i < 4; ++i)
        {
            if (flags & sfGuarded)
                AddLastPoint(corners[i].x, corners[i].y, colour, shares.weight[i]);
            else
                AddPoint(m_Contour, corners[i].x, corners[i].y, colour, shares.weight[i]);
        }
        if ((flags & sfLast) && !(flags & sfGuarded))
            for (std::size_t i = 0; i < 4; ++i)
                AddPoint(m_Last, corners[i].x, corners[i].y, colour, shares.weight[i]);
    }
    m_Bounds.left = std::min<long>(m_Bounds.left, shares.left);
    m_Bounds.top = std::min<long>(m_Bounds.top, shares.top);
    m_Bounds.right = std::max<long>(m_Bounds.right, shares.right);
    m_Bounds.bottom = std::max<long>(m_Bounds.bottom, shares.bottom);
}

void CContour::AddPoint(Map& map, int x, int y, CColorInfo& colour, double weight)
{
    CColorInfo& pixel = map[{x, y}];
    pixel.m_Red += detail::ToChannel(static_cast<double>(colour.m_Red) * weight);
    pixel.m_Green += detail::ToChannel(static_cast<double>(colour.m_Green) * weight);
    pixel.m_Blue += detail::ToChannel(static_cast<double>(colour.m_Blue) * weight);
    pixel.m_Alpha += detail::ToChannel(255.0 * weight);
}

void CContour::AddLastPoint(int x, int y, CColorInfo& colour, double weight)
{
    if (m_Last.count({x, y}) == 0)
    {
        AddPoint(m_Contour, x, y, colour, weight);
        return;
    }
    auto const found = m_Contour.find({x, y});
    if (found == m_Contour.end() || found->second.m_Alpha >= 256)
        return;
    double const limit = std::min(weight, static_cast<double>(255 - found->second.m_Alpha));
    if (limit > 0)
        AddPoint(m_Contour, x, y, colour, limit);
}

void CContour::Overlay(CContour* first, CContour* second)
{
    for (auto i = m_Contour.begin(); i != m_Contour.end();)
    {
        auto const& [position, pixel] = *i;
        Map::iterator place;
        if (first && (place = first->m_Contour.find(position)) != first->m_Contour.end())
        {
            AddClamped(place->second, pixel);
        }
        else if (!first || first->m_Solid.count(position) == 0)
        {
            if (!second || (place = second->m_Contour.find(position)) == second->m_Contour.end())
            {
                ++i;
                continue;
            }
            AddClamped(place->second, pixel);
        }
        m_Overlaid.insert(*i);
        i = m_Contour.erase(i);
    }
}

void CContour::Offset(int dx, int dy)
{
    OffsetPtPred const shift{dx, dy};
    Shift(m_Solid, shift);
    Shift(m_Contour, shift);
    Shift(m_Overlaid, shift);

    m_Ambient.modify_primary_keys(shift);
    if (m_Ambient.m_Owner != &m_Ambient)
    {
        if (m_Ambient.m_Saved && !m_Ambient.m_Saved->empty())
            m_Ambient._modify_secondary_map(*m_Ambient.m_Saved, shift);
    }
    else if (!m_Ambient.m_Secondary.empty())
    {
        m_Ambient._modify_secondary_map(m_Ambient.m_Secondary, shift);
    }
    for (auto* sharer : m_Ambient.m_Sharers)
        if (!sharer->m_Secondary.empty())
            m_Ambient._modify_secondary_map(sharer->m_Secondary, shift);
}

// Finishing ----------------------------------------------------------------------------------------------------------

void CContour::Normalize(unsigned long limit)
{
    for (auto i = m_Contour.begin(); i != m_Contour.end();)
    {
        auto const& [position, pixel] = *i;
        if (pixel.m_Alpha <= limit && m_Forced.count(position) == 0)
        {
            ++i;
            continue;
        }
        unsigned long const alpha = pixel.m_Alpha;
        m_Solid[position] = alpha == 0 ? 0
                                       : detail::Compose(pixel.m_Red * 255 / alpha, pixel.m_Green * 255 / alpha,
                                                         pixel.m_Blue * 255 / alpha);
        i = m_Contour.erase(i);
    }
    m_Forced.clear();
}

void CContour::ScaleAlpha(double factor)
{
    auto const scale = [factor](unsigned long& channel) {
        channel = detail::ToChannel(static_cast<double>(channel) * factor);
    };
    for (auto& [position, pixel] : m_Contour)
    {
        scale(pixel.m_Red);
        scale(pixel.m_Green);
        scale(pixel.m_Blue);
        scale(pixel.m_Alpha);
    }
}

unsigned long CContour::GetColor(tagPOINT const& position, unsigned long background) const
{
    if (auto const found = m_Contour.find(position); found != m_Contour.end())
        return detail::Blend(found->second, background);
    if (auto const found = m_Solid.find(position); found != m_Solid.end())
        return found->second;
    if (auto const found = m_Overlaid.find(position); found != m_Overlaid.end())
        return detail::Blend(found->second, background);
    return NoColor;
}

void CContour::PaintContour(unsigned long colour)
{
    for (auto& [position, pixel] : m_Contour)
    {
        double const part = static_cast<double>(pixel.m_Alpha) / 255.0;
        pixel.m_Red = detail::ToChannel(part * static_cast<double>(detail::Red(colour)));
        pixel.m_Green = detail::ToChannel(part * static_cast<double>(detail::Green(colour)));
        pixel.m_Blue = detail::ToChannel(part * static_cast<double>(detail::Blue(colour)));
    }
    for (auto& [position, value] : m_Solid)
        value = colour;
}

void CContour::MixWithBackground(unsigned long colour)
{
    Normalize(254);
    if (!HasAmbientArea())
    {
        for (auto const& [position, pixel] : m_Contour)
            m_Solid[position] = detail::Blend(pixel, colour);
        m_Contour.clear();
        return;
    }

    auto const& index = m_Ambient.m_Secondary;
    auto ambient = index.begin();
    for (auto i = m_Contour.begin(); i != m_Contour.end() && ambient != index.end();)
    {
        auto const& [position, pixel] = *i;
        if (ambient->first < position)
        {
            ++ambient;
            continue;
        }
        if (position < ambient->first)
        {
            ++i;
            continue;
        }
        unsigned long const background = *ambient->second;
        if (background != NoColor)
        {
            m_Solid[position] = detail::Blend(pixel, background);
        }
        else
        {
            unsigned long const grey = (32640 - (pixel.m_Alpha << 7)) / 255;
            m_Solid[position] = detail::Compose(grey + pixel.m_Red, grey + pixel.m_Green, grey + pixel.m_Blue);
        }
        i = m_Contour.erase(i);
        ++ambient;
    }
}

// Sides --------------------------------------------------------------------------------------------------------------

void CContour::Classify(Map& map, int cx, int cy)
{
    auto const sign = [](long value) { return value < 0 ? -1L : value > 0 ? 1L : 0L; };
    auto const has = [this](long x, long y) { return m_Contour.count({x, y}) != 0 || m_Solid.count({x, y}) != 0; };
    for (auto& [position, pixel] : map)
    {
        long const sx = sign(position.x - cx), sy = sign(position.y - cy);
        bool const outX = has(position.x + sx, position.y), outY = has(position.x, position.y + sy);
        bool const inX = has(position.x - sx, position.y), inY = has(position.x, position.y - sy);
        unsigned long kind = 3;
        if (outX && outY)
            kind = inX && inY ? 3 : 1;
        else if (inX && inY)
            kind = 2;
        pixel.m_Kind = kind;
    }
}

void CContour::RemoveContourPart(Map& map, unsigned long mask, unsigned long keep)
{
    std::erase_if(
        map, [=](auto const& entry) { return (entry.second.m_Kind & mask) != 0 && (entry.second.m_Kind & keep) == 0; });
}

tagPOINT CContour::FindUtmostHorzPoint(std::map<tagPOINT, unsigned long>& a, Map& b, Map& c, bool leftmost, int offset,
                                       tagRECT const& limit)
{
    constexpr long nowhere = 0x7FFFFFFF;
    auto const takeFirst = [](auto& map) {
        tagPOINT const position = map.begin()->first;
        map.erase(map.begin());
        return position;
    };
    tagPOINT utmost{nowhere, 0};
    if (!a.empty())
        utmost = takeFirst(a);
    else if (!b.empty())
        utmost = takeFirst(b);
    else if (!c.empty())
        utmost = takeFirst(c);
    else
        return utmost;

    auto const takeRow = [&](auto& map) {
        std::erase_if(map, [&](auto const& entry) {
            if (entry.first.y != utmost.y)
                return false;
            utmost.x = leftmost ? std::min(utmost.x, entry.first.x) : std::max(utmost.x, entry.first.x);
            return true;
        });
    };
    takeRow(a);
    takeRow(b);
    // The column is held against the bottom as well.
    long const x = utmost.x + offset;
    bool const inside = limit.left <= x && x < limit.right && limit.top <= utmost.y && x < limit.bottom;
    return {inside ? x : nowhere, utmost.y};
}

}  // namespace antialiasing
