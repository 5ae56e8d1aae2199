// Frames: their rectangles, what is filled, and the border that keeps clear of its children.

#include "vexel/controls/bevel.h"

#include "vexel/controls/border.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

using Rect = rectangle<int>;

namespace
{

// A bevel at (0, 0, 59, 30).
class Bevel : public testing::Test
{
protected:
    Bevel()
    {
        NameElement(m_Bevel, "bevel");
        m_Host.Paint();
    }
    PaintLog Draw()
    {
        m_Bevel.Update(utElement);
        return m_Host.Paint().Of("bevel");
    }
    unsigned PixelAt(int x, int y) { return m_Host.PixelAt(x, y).m_Value & 0xFFFFFFu; }

    CTestHost m_Host{60, 40};
    CBevel& m_Bevel = *new CBevel(m_Host.Root(), {0, 30}, alTop);
};

}  // namespace

TEST_F(Bevel, ItStartsFlatWithoutAFrameAndTwoPixelsAroundTheContent)
{
    EXPECT_EQ(m_Bevel.GetStyle(), 0);
    EXPECT_EQ(m_Bevel.GetShape(), 7);
    EXPECT_EQ(m_Bevel.GetOffset(), Rect());
    EXPECT_EQ(m_Bevel.GetContentOffset(), (Rect{2, 2, 2, 2}));
    EXPECT_EQ(m_Bevel.GetContentRect(), (Rect{2, 2, 57, 28}));
}

TEST_F(Bevel, WithItsDefaultShapeItDrawsNoFrameAndOnlyFills)
{
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("FillRect 0 0 59 30"));
    EXPECT_EQ(log.Count("FillRect*"), 1);
    m_Bevel.SetShape(static_cast<CBevel::BorderShape>(9));
    EXPECT_EQ(Draw().Count("FillRect*"), 1);
}

TEST_F(Bevel, SettersRepaintOnAChange)
{
    auto const repaints = [&] { return !m_Host.Paint().IsEmpty(); };
    m_Bevel.SetStyle(CBevel::BorderRaised);
    EXPECT_TRUE(repaints());
    m_Bevel.SetStyle(CBevel::BorderRaised);
    EXPECT_FALSE(repaints());
    m_Bevel.SetShape(CBevel::ShapeBox);
    EXPECT_TRUE(repaints());
    m_Bevel.SetShape(CBevel::ShapeBox);
    EXPECT_FALSE(repaints());
    m_Bevel.SetOffset({1, 1, 1, 1});
    EXPECT_TRUE(repaints());
    m_Bevel.SetOffset({1, 1, 1, 1});
    EXPECT_FALSE(repaints());
    m_Bevel.SetContentOffset({1, 1, 1, 1});
    EXPECT_TRUE(repaints());
    m_Bevel.SetContentOffset({1, 1, 1, 1});
    EXPECT_FALSE(repaints());
}

TEST_F(Bevel, EachSideHasItsOwnOffsets)
{
    m_Bevel.SetOffset({1, 2, 3, 4});
    m_Bevel.SetContentOffset({10, 20, 30, 5});
    EXPECT_EQ(m_Bevel.GetBevelRect(), (rectangle<double>{1, 2, 56, 26}));
    EXPECT_EQ(m_Bevel.GetContentRect(), (Rect{11, 22, 26, 21}));
}

TEST_F(Bevel, CornersArePutInOrderBeforeEachStepAndNotAfterTheLast)
{
    CBevel odd(nullptr, {0, 0}, alNone);
    odd.SetPos({10, 10, 0, 0}, true);  // bounds (0, 0, -10, -10)
    EXPECT_EQ(odd.GetBevelRect(), (rectangle<double>{-10, -10, 0, 0}));
    odd.SetOffset({8, 8, 8, 8});
    EXPECT_EQ(odd.GetBevelRect(), (rectangle<double>{-2, -2, -8, -8}));
    EXPECT_EQ(odd.GetContentRect(), (Rect{-6, -6, -4, -4}));
    odd.SetContentOffset({5, 5, 5, 5});
    EXPECT_EQ(odd.GetContentRect(), (Rect{-3, -3, -7, -7}));
}

TEST_F(Bevel, ChildrenStandInsideTheContent)
{
    CVisualElement child(&m_Bevel, {0, 0}, alClient);
    m_Host.Paint();
    EXPECT_EQ(child.GetPos(), (Rect{2, 2, 57, 28}));
}

TEST_F(Bevel, TheFrameRunsInsideTheOffset)
{
    m_Bevel.SetShape(CBevel::ShapeThinBox);
    m_Bevel.SetStyle(CBevel::BorderRaised);
    m_Bevel.SetOffset({1, 2, 3, 4});
    Draw();
    EXPECT_EQ(PixelAt(1, 10), 0xF0F0F0u);
    EXPECT_EQ(PixelAt(0, 10), 0xC0C0C0u);
    EXPECT_EQ(PixelAt(56, 10), 0x404040u);
    EXPECT_EQ(PixelAt(57, 10), 0xC0C0C0u);
    EXPECT_EQ(PixelAt(20, 26), 0x404040u);
}

TEST_F(Bevel, TheFrameTakesTheColourOfTheElement)
{
    m_Bevel.SetBkColor(color_table[3]);  // yellow
    m_Bevel.SetShape(CBevel::ShapeThinBox);
    m_Bevel.SetStyle(CBevel::BorderRaised);
    Draw();
    EXPECT_EQ(PixelAt(0, 10), 0xCCFFFFu);
    EXPECT_EQ(PixelAt(59, 10), 0x005A5Au);
    EXPECT_EQ(PixelAt(20, 10), 0x00FFFFu);
    EXPECT_EQ(m_Host.Window().GetPainter()->m_Palette, nullptr);
}

