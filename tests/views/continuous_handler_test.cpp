// What the user and the application do to a list whose rows scroll by pixels.

#include "tests/views/viewer_bench.h"

using namespace viewer_test;

namespace
{

class PixelRows : public CRowsBench<IContinuousItemViewModel>
{
protected:
    int Offset() { return View().GetOffset(); }
    void OffsetTo(int offset)
    {
        View().SetOffset(offset);
        Settle();
    }
};

TEST_F(PixelRows, TheHandlerHasModelsOfItsOwn)
{
    CContinuousItemEventHandler plain;
    EXPECT_NE(dynamic_cast<CDefaultColumnViewModel*>(plain.GetViewModel()), nullptr);
    EXPECT_NE(dynamic_cast<CDefaultSelectionModel*>(plain.GetSelectionModel()), nullptr);
    CDefaultColumnViewModel model;
    IContinuousItemViewModel* const own = plain.GetViewModel();
    plain.SetViewModel(&model);
    EXPECT_EQ(plain.GetItemViewModel(), &model);
    plain.SetViewModel(nullptr);
    EXPECT_EQ(plain.GetViewModel(), own);
}

// Painting -----------------------------------------------------------------------------------------------------------------
TEST_F(PixelRows, TheFirstRowSkipsWhatLiesBeforeTheView)
{
    m_Rows->m_WithRects = true;
    View().SetOffset(15);
    m_Rows->Invalidate();
    View().AddDirtyItems(0, 100);
    EXPECT_EQ(Paint(),
              "1 skip 5 state 0 (0, 0, 99, 4) item, 2 state 0 (0, 5, 99, 14) item, 3 state 0 (0, 15, 99, 24) item, "
              "4 state 0 (0, 25, 99, 34) item, 5 state 0 (0, 35, 99, 44) item, 6 state 0 (0, 45, 99, 54) item");
}

TEST_F(PixelRows, OneRowMoreIsDrawnWhereTheRowsJustFillTheView)
{
    View().AddDirtyItems(0, 0);
    m_Rows->Update(utElement);
    EXPECT_EQ(Paint(),
              "0 state 0 item, 1 state 0 other, 2 state 0 other, 3 state 0 other, 4 state 0 other, 5 state 0 other");
}

TEST_F(PixelRows, BehindTheLastRowIsTheEmptyArea)
{
    View().SetCount(3);
    EXPECT_EQ(Paint(), "0 state 0 item, 1 state 0 item, 2 state 0 item, empty (0, 30, 99, 50)");
    View().SetCount(0);
    EXPECT_EQ(Paint(), "empty (0, 0, 99, 50)");
}

TEST_F(PixelRows, AStretchedLastRowReachesToTheEndOfTheView)
{
    m_Rows->m_WithRects = true;
    View().SetCount(2);
    View().SetStretchLastItem(true);
    EXPECT_EQ(Paint(), "0 state 0 (0, 0, 99, 9) item, 1 state 0 (0, 10, 99, 50) item");
}

TEST_F(PixelRows, AScrollPaintsOnlyWhatComesIntoView)
{
    View().SetOffset(12);
    // 12 pixels more: the rows at 50 to 61, and the one at the edge
    EXPECT_EQ(
        Paint(),
        "1 skip 2 state 0 other, 2 state 0 other, 3 state 0 other, 4 state 0 item, 5 state 0 item, 6 state 0 item");
    View().SetOffset(5);
    EXPECT_EQ(
        Paint(),
        "0 skip 5 state 0 item, 1 state 0 item, 2 state 0 other, 3 state 0 other, 4 state 0 other, 5 state 0 other");
}

TEST_F(PixelRows, AJumpPaintsAll)
{
    View().SetCount(100);
    Settle();
    View().SetOffset(500);
    EXPECT_EQ(Paint(),
              "50 state 0 item, 51 state 0 item, 52 state 0 item, 53 state 0 item, 54 state 0 item, 55 state 0 item");
}

TEST_F(PixelRows, TheFirstSectionIsFoundByTheOffset)
{
    int first = -7, skip = -7;
    Handler().CalcFirstSection(&first, &skip);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(skip, 0);
    View().SetOffset(19);
    Handler().CalcFirstSection(&first, &skip);
    EXPECT_EQ(first, 1);
    EXPECT_EQ(skip, 9);
    View().SetOffset(20);
    Handler().CalcFirstSection(&first, &skip);
    EXPECT_EQ(first, 2);
    EXPECT_EQ(skip, 0);
}

// Draws by itself, without a viewer.
class CLonePainter : public IItemPainter
{
public:
    CDrawLog m_Draws;

