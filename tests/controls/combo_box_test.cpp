// The editor whose native control is a combo box: its arrow, what opens the list, and that it opens once.

#include "vexel/controls/combo_box.h"

#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/memory/memory_edit.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using namespace vexel;
using namespace vexel::test;
using vexelbase::memory::CMemoryComboBox;

using Size = size<int>;
using Rect = rectangle<int>;

namespace
{

// A box that can be edited and one that can only choose, both 100 x 20; bars are 16 wide.
class ComboBox : public testing::Test
{
protected:
    ComboBox()
    {
        Make(m_Editable, 10, true);
        Make(m_Choice, 50, false);
        m_Host.Paint();
    }
    void Make(CComboBox& box, int top, bool editable)
    {
        box.ReParent(m_Host.Root(), true);
        box.SetCanHaveFocus(true);
        box.Init(&m_Host.Window(), editable);
        box.SetPos({10, top, 110, top + 20}, true);  // lays the arrow out
        m_Log.Add(box.m_SigEditStarted, editable ? "started" : "choice started");
        m_Log.Add(box.m_SigEditFinished, editable ? "finished" : "choice finished");
    }
    static CMemoryComboBox& Native(CComboBox& box) { return static_cast<CMemoryComboBox&>(*box.GetComboBox()); }
    static int Drops(CComboBox& box) { return Native(box).GetDropDownCount(); }
    void Command(CComboBox& box, CBaseEditor::EditorCommand command)
    {
        box.ProcessEditorCommand(command);
        m_Host.Paint();
    }

    CTestHost m_Host{200, 100};
    CComboBox& m_Editable = *new CComboBox;
    CComboBox& m_Choice = *new CComboBox;
    CSignalLog m_Log;
};

}  // namespace

// Its parts -----------------------------------------------------------------------------------------------------------------

TEST_F(ComboBox, HasNoPartsBeforeItHasAWindow)
{
    CComboBox box;
    EXPECT_EQ(box.GetComboBox(), nullptr);
    EXPECT_EQ(box.GetButton(), nullptr);
    EXPECT_EQ(box.GetBevel(), nullptr);
    box.Init(nullptr, true);
    EXPECT_EQ(box.GetComboBox(), nullptr);
    EXPECT_EQ(box.GetButton(), nullptr);
    rectangle<double> rect{0, 0, 50, 20};
    box.GetEditorRect(rect);
    EXPECT_EQ(rect.right, 50);
    box.ProcessEditorCommand(CBaseEditor::ecStart);
    box.ProcessEditorCommand(CBaseEditor::ecAccept);
    EXPECT_TRUE(box.HandleKeyDown(ksAlt, vkDown));
    box.OnButtonDown(&box, 0, 0, ksLeft, mbLeft);
}

TEST_F(ComboBox, ItsNativeBoxIsHiddenUntilTheEdit)
{
    EXPECT_TRUE(Native(m_Editable).IsEditable());
    EXPECT_FALSE(Native(m_Choice).IsEditable());
    EXPECT_FALSE(Native(m_Editable).IsVisible());
    EXPECT_FALSE(Native(m_Editable).GetOption());
    EXPECT_EQ(m_Editable.GetEditContainer().GetOffset(), (Rect{-1, -1, 0, 1}));
    EXPECT_EQ(m_Editable.GetEditContainer().GetNativeControl(), m_Editable.GetComboBox());
    Command(m_Editable, CBaseEditor::ecStart);
    EXPECT_TRUE(Native(m_Editable).IsVisible());
    EXPECT_EQ(Native(m_Editable).GetRect(), (Rect{10, 10, 110, 29})) << "cut at the editor's own edges";
}

TEST_F(ComboBox, TheArrowStandsLeftOfTheEdge)
{
    CBevel& bevel = *m_Editable.GetBevel();
    CComboButton& button = *m_Editable.GetButton();
    EXPECT_EQ(bevel.GetParent(), &m_Editable);
    EXPECT_EQ(button.GetParent(), &m_Editable);
    EXPECT_EQ(bevel.GetAlignment(), alRight);
    EXPECT_EQ(button.GetAlignment(), alRight);
    EXPECT_EQ(bevel.GetSize(), (Size{1, 1}));
    EXPECT_EQ(button.GetSize(), (Size{15, 15}));
    EXPECT_EQ(bevel.GetPos().right, 100);
    EXPECT_LT(button.GetPos().right, bevel.GetPos().left);
    EXPECT_TRUE(bevel.IsVisible());
    EXPECT_TRUE(button.IsVisible());
    EXPECT_FALSE(button.GetCanHaveFocus());
}

