#include "tests/support/canvas.h"

#include "vexel/platform/clip_region.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <ostream>

namespace vexelbase::tests
{

namespace
{

enum FigureKind
{
    fkLine,
    fkFill,
    fkRectangle,
    fkRound,
    fkPolygon,
    fkFocus,
    fkPixel,
    fkPicture,
    fkStretch,
    fkBlend,
    fkKinds
};

// One drawing with the tools for it.
struct SFigure
{
    int kind = 0;
    std::array<double, 10> numbers{};
    int style = 1;
    int width = 1;
    bool filled = false;
    int mode = 0;

    friend std::ostream& operator<<(std::ostream& out, SFigure const& figure)
    {
        out << "kind " << figure.kind << " style " << figure.style << " width " << figure.width << " filled "
            << figure.filled << " mode " << figure.mode << " (";
        for (double number : figure.numbers)
            out << number << " ";
        return out << ")";
    }
};

IRasterPicture* SomePicture()
{
    static vexel_ptr<IRasterPicture> const picture = MakePicture("rgbycm#.\n"
                                                                 "m#.rgbyc\n"
                                                                 "bycm#.rg\n"
                                                                 ".rgbycm#\n"
                                                                 "gbycm#.r\n");
    return picture.get();
}

void Draw(IPainter& painter, SFigure const& figure)
{
    auto const& n = figure.numbers;
    pen line;
    line.color = _color(0xFF3355AA);
    line.style = figure.style;
    line.width = figure.width;
    painter.SetPen(line);
    painter.SetBrush({_color(0xFF11EE77), figure.filled ? brush::bsSolid : brush::bsNone});
    auto const mode = static_cast<IPainter::RasterOperation>(figure.mode);
    painter.SetDrawMode(mode);
    switch (figure.kind)
    {
    case fkLine:
        painter.MoveTo(n[0], n[1]);
        painter.LineTo(n[2], n[3]);
        break;
    case fkFill:
        painter.FillRect(n[0], n[1], n[2], n[3]);
        break;
    case fkRectangle:
        painter.Rectangle(n[0], n[1], n[2], n[3]);
        break;
    case fkRound:
        painter.RoundRect(n[0], n[1], n[2], n[3], n[4], n[5]);
        break;
    case fkPolygon:
    {
        point<double> const points[] = {{n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]}, {n[6], n[7]}, {n[8], n[9]}};
        painter.Polygon(points, 5);
        break;
    }
    case fkFocus:
        painter.FocusRect(n[0], n[1], n[2], n[3]);
        break;
    case fkPixel:
        painter.SetPixel(n[0], n[1], _color(0xFF123456));
        break;
    case fkPicture:
        painter.DrawRasterPicture(SomePicture(), n[0], n[1], n[2], n[3], mode);
        break;
    case fkStretch:
        painter.DrawRasterPictureEx(SomePicture(), n[0], n[1], n[2], n[3], n[4], n[5], n[6], n[7], mode);
        break;
    default:
        painter.AlphaBlend(n[0], n[1], n[2], n[3], SomePicture(), figure.width * 40);
    }
}

rc::Gen<double> Quarters(int low, int high)
{
    return rc::gen::map(rc::gen::inRange(low * 4, high * 4), [](int value) { return value / 4.0; });
}

rc::Gen<double> Wild()
{
    double const inf = std::numeric_limits<double>::infinity();
    return rc::gen::oneOf(
        Quarters(-10, 50),
        rc::gen::element(0.0, -0.0, 1e-300, -1e-300, 1e9, -1e9, 1e300, -1e300, 2147483647.0, -2147483648.0,
                         2147483646.5, 4294967296.0, 536870912.0, -536870912.5, 1e15, -1e17, std::nan(""), inf, -inf),
        rc::gen::map(rc::gen::inRange(-2000000000, 2000000000), [](int value) { return value * 1.5; }),
        rc::gen::map(rc::gen::inRange(-3000, 3000), [](int value) { return value + 0.5; }));
}

SFigure MakeFigure(rc::Gen<double> const& numbers, int kinds)
{
    SFigure figure;
    figure.kind = *rc::gen::inRange(0, kinds);
    for (double& number : figure.numbers)
        number = *numbers;
    figure.style = *rc::gen::inRange(0, 7);
    figure.width = *rc::gen::weightedElement<int>({{5, 1}, {2, 2}, {2, 3}, {1, 6}});
    figure.filled = *rc::gen::arbitrary<bool>();
    figure.mode = *rc::gen::element(0, 2, 7);
    return figure;
}

rc::Gen<SFigure> Figures(int kinds = fkKinds)
{
    return rc::gen::exec([kinds] { return MakeFigure(Quarters(-12, 44), kinds); });
}

// A surface on which every pixel tells where it is.
CPixelBuffer Background(int width, int height)
{
    CPixelBuffer pixels({width, height});
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
            pixels.Row(y)[x] = 0xFF000000u | static_cast<std::uint32_t>(x * 65537 * 7 + y * 1237 + x * y) % 0xFFFFFFu;
    }
    return pixels;
}

