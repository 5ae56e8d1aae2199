#include "tests/support/canvas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vexelbase::tests
{

TEST(PainterLine, DrawsBothEnds)
{
    CCanvas canvas(6, 4);
    canvas.Line(1, 0, 4, 0);
    canvas.Line(5, 3, 5, 1);
    EXPECT_EQ(canvas.Text(), ".####.\n"
                             ".....#\n"
                             ".....#\n"
                             ".....#\n");
}

TEST(PainterLine, BeginsWhereTheLastOneEnded)
{
    CCanvas canvas(5, 3);
    canvas->MoveTo(0, 0);
    canvas->LineTo(4, 0);
    canvas->LineTo(4, 2);
    canvas->LineTo(2, 2);
    EXPECT_EQ(canvas.Text(), "#####\n"
                             "....#\n"
                             "..###\n");
}

TEST(PainterLine, OfNoLengthIsOnePixel)
{
    CCanvas canvas(3, 1);
    canvas.Line(1.2, 0.5, 1.9, 0.1);
    EXPECT_EQ(canvas.Text(), ".#.\n");
}

TEST(PainterLine, TakesTheNearestPixelInEachColumn)
{
    CCanvas canvas(7, 3);
    canvas.Line(0, 0, 6, 2);
    EXPECT_EQ(canvas.Text(), "##.....\n"
                             "..###..\n"
                             ".....##\n");
}

TEST(PainterLine, TakesTheLowerOrRightOneOfTwoEquallyNearPixels)
{
    CCanvas canvas(7, 3);
    canvas.Line(0, 0, 2, 1);  // the middle column lies between both rows
    canvas.Line(4, 2, 5, 0);  // the middle row lies between both columns
    EXPECT_EQ(canvas.Text(), "#....#.\n"
                             ".##..#.\n"
                             "....#..\n");
}

TEST(PainterLine, IsTheSameFromBothEnds)
{
    for (int x = -7; x <= 7; ++x)
    {
        for (int y = -7; y <= 7; ++y)
        {
            CCanvas there(15, 15);
            CCanvas back(15, 15);
            there.Line(7, 7, 7 + x, 7 + y);
            back.Line(7 + x, 7 + y, 7, 7);
            ASSERT_EQ(there.Text(), back.Text()) << x << ", " << y;
        }
    }
}

TEST(PainterLine, IsNotDrawnWithoutAPenOrAColourButMovesOn)
{
    CCanvas canvas(4, 1);
    canvas.NoPen();
    canvas.Line(0, 0, 3, 0);
    canvas.Pen(NoColor);
    canvas->LineTo(2, 0);
    canvas.Pen(Red);
    canvas->LineTo(3, 0);
    EXPECT_EQ(canvas.Text(), "..rr\n");
}

// Width ------------------------------------------------------------------------------------------------------------

TEST(PainterLine, OfAnOddWidthHasASquareBrushAroundEachPixel)
{
    CCanvas canvas(7, 7);
    canvas.Pen(Black, pen::psSolid, 3);
    canvas.Line(2, 2, 4, 4);
    EXPECT_EQ(canvas.Text(), ".......\n"
                             ".###...\n"
                             ".####..\n"
                             ".#####.\n"
                             "..####.\n"
                             "...###.\n"
                             ".......\n");
}

TEST(PainterLine, OfAnEvenWidthTakesOnePixelMoreToTheRightAndBelow)
{
    CCanvas canvas(9, 6);
    canvas.Pen(Black, pen::psSolid, 2);
    canvas.Line(1, 1, 3, 1);
    canvas.Pen(Red, pen::psSolid, 4);
    canvas.Line(6, 2, 6, 2);
    EXPECT_EQ(canvas.Text(), ".........\n"
                             ".####rrrr\n"
                             ".####rrrr\n"
                             ".....rrrr\n"
                             ".....rrrr\n"
                             ".........\n");
}

TEST(PainterLine, OfAWidthBelowOneIsOneWide)
{
    CCanvas canvas(3, 3);
    canvas.Pen(Black, pen::psSolid, 0);
    canvas.Line(0, 0, 2, 0);
    canvas.Pen(Black, pen::psSolid, -5);
    canvas.Line(0, 2, 2, 2);
    EXPECT_EQ(canvas.Text(), "###\n"
                             "...\n"
                             "###\n");
}

TEST(PainterLine, OfEnormousWidthCoversAll)
{
    CCanvas canvas(3, 2);
    canvas.Pen(Black, pen::psSolid, std::numeric_limits<int>::max());
    canvas.Line(1000, 1000, 1010, 1005);
    EXPECT_EQ(canvas.Text(), "###\n"
                             "###\n");
}

// Patterns ---------------------------------------------------------------------------------------------------------

std::string PatternOf(int style)
{
    CCanvas canvas(32, 1);
    canvas.Pen(Black, style);
    canvas.Line(0, 0, 31, 0);
    return canvas.Text();
}

TEST(PainterLine, HasAPatternForEachStyle)
{
    EXPECT_EQ(PatternOf(pen::psNone), "................................\n");
    EXPECT_EQ(PatternOf(pen::psSolid), "################################\n");
    EXPECT_EQ(PatternOf(pen::psDash), "######...######...######...#####\n");
    EXPECT_EQ(PatternOf(pen::psDot), "##..##..##..##..##..##..##..##..\n");
    EXPECT_EQ(PatternOf(pen::psDashDot), "######..##..######..##..######..\n");
    EXPECT_EQ(PatternOf(pen::psDashDotDot), "######..##..##..######..##..##..\n");
    EXPECT_EQ(PatternOf(pen::psAlternate), "#.#.#.#.#.#.#.#.#.#.#.#.#.#.#.#.\n");
    EXPECT_EQ(PatternOf(7), PatternOf(pen::psSolid));
    EXPECT_EQ(PatternOf(-1), PatternOf(pen::psSolid));
}

TEST(PainterLine, BeginsItsPatternWhereItBeginsItself)
{
    CCanvas canvas(10, 3);
    canvas.Pen(Black, pen::psDash);
    canvas.Line(1, 0, 9, 0);
    canvas.Line(8, 1, 0, 1);
    canvas.Line(-4, 2, 9, 2);  // four steps lie outside
    EXPECT_EQ(canvas.Text(), ".######...\n"
                             "...######.\n"
                             "##...#####\n");
}

TEST(PainterLine, CountsThePatternAlongItsLongerWay)
{
    CCanvas canvas(6, 6);
    canvas.Pen(Black, pen::psDot);
    canvas.Line(0, 0, 5, 5);
    EXPECT_EQ(canvas.Text(), "#.....\n"
                             ".#....\n"
                             "......\n"
                             "......\n"
                             "....#.\n"
                             ".....#\n");
}

TEST(PainterLine, StretchesThePatternWithTheWidth)
{
    CCanvas canvas(32, 2);
    canvas.Pen(Black, pen::psDash, 2);  // 12 steps on, 6 off
    canvas.Line(0, 0, 29, 0);
    EXPECT_EQ(canvas.Text(), "#############.....#############.\n"
                             "#############.....#############.\n");
}

// Draw modes -------------------------------------------------------------------------------------------------------

TEST(PainterLine, MeetsTheSurfaceByTheDrawMode)
{
    CCanvas canvas("yyyyyy\n"
                   "yyyyyy\n"
                   "yyyyyy\n");
    canvas.Pen(Cyan);
    canvas.Line(0, 0, 5, 0);
    canvas->SetDrawMode(IPainter::roXor);  // red and green ^ green and blue
    canvas.Line(0, 1, 5, 1);
    canvas->SetDrawMode(IPainter::roAnd);
    canvas.Line(0, 2, 5, 2);
    EXPECT_EQ(canvas.Text(), "cccccc\n"
                             "mmmmmm\n"
                             "gggggg\n");
    EXPECT_EQ(canvas->GetDrawMode(), IPainter::roAnd);
}

TEST(PainterLine, KeepsTheSurfaceOpaqueInAllDrawModes)
{
    CCanvas canvas(1, 1);
    for (IPainter::RasterOperation mode : {IPainter::roXor, IPainter::roAnd, IPainter::roCopy})
    {
        canvas->SetDrawMode(mode);
        canvas.Pen(_color(0x00000000));
        canvas.Line(0, 0, 0, 0);
        EXPECT_EQ(canvas.Pixels().Row(0)[0] >> 24, 0xFFu);
        canvas.Pen(_color(0xFF0000FF));
        canvas.Line(0, 0, 0, 0);
        EXPECT_EQ(canvas.Pixels().Row(0)[0] >> 24, 0xFFu);
    }
}

TEST(PainterLine, InvertsEachPixelOnceWithAWidePen)
{
    CCanvas canvas(7, 7);
    canvas->SetDrawMode(IPainter::roXor);
    canvas.Pen(White, pen::psSolid, 3);
    canvas.Line(2, 2, 4, 4);
    EXPECT_EQ(canvas.Text(), ".......\n"
                             ".###...\n"
                             ".####..\n"
                             ".#####.\n"
                             "..####.\n"
                             "...###.\n"
                             ".......\n");
}

// Far ends ---------------------------------------------------------------------------------------------------------

TEST(PainterLine, IsDrawnWhereItPassesHoweverFarItsEnds)
{
    CCanvas canvas(6, 6);
    canvas.Line(-1e9, 1, 1e9, 1);
    canvas.Line(2, -1e300, 2, 1e300);
    canvas.Line(-3e9, -3e9, 3e9, 3e9);
    EXPECT_EQ(canvas.Text(), "#.#...\n"
                             "######\n"
                             "..#...\n"
                             "..##..\n"
                             "..#.#.\n"
                             "..#..#\n");
}

TEST(PainterLine, KeepsItsSlopeAndPatternFromAfar)
{
    CCanvas canvas(8, 4);
    canvas.Pen(Black, pen::psAlternate);
    canvas.Line(-100001, 0, 7, 0);      // column 0 is step 100001
    canvas.Line(-1000000000, 1, 7, 1);  // column 0 is step 1000000000
    canvas.Pen(Black);
    canvas.Line(-3e9, 0, 3e9, 6);  // half way up in the middle
    EXPECT_EQ(canvas.Text(), ".#.#.#.#\n"
                             "#.#.#.#.\n"
                             "........\n"
                             "########\n");
}

TEST(PainterLine, OutOfSightOrWithoutNumbersDoesNoHarm)
{
    double const nan = std::nan("");
    double const inf = std::numeric_limits<double>::infinity();
    CCanvas canvas(2, 2);
    for (int style = 0; style <= 6; ++style)
    {
        canvas.Pen(Black, style, style);
        canvas.Line(-1e9, -5e8, -1e300, inf);
        canvas.Line(1e9, 1e9, 1e10, 1e11);
        canvas.Line(-inf, 700, inf, 700);
    }
    EXPECT_EQ(canvas.Text(), "..\n"
                             "..\n");
    canvas.Pen(Black);
    canvas.Line(nan, nan, nan, nan);  // no number counts as 0
    EXPECT_EQ(canvas.Text(), "#.\n"
                             "..\n");
}

}  // namespace vexelbase::tests
