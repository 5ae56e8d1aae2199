// The text label: its size, its look, and what it does by itself.

#include "vexel/controls/caption.h"

#include "tests/support/test_images.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

using Size = size<int>;

namespace
{

/// Counts its recalculations.
class CCounting : public CCaption
{
public:
    using CCaption::CCaption;

    void RecalculateSize() override
    {
        ++m_Count;
        CCaption::RecalculateSize();
    }

    int m_Count = 0;
};

// A window of 200 x 100 whose characters are 8 x 8; an image of 16 x 16.
class Caption : public testing::Test
{
protected:
    Caption()
    {
        m_Host.Control().SetImageList(&m_Images);
        NameElement(m_Caption, "caption");
    }
    ~Caption() override { m_Host.Control().SetImageList(nullptr); }

    void Settle() { m_Host.Paint(); }

    CTestImages m_Images{{{16, 16}}};
    CTestHost m_Host{200, 100};
    CCounting& m_Caption = *new CCounting(m_Host.Root(), {100, 40}, alTop);  // (0, 0, 199, 40)
};

}  // namespace

TEST_F(Caption, ItStartsEmptyCentredAndPlain)
{
    EXPECT_EQ(m_Caption.GetCaption(), "");
    EXPECT_EQ(m_Caption.GetTextAlign(), 0x24);
    EXPECT_EQ(m_Caption.GetImageIndex(), -1);
    EXPECT_FALSE(m_Caption.IsAutoSize());
    EXPECT_FALSE(m_Caption.IsAdjustHeight());
    EXPECT_FALSE(m_Caption.IsUseHTML());
    EXPECT_FALSE(m_Caption.IsTooltipFromCaption());
    EXPECT_FALSE(m_Caption.IsTransparent());
    EXPECT_FALSE(m_Caption.IsTextConverted());
    EXPECT_EQ(m_Caption.GetMaxTextWidth(), 0);
    EXPECT_EQ(m_Caption.GetImageSpace(), 4);
    EXPECT_TRUE(m_Caption.IsCopyToClipboardEnabled());
    EXPECT_EQ(m_Caption.GetAlignment(), alTop);
}

TEST_F(Caption, TheImageSpaceIsFourScaledPixelsTruncated)
{
    m_Host.SetScale(1.4);
    CCaption caption(nullptr, {0, 0}, alNone);
    EXPECT_EQ(caption.GetImageSpace(), 5);  // 5.6
}

// Setters -----------------------------------------------------------------------------------------------------------------

TEST_F(Caption, TheSameTextHasNoEffectAlsoTwoEmptyOnes)
{
    Settle();
    m_Caption.SetCursor(12);
    int const before = m_Caption.m_Count;
    m_Caption.SetCaption("");
    EXPECT_FALSE(m_Host.IsFramePending());
    EXPECT_EQ(m_Caption.GetCursor(), 12);
    EXPECT_EQ(m_Caption.m_Count, before);

    m_Caption.SetCaption("a");
    EXPECT_TRUE(m_Host.IsFramePending());
    EXPECT_EQ(m_Caption.m_Count, before + 1);
    Settle();
    m_Caption.SetCaption("a");
    EXPECT_FALSE(m_Host.IsFramePending());
    EXPECT_EQ(m_Caption.m_Count, before + 1);
}

TEST_F(Caption, ANewTextGivesTheArrowCursorBack)
{
    m_Caption.SetCursor(12);
    m_Caption.SetCaption("text");
    EXPECT_EQ(m_Caption.GetCursor(), 1);
}

TEST_F(Caption, AlignmentMarkupAndImageRepaintOnAChangeAndLeaveTheSize)
{
    m_Caption.SetAutoSize(true);
    Settle();
    int const count = m_Caption.m_Count;
    auto const repaints = [&] { return !m_Host.Paint().IsEmpty(); };

    m_Caption.SetTextAlign(0x21);
    EXPECT_TRUE(repaints());
    m_Caption.SetTextAlign(0x21);
    EXPECT_FALSE(repaints());
    m_Caption.UseHTML(true);
    EXPECT_TRUE(repaints());
    m_Caption.UseHTML(true);
    EXPECT_FALSE(repaints());
    m_Caption.SetImageIndex(0);
    EXPECT_TRUE(repaints());
    m_Caption.SetImageIndex(0);
    EXPECT_FALSE(repaints());
    m_Caption.SetImageSpace(9);
    EXPECT_TRUE(repaints());
    m_Caption.SetImageSpace(9);
    EXPECT_FALSE(repaints());

    EXPECT_EQ(m_Caption.m_Count, count);
    EXPECT_EQ(m_Caption.GetSize(), (Size{2, 2}));
}

