// Images out of three sources, and the button that shows one of four by its state.

#include "vexel/controls/picture_button.h"

#include "tests/support/scripted_system.h"
#include "tests/support/test_images.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

using Size = size<int>;
using Rect = rectangle<int>;

namespace
{

char const* g_RedLines[] = {"3 2 2 1", "r c #FF0000", ". c None", "rr.", ".rr"};
char const* g_BlueLines[] = {"5 4 1 1", "b c #0000FF", "bbbbb", "bbbbb", "bbbbb", "bbbbb"};

XPMImage Red()
{
    return XPMImage(XPMBuf(g_RedLines, true));
}
XPMImage Blue()
{
    return XPMImage(XPMBuf(g_BlueLines, true));
}
vexel_ptr<IRasterPicture> Picture(int width, int height)
{
    return CTestHost::System().CreateRasterPicture(Size{width, height});
}

// A window of 60 x 40 whose images are 16 x 10 and 8 x 8.
class Images : public testing::Test
{
protected:
    Images() { m_Host.Control().SetImageList(&m_Images); }
    ~Images() override { m_Host.Control().SetImageList(nullptr); }

    CTestImages m_Images{{{16, 10}, {8, 8}}};
    CTestHost m_Host{60, 40};
};

using ImageHolder = Images;

/// Draws one image at (5, 7) of itself.
class CRecordedDrawing : public CVisualElement
{
public:
    explicit CRecordedDrawing(CVisualElement* parent) : CVisualElement(parent, {0, 0}, alClient)
    {
        NameElement(*this, "drawing");
    }

    PaintLog Draw(CTestHost& host, IImageList* images)
    {
        m_List = images;
        Update(utElement);
        return host.Paint().Of("drawing");
    }
    void DrawContent(IPainter* painter) override { m_Image.DrawImage(painter, m_List, 5, 7); }

    CImageHolder m_Image;

private:
    IImageList* m_List = nullptr;
};

class PictureButton : public Images
{
protected:
    PictureButton()
    {
        NameElement(m_Button, "button");
        m_Button.SetBkColor(color_table[3]);
    }
    PaintLog Draw()
    {
        m_Images.Take();
        m_Button.Update(utElement);
        return m_Host.Paint().Of("button");
    }

    CPictureButton& m_Button = *new CPictureButton(m_Host.Root(), {20, 20}, alClient);  // (0, 0, 59, 39)
};

}  // namespace

// One image ---------------------------------------------------------------------------------------------------------------

TEST_F(ImageHolder, ItStartsWithoutAnImage)
{
    CImageHolder const none;
    EXPECT_EQ(none.m_Index, -1);
    EXPECT_FALSE(none.m_Disabled);
    EXPECT_EQ(none.m_Picture, nullptr);
    EXPECT_EQ(none.GetSize(&m_Images), Size());
    EXPECT_FALSE(none.IsAssigned(&m_Images));
}

TEST_F(ImageHolder, TheIndexComesBeforeThePictureAndThatBeforeTheXpm)
{
    CImageHolder image(Red());
    EXPECT_EQ(image.GetSize(&m_Images), (Size{3, 2}));
    image.m_Picture = Picture(7, 6);
    EXPECT_EQ(image.GetSize(&m_Images), (Size{7, 6}));
    image.m_Index = 1;
    EXPECT_EQ(image.GetSize(&m_Images), (Size{8, 8}));
    EXPECT_EQ(image.GetWidth(&m_Images), 8);
    EXPECT_EQ(image.GetHeight(&m_Images), 8);
    EXPECT_EQ(image.GetSize(nullptr), (Size{7, 6}));
    image.m_Index = -4;
    EXPECT_EQ(image.GetSize(&m_Images), (Size{7, 6}));
}

TEST_F(ImageHolder, OnlyTheXpmScalesWithTheDisplay)
{
    m_Host.SetScale(1.5);
    EXPECT_EQ(CImageHolder(Red()).GetSize(nullptr), (Size{4, 3}));  // 4.5, 3
    EXPECT_EQ(CImageHolder(Picture(7, 6)).GetSize(nullptr), (Size{7, 6}));
    EXPECT_EQ(CImageHolder(1).GetSize(&m_Images), (Size{8, 8}));
}

