// Models, layout, the current tab and toggles, animation.

#include "vexel/controls/tab_pane.h"

#include "vexel/core/control.h"
#include "vexel/core/measure_bracket.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/sys_window.h"
#include "vexel/views/item_walks.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace vexel
{

namespace
{

constexpr double g_MinWidth = 50;  // of equal tabs; times the display scale
constexpr double g_MaxWidth = 100;

ISysWindow* FindWindow(CVisualElement const& element)
{
    return element.GetControl() ? element.GetControl()->GetWindow() : nullptr;
}

}  // namespace

/// While it lives, changes of the view model are noted and not told.
class CTabPane::CLayoutScope
{
public:
    explicit CLayoutScope(CTabPane* pane) : m_Alive(pane), m_Pane(pane), m_Outer(pane->m_LayingOut)
    {
        m_Pane->m_LayingOut = true;
    }
    ~CLayoutScope()
    {
        if (m_Alive)
            m_Pane->m_LayingOut = m_Outer;
    }
    CLayoutScope(CLayoutScope const&) = delete;
    CLayoutScope& operator=(CLayoutScope const&) = delete;

private:
    CAliveGuard m_Alive;
    CTabPane* const m_Pane;
    bool const m_Outer;
};

CTabPane::CTabPane(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : Base(parent, extent, alignment)
{
    m_Transparent = true;
    SetEqualWidths(false);
    GetRowViewModel()->SetCount(1);
    GetRowViewModel()->SetDefaultItemSize(GetSize().height);
    SetSelectionAxis(saColumns);
    SetSelectionType(CEventHandlerBase::stOneItem);
    GetColumnSelectionModel()->m_SigCurrentChanged.connect(this, &CTabPane::CurrentTabChanged);
    GetColumnSelectionModel()->m_SigSelectionChanged.connect(this, &CTabPane::TabSelectionChanged);
    SetUpTooltip();
    SetDefEventHandler(static_cast<CTooltipEventHandler*>(this));
    SetDefEventHandler(static_cast<CDefTabHandler*>(this));
    font bold;
    bold.style = font::fsBold;
    SetFont(bold);
    AttributeChanged();  // scale and height, also where the parent's font is the same
}

// The models go before the handlers that use them, so the pane gets the handler's own back.
CTabPane::~CTabPane()
{
    StopAnimation();
    if (m_Model)
        m_Model->m_SigDestroy.disconnect(this, &CTabPane::ModelDies);
    SetColumnViewModel(nullptr);
}

// Content -------------------------------------------------------------------------------------------------------------------

int CTabPane::GetTabCount() const
{
    return m_Model ? std::max(m_Model->GetTabCount(), 0) : 0;
}

void CTabPane::SetModel(ITabsModel* model)
{
    if (model == m_Model)
        return;
    if (m_Model)
    {
        m_Model->m_SigChanged.disconnect(this, &CTabPane::ModelChanged);
        m_Model->m_SigTabChanged.disconnect(this, &CTabPane::TabChanged);
        m_Model->m_SigDestroy.disconnect(this, &CTabPane::ModelDies);
    }
    m_Model = model;
    if (m_Model)
    {
        m_Model->m_SigChanged.connect(this, &CTabPane::ModelChanged);
        m_Model->m_SigTabChanged.connect(this, &CTabPane::TabChanged);
        m_Model->m_SigDestroy.connect(this, &CTabPane::ModelDies);
    }
    StopAnimation();
    UpdateRepresentation();
}

// Its signals take their connections with them.
void CTabPane::ModelDies(ITabsModel*)
{
    m_Model = nullptr;
    StopAnimation();
    UpdateRepresentation();
}

void CTabPane::SetItemVisualisation(ITabVisualisation* visualisation)
{
    ITabVisualisation* const now = visualisation ? visualisation : this;
    if (now == m_Visualisation)
        return;
    if (m_Visualisation != this)
        m_Visualisation->m_SigVisualisationDestroy.disconnect(this, &CTabPane::VisualisationDies);
    m_Visualisation = now;
    if (m_Visualisation != this)
        m_Visualisation->m_SigVisualisationDestroy.connect(this, &CTabPane::VisualisationDies);
    CAliveGuard const alive(this);
    if (GetControl())
        ApplyAutoRowHeight();
    if (alive && IsLaidOutByItself())
        Layout();
    if (!alive)
        return;
    MarkAllDirty();
    Update(utElement);
}

void CTabPane::VisualisationDies(ITabVisualisation*)
{
    m_Visualisation = this;
    CAliveGuard const alive(this);
    if (GetControl())
        ApplyAutoRowHeight();
    if (!alive)
        return;
    MarkAllDirty();
    Update(utElement);
}

void CTabPane::UpdateRepresentation()
{
    CAliveGuard const alive(this);
    if (m_HotTab >= GetTabCount())
    {
        m_HotTab = -1;
        m_HotOnClose = false;
    }
    GetColumnViewModel()->SetCount(GetTabCount());
    if (alive && IsLaidOutByItself())
        Layout();
    if (alive && m_Model)
        GetColumnViewModel()->SetCount(GetTabCount());
    if (alive && m_Model)
        CheckAnimation();
    if (!alive)
        return;
    RefreshHot();
    MarkAllDirty();
    Update(utElement);
}

void CTabPane::TabChanged(int tab)
{
    CAliveGuard const alive(this);
    if (IsLaidOutByItself())
        Layout();
    if (!alive || !IsTab(tab))
        return;
    MarkTab(tab);
    Update(utElement);
}

// Widths --------------------------------------------------------------------------------------------------------------------

IDiscreteItemViewModel& CTabPane::GetWidthModel(bool equal)
{
    if (equal && !m_EqualModel)
    {
        m_EqualModel = std::make_unique<CEqualItemsViewModel>();
        m_EqualModel->SetItemSizeBounds(ToDevicePixels(g_MinWidth), ToDevicePixels(g_MaxWidth));
        m_EqualModel->SetAnchorModel(GetColumnSelectionModel());
        m_EqualModel->SetAnchorItem(GetStableTab());
        m_EqualModel->m_SigChanged.connect(this, &CTabPane::ViewModelChanged);
    }
    if (!equal && !m_NonEqualModel)
    {
        m_NonEqualModel = std::make_unique<CNonEqualItemsViewModel>();
        m_NonEqualModel->SetAnchorModel(GetColumnSelectionModel());
        m_NonEqualModel->SetAnchorItem(GetStableTab());
        m_NonEqualModel->m_SigChanged.connect(this, &CTabPane::ViewModelChanged);
    }
    if (equal)
        return *m_EqualModel;
    return *m_NonEqualModel;
}

void CTabPane::SetEqualWidths(bool equal)
{
    int const count = GetColumnViewModel()->GetCount();
    IDiscreteItemViewModel& wanted = GetWidthModel(equal);
    CAliveGuard const alive(this);
    bool const other = GetColumnViewModel() != &wanted;
    if (other)
        SetColumnViewModel(&wanted);
    if (alive)
        wanted.SetCount(count);
    if (alive && other)
        ViewModelChanged();  // it begins somewhere else
}

void CTabPane::SetAutoSize(bool on)
{
    m_AutoSize = on;
    if (IsLaidOutByItself())
        Layout();
}

int CTabPane::GetSpacerWidth(int tab) const
{
    if (!IsTab(tab))
        return 0;
    int const width = m_Model->GetTabSpacerWidth(tab);
    if (width > 0)
        return width;
    int const image = m_Model->GetTabSpacerImageIndex(tab);
    IImageList* const images = image >= 0 ? GetImages() : nullptr;
    return images ? images->GetSize(image).width : 0;
}

int CTabPane::GetGap(int tab) const
{
    return GetEqualWidths() || tab >= GetColumnViewModel()->GetCount() - 1 ? 0 : GetSpacerWidth(tab);
}

void CTabPane::Layout()
{
    ISysWindow* const window = FindWindow(*this);
    IPainter* const painter = window ? window->GetPainter() : nullptr;
    if (!m_Model || !painter)
        return;
    int const count = GetTabCount();
    std::vector<int> widths(static_cast<std::size_t>(count));
    int sum = 1;
    {
        CMeasureBracket const measuring(painter, GetFont());
        for (int i = 0; i < count; ++i)
        {
            int width = m_Visualisation->GetItemOptimalWidth(painter, i);
            if (i < count - 1 && !GetEqualWidths())
                width = AddSaturated(width, GetSpacerWidth(i));
            widths[static_cast<std::size_t>(i)] = width;
            sum = AddSaturated(sum, width);
        }
    }
    CAliveGuard const alive(this);
    {
        CLayoutScope const scope(this);
        for (int i = 0; i < count && alive; ++i)
            GetColumnViewModel()->SetItemSize(i, widths[static_cast<std::size_t>(i)]);
        if (alive)
            ApplyAutoRowHeight();
    }
    if (alive && m_ViewModelChanged && !m_LayingOut)
    {
        m_ViewModelChanged = false;
        ViewModelChanged();
    }
    if (alive)
        SetSize({sum, GetRowViewModel()->GetItemSize(0)}, false);
}

// What is marked follows from the new geometry: a gap shows its image while the tab behind it is wholly in view.
void CTabPane::ViewModelChanged()
{
    if (m_LayingOut)
    {
        m_ViewModelChanged = true;
        return;
    }
    IDiscreteItemViewModel* const view = GetColumnViewModel();
    int const count = view->GetCount();
    int const last = Utils::GetLastVisibleItem(view);
    if (IsOverPicture())
        MarkAllDirty();                                         // what shows through the tabs doesn't move with them
    else if (view->GetItemType(0) != IDirtyItemSet::dirtyNone)  // a tab before the view changes nothing in it
    {
        if (last != m_LastVisible)
            view->AddDirtyItems(std::min(last, m_LastVisible), std::max(last, m_LastVisible) - 1);
        view->AddDirtyItems(count, count);  // the area behind the tabs
    }
    if (m_Visualisation != this)
        GetRowViewModel()->AddDirtyItems(1, 1);  // the area below them may be no plain one
    m_LastVisible = last;
    m_SigScrollStateChanged(this, view->GetStartItem() > 0, last < count - 1);
}

// The current tab, toggles, the view ----------------------------------------------------------------------------------------

void CTabPane::ColumnSelectionModelChanged(ISelectionModel* old, ISelectionModel* now)
{
    if (old == now)
        return;
    if (old)
    {
        old->m_SigCurrentChanged.disconnect(this, &CTabPane::CurrentTabChanged);
        old->m_SigSelectionChanged.disconnect(this, &CTabPane::TabSelectionChanged);
    }
    now->m_SigCurrentChanged.connect(this, &CTabPane::CurrentTabChanged);
    now->m_SigSelectionChanged.connect(this, &CTabPane::TabSelectionChanged);
    if (m_EqualModel)
        m_EqualModel->SetAnchorModel(now);
    if (m_NonEqualModel)
        m_NonEqualModel->SetAnchorModel(now);
}

void CTabPane::CurrentTabChanged(int old, int now)
{
    if (!m_Toggled)
        m_SigCurrentTabChanged(this, now, old, true);
}

void CTabPane::TabSelectionChanged()
{
    int const current = GetCurrentTab();
    if (m_Toggled)
        m_SigCurrentTabChanged(this, current, current, GetColumnSelectionModel()->IsItemSelected(current));
}

void CTabPane::SetCurrentTab(int tab)
{
    ISelectionModel* const model = GetColumnSelectionModel();
    int const old = model->GetCurrent();
    int const now = std::max(tab, -1);
    if (now == old)
        return;
    CAliveGuard const alive(this);
    auto const isOvertaken = [&] { return !alive || GetColumnSelectionModel() != model || model->GetCurrent() != now; };
    model->SetCurrent(now);
    if (isOvertaken())
        return;
    for (int const item : {now, old})
        if (item >= 0)
            model->AddDirtyItems(item, item);
    if (!m_Toggled)
    {
        model->SelectItem(old, false);
        if (isOvertaken())
            return;
        model->SelectItem(now, true);
        if (isOvertaken())
            return;
    }
    GetColumnHandler().CurrentItemToView();
    if (alive)
        Update(utElement);
}

void CTabPane::SetToggled(bool on)
{
    m_Toggled = on;
    SetSelectionType(on ? CEventHandlerBase::stFree : CEventHandlerBase::stOneItem);
}

void CTabPane::ToggleTab(int tab, bool on)
{
    if (m_Toggled && IsTab(tab) && GetColumnSelectionModel()->IsItemSelected(tab) != on)
        GetColumnSelectionModel()->SelectItem(tab, on);
}

bool CTabPane::IsTabToggled(int tab) const
{
    return m_Toggled && GetColumnSelectionModel()->IsItemSelected(tab);
}

void CTabPane::SetStableTab(int tab)
{
    if (m_EqualModel)
        m_EqualModel->SetAnchorItem(tab);
    if (m_NonEqualModel)
        m_NonEqualModel->SetAnchorItem(tab);
}

int CTabPane::GetStableTab() const
{
    if (GetEqualWidths())
        return m_EqualModel->GetAnchorItem();
    return m_NonEqualModel ? m_NonEqualModel->GetAnchorItem() : -1;
}

void CTabPane::SetFirstVisibleTab(int tab)
{
    if (tab >= 0 && tab < GetColumnViewModel()->GetCount())
        GetColumnViewModel()->SetStartItem(tab);
}

// Place, control ------------------------------------------------------------------------------------------------------------

void CTabPane::SetPos(rectangle<int> const& rect, bool force)
{
    auto const isRowFitting = [this] { return GetRowViewModel()->GetItemSize(0) - 1 <= GetBounds().bottom; };
    bool const fitted = isRowFitting();
    rectangle<int> const old = GetPos();
    CAliveGuard const alive(this);
    Base::SetPos(rect, force);
    if (!alive)
        return;
    if (isRowFitting() != fitted || ((force || GetPos() != old) && IsOverPicture()))
        MarkAllDirty();
}

void CTabPane::AttributeChanged()
{
    m_Scale = GetSizeScale() * GetSystemScale();
    Base::AttributeChanged();
}

void CTabPane::SetUpTooltip()
{
    SetWindow(FindWindow(*this));
}

void CTabPane::ProcessSetControl(IControl* control)
{
    Base::ProcessSetControl(control);
    StopAnimation();
    SetWindow(nullptr);
}

void CTabPane::AfterSetControl()
{
    CAliveGuard const alive(this);
    Base::AfterSetControl();
    if (!alive)
        return;
    SetUpTooltip();
    if (IsLaidOutByItself())
        Layout();
    if (alive)
        CheckAnimation();
}

void CTabPane::HandleControlDestroy()
{
    StopAnimation();
    SetWindow(nullptr);
    Base::HandleControlDestroy();
}

// Animation -----------------------------------------------------------------------------------------------------------------

void CTabPane::StopAnimation()
{
    if (!m_Animation)
        return;
    // A step that is on its way finds nobody any more.
    m_Animation->StopAnimation();
    m_Animation->SetUpdater(nullptr);
    m_Animation->SetAnimation(nullptr);
    m_Animation->SetProcessSynchronizer(nullptr);
    m_Animated = nullptr;
}

void CTabPane::CheckAnimation()
{
    StopAnimation();
    ISysWindow* const window = FindWindow(*this);
    vexel_ptr<IAnimation> const animation = m_Model ? m_Model->GetAnimation() : nullptr;
    if (!window || !animation)
        return;
    int const count = GetTabCount();
    int first = 0;
    while (first < count && !m_Model->IsTabAnimated(first))
        ++first;
    if (first == count)
        return;
    if (!m_Animation)
        m_Animation = CreateAnimationProcess();
    if (!m_Animation)
        return;
    m_Animated = animation;
    vexel_ptr<IAnimationProcess> const process = m_Animation;  // the first frame is shown within the start
    process->SetProcessSynchronizer(window);
    process->SetUpdater(this);
    process->SetAnimation(animation.get());
    process->StartAnimation();
}

void CTabPane::UpdateAnimation()
{
    IDiscreteItemViewModel const* const view = GetColumnViewModel();
    int const count = std::min(GetTabCount(), view->GetCount());
    bool shown = false;
    std::int64_t position = 0;
    for (int i = view->GetStartItem(); i < count && position <= view->GetViewSize(); ++i)
    {
        position += std::max(view->GetItemSize(i), 1);
        if (!ShowsAnimation(i))
            continue;
        MarkTab(i);
        shown = true;
    }
    if (shown)
        Update(utElement);
}

}  // namespace vexel
