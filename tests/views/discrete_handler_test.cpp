// What the user and the application do to a list whose rows scroll whole.

#include "tests/views/viewer_bench.h"

#include <limits>

using namespace viewer_test;

namespace
{

class DiscreteRows : public CRowsBench<IDiscreteItemViewModel>
{
protected:
    int Start() { return View().GetStartItem(); }
    void StartAt(int item)
    {
        View().SetStartItem(item);
        Settle();
    }
};

// The state at first ---------------------------------------------------------------------------------------------------
TEST_F(DiscreteRows, TheHandlerStartsAsAListOfFreeSelection)
{
    EXPECT_EQ(Handler().GetSelectionType(), CEventHandlerBase::stFree);
    EXPECT_EQ(Handler().GetAnchor(), -1);
    EXPECT_FALSE(Handler().IsNotifySelection());
    EXPECT_FALSE(Handler().IsNoAutoVisible());
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
    EXPECT_EQ(Handler().GetViewer(), m_Rows);
    EXPECT_EQ(Handler().GetDirection(), idVertical);
    CDiscreteItemEventHandler plain;
    EXPECT_EQ(plain.GetDirection(), idHorizontal);
    EXPECT_NE(dynamic_cast<CDefaultDiscreteItemViewModel*>(plain.GetViewModel()), nullptr);
    EXPECT_NE(dynamic_cast<CDefaultSelectionModel*>(plain.GetSelectionModel()), nullptr);
    EXPECT_EQ(plain.GetItemViewModel(), plain.GetViewModel());
    EXPECT_EQ(plain.GetItemSelectionModel(), plain.GetSelectionModel());
}

TEST_F(DiscreteRows, ANullModelBringsBackTheHandlersOwn)
{
    CDiscreteItemEventHandler plain;
    IDiscreteItemViewModel* const own = plain.GetViewModel();
    ISelectionModel* const ownSelection = plain.GetSelectionModel();
    CDefaultDiscreteItemViewModel model;
    CDefaultSelectionModel selection;
    plain.SetViewModel(&model);
    plain.SetSelectionModel(&selection);
    EXPECT_EQ(plain.GetViewModel(), &model);
    EXPECT_EQ(plain.GetSelectionModel(), &selection);
    plain.SetViewModel(nullptr);
    plain.SetSelectionModel(nullptr);
    EXPECT_EQ(plain.GetViewModel(), own);
    EXPECT_EQ(plain.GetSelectionModel(), ownSelection);
}

TEST_F(DiscreteRows, AHandlerWithoutAViewerActsOnItsModelsAlone)
{
    CDiscreteItemEventHandler plain;
    plain.SetDirection(idVertical);
    plain.GetViewModel()->SetDefaultItemSize(10);
    plain.GetViewModel()->SetCount(10);
    plain.GetViewModel()->SetViewSize(50, false);
    bool handled = false;
    EXPECT_TRUE(plain.ProcessButtonDown(5, 25, 1, mbLeft, &handled));
    EXPECT_EQ(plain.GetSelectionModel()->GetCurrent(), 2);
    plain.ProcessMouseMove(5, 60, 1, mbLeft, &handled);
    plain.ProcessButtonUp(5, 60, 0, mbLeft, &handled);
    EXPECT_EQ(plain.GetScrollState(), CEventHandlerBase::ssIdle);
    EXPECT_FALSE(plain.ScrollItems(0, -10));
    plain.UpdateScroll();
    plain.NotifySelectionChanged();
    EXPECT_FALSE(handled);
}

// Presses ----------------------------------------------------------------------------------------------------------------
TEST_F(DiscreteRows, AClickSelectsTheRowAloneAndRepaintsOnlyIt)
{
    CSignalLog log;
    log.Add(Selection().m_SigCurrentChanged, "current");
    log.Add(Selection().m_SigSelectionChanged, "selected");
    Click(25);
    EXPECT_EQ(log.Take(), "current(-1, 2) selected()");
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(Handler().GetAnchor(), 2);
    EXPECT_EQ(Paint(),
              "0 state 0 other, 1 state 0 other, 2 state 3 item, 3 state 0 other, 4 state 0 other, 5 state 0 other");
    Click(45);
    EXPECT_EQ(log.Take(), "current(2, 4) selected()");
    EXPECT_EQ(Selected(), "4");
    EXPECT_EQ(Paint(),
              "0 state 0 other, 1 state 0 other, 2 state 0 item, 3 state 0 other, 4 state 3 item, 5 state 0 other");
}

TEST_F(DiscreteRows, AClickThatDropsSeveralRowsRepaintsAll)
{
    Selection().SetSelectionRange(1, 3);
    Settle();
    Click(5);
    EXPECT_EQ(Selected(), "0");
    EXPECT_EQ(Paint(),
              "0 state 3 item, 1 state 0 item, 2 state 0 item, 3 state 0 item, 4 state 0 item, 5 state 0 item");
}

TEST_F(DiscreteRows, AClickOnTheLineOfARowThatIsCutBringsItIntoView)
{
    Click(50);
    EXPECT_EQ(Current(), 5);
    EXPECT_EQ(Start(), 1);
    EXPECT_EQ(Paint(),
              "1 state 0 other, 2 state 0 other, 3 state 0 other, 4 state 0 other, 5 state 3 item, 6 state 0 item");
}

TEST_F(DiscreteRows, AShiftClickSelectsFromTheAnchor)
{
    Click(15);
    Click(35, ksShift);
    EXPECT_EQ(Selected(), "1 2 3");
    EXPECT_EQ(Handler().GetAnchor(), 1);
    EXPECT_EQ(Current(), 3);
    Click(5, ksShift);
    EXPECT_EQ(Selected(), "0 1");
    Settle();
    Click(15, ksShift);
    EXPECT_EQ(Selected(), "1");
    EXPECT_EQ(Paint(),
              "0 state 0 item, 1 state 3 item, 2 state 0 other, 3 state 0 other, 4 state 0 other, 5 state 0 other");
}

TEST_F(DiscreteRows, AShiftClickWithoutAnAnchorAnchorsAtTheOldCurrent)
{
    Selection().SetCurrent(4);
    EXPECT_EQ(Handler().GetAnchor(), -1);
    Click(25, ksShift);
    EXPECT_EQ(Selected(), "2 3 4");
    EXPECT_EQ(Handler().GetAnchor(), 4);
}

TEST_F(DiscreteRows, AShiftClickWithNoCurrentAnchorsAtTheFirst)
{
    Click(25, ksShift);
    EXPECT_EQ(Selected(), "0 1 2");
    EXPECT_EQ(Handler().GetAnchor(), 0);
}

TEST_F(DiscreteRows, AnAnchorBeyondTheCountIsReplacedByTheOldCurrentWithinTheCount)
{
    Handler().SetAnchor(10);
    Selection().SetCurrent(17);
    Click(25, ksShift);
    EXPECT_EQ(Selected(), "2 3 4 5 6 7 8 9");
    EXPECT_EQ(Handler().GetAnchor(), 9);
    Handler().SetAnchor(9);
    Click(45, ksShift);
    EXPECT_EQ(Selected(), "4 5 6 7 8 9");
}

TEST_F(DiscreteRows, AControlClickMovesTheCurrentAndTogglesTheRow)
{
    Click(15);
    CSignalLog log(Selection().m_SigSelectionChanged, "selected");
    Click(35, ksControl);
    EXPECT_EQ(Selected(), "1 3");
    EXPECT_EQ(Current(), 3);
    EXPECT_EQ(log.Take(), "selected()");
    Click(15, ksControl);
    EXPECT_EQ(Selected(), "3");
    EXPECT_EQ(Current(), 1);
    EXPECT_EQ(log.Take(), "selected()");
    Click(15, ksControl);
    EXPECT_EQ(Selected(), "1 3");
    Click(15, ksControl);
    EXPECT_EQ(Selected(), "3");
    EXPECT_EQ(log.Take(), "selected() selected()");
}

TEST_F(DiscreteRows, ShiftAndControlTogetherSelectTheRangeAndTakeTheRowOut)
{
    Click(5);
    CSignalLog log(Selection().m_SigSelectionChanged, "selected");
    Click(25, ksShift | ksControl);
    EXPECT_EQ(Selected(), "0 1");
    EXPECT_EQ(log.Take(), "selected() selected()");
}

TEST_F(DiscreteRows, APlainClickOnTheCurrentRowSelectsItAlone)
{
    Click(15);
    CSignalLog log;
    log.Add(Selection().m_SigSelectionChanged, "selected");
    log.Add(Selection().m_SigChanged, "changed");
    Click(15);
    EXPECT_EQ(log.Take(), "");
    Selection().SelectItem(1, false);
    log.Clear();
    Click(15);
    EXPECT_EQ(log.Take(), "changed() selected()");
    Selection().SelectItem(4, true);
    log.Clear();
    Click(15);
    EXPECT_EQ(Selected(), "1");
    EXPECT_EQ(log.Take(), "changed() changed() selected()");
    Selection().ClearSelection();
    Selection().SelectItem(7, true);
    Click(15);
    EXPECT_EQ(Selected(), "1");
}

TEST_F(DiscreteRows, AShiftClickOnTheCurrentRowChangesNothing)
{
    Click(15);
    Click(35, ksShift);
    EXPECT_FALSE(m_Rows->HandleButtonDown(5, 35, ksShift | 1, mbLeft));
    EXPECT_EQ(Selected(), "1 2 3");
}

TEST_F(DiscreteRows, TheAnswerSaysWhetherAPressDidSomething)
{
    EXPECT_TRUE(m_Rows->HandleButtonDown(5, 15, 1, mbLeft));
    EXPECT_TRUE(m_Rows->HandleButtonDown(5, 15, 1, mbLeft));
    EXPECT_TRUE(m_Rows->HandleButtonDown(5, 15, 1 | ksControl, mbLeft));
    EXPECT_FALSE(m_Rows->HandleButtonDown(5, 35, 1, mbMiddle));
    EXPECT_FALSE(m_Rows->HandleButtonDown(5, 35, 1, mbNone));
    EXPECT_EQ(Current(), 1);
    View().SetCount(2);
    EXPECT_FALSE(m_Rows->HandleButtonDown(5, 35, 1, mbLeft));
    EXPECT_FALSE(m_Rows->HandleButtonDown(5, 35, 1 | ksShift, mbLeft));
    EXPECT_EQ(Current(), 1);
}

TEST_F(DiscreteRows, AControlClickBehindTheLastRowActsOnNothingAndSaysThatItDid)
{
    View().SetCount(2);
    CSignalLog log(Selection().m_SigChanged, "changed");
    EXPECT_TRUE(m_Rows->HandleButtonDown(5, 35, 1 | ksControl, mbLeft));
    EXPECT_EQ(log.Text(), "");
}

TEST_F(DiscreteRows, ARightPressOnASelectedRowLeavesTheSelection)
{
    Click(15);
    Click(35, ksShift);
    EXPECT_FALSE(m_Rows->HandleButtonDown(5, 25, 0, mbRight));
    EXPECT_EQ(Selected(), "1 2 3");
    EXPECT_EQ(Current(), 3);
}

TEST_F(DiscreteRows, ARightPressOnAnUnselectedRowSelectsItAlone)
{
    Click(15);
    Click(25, ksShift);
    Click(45, 0, mbRight);
    EXPECT_EQ(Selected(), "4");
    EXPECT_EQ(Current(), 4);
}

TEST_F(DiscreteRows, AListOfOneItemIgnoresTheModifiers)
{
    Handler().SetSelectionType(CEventHandlerBase::stOneItem);
    Click(15);
    EXPECT_EQ(Selected(), "1");
    Click(35, ksShift);
    EXPECT_EQ(Selected(), "3");
    Click(25, ksControl);
    EXPECT_EQ(Selected(), "2");
    EXPECT_FALSE(m_Rows->HandleButtonDown(5, 25, 1 | ksControl, mbLeft));
    EXPECT_EQ(Selected(), "2");
    Press(vkDown, ksShift);
    EXPECT_EQ(Selected(), "3");
    Selection().SelectItem(3, false);
    Selection().SelectItem(7, true);
    Click(15);
    EXPECT_EQ(Selected(), "1");
}

TEST_F(DiscreteRows, AListWithoutSelectionMovesOnlyTheCurrent)
{
    Handler().SetSelectionType(CEventHandlerBase::stNone);
    Click(15);
    EXPECT_EQ(Current(), 1);
    Click(35, ksShift);
    Click(25, ksControl);
    Click(25);
    Press(vkDown);
    Press(vkSpace);
    EXPECT_EQ(Current(), 3);
    EXPECT_EQ(Selected(), "");
    EXPECT_TRUE(m_Rows->HandleKeyDown(0, vkSpace));
}

TEST_F(DiscreteRows, ItemChangesOfTheOneItemKindGoByTheTypeOnlyForNoSelection)
{
    Selection().SelectItem(1, true);
    Handler().ProcessItemChangeOneItem(1, 3, ksShift, &Selection());
    EXPECT_EQ(Selected(), "3");
    Handler().ProcessItemChangeOneItem(3, 3, 0, &Selection());
    EXPECT_EQ(Selected(), "3");
    Handler().ProcessItemChangeOneItem(3, 4, 0, nullptr);
    EXPECT_EQ(Selected(), "3");
    Handler().SetSelectionType(CEventHandlerBase::stNone);
    Handler().ProcessItemChangeOneItem(3, 5, 0, &Selection());
    Handler().ProcessItemChangeFree(3, 5, 0, &Selection());
    Handler().ProcessItemChange(3, 5, 0, &Selection());
    Handler().Reselect(5, &Selection());
    EXPECT_EQ(Selected(), "3");
    Handler().SetSelectionType(CEventHandlerBase::stOneItem);
    Handler().ProcessItemChangeFree(3, 6, ksShift, &Selection());  // the old current is the anchor
    EXPECT_EQ(Selected(), "3 4 5 6");
}

TEST_F(DiscreteRows, DroppingThePreviousTakesTheOldRowOrElseTheFirstSelectedOne)
{
    Selection().SelectItem(2, true);
    Selection().SelectItem(6, true);
    Handler().ProcessItemChangeOneItem(6, 4, 0, &Selection());
    EXPECT_EQ(Selected(), "2 4");
    Handler().ProcessItemChangeOneItem(7, 8, 0, &Selection());
    EXPECT_EQ(Selected(), "4 8");
}

// The proposal -------------------------------------------------------------------------------------------------------------
TEST_F(DiscreteRows, AMoveOfTheCurrentMayBeRedirected)
{
    CSignalLog log(Handler().m_SigCurrentChanging, "changing");
    auto const slot = Listen(Handler().m_SigCurrentChanging, [](int, int& now) { now = now == 2 ? 3 : now; });
    Click(25);
    EXPECT_EQ(log.Take(), "changing(-1, 2)");
    EXPECT_EQ(Current(), 3);
    EXPECT_EQ(Selected(), "3");
    Handler().SetCurrentItem(2);
    EXPECT_EQ(Current(), 3);
    EXPECT_EQ(log.Take(), "changing(3, 2)");
    Handler().SetCurrentItem(3);
    EXPECT_EQ(log.Take(), "changing(3, 3)");
}

TEST_F(DiscreteRows, AMoveOfTheCurrentMayBeRefused)
{
    Click(15);
    auto const slot = Listen(Handler().m_SigCurrentChanging, [](int old, int& now) { now = old; });
    Click(35);
    EXPECT_EQ(Current(), 1);
    EXPECT_EQ(Selected(), "1");
    Press(vkDown);
    EXPECT_EQ(Current(), 1);
}

// Keys ---------------------------------------------------------------------------------------------------------------------
TEST_F(DiscreteRows, DownGoesRowByRowAndScrollsByThatLittle)
{
    Press(vkDown);
    EXPECT_EQ(Current(), 0);
    for (int i = 1; i <= 4; ++i)
        Press(vkDown);
    EXPECT_EQ(Current(), 4);
    EXPECT_EQ(Selected(), "4");
    EXPECT_EQ(Start(), 0);
    Settle();
    Press(vkDown);
    EXPECT_EQ(Start(), 1);
    EXPECT_EQ(Paint(),
              "1 state 0 other, 2 state 0 other, 3 state 0 other, 4 state 0 item, 5 state 3 item, 6 state 0 item");
}

TEST_F(DiscreteRows, DownOnTheLastRowKeepsTheCurrentAndDoesNotScroll)
{
    GoTo(9);
    StartAt(6);
    EXPECT_TRUE(m_Rows->HandleKeyDown(0, vkDown));
    EXPECT_EQ(Current(), 9);
    EXPECT_EQ(Start(), 6);
    EXPECT_EQ(Selected(), "9");
}

TEST_F(DiscreteRows, DownFromFarOutsideStartsAtTheNewCurrent)
{
    GoTo(3);
    StartAt(6);
    Press(vkDown);
    EXPECT_EQ(Current(), 4);
    EXPECT_EQ(Start(), 4);
    Selection().SetCurrent(-5);
    Press(vkDown);
    EXPECT_EQ(Current(), 0);
    EXPECT_EQ(Start(), 0);
}

TEST_F(DiscreteRows, DownThreeRowsBehindTheViewMakesTheRowTheFirst)
{
    View().SetCount(30);
    GoTo(6);
    Press(vkDown);  // the last in view is 4: three behind is too far for a little
    EXPECT_EQ(Start(), 7);
    GoTo(5);
    StartAt(0);
    Press(vkDown);  // two behind
    EXPECT_EQ(Current(), 6);
    EXPECT_EQ(Start(), 2);
}

TEST_F(DiscreteRows, UpGoesRowByRow)
{
    GoTo(6);
    StartAt(6);
    Press(vkUp);
    EXPECT_EQ(Current(), 5);
    EXPECT_EQ(Start(), 5);
    EXPECT_EQ(Selected(), "5");
    EXPECT_EQ(
        Paint(),
        "5 state 3 item, 6 state 0 item, 7 state 0 other, 8 state 0 other, 9 state 0 other, empty (0, 50, 99, 50)");
    GoTo(0);
    Press(vkUp);
    EXPECT_EQ(Current(), 0);
    Selection().SetCurrent(-1);
    Press(vkUp);
    EXPECT_EQ(Current(), 0);
    Selection().SetCurrent(20);
    Press(vkUp);
    EXPECT_EQ(Current(), 9);
}

TEST_F(DiscreteRows, UpFromFarBehindLeavesTheRowLastInView)
{
    GoTo(9);
    StartAt(0);
    Press(vkUp);
    EXPECT_EQ(Current(), 8);
    EXPECT_EQ(Start(), 5);  // row 4 would exactly fill the view and is not taken in
}

TEST_F(DiscreteRows, UpFromFarBeforeTheViewLeavesTheRowLastInView)
{
    View().SetCount(30);
    GoTo(12);
    StartAt(20);
    Press(vkUp);
    EXPECT_EQ(Current(), 11);
    EXPECT_EQ(Start(), 8);  // rows 8 to 11, for row 7 would exactly fill the view
}

TEST_F(DiscreteRows, HomeAndEndGoToTheEnds)
{
    Press(vkEnd);
    EXPECT_EQ(Current(), 9);
    EXPECT_EQ(Start(), 6);
    EXPECT_EQ(Selected(), "9");
    Press(vkHome, ksShift);
    EXPECT_EQ(Current(), 0);
    EXPECT_EQ(Start(), 0);
    EXPECT_EQ(Selected(), "0 1 2 3 4 5 6 7 8 9");
}

TEST_F(DiscreteRows, PageDownKeepsThePlaceInTheView)
{
    GoTo(2);
    Press(vkPageDown);
    EXPECT_EQ(Start(), 5);
    EXPECT_EQ(Current(), 7);
    EXPECT_EQ(Selected(), "7");
    Press(vkPageDown);
    EXPECT_EQ(Start(), 6);
    EXPECT_EQ(Current(), 9);
}

TEST_F(DiscreteRows, PageUpKeepsThePlaceInTheView)
{
    GoTo(8);
    StartAt(6);
    Press(vkPageUp);
    EXPECT_EQ(Start(), 2);
    EXPECT_EQ(Current(), 4);
    EXPECT_EQ(Selected(), "4");
    Press(vkPageUp);
    EXPECT_EQ(Start(), 0);
    EXPECT_EQ(Current(), 2);
    Press(vkPageUp);
    EXPECT_EQ(Current(), 0);
}

TEST_F(DiscreteRows, PageKeysForgetThePlaceOfACurrentThatWasOutOfView)
{
    View().SetCount(30);
    GoTo(20);
    StartAt(3);
    Press(vkPageDown);  // 20 becomes the first, 24 is the last in view
    EXPECT_EQ(Start(), 25);
    EXPECT_EQ(Current(), 25);
    GoTo(20);
    StartAt(3);
    Press(vkPageUp);  // a page before the place where the view stood: before row 2
    EXPECT_EQ(Start(), 0);
    EXPECT_EQ(Current(), 0);
}

TEST_F(DiscreteRows, SpaceTogglesTheCurrentRow)
{
    GoTo(2);
    CSignalLog log(Selection().m_SigSelectionChanged, "selected");
    Press(vkSpace);
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(log.Take(), "selected()");
    Press(vkSpace, ksControl);
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(log.Take(), "selected()");
}

TEST_F(DiscreteRows, ShiftWithAKeySelectsFromTheAnchorAndControlMovesOnlyTheCurrent)
{
    GoTo(2);
    Press(vkDown, ksShift);
    Press(vkDown, ksShift);
    EXPECT_EQ(Selected(), "2 3 4");
    EXPECT_EQ(Handler().GetAnchor(), 2);
    Press(vkUp, ksShift);
    EXPECT_EQ(Selected(), "2 3");
    Press(vkUp, ksControl);
    EXPECT_EQ(Selected(), "2 3");
    EXPECT_EQ(Current(), 2);
    Press(vkUp);
    EXPECT_EQ(Selected(), "1");
}

TEST_F(DiscreteRows, ControlAndASelectAllOnlyInAFreeSelection)
{
    GoTo(2);
    EXPECT_TRUE(m_Rows->HandleKeyDown(ksControl, 'A'));
    EXPECT_EQ(Selected(), "0 1 2 3 4 5 6 7 8 9");
    EXPECT_EQ(Current(), 2);
    EXPECT_FALSE(m_Rows->HandleKeyDown(0, 'A'));
    Handler().SetSelectionType(CEventHandlerBase::stOneItem);
    GoTo(2);
    EXPECT_FALSE(m_Rows->HandleKeyDown(ksControl, 'A'));
    EXPECT_EQ(Selected(), "2");
    Handler().SetSelectionType(CEventHandlerBase::stNone);
    EXPECT_FALSE(m_Rows->HandleKeyDown(ksControl, 'A'));
    Handler().SetSelectionType(CEventHandlerBase::stFree);
    View().SetCount(0);
    m_Rows->HandleKeyDown(ksControl, 'A');
    EXPECT_EQ(Selected(), "2");
}

TEST_F(DiscreteRows, KeysOfTheOtherDirectionAnswerFalse)
{
    GoTo(2);
    for (int const key : {vkLeft, vkRight, vkInsert, vkDelete, vkReturn})
        EXPECT_FALSE(m_Rows->HandleKeyDown(0, key)) << key;
    for (int const key : {vkUp, vkDown, vkHome, vkEnd, vkPageUp, vkPageDown, vkSpace})
        EXPECT_TRUE(m_Rows->HandleKeyDown(0, key)) << key;
    Handler().SetDirection(idHorizontal);
    GoTo(2);
    for (int const key : {vkUp, vkDown, vkHome, vkEnd, vkPageUp, vkPageDown})
        EXPECT_FALSE(m_Rows->HandleKeyDown(0, key)) << key;
    EXPECT_EQ(Current(), 2);
    EXPECT_TRUE(m_Rows->HandleKeyDown(0, vkRight));
    EXPECT_EQ(Current(), 3);
    EXPECT_TRUE(m_Rows->HandleKeyDown(0, vkLeft));
    EXPECT_EQ(Current(), 2);
    EXPECT_TRUE(m_Rows->HandleKeyDown(0, vkSpace));
}

TEST_F(DiscreteRows, KeysInAnEmptyListMakeTheFirstOrNothingCurrent)
{
    View().SetCount(0);
    auto const currentAfter = [this](int key) {
        Selection().SetCurrent(-1);
        m_Rows->HandleKeyDown(0, key);
        EXPECT_EQ(Start(), 0) << key;
        return Current();
    };
    for (int const key : {vkDown, vkEnd, vkSpace})
        EXPECT_EQ(currentAfter(key), -1) << key;
    for (int const key : {vkUp, vkHome, vkPageUp, vkPageDown})
        EXPECT_EQ(currentAfter(key), 0) << key;
}

TEST_F(DiscreteRows, BeforeAnyViewEndStartsAtTheLastRow)
{
    CDiscreteItemEventHandler plain;
    plain.SetDirection(idVertical);
    plain.GetViewModel()->SetCount(10);
    bool handled = false;
    EXPECT_TRUE(plain.ProcessKeyDown(0, vkEnd, &handled));
    EXPECT_EQ(plain.GetViewModel()->GetStartItem(), 9);
    EXPECT_EQ(plain.GetSelectionModel()->GetCurrent(), 9);
}

// Scrolling to a row -------------------------------------------------------------------------------------------------------
TEST_F(DiscreteRows, MakingTheCurrentVisiblePutsItFirstOrLast)
{
    EXPECT_TRUE(Handler().MakeCurrentVisible(true));  // none is current, and none is not in view
    EXPECT_EQ(Start(), 0);
    StartAt(3);
    EXPECT_TRUE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Start(), 0);
    StartAt(3);
    Selection().SetCurrent(1);
    EXPECT_TRUE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Start(), 1);
    EXPECT_FALSE(Handler().MakeCurrentVisible(true));
    EXPECT_FALSE(Handler().MakeCurrentVisible(false));
    Selection().SetCurrent(8);
    EXPECT_TRUE(Handler().MakeCurrentVisible(false));
    EXPECT_EQ(Start(), 5);
    Selection().SetCurrent(-1);
    EXPECT_TRUE(Handler().MakeCurrentVisible(false));
    EXPECT_EQ(Start(), 0);
    Handler().SetNoAutoVisible(true);
    Selection().SetCurrent(8);
    EXPECT_FALSE(Handler().MakeCurrentVisible(false));
    EXPECT_FALSE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Start(), 0);
}

