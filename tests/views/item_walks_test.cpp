// Which items are in view, and where.

#include "tests/support/recording_painter.h"
#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/discrete_item_view_model.h"
#include "vexel/views/item_walks.h"

#include <gtest/gtest.h>

#include <climits>
#include <ostream>

namespace vexelbase
{

static void PrintTo(range<int> const& value, std::ostream* out)
{
    *out << value.first << ".." << value.second;
}

}  // namespace vexelbase

using namespace vexel;

namespace
{

using Span = range<int>;

constexpr Span None{-1, -1};

class Rows : public testing::Test
{
protected:
    Rows()
    {
        m_Rows.SetDefaultItemSize(20);
        m_Rows.SetCount(10);
        m_Columns.SetDefaultItemSize(20);
        m_Columns.SetCount(10);
    }

    CDefaultDiscreteItemViewModel m_Rows;
    CDefaultColumnViewModel m_Columns;
};

// The last start -----------------------------------------------------------------------------------------------------
TEST_F(Rows, TheLastStartLeavesOutARowThatWouldJustFit)
{
    m_Rows.SetViewSize(50, false);
    EXPECT_EQ(Utils::CalcMaxStart(&m_Rows), 8);
    m_Rows.SetViewSize(60, false);
    EXPECT_EQ(Utils::CalcMaxStart(&m_Rows), 8);
    m_Rows.SetViewSize(61, false);
    EXPECT_EQ(Utils::CalcMaxStart(&m_Rows), 7);
}

TEST_F(Rows, TheLastStartIsTheLastRowIfThatAloneFits)
{
    m_Rows.SetViewSize(20, false);
    EXPECT_EQ(Utils::CalcMaxStart(&m_Rows), 9);
    m_Rows.SetViewSize(-1, false);
    EXPECT_EQ(Utils::CalcMaxStart(&m_Rows), 9);
    m_Rows.SetViewSize(21, false);
    EXPECT_EQ(Utils::CalcMaxStart(&m_Rows), 9);
}

TEST_F(Rows, TheLastStartIsZeroIfAllFit)
{
    m_Rows.SetViewSize(200, false);
    EXPECT_EQ(Utils::CalcMaxStart(&m_Rows), 1);
    m_Rows.SetViewSize(201, false);
    EXPECT_EQ(Utils::CalcMaxStart(&m_Rows), 0);
    m_Rows.SetCount(1);
    m_Rows.SetViewSize(5, false);
    EXPECT_EQ(Utils::CalcMaxStart(&m_Rows), 0);
    m_Rows.SetCount(0);
    EXPECT_EQ(Utils::CalcMaxStart(&m_Rows), 0);
}

TEST_F(Rows, TheStartThatLeavesAnItemTheLastOneInView)
{
    m_Rows.SetViewSize(70, false);
    m_Rows.SetItemSize(4, 35);
    EXPECT_EQ(Utils::CalcStart(&m_Rows, 8), 6);  // 70, 50, 30; row 5 would leave 10
    EXPECT_EQ(Utils::CalcStart(&m_Rows, 5), 4);  // 70, 50, 15
    EXPECT_EQ(Utils::CalcStart(&m_Rows, 4), 3);  // 70, 35, 15
    EXPECT_EQ(Utils::CalcStart(&m_Rows, 1), 0);
    EXPECT_EQ(Utils::CalcStart(&m_Rows, 0), 0);
    EXPECT_EQ(Utils::CalcStart(&m_Rows, -1), 0);
    EXPECT_EQ(Utils::GetStartItem(&m_Rows, 8), 6);
    EXPECT_EQ(Utils::GetStartItem(&m_Rows, -3), 0);
    m_Rows.SetViewSize(0, false);
    EXPECT_EQ(Utils::CalcStart(&m_Rows, 8), 8);
}

// The last visible item ----------------------------------------------------------------------------------------------
TEST_F(Rows, TheLastVisibleItemIsWhollyInside)
{
    m_Rows.SetViewSize(100, false);
    EXPECT_EQ(Utils::GetLastVisibleItem(&m_Rows), 4);
    m_Rows.SetViewSize(119, false);
    EXPECT_EQ(Utils::GetLastVisibleItem(&m_Rows), 4);
    m_Rows.SetViewSize(120, false);
    EXPECT_EQ(Utils::GetLastVisibleItem(&m_Rows), 5);
    m_Rows.SetItemSize(2, 50);
    EXPECT_EQ(Utils::GetLastVisibleItem(&m_Rows), 3);
}

TEST_F(Rows, TheLastVisibleItemIsAtLeastTheFirst)
{
    m_Rows.SetStartItem(3);
    EXPECT_EQ(Utils::GetLastVisibleItem(&m_Rows), 3);
    m_Rows.SetViewSize(19, false);
    EXPECT_EQ(Utils::GetLastVisibleItem(&m_Rows), 3);
}

TEST_F(Rows, TheLastVisibleItemIsAtMostTheLast)
{
    m_Rows.SetViewSize(1000, false);
    EXPECT_EQ(Utils::GetLastVisibleItem(&m_Rows), 9);
    m_Rows.SetViewSize(50, false);
    m_Rows.SetStartItem(8);
    EXPECT_EQ(Utils::GetLastVisibleItem(&m_Rows), 9);
}

TEST(RowsWithoutItems, TheLastVisibleItemIsTheStart)
{
    CSimpleDiscreteItemViewModel rows;
    rows.SetViewSize(100, false);
    EXPECT_EQ(Utils::GetLastVisibleItem(&rows), 0);
    EXPECT_EQ(Utils::HitTest(&rows, 0), -1);
    EXPECT_EQ(Utils::CalcStart(&rows, 5), 0);
    EXPECT_EQ(Utils::GetItemsSize(&rows, 0, 5), 0);
    EXPECT_EQ(Utils::GetItemRange(&rows, 0, {0, 100}), None);
    EXPECT_EQ(Utils::GetItemIndexRange(&rows, 0, {0, 100}), None);
    EXPECT_EQ(Utils::GetWholeIndexRange(&rows, {0, 100}), None);
}

// Hit tests ----------------------------------------------------------------------------------------------------------
TEST_F(Rows, AHitTestFindsTheRowUnderAPixel)
{
    m_Rows.SetViewSize(100, false);
    m_Rows.SetStartItem(2);
    m_Rows.SetItemSize(3, 30);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 0), 2);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 19), 2);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 20), 3);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 49), 3);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 50), 4);
    EXPECT_EQ(Utils::HitTest(&m_Rows, -1), -1);
}

