// In-place editors: the commands, what shows while they edit, the keys of the native field, who gets the focus back.

#include "vexel/controls/editor.h"

#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/memory/memory_edit.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

using namespace vexel;
using namespace vexel::test;
using vexelbase::memory::CMemoryEdit;

using Size = size<int>;
using Rect = rectangle<int>;

namespace
{

/// A plain editor, a line editor, and another element that can have the focus, on a window that has it.
class Editor : public testing::Test
{
protected:
    Editor()
    {
        m_Plain.ReParent(m_Host.Root(), true);
        m_Plain.SetPos({10, 20, 60, 40}, true);
        m_Line.ReParent(m_Host.Root(), true);
        m_Line.SetPos({70, 20, 130, 40}, true);
        m_Line.Init(&m_Host.Window());
        m_Other.SetCanHaveFocus(true);
        Hear(m_Plain);
        Hear(m_Line);
        m_Host.Paint();
    }
    void Hear(CEditor& editor)
    {
        m_Log.Add(editor.m_SigEditStarted, "started");
        m_Log.Add(editor.m_SigEditFinished, "finished");
    }
    CMemoryEdit& Edit() { return *m_Host.Native<CMemoryEdit>(); }
    bool WindowHasFocus() { return m_Host.Window().HasFocus(); }
    bool EditHasFocus() { return m_Host.System().GetFocusNode() == &Edit(); }
    // Starts an edit of the line and brings it on the screen.
    void Start()
    {
        m_Line.ProcessEditorCommand(CBaseEditor::ecStart);
        m_Host.Paint();
        m_Log.Clear();
    }

    CTestHost m_Host{200, 100};
    CEditor& m_Plain = *new CEditor;
    CLineEditor& m_Line = *new CLineEditor;
    CVisualElement& m_Other = *new CVisualElement(m_Host.Root(), {0, 10}, alBottom);
    CSignalLog m_Log;
};

using LineEditor = Editor;

}  // namespace

// What they start with ------------------------------------------------------------------------------------------------------

TEST_F(Editor, StandsInNoTreeAtFirstAndHasAHiddenContainer)
{
    CEditor editor;
    EXPECT_EQ(editor.GetParent(), nullptr);
    EXPECT_EQ(editor.GetSize(), (Size{5, 5}));
    EXPECT_EQ(editor.GetAlignment(), alNone);
    CContainer& container = editor.GetEditContainer();
    EXPECT_EQ(container.GetParent(), &editor);
    EXPECT_EQ(container.GetSize(), (Size{5, 5}));
    EXPECT_EQ(container.GetAlignment(), alClient);
    EXPECT_FALSE(container.IsDynamic());
    EXPECT_FALSE(container.IsVisible());
    EXPECT_EQ(container.GetNativeControl(), nullptr);
    EXPECT_EQ(editor.GetKeyDelegate(), nullptr);
    rectangle<double> rect{1, 2, 3, 4};
    editor.GetEditorRect(rect);
    EXPECT_EQ(Describe(rect), "(1, 2, 3, 4)");
    static_assert(CBaseEditor::ecStart == 0 && CBaseEditor::ecAccept == 1 && CBaseEditor::ecCancel == 2);
    EXPECT_TRUE(CLineEditor().IsHandleKeys());
    EXPECT_EQ(CLineEditor().GetEdit(), nullptr);
}

// Commands ------------------------------------------------------------------------------------------------------------------

TEST_F(Editor, StartShowsTheContainerAndHandsTheKeysToIt)
{
    m_Plain.ProcessEditorCommand(CBaseEditor::ecStart);
    EXPECT_EQ(m_Log.Text(), "started()");
    EXPECT_TRUE(m_Plain.GetEditContainer().IsVisible());
    EXPECT_EQ(m_Plain.GetEditContainer().GetPos(), (Rect{0, 0, 50, 20}));
    EXPECT_EQ(m_Plain.GetKeyDelegate(), &m_Plain.GetEditContainer());
}

