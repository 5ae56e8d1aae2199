// A multi-level header: its model, columns, geometry and the view model that it is.

#include "tests/headers/tree_bench.h"
#include "tests/support/slot.h"
#include "tests/support/test_images.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/views/item_walks.h"

using namespace vexel;
using namespace vexel::test;

namespace
{

// A from 0 to 99 with a to 39 and b to 99, that one with x to 69 and y; B from 100 to the end, 199.
using Header = CTreeBench;

class HeaderOfOne : public CTreeBench
{
protected:
    HeaderOfOne() : CTreeBench("A:70") {}
};

class HeaderScaled : public CTreeBench
{
protected:
    HeaderScaled() : CTreeBench("A(a:40 b:60(x:30 y:30)) B:50", 2.0) {}
};

}  // namespace

// Defaults ----------------------------------------------------------------------------------------------------------------

TEST_F(Header, BeginsWithAllStylesOwnLookAndAStretchedEnd)
{
    CHeader header(nullptr, {10, 10}, alTop);
    EXPECT_EQ(header.GetStyle(), 7u);
    EXPECT_FALSE(header.IsNativeDrawing());
    EXPECT_TRUE(header.IsLastItemStretched());
    EXPECT_EQ(header.GetItemVisualisation(), static_cast<IHeaderItemVisualisation*>(&header));
    EXPECT_EQ(header.GetMinWidth(), 30);
    EXPECT_EQ(header.GetDefaultItemSize(), 30);
    EXPECT_EQ(header.GetSingleWidth(), 0);
    EXPECT_FALSE(header.IsSingleColumnFit());
    EXPECT_EQ(header.GetModel(), nullptr);
    EXPECT_EQ(header.GetCount(), 0);
    EXPECT_EQ(header.GetFullItemsSize(), 0);
    CHeader::Processing const& doing = header.GetProcessing();
    EXPECT_EQ(doing.m_State, 0);
    EXPECT_EQ(doing.m_Item, nullptr);
    EXPECT_EQ(doing.m_ItemIndex, -1);
    EXPECT_EQ(doing.m_Anchor, 0);
    EXPECT_EQ(doing.m_HotState, 0);
    EXPECT_EQ(header.GetItemType(12345), IDirtyItemSet::dirtyItem);
}

// Columns -----------------------------------------------------------------------------------------------------------------

TEST_F(Header, ItsColumnsAreTheVisualLeavesFromLeftToRight)
{
    EXPECT_EQ(Columns(), "a:40 x:30 y:30 B:50");
    EXPECT_EQ(m_Header.GetFullItemsSize(), 150);
    m_Tree["b"].m_Collapsed = true;
    m_Tree["b"].m_Width = 45;
    m_Tree.m_SigChanged();
    EXPECT_EQ(Columns(), "a:40 b:45 B:50");
    EXPECT_EQ(m_Header.GetFullItemsSize(), 135);
}

TEST_F(Header, AColumnIsFoundByPlaceByItemAndByModelIndex)
{
    EXPECT_EQ(m_Header.GetHeaderItem(1), &m_Tree["x"]);
    EXPECT_EQ(m_Header.GetHeaderItem(-1), nullptr);
    EXPECT_EQ(m_Header.GetHeaderItem(4), nullptr);
    EXPECT_EQ(m_Header.VisibleIndex2ModelIndex(3), 5);  // B, behind A, a, b, x, y
    EXPECT_EQ(m_Header.VisibleIndex2ModelIndex(4), -1);
    EXPECT_EQ(m_Header.VisibleIndex2ModelIndex(-1), -1);
    EXPECT_EQ(m_Header.GetVisibleIndex(&m_Tree["y"]), 2);
    EXPECT_EQ(m_Header.GetVisibleIndex(&m_Tree["b"]), -1);  // spans two
    EXPECT_EQ(m_Header.GetVisibleIndex(nullptr), -1);
    EXPECT_EQ(m_Header.GetVisibleIndex(5), 3);
    EXPECT_EQ(m_Header.GetVisibleIndex(2), -1);
    EXPECT_EQ(m_Header.GetVisibleIndex(77), -1);
}

