// A control without a window, the end of the window, the end of the control.

#include "tests/support/host_bench.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control_imp.h"
#include "vexel/signals/cancel_processing.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

class HostLifetime : public testing::Test, protected CHostBench
{};

// Without a window ---------------------------------------------------------------------------------------------------------------

class HostWithoutWindow : public testing::Test
{
protected:
    HostWithoutWindow()
    {
        m_Control.SetContent(m_Root);
        m_Root->m_CopyEnabled = true;
        m_Log.Clear();
    }
    IControl& Host() { return *m_Control.GetControl(); }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CBaseControl m_Control{nullptr};
    CRecordingElement* m_Root = new CRecordingElement(m_Log, "root", nullptr, {0, 0}, alClient);
};

TEST_F(HostWithoutWindow, ATreeCanBeBuilt)
{
    auto* const child = new CRecordingElement(m_Log, "child", m_Root, {10, 10}, alLeft);

    EXPECT_EQ(m_Control.GetWindow(), nullptr);
    EXPECT_EQ(Host().GetWindow(), nullptr);
    EXPECT_EQ(child->GetControl(), &Host());
}

TEST_F(HostWithoutWindow, NothingWaitsForAPaint)
{
    m_Root->Update(utElement);
    m_Root->Update(utGlobal);
    m_Root->Update(utFull);
    m_Root->Update(utRemoved);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "");
}

TEST_F(HostWithoutWindow, ALayoutRequestIsLost)
{
    Host().ForceRearrange();
    ASSERT_FALSE(Host().IsRearrangeNeeded());

    m_Root->SetSize({5, 5}, false);

    EXPECT_FALSE(Host().IsRearrangeNeeded());
}

TEST_F(HostWithoutWindow, TheFirstLayoutGivesTheRootNoArea)
{
    m_Root->SetPos({0, 0, 10, 10}, false);
    m_Log.Clear();

    Host().ForceRearrange();

    EXPECT_EQ(m_Log.Take({"SetPos"}), "root.SetPos(0 0 0 0, true)");
}

TEST_F(HostWithoutWindow, RearrangeDoesNothing)
{
    m_Control.Rearrange();

    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_TRUE(Host().IsRearrangeNeeded());
}

TEST_F(HostWithoutWindow, TheDrawRectangleIsZero)
{
    EXPECT_TRUE(dynamic_cast<CBaseControlImp&>(Host()).GetRealDrawRect().IsZero());
}

