// Anything may be deleted in any slot or handler: the operation under way ends and leaves the rest of the tree whole.

#include "tests/support/host_bench.h"
#include "tests/support/slot.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

// root > (first, second > inner, third), painted; all are dynamic.
class LifetimeInSlots : public testing::Test, protected CHostBench
{
protected:
    LifetimeInSlots()
    {
        for (CRecordingElement** element : {&m_First, &m_Second, &m_Third})
            *element = new CRecordingElement(m_Log, "child", m_Root, {10, 10}, alLeft);
        m_Inner = new CRecordingElement(m_Log, "inner", m_Second, {10, 5}, alTop);
        Paint();
    }

    // Runs an operation that may be ended by the death of what it works on.
    template <class Operation> static void Run(Operation const& operation)
    {
        try
        {
            operation();
        }
        catch (vexel::cancel_processing const&)
        {
        }
    }

    // Deletes an element once, whatever calls it how often.
    auto Once(CRecordingElement*& element)
    {
        return [&element] { delete std::exchange(element, nullptr); };
    }

    int ChildCount() const { return m_Root->GetChildren()->GetCount(); }

    // The tree still works.
    void CheckTree(int children)
    {
        EXPECT_EQ(ChildCount(), children);
        m_Control->Rearrange();
        Paint();
        CMouseEvent press(1, 1, 1, mbLeft);
        m_Control->OnButtonDown(&press);
        CMouseEvent release(1, 1, 0, mbLeft);
        m_Control->OnButtonUp(&release);
    }

    CRecordingElement* m_First = nullptr;
    CRecordingElement* m_Second = nullptr;
    CRecordingElement* m_Third = nullptr;
    CRecordingElement* m_Inner = nullptr;
};

// The tree ---------------------------------------------------------------------------------------------------------------------

TEST_F(LifetimeInSlots, HidingAnElementMayDeleteIt)
{
    auto const slot = Listen(m_Second->m_SigVisible, [&](CVisualElement*, bool) { Once(m_Second)(); });

    Run([&] { m_Second->SetVisible(false); });

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, HidingAnElementMayDeleteItsParent)
{
    auto const slot = Listen(m_Inner->m_SigVisible, [&](CVisualElement*, bool) { Once(m_Second)(); });

    Run([&] { m_Inner->SetVisible(false); });

    CheckTree(2);
}

