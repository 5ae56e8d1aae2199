#include "tests/platform/contract_bench.h"

// What shapes leave on a surface of the backend, pixel by pixel.

namespace vexelbase::tests
{

namespace
{

class ContractShapes : public CContractPaintTest
{};

}  // namespace

// Areas ------------------------------------------------------------------------------------------------------------

TEST_F(ContractShapes, AFilledRectangleIncludesItsRightAndBottomEdge)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetBrush(BrushOf(Black));
            painter.FillRect(1, 1, 3, 2);
        },
        ".....\n"
        ".###.\n"
        ".###.\n"
        ".....\n");
}

TEST_F(ContractShapes, EqualEndsFillOneLineAndReversedOnesAreOrdered)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetBrush(BrushOf(Black));
            painter.FillRect(1, 0, 1, 3);
            painter.FillRect(3, 1, 3, 1);
            painter.FillRect(7, 3, 5, 2);
        },
        ".#.......\n"
        ".#.#.....\n"
        ".#...###.\n"
        ".#...###.\n");
}

TEST_F(ContractShapes, FractionsFallIntoTheirPixelAlsoBelowZero)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetBrush(BrushOf(Black));
            painter.FillRect(3.9, 0.1, 4.99, 0.9);
            IPainter::CoordInfo info;
            info.m_LogicalExtent = {1, 1};
            info.m_DeviceExtent = {1, 1};
            info.m_DeviceOrigin = {2, 2};
            painter.SetCoordSystem(IPainter::mmCustom, &info);
            painter.FillRect(-0.5, -1, 0.5, -0.01);  // columns -1 and 0 of the shifted ground
        },
        "...##.\n"
        ".##...\n"
        "......\n");
}

TEST_F(ContractShapes, AFillUsesTheBrushAloneAndAHollowOneNothing)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Red, pen::psSolid, 3));
            painter.SetBrush(BrushOf(Green));
            painter.FillRect(1, 1, 2, 1);
            painter.SetBrush(NoBrush);
            painter.FillRect(0, 0, 4, 2);
            painter.SetBrush(BrushOf(NoColor));
            painter.FillRect(0, 0, 4, 2);
        },
        ".....\n"
        ".gg..\n"
        ".....\n");
}

TEST_F(ContractShapes, ARectangleHasItsOutlineOnItsEdges)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Black));
            painter.SetBrush(BrushOf(Red));
            painter.Rectangle(0, 0, 4, 3);
            painter.SetBrush(NoBrush);
            painter.Rectangle(6, 3, 9, 0);
            painter.SetPen(PenOf(Black, pen::psNone));
            painter.SetBrush(BrushOf(Blue));
            painter.Rectangle(11, 1, 12, 2);
        },
        "#####.####...\n"
        "#rrr#.#..#.bb\n"
        "#rrr#.#..#.bb\n"
        "#####.####...\n");
}

TEST_F(ContractShapes, AWidePenWidensEachPixelEvenOnesToTheRightAndBelow)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Black, pen::psSolid, 2));
            painter.Rectangle(0, 0, 4, 3);
            painter.SetPen(PenOf(Red, pen::psSolid, 3));
            Line(painter, 9, 2, 10, 2);
        },
        "######......\n"
        "######..rrrr\n"
        "##..##..rrrr\n"
        "######..rrrr\n"
        "######......\n"
        "............\n");
}

TEST_F(ContractShapes, RoundCornersAreQuartersOfAnEllipse)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Black));
            painter.SetBrush(BrushOf(Red));
            painter.RoundRect(0, 0, 9, 8, 4, 4);
        },
        "..######..\n"
        ".#rrrrrr#.\n"
        "#rrrrrrrr#\n"
        "#rrrrrrrr#\n"
        "#rrrrrrrr#\n"
        "#rrrrrrrr#\n"
        "#rrrrrrrr#\n"
        ".#rrrrrr#.\n"
        "..######..\n");
}

TEST_F(ContractShapes, WithoutARadiusACornerIsSquareAndTooLargeOnesAreCut)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Black));
            painter.RoundRect(0, 0, 2, 2, 0, 5);
            painter.SetPen(PenOf(Black, pen::psNone));
            painter.SetBrush(BrushOf(Red));
            painter.RoundRect(4, 0, 11, 7, 100, 100);  // a circle of diameter 8
        },
        "###...rrrr..\n"
        "#.#..rrrrrr.\n"
        "###.rrrrrrrr\n"
        "....rrrrrrrr\n"
        "....rrrrrrrr\n"
        "....rrrrrrrr\n"
        ".....rrrrrr.\n"
        "......rrrr..\n");
}