TEST_F(HostWithoutWindow, ProcessResizeDoesNothing)
{
    CWindowEvent event;

    dynamic_cast<CBaseControlImp&>(Host()).ProcessResize(&event, true);

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(HostWithoutWindow, TheCaptureIsStored)
{
    m_Root->CaptureMouse();
    EXPECT_EQ(Host().GetCapture(), m_Root);

    m_Root->ReleaseMouse();
    EXPECT_EQ(Host().GetCapture(), nullptr);
}

TEST_F(HostWithoutWindow, NoEventReachesTheTree)
{
    CMouseEvent mouse(5, 5, 1, mbLeft);
    CMouseWheelEvent wheel(5, 5, 0, mbNone, 1);
    CKeyboardEvent key(0, 65, 'a');
    CTooltipEvent tooltip;
    CContextMenuEvent menu(5, 5);
    CFocusEvent focus;
    CWindowEvent window;
    CEvent colours;

    m_Control.OnButtonDown(&mouse);
    m_Control.OnButtonUp(&mouse);
    m_Control.OnMouseMove(&mouse);
    m_Control.OnDoubleClick(&mouse);
    m_Control.OnWheel(&wheel);
    m_Control.OnHover(&mouse);
    m_Control.OnLeave(&mouse);
    m_Control.OnKeyDown(&key);
    m_Control.OnKeyUp(&key);
    m_Control.OnChar(&key);
    m_Control.OnTooltip(&tooltip);
    m_Control.OnTooltipTrack(&tooltip);
    m_Control.OnContextMenu(&menu);
    m_Control.OnGetFocus(&focus);
    m_Control.OnLostFocus(&focus);
    m_Control.OnSysColorChanged(&colours);
    m_Control.OnResize(&window);
    m_Control.OnCustomEvent(new CCustomEvent(0));

    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_FALSE(Host().IsClicked());
}

TEST_F(HostWithoutWindow, NothingIsFocused)
{
    m_Root->SetCanHaveFocus(true);

    m_Root->SetFocus(true);

    EXPECT_EQ(Host().GetFocusedElement(), nullptr);
    EXPECT_EQ(m_Control.GetHelpId(nullptr), "");
    EXPECT_FALSE(m_Control.CopyToClipboard());
}

TEST_F(HostWithoutWindow, ALaterWindowIsLaidOutAndPainted)
{
    new CRecordingElement(m_Log, "child", m_Root, {10, 10}, alLeft);
    CRecordingWindow window(m_Log, 100, 50);

    m_Control.SetSysWindow(&window);
    m_Log.Clear();
    m_Control.OnDraw(&window.m_Painter);

    EXPECT_EQ(m_Log.Take({"DrawContent"}), "root.DrawContent() child.DrawContent()");
    EXPECT_EQ(m_Root->GetPos(), (rectangle<int>{0, 0, 99, 49}));
    m_Control.SetSysWindow(nullptr);
}

// The end of the window ------------------------------------------------------------------------------------------------------------

class CWindowListener : public CSubscriber<IWindowNotify>
{
public:
    explicit CWindowListener(CCallLog& log) : m_Log(log) {}

    void OnResize(CWindowEvent*) override {}
    void OnMove(CWindowEvent*) override {}
    void OnDestroy(CWindowEvent*) override { m_Log.Add("listener", "OnDestroy"); }
    void OnShow(CWindowEvent*) override {}
    void OnHide(CWindowEvent*) override {}

private:
    CCallLog& m_Log;
};

TEST_F(HostLifetime, TheEndOfTheWindowIsToldToSubscribersSignalTreeAndHostInThisOrder)
{
    auto* const child = new CRecordingElement(m_Log, "child", m_Root);
    new CRecordingElement(m_Log, "leaf", child);
    new CRecordingElement(m_Log, "second", m_Root);
    CWindowListener listener(m_Log);
    m_Control->Subscribe(&listener, typeid(IWindowNotify), true);
    auto const note = [&](CVisualElement* element) { m_Log.Add(m_Log.NameOf(element), "SigControlDestroy"); };
    auto const a = Listen(m_Root->m_SigControlDestroy, note);
    auto const b = Listen(child->m_SigControlDestroy, note);
    auto const c = Listen(m_Control->m_SigDestroyed, [&](CBaseControl* control) {
        EXPECT_EQ(control, m_Control.get());
        m_Log.Add("control", "SigDestroyed");
    });
    auto const d = Listen(Host().m_SigWindowDestroyed, [&] { m_Log.Add("host", "SigWindowDestroyed"); });
    m_Log.Clear();
    CWindowEvent event;

    m_Control->OnDestroy(&event);

    EXPECT_EQ(
        m_Log.Take({"OnDestroy", "SigDestroyed", "SigControlDestroy", "HandleControlDestroy", "SigWindowDestroyed"}),
        "listener.OnDestroy() control.SigDestroyed() "
        "root.SigControlDestroy() root.HandleControlDestroy() "
        "child.SigControlDestroy() child.HandleControlDestroy() leaf.HandleControlDestroy() "
        "second.HandleControlDestroy() host.SigWindowDestroyed()");
}

TEST_F(HostLifetime, TheTreeLivesOnAfterTheEndOfTheWindow)
{
    auto* const child = new CRecordingElement(m_Log, "child", m_Root, {10, 10}, alLeft);
    bool destroyed = false;
    auto const slot = Listen(child->m_SigDestroy, [&](CVisualElement*) { destroyed = true; });
    Paint();
    CWindowEvent event;

    m_Control->OnDestroy(&event);
    m_Control->SetSysWindow(nullptr);

    EXPECT_FALSE(destroyed);
    EXPECT_EQ(child->GetControl(), &Host());
    EXPECT_EQ(m_Control->GetContent(), m_Root);
    child->Update(utElement);
    child->SetSize({20, 20}, false);
    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);

    m_Control.reset();
    EXPECT_TRUE(destroyed);
}

