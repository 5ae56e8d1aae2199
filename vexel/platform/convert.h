#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace vexelbase
{

/// Truncates toward zero. Values beyond the range of int become its ends, not-a-number becomes 0.
inline int ToInt(double value)
{
    if (value >= -2147483648.0 && value < 2147483648.0)
        return static_cast<int>(value);
    if (value != value)
        return 0;
    return value < 0 ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
}

/// The pixel that a coordinate falls in: rounds down, also below zero. Saturates like ToInt.
inline int FloorToInt(double value)
{
    if (!(value >= -2147483648.0 && value < 2147483648.0))
        return ToInt(value);
    int const truncated = static_cast<int>(value);
    return truncated > value ? truncated - 1 : truncated;
}

/// Rounds up. Saturates like ToInt.
inline int CeilToInt(double value)
{
    return ToInt(std::ceil(value));
}

/// A wide integer brought into the range of int.
inline int SaturateToInt(std::int64_t value)
{
    if (value < std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    if (value > std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    return static_cast<int>(value);
}

/// Sum and difference that stop at the ends of int instead of wrapping.
inline int AddSaturated(int a, int b)
{
    return SaturateToInt(std::int64_t{a} + b);
}
inline int SubtractSaturated(int a, int b)
{
    return SaturateToInt(std::int64_t{a} - b);
}

}  // namespace vexelbase
