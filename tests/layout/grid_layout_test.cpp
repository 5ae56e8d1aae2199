// Cells in rows and columns sized by their largest cells.

#include "tests/support/call_log.h"
#include "vexel/layout/grid_layout.h"

#include <gtest/gtest.h>

#include <functional>

using namespace vexel;

namespace
{

class CCells : public IGridLayoutItems
{
public:
    std::vector<std::vector<size<int>>> m_Rows;
    int m_ColumnCount = 0;
    std::vector<int> m_ColumnGaps;
    std::vector<int> m_RowGaps;
    std::function<void(int row, int column, rectangle<int>& rect)> m_OnPlace;
    std::function<size<int>(int row, int column, int asked)> m_OnSize;  // `asked`: how often any size was asked before

    std::string m_Places;
    std::string m_Asked;
    int m_AskedCount = 0;

    int GetColumnCount() override { return m_ColumnCount; }
    int GetRowCount() override { return static_cast<int>(m_Rows.size()); }
    size<int> GetItemSize(int row, int column) override
    {
        m_Asked += (m_Asked.empty() ? "" : " ") + std::to_string(row) + "," + std::to_string(column);
        int const asked = m_AskedCount++;
        return m_OnSize ? m_OnSize(row, column, asked)
                        : m_Rows.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
    }
    void SetItemRect(int row, int column, rectangle<int>& rect) override
    {
        m_Places +=
            (m_Places.empty() ? "" : ", ") + std::to_string(row) + "," + std::to_string(column) + ": " + Text(rect);
        if (m_OnPlace)
            m_OnPlace(row, column, rect);
    }
    int GetColumnGap(int column) override { return m_ColumnGaps.at(static_cast<std::size_t>(column)); }
    int GetRowGap(int row) override { return m_RowGaps.at(static_cast<std::size_t>(row)); }
    int GetTopMargin() override { return 2; }
    int GetLeftMargin() override { return 4; }
};

// Two rows of two cells: columns of 15 and 20 pixels, rows of 8 and 12. The grid starts at (4, 2).
class GridLayout : public testing::Test
{
protected:
    GridLayout()
    {
        m_Cells.m_Rows = {{{10, 5}, {20, 8}}, {{15, 12}, {7, 3}}};
        m_Cells.m_ColumnCount = 2;
        m_Cells.m_ColumnGaps = {6, 1};
        m_Cells.m_RowGaps = {3, 9};
        m_Layout.SetItems(&m_Cells);
    }
    std::string Place()
    {
        m_Cells.m_Places.clear();
        m_Cells.m_Asked.clear();
        m_Cells.m_AskedCount = 0;
        m_Layout.Update();
        return m_Cells.m_Places;
    }

    CCells m_Cells;
    CGridLayout m_Layout;
};

TEST_F(GridLayout, StartsWithoutExtentAndWithoutCells)
{
    CGridLayout layout;
    EXPECT_EQ(layout.GetSize(), (size<int>{0, 0}));
    layout.Update();
    EXPECT_EQ(layout.GetSize(), (size<int>{0, 0}));
}

TEST_F(GridLayout, PlacesCellsColumnByColumnInTheLargestExtents)
{
    EXPECT_EQ(Place(), "0,0: 4 2 19 10, 1,0: 4 14 19 26, 0,1: 26 2 46 10, 1,1: 26 14 46 26");
}

TEST_F(GridLayout, ItsSizeIsWhereTheNextColumnAndRowWouldStart)
{
    Place();
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{48, 36}));
}

TEST_F(GridLayout, WithoutAProviderAnUpdateChangesNothing)
{
    Place();
    m_Layout.SetItems(nullptr);
    m_Layout.Update();
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{48, 36}));
}

TEST_F(GridLayout, WithoutColumnsItHasNoExtentAndAsksForNoSize)
{
    Place();
    for (int const count : {0, -1})
    {
        m_Cells.m_ColumnCount = count;
        EXPECT_EQ(Place(), "");
        EXPECT_EQ(m_Cells.m_Asked, "");
        EXPECT_EQ(m_Layout.GetSize(), (size<int>{0, 0}));
    }
}

