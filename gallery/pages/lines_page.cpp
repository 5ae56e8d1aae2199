#include "gallery/pages/lines_page.h"

#include "gallery/frame/panel.h"
#include "vexel/antialiasing/line_contour.h"
#include "vexel/antialiasing/line_contour_cache.h"
#include "vexel/core/draw_line.h"
#include "vexel/core/drawing_context.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

#include <cmath>

namespace gallery
{

namespace
{

using Rect = rectangle<double>;

constexpr int CapCount = 7;

void SetPen(IPainter* p, int width, int style = pen::psSolid, _color const& color = color_table[4])
{
    pen line;
    line.color = color;
    line.width = width;
    line.style = style;
    p->SetPen(line);
}

int Scaled(IPainter const* p, double value)
{
    return ToInt(value * p->GetDPIScale());
}

// Calls draw(i, y) for so many rows, evenly from the top to the bottom.
template <class Draw> void Rows(Rect const& r, int count, Draw const& draw)
{
    for (int i = 0; i < count; ++i)
        draw(i, std::floor(r.top + (r.bottom - r.top) * (i + 0.5) / count));
}

void DrawWidths(IPainter* p, Rect const& r)
{
    double x = r.left + Scaled(p, 2);
    for (int width = 1; width <= 12; ++width)
    {
        SetPen(p, width);
        double const lean = Scaled(p, 10);
        DrawLine(p, {x + lean + width, r.top + Scaled(p, 4)}, {x + width, r.bottom - Scaled(p, 4)}, CapNone, CapNone);
        x += width + Scaled(p, 7);
    }
}

void DrawStyles(IPainter* p, Rect const& r, int width)
{
    Rows(r, 5, [&](int i, double y) {
        SetPen(p, width, pen::psSolid + i);
        double const slant = Scaled(p, 4);
        DrawLine(p, {r.right, y - slant}, {r.left, y + slant}, CapNone, CapNone);
    });
}

void DrawCaps(IPainter* p, Rect const& r, int width, bool slanted)
{
    double const inset = Scaled(p, 12), slant = slanted ? Scaled(p, 6) : 0;
    Rows(r, CapCount, [&](int i, double y) {
        auto const cap = static_cast<CapStyle>(i);
        SetPen(p, width);
        DrawLine(p, {r.right - inset, y - slant}, {r.left + inset, y + slant}, cap, cap);
    });
}

void DrawDirections(IPainter* p, Rect const& r, int width, CapStyle cap)
{
    constexpr int count = 24;
    double const x = std::floor((r.left + r.right) / 2), y = std::floor((r.top + r.bottom) / 2);
    double const outer = std::min(x - r.left, y - r.top) - Scaled(p, 2), inner = outer / 4;
    for (int i = 0; i < count; ++i)
    {
        double const angle = i * 2 * 3.14159265358979324 / count, cos = std::cos(angle), sin = std::sin(angle);
        SetPen(p, width, pen::psSolid, _color::FromRgb(i * 10, 90, 240 - i * 10));
        DrawLine(p, {x + cos * outer, y + sin * outer}, {x + cos * inner, y + sin * inner}, cap, CapNone);
    }
}

void DrawOpacities(IPainter* p, Rect const& r)
{
    p->FillRect(r.left, r.top, ToInt((r.left + r.right) / 2), r.bottom);
    Rows(r, 5, [&](int i, double y) {
        auto const alpha = static_cast<std::uint32_t>(51 * (i + 1));
        SetPen(p, Scaled(p, 7), pen::psSolid, _color(alpha << 24 | (color_table[6].m_Value & 0xFFFFFFu)));
        DrawLine(p, {r.right - 4, y}, {r.left + 4, y}, CapNone, CapNone);
    });
}

void SetGradient(antialiasing::CLineContour& line, _color const& from, _color const& to)
{
    auto const set = [](antialiasing::CColorInfo& info, _color const& color) {
        info.m_Red = static_cast<unsigned long>(color.Red());
        info.m_Green = static_cast<unsigned long>(color.Green());
        info.m_Blue = static_cast<unsigned long>(color.Blue());
    };
    set(line.m_StartColor, from);
    set(line.m_EndColor, to);
}

void DrawGradients(IPainter* p, Rect const& r)
{
    static _color const ends[][2] = {{_color::FromRgb(255, 0, 0), _color::FromRgb(0, 0, 255)},
                                     {_color::FromRgb(0, 160, 0), _color::FromRgb(255, 220, 0)},
                                     {_color::FromRgb(0, 0, 0), _color::FromRgb(200, 200, 200)}};
    Rows({0, 0, r.right - r.left, r.bottom - r.top}, 3, [&](int i, double y) {
        antialiasing::CLineContour line;
        line.m_Start = {4, y + Scaled(p, 6)};
        line.m_End = {r.right - r.left - 4, y - Scaled(p, 6)};
        line.m_Width = static_cast<unsigned long>(Scaled(p, 3 + 3 * i));
        line.m_StartCap = antialiasing::CapCircle;
        line.m_EndCap = antialiasing::CapArrowWide;
        SetGradient(line, ends[i][0], ends[i][1]);
        line.Generate(nullptr, nullptr);
        line.Normalize(254);
        CDrawingContext context(p, r.left, r.top);
        line.Draw(&context);
    });
}

// A detail, each pixel as large as several.
void DrawMagnified(IPainter* p, Rect const& r)
{
    constexpr int width = 24, height = 14;
    vexel_ptr<IRasterPicture> const picture = GetCurrentSystem()->CreateRasterPicture({width, height});
    IPainter* const inner = picture->GetPainter();
    inner->BeginPaint(IPainter::ssPaint);
    SetPen(inner, 1);
    DrawLine(inner, {20, 2}, {2, 7}, CapNone, CapNone);
    SetPen(inner, 2, pen::psSolid, color_table[6]);
    DrawLine(inner, {21, 8}, {2, 11}, CapArrowWide, CapNone);
    inner->EndPaint();
    double const side = std::floor(std::min((r.right - r.left + 1) / width, (r.bottom - r.top + 1) / height));
    p->DrawRasterPictureEx(picture.get(), r.left, r.top, r.left + side * width - 1, r.top + side * height - 1, 0, 0,
                           width - 1, height - 1, IPainter::roCopy);
}

// One square for each pixel of a contour, grey by its coverage, and of its ambient area.
void DrawAmbientArea(IPainter* p, Rect const& r)
{
    constexpr int width = 22, height = 14;
    antialiasing::CLineContour line;
    line.m_Start = {3, 10};
    line.m_End = {17, 3};
    line.m_Width = 2;
    line.Generate(nullptr, nullptr);
    line.BuildAmbientArea(2, 2, true);

    double const side = std::floor(std::min((r.right - r.left + 1) / width, (r.bottom - r.top + 1) / height));
    auto const square = [&](antialiasing::tagPOINT const& at, _color const& color) {
        p->SetBrush({color, brush::bsSolid});
        double const x = r.left + static_cast<double>(at.x) * side, y = r.top + static_cast<double>(at.y) * side;
        p->FillRect(x, y, x + side - 2, y + side - 2);
    };
    for (auto const& [position, colour] : line.m_Ambient.m_Primary)
        square(position, color_table[3]);
    for (auto const& [position, pixel] : line.m_Contour)
    {
        int const grey = 220 - ToInt(std::min(static_cast<double>(pixel.m_Alpha), 255.0) * 0.86);
        square(position, _color::FromRgb(grey, grey, grey));
    }
}

// A mask says how much of the background remains: it cuts a line out of a pattern.
void DrawMask(IPainter* p, Rect const& r)
{
    int const width = ToInt(r.right - r.left) + 1, height = ToInt(r.bottom - r.top) + 1;
    antialiasing::CCacheableLineContour line;
    line.m_Start = {width * 0.1, height * 0.8};
    line.m_End = {width * 0.9, height * 0.2};
    line.m_Width = static_cast<unsigned long>(Scaled(p, 9));
    line.m_StartCap = antialiasing::CapCircle;
    line.m_EndCap = antialiasing::CapArrowWide;
    line.Generate(width, height, false);
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
        {
            int const rest = line.m_Mask[y * width + x], stripe = (x + y) / 6 % 2 * 80;
            p->SetPixel(r.left + x, r.top + y,
                        _color::FromRgb(60 + stripe + (195 - stripe) * (255 - rest) / 255,
                                        110 + stripe + (145 - stripe) * (255 - rest) / 255,
                                        160 + 95 * (255 - rest) / 255));
        }
    }
}

void DrawBoth(IPainter* p, Rect const& r)
{
    Rows(r, 4, [&](int i, double y) {
        double const middle = std::floor((r.left + r.right) / 2), slant = Scaled(p, 3 + i);
        SetPen(p, 1 + i);
        p->MoveTo(r.left, y + slant);
        p->LineTo(middle - Scaled(p, 6), y - slant);
        DrawLine(p, {r.right, y - slant}, {middle + Scaled(p, 6), y + slant}, CapNone, CapNone);
    });
}

}  // namespace

