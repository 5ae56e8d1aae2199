// Rows that are scrolled whole.

#include "tests/support/scripted_system.h"
#include "tests/support/slot.h"
#include "tests/views/items.h"
#include "vexel/views/discrete_item_view_model.h"
#include "vexel/views/item_walks.h"

#include <gtest/gtest.h>

#include <climits>

using namespace vexel;

namespace
{

// Ten rows of 20 in a view of 100: five fit, the last start is 6, for a row that would just fit is left out.
class DiscreteItems : public testing::Test
{
protected:
    DiscreteItems()
    {
        m_Model.SetDefaultItemSize(20);
        m_Model.SetCount(10);
        m_Model.SetViewSize(100, false);
        m_Model.OnEndDraw();
        m_Log.Clear();
    }
    void StartAt(int item)
    {
        m_Model.SetStartItem(item);
        m_Model.OnEndDraw();
        m_Log.Clear();
    }

    CSimpleDiscreteItemViewModel m_Model;
    CModelLog m_Log{m_Model};
};

TEST(DiscreteItemsAtFirst, NothingIsThereAndEverythingIsDirty)
{
    CSimpleDiscreteItemViewModel const model;
    EXPECT_EQ(model.GetStartItem(), 0);
    EXPECT_EQ(model.GetCount(), 0);
    EXPECT_EQ(model.GetViewSize(), -1);
    EXPECT_FALSE(model.m_StretchLastItem);
    EXPECT_EQ(model.GetItemType(0), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(model.GetItemType(INT_MAX), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(model.GetItemType(-1), IDirtyItemSet::dirtyOther);
}

TEST(DiscreteItemsAtFirst, TheItemSizeIsTwentyTimesTheScaleTruncated)
{
    CScriptedSystem const system(1.33);
    EXPECT_EQ(CSimpleDiscreteItemViewModel().GetDefaultItemSize(), 26);
    EXPECT_EQ(CDefaultDiscreteItemViewModel().GetItemSize(3), 26);
}

TEST_F(DiscreteItems, AllHaveTheDefaultSizeAndKeepIt)
{
    m_Model.SetItemSize(3, 55);
    EXPECT_EQ(m_Model.GetItemSize(3), 20);
    EXPECT_EQ(m_Model.GetItemSize(-1), 20);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Dirty(m_Model, 12), "none");
}

TEST_F(DiscreteItems, EndOfDrawingEmptiesTheDirtySet)
{
    m_Model.AddDirtyItems(7, 5);
    EXPECT_EQ(Dirty(m_Model, 12), "5-7");
    m_Model.OnEndDraw();
    EXPECT_EQ(Dirty(m_Model, 12), "none");
}

// Scrolling ----------------------------------------------------------------------------------------------------------
TEST_F(DiscreteItems, AStepForwardMovesThePixelsAndMarksWhatComesIn)
{
    m_Model.SetStartItem(1);
    EXPECT_EQ(m_Model.GetStartItem(), 1);
    EXPECT_EQ(m_Log.Text(), "size(0, -20, true) changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "5-9");
}

TEST_F(DiscreteItems, AStepBackMovesThePixelsAndMarksWhatComesIn)
{
    StartAt(6);
    m_Model.SetStartItem(4);
    EXPECT_EQ(m_Log.Text(), "size(0, 40, true) changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "4-5");
}

TEST_F(DiscreteItems, PixelsThatWereNotMovedMakeAllDirty)
{
    auto const viewer = Listen(m_Model.m_SigSizeChanged, [](int, int, bool* handled) { *handled = false; });
    m_Model.SetStartItem(1);
    EXPECT_EQ(Dirty(m_Model, 12), "0-10");
}

TEST_F(DiscreteItems, AJumpAsksForNoMoveOfPixels)
{
    m_Model.SetStartItem(4);  // of rows 0 to 4, only row 4 would stay: not below the last
    EXPECT_EQ(m_Log.Text(), "size(0, 1, false) changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "0-10");
}

TEST_F(DiscreteItems, ViewsThatShareOnlyARowAtTheEndAreAJump)
{
    m_Model.SetViewSize(40, false);
    StartAt(4);
    m_Model.SetStartItem(3);  // rows 3 and 4 after rows 4 and 5
    EXPECT_EQ(m_Log.Text(), "size(0, 1, false) changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "0-10");
}

TEST_F(DiscreteItems, AViewerMayMoveThePixelsOfAJumpAllTheSame)
{
    auto const viewer = Listen(m_Model.m_SigSizeChanged, [](int, int, bool* handled) { *handled = true; });
    m_Model.SetStartItem(6);
    EXPECT_EQ(Dirty(m_Model, 12), "5-9");
}

TEST_F(DiscreteItems, TheSameStartDoesNothing)
{
    m_Model.SetStartItem(0);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Dirty(m_Model, 12), "none");
}

TEST_F(DiscreteItems, AStartBelowZeroIsZero)
{
    StartAt(1);
    m_Model.SetStartItem(-5);
    EXPECT_EQ(m_Model.GetStartItem(), 0);
    EXPECT_EQ(m_Log.Text(), "size(0, 20, true) changed()");
}

TEST_F(DiscreteItems, AScrollThatEndsWhereItBeganMarksBeforeItStops)
{
    m_Model.SetStartItem(-5);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Dirty(m_Model, 12), "5-9");

    StartAt(6);
    m_Model.SetStartItem(100);
    EXPECT_EQ(m_Model.GetStartItem(), 6);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Dirty(m_Model, 12), "9-10");  // from behind the last row, 10, to the last one, 9
}

TEST(DiscreteItemsWithoutView, StandWhereTheyAreTold)
{
    CSimpleDiscreteItemViewModel model;
    model.SetCount(10);
    model.SetStartItem(50);
    EXPECT_EQ(model.GetStartItem(), 50);
    model.SetViewSize(0, false);
    model.SetStartItem(40);
    EXPECT_EQ(model.GetStartItem(), 40);
    model.SetStartItem(-1);
    EXPECT_EQ(model.GetStartItem(), 0);
}

// Count and size -----------------------------------------------------------------------------------------------------
TEST_F(DiscreteItems, ANewCountMakesAllDirty)
{
    m_Model.SetCount(7);
    EXPECT_EQ(m_Model.GetCount(), 7);
    EXPECT_EQ(m_Log.Take(), "changed()");
    EXPECT_EQ(m_Model.GetItemType(INT_MAX), IDirtyItemSet::dirtyItem);
    m_Model.SetCount(7);
    EXPECT_EQ(m_Log.Text(), "changed()");
}

TEST_F(DiscreteItems, AStartBeyondTheNewCountGoesToZero)
{
    StartAt(6);
    m_Model.SetCount(7);
    EXPECT_EQ(m_Model.GetStartItem(), 6);
    m_Log.Clear();
    m_Model.SetCount(6);
    EXPECT_EQ(m_Model.GetStartItem(), 0);
    EXPECT_EQ(m_Log.Text(), "size(0, 1, false) changed() changed()");
}

TEST_F(DiscreteItems, ADefaultSizeMakesAllDirtyAndIsToldInAnyCase)
{
    m_Model.SetDefaultItemSize(20);
    EXPECT_EQ(m_Log.Text(), "changed()");
    EXPECT_EQ(m_Model.GetItemType(0), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(m_Model.GetItemType(INT_MAX), IDirtyItemSet::dirtyItem);
}

TEST_F(DiscreteItems, StretchingTheLastItemRepaintsItOnce)
{
    m_Model.SetStretchLastItem(true);
    EXPECT_TRUE(m_Model.m_StretchLastItem);
    EXPECT_TRUE(m_Model.IsLastItemStretched());
    EXPECT_EQ(m_Log.Text(), "changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "9-10");
    m_Model.SetStretchLastItem(true);
    EXPECT_EQ(m_Log.Text(), "changed()");
}

// The view -----------------------------------------------------------------------------------------------------------
TEST_F(DiscreteItems, AGrowingViewMarksFromTheOldEdgeOn)
{
    m_Model.SetViewSize(130, false);
    EXPECT_EQ(m_Model.GetViewSize(), 130);
    EXPECT_EQ(m_Log.Text(), "changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "5-10");
}

TEST_F(DiscreteItems, AShrinkingViewMarksOnlyTheAreaBehindTheItems)
{
    m_Model.SetViewSize(50, false);
    EXPECT_EQ(m_Log.Text(), "changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "10");
}

TEST_F(DiscreteItems, AViewThatGrowsBehindTheItemsMarksNone)
{
    m_Model.SetCount(3);
    m_Model.OnEndDraw();
    m_Model.SetViewSize(130, false);
    EXPECT_EQ(Dirty(m_Model, 12), "3");
}

TEST_F(DiscreteItems, AGrowingViewAtTheEndScrollsBack)
{
    StartAt(6);
    m_Model.SetViewSize(200, false);  // the last start is now 1
    EXPECT_EQ(m_Model.GetStartItem(), 1);
    EXPECT_EQ(m_Log.Text(), "size(0, 100, true) changed() changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "1-5 10");
}

TEST_F(DiscreteItems, AViewThatGrowsWhereItStandsAtTheLastStartMarksFromTheOldEdgeOn)
{
    m_Model.SetViewSize(30, false);
    StartAt(8);
    m_Model.SetViewSize(50, false);  // 8 is the last start of this view, too
    EXPECT_EQ(m_Model.GetStartItem(), 8);
    EXPECT_EQ(Dirty(m_Model, 12), "9-10");
    EXPECT_EQ(m_Log.Text(), "changed()");
}

TEST_F(DiscreteItems, InvalidatingAllAloneMarksAndStaysSilent)
{
    m_Model.SetViewSize(100, true);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Dirty(m_Model, 12), "0-10");
}

TEST(DiscreteItemsWithoutView, AFirstSizeOfZeroIsNoChange)
{
    CSimpleDiscreteItemViewModel model;
    model.SetCount(10);
    model.OnEndDraw();
    CModelLog const log(model);
    model.SetViewSize(0, false);
    EXPECT_EQ(model.GetViewSize(), 0);
    EXPECT_EQ(log.Text(), "");
    EXPECT_EQ(Dirty(model, 12), "none");
    model.SetViewSize(-1, false);
    EXPECT_EQ(log.Text(), "changed()");
}

TEST(DiscreteItemsWithoutView, TheFirstRealSizeMarksAllItems)
{
    CSimpleDiscreteItemViewModel model;
    model.SetCount(10);
    model.OnEndDraw();
    model.SetViewSize(1, false);
    EXPECT_EQ(Dirty(model, 12), "0-10");
}

// Indices that move --------------------------------------------------------------------------------------------------
TEST_F(DiscreteItems, TheStartGoesWithItsItem)
{
    StartAt(6);
    CAddRemoveTranslator removed(2, -2);
    m_Model.UpdateModelState(&removed);
    EXPECT_EQ(m_Model.GetStartItem(), 4);
    EXPECT_EQ(m_Log.Text(), "changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "none");
}

TEST_F(DiscreteItems, TheStartStaysWithinTheLastViewFull)
{
    StartAt(6);
    CAddRemoveTranslator inserted(0, 3);
    m_Model.UpdateModelState(&inserted);
    EXPECT_EQ(m_Model.GetStartItem(), 6);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(DiscreteItems, AStartThatIsRemovedAtTheFrontIsZero)
{
    StartAt(3);
    CAddRemoveTranslator removed(-1, -5);  // 3 answers -1
    m_Model.UpdateModelState(&removed);
    EXPECT_EQ(m_Model.GetStartItem(), 0);
}

TEST_F(DiscreteItems, NothingMovesWithoutATranslation)
{
    StartAt(3);
    CSilentTranslator silent;
    m_Model.UpdateModelState(&silent);
    m_Model.UpdateModelState(nullptr);
    EXPECT_EQ(m_Model.GetStartItem(), 3);
    EXPECT_EQ(m_Log.Text(), "");
}

// Sizes of their own -------------------------------------------------------------------------------------------------
// Ten rows of 20 in a view of 200: all of them fit, the last start is 1.
class DiscreteSizes : public testing::Test
{
protected:
    DiscreteSizes()
    {
        m_Model.SetDefaultItemSize(20);
        m_Model.SetCount(10);
        m_Model.SetViewSize(200, false);
        m_Model.OnEndDraw();
        m_Log.Clear();
    }

    CDefaultDiscreteItemViewModel m_Model;
    CModelLog m_Log{m_Model};
};

TEST_F(DiscreteSizes, ASizeIsStoredForItsItemOnly)
{
    m_Model.SetItemSize(8, 50);
    EXPECT_EQ(m_Model.GetItemSize(8), 50);
    EXPECT_EQ(m_Model.GetItemSize(7), 20);
    EXPECT_EQ(m_Model.GetItemSizes().GetCount(), 1);
    m_Model.SetDefaultItemSize(30);
    EXPECT_EQ(m_Model.GetItemSize(8), 50);
    EXPECT_EQ(m_Model.GetItemSize(7), 30);
}

TEST_F(DiscreteSizes, TheDefaultSizeRemovesTheEntry)
{
    m_Model.SetItemSize(8, 50);
    m_Model.SetItemSize(8, 20);
    EXPECT_TRUE(m_Model.GetItemSizes().IsEmpty());
    m_Model.SetItemSize(8, 50);
    m_Model.SetItemSize(8, 0);  // below 1: the default
    EXPECT_TRUE(m_Model.GetItemSizes().IsEmpty());
    EXPECT_EQ(m_Model.GetItemSize(8), 20);
}

TEST_F(DiscreteSizes, TheSameSizeDoesNothing)
{
    m_Model.SetItemSize(1, 20);
    m_Model.SetItemSize(1, -4);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Dirty(m_Model, 12), "none");
}

TEST_F(DiscreteSizes, PixelsMoveWhileTheOldSizeStillHolds)
{
    int size = 0;
    auto const viewer = Listen(m_Model.m_SigSizeChanged, [&](int, int, bool*) { size = m_Model.GetItemSize(1); });
    m_Model.SetItemSize(1, 50);
    EXPECT_EQ(size, 20);
    EXPECT_EQ(m_Model.GetItemSize(1), 50);
    EXPECT_EQ(m_Log.Text(), "size(40, 30, true) changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "1-3 9-10");
}

TEST_F(DiscreteSizes, PixelsThatWereNotMovedMakeTheRestDirty)
{
    auto const viewer = Listen(m_Model.m_SigSizeChanged, [](int, int, bool* handled) { *handled = false; });
    m_Model.SetItemSize(1, 10);
    EXPECT_EQ(m_Log.Text(), "size(40, -10, true) changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "1-10");
}

TEST_F(DiscreteSizes, TheStartItemIsNotMarkedWhenItsPixelsWereNotMoved)
{
    auto const viewer = Listen(m_Model.m_SigSizeChanged, [](int, int, bool* handled) { *handled = false; });
    m_Model.SetItemSize(0, 30);
    EXPECT_EQ(m_Log.Text(), "size(20, 10, true) changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "none");
}

TEST_F(DiscreteSizes, NearTheEndOfTheViewNoPixelsAreMoved)
{
    m_Model.SetItemSize(6, 50);  // the last one in view is 9: below 9 - 2
    EXPECT_EQ(m_Log.Take(), "size(140, 30, true) changed()");
    m_Model.SetItemSize(6, 20);
    m_Model.OnEndDraw();
    m_Log.Clear();
    m_Model.SetItemSize(7, 50);
    EXPECT_EQ(m_Log.Text(), "changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "7-10");
}

TEST_F(DiscreteSizes, ItemsBeforeTheViewMarkNothing)
{
    m_Model.SetViewSize(100, false);
    m_Model.SetStartItem(3);
    m_Model.OnEndDraw();
    m_Log.Clear();
    m_Model.SetItemSize(2, 50);
    EXPECT_EQ(m_Log.Text(), "changed()");
    EXPECT_EQ(Dirty(m_Model, 12), "none");
}

TEST_F(DiscreteSizes, AStartBeyondTheLastViewFullIsMendedEvenIfTheSizeStays)
{
    m_Model.SetViewSize(100, false);
    m_Model.SetStartItem(6);
    m_Model.SetDefaultItemSize(10);  // ten rows of 10 in 100: the last start is 1
    EXPECT_EQ(m_Model.GetStartItem(), 6);
    m_Log.Clear();
    m_Model.SetItemSize(2, 10);
    EXPECT_EQ(m_Model.GetStartItem(), 1);
    EXPECT_EQ(m_Log.Text(), "size(0, 50, true) changed()");
}

TEST_F(DiscreteSizes, ThereAreNoItemsBelowZero)
{
    m_Model.SetItemSize(-1, 50);
    EXPECT_TRUE(m_Model.GetItemSizes().IsEmpty());
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(DiscreteSizes, SizesGoWithTheirItems)
{
    m_Model.SetItemSize(3, 50);
    m_Model.SetItemSize(5, 60);
    m_Log.Clear();
    CAddRemoveTranslator removed(2, -2);  // 3 and 4 go, 5 becomes 3
    m_Model.UpdateModelState(&removed);
    EXPECT_EQ(m_Model.GetItemSize(3), 60);
    EXPECT_EQ(m_Model.GetItemSizes().GetCount(), 1);
    EXPECT_EQ(m_Log.Take(), "changed()");

    CAddRemoveTranslator inserted(2, 4);
    m_Model.UpdateModelState(&inserted);
    EXPECT_EQ(m_Model.GetItemSize(3), 20);
    EXPECT_EQ(m_Model.GetItemSize(7), 60);
    m_Log.Clear();

    CSilentTranslator silent;
    m_Model.UpdateModelState(&silent);
    EXPECT_EQ(m_Model.GetItemSize(7), 60);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(DiscreteSizes, AMovedStartIsToldBesidesTheSizes)
{
    m_Model.SetStartItem(1);
    m_Log.Clear();
    CMoveTranslator moved(1, 0);
    m_Model.UpdateModelState(&moved);
    EXPECT_EQ(m_Model.GetStartItem(), 0);
    EXPECT_EQ(m_Log.Text(), "changed() changed()");
}

}  // namespace