TEST_F(LifetimeInSlots, ALayoutMayDeleteTheElementThatIsLaidOut)
{
    auto const slot = Listen(m_Second->m_SigSize, [&](CVisualElement*) { Once(m_Second)(); });

    Run([&] { m_Control->Rearrange(); });

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, ALayoutMayDeleteTheParentOfWhatIsLaidOut)
{
    auto const slot = Listen(m_Inner->m_SigSize, [&](CVisualElement*) { Once(m_Second)(); });

    Run([&] { m_Control->Rearrange(); });

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, ALayoutMayDeleteTheNextElement)
{
    auto const slot = Listen(m_First->m_SigSize, [&](CVisualElement*) { Once(m_Second)(); });

    Run([&] { m_Control->Rearrange(); });

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, ALayoutMayDeleteItsClient)
{
    m_First->SetAlignment(alClient);
    auto const slot = Listen(m_Third->m_SigSize, [&](CVisualElement*) { Once(m_First)(); });

    Run([&] { m_Control->Rearrange(); });

    EXPECT_EQ(m_First, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, AWaitingLayoutMayDeleteItsOwnTarget)
{
    auto const slot = Listen(m_Second->m_SigSize, [&](CVisualElement*) { Once(m_Second)(); });
    m_Inner->SetSize({10, 9}, false);

    Run([&] { Host().ForceRearrange(); });

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, AParentMayDeleteTheChildWhoseChangePassesBy)
{
    m_Second->m_OnChange = [&](CVisualElement**) { Once(m_Inner)(); };

    Run([&] { m_Inner->Update(utElement); });

    EXPECT_EQ(m_Inner, nullptr);
    EXPECT_EQ(m_Second->GetChildren()->GetCount(), 0);
    CheckTree(3);
}

TEST_F(LifetimeInSlots, AnElementMayDieInItsOwnChange)
{
    m_Second->m_OnChange = [&](CVisualElement**) { Once(m_Second)(); };

    Run([&] { m_Inner->Update(utElement); });

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, AParentMayDeleteTheChildWhoseLayoutRequestPassesBy)
{
    m_Second->m_OnRearrange = [&](CVisualElement**) { Once(m_Inner)(); };

    Run([&] { m_Inner->SetSize({3, 3}, false); });

    EXPECT_EQ(m_Inner, nullptr);
    CheckTree(3);
}

TEST_F(LifetimeInSlots, AnElementMayDieInItsOwnLayoutRequest)
{
    m_Second->m_OnRearrange = [&](CVisualElement**) { Once(m_Second)(); };

    Run([&] { m_Inner->SetAlignment(alBottom); });

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, AMoveToAnotherParentMayDeleteTheElement)
{
    m_Second->m_OnRearrange = [&](CVisualElement**) { Once(m_Inner)(); };

    Run([&] { m_Inner->ReParent(m_Third, true); });

    EXPECT_EQ(m_Inner, nullptr);
    EXPECT_EQ(m_Third->GetChildren()->GetCount(), 0);
    CheckTree(3);
}

TEST_F(LifetimeInSlots, AMoveToAnotherParentMayDeleteTheNewParent)
{
    m_Second->m_OnRearrange = [&](CVisualElement**) { Once(m_Third)(); };

    Run([&] { m_Inner->ReParent(m_Third, true); });

    EXPECT_EQ(m_Third, nullptr);
    EXPECT_EQ(m_Inner->GetParent(), nullptr);  // it left the old parent and never reached the new one
    delete m_Inner;
    CheckTree(2);
}

TEST_F(LifetimeInSlots, AGlobalUpdateMayDeleteElements)
{
    m_First->m_OnUpdateElement = Once(m_Second);
    m_Third->m_OnUpdateElement = Once(m_Third);

    Run([&] { m_Root->Update(utGlobal); });

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(ChildCount());
    EXPECT_LE(ChildCount(), 2);
}

TEST_F(LifetimeInSlots, TheEndOfALayoutMayDeleteElements)
{
    m_First->m_OnRefreshPos = Once(m_First);

    Run([&] { m_Control->Rearrange(); });

    EXPECT_EQ(m_First, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, ScrollingMayDeleteElements)
{
    m_First->m_OnScrollContent = Once(m_Second);
    m_Third->m_OnScrollContent = Once(m_Third);

    Run([&] { m_Root->Scroll(1, 1, true); });

    EXPECT_EQ(m_Second, nullptr);
    EXPECT_EQ(m_Third, nullptr);
    CheckTree(1);
}

TEST_F(LifetimeInSlots, ReadingATreeMayDeleteWhatIsStillToBeRead)
{
    m_First->m_Text = "first";
    m_Third->m_Text = "third";
    auto const slot = Listen(m_First->m_SigAsString, [&](CVisualElement*, std::string&) { Once(m_Second)(); });
    std::string text;

    Run([&] { text = m_Root->AsString(); });

    EXPECT_EQ(text, "first\tthird");
    CheckTree(2);
}

TEST_F(LifetimeInSlots, ReadingAnElementMayDeleteIt)
{
    auto const slot = Listen(m_Second->m_SigAsString, [&](CVisualElement*, std::string&) { Once(m_Second)(); });

    Run([&] { m_Root->AsString(); });

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, CopyingAnElementMayDeleteIt)
{
    auto const slot = Listen(m_Second->m_SigCopyToClipboard, [&](CVisualElement*, bool& allowed) {
        allowed = true;
        Once(m_Second)();
    });

    Run([&] { EXPECT_FALSE(m_Second->CopyToClipboard()); });

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, TheDeathOfAChildMayDeleteItsParent)
{
    auto const slot = Listen(m_Inner->m_SigDestroy, [&](CVisualElement*) { Once(m_Second)(); });

    delete m_Inner;

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, TheDeathOfAParentMayDeleteItsSibling)
{
    auto const slot = Listen(m_Second->m_SigDestroy, [&](CVisualElement*) { Once(m_Third)(); });

    m_Root->GetChildren()->Clear();

    EXPECT_EQ(m_Third, nullptr);
    CheckTree(0);
}

// The host ---------------------------------------------------------------------------------------------------------------------

TEST_F(LifetimeInSlots, TheSystemColoursMayDeleteElements)
{
    m_First->m_OnHandler = [&](char const*) { Once(m_Second)(); };
    m_Third->m_OnHandler = [&](char const*) { Once(m_Third)(); };
    CEvent event;

    m_Control->OnSysColorChanged(&event);

    EXPECT_EQ(m_Second, nullptr);
    CheckTree(ChildCount());
    EXPECT_LE(ChildCount(), 2);
}

TEST_F(LifetimeInSlots, ThePaintMayDeleteAnElementThatIsStillToBePainted)
{
    auto const slot = Listen(m_First->m_SigDraw, [&](CVisualElement*, IPainter*) { Once(m_Second)(); });
    m_First->Update(utElement);
    m_Second->Update(utElement);
    m_Third->Update(utElement);
    m_Log.Clear();

    Run([&] { m_Control->OnDraw(&m_Window.m_Painter); });

    EXPECT_EQ(m_Second, nullptr);
    EXPECT_FALSE(m_Window.m_Painter.m_Painting);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, AFullPaintMayDeleteAnElementThatIsStillToBePainted)
{
    auto const slot = Listen(m_First->m_SigDraw, [&](CVisualElement*, IPainter*) { Once(m_Second)(); });
    m_First->Update(utFull);

    Run([&] { m_Control->OnDraw(&m_Window.m_Painter); });

    EXPECT_EQ(m_Second, nullptr);
    EXPECT_FALSE(m_Window.m_Painter.m_Painting);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, ThePaintMayDeleteTheElementBeingPainted)
{
    auto const slot = Listen(m_Second->m_SigDraw, [&](CVisualElement*, IPainter*) { Once(m_Second)(); });
    m_Second->Update(utFull);

    Run([&] { m_Control->OnDraw(&m_Window.m_Painter); });

    EXPECT_EQ(m_Second, nullptr);
    EXPECT_FALSE(m_Window.m_Painter.m_Painting);
    CheckTree(2);
}

TEST_F(LifetimeInSlots, TheEndOfTheWindowMayDeleteElements)
{
    m_First->m_OnHandler = [&](char const*) { Once(m_Second)(); };
    m_Third->m_OnHandler = [&](char const*) { Once(m_Third)(); };
    CWindowEvent event;

    Run([&] { m_Control->OnDestroy(&event); });

    EXPECT_EQ(m_Second, nullptr);
    EXPECT_LE(ChildCount(), 2);
}

TEST_F(LifetimeInSlots, ALayoutMayDeleteTheControl)
{
    CBaseControl* const control = m_Control.get();
    auto const slot = Listen(Host().m_SigBeforeRearrange, [&] { m_Control.reset(); });

    Run([&] { control->Rearrange(); });

    EXPECT_EQ(m_Control, nullptr);
    EXPECT_EQ(m_Window.GetEventTarget(), nullptr);
}

TEST_F(LifetimeInSlots, TheEndOfALayoutMayDeleteTheControl)
{
    CBaseControl* const control = m_Control.get();
    auto const slot = Listen(Host().m_SigAfterRearrange, [&] { m_Control.reset(); });
    m_Inner->SetSize({10, 9}, false);

    Run([&] { control->LockRearrange(false); });

    EXPECT_EQ(m_Control, nullptr);
}

TEST_F(LifetimeInSlots, AnElementsLayoutMayDeleteTheControl)
{
    CBaseControl* const control = m_Control.get();
    auto const slot = Listen(m_Second->m_SigSize, [&](CVisualElement*) { m_Control.reset(); });
    m_Window.Resize(200, 100);
    CWindowEvent event;

    control->OnResize(&event);
    if (m_Control)
        Run([&] { control->Rearrange(); });

    EXPECT_EQ(m_Control, nullptr);
}

TEST_F(LifetimeInSlots, APaintMayDeleteTheControl)
{
    CBaseControl* const control = m_Control.get();
    auto const slot = Listen(Host().m_SigAfterDraw, [&] { m_Control.reset(); });

    Run([&] { control->OnDraw(&m_Window.m_Painter); });

    EXPECT_EQ(m_Control, nullptr);
    EXPECT_FALSE(m_Window.m_Painter.m_Painting);
}

TEST_F(LifetimeInSlots, AnElementsPaintMayDeleteTheControl)
{
    CBaseControl* const control = m_Control.get();
    auto const slot = Listen(m_Second->m_SigDraw, [&](CVisualElement*, IPainter*) { m_Control.reset(); });
    m_Second->Update(utFull);

    Run([&] { control->OnDraw(&m_Window.m_Painter); });

    EXPECT_EQ(m_Control, nullptr);
}

TEST(LifetimeInPaint, TheWindowClosesTheBracketOfAControlThatDiedInItsPaint)
{
    test::CTestHost host(40, 20);
    auto* const element = new CVisualElement(host.Root(), {10, 10}, alLeft);
    host.Paint();
    auto const slot = Listen(element->m_SigDraw, [&](CVisualElement*, IPainter*) { host.DestroyControl(); });
    element->Update(utElement);

    host.Paint();

    EXPECT_FALSE(host.HasControl());
    EXPECT_FALSE(host.Window().GetPainter()->m_Painting);
}

TEST_F(LifetimeInSlots, TheEndOfTheWindowMayDeleteTheControl)
{
    CBaseControl* const control = m_Control.get();
    auto const slot = Listen(control->m_SigDestroyed, [&](CBaseControl*) { m_Control.reset(); });
    CWindowEvent event;

    Run([&] { control->OnDestroy(&event); });

    EXPECT_EQ(m_Control, nullptr);
}

TEST_F(LifetimeInSlots, TheFocusSignalsMayDeleteTheControl)
{
    CBaseControl* const control = m_Control.get();
    auto const slot = Listen(control->m_SigGetFocus, [&](CBaseControl*) { m_Control.reset(); });
    CFocusEvent event;

    control->OnGetFocus(&event);

    EXPECT_EQ(m_Control, nullptr);
}

TEST_F(LifetimeInSlots, HelpMayDeleteTheControl)
{
    auto const slot = Listen(m_Control->m_SigHelp, [&](CBaseControl*, std::string const&) { m_Control.reset(); });
    IControl& host = Host();

    host.ActivateHelp("chapter 3");

    EXPECT_EQ(m_Control, nullptr);
}

TEST_F(LifetimeInSlots, AKeyMayDeleteTheControl)
{
    CBaseControl* const control = m_Control.get();
    auto const slot = Listen(m_Root->m_SigKeyDown, [&](CVisualElement*, int, int) { m_Control.reset(); });
    CKeyboardEvent event(0, 65);

    control->OnKeyDown(&event);

    EXPECT_EQ(m_Control, nullptr);
}

TEST_F(LifetimeInSlots, APressMayBringAnotherContent)
{
    auto* const next = new CRecordingElement(m_Log, "next", nullptr, {0, 0}, alClient);
    auto const slot = Listen(m_Root->m_SigButtonDown,
                             [&](CVisualElement*, int, int, int, MouseButton) { m_Control->SetContent(next); });
    CMouseEvent press(90, 40, 1, mbLeft);

    m_Control->OnButtonDown(&press);

    EXPECT_EQ(m_Control->GetContent(), next);
    EXPECT_EQ(Host().GetMouseElement(), nullptr);
    m_Root = next;
    CheckTree(0);
}

TEST_F(LifetimeInSlots, ALayoutMayBringAnotherContent)
{
    auto* next = new CRecordingElement(m_Log, "next", nullptr, {0, 0}, alClient);
    auto* const made = next;
    auto const slot = Listen(m_Second->m_SigSize, [&](CVisualElement*) {
        if (next)
            m_Control->SetContent(std::exchange(next, nullptr));
    });

    Run([&] { m_Control->Rearrange(); });

    ASSERT_EQ(m_Control->GetContent(), made);
    m_Root = made;
    CheckTree(0);
}

} // namespace