TEST_F(Header, AnItemInACollapsedOneIsNoColumn)
{
    m_Header.ExpandItem(&m_Tree["A"], false);
    EXPECT_EQ(m_Header.GetVisibleIndex(&m_Tree["x"]), -1);
    EXPECT_EQ(m_Header.GetVisibleIndex(&m_Tree["A"]), 0);
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["x"]), rectangle<double>());
}

TEST_F(Header, AnItemOfAnotherTreeIsNoColumn)
{
    CItemTree other("A(a)");
    EXPECT_EQ(m_Header.GetVisibleIndex(&other["a"]), -1);
    EXPECT_EQ(m_Header.GetItemRect(&other["a"]), rectangle<double>());
    CItem alone(nullptr, "alone");
    EXPECT_EQ(m_Header.GetVisibleIndex(&alone), -1);
}

TEST_F(Header, TheListOfColumnsIsMadeByAWalk)
{
    CHeader::CViewModelItems list;
    EXPECT_EQ(list.GetFullWidth(), 0);
    WalkHeaderModel(&m_Tree, &list, 0);
    EXPECT_FALSE(list.IsFinished());
    EXPECT_EQ(list.GetItems(), (std::vector<IHeaderItem*>{&m_Tree["a"], &m_Tree["x"], &m_Tree["y"], &m_Tree["B"]}));
    EXPECT_EQ(list.GetFullWidth(), 150);
    EXPECT_EQ(list.GetItemIndex(&m_Tree["y"]), 2);
    EXPECT_EQ(list.GetItemIndex(&m_Tree["A"]), -1);
    EXPECT_EQ(list.GetItemIndex(3), 1);  // x
    EXPECT_EQ(list.GetItemIndex(0), -1);
}

// Model -------------------------------------------------------------------------------------------------------------------

TEST_F(Header, WithoutAModelItHasNoColumns)
{
    m_Header.SetModel(nullptr);
    EXPECT_EQ(m_Header.GetCount(), 0);
    EXPECT_EQ(m_Header.GetItemSize(0), -1);
    EXPECT_EQ(m_Header.GetFullItemsSize(), 0);
    EXPECT_EQ(Hit(10, 10), "- 0 (0, 0, 0, 0)");
    m_Header.BuildViewModelItems();
    EXPECT_EQ(m_Header.GetCount(), 0);
}

TEST_F(Header, AnotherModelIsShownAndTheFirstNoLongerHeard)
{
    CItemTree other("P:20 Q:30");
    CSignalLog log(m_Header.m_SigChanged, "changed");
    m_Header.SetModel(&other);
    EXPECT_EQ(log.Take(), "changed()");
    EXPECT_TRUE(IsRepaintPending(m_Host));
    EXPECT_EQ(Columns(), "P:20 Q:30");
    m_Tree.m_SigChanged();
    EXPECT_EQ(log.Take(), "");
    other["P"].m_Width = 25;
    other.m_SigChanged();
    EXPECT_EQ(log.Take(), "changed()");
    EXPECT_EQ(Columns(), "P:25 Q:30");
    m_Header.SetModel(nullptr);
}

TEST_F(Header, TheSameModelIsReadAnew)
{
    m_Tree["a"].m_Width = 44;
    EXPECT_EQ(m_Header.GetItemSize(0), 40);
    m_Header.SetModel(&m_Tree);
    EXPECT_EQ(m_Header.GetItemSize(0), 44);
    m_Tree["a"].m_Width = 48;
    m_Tree.m_SigChanged();
    EXPECT_EQ(m_Header.GetItemSize(0), 48);
}

TEST_F(Header, AModelThatIsSetEndsWhatAUserDoes)
{
    Press(10, 30);
    EXPECT_EQ(Doing(), "3 a 0 3");
    m_Header.SetModel(&m_Tree);
    EXPECT_EQ(Doing(), "0 - -1 0");
    CHeaderLog log(m_Header);
    m_Host.Mouse().Release();
    EXPECT_EQ(log.Take(), "");
}

TEST_F(Header, AModelThatDiesIsForgotten)
{
    auto other = std::make_unique<CItemTree>("P:20 Q:30");
    m_Header.SetModel(other.get());
    m_Host.Paint();
    other.reset();
    EXPECT_EQ(m_Header.GetModel(), nullptr);
    EXPECT_EQ(m_Header.GetCount(), 0);
    EXPECT_TRUE(IsRepaintPending(m_Host));
}

