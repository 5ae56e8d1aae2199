// Selecting with the button held, and who hears of a selection when.

#include "tests/views/viewer_bench.h"

using namespace viewer_test;

namespace
{

class DragSelect : public CRowsBench<IDiscreteItemViewModel>
{
protected:
    int Start() { return View().GetStartItem(); }
    CVisualElement* Capture() { return m_Host.Root()->GetControl()->GetCapture(); }
    void Begin(int from, int to)
    {
        m_Host.Mouse().Press(*m_Rows, 5, from);
        m_Host.Mouse().Move(*m_Rows, 5, to);
    }
    bool IsRepeating() { return m_Host.Clock().GetRunningTimers() > 0; }
};

TEST_F(DragSelect, BeginsOnlyWhereTheSensitivityIsPassed)
{
    Begin(25, 27);
    EXPECT_EQ(Capture(), nullptr);
    m_Host.Mouse().Move(*m_Rows, 7, 25);
    EXPECT_EQ(Capture(), nullptr);
    m_Host.Mouse().Move(*m_Rows, 8, 25);
    EXPECT_EQ(Capture(), m_Rows);
    m_Host.Mouse().Release();
    EXPECT_EQ(Capture(), nullptr);
    Begin(25, 28);
    EXPECT_EQ(Capture(), m_Rows);
    m_Host.Mouse().Release();
}

TEST_F(DragSelect, BeginsByTheDistanceOfEachAxis)
{
    m_Host.Root()->GetControl()->SetDragStartSensitivity({2, 6});
    for (point<int> const& near : {point<int>{51, 25}, point<int>{49, 25}, point<int>{50, 30}, point<int>{50, 20}})
    {
        m_Host.Mouse().Press(*m_Rows, 50, 25);
        m_Host.Mouse().Move(*m_Rows, near.x, near.y);
        EXPECT_EQ(Capture(), nullptr) << near.x << ' ' << near.y;
        m_Host.Mouse().Release();
    }
    for (point<int> const& far : {point<int>{52, 25}, point<int>{48, 25}, point<int>{50, 31}, point<int>{50, 19}})
    {
        m_Host.Mouse().Press(*m_Rows, 50, 25);
        m_Host.Mouse().Move(*m_Rows, far.x, far.y);
        EXPECT_EQ(Capture(), m_Rows) << far.x << ' ' << far.y;
        m_Host.Mouse().Release();
    }
}

TEST_F(DragSelect, BeginsAlsoAtTheFirstPixels)
{
    for (point<int> const& from : {point<int>{0, 25}, point<int>{25, 0}, point<int>{0, 0}})
    {
        m_Host.Mouse().Press(*m_Rows, from.x, from.y);
        m_Host.Mouse().Move(*m_Rows, from.x, from.y + 8);
        EXPECT_EQ(Capture(), m_Rows) << from.x << ' ' << from.y;
        m_Host.Mouse().Release();
    }
}

TEST_F(DragSelect, GoesByTheKeysThatAreHeld)
{
    m_Rows->HandleMouseMove(5, 25, 0, mbNone);
    m_Host.Mouse().Press(*m_Rows, 5, 25);
    m_Rows->HandleMouseMove(5, 45, 1, mbNone);
    EXPECT_EQ(Capture(), m_Rows);
    m_Rows->HandleMouseMove(5, 60, 0, mbNone);  // the release was lost
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
    m_Rows->HandleMouseMove(5, 60, 1, mbNone);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssForward);
    m_Host.Mouse().Release();
}

TEST_F(DragSelect, APressIsForgottenWhileTheMouseIsElsewhere)
{
    auto* const other = new CVisualElement(m_Host.Root(), {10, 10}, alNone);
    m_Host.Mouse().Press(*m_Rows, 5, 25);
    m_Host.Root()->GetControl()->SetMouseElement(other);
    m_Rows->HandleMouseMove(5, 45, 1, mbLeft);
    EXPECT_EQ(Capture(), nullptr);
    m_Host.Root()->GetControl()->SetMouseElement(m_Rows);
    m_Rows->HandleMouseMove(5, 45, 1, mbLeft);
    EXPECT_EQ(Capture(), nullptr);
    m_Host.Mouse().Release();
}

TEST_F(DragSelect, ADragKeepsItsPressWhileTheMouseIsElsewhere)
{
    Begin(25, 35);
    m_Host.Root()->GetControl()->SetMouseElement(nullptr);
    m_Rows->HandleMouseMove(5, 60, 1, mbLeft);
    m_Host.Root()->GetControl()->SetMouseElement(m_Rows);
    m_Rows->ReleaseMouse();
    m_Rows->HandleMouseMove(5, 45, 1, mbLeft);
    EXPECT_EQ(Capture(), m_Rows);
    m_Host.Mouse().Release();
}

