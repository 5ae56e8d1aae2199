// Round buttons: pictures, colours and radius of the class, each button's own copies, and how it is painted of them.

#include "vexel/controls/round_bg_button.h"

#include "tests/support/edge_bench.h"
#include "tests/support/test_images.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/pixel_buffer.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

using Size = size<int>;
using Rect = rectangle<int>;
using Index = CRoundBgButton::InternalBgImageIndex;

namespace
{

// They stay for the whole process.
CWarmUp const g_SharedPictures(&CRoundBgButton::InitStaticBgPictures);

constexpr Index g_All[] = {CRoundBgButton::BgDisabled, CRoundBgButton::BgHighlighted, CRoundBgButton::BgNormal,
                           CRoundBgButton::BgPressed};

// A button on a window of 600 x 100, without automatic size, of which each test says how large it is. What belongs to the
// class is put back after each test.
class RoundBgButton : public testing::Test
{
protected:
    RoundBgButton()
    {
        for (Index const index : g_All)
            m_Pictures[index] = GetStaticInternalPicture(index);
        NameElement(m_Button, "button");
        m_Button.SetCaption("abc");
        m_Button.SetCanHaveFocus(false);
        Place(100, 30);
    }
    ~RoundBgButton() override
    {
        for (Index const index : g_All)
        {
            CRoundBgButton::UpdateBgPicture(index, m_Pictures[index]);
            CRoundBgButton::SetButtonTextColor(index, color_table[0]);
            CRoundBgButton::SetButtonTransparency(index, index == CRoundBgButton::BgDisabled ? 100 : 60);
        }
        CRoundBgButton::SetButtonTextColor(CRoundBgButton::BgDisabled, _color(0xFFB9A06E));
        CRoundBgButton::SetInnerBorderColors(_color(0xFFFAFAFA), _color(0xFFB9A06E));
        CRoundBgButton::SetOuterBorderColors(_color(0xFF473030), _color(0xFF473000));
        CRoundBgButton::SetBorderRadius(4.0);
    }
    void Place(int width, int height)
    {
        m_Button.SetPos({0, 0, width, height}, true);
        m_Host.Paint();
    }
    PaintLog Draw()
    {
        m_Button.Update(utElement);
        return m_Host.Paint().Of("button");
    }
    Size SizeOf(Index index) const
    {
        vexel_ptr<IRasterPicture> const picture = m_Button.GetCurrentPicture(index);
        return picture ? picture->GetSize() : Size{-1, -1};
    }
    Size SizeAt(int width, int height)
    {
        Place(width, height);
        for (Index const index : g_All)
            EXPECT_EQ(SizeOf(index), SizeOf(CRoundBgButton::BgNormal));
        return SizeOf(CRoundBgButton::BgNormal);
    }
    static _color PixelOf(vexel_ptr<IRasterPicture> const& picture, int x, int y)
    {
        return CPixelBuffer::ToColor(picture->GetPixels().Row(y)[x]);
    }
    static vexel_ptr<IRasterPicture> Plain(int width, int height, _color const& color)
    {
        vexel_ptr<IRasterPicture> picture = CTestHost::System().CreateRasterPicture(Size{width, height});
        for (int y = 0; y < height; ++y)
        {
            for (int x = 0; x < width; ++x)
                picture->GetPixels().Row(y)[x] = CPixelBuffer::ToPixel(color);
        }
        return picture;
    }

    std::map<Index, vexel_ptr<IRasterPicture>> m_Pictures;
    CTestImages m_Images{{{16, 12}}};
    CTestHost m_Host{600, 100};
    CRoundBgButton& m_Button = *new CRoundBgButton(m_Host.Root(), {100, 30}, alNone);
};

}  // namespace

// Of the class --------------------------------------------------------------------------------------------------------------

