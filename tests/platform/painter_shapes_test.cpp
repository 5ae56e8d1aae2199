#include "tests/support/canvas.h"

#include <gtest/gtest.h>

namespace vexelbase::tests
{

// Filled rectangles ------------------------------------------------------------------------------------------------

TEST(PainterFillRect, CoversItsRightAndBottomEdge)
{
    CCanvas canvas(6, 4);
    canvas.Brush(Black);
    canvas->FillRect(1, 1, 3, 2);
    EXPECT_EQ(canvas.Text(), "......\n"
                             ".###..\n"
                             ".###..\n"
                             "......\n");
}

TEST(PainterFillRect, OfEqualEndsIsOnePixelLine)
{
    CCanvas canvas(5, 3);
    canvas.Brush(Black);
    canvas->FillRect(2, 0, 2, 0);
    canvas->FillRect(0, 2, 3, 2);
    EXPECT_EQ(canvas.Text(), "..#..\n"
                             ".....\n"
                             "####.\n");
}

TEST(PainterFillRect, TakesItsCornersInAnyOrder)
{
    CCanvas canvas(5, 3);
    canvas.Brush(Black);
    canvas->FillRect(3, 1, 1, 0);
    EXPECT_EQ(canvas.Text(), ".###.\n"
                             ".###.\n"
                             ".....\n");
}

TEST(PainterFillRect, RoundsDownOnBothSidesOfZero)
{
    CCanvas canvas(4, 3);
    canvas.Brush(Black);
    canvas->FillRect(-1.5, 0.9, 0.9, 1.99);
    EXPECT_EQ(canvas.Text(), "#...\n"
                             "#...\n"
                             "....\n");
    canvas.Brush(Red);
    canvas->FillRect(-0.5, 0, -0.1, 2);  // column -1 alone
    canvas->FillRect(2, -3, 3, -0.5);    // rows -3 to -1
    EXPECT_EQ(canvas.Text(), "#...\n"
                             "#...\n"
                             "....\n");
}

TEST(PainterFillRect, PaintsNothingWithoutABrushOrAColour)
{
    CCanvas canvas(3, 1);
    canvas->SetBrush({Black, brush::bsNone});
    canvas->FillRect(0, 0, 0, 0);
    canvas->SetBrush({NoColor, brush::bsSolid});
    canvas->FillRect(1, 0, 1, 0);
    EXPECT_EQ(canvas.Text(), "...\n");
}

TEST(PainterFillRect, IsOpaqueWhateverTheTopByteOfTheColour)
{
    CCanvas canvas(1, 1);
    canvas.Brush(_color(0x00FF0000));
    canvas->FillRect(0, 0, 0, 0);
    EXPECT_EQ(canvas.Text(), "b\n");
    EXPECT_EQ(canvas.Pixels().Row(0)[0], 0xFF0000FFu);
}

TEST(PainterFillRect, LeavesThePenAndItsDrawModeOutOfIt)
{
    CCanvas canvas(3, 2);
    canvas.Pen(Red, pen::psSolid, 3);
    canvas->SetDrawMode(IPainter::roXor);
    canvas.Brush(Green);
    canvas->FillRect(1, 0, 1, 1);
    EXPECT_EQ(canvas.Text(), ".g.\n"
                             ".g.\n");
}

// Rectangles -------------------------------------------------------------------------------------------------------

TEST(PainterRectangle, HasItsOutlineOnTheEdgesAndTheBrushInside)
{
    CCanvas canvas(7, 6);
    canvas.Brush(Yellow);
    canvas->Rectangle(1, 1, 5, 4);
    EXPECT_EQ(canvas.Text(), ".......\n"
                             ".#####.\n"
                             ".#yyy#.\n"
                             ".#yyy#.\n"
                             ".#####.\n"
                             ".......\n");
}

TEST(PainterRectangle, WithoutAPenIsFilledToItsEdges)
{
    CCanvas canvas(4, 3);
    canvas.Brush(Yellow);
    canvas.NoPen();
    canvas->Rectangle(0, 0, 2, 1);
    canvas.Pen(NoColor);
    canvas->Rectangle(3, 2, 3, 2);
    EXPECT_EQ(canvas.Text(), "yyy.\n"
                             "yyy.\n"
                             "...y\n");
}

TEST(PainterRectangle, WithoutABrushLeavesTheInside)
{
    CCanvas canvas("rrrr\n"
                   "rrrr\n"
                   "rrrr\n");
    canvas->Rectangle(0, 0, 3, 2);
    EXPECT_EQ(canvas.Text(), "####\n"
                             "#rr#\n"
                             "####\n");
}

TEST(PainterRectangle, CollapsesToALineAndToAPixel)
{
    CCanvas canvas(6, 4);
    canvas->Rectangle(1, 0, 1, 3);
    canvas->Rectangle(3, 1, 5, 1);
    canvas->Rectangle(4, 3, 4, 3);
    EXPECT_EQ(canvas.Text(), ".#....\n"
                             ".#.###\n"
                             ".#....\n"
                             ".#..#.\n");
}

TEST(PainterRectangle, OfTwoPixelsIsAllOutline)
{
    CCanvas canvas(4, 4);
    canvas.Brush(Yellow);
    canvas->Rectangle(1, 1, 2, 2);
    EXPECT_EQ(canvas.Text(), "....\n"
                             ".##.\n"
                             ".##.\n"
                             "....\n");
}

TEST(PainterRectangle, HasAWidePenCentredOnItsEdges)
{
    CCanvas canvas(9, 8);
    canvas.Brush(Yellow);
    canvas.Pen(Black, pen::psSolid, 3);
    canvas->Rectangle(1, 1, 7, 6);
    EXPECT_EQ(canvas.Text(), "#########\n"
                             "#########\n"
                             "#########\n"
                             "###yyy###\n"
                             "###yyy###\n"
                             "#########\n"
                             "#########\n"
                             "#########\n");
}

TEST(PainterRectangle, CarriesItsPatternClockwiseAroundTheOutline)
{
    CCanvas canvas(8, 5);
    canvas.Pen(Black, pen::psDash);  // 6 on, 3 off; the outline is 22 long
    canvas.Brush(Yellow);
    canvas->Rectangle(0, 0, 7, 4);
    EXPECT_EQ(canvas.Text(), "######yy\n"
                             "#yyyyyyy\n"
                             "#yyyyyy#\n"
                             "#yyyyyy#\n"
                             "#yyy####\n");
}

TEST(PainterRectangle, InvertsEachOutlinePixelOnce)
{
    CCanvas canvas(6, 4);
    canvas->SetDrawMode(IPainter::roXor);
    canvas.Pen(White);
    canvas->Rectangle(1, 0, 4, 3);
    canvas->Rectangle(0, 0, 0, 0);
    EXPECT_EQ(canvas.Text(), "#####.\n"
                             ".#..#.\n"
                             ".#..#.\n"
                             ".####.\n");
    canvas->Rectangle(1, 0, 4, 3);
    canvas->Rectangle(0, 0, 0, 0);
    EXPECT_EQ(canvas.Text(), "......\n"
                             "......\n"
                             "......\n"
                             "......\n");
}

TEST(PainterRectangle, InvertsOnceWithAWidePenToo)
{
    CCanvas canvas(6, 6);
    canvas->SetDrawMode(IPainter::roXor);
    canvas.Pen(White, pen::psSolid, 2);
    canvas->Rectangle(1, 1, 3, 3);
    EXPECT_EQ(canvas.Text(), "......\n"
                             ".####.\n"
                             ".####.\n"
                             ".####.\n"
                             ".####.\n"
                             "......\n");
    canvas->Rectangle(1, 1, 3, 3);
    EXPECT_EQ(canvas.Text(), CCanvas(6, 6).Text());
}

// Rounded rectangles -----------------------------------------------------------------------------------------------

TEST(PainterRoundRect, OfRadiusTwoLacksItsCornerPixels)
{
    CCanvas canvas(8, 7);
    canvas.Brush(Yellow);
    canvas->RoundRect(1, 1, 6, 5, 2, 2);
    EXPECT_EQ(canvas.Text(), "........\n"
                             "..####..\n"
                             ".#yyyy#.\n"
                             ".#yyyy#.\n"
                             ".#yyyy#.\n"
                             "..####..\n"
                             "........\n");
}

TEST(PainterRoundRect, FollowsAQuarterCircleInEachCorner)
{
    CCanvas canvas(9, 9);
    canvas->RoundRect(0, 0, 8, 8, 4, 4);
    EXPECT_EQ(canvas.Text(), "..#####..\n"
                             ".#.....#.\n"
                             "#.......#\n"
                             "#.......#\n"
                             "#.......#\n"
                             "#.......#\n"
                             "#.......#\n"
                             ".#.....#.\n"
                             "..#####..\n");
}

TEST(PainterRoundRect, FillsWhatItsOutlineEncloses)
{
    CCanvas canvas(9, 9);
    canvas.Brush(Black);
    canvas.NoPen();
    canvas->RoundRect(0, 0, 8, 8, 4, 4);
    EXPECT_EQ(canvas.Text(), "..#####..\n"
                             ".#######.\n"
                             "#########\n"
                             "#########\n"
                             "#########\n"
                             "#########\n"
                             "#########\n"
                             ".#######.\n"
                             "..#####..\n");
}

TEST(PainterRoundRect, CutsItsRadiiToHalfOfTheExtents)
{
    CCanvas canvas(8, 4);
    canvas.Brush(Black);
    canvas->RoundRect(0, 0, 7, 3, 100, 100);  // radii 4 and 2: an ellipse
    EXPECT_EQ(canvas.Text(), ".######.\n"
                             "########\n"
                             "########\n"
                             ".######.\n");
}

TEST(PainterRoundRect, ReachesAllFourEdgesHoweverFlatTheEllipse)
{
    CCanvas canvas(12, 4);
    canvas->RoundRect(0, 0, 11, 1, 6, 6);  // radii 6 and 1
    canvas->RoundRect(0, 2, 1, 3, 1, 1);
    EXPECT_EQ(canvas.Text(), "############\n"
                             "############\n"
                             "##..........\n"
                             "##..........\n");
}

TEST(PainterRoundRect, WithoutRadiusIsARectangle)
{
    CCanvas canvas(9, 3);
    canvas->RoundRect(0, 0, 2, 2, 0, 5);
    canvas->RoundRect(3, 0, 5, 2, 5, 0.9);
    canvas->RoundRect(6, 0, 8, 2, 0.5, 0.5);
    EXPECT_EQ(canvas.Text(), "#########\n"
                             "#.##.##.#\n"
                             "#########\n");
}

TEST(PainterRoundRect, TakesNegativeRadiiForPositiveOnes)
{
    CCanvas canvas(4, 4);
    canvas->RoundRect(0, 0, 3, 3, -2, -2);
    EXPECT_EQ(canvas.Text(), ".##.\n"
                             "#..#\n"
                             "#..#\n"
                             ".##.\n");
}

TEST(PainterRoundRect, AlternatesPixelsClockwiseFromTheTopEdge)
{
    CCanvas canvas(9, 9);
    canvas.Pen(Black, pen::psAlternate);
    canvas->RoundRect(0, 0, 8, 8, 4, 4);
    // 24 pixels: top 5, right-top corner 3, side 1, and so on around.
    EXPECT_EQ(canvas.Text(), "..#.#.#..\n"
                             ".........\n"
                             "#.......#\n"
                             ".........\n"
                             "#.......#\n"
                             ".........\n"
                             "#.......#\n"
                             ".........\n"
                             "..#.#.#..\n");
}

TEST(PainterRoundRect, InvertsEachOutlinePixelOnce)
{
    CCanvas canvas(9, 9);
    canvas->SetDrawMode(IPainter::roXor);
    canvas.Pen(White);
    canvas->RoundRect(0, 0, 8, 8, 4, 4);
    EXPECT_EQ(canvas.Text(), "..#####..\n"
                             ".#.....#.\n"
                             "#.......#\n"
                             "#.......#\n"
                             "#.......#\n"
                             "#.......#\n"
                             "#.......#\n"
                             ".#.....#.\n"
                             "..#####..\n");
}

// Polygons ---------------------------------------------------------------------------------------------------------

TEST(PainterPolygon, OfARectanglesCornersIsThatRectangle)
{
    CCanvas canvas(6, 5);
    canvas.Brush(Yellow);
    point<double> const corners[] = {{1, 1}, {4, 1}, {4, 3}, {1, 3}};
    canvas->Polygon(corners, 4);
    EXPECT_EQ(canvas.Text(), "......\n"
                             ".####.\n"
                             ".#yy#.\n"
                             ".####.\n"
                             "......\n");
}

TEST(PainterPolygon, WithoutAPenIsFilledToItsVerticesAndEdges)
{
    CCanvas canvas(7, 7);
    canvas.Brush(Black);
    canvas.NoPen();
    point<double> const corners[] = {{3, 0}, {6, 6}, {0, 6}};
    canvas->Polygon(corners, 3);
    EXPECT_EQ(canvas.Text(), "...#...\n"
                             "...##..\n"
                             "..###..\n"
                             "..####.\n"
                             ".#####.\n"
                             ".######\n"
                             "#######\n");
}

TEST(PainterPolygon, ClosesItsOutline)
{
    CCanvas canvas(5, 5);
    point<double> const corners[] = {{0, 0}, {4, 0}, {4, 4}};
    canvas->Polygon(corners, 3);
    EXPECT_EQ(canvas.Text(), "#####\n"
                             ".#..#\n"
                             "..#.#\n"
                             "...##\n"
                             "....#\n");
}

TEST(PainterPolygon, LeavesHolesByTheEvenOddRule)
{
    CCanvas canvas(9, 9);
    canvas.Brush(Black);
    canvas.NoPen();
    point<double> const corners[] = {{0, 0}, {8, 0}, {8, 8}, {0, 8}, {0, 0}, {2, 2}, {6, 2}, {6, 6}, {2, 6}, {2, 2}};
    canvas->Polygon(corners, 10);
    EXPECT_EQ(canvas.Text(), "#########\n"
                             "#########\n"
                             "#########\n"
                             "###...###\n"
                             "###...###\n"
                             "###...###\n"
                             "#########\n"
                             "#########\n"
                             "#########\n");
}

TEST(PainterPolygon, OfOneOrTwoPointsIsAPixelOrALine)
{
    CCanvas canvas(5, 3);
    point<double> const corners[] = {{1, 0}, {4, 0}};
    canvas->Polygon(corners, 2);
    point<double> const single[] = {{2, 2}};
    canvas->Polygon(single, 1);
    EXPECT_EQ(canvas.Text(), ".####\n"
                             ".....\n"
                             "..#..\n");
}

TEST(PainterPolygon, OfEqualPointsIsAPixel)
{
    CCanvas canvas(3, 1);
    point<double> const corners[] = {{1, 0}, {1.5, 0.5}, {1, 0}};
    canvas->Polygon(corners, 3);
    EXPECT_EQ(canvas.Text(), ".#.\n");
}

TEST(PainterPolygon, OfNoPointsIsNothing)
{
    CCanvas canvas(3, 1);
    canvas.Brush(Black);
    point<double> const corners[] = {{1, 0}};
    canvas->Polygon(corners, 0);
    canvas->Polygon(corners, -1);
    canvas->Polygon(nullptr, 3);
    EXPECT_EQ(canvas.Text(), "...\n");
}

TEST(PainterPolygon, InvertsPixelsThatItsOutlineMeetsTwiceOnlyOnce)
{
    CCanvas canvas(5, 1);
    canvas->SetDrawMode(IPainter::roXor);
    canvas.Pen(White);
    point<double> const corners[] = {{0, 0}, {4, 0}, {0, 0}};
    canvas->Polygon(corners, 3);
    EXPECT_EQ(canvas.Text(), "#####\n");
    canvas->Polygon(corners, 3);
    EXPECT_EQ(canvas.Text(), ".....\n");
}

TEST(PainterPolygon, CarriesItsPatternOnFromEdgeToEdge)
{
    CCanvas canvas(6, 4);
    canvas.Pen(Black, pen::psDot);  // 2 on, 2 off
    point<double> const corners[] = {{0, 0}, {5, 0}, {5, 3}, {0, 3}};
    canvas->Polygon(corners, 4);
    // 16 steps: top 0-4, right 5-7, bottom 8-12, left 13-15.
    EXPECT_EQ(canvas.Text(), "##..##\n"
                             "......\n"
                             "......\n"
                             "##..##\n");
}

// Focus rectangles -------------------------------------------------------------------------------------------------

TEST(PainterFocusRect, InvertsEverySecondPixelFromItsLeftTop)
{
    CCanvas canvas(6, 6);
    canvas->FocusRect(1, 1, 4, 4);
    EXPECT_EQ(canvas.Text(), "......\n"
                             ".#.#..\n"
                             "....#.\n"
                             ".#....\n"
                             "..#.#.\n"
                             "......\n");
}

TEST(PainterFocusRect, ErasesItselfByRepetition)
{
    std::string const before = "r.g.b\n"
                               ".y#c.\n"
                               "m.r.g\n";
    CCanvas canvas(before);
    rectangle<double> const rects[] = {{0, 0, 4, 2}, {0, 0, 3, 1}, {1, 1, 1, 1},
                                       {0, 1, 4, 1}, {2, 0, 2, 2}, {0, 0, 1, 1}};
    for (rectangle<double> const& rect : rects)
    {
        canvas->FocusRect(rect.left, rect.top, rect.right, rect.bottom);
        EXPECT_NE(canvas.Text(), before);
        canvas->FocusRect(rect.left, rect.top, rect.right, rect.bottom);
        EXPECT_EQ(canvas.Text(), before);
    }
}

TEST(PainterFocusRect, IsALineOrAPixelWithoutExtent)
{
    CCanvas canvas(7, 5);
    canvas->FocusRect(1, 0, 4, 0);
    canvas->FocusRect(6, 0, 6, 4);
    canvas->FocusRect(2, 3, 2, 3);
    EXPECT_EQ(canvas.Text(), ".#.#..#\n"
                             ".......\n"
                             "......#\n"
                             "..#....\n"
                             "......#\n");
}

TEST(PainterFocusRect, TakesNoNoticeOfPenBrushAndDrawMode)
{
    CCanvas canvas(3, 1);
    canvas.NoPen();
    canvas.Brush(Red);
    canvas->SetDrawMode(IPainter::roAnd);
    canvas->FocusRect(0, 0, 2, 0);
    EXPECT_EQ(canvas.Text(), "#.#\n");
}

// Single pixels ----------------------------------------------------------------------------------------------------

TEST(PainterPixel, IsSetAndReadThroughTheMapping)
{
    CCanvas canvas(4, 3);
    canvas.Shift(1, 1);
    canvas->SetPixel(0.5, 1.9, Red);
    EXPECT_EQ(canvas.Text(), "....\n"
                             "....\n"
                             ".r..\n");
    EXPECT_EQ(canvas->GetPixel(0.1, 1.1), _color(0xFF0000FF));
    EXPECT_EQ(canvas->GetPixel(1, 1), White);
}

TEST(PainterPixel, OutsideTheSurfaceReadsWhite)
{
    CCanvas canvas("#\n");
    EXPECT_EQ(canvas->GetPixel(0, 0), Black);
    EXPECT_EQ(canvas->GetPixel(-0.1, 0), White);
    EXPECT_EQ(canvas->GetPixel(0, 1), White);
    EXPECT_EQ(canvas->GetPixel(1e300, -1e300), White);
}

TEST(PainterPixel, OutsideTheClipIsNotSetButRead)
{
    CCanvas canvas("r.\n");
    canvas->SetClipRect(1, 0, 1, 0, false);
    canvas->SetPixel(0, 0, Black);
    canvas->SetPixel(1, 0, Black);
    EXPECT_EQ(canvas.Text(), "r#\n");
    EXPECT_EQ(canvas->GetPixel(0, 0), Red);
}

TEST(PainterPixel, OfNoColourIsNotSet)
{
    CCanvas canvas("r\n");
    canvas->SetPixel(0, 0, NoColor);
    EXPECT_EQ(canvas.Text(), "r\n");
}

}  // namespace vexelbase::tests
