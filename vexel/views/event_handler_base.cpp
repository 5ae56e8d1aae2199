#include "vexel/views/event_handler_base.h"

#include "vexel/core/control.h"
#include "vexel/core/scroll_on_set_pos.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/sys_window.h"
#include "vexel/views/viewer_base.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace vexel
{

namespace
{

constexpr int s_RepeatInterval = 100;  // milliseconds
constexpr int s_MarkedSingly = 6;      // so many selected items are repainted one by one

int s_SelectionChangeDelay = 0;

}  // namespace

void SetSelectionChangeDelay(int milliseconds)
{
    s_SelectionChangeDelay = milliseconds;
}

int GetSelectionChangeDelay()
{
    return s_SelectionChangeDelay;
}

CEventHandlerBase::CEventHandlerBase()
    : CRepeatableOperation(s_RepeatInterval), m_Layout(CLayoutManager::GetLayout(alTop))
{}

CEventHandlerBase::~CEventHandlerBase() = default;

// Not inline: what the library has connected, only its own copy of the slot's address disconnects.
void CEventHandlerBase::SetViewer(CScrollableElement* viewer)
{
    m_Viewer.Watch(viewer);
}

void CEventHandlerBase::SetDirection(ItemsDirection direction)
{
    m_Direction = direction;
    m_Layout = CLayoutManager::GetLayout(direction == idVertical ? alLeft : alTop);
}

// Geometry ------------------------------------------------------------------------------------------------------------------

int CEventHandlerBase::AlongOf(int x, int y) const
{
    return ToInt(m_Layout->GetAlong(x, y));
}

int CEventHandlerBase::GetLength() const
{
    if (!m_Viewer)
        return 0;
    rectangle<int> const bounds = m_Viewer->GetBounds();
    return AlongOf(bounds.right, bounds.bottom);
}

int CEventHandlerBase::GetItemIndex(int, int)
{
    return -1;
}

bool CEventHandlerBase::IsLastItemExpanded() const
{
    IBaseItemViewModel const* const model = GetItemViewModel();
    return model && model->IsLastItemStretched();
}

bool CEventHandlerBase::ScrollItems(int position, int delta)
{
    CScrollableElement* const viewer = m_Viewer.get();
    IControl* const control = viewer ? viewer->GetControl() : nullptr;
    ISysWindow* const window = control ? control->GetWindow() : nullptr;
    int const length = GetLength();
    if (delta == 0 || !window || !viewer->IsDisplayable() || position < 0 || position >= length ||
        std::abs(std::int64_t{delta}) >= length)
        return false;
    rectangle<int> const content = viewer->GetContentRect();
    if (!CanMovePixels(viewer, content))
    {
        viewer->Invalidate();  // others' pixels would move along
        return false;
    }

    point<double> leftTop{static_cast<double>(content.left), static_cast<double>(content.top)};
    point<double> rightBottom{static_cast<double>(content.right), static_cast<double>(content.bottom)};
    m_Layout->IncAlong(&leftTop, position);
    // What falls out of the view doesn't move.
    if (delta < 0 && position < -delta)
        m_Layout->IncAlong(&leftTop, -static_cast<double>(delta) - position);
    else if (delta > 0)
        m_Layout->IncAlong(&rightBottom, -static_cast<double>(delta));
    if (!(leftTop.x < rightBottom.x && leftTop.y < rightBottom.y))
        return true;

    rectangle<int> area{ToInt(leftTop.x), ToInt(leftTop.y), ToInt(rightBottom.x), ToInt(rightBottom.y)};
    point<double> way;
    m_Layout->IncAlong(&way, delta);
    viewer->ElementToControl(&area);
    area.Normalize();
    window->ScrollPixels(ToInt(way.x), ToInt(way.y), {area.left, area.top, area.right, area.bottom});
    viewer->Invalidate();
    return true;
}

// Changes of the models -----------------------------------------------------------------------------------------------------

void CEventHandlerBase::RequestRepaint()
{
    if (m_Viewer)
        m_Viewer->OnChange(m_Viewer.get(), utElement);
}

void CEventHandlerBase::MarkAll(IBaseItemsModel* model)
{
    if (!model)
        return;
    model->AddDirtyItems(0, std::numeric_limits<int>::max());
    RequestRepaint();
}

void CEventHandlerBase::SelectionModelStale()
{
    MarkAll(GetItemSelectionModel());
}

void CEventHandlerBase::UpdateScroll()
{
    if (!m_Viewer)
        return;
    IScrollModel* const model = m_Direction == idVertical ? m_Viewer->GetVertScroll() : m_Viewer->GetHorzScroll();
    if (model)
        model->Update();
}

void CEventHandlerBase::UpdateLastItem()
{
    IBaseItemViewModel* const model = GetItemViewModel();
    if (!model || !model->IsLastItemStretched())
        return;
    int const last = SubtractSaturated(model->GetCount(), 1);
    model->AddDirtyItems(last, last);
}

void CEventHandlerBase::OnViewModelChange()
{
    CAlivePtr<CEventHandler> const alive(this);
    UpdateScroll();
    if (!alive)
        return;
    UpdateLastItem();
    RequestRepaint();
}

void CEventHandlerBase::ConnectSelection(ISelectionModel* model)
{
    model->m_SigAllStale.connect(this, &CEventHandlerBase::SelectionModelStale);
    model->m_SigChanged.connect(this, &CEventHandlerBase::OnSelectionModelChange);
    model->m_SigSelectionChanged.connect(this, &CEventHandlerBase::OnSelectionModelChange);
}

void CEventHandlerBase::DisconnectSelection(ISelectionModel* model)
{
    model->m_SigAllStale.disconnect(this, &CEventHandlerBase::SelectionModelStale);
    model->m_SigChanged.disconnect(this, &CEventHandlerBase::OnSelectionModelChange);
    model->m_SigSelectionChanged.disconnect(this, &CEventHandlerBase::OnSelectionModelChange);
}

void CEventHandlerBase::OnSelectionModelChange()
{
    CAlivePtr<CEventHandler> const alive(this);
    RequestRepaint();
    if (!alive)
        return;
    if (ISelectionModel const* const model = GetItemSelectionModel())
    {
        int const current = model->GetCurrent();
        if (current >= 0 && model->GetSelectedCount() == 1 && model->IsItemSelected(current))
            m_Anchor = current;
    }
    if (!m_NotifySelection)
        return;
    ISysWindow const* const window = m_Viewer && m_Viewer->GetControl() ? m_Viewer->GetControl()->GetWindow() : nullptr;
    if (m_NotifyPending && m_PostedTo == window)
    {
        if (m_FromKeyboard && m_Postponed)
            m_Postponed->Schedule();  // the delay counts from the last step
        return;
    }
    m_NotifyPending = true;
    PostSelectionChanged();
}

void CEventHandlerBase::PostSelectionChanged()
{
    ISysWindow* const window = m_Viewer && m_Viewer->GetControl() ? m_Viewer->GetControl()->GetWindow() : nullptr;
    if (!window || window->IsDestroying())
    {
        m_NotifyPending = false;  // nobody would take it away again
        return;
    }
    if (!m_NotifyPending)
        return;
    m_PostedTo = window;
    if (s_SelectionChangeDelay != 0 && m_FromKeyboard)
    {
        if (!m_Postponed)
        {
            m_Postponed = std::make_unique<CPostponedOperation>(s_SelectionChangeDelay);
            m_Postponed->m_SigFire.connect(this, &CEventHandlerBase::NotifySelectionChanged);
        }
        m_Postponed->Schedule();
        return;
    }
    auto runnable = std::make_unique<CSelectionRunnable>();
    runnable->m_SigRun.connect(this, &CEventHandlerBase::NotifySelectionChanged);
    window->Post(runnable.release());
}

void CEventHandlerBase::NotifySelectionChanged()
{
    CAlivePtr<CEventHandler> const alive(this);
    if (m_NotifyPending && m_SelectionType != stNone)
        m_SigSelectionChanged();
    if (alive)
        m_NotifyPending = false;
}

// The current item and the selection ----------------------------------------------------------------------------------------

void CEventHandlerBase::SetCurrentItem(int item)
{
    ISelectionModel* const model = GetItemSelectionModel();
    if (!model)
        return;
    CGuard const alive(this, model);
    int const old = model->GetCurrent();
    m_SigCurrentChanging(old, item);
    if (alive && GetItemSelectionModel() == model && item != old)
        model->SetCurrent(item);
}

void CEventHandlerBase::ProcessItemChange(int old, int now, int keys, ISelectionModel* model)
{
    if (m_SelectionType == stFree)
        ProcessItemChangeFree(old, now, keys, model);
    else
        ProcessItemChangeOneItem(old, now, keys, model);
}

void CEventHandlerBase::ProcessItemChangeOneItem(int old, int now, int, ISelectionModel* model)
{
    if (m_SelectionType == stNone || !model || old == now)
        return;
    CModelGuard const alive(model);
    DropPrevious(old, model);
    if (alive)
        model->SelectItem(now, true);
}

// `old` is no longer selected, or in its place whatever is selected first.
void CEventHandlerBase::DropPrevious(int old, ISelectionModel* model)
{
    if (model->IsItemSelected(old))
    {
        model->SelectItem(old, false);
        return;
    }
    if (model->GetSelectedCount() == 0)
        return;
    int first = -1;
    if (model->GetNextSelectedItem(first))
        model->SelectItem(first, false);
    else
        model->ClearSelection();
}

void CEventHandlerBase::ProcessItemChangeFree(int old, int now, int keys, ISelectionModel* model)
{
    IBaseItemViewModel const* const view = GetItemViewModel();
    if (!view || !model || old == now || m_SelectionType == stNone)
        return;
    CModelGuard const alive(model);
    if (keys & ksShift)
    {
        int anchor = m_Anchor;
        int const count = view->GetCount();
        if (anchor < 0 || anchor >= count)
        {
            anchor = std::max(std::min(old, count - 1), 0);
            m_Anchor = anchor;
        }
        // What leaves the selection is repainted too. As a rule that is the run from the anchor to the old current item.
        bool const isRun = model->IsItemSelected(anchor) && model->IsItemSelected(old) &&
                           model->GetSelectedCount() == std::abs(std::int64_t{old} - anchor) + 1;
        if (!isRun && model->GetSelectedCount() > 0)
            model->AddDirtyItems(0, std::numeric_limits<int>::max());
        model->SetSelectionRange(anchor, now);
        if (alive)
            model->AddDirtyItems(old, now);
        return;
    }
    if (keys & ksControl)
        return;
    if (model->GetSelectedCount() < 2)
        DropPrevious(old, model);
    else
        model->ClearSelection();
    if (alive)
        model->SelectItem(now, true);
}

void CEventHandlerBase::Reselect(int item, ISelectionModel* model)
{
    if (m_SelectionType == stNone || !model)
        return;
    int const count = model->GetSelectedCount();
    if (count == 1 && model->IsItemSelected(item))
        return;
    CModelGuard const alive(model);
    if (count > 0)
        model->ClearSelection();
    if (alive)
        model->SelectItem(item, true);
}

void CEventHandlerBase::ToggleItem(int item)
{
    ISelectionModel* const model = GetItemSelectionModel();
    if (!model)
        return;
    CModelGuard const alive(model);
    bool const selected = model->IsItemSelected(item);
    model->SelectItem(item, !selected);
    if (selected && alive)
        model->m_SigSelectionChanged();
}

bool CEventHandlerBase::SelectAll(int keys, int key)
{
    ISelectionModel* const model = GetItemSelectionModel();
    IBaseItemViewModel const* const view = GetItemViewModel();
    if (key != 'A' || !(keys & ksControl) || m_SelectionType != stFree || !model || !view)
        return false;
    int const count = view->GetCount();
    if (count > 0)
    {
        CModelGuard const alive(model);
        model->ClearSelection();
        if (alive)
            model->SetSelectionRange(0, count - 1);
    }
    return true;
}

void CEventHandlerBase::FollowCurrent(int before, int keys)
{
    ISelectionModel* const model = GetItemSelectionModel();
    if (model && model->GetCurrent() != before)
        ProcessItemChange(before, model->GetCurrent(), keys, model);
}

// Selected items have another colour while the viewer has the focus; so may the mark of the current one.
void CEventHandlerBase::MarkSelection()
{
    ISelectionModel* const model = GetItemSelectionModel();
    if (!model)
        return;
    if (model->GetSelectedCount() > s_MarkedSingly)
    {
        model->AddDirtyItems(0, std::numeric_limits<int>::max());
    }
    else
    {
        for (int i = -1; model->GetNextSelectedItem(i);)
            model->AddDirtyItems(i, i);
        model->AddDirtyItems(model->GetCurrent(), model->GetCurrent());
    }
    RequestRepaint();
}

void CEventHandlerBase::ProcessGetFocus(bool*)
{
    MarkSelection();
}

void CEventHandlerBase::ProcessLostFocus(bool*)
{
    MarkSelection();
}

// Mouse ---------------------------------------------------------------------------------------------------------------------

bool CEventHandlerBase::ProcessButtonDown(int x, int y, int, MouseButton button, bool*)
{
    m_Down = button == mbLeft ? point<int>{x, y} : point<int>{-1, -1};
    m_FromKeyboard = false;
    return false;
}

bool CEventHandlerBase::ProcessButtonUp(int, int, int, MouseButton, bool*)
{
    m_Down = {-1, -1};
    StopScrolling();
    if (m_Viewer && m_Viewer->GetControl() && m_Viewer->GetControl()->GetCapture() == m_Viewer.get())
        m_Viewer->ReleaseMouse();
    return false;
}

bool CEventHandlerBase::ProcessMouseMove(int x, int y, int keys, MouseButton button, bool*)
{
    CScrollableElement* const viewer = m_Viewer.get();
    IControl* const control = viewer ? viewer->GetControl() : nullptr;
    if (!control)
        return false;
    bool const held = (keys & ksLeft) || button == mbLeft;
    bool const captured = control->GetCapture() == viewer;
    if (!held || !(captured || control->GetMouseElement() == viewer))
        m_Down = {-1, -1};
    if (m_Down.x < 0 || m_Down.y < 0 || captured)
        return false;
    size<int> const distance = control->GetDragStartSensitivity();
    if (std::abs(std::int64_t{x} - m_Down.x) >= distance.width ||
        std::abs(std::int64_t{y} - m_Down.y) >= distance.height)
        viewer->CaptureMouse();
    return false;
}

bool CEventHandlerBase::IsDragging(int keys, MouseButton button) const
{
    return ((keys & ksLeft) || button == mbLeft) && m_Viewer && m_Viewer->GetControl() &&
           m_Viewer->GetControl()->GetCapture() == m_Viewer.get();
}

bool CEventHandlerBase::DragTo(int item, int x, int y, MouseButton button, bool* handled)
{
    ProcessScrolling(item, AlongOf(x, y));
    if (m_ScrollState != ssIdle)
        return false;
    // Whoever stands before this handler in the chain sees it too.
    CEventHandler* const first = GetChainOwner() ? GetChainOwner()->GetEventHandlers() : this;
    return first->HandleButtonDown(x, y, ksShift, button, handled);
}

void CEventHandlerBase::ProcessScrolling(int item, int position)
{
    if (item >= 0 && position >= 0)
    {
        StopScrolling();
        return;
    }
    if (m_ScrollState != ssIdle)
        return;
    m_ScrollState = position < 0 ? ssBackward : ssForward;
    StartRepeating();
}

void CEventHandlerBase::StopScrolling()
{
    StopRepeating();
    m_ScrollState = ssIdle;
}

void CEventHandlerBase::ProcessResize(rectangle<int> const&, rectangle<int> const& now, bool invalidate)
{
    IBaseItemViewModel* const model = GetItemViewModel();
    if (!model)
        return;
    CGuard const alive(this, model);
    model->SetViewSize(ToInt(m_Layout->GetAlong(now.Width(), now.Height())), invalidate);
    if (alive && !invalidate)
        UpdateLastItem();
}

}  // namespace vexel
