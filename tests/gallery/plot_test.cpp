// The plot of the charts: what it shows of its points, and how it is moved and zoomed.

#include "examples/chart/plot.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace vexel;
using namespace vexel::test;

namespace
{

_color const g_White = _color::FromRgb(255, 255, 255);

// A plot of 100 x 80 pixels without axes; its bounds end at 99 and 79.
class Plot : public testing::Test
{
protected:
    Plot() { m_Plot->SetBkColor(g_White); }

    void Show(std::vector<double> x, std::vector<double> y)
    {
        m_Series = chart::CSeries("one", _color::FromRgb(0, 0, 0), std::move(x), std::move(y));
        m_Plot->AddSeries(m_Series);
        m_Plot->Fit();
        m_Host.Paint();
    }
    void See(double left, double right, double bottom, double top)
    {
        m_Horz.SetMeasure({right - left, 100});
        m_Horz.SetStart(left);
        m_Vert.SetMeasure({top - bottom, 80});
        m_Vert.SetStart(-top);
        m_Plot->ShowRange();
        m_Host.Paint();
    }
    bool IsInk(int x, int y) { return m_Host.Pixels().Row(y)[x] != 0xFFFFFFFFu; }
    // The rows of a column that have ink: "10-20 30".
    std::string Ink(int x)
    {
        std::string text;
        for (int y = 0, from = 0; y < 80; y = from)
        {
            for (from = y; from < 80 && IsInk(x, from);)
                ++from;
            if (from > y)
                text += (text.empty() ? "" : " ") + std::to_string(y) +
                        (from - 1 > y ? "-" + std::to_string(from - 1) : "");
            from = std::max(from, y + 1);
        }
        return text;
    }