rectangle<double> ArbitraryRect()
{
    return {*Quarters(-4, 36), *Quarters(-4, 30), *Quarters(-4, 36), *Quarters(-4, 30)};
}

bool IsCovered(CDamage const& damage, int x, int y)
{
    for (int i = 0; i < damage.GetCount(); ++i)
    {
        rectangle<int> const& rect = damage[i];
        if (x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom)
            return true;
    }
    return false;
}

constexpr int Width = 32;
constexpr int Height = 26;

}  // namespace

RC_GTEST_PROP(PainterProperty, FiguresDrawnInPartsEqualTheWholeCutToTheParts, ())
{
    SFigure const figure = *Figures();
    bool const disabled = *rc::gen::arbitrary<bool>();
    CCanvas whole(Width, Height);
    whole.Pixels() = Background(Width, Height);
    whole->m_DisabledMode = disabled;
    Draw(whole.Painter(), figure);

    CCanvas parts(Width, Height);
    parts.Pixels() = Background(Width, Height);
    parts->m_DisabledMode = disabled;
    std::array<std::array<bool, Width>, Height> inside{};
    for (auto& row : inside)
        row.fill(true);
    int const count = *rc::gen::inRange(1, 4);
    for (int i = 0; i < count; ++i)
    {
        rectangle<double> const rect = ArbitraryRect();
        bool const exclude = *rc::gen::arbitrary<bool>();
        parts->SetClipRect(rect.left, rect.top, rect.right, rect.bottom, exclude);
        for (int y = 0; y < Height; ++y)
        {
            for (int x = 0; x < Width; ++x)
            {
                bool const hit = x >= std::floor(std::min(rect.left, rect.right)) &&
                                 x <= std::floor(std::max(rect.left, rect.right)) &&
                                 y >= std::floor(std::min(rect.top, rect.bottom)) &&
                                 y <= std::floor(std::max(rect.top, rect.bottom));
                inside[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] &= hit != exclude;
            }
        }
    }
    Draw(parts.Painter(), figure);

    CPixelBuffer const before = Background(Width, Height);
    for (int y = 0; y < Height; ++y)
    {
        for (int x = 0; x < Width; ++x)
        {
            bool const drawn = inside[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            RC_ASSERT(parts.Pixels().Row(y)[x] == (drawn ? whole.Pixels().Row(y)[x] : before.Row(y)[x]));
        }
    }
}

RC_GTEST_PROP(PainterProperty, FiguresLookTheSameWhereverTheyAreMoved, ())
{
    SFigure const figure = *Figures();
    int const dx = *rc::gen::inRange(-40, 20);
    int const dy = *rc::gen::inRange(-40, 20);
    CCanvas here(Width, Height);
    Draw(here.Painter(), figure);
    CCanvas there(Width, Height);
    there.Shift(dx, dy);
    Draw(there.Painter(), figure);
    for (int y = std::max(0, -dy); y < std::min(Height, Height - dy); ++y)
    {
        for (int x = std::max(0, -dx); x < std::min(Width, Width - dx); ++x)
            RC_ASSERT(here.Pixels().Row(y)[x] == there.Pixels().Row(y + dy)[x + dx]);
    }
}

RC_GTEST_PROP(PainterProperty, InvertingTwiceIsNever, ())
{
    SFigure figure = *Figures();
    RC_PRE(figure.kind != fkFill && figure.kind != fkPixel && figure.kind != fkBlend);
    figure.filled = false;
    figure.mode = IPainter::roXor;
    CCanvas canvas(Width, Height);
    canvas.Pixels() = Background(Width, Height);
    CPixelBuffer const before = canvas.Pixels();
    Draw(canvas.Painter(), figure);
    Draw(canvas.Painter(), figure);
    for (int y = 0; y < Height; ++y)
    {
        for (int x = 0; x < Width; ++x)
            RC_ASSERT(canvas.Pixels().Row(y)[x] == before.Row(y)[x]);
    }
}

RC_GTEST_PROP(PainterProperty, OneInvertedFigureInvertsNoPixelTwice, ())
{
    // Copied in black and inverted with white, an outline on white looks the same.
    SFigure figure = *Figures(fkFocus);
    figure.filled = false;
    auto const draw = [&](IPainter::RasterOperation mode, _color const& color)
    {
        CCanvas canvas(Width, Height);
        figure.mode = mode;
        struct CColored
        {
            static void Apply(CCanvas& target, SFigure const& drawn, _color const& ink)
            {
                auto const& n = drawn.numbers;
                target.Pen(ink, drawn.style, drawn.width);
                target.NoBrush();
                target->SetDrawMode(static_cast<IPainter::RasterOperation>(drawn.mode));
                point<double> const points[] = {{n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]}, {n[6], n[7]}, {n[8], n[9]}};
                if (drawn.kind == fkLine)
                    target.Line(n[0], n[1], n[2], n[3]);
                else if (drawn.kind == fkPolygon)
                    target->Polygon(points, 5);
                else if (drawn.kind == fkRound)
                    target->RoundRect(n[0], n[1], n[2], n[3], n[4], n[5]);
                else
                    target->Rectangle(n[0], n[1], n[2], n[3]);
            }
        };
        CColored::Apply(canvas, figure, color);
        return canvas.Text();
    };
    RC_ASSERT(draw(IPainter::roCopy, Black) == draw(IPainter::roXor, White));
}

