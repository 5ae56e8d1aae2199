#include "tests/platform/contract_bench.h"

#include "vexel/platform/border.h"
#include "vexel/platform/xpm.h"

#include <cmath>

// Clips, mappings and brackets on surfaces of the backend.

namespace vexelbase::tests
{

namespace
{

class ContractClip : public CContractPaintTest
{};
class ContractMapping : public CContractPaintTest
{};
class ContractBracket : public CContractPaintTest
{};

using Rect = rectangle<double>;

void Map(IPainter& painter, point<double> const& logical, size<double> const& extent, point<int> const& device,
         size<int> const& deviceExtent)
{
    IPainter::CoordInfo info;
    info.m_LogicalOrigin = logical;
    info.m_LogicalExtent = extent;
    info.m_DeviceOrigin = device;
    info.m_DeviceExtent = deviceExtent;
    painter.SetCoordSystem(IPainter::mmCustom, &info);
}

void FillAll(IPainter& painter, _color const& color)
{
    painter.SetBrush(BrushOf(color));
    painter.FillRect(-1000, -1000, 1000, 1000);
}

}  // namespace

// Clips ------------------------------------------------------------------------------------------------------------

TEST_F(ContractClip, IsNoneWhenAPaintBegins)
{
    OnEachPainter([](IPainter& painter) { EXPECT_TRUE(painter.GetClipRect().IsZero()); });
}

TEST_F(ContractClip, InLogicalUnitsIncludesItsEdges)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetClipRect(1, 1, 3, 2, false);
            EXPECT_EQ(painter.GetClipRect(), (Rect{1, 1, 4, 3}));
            FillAll(painter, Black);
        },
        ".....\n"
        ".###.\n"
        ".###.\n"
        ".....\n");
}

TEST_F(ContractClip, InDevicePixelsExcludesRightAndBottomAndRoundsOutward)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SimpleSetClipRect({0, 0, 2, 1}, false);
            FillAll(painter, Black);
            painter.SimpleSetClipRect({3.9, 1.5, 5.1, 2.01}, false);  // replaces
            EXPECT_EQ(painter.GetClipRect(), (Rect{3, 1, 6, 3}));
            FillAll(painter, Red);
        },
        "##.....\n"
        "...rrr.\n"
        "...rrr.\n"
        ".......\n");
}

TEST_F(ContractClip, NestedOnesIntersectAndATakenOutPartStaysOut)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetClipRect(0, 0, 5, 3, false);
            painter.SetClipRect(2, 1, 9, 9, false);
            EXPECT_EQ(painter.GetClipRect(), (Rect{2, 1, 6, 4}));
            painter.SetClipRect(3, 2, 4, 2, true);
            EXPECT_EQ(painter.GetClipRect(), (Rect{2, 1, 6, 4}));
            FillAll(painter, Black);
            painter.SetClipRect(0, 2, 9, 2, false);
            FillAll(painter, Red);
        },
        ".......\n"
        "..####.\n"
        "..r..r.\n"
        "..####.\n");
}

TEST_F(ContractClip, WithoutAnAreaLetsNothingThroughAndIsToldFromNone)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetClipRect(0, 0, 1, 1, false);
            painter.SetClipRect(2, 0, 3, 1, false);
            FillAll(painter, Black);
            Rect const kept = painter.GetClipRect();
            EXPECT_FALSE(kept.IsZero());
            EXPECT_TRUE(kept.IsEmpty());
            painter.ResetClip();
            EXPECT_TRUE(painter.GetClipRect().IsZero());
            painter.SimpleSetClipRect(kept, false);
            FillAll(painter, Red);
            painter.SetClipRect(0, 0, 3, 3, true);  // nothing less something
            FillAll(painter, Red);
            painter.SimpleSetClipRect({0, 0, -0.5, -0.5}, false);  // no pixel, but not all zero
            EXPECT_FALSE(painter.GetClipRect().IsZero());
            FillAll(painter, Red);
            painter.SimpleSetClipRect({0, 0, 0, 0}, false);  // none
            painter.SetBrush(BrushOf(Green));
            painter.FillRect(1, 1, 1, 1);
        },
        "....\n"
        ".g..\n"
        "....\n");
}

