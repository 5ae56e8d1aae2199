#include "vexel/platform/native_controls.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"
#include "vexel/platform/vexel_control.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <type_traits>

namespace vexel::test
{

namespace
{

using namespace vexelbase;

/// A window that is not shown anywhere and notes what it is asked.
class CPlainWindow : public ISysWindow
{
public:
    CPlainWindow() = default;
    explicit CPlainWindow(bool* deleted) : m_Deleted(deleted) {}
    ~CPlainWindow() override
    {
        if (m_Deleted)
            *m_Deleted = true;
    }

    void Post(IRunnable* runnable) override { delete runnable; }
    rectangle<int> GetRect() const override { return {0, 0, m_Size.width, m_Size.height}; }
    void InvalidateRect(int left, int top, int right, int bottom) override
    {
        m_Log += "invalidate " + std::to_string(left) + " " + std::to_string(top) + " " + std::to_string(right) + " " +
                 std::to_string(bottom) + "; ";
    }
    void UpdateNow() override { m_Log += "update; "; }
    void ScrollPixels(int, int, screen_rectangle<int> const&) override {}
    void LockDrawing(bool lock) override { m_Log += lock ? "lock; " : "unlock; "; }
    IPainter* GetPainter() override { return nullptr; }
    void SetFocus() override {}
    bool HasFocus() const override { return false; }
    void SetOption(bool) override {}
    void SetCursor(int) override {}
    void CaptureMouse() override {}
    void ReleaseMouse() override {}
    void TrackPointer() override {}
    void HideTooltip() override {}
    void ScreenToClient(point<int>* position) const override
    {
        position->x -= m_Origin.x;
        position->y -= m_Origin.y;
    }
    void ClientToScreen(point<int>* position) const override
    {
        position->x += m_Origin.x;
        position->y += m_Origin.y;
    }
    bool IsDestroying() const override { return m_Destroying; }
    void SetEventTarget(CVexelControl* target) override { m_Target = target; }
    CVexelControl* GetEventTarget() const override { return m_Target; }
    vexel_ptr<IScrollBar> CreateScrollBar(int) override { return {}; }
    vexel_ptr<IEdit> CreateEdit(bool) override { return {}; }
    vexel_ptr<IComboBox> CreateComboBox(bool) override { return {}; }
    vexel_ptr<IPopup> CreatePopup() override { return {}; }

