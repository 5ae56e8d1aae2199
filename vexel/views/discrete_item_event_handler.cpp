#include "vexel/platform/convert.h"
#include "vexel/views/item_event_handler.h"
#include "vexel/views/item_walks.h"

#include <algorithm>

namespace vexel
{

void CDiscreteItemEventHandler::OnRowViewModelScroll(int position, int delta, bool* handled)
{
    if (!GetViewer() || delta == 0)
    {
        *handled = false;
        return;
    }
    if (*handled)  // the model says that pixels can be moved
        *handled = ScrollItems(position, delta);
    RequestRepaint();
}

// Into view ------------------------------------------------------------------------------------------------------------------

bool CDiscreteItemEventHandler::MakeCurrentVisible(bool toStart)
{
    IDiscreteItemViewModel* const model = GetViewModel();
    int const current = GetCurrent();
    if (IsNoAutoVisible() || (model->GetStartItem() <= current && current <= Utils::GetLastVisibleItem(model)))
        return false;
    if (toStart)
        model->SetStartItem(current);
    else
        model->SetStartItem(current < 0 ? 0 : Utils::CalcStart(model, current));
    return true;
}

void CDiscreteItemEventHandler::CheckNewCurrent()
{
    IDiscreteItemViewModel* const model = GetViewModel();
    int const current = GetCurrent();
    std::int64_t const behind = std::int64_t{current} - Utils::GetLastVisibleItem(model);
    if (behind < 1 || behind > 2)
        return;
    int start = current;
    if (current >= 0 && model->GetViewSize() >= 1)
    {
        std::int64_t room = std::int64_t{model->GetViewSize()} - model->GetItemSize(current);
        while (start > 0 && room >= model->GetItemSize(start - 1))
            room -= std::max(model->GetItemSize(--start), 1);
    }
    model->SetStartItem(start);
}

void CDiscreteItemEventHandler::ShowNewCurrent(int)
{
    CheckNewCurrent();
}

void CDiscreteItemEventHandler::ItemToView(int index)
{
    IDiscreteItemViewModel* const model = GetViewModel();
    int const item = std::clamp(index, 0, std::max(model->GetCount() - 1, 0));
    int const room = SubtractSaturated(model->GetViewSize(), model->GetItemSize(item));
    std::int64_t const half = std::max(room / 2, 0);
    int start = item;
    if (room >= 2)
    {
        std::int64_t sum = 0;
        while (start > 0 && sum < half)
            sum += std::max(model->GetItemSize(--start), 1);
        if (sum > half)
            ++start;
    }
    model->SetStartItem(std::min({start, item, Utils::CalcMaxStart(model)}));
}

// Mouse ---------------------------------------------------------------------------------------------------------------------

bool CDiscreteItemEventHandler::ProcessButtonDown(int x, int y, int keys, MouseButton button, bool*)
{
    int const item = GetItemIndex(x, y);
    bool const left = button == mbLeft;
    // A right click on what is selected leaves the selection to the context menu.
    if (!left && (button != mbRight || GetSelectionModel()->IsItemSelected(item)))
        return false;
    m_Down = {x, y};
    m_FromKeyboard = false;
    return PressItem(item, keys);
}

// A drag past the edge: one item at a time.
void CDiscreteItemEventHandler::ProcessRepeatOperation()
{
    IDiscreteItemViewModel* const model = GetViewModel();
    int const before = GetCurrent();
    int item = 0;
    int start = model->GetStartItem();
    if (m_ScrollState == ssForward)
    {
        int const last = Utils::CalcMaxStart(model);
        start = AddSaturated(start, 1);
        if (start < last)
        {
            item = Utils::GetLastVisibleItem(model);
        }
        else
        {
            item = model->GetCount() - 1;
            start = last;
            StopScrolling();
        }
    }
    else if (start < 1)
    {
        start = 0;
        StopScrolling();
    }
    else
    {
        item = --start;
    }
    CAlivePtr<CEventHandler> const alive(this);
    model->SetStartItem(start);
    if (alive && item >= 0)
        SetCurrentItem(item);
    if (alive)
        ProcessItemChange(before, item, ksShift, GetSelectionModel());
}

// Keys ----------------------------------------------------------------------------------------------------------------------

bool CDiscreteItemEventHandler::MoveByKey(int key)
{
    bool const vertical = GetDirection() == idVertical;
    CAlivePtr<CEventHandler> const alive(this);
    int const current = GetCurrent();
    int const last = GetViewModel()->GetCount() - 1;
    switch (key)
    {
    case vkPageUp:
        if (vertical)
            PageUp();
        return vertical;
    case vkPageDown:
        if (vertical)
            PageDown();
        return vertical;
    case vkEnd:
    case vkHome:
        if (!vertical)
            return false;
        GetViewModel()->SetStartItem(key == vkEnd ? last : 0);
        if (alive)
            SetCurrentItem(key == vkEnd ? last : 0);
        return true;
    case vkUp:
    case vkLeft:
        if (vertical != (key == vkUp))
            return false;
        SetCurrentItem(current > 0 ? std::min(current - 1, last) : 0);
        if (alive && GetCurrent() == GetViewModel()->GetStartItem() - 1)
            GetViewModel()->SetStartItem(GetCurrent());
        if (alive)
            MakeCurrentVisible(false);
        return true;
    case vkDown:
    case vkRight:
        if (vertical != (key == vkDown))
            return false;
        SetCurrentItem(current >= -1 ? std::min(AddSaturated(current, 1), last) : 0);
        if (alive)
            CheckNewCurrent();
        if (alive)
            MakeCurrentVisible(true);
        return true;
    default:
        return false;
    }
}

// The current item keeps its place in the view, unless it had none.
void CDiscreteItemEventHandler::PageUp()
{
    CAlivePtr<CEventHandler> const alive(this);
    int const start = GetViewModel()->GetStartItem();
    int const current = GetCurrent();
    bool const shown = MakeCurrentVisible(false);
    if (!alive)
        return;
    int const keep = start == 0 || shown ? 0 : SubtractSaturated(current, start);
    int const page = Utils::CalcStart(GetViewModel(), start - 1);
    GetViewModel()->SetStartItem(page);
    if (alive)
        SetCurrentItem(AddSaturated(keep, page));
}

void CDiscreteItemEventHandler::PageDown()
{
    CAlivePtr<CEventHandler> const alive(this);
    int const start = GetViewModel()->GetStartItem();
    int const current = GetCurrent();
    bool const shown = MakeCurrentVisible(true);
    if (!alive)
        return;
    int const keep = shown ? 0 : SubtractSaturated(current, start);
    int const page = AddSaturated(Utils::GetLastVisibleItem(GetViewModel()), 1);
    GetViewModel()->SetStartItem(page);
    if (alive)
        SetCurrentItem(std::max(std::min(AddSaturated(page, keep), GetViewModel()->GetCount() - 1), 0));
}

// A view that grows at the end of its range scrolls back and uncovers rows at its foot as well.
void CDiscreteItemEventHandler::ProcessResize(rectangle<int> const& old, rectangle<int> const& now, bool invalidate)
{
    CAlivePtr<CEventHandler> const alive(this);
    int const start = GetViewModel()->GetStartItem();
    CEventHandlerBase::ProcessResize(old, now, invalidate);
    if (alive && GetViewModel()->GetStartItem() != start)
        MarkAll(GetViewModel());
}

// Paint ---------------------------------------------------------------------------------------------------------------------

void CDiscreteItemEventHandler::ProcessDraw(IPainter* painter, rectangle<double> const& rect)
{
    DrawItems(painter,
              {GetViewModel()->GetStartItem(), 0, m_Layout->GetAlong(rect.left, rect.top),
               m_Layout->GetAlong(rect.right, rect.bottom), m_Layout->GetAcross(rect.left, rect.top),
               m_Layout->GetAcross(rect.right, rect.bottom), static_cast<double>(GetViewModel()->GetViewSize())});
}

}  // namespace vexel