TEST_F(RoundBgButton, ItsClassStartsWithARadiusOfFourAndItsOwnColours)
{
    EXPECT_EQ(CRoundBgButton::m_BorderRadius, 4.0);
    EXPECT_EQ(CRoundBgButton::GetBorderRadius(), 4.0);
    EXPECT_EQ(CRoundBgButton::m_InnerBorderCol, _color(0xFFFAFAFA));
    EXPECT_EQ(CRoundBgButton::m_InnerBorderColDisabled, _color(0xFFB9A06E));
    EXPECT_EQ(CRoundBgButton::m_OuterBorderCol, _color(0xFF473030));
    EXPECT_EQ(CRoundBgButton::m_OuterBorderColDisabled, _color(0xFF473000));
    EXPECT_EQ(CRoundBgButton::GetButtonTextColor(CRoundBgButton::BgDisabled), _color(0xFFB9A06E));
    EXPECT_TRUE(CRoundBgButton::GetButtonTextColor(CRoundBgButton::BgHighlighted).m_None);
    EXPECT_TRUE(CRoundBgButton::GetButtonTextColor(CRoundBgButton::BgNormal).m_None);
    EXPECT_TRUE(CRoundBgButton::GetButtonTextColor(CRoundBgButton::BgPressed).m_None);
    EXPECT_EQ(CRoundBgButton::GetButtonTransparency(CRoundBgButton::BgDisabled), 100);
    EXPECT_EQ(CRoundBgButton::GetButtonTransparency(CRoundBgButton::BgHighlighted), 60);
    EXPECT_EQ(CRoundBgButton::GetButtonTransparency(CRoundBgButton::BgNormal), 60);
    EXPECT_EQ(CRoundBgButton::GetButtonTransparency(CRoundBgButton::BgPressed), 60);
}

TEST_F(RoundBgButton, TheFourPicturesAreBuiltIn)
{
    std::size_t const colours[] = {2, 28, 44, 47};
    for (Index const index : g_All)
    {
        SCOPED_TRACE(static_cast<int>(index));
        ASSERT_NE(m_Pictures[index], nullptr);
        EXPECT_EQ(m_Pictures[index]->GetSize(), (Size{500, 47}));
        std::set<std::uint32_t> seen;
        for (int y = 0; y < 47; ++y)
        {
            for (int x = 0; x < 500; ++x)
                seen.insert(m_Pictures[index]->GetPixels().Row(y)[x]);
        }
        EXPECT_EQ(seen.size(), colours[index]);
    }
    static_assert(CRoundBgButton::BgDisabled == 0 && CRoundBgButton::BgHighlighted == 1);
    static_assert(CRoundBgButton::BgNormal == 2 && CRoundBgButton::BgPressed == 3);
}

TEST_F(RoundBgButton, HighlightedAndPressedTakeTheTextColourOfNormalWhereTheyHaveNone)
{
    CRoundBgButton::SetButtonTextColor(CRoundBgButton::BgNormal, color_table[6]);
    EXPECT_EQ(CRoundBgButton::GetButtonTextColor(CRoundBgButton::BgHighlighted), color_table[6]);
    EXPECT_EQ(CRoundBgButton::GetButtonTextColor(CRoundBgButton::BgPressed), color_table[6]);
    CRoundBgButton::SetButtonTextColor(CRoundBgButton::BgPressed, color_table[4]);
    EXPECT_EQ(CRoundBgButton::GetButtonTextColor(CRoundBgButton::BgPressed), color_table[4]);
    EXPECT_EQ(CRoundBgButton::GetButtonTextColor(CRoundBgButton::BgNormal), color_table[6]);
    CRoundBgButton::SetButtonTextColor(CRoundBgButton::BgDisabled, color_table[0]);
    EXPECT_TRUE(CRoundBgButton::GetButtonTextColor(CRoundBgButton::BgDisabled).m_None);
}

