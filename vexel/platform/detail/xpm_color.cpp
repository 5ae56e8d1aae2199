#include "vexel/platform/detail/xpm_color.h"

#include <cctype>
#include <cstddef>
#include <cstdint>
#include <string>

namespace vexelbase::detail
{

namespace
{

struct SNamedColor
{
    std::string_view name;
    std::uint32_t rgb;
};

constexpr SNamedColor s_Names[] = {
    {"aliceblue", 0xF0F8FF},   {"aqua", 0x00FFFF},        {"aquamarine", 0x7FFFD4},     {"azure", 0xF0FFFF},
    {"beige", 0xF5F5DC},       {"black", 0x000000},       {"blue", 0x0000FF},           {"brown", 0xA52A2A},
    {"chocolate", 0xD2691E},   {"coral", 0xFF7F50},       {"cornflowerblue", 0x6495ED}, {"crimson", 0xDC143C},
    {"cyan", 0x00FFFF},        {"darkblue", 0x00008B},    {"darkcyan", 0x008B8B},       {"darkgray", 0xA9A9A9},
    {"darkgreen", 0x006400},   {"darkmagenta", 0x8B008B}, {"darkorange", 0xFF8C00},     {"darkred", 0x8B0000},
    {"deepskyblue", 0x00BFFF}, {"dimgray", 0x696969},     {"dodgerblue", 0x1E90FF},     {"firebrick", 0xB22222},
    {"forestgreen", 0x228B22}, {"fuchsia", 0xFF00FF},     {"gold", 0xFFD700},           {"gray", 0xBEBEBE},
    {"green", 0x00FF00},       {"indianred", 0xCD5C5C},   {"indigo", 0x4B0082},         {"ivory", 0xFFFFF0},
    {"khaki", 0xF0E68C},       {"lavender", 0xE6E6FA},    {"lightblue", 0xADD8E6},      {"lightgray", 0xD3D3D3},
    {"lightgreen", 0x90EE90},  {"lightyellow", 0xFFFFE0}, {"lime", 0x00FF00},           {"limegreen", 0x32CD32},
    {"magenta", 0xFF00FF},     {"maroon", 0xB03060},      {"midnightblue", 0x191970},   {"navy", 0x000080},
    {"navyblue", 0x000080},    {"olive", 0x808000},       {"olivedrab", 0x6B8E23},      {"orange", 0xFFA500},
    {"orangered", 0xFF4500},   {"orchid", 0xDA70D6},      {"pink", 0xFFC0CB},           {"plum", 0xDDA0DD},
    {"purple", 0xA020F0},      {"red", 0xFF0000},         {"royalblue", 0x4169E1},      {"salmon", 0xFA8072},
    {"seagreen", 0x2E8B57},    {"sienna", 0xA0522D},      {"silver", 0xC0C0C0},         {"skyblue", 0x87CEEB},
    {"slateblue", 0x6A5ACD},   {"slategray", 0x708090},   {"snow", 0xFFFAFA},           {"steelblue", 0x4682B4},
    {"tan", 0xD2B48C},         {"teal", 0x008080},        {"tomato", 0xFF6347},         {"turquoise", 0x40E0D0},
    {"violet", 0xEE82EE},      {"wheat", 0xF5DEB3},       {"white", 0xFFFFFF},          {"yellow", 0xFFFF00},
    {"yellowgreen", 0x9ACD32},
};

_color FromRgbWord(std::uint32_t rgb)
{
    return _color::FromRgb(static_cast<int>(rgb >> 16 & 255u), static_cast<int>(rgb >> 8 & 255u),
                           static_cast<int>(rgb & 255u));
}

int DigitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

// `digits`: the same number for each channel, whose upper eight bits count; a single one stands for both.
std::optional<_color> ParseDigits(std::string_view digits)
{
    std::size_t const each = digits.size() / 3;
    if (each < 1 || each > 4 || digits.size() != 3 * each)
        return std::nullopt;
    int channels[3] = {};
    for (std::size_t i = 0; i < digits.size(); ++i)
        if (DigitValue(digits[i]) < 0)
            return std::nullopt;
    for (std::size_t channel = 0; channel < 3; ++channel)
    {
        char const* const first = digits.data() + channel * each;
        channels[channel] = DigitValue(first[0]) * 16 + DigitValue(first[each > 1 ? 1 : 0]);
    }
    return _color::FromRgb(channels[0], channels[1], channels[2]);
}

std::optional<_color> ParseGrey(std::string_view percent)
{
    int value = 0;
    if (percent.empty() || percent.size() > 3)
        return std::nullopt;
    for (char const c : percent)
    {
        if (c < '0' || c > '9')
            return std::nullopt;
        value = value * 10 + (c - '0');
    }
    if (value > 100)
        return std::nullopt;
    int const level = (value * 255 + 50) / 100;
    return _color::FromRgb(level, level, level);
}

}  // namespace

std::optional<_color> ParseXpmColor(std::string_view text)
{
    if (!text.empty() && text[0] == '#')
        return ParseDigits(text.substr(1));

    std::string name;
    for (char const c : text)
        if (c != ' ' && c != '\t')
            name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    if (auto const grey = name.find("grey"); grey != std::string::npos)
        name[grey + 2] = 'a';
    if (name == "none" || name == "transparent")
        return _color(0, true);
    for (SNamedColor const& known : s_Names)
        if (known.name == name)
            return FromRgbWord(known.rgb);
    if (name.starts_with("gray"))
        return ParseGrey(std::string_view(name).substr(4));
    return std::nullopt;
}

}  // namespace vexelbase::detail
