#pragma once

#include "vexel/platform/color.h"

#include <optional>
#include <string_view>

namespace vexelbase::detail
{

/// A colour as XPM text has it: "None", #RGB, #RRGGBB, #RRRGGGBBB, #RRRRGGGGBBBB, "gray" with a number from 0 to 100, or
/// one of the common names. Case and blanks in names don't count. Nothing for all else.
std::optional<_color> ParseXpmColor(std::string_view text);

}  // namespace vexelbase::detail
