#include "vexel/platform/memory/memory_device.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/memory/detail/square_font.h"
#include "vexel/platform/system.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vexelbase::memory
{

namespace
{

rectangle<int> BoxOf(std::vector<rectangle<int>> const& rects)
{
    rectangle<int> box = rects.front();
    for (rectangle<int> const& rect : rects)
        box = {std::min(box.left, rect.left), std::min(box.top, rect.top), std::max(box.right, rect.right),
               std::max(box.bottom, rect.bottom)};
    return box;
}

// A rectangle of the run's frame, turned by quarters counter-clockwise about the frame's origin.
rectangle<int> TurnByQuarters(rectangle<int> const& rect, int quarters)
{
    switch (quarters)
    {
    case 1:
        return {rect.top, -rect.right, rect.bottom, -rect.left};
    case 2:
        return {-rect.right, -rect.bottom, -rect.left, -rect.top};
    case 3:
        return {-rect.bottom, rect.left, -rect.top, rect.right};
    default:
        return rect;
    }
}

// Appends the pixels of what the rectangles cover when turned by tenths of a degree: those whose middle is covered.
std::vector<rectangle<int>> TurnFreely(std::vector<rectangle<int>> const& rects, int tenths)
{
    double const angle = tenths * std::numbers::pi / 1800.0;
    double const cosine = std::cos(angle);
    double const sine = std::sin(angle);
    rectangle<int> const frame = BoxOf(rects);

    double left = 0, top = 0, right = 0, bottom = 0;
    for (int corner = 0; corner < 4; ++corner)
    {
        double const u = corner & 1 ? frame.right : frame.left;
        double const v = corner & 2 ? frame.bottom : frame.top;
        double const x = u * cosine + v * sine;
        double const y = v * cosine - u * sine;
        left = corner ? std::min(left, x) : x;
        right = corner ? std::max(right, x) : x;
        top = corner ? std::min(top, y) : y;
        bottom = corner ? std::max(bottom, y) : y;
    }

    std::vector<rectangle<int>> pixels;
    for (int y = FloorToInt(top); y <= FloorToInt(bottom); ++y)
    {
        for (int x = FloorToInt(left); x <= FloorToInt(right); ++x)
        {
            int const u = FloorToInt((x + 0.5) * cosine - (y + 0.5) * sine);
            int const v = FloorToInt((x + 0.5) * sine + (y + 0.5) * cosine);
            auto const covers = [&](rectangle<int> const& rect) {
                return rect.left <= u && u < rect.right && rect.top <= v && v < rect.bottom;
            };
            if (std::any_of(rects.begin(), rects.end(), covers))
                pixels.push_back({x, y, x + 1, y + 1});
        }
    }
    return pixels;
}

constexpr std::uint32_t FramePixel = 0xFF404040u;

}  // namespace

int CMemoryDevice::MeasureRun(font const& textFont, char const* text, int length)
{
    return SaturateToInt(std::int64_t{CountCharacters(text, length)} * SSquareFont(textFont, GetSystemScale()).advance);
}

void CMemoryDevice::GetMetrics(font const& textFont, fontmetrics& metrics)
{
    SSquareFont const square(textFont, GetSystemScale());
    metrics.ascent = square.ascent;
    metrics.descent = square.descent;
    metrics.leading = 0;
}

void CMemoryDevice::DrawRun(SRun const& run)
{
    SSquareFont const square(*run.textFont, GetSystemScale());
    int const rotation = (run.textFont->rotation % 3600 + 3600) % 3600;

    std::vector<rectangle<int>>& rects = m_Glyphs;
    rects.clear();
    char const* text = run.text;
    char const* const end = text + run.length;
    int x = 0;
    for (; text < end && x < 1 << 24; x += square.advance)
    {
        std::uint32_t const character = TakeCharacter(text, end);
        // Of an upright run only what can be seen is worth the work.
        bool const seen = rotation != 0 || (run.x + x < run.clip.right && run.x + x + square.advance >= run.clip.left);
        if (seen)
            square.AddGlyph(character, x, rects);
    }
    square.AddLines(x, rects);
    if (rects.empty())
        return;

    if (rotation % 900 == 0)
    {
        for (rectangle<int>& rect : rects)
            rect = TurnByQuarters(rect, rotation / 900);
    }
    else
        rects = TurnFreely(rects, rotation);
    if (rects.empty())
        return;

    rectangle<int> area = BoxOf(rects);
    area.Offset(run.x, run.y);
    area.Intersect(run.clip);
    if (area.IsEmpty() || !Touch(area))
        return;
    for (rectangle<int>& rect : rects)
    {
        rect.Offset(run.x, run.y);
        rect.Intersect(area);
        for (int y = rect.top; y < rect.bottom && rect.left < rect.right; ++y)
            std::fill(GetPixels().Row(y) + rect.left, GetPixels().Row(y) + rect.right, run.pixel);
    }
}

void CMemoryDevice::DrawControlElement(IPainter::ControlElement element, rectangle<int> const& area,
                                       rectangle<int> const& clip, int state)
{
    auto const fill = [&](rectangle<int> rect, std::uint32_t pixel) {
        rect.Intersect(clip);
        if (!rect.IsEmpty())
            Fill(rect, pixel, IPainter::roCopy);
    };
    std::uint32_t const inside = 0xFF000000u | (0xA0u + static_cast<unsigned>(element & 15)) << 16 |
                                 (0xB0u + static_cast<unsigned>(state & 15)) << 8 | 0xC0u;
    fill(area, FramePixel);
    fill({area.left + 1, area.top + 1, area.right - 1, area.bottom - 1}, inside);

    // The sign in the middle: a cross, a dot, an arrow.
    int const x = area.left + area.Width() / 2;
    int const y = area.top + area.Height() / 2;
    int const reach = std::min(area.Width(), area.Height()) / 4;
    if (reach < 1)
        return;
    switch (element)
    {
    case IPainter::ceCheckChecked:
        for (int i = -reach; i <= reach; ++i)
        {
            fill({x + i, y + i, x + i + 1, y + i + 1}, FramePixel);
            fill({x + i, y - i, x + i + 1, y - i + 1}, FramePixel);
        }
        break;
    case IPainter::ceRadioChecked:
        fill({x - reach, y - reach, x + reach + 1, y + reach + 1}, FramePixel);
        break;
    case IPainter::ceComboArrow:
    case IPainter::ceDropArrow:
        for (int i = 0; i <= reach; ++i)
            fill({x - reach + i, y + i, x + reach - i + 1, y + i + 1}, FramePixel);
        break;
    default:
        break;
    }
}

}  // namespace vexelbase::memory
