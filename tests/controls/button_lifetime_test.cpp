// What dies in the slots of a button's signals: the button, its parent, the control. The events that are under way end,
// those that follow find what is left.

#include "tests/support/slot.h"
#include "vexel/controls/arrow_button.h"
#include "vexel/controls/button_set.h"
#include "vexel/controls/picture_button.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using namespace vexel;
using namespace vexel::test;

namespace
{

using Deed = std::function<void()>;
using Slot = std::shared_ptr<void>;

/// Does the deed each time the signal fires, whatever its arguments are.
template <class... A> Slot On(signal_t<A...>& signal, Deed const& deed)
{
    return ListenToAny(signal, deed);
}

struct SSignal
{
    char const* name;
    std::function<Slot(CButton&, Deed const&)> connect;
};

std::vector<SSignal> const& GetSignals()
{
    static std::vector<SSignal> const signals = {
        {"clicked", [](CButton& b, Deed const& d) { return On(b.m_Clicked, d); }},
        {"button down", [](CButton& b, Deed const& d) { return On(b.m_SigButtonDown, d); }},
        {"button up", [](CButton& b, Deed const& d) { return On(b.m_SigButtonUp, d); }},
        {"click", [](CButton& b, Deed const& d) { return On(b.m_SigClick, d); }},
        {"double click", [](CButton& b, Deed const& d) { return On(b.m_SigDoubleClick, d); }},
        {"mouse move", [](CButton& b, Deed const& d) { return On(b.m_SigMouseMove, d); }},
        {"mouse hover", [](CButton& b, Deed const& d) { return On(b.m_SigMouseHover, d); }},
        {"mouse leave", [](CButton& b, Deed const& d) { return On(b.m_SigMouseLeave, d); }},
        {"wheel", [](CButton& b, Deed const& d) { return On(b.m_SigWheel, d); }},
        {"key down", [](CButton& b, Deed const& d) { return On(b.m_SigKeyDown, d); }},
        {"key up", [](CButton& b, Deed const& d) { return On(b.m_SigKeyUp, d); }},
        {"char", [](CButton& b, Deed const& d) { return On(b.m_SigChar, d); }},
        {"get focus", [](CButton& b, Deed const& d) { return On(b.m_SigGetFocus, d); }},
        {"lost focus", [](CButton& b, Deed const& d) { return On(b.m_SigLostFocus, d); }},
        {"tooltip", [](CButton& b, Deed const& d) { return On(b.m_SigTooltip, d); }},
        {"context menu", [](CButton& b, Deed const& d) { return On(b.m_SigContextMenu, d); }},
        {"draw", [](CButton& b, Deed const& d) { return On(b.m_SigDraw, d); }},
        {"size", [](CButton& b, Deed const& d) { return On(b.m_SigSize, d); }},
        {"visible", [](CButton& b, Deed const& d) { return On(b.m_SigVisible, d); }},
    };
    return signals;
}

enum class Victim
{
    Button,
    Parent,
    Control
};
constexpr Victim g_Victims[] = {Victim::Button, Victim::Parent, Victim::Control};

// A button that repeats, at (0, 0, 99, 40), on a pane of 100 x 60; another button below.
class CScene
{
public:
    using Make = std::function<CButton*(CVisualElement*)>;

