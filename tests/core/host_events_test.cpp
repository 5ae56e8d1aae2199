// Native events: what the control does with each, in which order, and what ends it.

#include "tests/support/host_bench.h"
#include "tests/support/slot.h"
#include "vexel/platform/vexel_control.h"
#include "vexel/signals/cancel_processing.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace vexel;

namespace
{

// Hears, as another subscriber of the control would, of every kind of native event.
class CListener : public CSubscriber<IDrawingNotify>,
                  public CSubscriber<IMouseNotify>,
                  public CSubscriber<IMouseClickNotify>,
                  public CSubscriber<IMouseHoverNotify>,
                  public CSubscriber<IKeyboardNotify>,
                  public CSubscriber<IWindowNotify>,
                  public CSubscriber<IFocusNotify>,
                  public CSubscriber<IContextMenuNotify>,
                  public CSubscriber<ITooltipNotify>,
                  public CSubscriber<ICustomEventNotify>,
                  public CSubscriber<ISystemNotify>
{
public:
    CListener(CCallLog& log, IEventSender& sender) : m_Log(log)
    {
        Join<IDrawingNotify>(sender);
        Join<IMouseNotify>(sender);
        Join<IMouseClickNotify>(sender);
        Join<IMouseHoverNotify>(sender);
        Join<IKeyboardNotify>(sender);
        Join<IWindowNotify>(sender);
        Join<IFocusNotify>(sender);
        Join<IContextMenuNotify>(sender);
        Join<ITooltipNotify>(sender);
        Join<ICustomEventNotify>(sender);
        Join<ISystemNotify>(sender);
    }

    std::function<void()> m_Act;  ///< Done at every event.

    void OnDraw(IPainter*) override { Note("OnDraw"); }
    void OnButtonDown(CMouseEvent*) override { Note("OnButtonDown"); }
    void OnButtonUp(CMouseEvent*) override { Note("OnButtonUp"); }
    void OnMouseMove(CMouseEvent*) override { Note("OnMouseMove"); }
    void OnWheel(CMouseWheelEvent*) override { Note("OnWheel"); }
    void OnClick(CMouseEvent*) override { Note("OnClick"); }
    void OnDoubleClick(CMouseEvent*) override { Note("OnDoubleClick"); }
    void OnHover(CMouseEvent*) override { Note("OnHover"); }
    void OnLeave(CMouseEvent*) override { Note("OnLeave"); }
    void OnKeyDown(CKeyboardEvent*) override { Note("OnKeyDown"); }
    void OnKeyUp(CKeyboardEvent*) override { Note("OnKeyUp"); }
    void OnChar(CKeyboardEvent*) override { Note("OnChar"); }
    void OnResize(CWindowEvent*) override { Note("OnResize"); }
    void OnMove(CWindowEvent*) override { Note("OnMove"); }
    void OnDestroy(CWindowEvent*) override { Note("OnDestroy"); }
    void OnShow(CWindowEvent*) override { Note("OnShow"); }
    void OnHide(CWindowEvent*) override { Note("OnHide"); }
    void OnGetFocus(CFocusEvent*) override { Note("OnGetFocus"); }
    void OnLostFocus(CFocusEvent*) override { Note("OnLostFocus"); }
    void OnContextMenu(CContextMenuEvent*) override { Note("OnContextMenu"); }
    void OnTooltip(CTooltipEvent*) override { Note("OnTooltip"); }
    void OnTooltipTrack(CTooltipEvent*) override { Note("OnTooltipTrack"); }
    void OnCustomEvent(CCustomEvent*) override { Note("OnCustomEvent"); }
    void OnSysColorChanged(CEvent*) override { Note("OnSysColorChanged"); }

private:
    template <class Interface> void Join(IEventSender& sender)
    {
        sender.Subscribe(static_cast<CSubscriber<Interface>*>(this), typeid(Interface), true);
    }
    void Note(char const* what)
    {
        m_Log.Add("listener", what);
        if (m_Act)
            m_Act();
    }

    CCallLog& m_Log;
};

// root > child at (10, 0) to (40, 49), painted, the pointer over the child; a listener beside the tree.
class HostEvents : public testing::Test, protected CHostBench
{
protected:
    HostEvents()
    {
        m_Child.SetPos({10, 0, 40, 49}, false);
        m_Child.SetCanHaveFocus(true);
        Paint();
        CMouseEvent move(20, 5, 0, mbNone);
        m_Control->OnMouseMove(&move);
        m_Log.Clear();
    }

