#pragma once

#include "vexel/views/row_viewer.h"

namespace vexel
{

/// Rows and columns of cells. Both scroll on their own; a paint walks the columns in view once for each row in view. The
/// column handler is not in the chain: mouse and keys are the row handler's.
/// Each model is an IDiscreteItemViewModel, for items that scroll whole, or an IContinuousItemViewModel, by pixels; columns
/// under a CHeader are of the latter kind.
template <class RowModel, class ColumnModel>
class VEXEL_API CGridViewer : public CRowViewerBase<RowModel>, public IColumnPainter, public ICellPainter
{
public:
    static constexpr bool s_DiscreteColumns = std::is_same_v<ColumnModel, IDiscreteItemViewModel>;
    using ColumnHandler = std::conditional_t<s_DiscreteColumns, CDiscreteItemEventHandler, CContinuousItemEventHandler>;
    using ColumnScrollModel =
        std::conditional_t<s_DiscreteColumns, CDiscreteItemScrollModel, CContinuousItemScrollModel>;

    enum SelectionAxis : int
    {
        saRows = 0,
        saColumns = 1
    };

    CGridViewer(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CGridViewer() override;

    signal_t<> m_SigColumnSelectionChanged;  ///< The column handler's; see its SetNotifySelection.

    // Models of the columns, as those of the rows -----------------------------------------------------------------------
    ColumnModel* GetColumnViewModel() const { return m_ColumnViewModel; }
    void SetColumnViewModel(ColumnModel* model);
    ISelectionModel* GetColumnSelectionModel() const { return m_ColumnSelectionModel; }
    void SetColumnSelectionModel(ISelectionModel* model);
    ColumnHandler& GetColumnHandler() { return m_ColumnHandler; }
    ColumnHandler const& GetColumnHandler() const { return m_ColumnHandler; }

    /// What is selected is forgotten, but for the current item of the axis that selects.
    void SetSelectionType(CEventHandlerBase::SelectionType type);

public:                                                // From CScrollableElement
    void SetHorzScroll(IScrollModel* model) override;  ///< Null: the viewer's own, over its columns.

public:  // From CVisualElement
    void SetPos(rectangle<int> const& rect, bool force) override;
    void ProcessSetVisible(bool visible) override;
    void ProcessSetParentVisible(bool visible) override;

public:  // From CViewerBase and CRowViewerBase
    void ProcessEndDraw() override;
    void DrawRow(IPainter* painter, int row, int skip, int state, rectangle<double> const& rect,
                 IDirtyItemSet::DirtyType dirty) override;

public:  // Overridable
    /// A cell is selected by its row and its column, and current if both are.
    void DrawColumn(IPainter* painter, int column, int skip, int state, rectangle<double> const& rect,
                    IDirtyItemSet::DirtyType dirty) override;
    void DrawColumnEmptyArea(IPainter* painter, rectangle<double> const& rect) override;  ///< Background; in each row.
    virtual void ColumnViewModelChanged(ColumnModel*) {}
    virtual void ColumnSelectionModelChanged(ISelectionModel* /*old*/, ISelectionModel* /*now*/) {}
    virtual void CurrentColumnChanged(int /*old*/, int& /*now*/) {}

protected:
    bool IsPartlyDirty() const override;
    bool DependsOnWidth() const override { return false; }
    SelectionAxis GetSelectionAxis() const { return m_SelectionAxis; }
    void SetSelectionAxis(SelectionAxis axis) { m_SelectionAxis = axis; }  ///< For the next SetSelectionType.

private:
    using Base = CRowViewerBase<RowModel>;

    void ColumnCurrentChange(int old, int& now) { CurrentColumnChanged(old, now); }
    void ColumnSelectionChange() { m_SigColumnSelectionChanged(); }
    void ColumnViewModelDies(IBaseItemsModel* model);
    void ColumnSelectionModelDies(IBaseItemsModel* model);

    ColumnModel* m_ColumnViewModel = nullptr;
    ISelectionModel* m_ColumnSelectionModel = nullptr;
    ColumnHandler m_ColumnHandler;
    ColumnScrollModel m_ColumnScrollModel;
    // Of the row that is being painted
    int m_PaintRow = 0;
    int m_PaintRowSkip = 0;
    int m_PaintRowState = 0;
    IDirtyItemSet::DirtyType m_PaintRowDirty = IDirtyItemSet::dirtyNone;
    SelectionAxis m_SelectionAxis = saRows;
};

extern template class CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>;
extern template class CGridViewer<IDiscreteItemViewModel, IContinuousItemViewModel>;
extern template class CGridViewer<IContinuousItemViewModel, IContinuousItemViewModel>;

}  // namespace vexel
