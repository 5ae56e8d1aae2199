#pragma once

namespace vexelbase::detail
{

/// A number that changes whenever the default font or the scale may have changed. Never 0.
unsigned GetDefaultFontStamp();

}  // namespace vexelbase::detail
