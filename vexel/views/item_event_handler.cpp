// What the handlers of discrete and of continuous items share.

#include "vexel/views/item_event_handler.h"

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

template class CItemEventHandler<IDiscreteItemViewModel>;
template class CItemEventHandler<IContinuousItemViewModel>;

}  // namespace vexel