    explicit CScene(Make const& make)
    {
        m_Pane = new CVisualElement(m_Host.Root(), {0, 60}, alTop);
        m_Button = make(m_Pane);
        m_Button->SetAutoRepeat(true);
        new CButton(m_Host.Root(), {0, 20}, alTop);
        m_Death = Listen(m_Button->m_SigDestroy, [this](CVisualElement*) { m_Dead = true; });
        m_Host.Paint();
    }
    void Kill(Victim victim)
    {
        if (m_Dead)
            return;
        if (victim == Victim::Button)
            delete m_Button;
        else if (victim == Victim::Parent)
            delete m_Pane;
        else
            m_Host.DestroyControl();
    }
    /// All that can happen to a button, by mouse positions and keys alone.
    void Play()
    {
        m_Host.Focus();
        m_Host.Mouse().Move(50, 20);
        m_Host.Mouse().Move(52, 22);
        m_Host.Tooltip(52, 22);
        m_Host.Mouse().Press();
        m_Host.Clock().Advance(450);
        m_Host.Mouse().Release();
        m_Host.Mouse().DoubleClick();
        m_Host.Mouse().Wheel(1);
        m_Host.ContextMenu(52, 22);
        for (int const key : {int(vkSpace), int(vkReturn), int('A')})
            m_Host.Keyboard().Press(key);
        m_Host.Mouse().Press();
        m_Host.Mouse().Move(50, 95);
        m_Host.Mouse().Release();
        m_Host.Keyboard().Tab();
        if (!m_Dead)
            m_Button->SetVisible(false);
        m_Host.Resize(120, 100);
        m_Host.Paint();
        if (!m_Dead)
            m_Button->SetVisible(true);
        m_Host.FullPaint();
        m_Host.Clock().Advance(1000);
    }

    CTestHost m_Host{100, 100};
    CVisualElement* m_Pane = nullptr;
    CButton* m_Button = nullptr;
    bool m_Dead = false;

private:
    Slot m_Death;
};

template <class Button> CButton* MakeButton(CVisualElement* parent)
{
    return new Button(parent, {0, 40}, alTop);
}

CButton* MakePictureButton(CVisualElement* parent)
{
    static char const* lines[] = {"8 4 1 1", "b c #0000FF", "bbbbbbbb", "bbbbbbbb", "bbbbbbbb", "bbbbbbbb"};
    auto* const button = new CPictureButton(parent, {0, 40}, alTop);
    button->SetNormalImage(XPMImage(XPMBuf(lines, true)));
    button->SetAutoSize(false);
    button->SetHeight(40, false);
    return button;
}

void KillInEachSignal(CScene::Make const& make)
{
    for (SSignal const& signal : GetSignals())
    {
        for (Victim const victim : g_Victims)
        {
            SCOPED_TRACE(std::string(signal.name) + ", victim " + std::to_string(static_cast<int>(victim)));
            CScene scene(make);
            Slot const kill = signal.connect(*scene.m_Button, [&] { scene.Kill(victim); });
            scene.Play();
            EXPECT_TRUE(scene.m_Dead);
            EXPECT_EQ(scene.m_Host.HasControl(), victim != Victim::Control);
            int const left = victim == Victim::Button ? 2 : victim == Victim::Parent ? 1 : 0;
            EXPECT_EQ(scene.m_Host.HasControl() ? scene.m_Host.Root()->GetChildren()->GetCount() : 0, left);
        }
    }
}

}  // namespace

TEST(ButtonLifetime, AButtonItsParentAndTheControlMayDieInEachOfItsSignals)
{
    KillInEachSignal(&MakeButton<CButton>);
}

TEST(ButtonLifetime, TheSameHoldsForAnArrowButton)
{
    KillInEachSignal(&MakeButton<CArrowButton>);
}

TEST(ButtonLifetime, TheSameHoldsForAPictureButton)
{
    KillInEachSignal(&MakePictureButton);
}

TEST(ButtonLifetime, ItMayDieInTheClickOfEachOfItsKeysAndInItsSecondRepetition)
{
    for (Victim const victim : g_Victims)
    {
        for (int const key : {int(vkSpace), int(vkReturn)})
        {
            CScene scene(&MakeButton<CButton>);
            Slot const kill = On(scene.m_Button->m_Clicked, [&] { scene.Kill(victim); });
            scene.m_Button->SetFocus(true);
            scene.m_Host.Keyboard().Press(key);
            EXPECT_TRUE(scene.m_Dead);
        }
        CScene scene(&MakeButton<CButton>);
        int ticks = 0;
        Slot const kill = On(scene.m_Button->m_Clicked, [&] {
            if (++ticks == 2)
                scene.Kill(victim);
        });
        scene.m_Host.Mouse().Press(50, 20);
        scene.m_Host.Clock().Advance(2000);
        EXPECT_EQ(ticks, 2);
        EXPECT_TRUE(scene.m_Dead);
    }
}

