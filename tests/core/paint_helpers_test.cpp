// The small classes of partial painting.

#include "vexel/core/base_control.h"
#include "vexel/core/clip_holder.h"
#include "vexel/core/drawing_context.h"
#include "vexel/core/invalid_region.h"
#include "vexel/core/selection_drawers.h"
#include "vexel/core/transparent_painter.h"
#include "vexel/core/update_storage.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/system.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

using Rect = rectangle<double>;

// The invalid region --------------------------------------------------------------------------------------------------------

TEST(InvalidRegion, WithoutAValidPartIsTheWhole)
{
    CInvalidRegion const region({0, 0, 10, 8}, {3, 3, 3, 7});

    ASSERT_EQ(region.GetCount(), 1);
    EXPECT_EQ(region[0], (Rect{0, 0, 10, 8}));
}

TEST(InvalidRegion, OfAWhollyValidRectangleIsNothing)
{
    CInvalidRegion const region({0, 0, 10, 8}, {0, 0, 10, 8});

    EXPECT_EQ(region.GetCount(), 0);
    EXPECT_EQ(region[0], Rect());
}

TEST(InvalidRegion, HasSideStripsOfFullHeightAndTheOthersBetweenThem)
{
    CInvalidRegion const region({0, 0, 10, 8}, {2, 3, 7, 6});

    ASSERT_EQ(region.GetCount(), 4);
    EXPECT_EQ(region[0], (Rect{0, 0, 2, 8}));
    EXPECT_EQ(region[1], (Rect{7, 0, 10, 8}));
    EXPECT_EQ(region[2], (Rect{2, 0, 7, 3}));
    EXPECT_EQ(region[3], (Rect{2, 6, 7, 8}));
    EXPECT_EQ(region[4], Rect());
    EXPECT_EQ(region[-1], Rect());
}

TEST(InvalidRegion, OfContentThatMovedToTheRightIsTheStripAtTheLeft)
{
    CInvalidRegion const region({0, 0, 10, 8}, {3, 0, 10, 8});

    ASSERT_EQ(region.GetCount(), 1);
    EXPECT_EQ(region[0], (Rect{0, 0, 3, 8}));
}

TEST(InvalidRegion, TurnsItsComparisonsRoundWhereBothRectanglesRunBackwards)
{
    CInvalidRegion const region({10, 0, 0, 8}, {7, 0, 2, 8});

    ASSERT_EQ(region.GetCount(), 2);
    EXPECT_EQ(region[0], (Rect{10, 0, 7, 8}));
    EXPECT_EQ(region[1], (Rect{2, 0, 0, 8}));
    EXPECT_TRUE(CInvalidRegion::TopIsInvalid({0, 9, 1, 0}, {0, 5, 1, 2}));
    EXPECT_TRUE(CInvalidRegion::BottomIsInvalid({0, 9, 1, 0}, {0, 5, 1, 2}));
    EXPECT_FALSE(CInvalidRegion::TopIsInvalid({0, 9, 1, 0}, {0, 9, 1, 2}));
    EXPECT_FALSE(CInvalidRegion::LeftIsInvalid({0, 0, 5, 1}, {0, 0, 3, 1}));
    EXPECT_TRUE(CInvalidRegion::RightIsInvalid({0, 0, 5, 1}, {0, 0, 3, 1}));
}

// The clip holder -----------------------------------------------------------------------------------------------------------

namespace
{

class ClipHolder : public testing::Test
{
protected:
    ClipHolder()
        : m_Picture(CTestHost::System().CreateRasterPicture(size<int>{20, 10})), m_Painter(*m_Picture->GetPainter())
    {
        m_Painter.BeginPaint(IPainter::ssPaint);
    }
    ~ClipHolder() override { m_Painter.EndPaint(); }

    vexel_ptr<IRasterPicture> m_Picture;
    IPainter& m_Painter;
};

}  // namespace

TEST_F(ClipHolder, OnAPainterWithoutAClipSetsItAndLeavesNone)
{
    {
        CClipHolder const clip(&m_Painter, {2, 3, 7, 5});
        EXPECT_EQ(m_Painter.GetClipRect(), (Rect{2, 3, 8, 6}));
    }
    EXPECT_EQ(m_Painter.GetClipRect(), Rect());
}

TEST_F(ClipHolder, NarrowsAClipThatStandsAndPutsItBack)
{
    m_Painter.SetClipRect(0, 0, 9, 9, false);
    {
        CClipHolder const clip(&m_Painter, {5, 5, 15, 15});
        EXPECT_EQ(m_Painter.GetClipRect(), (Rect{5, 5, 10, 10}));
    }
    EXPECT_EQ(m_Painter.GetClipRect(), (Rect{0, 0, 10, 10}));
}

TEST_F(ClipHolder, AddsItsMarginsWhereAClipStandsAtLeastOneAtTheRightAndBottom)
{
    m_Painter.SetClipRect(0, 0, 19, 9, false);
    {
        CClipHolder const clip(&m_Painter, {2, 2, 10, 5}, {1, 2, 3, 0.5});
        EXPECT_EQ(m_Painter.GetClipRect(), (Rect{3, 4, 13, 6}));
    }
}