TEST_F(DragSelect, InsideTheViewIsARowOfShiftClicks)
{
    Begin(25, 35);
    EXPECT_EQ(Selected(), "2 3");
    m_Host.Mouse().Move(*m_Rows, 5, 45);
    EXPECT_EQ(Selected(), "2 3 4");
    m_Host.Mouse().Move(*m_Rows, 5, 5);
    EXPECT_EQ(Selected(), "0 1 2");
    EXPECT_EQ(Current(), 0);
    EXPECT_EQ(Handler().GetAnchor(), 2);
    EXPECT_FALSE(IsRepeating());
    m_Host.Mouse().Release();
    m_Host.Mouse().Move(*m_Rows, 5, 45);
    EXPECT_EQ(Selected(), "0 1 2");
}

TEST_F(DragSelect, PastTheTopScrollsByARowATickAndStopsAtTheFirst)
{
    View().SetStartItem(3);
    Settle();
    Begin(25, 15);  // from row 5 to row 4
    m_Host.Mouse().Move(*m_Rows, 5, -10);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssBackward);
    EXPECT_EQ(Start(), 3);
    m_Host.Clock().Advance(99);
    EXPECT_EQ(Start(), 3);
    m_Host.Clock().Advance(1);
    EXPECT_EQ(Start(), 2);
    EXPECT_EQ(Selected(), "2 3 4 5");
    EXPECT_EQ(Handler().GetAnchor(), 5);
    m_Host.Clock().Advance(200);
    EXPECT_EQ(Start(), 0);
    EXPECT_TRUE(IsRepeating());
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Start(), 0);
    EXPECT_FALSE(IsRepeating());
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
    EXPECT_EQ(Selected(), "0 1 2 3 4 5");
    EXPECT_EQ(Current(), 0);
    m_Host.Mouse().Release();
}

TEST_F(DragSelect, PastTheBottomScrollsUntilTheLastRowIsSelected)
{
    Begin(25, 35);
    m_Host.Mouse().Move(*m_Rows, 5, 60);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssForward);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Start(), 1);
    EXPECT_EQ(Current(), 4);  // the last in view before the scroll
    m_Host.Clock().Advance(400);
    EXPECT_EQ(Start(), 5);
    EXPECT_EQ(Current(), 8);
    EXPECT_TRUE(IsRepeating());
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Start(), 6);
    EXPECT_EQ(Current(), 9);
    EXPECT_FALSE(IsRepeating());
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
    EXPECT_EQ(Selected(), "2 3 4 5 6 7 8 9");
    m_Host.Mouse().Release();
}

TEST_F(DragSelect, ComingBackStopsTheScrolling)
{
    Begin(25, 35);
    m_Host.Mouse().Move(*m_Rows, 5, 60);
    m_Host.Clock().Advance(200);
    EXPECT_EQ(Start(), 2);
    m_Host.Mouse().Move(*m_Rows, 5, 25);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
    EXPECT_FALSE(IsRepeating());
    EXPECT_EQ(Current(), 4);
    EXPECT_EQ(Selected(), "2 3 4");
    m_Host.Mouse().Release();
}

TEST_F(DragSelect, LettingGoOutsideStopsTheScrolling)
{
    Begin(25, 35);
    m_Host.Mouse().Move(*m_Rows, 5, 60);
    m_Host.Mouse().Release();
    EXPECT_FALSE(IsRepeating());
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
    EXPECT_EQ(Capture(), nullptr);
}

TEST_F(DragSelect, TheWayCannotTurnWithoutComingBack)
{
    View().SetStartItem(3);
    Settle();
    Begin(25, 35);
    m_Host.Mouse().Move(*m_Rows, 5, 60);
    m_Host.Mouse().Move(*m_Rows, 5, -10);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssForward);
    m_Host.Mouse().Release();
}

TEST_F(DragSelect, BehindTheLastRowOfAShortListGoesForward)
{
    View().SetCount(3);
    Settle();
    Begin(5, 15);
    m_Host.Mouse().Move(*m_Rows, 5, 45);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssForward);
    m_Host.Clock().Advance(100);
    EXPECT_FALSE(IsRepeating());
    EXPECT_EQ(Start(), 0);
    EXPECT_EQ(Selected(), "0 1 2");
    m_Host.Mouse().Release();
}