TEST_F(Rows, APositionAtTheViewSizeStillCounts)
{
    m_Rows.SetViewSize(100, false);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 100), 5);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 101), -1);
    m_Columns.SetViewSize(100, false);
    EXPECT_EQ(Utils::HitTest(&m_Columns, 100), 5);
    EXPECT_EQ(Utils::HitTest(&m_Columns, 101), -1);
}

TEST_F(Rows, BehindTheLastRowThereIsNone)
{
    m_Rows.SetCount(2);
    m_Rows.SetViewSize(100, false);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 39), 1);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 40), -1);
    m_Rows.SetCount(1);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 19), 0);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 20), -1);
}

TEST_F(Rows, AStretchedLastItemReachesToTheEndOfTheView)
{
    m_Rows.SetCount(2);
    m_Rows.SetViewSize(100, false);
    m_Rows.SetStretchLastItem(true);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 19), 0);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 40), 1);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 100), 1);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 101), -1);
    EXPECT_EQ(Utils::GetItemRange(&m_Rows, 40, {0, 100}), (Span{20, 100}));
    EXPECT_EQ(Utils::GetItemRange(&m_Rows, 19, {0, 100}), (Span{0, 19}));
    EXPECT_EQ(Utils::GetItemIndexRange(&m_Rows, 1, {0, 100}), (Span{20, 100}));
    EXPECT_EQ(Utils::GetItemIndexRange(&m_Rows, 1, {0, 30}), (Span{20, 39}));
    EXPECT_EQ(Utils::GetWholeIndexRange(&m_Rows, {0, 100}), (Span{0, 100}));
}

TEST_F(Rows, WithoutAViewNothingIsHit)
{
    EXPECT_EQ(Utils::HitTest(&m_Rows, 0), -1);
    EXPECT_EQ(Utils::HitTest(&m_Columns, 0), -1);
    m_Rows.SetViewSize(0, false);
    EXPECT_EQ(Utils::HitTest(&m_Rows, 0), 0);
}

TEST_F(Rows, AHitTestOfColumnsCountsFromTheOffset)
{
    m_Columns.SetViewSize(100, false);
    m_Columns.SetItemSize(1, 50);
    m_Columns.SetOffset(30);
    EXPECT_EQ(Utils::HitTest(&m_Columns, 0), 1);
    EXPECT_EQ(Utils::HitTest(&m_Columns, 39), 1);
    EXPECT_EQ(Utils::HitTest(&m_Columns, 40), 2);
}