TEST_F(ClipHolder, AClipThatWouldLeaveNothingIsNotSet)
{
    m_Painter.SetClipRect(0, 0, 4, 4, false);
    {
        CClipHolder const clip(&m_Painter, {10, 0, 15, 4});
        EXPECT_EQ(m_Painter.GetClipRect(), (Rect{0, 0, 5, 5}));
    }
    EXPECT_EQ(m_Painter.GetClipRect(), (Rect{0, 0, 5, 5}));
}

TEST_F(ClipHolder, WithoutAPainterDoesNothing)
{
    CClipHolder const clip(nullptr, {0, 0, 5, 5});
    EXPECT_EQ(m_Painter.GetClipRect(), Rect());
}

// Dirty items ---------------------------------------------------------------------------------------------------------------

TEST(UpdateStorage, WithoutPairsEveryItemIsToBePaintedAsEver)
{
    CUpdateStorage const storage;

    EXPECT_EQ(static_cast<int>(storage.GetItemType(5)), 2);
}

TEST(UpdateStorage, ThousandsOfPairsThatNobodyPaintsBecomeOneThatCoversThem)
{
    CUpdateStorage storage;
    for (int i = 1; i <= 4096; ++i)
        storage.UpdateItems(10 * i, 10 * i + 1);
    EXPECT_EQ(storage.GetItemType(25), IDirtyItemSet::dirtyOther);

    storage.UpdateItems(0, 0);

    EXPECT_EQ(storage.GetItemType(25), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(storage.GetItemType(40961), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(storage.GetItemType(0), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(storage.GetItemType(9), IDirtyItemSet::dirtyOther);
    EXPECT_EQ(storage.GetItemType(40962), IDirtyItemSet::dirtyOther);
}

TEST(UpdateStorage, AnItemIsDirtyIfAPairHoldsItBothEndsIncluded)
{
    CUpdateStorage storage;
    storage.UpdateItems(7, 4);
    storage.UpdateItems(20, 20);

    for (int item : {4, 5, 7, 20})
        EXPECT_EQ(static_cast<int>(storage.GetItemType(item)), 0) << item;
    for (int item : {3, 8, 19, 21})
        EXPECT_EQ(static_cast<int>(storage.GetItemType(item)), 1) << item;

    storage.OnEndDraw();
    EXPECT_EQ(static_cast<int>(storage.GetItemType(5)), 2);
}

// Pixels of antialiased lines ---------------------------------------------------------------------------------------------------

TEST_F(ClipHolder, ADrawingContextReadsAndWritesThroughItsScaleAndOrigin)
{
    CDrawingContext context(&m_Painter, 4, 2, 2, 3);

    context.SetPixel(1, 2, 0x0000FF);  // at (6, 8)

    EXPECT_EQ(m_Painter.GetPixel(6, 8).m_Value & 0xFFFFFFu, 0x0000FFu);
    EXPECT_EQ(context.GetPixel(1, 2), 0x0000FFul);
    EXPECT_EQ(context.GetPixel(0, 0), 0xFFFFFFul);
}

// Blending ------------------------------------------------------------------------------------------------------------------

TEST_F(ClipHolder, ATransparentPainterBlendsWhatWasDrawnOntoTheTarget)
{
    {
        CTransparentPainter scope(&m_Painter, {2, 1, 5, 4}, 51);
        brush black;
        black.color = color_table[1];
        scope.GetPainter()->SetBrush(black);
        scope.GetPainter()->FillRect(0, 0, 3, 3);
    }

    // (0 * 51 + 255 * 204) / 255
    EXPECT_EQ(m_Painter.GetPixel(2, 1), _color(0xFFCCCCCC));
    EXPECT_EQ(m_Painter.GetPixel(5, 4), _color(0xFFCCCCCC));
    EXPECT_EQ(m_Painter.GetPixel(1, 1), color_table[9]);
    EXPECT_EQ(m_Painter.GetPixel(6, 4), color_table[9]);
}

TEST_F(ClipHolder, ABlendedBackgroundIsOneFilledRectangle)
{
    CVisualElement element(nullptr, {10, 10}, alNone);
    element.SetDynamic(false);
    brush black;
    black.color = color_table[1];

    element.DrawBlendBk(&m_Painter, {1, 1, 3, 2}, black, 102);

    EXPECT_EQ(m_Painter.GetPixel(1, 1), _color(0xFF999999));
    EXPECT_EQ(m_Painter.GetPixel(3, 2), _color(0xFF999999));
    EXPECT_EQ(m_Painter.GetPixel(4, 2), color_table[9]);
}

// Rubber bands --------------------------------------------------------------------------------------------------------------------

TEST_F(ClipHolder, TheOldFrameOfASelectionErasesItselfByRepetition)
{
    CPixelBuffer const before = m_Picture->GetPixels();
    FocusRectDrawer::DrawRect(&m_Painter, 2, 2, 8, 6);
    FocusRectDrawer::DrawSelection(&m_Painter, 2, 2, 8, 6, 4, 3, 12, 8);
    EXPECT_NE(ComparePixels(before, m_Picture->GetPixels()), "");
    FocusRectDrawer::DrawRect(&m_Painter, 4, 3, 12, 8);
    EXPECT_EQ_PIXELS(before, m_Picture->GetPixels());

    XORRectDrawer::DrawRect(&m_Painter, 2, 2, 8, 6);
    XORRectDrawer::DrawSelection(&m_Painter, 2, 2, 8, 6, 4, 3, 12, 8);
    EXPECT_NE(ComparePixels(before, m_Picture->GetPixels()), "");
    XORRectDrawer::DrawRect(&m_Painter, 4, 3, 12, 8);
    EXPECT_EQ_PIXELS(before, m_Picture->GetPixels());
}

// Background pictures -----------------------------------------------------------------------------------------------------------

namespace
{

// A window of 100 x 40 with a box (10, 0, 50, 39) and a picture of 30 x 20 in the window's painter.
class Background : public testing::Test
{
protected:
    Background()
    {
        m_Host.Paint();
        IPainter& painter = *m_Host.Window().GetPainter();
        painter.m_BkImage = CTestHost::System().CreateRasterPicture(size<int>{30, 20});
        painter.m_BkImageColor = color_table[3];
    }
    ~Background() override { m_Host.Window().GetPainter()->m_BkImage.reset(); }

    void Place(rectangle<int> const& placement) { m_Host.Window().GetPainter()->m_BkImagePlacement = placement; }

    CTestHost m_Host{100, 40};
    CVisualElement& m_Margin = *new CVisualElement(m_Host.Root(), {9, 0}, alLeft);
    CVisualElement& m_Box = *new CVisualElement(m_Host.Root(), {40, 0}, alLeft);
};

}  // namespace

TEST_F(Background, ThePartUnderAnElementIsToldAndTheRectangleNarrowedToIt)
{
    Place({15, 5, 0, 0});  // the picture covers (15, 5) to (45, 25) of the control
    rectangle<int> rect{0, 0, 40, 39};

    EXPECT_EQ(m_Box.GetBkImageRect(rect), (rectangle<int>{0, 0, 30, 20}));
    EXPECT_EQ(rect, (rectangle<int>{5, 5, 35, 25}));
}

TEST_F(Background, ANegativeLeftAlignsThePictureToTheWindowsRight)
{
    Place({-1, 0, 20, 0});  // its right is 100 - 20, its left 50
    rectangle<int> rect{0, 0, 40, 39};

    EXPECT_EQ(m_Box.GetBkImageRect(rect), (rectangle<int>{0, 0, 0, 20}));
    EXPECT_EQ(rect, (rectangle<int>{40, 0, 40, 20}));
}

TEST_F(Background, ANegativeTopAlignsThePictureToTheWindowsBottom)
{
    Place({10, -1, 0, 4});  // its bottom is 40 - 4, its top 16
    rectangle<int> rect{0, 0, 40, 39};

    EXPECT_EQ(m_Box.GetBkImageRect(rect), (rectangle<int>{0, 0, 30, 20}));
    EXPECT_EQ(rect, (rectangle<int>{0, 16, 30, 36}));
}

TEST_F(Background, ThePictureOfAnAncestorComesBeforeTheWindows)
{
    class COwner : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        bool HandleGetBkImage(vexel_ptr<IRasterPicture>& picture, _color& color, rectangle<int>& placement) override
        {
            picture = m_Own;
            color = color_table[6];
            placement = {1, 2, 3, 4};
            return true;
        }
        vexel_ptr<IRasterPicture> m_Own = CTestHost::System().CreateRasterPicture(size<int>{5, 5});
    };
    auto& owner = *new COwner(m_Host.Root(), {10, 0}, alLeft);
    auto& child = *new CVisualElement(&owner, {5, 5}, alTop);
    vexel_ptr<IRasterPicture> picture;
    _color color;
    rectangle<int> placement;

    EXPECT_TRUE(child.GetBkImage(picture, color, placement));
    EXPECT_EQ(picture.get(), owner.m_Own.get());
    EXPECT_EQ(color, color_table[6]);
    EXPECT_EQ(placement, (rectangle<int>{1, 2, 3, 4}));

    m_Box.GetBkImage(picture, color, placement);
    EXPECT_EQ(picture.get(), m_Host.Window().GetPainter()->m_BkImage.get());
    EXPECT_EQ(color, color_table[3]);
    EXPECT_TRUE(m_Box.IsBkImagePresented());
}

TEST_F(Background, WithoutAPictureNothingIsDrawn)
{
    m_Host.Window().GetPainter()->m_BkImage.reset();

    EXPECT_FALSE(m_Box.IsBkImagePresented());
    EXPECT_FALSE(m_Box.DrawBkImage(m_Host.Window().GetPainter(), {0, 0, 40, 39}, {0, 0}));
    rectangle<int> rect{0, 0, 40, 39};
    EXPECT_EQ(m_Box.GetBkImageRect(rect), rectangle<int>());
    EXPECT_EQ(rect, (rectangle<int>{0, 0, 40, 39}));
}
