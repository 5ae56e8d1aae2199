#include "vexel/core/dpi.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/system.h"

namespace vexel
{

namespace
{

// 1.0 where nothing is to be scaled.
double GetFactor()
{
    if (!GetDPIAutoScale())
        return 1.0;
    double const scale = GetSystemScale();
    return scale > 1.0 ? scale : 1.0;
}

int Scaled(int value, double factor)
{
    return factor > 1.0 ? ToInt(value * factor) : value;
}

}  // namespace

void ApplyDPIScale(rectangle<int>& rect)
{
    double const factor = GetFactor();
    rect = {Scaled(rect.left, factor), Scaled(rect.top, factor), Scaled(rect.right, factor),
            Scaled(rect.bottom, factor)};
}

void ApplyDPIScale(size<int>& extent)
{
    double const factor = GetFactor();
    extent = {Scaled(extent.width, factor), Scaled(extent.height, factor)};
}

void ApplyDPIScale(int& value)
{
    value = Scaled(value, GetFactor());
}

}  // namespace vexel
