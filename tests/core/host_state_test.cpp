// A control as it comes, its content, its capture, its help.

#include "tests/support/host_bench.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control_imp.h"
#include "vexel/signals/cancel_processing.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

class HostState : public testing::Test, protected CHostBench
{};

// As it comes ----------------------------------------------------------------------------------------------------------------

TEST(FreshHost, SetsTheOptionOfItsWindowToFalseOnce)
{
    CScriptedSystem system;
    CCallLog log;
    CRecordingWindow window(log, 100, 50);

    CBaseControl control(&window);

    EXPECT_EQ(control.GetWindow(), &window);
    EXPECT_EQ(log.Take({"SetOption"}), "window.SetOption(false)");
}

TEST(FreshHost, HasAnEmptyContentOnTheHeapAsItsRoot)
{
    CScriptedSystem system;
    CCallLog log;
    CRecordingWindow window(log, 100, 50);
    CBaseControl control(&window);

    CVisualElement* const root = control.GetContent();
    ASSERT_NE(root, nullptr);
    EXPECT_NE(dynamic_cast<CContent*>(root), nullptr);
    EXPECT_TRUE(root->IsDynamic());
    EXPECT_EQ(root->GetParent(), nullptr);
    EXPECT_EQ(root->GetSize(), (size<int>{0, 0}));
    EXPECT_EQ(root->GetAlignment(), alClient);
    EXPECT_EQ(root->GetChildren()->GetCount(), 0);
    ASSERT_NE(root->GetControl(), nullptr);
    EXPECT_EQ(root->GetControl(), control.GetControl());
    EXPECT_EQ(root->GetControl()->GetWindow(), &window);
}

TEST(FreshHost, DoesNotRememberElementsThatAreNotItsOwn)
{
    CScriptedSystem system;
    CCallLog log;
    CRecordingWindow window(log, 100, 50);
    CRecordingWindow otherWindow(log, 100, 50);
    CBaseControl control(&window);
    IControl& host = *control.GetControl();
    {
        CBaseControl otherControl(&otherWindow);
        CVisualElement alone(nullptr, {10, 10}, alNone);
        for (CVisualElement* const foreign : {otherControl.GetContent(), &alone})
        {
            foreign->SetCanHaveFocus(true);
            host.SetCapture(foreign);
            host.SetFocusedElement(foreign, false);
            host.SetMouseElement(foreign);
            host.SetTabHandler(foreign);
            host.StartDragging(foreign, DragInfo());
            host.SetDragTarget(foreign);
        }
    }

    EXPECT_EQ(host.GetCapture(), nullptr);
    EXPECT_EQ(host.GetFocusedElement(), nullptr);
    EXPECT_EQ(host.GetFocussingElement(), nullptr);
    EXPECT_EQ(host.GetMouseElement(), nullptr);
    EXPECT_EQ(host.GetDraggedElement(), nullptr);
    EXPECT_EQ(host.GetDragTarget(), nullptr);
}

TEST(FreshHost, PointsToNoElement)
{
    CScriptedSystem system;
    CCallLog log;
    CRecordingWindow window(log, 100, 50);
    CBaseControl control(&window);
    IControl& host = *control.GetControl();

    EXPECT_EQ(host.GetCapture(), nullptr);
    EXPECT_EQ(host.GetMouseElement(), nullptr);
    EXPECT_EQ(host.GetFocusedElement(), nullptr);
    EXPECT_EQ(host.GetFocussingElement(), nullptr);
    EXPECT_EQ(host.GetDraggedElement(), nullptr);
    EXPECT_EQ(host.GetDragTarget(), nullptr);
    EXPECT_EQ(control.GetMouseElement(), nullptr);
    EXPECT_EQ(control.GetFocusedElement(), nullptr);
    EXPECT_EQ(host.GetImageList(), nullptr);
}

TEST(FreshHost, NeedsALayoutAndIsNotClicked)
{
    CScriptedSystem system;
    CCallLog log;
    CRecordingWindow window(log, 100, 50);
    CBaseControl control(&window);
    IControl& host = *control.GetControl();

    EXPECT_TRUE(host.IsRearrangeNeeded());
    EXPECT_FALSE(host.IsClicked());
    EXPECT_FALSE(host.IsTabKeyProcessing());
    EXPECT_EQ(host.GetDragStartSensitivity(), (size<int>{2, 2}));
    EXPECT_FALSE(control.IsCopyShortcut());
}