TEST_F(ContractShapes, AnOutlineAddsNothingToTheAreaOfARoundRectangle)
{
    OnEachPainter([](IPainter& painter) {
        for (int radius = 1; radius <= 20; ++radius)
        {
            painter.SetBrush(BrushOf(White));
            painter.FillRect(0, 0, 119, 119);
            painter.SetBrush(BrushOf(Red));
            painter.SetPen(PenOf(Black, pen::psNone));
            painter.RoundRect(1, 1, 50, 41, radius, 20);
            painter.SetPen(PenOf(Red));
            painter.RoundRect(61, 1, 110, 41, radius, 20);
            for (int y = 0; y < 43; ++y)
            {
                for (int x = 0; x < 52; ++x)
                    ASSERT_EQ(painter.GetPixel(x, y), painter.GetPixel(x + 60, y)) << radius << ' ' << x << ' ' << y;
            }
        }
    });
}

TEST_F(ContractShapes, APolygonIncludesItsCornersAndEdges)
{
    ExpectDrawn(
        [](IPainter& painter) {
            point<double> const corners[] = {{0, 0}, {4, 0}, {0, 4}};
            painter.SetPen(PenOf(Black));
            painter.SetBrush(BrushOf(Red));
            painter.Polygon(corners, 3);
            point<double> const others[] = {{6, 0}, {10, 0}, {6, 4}};
            painter.SetPen(PenOf(Black, pen::psNone));
            painter.Polygon(others, 3);
        },
        "#####.rrrrr\n"
        "#rr#..rrrr.\n"
        "#r#...rrr..\n"
        "##....rr...\n"
        "#.....r....\n");
}

TEST_F(ContractShapes, WhatAPolygonCrossesTwiceIsOutside)
{
    ExpectDrawn(
        [](IPainter& painter) {
            point<double> const bow[] = {{0, 0}, {4, 4}, {4, 0}, {0, 4}};
            painter.SetPen(PenOf(Black, pen::psNone));
            painter.SetBrush(BrushOf(Red));
            painter.Polygon(bow, 4);
        },
        "r...r\n"
        "rr.rr\n"
        "rrrrr\n"
        "rr.rr\n"
        "r...r\n");
}

TEST_F(ContractShapes, APolygonOfOnePointIsAPixelOfTwoALineOfNoneNothing)
{
    ExpectDrawn(
        [](IPainter& painter) {
            point<double> const points[] = {{1, 1}, {5, 1}};
            painter.SetPen(PenOf(Black));
            painter.Polygon(points, 0);
            painter.Polygon(nullptr, 3);
            painter.Polygon(points, 1);
            painter.Polygon(points + 1, 1);
            painter.SetPen(PenOf(Red));
            point<double> const line[] = {{1, 2}, {3, 2}};
            painter.Polygon(line, 2);
        },
        "......\n"
        ".#...#\n"
        ".rrr..\n");
}

// Lines ------------------------------------------------------------------------------------------------------------

TEST_F(ContractShapes, ALineIncludesBothEndsAndGoesOnFromThere)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Black));
            painter.MoveTo(1, 0);
            painter.LineTo(4, 0);
            painter.LineTo(4, 2);
            painter.LineTo(2, 4);
            Line(painter, 0, 4, 0, 4);  // a point
        },
        ".####.\n"
        "....#.\n"
        "....#.\n"
        "...#..\n"
        "#.#...\n");
}

TEST_F(ContractShapes, OfTwoEquallyNearPixelsALineTakesTheLowerOrTheRightOne)
{
    std::string const expected = "#....#...\n"
                                 ".##...#..\n"
                                 "...##.#..\n"
                                 ".......#.\n"
                                 ".......#.\n";
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Black));
            Line(painter, 0, 0, 4, 2);
            Line(painter, 5, 0, 7, 4);
        },
        expected);
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Black));
            Line(painter, 4, 2, 0, 0);
            Line(painter, 7, 4, 5, 0);
        },
        expected);
}

