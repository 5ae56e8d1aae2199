// Items whose size follows from the view, and items of which one stays in view.

#include "tests/support/slot.h"
#include "tests/views/items.h"
#include "vexel/views/discrete_item_view_model.h"
#include "vexel/views/selection_model.h"

#include <gtest/gtest.h>

#include <climits>

using namespace vexel;

namespace
{

class CTenEqualItems : public CEqualItemsViewModel
{
public:
    CTenEqualItems()
    {
        SetItemSizeBounds(10, 50);
        SetCount(10);
    }
};

class CTenItems : public CNonEqualItemsViewModel
{
public:
    CTenItems()
    {
        SetDefaultItemSize(20);
        SetCount(10);
    }
};

TEST(EqualItems, FillTheViewWithinTheirBounds)
{
    CEqualItemsViewModel model;
    model.SetItemSizeBounds(10, 50);
    model.SetCount(4);
    model.SetViewSize(100, false);
    EXPECT_EQ(model.GetDefaultItemSize(), 25);
    model.SetViewSize(400, false);
    EXPECT_EQ(model.GetDefaultItemSize(), 50);
    model.SetViewSize(39, false);  // three fit
    EXPECT_EQ(model.GetDefaultItemSize(), 13);
    model.SetCount(2);
    EXPECT_EQ(model.GetDefaultItemSize(), 19);
}

TEST(EqualItems, HaveWideBoundsAtFirst)
{
    CEqualItemsViewModel model;
    EXPECT_EQ(model.GetMinItemSize(), 1);
    EXPECT_EQ(model.GetMaxItemSize(), INT_MAX);
    EXPECT_EQ(model.GetAnchorItem(), -1);
    EXPECT_EQ(model.GetAnchorModel(), nullptr);
    model.SetCount(3);
    model.SetViewSize(1000, false);
    EXPECT_EQ(model.GetDefaultItemSize(), 333);
}

TEST(EqualItems, StayAsTheyAreWhileNoneFits)
{
    CEqualItemsViewModel model;
    model.SetDefaultItemSize(20);
    model.SetCount(4);
    model.SetViewSize(0, false);
    EXPECT_EQ(model.GetDefaultItemSize(), 20);
    model.SetItemSizeBounds(10, 50);
    model.SetViewSize(9, false);
    EXPECT_EQ(model.GetDefaultItemSize(), 20);
    model.SetItemSizeBounds(0, 50);
    model.SetViewSize(100, false);
    EXPECT_EQ(model.GetDefaultItemSize(), 20);
    model.SetItemSizeBounds(-3, 50);
    model.UpdateView();
    EXPECT_EQ(model.GetDefaultItemSize(), 20);
    model.SetItemSizeBounds(10, 50);
    model.SetCount(0);
    EXPECT_EQ(model.GetDefaultItemSize(), 20);
}

TEST(EqualItems, MayHaveNoSizeAtAll)
{
    CEqualItemsViewModel model;
    model.SetItemSizeBounds(1, 0);
    model.SetCount(4);
    model.SetViewSize(100, false);
    EXPECT_EQ(model.GetDefaultItemSize(), 0);
}

TEST(EqualItems, LookForTheBottomEdgeAsIfASizeOfZeroWereOne)
{
    CEqualItemsViewModel model;
    model.SetDefaultItemSize(0);
    model.SetCount(20);
    model.SetStartItem(9);
    model.OnEndDraw();
    auto const viewer = Listen(model.m_SigSizeChanged, [](int, int, bool* handled) { *handled = true; });
    model.SetStartItem(7);
    EXPECT_EQ(Dirty(model, 22), "6-8");  // 7 and 8 come in; the view of -1 ends at 6
}

TEST(EqualItems, ScrollBackSoFarAsToFillTheView)
{
    CTenEqualItems model;
    model.SetStartItem(9);
    model.SetViewSize(30, false);  // three of 10
    EXPECT_EQ(model.GetStartItem(), 7);
    EXPECT_EQ(model.GetDefaultItemSize(), 10);
}

TEST(EqualItems, KeepTheAnchorInView)
{
    CTenEqualItems model;
    model.SetAnchorItem(6);
    model.SetViewSize(30, false);
    EXPECT_EQ(model.GetStartItem(), 4);  // 4, 5, 6
    model.SetAnchorItem(1);
    model.UpdateView();
    EXPECT_EQ(model.GetStartItem(), 1);
    model.SetAnchorItem(3);
    model.UpdateView();
    EXPECT_EQ(model.GetStartItem(), 1);
    model.SetAnchorItem(4);
    model.UpdateView();
    EXPECT_EQ(model.GetStartItem(), 2);
}

TEST(EqualItems, TakeTheCurrentItemOfTheAnchorModelIfNoItemIsFixed)
{
    CDefaultSelectionModel selection;
    CTenEqualItems model;
    model.SetAnchorModel(&selection);
    EXPECT_EQ(model.GetAnchorModel(), &selection);
    model.SetViewSize(30, false);
    EXPECT_EQ(model.GetStartItem(), 0);
    selection.SetCurrent(5);
    model.UpdateView();
    EXPECT_EQ(model.GetStartItem(), 3);
    model.SetAnchorItem(0);
    model.UpdateView();
    EXPECT_EQ(model.GetStartItem(), 0);
}

TEST(EqualItems, ForgetAnAnchorModelThatDies)
{
    CTenEqualItems model;
    {
        CDefaultSelectionModel selection;
        selection.SetCurrent(8);
        model.SetAnchorModel(&selection);
        model.SetViewSize(30, false);
        EXPECT_EQ(model.GetStartItem(), 6);
        CDefaultSelectionModel other;
        model.SetAnchorModel(&other);
        model.SetAnchorModel(&selection);
    }
    EXPECT_EQ(model.GetAnchorModel(), nullptr);
    model.SetViewSize(20, false);
    EXPECT_EQ(model.GetStartItem(), 6);
}

TEST(EqualItems, TellTheirSizeAfterTheirStart)
{
    CTenEqualItems model;
    model.SetViewSize(30, false);
    model.OnEndDraw();
    CModelLog const log(model);
    model.SetAnchorItem(3);
    model.UpdateView();  // 0 to 2 and 1 to 3 overlap
    EXPECT_EQ(log.Text(), "size(0, -10, true) changed() changed()");
}

TEST(EqualItems, DoNothingForTheSameCountOrView)
{
    CEqualItemsViewModel model;
    model.SetCount(10);
    model.SetViewSize(100, false);
    model.OnEndDraw();
    CModelLog const log(model);
    model.SetCount(10);
    model.SetViewSize(100, false);
    EXPECT_EQ(log.Text(), "");
    EXPECT_EQ(Dirty(model, 12), "none");
    model.SetViewSize(100, true);
    EXPECT_EQ(Dirty(model, 12), "0-12");  // the size is set anew with the view
}

TEST(EqualItems, AFirstViewOfZeroCounts)
{
    CEqualItemsViewModel model;
    model.OnEndDraw();
    model.SetViewSize(0, false);
    EXPECT_EQ(Dirty(model, 12), "0-1");
}

TEST(EqualItems, ScrollingBackMarksTheRowCutByTheBottomEdge)
{
    CEqualItemsViewModel model;
    model.SetItemSizeBounds(20, 20);
    model.SetCount(10);
    model.SetViewSize(110, false);
    model.SetStartItem(3);
    model.OnEndDraw();
    model.SetStartItem(2);
    EXPECT_EQ(Dirty(model, 12), "2 7-8");
    model.OnEndDraw();
    model.SetStartItem(3);
    EXPECT_EQ(Dirty(model, 12), "7-9");  // forward: only what comes in behind rows 2 to 6
}

TEST(EqualItems, AtTheSameStartMarkNothing)
{
    CTenEqualItems model;
    model.SetViewSize(55, false);
    model.SetStartItem(3);
    model.OnEndDraw();
    model.SetStartItem(3);
    EXPECT_EQ(Dirty(model, 12), "none");
}

TEST(NonEqualItems, KeepTheAnchorInView)
{
    CTenItems model;
    model.SetAnchorItem(8);
    model.SetViewSize(110, false);
    EXPECT_EQ(model.GetStartItem(), 4);  // 8 and above it four rows, 80 pixels; a fifth would leave 10
    model.SetAnchorItem(2);
    model.UpdateView();
    EXPECT_EQ(model.GetStartItem(), 2);
    model.SetAnchorItem(6);
    model.UpdateView();
    EXPECT_EQ(model.GetStartItem(), 2);  // 2 to 6 are in view
    model.SetAnchorItem(-1);
    model.UpdateView();
    EXPECT_EQ(model.GetStartItem(), 2);
}

TEST(NonEqualItems, StayWhereTheAnchorIsTheLastInView)
{
    CTenItems model;
    model.SetAnchorItem(4);
    model.SetViewSize(100, false);  // rows 0 to 4 just fit
    EXPECT_EQ(model.GetStartItem(), 0);
}

TEST(NonEqualItems, TakeTheCurrentItemOfTheAnchorModel)
{
    CDefaultSelectionModel selection;
    selection.SetCurrent(8);
    CNonEqualItemsViewModel model;
    model.SetDefaultItemSize(20);
    model.SetAnchorModel(&selection);
    model.SetViewSize(110, false);
    model.SetCount(10);
    EXPECT_EQ(model.GetStartItem(), 4);
}

TEST(NonEqualItems, HaveSizesOfTheirOwn)
{
    CTenItems model;
    model.SetItemSize(7, 70);
    model.SetAnchorItem(8);
    model.SetViewSize(110, false);
    EXPECT_EQ(model.GetStartItem(), 7);  // 110 less 20, less 70: 20 just isn't enough for row 6
}

TEST(NonEqualItems, DoNothingForTheSameCountOrView)
{
    CNonEqualItemsViewModel model;
    model.SetCount(10);
    model.SetViewSize(100, false);
    model.OnEndDraw();
    CModelLog const log(model);
    model.SetCount(10);
    model.SetViewSize(100, false);
    EXPECT_EQ(log.Text(), "");
    EXPECT_EQ(Dirty(model, 12), "none");
}

TEST(NonEqualItems, ANewViewMarksTheItemsAtTheBottomEdge)
{
    CTenItems model;
    model.SetViewSize(110, false);
    model.OnEndDraw();
    model.SetViewSize(90, false);  // 0 to 3 fit
    EXPECT_EQ(Dirty(model, 12), "2-4 10");
    model.OnEndDraw();
    model.SetViewSize(115, false);  // the old edge was in row 4; 0 to 4 fit
    EXPECT_EQ(Dirty(model, 12), "3-10");
}

TEST(NonEqualItems, ScrollingBackMarksTheItemsAtTheBottomEdge)
{
    CTenItems model;
    model.SetViewSize(110, false);
    model.SetStartItem(3);
    model.OnEndDraw();
    model.SetStartItem(2);
    EXPECT_EQ(Dirty(model, 12), "2 6-7");
}

}  // namespace
