// What the paint pass and its helpers do to the painter, and which elements they pass over.

#include "tests/support/edge_bench.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/core/draw_elements.h"
#include "vexel/core/element_list.h"
#include "vexel/core/scroll_on_set_pos.h"
#include "vexel/core/selection_drawers.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

using Rect = rectangle<double>;

namespace
{

// left (0, 0, 20, 39) > inner (0, 0, 20, 10); right (21, 0, 99, 39)
class PaintRules : public testing::Test
{
protected:
    PaintRules()
    {
        NameElement(m_Left, "left");
        NameElement(m_Inner, "inner");
        NameElement(m_Right, "right");
        m_Left.SetBkColor(color_table[4]);
        m_Inner.SetBkColor(color_table[3]);
        m_Right.SetBkColor(color_table[9]);
    }
    IControl& Control() { return *m_Host.Control().GetControl(); }
    IPainter& Painter() { return *m_Host.Window().GetPainter(); }

    CTestHost m_Host{100, 40};
    CSheet& m_Left = *new CSheet(m_Host.Root(), {20, 0}, alLeft);
    CSheet& m_Inner = *new CSheet(&m_Left, {0, 10}, alTop);
    CSheet& m_Right = *new CSheet(m_Host.Root(), {0, 0}, alClient);
};

// Draws a list of elements on a picture and says who was drawn.
class DrawingLists : public testing::Test
{
protected:
    DrawingLists()
    {
        m_Painter.BeginPaint(IPainter::ssPaint);
        m_Log.Add(m_Element.m_SigDraw, "drawn");
        m_List.AddItem(&m_Element);
    }
    ~DrawingLists() override
    {
        m_List.RemoveItem(&m_Element);
        m_Painter.EndPaint();
    }
    bool IsDrawn(rectangle<int> const& clip)
    {
        m_Log.Clear();
        DrawElements(&m_List, &m_Painter, clip);
        return m_Log.Count() > 0;
    }

    CSheet m_Element{nullptr, {5, 5}, alNone};
    CChildren m_List{nullptr};
    CSignalLog m_Log;
    vexel_ptr<IRasterPicture> m_Picture = CTestHost::System().CreateRasterPicture(size<int>{50, 50});
    IPainter& m_Painter = *m_Picture->GetPainter();
};

}  // namespace

// The painter's state ---------------------------------------------------------------------------------------------------------

TEST_F(PaintRules, ThePenIsNotDirtyWhenTheSignalOfAnElementFires)
{
    int dirty = 0;
    auto const first = Listen(m_Left.m_SigDraw, [](CVisualElement*, IPainter* painter) { painter->m_PenDirty = true; });
    auto const second =
        Listen(m_Right.m_SigDraw, [&](CVisualElement*, IPainter* painter) { dirty += painter->m_PenDirty; });

    m_Host.Paint();

    EXPECT_EQ(dirty, 0);
}

TEST_F(PaintRules, TheGroundOfDisabledPicturesIsBlackOnlyIfThePainterWasInDisabledMode)
{
    _color ground;
    auto const slot =
        Listen(m_Left.m_SigDraw, [&](CVisualElement*, IPainter* painter) { ground = painter->m_DisabledBkColor; });
    m_Host.Paint();
    EXPECT_EQ(ground, _color(0, true));

    Painter().m_DisabledMode = true;
    m_Host.FullPaint();
    EXPECT_EQ(ground, _color(0xFF000000));
}

TEST_F(PaintRules, TheDisabledModeIsThatOfTheElementAndGoesWithIt)
{
    m_Left.SetEnabled(false);
    std::string modes;
    auto const note = [&](CVisualElement* element, IPainter* painter) {
        modes += ElementName(element) + (painter->m_DisabledMode ? "+ " : "- ");
    };
    auto const left = Listen(m_Left.m_SigDraw, note);
    auto const inner = Listen(m_Inner.m_SigDraw, note);
    auto const after = Listen(Control().m_SigAfterDraw, [&] { modes += Painter().m_DisabledMode ? "+" : "-"; });
    m_Host.Paint();

    EXPECT_EQ(modes, "left+ inner- -");
}