TEST_F(RoundBgButton, ColoursAreSetInPairs)
{
    CRoundBgButton::SetInnerBorderColors(color_table[3], color_table[4]);
    CRoundBgButton::SetOuterBorderColors(color_table[5], color_table[6]);
    _color normal, disabled;
    CRoundBgButton::GetInnerBorderColors(normal, disabled);
    EXPECT_EQ(normal, color_table[3]);
    EXPECT_EQ(disabled, color_table[4]);
    EXPECT_EQ(CRoundBgButton::m_InnerBorderCol, color_table[3]);
    EXPECT_EQ(CRoundBgButton::m_InnerBorderColDisabled, color_table[4]);
    CRoundBgButton::GetOuterBorderColors(normal, disabled);
    EXPECT_EQ(normal, color_table[5]);
    EXPECT_EQ(disabled, color_table[6]);
    CRoundBgButton::SetButtonTransparency(CRoundBgButton::BgPressed, 200);
    EXPECT_EQ(CRoundBgButton::GetButtonTransparency(CRoundBgButton::BgPressed), 200);
    EXPECT_EQ(CRoundBgButton::GetButtonTransparency(CRoundBgButton::BgNormal), 60);
}

// Its own pictures ----------------------------------------------------------------------------------------------------------

TEST_F(RoundBgButton, EachButtonHasCopiesOfAllPictures)
{
    CRoundBgButton fresh(nullptr, {100, 30}, alNone);
    for (Index const index : g_All)
    {
        vexel_ptr<IRasterPicture> const copy = fresh.GetCurrentPicture(index);
        ASSERT_NE(copy, nullptr);
        EXPECT_NE(copy, m_Pictures[index]);
    }
    fresh.InitCurrentBgPictures();
    for (Index const index : g_All)
    {
        EXPECT_EQ(fresh.GetCurrentPicture(index)->GetSize(), (Size{500, 47}));
        EXPECT_EQ_PIXELS(m_Pictures[index]->GetPixels(), fresh.GetCurrentPicture(index)->GetPixels());
    }
}

TEST_F(RoundBgButton, ACopyCanBeReplaced)
{
    vexel_ptr<IRasterPicture> const picture = Plain(10, 10, color_table[6]);
    m_Button.SetCurrentPicture(CRoundBgButton::BgPressed, picture);
    EXPECT_EQ(m_Button.GetCurrentPicture(CRoundBgButton::BgPressed), picture);
    EXPECT_EQ(m_Pictures[CRoundBgButton::BgPressed], GetStaticInternalPicture(CRoundBgButton::BgPressed));
}

TEST_F(RoundBgButton, APictureThatHasToStretchGoesBeyondTheButtonAtTopAndBottom)
{
    EXPECT_EQ(SizeAt(100, 30), (Size{100, 34})) << "less than half as wide as the picture";
    EXPECT_EQ(SizeAt(249, 40), (Size{249, 44}));
    EXPECT_EQ(SizeAt(501, 40), (Size{501, 44})) << "wider";
    EXPECT_EQ(SizeAt(400, 48), (Size{400, 52})) << "higher";
    EXPECT_EQ(SizeAt(400, 23), (Size{400, 27})) << "less than half as high";
}

TEST_F(RoundBgButton, BetweenHalfThePictureAndAllOfItItIsScaledToTheButton)
{
    EXPECT_EQ(SizeAt(250, 40), (Size{250, 40}));
    EXPECT_EQ(SizeAt(500, 40), (Size{500, 40}));
    EXPECT_EQ(SizeAt(400, 47), (Size{400, 47}));
    EXPECT_EQ(SizeAt(400, 24), (Size{400, 24}));
}

TEST_F(RoundBgButton, OfThePicturesSizeItKeepsThemUnscaled)
{
    EXPECT_EQ(SizeAt(500, 47), (Size{500, 47}));
    for (Index const index : g_All)
        EXPECT_EQ_PIXELS(m_Pictures[index]->GetPixels(), m_Button.GetCurrentPicture(index)->GetPixels());
    EXPECT_THAT(Draw(), Draws("DrawRasterPictureEx 500x47 0 0 500 47 from 0 0 500 47 xor"));
}