    // What every override of a mouse or keyboard event has in common. `own`: the call of the child and the root.
    // `base`: that of the listener.
    template <class Event>
    void CheckFrame(void (CVexelControl::*handler)(Event*), std::function<Event()> const& make, std::string const& own,
                    std::string const& base)
    {
        std::string const operation = own.substr(0, own.find('('));
        {
            SCOPED_TRACE("both steps");
            Event event = make();
            (m_Control.get()->*handler)(&event);
            EXPECT_EQ(m_Log.Take({operation.c_str(), base.c_str()}),
                      "child." + own + " root." + operation + RootArguments(own) + " listener." + base + "()");
        }
        {
            SCOPED_TRACE("cancelled in the tree");
            m_Child.m_OnHandler = [](char const*) { throw vexel::cancel_processing(); };
            Event event = make();
            EXPECT_NO_THROW((m_Control.get()->*handler)(&event));
            EXPECT_EQ(m_Log.Take({operation.c_str(), base.c_str()}), "child." + own);
            m_Child.m_OnHandler = nullptr;
        }
        {
            SCOPED_TRACE("cancelled by a subscriber");
            m_Listener.m_Act = [] { throw vexel::cancel_processing(); };
            Event event = make();
            EXPECT_NO_THROW((m_Control.get()->*handler)(&event));
            EXPECT_EQ(m_Log.Take({base.c_str()}), "listener." + base + "()");
            m_Listener.m_Act = nullptr;
        }
        {
            SCOPED_TRACE("another exception");
            m_Child.m_OnHandler = [](char const*) { throw std::runtime_error("no cancellation"); };
            Event event = make();
            EXPECT_THROW((m_Control.get()->*handler)(&event), std::runtime_error);
            m_Child.m_OnHandler = nullptr;
            m_Log.Clear();
        }
        {
            SCOPED_TRACE("without a window");
            m_Control->SetSysWindow(nullptr);
            m_Log.Clear();
            Event event = make();
            (m_Control.get()->*handler)(&event);
            EXPECT_EQ(m_Log.Take({operation.c_str()}), "");
            m_Control->SetSysWindow(&m_Window);
            m_Log.Clear();
        }
    }

    // Positions grow by 10 on the way from the child to the root; keys stay.
    static std::string RootArguments(std::string const& own)
    {
        return own.find("(10, 5)") != std::string::npos ? "(20, 5)" : own.substr(own.find('('));
    }