TEST_F(HostLifetime, TheEndOfTheWindowHasNoGuard)
{
    m_Root->m_OnHandler = [](char const*) { throw vexel::cancel_processing(); };
    CWindowEvent event;

    EXPECT_THROW(m_Control->OnDestroy(&event), vexel::cancel_processing);
}

// The end of the control -----------------------------------------------------------------------------------------------------------

TEST_F(HostLifetime, TheRootAndAllBelowItDieWithTheControl)
{
    auto* const child = new CRecordingElement(m_Log, "child", m_Root);
    auto const note = [&](CVisualElement* element) { m_Log.Add(m_Log.NameOf(element), "SigDestroy"); };
    auto const a = Listen(m_Root->m_SigDestroy, note);
    auto const b = Listen(child->m_SigDestroy, note);
    m_Log.Clear();

    m_Control.reset();

    EXPECT_EQ(m_Log.Take({"SigDestroy"}), "root.SigDestroy() child.SigDestroy()");
}

TEST_F(HostLifetime, ARootByValueSurvivesTheControlWithoutAHost)
{
    CRecordingElement byValue(m_Log, "byValue", nullptr, {0, 0}, alClient);
    CRecordingElement child(m_Log, "child", &byValue);
    m_Control->SetContent(&byValue);

    m_Control.reset();

    EXPECT_EQ(byValue.GetControl(), nullptr);
    EXPECT_EQ(child.GetControl(), nullptr);
    EXPECT_EQ(child.GetParent(), &byValue);
    child.Update(utElement);
}

TEST_F(HostLifetime, AChildByValueSurvivesTheControl)
{
    CRecordingElement child(m_Log, "child", m_Root);

    m_Control.reset();

    EXPECT_EQ(child.GetParent(), nullptr);
    EXPECT_EQ(child.GetControl(), nullptr);
}

TEST_F(HostLifetime, ARootByValueThatDiesFirstLeavesAControlWithoutARoot)
{
    {
        CRecordingElement byValue(m_Log, "byValue", nullptr, {0, 0}, alClient);
        m_Control->SetContent(&byValue);
        Paint();
    }
    EXPECT_EQ(m_Control->GetContent(), nullptr);
    CMouseEvent mouse(5, 5, 1, mbLeft);
    m_Control->OnButtonDown(&mouse);
    m_Control->Rearrange();
    EXPECT_EQ(Paint(), "");
}

TEST_F(HostLifetime, TheControlForgetsItsWindowsEventsWhenItDies)
{
    m_Control.reset();

    EXPECT_EQ(m_Window.GetEventTarget(), nullptr);
}

TEST_F(HostLifetime, AControlMayBeDeletedByASlotOfItsTree)
{
    Paint();
    auto const slot =
        Listen(m_Root->m_SigButtonDown, [&](CVisualElement*, int, int, int, MouseButton) { m_Control.reset(); });
    CMouseEvent press(5, 5, 1, mbLeft);
    CBaseControl* const control = m_Control.get();

    control->OnButtonDown(&press);

    EXPECT_EQ(m_Control, nullptr);
    EXPECT_EQ(m_Log.Take({"HandleButtonDown"}), "");
}

TEST_F(HostLifetime, EventsDuringTheEndOfTheControlReachNobody)
{
    auto const slot = Listen(m_Root->m_SigDestroy, [&](CVisualElement*) {
        CVexelControl* const control = m_Window.GetEventTarget();
        if (!control)
            return;
        CFocusEvent focus;
        CWindowEvent window;
        CMouseEvent mouse(5, 5, 0, mbNone);
        CKeyboardEvent key(0, 65);
        control->OnLostFocus(&focus);
        control->OnResize(&window);
        control->OnMouseMove(&mouse);
        control->OnKeyDown(&key);
        control->OnDraw(&m_Window.m_Painter);
    });
    Paint();
    m_Log.Clear();

    m_Control.reset();

    EXPECT_EQ(m_Log.Take({"HandleMouseMove", "HandleKeyDown", "HandleControlChangeFocus", "SetPos", "DrawContent"}),
              "");
}

// The end of the root ---------------------------------------------------------------------------------------------------------------