TEST_F(ComboBox, ASecondInitTakesThePlaceOfTheFirst)
{
    m_Editable.Init(&m_Host.Window(), false);
    m_Host.Paint();
    EXPECT_FALSE(Native(m_Editable).IsEditable());
    EXPECT_EQ(m_Host.Native<CMemoryComboBox>(2), nullptr);
    EXPECT_EQ(m_Editable.GetChildren()->GetCount(), 3);
    Command(m_Editable, CBaseEditor::ecStart);
    EXPECT_FALSE(m_Editable.GetButton()->IsVisible());
    EXPECT_EQ(Drops(m_Editable), 1);
}

TEST_F(ComboBox, TheTextHasNeitherArrowNorEdge)
{
    rectangle<double> rect{0, 0, 100, 20};
    m_Editable.GetEditorRect(rect);
    EXPECT_EQ(Describe(rect), "(0, 0, 84, 20)");
}

// Commands ------------------------------------------------------------------------------------------------------------------

TEST_F(ComboBox, WhileItEditsItsOwnArrowIsAway)
{
    Command(m_Editable, CBaseEditor::ecStart);
    EXPECT_FALSE(m_Editable.GetBevel()->IsVisible());
    EXPECT_FALSE(m_Editable.GetButton()->IsVisible());
    EXPECT_TRUE(m_Editable.GetEditContainer().IsVisible());
    EXPECT_EQ(m_Log.Take(), "started()");
    Command(m_Editable, CBaseEditor::ecAccept);
    EXPECT_TRUE(m_Editable.GetBevel()->IsVisible());
    EXPECT_TRUE(m_Editable.GetButton()->IsVisible());
    EXPECT_FALSE(m_Editable.GetEditContainer().IsVisible());
    EXPECT_EQ(m_Log.Take(), "finished(true)");
    Command(m_Editable, CBaseEditor::ecStart);
    Command(m_Editable, CBaseEditor::ecCancel);
    EXPECT_TRUE(m_Editable.GetButton()->IsVisible());
    EXPECT_EQ(m_Log.Take(), "started() finished(false)");
}

TEST_F(ComboBox, OneThatCanOnlyChooseOpensWithTheStart)
{
    Command(m_Choice, CBaseEditor::ecStart);
    EXPECT_EQ(Drops(m_Choice), 1);
    EXPECT_TRUE(Native(m_Choice).IsDropDownShown());
    Command(m_Choice, CBaseEditor::ecAccept);
    EXPECT_EQ(Drops(m_Choice), 1);
    Command(m_Editable, CBaseEditor::ecStart);
    EXPECT_EQ(Drops(m_Editable), 0);
}

TEST_F(ComboBox, APressOfTheArrowOpensEitherKindOnce)
{
    m_Host.Mouse().Press(*m_Editable.GetButton(), 5, 5);
    m_Host.Paint();
    EXPECT_EQ(Drops(m_Editable), 1);
    EXPECT_TRUE(Native(m_Editable).IsDropDownShown());
    EXPECT_EQ(m_Log.Take(), "started()");
    m_Host.Mouse().Release();
    m_Host.Mouse().Press(*m_Choice.GetButton(), 5, 5);
    m_Host.Paint();
    EXPECT_EQ(Drops(m_Choice), 1);
    EXPECT_TRUE(Native(m_Choice).IsDropDownShown());
    EXPECT_EQ(m_Log.Count("choice started"), 1);
}

TEST_F(ComboBox, OtherButtonsOnTheArrowDoNothing)
{
    m_Host.Mouse().Click(*m_Choice.GetButton(), 5, 5, mbRight);
    m_Host.Mouse().Click(*m_Editable.GetButton(), 5, 5, mbMiddle);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Drops(m_Choice) + Drops(m_Editable), 0);
}

TEST_F(ComboBox, APressBesideTheArrowStartsTheEditAlone)
{
    m_Host.Mouse().Click(m_Editable, 5, 5);
    m_Host.Paint();
    EXPECT_EQ(m_Log.Take(), "started()");
    EXPECT_EQ(Drops(m_Editable), 0);
}

// Keys ----------------------------------------------------------------------------------------------------------------------

TEST_F(ComboBox, AltAndDownStartTheEditAndOpenTheListOnce)
{
    EXPECT_TRUE(m_Editable.HandleKeyDown(ksAlt, vkDown));
    EXPECT_EQ(m_Log.Take(), "started()");
    EXPECT_EQ(Drops(m_Editable), 1);
    EXPECT_TRUE(m_Choice.HandleKeyDown(ksAlt, vkDown));
    EXPECT_EQ(m_Log.Count("choice started"), 1);
    EXPECT_EQ(Drops(m_Choice), 1) << "an open list stays as it is";
    EXPECT_TRUE(Native(m_Choice).IsDropDownShown());
}

