// The label step by step: what it asks in which order, how it measures and narrows, and what may die meanwhile.

#include "tests/support/slot.h"
#include "tests/support/test_images.h"
#include "vexel/controls/caption.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <optional>

using namespace vexel;
using namespace vexel::test;

using Rect = rectangle<int>;
using Size = size<int>;

namespace
{

/// Notes what it is asked for, and answers what the test wants.
class CAnswering : public CCaption
{
public:
    using CCaption::CCaption;

    void RecalculateSize() override
    {
        Note("recalculate " + GetCaption() + " " + std::to_string(GetCursor()));
        CCaption::RecalculateSize();
    }
    void SetAlignment(Alignment alignment) override
    {
        Note("align " + std::to_string(alignment));
        CCaption::SetAlignment(alignment);
    }
    void DrawBackground(IPainter* painter) override
    {
        Note("ground");
        CCaption::DrawBackground(painter);
    }
    Rect GetInternalRect() const override
    {
        Note("rect");
        return m_Rect.value_or(CCaption::GetInternalRect());
    }
    Size GetAutoSizeAdditionalExtent() const override
    {
        return m_Extra.value_or(CCaption::GetAutoSizeAdditionalExtent());
    }
    Size GetDrawingAdditionalExtent() const override
    {
        Note("extent");
        return m_DrawingExtra.value_or(CCaption::GetDrawingAdditionalExtent());
    }
    Size GetImageSize() const override { return m_ImageSize.value_or(CCaption::GetImageSize()); }
    void SetSize(Size const& extent, bool scale) override
    {
        Note("size " + std::to_string(extent.width) + " " + std::to_string(extent.height) + (scale ? " scaled" : ""));
        CCaption::SetSize(extent, scale);
    }

    void Note(std::string const& what) const
    {
        if (m_Notes)
            *m_Notes += (m_Notes->empty() ? "" : "; ") + what;
    }

    std::string* m_Notes = nullptr;
    std::optional<Rect> m_Rect;
    std::optional<Size> m_Extra;
    std::optional<Size> m_DrawingExtra;
    std::optional<Size> m_ImageSize;
};

/// Notes that a change of one of its children passes by.
class CPassing : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

    void ProcessChange(CVisualElement** element) override
    {
        if (m_Notes && *element)
            *m_Notes += (m_Notes->empty() ? "" : "; ") + std::string("change");
    }

    std::string* m_Notes = nullptr;
};

// A window of 200 x 100 whose characters are 8 x 8; the caption at (0, 0, 199, 40).
class CaptionSteps : public testing::Test
{
protected:
    CaptionSteps()
    {
        m_Host.Control().SetImageList(&m_Images);
        NameElement(m_Caption, "caption");
        m_Host.Paint();
        m_Caption.m_Notes = &m_Notes;
        m_Parent.m_Notes = &m_Notes;
    }
    ~CaptionSteps() override
    {
        if (m_Host.HasControl())
            m_Host.Control().SetImageList(nullptr);
    }

    std::string Take() { return std::exchange(m_Notes, {}); }
    PaintLog Draw()
    {
        m_Caption.Update(utElement);
        return m_Host.Paint().Of("caption");
    }
    // Docks it at the left, without turning its text: (0, 0, 50, 99).
    void DockLeft()
    {
        m_Caption.SetAlignment(alLeft);
        m_Caption.CVisualElement::SetSize({50, 40}, false);
        m_Host.Paint();
    }

    CTestImages m_Images{{{16, 16}, {16, 6}}};
    CTestHost m_Host{200, 100};
    std::string m_Notes;
    CPassing& m_Parent = *new CPassing(m_Host.Root(), {0, 0}, alClient);
    CAnswering& m_Caption = *new CAnswering(&m_Parent, {0, 40}, alTop);
};

}  // namespace

// Order -------------------------------------------------------------------------------------------------------------------

TEST_F(CaptionSteps, ANewTextIsStoredTheArrowSetTheSizeRecalculatedAndThenTheChangeTold)
{
    m_Caption.SetCursor(12);
    m_Caption.SetCaption("abc");
    EXPECT_EQ(Take(), "recalculate abc 1; change; change");  // the first one is the recalculation's
}