TEST_F(Caption, AnImageIndexOfMinusTwoChangesNothing)
{
    m_Caption.SetImageIndex(0);
    m_Caption.SetImageIndex(-2);
    EXPECT_EQ(m_Caption.GetImageIndex(), 0);
    m_Caption.SetImageIndex(-1);
    EXPECT_EQ(m_Caption.GetImageIndex(), -1);
}

TEST_F(Caption, AnImageSpaceOfMinusOneRestoresTheDefault)
{
    m_Caption.SetImageSpace(0);
    EXPECT_EQ(m_Caption.GetImageSpace(), 0);
    m_Caption.SetImageSpace(-1);
    EXPECT_EQ(m_Caption.GetImageSpace(), 4);
}

TEST_F(Caption, AMaximumWidthOfMinusFiveIsNone)
{
    m_Caption.SetMaxTextWidth(7);
    EXPECT_EQ(m_Caption.GetMaxTextWidth(), 7);
    int const count = m_Caption.m_Count;
    m_Caption.SetMaxTextWidth(-5);
    EXPECT_EQ(m_Caption.GetMaxTextWidth(), 0);
    EXPECT_EQ(m_Caption.m_Count, count + 1);
    m_Caption.SetMaxTextWidth(0);
    EXPECT_EQ(m_Caption.m_Count, count + 1);
}

TEST_F(Caption, SizeSettersRecalculateOnAChangeOnly)
{
    int const count = m_Caption.m_Count;
    m_Caption.SetAutoSize(true);
    m_Caption.AdjustHeight(true);
    m_Caption.SetMaxTextWidth(50);
    EXPECT_EQ(m_Caption.m_Count, count + 3);
    m_Caption.SetAutoSize(true);
    m_Caption.AdjustHeight(true);
    m_Caption.SetMaxTextWidth(50);
    EXPECT_EQ(m_Caption.m_Count, count + 3);
}

TEST_F(Caption, ItsTextIsItsStringWithoutLinks)
{
    m_Caption.SetCaption("a <a href=\"t\">link</a> <b>b</b>");
    EXPECT_EQ(m_Caption.HandleAsString(), "a <a href=\"t\">link</a> <b>b</b>");
    m_Caption.UseHTML(true);
    EXPECT_EQ(m_Caption.HandleAsString(), "a link <b>b</b>");
}

// Size --------------------------------------------------------------------------------------------------------------------

TEST_F(Caption, WithoutAutomaticSizeTheAskedSizeStays)
{
    m_Caption.SetCaption("a text");
    EXPECT_EQ(m_Caption.GetSize(), (Size{100, 40}));
}

TEST_F(Caption, AutomaticSizeIsTheTextAndTwoPixels)
{
    m_Caption.SetAutoSize(true);
    m_Caption.SetCaption("abc");
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 10}));
    m_Caption.SetCaption("ab\ncdef\ng");
    EXPECT_EQ(m_Caption.GetSize(), (Size{34, 26}));
}

TEST_F(Caption, AnEmptyCaptionWithAutomaticSizeHasExactlyTheAdditionalExtent)
{
    m_Caption.SetAutoSize(true);
    EXPECT_EQ(m_Caption.GetSize(), (Size{2, 2}));

    m_Host.SetScale(1.75);
    EXPECT_EQ(CCaption::GetAutoSizeExtent(), (Size{3, 3}));
    EXPECT_EQ(m_Caption.GetAutoSizeAdditionalExtent(), (Size{3, 3}));
    EXPECT_EQ(m_Caption.GetDrawingAdditionalExtent(), (Size{3, 3}));
    m_Caption.AttributeChanged();
    EXPECT_EQ(m_Caption.GetSize(), (Size{3, 3}));
}