TEST_F(RoundBgButton, TwoPixelsAndLessLeaveThePictures)
{
    Size const before = SizeOf(CRoundBgButton::BgNormal);
    EXPECT_EQ(SizeAt(2, 30), before);
    EXPECT_EQ(SizeAt(100, 2), before);
    EXPECT_EQ(SizeAt(3, 3), (Size{3, 7}));
}

TEST_F(RoundBgButton, NewPicturesOfTheClassAreTakenWithTheNextSize)
{
    CRoundBgButton::UpdateBgPicture(CRoundBgButton::BgPressed, Plain(500, 47, color_table[6]));
    vexel_ptr<IRasterPicture> const before = m_Button.GetCurrentPicture(CRoundBgButton::BgPressed);
    Draw();
    EXPECT_EQ(m_Button.GetCurrentPicture(CRoundBgButton::BgPressed), before);
    Place(120, 30);
    vexel_ptr<IRasterPicture> const now = m_Button.GetCurrentPicture(CRoundBgButton::BgPressed);
    EXPECT_EQ(now->GetSize(), (Size{120, 34}));
    EXPECT_EQ(PixelOf(now, 60, 15), color_table[6]);
    CRoundBgButton fresh(nullptr, {100, 30}, alNone);
    EXPECT_EQ(PixelOf(fresh.GetCurrentPicture(CRoundBgButton::BgPressed), 1, 1), color_table[6]);
}

TEST_F(RoundBgButton, TheSizeOfTheNormalPictureDecidesAndAnXpmMayBeGiven)
{
    static char const* lines[] = {"8 4 1 1", "b c #0000FF", "bbbbbbbb", "bbbbbbbb", "bbbbbbbb", "bbbbbbbb"};
    CRoundBgButton::UpdateBgPicture(CRoundBgButton::BgNormal, lines);
    EXPECT_EQ(GetStaticInternalPicture(CRoundBgButton::BgNormal)->GetSize(), (Size{8, 4}));
    EXPECT_EQ(SizeAt(6, 3), (Size{6, 3}));
    EXPECT_EQ(SizeAt(300, 40), (Size{300, 44}));
    EXPECT_EQ(PixelOf(m_Button.GetCurrentPicture(CRoundBgButton::BgNormal), 9, 9), color_table[4]);
}

TEST_F(RoundBgButton, ThePartThatShowsFollowsTheStretching)
{
    Place(300, 40);
    EXPECT_THAT(Draw(), Draws("DrawRasterPictureEx 300x40 0 0 300 40 from 0 0 300 40 xor"));
    Place(100, 30);
    EXPECT_THAT(Draw(), Draws("DrawRasterPictureEx 100x34 0 0 100 30 from 0 2 100 32 xor"));
    Place(300, 40);
    EXPECT_THAT(Draw(), Draws("DrawRasterPictureEx 300x40 0 0 300 40 from 0 0 300 40 xor"));
}

// Size ----------------------------------------------------------------------------------------------------------------------

TEST_F(RoundBgButton, AutomaticSizeHasRoomForTheFrame)
{
    EXPECT_EQ(m_Button.GetAutoSizeAdditionalExtent(), (Size{22, 6}));
    m_Host.SetScale(1.2);
    EXPECT_EQ(m_Button.GetAutoSizeAdditionalExtent(), (Size{26, 7}));  // 26.4, 7.2
}

TEST_F(RoundBgButton, TheBestSizeIsTheBoldTextWithPlentyOfRoom)
{
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->BeginPaint(IPainter::ssMeasure);
    EXPECT_EQ(m_Button.GetOptimalSize(painter, "12345"), (Size{115, 14}));  // 45 + 44 + 4 + 22
    EXPECT_EQ(m_Button.GetOptimalSize(painter, ""), (Size{97, 14}));
    m_Host.Control().SetImageList(&m_Images);
    m_Button.SetImageIndex(0);
    m_Button.SetImageSpace(7);
    EXPECT_EQ(m_Button.GetOptimalSize(painter, "12345"), (Size{134, 18}));  // 16 and 7 more
    painter->EndPaint();
    m_Host.Control().SetImageList(nullptr);
}

