#include "vexel/controls/editor.h"

#include "vexel/core/control.h"
#include "vexel/platform/events.h"
#include "vexel/platform/sys_window.h"

#include <utility>

namespace vexel
{

// Editor --------------------------------------------------------------------------------------------------------------------

CEditor::CEditor() : m_EditContainer(this, {5, 5}, alClient)
{
    m_EditContainer.SetVisible(false);
    m_EditContainer.SetManualControlPositioning(true);
}

void CEditor::ProcessEditorCommand(EditorCommand command)
{
    CAliveGuard const alive(this);
    if (command == ecStart)
        m_SigEditStarted(this);
    else
        m_SigEditFinished(this, command == ecAccept);
    if (!alive)
        return;
    m_EditContainer.SetPos(GetBounds(), true);
    if (!alive)
        return;
    m_EditContainer.SetVisible(command == ecStart);
    if (!alive)
        return;
    if (command != ecStart)
    {
        SetKeyDelegate(nullptr);
        return;
    }
    m_EditContainer.UpdateControlPos();
    m_EditContainer.ProcessNeedToShow();  // what isn't shown gets no native focus
    if (!alive)
        return;
    SetKeyDelegate(&m_EditContainer);
    SetFocus(true);
}

bool CEditor::HandleButtonDown(int, int, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    ProcessEditorCommand(ecStart);
    return true;
}

// Native control --------------------------------------------------------------------------------------------------------------

void CControlEditor::TakeNativeEdit(vexel_ptr<ICustomControl> control, IEventSender* sender,
                                    rectangle<int> const& offset)
{
    if (m_Sender)
        m_Sender->Unsubscribe(this, typeid(IEditNotify), true);
    m_Edit = std::move(control);
    m_Sender = sender;
    m_Sender->Subscribe(this, typeid(IEditNotify), true);
    m_Edit->SetVisible(false);
    GetEditContainer().SetOffset(offset);
    GetEditContainer().SetNativeControl(m_Edit.get());
}

void CControlEditor::ProcessEditorCommand(EditorCommand command)
{
    CAliveGuard const alive(this);
    CEditor::ProcessEditorCommand(command);
    if (alive && command != ecStart)
        RestoreFocus();
}

void CControlEditor::RestoreFocus()
{
    if (!std::exchange(m_RestoreFocus, false))
        return;
    if (ISysWindow* const window = GetControl() ? GetControl()->GetWindow() : nullptr)
        window->SetFocus();
}

void CControlEditor::FinishByKey(EditorCommand command)
{
    if (!m_HandleKeys)
        return;
    m_RestoreFocus = true;
    ProcessEditorCommand(command);
}

void CControlEditor::EditOnReturnPress(CEvent*)
{
    FinishByKey(ecAccept);
}

void CControlEditor::EditOnKeyDown(CEditKeyDownEvent* event)
{
    if (event && event->m_VirtualKey == vkEscape)
        FinishByKey(ecCancel);
}

// Line ------------------------------------------------------------------------------------------------------------------------

void CLineEditor::Init(ISysWindow* window)
{
    if (!window)
        return;
    vexel_ptr<IEdit> const edit = window->CreateEdit(false);
    TakeNativeEdit(edit, edit.get(), {-1, -1, -1, -1});  // over the frame around the editor
}

}  // namespace vexel
