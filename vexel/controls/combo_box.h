#pragma once

#include "vexel/controls/bevel.h"
#include "vexel/controls/drop_button.h"
#include "vexel/controls/editor.h"
#include "vexel/core/element_ptr.h"

namespace vexel
{

/// Edits by a native combo box. While it is idle an arrow stands at its right end; a press of it, or alt and down, starts
/// the edit and opens the list. A box that can only choose opens with the start in any way.
class VEXEL_API CComboBox : public CControlEditor
{
public:
    CComboBox() = default;

    /// Makes the native box, with a line to be edited or without, in place of an earlier one, and the arrow. Null does
    /// nothing.
    void Init(ISysWindow* window, bool editable);
    IComboBox* GetComboBox() const { return static_cast<IComboBox*>(GetNativeEdit()); }  ///< Null before Init.
    CComboButton* GetButton() const { return m_Button.get(); }                           ///< Null before Init.
    CBevel* GetBevel() const { return m_Bevel.get(); }                                   ///< Null before Init.

    void OnButtonDown(CVisualElement* element, int x, int y, int keys, MouseButton button);  ///< On the arrow.

public:                                                          // From CEditor
    void GetEditorRect(rectangle<double>& rect) const override;  ///< Without arrow and edge.
    void ProcessEditorCommand(EditorCommand command) override;

public:  // From CVisualElement
    bool HandleKeyDown(int keys, int key) override;

private:
    void ShowDropDown();

    CElementPtr<CComboButton> m_Button;  // children of this element
    CElementPtr<CBevel> m_Bevel;
};

}  // namespace vexel
