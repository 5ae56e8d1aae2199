// Selection and current item, with their signals and dirty items.

#include "tests/views/items.h"
#include "vexel/views/selection_model.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <set>

using namespace vexel;

namespace
{

class CSelectionLog : public vexel::test::CSignalLog
{
public:
    explicit CSelectionLog(ISelectionModel& model)
    {
        Add(model.m_SigChanged, "changed");
        Add(model.m_SigCurrentChanged, "current");
        Add(model.m_SigSelectionChanged, "selection");
    }
};

// The base on a set of its own.
class CSetModel : public CSelectionModelBase
{
public:
    std::set<int> m_Set;

    bool IsItemSelected(int index) const override { return m_Set.count(index) > 0; }
    int GetSelectedCount() const override { return static_cast<int>(m_Set.size()); }
    bool GetNextSelectedItem(int& index) const override
    {
        auto const next = m_Set.upper_bound(index);
        if (next == m_Set.end())
            return false;
        index = *next;
        return true;
    }

protected:
    bool IsSelectionEmpty() const override { return m_Set.empty(); }
    void ClearSelectionImp() override { m_Set.clear(); }
    void SetItemSelectionImp(int index, bool select) override
    {
        if (select)
            m_Set.insert(index);
        else
            m_Set.erase(index);
    }
    void SetItemsSelectionImp(int a, int b, bool) override
    {
        for (int i = a; i <= b; ++i)
            m_Set.insert(i);
    }
};

std::string Selected(ISelectionModel const& model)
{
    std::string text;
    for (int i = -1; model.GetNextSelectedItem(i);)
        text += (text.empty() ? "" : " ") + std::to_string(i);
    return text;
}

// What both do alike.
template <class Model> class SelectionModels : public testing::Test
{
protected:
    SelectionModels() { m_Model.OnEndDraw(); }
    std::string DirtyItems() const { return Dirty(m_Model, 20); }
    void Settle()
    {
        m_Model.OnEndDraw();
        m_Log.Clear();
    }

    Model m_Model;
    CSelectionLog m_Log{m_Model};
};

using Models = testing::Types<CSetModel, CDefaultSelectionModel>;
TYPED_TEST_SUITE(SelectionModels, Models, );

TYPED_TEST(SelectionModels, NothingIsSelectedOrCurrentAtFirstAndAllIsDirty)
{
    TypeParam const model;
    EXPECT_EQ(model.GetCurrent(), -1);
    EXPECT_EQ(model.GetSelectedCount(), 0);
    EXPECT_FALSE(model.IsItemSelected(0));
    EXPECT_EQ(Selected(model), "");
    EXPECT_EQ(model.GetItemType(0), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(model.GetItemType(INT_MAX), IDirtyItemSet::dirtyItem);
    EXPECT_EQ(model.GetItemType(-1), IDirtyItemSet::dirtyOther);
}

TYPED_TEST(SelectionModels, ANewCurrentItemIsToldWithTheOldOneAndBothAreDirty)
{
    this->m_Model.SetCurrent(3);
    EXPECT_EQ(this->m_Log.Take(), "changed() current(-1, 3)");
    EXPECT_EQ(this->DirtyItems(), "-1 3");
    this->m_Model.OnEndDraw();
    this->m_Model.SetCurrent(7);
    EXPECT_EQ(this->m_Log.Text(), "changed() current(3, 7)");
    EXPECT_EQ(this->DirtyItems(), "3 7");
    EXPECT_EQ(this->m_Model.GetCurrent(), 7);
    EXPECT_EQ(this->m_Model.GetSelectedCount(), 0);
}

TYPED_TEST(SelectionModels, TheSameCurrentItemIsNoChange)
{
    this->m_Model.SetCurrent(3);
    this->Settle();
    this->m_Model.SetCurrent(3);
    EXPECT_EQ(this->m_Log.Text(), "");
    EXPECT_EQ(this->DirtyItems(), "none");
}

TYPED_TEST(SelectionModels, SelectingAnItemIsToldInTwoSignals)
{
    this->m_Model.SelectItem(4, true);
    EXPECT_TRUE(this->m_Model.IsItemSelected(4));
    EXPECT_EQ(this->m_Log.Text(), "changed() selection()");
    EXPECT_EQ(this->DirtyItems(), "4");
    EXPECT_EQ(this->m_Model.GetCurrent(), -1);
}

TYPED_TEST(SelectionModels, DeselectingAnItemIsToldInOneSignalOnly)
{
    this->m_Model.SelectItem(4, true);
    this->Settle();
    this->m_Model.SelectItem(4, false);
    EXPECT_FALSE(this->m_Model.IsItemSelected(4));
    EXPECT_EQ(this->m_Log.Text(), "changed()");
    EXPECT_EQ(this->DirtyItems(), "4");
}

TYPED_TEST(SelectionModels, SelectingWhatIsSelectedDoesNothing)
{
    this->m_Model.SelectItem(4, true);
    this->Settle();
    this->m_Model.SelectItem(4, true);
    this->m_Model.SelectItem(5, false);
    this->m_Model.SelectItem(-1, true);
    this->m_Model.SelectItem(-1, false);
    EXPECT_EQ(this->m_Log.Text(), "");
    EXPECT_EQ(this->DirtyItems(), "none");
}

TYPED_TEST(SelectionModels, ClearingIsToldInOneSignalAndMakesAllDirty)
{
    this->m_Model.SelectItem(4, true);
    this->Settle();
    this->m_Model.ClearSelection();
    EXPECT_EQ(this->m_Model.GetSelectedCount(), 0);
    EXPECT_EQ(this->m_Log.Text(), "changed()");
    EXPECT_EQ(this->DirtyItems(), "0-20");
    EXPECT_EQ(this->m_Model.GetItemType(INT_MAX), IDirtyItemSet::dirtyItem);
}

TYPED_TEST(SelectionModels, ClearingNothingDoesNothing)
{
    this->m_Model.ClearSelection();
    EXPECT_EQ(this->m_Log.Text(), "");
    EXPECT_EQ(this->DirtyItems(), "none");
}

TYPED_TEST(SelectionModels, ARangeReplacesTheSelection)
{
    this->m_Model.SelectItem(1, true);
    this->Settle();
    this->m_Model.SetSelectionRange(8, 5);
    EXPECT_EQ(Selected(this->m_Model), "5 6 7 8");
    EXPECT_EQ(this->m_Model.GetSelectedCount(), 4);
    EXPECT_EQ(this->m_Log.Text(), "changed() selection()");
    EXPECT_EQ(this->m_Model.GetCurrent(), -1);
    this->m_Model.SetSelectionRange(3, 3);
    EXPECT_EQ(Selected(this->m_Model), "3");
}

TYPED_TEST(SelectionModels, SelectedItemsAreWalkedInOrder)
{
    for (int const i : {7, 1, 2, 3, 0, 10, 12, 11})
        this->m_Model.SelectItem(i, true);
    EXPECT_EQ(Selected(this->m_Model), "0 1 2 3 7 10 11 12");
    int index = 4;
    EXPECT_TRUE(this->m_Model.GetNextSelectedItem(index));
    EXPECT_EQ(index, 7);
    index = 12;
    EXPECT_FALSE(this->m_Model.GetNextSelectedItem(index));
    EXPECT_EQ(index, 12);
    index = 100;
    EXPECT_FALSE(this->m_Model.GetNextSelectedItem(index));
    EXPECT_EQ(index, 100);
}

// What a range makes dirty -------------------------------------------------------------------------------------------
TEST(SelectionModelBase, ARangeAfterOneItemMarksOnlyItself)
{
    CSetModel model;
    model.SelectItem(1, true);
    model.OnEndDraw();
    model.SetSelectionRange(5, 7);
    EXPECT_EQ(Dirty(model, 20), "5-7");
    model.OnEndDraw();
    model.SetSelectionRange(9, 10);
    EXPECT_EQ(Dirty(model, 20), "0-20");
}

TEST(SelectionModelBase, TakesNoNoticeOfMovedItems)
{
    CSetModel model;
    model.SelectItem(1, true);
    CMoveTranslator moved(1, 5);
    model.UpdateModelState(&moved);
    EXPECT_EQ(Selected(model), "1");
}

TEST(DefaultSelectionModel, ARunThatIsDraggedMarksOnlyTheNewRun)
{
    CDefaultSelectionModel model;
    model.SetSelectionRange(5, 8);
    model.OnEndDraw();
    model.SetSelectionRange(5, 9);
    EXPECT_EQ(Dirty(model, 20), "5-9");
    model.OnEndDraw();
    model.SetSelectionRange(5, 6);  // 7 to 9 are left to the caller
    EXPECT_EQ(Dirty(model, 20), "5-6");
    model.OnEndDraw();
    model.SetSelectionRange(5, 6);
    EXPECT_EQ(Dirty(model, 20), "5-6");
    model.OnEndDraw();
    model.SetSelectionRange(15, 16);
    EXPECT_EQ(Dirty(model, 20), "15-16");
    model.SetSelectionRange(3, 3);
    model.OnEndDraw();
    model.SetSelectionRange(9, 9);
    EXPECT_EQ(Dirty(model, 20), "9");
}

TEST(DefaultSelectionModel, ARangeMarksAllAfterNoneOrSeveralRuns)
{
    CDefaultSelectionModel model;
    model.OnEndDraw();
    model.SetSelectionRange(5, 8);
    EXPECT_EQ(Dirty(model, 20), "0-20");
    model.SelectItem(12, true);
    model.OnEndDraw();
    model.SetSelectionRange(5, 6);
    EXPECT_EQ(Dirty(model, 20), "0-20");
}

TEST(DefaultSelectionModel, CountsTheItemsOfAllRuns)
{
    CDefaultSelectionModel model;
    model.SetSelectionRange(1, 3);
    model.SelectItem(7, true);
    EXPECT_EQ(model.GetSelectedCount(), 4);
}

TEST(DefaultSelectionModel, SelectsTheLargestRange)
{
    CDefaultSelectionModel model;
    model.SetSelectionRange(0, INT_MAX);
    EXPECT_EQ(model.GetSelectedCount(), INT_MAX);
    EXPECT_TRUE(model.IsItemSelected(INT_MAX));
    int index = INT_MAX - 1;
    EXPECT_TRUE(model.GetNextSelectedItem(index));
    EXPECT_EQ(index, INT_MAX);
    EXPECT_FALSE(model.GetNextSelectedItem(index));
}

// Indices that move --------------------------------------------------------------------------------------------------
class MovedSelection : public testing::Test
{
protected:
    void Select(std::initializer_list<int> items)
    {
        for (int const i : items)
            m_Model.SelectItem(i, true);
        m_Model.OnEndDraw();
        m_Log.Clear();
    }

    CDefaultSelectionModel m_Model;
    CSelectionLog m_Log{m_Model};
};

TEST_F(MovedSelection, SelectionAndCurrentGoWithTheirItems)
{
    m_Model.SetCurrent(4);
    Select({1, 3, 4, 8});
    CAddRemoveTranslator inserted(3, 2);
    m_Model.UpdateModelState(&inserted);
    EXPECT_EQ(Selected(m_Model), "1 3 6 10");
    EXPECT_EQ(m_Model.GetCurrent(), 6);
    EXPECT_EQ(m_Log.Text(), "changed() current(4, 6) selection()");
    EXPECT_EQ(Dirty(m_Model, 20), "none");
}

TEST_F(MovedSelection, ARemovedItemSelectsTheOneBeforeIt)
{
    m_Model.SetCurrent(5);
    Select({5, 9});
    CAddRemoveTranslator removed(3, -2);
    m_Model.UpdateModelState(&removed);
    EXPECT_EQ(Selected(m_Model), "3 7");
    EXPECT_EQ(m_Model.GetCurrent(), 3);
}

TEST_F(MovedSelection, AtTheFrontThereIsNoneBeforeIt)
{
    m_Model.SetCurrent(0);
    Select({0, 1, 5});
    CAddRemoveTranslator removed(-1, -2);
    m_Model.UpdateModelState(&removed);
    EXPECT_EQ(Selected(m_Model), "3");
    EXPECT_EQ(m_Model.GetSelectedCount(), 1);
    EXPECT_EQ(m_Model.GetCurrent(), -1);
}

TEST_F(MovedSelection, OnlyTheCurrentItemMoves)
{
    m_Model.SetCurrent(9);
    Select({1, 2});
    CMoveTranslator moved(9, 7);
    m_Model.UpdateModelState(&moved);
    EXPECT_EQ(m_Log.Text(), "changed() current(9, 7)");
    EXPECT_EQ(Selected(m_Model), "1 2");
}

TEST_F(MovedSelection, OnlySelectedItemsMove)
{
    m_Model.SetCurrent(1);
    Select({2, 5});
    CMoveTranslator moved(5, 3);
    m_Model.UpdateModelState(&moved);
    EXPECT_EQ(m_Log.Text(), "changed() selection()");
    EXPECT_EQ(Selected(m_Model), "2 3");
}

TEST_F(MovedSelection, NothingThatCountsMoves)
{
    m_Model.SetCurrent(1);
    Select({2, 5});
    CMoveTranslator moved(9, 7);
    m_Model.UpdateModelState(&moved);
    CSilentTranslator silent;
    m_Model.UpdateModelState(&silent);
    m_Model.UpdateModelState(nullptr);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Selected(m_Model), "2 5");
    EXPECT_EQ(m_Model.GetCurrent(), 1);
}

// Any mapping of indices.
class CMapping : public IIndexTranslator
{
public:
    explicit CMapping(std::function<int(int)> map) : m_Map(std::move(map)) {}
    int TranslateIndex(int index, bool*) const override { return m_Map(index); }

private:
    std::function<int(int)> m_Map;
};

TEST_F(MovedSelection, ItemsThatMeetBecomeOneRun)
{
    Select({0, 1, 2, 10, 11, 20});
    CMapping const halves([](int i) { return i / 2; });
    CMapping mapping = halves;
    m_Model.UpdateModelState(&mapping);
    EXPECT_EQ(Selected(m_Model), "0 1 5 10");
}

TEST_F(MovedSelection, ItemsMayBeTurnedAround)
{
    Select({0, 1, 2, 5, 9});
    CMapping mapping([](int i) { return 9 - i; });
    m_Model.UpdateModelState(&mapping);
    EXPECT_EQ(Selected(m_Model), "0 4 7 8 9");
    EXPECT_EQ(m_Model.GetSelectedCount(), 5);
}

TEST_F(MovedSelection, RunsMayBeLaidOverEachOther)
{
    m_Model.SetSelectionRange(0, 9);
    for (int i = 15; i < 40; ++i)
        m_Model.SelectItem(i, true);
    CMapping mapping([](int i) { return i < 10 ? i + 5 : i - 15; });  // 5 to 14, and 0 to 24
    m_Model.UpdateModelState(&mapping);
    EXPECT_EQ(m_Model.GetSelectedCount(), 25);
    EXPECT_TRUE(m_Model.IsItemSelected(0));
    EXPECT_TRUE(m_Model.IsItemSelected(24));
    EXPECT_FALSE(m_Model.IsItemSelected(25));
}

TEST_F(MovedSelection, ARunMayBeginOrEndInsideAnother)
{
    m_Model.SetSelectionRange(0, 9);
    for (int i = 15; i <= 25; ++i)
        m_Model.SelectItem(i, true);
    CMapping ahead([](int i) { return i < 10 ? i + 5 : i - 5; });  // 5 to 14, and 10 to 20
    m_Model.UpdateModelState(&ahead);
    EXPECT_EQ(m_Model.GetSelectedCount(), 16);
    EXPECT_TRUE(m_Model.IsItemSelected(8));

    m_Model.SetSelectionRange(0, 9);
    for (int i = 15; i <= 25; ++i)
        m_Model.SelectItem(i, true);
    CMapping back([](int i) { return i < 10 ? i + 5 : i - 14; });  // 5 to 14, and 1 to 11
    m_Model.UpdateModelState(&back);
    EXPECT_EQ(m_Model.GetSelectedCount(), 14);
    EXPECT_TRUE(m_Model.IsItemSelected(13));
}

TEST_F(MovedSelection, OfMillionsInOneRun)
{
    m_Model.SetSelectionRange(0, 3000000);
    CAddRemoveTranslator inserted(1000000, 10);
    m_Model.UpdateModelState(&inserted);
    EXPECT_EQ(m_Model.GetSelectedCount(), 3000001);
    EXPECT_TRUE(m_Model.IsItemSelected(1000000));
    EXPECT_FALSE(m_Model.IsItemSelected(1000001));
    EXPECT_FALSE(m_Model.IsItemSelected(1000010));
    EXPECT_TRUE(m_Model.IsItemSelected(1000011));
    EXPECT_TRUE(m_Model.IsItemSelected(3000010));
}

}  // namespace
