#include "gallery/pages/painter_page.h"

#include "gallery/frame/panel.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

#include <cstdio>

namespace gallery
{

namespace
{

using Rect = rectangle<double>;

void AddShapes(CGrid* grid)
{
    new CSample(grid, "Rectangle", [](IPainter* p, Rect const& r) { p->Rectangle(r.left, r.top, r.right, r.bottom); });
    new CSample(grid, "FillRect", [](IPainter* p, Rect const& r) { p->FillRect(r.left, r.top, r.right, r.bottom); });
    new CSample(grid, "RoundRect",
                [](IPainter* p, Rect const& r) { p->RoundRect(r.left, r.top, r.right, r.bottom, 12, 12); });
    new CSample(grid, "Polygon", [](IPainter* p, Rect const& r) {
        double const middle = ToInt((r.left + r.right) / 2);
        double const waist = ToInt((r.top + r.bottom) / 2);
        point<double> const points[] = {{middle, r.top}, {r.right, r.bottom}, {middle, waist}, {r.left, r.bottom}};
        p->Polygon(points, 4);
    });
    new CSample(grid, "FocusRect", [](IPainter* p, Rect const& r) { p->FocusRect(r.left, r.top, r.right, r.bottom); });
    new CSample(grid, "LineTo", [](IPainter* p, Rect const& r) {
        for (double x = r.left; x <= r.right; x += 8)
        {
            p->MoveTo(r.left, r.top);
            p->LineTo(x, r.bottom);
        }
    });
    new CSample(grid, "SetPixel", [](IPainter* p, Rect const& r) {
        for (double y = r.top; y <= r.bottom; y += 3)
        {
            for (double x = r.left; x <= r.right; x += 3)
                p->SetPixel(x, y, color_table[static_cast<std::size_t>(ToInt(x + y) % 26 + 1)]);
        }
    });
    new CSample(grid, "clip, a part out", [](IPainter* p, Rect const& r) {
        rectangle<double> const before = p->GetClipRect();
        p->SetClipRect(r.left, r.top, r.right, r.bottom, false);
        p->SetClipRect(r.left + 14, r.top + 10, r.right - 14, r.bottom - 10, true);
        p->FillRect(r.left - 20, r.top - 20, r.right + 20, r.bottom + 20);
        p->ResetClip();
        p->m_ClipCache = {};
        if (!before.IsZero())
            p->SimpleSetClipRect(before, false);
    });
}

void AddPens(CGrid* grid)
{
    static char const* const names[] = {"none", "solid", "dash", "dot", "dash dot", "dash dot dot", "alternate"};
    for (int style = 0; style <= pen::psAlternate; ++style)
    {
        new CSample(grid, std::string("pen ") + names[style], [style](IPainter* p, Rect const& r) {
            for (int width = 1; width <= 4; ++width)
            {
                pen line;
                line.style = style;
                line.width = width;
                p->SetPen(line);
                double const y = r.top + (width - 1) * 9 + 2;
                p->MoveTo(r.left, y);
                p->LineTo(r.right, y);
            }
            pen line;
            line.style = style;
            brush hollow;
            hollow.style = brush::bsNone;
            p->SetPen(line);
            p->SetBrush(hollow);
            p->Rectangle(r.left, r.top + 38, r.right, r.bottom);
        });
    }
}

void AddTexts(CGrid* grid)
{
    struct SText
    {
        char const* caption;
        int flags;
    };
    static SText const texts[] = {
        {"left top", IPainter::AlignLeft | IPainter::AlignTop},
        {"centre", IPainter::AlignHCenter | IPainter::AlignVCenter},
        {"right bottom", IPainter::AlignRight | IPainter::AlignBottom},
        {"fit", IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText},
        {"single line", IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignSingleLine},
        {"disabled", IPainter::AlignHCenter | IPainter::AlignVCenter | IPainter::AlignDisabled},
    };
    for (SText const& text : texts)
    {
        new CSample(grid, text.caption, [text](IPainter* p, Rect const& r) {
            p->FocusRect(r.left, r.top, r.right, r.bottom);
            bool const lengthy = (text.flags & (IPainter::AlignFitText | IPainter::AlignSingleLine)) != 0;
            p->DrawString(r, lengthy ? "Long enough not to fit" : "Text", text.flags, -1);
        });
    }
    new CSample(grid, "wrapped", [](IPainter* p, Rect const& r) {
        p->DrawStringEx(r, "one two three four five", IPainter::AlignHCenter, -1, " ", nullptr);
    });
    for (int rotation : {900, 2700, 450})
    {
        new CSample(grid, "turned by " + std::to_string(rotation / 10), [rotation](IPainter* p, Rect const& r) {
            font turned = p->GetFont();
            turned.rotation = rotation;
            p->SetFont(turned);
            p->DrawString(r, "Turned", IPainter::AlignHCenter | IPainter::AlignVCenter, -1);
        });
    }
    new CSample(grid, "styles", [](IPainter* p, Rect const& r) {
        Rect row = r;
        for (int style : {font::fsBold, font::fsItalic, font::fsUnderline, font::fsStrikeOut})
        {
            font styled = p->GetFont();
            styled.style = style;
            p->SetFont(styled);
            row.top += p->DrawString(row, "Style", IPainter::AlignLeft, -1).height;
        }
    });
}

vexel_ptr<IRasterPicture> MakePicture(int side)
{
    vexel_ptr<IRasterPicture> picture = GetCurrentSystem()->CreateRasterPicture({side, side});
    IPainter* const p = picture->GetPainter();
    p->BeginPaint(IPainter::ssPaint);
    brush fill;
    for (int i = 0; i * 2 < side; ++i)
    {
        fill.color = _color::FromRgb(255 - i * 510 / side, i * 300 / side, i * 510 / side);
        p->SetBrush(fill);
        p->FillRect(i, i, side - 1 - i, side - 1 - i);
    }
    p->EndPaint();
    return picture;
}

void AddPictures(CGrid* grid)
{
    struct SOperation
    {
        char const* caption;
        IPainter::RasterOperation operation;
    };
    for (SOperation const& it :
         {SOperation{"copy", IPainter::roCopy}, SOperation{"xor", IPainter::roXor}, SOperation{"and", IPainter::roAnd}})
    {
        new CSample(grid, std::string("picture, ") + it.caption, [it](IPainter* p, Rect const& r) {
            p->FillRect(r.left, r.top, ToInt((r.left + r.right) / 2), r.bottom);
            p->DrawRasterPicture(MakePicture(48).get(), r.left + 8, r.top + 4, r.right, r.bottom, it.operation);
        });
    }
    new CSample(grid, "stretched", [](IPainter* p, Rect const& r) {
        p->DrawRasterPictureEx(MakePicture(24).get(), r.left, r.top, r.right, r.bottom, 0, 0, 23, 23, IPainter::roCopy);
    });
    new CSample(grid, "blended", [](IPainter* p, Rect const& r) {
        p->Rectangle(r.left, r.top, r.right, r.bottom);
        p->AlphaBlend(r.left + 6, r.top + 4, r.right, r.bottom, MakePicture(48).get(), 120);
    });
    new CSample(grid, "pen, xor", [](IPainter* p, Rect const& r) {
        p->FillRect(r.left, r.top, ToInt((r.left + r.right) / 2), r.bottom);
        pen line;
        line.color = color_table[9];
        line.width = 3;
        p->SetPen(line);
        p->SetDrawMode(IPainter::roXor);
        p->MoveTo(r.left, r.top);
        p->LineTo(r.right, r.bottom);
        p->SetDrawMode(IPainter::roCopy);
    });
}

}  // namespace

void CPainterPage::Build(CVisualElement* parent)
{
    auto* const grid = new CGrid(parent, {0, 0}, alClient, {100, 88}, 4);
    AddShapes(grid);
    AddPens(grid);
    AddTexts(grid);
    AddPictures(grid);
    Report(grid->m_SigSize, "grid.size");
}

}  // namespace gallery
