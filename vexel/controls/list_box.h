#pragma once

#include "vexel/controls/border.h"
#include "vexel/controls/highlighting_handler.h"
#include "vexel/headers/items_model.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/views/row_viewer.h"

namespace vexel
{

/// Draws a row in a list box's place. Not owned by the list box; must outlive its use.
class VEXEL_API IListBoxItemDrawing
{
public:
    virtual ~IListBoxItemDrawing();
    /// `state`: isSelected and isCurrent. The ground is drawn. `*drawDefault`, true at first: whether the list box
    /// draws the rest. The rectangle is in the viewer's pixels, and begins left of it where the list is scrolled.
    virtual void DrawItem(IPainter* painter, int item, int state, rectangle<double> const& rect, bool* drawDefault) = 0;
};

/// The handler of a list box: keys that it doesn't take go on.
class VEXEL_API CDefListBoxHandler : public CHighlightingHandler
{
public:  // From CEventHandler
    bool ProcessKeyDown(int keys, int key, bool* handled) override;
};

/// The rows of a list box. The one under the pointer is highlighted, and a press chooses that; with no pointer over them
/// the chosen one is. Space and return activate.
class VEXEL_API CListBoxViewer : public CRowViewer<IDiscreteItemViewModel>, public CDefListBoxHandler
{
public:
    CListBoxViewer(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    signal_t<int> m_SigItemActivated;  ///< A row was chosen, by press, key or SetCurrentItemEx; -1: by a key, but none.

    // What it shows: not owned; a model that dies is forgotten -------------------------------------------------------------
    void SetModel(IItemsModel* model);  ///< Null: no rows.
    IItemsModel* GetModel() const { return m_Model; }
    void ModelChanged();                                               ///< Takes its number of rows. Connected to it.
    void SetItemDrawing(IListBoxItemDrawing* drawing);                 ///< Null: none.
    COneItemViewModel& GetHorzViewModel() { return m_HorzViewModel; }  ///< Its item is as wide as the widest line.
    /// Of the widest line; what is wider than the view scrolls.
    void SetLineWidth(int pixels);

    // Choice ------------------------------------------------------------------------------------------------------------------
    int GetCurrentItem() const { return GetRowSelectionModel()->GetCurrent(); }  ///< -1: none.
    void SetCurrentItem(int item);    ///< It alone is selected then. Below 0: none.
    void SetCurrentItemEx(int item);  ///< Likewise, and activates it, also where it is the current one already.
    int GetHotItem() const { return m_HotItem; }  ///< Under the pointer; -1: none.

public:  // From CDefListBoxHandler
    bool SetCurProcessButtonDown(int x, int y, int keys, MouseButton button, bool* handled) override;
    bool HighlightingMouseMove(int x, int y, int keys, MouseButton button, bool* handled) override;
    void HighlightingMouseLeave(bool* handled) override;
    bool SetCurProcessKeyDown(int key) override;

public:  // From CRowViewer
    void DrawRow(IPainter* painter, int row, int skip, int state, rectangle<double> const& rect,
                 IDirtyItemSet::DirtyType dirty) override;
    void DrawRowEmptyArea(IPainter* painter, rectangle<double> const& rect) override;

protected:
    bool IsPartlyDirty() const override;

private:
    void ModelDies(IItemsModel* model);
    void SetHotItem(int item);
    void MarkShownSelection();

    CContinuousItemEventHandler m_HorzHandler;
    CContinuousItemScrollModel m_HorzScrollModel;
    COneItemViewModel m_HorzViewModel;
    IItemsModel* m_Model = nullptr;
    IListBoxItemDrawing* m_ItemDrawing = nullptr;
    int m_HotItem = -1;
};

/// A framed list of lines with scroll bars.
class VEXEL_API CListBox : public CBorder
{
public:
    CListBox(CVisualElement* parent, size<int> const& extent, Alignment alignment);

    CScrollBox& GetScrollBox() { return m_ScrollBox; }
    CListBoxViewer& GetViewer() { return m_Viewer; }
    CListBoxViewer const& GetViewer() const { return m_Viewer; }

private:
    CScrollBox m_ScrollBox;
    CListBoxViewer m_Viewer;
};

}  // namespace vexel