TEST_F(RoundBgButton, HalfOfAnOddExtentIsRoundedDown)
{
    class COdd : public CRoundBgButton
    {
    public:
        using CRoundBgButton::CRoundBgButton;
        Size GetAutoSizeAdditionalExtent() const override { return {5, 3}; }
    };
    COdd& button = *new COdd(m_Host.Root(), {10, 10}, alNone);
    IPainter* const painter = m_Host.Window().GetPainter();
    painter->BeginPaint(IPainter::ssMeasure);
    EXPECT_EQ(button.GetOptimalSize(painter, "ab"), (Size{36, 11}));  // 18 + 10 + 4 + 4
    painter->EndPaint();
}

// Painting ------------------------------------------------------------------------------------------------------------------

TEST_F(RoundBgButton, ItPaintsPictureMaskPictureAndBorderThenTheText)
{
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("DrawRasterPictureEx 100x34 0 0 100 30 from 0 2 100 32 xor")
                         .Then("DrawRasterPicture 100x30 0 0 100 30 and")
                         .Then("DrawRasterPictureEx 100x34 0 0 100 30 from 0 2 100 32 xor")
                         .Then("SetPen #FAFAFA")
                         .Then("RoundRect 1 1 98 28 4 4")
                         .Then("SetPen #303047")
                         .Then("RoundRect 0 0 99 29 5 5")
                         .Then("DrawStringEx \"abc\"*"));
    EXPECT_EQ(log.Count("DrawRasterPictureEx*"), 2);
    EXPECT_EQ(log.Count("RoundRect*"), 2);
    EXPECT_EQ(log.Count("DrawControlElement*"), 0);
    EXPECT_EQ(log.Count("AlphaBlend*"), 0);
}

TEST_F(RoundBgButton, TheBorderIsHollow)
{
    EXPECT_THAT(Draw(), Draws("SetBrush none").Then("RoundRect 1 1 98 28 4 4"));
}

TEST_F(RoundBgButton, TheMaskIsWhiteWithABlackRoundedInside)
{
    EXPECT_THAT(Draw(), Draws("picture SetBrush black").Then("picture RoundRect 0 1 98 28 4 4"));
    CRoundBgButton::SetBorderRadius(7.5);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("picture RoundRect 0 1 98 28 7.5 7.5"));
    EXPECT_THAT(log, Draws("RoundRect 1 1 98 28 7.5 7.5").Then("RoundRect 0 0 99 29 8.5 8.5"));
}

TEST_F(RoundBgButton, WhatIsOutsideTheRoundedInsideStaysAsTheParentPaintedIt)
{
    m_Host.Root()->SetBkColor(color_table[3]);
    for (Index const index : g_All)
        m_Button.SetCurrentPicture(index, Plain(100, 34, color_table[6]));
    m_Button.SetCaption("");
    m_Host.FullPaint();
    EXPECT_EQ(m_Host.PixelAt(50, 15), color_table[6]) << "inside it is the picture";
    EXPECT_EQ(m_Host.PixelAt(0, 0), m_Host.PixelAt(300, 90)) << "the corner is the ground";
    EXPECT_EQ(m_Host.PixelAt(50, 0), _color(0xFF473030));
    EXPECT_EQ(m_Host.PixelAt(50, 1), _color(0xFFFAFAFA));
}

