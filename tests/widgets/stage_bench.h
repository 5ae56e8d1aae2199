#pragma once

#include "tests/support/slot.h"
#include "tests/widgets/message_bench.h"
#include "vexel/core/base_control.h"
#include "vexel/widgets/check_stage_gui.h"

#include <functional>
#include <memory>
#include <string>

namespace vexel::test
{

/// Notes what it is told.
class CTestNotify : public IStageNotify
{
public:
    explicit CTestNotify(CSignalLog& log) : m_Log(log) {}

    std::function<void(bool)> m_Deed;

    void Complete(bool ok) override
    {
        m_Log.Note(ok ? "told(true)" : "told(false)");
        if (m_Deed)
        {
            auto const deed = m_Deed;
            deed(ok);
        }
    }

private:
    CSignalLog& m_Log;
};

/// A stage that notes its overridable operations; it fails until it is told otherwise.
class CNotedStage : public CCheckStageGui
{
public:
    explicit CNotedStage(CSignalLog& log) : m_Log(log) {}

    bool m_Fails = true;

    void DoCheck(bool& failed) override
    {
        m_Log.Note(failed ? "check(true)" : "check(false)");
        failed = m_Fails;
    }
    void OnComplete(bool ok) override { m_Log.Note(ok ? "complete(true)" : "complete(false)"); }

private:
    CSignalLog& m_Log;
};

/// A window of 300 x 300 pixels with a pane that takes the focus beside an element that has it, and a stage whose box
/// has the buttons 1 and 2, of which 1 passes. Its words are logged: check, created, result, focus (of the pane),
/// complete and told.
class CStageBench : public testing::Test
{
protected:
    CStageBench()
        : m_Other(*new CVisualElement(m_Host.Root(), {0, 20}, alBottom)),
          m_Pane(*new CVisualElement(m_Host.Root(), {0, 0}, alClient)), m_Stage(std::make_unique<CNotedStage>(m_Log)),
          m_Notify(m_Log)
    {
        NameElement(m_Pane, "pane");
        m_Other.SetCanHaveFocus(true);
        m_Pane.SetCanHaveFocus(true);
        m_Host.Focus();
        m_Other.SetFocus(true);
        m_Host.Paint();
        m_Stage->SetParent(&m_Pane);
        m_Stage->SetMessage(1, "Disk", "About");
        m_Stage->SetButtons(3, 1);
        m_Log.Add(m_Pane.m_SigGetFocus, "focus");
        m_Log.Add(m_Stage->m_Result, "result");
        m_Created = Listen(m_Stage->m_BoxCreated, [this](CMessageBox*) { m_Log.Note("created"); });
    }

    CMessageBox& Box() { return *m_Stage->GetBox(); }
    CVisualElement* Focused() { return m_Host.Control().GetFocusedElement(); }
    int BoxCount() { return m_Pane.GetChildren()->GetCount(); }
    /// Runs the stage and settles the layout.
    void Process()
    {
        m_Stage->Process(&m_Notify);
        m_Host.Paint();
    }
    void Press(int button)
    {
        m_Host.Mouse().Click(ButtonOf(Box(), button), 5, 5);
        m_Host.Paint();
    }
    /// The stage polls every 100 milliseconds.
    void GiveTimer() { m_Stage->SetTimer(CTestHost::System().CreateTimer(100, 0)); }

    CSharedLooks m_Looks;
    CTestHost m_Host{300, 300};
    CVisualElement& m_Other;
    CVisualElement& m_Pane;
    CSignalLog m_Log;
    std::unique_ptr<CNotedStage> m_Stage;
    CTestNotify m_Notify;
    std::unique_ptr<subscriber_base_t> m_Created;
};

}  // namespace vexel::test
