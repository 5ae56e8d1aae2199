#include "vexel/testing/pixels.h"

#include "vexel/platform/memory/png.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest-spi.h>

#include <sstream>

namespace vexel
{
namespace
{

using namespace vexel::test;

constexpr std::uint32_t Black = 0xFF000000u;
constexpr std::uint32_t Red = 0xFFFF0000u;

// White, but for a black pixel at (1, 0) and a red one at (2, 1).
CPixelBuffer SmallPicture()
{
    CPixelBuffer pixels(size<int>{4, 2});
    pixels.Row(0)[1] = Black;
    pixels.Row(1)[2] = Red;
    return pixels;
}

TEST(Pixels, APictureIsALetterAPixel)
{
    EXPECT_EQ(PixelsToText(SmallPicture()), ".#..\n..r.\n");
    EXPECT_EQ(PixelsToText(SmallPicture(), {1, 0, 3, 2}), "#.\n.r\n");
    EXPECT_EQ(PixelsToText(SmallPicture(), {-5, 1, 100, 100}), "..r.\n");
    EXPECT_EQ(PixelsToText(SmallPicture(), {4, 0, 9, 9}), "");
    EXPECT_EQ(PixelsToText(CPixelBuffer()), "");
}

TEST(Pixels, TheLegendNamesTheUsualColours)
{
    CPixelBuffer pixels(size<int>{12, 1});
    int const colours[] = {9, 1, 6, 13, 4, 3, 12, 5, 11, 8, 7, 23};
    for (int x = 0; x < 12; ++x)
        pixels.Row(0)[x] = CPixelBuffer::ToPixel(color_table[colours[x]]);
    EXPECT_EQ(PixelsToText(pixels), ".#rgbycmoedl\n");
}

TEST(Pixels, ALegendCanBeChanged)
{
    CLegend legend;
    legend.Set('B', color_table[1]).Set('r', _color::FromRgb(1, 2, 3));
    EXPECT_EQ(PixelsToText(SmallPicture(), legend), ".B..\n..?.\n");
    EXPECT_EQ(legend.GetLetter(0xFF010203u), 'r');
    EXPECT_EQ(PixelsToText(SmallPicture(), CLegend::Empty().Set('x', color_table[6])), "????\n??x?\n");
}

TEST(Pixels, EqualPicturesHaveNoDifference)
{
    EXPECT_EQ(ComparePixels(SmallPicture(), SmallPicture()), "");
    CPixelBuffer other = SmallPicture();
    other.Row(0)[0] = 0x00FFFFFFu;  // only the colour counts
    EXPECT_EQ(ComparePixels(SmallPicture(), other), "");
    EXPECT_EQ(ComparePixels(CPixelBuffer(), CPixelBuffer()), "");
}

TEST(Pixels, ADifferenceIsToldByItsFirstPixelItsNumberAndBothPictures)
{
    CPixelBuffer other = SmallPicture();
    other.Row(0)[1] = Red;
    other.Row(1)[0] = Black;
    EXPECT_EQ(ComparePixels(SmallPicture(), other),
              "first difference at (1, 0): black expected, red found; 2 pixels differ, from (0, 0) to (1, 1)\n"
              "expected, from (0, 0):\n.#..\n..r.\n"
              "found:\n.r..\n#.r.\n");
}

TEST(Pixels, OnlyWhatLiesAroundTheDifferenceIsShown)
{
    CPixelBuffer const expected(size<int>{200, 100});
    CPixelBuffer found(size<int>{200, 100});
    found.Row(50)[100] = Black;
    EXPECT_EQ(ComparePixels(expected, found),
              "first difference at (100, 50): white expected, black found; 1 pixels differ, from (100, 50) to (100, 50)\n"
              "expected, from (98, 48):\n.....\n.....\n.....\n.....\n.....\n"
              "found:\n.....\n.....\n..#..\n.....\n.....\n");
}

TEST(Pixels, OfAWideDifferenceThePartAroundTheFirstPixelIsShown)
{
    CPixelBuffer const expected(size<int>{300, 2});
    CPixelBuffer found(size<int>{300, 2});
    found.Row(0)[100] = Black;
    found.Row(1)[0] = Black;
    found.Row(1)[299] = Black;
    std::string const text = ComparePixels(expected, found);
    EXPECT_NE(text.find("expected, from (64, 0):\n"), std::string::npos) << text;
    EXPECT_NE(text.find(std::string(36, '.') + "#" + std::string(35, '.') + "\n"), std::string::npos) << text;
}

TEST(Pixels, DifferentSizesAreToldApart)
{
    EXPECT_EQ(ComparePixels(CPixelBuffer(size<int>{4, 2}), CPixelBuffer(size<int>{2, 4})),
              "the pictures have different sizes: 4x2 expected, 2x4 found");
}

TEST(Pixels, TheExpectationPassesAndFails)
{
    static CPixelBuffer const a = SmallPicture();
    static CPixelBuffer const b(size<int>{4, 2});
    EXPECT_EQ_PIXELS(a, a);
    EXPECT_NONFATAL_FAILURE(EXPECT_EQ_PIXELS(a, b), "expected: a\n  actual: b\nfirst difference at (1, 0): black");
}

// PNG --------------------------------------------------------------------------------------------------------------

TEST(Png, WritesTheExactBytesOfASmallPicture)
{
    CPixelBuffer pixels(size<int>{1, 1}, Red);
    std::ostringstream out;
    EXPECT_TRUE(vexelbase::memory::WritePng(out, pixels));
    unsigned char const expected[] = {
        0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A,                                       // signature
        0, 0, 0, 13, 'I', 'H', 'D', 'R', 0, 0, 0, 1, 0, 0, 0, 1, 8, 2, 0, 0, 0,            // 1 x 1, eight bits, RGB
        0x90, 0x77, 0x53, 0xDE,                                                            //
        0, 0, 0, 15, 'I', 'D', 'A', 'T', 0x78, 0x01, 1, 4, 0, 0xFB, 0xFF, 0, 0xFF, 0, 0,   // one stored block
        0x03, 0x01, 0x01, 0x00,                                                            // its Adler sum
        0x8D, 0x1D, 0xE5, 0x82,                                                            //
        0, 0, 0, 0, 'I', 'E', 'N', 'D', 0xAE, 0x42, 0x60, 0x82};
    EXPECT_EQ(out.str(), std::string(reinterpret_cast<char const*>(expected), sizeof expected));
}

TEST(Png, ALargePictureTakesSeveralBlocks)
{
    CPixelBuffer pixels(size<int>{200, 200});
    std::ostringstream out;
    EXPECT_TRUE(vexelbase::memory::WritePng(out, pixels));
    // 200 rows of 601 bytes in two blocks: 65535 and 54665 bytes.
    EXPECT_EQ(out.str().size(), 8u + 25 + 12 + 2 + 2 * 5 + 120200 + 4 + 12);
    EXPECT_EQ(out.str().substr(43, 5), std::string("\0\xFF\xFF\0\0", 5));
}

TEST(Png, APictureWithoutAreaIsOneWhitePixel)
{
    std::ostringstream empty;
    std::ostringstream white;
    EXPECT_TRUE(vexelbase::memory::WritePng(empty, CPixelBuffer(size<int>{0, 5})));
    EXPECT_TRUE(vexelbase::memory::WritePng(white, CPixelBuffer(size<int>{1, 1})));
    EXPECT_EQ(empty.str(), white.str());
}

} // namespace
} // namespace vexel
