#include "tests/antialiasing/pixel_context.h"

#include "vexel/antialiasing/contour.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace antialiasing
{

namespace
{

using tests::CPixelContext;
using Solid = std::map<tagPOINT, unsigned long>;

TEST(ContourOutput, NormalizeMovesWhatIsAboveTheLimit)
{
    CContour contour;
    contour.m_Contour[{0, 0}] = {254, 0, 0, 254, 0};
    contour.m_Contour[{1, 0}] = {255, 100, 50, 255, 0};
    contour.m_Contour[{2, 0}] = {300, 150, 75, 510, 0};

    contour.Normalize(254);

    EXPECT_EQ(contour.m_Contour.size(), 1u);
    EXPECT_EQ(contour.m_Contour.count({0, 0}), 1u);
    // 300 * 255 / 510 = 150, 75, 37.5
    EXPECT_EQ(contour.m_Solid, (Solid{{{1, 0}, 0x3264FF}, {{2, 0}, 0x254B96}}));
}

TEST(ContourOutput, NormalizeCutsChannelsToEightBits)
{
    CContour contour;
    contour.m_Contour[{0, 0}] = {257, 256, 255, 255, 0};

    contour.Normalize(254);

    EXPECT_EQ((contour.m_Solid[{0, 0}]), 0xFF0001ul);
}

TEST(ContourOutput, NormalizeMovesForcedPointsAndForgetsThem)
{
    CContour contour;
    contour.m_Contour[{0, 0}] = {10, 20, 0, 20, 0};
    contour.m_Contour[{1, 0}] = {10, 20, 0, 20, 0};
    contour.m_Contour[{2, 0}] = {};
    contour.m_Forced = {{1, 0}, {2, 0}, {9, 9}};

    contour.Normalize(254);

    EXPECT_EQ(contour.m_Contour.size(), 1u);
    EXPECT_EQ(contour.m_Solid, (Solid{{{1, 0}, 0x00FF7F}, {{2, 0}, 0}}));  // 10 * 255 / 20 = 127; none is black
    EXPECT_TRUE(contour.m_Forced.empty());
}

TEST(ContourOutput, ScaleAlphaTruncatesAllFourChannels)
{
    CContour contour;
    contour.m_Contour[{0, 0}] = {3, 5, 7, 255, 2};

    contour.ScaleAlpha(0.5);

    EXPECT_EQ((contour.m_Contour[{0, 0}]), (CColorInfo{1, 2, 3, 127, 2}));
}

TEST(ContourOutput, AColourComesFromTheFirstMapThatHasThePixel)
{
    CContour contour;
    contour.m_Contour[{0, 0}] = {10, 20, 30, 55, 0};
    contour.m_Solid[{0, 0}] = 1;
    contour.m_Solid[{1, 0}] = 0x123456;
    contour.m_Overlaid[{1, 0}] = {};
    contour.m_Overlaid[{2, 0}] = {1, 1, 1, 255, 0};

    // 255 * 200 / 255 + 10 = 210; 128 * 200 / 255 = 100.4: 120; 1 * 200 / 255 = 0: 30
    EXPECT_EQ(contour.GetColor({0, 0}, 0x0180FF), 0x1E78D2ul);
    EXPECT_EQ(contour.GetColor({1, 0}, 0xFFFFFF), 0x123456ul);
    EXPECT_EQ(contour.GetColor({2, 0}, 0xFFFFFF), 0x010101ul);
    EXPECT_EQ(contour.GetColor({3, 0}, 0xFFFFFF), 0xFFFFFFFFul);
}

TEST(ContourOutput, ABlendIsCutToEightBitsNotClamped)
{
    CContour contour;
    contour.m_Contour[{0, 0}] = {100, 0, 256, 0, 0};

    EXPECT_EQ(contour.GetColor({0, 0}, 0x0000FF), 0x000063ul);  // 355 and 256
}

TEST(ContourOutput, MoreThanFullCoverageTakesMoreThanTheBackground)
{
    CContour contour;
    contour.m_Contour[{0, 0}] = {300, 0, 0, 300, 0};  // twice stamped and never made solid

    // 128 * -45 / 255 is -22: 278, and cut to eight bits 22; without any colour -22 is 234.
    EXPECT_EQ(contour.GetColor({0, 0}, 0x800080), 0xEA0016ul);
}

TEST(ContourOutput, PaintContourKeepsCoverage)
{
    CContour contour;
    contour.m_Contour[{0, 0}] = {1, 2, 3, 51, 3};  // a fifth
    contour.m_Solid[{1, 0}] = 5;

    contour.PaintContour(0x0A64FF);

    EXPECT_EQ((contour.m_Contour[{0, 0}]), (CColorInfo{51, 20, 2, 51, 3}));
    EXPECT_EQ((contour.m_Solid[{1, 0}]), 0x0A64FFul);
}

TEST(ContourOutput, MixingFinishesAllPixels)
{
    CContour contour;
    contour.m_Contour[{0, 0}] = {10, 20, 30, 55, 0};
    contour.m_Contour[{1, 0}] = {255, 255, 255, 255, 0};

    contour.MixWithBackground(0x0180FF);

    EXPECT_TRUE(contour.m_Contour.empty());
    EXPECT_EQ(contour.m_Solid, (Solid{{{0, 0}, 0x1E78D2}, {{1, 0}, 0xFFFFFF}}));
}

TEST(ContourOutput, MixingWithAnAmbientAreaTakesItsColours)
{
    CContour contour;
    for (int x = 0; x < 4; ++x)
        contour.m_Contour[{x, 0}] = {10, 20, 30, 55, 0};
    contour.m_Contour[{3, 0}].m_Alpha = 255;
    auto& area = contour.m_Ambient.m_Primary;
    area[{9, 0}] = 0x0180FF;
    area[{9, 1}] = NoColor;
    contour.m_Ambient.m_Secondary[{1, 0}] = &area[{9, 0}];
    contour.m_Ambient.m_Secondary[{2, 0}] = &area[{9, 1}];
    contour.m_Ambient.m_Secondary[{3, 0}] = &area[{9, 1}];

    contour.MixWithBackground(0);

    EXPECT_EQ(contour.m_Contour.size(), 1u);  // it has no partner
    EXPECT_EQ(contour.m_Contour.count({0, 0}), 1u);
    // unknown: (32640 - 55 * 128) / 255 = 100
    EXPECT_EQ(contour.m_Solid, (Solid{{{1, 0}, 0x1E78D2}, {{2, 0}, 0x82786E}, {{3, 0}, 0x1E140A}}));
}

TEST(ContourOutput, AnUnknownAmbientColourIsAGreyOf128)
{
    CContour contour;
    contour.m_Contour[{0, 0}] = {0, 0, 0, 100, 0};
    contour.m_Ambient.m_Primary[{9, 0}] = NoColor;
    contour.m_Ambient.m_Secondary[{0, 0}] = &contour.m_Ambient.m_Primary[{9, 0}];

    contour.MixWithBackground(0);

    EXPECT_EQ((contour.m_Solid[{0, 0}]), 0x4D4D4Dul);  // 19840 / 255 = 77.8
}

TEST(ContourOutput, DrawReadsAndBlendsColumnByColumnThenWritesSolidPixels)
{
    CContour contour;
    contour.m_Solid[{0, 0}] = 0x123456;
    contour.m_Contour[{2, 1}] = {0, 0, 0, 51, 0};
    contour.m_Contour[{1, 2}] = {0, 0, 0, 255, 0};
    contour.m_Contour[{1, 3}] = {};
    CPixelContext context;

    contour.Draw(&context);

    EXPECT_EQ(context.Take(), "get 1,2 set 1,2 0 get 1,3 set 1,3 ffffff get 2,1 set 2,1 cccccc set 0,0 123456");
}

TEST(ContourOutput, AnUnknownPixelIsBlendedOverTheLastKnownOne)
{
    CContour contour;
    for (int x = 0; x < 4; ++x)
        contour.m_Contour[{x, 0}] = {1, 1, 1, 0, 0};
    CPixelContext context(NoColor);
    context.m_Pixels[{1, 0}] = 0x102030;
    context.m_Pixels[{3, 0}] = 0x000000;

    contour.Draw(&context);

    EXPECT_EQ(context.Take(),
              "get 0,0 set 0,0 818181 get 1,0 set 1,0 112131 get 2,0 set 2,0 112131 get 3,0 set 3,0 10101");
}

TEST(ContourOutput, DrawWithAnAmbientAreaReadsNothing)
{
    CContour contour;
    contour.m_Contour[{0, 0}] = {1, 1, 1, 0, 0};
    contour.m_Contour[{1, 0}] = {1, 1, 1, 0, 0};
    contour.m_Contour[{2, 0}] = {1, 1, 1, 0, 0};
    contour.m_Contour[{3, 0}] = {1, 1, 1, 0, 0};
    contour.m_Solid[{5, 5}] = 7;
    auto& area = contour.m_Ambient.m_Primary;
    area[{9, 0}] = 0x010203;
    area[{9, 1}] = NoColor;
    contour.m_Ambient.m_Secondary[{-1, 0}] = &area[{9, 0}];
    contour.m_Ambient.m_Secondary[{0, 0}] = &area[{9, 1}];
    contour.m_Ambient.m_Secondary[{1, 0}] = &area[{9, 0}];
    // (2, 0) has no partner: the walk waits for one, and so (3, 0) isn't drawn either.
    contour.m_Ambient.m_Secondary[{3, 0}] = &area[{9, 0}];
    CPixelContext context;

    contour.Draw(&context);

    EXPECT_EQ(context.Take(), "set 0,0 818181 set 1,0 20304 set 5,5 7");
}

TEST(ContourOutput, DrawWithAnAmbientAreaButWithoutPixelsWritesSolidOnes)
{
    CContour contour;
    contour.m_Solid[{5, 5}] = 7;
    contour.m_Ambient.m_Primary[{9, 0}] = 1;
    contour.m_Ambient.m_Secondary[{0, 0}] = &contour.m_Ambient.m_Primary[{9, 0}];
    CPixelContext context;

    contour.Draw(&context);

    EXPECT_EQ(context.Take(), "set 5,5 7");
}

TEST(ContourOutput, DrawOverOneColourReadsNothing)
{
    CContour contour;
    contour.m_Contour[{1, 0}] = {1, 0, 0, 51, 0};
    contour.m_Solid[{0, 0}] = 7;
    CPixelContext context;

    contour.Draw(&context, 0xFF);

    EXPECT_EQ(context.Take(), "set 1,0 cd set 0,0 7");
}

TEST(ContourOutput, DrawOverTwoColoursChoosesByKind)
{
    CContour contour;
    for (unsigned kind = 0; kind < 4; ++kind)
        contour.m_Contour[{static_cast<long>(kind), 0}] = {0, 0, 0, 0, kind};
    contour.m_Solid[{0, 9}] = 7;
    CPixelContext context;

    contour.Draw(&context, 0x0310FF, 0x0411FE);

    // the mean: (3 + 4) >> 1 = 3, (16 + 17) >> 1 = 16, (255 + 254) >> 1 = 254
    EXPECT_EQ(context.Take(), "set 0,0 310ff set 1,0 310ff set 2,0 411fe set 3,0 310fe set 0,9 7");
}

TEST(ContourOutput, DrawSolidContourWritesNothingElse)
{
    CContour contour;
    contour.m_Contour[{1, 0}] = {1, 0, 0, 51, 0};
    contour.m_Solid[{0, 0}] = 7;
    CPixelContext context;

    contour.DrawSolidContour(&context);

    EXPECT_EQ(context.Take(), "set 0,0 7");
}

// Masks: '.' is 255, '#' is 0, a letter anything else ------------------------------------------------------------------

class Mask : public testing::Test
{
protected:
    Mask()
    {
        m_Contour.m_Solid[{1, 0}] = 0xFFFFFF;
        m_Contour.m_Contour[{2, 0}].m_Alpha = 10;   // 245
        m_Contour.m_Contour[{0, 2}].m_Alpha = 256;  // 255: the low byte
        m_Contour.m_Contour[{1, 2}].m_Alpha = 255;
    }

    // A mask of 4 x 3 with a row of guards before and behind.
    std::string Text() const
    {
        std::string text;
        for (std::size_t i = 0; i < m_Bytes.size(); ++i)
        {
            unsigned char const byte = m_Bytes[i];
            text += byte == 255 ? '.' : byte == 0 ? '#' : byte == 245 ? 'f' : '?';
            if (i % 4 == 3)
                text += '\n';
        }
        return text;
    }
    unsigned char* Bytes() { return m_Bytes.data() + 4; }

    CContour m_Contour;
    std::vector<unsigned char> m_Bytes = std::vector<unsigned char>(20, 255);
};

TEST_F(Mask, FillWritesWhatRemainsOfTheBackground)
{
    m_Contour.FillAlphaMask(Bytes(), 4, 3, false);

    EXPECT_EQ(Text(), "....\n"
                      ".#f.\n"
                      "....\n"
                      ".#..\n"
                      "....\n");
}

TEST_F(Mask, FillFlipsRows)
{
    m_Contour.FillAlphaMask(Bytes(), 4, 3, true);

    EXPECT_EQ(Text(), "....\n"
                      ".#..\n"
                      "....\n"
                      ".#f.\n"
                      "....\n");
}

TEST_F(Mask, FillLeavesOutWhatLiesOutside)
{
    for (long const x : {-1l, 4l, std::numeric_limits<long>::max() / 8})
        m_Contour.m_Solid[{x, 1}] = 0;
    for (long const y : {-1l, 3l, 1000000l})
        m_Contour.m_Contour[{3, y}].m_Alpha = 255;

    m_Contour.FillAlphaMask(Bytes(), 4, 3, false);
    EXPECT_EQ(Text(), "....\n.#f.\n....\n.#..\n....\n");
    m_Contour.FillAlphaMask(Bytes(), 4, 3, true);
    EXPECT_EQ(Text(), "....\n.#f.\n....\n.#f.\n....\n");
}

TEST_F(Mask, ANegativeHeightHasRowsButNoFlippedOnes)
{
    m_Contour.FillAlphaMask(Bytes(), 4, -3, false);
    EXPECT_EQ(Text(), "....\n.#f.\n....\n.#..\n....\n");

    m_Bytes.assign(20, 255);
    m_Contour.FillAlphaMask(Bytes(), 4, -3, true);
    EXPECT_EQ(Text(), "....\n....\n....\n....\n....\n");
}

TEST_F(Mask, ClearLeavesTheFirstRowAndColumnOfPartsAlone)
{
    m_Bytes.assign(20, 0);
    m_Contour.m_Contour[{3, 1}] = {};
    m_Contour.m_Solid[{0, 1}] = 0;

    m_Contour.ClearAlphaMask(Bytes(), 4, 3, false);

    EXPECT_EQ(Text(), "####\n"
                      "#.##\n"
                      ".##.\n"
                      "#.##\n"
                      "####\n");
}

TEST_F(Mask, ClearFlipsOneRowLower)
{
    m_Bytes.assign(20, 0);
    m_Contour.m_Contour[{3, 1}] = {};
    m_Contour.m_Contour[{3, 3}] = {};  // its row would be 0, but it is off the mask
    m_Contour.m_Solid[{0, 1}] = 0;

    m_Contour.ClearAlphaMask(Bytes(), 4, 3, true);

    // rows 3 - y: the solid pixel of row 0 is off the mask
    EXPECT_EQ(Text(), "####\n"
                      "####\n"
                      "#.##\n"
                      ".##.\n"
                      "####\n");
}

TEST_F(Mask, ClearLeavesOutWhatLiesOutside)
{
    m_Bytes.assign(20, 0);
    m_Contour.m_Contour.clear();
    for (tagPOINT const& outside : {tagPOINT{-1, 1}, {4, 1}, {2, -1}, {2, 3}})
    {
        m_Contour.m_Solid[outside] = 0;
        m_Contour.m_Contour[outside] = {};
    }

    m_Contour.ClearAlphaMask(Bytes(), 4, 3, false);

    EXPECT_EQ(Text(), "####\n#.##\n####\n####\n####\n");
}

}  // namespace

}  // namespace antialiasing
