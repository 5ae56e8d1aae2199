// Where a parent places its children. Rectangles include their right and bottom edge.

#include "tests/support/call_log.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

// A parent whose children fill (0, 0, 100, 50).
class Docking : public testing::Test
{
protected:
    void LayOut() { m_Parent.SetPos({7, 9, 107, 59}, true); }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingElement m_Parent{m_Log, "parent", nullptr, {0, 0}, alClient};
};

TEST_F(Docking, ALeftChildTakesItsWidthAndTheWholeHeight)
{
    CVisualElement child(&m_Parent, {20, 15}, alLeft);
    LayOut();
    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 20, 50}));
}

TEST_F(Docking, ARightChildTakesItsWidthAndTheWholeHeight)
{
    CVisualElement child(&m_Parent, {20, 15}, alRight);
    LayOut();
    EXPECT_EQ(child.GetPos(), (rectangle<int>{80, 0, 100, 50}));
}

TEST_F(Docking, ATopChildTakesItsHeightAndTheWholeWidth)
{
    CVisualElement child(&m_Parent, {20, 15}, alTop);
    LayOut();
    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 100, 15}));
}

TEST_F(Docking, ABottomChildTakesItsHeightAndTheWholeWidth)
{
    CVisualElement child(&m_Parent, {20, 15}, alBottom);
    LayOut();
    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 35, 100, 50}));
}

TEST_F(Docking, AClientChildTakesEverything)
{
    CVisualElement child(&m_Parent, {20, 15}, alClient);
    LayOut();
    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 100, 50}));
}

TEST_F(Docking, AChildThatIsNotDockedStaysWhereItIs)
{
    CVisualElement child(&m_Parent, {20, 15}, alNone);
    child.SetPos({300, 3, 310, 13}, false);
    CVisualElement rest(&m_Parent, {0, 0}, alClient);
    LayOut();
    EXPECT_EQ(child.GetPos(), (rectangle<int>{300, 3, 310, 13}));
    EXPECT_EQ(rest.GetPos(), (rectangle<int>{0, 0, 100, 50}));
}

TEST_F(Docking, NeighboursStandOneApart)
{
    CVisualElement left(&m_Parent, {20, 0}, alLeft);
    CVisualElement nextLeft(&m_Parent, {30, 0}, alLeft);
    CVisualElement right(&m_Parent, {10, 0}, alRight);
    CVisualElement nextRight(&m_Parent, {5, 0}, alRight);
    LayOut();
    EXPECT_EQ(left.GetPos(), (rectangle<int>{0, 0, 20, 50}));
    EXPECT_EQ(nextLeft.GetPos(), (rectangle<int>{21, 0, 51, 50}));
    EXPECT_EQ(right.GetPos(), (rectangle<int>{90, 0, 100, 50}));
    EXPECT_EQ(nextRight.GetPos(), (rectangle<int>{84, 0, 89, 50}));
}

TEST_F(Docking, RowsStandOneApart)
{
    CVisualElement top(&m_Parent, {0, 10}, alTop);
    CVisualElement nextTop(&m_Parent, {0, 5}, alTop);
    CVisualElement bottom(&m_Parent, {0, 8}, alBottom);
    CVisualElement nextBottom(&m_Parent, {0, 4}, alBottom);
    LayOut();
    EXPECT_EQ(top.GetPos(), (rectangle<int>{0, 0, 100, 10}));
    EXPECT_EQ(nextTop.GetPos(), (rectangle<int>{0, 11, 100, 16}));
    EXPECT_EQ(bottom.GetPos(), (rectangle<int>{0, 42, 100, 50}));
    EXPECT_EQ(nextBottom.GetPos(), (rectangle<int>{0, 37, 100, 41}));
}

TEST_F(Docking, EachChildTakesFromWhatTheEarlierOnesLeft)
{
    CVisualElement left(&m_Parent, {20, 0}, alLeft);
    CVisualElement right(&m_Parent, {10, 0}, alRight);
    CVisualElement top(&m_Parent, {0, 5}, alTop);
    CVisualElement bottom(&m_Parent, {0, 8}, alBottom);
    CVisualElement client(&m_Parent, {0, 0}, alClient);
    LayOut();
    EXPECT_EQ(left.GetPos(), (rectangle<int>{0, 0, 20, 50}));
    EXPECT_EQ(right.GetPos(), (rectangle<int>{90, 0, 100, 50}));
    EXPECT_EQ(top.GetPos(), (rectangle<int>{21, 0, 89, 5}));
    EXPECT_EQ(bottom.GetPos(), (rectangle<int>{21, 42, 89, 50}));
    EXPECT_EQ(client.GetPos(), (rectangle<int>{21, 6, 89, 41}));
}

TEST_F(Docking, TheOrderOfTheChildrenDecides)
{
    CVisualElement bottom(&m_Parent, {0, 8}, alBottom);
    CVisualElement top(&m_Parent, {0, 5}, alTop);
    CVisualElement right(&m_Parent, {10, 0}, alRight);
    CVisualElement left(&m_Parent, {20, 0}, alLeft);
    LayOut();
    EXPECT_EQ(bottom.GetPos(), (rectangle<int>{0, 42, 100, 50}));
    EXPECT_EQ(top.GetPos(), (rectangle<int>{0, 0, 100, 5}));
    EXPECT_EQ(right.GetPos(), (rectangle<int>{90, 6, 100, 41}));
    EXPECT_EQ(left.GetPos(), (rectangle<int>{0, 6, 20, 41}));
}