TEST_F(CaptionSteps, AnAttributeChangeIsToldAndThenTheSizeRecalculated)
{
    m_Caption.AttributeChanged();
    EXPECT_EQ(Take(), "change; recalculate  1; change");
}

TEST_F(CaptionSteps, AFontIsAnAttributeAndSoAreColoursAndTheEnabledState)
{
    m_Caption.SetAutoSize(true);
    m_Caption.SetCaption("abc");
    Take();
    m_Caption.SetEnabled(false);
    EXPECT_EQ(Take(), "change; recalculate abc 1; size 26 10; change");  // the same size: painted all the same
}

TEST_F(CaptionSteps, TurningWithTheEdgeAlignsItAnewAndTellsAChange)
{
    m_Caption.SetTextLayout(true);
    std::string const notes = Take();
    EXPECT_TRUE(notes.starts_with("align 3")) << notes;
    EXPECT_TRUE(notes.ends_with("change")) << notes;
    EXPECT_TRUE(m_Caption.IsTextConverted());
}

TEST_F(CaptionSteps, NoLongerTurningItTakesTheLayoutOfTheTopAndKeepsItsAlignment)
{
    m_Caption.SetAlignment(alLeft);
    m_Caption.SetTextLayout(true);
    Take();
    m_Caption.SetTextLayout(false);
    EXPECT_EQ(Take(), "change");
    EXPECT_FALSE(m_Caption.IsTextConverted());
    EXPECT_EQ(m_Caption.GetAlignment(), alLeft);
    m_Caption.SetTextConversion(true);
    EXPECT_EQ(m_Caption.ConvTextAlign(IPainter::AlignTop), 0x18) << "as at the top";
}

TEST_F(CaptionSteps, TheLayoutGoesByTheEdgeItIsDockedTo)
{
    m_Caption.SetTextConversion(true);
    struct SCase
    {
        Alignment edge;
        int top;  // what becomes of AlignTop
    };
    for (SCase const& each : {SCase{alLeft, 0x2}, SCase{alRight, 0x1}, SCase{alTop, 0x18}, SCase{alBottom, 0x8},
                              SCase{alClient, 0x8}, SCase{alNone, 0x8}})
    {
        m_Caption.SetAlignment(each.edge);
        EXPECT_EQ(m_Caption.GetAlignment(), each.edge);
        EXPECT_EQ(m_Caption.ConvTextAlign(IPainter::AlignTop), each.top) << each.edge;
        CCaption made(nullptr, {0, 0}, each.edge);
        made.SetTextConversion(true);
        EXPECT_EQ(made.ConvTextAlign(IPainter::AlignTop), each.top) << each.edge;
    }
}

TEST_F(CaptionSteps, TheGroundIsDrawnBeforeTheTextFindsItsPlace)
{
    m_Caption.SetTextAlign(0x21);
    m_Caption.SetCaption("abc");
    Take();
    m_Host.Paint();
    EXPECT_EQ(Take(), "ground; rect; extent");
}

TEST_F(CaptionSteps, ACentredOrEmptyTextDoesNotAskForTheRoomAroundIt)
{
    m_Caption.SetCaption("abc");
    Take();
    m_Host.Paint();
    EXPECT_EQ(Take(), "ground; rect");
    m_Caption.SetTextAlign(0x22);
    m_Caption.SetCaption("");
    Take();
    m_Host.Paint();
    EXPECT_EQ(Take(), "ground; rect");
}

TEST_F(CaptionSteps, MarkupGoesThroughTheCaptionWithItsOwnDelimiters)
{
    m_Caption.SetTextAlign(0x9);
    m_Caption.SetCaption("<b>a</b>");
    EXPECT_EQ(Draw().Count("SetFont * bold"), 0);
    m_Caption.UseHTML(true);
    EXPECT_THAT(Draw(),
                Draws("DrawStringEx \"<b>a</b>\" 1 0 198 40 0x109").Then("SetFont * bold").Then("DrawRun 1 0 \"a\""));
}