TEST_F(Caption, AutomaticSizeHasRoomForTheImageAndItsGap)
{
    m_Caption.SetImageIndex(0);
    m_Caption.SetCaption("abc");
    m_Caption.SetAutoSize(true);
    EXPECT_EQ(m_Caption.GetImageSize(), (Size{20, 16}));
    EXPECT_EQ(m_Caption.GetSize(), (Size{46, 18}));
}

TEST_F(Caption, AnEmptyCaptionWithAnImageAddsNoGapAndCentresTheImage)
{
    m_Caption.SetImageIndex(0);
    EXPECT_EQ(m_Caption.GetImageSize(), (Size{16, 16}));
    m_Host.Paint();
    EXPECT_EQ(m_Images.Take(), "draw 0 at 92 12");  // in 199 x 40, half a pixel added: (199 - 16) / 2 + 0.5

    m_Caption.SetAutoSize(true);
    EXPECT_EQ(m_Caption.GetSize(), (Size{18, 18}));
}

TEST_F(Caption, WithoutControlListOrIndexTheImageHasNoSize)
{
    EXPECT_EQ(m_Caption.GetImageSize(), Size());
    m_Caption.SetImageIndex(0);
    m_Host.Control().SetImageList(nullptr);
    EXPECT_EQ(m_Caption.GetImageSize(), Size());
    CCaption alone(nullptr, {0, 0}, alNone);
    alone.SetImageIndex(0);
    EXPECT_EQ(alone.GetImageSize(), Size());
}

TEST_F(Caption, WithoutAControlTheSizeStaysUntilItHasOne)
{
    CCaption alone(nullptr, {30, 20}, alNone);
    alone.SetAutoSize(true);
    alone.SetCaption("abcd");
    Size const before = alone.GetSize();
    EXPECT_EQ(before, (Size{30, 20}));

    alone.ReParent(m_Host.Root(), false);

    EXPECT_EQ(alone.GetSize(), (Size{34, 10}));
}

TEST_F(Caption, TheTextIsMeasuredInTheElementsFont)
{
    m_Caption.SetAutoSize(true);
    m_Caption.SetCaption("abc");
    font large;
    large.size = 16;
    m_Caption.SetFont(large);
    EXPECT_EQ(m_Caption.GetSize(), (Size{50, 18}));
}

TEST_F(Caption, TheMaximumWidthWrapsTheText)
{
    m_Caption.SetAutoSize(true);
    m_Caption.SetCaption("aaa bbb");
    EXPECT_EQ(m_Caption.GetSize(), (Size{58, 10}));
    m_Caption.SetMaxTextWidth(30);
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 18}));
}

TEST_F(Caption, WithTheHeightAdjustedTheTextWrapsInTheWidth)
{
    m_Host.Resize(43, 100);
    Settle();  // (0, 0, 42, 40)
    m_Caption.SetAutoSize(true);
    m_Caption.AdjustHeight(true);
    m_Caption.SetCaption("aaa bbb ccc");  // in 40 pixels
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 26}));

    m_Host.Resize(83, 100);
    Settle();
    EXPECT_EQ(m_Caption.GetSize(), (Size{58, 18}));
}

TEST_F(Caption, WithTheHeightAdjustedAChangeOfTheWidthAloneRecalculatesAMoveDoesNot)
{
    CCounting free(m_Host.Root(), {50, 20}, alNone);
    free.SetPos({0, 0, 50, 20}, true);
    free.AdjustHeight(true);
    int const count = free.m_Count;

    free.SetPos({5, 7, 55, 27}, false);
    EXPECT_EQ(free.m_Count, count);
    free.SetPos({5, 7, 55, 30}, false);
    EXPECT_EQ(free.m_Count, count);
    free.SetPos({5, 7, 56, 30}, false);
    EXPECT_EQ(free.m_Count, count + 1);

    free.AdjustHeight(false);
    int const after = free.m_Count;
    free.SetPos({5, 7, 60, 30}, false);
    EXPECT_EQ(free.m_Count, after);
}

// Drawing -----------------------------------------------------------------------------------------------------------------