TEST_F(DiscreteRows, TheFirstAndTheLastRowInViewAreVisibleAndTheirNeighboursAreNot)
{
    View().SetCount(30);
    for (bool const toStart : {false, true})
    {
        StartAt(2);
        for (int const row : {2, 6})
        {
            Selection().SetCurrent(row);
            EXPECT_FALSE(Handler().MakeCurrentVisible(toStart)) << row;
            EXPECT_EQ(Start(), 2);
        }
    }
    Selection().SetCurrent(7);
    EXPECT_TRUE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Start(), 7);
    Selection().SetCurrent(6);
    EXPECT_TRUE(Handler().MakeCurrentVisible(false));
    EXPECT_EQ(Start(), 3);  // four rows of ten and row 6: a fifth would just fill the view
    Selection().SetCurrent(8);
    EXPECT_TRUE(Handler().MakeCurrentVisible(false));
    EXPECT_EQ(Start(), 5);
    Selection().SetCurrent(4);
    EXPECT_TRUE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Start(), 4);
    View().SetItemSize(9, 45);  // row 8 would stick out
    Selection().SetCurrent(9);
    EXPECT_TRUE(Handler().MakeCurrentVisible(false));
    EXPECT_EQ(Start(), 9);
    Selection().SetCurrent(10);  // one pixel of it shows
    EXPECT_TRUE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Start(), 10);
}