// Place and room ----------------------------------------------------------------------------------------------------------

TEST_F(CaptionSteps, TextAndImageStandInTheInternalRectangle)
{
    m_Caption.m_Rect = Rect{10, 5, 110, 35};
    m_Caption.SetCaption("abc");
    EXPECT_THAT(Draw(), Draws("FillRect 0 0 199 40").Then("DrawStringEx \"abc\" 10 5 110 35 0x124"));
    m_Caption.SetImageIndex(0);
    Draw();
    EXPECT_EQ(m_Images.Take(), "draw 0 at 38 13");  // before 30 + (80 - 24) / 2, and 4 of a gap
}

TEST_F(CaptionSteps, TheRoomAroundTheTextIsAskedForVirtually)
{
    m_Caption.SetTextAlign(0x21);
    m_Caption.SetCaption("abc");
    m_Caption.m_Extra = Size{6, 10};
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 3 0 196 40 0x121"));
    m_Caption.m_DrawingExtra = Size{8, 10};
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 4 0 195 40 0x121"));
    m_Caption.m_DrawingExtra = Size{5, 10};
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 3 0 196 40 0x121"));
}

TEST_F(CaptionSteps, AtTheLeftTheRoomGoesByTheHeightButStillStandsLeftAndRight)
{
    DockLeft();
    m_Caption.SetTextAlign(0x21);
    m_Caption.SetCaption("abc");
    m_Caption.m_Extra = Size{6, 10};
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 5 0 45 99 0x121"));
    m_Caption.SetTextLayout(true);
    EXPECT_THAT(Draw(), Draws("SetFont * rotation 2700").Then("DrawStringEx \"abc\" 5 0 45 99 0x10C"));
}

TEST_F(CaptionSteps, TheMaximumWidthIsTakenFromTheRectangleWithoutTheRoom)
{
    m_Caption.SetTextAlign(0x21);
    m_Caption.SetCaption("abc");
    m_Caption.m_Rect = Rect{10, 5, 110, 35};
    m_Caption.SetMaxTextWidth(50);
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 11 5 61 35 0x121"));
    m_Caption.SetMaxTextWidth(97);  // of 98
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 11 5 108 35 0x121"));
    m_Caption.SetMaxTextWidth(99);
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 11 5 109 35 0x121"));
}

TEST_F(CaptionSteps, TheMaximumWidthIsThatOfTheTextBesideTheImage)
{
    m_Caption.SetTextAlign(0x21);
    m_Caption.SetCaption("abc");
    m_Caption.m_ImageSize = Size{60, 1};
    m_Caption.SetMaxTextWidth(50);
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 1 0 111 40 0x121"));
    m_Caption.SetMaxTextWidth(140);
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 1 0 198 40 0x121"));
}

TEST_F(CaptionSteps, AtTheLeftADisabledTextKeepsItsFlagOnlyWhileItIsNotTurned)
{
    DockLeft();
    m_Caption.SetCaption("abc");
    m_Caption.SetImageIndex(0);
    m_Caption.SetEnabled(false);
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 0 20 50 99 0x2124"));
    EXPECT_TRUE(m_Images.Take().starts_with("disabled 0 at "));
    m_Caption.SetTextLayout(true);
    m_Images.Take();
    EXPECT_THAT(Draw(), Draws("DrawStringEx \"abc\" 0 20 50 99 0x124"));
    EXPECT_TRUE(m_Images.Take().starts_with("disabled 0 at "));
}

// Measuring ---------------------------------------------------------------------------------------------------------------

TEST_F(CaptionSteps, TheAdditionalExtentIsAskedForVirtually)
{
    m_Caption.m_Extra = Size{6, 10};
    m_Caption.SetAutoSize(true);
    EXPECT_EQ(m_Caption.GetSize(), (Size{6, 10}));
    m_Caption.SetCaption("abc");
    EXPECT_EQ(m_Caption.GetSize(), (Size{30, 18}));
}