TEST_F(Editor, TheContainerTakesTheEditorsPlaceWithEachCommand)
{
    m_Plain.ProcessEditorCommand(CBaseEditor::ecStart);
    m_Plain.SetPos({10, 20, 90, 30}, false);
    m_Plain.GetEditContainer().SetPos({1, 1, 2, 2}, false);
    m_Plain.ProcessEditorCommand(CBaseEditor::ecCancel);
    EXPECT_EQ(m_Plain.GetEditContainer().GetPos(), (Rect{0, 0, 80, 10}));
}

TEST_F(Editor, AcceptAndCancelHideTheContainerAndSayWhich)
{
    for (bool const accepted : {true, false})
    {
        m_Plain.ProcessEditorCommand(CBaseEditor::ecStart);
        m_Log.Clear();
        m_Plain.ProcessEditorCommand(accepted ? CBaseEditor::ecAccept : CBaseEditor::ecCancel);
        EXPECT_EQ(m_Log.Text(), accepted ? "finished(true)" : "finished(false)");
        EXPECT_FALSE(m_Plain.GetEditContainer().IsVisible());
        EXPECT_EQ(m_Plain.GetKeyDelegate(), nullptr);
    }
}

TEST_F(Editor, WhoHearsOfACommandSeesTheContainerAsItWas)
{
    std::string seen;
    auto const started = Listen(m_Plain.m_SigEditStarted, [&](CBaseEditor*) {
        seen += m_Plain.GetEditContainer().IsVisible() ? "shown " : "hidden ";
    });
    auto const finished = Listen(m_Plain.m_SigEditFinished, [&](CBaseEditor*, bool) {
        seen += m_Plain.GetEditContainer().IsVisible() ? "shown " : "hidden ";
    });
    m_Plain.ProcessEditorCommand(CBaseEditor::ecStart);
    m_Plain.ProcessEditorCommand(CBaseEditor::ecAccept);
    EXPECT_EQ(seen, "hidden shown ");
}

TEST_F(Editor, APressOfTheLeftButtonStartsTheEdit)
{
    EXPECT_FALSE(m_Plain.HandleButtonDown(5, 5, ksRight, mbRight));
    EXPECT_FALSE(m_Plain.HandleButtonDown(5, 5, ksMiddle, mbMiddle));
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_TRUE(m_Plain.HandleButtonDown(5, 5, ksLeft, mbLeft));
    EXPECT_EQ(m_Log.Text(), "started()");
    m_Log.Clear();
    m_Host.Mouse().Press(m_Line, 5, 5);
    EXPECT_EQ(m_Log.Text(), "started()");
}

// The native field ----------------------------------------------------------------------------------------------------------

TEST_F(LineEditor, ItsFieldIsHiddenUntilTheEdit)
{
    ASSERT_EQ(m_Line.GetEdit(), &Edit());
    EXPECT_EQ(m_Line.GetEditContainer().GetNativeControl(), &Edit());
    EXPECT_EQ(m_Line.GetEditContainer().GetOffset(), (Rect{-1, -1, -1, -1}));
    EXPECT_FALSE(Edit().IsVisible());
    Start();
    EXPECT_TRUE(Edit().IsVisible());
    EXPECT_EQ(Edit().GetRect(), (Rect{70, 20, 130, 40})) << "cut at the editor's own edges";
    m_Line.ProcessEditorCommand(CBaseEditor::ecAccept);
    m_Host.Paint();
    EXPECT_FALSE(Edit().IsVisible());
}

TEST_F(LineEditor, WithoutAWindowThereIsNoField)
{
    CLineEditor editor;
    editor.Init(nullptr);
    EXPECT_EQ(editor.GetEdit(), nullptr);
    editor.ProcessEditorCommand(CBaseEditor::ecStart);
    editor.ProcessEditorCommand(CBaseEditor::ecAccept);
}

