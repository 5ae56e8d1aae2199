// What is painted anew where a model or the layout leaves more behind than it has marked.

#include "tests/views/viewer_bench.h"

using namespace viewer_test;

namespace
{

class StaleRows : public CRowsBench<IDiscreteItemViewModel>
{};

std::string const AllDirty =
    "0 state 0 item, 1 state 0 item, 2 state 0 item, 3 state 0 item, 4 state 0 item, 5 state 0 item";

TEST_F(StaleRows, ItemsThatMovedAreAllPaintedAlsoWhereOneIsMarked)
{
    CMoveTranslator translator(1, 4);
    View().UpdateModelState(&translator);
    View().AddDirtyItems(7, 7);
    EXPECT_EQ(Paint(), AllDirty);
}

TEST_F(StaleRows, ASelectionThatMovedIsPaintedAlsoWhereARowIsMarked)
{
    GoTo(1);
    CMoveTranslator translator(1, 3);
    Selection().UpdateModelState(&translator);
    View().AddDirtyItems(7, 7);
    EXPECT_EQ(Paint(),
              "0 state 0 item, 1 state 0 item, 2 state 0 item, 3 state 3 item, 4 state 0 item, 5 state 0 item");
    Selection().UpdateModelState(&translator);  // neither is at a place that moves
    Selection().OnEndDraw();
    CMoveTranslator elsewhere(7, 8);
    Selection().UpdateModelState(&elsewhere);
    EXPECT_EQ(Dirty(Selection(), 12), "none");
}

TEST_F(StaleRows, ANewSizeOfTheFirstRowInViewPaintsAllOfThem)
{
    View().SetCount(5);
    View().SetStartItem(0);
    Settle();
    View().AddDirtyItems(4, 4);
    View().SetItemSize(0, 40);  // too near to the end to move pixels
    Settle();
    View().SetItemSize(0, 35);
    View().AddDirtyItems(9, 9);
    EXPECT_EQ(Paint(), "0 state 0 item, 1 state 0 item, 2 state 0 item");
}

TEST_F(StaleRows, AShiftClickRepaintsAllThatLeavesASelectionOfAnotherKind)
{
    GoTo(2);
    Press('A', ksControl);
    Settle();
    Click(35, ksShift);
    EXPECT_EQ(Selected(), "2 3");
    EXPECT_EQ(Paint(),
              "0 state 0 item, 1 state 0 item, 2 state 1 item, 3 state 3 item, 4 state 0 item, 5 state 0 item");
}

TEST_F(StaleRows, AShiftClickRepaintsASelectionThatHasOnlyTheLengthOfARunFromTheAnchor)
{
    GoTo(3);
    Selection().SelectItem(2, true);
    Selection().SelectItem(5, true);
    Handler().SetAnchor(1);  // 1 to 3 would be three rows, too
    Settle();
    Click(45, ksShift);
    EXPECT_EQ(Selected(), "1 2 3 4");
    EXPECT_EQ(Paint(),
              "0 state 0 item, 1 state 1 item, 2 state 1 item, 3 state 1 item, 4 state 3 item, 5 state 0 item");
}

TEST_F(StaleRows, AListThatMovedPaintsAllWhereOneRowIsMarked)
{
    auto* const parent = new CVisualElement(m_Host.Root(), {50, 50}, alNone);
    parent->SetPos({10, 0, 60, 50}, false);
    m_Rows->ReParent(parent, true);
    m_Rows->SetAlignment(alNone);
    m_Rows->SetPos({0, 0, 30, 50}, false);
    m_Host.Root()->Update(utElement);
    Settle();
    View().AddDirtyItems(1, 1);
    m_Rows->Update(utElement);
    EXPECT_EQ(Paint(),
              "0 state 0 other, 1 state 0 item, 2 state 0 other, 3 state 0 other, 4 state 0 other, 5 state 0 other");
    parent->SetPos({20, 0, 70, 50}, false);
    View().AddDirtyItems(1, 1);
    m_Rows->Update(utElement);
    EXPECT_EQ(Paint(), AllDirty);
}

TEST_F(StaleRows, AnAncestorThatIsPaintedPaintsAllWhereOneRowIsMarked)
{
    View().AddDirtyItems(1, 1);
    m_Host.Root()->Update(utElement);
    EXPECT_EQ(Paint(), AllDirty);
    Selection().AddDirtyItems(1, 1);
    m_Host.Root()->Update(utElement);
    EXPECT_EQ(Paint(), AllDirty);
    m_Host.Root()->Update(utElement);
    EXPECT_EQ(Paint(),
              "0 state 0 none, 1 state 0 none, 2 state 0 none, 3 state 0 none, 4 state 0 none, 5 state 0 none");
}

TEST_F(StaleRows, AViewThatGrowsAtTheEndOfItsRangeIsPaintedWhole)
{
    m_Rows->SetAlignment(alNone);
    m_Rows->SetPos({0, 0, 99, 30}, false);
    View().SetStartItem(7);
    Settle();
    EXPECT_EQ(View().GetStartItem(), 7);
    m_Rows->SetPos({0, 0, 99, 50}, false);
    EXPECT_EQ(View().GetStartItem(), 6);
    EXPECT_EQ(Dirty(View(), 12), "0-12");
}

TEST_F(StaleRows, AChildOnTopKeepsThePixelsWhereTheyAre)
{
    auto* const child = new CVisualElement(m_Rows, {5, 5}, alNone);
    child->SetPos({10, 10, 20, 20}, false);
    Settle();
    EXPECT_FALSE(Handler().ScrollItems(0, -10));
    View().SetStartItem(1);
    EXPECT_EQ(Paint(),
              "1 state 0 item, 2 state 0 item, 3 state 0 item, 4 state 0 item, 5 state 0 item, 6 state 0 item");
    child->SetVisible(false);
    EXPECT_TRUE(Handler().ScrollItems(0, -10));
}

TEST_F(StaleRows, AListThatShowsOnlyInPartKeepsThePixelsWhereTheyAre)
{
    m_Rows->SetAlignment(alNone);
    m_Rows->SetPos({0, -10, 99, 40}, false);
    Settle();
    EXPECT_EQ(m_Rows->GetValidRect(), (rectangle<int>{0, 0, 99, 50}));
    EXPECT_FALSE(Handler().ScrollItems(0, -10));
    EXPECT_EQ(m_Rows->GetValidRect(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(StaleRows, AnEnabledOrDisabledListIsPaintedWhole)
{
    View().AddDirtyItems(1, 1);
    m_Rows->SetEnabled(false);
    m_Rows->Update(utElement);
    EXPECT_EQ(Paint(), AllDirty);
    m_Rows->SetEnabled(false);
    EXPECT_EQ(Dirty(View(), 3), "none");
}

TEST_F(StaleRows, AnotherWidthPaintsAllRows)
{
    m_Rows->SetAlignment(alNone);
    m_Rows->SetPos({0, 0, 60, 50}, false);
    EXPECT_EQ(Dirty(View(), 3), "0-3");
}

class StalePixelRows : public CRowsBench<IContinuousItemViewModel>
{};

TEST_F(StalePixelRows, TheRowAtTheViewsLastLineIsPaintedAfterAScroll)
{
    View().SetOffset(10);  // row 6 begins at pixel 50, which is the last line
    EXPECT_EQ(Paint(),
              "1 state 0 other, 2 state 0 other, 3 state 0 other, 4 state 0 item, 5 state 0 item, 6 state 0 item");
}

TEST_F(StalePixelRows, ARowBeforeTheViewThatShrinksMovesNothingOutOfTheView)
{
    View().SetItemSize(0, 40);
    View().SetOffset(35);  // 5 pixels of row 0 show
    auto* const above = new CVisualElement(m_Host.Root(), {10, 10}, alTop);
    above->SetBkColor(color_table[13]);
    m_Host.Root()->GetChildren()->MoveItem(1, 0);
    m_Host.FullPaint();
    vexelbase::_color const before = m_Host.PixelAt(50, 5);
    View().SetItemSize(0, 10);
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(50, 5), before);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

}  // namespace