TEST_F(CaptionSteps, TheImageIsAskedForVirtuallyAndTheHigherOfBothDecides)
{
    m_Caption.SetAutoSize(true);
    m_Caption.SetCaption("abc");
    m_Caption.m_ImageSize = Size{50, 7};
    m_Caption.RecalculateSize();
    EXPECT_EQ(m_Caption.GetSize(), (Size{76, 10}));
    m_Caption.m_ImageSize = Size{50, 9};
    m_Caption.RecalculateSize();
    EXPECT_EQ(m_Caption.GetSize(), (Size{76, 11}));
}

TEST_F(CaptionSteps, TheSizeIsAskedForUnscaled)
{
    m_Caption.SetAutoSize(true);
    Take();
    m_Caption.SetCaption("abc");
    EXPECT_EQ(Take(), "recalculate abc 1; size 26 10; change");
}

TEST_F(CaptionSteps, ATextThatExactlyHasTheMaximumWidthIsNotWrapped)
{
    m_Caption.SetAutoSize(true);
    m_Caption.SetCaption("aaa bbb");
    m_Caption.SetMaxTextWidth(56);
    EXPECT_EQ(m_Caption.GetSize(), (Size{58, 10}));
    m_Caption.SetMaxTextWidth(55);
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 18}));
    m_Caption.SetMaxTextWidth(0);
    EXPECT_EQ(m_Caption.GetSize(), (Size{58, 10}));
}

TEST_F(CaptionSteps, OfTheElementsWidthAndTheMaximumTheNarrowerWrapsTheText)
{
    CAnswering free(m_Host.Root(), {58, 20}, alNone);
    free.SetPos({0, 0, 58, 20}, true);
    free.SetCaption("aaa bbb");
    free.SetAutoSize(true);
    free.AdjustHeight(true);
    EXPECT_EQ(free.GetSize(), (Size{58, 10})) << "56 beside the two of the extent";
    free.SetMaxTextWidth(55);
    EXPECT_EQ(free.GetSize(), (Size{26, 18}));
    free.SetMaxTextWidth(1000);
    EXPECT_EQ(free.GetSize(), (Size{58, 10}));
    free.SetPos({0, 0, 57, 20}, false);
    EXPECT_EQ(free.GetSize(), (Size{26, 18}));
    free.AdjustHeight(false);
    EXPECT_EQ(free.GetSize(), (Size{58, 10}));
}

TEST_F(CaptionSteps, WithTheHeightAdjustedTheImageAndTheExtentTakeOfTheWidth)
{
    CAnswering free(&m_Parent, {100, 20}, alNone);
    free.m_Extra = Size{6, 10};
    free.SetPos({3, 0, 81, 20}, true);  // 78: 20 of the image, 6 of the extent, 52 are left
    free.SetCaption("aaa bb");
    free.SetImageIndex(0);
    free.SetAutoSize(true);
    free.AdjustHeight(true);
    EXPECT_EQ(free.GetSize(), (Size{74, 26}));
    free.SetPos({3, 0, 76, 20}, false);  // 73: 47 are left
    EXPECT_EQ(free.GetSize(), (Size{50, 26}));
    free.SetImageIndex(-1);  // 67 are left; an image index by itself leaves the size
    EXPECT_EQ(free.GetSize(), (Size{50, 26}));
    free.RecalculateSize();
    EXPECT_EQ(free.GetSize(), (Size{54, 18}));
}

TEST_F(CaptionSteps, AtTheLeftTheHeightOfTheExtentTakesOfTheWidth)
{
    DockLeft();
    m_Caption.m_Extra = Size{2, 18};
    m_Caption.SetCaption("aaa bb");  // 48 wide; 32 are left
    m_Caption.AdjustHeight(true);
    m_Caption.SetAutoSize(true);
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 34}));
}

TEST_F(CaptionSteps, ATurnedTextHasItsWidthAlongTheEdge)
{
    DockLeft();
    m_Caption.SetTextLayout(true);
    m_Caption.m_Extra = Size{2, 18};
    m_Caption.SetImageIndex(1);  // 16 x 6 and 4 of a gap
    m_Caption.SetCaption("abc");
    m_Caption.SetAutoSize(true);
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 46}));
}