TEST_F(Rows, TheWalkOfAHitTestMayBeginAnywhere)
{
    EXPECT_EQ(Utils::HitTestImpl(&m_Rows, 45, 3), 5);
    EXPECT_EQ(Utils::HitTestImpl(&m_Rows, 0, 9), 9);
    EXPECT_EQ(Utils::HitTestImpl(&m_Rows, 20, 9), -1);
    EXPECT_EQ(Utils::HitTestImpl(&m_Rows, 0, 10), -1);
    EXPECT_EQ(Utils::HitTestImpl(&m_Rows, 0, -1), -1);
    EXPECT_EQ(Utils::HitTestImpl(nullptr, 0, 0), -1);
    EXPECT_FALSE(Utils::HitTestTest(&m_Rows, 0));
    m_Rows.SetViewSize(5, false);
    EXPECT_TRUE(Utils::HitTestTest(&m_Rows, 0));
    EXPECT_TRUE(Utils::HitTestTest(&m_Rows, 5));
    EXPECT_FALSE(Utils::HitTestTest(&m_Rows, 6));
    EXPECT_FALSE(Utils::HitTestTest(&m_Rows, -1));
}

// Sums and spans -----------------------------------------------------------------------------------------------------
TEST_F(Rows, SizesAreSummedUpToTheHigherIndexOrTheCount)
{
    m_Rows.SetItemSize(3, 50);
    EXPECT_EQ(Utils::GetItemsSize(&m_Rows, 2, 5), 90);
    EXPECT_EQ(Utils::GetItemsSize(&m_Rows, 5, 2), 90);
    EXPECT_EQ(Utils::GetItemsSize(&m_Rows, 4, 4), 0);
    EXPECT_EQ(Utils::GetItemsSize(&m_Rows, 8, 40), 40);
    EXPECT_EQ(Utils::GetItemsSize(&m_Rows, 10, 40), 0);
    EXPECT_EQ(Utils::GetItemsSize(&m_Rows, -5, 1), 20);
    EXPECT_EQ(Utils::GetItemsSize(&m_Rows, -5, -1), 0);
}

TEST_F(Rows, TheOffsetOfAColumnIsTheSumBeforeIt)
{
    m_Columns.SetItemSize(3, 50);
    EXPECT_EQ(Utils::GetItemOffset(&m_Columns, 0), 0);
    EXPECT_EQ(Utils::GetItemOffset(&m_Columns, -4), 0);
    EXPECT_EQ(Utils::GetItemOffset(&m_Columns, 1), 20);
    EXPECT_EQ(Utils::GetItemOffset(&m_Columns, 4), 110);
    EXPECT_EQ(Utils::GetItemOffset(&m_Columns, 10), 230);
}

TEST_F(Rows, TheSpanOfAnItemRunsFromItsFirstToItsLastPixel)
{
    m_Rows.SetViewSize(100, false);
    m_Rows.SetStartItem(2);
    m_Rows.SetItemSize(3, 30);
    EXPECT_EQ(Utils::GetItemIndexRange(&m_Rows, 2, {0, 100}), (Span{0, 19}));
    EXPECT_EQ(Utils::GetItemIndexRange(&m_Rows, 3, {0, 100}), (Span{20, 49}));
    EXPECT_EQ(Utils::GetItemIndexRange(&m_Rows, 9, {0, 100}), (Span{150, 169}));
    EXPECT_EQ(Utils::GetItemIndexRange(&m_Rows, 0, {0, 100}), (Span{-40, -21}));
    EXPECT_EQ(Utils::GetItemIndexRange(&m_Rows, 3, {7, 100}), (Span{27, 56}));
    EXPECT_EQ(Utils::GetItemIndexRangeEx(&m_Rows, 3, {7, 100}), (Span{27, 56}));
    EXPECT_EQ(Utils::GetItemIndexRange(&m_Rows, 10, {0, 100}), None);
    EXPECT_EQ(Utils::GetItemIndexRange(&m_Rows, -1, {0, 100}), None);
}

TEST_F(Rows, TheSpanOfAColumnCountsFromTheOffsetOnlyWhereItIsSaid)
{
    m_Columns.SetViewSize(100, false);
    m_Columns.SetOffset(30);
    EXPECT_EQ(Utils::GetItemIndexRange(&m_Columns, 2, {0, 100}), (Span{40, 59}));
    EXPECT_EQ(Utils::GetItemIndexRangeEx(&m_Columns, 2, {0, 100}), (Span{10, 29}));
    EXPECT_EQ(Utils::GetItemIndexRangeEx(&m_Columns, 0, {5, 100}), (Span{-25, -6}));
    EXPECT_EQ(Utils::GetItemIndexRangeEx(&m_Columns, 9, {0, 100}), (Span{150, 169}));
    EXPECT_EQ(Utils::GetItemIndexRangeEx(&m_Columns, 10, {0, 100}), None);
}