namespace
{

/// Dies as its ground is drawn.
template <class Button> class CDying : public Button
{
public:
    using Button::Button;
    void DrawBackground(IPainter*) override { delete this; }
};

template <class Button> void DrawToDeath()
{
    CTestHost host(100, 60);
    auto* const button = new CDying<Button>(host.Root(), {0, 40}, alTop);
    button->SetCaption("a");
    host.Focus();
    button->SetFocus(true);
    host.Paint();
    EXPECT_EQ(host.Root()->GetChildren()->GetCount(), 0);
}

}  // namespace

TEST(ButtonLifetime, ItMayDieAsItsGroundIsDrawn)
{
    DrawToDeath<CButton>();
    DrawToDeath<CArrowButton>();
}

TEST(ButtonLifetime, APictureButtonMayDieAsItTakesTheSizeOfItsImage)
{
    class CDyingPicture : public CPictureButton
    {
    public:
        CDyingPicture(CVisualElement* parent, bool& dead) : CPictureButton(parent, {0, 0}, alTop), m_Dead(dead) {}
        void SetSize(size<int> const&, bool) override
        {
            m_Dead = true;
            delete this;
        }

    private:
        bool& m_Dead;
    };
    CTestHost host(100, 60);
    bool dead = false;
    auto* const button = new CDyingPicture(host.Root(), dead);
    button->SetNormalImage(1);
    EXPECT_TRUE(dead);
    EXPECT_EQ(host.Root()->GetChildren()->GetCount(), 0);
}

TEST(ButtonLifetime, ASlotBehindTheOneThatKilledTheButtonIsNotCalled)
{
    CScene scene(&MakeButton<CButton>);
    int later = 0;
    Slot const kill = On(scene.m_Button->m_Clicked, [&] { scene.Kill(Victim::Button); });
    Slot const behind = On(scene.m_Button->m_Clicked, [&] { ++later; });
    scene.m_Host.Mouse().Click(50, 20);
    EXPECT_EQ(later, 0);
    EXPECT_TRUE(scene.m_Dead);
}

TEST(ButtonLifetime, AButtonThatDiesWhileItIsHeldLeavesNoTimer)
{
    CScene scene(&MakeButton<CButton>);
    scene.m_Host.Mouse().Press(50, 20);
    EXPECT_EQ(scene.m_Host.Clock().GetRunningTimers(), 1);
    delete scene.m_Button;
    EXPECT_EQ(scene.m_Host.Clock().GetRunningTimers(), 0);
    scene.m_Host.Mouse().Release();
}

TEST(ButtonLifetime, AMemberOutlivesItsControlAndClicksOn)
{
    CButton button(nullptr, {0, 40}, alTop);
    CTestHost host(100, 100);
    int clicks = 0;
    Slot const end = On(button.m_Clicked, [&] {
        ++clicks;
        host.DestroyControl();
    });
    button.ReParent(host.Root(), true);
    host.Paint();
    host.Mouse().Click(50, 20);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(button.GetControl(), nullptr);
    EXPECT_EQ(button.GetClickStage(), CClickHandler::StageHot);
    EXPECT_EQ(button.GetNativeState(), 0);
    button.HandleKeyDown(0, vkReturn);
    EXPECT_EQ(clicks, 2);
}

// A set of buttons --------------------------------------------------------------------------------------------------------

namespace
{

// A set of two buttons on a pane, the first of 38 x 17 at the left-top.
class ButtonSetLifetime : public testing::Test
{
protected:
    ButtonSetLifetime()
    {
        m_First = m_Set->AddButton("ab", 1);
        m_Set->AddButton("cd", 2);
        m_Host.Focus();
        m_Host.Paint();
    }
    CVisualElement* Container() { return m_Set->GetContainer(); }