    void DrawItem(IPainter*, int item, int, int, rectangle<double> const& rect, IDirtyItemSet::DirtyType) override
    {
        m_Draws.Add(std::to_string(item) + " " + Describe(rect));
    }
    void DrawEmptyArea(IPainter*, rectangle<double> const& rect) override { m_Draws.Add("empty " + Describe(rect)); }
};

TEST_F(PixelRows, BeforeAnyViewOnlyTheEmptyAreaIsDrawn)
{
    CLonePainter painter;
    CContinuousItemEventHandler plain;
    plain.SetDirection(idVertical);
    plain.SetPainter(&painter);
    plain.GetViewModel()->SetDefaultItemSize(10);
    plain.GetViewModel()->SetCount(10);
    auto const picture = CTestHost::System().CreateRasterPicture(size<int>{10, 10});
    plain.ProcessDraw(picture->GetPainter(), {0, 0, 99, 50});
    EXPECT_EQ(painter.m_Draws.Take(), "empty (0, 0, 99, 0)");
    plain.GetViewModel()->SetViewSize(0, false);  // one line of pixels
    plain.ProcessDraw(picture->GetPainter(), {0, 0, 99, 50});
    EXPECT_EQ(painter.m_Draws.Take(), "0 (0, 0, 99, 9)");
}

// Presses ------------------------------------------------------------------------------------------------------------------
TEST_F(PixelRows, APressCountsTheOffset)
{
    GoTo(5);
    OffsetTo(15);
    Click(4);
    EXPECT_EQ(Current(), 1);
    EXPECT_EQ(Offset(), 10);  // the row that was cut is brought to the beginning
    Click(10);
    EXPECT_EQ(Current(), 2);
    EXPECT_EQ(Selected(), "2");
}

TEST_F(PixelRows, APressOnARowThatIsCutAtTheEndBringsItsEndIntoView)
{
    OffsetTo(5);
    Click(47);  // row 5, pixels 50 to 59
    EXPECT_EQ(Current(), 5);
    EXPECT_EQ(Offset(), 9);
    EXPECT_EQ(Selected(), "5");
}

TEST_F(PixelRows, OnlyTheLeftButtonCounts)
{
    EXPECT_FALSE(m_Rows->HandleButtonDown(5, 15, 0, mbRight));
    EXPECT_FALSE(m_Rows->HandleButtonDown(5, 15, 0, mbMiddle));
    EXPECT_EQ(Current(), -1);
    EXPECT_TRUE(m_Rows->HandleButtonDown(5, 15, 1, mbLeft));
    EXPECT_EQ(Current(), 1);
}

TEST_F(PixelRows, ModifiersActAsInAnyList)
{
    Click(15);
    Click(35, ksShift);
    EXPECT_EQ(Selected(), "1 2 3");
    Click(25, ksControl);
    EXPECT_EQ(Selected(), "1 3");
    EXPECT_EQ(Current(), 2);
    Click(25);
    EXPECT_EQ(Selected(), "2");
    View().SetCount(2);
    EXPECT_FALSE(m_Rows->HandleButtonDown(5, 35, 1, mbLeft));
}

// Keys ---------------------------------------------------------------------------------------------------------------------
TEST_F(PixelRows, EndAndHomeGoToTheEnds)
{
    Press(vkEnd);
    EXPECT_EQ(Offset(), 50);
    EXPECT_EQ(Current(), 9);
    EXPECT_EQ(Selected(), "9");
    Press(vkHome);
    EXPECT_EQ(Offset(), 0);
    EXPECT_EQ(Current(), 0);
}

TEST_F(PixelRows, DownAndUpBringTheRowJustIntoView)
{
    GoTo(4);
    Press(vkDown);
    EXPECT_EQ(Current(), 5);
    EXPECT_EQ(Offset(), 9);
    GoTo(1);
    OffsetTo(30);
    Press(vkUp);
    EXPECT_EQ(Current(), 0);
    EXPECT_EQ(Offset(), 0);
    GoTo(9);
    OffsetTo(0);
    Press(vkUp);
    EXPECT_EQ(Current(), 8);
    EXPECT_EQ(Offset(), 50);  // its beginning to the view's, as far as that goes
    Press(vkDown);
    Press(vkDown);
    EXPECT_EQ(Current(), 9);
}

TEST_F(PixelRows, ThereAreNoPageKeysAndNoKeysOfTheOtherDirection)
{
    GoTo(2);
    for (int const key : {vkPageUp, vkPageDown, vkLeft, vkRight, vkReturn})
        EXPECT_FALSE(m_Rows->HandleKeyDown(0, key)) << key;
    for (int const key : {vkUp, vkDown, vkHome, vkEnd, vkSpace})
        EXPECT_TRUE(m_Rows->HandleKeyDown(0, key)) << key;
    Handler().SetDirection(idHorizontal);
    for (int const key : {vkUp, vkDown, vkHome, vkEnd})
        EXPECT_FALSE(m_Rows->HandleKeyDown(0, key)) << key;
    EXPECT_TRUE(m_Rows->HandleKeyDown(0, vkRight));
    EXPECT_TRUE(m_Rows->HandleKeyDown(0, vkLeft));
}

TEST_F(PixelRows, UpFromBehindAllRowsGoesToTheLast)
{
    Selection().SetCurrent(20);
    Press(vkUp);
    EXPECT_EQ(Current(), 9);
    EXPECT_EQ(Offset(), 50);
}

TEST_F(PixelRows, DownInAnEmptyListMakesNothingCurrent)
{
    View().SetCount(0);
    Press(vkDown);
    EXPECT_EQ(Current(), -1);
    Press(vkUp);
    EXPECT_EQ(Current(), 0);
    EXPECT_EQ(Selected(), "0");
}

TEST_F(PixelRows, SpaceAndControlAActAsInAnyList)
{
    GoTo(2);
    CSignalLog log(Selection().m_SigSelectionChanged, "selected");
    Press(vkSpace);
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(log.Take(), "selected()");
    Press('A', ksControl);
    EXPECT_EQ(Selected(), "0 1 2 3 4 5 6 7 8 9");
    Press(vkDown, ksShift);
    EXPECT_EQ(Selected(), "2 3");
}

// Scrolling to a row -------------------------------------------------------------------------------------------------------
TEST_F(PixelRows, MakingTheCurrentVisibleNeedsTwoRows)
{
    View().SetItemSize(0, 200);
    View().SetCount(1);
    View().SetOffset(30);
    Selection().SetCurrent(0);
    EXPECT_FALSE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Offset(), 30);
}

