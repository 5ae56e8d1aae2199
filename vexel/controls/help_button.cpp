#include "vexel/controls/help_button.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace vexel
{

namespace
{

// A question mark on a disc.
// clang-format off
char const* g_Normal[] = {
    "16 16 7 1",
    "  c None",
    "o c #1E4A85",
    "a c #6AA5E8",
    "b c #4C8AD6",
    "c c #3A74BC",
    "s c #27599B",
    "w c #FFFFFF",
    "                ",
    "    oooooooo    ",
    "   ooaaaaaaoo   ",
    "  oaaawwwwaaao  ",
    " ooaawwsswwaaoo ",
    " obbbbssbwwsbbo ",
    " obbbbbbwwssbbo ",
    " obbbbbwwssbbbo ",
    " obbbbbwwsbbbbo ",
    " obbbbbbssbbbbo ",
    " occcccwwccccco ",
    " ooccccwwscccoo ",
    "  occcccssccco  ",
    "   ooccccccoo   ",
    "    oooooooo    ",
    "                "};

char const* g_Flat[] = {
    "16 16 3 1",
    "  c None",
    nullptr,  // the ground's colour
    "w c #FFFFFF",
    "                ",
    "    oooooooo    ",
    "   oooooooooo   ",
    "  oooowwwwoooo  ",
    " oooowwoowwoooo ",
    " oooooooowwoooo ",
    " ooooooowwooooo ",
    " oooooowwoooooo ",
    " oooooowwoooooo ",
    " oooooooooooooo ",
    " oooooowwoooooo ",
    " oooooowwoooooo ",
    "  oooooooooooo  ",
    "   oooooooooo   ",
    "    oooooooo    ",
    "                "};

// clang-format on

using FlatLines = std::array<char const*, std::size(g_Flat)>;

FlatLines InColor(char const* ground)
{
    FlatLines lines;
    std::copy(std::begin(g_Flat), std::end(g_Flat), lines.begin());
    lines[2] = ground;
    return lines;
}

struct SHelpImages
{
    FlatLines highlightedLines = InColor("o c #1B5FB8");
    FlatLines pressedLines = InColor("o c #103A74");
    XPMImage normal{XPMBuf(g_Normal, true)};
    XPMImage highlighted{XPMBuf(highlightedLines.data(), true)};
    XPMImage pressed{XPMBuf(pressedLines.data(), true)};

    SHelpImages()
    {
        normal.Init();
        highlighted.Init();
        pressed.Init();
    }
};

// Read once; all buttons share the pixels. Never freed: static elements may use it until the process ends.
SHelpImages const& GetHelpImages()
{
    static auto const* const images = new SHelpImages;
    return *images;
}

}  // namespace

CHelpButton::CHelpButton(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CCaptionButton(parent, extent, alignment)
{
    SetNormalImage(GetHelpImages().normal);
    SetHighlightedImage(GetHelpImages().highlighted);
    SetPressedImage(GetHelpImages().pressed);
}

}  // namespace vexel