TEST_F(RoundBgButton, ItShowsItsPictureOneToOne)
{
    m_Button.SetCaption("");
    for (Size const extent : {Size{500, 47}, Size{100, 30}})
    {
        Place(extent.width, extent.height);
        vexel_ptr<IRasterPicture> const picture = Plain(extent.width, 60, color_table[6]);
        for (int y = 0; y < 60; ++y)
        {
            for (int x = 0; x < extent.width; ++x)
                picture->GetPixels().Row(y)[x] = 0xFF000000u + static_cast<std::uint32_t>(y * 1000 + x);
        }
        m_Button.SetCurrentPicture(CRoundBgButton::BgNormal, picture);
        m_Host.FullPaint();
        int const top = extent.height == 30 ? 2 : 0;
        for (int const x : {5, extent.width / 2 - 1, extent.width / 2 + 2, extent.width - 7})
        {
            for (int const y : {5, 12, extent.height / 2 + 2, extent.height - 7})
                EXPECT_EQ(m_Host.PixelAt(x, y), PixelOf(picture, x, y + top)) << x << " " << y;
        }
    }
}

TEST_F(RoundBgButton, ThePictureFollowsTheState)
{
    int width = 200;
    for (Index const index : g_All)
        m_Button.SetCurrentPicture(index, Plain(width++, 34, color_table[6]));
    EXPECT_THAT(Draw(), Draws("DrawRasterPictureEx 202x34*"));
    m_Host.Mouse().Move(m_Button, 50, 10);
    EXPECT_THAT(Draw(), Draws("DrawRasterPictureEx 201x34*"));
    m_Host.Mouse().Press();
    EXPECT_THAT(Draw(), Draws("DrawRasterPictureEx 203x34*"));
    m_Button.SetEnabled(false);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("DrawRasterPictureEx 200x34*").Then("DrawRasterPictureEx 200x34*"));
    EXPECT_EQ(log.Count("DrawRasterPictureEx 200x34*"), 2);
}

TEST_F(RoundBgButton, ADisabledOneIsPaintedAsSuchWhicheverStateIsAskedFor)
{
    m_Button.SetEnabled(false);
    int width = 200;
    for (Index const index : g_All)
        m_Button.SetCurrentPicture(index, Plain(width++, 34, color_table[6]));
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetPen #6EA0B9")
                         .Then("RoundRect 1 1 98 28 4 4")
                         .Then("SetPen #003047")
                         .Then("RoundRect 0 0 99 29 5 5")
                         .Then("SetTextColor #6EA0B9")
                         .Then("DrawStringEx \"abc\"*"));
    class CPainting : public CVisualElement
    {
    public:
        CPainting(CVisualElement* parent, CRoundBgButton& button)
            : CVisualElement(parent, {200, 50}, alBottom), m_Button(button)
        {}
        void DrawContent(IPainter* painter) override
        {
            m_Button.DrawBkgContent(painter, CRoundBgButton::BgPressed);
            m_Button.DrawBkgContent(nullptr, CRoundBgButton::BgPressed);
        }

    private:
        CRoundBgButton& m_Button;
    };
    NameElement(*new CPainting(m_Host.Root(), m_Button), "painting");
    PaintLog const parts = m_Host.Paint().Of("painting");
    EXPECT_EQ(parts.Count("DrawRasterPictureEx 200x34*"), 2);
    EXPECT_EQ(parts.Count("DrawRasterPictureEx*"), 2);
}

TEST_F(RoundBgButton, TheTextColourIsThatOfTheStateUnlessItHasNone)
{
    m_Button.SetFgColor(color_table[14]);
    EXPECT_EQ(Draw().Count("SetTextColor*"), 1) << "the element's own";
    CRoundBgButton::SetButtonTextColor(CRoundBgButton::BgNormal, color_table[6]);
    CRoundBgButton::SetButtonTextColor(CRoundBgButton::BgPressed, color_table[4]);
    EXPECT_THAT(Draw(), Draws("RoundRect 0 0 *").Then("SetTextColor red").Then("DrawStringEx*"));
    m_Host.Mouse().Move(m_Button, 50, 10);
    EXPECT_THAT(Draw(), Draws("RoundRect 0 0 *").Then("SetTextColor red").Then("DrawStringEx*"));
    CRoundBgButton::SetButtonTextColor(CRoundBgButton::BgHighlighted, color_table[3]);
    EXPECT_THAT(Draw(), Draws("RoundRect 0 0 *").Then("SetTextColor yellow").Then("DrawStringEx*"));
    m_Host.Mouse().Press();
    EXPECT_THAT(Draw(), Draws("RoundRect 0 0 *").Then("SetTextColor blue").Then("DrawStringEx*"));
}

