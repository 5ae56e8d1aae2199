#pragma once

#include "vexel/platform/convert.h"
#include "vexel/scroll/scroll_model.h"

#include <cmath>

namespace vexel::detail
{

/// One axis of a mapping that shows a model from its start on.
struct SModelMapping
{
    double logicalOrigin = 0;
    double logicalExtent = 0;
    int deviceOrigin = 0;
    int deviceExtent = 0;
};

/// `low`, `high`: the pixels that the view spans. A reversed model runs from `high` backwards. Where the whole range has
/// more pixels than an int can hold, the extents are those of the measure: the ratio is the same.
inline SModelMapping MapModel(IScrollModel const& model, int low, int high)
{
    auto const [logical, physical] = model.GetMeasure();
    SModelMapping result;
    result.logicalOrigin = model.GetStart();
    result.logicalExtent = std::abs(model.GetTo() - model.GetFrom());
    result.deviceOrigin = low;
    double const length = physical * result.logicalExtent / logical;
    if (length > -2147483648.0 && length < 2147483648.0)
    {
        result.deviceExtent = ToInt(length);
    }
    else
    {
        result.logicalExtent = logical;
        result.deviceExtent = physical;
    }
    if (model.GetFrom() > model.GetTo())
    {
        result.deviceExtent = SubtractSaturated(0, result.deviceExtent);
        result.deviceOrigin = AddSaturated(low, SubtractSaturated(high, low));
    }
    return result;
}

}  // namespace vexel::detail
