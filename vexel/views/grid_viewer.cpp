#include "vexel/views/grid_viewer.h"

#include "vexel/platform/painter.h"

#include <algorithm>

namespace vexel
{

template <class RowModel, class ColumnModel>
CGridViewer<RowModel, ColumnModel>::CGridViewer(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : Base(parent, extent, alignment)
{
    m_ColumnHandler.SetViewer(this);
    m_ColumnHandler.SetPainter(static_cast<IColumnPainter*>(this));
    m_ColumnHandler.SetDirection(idHorizontal);
    m_ColumnHandler.m_SigCurrentChanging.connect(this, &CGridViewer::ColumnCurrentChange);
    m_ColumnHandler.m_SigSelectionChanged.connect(this, &CGridViewer::ColumnSelectionChange);
    Base::SetHorzScroll(&m_ColumnScrollModel);
    SetColumnViewModel(nullptr);
    SetColumnSelectionModel(nullptr);
    Base::RestartSelection(this->GetRowHandler(), true, this->GetSelectionType());
    Base::RestartSelection(m_ColumnHandler, true, CEventHandlerBase::stNone);
}

template <class RowModel, class ColumnModel> CGridViewer<RowModel, ColumnModel>::~CGridViewer()
{
    m_ColumnViewModel->m_SigDestroy.disconnect(this, &CGridViewer::ColumnViewModelDies);
    m_ColumnSelectionModel->m_SigDestroy.disconnect(this, &CGridViewer::ColumnSelectionModelDies);
}

// Models --------------------------------------------------------------------------------------------------------------------

template <class RowModel, class ColumnModel>
void CGridViewer<RowModel, ColumnModel>::SetColumnViewModel(ColumnModel* model)
{
    m_ColumnHandler.SetViewModel(model);
    ColumnModel* const now = m_ColumnHandler.GetViewModel();
    if (now != m_ColumnViewModel)
    {
        if (m_ColumnViewModel)
            m_ColumnViewModel->m_SigDestroy.disconnect(this, &CGridViewer::ColumnViewModelDies);
        m_ColumnViewModel = now;
        m_ColumnViewModel->m_SigDestroy.connect(this, &CGridViewer::ColumnViewModelDies);
    }
    CAliveGuard const alive(this);
    m_ColumnScrollModel.SetViewModel(now);
    now->SetViewSize(this->GetBounds().right, true);
    if (!alive || now != m_ColumnViewModel)
        return;
    ColumnViewModelChanged(now);
    if (!alive)
        return;
    m_ColumnHandler.UpdateScroll();
    if (alive)
        this->Update(utElement);
}

template <class RowModel, class ColumnModel>
void CGridViewer<RowModel, ColumnModel>::SetColumnSelectionModel(ISelectionModel* model)
{
    m_ColumnHandler.SetSelectionModel(model);
    ISelectionModel* const now = m_ColumnHandler.GetSelectionModel();
    ISelectionModel* const old = m_ColumnSelectionModel;
    if (now != old)
    {
        if (old)
            old->m_SigDestroy.disconnect(this, &CGridViewer::ColumnSelectionModelDies);
        m_ColumnSelectionModel = now;
        m_ColumnSelectionModel->m_SigDestroy.connect(this, &CGridViewer::ColumnSelectionModelDies);
    }
    CAliveGuard const alive(this);
    ColumnSelectionModelChanged(old, now);
    if (!alive)
        return;
    this->MarkAllDirty();
    this->Update(utElement);
}

template <class RowModel, class ColumnModel>
void CGridViewer<RowModel, ColumnModel>::ColumnViewModelDies(IBaseItemsModel*)
{
    m_ColumnViewModel = nullptr;
    m_ColumnScrollModel.SetViewModel(nullptr);
    SetColumnViewModel(nullptr);
}

template <class RowModel, class ColumnModel>
void CGridViewer<RowModel, ColumnModel>::ColumnSelectionModelDies(IBaseItemsModel*)
{
    m_ColumnSelectionModel = nullptr;
    SetColumnSelectionModel(nullptr);
}

template <class RowModel, class ColumnModel> void CGridViewer<RowModel, ColumnModel>::SetHorzScroll(IScrollModel* model)
{
    Base::SetHorzScroll(model ? model : &m_ColumnScrollModel);
}

template <class RowModel, class ColumnModel>
void CGridViewer<RowModel, ColumnModel>::SetSelectionType(CEventHandlerBase::SelectionType type)
{
    if (type == this->GetSelectionType())
        return;
    CAliveGuard const alive(this);
    Base::RestartSelection(this->GetRowHandler(), m_SelectionAxis == saRows, type);
    if (alive)
        Base::RestartSelection(m_ColumnHandler, m_SelectionAxis == saColumns, type);
    if (!alive)
        return;
    this->StoreSelectionType(type);
    this->SelectionTypeChanged(type);
}

// Place and paint -----------------------------------------------------------------------------------------------------------

template <class RowModel, class ColumnModel>
void CGridViewer<RowModel, ColumnModel>::SetPos(rectangle<int> const& rect, bool force)
{
    rectangle<int> const old = this->GetBounds();
    CAliveGuard const alive(this);
    Base::SetPos(rect, force);
    if (!alive)
        return;
    if (int const rows = this->GetRowViewModel()->GetCount(); this->GetBounds().right != old.right)
        this->GetRowViewModel()->AddDirtyItems(rows, rows);  // the area behind the rows is wider or narrower
    m_ColumnHandler.ProcessResize(old, this->GetBounds(), false);
}

template <class RowModel, class ColumnModel> void CGridViewer<RowModel, ColumnModel>::ProcessSetVisible(bool visible)
{
    Base::ProcessSetVisible(visible);
    m_ColumnViewModel->AddDirtyItems(0, m_ColumnViewModel->GetCount());
}

template <class RowModel, class ColumnModel>
void CGridViewer<RowModel, ColumnModel>::ProcessSetParentVisible(bool visible)
{
    Base::ProcessSetParentVisible(visible);
    m_ColumnViewModel->AddDirtyItems(0, m_ColumnViewModel->GetCount());
}

template <class RowModel, class ColumnModel> void CGridViewer<RowModel, ColumnModel>::ProcessEndDraw()
{
    Base::ProcessEndDraw();
    m_ColumnViewModel->OnEndDraw();
    m_ColumnSelectionModel->OnEndDraw();
}

template <class RowModel, class ColumnModel> bool CGridViewer<RowModel, ColumnModel>::IsPartlyDirty() const
{
    return Base::IsPartlyDirty() || m_ColumnViewModel->GetItemType(0) != IDirtyItemSet::dirtyNone ||
           m_ColumnSelectionModel->GetItemType(0) != IDirtyItemSet::dirtyNone;
}

template <class RowModel, class ColumnModel>
void CGridViewer<RowModel, ColumnModel>::DrawRow(IPainter* painter, int row, int skip, int state,
                                                 rectangle<double> const& rect, IDirtyItemSet::DirtyType dirty)
{
    m_PaintRow = row;
    m_PaintRowSkip = skip;
    m_PaintRowState = state;
    m_PaintRowDirty = dirty;
    m_ColumnHandler.ProcessDraw(painter, rect);
}

template <class RowModel, class ColumnModel>
void CGridViewer<RowModel, ColumnModel>::DrawColumn(IPainter* painter, int column, int skip, int state,
                                                    rectangle<double> const& rect, IDirtyItemSet::DirtyType dirty)
{
    bool const rowsSelect = this->GetRowHandler().GetSelectionType() != CEventHandlerBase::stNone;
    bool const columnsSelect = m_ColumnHandler.GetSelectionType() != CEventHandlerBase::stNone;
    int const rowMask = rowsSelect ? ~int{isCurrent} | (state & isCurrent) : state & isCurrent;
    int const columnPart = columnsSelect ? state & ~int{isCurrent} : 0;
    this->DrawCell(painter, m_PaintRow, m_PaintRowSkip, column, skip, (rowMask & m_PaintRowState) | columnPart, rect,
                   std::min(m_PaintRowDirty, dirty));  // in a full paint both are dirty
}

template <class RowModel, class ColumnModel>
void CGridViewer<RowModel, ColumnModel>::DrawColumnEmptyArea(IPainter* painter, rectangle<double> const& rect)
{
    // In a row that is clean it stands on the screen already, unless the columns have moved.
    if (m_PaintRowDirty == IDirtyItemSet::dirtyOther && m_ColumnViewModel->GetItemType(0) == IDirtyItemSet::dirtyNone &&
        !painter->IsFullPaint())
        return;
    painter->SetBrush({this->GetBkColor(), brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
}

template class CGridViewer<IDiscreteItemViewModel, IDiscreteItemViewModel>;
template class CGridViewer<IDiscreteItemViewModel, IContinuousItemViewModel>;
template class CGridViewer<IContinuousItemViewModel, IContinuousItemViewModel>;

}  // namespace vexel