    chart::CRange m_Horz;
    chart::CRange m_Vert;
    CTestHost m_Host{100, 80};
    chart::CPlot* m_Plot = new chart::CPlot(m_Host.Root(), m_Horz, m_Vert);
    chart::CSeries m_Series;
};

TEST_F(Plot, FitsAllPointsWithAMargin)
{
    Show({0, 100}, {-10, 40});
    EXPECT_DOUBLE_EQ(m_Horz.GetStart(), -4);
    EXPECT_DOUBLE_EQ(m_Horz.GetUnitsOfPixel(), 108.0 / 99);
    EXPECT_DOUBLE_EQ(m_Vert.GetStart(), -42);
    EXPECT_DOUBLE_EQ(m_Vert.GetUnitsOfPixel(), 54.0 / 79);
}

TEST_F(Plot, BeginsItsRangeAtARoundNumber)
{
    Show({3, 80}, {1, 2});
    EXPECT_EQ(m_Horz.GetFrom(), -100);  // 3 less a margin of 3.08, in hundreds
    EXPECT_EQ(m_Horz.GetTo(), 100);
    m_Plot->SetGrain(24);
    m_Plot->Fit();
    EXPECT_EQ(m_Horz.GetFrom(), -240);
    EXPECT_EQ(m_Horz.GetTo(), 240);
}

TEST_F(Plot, OfNothingOrOfOnePointHasARangeAllTheSame)
{
    Show({}, {});
    EXPECT_DOUBLE_EQ(m_Horz.GetStart(), -0.04);
    EXPECT_DOUBLE_EQ(m_Horz.GetUnitsOfPixel(), 1.08 / 99);
    Show({5}, {5});
    EXPECT_DOUBLE_EQ(m_Horz.GetStart(), 4.46);
    Show({1, 2}, {std::nan(""), std::nan("")});
    EXPECT_DOUBLE_EQ(m_Vert.GetUnitsOfPixel(), 1.08 / 79);
}

TEST_F(Plot, JoinsItsPointsAndLeavesGaps)
{
    Show({0, 50, 60, 100}, {20, 20, std::nan(""), 20});
    See(0, 100, 0, 40);
    EXPECT_EQ(Ink(25), "40-41");  // a smoothed line shares out its pixel
    EXPECT_EQ(Ink(55), "");
    EXPECT_EQ(Ink(80), "");  // nothing leads to the last point
}

TEST_F(Plot, DrawsLinesThatComeFromFarBeyondTheView)
{
    Show({-1e9, 1e9}, {-1e9, 1e9});
    See(0, 100, 0, 80);
    EXPECT_TRUE(IsInk(40, 40));
    EXPECT_FALSE(IsInk(40, 60));
}

TEST_F(Plot, OfManyPointsShowsTheBandOfEachColumn)
{
    std::vector<double> x, y;
    for (int i = 0; i < 100000; ++i)  // a thousand a pixel
    {
        x.push_back(i / 1000.0);
        y.push_back(i % 2 ? 30 : 10);
    }
    y[50500] = 35;
    Show(std::move(x), std::move(y));
    See(0, 100, 0, 80);
    EXPECT_EQ(Ink(20), "50-70");
    EXPECT_EQ(Ink(50), "45-70");  // one point of a thousand
    EXPECT_EQ(Ink(51), "50-70");
}

TEST_F(Plot, BandsReachToWhereTheColumnBeforeEnded)
{
    std::vector<double> x, y;
    for (int i = 0; i < 1000; ++i)  // ten a pixel; up by 20 behind the fiftieth
    {
        x.push_back(i / 10.0);
        y.push_back(i < 500 ? 20 : 40);
    }
    Show(std::move(x), std::move(y));
    See(0, 100, 0, 80);
    EXPECT_EQ(Ink(20), "60-61");
    EXPECT_EQ(Ink(80), "40-41");
    for (int row = 40; row <= 60; ++row)
        EXPECT_TRUE(IsInk(49, row) || IsInk(50, row)) << row;
}

TEST_F(Plot, OfManyPointsOnACurveShowsASmoothLine)
{
    std::vector<double> x, y;
    for (int i = 0; i < 10000; ++i)  // a hundred a pixel, 40 up over the whole width
    {
        x.push_back(i / 100.0);
        y.push_back(20 + i / 250.0);
    }
    Show(std::move(x), std::move(y));
    See(0, 100, 0, 80);
    int shades = 0;
    for (int column = 5; column < 95; ++column)
        for (int row = 0; row < 80; ++row)
        {
            std::uint32_t const pixel = m_Host.Pixels().Row(row)[column];
            double const line = 60 - column * 0.4;
            ASSERT_TRUE(pixel == 0xFFFFFFFFu || std::abs(row - line) < 2.5) << column << ", " << row;
            shades += pixel != 0xFFFFFFFFu && (pixel & 0xFFu) > 0x60u ? 1 : 0;
        }
    EXPECT_GT(shades, 60);  // steps of whole pixels would have none between
    for (int column = 5; column < 95; ++column)
        EXPECT_NE(Ink(column), "") << column;
}

TEST_F(Plot, FollowsTheMouse)
{
    Show({0, 100}, {0, 80});
    See(10, 60, 10, 50);  // half a unit a pixel
    m_Host.Mouse().Drag(*m_Plot, 30, 30, 50, 20);
    m_Host.Mouse().Release();
    EXPECT_DOUBLE_EQ(m_Horz.GetStart(), 0);
    EXPECT_DOUBLE_EQ(m_Vert.GetStart(), -45);
    m_Host.Mouse().Move(*m_Plot, 10, 10);
    EXPECT_DOUBLE_EQ(m_Horz.GetStart(), 0);
}

TEST_F(Plot, ZoomsAboutThePointer)
{
    Show({0, 100}, {0, 80});
    See(0, 100, 0, 80);
    m_Host.Mouse().Wheel(*m_Plot, 50, 20, 1);
    EXPECT_DOUBLE_EQ(m_Horz.GetUnitsOfPixel(), 0.8);
    EXPECT_DOUBLE_EQ(m_Horz.GetStart() + 50 * 0.8, 50);
    EXPECT_DOUBLE_EQ(m_Vert.GetStart() + 20 * 0.8, -60);
    m_Host.Mouse().Wheel(*m_Plot, 50, 20, -1);
    EXPECT_DOUBLE_EQ(m_Horz.GetUnitsOfPixel(), 1);
}

TEST_F(Plot, ZoomsOneWayWithAKey)
{
    Show({0, 100}, {0, 80});
    See(0, 100, 0, 80);
    {
        CHoldKeys const hold(m_Host, ksShift);
        m_Host.Mouse().Wheel(*m_Plot, 0, 0, 1);
    }
    EXPECT_DOUBLE_EQ(m_Horz.GetUnitsOfPixel(), 0.8);
    EXPECT_DOUBLE_EQ(m_Vert.GetUnitsOfPixel(), 1);
    {
        CHoldKeys const hold(m_Host, ksControl);
        m_Host.Mouse().Wheel(*m_Plot, 0, 0, 1);
    }
    EXPECT_DOUBLE_EQ(m_Horz.GetUnitsOfPixel(), 0.8);
    EXPECT_DOUBLE_EQ(m_Vert.GetUnitsOfPixel(), 0.8);
}

TEST_F(Plot, ADoubleClickShowsAllAgain)
{
    Show({0, 100}, {0, 80});
    See(10, 20, 10, 20);
    m_Host.Mouse().DoubleClick(*m_Plot, 10, 10);
    EXPECT_DOUBLE_EQ(m_Horz.GetStart(), -4);
    EXPECT_DOUBLE_EQ(m_Vert.GetStart(), -83.2);
}

TEST_F(Plot, NumbersOnAnUpwardAxisGrowUpwards)
{
    chart::CUpwardAxis const axis(nullptr, {30, 30}, alLeft);
    EXPECT_EQ(axis.GetLabelText(-20, 10), "20");
    EXPECT_EQ(axis.GetLabelText(0, 10), "0");
    EXPECT_EQ(axis.GetLabelText(2.5, 0.5), "-2.5");
}

}  // namespace