TEST_F(PaintRules, ADisabledElementWithoutChildrenLeavesNoDisabledMode)
{
    m_Right.SetEnabled(false);
    bool left = true;
    auto const after = Listen(Control().m_SigAfterDraw, [&] { left = Painter().m_DisabledMode; });

    m_Host.Paint();

    EXPECT_FALSE(left);
}

TEST_F(PaintRules, AClipThatAnElementForgetsDoesNotReachTheDraggedItem)
{
    m_Host.Paint();
    auto const forget = Listen(m_Right.m_SigDraw, [](CVisualElement*, IPainter* painter) {
        painter->SetClipRect(0, 0, 3, 3, false);
        painter->m_ClipCache = {1, 2, 3, 4};
    });
    Rect clip{9, 9, 9, 9};
    Rect cache{9, 9, 9, 9};
    auto const item = Listen(m_Left.m_SigDrawDragItem,
                             [&](CVisualElement*, CVisualElement*, IPainter* painter, DragInfo*, bool, bool*) {
                                 clip = painter->GetClipRect();
                                 cache = painter->m_ClipCache;
                             });
    Control().StartDragging(&m_Left, DragInfo());
    m_Host.FullPaint();

    EXPECT_EQ(clip, Rect());
    EXPECT_EQ(cache, Rect());
    m_Host.Mouse().Release();
}

// What is drawn -----------------------------------------------------------------------------------------------------------------

TEST_F(PaintRules, WhatWaitsForALayoutBeforeTheFirstPaintIsLaidOutOnce)
{
    m_Inner.SetSize({0, 12}, false);
    CSignalLog log(m_Inner.m_SigSize, "size");

    m_Host.Paint();

    EXPECT_EQ(log.Count(), 1);
}

TEST_F(PaintRules, AnExceptionWhileOneElementIsPaintedMakesTheNextPaintAFullOne)
{
    m_Host.Paint();
    m_Left.Update(utElement);
    {
        auto const slot = Listen(m_Left.m_SigDraw, [](CVisualElement*, IPainter*) { throw 1; });
        EXPECT_THROW(m_Host.Control().OnDraw(&Painter()), int);
    }
    EXPECT_FALSE(Painter().m_Painting);

    EXPECT_EQ(m_Host.Paint().Elements(), "CContent left inner right");
}

TEST_F(PaintRules, SiblingsAndStrangersInOneUpdateAreEachDrawnAtTheirOwnPlace)
{
    auto& cousin = *new CSheet(&m_Right, {10, 0}, alLeft);
    cousin.SetBkColor(color_table[6]);
    m_Host.Paint();
    m_Inner.SetBkColor(color_table[1]);
    cousin.SetBkColor(color_table[13]);
    m_Left.SetBkColor(color_table[12]);  // covers inner, which is drawn with it
    m_Host.Paint();

    m_Inner.SetBkColor(color_table[6]);
    cousin.SetBkColor(color_table[4]);
    m_Host.Paint();

    EXPECT_EQ(m_Host.PixelAt(5, 5), color_table[6]);
    EXPECT_EQ(m_Host.PixelAt(5, 11), color_table[12]);
    EXPECT_EQ(m_Host.PixelAt(21, 0), color_table[4]);
    EXPECT_EQ(m_Host.PixelAt(31, 39), color_table[4]);
    EXPECT_EQ(m_Host.PixelAt(32, 0), color_table[9]);
}

// The element covers the pixels 10 to 15 of each axis; a clip of the painter has its right and bottom outside.
TEST_F(DrawingLists, AnElementThatNoPixelOfIsInThePaintersClipIsSkipped)
{
    m_Element.SetPos({10, 10, 15, 15}, false);
    struct SCase
    {
        rectangle<double> clip;
        bool drawn;
    };
    for (SCase const& c : {SCase{{0, 0, 10, 50}, false}, SCase{{0, 0, 11, 50}, true}, SCase{{15, 0, 50, 50}, true},
                           SCase{{16, 0, 50, 50}, false}, SCase{{0, 0, 50, 10}, false}, SCase{{0, 0, 50, 11}, true},
                           SCase{{0, 15, 50, 50}, true}, SCase{{0, 16, 50, 50}, false}, SCase{{}, true}})
    {
        m_Painter.SimpleSetClipRect(c.clip, false);
        EXPECT_EQ(IsDrawn({}), c.drawn) << c.clip.left << " " << c.clip.top << " " << c.clip.right << " "
                                        << c.clip.bottom;
    }
}