TEST_F(HostLifetime, ADyingRootMayTakeItsControlAlong)
{
    auto* const root = new CRecordingElement(m_Log, "last", nullptr, {0, 0}, alClient);
    auto* const child = new CRecordingElement(m_Log, "child", root);
    // Connected before the control is, so that the control still has its root.
    auto const slot = Listen(root->m_SigDestroy, [&](CVisualElement*) { m_Control.reset(); });
    int deaths = 0;
    auto const count = Listen(child->m_SigDestroy, [&](CVisualElement*) { ++deaths; });
    m_Control->SetContent(root);

    delete root;

    EXPECT_EQ(m_Control, nullptr);
    EXPECT_EQ(deaths, 1);
}

TEST_F(HostLifetime, ADyingRootMayBringTheNextOne)
{
    auto* const root = new CRecordingElement(m_Log, "first", nullptr, {0, 0}, alClient);
    auto* const next = new CRecordingElement(m_Log, "next", nullptr, {0, 0}, alClient);
    auto const slot = Listen(root->m_SigDestroy, [&](CVisualElement*) { m_Control->SetContent(next); });
    m_Control->SetContent(root);

    delete root;

    EXPECT_EQ(m_Control->GetContent(), next);
    EXPECT_EQ(next->GetControl(), &Host());
    EXPECT_EQ(Paint(), "next.DrawContent()");
}

TEST_F(HostLifetime, ARootThatIsBroughtWhileTheOldOneDiesGivesWayToTheOneThatWasAskedFor)
{
    CRecordingElement meanwhile(m_Log, "meanwhile", nullptr, {0, 0}, alClient);
    auto* const wanted = new CRecordingElement(m_Log, "wanted", nullptr, {0, 0}, alClient);
    auto const slot = Listen(m_Root->m_SigDestroy, [&](CVisualElement*) { m_Control->SetContent(&meanwhile); });

    m_Control->SetContent(wanted);

    EXPECT_EQ(m_Control->GetContent(), wanted);
    EXPECT_EQ(meanwhile.GetControl(), nullptr);
}

TEST_F(HostLifetime, ARootThatIsBroughtWhileTheOldOneDiesGivesWayToNoneToo)
{
    CRecordingElement meanwhile(m_Log, "meanwhile", nullptr, {0, 0}, alClient);
    auto const slot = Listen(m_Root->m_SigDestroy, [&](CVisualElement*) { m_Control->SetContent(&meanwhile); });

    m_Control->SetContent(nullptr);

    EXPECT_EQ(m_Control->GetContent(), nullptr);
    EXPECT_EQ(meanwhile.GetControl(), nullptr);
}

TEST_F(HostLifetime, TheWantedRootMayBeBroughtWhileTheOldOneDies)
{
    auto* const wanted = new CRecordingElement(m_Log, "wanted", nullptr, {0, 0}, alClient);
    auto const slot = Listen(m_Root->m_SigDestroy, [&](CVisualElement*) { m_Control->SetContent(wanted); });
    m_Log.Clear();

    m_Control->SetContent(wanted);

    EXPECT_EQ(m_Control->GetContent(), wanted);
    EXPECT_EQ(m_Log.Take({"AfterSetControl"}), "wanted.AfterSetControl()");
}

// Deletes the control that it is given to.
class CRefusingRoot : public CVisualElement
{
public:
    explicit CRefusingRoot(std::unique_ptr<CBaseControl>& control)
        : CVisualElement(nullptr, {0, 0}, alClient), m_ControlToDelete(control)
    {}
    void ProcessSetControl(IControl*) override { m_ControlToDelete.reset(); }

private:
    std::unique_ptr<CBaseControl>& m_ControlToDelete;
};

TEST_F(HostLifetime, ARootByValueMayDeleteTheControlThatItIsGivenTo)
{
    CRefusingRoot root(m_Control);
    CRecordingElement child(m_Log, "child", &root);

    m_Control->SetContent(&root);

    EXPECT_EQ(m_Control, nullptr);
    EXPECT_EQ(root.GetControl(), nullptr);
    EXPECT_EQ(child.GetControl(), nullptr);
}

