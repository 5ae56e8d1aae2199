#pragma once

#include <cstddef>

namespace gallery
{

/// A bar that turns round in twelve frames of 80 ms, as a GIF file.
extern unsigned char const g_TurningGif[];
extern std::size_t const g_TurningGifSize;

}  // namespace gallery