TEST_F(DrawingLists, AnElementThatTouchesTheClipWithOneEdgeOnlyIsPassedOver)
{
    m_Element.SetPos({10, 10, 20, 20}, false);

    EXPECT_TRUE(IsDrawn({0, 0, 11, 11}));
    EXPECT_FALSE(IsDrawn({0, 0, 10, 30}));
    EXPECT_FALSE(IsDrawn({0, 0, 30, 10}));
    EXPECT_TRUE(IsDrawn({19, 19, 30, 30}));
    EXPECT_FALSE(IsDrawn({20, 0, 30, 30}));
    EXPECT_FALSE(IsDrawn({0, 20, 30, 30}));
}

TEST_F(DrawingLists, AClipOfZerosLimitsNothing)
{
    m_Element.SetPos({10, 10, 20, 20}, false);
    EXPECT_TRUE(IsDrawn({0, 0, 0, 0}));

    m_Element.SetVisible(false);
    EXPECT_FALSE(IsDrawn({0, 0, 0, 0}));
}

TEST_F(DrawingLists, NoListAndNoElementAreLegal)
{
    m_Element.SetPos({10, 10, 20, 20}, false);
    DrawElements(nullptr, &m_Painter, {});
    EXPECT_EQ(m_Log.Count(), 0);

    m_List.AddItem(nullptr);
    EXPECT_TRUE(IsDrawn({}));
}

TEST_F(PaintRules, AnElementIsWhollyRepaintedIfItsVisibleChildrenAre)
{
    class CStrip : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        bool IsFullRepainted() const override { return false; }
    };
    EXPECT_TRUE(m_Left.IsFullRepainted());
    auto& strip = *new CStrip(&m_Left, {0, 5}, alTop);
    EXPECT_FALSE(m_Left.IsFullRepainted());

    strip.SetVisible(false);
    EXPECT_TRUE(m_Left.IsFullRepainted());
}

TEST_F(PaintRules, TheDrawRectanglesAreThoseOfTheControlOrOfThePainter)
{
    m_Host.Paint();
    EXPECT_EQ(m_Right.GetDrawRect(nullptr), (Rect{21, 0, 99, 39}));
    EXPECT_EQ(m_Right.GetDrawValidRect(nullptr), (Rect{21, 0, 99, 39}));
    Rect content{9, 9, 9, 9};
    Rect valid{9, 9, 9, 9};
    auto const slot = Listen(m_Right.m_SigDraw, [&](CVisualElement* element, IPainter* painter) {
        content = element->GetDrawRect(painter);
        valid = element->GetDrawValidRect(painter);
    });

    m_Host.FullPaint();

    EXPECT_EQ(content, (Rect{0, 0, 78, 39}));
    EXPECT_EQ(valid, (Rect{0, 0, 0, 0}));
}

// Moving pixels -----------------------------------------------------------------------------------------------------------------

TEST_F(PaintRules, AnElementThatShrinksWhileItMovesTakesOnlyWhatItKeeps)
{
    auto& card = *new CSheet(&m_Right, {0, 0}, alNone);
    card.SetBkColor(color_table[6]);
    card.SetPos({0, 0, 20, 15}, true);
    m_Host.Paint();

    card.SetPos({30, 20, 40, 28}, false);

    EXPECT_EQ(m_Host.PixelAt(21 + 30, 20), color_table[6]);
    EXPECT_EQ(m_Host.PixelAt(21 + 40, 28), color_table[6]);
    EXPECT_EQ(m_Host.PixelAt(21 + 41, 28), color_table[9]);
    EXPECT_EQ(m_Host.PixelAt(21 + 40, 29), color_table[9]);
}