TEST_F(Caption, ACentredTextHasTheWholeRectangle)
{
    m_Caption.SetCaption("abc");
    EXPECT_THAT(m_Host.Paint().Of("caption"),
                Draws("FillRect 0 0 199 40").Then("DrawStringEx \"abc\" 0 0 199 40 0x124"));
}

TEST_F(Caption, ATextThatIsNotCentredKeepsAMarginLeftAndRight)
{
    m_Caption.SetTextAlign(0x21);
    m_Caption.SetCaption("abc");
    EXPECT_THAT(m_Host.Paint().Of("caption"), Draws("DrawStringEx \"abc\" 1 0 198 40 0x121"));
}

TEST_F(Caption, TheMarginOfAnOddExtentIsRoundedUp)
{
    m_Host.SetScale(1.5);  // 3 pixels, 1.5 on each side
    m_Caption.SetTextAlign(0x21);
    m_Caption.SetCaption("abc");
    EXPECT_THAT(m_Host.Paint().Of("caption"), Draws("DrawStringEx \"abc\" 2 0 197 40 0x121"));
}

TEST_F(Caption, ALeftImageWithoutTextHasNoMargin)
{
    m_Caption.SetTextAlign(0x21);
    m_Caption.SetImageIndex(0);
    m_Host.Paint();
    EXPECT_EQ(m_Images.Take(), "draw 0 at 0 12");
}

TEST_F(Caption, TheMaximumWidthNarrowsTheDrawing)
{
    m_Caption.SetTextAlign(0x21);
    m_Caption.SetCaption("abc");
    m_Caption.SetImageIndex(0);
    m_Caption.SetMaxTextWidth(30);  // and 20 of the image
    EXPECT_THAT(m_Host.Paint().Of("caption"), Draws("DrawStringEx \"abc\" 21 0 51 40 0x121"));
}

TEST_F(Caption, ATransparentCaptionLeavesTheBackground)
{
    m_Caption.SetTransparent(true);
    m_Caption.SetCaption("abc");
    EXPECT_EQ(m_Host.Paint().Of("caption").Count("FillRect*"), 0);
}

TEST_F(Caption, ADisabledCaptionHasTheDisabledLook)
{
    m_Caption.SetCaption("abc");
    m_Caption.SetImageIndex(0);
    m_Caption.SetEnabled(false);
    EXPECT_THAT(m_Host.Paint().Of("caption"), Draws("SetTextColor grey").Then("DrawStringEx \"abc\" * 0x2124"));
    EXPECT_EQ(m_Images.Take(), "disabled 0 at 78 13");  // the text, 24 wide in 20 to 199, begins at 97.5
}

TEST_F(Caption, AnotherMaximumWidthIsPaintedAlsoWhereTheSizeStays)
{
    m_Caption.SetAutoSize(true);
    m_Caption.SetTextAlign(0x22);
    m_Caption.SetCaption("abc");
    m_Host.Paint();
    m_Caption.SetMaxTextWidth(60);
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 10}));
    EXPECT_THAT(m_Host.Paint().Of("caption"), Draws("DrawStringEx \"abc\" 1 0 61 10 0x122"));
}

TEST_F(Caption, MeasuredWhileSomethingIsPaintedItLeavesThePaintersFont)
{
    font large;
    large.size = 16;
    m_Caption.SetFont(large);
    m_Caption.SetAutoSize(true);
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    font other;
    other.size = 11;
    painter.SetFont(other);
    m_Caption.SetCaption("abc");
    EXPECT_EQ(m_Caption.GetSize(), (Size{50, 18}));
    EXPECT_EQ(painter.GetFont().size, 11);
    painter.EndPaint();
}

// Docking -----------------------------------------------------------------------------------------------------------------

TEST_F(Caption, WithTextLayoutACaptionAtTheLeftRunsDownward)
{
    m_Caption.SetAutoSize(true);
    m_Caption.SetCaption("abc");
    m_Caption.SetAlignment(alLeft);
    m_Caption.SetTextLayout(true);
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 10}));  // text layout repaints only

    m_Caption.AttributeChanged();
    EXPECT_EQ(m_Caption.GetSize(), (Size{10, 26}));
    EXPECT_THAT(m_Host.Paint().Of("caption"), Draws("SetFont * rotation 2700").Then("DrawStringEx \"abc\" *"));
}

