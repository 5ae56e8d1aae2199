#include "vexel/platform/convert.h"
#include "vexel/views/item_event_handler.h"
#include "vexel/views/item_walks.h"

#include <algorithm>

namespace vexel
{

namespace
{

constexpr int s_DragStep = 8;   // pixels a tick, at any scale
constexpr int s_DragSlack = 2;  // a range that is longer than the view by less than this counts as fitting

}  // namespace

void CContinuousItemEventHandler::OnColViewModelScroll(int position, int delta, bool* handled)
{
    if (!GetViewer() || delta == 0)
    {
        *handled = false;
        return;
    }
    *handled = ScrollItems(position, delta);
    // The view's last line lies behind its last pixel; the model doesn't count it among what comes into view.
    IContinuousItemViewModel* const model = GetViewModel();
    if (int const item = Utils::HitTest(model, model->GetViewSize()); *handled && delta < 0 && item >= 0)
        model->AddDirtyItems(item, item);
    RequestRepaint();
}

void CContinuousItemEventHandler::CalcFirstSection(int* first, int* skip) const
{
    IContinuousItemViewModel const* const model = GetViewModel();
    int const offset = model->GetOffset();
    int const item = Utils::HitTestImpl(model, offset, 0);
    if (item < 0)
        return;
    *first = item;
    *skip = SubtractSaturated(offset, Utils::GetItemOffset(model, item));
}

// Into view ------------------------------------------------------------------------------------------------------------------

bool CContinuousItemEventHandler::MakeCurrentVisible(bool toEnd)
{
    IContinuousItemViewModel* const model = GetViewModel();
    int const current = GetCurrent();
    if (IsNoAutoVisible() || model->GetCount() < 2)
        return false;
    int const begin = Utils::GetItemOffset(model, current);
    int const size = current < 0 ? 0 : model->GetItemSize(current);
    int const end = AddSaturated(begin, size);
    int const view = model->GetViewSize();
    if (begin >= model->GetOffset() && end <= AddSaturated(model->GetOffset(), view))
        return false;
    model->SetOffset(toEnd && size < view ? SaturateToInt(std::int64_t{end} - view - 1) : begin);
    return true;
}

void CContinuousItemEventHandler::ShowNewCurrent(int before)
{
    MakeCurrentVisible(before < GetCurrent());
}

void CContinuousItemEventHandler::ItemToView(int item)
{
    IContinuousItemViewModel* const model = GetViewModel();
    if (model->GetCount() < 2 || item < 0 || item >= model->GetCount())
        return;
    int const view = model->GetViewSize();
    int const size = model->GetItemSize(item);
    int begin = Utils::GetItemOffset(model, item);
    if (begin >= model->GetOffset() && AddSaturated(begin, size) <= AddSaturated(model->GetOffset(), view))
        return;
    if (view > size)
    {
        int const before = (view - size) / 2;
        if (begin > before)
            begin -= before;
        int const full = model->GetFullItemsSize();
        if (SubtractSaturated(full, begin) <= view)
            begin = SaturateToInt(std::int64_t{full} - view - 1);
    }
    model->SetOffset(begin);
}

// Mouse ---------------------------------------------------------------------------------------------------------------------

bool CContinuousItemEventHandler::ProcessButtonDown(int x, int y, int keys, MouseButton button, bool*)
{
    if (button != mbLeft)
        return false;
    m_Down = {x, y};
    m_FromKeyboard = false;
    return PressItem(GetItemIndex(x, y), keys);
}

void CContinuousItemEventHandler::ProcessRepeatOperation()
{
    IContinuousItemViewModel* const model = GetViewModel();
    int const before = GetCurrent();
    int const view = model->GetViewSize();
    int offset = model->GetOffset();
    bool const forward = m_ScrollState == ssForward;
    if (forward)
    {
        int const room = SubtractSaturated(model->GetFullItemsSize(), view);
        int const limit = room < s_DragSlack ? 0 : room;
        offset = AddSaturated(offset, s_DragStep);
        if (offset >= limit)
        {
            offset = limit;
            StopScrolling();
        }
    }
    else
    {
        offset -= s_DragStep;
        if (offset < 0)
        {
            offset = 0;
            StopScrolling();
        }
    }
    CAlivePtr<CEventHandler> const alive(this);
    model->SetOffset(offset);
    if (!alive)
        return;
    IContinuousItemViewModel const* const now = GetViewModel();
    int const edge = forward ? AddSaturated(now->GetViewSize(), now->GetOffset()) : now->GetOffset();
    int const item = Utils::HitTestImpl(now, edge, 0);
    if (item < 0)
        return;
    SetCurrentItem(item);
    if (alive)
        ProcessItemChange(before, item, ksShift, GetSelectionModel());
}

// Keys ----------------------------------------------------------------------------------------------------------------------

bool CContinuousItemEventHandler::MoveByKey(int key)
{
    bool const vertical = GetDirection() == idVertical;
    CAlivePtr<CEventHandler> const alive(this);
    IContinuousItemViewModel* const model = GetViewModel();
    int const current = GetCurrent();
    int const last = model->GetCount() - 1;
    switch (key)
    {
    case vkEnd:
    case vkHome:
        if (!vertical)
            return false;
        model->SetOffset(key == vkEnd ? SubtractSaturated(model->GetFullItemsSize(), model->GetViewSize()) : 0);
        if (alive)
            SetCurrentItem(key == vkEnd ? last : 0);
        return true;
    case vkUp:
    case vkLeft:
        if (vertical != (key == vkUp))
            return false;
        SetCurrentItem(current > 0 ? std::min(current - 1, last) : 0);
        if (alive)
            MakeCurrentVisible(false);
        return true;
    case vkDown:
    case vkRight:
        if (vertical != (key == vkDown))
            return false;
        SetCurrentItem(current >= -1 ? std::min(AddSaturated(current, 1), last) : 0);
        if (alive)
            MakeCurrentVisible(true);
        return true;
    default:
        return false;
    }
}

// Paint ---------------------------------------------------------------------------------------------------------------------

void CContinuousItemEventHandler::ProcessDraw(IPainter* painter, rectangle<double> const& rect)
{
    int const view = GetViewModel()->GetViewSize();
    int first = -1;
    int skip = 0;
    if (view >= 0)
        CalcFirstSection(&first, &skip);
    double const from = m_Layout->GetAlong(rect.left, rect.top);
    double const to = from + std::max(view, 0);
    DrawItems(painter, {first, skip, from, to, m_Layout->GetAcross(rect.left, rect.top),
                        m_Layout->GetAcross(rect.right, rect.bottom), to});
}

}  // namespace vexel
