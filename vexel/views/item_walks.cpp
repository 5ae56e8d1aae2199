#include "vexel/views/item_walks.h"

#include "vexel/platform/convert.h"
#include "vexel/views/detail/item_runs.h"
#include "vexel/views/item_view_model.h"

#include <algorithm>
#include <limits>

namespace vexel::Utils
{

namespace
{

using detail::CItemRuns;

constexpr range<int> s_NoRange{-1, -1};
constexpr std::int64_t s_Never = std::numeric_limits<std::int64_t>::max();

// How many items of that size the room must lose until what is left of it is below the size.
std::int64_t StepsToBelow(std::int64_t room, int size)
{
    if (room < size)
        return 0;
    return size > 0 ? room / size : s_Never;
}

// The same until it is not above the size.
std::int64_t StepsToNotAbove(std::int64_t room, int size)
{
    if (room <= size)
        return 0;
    return size > 0 ? (room - 1) / size : s_Never;
}

std::int64_t SignedSum(IBaseItemViewModel const& model, int from, int to)
{
    CItemRuns const runs(model);
    return from <= to ? runs.Sum(from, to) : -runs.Sum(to, from);
}

// Where item 0 would begin if the view began at this pixel.
std::int64_t OriginOf(IContinuousItemViewModel const& model, range<int> const& viewRange)
{
    return std::int64_t{viewRange.first} - model.GetOffset();
}

range<int> WholeRange(IBaseItemViewModel const& model, std::int64_t origin, range<int> const& viewRange)
{
    int const count = model.GetCount();
    if (count < 1)
        return s_NoRange;
    std::int64_t last = origin + CItemRuns(model).Sum(0, count) - 1;
    if (model.m_StretchLastItem)
        last = std::max(last, std::int64_t{viewRange.second});
    return {SaturateToInt(origin), SaturateToInt(last)};
}

}  // namespace

int GetLastVisibleItem(IDiscreteItemViewModel const* model)
{
    if (!model)
        return -1;
    int const start = model->GetStartItem();
    int const count = model->GetCount();
    if (start >= count - 1)
        return start;
    CItemRuns runs(*model);
    std::int64_t room = model->GetViewSize();
    for (int i = start; i < count;)
    {
        auto const run = runs.Forward(i, count);
        std::int64_t const steps = StepsToBelow(room, run.size);
        if (steps < run.count)
            return std::max(i + static_cast<int>(steps) - 1, start);
        room -= std::int64_t{run.count} * run.size;
        i += run.count;
    }
    return count - 1;
}

int CalcStart(IDiscreteItemViewModel const* model, int item)
{
    if (!model || item < 0 || model->GetCount() < 1)
        return 0;
    CItemRuns runs(*model);
    std::int64_t room = model->GetViewSize();
    for (int i = item; i >= 0;)
    {
        auto const run = runs.Backward(i);
        std::int64_t const steps = StepsToNotAbove(room, run.size);
        if (steps < run.count)
        {
            int const left = i - static_cast<int>(steps);  // it isn't taken in any more
            return left == item ? item : left + 1;
        }
        room -= std::int64_t{run.count} * run.size;
        i -= run.count;
    }
    return 0;
}

int GetStartItem(IDiscreteItemViewModel const* model, int item)
{
    return CalcStart(model, item);
}

int CalcMaxStart(IDiscreteItemViewModel const* model)
{
    return model ? CalcStart(model, model->GetCount() - 1) : 0;
}

int HitTest(IDiscreteItemViewModel const* model, int pos)
{
    return HitTestTest(model, pos) ? HitTestImpl(model, pos, model->GetStartItem()) : -1;
}

int HitTest(IContinuousItemViewModel const* model, int pos)
{
    return HitTestTest(model, pos) ? HitTestImpl(model, std::int64_t{pos} + model->GetOffset(), 0) : -1;
}

int GetItemsSize(IBaseItemViewModel const* model, int a, int b)
{
    if (!model)
        return 0;
    int const from = std::max(std::min(a, b), 0);
    int const to = std::min(std::max(a, b), model->GetCount());
    return SaturateToInt(CItemRuns(*model).Sum(from, to));
}

int GetItemOffset(IContinuousItemViewModel const* model, int item)
{
    return GetItemsSize(model, 0, std::max(item, 0));
}

range<int> GetItemRange(IDiscreteItemViewModel const* model, int pos, range<int> const& viewRange)
{
    return model ? GetItemRangeImpl(model, pos, model->GetStartItem(), viewRange.first, viewRange) : s_NoRange;
}

range<int> GetItemRange(IContinuousItemViewModel const* model, int pos, range<int> const& viewRange)
{
    return model ? GetItemRangeImpl(model, pos, 0, OriginOf(*model, viewRange), viewRange) : s_NoRange;
}

range<int> GetItemIndexRange(IDiscreteItemViewModel const* model, int item, range<int> const& viewRange)
{
    return model ? GetItemIndexRangeImpl(model, item, model->GetStartItem(), viewRange.first, viewRange) : s_NoRange;
}

range<int> GetItemIndexRange(IContinuousItemViewModel const* model, int item, range<int> const& viewRange)
{
    return GetItemIndexRangeImpl(model, item, 0, viewRange.first, viewRange);
}

range<int> GetItemIndexRangeEx(IDiscreteItemViewModel const* model, int item, range<int> const& viewRange)
{
    return GetItemIndexRange(model, item, viewRange);
}

range<int> GetItemIndexRangeEx(IContinuousItemViewModel const* model, int item, range<int> const& viewRange)
{
    return model ? GetItemIndexRangeImpl(model, item, 0, OriginOf(*model, viewRange), viewRange) : s_NoRange;
}

range<int> GetWholeIndexRange(IDiscreteItemViewModel const* model, range<int> const& viewRange)
{
    if (!model)
        return s_NoRange;
    std::int64_t const above = SignedSum(*model, 0, model->GetStartItem());
    return WholeRange(*model, viewRange.first - above, viewRange);
}

range<int> GetWholeIndexRange(IContinuousItemViewModel const* model, range<int> const& viewRange)
{
    return model ? WholeRange(*model, OriginOf(*model, viewRange), viewRange) : s_NoRange;
}

bool HitTestTest(IBaseItemViewModel const* model, int pos)
{
    return model && pos >= 0 && pos <= model->GetViewSize() && model->GetCount() > 0;
}

int HitTestImpl(IBaseItemViewModel const* model, std::int64_t pos, int first)
{
    int const count = model ? model->GetCount() : 0;
    if (first < 0 || first >= count)
        return -1;
    CItemRuns runs(*model);
    for (int i = first > 0 ? first : runs.Skip(count, pos); i < count;)
    {
        auto const run = runs.Forward(i, count);
        std::int64_t const steps = StepsToBelow(pos, run.size);
        if (steps < run.count)
            return i + static_cast<int>(steps);
        pos -= std::int64_t{run.count} * run.size;
        i += run.count;
    }
    return model->m_StretchLastItem ? count - 1 : -1;
}

range<int> GetItemRangeImpl(IBaseItemViewModel const* model, int pos, int first, std::int64_t origin,
                            range<int> const& viewRange)
{
    if (pos < viewRange.first || pos > viewRange.second)
        return s_NoRange;
    int const item = HitTestImpl(model, pos - origin, first);
    if (item < 0)
        return s_NoRange;
    range<int> const span = GetItemIndexRangeImpl(model, item, first, origin, viewRange);
    return {std::max(span.first, viewRange.first), std::min(span.second, viewRange.second)};
}

range<int> GetItemIndexRangeImpl(IBaseItemViewModel const* model, int item, int first, std::int64_t origin,
                                 range<int> const& viewRange)
{
    int const count = model ? model->GetCount() : 0;
    if (item < 0 || item >= count)
        return s_NoRange;
    std::int64_t const begin = origin + SignedSum(*model, first, item);
    std::int64_t end = begin + model->GetItemSize(item) - 1;
    if (model->m_StretchLastItem && item == count - 1)
        end = std::max(end, std::int64_t{viewRange.second});
    return {SaturateToInt(begin), SaturateToInt(end)};
}

}  // namespace vexel::Utils
