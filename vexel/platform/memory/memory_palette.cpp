#include "vexel/platform/memory/memory_palette.h"

namespace vexelbase::memory
{

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
    auto const grey = [](int level) { return _color::FromRgb(level, level, level); };
    m_Colors = {color_table[1],
                grey(0xFF),                          // window
                grey(0x00),                          // window text
                grey(0xC0),                          // face
                grey(0xF0),                          // light
                grey(0xE0),                          // half light
                grey(0x80),                          // shadow
                grey(0x40),                          // dark shadow
                grey(0x10),                          // control text
                _color::FromRgb(0x30, 0x60, 0xC0),   // highlight
                grey(0xFF),                          // highlight text
                _color::FromRgb(0xFF, 0xFF, 0xE0),   // tooltip
                grey(0x20),                          // tooltip text
                _color::FromRgb(0x00, 0x00, 0xFF)};  // link
}

}  // namespace vexelbase::memory