    size<int> m_Size{100, 50};
    point<int> m_Origin;
    CVexelControl* m_Target = nullptr;
    bool m_Destroying = false;
    bool* m_Deleted = nullptr;
    std::string m_Log;
};

/// Notes which handler was called, and does what it is told then.
template <class Interface> class CListenerBase : public CSubscriber<Interface>
{
public:
    std::string m_Log;
    std::function<void()> m_Action;

protected:
    void Note(char const* handler, void const* event)
    {
        m_Log += std::string(handler) + (event ? " " : "(null) ");
        m_Event = event;
        if (m_Action)
            m_Action();
    }

public:
    void const* m_Event = nullptr;
};

#define NOTE(handler, type)                                                                                            \
    void handler(type* event) override { this->Note(#handler, event); }

class CDrawing : public CListenerBase<IDrawingNotify>
{
public:
    NOTE(OnDraw, IPainter)
};
class CMouse : public CListenerBase<IMouseNotify>
{
public:
    NOTE(OnButtonDown, CMouseEvent)
    NOTE(OnButtonUp, CMouseEvent)
    NOTE(OnMouseMove, CMouseEvent)
    NOTE(OnWheel, CMouseWheelEvent)
};
class CClick : public CListenerBase<IMouseClickNotify>
{
public:
    NOTE(OnClick, CMouseEvent)
    NOTE(OnDoubleClick, CMouseEvent)
};
class CHover : public CListenerBase<IMouseHoverNotify>
{
public:
    NOTE(OnHover, CMouseEvent)
    NOTE(OnLeave, CMouseEvent)
};
class CKeys : public CListenerBase<IKeyboardNotify>
{
public:
    NOTE(OnKeyDown, CKeyboardEvent)
    NOTE(OnKeyUp, CKeyboardEvent)
    NOTE(OnChar, CKeyboardEvent)
};
class CWindow : public CListenerBase<IWindowNotify>
{
public:
    NOTE(OnResize, CWindowEvent)
    NOTE(OnMove, CWindowEvent)
    NOTE(OnDestroy, CWindowEvent)
    NOTE(OnShow, CWindowEvent)
    NOTE(OnHide, CWindowEvent)
};
class CFocus : public CListenerBase<IFocusNotify>
{
public:
    NOTE(OnGetFocus, CFocusEvent)
    NOTE(OnLostFocus, CFocusEvent)
};
class CMenu : public CListenerBase<IContextMenuNotify>
{
public:
    NOTE(OnContextMenu, CContextMenuEvent)
};
class CTooltip : public CListenerBase<ITooltipNotify>
{
public:
    NOTE(OnTooltip, CTooltipEvent)
    NOTE(OnTooltipTrack, CTooltipEvent)
};
class CScroll : public CListenerBase<IScrollNotify>
{
public:
    NOTE(OnHorzScroll, CScrollEvent)
    NOTE(OnVertScroll, CScrollEvent)
};
class CCustom : public CListenerBase<ICustomEventNotify>
{
public:
    NOTE(OnCustomEvent, CCustomEvent)
};
class CSystem : public CListenerBase<ISystemNotify>
{
public:
    NOTE(OnSysColorChanged, CEvent)
};

/// Sends an event to each given operation of a control and tells what the listener of the interface heard.
template <class Listener, class Interface, class Event> std::string Heard(void (CVexelControl::*operation)(Event*))
{
    CVexelControl control(nullptr, false);
    Listener listener;
    EXPECT_TRUE(control.Subscribe(&listener, typeid(Interface), true));
    std::remove_const_t<Event> event;
    (control.*operation)(&event);
    EXPECT_EQ(listener.m_Event, &event);
    return listener.m_Log;
}

class CCountedCustomEvent : public CCustomEvent
{
public:
    explicit CCountedCustomEvent(int* count) : CCustomEvent(0), m_Count(count) { ++*m_Count; }
    ~CCountedCustomEvent() override { --*m_Count; }

private:
    int* m_Count;
};

}  // namespace

// Events --------------------------------------------------------------------------------------------------------------

TEST(VexelControl, EachNativeEventReachesTheSubscribersOfItsInterface)
{
    EXPECT_EQ((Heard<CMouse, IMouseNotify>(&CVexelControl::OnButtonDown)), "OnButtonDown ");
    EXPECT_EQ((Heard<CMouse, IMouseNotify>(&CVexelControl::OnButtonUp)), "OnButtonUp ");
    EXPECT_EQ((Heard<CMouse, IMouseNotify>(&CVexelControl::OnMouseMove)), "OnMouseMove ");
    EXPECT_EQ((Heard<CMouse, IMouseNotify>(&CVexelControl::OnWheel)), "OnWheel ");
    EXPECT_EQ((Heard<CClick, IMouseClickNotify>(&CVexelControl::OnClick)), "OnClick ");
    EXPECT_EQ((Heard<CClick, IMouseClickNotify>(&CVexelControl::OnDoubleClick)), "OnDoubleClick ");
    EXPECT_EQ((Heard<CHover, IMouseHoverNotify>(&CVexelControl::OnHover)), "OnHover ");
    EXPECT_EQ((Heard<CHover, IMouseHoverNotify>(&CVexelControl::OnLeave)), "OnLeave ");
    EXPECT_EQ((Heard<CWindow, IWindowNotify>(&CVexelControl::OnResize)), "OnResize ");
    EXPECT_EQ((Heard<CWindow, IWindowNotify>(&CVexelControl::OnMove)), "OnMove ");
    EXPECT_EQ((Heard<CWindow, IWindowNotify>(&CVexelControl::OnDestroy)), "OnDestroy ");
    EXPECT_EQ((Heard<CWindow, IWindowNotify>(&CVexelControl::OnShow)), "OnShow ");
    EXPECT_EQ((Heard<CWindow, IWindowNotify>(&CVexelControl::OnHide)), "OnHide ");
    EXPECT_EQ((Heard<CFocus, IFocusNotify>(&CVexelControl::OnGetFocus)), "OnGetFocus ");
    EXPECT_EQ((Heard<CFocus, IFocusNotify>(&CVexelControl::OnLostFocus)), "OnLostFocus ");
    EXPECT_EQ((Heard<CMenu, IContextMenuNotify>(&CVexelControl::OnContextMenu)), "OnContextMenu ");
    EXPECT_EQ((Heard<CTooltip, ITooltipNotify>(&CVexelControl::OnTooltip)), "OnTooltip ");
    EXPECT_EQ((Heard<CTooltip, ITooltipNotify>(&CVexelControl::OnTooltipTrack)), "OnTooltipTrack ");
    EXPECT_EQ((Heard<CScroll, IScrollNotify>(&CVexelControl::OnHorzScroll)), "OnHorzScroll ");
    EXPECT_EQ((Heard<CScroll, IScrollNotify>(&CVexelControl::OnVertScroll)), "OnVertScroll ");
    EXPECT_EQ((Heard<CSystem, ISystemNotify>(&CVexelControl::OnSysColorChanged)), "OnSysColorChanged ");
}

TEST(VexelControl, KeysReachTheSubscribersOfTheKeyboard)
{
    CVexelControl control(nullptr, false);
    CKeys keys;
    control.Subscribe(&keys, typeid(IKeyboardNotify), true);
    CKeyboardEvent event(0, vkReturn);
    control.OnKeyDown(&event);
    control.OnChar(&event);
    control.OnKeyUp(&event);
    EXPECT_EQ(keys.m_Log, "OnKeyDown OnChar OnKeyUp ");
    EXPECT_EQ(keys.m_Event, &event);
}

TEST(VexelControl, ThePainterReachesAllSubscribersOfDrawing)
{
    CVexelControl control(nullptr, false);
    CDrawing first;
    CDrawing second;
    control.Subscribe(&first, typeid(IDrawingNotify), true);
    control.Subscribe(&second, typeid(IDrawingNotify), true);
    auto* const painter = reinterpret_cast<IPainter*>(&first);  // only handed on
    control.OnDraw(painter);
    EXPECT_EQ(first.m_Event, painter);
    EXPECT_EQ(second.m_Event, painter);
    control.OnDraw(nullptr);
    EXPECT_EQ(second.m_Log, "OnDraw OnDraw(null) ");
}

TEST(VexelControl, AllTwelveInterfacesAreSupportedAndNoOther)
{
    CVexelControl control(nullptr, false);
    for (std::type_info const* type :
         {&typeid(IDrawingNotify), &typeid(IMouseNotify), &typeid(IMouseClickNotify), &typeid(IMouseHoverNotify),
          &typeid(IKeyboardNotify), &typeid(IWindowNotify), &typeid(IFocusNotify), &typeid(IContextMenuNotify),
          &typeid(ITooltipNotify), &typeid(IScrollNotify), &typeid(ICustomEventNotify), &typeid(ISystemNotify)})
        EXPECT_TRUE(control.IsEventSupported(*type)) << type->name();
    EXPECT_FALSE(control.IsEventSupported(typeid(ITimerNotify)));
    EXPECT_FALSE(control.IsEventSupported(typeid(IEditNotify)));
}

TEST(VexelControl, AnEventThatWasDealtWithGoesNoFurther)
{
    CVexelControl control(nullptr, false);
    CMouse first;
    CMouse second;
    control.Subscribe(&first, typeid(IMouseNotify), true);
    control.Subscribe(&second, typeid(IMouseNotify), true);
    CMouseEvent event(1, 2, ksLeft, mbLeft);
    first.m_Action = [&event] { event.SetContinue(false); };
    control.OnButtonDown(&event);
    EXPECT_EQ(first.m_Log, "OnButtonDown ");
    EXPECT_EQ(second.m_Log, "");
}

TEST(VexelControl, ACustomEventIsFreed)
{
    CVexelControl control(nullptr, false);
    CCustom listener;
    control.Subscribe(&listener, typeid(ICustomEventNotify), true);
    int count = 0;
    control.OnCustomEvent(new CCountedCustomEvent(&count));
    EXPECT_EQ(listener.m_Log, "OnCustomEvent ");
    EXPECT_EQ(count, 0);
    listener.m_Action = [] { throw 1; };
    EXPECT_THROW(control.OnCustomEvent(new CCountedCustomEvent(&count)), int);
    EXPECT_EQ(count, 0);
    listener.m_Action = nullptr;
    control.OnCustomEvent(nullptr);
}

TEST(VexelControl, ASubscriberMayDeleteTheControl)
{
    CPlainWindow window;
    auto control = std::make_unique<CVexelControl>(&window, false);
    CMouse first;
    CMouse second;
    control->Subscribe(&first, typeid(IMouseNotify), true);
    control->Subscribe(&second, typeid(IMouseNotify), true);
    first.m_Action = [&control] { control.reset(); };
    CMouseEvent event;
    control->OnButtonUp(&event);
    EXPECT_EQ(first.m_Log, "OnButtonUp ");
    EXPECT_EQ(second.m_Log, "");
    EXPECT_EQ(window.m_Target, nullptr);
}

TEST(VexelControl, ASubscriberMayDeleteTheControlWhoseWindowIsDestroyed)
{
    CPlainWindow window;
    auto control = std::make_unique<CVexelControl>(&window, false);
    CWindow listener;
    control->Subscribe(&listener, typeid(IWindowNotify), true);
    listener.m_Action = [&control] { control.reset(); };
    CWindowEvent event;
    control->OnDestroy(&event);
    EXPECT_EQ(listener.m_Log, "OnDestroy ");
    EXPECT_EQ(window.m_Target, nullptr);
}

TEST(VexelControl, ASubscriberMayDeleteTheControlWithACustomEventUnderWay)
{
    auto control = std::make_unique<CVexelControl>(nullptr, false);
    CCustom listener;
    control->Subscribe(&listener, typeid(ICustomEventNotify), true);
    listener.m_Action = [&control] { control.reset(); };
    int count = 0;
    control->OnCustomEvent(new CCountedCustomEvent(&count));
    EXPECT_EQ(count, 0);
}

// Window --------------------------------------------------------------------------------------------------------------

TEST(VexelControl, TakesTheEventsOfItsWindow)
{
    CPlainWindow first;
    CPlainWindow second;
    {
        CVexelControl control(&first, false);
        EXPECT_EQ(control.GetWindow(), &first);
        EXPECT_EQ(control.GetHandle(), &first);
        EXPECT_EQ(first.m_Target, &control);
        control.SetSysWindow(&second);
        EXPECT_EQ(first.m_Target, nullptr);
        EXPECT_EQ(second.m_Target, &control);
        control.SetSysWindow(nullptr);
        EXPECT_EQ(second.m_Target, nullptr);
        EXPECT_EQ(control.GetWindow(), nullptr);
        control.SetSysWindow(&first);
    }
    EXPECT_EQ(first.m_Target, nullptr);
}

TEST(VexelControl, LeavesAWindowAloneThatAnotherControlHasTaken)
{
    CPlainWindow window;
    CVexelControl other(nullptr, false);
    {
        CVexelControl control(&window, false);
        other.SetSysWindow(&window);
    }
    EXPECT_EQ(window.m_Target, &other);
}

TEST(VexelControl, AnOwnedWindowGoesWithTheControlOrForAnotherOne)
{
    bool first = false;
    bool second = false;
    {
        CVexelControl control(new CPlainWindow(&first), true);
        control.SetSysWindow(new CPlainWindow(&second));
        EXPECT_TRUE(first);
        EXPECT_FALSE(second);
    }
    EXPECT_TRUE(second);
}

TEST(VexelControl, AnOwnedWindowThatIsBeingDestroyedWaitsForTheControlsEnd)
{
    bool deleted = false;
    {
        auto* const window = new CPlainWindow(&deleted);
        CVexelControl control(window, true);
        window->m_Destroying = true;
        control.SetSysWindow(nullptr);
        EXPECT_EQ(control.GetWindow(), nullptr);
        EXPECT_FALSE(deleted);
    }
    EXPECT_TRUE(deleted);
}

TEST(VexelControl, RefreshingAndLockingGoToTheWindow)
{
    CPlainWindow window;
    CVexelControl control(&window, false);
    control.Invalidate();
    control.Refresh();
    control.InternalBeginUpdate();
    control.InternalEndUpdate();
    EXPECT_EQ(window.m_Log, "invalidate 0 0 100 50; update; lock; unlock; ");
    control.SetSysWindow(nullptr);
    control.Invalidate();
    control.Refresh();
    control.InternalBeginUpdate();
    control.InternalEndUpdate();
    EXPECT_TRUE(control.CanBeFocused());
}

// Popups --------------------------------------------------------------------------------------------------------------

namespace
{

class CPlainPopup : public IPopup
{
public:
    ISysWindow* GetWindow() override { return m_Window; }
    ISysWindow* GetOwner() override { return m_Owner; }
    void SetSize(int, int) override {}
    void Show(point<int> const& screen) override
    {
        m_Shown = true;
        m_Place = screen;
    }
    void Close(int) override {}
    bool IsVisible() const override { return m_Shown; }
    int GetCloseCode() const override { return 0; }

    ISysWindow* m_Window = nullptr;
    ISysWindow* m_Owner = nullptr;
    bool m_Shown = false;
    point<int> m_Place;
};

class CScreen : public ISystem
{
public:
    CScreen() : m_Former(SetCurrentSystem(this)) {}
    ~CScreen() override { SetCurrentSystem(m_Former); }

    IPointer* GetPointer() override { return nullptr; }
    IClipboard* GetClipboard() override { return nullptr; }
    ISysPalette* GetPalette() override { return nullptr; }
    font GetDefaultFont() override { return {}; }
    int GetSystemMetric(int) override { return 0; }
    double GetScale() override { return 1; }
    vexel_ptr<ISysTimer> CreateTimer(int, int) override { return {}; }
    vexel_ptr<IRasterPicture> CreateRasterPicture(size<int> const&) override { return {}; }
    vexel_ptr<IRasterPicture> CreateRasterPicture(XPMBuf const&) override { return {}; }
    vexel_ptr<IRunner> GetRunner() override { return {}; }
    vexel_ptr<ILock> CreateLock() override { return {}; }
    rectangle<int> GetWorkArea(point<int> const&) override { return m_Area; }

    rectangle<int> m_Area{0, 0, 1000, 500};

private:
    ISystem* m_Former;
};

class Popup : public testing::Test
{
protected:
    Popup()
    {
        owner.m_Origin = {300, 200};
        window.m_Size = {80, 60};
        popup = MakeRef<CPlainPopup>();
        popup->m_Window = &window;
        popup->m_Owner = &owner;
    }

    /// Where the popup is shown for a rectangle of the owner.
    point<int> PlaceFor(screen_rectangle<int> const& rect)
    {
        popup->m_Shown = false;
        PositionPopup(popup, rect);
        EXPECT_TRUE(popup->m_Shown);
        return popup->m_Place;
    }

    CScreen screen;
    CPlainWindow owner;
    CPlainWindow window;
    vexel_ptr<CPlainPopup> popup;
};

using Place = point<int>;

}  // namespace

TEST_F(Popup, IsShownBelowItsOwnersRectangle)
{
    EXPECT_EQ(PlaceFor({10, 20, 90, 44}), (Place{310, 244}));
    screen.m_Area = {};
    EXPECT_EQ(PlaceFor({10, 2000, 90, 2044}), (Place{310, 2244}));
}

TEST_F(Popup, IsShownAboveWhereThereIsNoRoomBelow)
{
    EXPECT_EQ(PlaceFor({10, 210, 90, 240}), (Place{310, 440}));  // 60 rows are left below
    EXPECT_EQ(PlaceFor({10, 211, 90, 241}), (Place{310, 351}));
    window.m_Size = {80, 600};
    EXPECT_EQ(PlaceFor({10, -150, 90, -100}), (Place{310, 100}));  // too high for both: there is more room below
}

TEST_F(Popup, IsMovedSidewaysIntoTheScreen)
{
    EXPECT_EQ(PlaceFor({650, 20, 690, 44}), (Place{920, 244}));
    EXPECT_EQ(PlaceFor({-350, 20, -300, 44}), (Place{0, 244}));
    window.m_Size = {2000, 60};
    EXPECT_EQ(PlaceFor({10, 20, 90, 44}), (Place{0, 244}));
}

TEST_F(Popup, WithoutAnOwnerItIsNotShown)
{
    popup->m_Owner = nullptr;
    PositionPopup(popup, {0, 0, 10, 10});
    EXPECT_FALSE(popup->m_Shown);
    PositionPopup(vexel_ptr<IPopup>(), {0, 0, 10, 10});
}

}  // namespace vexel::test