TEST_F(PixelRows, ARowThatIsLargerThanTheViewComesToItsBeginning)
{
    View().SetItemSize(3, 60);
    Selection().SetCurrent(3);
    EXPECT_TRUE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Offset(), 30);
    Selection().SetCurrent(9);  // 140 to 150
    EXPECT_TRUE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Offset(), 99);
    EXPECT_FALSE(Handler().MakeCurrentVisible(false) && Offset() != 100);
    Handler().SetNoAutoVisible(true);
    Selection().SetCurrent(0);
    EXPECT_FALSE(Handler().MakeCurrentVisible(false));
}

TEST_F(PixelRows, ARowIsBroughtToTheMiddleUnlessItShows)
{
    View().SetCount(30);
    Handler().ItemToView(3);
    EXPECT_EQ(Offset(), 0);
    Handler().ItemToView(10);  // 100, with 20 before it
    EXPECT_EQ(Offset(), 80);
    Handler().ItemToView(9);
    EXPECT_EQ(Offset(), 80);
    Handler().ItemToView(1);  // 10 is not above 20, so it stays
    EXPECT_EQ(Offset(), 10);
    Handler().ItemToView(29);  // what is behind 290 does not fill the view
    EXPECT_EQ(Offset(), 249);
    Handler().ItemToView(-1);
    Handler().ItemToView(30);
    EXPECT_EQ(Offset(), 249);
    View().SetItemSize(5, 90);
    Handler().ItemToView(5);
    EXPECT_EQ(Offset(), 50);
    Selection().SetCurrent(20);
    Handler().CurrentItemToView();
    EXPECT_EQ(Offset(), 260);
}

