// Rows and columns as scroll bars see them.

#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/discrete_item_view_model.h"
#include "vexel/views/item_scroll_model.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace vexel;

namespace
{

TEST(DiscreteItemScrollModel, WithoutAViewModelTheRangeIsEmpty)
{
    CDiscreteItemScrollModel model;
    EXPECT_EQ(model.GetViewModel(), nullptr);
    EXPECT_EQ(model.GetFrom(), 0.0);
    EXPECT_EQ(model.GetTo(), 0.0);
    EXPECT_EQ(model.GetStart(), 0.0);
    model.SetStart(3.0);
    EXPECT_EQ(model.GetMinScrollDistance(), 1);
    EXPECT_EQ(model.GetStepSize(2.0), 0.0);
    model.SetStepSize(2.0, 1.0);
    EXPECT_EQ(model.GetMeasure(), std::pair(1.0, 1));
}

TEST(DiscreteItemScrollModel, AnItemIsAUnitOfTheDefaultSize)
{
    CDefaultDiscreteItemViewModel rows;
    rows.SetDefaultItemSize(20);
    rows.SetCount(1000000);
    rows.SetItemSize(7, 50);
    CDiscreteItemScrollModel model;
    model.SetViewModel(&rows);
    EXPECT_EQ(model.GetViewModel(), &rows);
    EXPECT_EQ(model.GetFrom(), 0.0);
    EXPECT_EQ(model.GetTo(), 1000000.0);
    EXPECT_EQ(model.GetMinScrollDistance(), 20);
    EXPECT_FALSE(model.IsFixedStepSize());
    EXPECT_TRUE(model.IsInseparableStep());
    EXPECT_EQ(model.GetStepSize(6.9), 1.0);
    EXPECT_EQ(model.GetStepSize(7.9), 2.5);
    EXPECT_EQ(model.GetMeasure(), std::pair(1.0, 20));
    model.SetMeasure({5.0, 7});
    EXPECT_EQ(model.GetMeasure(), std::pair(1.0, 20));
}

TEST(DiscreteItemScrollModel, AStartGoesToTheNearestItem)
{
    CSimpleDiscreteItemViewModel rows;
    rows.SetCount(100);
    CDiscreteItemScrollModel model;
    model.SetViewModel(&rows);
    model.SetStart(7.4);
    EXPECT_EQ(rows.GetStartItem(), 7);
    model.SetStart(7.5);
    EXPECT_EQ(rows.GetStartItem(), 8);
    EXPECT_EQ(model.GetStart(), 8.0);
    model.SetStart(-0.4);
    EXPECT_EQ(rows.GetStartItem(), 0);
    model.SetStart(1e30);
    EXPECT_EQ(rows.GetStartItem(), 2147483647);
    model.SetStart(std::nan(""));
    EXPECT_EQ(rows.GetStartItem(), 0);
}

TEST(DiscreteItemScrollModel, AStepSizeIsSetInDefaultSizesAndTruncated)
{
    CDefaultDiscreteItemViewModel rows;
    rows.SetDefaultItemSize(20);
    rows.SetCount(10);
    CDiscreteItemScrollModel model;
    model.SetViewModel(&rows);
    model.SetStepSize(3.9, 1.74);
    EXPECT_EQ(rows.GetItemSize(3), 34);
}

TEST(DiscreteItemScrollModel, WithADefaultSizeOfZeroStepsAreZero)
{
    CDefaultDiscreteItemViewModel rows;
    rows.SetDefaultItemSize(0);
    rows.SetCount(10);
    rows.SetItemSize(3, 40);
    CDiscreteItemScrollModel model;
    model.SetViewModel(&rows);
    EXPECT_EQ(model.GetStepSize(2.0), 0.0);
    EXPECT_EQ(model.GetStepSize(3.0), 0.0);
}

TEST(ContinuousItemScrollModel, WithoutAViewModelTheRangeIsEmpty)
{
    CContinuousItemScrollModel model;
    EXPECT_EQ(model.GetViewModel(), nullptr);
    EXPECT_EQ(model.GetFrom(), 0.0);
    EXPECT_EQ(model.GetTo(), 0.0);
    EXPECT_EQ(model.GetStart(), 0.0);
    model.SetStart(3.0);
}

TEST(ContinuousItemScrollModel, PixelsAreUnits)
{
    CDefaultColumnViewModel columns;
    columns.SetDefaultItemSize(20);
    columns.SetCount(10);
    CContinuousItemScrollModel model;
    model.SetViewModel(&columns);
    EXPECT_EQ(model.GetViewModel(), &columns);
    EXPECT_EQ(model.GetFrom(), 0.0);
    EXPECT_EQ(model.GetTo(), 200.0);
    EXPECT_EQ(model.GetMinScrollDistance(), 4);
    EXPECT_TRUE(model.IsFixedStepSize());
    EXPECT_FALSE(model.IsInseparableStep());
    EXPECT_EQ(model.GetMeasure(), std::pair(1.0, 1));
    model.SetStart(33.9);
    EXPECT_EQ(columns.GetOffset(), 33);
    EXPECT_EQ(model.GetStart(), 33.0);
}

}  // namespace
