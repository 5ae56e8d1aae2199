#include "vexel/platform/memory/memory_palette.h"

namespace vexelbase::memory
{

namespace
{

_color Grey(int level)
{
    return _color::FromRgb(level, level, level);
}

}  // namespace

_color CMemoryPalette::GetColor(SysColor number) const
{
    int const index = number;
    return index >= 1 && index < static_cast<int>(m_Colors.size()) ? m_Colors[static_cast<std::size_t>(index)]
                                                                   : color_table[0];
}

void CMemoryPalette::SetColor(SysColor number, _color const& color)
{
    int const index = number;
    if (index >= 1 && index < static_cast<int>(m_Colors.size()))
        m_Colors[static_cast<std::size_t>(index)] = color;
}

void CMemoryPalette::Reset()
{
    m_Colors = {color_table[1],
                Grey(0xFF),                          // window
                Grey(0x00),                          // window text
                Grey(0xC0),                          // face
                Grey(0xF0),                          // light
                Grey(0xE0),                          // half light
                Grey(0x80),                          // shadow
                Grey(0x40),                          // dark shadow
                Grey(0x10),                          // control text
                _color::FromRgb(0x30, 0x60, 0xC0),   // highlight
                Grey(0xFF),                          // highlight text
                _color::FromRgb(0xFF, 0xFF, 0xE0),   // tooltip
                Grey(0x20),                          // tooltip text
                _color::FromRgb(0x00, 0x00, 0xFF)};  // link
}

void CMemoryPalette::SetDark()
{
    m_Colors = {color_table[1],
                Grey(0x20),                          // window
                Grey(0xE8),                          // window text
                Grey(0x38),                          // face
                Grey(0x60),                          // light
                Grey(0x50),                          // half light
                Grey(0x8C),                          // shadow: also of what is disabled, and so readable
                Grey(0x08),                          // dark shadow
                Grey(0xE0),                          // control text
                _color::FromRgb(0x20, 0x58, 0xA0),   // highlight
                Grey(0xFF),                          // highlight text
                _color::FromRgb(0x48, 0x48, 0x30),   // tooltip
                Grey(0xD8),                          // tooltip text
                _color::FromRgb(0x70, 0xA8, 0xFF)};  // link
}

}  // namespace vexelbase::memory
