// What the handlers of discrete and of continuous items share.

#include "vexel/views/item_event_handler.h"

#include "vexel/platform/painter.h"
#include "vexel/views/item_walks.h"

#include <algorithm>

namespace vexel
{

template <class Model>
CItemEventHandler<Model>::CItemEventHandler()
    : m_DefViewModel(std::make_unique<DefaultModel>()), m_DefSelectionModel(std::make_unique<CDefaultSelectionModel>())
{
    SetViewModel(nullptr);
    SetSelectionModel(nullptr);
}

// The own models die with this object and need not tell it.
template <class Model> CItemEventHandler<Model>::~CItemEventHandler()
{
    m_ViewModel->m_SigDestroy.disconnect(this, &CItemEventHandler::ViewModelDies);
    m_SelectionModel->m_SigDestroy.disconnect(this, &CItemEventHandler::SelectionModelDies);
    m_ViewModel->m_SigSizeChanged.disconnect(this, &CItemEventHandler::ViewModelScrolls);
    m_ViewModel->m_SigChanged.disconnect(this, &CItemEventHandler::OnViewModelChange);
    m_ViewModel->m_SigAllStale.disconnect(this, &CItemEventHandler::ViewModelStale);
    DisconnectSelection(m_SelectionModel);
}

template <class Model> void CItemEventHandler<Model>::SetViewModel(Model* model)
{
    Model* const now = model ? model : m_DefViewModel.get();
    if (now == m_ViewModel)
        return;
    if (m_ViewModel)
    {
        m_ViewModel->m_SigSizeChanged.disconnect(this, &CItemEventHandler::ViewModelScrolls);
        m_ViewModel->m_SigChanged.disconnect(this, &CItemEventHandler::OnViewModelChange);
        m_ViewModel->m_SigAllStale.disconnect(this, &CItemEventHandler::ViewModelStale);
        m_ViewModel->m_SigDestroy.disconnect(this, &CItemEventHandler::ViewModelDies);
    }
    m_ViewModel = now;
    m_ViewModel->m_SigSizeChanged.connect(this, &CItemEventHandler::ViewModelScrolls);
    m_ViewModel->m_SigChanged.connect(this, &CItemEventHandler::OnViewModelChange);
    m_ViewModel->m_SigAllStale.connect(this, &CItemEventHandler::ViewModelStale);
    m_ViewModel->m_SigDestroy.connect(this, &CItemEventHandler::ViewModelDies);
}

template <class Model> void CItemEventHandler<Model>::SetSelectionModel(ISelectionModel* model)
{
    ISelectionModel* const now = model ? model : m_DefSelectionModel.get();
    if (now == m_SelectionModel)
        return;
    if (m_SelectionModel)
    {
        DisconnectSelection(m_SelectionModel);
        m_SelectionModel->m_SigDestroy.disconnect(this, &CItemEventHandler::SelectionModelDies);
    }
    m_SelectionModel = now;
    ConnectSelection(m_SelectionModel);
    m_SelectionModel->m_SigDestroy.connect(this, &CItemEventHandler::SelectionModelDies);
}

// Its signals take their connections with them.
template <class Model> void CItemEventHandler<Model>::ViewModelDies(IBaseItemsModel*)
{
    m_ViewModel = nullptr;
    SetViewModel(nullptr);
}

template <class Model> void CItemEventHandler<Model>::SelectionModelDies(IBaseItemsModel*)
{
    m_SelectionModel = nullptr;
    SetSelectionModel(nullptr);
}

template <class Model> bool CItemEventHandler<Model>::PressItem(int item, int keys)
{
    constexpr int modifiers = 0xff00;
    CAlivePtr<CEventHandler> const alive(this);
    int const before = GetCurrent();
    bool acted = false;
    if (item < 0)
    {
        // no item was hit, and nothing becomes current; with control the press is taken all the same
    }
    else if (item != before)
    {
        SetCurrentItem(item);
        if (alive)
            ShowNewCurrent(before);
        if (alive)
            ProcessItemChange(before, GetCurrent(), keys & modifiers, m_SelectionModel);
        acted = true;
    }
    else if ((keys & modifiers) == 0)
    {
        Reselect(item, m_SelectionModel);
        acted = true;
    }
    if (alive && (keys & ksControl) && GetSelectionType() == stFree)
    {
        ToggleItem(item);
        acted = true;
    }
    return acted;
}

template <class Model> int CItemEventHandler<Model>::GetItemIndex(int x, int y)
{
    return Utils::HitTest(m_ViewModel, AlongOf(x, y));
}

template <class Model>
bool CItemEventHandler<Model>::ProcessMouseMove(int x, int y, int keys, MouseButton button, bool* handled)
{
    CAlivePtr<CEventHandler> const alive(this);
    CEventHandlerBase::ProcessMouseMove(x, y, keys, button, handled);
    if (!alive || !IsDragging(keys, button))
        return false;
    return DragTo(GetItemIndex(x, y), x, y, button, handled);
}

template <class Model> bool CItemEventHandler<Model>::ProcessKeyDown(int keys, int key, bool*)
{
    CAlivePtr<CEventHandler> const alive(this);
    if (SelectAll(keys, key))
        return true;
    m_FromKeyboard = true;
    int const before = GetCurrent();
    if (key == vkSpace)
    {
        if (GetSelectionType() != stNone)
            ToggleItem(before);
    }
    else if (!MoveByKey(key))
    {
        return false;
    }
    if (alive)
        FollowCurrent(before, keys);
    return true;
}

template <class Model> void CItemEventHandler<Model>::DrawItems(IPainter* painter, SSpan const& span)
{
    if (!painter || !m_Painter)
        return;
    Model const* const model = m_ViewModel;
    ISelectionModel const* const selection = m_SelectionModel;
    int const count = model->GetCount();
    int const current = selection->GetCurrent();
    bool const lastStretched = model->IsLastItemStretched();
    bool const all = painter->IsFullPaint();

    CAlivePtr<CEventHandler> const alive(this);
    CModelGuard const modelAlive(model);
    CModelGuard const selectionAlive(selection);
    int skip = span.skip;
    double position = span.from;
    for (int i = span.first; i >= 0 && i < count && position <= span.to; ++i)
    {
        double end = position + std::max(model->GetItemSize(i) - skip, 1) - 1;
        if (lastStretched && i == count - 1)
            end = std::max(span.stretchedEnd, end);
        int const state = (selection->IsItemSelected(i) ? isSelected : 0) | (i == current ? isCurrent : 0);
        IDirtyItemSet::DirtyType const dirty =
            all ? IDirtyItemSet::dirtyItem : std::min(model->GetItemType(i), selection->GetItemType(i));
        m_Painter->DrawItem(painter, i, skip, state, m_Layout->MakeRect(position, span.near, end, span.far), dirty);
        if (!alive || !modelAlive || !selectionAlive)
            return;
        skip = 0;
        position = end + 1;
    }
    if (!(lastStretched && count > 0) && position <= span.to)
        m_Painter->DrawEmptyArea(painter, m_Layout->MakeRect(position, span.near, span.to, span.far));
}

template class CItemEventHandler<IDiscreteItemViewModel>;
template class CItemEventHandler<IContinuousItemViewModel>;

}  // namespace vexel