TEST_F(Caption, WithoutTextLayoutTheSideTurnsThePlaceOfTheImageOnly)
{
    m_Caption.SetCaption("abc");
    m_Caption.SetImageIndex(0);
    m_Caption.SetAlignment(alLeft);  // (0, 0, 100, 99)
    EXPECT_THAT(m_Host.Paint().Of("caption"), Draws("DrawStringEx \"abc\" 0 20 100 99 0x124"));
}

TEST_F(Caption, SwitchingTextLayoutOffGivesTheUprightLayoutBack)
{
    m_Caption.SetCaption("abc");
    m_Caption.SetImageIndex(0);
    m_Caption.SetAlignment(alLeft);
    m_Caption.SetTextLayout(true);
    m_Caption.SetTextLayout(false);
    EXPECT_EQ(m_Caption.GetAlong(1, 2), 1);
    EXPECT_THAT(m_Host.Paint().Of("caption"), Draws("DrawStringEx \"abc\" 20 0 100 99 0x124"));
}

TEST_F(Caption, DockedToTheSameSideAgainItIsPaintedInTheLayoutOfThatSide)
{
    m_Caption.SetCaption("abc");
    m_Caption.SetImageIndex(0);
    m_Caption.SetAlignment(alLeft);
    m_Caption.SetTextLayout(false);
    m_Host.Paint();
    m_Caption.SetAlignment(alLeft);
    EXPECT_THAT(m_Host.Paint().Of("caption"), Draws("DrawStringEx \"abc\" 0 20 100 99 0x124"));
}

// Tooltip -----------------------------------------------------------------------------------------------------------------

TEST_F(Caption, AShortenedTextBecomesTheTooltipUntilItFits)
{
    m_Caption.SetTooltipFromCaption(true);
    m_Caption.SetCaption("abcdefghijklmnopqrstuvwxyzabcdef");  // 256 pixels in 199
    Settle();
    EXPECT_EQ(m_Caption.GetTooltip(), "abcdefghijklmnopqrstuvwxyzabcdef");

    m_Host.Resize(300, 100);
    Settle();
    EXPECT_EQ(m_Caption.GetTooltip(), "");
}

TEST_F(Caption, ATooltipOfTheApplicationIsNeverOverwritten)
{
    m_Caption.SetTooltipFromCaption(true);
    m_Caption.SetTooltip("own");
    m_Caption.SetCaption("abcdefghijklmnopqrstuvwxyzabcdef");
    Settle();
    EXPECT_EQ(m_Caption.GetTooltip(), "own");
    m_Caption.SetCaption("short");
    Settle();
    EXPECT_EQ(m_Caption.GetTooltip(), "own");
}

TEST_F(Caption, WithoutTheFlagAShortenedTextIsNoTooltip)
{
    m_Caption.SetCaption("abcdefghijklmnopqrstuvwxyzabcdef");
    Settle();
    EXPECT_EQ(m_Caption.GetTooltip(), "");
}

// A turned one is as thick as its lines, and wraps in what the edge gives it.
TEST(CaptionAtTheSide, WithTheHeightAdjustedATurnedTextComesToRest)
{
    for (int const height : {30, 60, 100})
    {
        CTestHost host(200, height);
        auto* const caption = new CCaption(host.Root(), {40, 40}, alLeft);
        caption->SetTextLayout(true);
        caption->SetCaption("aa bb cc dd");
        caption->SetAutoSize(true);
        caption->AdjustHeight(true);
        host.Paint();
        EXPECT_FALSE(host.IsFramePending()) << height;
        EXPECT_EQ(host.CompareWithFullPaint(), "") << height;
    }
    // 8 pixels a character: "aa bb" and "cc dd" are 40 long, and fit in a height of 60.
    CTestHost host(200, 61);
    auto* const caption = new CCaption(host.Root(), {40, 40}, alLeft);
    caption->SetTextLayout(true);
    caption->SetCaption("aa bb cc dd");
    caption->SetAutoSize(true);
    caption->AdjustHeight(true);
    host.Paint();
    EXPECT_EQ(caption->GetSize().width, 2 * 8 + CCaption::GetAutoSizeExtent().height);
}