TEST_F(HostState, TheDragStartSensitivityIsStored)
{
    Host().SetDragStartSensitivity({5, 7});

    EXPECT_EQ(Host().GetDragStartSensitivity(), (size<int>{5, 7}));
}

TEST_F(HostState, TheImageListIsThatOfTheControl)
{
    class CImages : public IImageList
    {
    public:
        int GetCount() const override { return 0; }
        size<int> GetSize(int) const override { return {}; }
        void Draw(IPainter*, int, double, double) override {}
        void DrawDisabled(IPainter*, int, double, double) override {}
    };
    CImages images;

    Host().SetImageList(&images);
    EXPECT_EQ(m_Control->GetImageList(), &images);
    EXPECT_EQ(Host().GetImageList(), &images);

    m_Control->SetImageList(nullptr);
    EXPECT_EQ(Host().GetImageList(), nullptr);
}

TEST_F(HostState, TheDrawRectangleIsTheWindowsWithTheLastPixelIncluded)
{
    auto* const imp = dynamic_cast<CBaseControlImp*>(&Host());
    ASSERT_NE(imp, nullptr);
    EXPECT_EQ(imp->GetRealDrawRect(), (rectangle<int>{0, 0, 99, 49}));

    m_Window.Resize(0, 0);
    EXPECT_EQ(imp->GetRealDrawRect(), (rectangle<int>{0, 0, -1, -1}));
}

// The content ------------------------------------------------------------------------------------------------------------------

TEST_F(HostState, ANewContentGetsTheControlAndTheOldOneIsDeleted)
{
    bool deleted = false;
    auto const slot = Listen(m_Root->m_SigDestroy, [&](CVisualElement*) { deleted = true; });
    auto* const next = new CRecordingElement(m_Log, "next", nullptr, {0, 0}, alClient);

    m_Control->SetContent(next);

    EXPECT_TRUE(deleted);
    EXPECT_EQ(m_Control->GetContent(), next);
    EXPECT_EQ(next->GetControl(), &Host());
    EXPECT_EQ(next->GetParent(), nullptr);
}

TEST_F(HostState, ANewContentGetsTheControlAfterTheOldOneIsGone)
{
    auto const slot = Listen(m_Root->m_SigDestroy, [&](CVisualElement*) { m_Log.Add("root", "SigDestroy"); });
    auto* const next = new CRecordingElement(m_Log, "next", nullptr, {0, 0}, alClient);
    m_Log.Clear();

    m_Control->SetContent(next);

    EXPECT_EQ(m_Log.Take({"SigDestroy", "ProcessSetControl", "AfterSetControl"}),
              "root.SigDestroy() next.ProcessSetControl(control) next.AfterSetControl()");
}

TEST_F(HostState, ANewContentLeavesItsParent)
{
    CVisualElement parent(nullptr, {0, 0}, alNone);
    auto* const next = new CRecordingElement(m_Log, "next", &parent, {0, 0}, alClient);

    m_Control->SetContent(next);

    EXPECT_EQ(next->GetParent(), nullptr);
    EXPECT_EQ(parent.GetChildren()->GetCount(), 0);
}

TEST_F(HostState, ANewContentTakesTheOldOnesFont)
{
    font value;
    value.size = 20;
    m_Root->SetFont(value);
    auto* const next = new CRecordingElement(m_Log, "next", nullptr, {0, 0}, alClient);
    m_Log.Clear();

    m_Control->SetContent(next);

    EXPECT_EQ(next->GetOwnFont(), value);
    EXPECT_EQ(m_Log.Take({"AttributeChanged"}), "next.AttributeChanged() next.AttributeChanged()");
}

TEST_F(HostState, ANewContentWithTheSameFontIsToldOnlyOfTheControl)
{
    auto* const next = new CRecordingElement(m_Log, "next", nullptr, {0, 0}, alClient);
    m_Log.Clear();

    m_Control->SetContent(next);

    EXPECT_EQ(m_Log.Take({"AttributeChanged"}), "next.AttributeChanged()");
}

TEST_F(HostState, AChildOfTheOldContentCanBecomeTheContent)
{
    auto* const child = new CRecordingElement(m_Log, "child", m_Root, {0, 0}, alClient);

    m_Control->SetContent(child);

    EXPECT_EQ(m_Control->GetContent(), child);
    EXPECT_EQ(child->GetParent(), nullptr);
    EXPECT_EQ(child->GetControl(), &Host());
}

