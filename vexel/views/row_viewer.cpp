#include "vexel/views/row_viewer.h"

#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

#include <limits>

namespace vexel
{

namespace
{

constexpr int s_AllItems = std::numeric_limits<int>::max();

}  // namespace

template <class Model>
CRowViewerBase<Model>::CRowViewerBase(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CViewerBase(parent, extent, alignment)
{
    SetCanHaveFocus(true);
    m_RowHandler.SetViewer(this);
    m_RowHandler.SetPainter(static_cast<IRowPainter*>(this));
    m_RowHandler.SetDirection(idVertical);
    m_RowHandler.m_SigCurrentChanging.connect(this, &CRowViewerBase::CurrentChange);
    m_RowHandler.m_SigSelectionChanged.connect(this, &CRowViewerBase::SelectionChange);
    SetDefEventHandler(&m_RowHandler);
    CViewerBase::SetVertScroll(&m_RowScrollModel);
    SetRowViewModel(nullptr);
    SetRowSelectionModel(nullptr);
}

template <class Model> CRowViewerBase<Model>::~CRowViewerBase()
{
    m_RowViewModel->m_SigDestroy.disconnect(this, &CRowViewerBase::RowViewModelDies);
    m_RowSelectionModel->m_SigDestroy.disconnect(this, &CRowViewerBase::RowSelectionModelDies);
}

// Models --------------------------------------------------------------------------------------------------------------------

template <class Model> void CRowViewerBase<Model>::SetRowViewModel(Model* model)
{
    m_RowHandler.SetViewModel(model);
    Model* const now = m_RowHandler.GetViewModel();
    if (now != m_RowViewModel)
    {
        if (m_RowViewModel)
            m_RowViewModel->m_SigDestroy.disconnect(this, &CRowViewerBase::RowViewModelDies);
        m_RowViewModel = now;
        m_RowViewModel->m_SigDestroy.connect(this, &CRowViewerBase::RowViewModelDies);
    }
    CAliveGuard const alive(this);
    m_RowScrollModel.SetViewModel(now);
    now->SetViewSize(GetBounds().bottom, true);
    if (!alive || now != m_RowViewModel)
        return;
    RowViewModelChanged(now);
    if (!alive)
        return;
    if (GetControl())
        ApplyAutoRowHeight();
    if (!alive)
        return;
    m_RowHandler.UpdateScroll();
    if (alive)
        Update(utElement);
}

template <class Model> void CRowViewerBase<Model>::SetRowSelectionModel(ISelectionModel* model)
{
    m_RowHandler.SetSelectionModel(model);
    ISelectionModel* const now = m_RowHandler.GetSelectionModel();
    ISelectionModel* const old = m_RowSelectionModel;
    if (now != old)
    {
        if (old)
            old->m_SigDestroy.disconnect(this, &CRowViewerBase::RowSelectionModelDies);
        m_RowSelectionModel = now;
        m_RowSelectionModel->m_SigDestroy.connect(this, &CRowViewerBase::RowSelectionModelDies);
    }
    CAliveGuard const alive(this);
    RowSelectionModelChanged(old, now);
    if (!alive)
        return;
    MarkAllDirty();
    Update(utElement);
    if (alive && GetControl())
        ApplyAutoRowHeight();
}

// The handler has gone back to its own model already.
template <class Model> void CRowViewerBase<Model>::RowViewModelDies(IBaseItemsModel*)
{
    m_RowViewModel = nullptr;
    m_RowScrollModel.SetViewModel(nullptr);
    SetRowViewModel(nullptr);
}

template <class Model> void CRowViewerBase<Model>::RowSelectionModelDies(IBaseItemsModel*)
{
    m_RowSelectionModel = nullptr;
    SetRowSelectionModel(nullptr);
}

template <class Model> void CRowViewerBase<Model>::SetVertScroll(IScrollModel* model)
{
    CViewerBase::SetVertScroll(model ? model : &m_RowScrollModel);
}

template <class Model> void CRowViewerBase<Model>::SetSelectionType(CEventHandlerBase::SelectionType type)
{
    if (type == m_SelectionType)
        return;
    CAliveGuard const alive(this);
    RestartSelection(m_RowHandler, true, type);
    if (!alive)
        return;
    m_SelectionType = type;
    SelectionTypeChanged(type);
}

// `selects`: the handler's items are those that are selected by the type.
template <class Model>
void CRowViewerBase<Model>::RestartSelection(CEventHandlerBase& handler, bool selects,
                                             CEventHandlerBase::SelectionType type)
{
    ISelectionModel* const model = handler.GetItemSelectionModel();
    if (!model)
        return;
    CAlivePtr<CEventHandler> const alive(&handler);
    CModelGuard const modelAlive(model);
    model->ClearSelection();
    if (!selects || !alive)
        return;
    handler.SetSelectionType(type);
    if (type != CEventHandlerBase::stNone && modelAlive)
        model->SelectItem(model->GetCurrent(), true);
}

// The height of rows --------------------------------------------------------------------------------------------------------

template <class Model> int CRowViewerBase<Model>::CalculateDefaultRowHeight() const
{
    int const line = GetTextLineHeight();
    return line > 0 ? line + ToInt(GetSystemScale()) : 0;
}

template <class Model> void CRowViewerBase<Model>::SetAutoRowHeight(bool on)
{
    m_AutoRowHeight = on;
    if (GetControl())
        ApplyAutoRowHeight();
}

template <class Model> void CRowViewerBase<Model>::ApplyAutoRowHeight()
{
    int const height = m_AutoRowHeight ? CalculateDefaultRowHeight() : 0;
    if (height == 0)
        return;
    int const size = height + GetRowMargin();
    if (size != m_RowViewModel->GetDefaultItemSize())
        m_RowViewModel->SetDefaultItemSize(size);
}

template <class Model> void CRowViewerBase<Model>::AfterSetControl()
{
    CAliveGuard const alive(this);
    CViewerBase::AfterSetControl();
    if (alive)
        ApplyAutoRowHeight();
}

template <class Model> void CRowViewerBase<Model>::AttributeChanged()
{
    CAliveGuard const alive(this);
    ApplyAutoRowHeight();
    if (!alive)
        return;
    MarkAllDirty();
    OnChange(this, utElement);
}

// Paint ---------------------------------------------------------------------------------------------------------------------

template <class Model> void CRowViewerBase<Model>::MarkAllDirty()
{
    m_RowViewModel->AddDirtyItems(0, s_AllItems);
}

template <class Model> bool CRowViewerBase<Model>::IsPartlyDirty() const
{
    return m_RowViewModel->GetItemType(0) != IDirtyItemSet::dirtyNone ||
           m_RowSelectionModel->GetItemType(0) != IDirtyItemSet::dirtyNone;
}

// A view that has moved, or whose rows have become wider, has nothing that still stands.
template <class Model> void CRowViewerBase<Model>::SetPos(rectangle<int> const& rect, bool force)
{
    rectangle<int> const old = GetPos();
    CAliveGuard const alive(this);
    CViewerBase::SetPos(rect, force);
    if (!alive)
        return;
    rectangle<int> const& now = GetPos();
    if (now.LeftTop() != old.LeftTop() || (DependsOnWidth() && now.right != old.right))
        MarkAllDirty();
}

template <class Model> void CRowViewerBase<Model>::SetEnabled(bool enabled)
{
    if (enabled != IsEnabled())
        MarkAllDirty();
    CViewerBase::SetEnabled(enabled);
}

template <class Model> void CRowViewerBase<Model>::OnDraw(IPainter* painter)
{
    // Where the view or an ancestor has moved, its pixels may have been lost on the way, under those of a neighbour.
    point<int> origin;
    ElementToControl(&origin);
    if ((IsDrawnWithParent() || origin != m_DrawnAt) && IsPartlyDirty())
        MarkAllDirty();
    m_DrawnAt = origin;
    CViewerBase::OnDraw(painter);
}

template <class Model> void CRowViewerBase<Model>::ProcessEndDraw()
{
    m_RowViewModel->OnEndDraw();
    m_RowSelectionModel->OnEndDraw();
}

template <class Model> void CRowViewerBase<Model>::ProcessSetVisible(bool)
{
    m_RowViewModel->AddDirtyItems(0, m_RowViewModel->GetCount());
}

template <class Model> void CRowViewerBase<Model>::ProcessSetParentVisible(bool)
{
    m_RowViewModel->AddDirtyItems(0, m_RowViewModel->GetCount());
}

// While only the selection has changed, what lies behind the last row stands on the screen already.
template <class Model> void CRowViewerBase<Model>::DrawRowEmptyArea(IPainter* painter, rectangle<double> const& rect)
{
    if (m_RowViewModel->GetItemType(0) == IDirtyItemSet::dirtyNone &&
        m_RowSelectionModel->GetItemType(0) != IDirtyItemSet::dirtyNone && !painter->IsFullPaint())
        return;
    painter->SetBrush({GetBkColor(), brush::bsSolid});
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
}

template class CRowViewerBase<IDiscreteItemViewModel>;
template class CRowViewerBase<IContinuousItemViewModel>;
template class CRowViewer<IDiscreteItemViewModel>;
template class CRowViewer<IContinuousItemViewModel>;

}  // namespace vexel