TEST_F(DragSelect, TheHelperStartsAndStopsByTheSameRule)
{
    Handler().ProcessScrolling(-1, 70);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssForward);
    EXPECT_TRUE(IsRepeating());
    Handler().StopScrolling();
    Handler().ProcessScrolling(-1, 0);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssForward);
    Handler().ProcessScrolling(3, 10);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
    EXPECT_FALSE(IsRepeating());
    Handler().ProcessScrolling(-1, 70);
    Handler().ProcessScrolling(3, 0);  // the first pixel is in the view
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
    EXPECT_FALSE(IsRepeating());
    Handler().ProcessScrolling(3, -1);
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssBackward);
    Handler().StopScrolling();
    EXPECT_EQ(Handler().GetScrollState(), CEventHandlerBase::ssIdle);
    EXPECT_FALSE(IsRepeating());
}

TEST_F(DragSelect, AMoveWithTheButtonUpForgetsThePress)
{
    m_Host.Mouse().Press(*m_Rows, 5, 25);
    m_Host.Mouse().LoseRelease();
    m_Host.Mouse().Move(*m_Rows, 5, 26);
    EXPECT_EQ(Capture(), nullptr);
    m_Rows->HandleMouseMove(5, 45, 1, mbLeft);  // held again, but pressed elsewhere
    EXPECT_EQ(Capture(), nullptr);
}

TEST_F(DragSelect, InAListThatIsEmptiedTheCurrentStays)
{
    Begin(25, 35);
    m_Host.Mouse().Move(*m_Rows, 5, 60);
    View().SetCount(0);
    m_Host.Clock().Advance(100);
    EXPECT_EQ(Current(), 3);
    EXPECT_EQ(Start(), 0);
    EXPECT_FALSE(IsRepeating());
    m_Host.Mouse().Release();
}

TEST_F(DragSelect, OutsideTheViewNobodyHearsOfAPress)
{
    class CPressed : public CEventHandler
    {
    public:
        int m_Presses = 0;
        bool ProcessButtonDown(int, int, int, MouseButton, bool*) override
        {
            ++m_Presses;
            return false;
        }
    };
    CPressed first;
    m_Rows->SetDefEventHandler(&first);
    Begin(25, 35);
    EXPECT_EQ(first.m_Presses, 2);  // that of the button, and row 3's of the drag
    m_Host.Mouse().Move(*m_Rows, 5, 60);
    EXPECT_EQ(first.m_Presses, 2);
    m_Host.Mouse().Release();
}

TEST_F(DragSelect, TheButtonThatComesUpReleasesNobodyElsesMouse)
{
    auto* const other = new CVisualElement(m_Host.Root(), {10, 10}, alNone);
    other->CaptureMouse();
    bool handled = false;
    Handler().ProcessButtonUp(5, 5, 0, mbLeft, &handled);
    EXPECT_EQ(Capture(), other);
    other->ReleaseMouse();
}

TEST_F(DragSelect, OnlyTheLeftButtonMarksWhereADragMayBegin)
{
    class CBare : public CEventHandlerBase
    {
    public:
        using CEventHandlerBase::m_Down;
        using CEventHandlerBase::m_FromKeyboard;
    };
    CBare bare;
    bool handled = false;
    bare.m_FromKeyboard = true;
    EXPECT_FALSE(bare.ProcessButtonDown(5, 15, 1, mbLeft, &handled));
    EXPECT_EQ(bare.m_Down, (point<int>{5, 15}));
    EXPECT_FALSE(bare.m_FromKeyboard);
    EXPECT_FALSE(bare.ProcessButtonUp(5, 15, 0, mbLeft, &handled));
    EXPECT_EQ(bare.m_Down, (point<int>{-1, -1}));
    bare.ProcessButtonDown(5, 15, 1, mbLeft, &handled);
    EXPECT_FALSE(bare.ProcessButtonDown(5, 25, 0, mbRight, &handled));
    EXPECT_EQ(bare.m_Down, (point<int>{-1, -1}));
}

// Pixels -------------------------------------------------------------------------------------------------------------------
TEST_F(DragSelect, PixelsAreMovedOnlyWhereSomeStay)
{
    EXPECT_FALSE(Handler().ScrollItems(0, 0));
    EXPECT_FALSE(Handler().ScrollItems(-1, 10));
    EXPECT_FALSE(Handler().ScrollItems(50, 10));
    EXPECT_FALSE(Handler().ScrollItems(0, 50));
    EXPECT_FALSE(Handler().ScrollItems(0, -50));
    EXPECT_EQ(m_Rows->GetValidRect(), (rectangle<int>{0, 0, 99, 50}));
    EXPECT_TRUE(Handler().ScrollItems(49, 10));
    EXPECT_TRUE(Handler().ScrollItems(0, 49));
    EXPECT_TRUE(Handler().ScrollItems(0, -49));
    EXPECT_EQ(m_Rows->GetValidRect(), (rectangle<int>{0, 0, 0, 0}));
    m_Rows->SetVisible(false);
    EXPECT_FALSE(Handler().ScrollItems(0, 10));
}

