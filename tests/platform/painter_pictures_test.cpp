#include "tests/support/canvas.h"

#include <gtest/gtest.h>

namespace vexelbase::tests
{

namespace
{

constexpr double All = 1000;

vexel_ptr<IRasterPicture> Flag()
{
    return MakePicture("rgb\n"
                       "yc#\n");
}

}  // namespace

// One to one -------------------------------------------------------------------------------------------------------

TEST(PainterPicture, IsDrawnOneToOneFromTheLeftTop)
{
    CCanvas canvas(6, 4);
    canvas->DrawRasterPicture(Flag().get(), 2, 1, All, All, IPainter::roCopy);
    EXPECT_EQ(canvas.Text(), "......\n"
                             "..rgb.\n"
                             "..yc#.\n"
                             "......\n");
}

TEST(PainterPicture, IsLimitedByTheInclusiveRectangle)
{
    CCanvas canvas(6, 4);
    canvas->DrawRasterPicture(Flag().get(), 2, 1, 3, 1, IPainter::roCopy);
    EXPECT_EQ(canvas.Text(), "......\n"
                             "..rg..\n"
                             "......\n"
                             "......\n");
}

TEST(PainterPicture, IsCutToTheSurfaceAndTheClip)
{
    CCanvas canvas("....\n"
                   "....\n");
    canvas->DrawRasterPicture(Flag().get(), -1, -1, All, All, IPainter::roCopy);
    canvas->SetClipRect(3, 0, 3, 1, false);
    canvas->DrawRasterPicture(Flag().get(), 2, 0, All, All, IPainter::roCopy);
    EXPECT_EQ(canvas.Text(), "c#.g\n"
                             "...c\n");
}

TEST(PainterPicture, IsNotTurnedByATurnedAxis)
{
    CCanvas canvas(5, 2);
    canvas.Map(0, 0, 1, 1, 3, 0, -1, 1);
    canvas->DrawRasterPicture(Flag().get(), 0, 0, 2, 1, IPainter::roCopy);  // columns 1 to 3
    EXPECT_EQ(canvas.Text(), ".rgb.\n"
                             ".yc#.\n");
}

TEST(PainterPicture, MeetsTheSurfaceByTheRasterOperation)
{
    CCanvas canvas("yyy\n"
                   "yyy\n");
    canvas->DrawRasterPicture(Flag().get(), 0, 0, All, 0, IPainter::roXor);
    canvas->DrawRasterPicture(MakePicture("cm.\n").get(), 0, 1, All, 1, IPainter::roAnd);
    EXPECT_EQ(canvas.Text(), "gr.\n"
                             "gry\n");
    EXPECT_EQ(canvas.Pixels().Row(0)[0] >> 24, 0xFFu);
}

TEST(PainterPicture, ThroughAMaskKeepsTheSurfaceOutsideAndThePictureInside)
{
    std::string const before = "rgby\n"
                               "cmr#\n";
    CCanvas canvas(before);
    vexel_ptr<IRasterPicture> const picture = MakePicture("mmmm\n"
                                                          "yyyy\n");
    vexel_ptr<IRasterPicture> const mask = MakePicture(".##.\n"
                                                       "..#.\n");
    for (bool disabled : {false, true})
    {
        canvas->m_DisabledMode = disabled;
        canvas->DrawRasterPicture(picture.get(), 0, 0, All, All, IPainter::roXor);
        canvas->DrawRasterPicture(mask.get(), 0, 0, All, All, IPainter::roAnd);
        canvas->DrawRasterPicture(picture.get(), 0, 0, All, All, IPainter::roXor);
        EXPECT_EQ(canvas.Text(), disabled ? "r??y\ncm?#\n" : "rmmy\ncmy#\n");
    }
}

TEST(PainterPicture, OfNothingDrawsNothing)
{
    CCanvas canvas("r\n");
    canvas->DrawRasterPicture(nullptr, 0, 0, All, All, IPainter::roCopy);
    canvas->DrawRasterPicture(MakeRef<CPixelPicture>(size<int>{0, 0}).get(), 0, 0, All, All, IPainter::roCopy);
    canvas->DrawRasterPictureEx(nullptr, 0, 0, All, All, 0, 0, 1, 1, IPainter::roCopy);
    canvas->AlphaBlend(0, 0, All, All, nullptr, 255);
    canvas->ExtractRasterPicture(nullptr, 0, 0, All, All);
    canvas->ExtractRasterPictureEx(nullptr, 0, 0, All, All, 0, 0, 1, 1);
    EXPECT_EQ(canvas.Text(), "r\n");
}

// Stretched --------------------------------------------------------------------------------------------------------

TEST(PainterStretchedPicture, RepeatsPixelsByTheRatioOfInclusiveRectangles)
{
    CCanvas canvas(7, 4);
    canvas->DrawRasterPictureEx(Flag().get(), 1, 0, 6, 3, 0, 0, 2, 1, IPainter::roCopy);  // 3 x 2 onto 6 x 4
    EXPECT_EQ(canvas.Text(), ".rrggbb\n"
                             ".rrggbb\n"
                             ".yycc##\n"
                             ".yycc##\n");
}

TEST(PainterStretchedPicture, OfEqualSizesIsOneToOne)
{
    CCanvas canvas(4, 2);
    canvas->DrawRasterPictureEx(Flag().get(), 1, 0, 2, 1, 1, 0, 2, 1, IPainter::roCopy);
    EXPECT_EQ(canvas.Text(), ".gb.\n"
                             ".c#.\n");
}

TEST(PainterStretchedPicture, TakesThePixelUnderTheCentreWhenItShrinks)
{
    CCanvas canvas(3, 1);
    vexel_ptr<IRasterPicture> const row = MakePicture("rgbycm\n");
    canvas->DrawRasterPictureEx(row.get(), 0, 0, 1, 0, 0, 0, 5, 0, IPainter::roCopy);  // centres at 1.5 and 4.5
    EXPECT_EQ(canvas.Text(), "gc.\n");
}

TEST(PainterStretchedPicture, DrawsNothingForWhatLiesBeyondThePicture)
{
    CCanvas canvas("mmmmmm\n"
                   "mmmmmm\n");
    canvas->DrawRasterPictureEx(Flag().get(), 0, 0, 5, 1, -1, 1, 4, 2, IPainter::roCopy);  // one to one
    EXPECT_EQ(canvas.Text(), "myc#mm\n"
                             "mmmmmm\n");
    canvas->DrawRasterPictureEx(Flag().get(), 0, 0, 5, 1, 1, 0, 3, 0, IPainter::roCopy);  // twice as wide and high
    EXPECT_EQ(canvas.Text(), "ggbbmm\n"
                             "ggbbmm\n");
}

TEST(PainterStretchedPicture, IsTheSameInParts)
{
    CCanvas whole(5, 3);
    whole->DrawRasterPictureEx(Flag().get(), -2, -1, 4, 3, 0, 0, 2, 1, IPainter::roCopy);
    CCanvas parts(5, 3);
    for (int x = 0; x < 5; ++x)
    {
        parts->ResetClip();
        parts->SetClipRect(x, 0, x, 3, false);
        parts->DrawRasterPictureEx(Flag().get(), -2, -1, 4, 3, 0, 0, 2, 1, IPainter::roCopy);
    }
    EXPECT_EQ(parts.Text(), whole.Text());
    // 7 columns for 3: the centres of columns 2 to 6 lie over pixels 1 1 1 2 2.
    EXPECT_EQ(whole.Text(), "gggbb\n"
                            "ccc##\n"
                            "ccc##\n");
}

TEST(PainterStretchedPicture, CombinesByTheRasterOperation)
{
    CCanvas canvas("yyyy\n");
    canvas->DrawRasterPictureEx(MakePicture("cm\n").get(), 0, 0, 3, 0, 0, 0, 1, 0, IPainter::roXor);
    EXPECT_EQ(canvas.Text(), "mmcc\n");
    canvas->DrawRasterPictureEx(MakePicture("y.\n").get(), 0, 0, 3, 0, 0, 0, 1, 0, IPainter::roAnd);
    EXPECT_EQ(canvas.Text(), "rrcc\n");
}

// Onto itself and in disabled mode ---------------------------------------------------------------------------------

TEST(PainterPicture, MayBeDrawnOntoItself)
{
    for (int dx = -1; dx <= 1; ++dx)
    {
        vexel_ptr<IRasterPicture> const picture = MakePicture("rgb\n"
                                                              "yc#\n"
                                                              "m.r\n");
        IPainter* const painter = picture->GetPainter();
        painter->BeginPaint(IPainter::ssPaint);
        painter->SetClipRect(1, 1, 1, 1, true);
        painter->DrawRasterPicture(picture.get(), dx, 1, All, All, IPainter::roCopy);
        painter->EndPaint();
        char const* const expected[] = {"rgb\n"
                                        "gc#\n"
                                        "c#r\n",
                                        "rgb\n"
                                        "rcb\n"
                                        "yc#\n",
                                        "rgb\n"
                                        "ycg\n"
                                        "myc\n"};
        EXPECT_EQ(ToText(picture->GetPixels()), expected[dx + 1]);
    }
}

TEST(PainterPicture, MayBeStretchedOntoItself)
{
    vexel_ptr<IRasterPicture> const picture = MakePicture("rgbyc#\n");
    IPainter* const painter = picture->GetPainter();
    painter->DrawRasterPictureEx(picture.get(), 0, 0, 5, 0, 0, 0, 2, 0, IPainter::roCopy);
    EXPECT_EQ(ToText(picture->GetPixels()), "rrggbb\n");
}

TEST(PainterPicture, MayBeBlendedAndExtractedIntoItself)
{
    vexel_ptr<IRasterPicture> const picture = MakePicture("rgbyc#\n");
    IPainter* const painter = picture->GetPainter();
    painter->AlphaBlend(1, 0, All, 0, picture.get(), 255);
    EXPECT_EQ(ToText(picture->GetPixels()), "rrgbyc\n");
    painter->ExtractRasterPicture(picture.get(), 2, 0, 5, 0);
    EXPECT_EQ(ToText(picture->GetPixels()), "gbycyc\n");
    painter->ExtractRasterPictureEx(picture.get(), 4, 0, 5, 0, 0, 0, 3, 0);
    EXPECT_EQ(ToText(picture->GetPixels()), "yyccyc\n");
}

TEST(PainterPicture, IsGreyInDisabledModeWhileItsSourceStays)
{
    CCanvas canvas(4, 2);
    canvas->m_DisabledMode = true;
    vexel_ptr<IRasterPicture> const picture = MakePicture("rg#.\n");
    canvas->DrawRasterPicture(picture.get(), 0, 0, All, All, IPainter::roCopy);
    canvas->DrawRasterPictureEx(picture.get(), 0, 1, 3, 1, 0, 0, 3, 0, IPainter::roCopy);
    for (int y = 0; y < 2; ++y)
    {
        EXPECT_EQ(canvas.Pixels().Row(y)[0], 0xFF4C4C4Cu);  // 77 * 255 / 256
        EXPECT_EQ(canvas.Pixels().Row(y)[1], 0xFF959595u);  // 150 * 255 / 256
        EXPECT_EQ(canvas.Pixels().Row(y)[2], 0xFF000000u);
        EXPECT_EQ(canvas.Pixels().Row(y)[3], 0xFFFFFFFFu);
    }
    EXPECT_EQ(ToText(picture->GetPixels()), "rg#.\n");
}

TEST(PainterPicture, IsGreyWhereItIsCutAndBlendedToo)
{
    CCanvas canvas(2, 1);
    canvas->m_DisabledMode = true;
    vexel_ptr<IRasterPicture> const picture = MakePicture("##r\n"
                                                          "###\n");
    canvas->DrawRasterPicture(picture.get(), -2, 0, All, All, IPainter::roCopy);
    EXPECT_EQ(canvas.Pixels().Row(0)[0], 0xFF4C4C4Cu);
    EXPECT_EQ(canvas.Pixels().Row(0)[1], 0xFFFFFFFFu);
    canvas->AlphaBlend(-1, 0, All, All, picture.get(), 255);
    EXPECT_EQ(canvas.Pixels().Row(0)[0], 0xFF000000u);
    EXPECT_EQ(canvas.Pixels().Row(0)[1], 0xFF4C4C4Cu);
}

// Blending ---------------------------------------------------------------------------------------------------------

TEST(PainterAlphaBlend, MixesEachChannelInWholeNumbers)
{
    CCanvas canvas(3, 1);
    canvas.Brush(_color::FromRgb(10, 200, 255));
    canvas->FillRect(0, 0, 2, 0);
    vexel_ptr<IRasterPicture> const picture = MakeRef<CPixelPicture>(size<int>{3, 1});
    picture->GetPainter()->SetBrush({_color::FromRgb(255, 0, 7), brush::bsSolid});
    picture->GetPainter()->FillRect(0, 0, 2, 0);
    canvas->AlphaBlend(0, 0, 0, 0, picture.get(), 100);
    canvas->AlphaBlend(1, 0, 1, 0, picture.get(), 0);
    canvas->AlphaBlend(2, 0, 2, 0, picture.get(), 255);
    // (255 * 100 + 10 * 155) / 255 = 106.07, (200 * 155) / 255 = 121.6, (7 * 100 + 255 * 155) / 255 = 157.7
    EXPECT_EQ(canvas->GetPixel(0, 0), _color::FromRgb(106, 121, 157));
    EXPECT_EQ(canvas->GetPixel(1, 0), _color::FromRgb(10, 200, 255));
    EXPECT_EQ(canvas->GetPixel(2, 0), _color::FromRgb(255, 0, 7));
}

TEST(PainterAlphaBlend, IsExactForAllShadesAndAlphas)
{
    // Row y of the picture has the shade y in red and blue and its opposite in green; the surface has the shade x.
    vexel_ptr<IRasterPicture> const picture = MakeRef<CPixelPicture>(size<int>{256, 256});
    CCanvas canvas(256, 256);
    CPixelBuffer surface({256, 256});
    for (int y = 0; y < 256; ++y)
    {
        for (int x = 0; x < 256; ++x)
        {
            picture->GetPixels().Row(y)[x] = CPixelBuffer::ToPixel(_color::FromRgb(y, 255 - y, y));
            surface.Row(y)[x] = CPixelBuffer::ToPixel(_color::FromRgb(x, x, 255 - x));
        }
    }
    for (int alpha = 0; alpha <= 255; alpha += 5)
    {
        canvas.Pixels() = surface;
        canvas->AlphaBlend(0, 0, All, All, picture.get(), alpha);
        int wrong = 0;
        for (int y = 0; y < 256; ++y)
        {
            for (int x = 0; x < 256; ++x)
            {
                _color const expected = _color::FromRgb((y * alpha + x * (255 - alpha)) / 255,
                                                        ((255 - y) * alpha + x * (255 - alpha)) / 255,
                                                        (y * alpha + (255 - x) * (255 - alpha)) / 255);
                wrong += canvas.Pixels().Row(y)[x] == CPixelBuffer::ToPixel(expected) ? 0 : 1;
            }
        }
        EXPECT_EQ(wrong, 0) << alpha;
    }
}

TEST(PainterAlphaBlend, BringsTheAlphaInto0To255)
{
    CCanvas canvas("rr\n");
    vexel_ptr<IRasterPicture> const picture = MakePicture("bb\n");
    canvas->AlphaBlend(0, 0, 0, 0, picture.get(), -1);
    canvas->AlphaBlend(1, 0, 1, 0, picture.get(), 100000);
    EXPECT_EQ(canvas.Text(), "rb\n");
}

TEST(PainterAlphaBlend, IsLimitedByRectangleClipAndPicture)
{
    CCanvas canvas(6, 3);
    canvas->SetClipRect(3, 0, 5, 2, false);
    canvas->SetClipRect(4, 1, 4, 1, true);
    canvas->AlphaBlend(2, 0, 4, 5, MakePicture("rrrrr\nggggg\n").get(), 255);
    EXPECT_EQ(canvas.Text(), "...rr.\n"
                             "...g..\n"
                             "......\n");
}

// From the surface -------------------------------------------------------------------------------------------------

TEST(PainterExtract, CopiesTheInclusiveRectangleToThePicturesLeftTop)
{
    CCanvas canvas("rgby\n"
                   "cm#.\n");
    vexel_ptr<IRasterPicture> const picture = MakePicture("....\n"
                                                          "....\n");
    canvas.Shift(1, 0);
    canvas->ExtractRasterPicture(picture.get(), 0, 0, 1, 1);
    EXPECT_EQ(ToText(picture->GetPixels()), "gb..\n"
                                            "m#..\n");
}

TEST(PainterExtract, LeavesWhatComesFromBeyondTheSurface)
{
    CCanvas canvas("rg\n"
                   "by\n");
    vexel_ptr<IRasterPicture> const picture = MakePicture("mmm\n"
                                                          "mmm\n");
    canvas->ExtractRasterPicture(picture.get(), -1, 1, All, All);
    EXPECT_EQ(ToText(picture->GetPixels()), "mby\n"
                                            "mmm\n");
}

TEST(PainterExtract, TakesNoNoticeOfTheClip)
{
    CCanvas canvas("rg\n");
    vexel_ptr<IRasterPicture> const picture = MakePicture("..\n");
    canvas->SetClipRect(0, 0, 0, 0, true);
    canvas->ExtractRasterPicture(picture.get(), 0, 0, 1, 0);
    EXPECT_EQ(ToText(picture->GetPixels()), "rg\n");
}

TEST(PainterExtract, StretchesBetweenInclusiveRectangles)
{
    CCanvas canvas("rgb\n"
                   "yc#\n");
    vexel_ptr<IRasterPicture> const picture = MakePicture("......\n"
                                                          "......\n"
                                                          "......\n");
    canvas->ExtractRasterPictureEx(picture.get(), 0, 0, 1, 1, 1, 0, 4, 1);
    EXPECT_EQ(ToText(picture->GetPixels()), ".rrgg.\n"
                                            ".yycc.\n"
                                            "......\n");
    canvas->ExtractRasterPictureEx(picture.get(), -1, 0, 0, 0, 0, 2, 3, 2);  // the left half comes from beyond
    EXPECT_EQ(ToText(picture->GetPixels()), ".rrgg.\n"
                                            ".yycc.\n"
                                            "..rr..\n");
}

// Parts ------------------------------------------------------------------------------------------------------------

TEST(PainterControlElement, IsHandedToTheDeviceWithItsAreaAndWhatMayBePainted)
{
    CCanvas canvas(6, 4);
    canvas.Shift(1, 1);
    canvas->DrawControlElement(IPainter::cePushButton, 0, 0, 3, 1, IPainter::esHot);
    ASSERT_EQ(canvas.Device().m_Parts.size(), 1u);
    EXPECT_EQ(canvas.Device().m_Parts[0].element, IPainter::cePushButton);
    EXPECT_EQ(canvas.Device().m_Parts[0].area, (rectangle<int>{1, 1, 5, 3}));
    EXPECT_EQ(canvas.Device().m_Parts[0].clip, (rectangle<int>{1, 1, 5, 3}));
    EXPECT_EQ(canvas.Device().m_Parts[0].state, IPainter::esHot);

    canvas->SetClipRect(1, 0, 2, 0, true);
    canvas->DrawControlElement(IPainter::cePushButton, 0, 0, 3, 1, 0);
    EXPECT_GT(canvas.Device().m_Parts.size(), 2u);
    for (CPixelDevice::SPart const& part : canvas.Device().m_Parts)
        EXPECT_EQ(part.area, (rectangle<int>{1, 1, 5, 3}));
    canvas->ResetClip();
    canvas->SetClipRect(0, 0, 0, 0, false);
    canvas->SetClipRect(3, 0, 3, 0, false);
    std::size_t const before = canvas.Device().m_Parts.size();
    canvas->DrawControlElement(IPainter::cePushButton, 0, 0, 3, 1, 0);
    EXPECT_EQ(canvas.Device().m_Parts.size(), before);
}

}  // namespace vexelbase::tests