TEST_F(LineEditor, ASecondFieldTakesThePlaceOfTheFirst)
{
    IEdit* const first = m_Line.GetEdit();
    m_Line.Init(&m_Host.Window());
    EXPECT_NE(m_Line.GetEdit(), nullptr);
    EXPECT_EQ(m_Line.GetEditContainer().GetNativeControl(), m_Line.GetEdit());
    EXPECT_EQ(m_Host.Native<CMemoryEdit>(1), nullptr) << "the first has gone";
    (void)first;
    Start();
    m_Host.Keyboard().Press(vkReturn);
    EXPECT_EQ(m_Log.Text(), "finished(true)");
}

TEST_F(LineEditor, ANullWindowLeavesTheField)
{
    m_Line.Init(nullptr);
    EXPECT_EQ(m_Line.GetEdit(), &Edit());
}

TEST_F(LineEditor, TheFieldGetsTheFocusWithTheStart)
{
    m_Host.Focus();
    Start();
    EXPECT_TRUE(EditHasFocus());
    m_Host.Keyboard().Type("hi");
    EXPECT_EQ(m_Line.GetEdit()->GetText(), "hi");
}

TEST_F(LineEditor, ReturnAcceptsAndGivesTheWindowTheFocusBack)
{
    Start();
    Edit().SetFocus();
    m_Host.Keyboard().Press(vkReturn);
    EXPECT_EQ(m_Log.Text(), "finished(true)");
    EXPECT_TRUE(WindowHasFocus());
    EXPECT_FALSE(m_Line.GetEditContainer().IsVisible());
}

TEST_F(LineEditor, EscapeCancelsAndGivesTheWindowTheFocusBack)
{
    Start();
    Edit().SetFocus();
    m_Host.Keyboard().Press(vkEscape);
    EXPECT_EQ(m_Log.Text(), "finished(false)");
    EXPECT_TRUE(WindowHasFocus());
    EXPECT_FALSE(m_Line.GetEditContainer().IsVisible());
}

TEST_F(LineEditor, OtherKeysGoOnWithTheEdit)
{
    Start();
    Edit().SetFocus();
    m_Host.Keyboard().Type("A b");
    m_Host.Keyboard().Press(vkLeft);
    m_Host.Keyboard().Press(vkDelete);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_TRUE(EditHasFocus());
}

TEST_F(LineEditor, WithoutHandledKeysTheyEndNothing)
{
    m_Line.SetHandleKeys(false);
    EXPECT_FALSE(m_Line.IsHandleKeys());
    Start();
    Edit().SetFocus();
    m_Host.Keyboard().Press(vkReturn);
    m_Host.Keyboard().Press(vkEscape);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_TRUE(EditHasFocus());
}

TEST_F(LineEditor, AnEditThatEndsByProgramLeavesTheFocusWhereItIs)
{
    CLineEditor& second = *new CLineEditor;
    second.ReParent(m_Host.Root(), true);
    second.SetPos({140, 20, 190, 40}, true);
    second.Init(&m_Host.Window());
    Start();
    second.ProcessEditorCommand(CBaseEditor::ecStart);
    m_Host.Paint();
    CMemoryEdit& other = *m_Host.Native<CMemoryEdit>(1);
    other.SetFocus();
    m_Line.ProcessEditorCommand(CBaseEditor::ecAccept);
    m_Host.Paint();
    EXPECT_EQ(m_Host.System().GetFocusNode(), &other);
    second.ProcessEditorCommand(CBaseEditor::ecCancel);
}

TEST_F(LineEditor, TheFocusIsGivenBackOnceForEachKey)
{
    Start();
    Edit().SetFocus();
    m_Host.Keyboard().Press(vkReturn);
    EXPECT_TRUE(WindowHasFocus());
    Start();
    m_Host.Unfocus();
    m_Line.ProcessEditorCommand(CBaseEditor::ecAccept);
    EXPECT_FALSE(WindowHasFocus()) << "this edit did not end by a key";
}