TEST_F(CaptionSteps, AtTheTopATextThatTurnsWithTheEdgeIsAsWideAsItIs)
{
    m_Caption.SetTextLayout(true);
    m_Caption.SetCaption("abc");
    m_Caption.SetAutoSize(true);
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 10}));
}

TEST_F(CaptionSteps, InAPaintNoOtherBracketIsOpenedForMeasuring)
{
    m_Caption.SetAutoSize(true);
    auto const measure = Listen(m_Parent.m_SigDraw, [&](CVisualElement*, IPainter*) { m_Caption.SetCaption("abc"); });
    m_Parent.Update(utElement);
    PaintLog const log = m_Host.Paint();
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 10}));
    EXPECT_EQ(log.Count("BeginPaint 3"), 0);
}

TEST_F(CaptionSteps, WithTheHeightAdjustedEveryWordStandsAloneWhereThereIsNoRoomAtAll)
{
    CAnswering free(&m_Parent, {100, 20}, alNone);
    free.SetPos({0, 0, 10, 20}, true);
    free.m_ImageSize = Size{30, 5};
    free.SetCaption("aa bbb c");
    free.SetAutoSize(true);
    free.AdjustHeight(true);
    EXPECT_EQ(free.GetSize(), (Size{56, 26}));
}

TEST_F(CaptionSteps, MarkupIsMeasuredAsMarkup)
{
    m_Caption.SetAutoSize(true);
    m_Caption.UseHTML(true);
    m_Caption.SetCaption("a<br><a href=\"there\">bc</a>");
    EXPECT_EQ(m_Caption.GetSize(), (Size{18, 18}));
}

TEST_F(CaptionSteps, WithoutAWindowTheSizeStays)
{
    m_Caption.SetAutoSize(true);
    m_Caption.SetCaption("abc");
    m_Host.DestroyWindow();
    m_Caption.SetCaption("abcdef");
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 10}));
    EXPECT_EQ(m_Caption.GetCaption(), "abcdef");
}

TEST_F(CaptionSteps, TheBracketForMeasuringIsClosedAgainAndIsNoPaint)
{
    IPainter& painter = *m_Host.Window().GetPainter();
    m_Caption.SetAutoSize(true);
    m_Host.Resize(150, 100);
    ASSERT_TRUE(painter.IsFullPaint());
    m_Caption.SetCaption("abc");
    EXPECT_EQ(m_Caption.GetSize(), (Size{26, 10}));
    EXPECT_FALSE(painter.m_Painting);
    EXPECT_TRUE(painter.IsFullPaint());

    painter.BeginPaint(IPainter::ssPaint);
    m_Caption.SetCaption("abcd");
    EXPECT_EQ(m_Caption.GetSize(), (Size{34, 10}));
    EXPECT_TRUE(painter.m_Painting);
    painter.EndPaint();
    EXPECT_FALSE(painter.m_Painting);
}

// Tooltip -----------------------------------------------------------------------------------------------------------------

TEST_F(CaptionSteps, ATooltipThatEqualsTheTextIsTakenForItsOwn)
{
    m_Caption.SetTooltipFromCaption(true);
    m_Caption.SetCaption("short");
    m_Caption.SetTooltip("short");
    Draw();
    EXPECT_EQ(m_Caption.GetTooltip(), "");
}

TEST_F(CaptionSteps, TheTooltipOfAShortenedTextStaysWhenTheNextTextIsShortenedToo)
{
    m_Host.Resize(50, 100);
    m_Caption.SetTooltipFromCaption(true);
    m_Caption.SetCaption("abcdefghij");
    m_Host.Paint();
    EXPECT_EQ(m_Caption.GetTooltip(), "abcdefghij");
    m_Caption.SetCaption("0123456789");
    m_Host.Paint();
    EXPECT_EQ(m_Caption.GetTooltip(), "abcdefghij") << "it might be the application's";
    m_Caption.SetTooltip("");
    Draw();
    EXPECT_EQ(m_Caption.GetTooltip(), "0123456789");
    m_Caption.SetCaption("");
    m_Host.Paint();
    EXPECT_EQ(m_Caption.GetTooltip(), "0123456789");
}