    CTestHost m_Host{200, 100};
    CVisualElement* m_Pane = new CVisualElement(m_Host.Root(), {0, 60}, alTop);
    CButtonSet* m_Set = new CButtonSet(m_Pane, {0, 30}, alTop);
    CButton* m_First = nullptr;
};

}  // namespace

TEST_F(ButtonSetLifetime, TheButtonMayDieWhenTheSetTellsOfIt)
{
    Slot const kill = On(m_Set->m_ButtonPressed, [&] { delete m_First; });
    m_Host.Mouse().Click(5, 5);
    EXPECT_EQ(Container()->GetChildren()->GetCount(), 2);
    m_Host.Paint();
}

TEST_F(ButtonSetLifetime, TheRowMayBeClearedByAKeyAndByARepetition)
{
    Slot const clear = On(m_Set->m_ButtonPressed, [&] { m_Set->ClearButtons(); });
    m_First->SetFocus(true);
    m_Host.Keyboard().Press(vkSpace);
    EXPECT_EQ(Container(), nullptr);

    CButton* const again = m_Set->AddButton("ab", 3);
    again->SetAutoRepeat(true);
    m_Host.Paint();
    m_Host.Mouse().Press(5, 5);
    m_Host.Clock().Advance(500);
    EXPECT_EQ(Container(), nullptr);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Host.Clock().GetRunningTimers(), 0);
}

TEST_F(ButtonSetLifetime, TheParentOfTheSetMayDieWhenItTells)
{
    Slot const kill = On(m_Set->m_ButtonPressed, [&] { delete m_Pane; });
    m_Host.Mouse().Click(5, 5);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 0);
    m_Host.Paint();
}

TEST_F(ButtonSetLifetime, TheControlMayDieWhenItTells)
{
    Slot const kill = On(m_Set->m_ButtonPressed, [&] { m_Host.DestroyControl(); });
    m_Host.Mouse().Click(5, 5);
    EXPECT_FALSE(m_Host.HasControl());
}

TEST_F(ButtonSetLifetime, TheSetMayDieAsItsFirstButtonShowsIt)
{
    m_Set->ClearButtons();
    Slot const kill = On(m_Set->m_SigVisible, [&] { delete m_Set; });
    EXPECT_EQ(m_Set->AddButton("ab", 1), nullptr);
    EXPECT_EQ(m_Pane->GetChildren()->GetCount(), 0);
}

TEST_F(ButtonSetLifetime, SeveralButtonsEndWithTheSetThatTheFirstOneEnds)
{
    m_Set->ClearButtons();
    Slot const kill = On(m_Set->m_SigVisible, [&] { delete m_Set; });
    m_Set->SetButtons(127);
    EXPECT_EQ(m_Pane->GetChildren()->GetCount(), 0);
}

TEST_F(ButtonSetLifetime, TheSetMayDieAsClearingHidesIt)
{
    Slot const kill = On(m_Set->m_SigVisible, [&] { delete m_Set; });
    m_Set->ClearButtons();
    EXPECT_EQ(m_Pane->GetChildren()->GetCount(), 0);
    m_Host.Paint();
}

TEST_F(ButtonSetLifetime, ARowThatIsClearedHasLeftTheTreeBeforeItDies)
{
    CVisualElement* const row = Container();
    bool dead = false;
    Slot const death = On(row->m_SigDestroy, [&] {
        dead = true;
        EXPECT_EQ(row->GetParent(), nullptr);
        EXPECT_EQ(row->GetControl(), nullptr);
        EXPECT_EQ(m_Set->GetChildren()->GetCount(), 0);
    });
    m_Set->ClearButtons();
    EXPECT_TRUE(dead);
}

