// A text and an image side by side: where each of them stands, and what a point finds.

#include "vexel/controls/label.h"

#include "tests/support/test_images.h"
#include "vexel/platform/system.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

using Rect = rectangle<int>;

namespace
{

int const g_Left = IPainter::AlignLeft;
int const g_Right = IPainter::AlignRight;
int const g_HCenter = IPainter::AlignHCenter;
int const g_Top = IPainter::AlignTop;
int const g_Bottom = IPainter::AlignBottom;
int const g_VCenter = IPainter::AlignVCenter;

// A rectangle of 100 x 40, the text "abc" of 24 x 8, images of 16 x 16, 16 x 6, 30 x 6 and a gap of 4.
class Label : public testing::Test
{
protected:
    Label() { Painter().BeginPaint(IPainter::ssPaint); }
    ~Label() override { Painter().EndPaint(); }

    IPainter& Painter() { return *m_Host.Window().GetPainter(); }
    Rect Draw(std::string const& text, int flags, int image = 0)
    {
        return DrawLabel(&Painter(), m_Rect, text, flags, 4, &m_Images, image, m_Layout, DefaultDelimiters, nullptr);
    }
    int HitTest(double x, double y, std::string const& text, int flags, int image = 0)
    {
        return LabelHitTest({x, y}, &Painter(), m_Rect, text, flags, 4, &m_Images, image, m_Layout, DefaultDelimiters,
                            nullptr);
    }

    CTestHost m_Host{200, 200};
    CTestImages m_Images{{{16, 16}, {16, 6}, {30, 6}}};
    Rect m_Rect{0, 0, 100, 40};
    ILayout* m_Layout = CLayoutManager::GetLayout(alBottom);  // horizontal, and leaves the flags alone
};

}  // namespace

TEST_F(Label, TheDelimitersAreBlankDotBackslashSlashLineFeedAndForMarkupTheAngle)
{
    EXPECT_STREQ(DefaultDelimiters, " .\\/\n");
    EXPECT_STREQ(HTMLDelimiters, " <.\\/\n");
}

