// Items lined up like words.

#include "tests/support/call_log.h"
#include "vexel/layout/flow_layout.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>

using namespace vexel;

namespace
{

class CItems : public IFlowLayoutItems
{
public:
    std::vector<size<int>> m_Sizes;
    std::map<int, int> m_Gaps;    // by index; otherwise 5
    std::map<int, int> m_Widens;  // what is added to an item's right edge
    int m_LineGap = 3;
    int m_Top = 2;
    int m_Left = 10;
    int m_Count = -2;  // -2: as many as there are sizes

    std::string Take()
    {
        std::string const places = m_Places;
        m_Places.clear();
        return places;
    }

    int GetItemCount() override { return m_Count == -2 ? static_cast<int>(m_Sizes.size()) : m_Count; }
    size<int> GetItemSize(int index) override { return m_Sizes.at(static_cast<std::size_t>(index)); }
    void SetItemRect(int index, rectangle<int>& rect) override
    {
        m_Places += (m_Places.empty() ? "" : ", ") + std::to_string(index) + ": " + Text(rect);
        rect.right += m_Widens[index];
    }
    int GetItemGap(int index) override { return m_Gaps.contains(index) ? m_Gaps[index] : 5; }
    int GetLineGap() override { return m_LineGap; }
    int GetTopMargin() override { return m_Top; }
    int GetLeftMargin() override { return m_Left; }

private:
    std::string m_Places;
};

// A flow of 100 in width; lines start at (10, 2), the gaps are 5 between items and 3 between lines.
class FlowLayout : public testing::Test
{
protected:
    FlowLayout()
    {
        m_Layout.SetItems(&m_Items);
        m_Layout.SetWidth(100);
    }
    std::string Place()
    {
        m_Layout.Update();
        return m_Items.Take();
    }

    CItems m_Items;
    CFlowLayout m_Layout;
};

TEST_F(FlowLayout, StartsWithoutExtentAndWithoutItems)
{
    CFlowLayout layout;
    EXPECT_EQ(layout.GetSize(), (size<int>{0, 0}));
    layout.Update();
    EXPECT_EQ(layout.GetSize(), (size<int>{0, 0}));
}

TEST_F(FlowLayout, WithoutAProviderAnUpdateChangesNothing)
{
    m_Items.m_Sizes = {{30, 20}};
    m_Layout.Update();
    m_Layout.SetItems(nullptr);
    m_Layout.SetWidth(70);
    m_Layout.Update();
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{70, 7}));
}

TEST_F(FlowLayout, WithoutItemsTheHeightIsTheTopMarginPlusOne)
{
    EXPECT_EQ(Place(), "");
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{100, 3}));
}

TEST_F(FlowLayout, ACountBelowZeroIsNone)
{
    m_Items.m_Count = -1;
    EXPECT_EQ(Place(), "");
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{100, 3}));
}

TEST_F(FlowLayout, ASingleItemThatFitsHasARectangleWithoutHeight)
{
    m_Items.m_Sizes = {{30, 20}};
    EXPECT_EQ(Place(), "0: 10 2 40 2");
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{100, 7})) << "top margin 2, line gap 3, and 2";
}

TEST_F(FlowLayout, NeighboursStandTheEarlierOnesGapApart)
{
    m_Items.m_Sizes = {{20, 8}, {10, 8}, {15, 8}};
    m_Items.m_Gaps = {{0, 7}, {1, 0}, {2, 9}};
    EXPECT_EQ(Place(), "0: 10 2 30 10, 1: 37 2 47 10, 2: 47 2 62 10");
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{100, 15}));
}

TEST_F(FlowLayout, ALineIsAsHighAsItsHighestItem)
{
    m_Items.m_Sizes = {{10, 8}, {10, 21}, {10, 4}, {10, 1}};
    EXPECT_EQ(Place(), "0: 10 2 20 23, 1: 25 2 35 23, 2: 40 2 50 23, 3: 55 2 65 23");
    EXPECT_EQ(m_Layout.GetSize().height, 28);
}

TEST_F(FlowLayout, AHigherLastItemDoesNotRaiseItsLine)
{
    m_Items.m_Sizes = {{10, 8}, {10, 50}};
    EXPECT_EQ(Place(), "0: 10 2 20 10, 1: 25 2 35 10");
    EXPECT_EQ(m_Layout.GetSize().height, 15);
}

TEST_F(FlowLayout, AnItemThatDoesNotFitStartsALine)
{
    m_Items.m_Sizes = {{40, 10}, {50, 20}, {30, 15}, {1, 5}};
    m_Items.m_Gaps = {{2, 0}};
    // The second would end at 105; the last one ends at 96.
    EXPECT_EQ(Place(), "0: 10 2 50 12, 1: 10 16 60 36, 2: 65 16 95 36, 3: 95 16 96 36");
    EXPECT_EQ(m_Layout.GetSize().height, 41);
}

TEST_F(FlowLayout, EachLineHasAHeightOfItsOwn)
{
    m_Items.m_Sizes = {{80, 30}, {80, 10}, {80, 20}, {80, 7}};
    EXPECT_EQ(Place(), "0: 10 2 90 32, 1: 10 36 90 46, 2: 10 50 90 70, 3: 10 74 90 81");
    EXPECT_EQ(m_Layout.GetSize().height, 75);
}