// What dies -----------------------------------------------------------------------------------------------------------------

TEST_F(LineEditor, ItMayDieWhileItEdits)
{
    Start();
    Edit().SetFocus();
    delete &m_Line;
    EXPECT_EQ(m_Host.Native<CMemoryEdit>(), nullptr);
    m_Host.Paint();
    m_Host.Keyboard().Press(vkReturn);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(LineEditor, TheWindowMayDieWhileItEdits)
{
    Start();
    Edit().SetFocus();
    m_Host.DestroyWindow();
    m_Line.ProcessEditorCommand(CBaseEditor::ecAccept);
    EXPECT_EQ(m_Log.Text(), "finished(true)");
}

TEST_F(LineEditor, EditorControlAndWindowMayDieInEachSignal)
{
    // signals: 0 started, 1 finished, 2 the editor's focus, 3 lost, 4 that of the container, 5 visible, 6 the field's focus
    for (int signal = 0; signal < 7; ++signal)
    {
        for (int victim = 0; victim < 3; ++victim)
        {
            for (int const key : {int(vkReturn), int(vkEscape), 0})
            {
                SCOPED_TRACE(std::to_string(signal) + " " + std::to_string(victim) + " " + std::to_string(key));
                CTestHost host(200, 100);
                auto* const editor = new CLineEditor;
                editor->ReParent(host.Root(), true);
                editor->SetPos({70, 20, 130, 40}, true);
                editor->SetCanHaveFocus(true);
                editor->Init(&host.Window());
                CVisualElement* const other = new CVisualElement(host.Root(), {0, 10}, alBottom);
                other->SetCanHaveFocus(true);
                host.Focus();
                other->SetFocus(true);
                host.Paint();
                bool alive = true;
                bool fired = false;
                auto const death = Listen(editor->m_SigDestroy, [&](CVisualElement*) { alive = false; });
                auto const kill = [&] {
                    if (fired)
                        return;
                    fired = true;
                    if (victim == 0)
                        delete editor;
                    else if (victim == 1)
                        host.DestroyControl();
                    else
                        host.DestroyWindow();
                };
                std::unique_ptr<subscriber_base_t> slot;
                CContainer& container = editor->GetEditContainer();
                if (signal == 0)
                    slot = Listen(editor->m_SigEditStarted, [&](CBaseEditor*) { kill(); });
                else if (signal == 1)
                    slot = Listen(editor->m_SigEditFinished, [&](CBaseEditor*, bool) { kill(); });
                else if (signal == 2)
                    slot = Listen(editor->m_SigGetFocus, [&](CVisualElement*) { kill(); });
                else if (signal == 3)
                    slot = Listen(editor->m_SigLostFocus, [&](CVisualElement*) { kill(); });
                else if (signal == 4)
                    slot = Listen(container.m_SigSize, [&](CVisualElement*) { kill(); });
                else if (signal == 5)
                    slot = Listen(container.m_SigVisible, [&](CVisualElement*, bool) { kill(); });
                else
                    slot = Listen(host.Native<CMemoryEdit>()->m_SigFocusIn, [&](ICustomControl*) { kill(); });
                host.Mouse().Click(75, 25);
                if (host.HasWindow())
                {
                    host.Paint();
                    if (auto* const edit = host.Native<CMemoryEdit>())
                        edit->SetFocus();
                    if (key)
                        host.Keyboard().Press(key);
                }
                if (alive && !key)
                    editor->GetEditContainer().SetVisible(false);
                if (host.HasControl())
                {
                    if (host.HasWindow())
                        host.Mouse().Click(10, 95);
                    other->SetFocus(true);
                }
                EXPECT_TRUE(fired || signal == 3 || signal == 4 || (signal == 1 && !key));
            }
        }
    }
}
