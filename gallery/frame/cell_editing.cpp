#include "gallery/frame/cell_editing.h"

#include "vexel/core/control.h"
#include "vexel/platform/sys_window.h"
#include "vexel/views/item_walks.h"

#include <utility>

namespace gallery
{

CCellEditing::CCellEditing(Grid& grid, SCells cells)
    : m_Grid(grid), m_Cells(std::move(cells)), m_Line(new CLineEditor), m_Box(new CComboBox)
{
    AddEditor(*m_Line);
    AddEditor(*m_Box);
    m_Grid.AddEventHandler(&m_Handler);
    m_Grid.m_SigDoubleClick.connect(this, &CCellEditing::GridDoubleClicked);
    m_Grid.m_SigKeyDown.connect(this, &CCellEditing::GridKeyDown);
}

void CCellEditing::AddEditor(CControlEditor& editor)
{
    editor.SetVisible(false);
    editor.ReParent(&m_Grid, false);
    editor.GetEditContainer().SetCanHaveFocus(true);
    editor.GetEditContainer().m_SigLostFocus.connect(this, &CCellEditing::FocusLost);
    editor.m_SigVisible.connect(this, &CCellEditing::EditorShown);
    editor.m_SigEditFinished.connect(this, &CCellEditing::Finished);
}

void CCellEditing::GridDoubleClicked(CVisualElement*, int x, int y, int, MouseButton button)
{
    if (button == mbLeft)
        Edit(Utils::HitTest(m_Grid.GetRowViewModel(), y), Utils::HitTest(m_Grid.GetColumnViewModel(), x));
}

void CCellEditing::GridKeyDown(CVisualElement*, int, int key)
{
    if (key == vkF1 + 1 && !m_Editor)
        Edit(m_Grid.GetRowSelectionModel()->GetCurrent(), Utils::HitTest(m_Grid.GetColumnViewModel(), 1));
}

void CCellEditing::Edit(int row, int column)
{
    ISysWindow* const window = m_Grid.GetControl() ? m_Grid.GetControl()->GetWindow() : nullptr;
    if (!window || row < 0 || column < 0)
        return;
    if (m_Editor)
        m_Editor->ProcessEditorCommand(CBaseEditor::ecAccept);
    m_Row = row;
    m_Column = column;
    rectangle<int> const view = m_Grid.GetBounds();
    range<int> const across = Utils::GetItemIndexRangeEx(m_Grid.GetColumnViewModel(), column, {0, view.right});
    range<int> const down = Utils::GetItemIndexRangeEx(m_Grid.GetRowViewModel(), row, {0, view.bottom});
    rectangle<int> const cell{across.first, down.first, across.second, down.second};

    std::string const text = m_Cells.get(row, column);
    std::vector<std::string> const choices = m_Cells.choices(column);
    if (choices.empty())
    {
        if (!m_Line->GetEdit())
            m_Line->Init(window);
        m_Line->GetEdit()->SetText(text);
        m_Line->GetEdit()->SelectAll();
        Show(*m_Line, cell);
        return;
    }
    if (!m_Box->GetComboBox())
        m_Box->Init(window, false);
    IComboBox* const box = m_Box->GetComboBox();
    box->ClearItems();
    for (std::string const& choice : choices)
        box->AddItem(choice);
    box->SetText(text);
    for (int i = 0; i < box->GetItemCount(); ++i)
        if (choices[static_cast<std::size_t>(i)] == text)
            box->SetCurrentItem(i);
    Show(*m_Box, cell);
}

void CCellEditing::Show(CControlEditor& editor, rectangle<int> const& cell)
{
    m_Editor = &editor;
    editor.SetPos(cell, true);
    editor.SetVisible(true);
    m_Handler.SetEditor(&editor);
    m_Handler.UpdateEditor();
    editor.ProcessEditorCommand(CBaseEditor::ecStart);
    m_Grid.Update(utElement);
}

void CCellEditing::Finished(CBaseEditor*, bool accepted)
{
    CControlEditor* const editor = std::exchange(m_Editor, nullptr);
    if (!editor)
        return;
    ICustomControl const* const native = editor->GetEditContainer().GetNativeControl();
    std::string const text = native ? native->GetText() : std::string();
    m_Handler.SetEditor(nullptr);
    m_Away = false;
    editor->SetVisible(false);
    if (accepted)
        m_Cells.set(m_Row, m_Column, text);
    m_Grid.GetRowViewModel()->AddDirtyItems(m_Row, m_Row);
    m_Grid.Update(utElement);
    m_Grid.SetFocus(true);
    if (accepted)
        m_SigEdited(m_Row, m_Column, text);
}

// Keys go to the grid until the editor is back.
void CCellEditing::EditorHidden()
{
    m_Away = true;
    m_Grid.SetFocus(true);
    m_SigHidden();
}

void CCellEditing::EditorShown(CVisualElement*, bool visible)
{
    if (!visible || !m_Editor || !std::exchange(m_Away, false))
        return;
    m_Editor->GetEditContainer().UpdateControlPos();
    m_Editor->GetEditContainer().ProcessNeedToShow();
    m_Editor->SetFocus(true);
}

void CCellEditing::FocusLost(CVisualElement*)
{
    if (m_Editor && !m_Away)
        m_Editor->ProcessEditorCommand(CBaseEditor::ecAccept);
}

}  // namespace gallery
