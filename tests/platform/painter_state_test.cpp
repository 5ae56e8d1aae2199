#include "tests/support/canvas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vexelbase::tests
{

// Mapping ----------------------------------------------------------------------------------------------------------

TEST(PainterMapping, ShiftsAndStretchesElementPixels)
{
    CCanvas canvas(9, 4);
    canvas.Brush(Black);
    canvas.Map(10, 100, 10, 10, 1, 1, 20, 10);  // two columns for one, from (10, 100) at (1, 1)
    canvas->FillRect(11, 100, 12, 101);         // corners at columns 3 and 5
    EXPECT_EQ(canvas.Text(), ".........\n"
                             "...###...\n"
                             "...###...\n"
                             ".........\n");
}

TEST(PainterMapping, OrdersCornersAfterATurnedAxis)
{
    CCanvas canvas(6, 4);
    canvas.Brush(Black);
    canvas.Map(0, 0, 10, 10, 5, 3, -10, -10);
    canvas->FillRect(0, 0, 1, 2);
    EXPECT_EQ(canvas.Text(), "......\n"
                             "....##\n"
                             "....##\n"
                             "....##\n");
}

TEST(PainterMapping, OfAnExtentOfZeroIsOneToOne)
{
    CCanvas canvas(4, 4);
    canvas.Brush(Black);
    canvas.Map(0, 0, 0, 0, 1, 1, 0, 0);
    canvas->FillRect(0, 0, 0, 0);
    canvas.Map(0, 0, 5, 0, 2, 2, 0, 5);
    canvas->FillRect(1, 1, 1, 1);
    canvas.Map(0, 0, std::nan(""), std::numeric_limits<double>::infinity(), 3, 0, 7, 7);
    canvas->FillRect(0, 0, 0, 0);
    EXPECT_EQ(canvas.Text(), "...#\n"
                             ".#..\n"
                             "....\n"
                             "...#\n");
}

TEST(PainterMapping, KeepsWholePixelsWhole)
{
    CCanvas canvas(3, 1);
    canvas.Brush(Black);
    canvas.Map(0, 0, 49, 1, 0, 0, 1, 1);  // 49 forty-ninths are one pixel, not a little less
    canvas->FillRect(49, 0, 49, 0);
    EXPECT_EQ(canvas.Text(), ".#.\n");
}

TEST(PainterMapping, ConvertsPointsWithoutRounding)
{
    CCanvas canvas(1, 1);
    canvas.Map(10, 20, 4, 8, 100, 200, 2, -16);
    point<double> value{11, 21};
    canvas->ConvertCoord1(&value, false);
    EXPECT_EQ(value, (point<double>{100.5, 198}));
    canvas->DeconvertCoord1(&value, false);
    EXPECT_EQ(value, (point<double>{11, 21}));
    canvas->ConvertCoord1(&value, true);  // a distance
    EXPECT_EQ(value, (point<double>{5.5, -42}));
    canvas->DeconvertCoord1(&value, true);
    EXPECT_EQ(value, (point<double>{11, 21}));
}

TEST(PainterMapping, ConvertsRectanglesWithoutReorderingTheirCorners)
{
    CCanvas canvas(1, 1);
    canvas.Map(0, 0, 1, 1, 10, 5, -1, 2);
    point<double> corners[] = {{1, 2}, {3, 4}};
    canvas->ConvertCoord2(corners, false);
    EXPECT_EQ(corners[0], (point<double>{9, 9}));
    EXPECT_EQ(corners[1], (point<double>{7, 13}));
    rectangle<double> rect{1, 2, 3, 4};
    canvas->ConvertCoord2(&rect, false);
    EXPECT_EQ(rect, (rectangle<double>{9, 9, 7, 13}));
    canvas->DeconvertCoord2(&rect, false);
    EXPECT_EQ(rect, (rectangle<double>{1, 2, 3, 4}));
    canvas->DeconvertCoord2(&rect, true);
    EXPECT_EQ(rect, (rectangle<double>{-1, 1, -3, 2}));
}

TEST(PainterMapping, IsStoredAndReturnedAsGiven)
{
    CCanvas canvas(1, 1);
    IPainter::CoordInfo info;
    info.m_Flag1 = info.m_Flag2 = info.m_Flag3 = true;
    info.m_LogicalOrigin = {1, 2};
    info.m_LogicalExtent = {0, -4};
    info.m_DeviceOrigin = {5, 6};
    info.m_DeviceExtent = {7, 8};
    info.m_Scale = 9;
    canvas->SetCoordSystem(static_cast<IPainter::MapMode>(5), &info);
    IPainter::MapMode mode{};
    IPainter::CoordInfo read;
    canvas->GetCoordSystem(mode, &read);
    EXPECT_EQ(mode, 5);
    EXPECT_EQ(read, info);
    point<double> value{1, -2};
    canvas->ConvertCoord1(&value, false);  // unknown modes use the record; so 6 + (-2 - 2) * 8 / -4
    EXPECT_EQ(value, (point<double>{5, 14}));
}

TEST(PainterMapping, OfTheDeviceModeTakesNoNoticeOfTheRecord)
{
    CCanvas canvas(1, 1);
    IPainter::CoordInfo info;
    info.m_DeviceOrigin = {5, 6};
    canvas->SetCoordSystem(IPainter::mmDevice, &info);
    point<double> value{1, 2};
    canvas->ConvertCoord1(&value, false);
    EXPECT_EQ(value, (point<double>{1, 2}));
}

// Clip -------------------------------------------------------------------------------------------------------------

TEST(PainterClip, IsAllZeroAtFirstAndAfterAReset)
{
    CCanvas canvas(4, 4);
    EXPECT_TRUE(canvas->GetClipRect().IsZero());
    canvas->SetClipRect(1, 1, 2, 2, false);
    EXPECT_FALSE(canvas->GetClipRect().IsZero());
    canvas->ResetClip();
    EXPECT_TRUE(canvas->GetClipRect().IsZero());
}

TEST(PainterClip, SetInLogicalUnitsIncludesItsEdges)
{
    CCanvas canvas(6, 3);
    canvas.Shift(1, 0);
    canvas->SetClipRect(1, 0, 3, 1, false);
    EXPECT_EQ(canvas->GetClipRect(), (rectangle<double>{2, 0, 5, 2}));
    canvas.Brush(Black);
    canvas->FillRect(-10, -10, 10, 10);
    EXPECT_EQ(canvas.Text(), "..###.\n"
                             "..###.\n"
                             "......\n");
}

TEST(PainterClip, NarrowsWithEachFurtherRectangle)
{
    CCanvas canvas(6, 3);
    canvas->SetClipRect(0, 0, 3, 1, false);
    canvas->SetClipRect(2, 1, 5, 2, false);
    EXPECT_EQ(canvas->GetClipRect(), (rectangle<double>{2, 1, 4, 2}));
    canvas.Brush(Black);
    canvas->FillRect(0, 0, 5, 2);
    EXPECT_EQ(canvas.Text(), "......\n"
                             "..##..\n"
                             "......\n");
}

TEST(PainterClip, LeavesOutWhatIsExcluded)
{
    CCanvas canvas(7, 5);
    canvas->SetClipRect(1, 0, 5, 4, false);
    canvas->SetClipRect(2, 1, 3, 2, true);
    canvas->SetClipRect(3, 2, 4, 3, true);
    EXPECT_EQ(canvas->GetClipRect(), (rectangle<double>{1, 0, 6, 5}));
    canvas.Brush(Black);
    canvas->FillRect(0, 0, 6, 4);
    EXPECT_EQ(canvas.Text(), ".#####.\n"
                             ".#..##.\n"
                             ".#...#.\n"
                             ".##..#.\n"
                             ".#####.\n");
}

TEST(PainterClip, ExcludesFromTheWholeSurfaceWhereThereIsNone)
{
    CCanvas canvas(4, 3);
    canvas->SetClipRect(1, 1, 2, 5, true);
    EXPECT_EQ(canvas->GetClipRect(), (rectangle<double>{0, 0, 4, 3}));
    canvas.Brush(Black);
    canvas->FillRect(0, 0, 3, 2);
    EXPECT_EQ(canvas.Text(), "####\n"
                             "#..#\n"
                             "#..#\n");
}

TEST(PainterClip, NarrowsWhatAnExclusionHasLeft)
{
    CCanvas canvas(5, 3);
    canvas->SetClipRect(2, 0, 2, 1, true);
    canvas->SetClipRect(1, 1, 3, 2, false);
    EXPECT_EQ(canvas->GetClipRect(), (rectangle<double>{1, 1, 4, 3}));
    canvas.Brush(Black);
    canvas->FillRect(0, 0, 4, 2);
    EXPECT_EQ(canvas.Text(), ".....\n"
                             ".#.#.\n"
                             ".###.\n");
}

TEST(PainterClip, OfNothingIsNotTakenForNoClip)
{
    CCanvas canvas(3, 1);
    canvas.Brush(Black);
    canvas->SetClipRect(0, 0, 0, 0, false);
    canvas->SetClipRect(2, 0, 2, 0, false);
    rectangle<double> const nothing = canvas->GetClipRect();
    EXPECT_FALSE(nothing.IsZero());
    EXPECT_TRUE(nothing.IsEmpty());
    canvas->FillRect(0, 0, 2, 0);
    EXPECT_EQ(canvas.Text(), "...\n");

    canvas->ResetClip();
    canvas->SimpleSetClipRect(nothing, false);  // put back, it still lets nothing through
    EXPECT_FALSE(canvas->GetClipRect().IsZero());
    canvas->FillRect(0, 0, 2, 0);
    canvas->SetClipRect(0, 0, 2, 0, false);
    canvas->FillRect(0, 0, 2, 0);
    EXPECT_EQ(canvas.Text(), "...\n");
}

TEST(PainterClip, OfWhatIsWhollyExcludedLetsNothingThrough)
{
    CCanvas canvas(3, 1);
    canvas.Brush(Black);
    canvas->SetClipRect(0, 0, 2, 0, true);
    EXPECT_FALSE(canvas->GetClipRect().IsZero());
    canvas->FillRect(0, 0, 2, 0);
    canvas->SetClipRect(0, 0, 0, 0, true);
    canvas->FillRect(0, 0, 2, 0);
    EXPECT_EQ(canvas.Text(), "...\n");
}

TEST(PainterClip, OfDevicePixelsReplacesAndRoundsOutward)
{
    CCanvas canvas(6, 4);
    canvas.Shift(2, 0);  // not used for device pixels
    canvas->SetClipRect(0, 0, 0, 0, false);
    canvas->SimpleSetClipRect({1.9, 0.5, 3.1, 2}, false);
    EXPECT_EQ(canvas->GetClipRect(), (rectangle<double>{1, 0, 4, 2}));
    canvas->SimpleSetClipRect({-3.5, -0.5, 1, 1}, false);
    EXPECT_EQ(canvas->GetClipRect(), (rectangle<double>{-4, -1, 1, 1}));
}

TEST(PainterClip, OfDevicePixelsAllZeroIsNone)
{
    CCanvas canvas(2, 1);
    canvas->SetClipRect(0, 0, 0, 0, false);
    canvas->SimpleSetClipRect({}, false);
    EXPECT_TRUE(canvas->GetClipRect().IsZero());
    canvas.Brush(Black);
    canvas->FillRect(0, 0, 1, 0);
    EXPECT_EQ(canvas.Text(), "##\n");
}

TEST(PainterClip, OfDevicePixelsInExchangedOrderIsNothing)
{
    CCanvas canvas(4, 1);
    canvas->SimpleSetClipRect({3, 0, 1, 1}, false);
    EXPECT_TRUE(canvas->GetClipRect().IsEmpty());
    EXPECT_FALSE(canvas->GetClipRect().IsZero());
    canvas.Brush(Black);
    canvas->FillRect(0, 0, 3, 0);
    EXPECT_EQ(canvas.Text(), "....\n");
}

TEST(PainterClip, OfDevicePixelsCanExclude)
{
    CCanvas canvas(4, 2);
    canvas->SimpleSetClipRect({1, 0, 3, 1}, true);
    canvas.Brush(Black);
    canvas->FillRect(0, 0, 3, 1);
    EXPECT_EQ(canvas.Text(), "#..#\n"
                             "####\n");
}

TEST(PainterClip, StandsStillWhileTheMappingChanges)
{
    CCanvas canvas(4, 1);
    canvas->SetClipRect(1, 0, 2, 0, false);
    canvas.Shift(-5, 0);
    canvas.Brush(Black);
    canvas->FillRect(0, 0, 100, 0);
    EXPECT_EQ(canvas.Text(), ".##.\n");
}

TEST(PainterClip, OrdersItsCornersOnATurnedAxis)
{
    CCanvas canvas(6, 1);
    canvas.Map(0, 0, 1, 1, 5, 0, -1, 1);
    canvas->SetClipRect(1, 0, 3, 0, false);
    EXPECT_EQ(canvas->GetClipRect(), (rectangle<double>{2, 0, 5, 1}));
}

// Brackets ---------------------------------------------------------------------------------------------------------

class CPainterBracket : public testing::Test
{
protected:
    CPixelBuffer m_Pixels{size<int>{4, 2}};
    CPixelDevice m_Device{m_Pixels};
    CBasePainter m_Painter{m_Device, false};
};

TEST_F(CPainterBracket, TellsWhetherAPaintIsOpen)
{
    EXPECT_FALSE(m_Painter.m_Painting);
    m_Painter.BeginPaint(IPainter::ssMeasure);
    EXPECT_TRUE(m_Painter.m_Painting);
    m_Painter.BeginPaint(IPainter::ssPaint);
    m_Painter.EndPaint();
    EXPECT_TRUE(m_Painter.m_Painting);
    m_Painter.EndPaint();
    EXPECT_FALSE(m_Painter.m_Painting);
    m_Painter.EndPaint();  // one too many
    EXPECT_FALSE(m_Painter.m_Painting);
    m_Painter.BeginPaint(IPainter::ssPaint);
    EXPECT_TRUE(m_Painter.m_Painting);
    m_Painter.EndPaint();
    EXPECT_FALSE(m_Painter.m_Painting);
}

TEST_F(CPainterBracket, OfPaintingBeginsWithIdentityNoClipAndDefaultTools)
{
    IPainter::CoordInfo info;
    info.m_DeviceOrigin = {1, 1};
    m_Painter.BeginPaint(IPainter::ssPaint);
    m_Painter.SetCoordSystem(IPainter::mmCustom, &info);
    m_Painter.SetClipRect(0, 0, 0, 0, false);
    m_Painter.SetPen({Red, pen::psDot, 5});
    m_Painter.SetBrush({Red, brush::bsNone});
    m_Painter.SetTextColor(Red);
    m_Painter.SetBkColor(Red);
    m_Painter.SetDrawMode(IPainter::roXor);
    m_Painter.m_DisabledMode = true;
    font big;
    big.size = 30;
    m_Painter.SetFont(big);
    m_Painter.EndPaint();

    m_Painter.BeginPaint(IPainter::ssPaint);
    IPainter::MapMode mode{};
    IPainter::CoordInfo read;
    m_Painter.GetCoordSystem(mode, &read);
    EXPECT_EQ(mode, IPainter::mmDevice);
    EXPECT_TRUE(m_Painter.GetClipRect().IsZero());
    EXPECT_EQ(m_Painter.GetPen(), pen());
    EXPECT_EQ(m_Painter.GetBrush(), brush());
    EXPECT_EQ(m_Painter.GetTextColor(), Black);
    EXPECT_EQ(m_Painter.GetBkColor(), White);
    EXPECT_EQ(m_Painter.GetDrawMode(), IPainter::roCopy);
    EXPECT_EQ(m_Painter.GetFont(), font());
    EXPECT_FALSE(m_Painter.m_DisabledMode);
    EXPECT_FALSE(m_Painter.m_Palette);
    m_Painter.EndPaint();
}

TEST_F(CPainterBracket, OfMeasuringTouchesNothing)
{
    IPainter::CoordInfo info;
    info.m_DeviceOrigin = {1, 0};
    m_Painter.BeginPaint(IPainter::ssPaint);
    m_Painter.SetCoordSystem(IPainter::mmCustom, &info);
    m_Painter.SetClipRect(0, 0, 1, 0, false);
    m_Painter.SetDrawMode(IPainter::roAnd);
    m_Painter.SetBrush({Black, brush::bsSolid});
    font large;
    large.size = 20;
    m_Painter.SetFont(large);

    m_Painter.BeginPaint(IPainter::ssMeasure);
    EXPECT_EQ(m_Painter.GetClipRect(), (rectangle<double>{1, 0, 3, 1}));
    EXPECT_EQ(m_Painter.GetDrawMode(), IPainter::roAnd);
    EXPECT_EQ(m_Painter.GetFont(), large);
    point<double> value{0, 0};
    m_Painter.ConvertCoord1(&value, false);
    EXPECT_EQ(value, (point<double>{1, 0}));
    m_Painter.EndPaint();
    m_Painter.FillRect(0, 0, 5, 5);
    EXPECT_EQ(ToText(m_Pixels), ".##.\n"
                                "....\n");
}

TEST_F(CPainterBracket, WithinAnotherPutsBackMappingClipAndFont)
{
    for (IPainter::StdSettings inner : {IPainter::ssPaint, IPainter::ssMeasure})
    {
        IPainter::CoordInfo info;
        info.m_DeviceOrigin = {1, 0};
        font large;
        large.size = 20;
        m_Painter.BeginPaint(IPainter::ssPaint);
        m_Painter.SetCoordSystem(IPainter::mmCustom, &info);
        m_Painter.SetClipRect(0, 0, 1, 0, false);
        m_Painter.SetFont(large);

        m_Painter.BeginPaint(inner);
        m_Painter.SetCoordSystem(IPainter::mmDevice, nullptr);
        m_Painter.ResetClip();
        m_Painter.SetClipRect(3, 1, 3, 1, false);
        m_Painter.SetFont(font());
        m_Painter.EndPaint();

        IPainter::MapMode mode{};
        IPainter::CoordInfo read;
        m_Painter.GetCoordSystem(mode, &read);
        EXPECT_EQ(mode, IPainter::mmCustom);
        EXPECT_EQ(read, info);
        EXPECT_EQ(m_Painter.GetClipRect(), (rectangle<double>{1, 0, 3, 1}));
        EXPECT_EQ(m_Painter.GetFont(), large);
        m_Painter.EndPaint();
    }
}

TEST_F(CPainterBracket, WithinAnotherLeavesTheTools)
{
    m_Painter.BeginPaint(IPainter::ssPaint);
    m_Painter.SetBrush({Red, brush::bsSolid});
    m_Painter.m_DisabledMode = true;
    m_Painter.BeginPaint(IPainter::ssPaint);
    EXPECT_EQ(m_Painter.GetBrush().color, Red);
    EXPECT_TRUE(m_Painter.GetClipRect().IsZero());
    m_Painter.EndPaint();
    EXPECT_EQ(m_Painter.GetBrush().color, Red);
    EXPECT_TRUE(m_Painter.m_DisabledMode);
}

TEST_F(CPainterBracket, AnswersTheFullPaintOnlyAtTheEndOfTheOutermostPaint)
{
    EXPECT_TRUE(m_Painter.IsFullPaint());
    m_Painter.BeginPaint(IPainter::ssMeasure);
    m_Painter.EndPaint();
    EXPECT_TRUE(m_Painter.IsFullPaint());

    m_Painter.BeginPaint(IPainter::ssPaint);
    m_Painter.BeginPaint(IPainter::ssPaint);
    m_Painter.EndPaint();
    m_Painter.BeginPaint(IPainter::ssMeasure);
    m_Painter.EndPaint();
    EXPECT_TRUE(m_Painter.IsFullPaint());
    m_Painter.EndPaint();
    EXPECT_FALSE(m_Painter.IsFullPaint());

    m_Painter.RequestFullPaint();
    EXPECT_TRUE(m_Painter.IsFullPaint());
    m_Painter.BeginPaint(IPainter::ssMeasure);
    m_Painter.BeginPaint(IPainter::ssPaint);
    EXPECT_TRUE(m_Painter.IsFullPaint());
    m_Painter.EndPaint();
    EXPECT_FALSE(m_Painter.IsFullPaint());
    m_Painter.EndPaint();
    EXPECT_FALSE(m_Painter.IsFullPaint());
}

TEST_F(CPainterBracket, KeepsAFullPaintThatIsAskedForDuringAPaint)
{
    m_Painter.BeginPaint(IPainter::ssPaint);
    m_Painter.EndPaint();
    m_Painter.BeginPaint(IPainter::ssPaint);
    m_Painter.RequestFullPaint();
    m_Painter.EndPaint();
    EXPECT_TRUE(m_Painter.IsFullPaint());
    m_Painter.BeginPaint(IPainter::ssPaint);
    m_Painter.EndPaint();
    EXPECT_FALSE(m_Painter.IsFullPaint());
}

TEST_F(CPainterBracket, ThatIsAbandonedLeavesTheFullPaintOpen)
{
    m_Painter.BeginPaint(IPainter::ssPaint);
    m_Painter.BeginPaint(IPainter::ssMeasure);
    m_Painter.SetClipRect(0, 0, 0, 0, false);
    EXPECT_EQ(m_Painter.GetBracketDepth(), 2);
    m_Painter.AbandonBrackets(0);
    EXPECT_EQ(m_Painter.GetBracketDepth(), 0);
    EXPECT_FALSE(m_Painter.m_Painting);
    EXPECT_TRUE(m_Painter.IsFullPaint());
    EXPECT_TRUE(m_Painter.GetClipRect().IsZero());
}

TEST_F(CPainterBracket, OfAPictureIsAlwaysAFullPaint)
{
    CBasePainter painter(m_Device, true);
    painter.BeginPaint(IPainter::ssPaint);
    EXPECT_TRUE(painter.IsFullPaint());
    painter.EndPaint();
    EXPECT_TRUE(painter.IsFullPaint());
}

}  // namespace vexelbase::tests