TEST_F(ContractClip, TakingOutOfNoneLeavesTheRestOfTheSurface)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetClipRect(1, 1, 2, 1, true);
            EXPECT_EQ(painter.GetClipRect(), (Rect{0, 0, 120, 120}));
            FillAll(painter, Black);
            EXPECT_EQ(painter.GetPixel(119, 119).m_Value & 0xFFFFFFu, 0u);
        },
        "####\n"
        "#..#\n"
        "####\n");
}

TEST_F(ContractClip, FollowsAMappingThatTurnsAnAxis)
{
    ExpectDrawn(
        [](IPainter& painter) {
            Map(painter, {0, 0}, {1, 1}, {4, 3}, {-1, -1});
            painter.SetClipRect(0, 0, 2, 1, false);  // columns 2 to 4, rows 2 and 3
            FillAll(painter, Black);
        },
        "......\n"
        "......\n"
        "..###.\n"
        "..###.\n"
        "......\n");
}

TEST_F(ContractClip, CutsEveryKindOfOutputAndNoInput)
{
    vexel_ptr<IRasterPicture> const black = MakeSystemPicture("####\n####\n");
    static char const* xpm[] = {"4 2 1 1", "x c #000000", "xxxx", "xxxx"};
    XPMImage const image{XPMBuf(xpm, true)};
    auto const cut = [&](Draw const& draw) {
        OnEachPainter([&](IPainter& painter) {
            painter.SetClipRect(30, 30, 31, 119, false);
            painter.SetPen(PenOf(Black));
            painter.SetBrush(BrushOf(Black));
            draw(painter);
            int inside = 0;
            for (int y = 0; y < 120; ++y)
            {
                for (int x = 0; x < 120; ++x)
                {
                    bool const touched = painter.GetPixel(x, y).m_Value != 0xFFFFFFFFu;
                    bool const allowed = x >= 30 && x <= 31 && y >= 30;
                    inside += touched && allowed ? 1 : 0;
                    ASSERT_TRUE(!touched || allowed) << x << ' ' << y;
                }
            }
            EXPECT_GT(inside, 0);
        });
    };
    point<double> const corners[] = {{10, 20}, {60, 25}, {50, 70}};
    cut([](IPainter& painter) { painter.FillRect(20, 20, 60, 60); });
    cut([](IPainter& painter) { painter.Rectangle(20, 20, 60, 60); });
    cut([](IPainter& painter) { painter.RoundRect(20, 20, 60, 60, 9, 9); });
    cut([&](IPainter& painter) { painter.Polygon(corners, 3); });
    cut([](IPainter& painter) { painter.FocusRect(20, 20, 60, 60); });
    cut([](IPainter& painter) { Line(painter, 0, 50, 100, 50); });
    cut([](IPainter& painter) {
        painter.SetPixel(30, 40, Black);
        painter.SetPixel(40, 40, Black);
    });
    cut([&](IPainter& painter) { painter.DrawRasterPicture(black.get(), 29, 29, 60, 60, IPainter::roCopy); });
    cut([&](IPainter& painter) { painter.DrawRasterPicture(black.get(), 29, 29, 60, 60, IPainter::roAnd); });
    cut([&](IPainter& painter) {
        painter.DrawRasterPictureEx(black.get(), 20, 20, 60, 60, 0, 0, 3, 1, IPainter::roCopy);
    });
    cut([&](IPainter& painter) { painter.AlphaBlend(29, 29, 60, 60, black.get(), 100); });
    cut([&](IPainter& painter) { painter.DrawXPM(image, 29, 29, 0, 0, -1, -1, IPainter::roCopy); });
    cut([](IPainter& painter) { painter.DrawString({0, 20, 119, 60}, "MWMWMWMWMWMWMWMWMWMWMWMW", 0x21, -1); });
    cut([](IPainter& painter) { painter.DrawControlElement(IPainter::cePushButton, 20, 20, 60, 60, 0); });
    cut([](IPainter& painter) { DrawBorder(&painter, {20, 20, 60, 60}, bsBox, bsRaised, true); });

    OnEachPainter([&](IPainter& painter) {
        painter.SetPixel(5, 5, Red);
        painter.SetClipRect(30, 30, 31, 119, false);
        EXPECT_EQ(painter.GetPixel(5, 5).m_Value & 0xFFFFFFu, 0x0000FFu);
        vexel_ptr<IRasterPicture> const taken = System().CreateRasterPicture({2, 1});
        painter.ExtractRasterPicture(taken.get(), 4, 5, 5, 5);
        EXPECT_EQ(ReadText(*taken->GetPainter(), {2, 1}), ".r\n");
    });
}