TEST_F(PixelRows, ARowWhoseEdgeIsTheEdgeOfTheViewIsVisible)
{
    OffsetTo(30);
    Selection().SetCurrent(3);  // 30 to 40
    EXPECT_FALSE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Offset(), 30);
    Selection().SetCurrent(7);  // 70 to 80, where the view ends
    EXPECT_FALSE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Offset(), 30);
    View().SetCount(30);
    Handler().ItemToView(3);
    EXPECT_EQ(Offset(), 30);
    Handler().ItemToView(7);
    EXPECT_EQ(Offset(), 30);
}

TEST_F(PixelRows, ARowThatJustFillsTheViewComesToItsBeginning)
{
    View().SetItemSize(3, 50);
    Selection().SetCurrent(3);
    EXPECT_TRUE(Handler().MakeCurrentVisible(true));
    EXPECT_EQ(Offset(), 30);
    View().SetItemSize(9, 50);  // 130 to 180
    Handler().ItemToView(9);
    EXPECT_EQ(Offset(), 130);
}

TEST_F(PixelRows, ARowIsBroughtToTheMiddleOnlyIfThereIsRoomBeforeAndBehindIt)
{
    View().SetCount(30);
    OffsetTo(100);
    Handler().ItemToView(2);  // 20 pixels lie before it, and as many would
    EXPECT_EQ(Offset(), 20);
    OffsetTo(0);
    Handler().ItemToView(27);  // what lies behind 250 just fills the view
    EXPECT_EQ(Offset(), 249);
    OffsetTo(0);
    Handler().ItemToView(30);
    EXPECT_EQ(Offset(), 0);
    View().SetCount(1);
    View().SetItemSize(0, 200);
    OffsetTo(30);
    Handler().ItemToView(0);
    EXPECT_EQ(Offset(), 30);
}

// Drags --------------------------------------------------------------------------------------------------------------------
TEST_F(PixelRows, ADragPastTheEndScrollsByEightPixelsATick)
{
    m_Host.Mouse().Press(*m_Rows, 5, 25);
    m_Host.Mouse().Move(*m_Rows, 5, 35);
    m_Host.Mouse().Move(*m_Rows, 5, 70);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssForward);
    EXPECT_EQ(Offset(), 0);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Offset(), 8);
    EXPECT_EQ(Current(), 5);  // at pixel 58
    EXPECT_EQ(Selected(), "2 3 4 5");
    m_Host.Clock().Advance(400);
    EXPECT_EQ(Offset(), 40);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Offset(), 48);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssForward);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Offset(), 50);
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
    m_Host.Mouse().Release();
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
}

TEST_F(PixelRows, ADragPastTheBeginningScrollsBack)
{
    OffsetTo(20);
    m_Host.Mouse().Press(*m_Rows, 5, 25);  // row 4
    m_Host.Mouse().Move(*m_Rows, 5, 15);
    m_Host.Mouse().Move(*m_Rows, 5, -10);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssBackward);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Offset(), 12);
    EXPECT_EQ(Current(), 1);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Offset(), 4);
    EXPECT_EQ(Selected(), "0 1 2 3 4");
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Offset(), 0);
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
    m_Host.Mouse().Release();
}