TEST_F(ButtonSetLifetime, TheSetMayDieAsOneOfItsButtonsLosesTheFocusByClearing)
{
    m_First->SetFocus(true);
    bool dead = false;
    Slot const death = On(m_Set->m_SigDestroy, [&] { dead = true; });
    Slot const kill = On(m_First->m_SigLostFocus, [&] {
        if (!dead)
            delete m_Set;
    });
    m_Set->ClearButtons();
    m_Host.Paint();
    EXPECT_EQ(m_Pane->GetChildren()->GetCount(), dead ? 0 : 1);
}

TEST_F(ButtonSetLifetime, TheSetMayDieAsOneOfItsButtonsIsDeletedByClearing)
{
    bool dead = false;
    Slot const death = On(m_Set->m_SigDestroy, [&] { dead = true; });
    Slot const kill = On(m_First->m_SigDestroy, [&] { delete m_Set; });
    m_Set->ClearButtons();
    EXPECT_TRUE(dead);
    EXPECT_EQ(m_Pane->GetChildren()->GetCount(), 0);
    m_Host.Paint();
}

TEST_F(ButtonSetLifetime, TheSetMayBeClearedAsItsFirstButtonShowsIt)
{
    m_Set->ClearButtons();
    Slot const clear = On(m_Set->m_SigVisible, [&] { m_Set->ClearButtons(); });
    EXPECT_EQ(m_Set->AddButton("ab", 1), nullptr);
    EXPECT_EQ(m_Set->GetButtonCount(), 0u);
    EXPECT_FALSE(m_Set->IsVisible());
}

TEST_F(ButtonSetLifetime, AButtonAddedWhileTheOthersGoStays)
{
    Slot const add = On(m_First->m_SigDestroy, [&] { m_Set->AddButton("ef", 3); });
    m_Set->ClearButtons();
    EXPECT_TRUE(m_Set->IsVisible());
    EXPECT_EQ(m_Set->GetButtonCount(), 1u);
    EXPECT_EQ(Container()->GetChildren()->GetCount(), 1);
    m_Host.Paint();
}

namespace
{

/// Does something of its own, once, when it is to take another size.
class CWilfulSet : public CButtonSet
{
public:
    using CButtonSet::CButtonSet;

    void SetSize(size<int> const& extent, bool scale) override
    {
        ++m_Sizes;
        CButtonSet::SetSize(extent, scale);
        if (Deed const deed = std::exchange(m_Deed, {}))
            deed();
    }

    Deed m_Deed;
    int m_Sizes = 0;
};

}  // namespace

TEST_F(ButtonSetLifetime, TheRowMayGoOrBeExchangedAsTheSetTakesItsHeight)
{
    auto* const set = new CWilfulSet(m_Pane, {0, 30}, alTop);
    set->m_Deed = [&] { set->ClearButtons(); };
    EXPECT_EQ(set->AddButton("ab", 1), nullptr);
    EXPECT_EQ(set->GetContainer(), nullptr);

    set->SetSize({0, 30}, false);
    set->m_Deed = [&] {
        set->ClearButtons();
        new CVisualElement(m_Host.Root(), {0, 0}, alTop);  // so that the new row stands elsewhere in memory
        set->AddButton("cdef", 2);
    };
    EXPECT_EQ(set->AddButton("ab", 1), nullptr);
    EXPECT_EQ(set->GetButtonCount(), 1u);
    EXPECT_EQ(set->GetContainer()->GetSize().width, 54);

    set->ClearButtons();
    set->SetSize({0, 30}, false);
    set->m_Deed = [&] { delete set; };
    EXPECT_EQ(set->AddButton("ab", 1), nullptr);
    EXPECT_EQ(m_Pane->GetChildren()->GetCount(), 1);
}

TEST_F(ButtonSetLifetime, ASetOfTheRightHeightIsNotSizedAgain)
{
    auto* const set = new CWilfulSet(m_Pane, {0, 30}, alTop);
    set->AddButton("ab", 1);
    EXPECT_EQ(set->m_Sizes, 1);
    set->UpdateContainerSize();
    set->AddButton("cd", 1);
    EXPECT_EQ(set->m_Sizes, 1);
}