RC_GTEST_PROP(PainterProperty, DamageCoversEveryPixelThatChanged, ())
{
    CCanvas canvas(Width, Height);
    canvas.Pixels() = Background(Width, Height);
    CDamage& damage = canvas.Device().GetDamage();
    int const count = *rc::gen::inRange(1, 30);
    for (int i = 0; i < count; ++i)
    {
        if (*rc::gen::inRange(0, 6) == 0)
        {
            int const left = *rc::gen::inRange(-10, 40), top = *rc::gen::inRange(-10, 30);
            rectangle<int> const area{left, top, left + *rc::gen::inRange(0, 40), top + *rc::gen::inRange(0, 40)};
            canvas.Device().Move(area, *rc::gen::inRange(-20, 20), *rc::gen::inRange(-20, 20));
        }
        else
            Draw(canvas.Painter(), *Figures());
    }
    CPixelBuffer const before = Background(Width, Height);
    RC_ASSERT(damage.GetCount() <= CDamage::Capacity);
    for (int y = 0; y < Height; ++y)
    {
        for (int x = 0; x < Width; ++x)
            RC_ASSERT(canvas.Pixels().Row(y)[x] == before.Row(y)[x] || IsCovered(damage, x, y));
    }
}

RC_GTEST_PROP(PainterProperty, MovesEqualACopyPixelByPixel, ())
{
    CCanvas canvas(Width, Height);
    CPixelBuffer const before = Background(Width, Height);
    canvas.Pixels() = before;
    int const left = *rc::gen::inRange(-10, 40), top = *rc::gen::inRange(-10, 30);
    rectangle<int> const area{left, top, left + *rc::gen::inRange(-3, 45), top + *rc::gen::inRange(-3, 45)};
    int const dx = *rc::gen::inRange(-36, 36), dy = *rc::gen::inRange(-30, 30);
    bool const whole = canvas.Device().Move(area, dx, dy);

    bool foreign = false;
    for (int y = 0; y < Height; ++y)
    {
        for (int x = 0; x < Width; ++x)
        {
            int const fromX = x - dx, fromY = y - dy;
            bool const moved = fromX >= area.left && fromX < area.right && fromY >= area.top && fromY < area.bottom;
            bool const known = before.Contains(fromX, fromY);
            foreign = foreign || (moved && !known);
            RC_ASSERT(canvas.Pixels().Row(y)[x] == (moved && known ? before.Row(fromY)[fromX] : before.Row(y)[x]));
        }
    }
    RC_ASSERT(whole == !foreign);
}