TEST_F(DiscreteRows, ARowJustBehindALowViewScrollsByAsMuchAsItNeeds)
{
    struct SCase
    {
        int view;
        int current;
        int start;
    };
    // Rows of 10. The last in view is row 1 in a view of 20 and row 0 in a lower one.
    for (SCase const& each : {SCase{20, 1, 0}, SCase{20, 2, 1}, SCase{20, 3, 2}, SCase{20, 4, 0}, SCase{19, 1, 1},
                              SCase{19, 2, 2}, SCase{19, 3, 0}, SCase{10, 1, 1}, SCase{10, 2, 2}, SCase{5, 1, 1},
                              SCase{5, 2, 2}, SCase{1, 1, 1}, SCase{1, 2, 2}, SCase{0, 1, 1}, SCase{0, 2, 2}})
    {
        SCOPED_TRACE("row " + std::to_string(each.current) + " in a view of " + std::to_string(each.view));
        View().SetViewSize(each.view, false);
        View().SetStartItem(0);
        Selection().SetCurrent(each.current);
        Handler().CheckNewCurrent();
        EXPECT_EQ(Start(), each.start);
    }
    View().SetItemSize(2, 4);
    View().SetViewSize(14, false);
    View().SetStartItem(0);
    Selection().SetCurrent(2);
    Handler().CheckNewCurrent();
    EXPECT_EQ(Start(), 1);  // 4 and 10 fill the view
    View().SetViewSize(13, false);
    View().SetStartItem(0);
    Handler().CheckNewCurrent();
    EXPECT_EQ(Start(), 2);
}