// Mappings ---------------------------------------------------------------------------------------------------------

TEST_F(ContractMapping, ShiftsStretchesAndTurns)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetBrush(BrushOf(Black));
            Map(painter, {10, 100}, {10, 10}, {1, 1}, {20, 10});  // two columns for one
            painter.FillRect(11, 100, 12, 100);                   // from column 3 to column 5
            painter.SetBrush(BrushOf(Red));
            Map(painter, {0, 0}, {10, 10}, {7, 3}, {-10, -10});
            painter.FillRect(0, 0, 1, 1);
        },
        "........\n"
        "...###..\n"
        "......rr\n"
        "......rr\n");
}

TEST_F(ContractMapping, IsOneToOneWhereAnExtentIsZeroOrNoNumber)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetBrush(BrushOf(Black));
            Map(painter, {0, 0}, {0, 0}, {1, 1}, {0, 0});
            painter.FillRect(0, 0, 0, 0);
            Map(painter, {0, 0}, {5, 0}, {2, 2}, {0, 5});
            painter.FillRect(1, 0, 1, 0);
            Map(painter, {0, 0}, {std::nan(""), INFINITY}, {4, 0}, {7, 7});
            painter.FillRect(0, 0, 0, 0);
        },
        "....#\n"
        ".#...\n"
        "...#.\n");
}

TEST_F(ContractMapping, ConvertsBothWaysWithoutRounding)
{
    OnEachPainter([](IPainter& painter) {
        Map(painter, {10, 20}, {4, 8}, {100, 200}, {2, -16});
        point<double> value{11, 21};
        painter.ConvertCoord1(&value, false);
        EXPECT_EQ(value, (point<double>{100.5, 198}));
        painter.DeconvertCoord1(&value, false);
        EXPECT_EQ(value, (point<double>{11, 21}));
        painter.ConvertCoord1(&value, true);
        EXPECT_EQ(value, (point<double>{5.5, -42}));
        Rect rect{10, 20, 14, 28};
        painter.ConvertCoord2(&rect, false);
        EXPECT_EQ(rect, (Rect{100, 200, 102, 184}));  // not reordered
        painter.DeconvertCoord2(&rect, false);
        EXPECT_EQ(rect, (Rect{10, 20, 14, 28}));
    });
}

TEST_F(ContractMapping, IsKeptAsItWasGiven)
{
    OnEachPainter([](IPainter& painter) {
        IPainter::CoordInfo info;
        info.m_Flag1 = info.m_Flag3 = true;
        info.m_LogicalOrigin = {1.5, -2};
        info.m_LogicalExtent = {0, 3};
        info.m_DeviceOrigin = {4, 5};
        info.m_DeviceExtent = {-6, 7};
        info.m_Scale = 1.25;
        painter.SetCoordSystem(IPainter::mmCustom, &info);
        IPainter::MapMode mode = IPainter::mmDevice;
        IPainter::CoordInfo read;
        painter.GetCoordSystem(mode, &read);
        EXPECT_EQ(mode, IPainter::mmCustom);
        EXPECT_EQ(read, info);
    });
}

TEST_F(ContractMapping, LeavesPenWidthsAndPatternsInPixels)
{
    ExpectDrawn(
        [](IPainter& painter) {
            Map(painter, {0, 0}, {1, 1}, {0, 0}, {4, 4});
            painter.SetPen(PenOf(Black, pen::psDot));
            Line(painter, 0, 0, 2, 0);
            painter.SetPen(PenOf(Red, pen::psSolid, 2));
            Line(painter, 0, 0.5, 1, 0.5);
        },
        "##..##..#.\n"
        "..........\n"
        "rrrrrr....\n"
        "rrrrrr....\n");
}

// Brackets ---------------------------------------------------------------------------------------------------------

TEST_F(ContractBracket, TellsThatAPaintIsOpen)
{
    vexel_ptr<IRasterPicture> const picture = System().CreateRasterPicture({4, 4});
    for (IPainter* const painter : {picture->GetPainter(), &Painter()})
    {
        EXPECT_FALSE(painter->m_Painting);
        painter->BeginPaint(IPainter::ssMeasure);
        EXPECT_TRUE(painter->m_Painting);
        painter->BeginPaint(IPainter::ssMeasure);
        painter->EndPaint();
        EXPECT_TRUE(painter->m_Painting);
        painter->EndPaint();
        EXPECT_FALSE(painter->m_Painting);
    }
    OnEachPainter([](IPainter& within) { EXPECT_TRUE(within.m_Painting); });
}