TEST_F(PixelRows, ADragWhereAllIsInViewStopsAtOnce)
{
    View().SetCount(3);
    Settle();
    m_Host.Mouse().Press(*m_Rows, 5, 5);
    m_Host.Mouse().Move(*m_Rows, 5, 15);
    m_Host.Mouse().Move(*m_Rows, 5, 45);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssForward);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
    EXPECT_EQ(Offset(), 0);
    EXPECT_EQ(Selected(), "0 1");
    m_Host.Mouse().Release();
}

TEST_F(PixelRows, ADragPastTheEndScrollsOnlyWhereMoreThanOnePixelIsLeft)
{
    View().SetCount(6);
    View().SetItemSize(5, 1);  // one pixel more than the view
    Settle();
    m_Host.Mouse().Press(*m_Rows, 5, 25);
    m_Host.Mouse().Move(*m_Rows, 5, 35);
    m_Host.Mouse().Move(*m_Rows, 5, 70);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Offset(), 0);
    EXPECT_EQ(Selected(), "2 3 4 5");  // pixel 50 is row 5's
    m_Host.Mouse().Release();
    View().SetItemSize(5, 2);
    Settle();
    m_Host.Mouse().Press(*m_Rows, 5, 25);
    m_Host.Mouse().Move(*m_Rows, 5, 35);
    m_Host.Mouse().Move(*m_Rows, 5, 70);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Offset(), 2);
    m_Host.Mouse().Release();
}

TEST_F(PixelRows, ADragPastTheEndStopsWithTheTickThatArrivesThere)
{
    View().SetItemSize(9, 8);  // 98 in all
    Settle();
    m_Host.Mouse().Press(*m_Rows, 5, 25);
    m_Host.Mouse().Move(*m_Rows, 5, 35);
    m_Host.Mouse().Move(*m_Rows, 5, 70);
    m_Host.Clock().Advance(500);
    EXPECT_EQ(Offset(), 40);
    EXPECT_EQ(Current(), 9);  // at pixel 90, its first
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 1);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Offset(), 48);
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
    m_Host.Mouse().Release();
}

TEST_F(PixelRows, ADragPastTheBeginningStopsWithTheTickThatFindsNothingLeft)
{
    OffsetTo(8);
    m_Host.Mouse().Press(*m_Rows, 5, 25);
    m_Host.Mouse().Move(*m_Rows, 5, 15);
    m_Host.Mouse().Move(*m_Rows, 5, -10);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Offset(), 0);
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 1);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Offset(), 0);
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
    m_Host.Mouse().Release();
}

TEST_F(PixelRows, APressAfterAKeyNotifiesAtOnce)
{
    SetSelectionChangeDelay(200);
    Handler().SetNotifySelection(true);
    CSignalLog log(Handler().m_SigSelectionChanged, "told");
    Press(vkDown);
    m_Host.Clock().Advance(200);
    EXPECT_EQ(log.Take(), "told()");
    Click(25);
    m_Host.RunPending();
    EXPECT_EQ(log.Take(), "told()");
    SetSelectionChangeDelay(0);
}

// Model signals ------------------------------------------------------------------------------------------------------------
TEST_F(PixelRows, TheModelAsksForAMoveOfPixels)
{
    bool handled = false;
    Handler().OnColViewModelScroll(0, -10, &handled);
    EXPECT_TRUE(handled);
    Settle();
    Handler().OnColViewModelScroll(0, 0, &handled);
    EXPECT_FALSE(handled);
    EXPECT_FALSE(m_Host.IsFramePending());
    handled = true;
    Handler().OnColViewModelScroll(0, 50, &handled);
    EXPECT_FALSE(handled);
    EXPECT_TRUE(m_Host.IsFramePending());
}

TEST_F(PixelRows, ARowThatGrowsMovesWhatLiesBehindIt)
{
    View().SetItemSize(1, 14);
    EXPECT_EQ(Paint(), "0 state 0 other, 1 state 0 item, 2 state 0 item, 3 state 0 other, 4 state 0 other");
    View().SetItemSize(1, 8);
    EXPECT_EQ(Paint(),
              "0 state 0 other, 1 state 0 item, 2 state 0 item, 3 state 0 other, 4 state 0 item, 5 state 0 item");
    EXPECT_EQ(Offset(), 0);
}

}  // namespace