TEST_F(DiscreteRows, ARowJustBehindTheViewScrollsByAsMuchAsItNeeds)
{
    View().SetItemSize(5, 25);  // 25 + 10 + 10 fit into 50, one more does not
    Selection().SetCurrent(5);
    Handler().CheckNewCurrent();
    EXPECT_EQ(Start(), 3);
    StartAt(0);
    View().SetItemSize(5, 60);
    Handler().CheckNewCurrent();
    EXPECT_EQ(Start(), 5);  // larger than the view
    StartAt(0);
    Selection().SetCurrent(7);
    Handler().CheckNewCurrent();
    EXPECT_EQ(Start(), 0);  // three behind the last in view
    Selection().SetCurrent(4);
    Handler().CheckNewCurrent();
    EXPECT_EQ(Start(), 0);
}

TEST_F(DiscreteRows, ARowIsBroughtToTheMiddle)
{
    View().SetCount(30);
    Handler().ItemToView(10);  // 20 pixels remain above: rows 8 and 9
    EXPECT_EQ(Start(), 8);
    Handler().ItemToView(0);
    EXPECT_EQ(Start(), 0);
    Handler().ItemToView(1);
    EXPECT_EQ(Start(), 0);
    Handler().ItemToView(29);
    EXPECT_EQ(Start(), 26);
    View().SetItemSize(9, 15);
    Handler().ItemToView(10);  // 15 + 10 is more than 20: row 8 would stick out
    EXPECT_EQ(Start(), 9);
    View().SetItemSize(10, 49);
    Handler().ItemToView(10);  // one pixel is left
    EXPECT_EQ(Start(), 10);
    Selection().SetCurrent(20);
    Handler().CurrentItemToView();
    EXPECT_EQ(Start(), 18);
}

