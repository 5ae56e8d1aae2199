#pragma once

#include "vexel/export.h"
#include "vexel/platform/color.h"
#include "vexel/platform/font.h"
#include "vexel/platform/pen.h"

#include <string>

namespace vexelbase::memory
{

// Values as text, as the recorded painter calls have them.

/// The shortest text that reads back equal: 3, 1.5.
VEXEL_MEMORY_API std::string DescribeNumber(double value);
/// Quoted; quotes, backslashes and control characters are escaped as in C++.
VEXEL_MEMORY_API std::string DescribeText(std::string const& text);
VEXEL_MEMORY_API std::string DescribeCharacter(char value);  ///< 'x'.
/// A name of the colour table, or `#RRGGBB`; "/AA" behind it where the top byte isn't FF; "none".
VEXEL_MEMORY_API std::string DescribeColor(_color const& color);
VEXEL_MEMORY_API std::string DescribePen(pen const& value);      ///< red, red dash 3, none.
VEXEL_MEMORY_API std::string DescribeBrush(brush const& value);  ///< red, none.
VEXEL_MEMORY_API std::string DescribeFont(font const& value);    ///< "Square" 8 bold; family 1 and 4 go unsaid.

}  // namespace vexelbase::memory