TEST_F(CaptionSteps, AWrappedTextIsShortenedWhereTheHeightEnds)
{
    m_Host.Resize(50, 100);
    m_Caption.SetTooltipFromCaption(true);
    m_Caption.SetCaption("aaaa bbbb cccc dddd eeee");  // five lines in 40 pixels
    m_Host.Paint();
    EXPECT_EQ(m_Caption.GetTooltip(), "");
    m_Caption.SetCaption("aaaa bbbb cccc dddd eeee ffff");
    m_Host.Paint();
    EXPECT_EQ(m_Caption.GetTooltip(), "aaaa bbbb cccc dddd eeee ffff");
}

TEST_F(CaptionSteps, ATurnedTextIsShortenedAlongItsEdge)
{
    DockLeft();
    m_Caption.SetTooltipFromCaption(true);
    m_Caption.SetTextLayout(true);
    m_Caption.SetCaption("abcdefghijkl");  // 96 pixels in 99
    m_Host.Paint();
    EXPECT_EQ(m_Caption.GetTooltip(), "");
    m_Host.Resize(200, 90);
    m_Host.Paint();
    EXPECT_EQ(m_Caption.GetTooltip(), "abcdefghijkl");
}

TEST_F(CaptionSteps, TheTooltipOfAShortenedMarkupHasTheMarkup)
{
    m_Host.Resize(50, 100);
    m_Caption.SetTooltipFromCaption(true);
    m_Caption.UseHTML(true);
    m_Caption.SetCaption("<b>abcdefghij</b>");
    m_Host.Paint();
    EXPECT_EQ(m_Caption.GetTooltip(), "<b>abcdefghij</b>");
}

TEST_F(CaptionSteps, WhatWasNotShortenedByThisCaptionIsNoMatterOfIts)
{
    auto& other = *new CCaption(&m_Parent, {0, 20}, alTop);
    other.SetCaption("abcdefghijklmnopqrstuvwxyzabcdef");  // 256 pixels in 199
    auto& below = *new CCaption(&m_Parent, {0, 20}, alTop);
    below.SetTooltipFromCaption(true);
    below.SetCaption("fits");
    m_Host.Paint();
    EXPECT_EQ(other.GetTooltip(), "");
    EXPECT_EQ(below.GetTooltip(), "");
}

// What may die --------------------------------------------------------------------------------------------------------------

TEST_F(CaptionSteps, ItMayBeDeletedWhileItsHeightFollowsItsWidth)
{
    m_Caption.m_Notes = nullptr;
    m_Caption.SetAutoSize(true);
    m_Caption.AdjustHeight(true);
    auto const end = Listen(m_Caption.m_SigSize, [&](CVisualElement*) { delete &m_Caption; });
    m_Host.Resize(150, 100);
    m_Host.Paint();
    EXPECT_EQ(m_Parent.GetChildren()->GetCount(), 0);
}

TEST_F(CaptionSteps, ItsParentMayBeDeletedWhileItsHeightFollowsItsWidth)
{
    m_Caption.m_Notes = nullptr;
    m_Caption.SetAutoSize(true);
    m_Caption.AdjustHeight(true);
    auto const end = Listen(m_Caption.m_SigSize, [&](CVisualElement*) { delete &m_Parent; });
    m_Host.Resize(150, 100);
    m_Host.Paint();
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 0);
}

TEST_F(CaptionSteps, ItMayBeDeletedAsItIsDrawn)
{
    m_Caption.m_Notes = nullptr;
    auto const end = Listen(m_Caption.m_SigDraw, [&](CVisualElement*, IPainter*) { delete &m_Caption; });
    m_Caption.SetCaption("abc");
    EXPECT_EQ(m_Host.Paint().Count("DrawStringEx*"), 0);
    EXPECT_EQ(m_Parent.GetChildren()->GetCount(), 0);
}
