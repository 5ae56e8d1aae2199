// The blending of glyphs has a way for each kind of processor, of which the program takes one: all of them are tested
// here, from the source itself.
#include "vexel/platform/pixel_buffer.h"
#include "vexel/platform/qt/detail/coverage.cpp"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <vector>

namespace vexelbase::qt::test
{

namespace
{

// A buffer of pseudo-random pixels.
CPixelBuffer Noise(int width, int height, unsigned seed)
{
    std::mt19937 random(seed);
    CPixelBuffer result(size<int>{width, height});
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            result.Row(y)[x] = 0xFF000000u | (random() & 0xFFFFFFu);
    return result;
}

bool Same(CPixelBuffer const& a, CPixelBuffer const& b)
{
    for (int y = 0; y < a.GetHeight(); ++y)
        for (int x = 0; x < a.GetWidth(); ++x)
            if (a.Row(y)[x] != b.Row(y)[x])
                return false;
    return true;
}

}  // namespace

TEST(QtCoverage, NothingAndEverythingAreExact)
{
    CPixelBuffer pixels(size<int>{3, 1}, 0xFF123456u);
    std::uint8_t const bits[8] = {0, 255, 128, 0, 0, 0, 0, 0};
    SCoverage coverage;
    coverage.width = 3;
    coverage.height = 1;
    coverage.stride = 8;
    coverage.bits = bits;
    BlendCoverage(pixels, {0, 0, 3, 1}, 0, 0, coverage, 0xFFFEDCBAu);
    EXPECT_EQ(pixels.Row(0)[0], 0xFF123456u);
    EXPECT_EQ(pixels.Row(0)[1], 0xFFFEDCBAu);
    // (0xFE * 128 + 0x12 * 127) / 255 = (32512 + 2286) / 255 = 136.46; green 136.46, blue 136.47
    EXPECT_EQ(pixels.Row(0)[2], 0xFF888888u);
}

TEST(QtCoverage, EveryCoverageOfEveryChannelIsRoundedToTheNearest)
{
    for (int old = 0; old < 256; old += 5)
    {
        for (int ink = 0; ink < 256; ink += 3)
        {
            for (int c = 0; c < 256; ++c)
            {
                int const expected = (2 * (ink * c + old * (255 - c)) + 255) / 510;
                std::uint32_t const got = BlendPixel(static_cast<std::uint32_t>(old), static_cast<std::uint32_t>(ink),
                                                     static_cast<std::uint32_t>(c));
                ASSERT_EQ(static_cast<int>(got & 255u), expected) << old << ' ' << ink << ' ' << c;
            }
        }
    }
}

TEST(QtCoverage, AllWaysAgreeToThePixel)
{
    constexpr int width = 40;
    constexpr int height = 256;
    std::mt19937 random(7);
    std::vector<std::uint8_t> bits(static_cast<std::size_t>(width * height));
    for (int glyphWidth = 1; glyphWidth <= 24; ++glyphWidth)
    {
        for (std::size_t i = 0; i < bits.size(); ++i)
        {
            // Rows of nothing, of everything and of all that is between.
            std::size_t const row = i / static_cast<std::size_t>(width);
            auto const any = static_cast<std::uint8_t>(random() & 255u);
            bits[i] = static_cast<int>(i % static_cast<std::size_t>(width)) >= glyphWidth ? std::uint8_t{0}
                      : row % 3 == 0                                                      ? any
                                     : (any < 128 ? std::uint8_t{0} : std::uint8_t{255});
        }
        CPixelBuffer const before = Noise(width, height, 11);
        std::uint32_t const ink = 0xFF000000u | (random() & 0xFFFFFFu);
        auto const blended = [&](std::function<void(SRows const&)> const& blend) {
            CPixelBuffer result = before;
            blend({result.Row(0) + 3, width, bits.data(), width, glyphWidth, height, ink});
            return result;
        };
        CPixelBuffer const plain = blended([](SRows const& rows) {
            for (int y = 0; y < rows.count; ++y)
                BlendRow(rows.target + y * rows.targetStep, rows.cover + y * rows.coverStep, rows.width, rows.pixel);
        });
        EXPECT_TRUE(Same(blended(BlendRowsByFour), plain)) << glyphWidth;
        if (__builtin_cpu_supports("avx2"))
        {
            EXPECT_TRUE(Same(blended(BlendRowsByEight), plain)) << glyphWidth;
        }
    }
}

TEST(QtCoverage, FindsRowsThatLieApart)
{
    std::vector<std::uint32_t> memory(20 * 2, 0xFF000000u);
    CPixelBuffer pixels(size<int>{16, 2});
    pixels.UseOther(memory.data(), 20);
    std::uint8_t const bits[16] = {0, 0, 0, 0, 0, 0, 0, 0, 255, 0, 0, 0, 0, 0, 0, 0};
    SCoverage coverage;
    coverage.width = 3;
    coverage.height = 2;
    coverage.stride = 8;
    coverage.bits = bits;

    BlendCoverage(pixels, {0, 0, 16, 2}, 2, 0, coverage, 0xFFFEDCBAu);

    std::vector<std::uint32_t> expected(20 * 2, 0xFF000000u);
    expected[20 + 2] = 0xFFFEDCBAu;
    EXPECT_EQ(memory, expected);
    pixels.UseOwn(false);
}

TEST(QtCoverage, TurningBackGivesTheSame)
{
    std::vector<std::uint8_t> const letter{1, 2, 3, 0, 0, 0, 0, 0, 4, 5, 6, 0, 0, 0, 0, 0};
    SCoverage upright;
    upright.left = 2;
    upright.top = 1;
    upright.width = 3;
    upright.height = 2;
    upright.stride = 8;
    upright.bits = letter.data();

    // 1 2 3        3 6
    // 4 5 6   to   2 5
    //              1 4
    std::vector<std::uint8_t> bits;
    SCoverage const quarter = TurnCoverage(upright, ETurn::Quarter, bits);
    EXPECT_EQ(quarter.left, 1);
    EXPECT_EQ(quarter.top, -5);
    EXPECT_EQ(quarter.width, 2);
    EXPECT_EQ(quarter.height, 3);
    EXPECT_EQ(quarter.bits[0], 3);
    EXPECT_EQ(quarter.bits[1], 6);
    EXPECT_EQ(quarter.bits[quarter.stride * 2], 1);
    EXPECT_EQ(quarter.bits[quarter.stride * 2 + 1], 4);

    std::vector<std::uint8_t> backBits;
    SCoverage const back = TurnCoverage(quarter, ETurn::ThreeQuarters, backBits);
    EXPECT_EQ(back.left, 2);
    EXPECT_EQ(back.top, 1);
    EXPECT_EQ(backBits, letter);
}

}  // namespace vexelbase::qt::test