TEST_F(Bevel, ABackgroundOfItsOwnIsDrawnBeforeTheFrame)
{
    class CStriped : public CBevel
    {
    public:
        using CBevel::CBevel;
        void DrawBackground(IPainter* painter) override { painter->FillRect(3, 3, 4, 4); }
    };
    CStriped striped(m_Host.Root(), {0, 9}, alTop);
    NameElement(striped, "striped");
    striped.SetShape(CBevel::ShapeTopLine);
    EXPECT_THAT(m_Host.Paint().Of("striped"), Draws("FillRect 3 3 4 4").Then("FillRect 0 0 59 0"));
}

TEST_F(Bevel, InTheColourOfTheSystemTheFrameIsTheSystems)
{
    m_Bevel.SetShape(CBevel::ShapeThinBox);
    m_Bevel.SetStyle(CBevel::BorderSunken);
    Draw();
    EXPECT_EQ(PixelAt(0, 10), 0x404040u);
    EXPECT_EQ(PixelAt(59, 10), 0xF0F0F0u);
}

TEST_F(Bevel, AFrameLeavesNoPaletteBehind)
{
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    for (bool const colored : {false, true})
    {
        if (colored)
            m_Bevel.SetBkColor(color_table[3]);
        painter.m_Palette = CreateCustomPalette();
        m_Bevel.SetShape(CBevel::ShapeThinBox);
        m_Bevel.DrawContent(&painter);
        EXPECT_EQ(painter.m_Palette, nullptr) << colored;
    }
    painter.EndPaint();
}

TEST_F(Bevel, AFrameInAnotherColourThanBeforeTakesThat)
{
    m_Bevel.SetShape(CBevel::ShapeThinBox);
    m_Bevel.SetStyle(CBevel::BorderRaised);
    m_Bevel.SetBkColor(color_table[3]);
    Draw();
    m_Bevel.SetBkColor(color_table[6]);  // red
    Draw();
    EXPECT_EQ(PixelAt(20, 10), 0x0000FFu);
    EXPECT_EQ(PixelAt(0, 10), 0xCCCCFFu);
    m_Bevel.SetBkColor(ISysPalette::scFace);
    Draw();
    EXPECT_EQ(PixelAt(0, 10), 0xF0F0F0u);
}

TEST_F(Bevel, AClosedFrameFillsItsInsideInTheColourOfTheElement)
{
    class CBare : public CBevel
    {
    public:
        using CBevel::CBevel;
        void DrawBackground(IPainter*) override {}
    };
    CBare bare(m_Host.Root(), {0, 0}, alClient);  // (0, 31, 59, 39)
    bare.SetBkColor(color_table[3]);
    m_Host.Paint();
    EXPECT_NE(PixelAt(20, 35), 0x00FFFFu);
    bare.SetShape(CBevel::ShapeBox);
    m_Host.Paint();
    EXPECT_EQ(PixelAt(20, 35), 0x00FFFFu);
}

TEST_F(Bevel, TheShapeIsHandedOn)
{
    m_Bevel.SetStyle(CBevel::BorderFlat);
    m_Bevel.SetShape(CBevel::ShapeBottomLine);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("FillRect 0 0 59 30").Then("FillRect 0 30 59 30"));
    m_Bevel.SetShape(CBevel::ShapeNothing);
    EXPECT_EQ(Draw().Count("FillRect*"), 1);
}

// Borders -----------------------------------------------------------------------------------------------------------------

TEST_F(Bevel, ABorderPaintsNothingWhereItsChildrenAre)
{
    CBorder border(m_Host.Root(), {0, 0}, alClient);  // (0, 31, 59, 39), content (2, 33, 57, 37)
    border.SetBkColor(color_table[3]);
    m_Host.Paint();
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    painter.SetBrush({color_table[6], brush::bsSolid});
    painter.FillRect(0, 31, 59, 39);
    painter.EndPaint();

    border.Update(utElement);
    m_Host.Paint();

    EXPECT_EQ(PixelAt(1, 35), 0x00FFFFu);
    EXPECT_EQ(PixelAt(2, 33), 0x0000FFu);
    EXPECT_EQ(PixelAt(57, 37), 0x0000FFu);
    EXPECT_EQ(PixelAt(58, 38), 0x00FFFFu);
}

TEST_F(Bevel, ABorderPutsTheClipBack)
{
    CBorder border(nullptr, {0, 0}, alNone);
    border.SetPos({0, 0, 20, 20}, true);
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    border.DrawContent(&painter);
    EXPECT_TRUE(painter.GetClipRect().IsZero());

    painter.SimpleSetClipRect({1, 1, 10, 10}, false);
    painter.m_ClipCache = {1, 1, 10, 10};
    border.DrawContent(&painter);
    EXPECT_EQ(painter.GetClipRect(), (rectangle<double>{1, 1, 10, 10}));
    EXPECT_TRUE(painter.m_ClipCache.IsZero());
    painter.EndPaint();
}

TEST_F(Bevel, ABorderMarkedTransparentDrawsNothingAtAll)
{
    CBorder border(m_Host.Root(), {0, 0}, alClient);
    NameElement(border, "border");
    EXPECT_FALSE(border.IsTransparent());
    border.SetShape(CBevel::ShapeBox);
    border.SetTransparent(true);
    PaintLog const log = m_Host.Paint().Of("border");
    EXPECT_EQ(log.Count("FillRect*"), 0);
    EXPECT_EQ(log.Count("SetClipRect*"), 0);
}