TEST_F(ComboBox, OtherKeysAreNotItsOwn)
{
    EXPECT_FALSE(m_Editable.HandleKeyDown(0, vkDown));
    EXPECT_FALSE(m_Editable.HandleKeyDown(ksAlt | ksShift, vkDown));
    EXPECT_FALSE(m_Editable.HandleKeyDown(ksAlt, vkUp));
    EXPECT_FALSE(m_Editable.HandleKeyDown(0, vkReturn));
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(ComboBox, ReturnAndEscapeEndTheEditAndGiveTheFocusBack)
{
    Command(m_Editable, CBaseEditor::ecStart);
    Native(m_Editable).SetFocus();
    m_Host.Keyboard().Press(vkReturn);
    EXPECT_EQ(m_Log.Take(), "started() finished(true)");
    EXPECT_TRUE(m_Host.Window().HasFocus());
    EXPECT_TRUE(m_Editable.GetButton()->IsVisible());
    Command(m_Editable, CBaseEditor::ecStart);
    Native(m_Editable).SetFocus();
    m_Host.Keyboard().Press(vkEscape);
    EXPECT_EQ(m_Log.Take(), "started() finished(false)");
    EXPECT_TRUE(m_Host.Window().HasFocus());
}

// What dies -----------------------------------------------------------------------------------------------------------------

TEST_F(ComboBox, ItMayLoseItsArrowOrItsEdge)
{
    delete m_Editable.GetButton();
    EXPECT_EQ(m_Editable.GetButton(), nullptr);
    delete m_Choice.GetBevel();
    EXPECT_EQ(m_Choice.GetBevel(), nullptr);
    for (CComboBox* const box : {&m_Editable, &m_Choice})
    {
        Command(*box, CBaseEditor::ecStart);
        Command(*box, CBaseEditor::ecAccept);
        rectangle<double> rect{0, 0, 100, 20};
        box->GetEditorRect(rect);
        EXPECT_EQ(rect.right, 100);
    }
}

TEST_F(ComboBox, BoxControlAndWindowMayDieInEachSignal)
{
    // signals: 0 started, 1 finished, 2 button down on the arrow, 3 arrow hidden, 4 edge hidden, 5 container shown, 6 focus
    for (bool const editable : {true, false})
    {
        for (int signal = 0; signal < 7; ++signal)
        {
            for (int victim = 0; victim < 3; ++victim)
            {
                SCOPED_TRACE(std::to_string(editable) + " " + std::to_string(signal) + " " + std::to_string(victim));
                CTestHost host(200, 100);
                auto* const box = new CComboBox;
                box->ReParent(host.Root(), true);
                box->Init(&host.Window(), editable);
                box->SetPos({10, 10, 110, 30}, true);
                host.Focus();
                host.Paint();
                bool alive = true;
                bool fired = false;
                auto const death = Listen(box->m_SigDestroy, [&](CVisualElement*) { alive = false; });
                auto const kill = [&] {
                    if (fired)
                        return;
                    fired = true;
                    if (victim == 0)
                        delete box;
                    else if (victim == 1)
                        host.DestroyControl();
                    else
                        host.DestroyWindow();
                };
                std::unique_ptr<subscriber_base_t> slot;
                auto const any = [&](CVisualElement*, bool) { kill(); };
                if (signal == 0)
                    slot = Listen(box->m_SigEditStarted, [&](CBaseEditor*) { kill(); });
                else if (signal == 1)
                    slot = Listen(box->m_SigEditFinished, [&](CBaseEditor*, bool) { kill(); });
                else if (signal == 2)
                    slot = Listen(box->GetButton()->m_SigButtonDown,
                                  [&](CVisualElement*, int, int, int, MouseButton) { kill(); });
                else if (signal == 3)
                    slot = Listen(box->GetButton()->m_SigVisible, any);
                else if (signal == 4)
                    slot = Listen(box->GetBevel()->m_SigVisible, any);
                else if (signal == 5)
                    slot = Listen(box->GetEditContainer().m_SigVisible, any);
                else
                    slot = Listen(box->GetComboBox()->m_SigFocusIn, [&](ICustomControl*) { kill(); });
                host.Mouse().Click(100, 20);
                if (host.HasWindow())
                {
                    host.Paint();
                    if (auto* const native = host.Native<CMemoryComboBox>())
                        native->SetFocus();
                    host.Keyboard().Press(vkReturn);
                    host.Keyboard().Press(vkReturn);
                }
                if (alive)
                    box->ProcessEditorCommand(CBaseEditor::ecCancel);
                EXPECT_TRUE(fired);
            }
        }
    }
}