TEST_F(ImageHolder, AnImageWithoutWidthOrHeightIsNotAssigned)
{
    EXPECT_TRUE(CImageHolder(1).IsAssigned(&m_Images));
    EXPECT_FALSE(CImageHolder(7).IsAssigned(&m_Images));
    EXPECT_FALSE(CImageHolder(1).IsAssigned(nullptr));
    EXPECT_FALSE(CImageHolder(Picture(0, 5)).IsAssigned(nullptr));
    EXPECT_TRUE(CImageHolder(Red()).IsAssigned(nullptr));
}

TEST_F(ImageHolder, WhatIsDrawnFollowsTheSameOrderAsTheSize)
{
    CRecordedDrawing& element = *new CRecordedDrawing(m_Host.Root());
    CImageHolder& image = element.m_Image;
    image = CImageHolder(Red());
    EXPECT_THAT(element.Draw(m_Host, &m_Images), Draws("DrawXPM 3x2 5 7"));
    image.m_Picture = Picture(7, 6);
    PaintLog log = element.Draw(m_Host, &m_Images);
    EXPECT_THAT(log, Draws("DrawRasterPicture 7x6 5 7 12 13"));
    EXPECT_THAT(log, Not(Draws("DrawXPM*")));
    image.m_Index = 1;
    log = element.Draw(m_Host, &m_Images);
    EXPECT_THAT(log, Not(Draws("DrawRasterPicture*")));
    EXPECT_EQ(m_Images.Take(), "draw 1 at 5 7");
    EXPECT_THAT(element.Draw(m_Host, nullptr), Draws("DrawRasterPicture 7x6 5 7 12 13"));
    image.m_Index = -1;
    EXPECT_THAT(element.Draw(m_Host, &m_Images), Draws("DrawRasterPicture 7x6 5 7 12 13"));
    EXPECT_EQ(m_Images.Take(), "");
    image = CImageHolder(1);
    EXPECT_THAT(element.Draw(m_Host, nullptr), Not(Draws("DrawRasterPicture*")));
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(ImageHolder, OnlyAnImageOfTheListHasADisabledFormAndAGround)
{
    CRecordedDrawing& element = *new CRecordedDrawing(m_Host.Root());
    CImageHolder& image = element.m_Image;
    image = CImageHolder(1);
    image.m_Disabled = true;
    EXPECT_THAT(element.Draw(m_Host, &m_Images), Draws("FillRect 5 7 12 14"));
    EXPECT_EQ(m_Images.Take(), "disabled 1 at 5 7");
    image.m_Disabled = false;
    EXPECT_THAT(element.Draw(m_Host, &m_Images), Not(Draws("FillRect*")));
    EXPECT_EQ(m_Images.Take(), "draw 1 at 5 7");
    image = CImageHolder(Picture(7, 6));
    image.m_Disabled = true;
    EXPECT_THAT(element.Draw(m_Host, &m_Images), Not(Draws("FillRect*")));
    image = CImageHolder(Red());
    image.m_Disabled = true;
    PaintLog const log = element.Draw(m_Host, &m_Images);
    EXPECT_THAT(log, Not(Draws("FillRect*")));
    EXPECT_THAT(log, Draws("DrawXPM 3x2 5 7"));
}

TEST_F(ImageHolder, BothSidesMustBeThereForAnImageToBeAssigned)
{
    CTestImages thin{{{4, 0}, {0, 4}, {1, 1}}};
    EXPECT_FALSE(CImageHolder(0).IsAssigned(&thin));
    EXPECT_FALSE(CImageHolder(1).IsAssigned(&thin));
    EXPECT_TRUE(CImageHolder(2).IsAssigned(&thin));
}

TEST_F(ImageHolder, ADisabledImageWithoutASizeHasNoGround)
{
    CRecordedDrawing& element = *new CRecordedDrawing(m_Host.Root());
    element.m_Image = CImageHolder(77);
    element.m_Image.m_Disabled = true;
    EXPECT_THAT(element.Draw(m_Host, &m_Images), Not(Draws("FillRect*")));
}

// The button's size and area ------------------------------------------------------------------------------------------------

TEST_F(PictureButton, WithoutAnImageItAsksForNoSize)
{
    EXPECT_TRUE(m_Button.IsAutoSize());
    EXPECT_EQ(m_Button.GetSize(), Size());
}

TEST_F(PictureButton, ItAsksForTheSizeOfItsNormalImage)
{
    m_Button.SetCaption("a caption doesn't count");
    m_Button.SetNormalImage(0);
    EXPECT_EQ(m_Button.GetSize(), (Size{16, 10}));
    m_Button.SetNormalImage(Picture(7, 6));
    EXPECT_EQ(m_Button.GetSize(), (Size{7, 6}));
    m_Button.SetNormalImage(Blue());
    EXPECT_EQ(m_Button.GetSize(), (Size{5, 4}));
    m_Button.SetPressedImage(0);
    EXPECT_EQ(m_Button.GetSize(), (Size{5, 4}));
}

TEST_F(PictureButton, AnImageOfTheListCountsAsSoonAsThereIsAControl)
{
    CPictureButton alone(nullptr, {9, 9}, alNone);
    alone.SetNormalImage(0);
    EXPECT_EQ(alone.GetSize(), Size());
    alone.ReParent(m_Host.Root(), false);
    EXPECT_EQ(alone.GetSize(), (Size{16, 10}));
}

TEST_F(PictureButton, ItsContentIsTheImageInTheMiddle)
{
    m_Button.SetNormalImage(0);
    m_Host.Paint();
    EXPECT_EQ(m_Button.GetContentRect(), (Rect{21, 14, 36, 23}));  // (59 - 16) / 2, (39 - 10) / 2
}

TEST_F(PictureButton, ItIsTransparentWhereTheElementIsLargerThanTheImage)
{
    m_Button.SetNormalImage(Picture(59, 39));
    m_Host.Paint();
    EXPECT_FALSE(m_Button.IsTransparent());
    m_Button.SetNormalImage(Picture(58, 39));
    EXPECT_TRUE(m_Button.IsTransparent());
    m_Button.SetNormalImage(Picture(59, 38));
    EXPECT_TRUE(m_Button.IsTransparent());
    m_Button.SetNormalImage(Picture(80, 80));
    EXPECT_FALSE(m_Button.IsTransparent());
    m_Button.SetTransparent(true);
    EXPECT_TRUE(m_Button.IsTransparent());
}

TEST_F(PictureButton, TheSensitiveAreaIsTheContentWithoutItsFirstColumnAndRow)
{
    m_Button.SetNormalImage(0);
    m_Host.Paint();
    EXPECT_FALSE(m_Button.IsMouseOverButton(21, 16));
    EXPECT_TRUE(m_Button.IsMouseOverButton(22, 15));
    EXPECT_FALSE(m_Button.IsMouseOverButton(22, 14));
    EXPECT_TRUE(m_Button.IsMouseOverButton(36, 23));
    EXPECT_FALSE(m_Button.IsMouseOverButton(37, 23));
    EXPECT_FALSE(m_Button.IsMouseOverButton(36, 24));
}

TEST_F(PictureButton, BelowZeroBothThePointerDecides)
{
    m_Button.SetNormalImage(0);
    m_Host.Paint();
    m_Host.Mouse().Move(30, 20);
    EXPECT_TRUE(m_Button.IsMouseOverButton(-1, -1));
    EXPECT_FALSE(m_Button.IsMouseOverButton(-1, 20));
    m_Host.Mouse().Move(5, 5);
    EXPECT_FALSE(m_Button.IsMouseOverButton(-1, -1));
}

TEST_F(PictureButton, AHoverOverTheTransparentMarginDoesNotPressIt)
{
    m_Button.SetNormalImage(0);
    m_Host.Paint();
    CSignalLog log(m_Button.m_Clicked, "click");
    m_Host.Mouse().Click(m_Button, 5, 5);
    EXPECT_EQ(log.Text(), "");
    m_Host.Mouse().Click(m_Button, 30, 20);
    EXPECT_EQ(log.Text(), "click()");
}

// Drawing -----------------------------------------------------------------------------------------------------------------

TEST_F(PictureButton, EachStateShowsItsImage)
{
    m_Button.SetCanHaveFocus(false);
    m_Button.SetNormalImage(0);
    m_Button.SetHighlightedImage(1);
    m_Button.SetPressedImage(Blue());
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 0 at 21 14");
    m_Host.Mouse().Move(m_Button, 30, 20);
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 1 at 25 15");
    m_Host.Mouse().Press();
    EXPECT_THAT(Draw(), Draws("DrawXPM 5x4 27 17"));
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(PictureButton, AStateWithoutAnImageShowsTheNormalOne)
{
    m_Button.SetNormalImage(0);
    m_Button.SetHighlightedImage(77);
    m_Host.Paint();
    m_Host.Mouse().Move(m_Button, 30, 20);
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 0 at 21 14");
    m_Host.Mouse().Press();
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 0 at 21 14");
}

TEST_F(PictureButton, EachStateLooksForItsOwnImageAlone)
{
    m_Button.SetNormalImage(0);
    m_Button.SetPressedImage(1);
    m_Button.SetCanHaveFocus(false);
    m_Host.Paint();
    m_Host.Mouse().Move(m_Button, 30, 20);
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 0 at 21 14");
    m_Host.Mouse().Press();
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 1 at 25 15");
    m_Button.SetPressedImage(CImageHolder());
    m_Button.SetHighlightedImage(1);
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 0 at 21 14");
    m_Host.Mouse().Release();
}

TEST_F(PictureButton, APictureIsDrawnOneToOne)
{
    m_Button.SetNormalImage(Picture(7, 6));
    EXPECT_THAT(Draw(), Draws("DrawRasterPicture 7x6 26 16 33 22"));
}

TEST_F(PictureButton, DisabledItDrawsADerivedImageOnlyAndNoNormalOne)
{
    m_Button.SetNormalImage(0);
    m_Button.SetEnabled(false);
    EXPECT_THAT(Draw(), Draws("SetBrush yellow").Then("FillRect 21 14 36 23"));
    EXPECT_EQ(m_Images.Take(), "disabled 0 at 21 14");
    EXPECT_EQ(m_Button.GetDisabledImage().m_Index, 0);
    EXPECT_TRUE(m_Button.GetDisabledImage().m_Disabled);
}

TEST_F(PictureButton, ADisabledImageOfItsOwnIsTaken)
{
    m_Button.SetNormalImage(0);
    m_Button.SetDisabledImage(1);
    m_Button.SetEnabled(false);
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 1 at 25 15");
}

TEST_F(PictureButton, TheDerivedImageOfAPictureIsThePicture)
{
    auto const picture = Picture(7, 6);
    m_Button.SetNormalImage(picture);
    CImageHolder const derived = m_Button.BuidDisabledImage(&m_Images);
    EXPECT_EQ(derived.m_Picture, picture);
    EXPECT_EQ(derived.m_Index, -1);
    EXPECT_FALSE(derived.m_Disabled);
}

TEST_F(PictureButton, TheDerivedImageOfAnXpmHasTheDisabledLook)
{
    m_Button.SetNormalImage(Red());
    CImageHolder const derived = m_Button.BuidDisabledImage(&m_Images);
    EXPECT_TRUE(derived.m_Xpm.HasDisabledLook());
    EXPECT_EQ(derived.m_Xpm.GetWidth(), 3);
    EXPECT_TRUE(derived.m_Xpm.GetPixel(2, 0).m_None);
    EXPECT_EQ(derived.m_Xpm.GetPixel(0, 0), _color::FromRgb(134, 134, 134));  // (76 + 0xC0) / 2
}

TEST_F(PictureButton, WithoutAPainterNothingIsDrawn)
{
    m_Button.DrawImage(nullptr, CImageHolder(0));
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(PictureButton, AnotherImageOfTheSameSizeIsShown)
{
    m_Button.SetNormalImage(Red());
    m_Host.Paint();
    m_Button.SetNormalImage(Red());
    EXPECT_TRUE(m_Host.IsFramePending());
}

TEST_F(PictureButton, ItStartsWithFourEmptyImages)
{
    for (CImageHolder const& image :
         {m_Button.GetNormalImage(), m_Button.GetHighlightedImage(), m_Button.GetPressedImage()})
    {
        EXPECT_EQ(image.m_Index, -1);
        EXPECT_FALSE(image.m_Disabled);
        EXPECT_EQ(image.m_Picture, nullptr);
        EXPECT_EQ(image.m_Xpm.GetWidth(), 0);
    }
    EXPECT_FALSE(m_Button.GetDisabledImage().IsAssigned(&m_Images));
    EXPECT_FALSE(m_Button.CTransparentFlavor<CVisualElement>::IsTransparent());
}

TEST_F(PictureButton, WithoutAutomaticSizeARecalculationStillTakesTheImage)
{
    m_Button.SetAutoSize(false);
    m_Button.SetSize({30, 30}, false);
    m_Button.SetNormalImage(0);
    m_Button.SetSize({30, 30}, false);
    m_Button.RecalculateSize();
    EXPECT_EQ(m_Button.GetSize(), (Size{16, 10}));
}

TEST_F(PictureButton, AnImageLargerThanTheElementStandsOutOnAllSides)
{
    m_Button.SetNormalImage(Picture(80, 50));
    m_Host.Paint();
    EXPECT_EQ(m_Button.GetContentRect(), (Rect{-10, -5, 69, 44}));  // (59 - 80) / 2 = -10.5, (39 - 50) / 2 = -5.5
    EXPECT_THAT(Draw(), Draws("DrawRasterPicture 80x50 -10 -5 70 45"));
}

TEST_F(PictureButton, WhereTheElementStandsMakesNoDifferenceToItsContent)
{
    CPictureButton alone(nullptr, {0, 0}, alNone);
    alone.SetNormalImage(Picture(7, 6));
    alone.SetPos({101, 203, 122, 214}, true);  // 21 x 11
    EXPECT_EQ(alone.GetContentRect(), (Rect{7, 2, 13, 7}));
}

TEST_F(PictureButton, ZeroIsNoPointerPosition)
{
    m_Button.SetNormalImage(Picture(57, 37));  // content (1, 1, 57, 37)
    m_Host.Paint();
    m_Host.Mouse().Move(30, 20);
    EXPECT_TRUE(m_Button.IsMouseOverButton(-7, -1));
    EXPECT_FALSE(m_Button.IsMouseOverButton(0, 0));
    EXPECT_FALSE(m_Button.IsMouseOverButton(0, -1));
    EXPECT_FALSE(m_Button.IsMouseOverButton(-1, 0));
    EXPECT_TRUE(m_Button.IsMouseOverButton(2, 2));
}

TEST_F(PictureButton, TheDisabledDrawingIsAlwaysHandled)
{
    bool handled = false;
    m_Button.DrawDisabledContent(m_Host.Window().GetPainter(), handled);
    EXPECT_TRUE(handled);
    handled = false;
    m_Button.DrawDisabledContent(nullptr, handled);
    EXPECT_TRUE(handled);
}

TEST_F(PictureButton, ADisabledButtonOfAnXpmDrawsItInShadesOfTheFace)
{
    m_Button.SetNormalImage(Red());
    m_Button.SetHighlightedImage(Blue());
    m_Button.SetEnabled(false);
    m_Host.Mouse().Move(m_Button, 30, 20);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("DrawXPM 3x2 28 18"));
    EXPECT_EQ(log.Count("DrawXPM*"), 1);
    EXPECT_EQ(m_Host.PixelAt(28, 18).m_Value & 0xFFFFFFu, 0x868686u);  // (76 + 0xC0) / 2
}

TEST_F(PictureButton, ADisabledImageThatHasNoSizeIsNone)
{
    m_Button.SetNormalImage(0);
    m_Button.SetDisabledImage(77);
    EXPECT_EQ(m_Button.GetDisabledImage().m_Index, 0);
    EXPECT_TRUE(m_Button.GetDisabledImage().m_Disabled);
    m_Button.SetDisabledImage(Blue());
    EXPECT_EQ(m_Button.GetDisabledImage().m_Xpm.GetWidth(), 5);
    EXPECT_FALSE(m_Button.GetDisabledImage().m_Disabled);
}

TEST_F(PictureButton, TheDerivedImageTakesTheSourceThatIsShown)
{
    CImageHolder image(Red());
    image.m_Picture = Picture(7, 6);
    image.m_Index = 1;
    m_Button.SetNormalImage(image);
    CImageHolder const byIndex = m_Button.BuidDisabledImage(&m_Images);
    EXPECT_EQ(byIndex.m_Index, 1);
    EXPECT_TRUE(byIndex.m_Disabled);
    EXPECT_EQ(byIndex.m_Picture, nullptr);
    EXPECT_EQ(byIndex.m_Xpm.GetWidth(), 0);

    CImageHolder const byPicture = m_Button.BuidDisabledImage(nullptr);
    EXPECT_EQ(byPicture.m_Picture, image.m_Picture);
    EXPECT_EQ(byPicture.m_Index, -1);

    image.m_Index = -3;
    m_Button.SetNormalImage(image);
    EXPECT_EQ(m_Button.BuidDisabledImage(&m_Images).m_Picture, image.m_Picture);
}

TEST_F(PictureButton, ItsFocusFrameStandsInTheImage)
{
    m_Button.SetNormalImage(0);
    m_Host.Focus();
    m_Button.SetFocus(true);
    EXPECT_THAT(Draw(), Draws("FocusRect 24 17 33 20"));  // 3 pixels inside of (21, 14, 36, 23)
}

TEST_F(PictureButton, ThePointerThatLeavesTheImageEndsTheHighlight)
{
    m_Button.SetNormalImage(0);
    m_Button.SetHighlightedImage(1);
    m_Host.Paint();
    m_Host.Mouse().Move(30, 20);
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 1 at 25 15");
    m_Host.Mouse().Move(21, 20);
    EXPECT_TRUE(m_Host.IsFramePending());
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 0 at 21 14");
}

TEST_F(PictureButton, ItsXpmScalesWithTheDisplay)
{
    m_Host.SetScale(2);
    m_Button.SetNormalImage(Blue());
    EXPECT_EQ(m_Button.GetSize(), (Size{10, 8}));
    m_Host.Paint();
    EXPECT_EQ(m_Button.GetContentRect(), (Rect{24, 15, 33, 22}));  // (59 - 10) / 2, (39 - 8) / 2
    EXPECT_THAT(Draw(), Draws("DrawXPM 5x4 24 15"));
    EXPECT_EQ(m_Host.PixelAt(33, 22).m_Value & 0xFFFFFFu, 0xFF0000u);
    EXPECT_NE(m_Host.PixelAt(34, 22).m_Value & 0xFFFFFFu, 0xFF0000u);
}

TEST_F(PictureButton, ThePictureStandsStillWhilePressed)
{
    m_Button.SetNormalImage(0);
    m_Button.SetCanHaveFocus(false);
    m_Host.Paint();
    m_Host.Mouse().Press(m_Button, 30, 20);
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 0 at 21 14");
    m_Host.Mouse().Release();
}

TEST_F(PictureButton, AnXpmIsAsLargeAsItIsMeasuredAlsoWithoutAutomaticScaling)
{
    CAutoScaleScope const off(false);
    m_Host.SetScale(2);
    m_Button.SetNormalImage(Blue());
    EXPECT_EQ(m_Button.GetSize(), (Size{5, 4}));
    m_Host.Paint();
    EXPECT_EQ(m_Button.GetContentRect(), (Rect{27, 17, 31, 20}));
    EXPECT_EQ(m_Host.PixelAt(31, 20).m_Value & 0xFFFFFFu, 0xFF0000u);
    EXPECT_NE(m_Host.PixelAt(32, 20).m_Value & 0xFFFFFFu, 0xFF0000u);
    EXPECT_NE(m_Host.PixelAt(31, 21).m_Value & 0xFFFFFFu, 0xFF0000u);
}

namespace
{

char const* g_ClearLines[] = {"5 4 2 1", "r c #FF0000", ". c None", "r...r", "r...r", "r...r", "r...r"};

// A green caption, and on it a button whose image fits: red at (10, 10), clear at (12, 10). Under the pointer it is blue.
class SeeThroughButton : public testing::Test
{
protected:
    SeeThroughButton()
    {
        m_Ground.SetBkColor(color_table[13]);
        m_Button.SetNormalImage(XPMImage(XPMBuf(g_ClearLines, true)));
        m_Button.SetHighlightedImage(Blue());
        m_Button.SetPos({10, 10, 15, 14}, true);
        m_Host.Paint();
    }
    void ShowBlueAndLeave()
    {
        m_Host.Mouse().Move(12, 12);
        m_Host.Paint();
        m_Host.Mouse().Move(50, 30);
        m_Host.Paint();
    }
    unsigned int Pixel(int x, int y) { return m_Host.PixelAt(x, y).m_Value & 0xFFFFFFu; }

    CTestHost m_Host{60, 40};
    CCaption& m_Ground = *new CCaption(m_Host.Root(), {0, 0}, alClient);
    CPictureButton& m_Button = *new CPictureButton(&m_Ground, {0, 0}, alNone);
};

}  // namespace

TEST_F(SeeThroughButton, WhatWasPaintedBeforeStaysInTheClearPartsOfAnImageThatFits)
{
    EXPECT_FALSE(m_Button.IsTransparent());
    EXPECT_EQ(Pixel(10, 10), 0x0000FFu);
    EXPECT_EQ(Pixel(12, 10), 0x00FF00u);
    ShowBlueAndLeave();
    EXPECT_EQ(Pixel(10, 10), 0x0000FFu);
    EXPECT_EQ(Pixel(12, 10), 0xFF0000u);
}

TEST_F(SeeThroughButton, SetTransparentItLetsTheParentShowThere)
{
    m_Button.SetTransparent(true);
    m_Host.Paint();
    ShowBlueAndLeave();
    EXPECT_EQ(Pixel(10, 10), 0x0000FFu);
    EXPECT_EQ(Pixel(12, 10), 0x00FF00u);
}
