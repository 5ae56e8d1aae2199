#include "tests/support/canvas.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/detail/pixel_transfer.h"
#include "vexel/platform/pixel_editor.h"
#include "vexel/testing/random.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <vector>

namespace vexelbase::tests
{

namespace
{

constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

bool IsCovered(CDamage const& damage, int x, int y)
{
    for (int i = 0; i < damage.GetCount(); ++i)
    {
        rectangle<int> const& rect = damage[i];
        if (x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom)
            return true;
    }
    return false;
}

}  // namespace

// Rounding ---------------------------------------------------------------------------------------------------------

TEST(Convert, FloorsToTheNextLowerPixelAndSaturates)
{
    double const inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(FloorToInt(0.0), 0);
    EXPECT_EQ(FloorToInt(-0.0), 0);
    EXPECT_EQ(FloorToInt(1.999), 1);
    EXPECT_EQ(FloorToInt(-1.0), -1);
    EXPECT_EQ(FloorToInt(-1.001), -2);
    EXPECT_EQ(FloorToInt(-1e-300), -1);
    EXPECT_EQ(FloorToInt(2147483647.5), Highest);
    EXPECT_EQ(FloorToInt(2147483648.0), Highest);
    EXPECT_EQ(FloorToInt(-2147483647.5), Lowest);
    EXPECT_EQ(FloorToInt(-2147483648.0), Lowest);
    EXPECT_EQ(FloorToInt(-2147483648.5), Lowest);
    EXPECT_EQ(FloorToInt(inf), Highest);
    EXPECT_EQ(FloorToInt(-inf), Lowest);
    EXPECT_EQ(FloorToInt(std::nan("")), 0);
}

// Pixel buffer -----------------------------------------------------------------------------------------------------

TEST(PixelBuffer, KeepsWhatLiesInBothSizes)
{
    CPixelBuffer pixels = MakePicture("rgb\n"
                                      "ycm\n")
                              ->GetPixels();
    pixels.Resize({2, 3}, 0xFF000000u);
    EXPECT_EQ(ToText(pixels), "rg\n"
                              "yc\n"
                              "##\n");
    pixels.Resize({4, 1}, 0xFFFFFFFFu);
    EXPECT_EQ(ToText(pixels), "rg..\n");
}

TEST(PixelBuffer, KeepsWhatLiesInBothSizesThroughAnyRowOfSizes)
{
    vexel::test::CTestRandom random;
    CPixelBuffer pixels;
    std::map<std::pair<int, int>, std::uint32_t> expected;
    size<int> extent;
    for (int step = 0; step < 300; ++step)
    {
        size<int> const wanted{random.Int(0, 12), random.Int(0, 12)};
        auto const fresh = static_cast<std::uint32_t>(step);
        for (int y = 0; y < wanted.height; ++y)
            for (int x = 0; x < wanted.width; ++x)
                if (x >= extent.width || y >= extent.height)
                    expected[{x, y}] = fresh;
        extent = wanted;

        pixels.Resize(wanted, fresh);

        ASSERT_EQ(pixels.GetSize(), wanted);
        for (int y = 0; y < wanted.height; ++y)
            for (int x = 0; x < wanted.width; ++x)
                ASSERT_EQ(pixels.Row(y)[x], (expected[{x, y}])) << "at step " << step << ", " << x << ", " << y;
    }
}

TEST(PixelBuffer, OfANegativeExtentIsEmpty)
{
    CPixelBuffer pixels({3, 3});
    pixels.Resize({-1, 5}, 0);
    EXPECT_EQ(pixels.GetSize(), (size<int>{0, 5}));
    EXPECT_FALSE(pixels.Contains(0, 0));
    rectangle<int> area{0, 0, 1, 1};
    EXPECT_FALSE(pixels.Cut(area));
    pixels.Renew({2, -2});
    EXPECT_EQ(pixels.GetSize(), (size<int>{2, 0}));
}

TEST(PixelBuffer, ExchangesRedAndBlueBetweenColoursAndPixels)
{
    EXPECT_EQ(CPixelBuffer::ToPixel(_color(0x00112233)), 0xFF332211u);
    EXPECT_EQ(CPixelBuffer::ToColor(0xFF332211u), _color(0xFF112233));
}

TEST(PixelTransfer, DividesBy255Exactly)
{
    for (std::uint32_t x = 0; x <= 255u * 255u; ++x)
        ASSERT_EQ(detail::DivideBy255(x), x / 255u) << x;
}

TEST(RasterDeviceBlit, StretchesBetweenEnormousRectangles)
{
    // A picture of 4 pixels over all numbers: the ends of the surface lie right of the middle, on the third.
    CCanvas canvas(2, 1);
    CPixelBuffer const source = MakePicture("rgby\n")->GetPixels();
    canvas.Device().Blit({Lowest, 0, Highest, 1}, {0, 0, 2, 1}, source, {0, 0, 4, 1}, IPainter::roCopy);
    EXPECT_EQ(canvas.Text(), "bb\n");
    // And all numbers as source, of equal extents and then one row for two.
    CCanvas wide(5, 2);
    wide.Device().Blit({Lowest, 0, Highest, 1}, {0, 0, 5, 1}, source, {Lowest, 0, Highest, 1}, IPainter::roCopy);
    EXPECT_EQ(wide.Text(), "rgby.\n"
                           ".....\n");
    wide.Device().Blit({Lowest, 0, Highest, 2}, {1, 1, 5, 2}, source, {Lowest, 0, Highest, 1}, IPainter::roCopy);
    EXPECT_EQ(wide.Text(), "rgby.\n"
                           ".gby.\n");
}

// Damage -----------------------------------------------------------------------------------------------------------

TEST(Damage, TakesUpWhatIsContainedAndWhatAdjoins)
{
    CDamage damage;
    damage.Add({10, 10, 20, 20});
    damage.Add({12, 12, 15, 15});
    EXPECT_EQ(damage.GetCount(), 1);
    damage.Add({20, 10, 30, 20});
    ASSERT_EQ(damage.GetCount(), 1);
    EXPECT_EQ(damage[0], (rectangle<int>{10, 10, 30, 20}));
    damage.Add({0, 0, 100, 100});
    ASSERT_EQ(damage.GetCount(), 1);
    EXPECT_EQ(damage[0], (rectangle<int>{0, 0, 100, 100}));
}

TEST(Damage, KeepsApartWhatLiesApart)
{
    CDamage damage;
    damage.Add({0, 0, 10, 10});
    damage.Add({500, 500, 510, 510});
    EXPECT_EQ(damage.GetCount(), 2);
    EXPECT_FALSE(IsCovered(damage, 100, 100));
    damage.Clear();
    EXPECT_EQ(damage.GetCount(), 0);
    damage.Add({5, 5, 5, 9});
    EXPECT_EQ(damage.GetCount(), 0);
}

TEST(Damage, GathersScatteredDotsOfALine)
{
    CDamage damage;
    for (int x = 0; x < 200; x += 2)
        damage.Add({x, 3, x + 1, 4});
    ASSERT_EQ(damage.GetCount(), 1);
    EXPECT_EQ(damage[0], (rectangle<int>{0, 3, 199, 4}));
}

// Squares of 10 that lie apart, in an order that jumps about.
rectangle<int> Scattered(int i)
{
    int const x = i * 37 % 400 * 100;
    int const y = i * 61 % 400 * 100;
    return {x, y, x + 10, y + 10};
}

TEST(Damage, NeverHasMoreThanItsCapacityNorLosesAPixel)
{
    CDamage damage;
    for (int i = 0; i < 400; ++i)
    {
        damage.Add(Scattered(i));
        ASSERT_LE(damage.GetCount(), CDamage::Capacity);
        for (int j = 0; j <= i; ++j)
        {
            ASSERT_TRUE(IsCovered(damage, Scattered(j).left, Scattered(j).top));
            ASSERT_TRUE(IsCovered(damage, Scattered(j).right - 1, Scattered(j).bottom - 1));
        }
    }
}

TEST(Damage, KeepsAsManyRectanglesAsItHasRoomForAndThenMakesOneOfThem)
{
    CDamage damage;
    for (int i = 0; i < CDamage::Capacity; ++i)
        damage.Add(Scattered(i));
    EXPECT_EQ(damage.GetCount(), CDamage::Capacity);
    EXPECT_EQ(damage[5], Scattered(5));

    damage.Add(Scattered(CDamage::Capacity));
    EXPECT_EQ(damage.GetCount(), 1);

    // After a Clear there is room again.
    damage.Clear();
    for (int i = 0; i < CDamage::Capacity; ++i)
        damage.Add(Scattered(i));
    EXPECT_EQ(damage.GetCount(), CDamage::Capacity);
}

TEST(Damage, IsNotedByAllThatWritesAndCutToTheSurface)
{
    CCanvas canvas(20, 20);
    CDamage& damage = canvas.Device().GetDamage();
    canvas.Brush(Red);
    canvas->FillRect(-5, -5, 2, 2);
    ASSERT_EQ(damage.GetCount(), 1);
    EXPECT_EQ(damage[0], (rectangle<int>{0, 0, 3, 3}));

    damage.Clear();
    canvas->DrawRasterPicture(MakePicture("rr\n").get(), 19, 4, 100, 100, IPainter::roXor);
    ASSERT_EQ(damage.GetCount(), 1);
    EXPECT_EQ(damage[0], (rectangle<int>{19, 4, 20, 5}));

    damage.Clear();
    canvas->AlphaBlend(3, 3, 100, 100, MakePicture("rr\n").get(), 9);
    ASSERT_EQ(damage.GetCount(), 1);
    EXPECT_EQ(damage[0], (rectangle<int>{3, 3, 5, 4}));

    damage.Clear();
    canvas->FillRect(20, 0, 30, 30);
    canvas->GetPixel(3, 3);
    canvas->ExtractRasterPicture(MakePicture("rr\n").get(), 0, 0, 9, 9);
    EXPECT_EQ(damage.GetCount(), 0);
}

// Editing pixels ---------------------------------------------------------------------------------------------------

TEST(RasterDeviceEdit, FindsRowsThatLieApart)
{
    std::vector<std::uint32_t> memory(5 * 3, 0xFF000000u);
    CCanvas canvas(3, 3);
    canvas.Pixels().UseOther(memory.data(), 5);
    struct CEditor : IPixelEditor
    {
        void Edit(SPixelArea const& part) override
        {
            EXPECT_EQ(part.area, (rectangle<int>{1, 1, 3, 3}));
            *part.At(1, 1) = 0xFF111111u;
            *part.At(2, 2) = 0xFF222222u;
        }
    } editor;

    canvas.Device().Edit({1, 1, 9, 9}, editor);

    std::vector<std::uint32_t> expected(5 * 3, 0xFF000000u);
    expected[5 + 1] = 0xFF111111u;
    expected[10 + 2] = 0xFF222222u;
    EXPECT_EQ(memory, expected);
    canvas.Pixels().UseOwn(false);
}

// Moving pixels ----------------------------------------------------------------------------------------------------

TEST(RasterDeviceMove, MovesInAllDirectionsThoughTheAreasOverlap)
{
    struct SCase
    {
        int dx;
        int dy;
        char const* expected;
    };
    SCase const cases[] = {{1, 0,
                            "rrgb\n"
                            "yycm\n"
                            "rgby\n"},
                           {-1, 0,
                            "gbyy\n"
                            "cm##\n"
                            "rgby\n"},
                           {0, 1,
                            "rgby\n"
                            "rgby\n"
                            "ycm#\n"},
                           {1, 1,
                            "rgby\n"
                            "yrgb\n"
                            "rycm\n"}};
    for (SCase const& entry : cases)
    {
        CCanvas canvas("rgby\n"
                       "ycm#\n"
                       "rgby\n");
        canvas.Device().Move({0, 0, 4, 2}, entry.dx, entry.dy);
        EXPECT_EQ(canvas.Text(), entry.expected) << entry.dx << ", " << entry.dy;
    }
}

TEST(RasterDeviceMove, LeavesWhatIsUncoveredAndLosesWhatLeaves)
{
    CCanvas canvas("rgby\n");
    EXPECT_TRUE(canvas.Device().Move({1, 0, 3, 1}, 2, 0));
    EXPECT_EQ(canvas.Text(), "rgbg\n");
    ASSERT_EQ(canvas.Device().GetDamage().GetCount(), 1);
    EXPECT_EQ(canvas.Device().GetDamage()[0], (rectangle<int>{3, 0, 4, 1}));
}

TEST(RasterDeviceMove, TellsWhetherAPixelShouldHaveComeFromOutside)
{
    CCanvas canvas("rgby\n");
    EXPECT_FALSE(canvas.Device().Move({-1, 0, 2, 1}, 1, 0));
    EXPECT_EQ(canvas.Text(), "rrgy\n");
    EXPECT_FALSE(canvas.Device().Move({5, 0, 7, 1}, -4, 0));
    EXPECT_FALSE(canvas.Device().Move({0, 0, 4, 2}, 0, -1));
    EXPECT_TRUE(canvas.Device().Move({-1, 0, 4, 1}, -1, 0));  // what came from outside stays outside
    EXPECT_TRUE(canvas.Device().Move({0, 0, 4, 1}, 4, 0));
    EXPECT_TRUE(canvas.Device().Move({2, 0, 2, 1}, -1, 0));
    EXPECT_TRUE(canvas.Device().Move({3, 0, 1, 1}, -1, 0));
}

TEST(RasterDeviceMove, ByNothingChangesNothing)
{
    CCanvas canvas("rgby\n");
    EXPECT_TRUE(canvas.Device().Move({0, 0, 4, 1}, 0, 0));
    EXPECT_EQ(canvas.Text(), "rgby\n");
    EXPECT_EQ(canvas.Device().GetDamage().GetCount(), 0);
}

TEST(RasterDeviceMove, TakesEnormousNumbers)
{
    CCanvas canvas("rgby\n");
    EXPECT_FALSE(canvas.Device().Move({Lowest, Lowest, Highest, Highest}, 1, 0));
    EXPECT_EQ(canvas.Text(), "rrgb\n");
    EXPECT_FALSE(canvas.Device().Move({Lowest, Lowest, Highest, Highest}, Highest, Highest));
    canvas.Device().Move({0, 0, 4, 1}, Lowest, Lowest);
    canvas.Device().Move({Highest - 1, 0, Highest, 1}, Lowest, 0);
    EXPECT_EQ(canvas.Text(), "rrgb\n");
}

// Pictures ---------------------------------------------------------------------------------------------------------

TEST(BasePicture, StartsWhiteAndKeepsWhatIsPainted)
{
    vexel_ptr<IRasterPicture> const picture = MakeRef<CPixelPicture>(size<int>{3, 1});
    EXPECT_EQ(ToText(picture->GetPixels()), "...\n");
    IPainter* const painter = picture->GetPainter();
    EXPECT_EQ(picture->GetPainter(), painter);
    EXPECT_TRUE(painter->IsFullPaint());
    painter->BeginPaint(IPainter::ssPaint);
    painter->SetBrush({Red, brush::bsSolid});
    painter->FillRect(1, 0, 1, 0);
    painter->EndPaint();
    EXPECT_EQ(ToText(picture->GetPixels()), ".r.\n");
}

TEST(BasePicture, CopiesIntoAnObjectOfItsOwn)
{
    vexel_ptr<IRasterPicture> const picture = MakePicture("rg\n"
                                                          "by\n");
    vexel_ptr<IRasterPicture> const copy = picture->Copy();
    copy->GetPainter()->SetPixel(0, 0, Black);
    EXPECT_EQ(ToText(copy->GetPixels()), "#g\n"
                                         "by\n");
    EXPECT_EQ(ToText(picture->GetPixels()), "rg\n"
                                            "by\n");
}

TEST(BasePicture, ScalesToTheNearestPixel)
{
    vexel_ptr<IRasterPicture> const picture = MakePicture("rg\n"
                                                          "by\n");
    EXPECT_EQ(ToText(picture->Scale({4, 3})->GetPixels()), "rrgg\n"
                                                           "bbyy\n"
                                                           "bbyy\n");
    EXPECT_EQ(ToText(picture->Scale({1, 1})->GetPixels()), "y\n");
    EXPECT_EQ(picture->Scale({0, 5})->GetSize(), (size<int>{0, 0}));
    EXPECT_EQ(picture->Scale({3, -1})->GetSize(), (size<int>{0, 0}));
    EXPECT_EQ(ToText(MakeRef<CPixelPicture>(size<int>{0, 0})->Scale({2, 1})->GetPixels()), "..\n");
}

}  // namespace vexelbase::tests