    CRecordingElement m_Child{m_Log, "child", m_Root};
    CListener m_Listener{m_Log, *m_Control};
};

TEST_F(HostEvents, AButtonDownGoesToTheTreeThenToTheSubscribers)
{
    CheckFrame<CMouseEvent>(&CVexelControl::OnButtonDown, [] { return CMouseEvent(20, 5, 1, mbLeft); },
                            "HandleButtonDown(10, 5)", "OnButtonDown");
}

TEST_F(HostEvents, AButtonUpGoesToTheTreeThenToTheSubscribers)
{
    CheckFrame<CMouseEvent>(&CVexelControl::OnButtonUp, [] { return CMouseEvent(20, 5, 0, mbLeft); },
                            "HandleButtonUp(10, 5)", "OnButtonUp");
}

TEST_F(HostEvents, AMouseMoveGoesToTheTreeThenToTheSubscribers)
{
    CheckFrame<CMouseEvent>(&CVexelControl::OnMouseMove, [] { return CMouseEvent(20, 5, 0, mbNone); },
                            "HandleMouseMove(10, 5)", "OnMouseMove");
}

TEST_F(HostEvents, ADoubleClickGoesToTheTreeThenToTheSubscribers)
{
    CheckFrame<CMouseEvent>(&CVexelControl::OnDoubleClick, [] { return CMouseEvent(20, 5, 1, mbLeft); },
                            "HandleDoubleClick(10, 5)", "OnDoubleClick");
}

TEST_F(HostEvents, ATooltipTrackGoesToTheTreeThenToTheSubscribers)
{
    CheckFrame<CTooltipEvent>(&CVexelControl::OnTooltipTrack,
                              [] {
                                  CTooltipEvent event;
                                  event.m_X = 20;
                                  event.m_Y = 5;
                                  return event;
                              },
                              "HandleOnTooltipTrack(10, 5)", "OnTooltipTrack");
}

TEST_F(HostEvents, AContextMenuGoesToTheTreeThenToTheSubscribers)
{
    CheckFrame<CContextMenuEvent>(&CVexelControl::OnContextMenu, [] { return CContextMenuEvent(20, 5); },
                                  "HandleContextMenu(10, 5)", "OnContextMenu");
}

TEST_F(HostEvents, AKeyDownGoesToTheTreeThenToTheSubscribers)
{
    m_Child.SetFocus(false);
    CheckFrame<CKeyboardEvent>(&CVexelControl::OnKeyDown, [] { return CKeyboardEvent(0, 65); }, "HandleKeyDown(0, 65)",
                               "OnKeyDown");
}

TEST_F(HostEvents, AKeyUpGoesToTheTreeThenToTheSubscribers)
{
    m_Child.SetFocus(false);
    CheckFrame<CKeyboardEvent>(&CVexelControl::OnKeyUp, [] { return CKeyboardEvent(0, 65); }, "HandleKeyUp(0, 65)",
                               "OnKeyUp");
}

TEST_F(HostEvents, ACharacterGoesToTheTreeThenToTheSubscribers)
{
    m_Child.SetFocus(false);
    CheckFrame<CKeyboardEvent>(&CVexelControl::OnChar, [] { return CKeyboardEvent(0, 65, 'a'); }, "HandleChar(a)",
                               "OnChar");
}

TEST_F(HostEvents, TheWheelGoesToTheTreeThenToTheSubscribers)
{
    CMouseWheelEvent event(20, 5, 0, mbNone, 1);
    m_Control->OnWheel(&event);
    EXPECT_EQ(m_Log.Take({"HandleWheel", "OnWheel"}),
              "root.HandleWheel(20, 5) child.HandleWheel(10, 5) listener.OnWheel()");

    m_Root->m_OnHandler = [](char const*) { throw vexel::cancel_processing(); };
    EXPECT_NO_THROW(m_Control->OnWheel(&event));
    EXPECT_EQ(m_Log.Take({"HandleWheel", "OnWheel"}), "root.HandleWheel(20, 5)");
    m_Root->m_OnHandler = nullptr;

    m_Listener.m_Act = [] { throw vexel::cancel_processing(); };
    EXPECT_NO_THROW(m_Control->OnWheel(&event));
    EXPECT_EQ(m_Log.Take({"OnWheel"}), "listener.OnWheel()");
}

TEST_F(HostEvents, LeavingGoesToTheTreeThenToTheSubscribers)
{
    CMouseEvent event(200, 5, 0, mbNone);
    m_Control->OnLeave(&event);
    EXPECT_EQ(m_Log.Take({"HandleMouseLeave", "OnLeave"}), "child.HandleMouseLeave(null) listener.OnLeave()");

    CMouseEvent move(20, 5, 0, mbNone);
    m_Control->OnMouseMove(&move);
    m_Log.Clear();
    m_Child.m_OnHandler = [](char const*) { throw vexel::cancel_processing(); };
    EXPECT_NO_THROW(m_Control->OnLeave(&event));
    EXPECT_EQ(m_Log.Take({"HandleMouseLeave", "OnLeave"}), "child.HandleMouseLeave(null)");
}

TEST_F(HostEvents, AKeyWithoutAFocusedElementGoesToTheRoot)
{
    CKeyboardEvent event(0, 65, 'a');

    m_Control->OnKeyDown(&event);
    m_Control->OnKeyUp(&event);
    m_Control->OnChar(&event);

    EXPECT_EQ(m_Log.Take({"HandleKeyDown", "HandleKeyUp", "HandleChar"}),
              "root.HandleKeyDown(0, 65) root.HandleKeyUp(0, 65) root.HandleChar(a)");
}

TEST_F(HostEvents, AConsumedKeyIsNotContinuedButTheFirstSubscriberStillHearsOfIt)
{
    m_Root->m_Consume = true;
    CKeyboardEvent event(0, 65);

    m_Control->OnKeyDown(&event);

    EXPECT_FALSE(event.IsContinue());
    EXPECT_TRUE(event.m_PassOn);
    EXPECT_EQ(m_Log.Take({"OnKeyDown"}), "listener.OnKeyDown()");
}

TEST_F(HostEvents, AKeyThatIsNotPassedOnDoesNotReachTheSubscribers)
{
    m_Root->m_OnHandler = nullptr;
    CKeyboardEvent* current = nullptr;
    m_Root->m_OnHandler = [&](char const*) { current->m_PassOn = false; };

    CKeyboardEvent down(0, 65), up(0, 65), character(0, 65, 'a');
    current = &down;
    m_Control->OnKeyDown(&down);
    current = &up;
    m_Control->OnKeyUp(&up);
    current = &character;
    m_Control->OnChar(&character);

    EXPECT_EQ(m_Log.Take({"HandleKeyDown", "HandleKeyUp", "HandleChar", "OnKeyDown", "OnKeyUp", "OnChar"}),
              "root.HandleKeyDown(0, 65) root.HandleKeyUp(0, 65) root.HandleChar(a)");
}

TEST_F(HostEvents, ATabThatMovesTheFocusDoesNotReachTheSubscribers)
{
    m_Window.m_Focused = true;
    CKeyboardEvent event(0, vkTab);

    m_Control->OnKeyDown(&event);

    EXPECT_EQ(Host().GetFocusedElement(), &m_Child);
    EXPECT_FALSE(event.m_PassOn);
    EXPECT_EQ(m_Log.Take({"OnKeyDown"}), "");
}

TEST_F(HostEvents, AShortcutThatCopiesDoesNotReachTheSubscribers)
{
    m_Control->SetCopyShortcut(true);
    m_Child.m_CopyEnabled = true;
    m_Child.m_CopyAnswer = true;
    m_Child.SetFocus(false);
    m_Log.Clear();
    CKeyboardEvent event(512, 67);

    m_Control->OnKeyDown(&event);

    EXPECT_EQ(m_Log.Take({"HandleKeyDown", "HandleCopyToClipboard", "OnKeyDown"}), "child.HandleCopyToClipboard()");
}

// Focus ------------------------------------------------------------------------------------------------------------------------

TEST_F(HostEvents, GettingTheNativeFocusTellsTheTreeTheSubscribersAndThenTheSignal)
{
    auto const slot = Listen(m_Control->m_SigGetFocus, [&](CBaseControl* control) {
        EXPECT_EQ(control, m_Control.get());
        m_Log.Add("slot", "SigGetFocus");
    });
    CFocusEvent event;

    m_Control->OnGetFocus(&event);
    EXPECT_EQ(m_Log.Take({"HandleControlChangeFocus", "OnGetFocus", "SigGetFocus"}),
              "root.HandleControlChangeFocus(true) child.HandleControlChangeFocus(true) listener.OnGetFocus() "
              "slot.SigGetFocus()");

    m_Listener.m_Act = [] { throw vexel::cancel_processing(); };
    EXPECT_NO_THROW(m_Control->OnGetFocus(&event));
    EXPECT_EQ(m_Log.Take({"OnGetFocus", "SigGetFocus"}), "listener.OnGetFocus()");
    m_Listener.m_Act = nullptr;

    m_Root->m_OnHandler = [](char const*) { throw vexel::cancel_processing(); };
    EXPECT_NO_THROW(m_Control->OnGetFocus(&event));
    EXPECT_EQ(m_Log.Take({"OnGetFocus", "SigGetFocus"}), "");
}

TEST_F(HostEvents, LosingTheNativeFocusTellsTheTreeTheSubscribersAndThenTheSignal)
{
    auto const slot = Listen(m_Control->m_SigLostFocus, [&](CBaseControl* control) {
        EXPECT_EQ(control, m_Control.get());
        m_Log.Add("slot", "SigLostFocus");
    });
    CFocusEvent event;

    m_Control->OnLostFocus(&event);
    EXPECT_EQ(m_Log.Take({"HandleControlChangeFocus", "OnLostFocus", "SigLostFocus"}),
              "root.HandleControlChangeFocus(false) child.HandleControlChangeFocus(false) listener.OnLostFocus() "
              "slot.SigLostFocus()");

    m_Listener.m_Act = [] { throw vexel::cancel_processing(); };
    EXPECT_NO_THROW(m_Control->OnLostFocus(&event));
    EXPECT_EQ(m_Log.Take({"OnLostFocus", "SigLostFocus"}), "listener.OnLostFocus()");
    m_Listener.m_Act = nullptr;

    m_Root->m_OnHandler = [](char const*) { throw vexel::cancel_processing(); };
    EXPECT_NO_THROW(m_Control->OnLostFocus(&event));
    EXPECT_EQ(m_Log.Take({"OnLostFocus", "SigLostFocus"}), "");
}

// Hover --------------------------------------------------------------------------------------------------------------------------

TEST_F(HostEvents, AHoverShowsTheCursorOfTheCapturingElement)
{
    m_Child.SetCursor(7);
    CMouseEvent event(20, 5, 0, mbNone);
    m_Log.Clear();

    m_Control->OnHover(&event);
    EXPECT_EQ(m_Log.Take({"SetCursor", "OnHover"}), "listener.OnHover()");

    m_Child.CaptureMouse();
    m_Control->OnHover(&event);
    EXPECT_EQ(m_Log.Take({"SetCursor", "OnHover"}), "window.SetCursor(7) listener.OnHover()");

    m_Listener.m_Act = [] { throw vexel::cancel_processing(); };
    EXPECT_NO_THROW(m_Control->OnHover(&event));
}

// Tooltip ------------------------------------------------------------------------------------------------------------------------

class HostTooltip : public HostEvents
{
protected:
    void Ask()
    {
        CTooltipEvent event;
        event.m_X = 20;
        event.m_Y = 5;
        m_Control->OnTooltip(&event);
    }
    std::string Take() { return m_Log.Take({"HandleOnTooltip", "OnTooltip"}); }
};

TEST_F(HostTooltip, IsAskedOfTheElementUnderTheMouseInItsOwnPixels)
{
    m_Child.m_Consume = true;

    Ask();

    EXPECT_EQ(Take(), "child.HandleOnTooltip(10, 5) listener.OnTooltip()");
}

TEST_F(HostTooltip, GoesUpTheParentsWithTheirPixels)
{
    Ask();

    EXPECT_EQ(Take(), "child.HandleOnTooltip(10, 5) root.HandleOnTooltip(20, 5) listener.OnTooltip()");
}

TEST_F(HostTooltip, CancelledInTheTreeStillReachesTheSubscribers)
{
    m_Child.m_OnHandler = [](char const*) { throw vexel::cancel_processing(); };

    EXPECT_NO_THROW(Ask());

    EXPECT_EQ(Take(), "child.HandleOnTooltip(10, 5) listener.OnTooltip()");
}

TEST_F(HostTooltip, CancelledByASubscriberEndsQuietly)
{
    m_Listener.m_Act = [] { throw vexel::cancel_processing(); };

    EXPECT_NO_THROW(Ask());
}

TEST_F(HostTooltip, WithoutAnElementUnderTheMouseOnlyTheSubscribersAreAsked)
{
    Host().SetMouseElement(nullptr);
    m_Log.Clear();

    Ask();

    EXPECT_EQ(Take(), "listener.OnTooltip()");
}

TEST_F(HostTooltip, DuringADragOnlyTheSubscribersAreAsked)
{
    DragInfo info;
    info.m_UseBackground = false;
    Host().StartDragging(&m_Child, info);
    m_Log.Clear();

    Ask();

    EXPECT_EQ(Take(), "listener.OnTooltip()");
}

// Size, paint, colours, custom events ----------------------------------------------------------------------------------------------

TEST_F(HostEvents, AResizeLaysOutInvalidatesAndThenTellsTheSubscribers)
{
    auto const slot = Listen(Host().m_SigAfterRearrange, [&] { m_Log.Add("host", "after"); });
    CWindowEvent event;

    m_Control->OnResize(&event);

    EXPECT_EQ(m_Log.Take({"after", "InvalidateRect", "OnResize"}),
              "host.after() window.InvalidateRect(0 0 100 50) listener.OnResize()");
}

TEST_F(HostEvents, AResizeThatIsCancelledEndsQuietly)
{
    CWindowEvent event;
    m_Root->m_OnRefreshPos = [] { throw vexel::cancel_processing(); };
    EXPECT_NO_THROW(m_Control->OnResize(&event));
    EXPECT_EQ(m_Log.Take({"OnResize"}), "");

    m_Root->m_OnRefreshPos = nullptr;
    m_Listener.m_Act = [] { throw vexel::cancel_processing(); };
    EXPECT_NO_THROW(m_Control->OnResize(&event));
}

TEST_F(HostEvents, AResizeWithoutAWindowTellsTheSubscribersOnly)
{
    m_Control->SetSysWindow(nullptr);
    m_Log.Clear();
    CWindowEvent event;

    m_Control->OnResize(&event);

    EXPECT_EQ(m_Log.Take(), "listener.OnResize()");
}

TEST_F(HostEvents, APaintIsNotToldToTheSubscribers)
{
    m_Root->Update(utElement);
    m_Log.Clear();

    m_Control->OnDraw(&m_Window.m_Painter);

    EXPECT_EQ(m_Log.Take({"DrawContent", "OnDraw"}), "root.DrawContent() child.DrawContent()");
}

TEST_F(HostEvents, APaintHasNoGuardButLeavesNothingOpen)
{
    auto throwing = Listen(m_Child.m_SigDraw, [](CVisualElement*, IPainter*) { throw vexel::cancel_processing(); });
    m_Child.Update(utElement);
    EXPECT_THROW(m_Control->OnDraw(&m_Window.m_Painter), vexel::cancel_processing);
    EXPECT_FALSE(m_Window.m_Painter.m_Painting);
    throwing.reset();

    m_Child.Update(utFull);
    EXPECT_EQ(Paint(), "root.DrawContent() child.DrawContent()");
}

TEST_F(HostEvents, APaintWithoutAWindowDoesNothing)
{
    m_Control->SetSysWindow(nullptr);
    m_Root->Update(utElement);
    m_Log.Clear();

    m_Control->OnDraw(&m_Window.m_Painter);

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(HostEvents, NewSystemColoursAreToldFromTheLeavesUpThenTheSignalFires)
{
    auto const slot = Listen(m_Control->m_SigSysColorChanged, [&](CBaseControl* control) {
        EXPECT_EQ(control, m_Control.get());
        m_Log.Add("slot", "SigSysColorChanged");
    });
    CEvent event;

    m_Control->OnSysColorChanged(&event);

    EXPECT_EQ(m_Log.Take({"SysColorsChanged", "AttributeChanged", "SigSysColorChanged"}),
              "child.SysColorsChanged() child.AttributeChanged() root.SysColorsChanged() root.AttributeChanged() "
              "slot.SigSysColorChanged()");
}

TEST_F(HostEvents, TheSignalOfNewSystemColoursFiresEvenIfTheTreeCancels)
{
    int fired = 0;
    auto const slot = Listen(m_Control->m_SigSysColorChanged, [&](CBaseControl*) {
        ++fired;
        throw vexel::cancel_processing();
    });
    m_Child.m_OnHandler = [](char const*) { throw vexel::cancel_processing(); };
    CEvent event;

    EXPECT_NO_THROW(m_Control->OnSysColorChanged(&event));

    EXPECT_EQ(fired, 1);
    EXPECT_EQ(m_Log.Take({"SysColorsChanged"}), "child.SysColorsChanged()");
}

TEST_F(HostEvents, ACustomEventIsFreedAndNotToldToTheSubscribers)
{
    static int s_Living;
    class CCounted : public CCustomEvent
    {
    public:
        explicit CCounted(int id) : CCustomEvent(id) { ++s_Living; }
        ~CCounted() override { --s_Living; }
    };
    s_Living = 0;

    m_Control->OnCustomEvent(new CCounted(0));
    EXPECT_EQ(s_Living, 0);
    EXPECT_EQ(Host().GetFocusedElement(), &m_Child);
    EXPECT_EQ(m_Log.Take({"OnCustomEvent"}), "");

    m_Control->OnCustomEvent(new CCounted(99));
    EXPECT_EQ(s_Living, 0);

    m_Control->SetSysWindow(nullptr);
    m_Control->OnCustomEvent(new CCounted(1));
    EXPECT_EQ(s_Living, 0);
}

TEST_F(HostEvents, EventsThatTheControlLeavesAloneReachTheSubscribers)
{
    CWindowEvent window;
    CMouseEvent mouse(20, 5, 0, mbLeft);

    m_Control->OnMove(&window);
    m_Control->OnShow(&window);
    m_Control->OnHide(&window);
    m_Control->OnClick(&mouse);

    EXPECT_EQ(m_Log.Take(), "listener.OnMove() listener.OnShow() listener.OnHide() listener.OnClick()");
}

} // namespace