TEST_F(HostLifetime, ADyingRootThatItsChildrenAskForSomethingLeavesNothingBehind)
{
    auto* const first = new CRecordingElement(m_Log, "first", m_Root, {10, 10}, alLeft);
    CRecordingElement second(m_Log, "second", m_Root, {10, 10}, alLeft);
    m_Root->SetCanHaveFocus(true);
    Paint();
    CRecordingElement* const root = m_Root;
    auto const slot = Listen(first->m_SigDestroy, [&](CVisualElement*) {
        root->Update(utElement);
        root->SetFocus(false);
        root->CaptureMouse();
        second.SetSize({20, 10}, false);
    });

    m_Control->SetContent(nullptr);

    EXPECT_EQ(Host().GetUpdatesLastPos(), 0);
    EXPECT_EQ(Host().GetFocusedElement(), nullptr);
    EXPECT_EQ(Host().GetCapture(), nullptr);
    EXPECT_FALSE(Host().IsRearrangeNeeded());
}

TEST_F(HostLifetime, WhereASlotThrowsWhileABranchLeavesNothingOfItIsRemembered)
{
    CRecordingElement branch(m_Log, "branch", m_Root);
    CRecordingElement child(m_Log, "child", &branch);
    branch.SetCanHaveFocus(true);
    branch.SetFocus(false);
    Host().SetMouseElement(&child);
    child.CaptureMouse();
    ASSERT_EQ(Host().GetFocusedElement(), &branch);
    branch.m_BeforeChange = [](CVisualElement*, UpdateType type) {
        if (type == utRemoved)
            throw vexel::cancel_processing();
        return true;
    };

    EXPECT_THROW(branch.ReParent(nullptr, false), vexel::cancel_processing);

    EXPECT_EQ(branch.GetControl(), nullptr);
    EXPECT_EQ(child.GetControl(), nullptr);
    EXPECT_EQ(Host().GetFocusedElement(), nullptr);
    EXPECT_EQ(Host().GetMouseElement(), nullptr);
    EXPECT_EQ(Host().GetCapture(), nullptr);
    branch.m_BeforeChange = nullptr;
}

TEST_F(HostLifetime, AnElementThatLeavesWhileThePointerComesToItIsNotUnderTheMouse)
{
    CRecordingElement from(m_Log, "from", m_Root);
    CRecordingElement to(m_Log, "to", m_Root);
    Host().SetMouseElement(&from);
    int hovers = 0;
    auto const leave = Listen(from.m_SigMouseLeave, [&](CVisualElement*) { to.ReParent(nullptr, false); });
    auto const hover = Listen(to.m_SigMouseHover, [&](CVisualElement*) { ++hovers; });

    Host().SetMouseElement(&to);

    EXPECT_EQ(Host().GetMouseElement(), nullptr);
    EXPECT_EQ(hovers, 0);
}

TEST_F(HostLifetime, AnElementThatDiesAfterTheWindowIsForgottenToo)
{
    auto* const child = new CRecordingElement(m_Log, "child", m_Root);
    child->SetCanHaveFocus(true);
    child->SetFocus(false);
    child->CaptureMouse();
    ASSERT_EQ(Host().GetFocusedElement(), child);
    m_Control->SetSysWindow(nullptr);

    delete child;

    EXPECT_EQ(Host().GetFocusedElement(), nullptr);
    EXPECT_EQ(Host().GetCapture(), nullptr);
}

TEST_F(HostLifetime, AnElementThatLeavesIsForgottenEvenIfItsBranchSwallowsTheChange)
{
    CRecordingElement branch(m_Log, "branch", m_Root);
    CRecordingElement child(m_Log, "child", &branch);
    child.SetCanHaveFocus(true);
    child.SetFocus(false);
    branch.CaptureMouse();
    ASSERT_EQ(Host().GetFocusedElement(), &child);
    branch.m_OnChange = [](CVisualElement** element) { *element = nullptr; };

    branch.ReParent(nullptr, false);

    EXPECT_EQ(Host().GetFocusedElement(), nullptr);
    EXPECT_EQ(Host().GetCapture(), nullptr);
}

TEST_F(HostLifetime, AnElementWhoseConstructionIsCancelledIsNoChild)
{
    m_Root->m_OnRearrange = [](CVisualElement**) { throw vexel::cancel_processing(); };

    EXPECT_THROW(delete new CVisualElement(m_Root, {10, 10}, alLeft), vexel::cancel_processing);

    m_Root->m_OnRearrange = nullptr;
    EXPECT_EQ(m_Root->GetChildren()->GetCount(), 0);
}

}  // namespace