TEST_F(HostState, TheContentOfAnotherControlIsGivenUpByThatOne)
{
    CBaseControl other(nullptr);

    other.SetContent(m_Root);

    EXPECT_EQ(other.GetContent(), m_Root);
    EXPECT_EQ(m_Root->GetControl(), other.GetControl());
    EXPECT_EQ(m_Control->GetContent(), nullptr);
}

TEST_F(HostState, AContentThatMovesIntoAnotherTreeIsGivenUp)
{
    CBaseControl other(nullptr);

    m_Root->ReParent(other.GetContent(), false);

    EXPECT_EQ(m_Control->GetContent(), nullptr);
    EXPECT_EQ(m_Root->GetControl(), other.GetControl());
}

TEST_F(HostState, AnOldContentByValueIsNotDeletedAndForgetsTheControl)
{
    CRecordingElement byValue(m_Log, "byValue", nullptr, {0, 0}, alClient);
    m_Control->SetContent(&byValue);

    m_Control->SetContent(new CRecordingElement(m_Log, "next", nullptr, {0, 0}, alClient));

    EXPECT_EQ(byValue.GetControl(), nullptr);
    EXPECT_EQ(byValue.GetAlignment(), alClient);
}

TEST_F(HostState, ANewContentIsPaintedInPlaceOfTheOldOne)
{
    Paint();
    auto* const next = new CRecordingElement(m_Log, "next", nullptr, {0, 0}, alClient);
    new CRecordingElement(m_Log, "child", next, {10, 10}, alTop);

    m_Control->SetContent(next);

    EXPECT_EQ(Paint(), "next.DrawContent() child.DrawContent()");
    EXPECT_EQ(next->GetPos(), (rectangle<int>{0, 0, 99, 49}));
}

TEST_F(HostState, ThePresentContentSetAgainStays)
{
    auto* const child = new CRecordingElement(m_Log, "child", m_Root);

    m_Control->SetContent(m_Root);

    EXPECT_EQ(m_Control->GetContent(), m_Root);
    EXPECT_EQ(m_Root->GetControl(), &Host());
    EXPECT_EQ(child->GetParent(), m_Root);
    EXPECT_EQ(Paint(), "root.DrawContent()");
}

TEST_F(HostState, WithoutAContentEventsLayoutsAndPaintsDoNothing)
{
    bool deleted = false;
    auto const slot = Listen(m_Root->m_SigDestroy, [&](CVisualElement*) { deleted = true; });

    m_Control->SetContent(nullptr);

    EXPECT_TRUE(deleted);
    EXPECT_EQ(m_Control->GetContent(), nullptr);
    CMouseEvent mouse(5, 5, 1, mbLeft);
    CMouseWheelEvent wheel(5, 5, 0, mbNone, 1);
    CKeyboardEvent key(0, 65, 'a');
    CKeyboardEvent tab(0, vkTab);
    CFocusEvent focus;
    CWindowEvent window;
    CContextMenuEvent menu(5, 5);
    CTooltipEvent tooltip;
    CEvent colours;
    m_Control->OnMouseMove(&mouse);
    m_Control->OnButtonDown(&mouse);
    m_Control->OnButtonUp(&mouse);
    m_Control->OnWheel(&wheel);
    m_Control->OnKeyDown(&key);
    m_Control->OnKeyDown(&tab);
    m_Control->OnChar(&key);
    m_Control->OnGetFocus(&focus);
    m_Control->OnLostFocus(&focus);
    m_Control->OnResize(&window);
    m_Control->OnContextMenu(&menu);
    m_Control->OnTooltip(&tooltip);
    m_Control->OnTooltipTrack(&tooltip);
    m_Control->OnSysColorChanged(&colours);
    m_Control->OnCustomEvent(new CCustomEvent(0));
    m_Control->OnCustomEvent(new CCustomEvent(1));
    m_Control->Rearrange();
    EXPECT_EQ(Paint(), "");
    EXPECT_EQ(Host().GetMouseElement(), nullptr);
    EXPECT_EQ(Host().GetFocusedElement(), nullptr);
}

TEST_F(HostState, AContentCanComeAfterThereWasNone)
{
    m_Control->SetContent(nullptr);
    auto* const next = new CRecordingElement(m_Log, "next", nullptr, {0, 0}, alClient);

    m_Control->SetContent(next);

    EXPECT_EQ(Paint(), "next.DrawContent()");
}