TEST_F(DragSelect, TheModelsOfferIsTakenOnlyIfItIsOne)
{
    bool handled = false;
    Handler().OnRowViewModelScroll(0, -10, &handled);
    EXPECT_FALSE(handled);
    EXPECT_TRUE(m_Host.IsFramePending());
    handled = true;
    Handler().OnRowViewModelScroll(0, -10, &handled);
    EXPECT_TRUE(handled);
    Settle();
    Handler().OnRowViewModelScroll(0, 0, &handled);
    EXPECT_FALSE(handled);
    EXPECT_FALSE(m_Host.IsFramePending());
    handled = true;
    CDiscreteItemEventHandler alone;
    alone.OnRowViewModelScroll(0, -10, &handled);
    EXPECT_FALSE(handled);
}

// Notifications ------------------------------------------------------------------------------------------------------------
TEST_F(DragSelect, NobodyIsToldOfASelectionUnlessItIsWanted)
{
    CSignalLog log(m_Rows->m_SigSelectionChanged, "told");
    Click(25);
    m_Host.RunPending();
    EXPECT_EQ(log.Text(), "");
    Handler().SetNotifySelection(true);
    Handler().PostSelectionChanged();  // nothing has changed since
    EXPECT_EQ(CTestHost::System().GetPostedCount(), 0);
    EXPECT_EQ(m_Host.Pending().find("posted"), std::string::npos);
}

TEST_F(DragSelect, WithoutADelayAKeyNotifiesAfterItsEvent)
{
    Handler().SetNotifySelection(true);
    CSignalLog log(m_Rows->m_SigSelectionChanged, "told");
    m_Host.Keyboard().Press(vkDown);
    EXPECT_EQ(log.Text(), "");
    m_Host.RunPending();
    EXPECT_EQ(log.Take(), "told()");
    EXPECT_FALSE(IsRepeating());
}

TEST_F(DragSelect, OneNotificationComesAfterTheEvent)
{
    Handler().SetNotifySelection(true);
    CSignalLog log(Handler().m_SigSelectionChanged, "handler");
    log.Add(m_Rows->m_SigSelectionChanged, "viewer");
    Click(25);
    Click(45, ksShift);
    EXPECT_EQ(log.Text(), "");
    EXPECT_EQ(m_Host.RunPending(), 1);
    EXPECT_EQ(log.Take(), "viewer() handler()");
    Selection().ClearSelection();
    EXPECT_EQ(m_Host.RunPending(), 1);
    EXPECT_EQ(log.Take(), "viewer() handler()");
}

TEST_F(DragSelect, AHeldKeyNotifiesOnceAfterTheDelay)
{
    SetSelectionChangeDelay(200);
    EXPECT_EQ(GetSelectionChangeDelay(), 200);
    Handler().SetNotifySelection(true);
    CSignalLog log(m_Rows->m_SigSelectionChanged, "told");
    for (int i = 0; i < 4; ++i)
    {
        m_Host.Keyboard().Down(vkDown);
        m_Host.RunPending();
        m_Host.Clock().Advance(150);
    }
    EXPECT_EQ(log.Text(), "");
    m_Host.Clock().Advance(49);
    EXPECT_EQ(log.Text(), "");
    m_Host.Clock().Advance(1);
    EXPECT_EQ(log.Take(), "told()");
    m_Host.Clock().Advance(1000);
    m_Host.RunPending();
    EXPECT_EQ(log.Text(), "");
    Click(5);
    Click(25);
    EXPECT_FALSE(IsRepeating());  // no delay for clicks
    m_Host.RunPending();
    EXPECT_EQ(log.Take(), "told()");
    SetSelectionChangeDelay(0);
}

TEST_F(DragSelect, WithoutSelectionNobodyIsTold)
{
    Handler().SetNotifySelection(true);
    CSignalLog log(Handler().m_SigSelectionChanged, "told");
    Click(25);
    Handler().SetSelectionType(CEventHandlerBase::stNone);
    m_Host.RunPending();
    EXPECT_EQ(log.Text(), "");
    Handler().SetSelectionType(CEventHandlerBase::stFree);
    Handler().NotifySelectionChanged();  // the pending one is gone
    EXPECT_EQ(log.Text(), "");
    Click(45);
    m_Host.RunPending();
    EXPECT_EQ(log.Text(), "told()");
}

