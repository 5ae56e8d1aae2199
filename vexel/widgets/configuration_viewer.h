#pragma once

#include "vexel/views/row_viewer.h"
#include "vexel/widgets/category_visualisation.h"
#include "vexel/widgets/config_model.h"

#include <vector>

namespace vexel
{

/// A scrolling page of configuration categories. The tree of categories becomes rows, each as high as it needs, with a
/// category before those below it. The current row is open: it shows its items, each a label and its editor, which is a
/// child of the viewer meanwhile and moves along when the page scrolls. A category's width is fixed. It scrolls by pixels:
/// in a scroll box, m_SigGetWheelStep tells how many a notch of the wheel is.
class VEXEL_API CConfigurationViewer : public CRowViewer<IContinuousItemViewModel>
{
public:
    CConfigurationViewer(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CConfigurationViewer() override;  ///< Editors are detached: they belong to their items.

    // What it shows: not owned, must outlive its use. Null: no categories, or the default look -----------------------------
    /// Adds the model's categories to the rows and closes the open one. Rows of a model before stay: a viewer takes one
    /// model in its life.
    void SetModel(IConfigModel* model);
    IConfigModel* GetModel() const { return m_Model; }
    void SetVisualisation(ICategoryVis* visualisation);  ///< Repaints; the rows keep their heights.
    ICategoryVis* GetVisualisation() const { return m_Visualisation; }
    int GetCategoryWidth() const { return m_CategoryWidth; }

    // Rows: the open one is the selection model's current one -----------------------------------------------------------------
    IConfigCategory* GetCategoryByRow(int row);  ///< Null outside the range.
    IConfigCategory const* GetCategoryByRow(int row) const;
    void RefreshActiveCategory();  ///< Measures and arranges the open one anew, also by Activate.
    void UpdateAll();              ///< Repaints all rows.

    // Steps -------------------------------------------------------------------------------------------------------------------
    /// The model's categories become rows, whose number is left to the caller. A painter measures them; null: none.
    void FillCategories(IPainter* painter);
    /// The same for what lies below `path`: indices from the model down to this set, none for the model itself.
    void AddCategory(ICategorySet const* set, std::vector<int>& path, IPainter* painter);
    void CategoryChanged(int oldRow, int newRow);  ///< Closes the one, opens the other.
    void ScrollElements(int dx, int dy);           ///< Moves all children.
    void ModelScrolledVert(int position, int delta, bool* moved);
    void ModelScrolledHorz(int position, int delta, bool* moved);

public:  // From CVisualElement and CRowViewer
    void AfterSetControl() override;
    void OnDraw(IPainter* painter) override;  ///< Nothing of the editors is painted beside the viewer.
    void ProcessChange(CVisualElement** element) override;
    void DrawRow(IPainter* painter, int row, int skip, int state, rectangle<double> const& rect,
                 IDirtyItemSet::DirtyType dirty) override;
    void DrawRowEmptyArea(IPainter* painter, rectangle<double> const& rect) override;

private:
    class CUpdating;
    class CTurn;

    ISysWindow* FindWindow() const;
    IPainter* FindPainter() const;
    void MeasureCategories();
    bool IsRow(int row) const;
    void CloseCategory(int row, CTurn const& turn);
    void Collapse(int row, CTurn const& turn);
    void OpenCategory(int row, CTurn const& turn);
    void Expand(int row, CTurn const& turn);
    void Settle(int oldRow, int newRow, CTurn const& turn);
    bool IsOpenEditor(CVisualElement const* element);
    void MoveEditors(int dx, int dy, int from);

    int m_CategoryWidth;  // device pixels
    bool m_Updating = false;
    bool m_Unmeasured = false;  // rows came, or were to open or close, while there was no painter
    int m_OpenRow = -1;         // -1: none
    unsigned int m_Turns = 0;   // openings and closings so far
    IConfigModel* m_Model;
    ICategoryVis* m_Visualisation;
    std::vector<std::vector<int>> m_Categories;  // by row: the way from the model down
};

}  // namespace vexel