TEST_F(HostState, ScrollingPixelsGoesToTheWindow)
{
    m_Log.Clear();

    Host().ScrollContent(3, -4, {1, 2, 30, 40});

    EXPECT_EQ(m_Log.Take(), "window.ScrollPixels(3, -4, 1 2 30 40)");

    m_Control->SetSysWindow(nullptr);
    m_Log.Clear();
    Host().ScrollContent(3, -4, {1, 2, 30, 40});
    EXPECT_EQ(m_Log.Take(), "");
}

// The capture --------------------------------------------------------------------------------------------------------------------

TEST_F(HostState, CapturingTakesTheNativeCaptureAndReleasingGivesItUp)
{
    CRecordingElement child(m_Log, "child", m_Root);
    m_Log.Clear();

    child.CaptureMouse();
    EXPECT_EQ(Host().GetCapture(), &child);
    EXPECT_EQ(m_Log.Take(), "window.CaptureMouse()");

    child.ReleaseMouse();
    EXPECT_EQ(Host().GetCapture(), nullptr);
    EXPECT_EQ(m_Log.Take(), "window.ReleaseMouse()");
}

TEST_F(HostState, CapturingTwiceTakesTheNativeCaptureTwice)
{
    CRecordingElement child(m_Log, "child", m_Root);
    m_Log.Clear();

    Host().SetCapture(m_Root);
    Host().SetCapture(&child);

    EXPECT_EQ(Host().GetCapture(), &child);
    EXPECT_EQ(m_Log.Take(), "window.CaptureMouse() window.CaptureMouse()");
    Host().SetCapture(nullptr);
}

TEST_F(HostState, AnyElementMayReleaseTheCaptureOfAnother)
{
    CRecordingElement child(m_Log, "child", m_Root);
    m_Root->CaptureMouse();

    child.ReleaseMouse();

    EXPECT_EQ(Host().GetCapture(), nullptr);
}

// Help ---------------------------------------------------------------------------------------------------------------------------

TEST_F(HostState, TheHelpIdIsTheFirstOneGoingUp)
{
    CRecordingElement middle(m_Log, "middle", m_Root);
    CRecordingElement leaf(m_Log, "leaf", &middle);
    EXPECT_EQ(m_Control->GetHelpId(&leaf), "");

    m_Root->SetHelpId("root help");
    EXPECT_EQ(m_Control->GetHelpId(&leaf), "root help");

    middle.SetHelpId("middle help");
    EXPECT_EQ(m_Control->GetHelpId(&leaf), "middle help");
    EXPECT_EQ(m_Control->GetHelpId(m_Root), "root help");

    leaf.SetHelpId("leaf help");
    EXPECT_EQ(m_Control->GetHelpId(&leaf), "leaf help");
}

TEST_F(HostState, TheHelpIdOfNothingIsThatOfTheFocusedElement)
{
    CRecordingElement child(m_Log, "child", m_Root);
    child.SetCanHaveFocus(true);
    m_Root->SetHelpId("root help");
    EXPECT_EQ(m_Control->GetHelpId(nullptr), "");

    child.SetFocus(false);
    EXPECT_EQ(m_Control->GetHelpId(nullptr), "root help");

    child.SetHelpId("child help");
    EXPECT_EQ(m_Control->GetHelpId(nullptr), "child help");
}

TEST_F(HostState, ActivatingHelpFiresTheSignalWithTheControlAndTheId)
{
    std::string heard;
    auto const slot = Listen(m_Control->m_SigHelp, [&](CBaseControl* control, std::string const& id) {
        EXPECT_EQ(control, m_Control.get());
        heard += id + ";";
    });

    Host().ActivateHelp("chapter 3");
    EXPECT_EQ(heard, "chapter 3;");

    Host().ActivateHelp("");
    EXPECT_EQ(heard, "chapter 3;");
}

// Copying ------------------------------------------------------------------------------------------------------------------------

class HostCopy : public HostState
{
protected:
    HostCopy()
    {
        m_Leaf.SetCanHaveFocus(true);
        m_Leaf.SetFocus(false);
        for (CRecordingElement* element : {m_Root, &m_Middle, &m_Leaf})
        {
            element->m_CopyEnabled = true;
            element->m_CopyAnswer = false;
        }
        m_Log.Clear();
    }

    CRecordingElement m_Middle{m_Log, "middle", m_Root};
    CRecordingElement m_Leaf{m_Log, "leaf", &m_Middle};
};

