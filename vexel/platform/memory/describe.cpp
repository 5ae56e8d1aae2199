#include "vexel/platform/memory/describe.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace vexelbase::memory
{

namespace
{

// The names of the colour table; null: none.
constexpr std::array<char const*, 28> ColorNames = {
    nullptr,      "black",        nullptr,     "yellow",    "blue",     "magenta",   "red",
    "darkgrey",   "grey",         "white",     nullptr,     "orange",   "cyan",      "green",
    "brown",      "midnightblue", nullptr,     "turquoise", nullptr,    "limegreen", nullptr,
    "paleyellow", nullptr,        "lightgrey", nullptr,     "palepink", "palegreen", "sand"};

std::string Hex(unsigned value, int digits)
{
    char text[16];
    std::snprintf(text, sizeof text, "%0*X", digits, value);
    return text;
}

}  // namespace

std::string DescribeNumber(double value)
{
    if (value == 0)
        return "0";  // of either sign
    char text[64];
    auto const end = std::to_chars(text, text + sizeof text, value);
    return std::string(text, end.ptr);
}

std::string DescribeText(std::string const& text)
{
    std::string quoted = "\"";
    for (char const c : text)
    {
        unsigned const code = static_cast<unsigned char>(c);
        if (c == '\n')
            quoted += "\\n";
        else if (c == '\t')
            quoted += "\\t";
        else if (c == '"' || c == '\\')
            quoted += {'\\', c};
        else if (code < 32 || code == 127)
            quoted += "\\x" + Hex(code, 2);
        else
            quoted += c;
    }
    return quoted + "\"";
}

std::string DescribeCharacter(char value)
{
    if (value == '\'')
        return "'\\''";
    unsigned const code = static_cast<unsigned char>(value);
    if (code >= 128)
        return "'\\x" + Hex(code, 2) + "'";
    std::string const quoted = value == '"' ? "\"\"\"" : DescribeText(std::string(1, value));
    return "'" + quoted.substr(1, quoted.size() - 2) + "'";
}

std::string DescribeColor(_color const& color)
{
    if (color.m_None)
        return "none";
    std::uint32_t const rgb = color.m_Value & 0xFFFFFFu;
    std::string text;
    for (std::size_t i = 1; i < ColorNames.size() && text.empty(); ++i)
    {
        if (ColorNames[i] && (color_table[i].m_Value & 0xFFFFFFu) == rgb)
            text = ColorNames[i];
    }
    if (text.empty())
        text = "#" + Hex(static_cast<unsigned>(color.Red() << 16 | color.Green() << 8 | color.Blue()), 6);
    if (color.Alpha() != 0xFF)
        text += "/" + Hex(static_cast<unsigned>(color.Alpha()), 2);
    return text;
}

std::string DescribePen(pen const& value)
{
    static constexpr char const* styles[] = {"none", "", " dash", " dot", " dashdot", " dashdotdot", " alternate"};
    if (value.style == pen::psNone)
        return "none";
    std::string text = DescribeColor(value.color);
    if (value.style > 0 && value.style < static_cast<int>(std::size(styles)))
        text += styles[value.style];
    else
        text += " style" + std::to_string(value.style);
    if (value.width != 1)
        text += " " + std::to_string(value.width);
    return text;
}

std::string DescribeBrush(brush const& value)
{
    if (value.style == brush::bsNone)
        return "none";
    std::string text = DescribeColor(value.color);
    if (value.style != brush::bsSolid)
        text += " style" + std::to_string(value.style);
    return text;
}

std::string DescribeFont(font const& value)
{
    std::string text = DescribeText(value.name) + " " + std::to_string(value.size);
    static constexpr struct
    {
        int bit;
        char const* name;
    } styles[] = {{font::fsBold, " bold"},
                  {font::fsItalic, " italic"},
                  {font::fsUnderline, " underline"},
                  {font::fsStrikeOut, " strikeout"}};
    int rest = value.style;
    for (auto const& style : styles)
    {
        if (rest & style.bit)
            text += style.name;
        rest &= ~style.bit;
    }
    if (rest)
        text += " style " + std::to_string(rest);
    if (value.rotation)
        text += " rotation " + std::to_string(value.rotation);
    if (value.factor != 1.0)
        text += " factor " + DescribeNumber(value.factor);
    if (value.family != font::ffSans && value.family != font::ffDefault)
        text += " family " + std::to_string(value.family);
    return text;
}

}  // namespace vexelbase::memory
