#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/layout/container.h"
#include "vexel/platform/native_controls.h"
#include "vexel/signals/notify.h"

namespace vexel
{

/// A place where something is edited: idle until the start of an edit, idle again after its end. It stands in no tree at
/// first; the application gives it parent and place.
class VEXEL_API CBaseEditor : public CVisualElement
{
public:
    enum EditorCommand : int
    {
        ecStart = 0,
        ecAccept = 1,  ///< Ends the edit and keeps the result.
        ecCancel = 2   ///< Ends the edit and drops the result.
    };

    CBaseEditor() : CVisualElement(nullptr, {5, 5}, alNone) {}

    signal_t<CBaseEditor*> m_SigEditStarted;
    signal_t<CBaseEditor*, bool> m_SigEditFinished;  ///< Whether it was accepted. A slot may delete the editor.

public:  // Overridable
    virtual void ProcessEditorCommand(EditorCommand command) = 0;
};

/// An editor that puts a container over itself while it edits. A press of the left button starts the edit.
class VEXEL_API CEditor : public CBaseEditor
{
public:
    CEditor();

    CContainer& GetEditContainer() { return m_EditContainer; }
    CContainer const& GetEditContainer() const { return m_EditContainer; }

public:  // Overridable
    /// Takes off what isn't the text's; own pixels.
    virtual void GetEditorRect(rectangle<double>&) const {}

public:  // From CBaseEditor
    void ProcessEditorCommand(EditorCommand command) override;

public:  // From CVisualElement
    bool HandleButtonDown(int x, int y, int keys, MouseButton button) override;

private:
    CContainer m_EditContainer;
};

/// An editor whose container holds a native control. Return in it accepts, escape cancels.
class VEXEL_API CControlEditor : public CEditor, protected CEditNotify
{
public:
    CControlEditor() = default;

    bool IsHandleKeys() const { return m_HandleKeys; }
    void SetHandleKeys(bool on) { m_HandleKeys = on; }  ///< Whether these two keys count; on at first.

public:  // From CBaseEditor
    void ProcessEditorCommand(EditorCommand command) override;

protected:
    ICustomControl* GetNativeEdit() const { return m_Edit.get(); }
    /// Hides the control and puts it into the container; the one before is let go. `sender`: the same one.
    void TakeNativeEdit(vexel_ptr<ICustomControl> control, IEventSender* sender, rectangle<int> const& offset);
    void RestoreFocus();  ///< The window gets the native focus back where a key has ended the edit.

    // From IEditNotify
    void EditOnKeyDown(CEditKeyDownEvent* event) override;
    void EditOnReturnPress(CEvent* event) override;

private:
    void FinishByKey(EditorCommand command);

    bool m_HandleKeys = true;
    bool m_RestoreFocus = false;
    vexel_ptr<ICustomControl> m_Edit;
    IEventSender* m_Sender = nullptr;  // the control
};

/// Edits a line of text.
class VEXEL_API CLineEditor : public CControlEditor
{
public:
    CLineEditor() = default;

    void Init(ISysWindow* window);  ///< Makes the native field, in place of an earlier one. Null does nothing.
    IEdit* GetEdit() const { return static_cast<IEdit*>(GetNativeEdit()); }  ///< Null before Init.
};

}  // namespace vexel