TEST_F(ContractBracket, WithinAnotherPutsMappingClipAndFontBack)
{
    for (IPainter::StdSettings const settings : {IPainter::ssPaint, IPainter::ssMeasure})
    {
        OnEachPainter([&](IPainter& painter) {
            font small;
            small.size = 7;
            painter.SetFont(small);
            Map(painter, {0, 0}, {1, 1}, {3, 4}, {2, 2});
            painter.SetClipRect(1, 1, 2, 2, false);
            painter.BeginPaint(settings);
            if (settings == IPainter::ssPaint)
            {
                EXPECT_TRUE(painter.GetClipRect().IsZero());
                point<double> at{1, 1};
                painter.ConvertCoord1(&at, false);
                EXPECT_EQ(at, (point<double>{1, 1}));
            }
            font large;
            large.size = 20;
            painter.SetFont(large);
            painter.SetCoordSystem(IPainter::mmDevice, nullptr);
            painter.ResetClip();
            painter.EndPaint();
            EXPECT_EQ(painter.GetFont(), small);
            EXPECT_EQ(painter.GetClipRect(), (Rect{5, 6, 8, 9}));
            point<double> at{1, 1};
            painter.ConvertCoord1(&at, false);
            EXPECT_EQ(at, (point<double>{5, 6}));
        });
    }
}

TEST_F(ContractBracket, BeginsEachPaintWithTheSameTools)
{
    OnEachPainter([](IPainter& painter) {
        EXPECT_EQ(painter.GetPen(), pen());
        EXPECT_EQ(painter.GetFont(), font());
        EXPECT_EQ(painter.GetTextColor(), color_table[1]);
        EXPECT_EQ(painter.GetDrawMode(), IPainter::roCopy);
        EXPECT_FALSE(painter.m_DisabledMode);
        EXPECT_FALSE(painter.m_Palette);
        // What the next paint must not see.
        font bold;
        bold.style = font::fsBold;
        painter.SetFont(bold);
        painter.SetPen(PenOf(Red, pen::psDot, 4));
        painter.SetTextColor(Red);
        painter.SetDrawMode(IPainter::roXor);
        painter.m_DisabledMode = true;
        painter.m_Palette = CreateCustomPalette();
    });
}

TEST_F(ContractBracket, OfMeasuringLeavesTheFullPaintQuestion)
{
    m_Ear.reset();
    m_Ear = std::make_unique<CEar>(&Window());  // a new control begins with a full paint
    Painter().BeginPaint(IPainter::ssMeasure);
    Painter().SetFont(font());
    Painter().EndPaint();
    EXPECT_TRUE(Painter().IsFullPaint());
    Window().UpdateNow();
    EXPECT_TRUE(Ear().m_WasFull);
    Window().UpdateNow();
    EXPECT_FALSE(Ear().m_WasFull);
}

TEST_F(ContractBracket, OfAPictureIsAlwaysAFullPaint)
{
    vexel_ptr<IRasterPicture> const picture = System().CreateRasterPicture({4, 4});
    for (int i = 0; i < 2; ++i)
    {
        EXPECT_TRUE(picture->GetPainter()->IsFullPaint());
        picture->GetPainter()->BeginPaint(IPainter::ssPaint);
        EXPECT_TRUE(picture->GetPainter()->IsFullPaint());
        picture->GetPainter()->EndPaint();
    }
}

TEST_F(ContractBracket, OfTheWindowIsOnItsOnePainter)
{
    IPainter* const before = Window().GetPainter();
    IPainter* during = nullptr;
    Ear().m_Draw = [&](IPainter& painter) { during = &painter; };
    Window().UpdateNow();
    EXPECT_EQ(during, before);
    Ear().m_Draw = nullptr;
}

TEST_F(ContractBracket, TellsTheScaleOfTheSystem)
{
    for (double const scale : {1.0, 1.25, 2.0})
    {
        Bench().SetScale(scale);
        double const expected = System().GetScale();
        EXPECT_NEAR(expected, scale, 1e-9);
        EXPECT_EQ(Painter().GetDPIScale(), expected);
        EXPECT_EQ(System().CreateRasterPicture({1, 1})->GetPainter()->GetDPIScale(), expected);
    }
}

}  // namespace vexelbase::tests