TEST_F(PaintRules, WhatLeavesTheBoundsIsNotMovedAndNothingBeyondThemIsTouched)
{
    m_Host.Paint();
    auto const mark = [&](int x, int y) {
        Painter().BeginPaint(IPainter::ssMeasure);
        Painter().SetPixel(x, y, color_table[6]);
        Painter().EndPaint();
    };
    // Right stands at x = 21; of it (10, 10) to (40, 30) shows.
    rectangle<int> const bounds{10, 10, 40, 30};
    rectangle<int> const pos = m_Right.GetPos();
    auto const move = [&](int dx, int dy) {
        rectangle<int> before = pos;
        before.Offset(-dx, -dy);
        return ScrollOnSetPos(&m_Right, pos, before, bounds);
    };

    mark(61, 20);  // the last column of the bounds
    EXPECT_TRUE(move(-5, 0));
    EXPECT_EQ(m_Host.PixelAt(56, 20), color_table[6]);
    m_Host.FullPaint();
    mark(31, 20);  // the first one
    EXPECT_TRUE(move(5, 0));
    EXPECT_EQ(m_Host.PixelAt(36, 20), color_table[6]);
    m_Host.FullPaint();
    mark(40, 30);  // the last row
    EXPECT_TRUE(move(0, -4));
    EXPECT_EQ(m_Host.PixelAt(40, 26), color_table[6]);
    m_Host.FullPaint();
    mark(40, 10);  // the first one
    EXPECT_TRUE(move(0, 4));
    EXPECT_EQ(m_Host.PixelAt(40, 14), color_table[6]);

    m_Host.FullPaint();
    mark(59, 20);
    mark(40, 28);
    EXPECT_TRUE(move(5, 4));
    EXPECT_EQ(m_Host.PixelAt(64, 24), color_table[9]);
    EXPECT_EQ(m_Host.PixelAt(45, 32), color_table[9]);
}

TEST_F(PaintRules, PixelsThatWouldNotShowAfterwardsAreNotMoved)
{
    auto& card = *new CSheet(&m_Right, {0, 0}, alNone);
    card.SetBkColor(color_table[6]);
    card.SetPos({0, 0, 10, 10}, true);
    m_Host.Paint();

    card.SetPos({-6, 0, 4, 10}, false);

    EXPECT_EQ(m_Host.PixelAt(17, 5), color_table[3]);  // inner's pixels stay
    EXPECT_EQ(m_Host.Paint().Elements(), "CSheet");
}

// Helpers -----------------------------------------------------------------------------------------------------------------------

TEST_F(DrawingLists, AClipOfOneUnitIsNotSet)
{
    m_Painter.SetClipRect(0, 0, 4, 4, false);
    CClipHolder const narrow(&m_Painter, {4, 0, 15, 4});  // (4, 0, 5, 5) is left
    EXPECT_EQ(m_Painter.GetClipRect(), (Rect{0, 0, 5, 5}));
    CClipHolder const low(&m_Painter, {0, 4, 4, 15});
    EXPECT_EQ(m_Painter.GetClipRect(), (Rect{0, 0, 5, 5}));
    CClipHolder const two(&m_Painter, {3, 3, 15, 15});
    EXPECT_EQ(m_Painter.GetClipRect(), (Rect{3, 3, 5, 5}));
}

TEST_F(DrawingLists, AClipHolderClearsTheCacheWithEachReset)
{
    m_Painter.SetClipRect(0, 0, 20, 20, false);
    m_Painter.m_ClipCache = {1, 2, 3, 4};
    {
        CClipHolder const clip(&m_Painter, {5, 5, 9, 9});
        EXPECT_EQ(m_Painter.m_ClipCache, Rect());
        m_Painter.m_ClipCache = {1, 2, 3, 4};
    }
    EXPECT_EQ(m_Painter.m_ClipCache, Rect());
}

TEST_F(DrawingLists, AFocusFramesCornersAreBothDevicePixels)
{
    IPainter::CoordInfo info;
    info.m_DeviceExtent = {20, 20};
    info.m_LogicalExtent = {10, 10};
    m_Painter.SetCoordSystem(IPainter::mmCustom, &info);

    FocusRectDrawer::DrawRect(&m_Painter, 2, 2, 12, 8);

    m_Painter.SetCoordSystem(IPainter::mmDevice, nullptr);
    EXPECT_EQ(m_Painter.GetPixel(2, 2), color_table[1]);
    EXPECT_EQ(m_Painter.GetPixel(12, 8), color_table[1]);
    EXPECT_EQ(m_Painter.GetPixel(14, 8), color_table[9]);
}

