#include "vexel/antialiasing/contour.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace antialiasing
{

namespace
{

CColorInfo Orange()
{
    return {200, 100, 0, 7, 9};  // alpha and kind of a stamp aren't read
}

TEST(Contour, BeginsEmptyAndWithTheFirstLaw)
{
    CContour const contour;

    EXPECT_EQ(contour.m_Mode, 0ul);
    EXPECT_EQ(contour.m_Bounds, tagRECT());
    EXPECT_TRUE(contour.m_Contour.empty());
    EXPECT_TRUE(contour.m_Solid.empty());
    EXPECT_TRUE(contour.m_Overlaid.empty());
    EXPECT_TRUE(contour.m_Ambient.m_Primary.empty());
    EXPECT_TRUE(contour.m_Forced.empty());
    EXPECT_TRUE(contour.m_Last.empty());
}

TEST(Contour, PointsAreOrderedByColumnThenRow)
{
    EXPECT_LT((tagPOINT{1, 9}), (tagPOINT{2, 0}));
    EXPECT_LT((tagPOINT{1, 2}), (tagPOINT{1, 3}));
    EXPECT_FALSE((tagPOINT{1, 2}) < (tagPOINT{1, 2}));
    EXPECT_FALSE((tagPOINT{2, 0}) < (tagPOINT{1, 9}));
}

TEST(Contour, ASampleInTheMiddleIsSharedByFourPixels)
{
    CContour contour;
    CColorInfo colour = Orange();

    contour.AddPoint(2.5, 3.5, colour, 0, 1.0);

    // A quarter each: 200 / 4, 100 / 4, 0, 255 / 4 = 63.75
    CColorInfo const quarter{50, 25, 0, 63, 0};
    EXPECT_EQ(contour.m_Contour,
              (CContour::Map{{{2, 3}, quarter}, {{2, 4}, quarter}, {{3, 3}, quarter}, {{3, 4}, quarter}}));
    EXPECT_EQ(contour.m_Bounds, (tagRECT{0, 0, 3, 4}));
    EXPECT_TRUE(contour.m_Last.empty());
}

TEST(Contour, EachShareIsTruncatedByItself)
{
    CContour contour;
    CColorInfo colour{3, 5, 255, 0, 0};

    contour.AddPoint(0.5, 0.5, colour, 0, 1.0);
    contour.AddPoint(0.5, 0.5, colour, 0, 1.0);

    // 0.75, 1.25 and 63.75, twice
    EXPECT_EQ((contour.m_Contour[{0, 0}]), (CColorInfo{0, 2, 126, 126, 0}));
}

TEST(Contour, AShareBelowOne255thMakesAnEntryWithoutCoverage)
{
    CContour contour;
    CColorInfo colour = Orange();

    contour.AddPoint(0.5, 0.5, colour, 0, 0.01);  // 255 * 0.0025

    EXPECT_EQ(contour.m_Contour.size(), 4u);
    EXPECT_EQ((contour.m_Contour[{1, 1}]), CColorInfo());
}

TEST(Contour, ASampleOnAWholeRowGivesTwoSharesToEachOfTwoPixels)
{
    CContour contour;
    CColorInfo colour = Orange();

    contour.AddPoint(2.5, 3.0, colour, 0, 1.0);

    CColorInfo const half{100, 50, 0, 126, 0};  // 63 + 63
    EXPECT_EQ(contour.m_Contour, (CContour::Map{{{2, 3}, half}, {{3, 3}, half}}));
    EXPECT_EQ(contour.m_Bounds, (tagRECT{0, 0, 3, 3}));
}

TEST(Contour, ASampleOnAPixelCountsFullyWhateverAlphaAndFlags)
{
    CContour contour;
    CColorInfo colour = Orange();

    contour.AddPoint(4, -2, colour, CContour::sfLast | CContour::sfGuarded, 0.25);

    EXPECT_EQ(contour.m_Contour, (CContour::Map{{{4, -2}, {200, 100, 0, 255, 0}}}));
    EXPECT_TRUE(contour.m_Last.empty());
    EXPECT_EQ(contour.m_Bounds, (tagRECT{0, -2, 4, 0}));
}

// At (0.25, 0) the pixels on the left are 0.25 away, those on the right 0.75. The shares of each side fall on one pixel.
TEST(Contour, TheFirstLawIsThePowerOneAndAHalf)
{
    CContour contour;
    CColorInfo colour{255, 0, 0, 0, 0};

    contour.AddPoint(0.25, 0, colour, 0, 1.0);

    // 1/0.125 = 8 and 1/0.6495 = 1.5396: of 19.0792 the left has twice 0.41930, 106.92, the right twice 0.08070, 20.58
    EXPECT_EQ((contour.m_Contour[{0, 0}].m_Alpha), 212ul);
    EXPECT_EQ((contour.m_Contour[{1, 0}].m_Alpha), 40ul);
}

TEST(Contour, TheSecondLawIsTheDistance)
{
    CContour contour;
    contour.m_Mode = 1 + 4;  // only the two low bits count
    CColorInfo colour{255, 0, 0, 0, 0};

    contour.AddPoint(0.25, 0, colour, 0, 1.0);

    // 4 and 1.3333: of 10.667 the left has twice 0.375, 95.625, the right twice 0.125, 31.875
    EXPECT_EQ((contour.m_Contour[{0, 0}].m_Alpha), 190ul);
    EXPECT_EQ((contour.m_Contour[{1, 0}].m_Alpha), 62ul);
}

TEST(Contour, TheThirdLawIsItsSquare)
{
    CContour contour;
    contour.m_Mode = 2;
    CColorInfo colour{255, 0, 0, 0, 0};

    contour.AddPoint(0.25, 0, colour, 0, 1.0);

    // 16 and 1.7778: of 35.556 the left has twice 0.45, 114.75, the right twice 0.05, 12.75
    EXPECT_EQ((contour.m_Contour[{0, 0}].m_Alpha), 228ul);
    EXPECT_EQ((contour.m_Contour[{1, 0}].m_Alpha), 24ul);
}

TEST(Contour, TheFourthLawStampsOnlyWhatIsOnAPixel)
{
    CContour contour;
    contour.m_Mode = 3;
    CColorInfo colour = Orange();

    contour.AddPoint(-2.5, 3.25, colour, 0, 1.0);
    EXPECT_TRUE(contour.m_Contour.empty());
    EXPECT_EQ(contour.m_Bounds, tagRECT());

    contour.AddPoint(5, 5, colour, 0, 1.0);
    EXPECT_EQ(contour.m_Contour.size(), 1u);
}

TEST(Contour, PixelsBelowZeroAreRoundedDown)
{
    CContour contour;
    CColorInfo colour = Orange();

    contour.AddPoint(-0.5, -1.5, colour, 0, 1.0);

    CColorInfo const quarter{50, 25, 0, 63, 0};
    EXPECT_EQ(contour.m_Contour,
              (CContour::Map{{{-1, -2}, quarter}, {{-1, -1}, quarter}, {{0, -2}, quarter}, {{0, -1}, quarter}}));
    EXPECT_EQ(contour.m_Bounds, (tagRECT{-1, -2, 0, 0}));
}

TEST(Contour, ASampleThatIsNoNumberAddsNothingAtTheOrigin)
{
    CContour contour;
    CColorInfo colour = Orange();
    double const nan = std::numeric_limits<double>::quiet_NaN();

    contour.AddPoint(nan, nan, colour, 0, 1.0);

    EXPECT_EQ(contour.m_Contour, (CContour::Map{{{0, 0}, {}}}));
}

TEST(Contour, ADistanceTooSmallForANumberStampsNothing)
{
    CContour contour;
    CColorInfo colour = Orange();

    contour.AddPoint(1e-200, 0, colour, 0,
                     1.0);  // its square is 0: an infinite weight, and nothing is left of the unit

    EXPECT_EQ(contour.m_Contour, (CContour::Map{{{0, 0}, {}}, {{1, 0}, {}}}));
}

TEST(Contour, ANegativeShareIsTakenAway)
{
    CContour contour;
    CColorInfo colour = Orange();
    contour.AddPoint(0, 0, colour, 0, 1.0);

    contour.AddPoint(contour.m_Contour, 0, 0, colour, -0.5);

    EXPECT_EQ((contour.m_Contour[{0, 0}]), (CColorInfo{100, 50, 0, 128, 0}));  // 255 - 127
}

TEST(Contour, TheLastFlagStampsTheSecondRecordToo)
{
    CContour contour;
    CColorInfo colour = Orange();

    contour.AddPoint(0.5, 0.5, colour, CContour::sfLast, 1.0);

    EXPECT_EQ(contour.m_Last, contour.m_Contour);
    EXPECT_EQ(contour.m_Last.size(), 4u);
}

TEST(Contour, BothFlagsStampGuardedAlone)
{
    CContour contour;
    CColorInfo colour = Orange();

    contour.AddPoint(0.5, 0.5, colour, CContour::sfLast | CContour::sfGuarded, 1.0);

    EXPECT_EQ(contour.m_Contour.size(), 4u);
    EXPECT_TRUE(contour.m_Last.empty());
}

TEST(Contour, AGuardedShareKeepsOffWhatIsFull)
{
    CContour contour;
    CColorInfo colour = Orange();
    auto const alpha = [&](int x) { return contour.m_Contour[{x, 0}].m_Alpha; };
    for (int x = 1; x <= 4; ++x)
        contour.m_Last[{x, 0}] = {};
    contour.m_Contour[{0, 0}].m_Alpha = 255;
    contour.m_Contour[{1, 0}].m_Alpha = 254;
    contour.m_Contour[{2, 0}].m_Alpha = 255;
    contour.m_Contour[{3, 0}].m_Alpha = 256;

    for (int x = 0; x <= 4; ++x)
        contour.AddLastPoint(x, 0, colour, 0.5);

    EXPECT_EQ(contour.m_Contour.count({4, 0}), 0u);  // only in the second record
    EXPECT_EQ(alpha(0), 382ul);                      // not in the second record: a plain share of 127
    EXPECT_EQ(alpha(1), 381ul);
    EXPECT_EQ(alpha(2), 255ul);
    EXPECT_EQ(alpha(3), 256ul);
}

TEST(Contour, AGuardedWeightIsLimitedToTheCoverageThatIsMissing)
{
    CContour contour;
    CColorInfo colour{10, 0, 0, 0, 0};
    contour.m_Last[{0, 0}] = {};
    contour.m_Contour[{0, 0}].m_Alpha = 253;

    contour.AddLastPoint(0, 0, colour, 5.0);

    EXPECT_EQ((contour.m_Contour[{0, 0}]), (CColorInfo{20, 0, 0, 763, 0}));  // a weight of 2
}

TEST(Contour, ClearLeavesTheLawAlone)
{
    CContour contour;
    contour.m_Mode = 2;
    contour.m_Bounds = {1, 2, 3, 4};
    contour.m_Contour[{1, 1}] = {};
    contour.m_Solid[{1, 1}] = 1;
    contour.m_Overlaid[{1, 1}] = {};
    contour.m_Forced.insert({1, 1});
    contour.m_Last[{1, 1}] = {};
    contour.m_Ambient.m_Primary[{1, 1}] = 1;

    contour.Clear();

    EXPECT_EQ(contour.m_Mode, 2ul);
    EXPECT_EQ(contour.m_Bounds, tagRECT());
    EXPECT_TRUE(contour.m_Contour.empty());
    EXPECT_TRUE(contour.m_Solid.empty());
    EXPECT_TRUE(contour.m_Overlaid.empty());
    EXPECT_TRUE(contour.m_Forced.empty());
    EXPECT_TRUE(contour.m_Last.empty());
    EXPECT_TRUE(contour.m_Ambient.m_Primary.empty());
}

TEST(Contour, CopyTakesAllAndSetParamsOnlyLawAndBounds)
{
    CContour from;
    from.m_Mode = 2;
    from.m_Bounds = {1, 2, 3, 4};
    from.m_Contour[{1, 1}] = {1, 2, 3, 4, 5};
    from.m_Solid[{2, 2}] = 6;
    from.m_Overlaid[{3, 3}] = {7, 7, 7, 7, 7};
    from.m_Forced.insert({4, 4});
    from.m_Last[{5, 5}] = {8, 8, 8, 8, 8};
    from.m_Ambient.m_Primary[{6, 6}] = 9;
    from.m_Ambient.m_Secondary[{1, 1}] = &from.m_Ambient.m_Primary[{6, 6}];

    CContour copy, params;
    copy.Copy(from);
    params.SetParams(from);

    EXPECT_EQ(copy.m_Mode, 2ul);
    EXPECT_EQ(copy.m_Bounds, (tagRECT{1, 2, 3, 4}));
    EXPECT_EQ(copy.m_Contour, from.m_Contour);
    EXPECT_EQ(copy.m_Solid, from.m_Solid);
    EXPECT_EQ(copy.m_Overlaid, from.m_Overlaid);
    EXPECT_EQ(copy.m_Forced, from.m_Forced);
    EXPECT_EQ(copy.m_Last, from.m_Last);
    EXPECT_EQ(copy.m_Ambient.m_Primary, from.m_Ambient.m_Primary);
    EXPECT_EQ((copy.m_Ambient.m_Secondary.at({1, 1})), (&copy.m_Ambient.m_Primary.at({6, 6})));
    EXPECT_EQ(params.m_Mode, 2ul);
    EXPECT_EQ(params.m_Bounds, (tagRECT{1, 2, 3, 4}));
    EXPECT_TRUE(params.m_Contour.empty());
    EXPECT_TRUE(params.m_Forced.empty());
}

TEST(Contour, OverlayHandsOverSharedPixels)
{
    CContour contour, first, second;
    CColorInfo const pixel{10, 20, 30, 40, 1};
    for (int x = 0; x < 5; ++x)
        contour.m_Contour[{x, 0}] = pixel;
    first.m_Contour[{0, 0}] = {1, 2, 3, 4, 2};
    first.m_Solid[{1, 0}] = 5;
    second.m_Contour[{0, 0}] = {6, 6, 6, 6, 6};
    second.m_Contour[{1, 0}] = {6, 6, 6, 6, 6};
    second.m_Contour[{2, 0}] = {0ul - 50, 0, 0, 0, 0};
    second.m_Solid[{3, 0}] = 7;
    contour.m_Overlaid[{0, 0}] = {9, 9, 9, 9, 9};

    contour.Overlay(&first, &second);

    EXPECT_EQ((first.m_Contour[{0, 0}]), (CColorInfo{11, 22, 33, 44, 2}));
    EXPECT_EQ((second.m_Contour[{0, 0}]), (CColorInfo{6, 6, 6, 6, 6}));  // the first one has it
    EXPECT_EQ((second.m_Contour[{1, 0}]), (CColorInfo{6, 6, 6, 6, 6}));
    EXPECT_EQ((second.m_Contour[{2, 0}]), (CColorInfo{0, 20, 30, 40, 0}));  // 10 - 50 stops at 0
    EXPECT_EQ(first.m_Solid.size(), 1u);
    EXPECT_EQ(contour.m_Contour, (CContour::Map{{{3, 0}, pixel}, {{4, 0}, pixel}}));
    EXPECT_EQ(contour.m_Overlaid, (CContour::Map{{{0, 0}, {9, 9, 9, 9, 9}}, {{1, 0}, pixel}, {{2, 0}, pixel}}));
}

TEST(Contour, OverlayWithoutASecondLeavesWhatTheFirstHasNot)
{
    CContour contour, first;
    contour.m_Contour[{0, 0}] = {1, 1, 1, 1, 0};
    contour.m_Contour[{1, 0}] = {1, 1, 1, 1, 0};
    first.m_Contour[{1, 0}] = {};

    contour.Overlay(&first, nullptr);

    EXPECT_EQ(contour.m_Contour.size(), 1u);
    EXPECT_EQ(contour.m_Contour.count({0, 0}), 1u);
    EXPECT_EQ(contour.m_Overlaid.count({1, 0}), 1u);
}

TEST(Contour, OverlayTakesChannelsBelowZeroAwayButNotBelowZero)
{
    CContour contour, first;
    contour.m_Contour[{0, 0}] = {0ul - 3, 0ul - 3, 1, 0ul - 1, 0};
    first.m_Contour[{0, 0}] = {5, 2, 1, 1, 0};

    contour.Overlay(&first, nullptr);

    EXPECT_EQ((first.m_Contour[{0, 0}]), (CColorInfo{2, 0, 2, 0, 0}));
}

TEST(Contour, OffsetMovesPixelsButNeitherBoundsNorTheSecondRecord)
{
    CContour contour;
    contour.m_Bounds = {1, 2, 3, 4};
    contour.m_Contour[{1, 1}] = {1, 1, 1, 1, 1};
    contour.m_Contour[{2, 1}] = {2, 2, 2, 2, 2};
    contour.m_Solid[{1, 2}] = 3;
    contour.m_Overlaid[{1, 3}] = {4, 4, 4, 4, 4};
    contour.m_Last[{1, 4}] = {};
    contour.m_Forced.insert({1, 5});

    contour.Offset(1, -2);

    EXPECT_EQ(contour.m_Contour, (CContour::Map{{{2, -1}, {1, 1, 1, 1, 1}}, {{3, -1}, {2, 2, 2, 2, 2}}}));
    EXPECT_EQ(contour.m_Solid, (std::map<tagPOINT, unsigned long>{{{2, 0}, 3}}));
    EXPECT_EQ(contour.m_Overlaid.count({2, 1}), 1u);
    EXPECT_EQ(contour.m_Last.count({1, 4}), 1u);
    EXPECT_EQ(contour.m_Forced.count({1, 5}), 1u);
    EXPECT_EQ(contour.m_Bounds, (tagRECT{1, 2, 3, 4}));
}

}  // namespace

}  // namespace antialiasing
