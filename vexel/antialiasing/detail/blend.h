#pragma once

#include "vexel/antialiasing/color_info.h"

namespace antialiasing::detail
{

inline unsigned long Red(unsigned long colour)
{
    return colour & 0xFFu;
}
inline unsigned long Green(unsigned long colour)
{
    return colour >> 8 & 0xFFu;
}
inline unsigned long Blue(unsigned long colour)
{
    return colour >> 16 & 0xFFu;
}

/// The colour of these channels, each cut to eight bits.
inline unsigned long Compose(unsigned long red, unsigned long green, unsigned long blue)
{
    return (red & 0xFFu) | (green & 0xFFu) << 8 | (blue & 0xFFu) << 16;
}

/// What a pixel becomes over a background.
inline unsigned long Blend(CColorInfo const& pixel, unsigned long background)
{
    unsigned long const rest = 255 - pixel.m_Alpha;
    return Compose(Red(background) * rest / 255 + pixel.m_Red, Green(background) * rest / 255 + pixel.m_Green,
                   Blue(background) * rest / 255 + pixel.m_Blue);
}

}  // namespace antialiasing::detail
