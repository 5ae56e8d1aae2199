#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"

#include <cstdint>

namespace vexel
{

class IBaseItemViewModel;
class IContinuousItemViewModel;
class IDiscreteItemViewModel;

/// Questions to item view models. None of them minds a null model, or one without items: the answer is then 0 for a
/// sum or a start item, -1 for an item, (-1, -1) for a span.
///
/// Walks end where the view ends. In the models of this folder (not in classes derived from them, which may answer
/// sizes of their own) stretches of equal items are taken in one step.
namespace Utils
{

// Items in view ------------------------------------------------------------------------------------------------------
/// The last item wholly inside the view, at least the start item.
VEXEL_API int GetLastVisibleItem(IDiscreteItemViewModel const* model);
/// The lowest start with which `item` is still the last one in view. An item that would exactly fill the rest of the
/// view is not taken in. Below 0: 0. Both names do the same.
VEXEL_API int CalcStart(IDiscreteItemViewModel const* model, int item);
VEXEL_API int GetStartItem(IDiscreteItemViewModel const* model, int item);
VEXEL_API int CalcMaxStart(IDiscreteItemViewModel const* model);  ///< The same for the last item.

/// The item at a pixel of the view, or -1. Valid pixels run from 0 to the view size, which is included.
VEXEL_API int HitTest(IDiscreteItemViewModel const* model, int pos);
VEXEL_API int HitTest(IContinuousItemViewModel const* model, int pos);

// Sizes --------------------------------------------------------------------------------------------------------------
/// The sizes of the items from the lower index up to, not including, the higher one; only of items that exist.
VEXEL_API int GetItemsSize(IBaseItemViewModel const* model, int a, int b);
VEXEL_API int GetItemOffset(IContinuousItemViewModel const* model, int item);  ///< The sizes of all before `item`.

// Spans: the first and the last pixel of something -------------------------------------------------------------------
// `viewRange`: the first and the last pixel of the view. Where the last item is stretched it ends there, if it doesn't
// end behind.
/// Of the item at the pixel `pos` of that view, cut to the view.
VEXEL_API range<int> GetItemRange(IDiscreteItemViewModel const* model, int pos, range<int> const& viewRange);
VEXEL_API range<int> GetItemRange(IContinuousItemViewModel const* model, int pos, range<int> const& viewRange);
/// Of an item, in view or not. A continuous model counts as standing at offset 0.
VEXEL_API range<int> GetItemIndexRange(IDiscreteItemViewModel const* model, int item, range<int> const& viewRange);
VEXEL_API range<int> GetItemIndexRange(IContinuousItemViewModel const* model, int item, range<int> const& viewRange);
/// Of an item, in view or not, where the view stands.
VEXEL_API range<int> GetItemIndexRangeEx(IDiscreteItemViewModel const* model, int item, range<int> const& viewRange);
VEXEL_API range<int> GetItemIndexRangeEx(IContinuousItemViewModel const* model, int item, range<int> const& viewRange);
/// Of all items, where the view stands.
VEXEL_API range<int> GetWholeIndexRange(IDiscreteItemViewModel const* model, range<int> const& viewRange);
VEXEL_API range<int> GetWholeIndexRange(IContinuousItemViewModel const* model, range<int> const& viewRange);

// The walks themselves -----------------------------------------------------------------------------------------------
VEXEL_API bool HitTestTest(IBaseItemViewModel const* model, int pos);  ///< There are items, and `pos` is in the view.
/// The item `pos` pixels behind the beginning of `first`, or -1. A stretched last item has no end here.
VEXEL_API int HitTestImpl(IBaseItemViewModel const* model, std::int64_t pos, int first);
/// `origin`: the pixel where the item `first` begins.
VEXEL_API range<int> GetItemRangeImpl(IBaseItemViewModel const* model, int pos, int first, std::int64_t origin,
                                      range<int> const& viewRange);
VEXEL_API range<int> GetItemIndexRangeImpl(IBaseItemViewModel const* model, int item, int first, std::int64_t origin,
                                           range<int> const& viewRange);

}  // namespace Utils

}  // namespace vexel
