// Selected indices as runs.

#include "vexel/views/selection.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

using namespace vexel;

namespace
{

using Selection = CSelectionTmpl<int>;

/// "5( 7) 9" is a run from 5 to 7, and 9 alone.
std::string Nodes(Selection const& selection)
{
    std::string text;
    for (auto const& [index, type] : selection.GetNodes())
        text += (text.empty() ? "" : " ") + std::to_string(index) +
                (type == Selection::selBegin ? "("
                 : type == Selection::selEnd ? ")"
                                             : "");
    return text;
}

// Selects runs of "first, last" in turn.
Selection Make(std::vector<std::pair<int, int>> const& runs)
{
    Selection selection;
    for (auto const& [first, last] : runs)
        selection.SetItemsSelection(first, last, true);
    return selection;
}

TEST(Selection, TheKindsOfNodesHaveFixedNumbers)
{
    EXPECT_EQ(Selection::selOne, 0);
    EXPECT_EQ(Selection::selBegin, 1);
    EXPECT_EQ(Selection::selEnd, 2);
}

TEST(Selection, IsEmptyAtFirst)
{
    Selection const selection;
    EXPECT_TRUE(selection.IsEmpty());
    EXPECT_EQ(selection.GetSelectedItems(), 0);
    EXPECT_FALSE(selection.IsSelected(0));
}

TEST(Selection, InARunBothEndsAndAllBetweenAreSelected)
{
    Selection const selection = Make({{3, 6}, {9, 9}});
    std::string selected;
    for (int i = 0; i < 12; ++i)
        selected += selection.IsSelected(i) ? '#' : '.';
    EXPECT_EQ(selected, "...####..#..");
}

// One index ----------------------------------------------------------------------------------------------------------
TEST(Selection, OneIndexAloneIsOneNode)
{
    EXPECT_EQ(Nodes(Make({{5, 5}})), "5");
    EXPECT_EQ(Nodes(Make({{5, 5}, {9, 9}})), "5 9");
    EXPECT_EQ(Nodes(Make({{9, 9}, {5, 5}})), "5 9");
    EXPECT_EQ(Nodes(Make({{5, 5}, {7, 7}})), "5 7");
    EXPECT_EQ(Nodes(Make({{5, 5}, {5, 5}})), "5");
}

TEST(Selection, NeighboursBecomeARun)
{
    EXPECT_EQ(Nodes(Make({{5, 5}, {6, 6}})), "5( 6)");
    EXPECT_EQ(Nodes(Make({{6, 6}, {5, 5}})), "5( 6)");
    EXPECT_EQ(Nodes(Make({{5, 5}, {6, 6}, {7, 7}})), "5( 7)");
    EXPECT_EQ(Nodes(Make({{7, 7}, {6, 6}, {5, 5}})), "5( 7)");
    EXPECT_EQ(Nodes(Make({{5, 5}, {9, 9}, {6, 6}})), "5( 6) 9");
    EXPECT_EQ(Nodes(Make({{5, 5}, {9, 9}, {8, 8}})), "5 8( 9)");
}

TEST(Selection, AnIndexBetweenTwoJoinsThem)
{
    EXPECT_EQ(Nodes(Make({{5, 5}, {7, 7}, {6, 6}})), "5( 7)");
    EXPECT_EQ(Nodes(Make({{3, 5}, {7, 7}, {6, 6}})), "3( 7)");
    EXPECT_EQ(Nodes(Make({{5, 5}, {7, 9}, {6, 6}})), "5( 9)");
    EXPECT_EQ(Nodes(Make({{3, 5}, {7, 9}, {6, 6}})), "3( 9)");
}

TEST(Selection, AnIndexBesideARunLengthensIt)
{
    EXPECT_EQ(Nodes(Make({{3, 5}, {6, 6}})), "3( 6)");
    EXPECT_EQ(Nodes(Make({{3, 5}, {2, 2}})), "2( 5)");
    EXPECT_EQ(Nodes(Make({{3, 5}, {7, 7}})), "3( 5) 7");
    EXPECT_EQ(Nodes(Make({{3, 5}, {1, 1}})), "1 3( 5)");
}

TEST(Selection, AnIndexInsideARunIsSelectedAlready)
{
    EXPECT_EQ(Nodes(Make({{3, 6}, {3, 3}})), "3( 6)");
    EXPECT_EQ(Nodes(Make({{3, 6}, {4, 4}})), "3( 6)");
    EXPECT_EQ(Nodes(Make({{3, 6}, {5, 5}})), "3( 6)");
    EXPECT_EQ(Nodes(Make({{3, 6}, {6, 6}})), "3( 6)");
}

TEST(Selection, DeselectingInsideSplitsTheRun)
{
    Selection selection = Make({{5, 9}});
    selection.SetItemsSelection(7, 7, false);
    EXPECT_EQ(Nodes(selection), "5( 6) 8( 9)");
    EXPECT_EQ(selection.GetSelectedItems(), 4);
    selection.SetItemsSelection(8, 8, false);
    EXPECT_EQ(Nodes(selection), "5( 6) 9");
    selection.SetItemsSelection(9, 9, false);
    selection.SetItemsSelection(6, 6, false);
    EXPECT_EQ(Nodes(selection), "5");
    selection.SetItemsSelection(5, 5, false);
    EXPECT_EQ(Nodes(selection), "");
    EXPECT_TRUE(selection.IsEmpty());
}

TEST(Selection, DeselectingAnEndShortensTheRun)
{
    Selection selection = Make({{5, 9}});
    selection.SetItemsSelection(5, 5, false);
    EXPECT_EQ(Nodes(selection), "6( 9)");
    selection.SetItemsSelection(9, 9, false);
    EXPECT_EQ(Nodes(selection), "6( 8)");
    selection.SetItemsSelection(7, 7, false);
    EXPECT_EQ(Nodes(selection), "6 8");
}

TEST(Selection, OfARunOfTwoOneRemains)
{
    Selection selection = Make({{5, 6}});
    selection.SetItemsSelection(6, 6, false);
    EXPECT_EQ(Nodes(selection), "5");
    selection = Make({{5, 6}});
    selection.SetItemsSelection(5, 5, false);
    EXPECT_EQ(Nodes(selection), "6");
}

TEST(Selection, DeselectingNearAnEndLeavesOneAlone)
{
    Selection selection = Make({{5, 9}});
    selection.SetItemsSelection(6, 6, false);
    EXPECT_EQ(Nodes(selection), "5 7( 9)");
    selection = Make({{5, 9}});
    selection.SetItemsSelection(8, 8, false);
    EXPECT_EQ(Nodes(selection), "5( 7) 9");
}

TEST(Selection, DeselectingBehindAllOrNextToOneDoesNothing)
{
    Selection selection;
    selection.SetItemsSelection(5, 5, false);
    EXPECT_EQ(Nodes(selection), "");
    selection = Make({{3, 3}});
    selection.SetItemsSelection(5, 5, false);
    selection.SetItemsSelection(1, 1, false);
    EXPECT_EQ(Nodes(selection), "3");
}

// Runs ---------------------------------------------------------------------------------------------------------------
TEST(Selection, ARunIsTwoNodesInWhateverOrderItsEndsAreGiven)
{
    EXPECT_EQ(Nodes(Make({{3, 8}})), "3( 8)");
    EXPECT_EQ(Nodes(Make({{8, 3}})), "3( 8)");
    EXPECT_EQ(Nodes(Make({{0, 1000000}})), "0( 1000000)");
}

TEST(Selection, RunsApartStayApart)
{
    EXPECT_EQ(Nodes(Make({{3, 5}, {7, 9}})), "3( 5) 7( 9)");
    EXPECT_EQ(Nodes(Make({{7, 9}, {3, 5}})), "3( 5) 7( 9)");
    EXPECT_EQ(Nodes(Make({{1, 1}, {9, 9}, {3, 7}})), "1 3( 7) 9");
}

TEST(Selection, ARunSwallowsWhatLiesWithin)
{
    EXPECT_EQ(Nodes(Make({{4, 4}, {6, 7}, {9, 9}, {3, 10}})), "3( 10)");
    EXPECT_EQ(Nodes(Make({{3, 3}, {6, 7}, {10, 10}, {3, 10}})), "3( 10)");
    EXPECT_EQ(Nodes(Make({{3, 5}, {8, 10}, {3, 10}})), "3( 10)");
}

TEST(Selection, ARunContinuesWhatItTouches)
{
    EXPECT_EQ(Nodes(Make({{1, 2}, {3, 5}})), "1( 5)");
    EXPECT_EQ(Nodes(Make({{2, 2}, {3, 5}})), "2( 5)");
    EXPECT_EQ(Nodes(Make({{6, 8}, {3, 5}})), "3( 8)");
    EXPECT_EQ(Nodes(Make({{6, 6}, {3, 5}})), "3( 6)");
    EXPECT_EQ(Nodes(Make({{1, 2}, {6, 8}, {3, 5}})), "1( 8)");
    EXPECT_EQ(Nodes(Make({{1, 3}, {3, 5}})), "1( 5)");
    EXPECT_EQ(Nodes(Make({{5, 8}, {3, 5}})), "3( 8)");
}

TEST(Selection, ARunCantBeDeselected)
{
    Selection selection = Make({{1, 10}});
    selection.SetItemsSelection(3, 8, false);
    EXPECT_EQ(Nodes(selection), "1( 10)");
}

TEST(Selection, ARunThatBeginsInsideAnotherGetsASecondBegin)
{
    Selection selection = Make({{3, 8}, {5, 10}});
    EXPECT_EQ(Nodes(selection), "3( 5( 10)");
    EXPECT_EQ(selection.GetSelectedItems(), 8);  // from the first begin to the end that follows
    EXPECT_FALSE(selection.IsSelected(4));
    EXPECT_TRUE(selection.IsSelected(7));
}

TEST(Selection, ARunThatEndsInsideAnotherGetsASecondEnd)
{
    Selection selection = Make({{8, 12}, {5, 10}});
    EXPECT_EQ(Nodes(selection), "5( 10) 12)");
    EXPECT_EQ(selection.GetSelectedItems(), 6);
}

TEST(Selection, DeselectingWhatIsNotSelectedSplitsTheRunBehindIt)
{
    Selection selection = Make({{10, 20}});
    selection.SetItemsSelection(5, 5, false);
    EXPECT_EQ(Nodes(selection), "6( 10( 20)");
    EXPECT_EQ(selection.GetSelectedItems(), 15);
}

TEST(Selection, ABeginWithoutAnEndCountsNothing)
{
    Selection selection = Make({{3, 8}, {5, 10}});  // 3( 5( 10)
    selection.SetItemsSelection(10, 10, false);     // the end goes to 9
    selection.SetItemsSelection(8, 12, true);       // and is swallowed: 3( 5( 8( 12)
    EXPECT_EQ(Nodes(selection), "3( 5( 8( 12)");
    selection.SetItemsSelection(12, 12, false);
    selection.SetItemsSelection(11, 11, false);
    selection.SetItemsSelection(10, 10, false);
    selection.SetItemsSelection(9, 9, false);
    EXPECT_EQ(Nodes(selection), "3( 5( 8");
    EXPECT_EQ(selection.GetSelectedItems(), 0);
}

TEST(Selection, AfterClearingTheCountIsExactAgain)
{
    Selection selection = Make({{3, 8}, {5, 10}});
    selection.Clear();
    EXPECT_EQ(selection.GetSelectedItems(), 0);
    selection.SetItemsSelection(1, 3, true);
    selection.SetItemsSelection(7, 7, true);
    EXPECT_EQ(selection.GetSelectedItems(), 4);
}

TEST(Selection, ReachesTheEndsOfInt)
{
    Selection selection = Make({{INT_MAX, INT_MAX}, {INT_MIN, INT_MIN}});
    EXPECT_EQ(Nodes(selection), "-2147483648 2147483647");
    selection.SetItemsSelection(INT_MAX - 1, INT_MAX - 1, true);
    selection.SetItemsSelection(INT_MIN + 1, INT_MIN + 1, true);
    EXPECT_EQ(Nodes(selection), "-2147483648( -2147483647) 2147483646( 2147483647)");
    selection.SetItemsSelection(INT_MIN, INT_MAX, true);
    EXPECT_EQ(Nodes(selection), "-2147483648( 2147483647)");
    EXPECT_EQ(selection.GetSelectedItems(), INT_MAX);
    EXPECT_TRUE(selection.IsSelected(INT_MIN));
    EXPECT_TRUE(selection.IsSelected(INT_MAX));
    selection.SetItemsSelection(INT_MAX, INT_MAX, false);
    selection.SetItemsSelection(INT_MIN, INT_MIN, false);
    EXPECT_EQ(Nodes(selection), "-2147483647( 2147483646)");
}

TEST(Selection, AMillionRunsKeepTheirCount)
{
    Selection selection;
    for (int i = 0; i < 1000000; ++i)
        selection.SetItemsSelection(5 * i, 5 * i + 2, true);
    EXPECT_EQ(selection.GetNodes().GetCount(), 2000000);
    EXPECT_EQ(selection.GetSelectedItems(), 3000000);
    selection.SetItemsSelection(0, 5000000, true);
    EXPECT_EQ(Nodes(selection), "0( 5000000)");
    EXPECT_EQ(selection.GetSelectedItems(), 5000001);
}

}  // namespace