TEST_F(RoundBgButton, OfTwoPixelsOrLessItHasNeitherPictureNorBorder)
{
    for (Size const extent : {Size{2, 30}, Size{100, 2}})
    {
        m_Button.SetPos({0, 0, extent.width, extent.height}, true);
        PaintLog const log = Draw();
        EXPECT_EQ(log.Count("DrawRasterPicture*"), 0);
        EXPECT_EQ(log.Count("RoundRect*"), 0);
    }
    m_Button.SetPos({0, 0, 3, 3}, true);
    PaintLog const log = Draw();
    EXPECT_EQ(log.Count("DrawRasterPictureEx*"), 2);
    EXPECT_THAT(log, Draws("RoundRect 1 1 1 1 4 4").Then("RoundRect 0 0 2 2 5 5"));
}

TEST_F(RoundBgButton, ThePenMarkIsClearedAndItHasNoOtherGround)
{
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.m_PenDirty = true;
    m_Button.DrawBackground(&painter);
    EXPECT_FALSE(painter.m_PenDirty);
    EXPECT_EQ(Draw().Count("FillRect*"), 0);
}

// Focus ---------------------------------------------------------------------------------------------------------------------

TEST_F(RoundBgButton, TheFocusRingIsDottedInsideTheBorder)
{
    m_Button.SetCanHaveFocus(true);
    m_Host.Focus();
    m_Button.SetFocus(true);
    EXPECT_THAT(Draw(), Draws("DrawStringEx*").Then("SetPen #101010 alternate").Then("RoundRect 2 2 97 27 3 3"));
    EXPECT_EQ(Draw().Count("FocusRect*"), 0);
    CRoundBgButton::SetButtonTextColor(CRoundBgButton::BgNormal, color_table[6]);
    CRoundBgButton::SetBorderRadius(6);
    EXPECT_THAT(Draw(), Draws("SetPen red alternate").Then("RoundRect 2 2 97 27 5 5"));
    CRoundBgButton::SetButtonTextColor(CRoundBgButton::BgNormal, color_table[0]);
    CTestHost::System().GetMemoryPalette().SetColor(ISysPalette::scControlText, color_table[4]);
    EXPECT_THAT(Draw(), Draws("SetPen blue alternate").Then("RoundRect 2 2 97 27 5 5"));
}

TEST_F(RoundBgButton, ADisabledOrTinyButtonHasNoFocusRing)
{
    m_Button.SetCanHaveFocus(true);
    m_Host.Focus();
    m_Button.SetFocus(true);
    m_Button.SetEnabled(false);
    EXPECT_EQ(Draw().Count("RoundRect*"), 2);
    m_Button.SetEnabled(true);
    EXPECT_EQ(Draw().Count("RoundRect*"), 3);
    m_Button.SetPos({0, 0, 100, 2}, true);
    EXPECT_EQ(Draw().Count("RoundRect*"), 0);
}

// See-through ---------------------------------------------------------------------------------------------------------------

