#pragma once

#include "vexel/platform/convert.h"

#include <cstdint>

namespace antialiasing::detail
{

/// Truncates to what an unsigned count can hold. What has no such value gets the nearest one; not-a-number becomes 0.
inline std::uint32_t ToUnsigned(double value)
{
    if (!(value > 0))
        return 0;
    return value < 4294967296.0 ? static_cast<std::uint32_t>(value) : 0xFFFFFFFFu;
}

/// Truncates to a channel, which is a signed number of 32 bits in an unsigned word: a negative one wraps there, and so it
/// is taken away where it is added.
inline unsigned long ToChannel(double value)
{
    return static_cast<unsigned long>(static_cast<long>(vexelbase::ToInt(value)));
}

}  // namespace antialiasing::detail