TEST_F(ContractShapes, EachPenStyleHasItsPatternFromTheStartOfTheLine)
{
    ExpectDrawn(
        [](IPainter& painter) {
            for (int style = 0; style <= 6; ++style)
            {
                painter.SetPen(PenOf(Black, style));
                Line(painter, 1, style, 20, style);
            }
            painter.SetPen(PenOf(NoColor));
            Line(painter, 1, 0, 20, 0);
        },
        "......................\n"
        ".####################.\n"
        ".######...######...##.\n"
        ".##..##..##..##..##...\n"
        ".######..##..######...\n"
        ".######..##..##..####.\n"
        ".#.#.#.#.#.#.#.#.#.#..\n");
}

TEST_F(ContractShapes, APatternGrowsWithTheWidthOfThePen)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Black, pen::psDot, 2));  // 4 on, 4 off; each pixel reaches one further
            Line(painter, 0, 0, 11, 0);
        },
        "#####...#####.\n"
        "#####...#####.\n"
        "..............\n");
}

TEST_F(ContractShapes, APatternRunsOnAroundTheCorners)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Black, pen::psDot));
            painter.Rectangle(1, 0, 5, 3);  // 14 pixels, clockwise: ##..# #.. ##.. ##
        },
        ".##..#\n"
        ".#...#\n"
        ".#....\n"
        "...##.\n");
}

TEST_F(ContractShapes, APatternStartsWithItsFigureWhereverThatStands)
{
    OnEachPainter([](IPainter& painter) {
        painter.SetPen(PenOf(Black, pen::psDashDot));
        for (int shift = 0; shift < 12; ++shift)
            Line(painter, shift, shift, shift + 40, shift);
        for (int shift = 1; shift < 12; ++shift)
        {
            for (int x = 0; x <= 40; ++x)
                ASSERT_EQ(painter.GetPixel(shift + x, shift), painter.GetPixel(x, 0)) << shift << ' ' << x;
        }
    });
}

TEST_F(ContractShapes, AClipDoesNotShiftAPattern)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Black, pen::psDot));
            painter.SetClipRect(3, 0, 9, 0, false);
            Line(painter, 0, 0, 12, 0);  // ##..##..##..#
        },
        "....##..##...\n");
}

// Focus ------------------------------------------------------------------------------------------------------------

TEST_F(ContractShapes, AFocusRectangleInvertsEverySecondPixelOfItsOutline)
{
    ExpectDrawn([](IPainter& painter) { painter.FocusRect(0, 0, 4, 3); }, "#.#.#\n"
                                                                          ".....\n"
                                                                          "#...#\n"
                                                                          ".#.#.\n");
}

TEST_F(ContractShapes, AFocusRectangleTwiceIsNone)
{
    OnEachPainter([](IPainter& painter) {
        painter.SetBrush(BrushOf(Red));
        painter.FillRect(5, 5, 25, 60);
        CPixelBuffer const before = ReadPixels(painter, {80, 80});
        painter.SetPen(PenOf(Green, pen::psSolid, 5));  // of no matter
        painter.FocusRect(2, 2, 51, 44);
        EXPECT_EQ(painter.GetPixel(2, 2).m_Value & 0xFFFFFFu, 0x000000u);
        EXPECT_EQ(painter.GetPixel(6, 44).m_Value & 0xFFFFFFu, 0xFFFF00u);  // red inverted
        painter.FocusRect(2, 2, 51, 44);
        EXPECT_EQ(ToText(ReadPixels(painter, {80, 80})), ToText(before));
    });
}

// Colours and modes ------------------------------------------------------------------------------------------------

TEST_F(ContractShapes, TheTopByteOfAColourDoesNotMatter)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetBrush(BrushOf(_color(0x000000FF)));
            painter.FillRect(0, 0, 1, 0);
            painter.SetPen(PenOf(_color(0x00FF0000)));
            Line(painter, 3, 0, 4, 0);
            painter.SetPixel(6, 0, _color(0x0000FF00));
            painter.SetPixel(7, 0, NoColor);
        },
        "rr.bb.g.\n");
}