TEST_F(DragSelect, ANotificationThatWaitsOutlivesNobody)
{
    Handler().SetNotifySelection(true);
    Click(25);
    delete m_Rows;
    m_Host.RunPending();
    m_Host.Paint();
}

TEST_F(DragSelect, APendingNotificationGoesWithItsWindow)
{
    Handler().SetNotifySelection(true);
    Click(25);
    m_Host.DestroyWindow();
    EXPECT_EQ(m_Host.RunPending(), 0);
}

TEST_F(DragSelect, ASelectionThatChangesWhileTheWindowDiesIsToldToNobody)
{
    for (int const delay : {0, 200})
    {
        SCOPED_TRACE(delay);
        CTestHost dying(100, 51);
        CTestHost other(100, 51);
        SetSelectionChangeDelay(delay);
        Handler().SetNotifySelection(true);
        m_Rows->ReParent(dying.Root(), true);
        dying.Paint();
        m_Rows->HandleKeyDown(0, vkDown);
        dying.RunPending();
        dying.Clock().Advance(200);
        CSignalLog log(Handler().m_SigSelectionChanged, "told");
        auto const slot =
            Listen(dying.Control().m_SigDestroyed, [&](CBaseControl*) { Selection().SelectItem(7, true); });
        dying.DestroyWindow();
        EXPECT_TRUE(Selection().IsItemSelected(7));
        EXPECT_EQ(CTestHost::System().GetPostedCount(), 0);
        EXPECT_FALSE(IsRepeating());  // nor does a delay begin
        other.RunPending();
        other.Clock().Advance(1000);
        EXPECT_EQ(log.Take(), "");
        Handler().NotifySelectionChanged();
        EXPECT_EQ(log.Take(), "");

        m_Rows->ReParent(other.Root(), true);
        other.Paint();
        Selection().SelectItem(7, false);
        other.RunPending();
        other.Clock().Advance(200);
        EXPECT_EQ(log.Take(), "told()");
        m_Rows->ReParent(m_Host.Root(), true);
        Settle();
    }
    SetSelectionChangeDelay(0);
}

TEST_F(DragSelect, AListThatMovesToAnotherWindowStillNotifies)
{
    CTestHost other(100, 51);
    Handler().SetNotifySelection(true);
    CSignalLog log(Handler().m_SigSelectionChanged, "told");
    Click(25);
    m_Rows->ReParent(other.Root(), true);
    m_Host.DestroyWindow();
    other.Paint();
    Selection().SelectItem(7, true);
    other.RunPending();
    EXPECT_EQ(log.Text(), "told()");
}

// Focus --------------------------------------------------------------------------------------------------------------------
TEST_F(DragSelect, AChangeOfFocusMarksTheSelectedRows)
{
    Selection().SetCurrent(2);
    Selection().SetSelectionRange(1, 3);
    Settle();
    Handler().ProcessLostFocus(nullptr);
    EXPECT_EQ(Dirty(Selection(), 12), "1-3");
    EXPECT_TRUE(m_Host.IsFramePending());
    Selection().SetCurrent(5);
    Selection().OnEndDraw();
    Handler().ProcessLostFocus(nullptr);
    EXPECT_EQ(Dirty(Selection(), 12), "1-3 5");  // the current one may be marked
    Selection().SetCurrent(2);
    Selection().OnEndDraw();
    bool handled = false;
    Handler().ProcessGetFocus(&handled);
    EXPECT_EQ(Dirty(Selection(), 12), "1-3");
    EXPECT_FALSE(handled);
    Selection().SetSelectionRange(1, 6);
    Settle();
    Handler().ProcessGetFocus(&handled);
    EXPECT_EQ(Dirty(Selection(), 12), "1-6");
    Selection().SetSelectionRange(1, 7);
    Settle();
    Handler().ProcessGetFocus(&handled);
    EXPECT_EQ(Dirty(Selection(), 12), "0-12");
}

TEST_F(DragSelect, TheSelectedRowsAreRepaintedWhenTheFocusGoesAndComes)
{
    auto* const leaf = new CVisualElement(m_Host.Root(), {10, 10}, alNone);
    leaf->SetCanHaveFocus(true);
    GoTo(2);
    leaf->SetFocus(true);
    EXPECT_EQ(Paint(),
              "0 state 0 other, 1 state 0 other, 2 state 3 item, 3 state 0 other, 4 state 0 other, 5 state 0 other");
    m_Rows->SetFocus(true);
    EXPECT_EQ(Paint(),
              "0 state 0 other, 1 state 0 other, 2 state 3 item, 3 state 0 other, 4 state 0 other, 5 state 0 other");
}

}  // namespace
