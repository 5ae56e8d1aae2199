#pragma once

#include "vexel/controls/combo_box.h"
#include "vexel/controls/editor.h"
#include "vexel/views/editor_event_handler.h"
#include "vexel/views/grid_viewer.h"

#include <functional>
#include <string>
#include <vector>

namespace gallery
{

using namespace vexel;

/// Edits the cells of a grid in place: a double click or F2 puts a line editor or a combo box over the cell, which goes
/// along when the grid scrolls. Return and a click elsewhere keep what was typed, Escape drops it.
class CCellEditing : public subscriber_base_t, private CEditorEventHandler::INotify
{
public:
    using Grid = CGridViewer<IDiscreteItemViewModel, IContinuousItemViewModel>;

    /// Indices are places in the grid. The grid must have its models; it owns the editors.
    struct SCells
    {
        std::function<std::string(int row, int column)> get;
        std::function<void(int row, int column, std::string const& text)> set;
        std::function<std::vector<std::string>(int column)> choices;  ///< None: the cell takes any text.
    };
    CCellEditing(Grid& grid, SCells cells);

    signal_t<int, int, std::string const&> m_SigEdited;  ///< Row, column and what was kept.
    signal_t<> m_SigHidden;                              ///< The editor was scrolled away.

private:
    void GridDoubleClicked(CVisualElement*, int x, int y, int, MouseButton button);
    void GridKeyDown(CVisualElement*, int, int key);
    void Edit(int row, int column);
    void Show(CControlEditor& editor, rectangle<int> const& cell);
    void Finished(CBaseEditor* editor, bool accepted);
    void FocusLost(CVisualElement*);
    void EditorHidden() override;
    void EditorShown(CVisualElement*, bool visible);
    void AddEditor(CControlEditor& editor);

    Grid& m_Grid;
    SCells const m_Cells;
    CEditorEventHandler m_Handler{this};
    CLineEditor* const m_Line;  // children of the grid
    CComboBox* const m_Box;
    CControlEditor* m_Editor = nullptr;  // that is at work
    bool m_Away = false;                 // it was scrolled out of the view
    int m_Row = -1;
    int m_Column = -1;
};

}  // namespace gallery
