#include "vexel/antialiasing/line_contour_cache.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace antialiasing
{

namespace
{

using Tag = CCacheableLineContour::Tag;

TEST(LineContourCache, ATagPacksTheLine)
{
    LineContourParams line;
    line.m_Start = {1.26, 2.39};  // tenths 12 and 23
    line.m_End = {3.19, 4.55};    // 31 = 7 * 4 + 3, and 45
    line.m_StartCap = CapCircle5;
    line.m_EndCap = CapCircle10;
    line.m_PenStyle = 13;  // the low three bits: 5
    line.m_Width = 11;     // 3
    line.m_StartColor = {1, 2, 3, 4, 5};
    line.m_EndColor = {6, 7, 8, 9, 10};

    Tag const tag(line, true, 0x10005, 0x24);

    EXPECT_EQ(tag.m_Packed1, 1u + 12u + (4u << 4) + (5u << 7) + (3u << 13) + (45u << 16) + (3u << 30));
    EXPECT_EQ(tag.m_Packed2, 7u + (23u << 8) + (12u << 22));
    EXPECT_EQ(tag.m_Size, 0x25);
    EXPECT_EQ(tag.m_StartColor, (CColorInfo{1, 2, 3, 4, 5}));
    EXPECT_EQ(tag.m_EndColor, (CColorInfo{6, 7, 8, 9, 10}));
}

TEST(LineContourCache, WhatDoesNotFitIsCutOff)
{
    LineContourParams line;
    line.m_Start = {-0.1, 1638.4};  // -1; 16384 has 15 bits
    line.m_End = {102.4, 1638.5};   // 1024 = 4 * 256; 16385

    Tag const tag(line, false, 0, 0);

    EXPECT_EQ(tag.m_Packed1, (1u << 7) + (1u << 13) + (1u << 16));
    EXPECT_EQ(tag.m_Packed2, 1023u << 22);
}

TEST(LineContourCache, TagsAreOrderedByWordsSizeAndColours)
{
    LineContourParams line;
    Tag const plain(line, false, 0, 0), flagged(line, true, 0, 0), sized(line, false, 1, 0);
    line.m_Start.x = 0.1;
    Tag const moved(line, false, 0, 0);
    line.m_Start.x = 0;
    line.m_StartColor.m_Red = 1;
    Tag const red(line, false, 0, 0);
    line.m_StartColor.m_Red = 0;
    line.m_EndColor.m_Kind = 1;
    Tag const kind(line, false, 0, 0);
    line.m_EndColor.m_Alpha = 256;
    Tag const alpha(line, false, 0, 0);
    line.m_EndColor.m_Kind = 2;
    line.m_EndColor.m_Alpha = 255;
    EXPECT_TRUE(Tag(line, false, 0, 0) < alpha);

    EXPECT_FALSE(plain < plain);
    EXPECT_TRUE(plain < kind && kind < red && red < sized && sized < moved && moved < flagged);
    EXPECT_FALSE(flagged < plain);
    EXPECT_TRUE(CCacheableLineContour::sm_mapCache.empty());
}

TEST(LineContourCache, AMaskSaysHowMuchOfTheBackgroundRemains)
{
    CCacheableLineContour line;
    line.m_End = {2, 0};
    EXPECT_EQ(line.m_Mask, nullptr);

    line.Generate(4, 3, false);

    ASSERT_NE(line.m_Mask, nullptr);
    EXPECT_FALSE(line.m_OwnsMask);
    unsigned char const upright[12] = {113, 71, 213, 255, 213, 186, 228, 255, 255, 255, 255, 255};
    EXPECT_TRUE(std::equal(upright, upright + 12, line.m_Mask));

    line.Generate(4, 3, true);
    unsigned char const flipped[12] = {255, 255, 255, 255, 213, 186, 228, 255, 113, 71, 213, 255};
    EXPECT_TRUE(std::equal(flipped, flipped + 12, line.m_Mask));
}

TEST(LineContourCache, WhatIsCoveredMoreThanOnceIsCoveredFully)
{
    CCacheableLineContour line;
    line.m_Start = {1, 4};
    line.m_End = {20, 4};
    line.m_StartCap = CapArrowWide;  // the samples near its point lie close together
    CLineContour contour;
    static_cast<LINE_CONTOUR_PARAMS&>(contour) = line;
    contour.Generate(nullptr, nullptr);

    line.Generate(24, 9, false);

    int found = 0;
    for (auto const& [position, pixel] : contour.m_Contour)
    {
        if (pixel.m_Alpha > 255)
        {
            ++found;
            EXPECT_EQ(line.m_Mask[position.y * 24 + position.x], 0) << position.x << ", " << position.y;
        }
    }
    EXPECT_GT(found, 0);
}

TEST(LineContourCache, TheLawIsHandedOn)
{
    CCacheableLineContour line;
    line.m_End = {2, 0};
    line.m_Mode = 3;  // nothing off the grid

    line.Generate(4, 3, false);

    EXPECT_EQ(std::count(line.m_Mask, line.m_Mask + 12, 255), 12);
}

TEST(LineContourCache, SmallMasksShareOneBufferAndLargeOnesAreOwned)
{
    CCacheableLineContour first, second;
    first.Generate(0x7FFFF, 1, false);
    second.Generate(10, 10, false);
    EXPECT_FALSE(first.m_OwnsMask);
    EXPECT_EQ(first.m_Mask, second.m_Mask);

    first.Generate(0x80000, 1, false);
    EXPECT_TRUE(first.m_OwnsMask);
    EXPECT_NE(first.m_Mask, second.m_Mask);
    EXPECT_EQ(first.m_Mask[0x7FFFF], 255);

    first.Generate(0x40000, -2, false);  // by its magnitude
    EXPECT_TRUE(first.m_OwnsMask);
    EXPECT_EQ(first.m_Mask[0x7FFFF], 255);

    first.Generate(10, 10, false);
    EXPECT_FALSE(first.m_OwnsMask);
    EXPECT_EQ(first.m_Mask, second.m_Mask);

    second.Generate(-5, 10, false);  // no columns
    EXPECT_FALSE(second.m_OwnsMask);
}

}  // namespace

}  // namespace antialiasing