TEST_F(Header, AChangeOfTheModelIsToldAndRepainted)
{
    m_Header.OnEndDraw();
    CSignalLog log(m_Header.m_SigChanged, "changed");
    m_Tree["a"].m_Width = 44;
    m_Tree.m_SigChanged();
    EXPECT_EQ(log.Take(), "changed()");
    EXPECT_EQ(m_Header.GetItemType(0), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(m_Header.GetItemType(100000), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
}

TEST_F(Header, TheTreeIsReadAnewOnDemandWithoutASignal)
{
    CSignalLog log(m_Header.m_SigChanged, "changed");
    m_Tree["a"].m_Width = 44;
    m_Header.BuildViewModelItems();
    EXPECT_EQ(Columns(), "a:44 x:30 y:30 B:50");
    EXPECT_EQ(log.Take(), "");
    m_Tree["a"].m_Width = 46;
    m_Header.UpdateAfterChange();
    EXPECT_EQ(Columns(), "a:46 x:30 y:30 B:50");
    EXPECT_EQ(log.Take(), "changed()");
}

TEST_F(Header, AnItemThatDiesIsForgottenAtOnce)
{
    m_Tree.Remove(&m_Tree["b"]);  // nobody was told
    EXPECT_EQ(Columns(), "a:40 B:50");
    EXPECT_EQ(Hit(70, 30), "B 1 (40, 0, 199, 60)");
    m_Header.SetModel(nullptr);
}

// View model --------------------------------------------------------------------------------------------------------------

TEST_F(Header, SizesOutsideOfTheColumnsAreMinusOne)
{
    EXPECT_EQ(m_Header.GetItemSize(-1), -1);
    EXPECT_EQ(m_Header.GetItemSize(4), -1);
    m_Header.SetItemSize(4, 20);
    m_Header.SetItemSize(-1, 20);
    EXPECT_EQ(Columns(), "a:40 x:30 y:30 B:50");
}

TEST_F(Header, ANewSizeIsStoredInTheItemAndTold)
{
    m_Header.OnEndDraw();
    CSignalLog log;
    log.Add(m_Header.m_SigSizeChanged, "size").Add(m_Header.m_SigChanged, "changed");
    m_Header.SetItemSize(1, 45);
    EXPECT_EQ(m_Tree["x"].m_Width, 45);
    EXPECT_EQ(m_Header.GetFullItemsSize(), 165);
    EXPECT_EQ(m_Header.GetItemPosition(2), 85);
    // From behind the column on, 15 to the right; nobody moved the pixels.
    EXPECT_EQ(log.Take().substr(0, 12), "size(70, 15,");
    EXPECT_EQ(m_Header.GetItemType(0), IDirtyItemSet::dirtyOther);
    EXPECT_EQ(m_Header.GetItemType(1), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(m_Header.GetItemType(3), IDirtyItemSet::dirtyItem);
    m_Header.SetItemSize(1, 45);
    EXPECT_EQ(log.Take(), "");
}

TEST_F(Header, AnItemThatTellsOfItsNewWidthIsCountedOnce)
{
    m_Tree["x"].m_Tell = &m_Tree.m_SigChanged;
    m_Header.SetItemSize(1, 45);
    EXPECT_EQ(m_Header.GetFullItemsSize(), 165);
    EXPECT_EQ(Columns(), "a:40 x:45 y:30 B:50");
}

TEST_F(Header, TheViewIsAsLargeAsTheElementUntilItIsTold)
{
    EXPECT_EQ(m_Header.GetViewSize(), 199);
    m_Header.SetViewSize(120, false);
    EXPECT_EQ(m_Header.GetViewSize(), 120);
    m_Header.SetViewSize(0, false);
    EXPECT_EQ(m_Header.GetViewSize(), 0);
}

TEST_F(Header, TheCountIsTheTreesAndItemsHaveNoDefaultSize)
{
    m_Header.SetCount(7);
    m_Header.SetDefaultItemSize(99);
    EXPECT_EQ(Columns(), "a:40 x:30 y:30 B:50");
    m_Header.UpdateModelState(nullptr);
    EXPECT_EQ(Columns(), "a:40 x:30 y:30 B:50");
}

TEST_F(Header, WalksOverItNeedNoWalk)
{
    EXPECT_EQ(m_Header.GetItemPosition(-1), 0);
    EXPECT_EQ(m_Header.GetItemPosition(0), 0);
    EXPECT_EQ(m_Header.GetItemPosition(3), 100);
    EXPECT_EQ(m_Header.GetItemPosition(4), 150);
    EXPECT_EQ(m_Header.GetItemPosition(5), 150);
    EXPECT_EQ(m_Header.FindItemAt(0), 0);
    EXPECT_EQ(m_Header.FindItemAt(39), 0);
    EXPECT_EQ(m_Header.FindItemAt(40), 1);
    EXPECT_EQ(m_Header.FindItemAt(149), 3);
    EXPECT_EQ(m_Header.FindItemAt(150), 4);
    EXPECT_EQ(Utils::GetItemOffset(&m_Header, 3), 100);
    EXPECT_EQ(Utils::HitTest(&m_Header, 71), 2);
    EXPECT_EQ(Utils::HitTest(&m_Header, 180), 3);  // stretched
}

TEST_F(Header, AnOffsetStopsWhereTheColumnsFillTheView)
{
    m_Header.SetViewSize(120, false);
    m_Header.SetOffset(25);
    EXPECT_EQ(m_Header.GetOffset(), 25);
    m_Header.SetOffset(90);
    EXPECT_EQ(m_Header.GetOffset(), 30);
    m_Header.SetOffset(-7);
    EXPECT_EQ(m_Header.GetOffset(), 0);
}

TEST_F(Header, ColumnsThatGoTakeTheViewBack)
{
    m_Header.SetViewSize(120, false);
    m_Header.SetOffset(30);
    m_Tree["A"].m_Width = 90;
    m_Header.ExpandItem(&m_Tree["A"], false);  // 90 and 50 are left
    EXPECT_EQ(m_Header.GetOffset(), 20);
    m_Header.ExpandItem(&m_Tree["A"], true);
    EXPECT_EQ(m_Header.GetOffset(), 20);
    m_Tree.Read("P:30");
    m_Tree.m_SigChanged();
    EXPECT_EQ(m_Header.GetOffset(), 0);
}

// A single column -----------------------------------------------------------------------------------------------------------

TEST_F(HeaderOfOne, HasTheWidthThatItIsTold)
{
    EXPECT_EQ(m_Header.GetItemSize(0), 70);
    m_Header.SetSingleWidth(150);
    EXPECT_EQ(m_Header.GetItemSize(0), 150);
    EXPECT_EQ(m_Header.GetFullItemsSize(), 150);
    EXPECT_EQ(m_Header.GetItemSize(1), -1);
    EXPECT_EQ(m_Header.GetItemPosition(1), 150);
    EXPECT_EQ(m_Header.FindItemAt(149), 0);
    EXPECT_EQ(m_Header.FindItemAt(150), 1);
    m_Header.SetSingleWidth(0);
    EXPECT_EQ(m_Header.GetItemSize(0), 70);
    m_Header.SetSingleWidth(150);
    m_Tree.Read("A:70 B:10");
    m_Tree.m_SigChanged();
    EXPECT_EQ(Columns(), "A:70 B:10");
    EXPECT_EQ(m_Header.GetFullItemsSize(), 80);
}

TEST_F(HeaderOfOne, IsKeptInsideTheElementIfItIsToFit)
{
    rectangle<double> rect{-30, 0, 250, 60};
    m_Header.CutRectByBounds(rect);
    EXPECT_EQ(rect, (rectangle<double>{-30, 0, 250, 60}));
    m_Header.SetSingleColumnFit(true);
    m_Header.CutRectByBounds(rect);
    EXPECT_EQ(rect, (rectangle<double>{0, 0, 199, 60}));
    m_Tree.Read("A:70 B:10");
    m_Tree.m_SigChanged();
    rect = {-30, 0, 250, 60};
    m_Header.CutRectByBounds(rect);
    EXPECT_EQ(rect, (rectangle<double>{-30, 0, 250, 60}));
}

// Geometry ----------------------------------------------------------------------------------------------------------------

TEST_F(Header, SectionsHaveTheirPlaces)
{
    EXPECT_EQ(m_Header.GetHeaderRect(), (rectangle<double>{0, 0, 199, 60}));
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["A"]), (rectangle<double>{0, 0, 99, 19}));
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["a"]), (rectangle<double>{0, 20, 39, 60}));
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["b"]), (rectangle<double>{40, 20, 99, 39}));
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["y"]), (rectangle<double>{70, 40, 99, 60}));
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["B"]), (rectangle<double>{100, 0, 199, 60}));
    EXPECT_EQ(m_Header.GetItemRect(nullptr), rectangle<double>());
}