TEST_F(GridLayout, WithoutRowsItsColumnsHaveOnlyGapsAndItsHeightIsTheTopMargin)
{
    m_Cells.m_Rows.clear();
    EXPECT_EQ(Place(), "");
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{13, 2})) << "4 + 0 + 6 + 1, + 0 + 1 + 1";
}

TEST_F(GridLayout, AsksForAllSizesOnceForEachColumnRowByRow)
{
    Place();
    EXPECT_EQ(m_Cells.m_Asked, "0,0 0,1 1,0 1,1 0,0 0,1 1,0 1,1");
}

TEST_F(GridLayout, RowHeightsAreThoseOfTheFirstPassAndWidthsThoseOfTheirOwn)
{
    // In the second pass everything is larger by 100.
    m_Cells.m_OnSize = [this](int row, int column, int asked) {
        size<int> extent = m_Cells.m_Rows[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
        if (asked >= 4)
            extent = {extent.width + 100, extent.height + 100};
        return extent;
    };
    EXPECT_EQ(Place(), "0,0: 4 2 19 10, 1,0: 4 14 19 26, 0,1: 26 2 146 10, 1,1: 26 14 146 26");
}

TEST_F(GridLayout, ARowWithoutHeightTakesNoGapAndNoStep)
{
    m_Cells.m_Rows = {{{10, 5}}, {{10, 0}}, {{10, 7}}};
    m_Cells.m_ColumnCount = 1;
    m_Cells.m_RowGaps = {3, 40, 9};
    EXPECT_EQ(Place(), "0,0: 4 2 14 7, 1,0: 4 11 14 11, 2,0: 4 11 14 18");
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{21, 28}));
}

TEST_F(GridLayout, AProviderThatMakesTopAndBottomEqualStopsTheRowStepForThatCell)
{
    m_Cells.m_OnPlace = [](int row, int column, rectangle<int>& rect) {
        if (row == 0 && column == 0)
            rect.top = rect.bottom;
    };
    EXPECT_EQ(Place(), "0,0: 4 2 19 10, 1,0: 4 10 19 22, 0,1: 26 2 46 10, 1,1: 26 14 46 26");
    m_Cells.m_OnPlace = [](int row, int, rectangle<int>& rect) {
        if (row == 0)
            rect.bottom = rect.top;
    };
    EXPECT_EQ(Place(), "0,0: 4 2 19 10, 1,0: 4 2 19 14, 0,1: 26 2 46 10, 1,1: 26 2 46 14");
}

TEST_F(GridLayout, TheNextRowFollowsTheBottomThatTheProviderLeft)
{
    m_Cells.m_OnPlace = [](int row, int column, rectangle<int>& rect) {
        if (row == 0 && column == 1)
            rect.bottom += 30;
        if (row == 1 && column == 1)
            rect.top += 2;
    };
    EXPECT_EQ(Place(), "0,0: 4 2 19 10, 1,0: 4 14 19 26, 0,1: 26 2 46 10, 1,1: 26 44 46 56");
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{48, 66})) << "the height is the last column's";
}

TEST_F(GridLayout, EachColumnStartsAtTheTopMargin)
{
    m_Cells.m_Rows = {{{1, 5}, {2, 5}, {3, 5}}};
    m_Cells.m_ColumnCount = 3;
    m_Cells.m_ColumnGaps = {0, 0, 0};
    EXPECT_EQ(Place(), "0,0: 4 2 5 7, 0,1: 6 2 8 7, 0,2: 9 2 12 7");
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{13, 11}));
}

TEST_F(GridLayout, LaysOutAnewWithEachUpdate)
{
    Place();
    m_Cells.m_Rows = {{{1, 1}, {1, 1}}};
    EXPECT_EQ(Place(), "0,0: 4 2 5 3, 0,1: 12 2 13 3");
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{15, 7}));
}

}  // namespace