TEST_F(Label, ATextAloneTakesWhatItNeeds)
{
    EXPECT_EQ(Draw("abc", g_Left | g_VCenter, -1), (Rect{0, 16, 24, 24}));
    EXPECT_EQ(Draw("abc", g_HCenter | g_Top, -1), (Rect{38, 0, 62, 8}));
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(Label, NothingTakesNothing)
{
    EXPECT_EQ(Draw("", g_Left, -1), Rect());
}

TEST_F(Label, AnImageStandsBeforeALeftText)
{
    EXPECT_EQ(Draw("abc", g_Left | g_VCenter), (Rect{0, 16, 44, 24}));
    // Beside the line, which begins at 16 and is 8 high: 16 + (8 - 16 + 1) / 2, truncated.
    EXPECT_EQ(m_Images.Take(), "draw 0 at 0 13");
}

TEST_F(Label, AnImageStandsBeforeARightText)
{
    EXPECT_EQ(Draw("abc", g_Right | g_VCenter), (Rect{56, 16, 100, 24}));
    EXPECT_EQ(m_Images.Take(), "draw 0 at 56 13");
}

TEST_F(Label, AnImageStandsDirectlyBeforeACentredText)
{
    // The text has 20 to 100 and stands at 48; the image ends 4 before it.
    EXPECT_EQ(Draw("abc", g_HCenter | g_VCenter), (Rect{28, 16, 72, 24}));
    EXPECT_EQ(m_Images.Take(), "draw 0 at 28 13");
}

TEST_F(Label, TheImageGoesBesideTheFirstLineWhereThatStands)
{
    Draw("abc", g_Left | g_Top);
    EXPECT_EQ(m_Images.Take(), "draw 0 at 0 -3");
    Draw("abc", g_Left | g_Bottom);
    EXPECT_EQ(m_Images.Take(), "draw 0 at 0 29");
    Draw("abc", g_Left | g_Bottom, 1);
    EXPECT_EQ(m_Images.Take(), "draw 1 at 0 33");
}

TEST_F(Label, WithoutAVerticalFlagTheImageIsCentred)
{
    Draw("abc", g_Left);
    EXPECT_EQ(m_Images.Take(), "draw 0 at 0 12");
}

TEST_F(Label, BesideASingleLineThatFillsHalfTheHeightTheImageIsCentred)
{
    m_Rect.bottom = 16;
    Draw("abc", g_Left | g_Top, 1);
    EXPECT_EQ(m_Images.Take(), "draw 1 at 0 5");
    m_Rect.bottom = 17;  // more than two lines high
    Draw("abc", g_Left | g_Top, 1);
    EXPECT_EQ(m_Images.Take(), "draw 1 at 0 1");
}

TEST_F(Label, BesideSeveralLinesTheImageStandsAtTheFirst)
{
    m_Rect = {0, 0, 100, 16};
    EXPECT_EQ(Draw("a\nb", g_Left | g_VCenter, 1), (Rect{0, 0, 28, 16}));
    EXPECT_EQ(m_Images.Take(), "draw 1 at 0 1");
}

TEST_F(Label, TheFirstOfSeveralFlagsOfAnAxisDecidesForTheImage)
{
    Draw("abc", g_Left | g_Right | g_Top | g_Bottom, 1);
    EXPECT_EQ(m_Images.Take(), "draw 1 at 0 1");
}

TEST_F(Label, AnImageAloneIsPlacedWithoutAGap)
{
    EXPECT_EQ(Draw("", g_HCenter | g_VCenter), (Rect{42, 12, 58, 28}));
    EXPECT_EQ(m_Images.Take(), "draw 0 at 42 12");
    EXPECT_EQ(Draw("", g_Right | g_Bottom), (Rect{84, 12, 100, 28}));
    EXPECT_EQ(m_Images.Take(), "draw 0 at 84 12");
}

TEST_F(Label, WithoutAHorizontalFlagTheImageIsRaisedToTheStart)
{
    m_Rect = {10, 0, 110, 40};
    EXPECT_EQ(Draw("abc", g_VCenter), (Rect{10, 16, 54, 24}));
    EXPECT_EQ(m_Images.Take(), "draw 0 at 10 13");
}

TEST_F(Label, AnImageBeforeAnOverlongTextStaysInside)
{
    m_Rect = {5, 0, 65, 40};
    Draw("abcdefghijklm", g_HCenter | g_VCenter);
    EXPECT_EQ(m_Images.Take(), "draw 0 at 5 13");
}

TEST_F(Label, AnImageThatIsLargerThanTheRectangleIsLeftOutButTheTextKeepsClearOfIt)
{
    m_Rect = {0, 0, 40, 12};
    EXPECT_EQ(Draw("abc", g_Left | g_Top), (Rect{20, 0, 40, 8}));
    EXPECT_EQ(m_Images.Take(), "");
    EXPECT_EQ(HitTest(5, 5, "abc", g_Left | g_Top), 0);
    EXPECT_EQ(HitTest(25, 5, "abc", g_Left | g_Top), 2);
}

TEST_F(Label, ATextWithoutRoomBesideTheImageHasOnePixel)
{
    m_Rect = {0, 0, 18, 40};
    EXPECT_EQ(Draw("abc", g_Left | g_Top), (Rect{0, 0, 21, 8}));
    EXPECT_EQ(m_Images.Take(), "draw 0 at 0 -3");
}

TEST_F(Label, ADisabledLabelDrawsTheDisabledImage)
{
    EXPECT_EQ(Draw("abc", g_Left | g_VCenter | IPainter::AlignDisabled), (Rect{0, 16, 44, 24}));
    EXPECT_EQ(m_Images.Take(), "disabled 0 at 0 13");
}

TEST_F(Label, MeasuringDrawsNothingAndAnswersTheSame)
{
    EXPECT_EQ(Draw("abc", g_Left | g_VCenter | IPainter::AlignMeasureOnly), (Rect{0, 16, 44, 24}));
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(Label, WithoutAnImageListTheTextStandsAlone)
{
    EXPECT_EQ(
        DrawLabel(&Painter(), m_Rect, "abc", g_Left | g_VCenter, 4, nullptr, 0, nullptr, DefaultDelimiters, nullptr),
        (Rect{0, 16, 24, 24}));
}

TEST_F(Label, WithoutALayoutItRunsToTheRightAndTopAndBottomBothComeOutAtTheBottom)
{
    m_Layout = nullptr;
    EXPECT_EQ(Draw("abc", g_Left | g_VCenter), (Rect{0, 16, 44, 24}));
    EXPECT_EQ(Draw("abc", g_Left | g_Top, -1), (Rect{0, 32, 24, 40}));
    EXPECT_EQ(Draw("abc", g_Left | g_Bottom, -1), (Rect{0, 32, 24, 40}));
}

TEST_F(Label, AtTheLeftEdgeTheTextRunsDownwardBelowTheImage)
{
    m_Layout = CLayoutManager::GetLayout(alLeft);
    m_Rect = {0, 0, 40, 100};
    font before = Painter().GetFont();

    EXPECT_EQ(Draw("abc", g_Left | g_VCenter), (Rect{13, 20, 24, 44}));

    EXPECT_EQ(m_Images.Take(), "draw 0 at 13 0");
    EXPECT_EQ(Painter().GetFont(), before);
}

TEST_F(Label, APointFindsTextImageOrNothing)
{
    int const flags = g_Left | g_VCenter;  // text (20, 16, 44, 24), image (0, 13, 16, 29)
    EXPECT_EQ(HitTest(30, 20, "abc", flags), 2);
    EXPECT_EQ(HitTest(5, 20, "abc", flags), 1);
    EXPECT_EQ(HitTest(18, 20, "abc", flags), 0);
    EXPECT_EQ(HitTest(5, 35, "abc", flags), 0);
    EXPECT_EQ(HitTest(30, 20, "", flags), 0);
}

TEST_F(Label, EdgesBelongToTextAndImage)
{
    int const flags = g_Left | g_VCenter;
    EXPECT_EQ(HitTest(16, 29, "abc", flags), 1);
    EXPECT_EQ(HitTest(16.5, 29, "abc", flags), 0);
    EXPECT_EQ(HitTest(20, 16, "abc", flags), 2);
    EXPECT_EQ(HitTest(44, 24, "abc", flags), 2);
    EXPECT_EQ(HitTest(44, 24.5, "abc", flags), 0);
}

TEST_F(Label, TheImageIsHitInASquareOfItsWidth)
{
    int const flags = g_Left | g_VCenter;  // 16 x 6 at (0, 17)
    EXPECT_EQ(HitTest(5, 33, "abc", flags, 1), 1);
    EXPECT_EQ(HitTest(5, 34, "abc", flags, 1), 0);
}

TEST_F(Label, WhereBothAreTheImageWins)
{
    m_Layout = CLayoutManager::GetLayout(alLeft);
    m_Rect = {0, 0, 40, 100};
    int const flags = g_Left | g_VCenter;  // 30 x 6 at (6, 0), text (16, 10, 24, 34)
    EXPECT_EQ(HitTest(20, 15, "abc", flags, 2), 1);
    EXPECT_EQ(HitTest(20, 32, "abc", flags, 2), 2);
}

TEST_F(Label, AHitTestPaintsNothing)
{
    HitTest(5, 5, "abc", g_Left | g_VCenter);
    EXPECT_EQ(m_Images.Take(), "");
    EXPECT_EQ(m_Host.PixelAt(21, 17), m_Host.PixelAt(190, 190));
}

// Turned labels: the text runs downward from (0, 0, 40, 100), images stand before it -----------------------------------------

namespace
{

class TurnedLabel : public Label
{
protected:
    TurnedLabel()
    {
        m_Layout = CLayoutManager::GetLayout(alLeft);
        m_Rect = {0, 0, 40, 100};
    }
};

}  // namespace

TEST_F(TurnedLabel, TheImageStandsBeforeACentredText)
{
    // The text has y 20 to 100 and stands at 48.
    EXPECT_EQ(Draw("abc", g_HCenter | g_VCenter), (Rect{13, 48, 24, 72}));
    EXPECT_EQ(m_Images.Take(), "draw 0 at 13 28");
}

TEST_F(TurnedLabel, TheImageStandsBeforeATextAtTheEnd)
{
    EXPECT_EQ(Draw("abc", g_Right | g_VCenter), (Rect{13, 76, 24, 100}));
    EXPECT_EQ(m_Images.Take(), "draw 0 at 13 56");
}

TEST_F(TurnedLabel, AnImageAloneIsCentred)
{
    EXPECT_EQ(Draw("", g_HCenter | g_VCenter), (Rect{12, 42, 28, 58}));
    EXPECT_EQ(m_Images.Take(), "draw 0 at 12 42");
}

TEST_F(TurnedLabel, AnImageTakesItsHeightAlongTheText)
{
    // Image 1 is 6 high: the text begins at y 10. Without a vertical flag the image is centred across.
    EXPECT_EQ(Draw("abc", g_Left, 1), (Rect{12, 10, 8, 34}));
    EXPECT_EQ(m_Images.Take(), "draw 1 at 12 0");
}

TEST_F(TurnedLabel, ThePaintersFontIsPutBackHoweverItEnds)
{
    font const before = Painter().GetFont();
    Draw("abc", g_Left, -1);
    EXPECT_EQ(Painter().GetFont(), before);
    m_Rect = {0, 0, 10, 100};  // too narrow for the image
    Draw("abc", g_Left, 0);
    EXPECT_EQ(m_Images.Take(), "");
    EXPECT_EQ(Painter().GetFont(), before);
    HitTest(5, 5, "abc", g_Left, 1);
    EXPECT_EQ(Painter().GetFont(), before);
    Draw("", g_Left, -1);
    EXPECT_EQ(Painter().GetFont(), before);
}

TEST_F(TurnedLabel, AFontThatRunsDownwardAlreadyBecomesUpright)
{
    font downward = Painter().GetFont();
    downward.rotation = 2700;
    Painter().SetFont(downward);
    EXPECT_EQ(Draw("abc", g_Left | g_VCenter, -1), (Rect{8, 0, 32, 8}));
    EXPECT_EQ(Painter().GetFont().rotation, 2700);
}

TEST_F(TurnedLabel, AtTheSidesMeasuringKeepsBackTheImageAloneForTheFlagIsLost)
{
    Painter().m_TextShortened = true;
    EXPECT_EQ(Draw("abc", g_Left | g_VCenter | IPainter::AlignMeasureOnly), (Rect{13, 20, 24, 44}));
    EXPECT_EQ(m_Images.Take(), "");
    EXPECT_FALSE(Painter().m_TextShortened) << "the text was really drawn";
}

TEST_F(TurnedLabel, AHitTestPaintsNoTextEither)
{
    Painter().m_TextShortened = true;
    EXPECT_EQ(HitTest(20, 30, "abc", g_Left | g_VCenter), 2);
    EXPECT_TRUE(Painter().m_TextShortened);
}

TEST_F(TurnedLabel, TheHeightOfALineIsItsExtentAcrossNotItsWidth)
{
    font bold = Painter().GetFont();
    bold.style = font::fsBold;  // "W" is 9 wide
    Painter().SetFont(bold);
    m_Rect = {0, 0, 17, 100};  // two lines are 16
    Draw("abc", g_Left | g_Top);
    EXPECT_EQ(m_Images.Take(), "draw 0 at -3 0");
}

// Odd cases -----------------------------------------------------------------------------------------------------------------

TEST_F(Label, ATextHigherThanItsPlaceTakesTheImageAlong)
{
    m_Rect = {0, 10, 100, 31};  // 21 high, the text 24
    Draw("a\nb\nc", g_Left | g_Top, 1);
    EXPECT_EQ(m_Images.Take(), "draw 1 at 0 11");
    Draw("a\nb\nc", g_Left | g_Bottom, 1);
    EXPECT_EQ(m_Images.Take(), "draw 1 at 0 8");
    Draw("a\nb\nc", g_Left | g_VCenter, 1);  // half of -3 is -1
    EXPECT_EQ(m_Images.Take(), "draw 1 at 0 10");
    Draw("a\nb\nc", g_Left, 1);
    EXPECT_EQ(m_Images.Take(), "draw 1 at 0 18");
}

TEST_F(Label, AnImageThatFitsExactlyIsDrawn)
{
    m_Rect = {0, 0, 16, 16};
    Draw("", g_Left);
    EXPECT_EQ(m_Images.Take(), "draw 0 at 0 0");
    m_Rect = {0, 0, 15, 16};
    EXPECT_EQ(Draw("", g_Left), Rect());
    m_Rect = {0, 0, 16, 15};
    EXPECT_EQ(Draw("", g_Left), Rect());
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(Label, WithoutRoomForTheTextOnlyALeftImageIsDrawn)
{
    m_Rect = {0, 0, 18, 40};  // the text has from 20 to 21
    Draw("abc", g_Right | g_VCenter);
    EXPECT_EQ(m_Images.Take(), "");
    Draw("abc", g_HCenter | g_VCenter);
    EXPECT_EQ(m_Images.Take(), "");
    Draw("abc", g_Left | g_VCenter);
    EXPECT_EQ(m_Images.Take(), "draw 0 at 0 13");
}

TEST_F(Label, AReversedRectangleHasOnePixelForTheText)
{
    m_Rect = {30, 40, 10, 0};
    EXPECT_EQ(Draw("abc", g_Left | g_Top, -1), (Rect{30, 40, 31, 41}));
    Draw("abc", g_Left | g_Top, 0);
    Draw("", g_Left | g_Top, 0);
    EXPECT_EQ(m_Images.Take(), "") << "as they came in, the edges leave no room";
}

TEST_F(Label, AnImageThatTheListDoesNotHaveTakesItsGapAlone)
{
    EXPECT_EQ(Draw("abc", g_Left | g_VCenter, 7), (Rect{0, 16, 28, 24}));
    EXPECT_EQ(m_Images.Take(), "draw 7 at 0 20");
    EXPECT_EQ(Draw("abc", g_Left | g_VCenter, -2), (Rect{4, 16, 28, 24}));
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(Label, InNegativeCoordinatesPlacesAreTruncatedTowardZero)
{
    m_Rect = {-50, -10, 50, 0};
    EXPECT_EQ(Draw("", g_Left, 1), (Rect{-50, -7, -34, -1}));  // (10 - 6) / 2 - 10 + 0.5
    EXPECT_EQ(m_Images.Take(), "draw 1 at -50 -7");
    Draw("", g_HCenter, 1);  // (100 - 16) / 2 - 50 + 0.5
    EXPECT_EQ(m_Images.Take(), "draw 1 at -7 -7");
}

TEST_F(Label, MeasuredAnImageAloneTakesItsPlaceUndrawn)
{
    EXPECT_EQ(Draw("", g_Left | IPainter::AlignMeasureOnly), (Rect{0, 12, 16, 28}));
    EXPECT_EQ(m_Images.Take(), "");
}

TEST_F(Label, OnlyADrawnTextTellsWhetherItWasShortened)
{
    Painter().m_TextShortened = true;
    HitTest(5, 5, "abc", g_Left);
    EXPECT_TRUE(Painter().m_TextShortened);
    Draw("abc", g_Left | IPainter::AlignMeasureOnly);
    EXPECT_TRUE(Painter().m_TextShortened);
    Draw("", g_Left);
    EXPECT_TRUE(Painter().m_TextShortened);
    Draw("abc", g_Left);
    EXPECT_FALSE(Painter().m_TextShortened);
    HitTest(5, 5, "abcdefghijklmnopq", g_Left);
    EXPECT_FALSE(Painter().m_TextShortened);
    Draw("abcdefghijklmnopq", g_Left);
    EXPECT_TRUE(Painter().m_TextShortened);
}

TEST_F(Label, AnOverlongTextIsHitInsideItsPlaceOnly)
{
    m_Rect = {5, 0, 65, 40};
    EXPECT_EQ(HitTest(65, 20, "abcdefghijklm", g_Left | g_VCenter), 2);
    EXPECT_EQ(HitTest(66, 20, "abcdefghijklm", g_Left | g_VCenter), 0);
}

TEST_F(Label, AnImageWithoutAListIsNotHit)
{
    EXPECT_EQ(LabelHitTest({5, 20}, &Painter(), m_Rect, "abc", g_Right | g_VCenter, 4, nullptr, 0, nullptr,
                           DefaultDelimiters, nullptr),
              0);
    EXPECT_EQ(HitTest(0, 12, "", g_Left, -2), 0);
}

TEST_F(Label, WhatHasNoWidthIsNotHit)
{
    EXPECT_EQ(HitTest(0, 17, "", g_Left, 7), 0);
    EXPECT_EQ(HitTest(0, 20, "\n", g_Left | g_VCenter, -1), 0);
}