TEST_F(DiscreteRows, WhatLiesBeyondTheRowsIsBroughtToViewAsFarAsTheyGo)
{
    View().SetCount(30);
    Handler().ItemToView(30);
    EXPECT_EQ(Start(), 26);
    StartAt(10);
    Handler().ItemToView(std::numeric_limits<int>::max());
    EXPECT_EQ(Start(), 26);
    Handler().ItemToView(-1);
    EXPECT_EQ(Start(), 0);
    StartAt(10);
    Selection().SetCurrent(-1);
    Handler().CurrentItemToView();
    EXPECT_EQ(Start(), 0);
    View().SetCount(0);
    Handler().ItemToView(0);
    EXPECT_EQ(Start(), 0);
}

TEST_F(DiscreteRows, TwoPixelsOfRoomLeaveOneForARowOfOnePixel)
{
    View().SetCount(30);
    View().SetItemSize(9, 1);
    View().SetItemSize(10, 48);
    Handler().ItemToView(10);
    EXPECT_EQ(Start(), 9);
}

TEST_F(DiscreteRows, TheRowAtAPointGoesByTheDirection)
{
    EXPECT_EQ(Handler().GetItemIndex(95, 25), 2);
    EXPECT_EQ(Handler().GetItemIndex(0, 50), 5);
    EXPECT_EQ(Handler().GetItemIndex(0, 51), -1);
    EXPECT_EQ(Handler().GetItemIndex(0, -1), -1);
    Handler().SetDirection(idHorizontal);
    EXPECT_EQ(Handler().GetItemIndex(25, 95), 2);
}

}  // namespace