TEST_F(Header, TheStripMovesWithTheScrollModel)
{
    m_Scroll.m_Start = 25;
    EXPECT_EQ(m_Header.GetHeaderRect(), (rectangle<double>{-25, 0, 199, 60}));
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["x"]), (rectangle<double>{15, 40, 44, 60}));
    EXPECT_EQ(Hit(20, 50), "x 1 (15, 40, 44, 60)");
    m_Header.SetHorzScroll(nullptr);
    EXPECT_EQ(m_Header.GetHeaderRect(), (rectangle<double>{0, 0, 199, 60}));
}

TEST_F(Header, CollapsedSectionsKeepTheStripsLevels)
{
    m_Tree["A"].m_Width = 80;
    m_Header.ExpandItem(&m_Tree["A"], false);
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["A"]), (rectangle<double>{0, 0, 79, 60}));
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["B"]), (rectangle<double>{80, 0, 199, 60}));
    m_Header.ExpandItem(&m_Tree["A"], true);
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["x"]), (rectangle<double>{40, 40, 69, 60}));
}

TEST_F(Header, AHitTellsAreaItemAndRectangle)
{
    EXPECT_EQ(Hit(20, 10), "A 1 (0, 0, 99, 19)");
    EXPECT_EQ(Hit(20, 30), "a 1 (0, 20, 39, 60)");
    EXPECT_EQ(Hit(60, 30), "b 1 (40, 20, 99, 39)");
    EXPECT_EQ(Hit(60, 60), "x 1 (40, 40, 69, 60)");
    EXPECT_EQ(Hit(3, 30), "a 1 (0, 20, 39, 60)");
    EXPECT_EQ(Hit(0, 30), "a 1 (0, 20, 39, 60)");
    EXPECT_EQ(Hit(60, 61), "- 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(-1, 30), "- 0 (0, 0, 0, 0)");
    EXPECT_EQ(Hit(200, 30), "- 0 (0, 0, 0, 0)");
}

TEST_F(Header, AGripReachesFourPixelsToEachSideOfTheEdge)
{
    EXPECT_EQ(Hit(34, 30), "a 1 (0, 20, 39, 60)");  // the edge is at 39
    EXPECT_EQ(Hit(35, 30), "a 3 (0, 20, 39, 60)");
    EXPECT_EQ(Hit(43, 30), "a 3 (0, 20, 39, 60)");
    EXPECT_EQ(Hit(44, 30), "b 1 (40, 20, 99, 39)");
}

TEST_F(Header, TheButtonOfASectionIsHit)
{
    // A ends at 99: 4 pixels from the right and from the top, 10 wide and high.
    EXPECT_EQ(m_Header.GetExpandBtnRect({0, 0, 99, 19}, &m_Tree["A"]), (rectangle<double>{85, 4, 95, 14}));
    EXPECT_EQ(Hit(84, 5), "A 1 (0, 0, 99, 19)");
    EXPECT_EQ(Hit(85, 4), "A 2 (0, 0, 99, 19)");
    EXPECT_EQ(Hit(95, 14), "A 2 (0, 0, 99, 19)");
    EXPECT_EQ(Hit(95, 15), "A 3 (0, 0, 99, 19)");
    EXPECT_EQ(Hit(85, 15), "A 1 (0, 0, 99, 19)");
}

TEST_F(Header, ASectionTooNarrowForItsButtonHasNoneAndNoClickReachesIt)
{
    m_Tree.Read("A(a:14) B:50");
    m_Tree.m_SigChanged();
    EXPECT_EQ(m_Header.GetExpandBtnRect({0, 0, 13, 29}, &m_Tree["A"]), rectangle<double>());
    CHeaderLog log(m_Header);
    for (int x = 0; x < 14; ++x)
        m_Host.Mouse().Click(m_Header, x, 8);
    EXPECT_EQ(log.Take().find("expanded"), std::string::npos);
    EXPECT_FALSE(m_Tree["A"].m_Collapsed);
    EXPECT_EQ(m_Header.GetExpandBtnRect({0, 0, 14, 29}, &m_Tree["A"]), rectangle<double>());
    EXPECT_EQ(m_Header.GetExpandBtnRect({0, 0, 15, 29}, &m_Tree["A"]), (rectangle<double>{1, 4, 11, 14}));
    EXPECT_EQ(m_Header.GetExpandBtnRect({0, 0, 99, 14}, &m_Tree["A"]), rectangle<double>());  // too low
    EXPECT_EQ(m_Header.GetExpandBtnRect({0, 0, 99, 29}, &m_Tree["B"]), rectangle<double>());  // nothing to expand
    EXPECT_EQ(m_Header.GetExpandBtnRect({0, 0, 99, 29}, nullptr), rectangle<double>());
}

TEST_F(HeaderScaled, ButtonsGrowWithTheScale)
{
    EXPECT_EQ(m_Header.GetExpandBtnRect({0, 0, 99, 39}, &m_Tree["A"]), (rectangle<double>{71, 8, 91, 28}));
}

TEST_F(Header, TheContentStandsBesideTheButton)
{
    EXPECT_EQ(m_Header.GetSectionContentRect({0, 0, 99, 19}, &m_Tree["A"]), (rectangle<double>{4, 0, 80, 19}));
    EXPECT_EQ(m_Header.GetSectionContentRect({0, 20, 39, 60}, &m_Tree["a"]), (rectangle<double>{4, 20, 35, 60}));
    // Without room for the button there is no content beside it.
    EXPECT_EQ(m_Header.GetSectionContentRect({0, 0, 12, 19}, &m_Tree["A"]), (rectangle<double>{4, 0, 8, 19}));
}

TEST_F(Header, AContentsWidthLeadsToTheSections)
{
    EXPECT_EQ(m_Header.ContentWidth2SectionWidth(&m_Tree["a"], 50, &m_Header), 58);
    EXPECT_EQ(m_Header.ContentWidth2SectionWidth(&m_Tree["A"], 50, &m_Header), 73);  // button, margins and a pixel
}

TEST_F(Header, TheOptimalWidthHoldsTextImageAndMark)
{
    // A character is 8 wide; 15 for a mark and 2 more in any case.
    EXPECT_EQ(m_Header.GetItemOptimalWidth(&m_Tree["a"]), 8 + 8 + 17);
    m_Tree["a"].m_Name = "a longer one";
    EXPECT_EQ(m_Header.GetItemOptimalWidth(&m_Tree["a longer one"]), 96 + 8 + 17);
    m_Tree["B"].m_Sorting = 1;
    EXPECT_EQ(m_Header.GetItemOptimalWidth(&m_Tree["B"]), 8 + 15 + 8 + 17);
    EXPECT_EQ(m_Header.GetItemOptimalWidth(&m_Tree["A"]), 8 + 23 + 17);
    EXPECT_EQ(m_Header.GetItemOptimalWidth(nullptr), 17);
    CHeader alone(nullptr, {10, 10}, alTop);
    EXPECT_EQ(alone.GetItemOptimalWidth(&m_Tree["a longer one"]), 17);
}

TEST_F(Header, AnImageTakesItsWidthAndASpace)
{
    CTestImages images({{6, 6}});
    m_Host.Control().GetControl()->SetImageList(&images);
    m_Tree["a"].m_Image = 0;
    EXPECT_EQ(m_Header.GetItemOptimalWidth(&m_Tree["a"]), 8 + 6 + 3 + 8 + 17);
    m_Tree["a"].m_Image = -1;
    EXPECT_EQ(m_Header.GetItemOptimalWidth(&m_Tree["a"]), 8 + 8 + 17);
    m_Host.Control().GetControl()->SetImageList(nullptr);
}

TEST_F(Header, ItsHeightFollowsFromItsLevels)
{
    m_Header.RecalculateHeight();  // three lines of 8 and 4 more each
    EXPECT_EQ(m_Header.GetSize(), (size<int>{60, 36}));
    m_Host.Paint();
    EXPECT_EQ(m_Header.GetPos(), (rectangle<int>{0, 0, 199, 36}));
    m_Header.ExpandItem(&m_Tree["A"], false);
    m_Header.RecalculateHeight();
    EXPECT_EQ(m_Header.GetSize().height, 36);
    m_Tree.Read("A B");
    m_Tree.m_SigChanged();
    m_Header.RecalculateHeight();
    EXPECT_EQ(m_Header.GetSize().height, 12);
    m_Header.SetModel(nullptr);
    m_Header.RecalculateHeight();
    EXPECT_EQ(m_Header.GetSize().height, 0);
}

// Expanding ---------------------------------------------------------------------------------------------------------------

TEST_F(Header, ExpandingChangesTheItemTheColumnsAndThenTells)
{
    CHeaderLog log(m_Header);
    CSignalLog changes(m_Header.m_SigChanged, "changed");
    m_Header.OnEndDraw();
    m_Header.ExpandItem(&m_Tree["b"], false);
    EXPECT_TRUE(m_Tree["b"].m_Collapsed);
    EXPECT_EQ(Columns(), "a:40 b:60 B:50");
    EXPECT_EQ(m_Header.GetItemType(77777), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(changes.Take(), "changed()");
    EXPECT_EQ(log.Take(), "expanded(b no)");
    EXPECT_TRUE(IsRepaintPending(m_Host));
    m_Header.ExpandItem(&m_Tree["b"], true);
    EXPECT_EQ(Columns(), "a:40 x:30 y:30 B:50");
    EXPECT_EQ(log.Take(), "expanded(b)");
    m_Header.ExpandItem(nullptr, true);
    EXPECT_EQ(log.Take(), "");
}

TEST_F(Header, AnItemHiddenByItsParentIsCollapsedForLater)
{
    m_Header.ExpandItem(&m_Tree["A"], false);
    m_Header.ExpandItem(&m_Tree["b"], false);
    EXPECT_EQ(Columns(), "A:50 B:50");
    m_Tree["b"].m_Width = 65;
    m_Header.ExpandItem(&m_Tree["b"], true);
    m_Header.ExpandItem(&m_Tree["b"], false);
    EXPECT_EQ(m_Header.GetFullItemsSize(), 100);
    m_Header.ExpandItem(&m_Tree["A"], true);
    EXPECT_EQ(Columns(), "a:40 b:65 B:50");
    EXPECT_EQ(m_Header.GetFullItemsSize(), 155);
}

TEST_F(Header, AnItemThatTellsOfItsExpansionIsReadOnce)
{
    m_Tree["b"].m_Tell = &m_Tree.m_SigChanged;
    CHeaderLog log(m_Header);
    m_Header.ExpandItem(&m_Tree["b"], false);
    EXPECT_EQ(Columns(), "a:40 b:60 B:50");
    EXPECT_EQ(m_Header.GetFullItemsSize(), 150);
    EXPECT_EQ(log.Take(), "expanded(b no)");
}

TEST_F(Header, AnItemMayGetItsChildrenWhenItIsExpanded)
{
    class CLate : public CItem
    {
    public:
        using CItem::CItem;
        void Expand(bool expand) override
        {
            if (expand && m_Children.empty())
                m_Children.push_back(std::make_unique<CItem>(this, "late"));
        }
    };
    m_Tree.m_Children.push_back(std::make_unique<CLate>(&m_Tree, "L"));
    m_Tree.m_SigChanged();
    m_Header.ExpandItem(&m_Tree["L"], true);
    EXPECT_EQ(Columns(), "a:40 x:30 y:30 B:50 late:50");
}

TEST_F(Header, EachStyleIsRepainted)
{
    m_Header.SetStyle(7);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Header.SetStyle(CHeader::hsPress);
    EXPECT_EQ(m_Header.GetStyle(), 2u);
    EXPECT_TRUE(IsRepaintPending(m_Host));
}