TEST_F(Rows, TheSpanAtAPixelIsCutToTheView)
{
    m_Rows.SetStartItem(2);
    EXPECT_EQ(Utils::GetItemRange(&m_Rows, 25, {0, 90}), (Span{20, 39}));
    EXPECT_EQ(Utils::GetItemRange(&m_Rows, 85, {0, 90}), (Span{80, 90}));
    EXPECT_EQ(Utils::GetItemRange(&m_Rows, 25, {10, 90}), (Span{10, 29}));
    EXPECT_EQ(Utils::GetItemRange(&m_Rows, 9, {10, 90}), None);
    EXPECT_EQ(Utils::GetItemRange(&m_Rows, 91, {10, 90}), None);
    m_Columns.SetOffset(30);
    EXPECT_EQ(Utils::GetItemRange(&m_Columns, 5, {0, 90}), (Span{0, 9}));
    EXPECT_EQ(Utils::GetItemRange(&m_Columns, 10, {0, 90}), (Span{10, 29}));
    EXPECT_EQ(Utils::GetItemRange(&m_Columns, 175, {0, 300}), None);
}

TEST_F(Rows, TheSpanOfAllItemsBeginsAboveTheView)
{
    m_Rows.SetItemSize(0, 50);
    m_Rows.SetStartItem(2);
    EXPECT_EQ(Utils::GetWholeIndexRange(&m_Rows, {0, 90}), (Span{-70, 159}));
    EXPECT_EQ(Utils::GetWholeIndexRange(&m_Rows, {5, 90}), (Span{-65, 164}));
    m_Columns.SetOffset(30);
    EXPECT_EQ(Utils::GetWholeIndexRange(&m_Columns, {0, 90}), (Span{-30, 169}));
}

TEST(NoModel, IsAsGoodAsAnEmptyOne)
{
    IDiscreteItemViewModel const* const rows = nullptr;
    IContinuousItemViewModel const* const columns = nullptr;
    EXPECT_EQ(Utils::GetLastVisibleItem(rows), -1);
    EXPECT_EQ(Utils::CalcStart(rows, 3), 0);
    EXPECT_EQ(Utils::GetStartItem(rows, 3), 0);
    EXPECT_EQ(Utils::CalcMaxStart(rows), 0);
    EXPECT_EQ(Utils::HitTest(rows, 0), -1);
    EXPECT_EQ(Utils::HitTest(columns, 0), -1);
    EXPECT_EQ(Utils::GetItemsSize(nullptr, 0, 3), 0);
    EXPECT_EQ(Utils::GetItemOffset(nullptr, 3), 0);
    EXPECT_EQ(Utils::GetItemRange(rows, 0, {0, 90}), None);
    EXPECT_EQ(Utils::GetItemRange(columns, 0, {0, 90}), None);
    EXPECT_EQ(Utils::GetItemIndexRange(rows, 0, {0, 90}), None);
    EXPECT_EQ(Utils::GetItemIndexRange(columns, 0, {0, 90}), None);
    EXPECT_EQ(Utils::GetItemIndexRangeEx(rows, 0, {0, 90}), None);
    EXPECT_EQ(Utils::GetItemIndexRangeEx(columns, 0, {0, 90}), None);
    EXPECT_EQ(Utils::GetWholeIndexRange(rows, {0, 90}), None);
    EXPECT_EQ(Utils::GetWholeIndexRange(columns, {0, 90}), None);
}

// Large numbers ------------------------------------------------------------------------------------------------------
TEST(ManyItems, OfOnePixelInTheLargestView)
{
    CSimpleDiscreteItemViewModel rows;
    rows.SetDefaultItemSize(1);
    rows.SetCount(INT_MAX);
    rows.SetViewSize(INT_MAX, false);
    EXPECT_EQ(Utils::GetLastVisibleItem(&rows), INT_MAX - 1);
    EXPECT_EQ(Utils::CalcMaxStart(&rows), 1);
    EXPECT_EQ(Utils::CalcStart(&rows, INT_MAX), 2);
    EXPECT_EQ(Utils::HitTest(&rows, INT_MAX - 1), INT_MAX - 1);
    EXPECT_EQ(Utils::HitTest(&rows, INT_MAX), -1);
    EXPECT_EQ(Utils::GetItemsSize(&rows, 0, INT_MAX), INT_MAX);
    EXPECT_EQ(Utils::GetWholeIndexRange(&rows, {0, 90}), (Span{0, INT_MAX - 1}));
}