TEST_F(FlowLayout, AnItemExactlyAsWideAsTheRestOfTheLineFits)
{
    m_Items.m_Sizes = {{40, 10}, {45, 10}, {10, 10}};
    EXPECT_EQ(Place(), "0: 10 2 50 12, 1: 55 2 100 12, 2: 10 16 20 26");
}

TEST_F(FlowLayout, ALastItemExactlyAsWideAsTheRestOfTheLineFits)
{
    m_Items.m_Sizes = {{40, 10}, {45, 10}};
    EXPECT_EQ(Place(), "0: 10 2 50 12, 1: 55 2 100 12");
}

TEST_F(FlowLayout, AnItemOnePixelWiderThanTheRestOfTheLineDoesNotFit)
{
    m_Items.m_Sizes = {{40, 10}, {46, 10}, {10, 10}};
    EXPECT_EQ(Place(), "0: 10 2 50 12, 1: 10 16 56 26, 2: 61 16 71 26");
}

TEST_F(FlowLayout, TheGapBehindAnItemCountsForTheNextOneOnly)
{
    m_Items.m_Sizes = {{80, 10}, {5, 10}, {5, 10}};
    m_Items.m_Gaps = {{0, 0}, {1, 1000}};
    EXPECT_EQ(Place(), "0: 10 2 90 12, 1: 90 2 95 12, 2: 10 16 15 26");
}

TEST_F(FlowLayout, ALastItemThatDoesNotFitStandsAloneAndItsHeightIsNotInTheResult)
{
    m_Items.m_Sizes = {{60, 20}, {60, 30}};
    EXPECT_EQ(Place(), "0: 10 2 70 22, 1: 10 26 70 56");
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{100, 27}));
}

TEST_F(FlowLayout, AnItemWiderThanTheLimitMakesAnEmptyLineFirst)
{
    m_Items.m_Sizes = {{200, 12}, {20, 5}};
    EXPECT_EQ(Place(), "0: 10 6 210 18, 1: 10 22 30 27");
    EXPECT_EQ(m_Layout.GetSize().height, 23);
}

TEST_F(FlowLayout, ASingleItemWiderThanTheLimitStandsBelowAnEmptyLine)
{
    m_Items.m_Sizes = {{200, 12}};
    EXPECT_EQ(Place(), "0: 10 6 210 18");
    EXPECT_EQ(m_Layout.GetSize().height, 7);
}

TEST_F(FlowLayout, ATooWideItemInTheMiddleMakesNoEmptyLine)
{
    m_Items.m_Sizes = {{50, 10}, {200, 12}, {20, 5}};
    EXPECT_EQ(Place(), "0: 10 2 60 12, 1: 10 16 210 28, 2: 10 32 30 37");
}

TEST_F(FlowLayout, AProviderMayMoveTheNextItemByTheRightEdge)
{
    m_Items.m_Sizes = {{20, 8}, {20, 8}, {20, 8}};
    m_Items.m_Widens = {{0, 7}, {1, -4}};
    EXPECT_EQ(Place(), "0: 10 2 30 10, 1: 42 2 62 10, 2: 63 2 83 10");
}

TEST_F(FlowLayout, WhatAProviderWidensDoesNotBreakLines)
{
    m_Items.m_Sizes = {{20, 8}, {20, 8}, {20, 8}};
    m_Items.m_Widens = {{0, 60}};
    EXPECT_EQ(Place(), "0: 10 2 30 10, 1: 95 2 115 10, 2: 120 2 140 10");
}

TEST_F(FlowLayout, TheLimitIsNotMovedByTheLeftMargin)
{
    m_Items.m_Left = 90;
    m_Items.m_Sizes = {{10, 8}, {10, 9}};
    EXPECT_EQ(Place(), "0: 90 2 100 10, 1: 90 14 100 23");
}

TEST_F(FlowLayout, AnotherWidthTakesEffectWithTheNextUpdate)
{
    m_Items.m_Sizes = {{30, 8}, {30, 8}};
    EXPECT_EQ(Place(), "0: 10 2 40 10, 1: 45 2 75 10");
    m_Layout.SetWidth(74);
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{74, 15}));
    EXPECT_EQ(Place(), "0: 10 2 40 10, 1: 10 14 40 22");
    EXPECT_EQ(m_Layout.GetSize(), (size<int>{74, 15}));
}

TEST_F(FlowLayout, LaysOutAnewWithEachUpdate)
{
    m_Items.m_Sizes = {{80, 8}, {80, 8}, {80, 8}};
    Place();
    EXPECT_EQ(m_Layout.GetSize().height, 27);
    m_Items.m_Sizes.clear();
    EXPECT_EQ(Place(), "");
    EXPECT_EQ(m_Layout.GetSize().height, 3);
}

TEST_F(FlowLayout, AnEndlesslyWideItemDoesNotFit)
{
    m_Items.m_Sizes = {{20, 8}, {INT_MAX, 8}};
    m_Items.m_Left = 0;
    EXPECT_EQ(Place(), "0: 0 2 20 10, 1: 0 14 2147483647 22");
}

}  // namespace
