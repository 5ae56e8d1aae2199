#include "vexel/controls/detail/shaded_pictures.h"

#include <array>
#include <cstdio>
#include <string>
#include <vector>

namespace vexel::detail
{

namespace
{

int const g_Width = 500;
int const g_Height = 47;

struct SRgb
{
    int red;
    int green;
    int blue;
};

// From the top to the middle, and on from there to the bottom.
struct SShade
{
    int colors;
    SRgb top;
    SRgb aboveMiddle;
    SRgb belowMiddle;
    SRgb bottom;
};

std::array<SShade, 4> const g_Shades{{
    {2, {240, 242, 244}, {240, 242, 244}, {230, 233, 236}, {230, 233, 236}},
    {28, {252, 254, 255}, {226, 240, 250}, {203, 227, 244}, {224, 240, 251}},
    {44, {250, 252, 253}, {228, 235, 240}, {205, 216, 225}, {227, 236, 242}},
    {47, {168, 190, 208}, {190, 208, 222}, {198, 215, 228}, {224, 235, 243}},
}};

int Between(int from, int to, int part, int whole)
{
    return whole > 0 ? from + (to - from) * part / whole : from;
}

SRgb ColorOf(SShade const& shade, int number)
{
    int const half = shade.colors / 2;
    bool const above = number < half;
    SRgb const& from = above ? shade.top : shade.belowMiddle;
    SRgb const& to = above ? shade.aboveMiddle : shade.bottom;
    int const part = above ? number : number - half;
    int const whole = (above ? half : shade.colors - half) - 1;
    return {Between(from.red, to.red, part, whole), Between(from.green, to.green, part, whole),
            Between(from.blue, to.blue, part, whole)};
}

char SymbolOf(int number)
{
    return static_cast<char>('0' + number);
}

}  // namespace

vexelbase::XPMBuf MakeShadedPicture(int state)
{
    if (state < 0 || state >= static_cast<int>(g_Shades.size()))
        return {};
    SShade const& shade = g_Shades[static_cast<std::size_t>(state)];
    std::vector<std::string> lines;
    char line[64];
    std::snprintf(line, sizeof line, "%d %d %d 1", g_Width, g_Height, shade.colors);
    lines.emplace_back(line);
    for (int i = 0; i < shade.colors; ++i)
    {
        SRgb const color = ColorOf(shade, i);
        std::snprintf(line, sizeof line, "%c c #%02X%02X%02X", SymbolOf(i), static_cast<unsigned>(color.red),
                      static_cast<unsigned>(color.green), static_cast<unsigned>(color.blue));
        lines.emplace_back(line);
    }
    for (int y = 0; y < g_Height; ++y)
        lines.emplace_back(g_Width, SymbolOf(y * shade.colors / g_Height));

    std::vector<char const*> pointers;
    pointers.reserve(lines.size());
    for (std::string const& each : lines)
        pointers.push_back(each.c_str());
    return {pointers.data(), false};
}

}  // namespace vexel::detail
