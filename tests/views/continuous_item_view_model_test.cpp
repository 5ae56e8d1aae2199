// Columns that are scrolled by pixels.

#include "tests/support/scripted_system.h"
#include "tests/support/slot.h"
#include "tests/views/items.h"
#include "vexel/views/continuous_item_view_model.h"
#include "vexel/views/item_walks.h"

#include <gtest/gtest.h>

#include <climits>
#include <vector>

using namespace vexel;

namespace
{

// Keeps the sizes outside of the base, as a header does, and writes down what it is told to store.
class CStoredItems : public CSimpleContinuousItemViewModel
{
public:
    std::vector<int> m_Sizes;
    int m_View = -1;
    std::string m_Stored;

    void SetCount(int count) override { m_Sizes.resize(static_cast<std::size_t>(count), 20); }
    int GetCount() const override { return static_cast<int>(m_Sizes.size()); }
    void SetDefaultItemSize(int) override {}
    int GetDefaultItemSize() const override { return 20; }
    int GetItemSize(int index) const override { return m_Sizes.at(static_cast<std::size_t>(index)); }
    int GetViewSize() const override { return m_View; }
    int GetFullItemsSize() const override
    {
        int sum = 0;
        for (int const size : m_Sizes)
            sum += size;
        return sum;
    }
    void UpdateModelState(IIndexTranslator*) override {}

protected:
    void SaveItemWidth(int index, int size) override
    {
        m_Stored += "item " + std::to_string(index) + " " + std::to_string(size) + ", ";
        m_Sizes.at(static_cast<std::size_t>(index)) = size;
    }
    void SaveViewWidth(int size) override
    {
        m_Stored += "view " + std::to_string(size) + ", ";
        m_View = size;
    }
    void UpdateFullWidth(int delta) override { m_Stored += "full " + std::to_string(delta) + ", "; }
};

// Ten columns of 20 in a view of 100. Both models do the same.
template <class Model> class ContinuousItems : public testing::Test
{
protected:
    ContinuousItems()
    {
        m_Model.SetDefaultItemSize(20);
        m_Model.SetCount(10);
        m_Model.SetViewSize(100, false);
        Settle();
    }
    void StartAt(int offset)
    {
        m_Model.SetOffset(offset);
        Settle();
    }
    void Settle()
    {
        m_Model.OnEndDraw();
        m_Log.Clear();
    }
    std::string DirtyItems() const { return Dirty(m_Model, 12); }

    Model m_Model;
    CModelLog m_Log{m_Model};
};

using Models = testing::Types<CStoredItems, CDefaultColumnViewModel>;
TYPED_TEST_SUITE(ContinuousItems, Models, );

// Scrolling ----------------------------------------------------------------------------------------------------------
TYPED_TEST(ContinuousItems, AScrollForwardMovesThePixelsAndMarksWhatComesIn)
{
    this->m_Model.SetOffset(30);
    EXPECT_EQ(this->m_Model.GetOffset(), 30);
    EXPECT_EQ(this->m_Log.Text(), "size(0, -30, true) changed()");
    EXPECT_EQ(this->DirtyItems(), "4-6");  // pixels 99 and 129 of all
}

TYPED_TEST(ContinuousItems, AScrollBackMovesThePixelsAndMarksWhatComesIn)
{
    this->StartAt(90);
    this->m_Model.SetOffset(50);
    EXPECT_EQ(this->m_Log.Text(), "size(0, 40, true) changed()");
    EXPECT_EQ(this->DirtyItems(), "2-4");  // pixels 50 and 90
}

TYPED_TEST(ContinuousItems, AJumpMarksNothingIfThePixelsWereMoved)
{
    this->m_Model.SetOffset(100);
    EXPECT_EQ(this->m_Log.Text(), "size(0, -100, true) changed()");
    EXPECT_EQ(this->DirtyItems(), "none");
}

TYPED_TEST(ContinuousItems, PixelsThatWereNotMovedMakeAllDirty)
{
    auto const viewer = Listen(this->m_Model.m_SigSizeChanged, [](int, int, bool* handled) { *handled = false; });
    this->m_Model.SetOffset(30);
    EXPECT_EQ(this->DirtyItems(), "0-10");
}

TYPED_TEST(ContinuousItems, TheOffsetStaysWhereTheItemsFillTheView)
{
    this->m_Model.SetOffset(500);
    EXPECT_EQ(this->m_Model.GetOffset(), 100);
    this->m_Model.SetOffset(101);
    EXPECT_EQ(this->m_Model.GetOffset(), 100);
    this->m_Model.SetOffset(-7);
    EXPECT_EQ(this->m_Model.GetOffset(), 0);
}

TYPED_TEST(ContinuousItems, AScrollThatEndsWhereItBeganIsSilent)
{
    this->m_Model.SetOffset(0);
    this->m_Model.SetOffset(-3);
    EXPECT_EQ(this->m_Log.Text(), "");
    EXPECT_EQ(this->DirtyItems(), "none");
}

TYPED_TEST(ContinuousItems, FewItemsStandAtTheBeginning)
{
    this->m_Model.SetViewSize(300, false);
    this->m_Model.SetOffset(40);
    EXPECT_EQ(this->m_Model.GetOffset(), 0);
}

TYPED_TEST(ContinuousItems, WithoutAViewTheyStandWhereTheyAreTold)
{
    TypeParam model;
    model.SetDefaultItemSize(20);
    model.SetCount(3);
    model.SetOffset(500);
    EXPECT_EQ(model.GetOffset(), 500);
    model.SetOffset(-1);
    EXPECT_EQ(model.GetOffset(), 0);
}

// The view -----------------------------------------------------------------------------------------------------------
TYPED_TEST(ContinuousItems, AViewOfZeroStandsBehindTheLastItemAtMost)
{
    this->m_Model.SetViewSize(0, false);
    this->m_Model.SetOffset(500);
    EXPECT_EQ(this->m_Model.GetOffset(), 200);
}

TYPED_TEST(ContinuousItems, AGrowingViewMarksFromTheOldEdgeOn)
{
    this->m_Model.SetViewSize(120, false);
    EXPECT_EQ(this->m_Model.GetViewSize(), 120);
    EXPECT_EQ(this->m_Log.Text(), "changed()");
    EXPECT_EQ(this->DirtyItems(), "5-10");
}

TYPED_TEST(ContinuousItems, AShrinkingViewMarksOnlyTheAreaBehindTheItems)
{
    this->m_Model.SetViewSize(50, false);
    EXPECT_EQ(this->m_Log.Text(), "changed()");
    EXPECT_EQ(this->DirtyItems(), "10");
}

TYPED_TEST(ContinuousItems, AGrowingViewAtTheEndScrollsBack)
{
    this->StartAt(100);
    this->m_Model.SetViewSize(150, false);
    EXPECT_EQ(this->m_Model.GetOffset(), 50);
    EXPECT_EQ(this->m_Log.Text(), "size(0, 50, true) changed() changed()");
    EXPECT_EQ(this->DirtyItems(), "2-5 7-10");  // pixels 50 and 100; from pixel 150 on
}

TYPED_TEST(ContinuousItems, InvalidatingAllAloneMarksAndStaysSilent)
{
    this->m_Model.SetViewSize(100, true);
    EXPECT_EQ(this->m_Log.Text(), "");
    EXPECT_EQ(this->DirtyItems(), "0-10");
}

TYPED_TEST(ContinuousItems, AFirstViewOfZeroIsNoChange)
{
    TypeParam model;
    model.SetCount(3);
    model.OnEndDraw();
    CModelLog const log(model);
    model.SetViewSize(0, false);
    EXPECT_EQ(model.GetViewSize(), 0);
    EXPECT_EQ(log.Text(), "");
    EXPECT_EQ(Dirty(model, 5), "none");
}

// Sizes --------------------------------------------------------------------------------------------------------------
TYPED_TEST(ContinuousItems, ANewSizeIsAnnouncedAtTheItemsOldEnd)
{
    this->StartAt(30);
    int size = 0;
    auto const viewer = Listen(this->m_Model.m_SigSizeChanged, [&](int, int, bool* handled) {
        size = this->m_Model.GetItemSize(2);
        *handled = true;
    });
    this->m_Model.SetItemSize(2, 50);
    EXPECT_EQ(size, 20);
    EXPECT_EQ(this->m_Model.GetItemSize(2), 50);
    EXPECT_EQ(this->m_Model.GetFullItemsSize(), 230);
    EXPECT_EQ(this->m_Log.Text(), "size(30, 30, false) changed()");
    EXPECT_EQ(this->DirtyItems(), "2-3 6-10");  // pixel 130, the view's end, was in column 6
}

TYPED_TEST(ContinuousItems, PixelsThatWereNotMovedMakeTheRestDirty)
{
    this->m_Model.SetItemSize(2, 5);
    EXPECT_EQ(this->m_Log.Text(), "size(60, -15, false) changed()");
    EXPECT_EQ(this->DirtyItems(), "2-10");
}

TYPED_TEST(ContinuousItems, WithoutAnItemAtTheViewsEndNoneIsMarkedThere)
{
    this->m_Model.SetViewSize(220, false);
    this->Settle();
    auto const viewer = Listen(this->m_Model.m_SigSizeChanged, [](int, int, bool* handled) { *handled = true; });
    this->m_Model.SetItemSize(2, 50);
    EXPECT_EQ(this->DirtyItems(), "2-3");
}

TYPED_TEST(ContinuousItems, TheSameSizeDoesNothing)
{
    this->m_Model.SetItemSize(2, 20);
    EXPECT_EQ(this->m_Log.Text(), "");
    EXPECT_EQ(this->DirtyItems(), "none");
}

TYPED_TEST(ContinuousItems, AreAllDirtyAtFirst)
{
    TypeParam const model;
    EXPECT_EQ(model.GetOffset(), 0);
    EXPECT_EQ(model.GetViewSize(), -1);
    EXPECT_EQ(model.GetItemType(0), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(model.GetItemType(INT_MAX), IDirtyItemSet::dirtyItem);
}

TEST(StoredItems, AreStoredAfterTheAnnouncement)
{
    CStoredItems model;
    model.SetCount(10);
    model.SetViewSize(100, false);
    std::string before;
    auto const viewer = Listen(model.m_SigSizeChanged, [&](int, int, bool*) { before = model.m_Stored; });
    model.SetItemSize(2, 0);
    EXPECT_EQ(before, "view 100, ");
    EXPECT_EQ(model.m_Stored, "view 100, item 2 0, full -20, ");
}

// Columns ------------------------------------------------------------------------------------------------------------
class Columns : public ContinuousItems<CDefaultColumnViewModel>
{};

TEST(ColumnsAtFirst, ThereAreNoneOfTwentyTimesTheScale)
{
    CScriptedSystem const system(1.5);
    CDefaultColumnViewModel const model;
    EXPECT_EQ(model.GetCount(), 0);
    EXPECT_EQ(model.GetDefaultItemSize(), 30);
    EXPECT_EQ(model.GetFullItemsSize(), 0);
}

TEST_F(Columns, ASizeBelowOneIsTheDefault)
{
    m_Model.SetItemSize(2, 50);
    EXPECT_EQ(m_Model.GetItemSizes().GetCount(), 1);
    m_Model.SetItemSize(2, 0);
    EXPECT_EQ(m_Model.GetItemSize(2), 20);
    EXPECT_TRUE(m_Model.GetItemSizes().IsEmpty());
    EXPECT_EQ(m_Model.GetFullItemsSize(), 200);
    m_Model.SetItemSize(-1, 50);
    EXPECT_TRUE(m_Model.GetItemSizes().IsEmpty());
}

TEST_F(Columns, TheFullSizeFollowsCountAndSizes)
{
    EXPECT_EQ(m_Model.GetFullItemsSize(), 200);
    m_Model.SetItemSize(2, 50);
    m_Model.SetItemSize(12, 70);  // not there yet
    EXPECT_EQ(m_Model.GetFullItemsSize(), 230);
    m_Model.SetCount(13);
    EXPECT_EQ(m_Model.GetFullItemsSize(), 340);
    m_Model.SetDefaultItemSize(10);
    EXPECT_EQ(m_Model.GetFullItemsSize(), 230);
    m_Model.SetCount(2);  // as many as exceptions: only these count, and none of them is below 2
    EXPECT_EQ(m_Model.GetFullItemsSize(), 0);
}

TEST_F(Columns, WhereAllHaveSizesOfTheirOwnTheseAreSummed)
{
    m_Model.SetCount(2);
    m_Model.SetItemSize(0, 30);
    m_Model.SetItemSize(1, 40);
    EXPECT_EQ(m_Model.GetFullItemsSize(), 70);
    m_Model.SetItemSize(1, 45);
    EXPECT_EQ(m_Model.GetFullItemsSize(), 75);
}

TEST_F(Columns, TheFullSizeStopsAtTheLargestInt)
{
    m_Model.SetDefaultItemSize(INT_MAX);
    EXPECT_EQ(m_Model.GetFullItemsSize(), INT_MAX);
    m_Model.SetItemSize(0, 1);
    EXPECT_EQ(m_Model.GetFullItemsSize(), INT_MAX);
    m_Model.SetCount(1);
    EXPECT_EQ(m_Model.GetFullItemsSize(), 1);
    m_Model.SetCount(INT_MAX);
    EXPECT_EQ(m_Model.GetFullItemsSize(), INT_MAX);
}

TEST_F(Columns, AFullSizeBeyondTheLargestIntIsKeptExactly)
{
    m_Model.SetCount(3);
    m_Model.SetItemSize(0, INT_MAX);
    m_Model.SetItemSize(1, INT_MAX);
    EXPECT_EQ(m_Model.GetFullItemsSize(), INT_MAX);
    m_Model.SetItemSize(0, 5);
    EXPECT_EQ(m_Model.GetFullItemsSize(), INT_MAX);
    m_Model.SetItemSize(1, 6);
    EXPECT_EQ(m_Model.GetFullItemsSize(), 31);
}

TEST_F(Columns, ANewCountMakesAllDirtyAndIsToldInAnyCase)
{
    m_Model.SetCount(10);
    EXPECT_EQ(m_Log.Text(), "changed()");
    EXPECT_EQ(m_Model.GetItemType(INT_MAX), IDirtyItemSet::dirtyItem);
}

TEST_F(Columns, AnOffsetNotBelowTheFullSizeGoesToZero)
{
    StartAt(100);
    m_Model.SetCount(6);
    EXPECT_EQ(m_Model.GetOffset(), 100);
    m_Log.Clear();
    m_Model.SetCount(5);
    EXPECT_EQ(m_Model.GetOffset(), 0);
    EXPECT_EQ(m_Log.Text(), "changed()");  // stored, not scrolled
}

TEST_F(Columns, ADefaultSizeIsTakenOnAChangeOnly)
{
    StartAt(100);
    m_Model.SetDefaultItemSize(20);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(DirtyItems(), "none");
    m_Model.SetDefaultItemSize(10);
    EXPECT_EQ(m_Log.Text(), "changed()");
    EXPECT_EQ(m_Model.GetItemType(INT_MAX), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(m_Model.GetOffset(), 0);
}

TEST_F(Columns, SizesGoWithTheirItemsAndTheOffsetStays)
{
    StartAt(60);
    m_Model.SetItemSize(3, 50);
    m_Model.SetItemSize(5, 60);
    EXPECT_EQ(m_Model.GetFullItemsSize(), 270);
    m_Log.Clear();
    CAddRemoveTranslator removed(2, -2);
    m_Model.UpdateModelState(&removed);
    EXPECT_EQ(m_Model.GetItemSize(3), 60);
    EXPECT_EQ(m_Model.GetItemSizes().GetCount(), 1);
    EXPECT_EQ(m_Model.GetFullItemsSize(), 240);
    EXPECT_EQ(m_Model.GetOffset(), 60);
    EXPECT_EQ(m_Log.Take(), "changed()");

    CSilentTranslator silent;
    m_Model.UpdateModelState(&silent);
    m_Model.UpdateModelState(nullptr);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(Columns, WithoutSizesOfTheirOwnTheyOnlyTell)
{
    CMoveTranslator moved(0, 3);
    m_Model.UpdateModelState(&moved);
    EXPECT_EQ(m_Log.Text(), "changed()");
}

TEST_F(Columns, OfTheLargestCountAreScrolledToTheLargestOffset)
{
    m_Model.SetCount(INT_MAX);
    Settle();
    m_Model.SetOffset(INT_MAX);
    EXPECT_EQ(m_Model.GetOffset(), INT_MAX - 100);
    EXPECT_EQ(m_Log.Text(), "size(0, -2147483547, true) changed()");
    EXPECT_EQ(Utils::HitTest(&m_Model, 50), 107374179);  // pixel 2147483597
    m_Model.SetOffset(0);
    EXPECT_EQ(m_Model.GetOffset(), 0);
}

TEST_F(Columns, AChangeFarBehindTheViewIsAnnouncedWithoutWrapping)
{
    m_Model.SetCount(INT_MAX);
    StartAt(INT_MAX);
    m_Model.SetItemSize(107374185, 7);  // the column before ends at pixel 2147483700, this one at 2147483720
    EXPECT_EQ(m_Log.Take(), "size(173, -13, false) changed()");
    m_Model.SetItemSize(INT_MAX, 7);
    EXPECT_EQ(m_Log.Take(), "size(2147483647, -13, false) changed()");
    m_Model.SetItemSize(5, INT_MAX);
    EXPECT_EQ(m_Log.Text(), "size(-2147483427, 2147483627, false) changed()");
}

// One large item -----------------------------------------------------------------------------------------------------
class OneItem : public testing::Test
{
protected:
    OneItem()
    {
        m_Model.SetItemSize(0, 500);
        m_Model.SetViewSize(100, false);
        m_Model.OnEndDraw();
        m_Log.Clear();
    }

    COneItemViewModel m_Model;
    CModelLog m_Log{m_Model};
};

TEST(OneItemAtFirst, NothingIsKnownAndNothingDirty)
{
    COneItemViewModel const model;
    EXPECT_EQ(model.GetCount(), 1);
    EXPECT_EQ(model.GetItemSize(0), 0);
    EXPECT_EQ(model.GetViewSize(), 0);
    EXPECT_EQ(model.GetOffset(), 0);
    EXPECT_EQ(model.GetItemType(0), IDirtyItemSet::dirtyOther);
}

TEST_F(OneItem, ItsSizeIsAnsweredForAnyIndexAndStoredInSilence)
{
    EXPECT_EQ(m_Model.GetItemSize(-3), 500);
    EXPECT_EQ(m_Model.GetFullItemsSize(), 500);
    EXPECT_EQ(m_Model.GetDefaultItemSize(), 500);
    m_Model.SetDefaultItemSize(400);
    m_Model.SetItemSize(7, 300);
    EXPECT_EQ(m_Model.GetItemSize(0), 300);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(OneItem, CountDirtyItemsAndTranslationsAreNothingToIt)
{
    m_Model.SetCount(5);
    m_Model.AddDirtyItems(0, 0);
    CMoveTranslator moved(0, 1);
    m_Model.UpdateModelState(&moved);
    EXPECT_EQ(m_Model.GetCount(), 1);
    EXPECT_EQ(m_Model.GetItemType(0), IDirtyItemSet::dirtyOther);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(OneItem, ItIsDirtyFromAChangeToTheEndOfDrawing)
{
    m_Model.Changed(true);
    m_Model.Changed(true);
    EXPECT_EQ(m_Log.Take(), "changed()");
    EXPECT_EQ(m_Model.GetItemType(17), IDirtyItemSet::dirtyItem);
    m_Model.OnEndDraw();
    EXPECT_EQ(m_Model.GetItemType(17), IDirtyItemSet::dirtyOther);
    m_Model.Changed(false);
    EXPECT_EQ(m_Log.Text(), "");
    m_Model.Changed(true);
    m_Model.Changed(false);
    EXPECT_EQ(m_Log.Text(), "changed() changed()");
}

TEST_F(OneItem, AScrollIsAnnouncedAtTheNewOffsetBeforeItHolds)
{
    int offset = -1;
    auto const viewer = Listen(m_Model.m_SigSizeChanged, [&](int, int, bool*) { offset = m_Model.GetOffset(); });
    m_Model.SetOffset(120);
    EXPECT_EQ(offset, 0);
    EXPECT_EQ(m_Model.GetOffset(), 120);
    EXPECT_EQ(m_Log.Take(), "size(120, -120, true) changed()");
    m_Model.SetOffset(100);
    EXPECT_EQ(m_Log.Text(), "size(100, 20, true)");  // it was dirty already
}

TEST_F(OneItem, AChangeIsToldWhenTheNewOffsetHolds)
{
    int offset = -1;
    auto const viewer = Listen(m_Model.m_SigChanged, [&] { offset = m_Model.GetOffset(); });
    m_Model.SetOffset(120);
    EXPECT_EQ(offset, 120);
}

TEST_F(OneItem, TheOffsetStaysWhereTheItemFillsTheView)
{
    m_Model.SetOffset(450);
    EXPECT_EQ(m_Model.GetOffset(), 400);
    m_Model.SetOffset(-1);
    EXPECT_EQ(m_Model.GetOffset(), 0);
    m_Log.Clear();
    m_Model.SetOffset(-1);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(OneItem, AGrowingViewMakesItDirtyAndScrollsBack)
{
    m_Model.SetOffset(400);
    m_Model.OnEndDraw();
    m_Log.Clear();
    m_Model.SetViewSize(150, false);
    EXPECT_EQ(m_Model.GetOffset(), 350);
    EXPECT_EQ(m_Log.Text(), "changed() size(350, 50, true)");
    EXPECT_EQ(m_Model.GetItemType(0), IDirtyItemSet::dirtyItem);
}

TEST_F(OneItem, AShrinkingViewTakesTheMarkAway)
{
    m_Model.Changed(true);
    m_Log.Clear();
    m_Model.SetViewSize(50, false);
    EXPECT_EQ(m_Model.GetViewSize(), 50);
    EXPECT_EQ(m_Log.Take(), "changed()");
    EXPECT_EQ(m_Model.GetItemType(0), IDirtyItemSet::dirtyOther);
    m_Model.SetViewSize(40, false);
    m_Model.SetViewSize(40, true);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(OneItem, AViewLargerThanTheItemStandsAtTheBeginning)
{
    m_Model.SetOffset(400);
    m_Model.SetViewSize(INT_MAX, false);
    EXPECT_EQ(m_Model.GetOffset(), 0);
}

}  // namespace