void CLinesPage::Build(CVisualElement* parent)
{
    auto* const grid = new CGrid(parent, {0, 0}, alClient, {184, 132}, 6);
    new CSample(grid, "widths 1 to 12", &DrawWidths);
    new CSample(grid, "styles", [](IPainter* p, Rect const& r) { DrawStyles(p, r, Scaled(p, 1)); });
    new CSample(grid, "styles, four wide", [](IPainter* p, Rect const& r) { DrawStyles(p, r, Scaled(p, 4)); });
    new CSample(grid, "caps", [](IPainter* p, Rect const& r) { DrawCaps(p, r, Scaled(p, 1), true); });
    new CSample(grid, "caps, three wide", [](IPainter* p, Rect const& r) { DrawCaps(p, r, Scaled(p, 3), true); });
    new CSample(grid, "caps, horizontal", [](IPainter* p, Rect const& r) { DrawCaps(p, r, Scaled(p, 3), false); });
    new CSample(grid, "all directions",
                [](IPainter* p, Rect const& r) { DrawDirections(p, r, Scaled(p, 1), CapNone); });
    new CSample(grid, "with arrows",
                [](IPainter* p, Rect const& r) { DrawDirections(p, r, Scaled(p, 1), CapArrowNarrow); });
    new CSample(grid, "opacities", &DrawOpacities);
    new CSample(grid, "gradients", &DrawGradients);
    new CSample(grid, "jagged and smooth", &DrawBoth);
    new CSample(grid, "magnified", &DrawMagnified);
    new CSample(grid, "coverage and ambient area", &DrawAmbientArea);
    new CSample(grid, "through a mask", &DrawMask);
    Report(grid->m_SigSize, "grid.size");
}

}  // namespace gallery