TEST_F(Docking, AClientGetsTheRestEvenIfItComesFirst)
{
    CRecordingElement client(m_Log, "client", &m_Parent, {0, 0}, alClient);
    CRecordingElement left(m_Log, "left", &m_Parent, {20, 0}, alLeft);
    m_Log.Clear();
    LayOut();
    EXPECT_EQ(m_Log.Take({"SetPos"}), "parent.SetPos(7 9 107 59, true) left.SetPos(0 0 20 50, true) "
                                      "client.SetPos(21 0 100 50, true)");
}

TEST_F(Docking, OfTwoClientsOnlyTheLaterOneIsPlaced)
{
    CVisualElement earlier(&m_Parent, {0, 0}, alClient);
    earlier.SetPos({1, 2, 3, 4}, false);
    CVisualElement later(&m_Parent, {0, 0}, alClient);
    LayOut();
    EXPECT_EQ(earlier.GetPos(), (rectangle<int>{1, 2, 3, 4}));
    EXPECT_EQ(later.GetPos(), (rectangle<int>{0, 0, 100, 50}));
}

TEST_F(Docking, AHiddenLaterClientLeavesTheRestToTheEarlierOne)
{
    CVisualElement earlier(&m_Parent, {0, 0}, alClient);
    CVisualElement later(&m_Parent, {0, 0}, alClient);
    later.SetVisible(false);
    LayOut();
    EXPECT_EQ(earlier.GetPos(), (rectangle<int>{0, 0, 100, 50}));
    EXPECT_EQ(later.GetPos(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(Docking, AHiddenChildTakesNoRoomAndIsNotPlaced)
{
    CVisualElement hidden(&m_Parent, {20, 0}, alLeft);
    hidden.SetPos({3, 4, 5, 6}, false);
    hidden.SetVisible(false);
    CVisualElement shown(&m_Parent, {30, 0}, alLeft);
    LayOut();
    EXPECT_EQ(hidden.GetPos(), (rectangle<int>{3, 4, 5, 6}));
    EXPECT_EQ(shown.GetPos(), (rectangle<int>{0, 0, 30, 50}));
}

TEST_F(Docking, ADisabledChildIsPlacedLikeAnyOther)
{
    CVisualElement child(&m_Parent, {20, 0}, alLeft);
    child.SetEnabled(false);
    LayOut();
    EXPECT_EQ(child.GetPos(), (rectangle<int>{0, 0, 20, 50}));
}

// Too large ---------------------------------------------------------------------------------------------------------------

TEST_F(Docking, ALeftChildWiderThanTheAreaIsCutToItAndTheNextLeftLiesBeyond)
{
    CVisualElement wide(&m_Parent, {500, 0}, alLeft);
    CVisualElement next(&m_Parent, {20, 0}, alLeft);
    CVisualElement top(&m_Parent, {0, 5}, alTop);
    LayOut();
    EXPECT_EQ(wide.GetPos(), (rectangle<int>{0, 0, 100, 50}));
    EXPECT_EQ(next.GetPos(), (rectangle<int>{101, 0, 100, 50}));
    EXPECT_EQ(top.GetPos(), (rectangle<int>{101, 0, 100, 5}));
}

TEST_F(Docking, ARightChildWiderThanTheAreaIsCutToItAndTheNextRightLiesBeyond)
{
    CVisualElement wide(&m_Parent, {500, 0}, alRight);
    CVisualElement next(&m_Parent, {20, 0}, alRight);
    LayOut();
    EXPECT_EQ(wide.GetPos(), (rectangle<int>{0, 0, 100, 50}));
    EXPECT_EQ(next.GetPos(), (rectangle<int>{0, 0, -1, 50}));
}

TEST_F(Docking, ATopChildHigherThanTheAreaIsCutToItAndTheNextTopLiesBelow)
{
    CVisualElement high(&m_Parent, {0, 500}, alTop);
    CVisualElement next(&m_Parent, {0, 5}, alTop);
    LayOut();
    EXPECT_EQ(high.GetPos(), (rectangle<int>{0, 0, 100, 50}));
    EXPECT_EQ(next.GetPos(), (rectangle<int>{0, 51, 100, 50}));
}

TEST_F(Docking, ABottomChildHigherThanTheAreaIsCutToItAndTheNextBottomLiesAbove)
{
    CVisualElement high(&m_Parent, {0, 500}, alBottom);
    CVisualElement next(&m_Parent, {0, 5}, alBottom);
    LayOut();
    EXPECT_EQ(high.GetPos(), (rectangle<int>{0, 0, 100, 50}));
    EXPECT_EQ(next.GetPos(), (rectangle<int>{0, 0, 100, -1}));
}

TEST_F(Docking, WhatNearlyFitsIsCutByTheRest)
{
    CVisualElement left(&m_Parent, {90, 0}, alLeft);
    CVisualElement next(&m_Parent, {20, 0}, alLeft);
    LayOut();
    EXPECT_EQ(next.GetPos(), (rectangle<int>{91, 0, 100, 50}));
}

TEST_F(Docking, AWidthNearTheEndOfIntIsCutToo)
{
    CVisualElement left(&m_Parent, {5, 0}, alLeft);
    CVisualElement huge(&m_Parent, {2147483647, 0}, alLeft);
    CVisualElement hugeRight(&m_Parent, {2147483647, 0}, alRight);
    LayOut();
    EXPECT_EQ(huge.GetPos(), (rectangle<int>{6, 0, 100, 50}));
    EXPECT_EQ(hugeRight.GetPos(), (rectangle<int>{101, 0, 100, 50}));
}

TEST_F(Docking, AnExtentNearTheEndOfIntIsCutInANegativeAreaToo)
{
    m_Parent.m_ContentRect = rectangle<int>{-100, -50, -10, -5};
    CVisualElement right(&m_Parent, {2147483647, 0}, alRight);
    LayOut();
    EXPECT_EQ(right.GetPos(), (rectangle<int>{-100, -50, -10, -5}));
    right.SetVisible(false);
    CVisualElement bottom(&m_Parent, {0, 2147483647}, alBottom);
    LayOut();
    EXPECT_EQ(bottom.GetPos(), (rectangle<int>{-100, -50, -10, -5}));
}

// Too small ---------------------------------------------------------------------------------------------------------------

TEST_F(Docking, AChildOfSizeZeroTakesOneStep)
{
    CVisualElement left(&m_Parent, {0, 0}, alLeft);
    CVisualElement top(&m_Parent, {0, 0}, alTop);
    CVisualElement right(&m_Parent, {0, 0}, alRight);
    CVisualElement bottom(&m_Parent, {0, 0}, alBottom);
    CVisualElement client(&m_Parent, {0, 0}, alClient);
    LayOut();
    EXPECT_EQ(left.GetPos(), (rectangle<int>{0, 0, 0, 50}));
    EXPECT_EQ(top.GetPos(), (rectangle<int>{1, 0, 100, 0}));
    EXPECT_EQ(right.GetPos(), (rectangle<int>{100, 1, 100, 50}));
    EXPECT_EQ(bottom.GetPos(), (rectangle<int>{1, 50, 99, 50}));
    EXPECT_EQ(client.GetPos(), (rectangle<int>{1, 1, 99, 49}));
}

TEST_F(Docking, AParentOfNoAreaStillPlacesItsChildren)
{
    CVisualElement left(&m_Parent, {20, 0}, alLeft);
    CVisualElement client(&m_Parent, {0, 0}, alClient);
    m_Parent.SetPos({7, 9, 7, 9}, true);
    EXPECT_EQ(left.GetPos(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(client.GetPos(), (rectangle<int>{1, 0, 0, 0}));
}

// The area -----------------------------------------------------------------------------------------------------------------

TEST_F(Docking, TheContentRectangleIsWhatIsDividedUp)
{
    m_Parent.m_ContentRect = rectangle<int>{3, 4, 90, 40};
    CVisualElement left(&m_Parent, {20, 0}, alLeft);
    CVisualElement bottom(&m_Parent, {0, 10}, alBottom);
    CVisualElement client(&m_Parent, {0, 0}, alClient);
    LayOut();
    EXPECT_EQ(left.GetPos(), (rectangle<int>{3, 4, 23, 40}));
    EXPECT_EQ(bottom.GetPos(), (rectangle<int>{24, 30, 90, 40}));
    EXPECT_EQ(client.GetPos(), (rectangle<int>{24, 4, 90, 29}));
}

TEST_F(Docking, TheNewSizeOfTheParentIsWhatCounts)
{
    CVisualElement right(&m_Parent, {20, 0}, alRight);
    m_Parent.SetPos({0, 0, 100, 50}, false);
    EXPECT_EQ(right.GetPos(), (rectangle<int>{80, 0, 100, 50}));

    m_Parent.SetPos({0, 0, 60, 30}, false);
    EXPECT_EQ(right.GetPos(), (rectangle<int>{40, 0, 60, 30}));
}

TEST_F(Docking, AMovedItemIsLaidOutInItsNewPlace)
{
    CVisualElement first(&m_Parent, {20, 0}, alLeft);
    CVisualElement second(&m_Parent, {30, 0}, alLeft);

    m_Parent.GetChildren()->MoveItem(1, 0);
    LayOut();

    EXPECT_EQ(second.GetPos(), (rectangle<int>{0, 0, 30, 50}));
    EXPECT_EQ(first.GetPos(), (rectangle<int>{31, 0, 51, 50}));
}

TEST_F(Docking, GrandchildrenAreLaidOutInTheirParents)
{
    CVisualElement left(&m_Parent, {20, 0}, alLeft);
    CVisualElement inner(&left, {0, 10}, alBottom);
    LayOut();
    EXPECT_EQ(inner.GetPos(), (rectangle<int>{0, 40, 20, 50}));
}

}  // namespace
