#include "vexel/platform/memory/memory_device.h"
#include "vexel/testing/test_kit.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

namespace vexel
{
namespace
{

using namespace vexel::test;
using vexelbase::memory::CMemoryDevice;

font SquareFont(int points = 8, int style = font::fsPlain, int rotation = 0)
{
    font result;
    result.name = "Square";
    result.family = font::ffSans;
    result.size = points;
    result.style = style;
    result.rotation = rotation;
    return result;
}

// A white surface with one black run on it, as text.
std::string DrawnRun(size<int> const& extent, int x, int y, char const* text, font const& textFont,
                     rectangle<int> const& clip)
{
    CPixelBuffer pixels(extent);
    CMemoryDevice device(pixels);
    IPaintDevice::SRun run;
    run.textFont = &textFont;
    run.text = text;
    run.length = static_cast<int>(std::strlen(text));
    run.x = x;
    run.y = y;
    run.clip = clip;
    device.DrawRun(run);
    return PixelsToText(pixels);
}

std::string DrawnRun(size<int> const& extent, int x, int y, char const* text, font const& textFont = SquareFont())
{
    return DrawnRun(extent, x, y, text, textFont, {0, 0, extent.width, extent.height});
}

int Width(char const* text, font const& textFont = SquareFont())
{
    CPixelBuffer pixels(size<int>{1, 1});
    CMemoryDevice device(pixels);
    return device.MeasureRun(textFont, text, static_cast<int>(std::strlen(text)));
}

fontmetrics Metrics(font const& textFont)
{
    CPixelBuffer pixels(size<int>{1, 1});
    CMemoryDevice device(pixels);
    fontmetrics metrics;
    device.GetMetrics(textFont, metrics);
    return metrics;
}

TEST(MemoryDevice, ACharacterOfSizeEightIsEightWideSixAboveTheLineAndTwoBelow)
{
    EXPECT_EQ(Width("abc"), 24);
    fontmetrics const metrics = Metrics(SquareFont());
    EXPECT_EQ(metrics.ascent, 6);
    EXPECT_EQ(metrics.descent, 2);
    EXPECT_EQ(metrics.leading, 0);
}

TEST(MemoryDevice, SizeFactorAndScaleMultiplyAndTheProductIsTruncated)
{
    font twelve = SquareFont(12);
    EXPECT_EQ(Width("a", twelve), 12);
    twelve.factor = 1.3;  // 15.6
    EXPECT_EQ(Width("a", twelve), 15);
    EXPECT_EQ(Metrics(twelve).ascent, 11);  // 15 * 6 / 8 = 11.25
    EXPECT_EQ(Metrics(twelve).descent, 4);

    CTestHost::System().SetScale(1.25);
    EXPECT_EQ(Width("a"), 10);
    EXPECT_EQ(Width("a", twelve), 19);  // 19.5
}

TEST(MemoryDevice, NoCharacterIsSmallerThanAPixel)
{
    font tiny = SquareFont(1);
    tiny.factor = 0.1;
    EXPECT_EQ(Width("ab", tiny), 2);
    EXPECT_EQ(Metrics(tiny).ascent, 0);
    EXPECT_EQ(Metrics(tiny).descent, 1);
    EXPECT_EQ(DrawnRun({3, 2}, 0, 0, "ab", tiny), "##.\n"
                                                  "...\n");
}

TEST(MemoryDevice, BoldIsOnePixelWiderACharacter)
{
    EXPECT_EQ(Width("abc", SquareFont(8, font::fsBold)), 27);
    EXPECT_EQ(Width("abc", SquareFont(8, font::fsItalic | font::fsUnderline)), 24);
}

TEST(MemoryDevice, ACharacterOfSeveralBytesTakesOneCell)
{
    EXPECT_EQ(Width("\xC3\xA4"), 8);              // a umlaut
    EXPECT_EQ(Width("\xE2\x82\xAC"), 8);          // euro sign
    EXPECT_EQ(Width("\xF0\x9F\x98\x80" "a"), 16);  // a smiling face and an a
}

TEST(MemoryDevice, EachByteThatIsNoPartOfACharacterTakesOneCell)
{
    EXPECT_EQ(Width("\x80"), 8);                  // continues nothing
    EXPECT_EQ(Width("\xE2\x82"), 16);             // cut off
    EXPECT_EQ(Width("\xC3" "a"), 16);             // not continued
    EXPECT_EQ(Width("\xC0\x80"), 16);             // longer than need be
    EXPECT_EQ(Width("\xE0\x80\x80"), 24);
    EXPECT_EQ(Width("\xED\xA0\x80"), 24);         // half of a pair
    EXPECT_EQ(Width("\xF4\x90\x80\x80"), 32);     // beyond the last character
    EXPECT_EQ(Width("\xFF\xFE"), 16);
}

TEST(MemoryDevice, AGlyphFillsItsCellButForTheLastColumnAndRow)
{
    // 'A' is 0x41: the bits 0 and 6 of nine, so the blocks left-top and left-bottom.
    EXPECT_EQ(DrawnRun({10, 9}, 1, 0, "A"), ".#######..\n"
                                            ".###......\n"
                                            ".###......\n"
                                            ".#........\n"
                                            ".#........\n"
                                            ".###......\n"
                                            ".###......\n"
                                            "..........\n"
                                            "..........\n");
}

TEST(MemoryDevice, BlanksPaintNothing)
{
    EXPECT_EQ(DrawnRun({16, 1}, 0, 0, " A"), "........#######.\n");
    EXPECT_EQ(DrawnRun({16, 1}, 0, 0, "\xC2\xA0" "A"), "........#######.\n");
}

TEST(MemoryDevice, NoTwoLettersOfTheAlphabetLookAlike)
{
    std::vector<std::string> pictures;
    for (char c = '!'; c <= '~'; ++c)
        pictures.push_back(DrawnRun({8, 8}, 0, 0, std::string(1, c).c_str()));
    std::sort(pictures.begin(), pictures.end());
    EXPECT_EQ(std::unique(pictures.begin(), pictures.end()), pictures.end());
}

TEST(MemoryDevice, BoldPaintsEachPixelOnceMoreToTheRight)
{
    EXPECT_EQ(DrawnRun({9, 8}, 0, 0, "A", SquareFont(8, font::fsBold)), "########.\n"
                                                                        "####.....\n"
                                                                        "####.....\n"
                                                                        "##.......\n"
                                                                        "##.......\n"
                                                                        "####.....\n"
                                                                        "####.....\n"
                                                                        ".........\n");
}

TEST(MemoryDevice, ItalicMovesTheUpperHalfByAPixel)
{
    EXPECT_EQ(DrawnRun({9, 8}, 0, 0, "A", SquareFont(8, font::fsItalic)), ".#######.\n"
                                                                          ".###.....\n"
                                                                          ".###.....\n"
                                                                          ".#.......\n"
                                                                          "#........\n"
                                                                          "###......\n"
                                                                          "###......\n"
                                                                          ".........\n");
}

TEST(MemoryDevice, UnderlineStandsBelowTheAscentAndStrikeOutHalfWayUp)
{
    EXPECT_EQ(DrawnRun({9, 8}, 0, 0, " ", SquareFont(8, font::fsUnderline)), ".........\n"
                                                                             ".........\n"
                                                                             ".........\n"
                                                                             ".........\n"
                                                                             ".........\n"
                                                                             ".........\n"
                                                                             "########.\n"
                                                                             ".........\n");
    EXPECT_EQ(DrawnRun({9, 8}, 0, 0, " ", SquareFont(8, font::fsStrikeOut)), ".........\n"
                                                                             ".........\n"
                                                                             ".........\n"
                                                                             "########.\n"
                                                                             ".........\n"
                                                                             ".........\n"
                                                                             ".........\n"
                                                                             ".........\n");
}

TEST(MemoryDevice, ARunOfNineHundredTenthsRunsUpwardFromItsPoint)
{
    // Columns x to x + 7, rows y - 8 to y - 1.
    EXPECT_EQ(DrawnRun({9, 9}, 0, 8, "A", SquareFont(8, font::fsPlain, 900)), ".........\n"
                                                                              "#........\n"
                                                                              "#........\n"
                                                                              "#........\n"
                                                                              "#........\n"
                                                                              "###..##..\n"
                                                                              "###..##..\n"
                                                                              "#######..\n"
                                                                              ".........\n");
}

TEST(MemoryDevice, ARunOfTwentySevenHundredTenthsRunsDownwardFromItsPoint)
{
    // Columns x - 8 to x - 1, rows y to y + 7.
    EXPECT_EQ(DrawnRun({9, 9}, 8, 0, "A", SquareFont(8, font::fsPlain, 2700)), ".#######.\n"
                                                                               ".##..###.\n"
                                                                               ".##..###.\n"
                                                                               ".......#.\n"
                                                                               ".......#.\n"
                                                                               ".......#.\n"
                                                                               ".......#.\n"
                                                                               ".........\n"
                                                                               ".........\n");
}

TEST(MemoryDevice, ARunTurnedHalfAroundStandsLeftAndAboveOfItsPoint)
{
    EXPECT_EQ(DrawnRun({9, 9}, 8, 8, "A", SquareFont(8, font::fsPlain, 1800)), ".........\n"
                                                                               ".....###.\n"
                                                                               ".....###.\n"
                                                                               ".......#.\n"
                                                                               ".......#.\n"
                                                                               ".....###.\n"
                                                                               ".....###.\n"
                                                                               ".#######.\n"
                                                                               ".........\n");
}

TEST(MemoryDevice, AnyOtherAngleTurnsToTheNearestPixel)
{
    // A strip of 4 x 1 pixels, 3 below the line of its origin (1, 0), turned by 30 degrees upward: the pixels whose
    // middles lie in it.
    EXPECT_EQ(DrawnRun({8, 4}, 1, 0, " ", SquareFont(4, font::fsUnderline, 300)), "........\n"
                                                                                  "....##..\n"
                                                                                  "...##...\n"
                                                                                  "........\n");
}

TEST(MemoryDevice, NothingIsPaintedOutsideTheClip)
{
    EXPECT_EQ(DrawnRun({9, 8}, 0, 0, "A", SquareFont(), {2, 0, 5, 2}), "..###....\n"
                                                                       "..#......\n"
                                                                       ".........\n"
                                                                       ".........\n"
                                                                       ".........\n"
                                                                       ".........\n"
                                                                       ".........\n"
                                                                       ".........\n");
}

TEST(MemoryDevice, WhatLiesOutsideTheSurfaceIsLeftOut)
{
    EXPECT_EQ(DrawnRun({4, 3}, -5, -5, "AA", SquareFont(), {-100, -100, 100, 100}), "...#\n"
                                                                                    "...#\n"
                                                                                    "....\n");
}

TEST(MemoryDevice, ARunNotesWhatItTouched)
{
    CPixelBuffer pixels(size<int>{40, 20});
    CMemoryDevice device(pixels);
    font const textFont = SquareFont();
    IPaintDevice::SRun run;
    run.textFont = &textFont;
    run.text = "AB";
    run.length = 2;
    run.x = 10;
    run.y = 5;
    run.clip = {0, 0, 40, 20};
    device.DrawRun(run);
    ASSERT_EQ(device.GetDamage().GetCount(), 1);
    EXPECT_EQ(device.GetDamage()[0], (rectangle<int>{10, 5, 25, 12}));
}

// Parts ------------------------------------------------------------------------------------------------------------

CPixelBuffer DrawnPart(IPainter::ControlElement element, int state, size<int> const& extent = {12, 10})
{
    CPixelBuffer pixels(extent);
    CMemoryDevice device(pixels);
    rectangle<int> const all{0, 0, extent.width, extent.height};
    device.DrawControlElement(element, all, all, state);
    return pixels;
}

TEST(MemoryDevice, APartCoversItsWholeRectangleWithAColourOfItsOwn)
{
    // Red A0 + part, green B0 + state, blue C0.
    CLegend legend;
    legend.Set('#', _color::FromRgb(0x40, 0x40, 0x40)).Set('p', _color::FromRgb(0xA7, 0xB8, 0xC0));
    EXPECT_EQ(PixelsToText(DrawnPart(IPainter::cePushButton, IPainter::esPressed, {5, 4}), legend), "#####\n"
                                                                                                    "#ppp#\n"
                                                                                                    "#ppp#\n"
                                                                                                    "#####\n");
}

TEST(MemoryDevice, NoPartLeavesAPixelOfItsRectangleUnpainted)
{
    for (int const element : {0, 1, 2, 7, 8, 9, 10, 11})
    {
        for (int const state : {0, 1, 2, 4, 8, 2 | 4})
        {
            CPixelBuffer const pixels = DrawnPart(static_cast<IPainter::ControlElement>(element), state);
            std::string const text = PixelsToText(pixels);
            EXPECT_EQ(text.find('.'), std::string::npos) << "part " << element << " state " << state << "\n" << text;
        }
    }
}

TEST(MemoryDevice, NoTwoPartsAndNoTwoStatesLookAlike)
{
    std::vector<std::vector<std::uint32_t>> pictures;
    for (int const element : {0, 1, 2, 7, 8, 9, 10, 11})
    {
        for (int state = 0; state < 16; ++state)
        {
            CPixelBuffer const pixels = DrawnPart(static_cast<IPainter::ControlElement>(element), state);
            pictures.emplace_back(pixels.Row(0), pixels.Row(0) + 120);
        }
    }
    ASSERT_EQ(pictures.size(), 128u);
    std::sort(pictures.begin(), pictures.end());
    EXPECT_EQ(std::unique(pictures.begin(), pictures.end()), pictures.end());
}

TEST(MemoryDevice, APartHeedsTheClip)
{
    CPixelBuffer pixels(size<int>{6, 3});
    CMemoryDevice device(pixels);
    device.DrawControlElement(IPainter::ceHeaderSection, {0, 0, 6, 3}, {2, 0, 4, 2}, 0);
    EXPECT_EQ(PixelsToText(pixels), "..??..\n"
                                    "..??..\n"
                                    "......\n");
}

TEST(MemoryDevice, APartWithoutRoomIsOnlyItsFrame)
{
    CLegend legend;
    legend.Set('#', _color::FromRgb(0x40, 0x40, 0x40));
    EXPECT_EQ(PixelsToText(DrawnPart(IPainter::ceCheckChecked, 0, {2, 2}), legend), "##\n##\n");
    EXPECT_EQ(PixelsToText(DrawnPart(IPainter::ceCheckChecked, 0, {1, 1}), legend), "#\n");
}

} // namespace
} // namespace vexel