TEST_F(DrawingLists, AnInvertedFrameLeavesTheDrawModeAsItWas)
{
    m_Painter.SetDrawMode(IPainter::roAnd);

    XORRectDrawer::DrawRect(&m_Painter, 2, 2, 12, 8);

    EXPECT_EQ(m_Painter.GetDrawMode(), IPainter::roAnd);
    EXPECT_EQ(m_Painter.GetPixel(2, 2), color_table[1]);
}

// Background pictures -------------------------------------------------------------------------------------------------------------

namespace
{

// A red picture of 30 x 20 at (5, 5) of the control, with one black pixel at its left-top.
class BackgroundPicture : public PaintRules
{
protected:
    BackgroundPicture()
    {
        m_Host.Paint();
        vexel_ptr<IRasterPicture> const picture = CTestHost::System().CreateRasterPicture(size<int>{30, 20});
        IPainter& painter = *picture->GetPainter();
        painter.BeginPaint(IPainter::ssPaint);
        painter.SetBrush({color_table[6], brush::bsSolid});
        painter.FillRect(0, 0, 29, 19);
        painter.SetPixel(0, 0, color_table[1]);
        painter.EndPaint();
        Painter().m_BkImage = picture;
        Painter().m_BkImageColor = color_table[12];
        Painter().m_BkImagePlacement = {5, 5, 0, 0};
    }
    ~BackgroundPicture() override { Painter().m_BkImage.reset(); }
    // Into the left element's rectangle.
    bool Draw(size<int> const& tile)
    {
        Painter().BeginPaint(IPainter::ssMeasure);
        bool const drawn = m_Left.DrawBkImage(&Painter(), m_Left.GetBounds(), tile);
        Painter().EndPaint();
        return drawn;
    }
};

}  // namespace

TEST_F(BackgroundPicture, IsDrawnInItsPlaceOverItsColour)
{
    EXPECT_TRUE(Draw({0, 0}));

    EXPECT_EQ(m_Host.PixelAt(4, 4), color_table[12]);
    EXPECT_EQ(m_Host.PixelAt(5, 5), color_table[1]);
    EXPECT_EQ(m_Host.PixelAt(20, 24), color_table[6]);
    EXPECT_EQ(m_Host.PixelAt(21, 24), color_table[9]);
    EXPECT_EQ(m_Host.PixelAt(20, 39), color_table[12]);
}

TEST_F(BackgroundPicture, AsATileIsItsFirstPixelStretched)
{
    EXPECT_TRUE(Draw({3, 2}));

    EXPECT_EQ(m_Host.PixelAt(5, 5), color_table[1]);
    EXPECT_EQ(m_Host.PixelAt(7, 6), color_table[1]);
    EXPECT_EQ(m_Host.PixelAt(8, 6), color_table[12]);
    EXPECT_EQ(m_Host.PixelAt(7, 7), color_table[12]);
}

TEST_F(BackgroundPicture, IsATileAsSoonAsOneSideOfItIsTold)
{
    EXPECT_TRUE(Draw({3, 0}));

    EXPECT_EQ(m_Host.PixelAt(15, 15), color_table[12]);
}

TEST_F(BackgroundPicture, ThatMissesTheRectangleLeavesItsColourAlone)
{
    Painter().m_BkImagePlacement = {60, 5, 0, 0};

    EXPECT_TRUE(Draw({0, 0}));

    EXPECT_EQ(m_Host.PixelAt(15, 15), color_table[12]);
}

TEST_F(BackgroundPicture, IsNotThereWithoutOneInTheWindow)
{
    vexel_ptr<IRasterPicture> picture;
    _color color;
    rectangle<int> placement;
    EXPECT_TRUE(m_Left.GetBkImage(picture, color, placement));

    Painter().m_BkImage.reset();
    EXPECT_FALSE(m_Left.GetBkImage(picture, color, placement));
}