TEST_F(ContractShapes, APixelIsReadAsItWasSet)
{
    OnEachPainter([](IPainter& painter) {
        painter.SetPixel(3, 4, _color(0x00123456));
        EXPECT_EQ(painter.GetPixel(3, 4).m_Value & 0xFFFFFFu, 0x123456u);
        EXPECT_EQ(painter.GetPixel(3.9, 4.5).m_Value & 0xFFFFFFu, 0x123456u);
        EXPECT_EQ(painter.GetPixel(4, 4).m_Value & 0xFFFFFFu, 0xFFFFFFu);
        IPainter::CoordInfo info;
        info.m_LogicalExtent = {10, 10};
        info.m_DeviceExtent = {20, -20};
        info.m_DeviceOrigin = {1, 8};
        painter.SetCoordSystem(IPainter::mmCustom, &info);
        EXPECT_EQ(painter.GetPixel(1, 2).m_Value & 0xFFFFFFu, 0x123456u);  // 1 + 2 * 1, 8 - 2 * 2
        painter.SetPixel(5, -5, _color(0x00654321));
        painter.SetCoordSystem(IPainter::mmDevice, nullptr);
        EXPECT_EQ(painter.GetPixel(11, 18).m_Value & 0xFFFFFFu, 0x654321u);
    });
}

TEST_F(ContractShapes, OutsideTheSurfaceIsWhite)
{
    OnEachPainter([](IPainter& painter) {
        painter.SetBrush(BrushOf(Black));
        painter.FillRect(-50, -50, 200, 200);
        EXPECT_EQ(painter.GetPixel(-1, 0).m_Value, 0xFFFFFFFFu);
        EXPECT_EQ(painter.GetPixel(0, -1).m_Value, 0xFFFFFFFFu);
        EXPECT_EQ(painter.GetPixel(120, 0).m_Value, 0xFFFFFFFFu);
        EXPECT_EQ(painter.GetPixel(0, 120).m_Value, 0xFFFFFFFFu);
        EXPECT_EQ(painter.GetPixel(119, 119).m_Value & 0xFFFFFFu, 0u);
        painter.SetPixel(-1, 0, Red);  // nowhere
        painter.SetPixel(0, 1e12, Red);
    });
}

TEST_F(ContractShapes, PenOutputMayBeXoredOrAnded)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetBrush(BrushOf(Cyan));
            painter.FillRect(0, 0, 2, 1);
            painter.SetPen(PenOf(Red));
            painter.SetDrawMode(IPainter::roXor);
            Line(painter, 0, 0, 4, 0);  // cyan becomes white, white becomes cyan
            painter.SetDrawMode(IPainter::roAnd);
            Line(painter, 0, 1, 4, 1);  // cyan becomes black, white becomes red
            painter.SetBrush(BrushOf(Green));
            painter.FillRect(0, 2, 1, 2);  // brushes take no notice
        },
        "...cc\n"
        "###rr\n"
        "gg...\n");
}

TEST_F(ContractShapes, AnOutlineXoredTwiceIsNone)
{
    OnEachPainter([](IPainter& painter) {
        painter.SetDrawMode(IPainter::roXor);
        for (int width = 1; width <= 4; ++width)
        {
            for (int style = 1; style <= 6; ++style)
            {
                painter.SetPen(PenOf(Red, style, width));
                point<double> const star[] = {{20, 5}, {35, 50}, {0, 20}, {45, 20}, {5, 50}};
                int touched = 0;
                for (int turn = 0; turn < 2; ++turn)
                {
                    painter.Rectangle(60, 10, 110, 40);
                    painter.RoundRect(60, 50, 110, 90, 12, 9);
                    painter.Polygon(star, 5);
                    Line(painter, 5, 100, 90, 112);
                    for (int y = 0; turn == 0 && y < 120; ++y)
                        touched += painter.GetPixel(60, y).m_Value != 0xFFFFFFFFu ? 1 : 0;
                }
                EXPECT_GT(touched, 10);
                for (int y = 0; y < 120; ++y)
                {
                    for (int x = 0; x < 120; ++x)
                        ASSERT_EQ(painter.GetPixel(x, y).m_Value, 0xFFFFFFFFu)
                            << style << ' ' << width << ' ' << x << ' ' << y;
                }
            }
        }
    });
}

TEST_F(ContractShapes, AnXoredOutlineMeetsEachOfItsPixelsOnce)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.SetPen(PenOf(Red));
            painter.SetDrawMode(IPainter::roXor);
            painter.Rectangle(0, 0, 3, 2);
            point<double> const corners[] = {{5, 0}, {8, 0}, {8, 3}, {5, 3}};
            painter.Polygon(corners, 4);
        },
        "cccc.cccc\n"
        "c..c.c..c\n"
        "cccc.c..c\n"
        ".....cccc\n");
}

}  // namespace vexelbase::tests
