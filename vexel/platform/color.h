#pragma once

#include <cstdint>

namespace vexelbase
{

/// A colour: value 0xAABBGGRR, red in the lowest byte, and a mark for "no colour at all".
/// Painting ignores the top byte: a colour that is not none covers fully. Only antialiased lines read it, as opacity.
/// Setters compare colours by the value alone.
struct _color
{
    std::uint32_t m_Value = 0;
    bool m_None = false;

    constexpr _color() = default;
    constexpr _color(std::uint32_t value, bool none = false) : m_Value(value), m_None(none) {}

    static constexpr _color FromRgb(int red, int green, int blue)
    {
        return _color(0xFF000000u | static_cast<std::uint32_t>(blue & 255) << 16 |
                      static_cast<std::uint32_t>(green & 255) << 8 | static_cast<std::uint32_t>(red & 255));
    }

    constexpr int Red() const { return static_cast<int>(m_Value & 255u); }
    constexpr int Green() const { return static_cast<int>(m_Value >> 8 & 255u); }
    constexpr int Blue() const { return static_cast<int>(m_Value >> 16 & 255u); }
    constexpr int Alpha() const { return static_cast<int>(m_Value >> 24 & 255u); }

    /// Each channel moved toward white by so many hundredths of what is missing, truncated; opaque.
    constexpr _color Lighter(int percent) const
    {
        return FromRgb(Red() + (255 - Red()) * percent / 100, Green() + (255 - Green()) * percent / 100,
                       Blue() + (255 - Blue()) * percent / 100);
    }
    /// Each channel moved toward black by so many hundredths, truncated; opaque.
    constexpr _color Darker(int percent) const
    {
        return FromRgb(Red() - Red() * percent / 100, Green() - Green() * percent / 100,
                       Blue() - Blue() * percent / 100);
    }

    friend constexpr bool operator==(_color const&, _color const&) = default;
};

/// The constant colours, by number.
inline constexpr _color color_table[28] = {
    {0x00000000, true},  // 0 none
    {0xFF000000},        // 1 black
    {0xFFFF0080},        // 2
    {0xFF00FFFF},        // 3 yellow
    {0xFFFF0000},        // 4 blue
    {0xFFFF00FF},        // 5 magenta
    {0xFF0000FF},        // 6 red
    {0xFF4F4F4F},        // 7 dark grey
    {0xFF7F7F7F},        // 8 grey: text and pen of what is disabled
    {0xFFFFFFFF},        // 9 white
    {0xFF8000FF},        // 10
    {0xFF0080FF},        // 11 orange
    {0xFFFFFF00},        // 12 cyan
    {0xFF00FF00},        // 13 green
    {0xFF2A2AA5},        // 14 brown
    {0xFF701919},        // 15 midnight blue
    {0xFFFF901E},        // 16
    {0xFFD0E040},        // 17 turquoise
    {0xFF840084},        // 18
    {0xFF32CD32},        // 19 lime green
    {0xFF9020D0},        // 20
    {0xFFCCFFFF},        // 21 pale yellow
    {0xFFFFCC00},        // 22
    {0xFFCCCCCC},        // 23 light grey
    {0xFF33CCFF},        // 24
    {0xFFFCB8FA},        // 25 pale pink
    {0xFF92F1A7},        // 26 pale green
    {0xFF90C1D8},        // 27 sand
};

}  // namespace vexelbase