TEST_F(HostCopy, TheFocusedElementAndItsAncestorsAreAskedRootFirst)
{
    EXPECT_FALSE(m_Control->CopyToClipboard());

    EXPECT_EQ(m_Log.Take(), "root.HandleCopyToClipboard() middle.HandleCopyToClipboard() leaf.HandleCopyToClipboard()");
}

TEST_F(HostCopy, TheFirstThatCopiesEndsIt)
{
    m_Middle.m_CopyAnswer = true;

    EXPECT_TRUE(m_Control->CopyToClipboard());

    EXPECT_EQ(m_Log.Take(), "root.HandleCopyToClipboard() middle.HandleCopyToClipboard()");
}

TEST_F(HostCopy, ElementsThatDoNotAllowItArePassedOver)
{
    m_Root->m_CopyEnabled = false;
    m_Middle.m_CopyEnabled = false;
    m_Leaf.m_CopyAnswer = true;

    EXPECT_TRUE(m_Control->CopyToClipboard());

    EXPECT_EQ(m_Log.Take(), "leaf.HandleCopyToClipboard()");
}

TEST_F(HostCopy, WithoutAFocusedElementNothingIsCopied)
{
    Host().SetFocusedElement(nullptr, false);
    m_Root->m_CopyAnswer = true;
    m_Log.Clear();

    EXPECT_FALSE(m_Control->CopyToClipboard());

    EXPECT_EQ(m_Log.Take({"HandleCopyToClipboard"}), "");
}

TEST_F(HostCopy, ASlotThatDeletesAnAskedElementDoesNoHarm)
{
    auto* const branch = new CRecordingElement(m_Log, "branch", m_Root);
    auto* const leaf = new CRecordingElement(m_Log, "deadLeaf", branch);
    leaf->SetCanHaveFocus(true);
    leaf->SetFocus(false);
    m_Root->m_CopyEnabled = false;
    auto const slot = Listen(m_Root->m_SigCopyToClipboard, [&](CVisualElement*, bool&) { delete branch; });

    try
    {
        EXPECT_FALSE(m_Control->CopyToClipboard());
    }
    catch (vexel::cancel_processing const&)
    {}

    EXPECT_EQ(Host().GetFocusedElement(), nullptr);
    EXPECT_EQ(m_Root->GetChildren()->GetCount(), 1);
}

// Ctrl+C -------------------------------------------------------------------------------------------------------------------------

TEST_F(HostCopy, TheShortcutIsAnOrdinaryKeyUntilItIsSwitchedOn)
{
    m_Leaf.m_CopyAnswer = true;
    CKeyboardEvent event(512, 67);

    m_Control->OnKeyDown(&event);

    EXPECT_EQ(m_Log.Take(), "leaf.HandleKeyDown(512, 67) middle.HandleKeyDown(512, 67) root.HandleKeyDown(512, 67)");
}

TEST_F(HostCopy, TheShortcutCopiesAndGoesNoFurther)
{
    m_Control->SetCopyShortcut(true);
    EXPECT_TRUE(m_Control->IsCopyShortcut());
    m_Leaf.m_CopyAnswer = true;
    CKeyboardEvent event(512, 67);

    m_Control->OnKeyDown(&event);

    EXPECT_EQ(m_Log.Take(), "root.HandleCopyToClipboard() middle.HandleCopyToClipboard() leaf.HandleCopyToClipboard()");
}

TEST_F(HostCopy, TheShortcutIsAnOrdinaryKeyWhenNothingCouldBeCopied)
{
    m_Control->SetCopyShortcut(true);
    CKeyboardEvent event(512, 67);

    m_Control->OnKeyDown(&event);

    EXPECT_EQ(m_Log.Take({"HandleKeyDown"}),
              "leaf.HandleKeyDown(512, 67) middle.HandleKeyDown(512, 67) root.HandleKeyDown(512, 67)");
}

TEST_F(HostCopy, OnlyControlAloneWithCIsTheShortcut)
{
    m_Control->SetCopyShortcut(true);
    m_Leaf.m_CopyAnswer = true;
    struct
    {
        int keys;
        int key;
    } const others[] = {{512, 88}, {0, 67}, {512 + 256, 67}, {512 + 1024, 67}, {512 + 1, 67}};
    for (auto const& other : others)
    {
        CKeyboardEvent event(other.keys, other.key);
        m_Control->OnKeyDown(&event);
        EXPECT_EQ(m_Log.Take({"HandleCopyToClipboard"}), "") << other.keys << " " << other.key;
    }
}

}  // namespace