TEST(ManyItems, OfNoSizeAreWalkedInOneStep)
{
    CDefaultDiscreteItemViewModel rows;
    rows.SetDefaultItemSize(0);
    rows.SetCount(INT_MAX);
    rows.SetViewSize(100, false);
    EXPECT_EQ(Utils::GetLastVisibleItem(&rows), INT_MAX - 1);
    EXPECT_EQ(Utils::CalcMaxStart(&rows), 0);
    EXPECT_EQ(Utils::HitTest(&rows, 0), -1);
    rows.SetItemSize(1000000000, 60);
    rows.SetItemSize(2000000000, 60);
    EXPECT_EQ(Utils::HitTest(&rows, 0), 1000000000);
    EXPECT_EQ(Utils::HitTest(&rows, 60), 2000000000);
    EXPECT_EQ(Utils::GetLastVisibleItem(&rows), 1999999999);
    EXPECT_EQ(Utils::CalcMaxStart(&rows), 1000000001);
}

TEST(ManyItems, OfNegativeSizeNeverFillAView)
{
    CSimpleDiscreteItemViewModel rows;
    rows.SetDefaultItemSize(INT_MIN);
    rows.SetCount(INT_MAX);
    rows.SetViewSize(100, false);
    EXPECT_EQ(Utils::GetLastVisibleItem(&rows), INT_MAX - 1);
    EXPECT_EQ(Utils::CalcMaxStart(&rows), 0);
    EXPECT_EQ(Utils::HitTest(&rows, 0), -1);
    EXPECT_EQ(Utils::GetItemsSize(&rows, 0, INT_MAX), INT_MIN);
}

TEST(ManyItems, OfTheLargestSizeStopAtTheEndsOfInt)
{
    CDefaultDiscreteItemViewModel rows;
    rows.SetDefaultItemSize(INT_MAX);
    rows.SetCount(INT_MAX);
    rows.SetStartItem(5);
    rows.SetViewSize(INT_MAX, false);
    EXPECT_EQ(Utils::GetItemsSize(&rows, 0, 2), INT_MAX);
    EXPECT_EQ(Utils::GetItemIndexRange(&rows, 7, {0, 90}), (Span{INT_MAX, INT_MAX}));
    EXPECT_EQ(Utils::GetItemIndexRange(&rows, 0, {0, 90}), (Span{INT_MIN, INT_MIN}));
    EXPECT_EQ(Utils::GetLastVisibleItem(&rows), 5);
    EXPECT_EQ(Utils::CalcMaxStart(&rows), INT_MAX - 1);
    EXPECT_EQ(Utils::HitTest(&rows, INT_MAX), 6);
    rows.SetStartItem(INT_MAX);
    EXPECT_EQ(rows.GetStartItem(), INT_MAX - 1);
}

// Cells --------------------------------------------------------------------------------------------------------------
TEST(CellUpdateType, TheMoreUrgentOfTwoWins)
{
    using Set = IDirtyItemSet;
    CCallLog log;
    CRecordingPainter painter(log);
    Set::DirtyType const table[3][3] = {{Set::dirtyItem, Set::dirtyItem, Set::dirtyItem},
                                        {Set::dirtyItem, Set::dirtyOther, Set::dirtyOther},
                                        {Set::dirtyItem, Set::dirtyOther, Set::dirtyNone}};
    for (int a = 0; a < 3; ++a)
        for (int b = 0; b < 3; ++b)
        {
            EXPECT_EQ(GetCellUpdateType(&painter, Set::DirtyType(a), Set::DirtyType(b)), table[a][b]) << a << b;
            EXPECT_EQ(GetCellUpdateType(nullptr, Set::DirtyType(a), Set::DirtyType(b)), table[a][b]) << a << b;
        }
}

TEST(CellUpdateType, InAFullPaintEveryCellIsDirty)
{
    CCallLog log;
    CRecordingPainter painter(log);
    painter.m_FullPaint = true;
    EXPECT_EQ(GetCellUpdateType(&painter, IDirtyItemSet::dirtyNone, IDirtyItemSet::dirtyNone),
              IDirtyItemSet::dirtyItem);
}

}  // namespace