RC_GTEST_PROP(PainterProperty, NoNumberDoesHarm, ())
{
    CCanvas canvas(Width, Height);
    int const count = *rc::gen::inRange(1, 12);
    for (int i = 0; i < count; ++i)
    {
        auto const wild = [] { return *Wild(); };
        if (*rc::gen::inRange(0, 3) == 0)
        {
            canvas.Map(wild(), wild(), wild(), wild(), *rc::gen::arbitrary<int>(), *rc::gen::arbitrary<int>(),
                       *rc::gen::arbitrary<int>(), *rc::gen::arbitrary<int>());
        }
        switch (*rc::gen::inRange(0, 5))
        {
        case 0:
            canvas->ResetClip();
            break;
        case 1:
            canvas->SetClipRect(wild(), wild(), wild(), wild(), *rc::gen::arbitrary<bool>());
            break;
        case 2:
            canvas->SimpleSetClipRect({wild(), wild(), wild(), wild()}, *rc::gen::arbitrary<bool>());
            break;
        default:
            break;
        }
        canvas->m_DisabledMode = *rc::gen::arbitrary<bool>();
        SFigure figure = MakeFigure(Wild(), fkKinds);
        if (*rc::gen::inRange(0, 4) == 0)
            figure.width = *rc::gen::element(0, -1, 100, 1 << 20, std::numeric_limits<int>::max(),
                                             std::numeric_limits<int>::min());
        if (figure.kind == fkBlend)
            figure.width = std::clamp(figure.width, -10, 10);
        Draw(canvas.Painter(), figure);
        canvas->GetPixel(wild(), wild());
        vexel_ptr<IRasterPicture> const picture = MakeRef<CPixelPicture>(size<int>{5, 4});
        canvas->ExtractRasterPicture(picture.get(), wild(), wild(), wild(), wild());
        canvas->ExtractRasterPictureEx(picture.get(), wild(), wild(), wild(), wild(), wild(), wild(), wild(), wild());
        canvas->DrawControlElement(IPainter::cePushButton, wild(), wild(), wild(), wild(), 0);
    }
    for (int y = 0; y < Height; ++y)
    {
        for (int x = 0; x < Width; ++x)
            RC_ASSERT((canvas.Pixels().Row(y)[x] & 0xFF000000u) == 0xFF000000u);
    }
}

// The region against a plain set of pixels -------------------------------------------------------------------------

RC_GTEST_PROP(ClipRegionProperty, EqualsASetOfPixels, ())
{
    constexpr int side = 12;
    rectangle<int> const surface{0, 0, side, side};
    CClipRegion region;
    std::array<bool, side * side> model;
    model.fill(true);
    bool unlimited = true;
    int const count = *rc::gen::inRange(1, 12);
    for (int i = 0; i < count; ++i)
    {
        int const left = *rc::gen::inRange(-2, side), top = *rc::gen::inRange(-2, side);
        rectangle<int> const rect{left, top, left + *rc::gen::inRange(-1, 9), top + *rc::gen::inRange(-1, 9)};
        int const operation = *rc::gen::weightedElement<int>({{1, 0}, {1, 1}, {3, 2}, {8, 3}});
        switch (operation)
        {
        case 0:
            region.Reset();
            break;
        case 1:
            region.Set(rect);
            break;
        case 2:
            region.Intersect(rect);
            break;
        default:
            region.Exclude(rect, surface);
        }
        unlimited = operation == 0;
        for (int p = 0; p < side * side; ++p)
        {
            int const x = p % side, y = p / side;
            bool const hit = x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom;
            bool& state = model[static_cast<std::size_t>(p)];
            state = operation == 0 ? true : operation == 1 ? hit : operation == 2 ? state && hit : state && !hit;
        }
        RC_ASSERT(region.IsUnlimited() == unlimited);
        RC_ASSERT(region.GetBounds().IsZero() == unlimited);
    }

    std::array<int, side * side> drawn{};
    rectangle<int> bounds = region.GetBounds();
    region.ForEach(surface,
                   [&](rectangle<int> const& part)
                   {
                       RC_ASSERT(!part.IsEmpty());
                       for (int y = part.top; y < part.bottom; ++y)
                       {
                           for (int x = part.left; x < part.right; ++x)
                           {
                               ++drawn[static_cast<std::size_t>(y * side + x)];
                               RC_ASSERT(unlimited || (x >= bounds.left && x < bounds.right && y >= bounds.top &&
                                                       y < bounds.bottom));
                           }
                       }
                   });
    for (std::size_t p = 0; p < drawn.size(); ++p)
        RC_ASSERT(drawn[p] == (model[p] ? 1 : 0));
}

}  // namespace vexelbase::tests