TEST_F(RoundBgButton, ASeeThroughOneIsPaintedAsideAndBlended)
{
    m_Button.SetTransparent(true);
    PaintLog log = Draw();
    EXPECT_THAT(log, Draws("picture DrawRasterPictureEx 100x34 0 0 100 30 from 0 2 100 32 xor")
                         .Then("picture DrawRasterPicture 100x30 0 0 100 30 and")
                         .Then("picture DrawRasterPictureEx 100x34 0 0 100 30 from 0 2 100 32 xor")
                         .Then("picture RoundRect 1 1 98 28 4 4")
                         .Then("picture RoundRect 0 0 99 29 5 5")
                         .Then("AlphaBlend 100x30 0 0 100 30 60")
                         .Then("DrawStringEx \"abc\"*"));
    EXPECT_EQ(log.Count("picture RoundRect 0 0 99 29 5 5"), 2) << "once more behind the corners";
    EXPECT_EQ(log.Count("ExtractRasterPictureEx*"), 4);
    EXPECT_THAT(log, Draws("ExtractRasterPictureEx 100x30 0 0 3 3 to 0 0 3 3"));
    EXPECT_THAT(log, Draws("ExtractRasterPictureEx 100x30 0 26 3 29 to 0 26 3 29"));
    EXPECT_THAT(log, Draws("ExtractRasterPictureEx 100x30 96 0 99 3 to 96 0 99 3"));
    EXPECT_THAT(log, Draws("ExtractRasterPictureEx 100x30 96 26 99 29 to 96 26 99 29"));
    EXPECT_EQ(log.Count("DrawRasterPictureEx*"), 0);
    CRoundBgButton::SetButtonTransparency(CRoundBgButton::BgHighlighted, 33);
    m_Host.Mouse().Move(m_Button, 50, 10);
    EXPECT_THAT(Draw(), Draws("AlphaBlend 100x30 0 0 100 30 33"));
    m_Button.SetEnabled(false);
    EXPECT_THAT(Draw(), Draws("AlphaBlend 100x30 0 0 100 30 100"));
}

TEST_F(RoundBgButton, CornersAsLargeAsTheButtonAreLeft)
{
    m_Button.SetTransparent(true);
    CRoundBgButton::SetBorderRadius(30);
    EXPECT_EQ(Draw().Count("picture RoundRect 0 0 99 29 31 31"), 1);
    CRoundBgButton::SetBorderRadius(29);
    EXPECT_EQ(Draw().Count("picture RoundRect 0 0 99 29 30 30"), 2);
}

TEST_F(RoundBgButton, ThePicturesAreBlurredByStateUnderASeeThroughOne)
{
    EXPECT_EQ(m_Button.GetBlurRadius(CRoundBgButton::BgDisabled), 1);
    EXPECT_EQ(m_Button.GetBlurRadius(CRoundBgButton::BgHighlighted), 2);
    EXPECT_EQ(m_Button.GetBlurRadius(CRoundBgButton::BgNormal), 2);
    EXPECT_EQ(m_Button.GetBlurRadius(CRoundBgButton::BgPressed), 1);
}

TEST_F(RoundBgButton, OverABackgroundImageItIsBlendedToo)
{
    class CPapered : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        bool HandleGetBkImage(vexel_ptr<IRasterPicture>& picture, _color&, Rect& placement) override
        {
            picture = m_Paper;
            placement = {0, 0, 8, 8};
            return true;
        }
        vexel_ptr<IRasterPicture> m_Paper;
    };
    CPapered& sheet = *new CPapered(m_Host.Root(), {200, 50}, alBottom);
    sheet.m_Paper = Plain(8, 8, color_table[6]);
    CRoundBgButton& button = *new CRoundBgButton(&sheet, {60, 20}, alLeft);
    NameElement(button, "papered");
    PaintLog const log = m_Host.Paint().Of("papered");
    EXPECT_THAT(log, Draws("picture DrawRasterPictureEx*").Then("AlphaBlend 60x50 0 0 60 50 60"));
    EXPECT_EQ(log.Count("DrawRasterPictureEx*xor"), 0);
}

TEST_F(RoundBgButton, ASeeThroughOneLooksTheSameHoweverItIsRepainted)
{
    CSheet& sheet = *new CSheet(m_Host.Root(), {200, 50}, alBottom);
    sheet.SetBkColor(color_table[3]);
    CRoundBgButton& button = *new CRoundBgButton(&sheet, {60, 20}, alLeft);
    button.SetTransparent(true);
    m_Host.FullPaint();
    button.Update(utElement);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Host.Mouse().Move(button, 50, 10);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    button.SetEnabled(false);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}
