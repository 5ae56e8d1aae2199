#include "gallery/pages/captions_page.h"

#include "gallery/frame/panel.h"
#include "vexel/controls/caption.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/system.h"

namespace gallery
{

namespace
{

int const g_Left = IPainter::AlignLeft;
int const g_Right = IPainter::AlignRight;
int const g_HCenter = IPainter::AlignHCenter;
int const g_Top = IPainter::AlignTop;
int const g_Bottom = IPainter::AlignBottom;
int const g_VCenter = IPainter::AlignVCenter;

CCaption* Add(CVisualElement* parent, std::string const& text, int flags, int image = -1, Alignment alignment = alNone,
              size<int> const& extent = {0, 0})
{
    auto* const caption = new CCaption(parent, extent, alignment);
    caption->SetBkColor(ISysPalette::scWindow);
    caption->SetFgColor(ISysPalette::scWindowText);
    caption->SetTextAlign(flags);
    caption->SetImageIndex(image);
    caption->SetCaption(text);
    return caption;
}

char const* const g_Links = "This text sizes itself to its <b>wrapped</b> lines. It has a <a href=\"first\">link</a>, "
                            "and <a href=\"second\">another one that is long enough to be spread over two lines of the "
                            "text when the window is not very wide</a>; a click on either is told below.";

}  // namespace

void CCaptionsPage::Build(CVisualElement* parent)
{
    auto* const grid = new CGrid(parent, {0, 218}, alTop, {184, 66}, 6);
    auto* const plain = Add(grid, "Centred", g_HCenter | g_VCenter);
    Add(grid, "Left, top", g_Left | g_Top);
    Add(grid, "Right, bottom", g_Right | g_Bottom);
    Add(grid, "Two lines,\nbeside an image", g_Left | g_VCenter, 2);
    Add(grid, "Image, left", g_Left | g_VCenter, 0);
    Add(grid, "Image, centred", g_HCenter | g_VCenter, 1);
    Add(grid, "Image, right", g_Right | g_VCenter, 2);
    Add(grid, "", g_HCenter | g_VCenter, 0);
    Add(grid, "Disabled", g_HCenter | g_VCenter, 1)->SetEnabled(false);
    auto* const fitted =
        Add(grid,
            "Shortened where it ends: all of it is longer than there is room for in these few lines, so the "
            "whole comes up as a tooltip when the pointer rests here for a moment",
            g_Left | g_VCenter);
    fitted->SetTooltipFromCaption(true);
    Add(grid, "No wider than ninety pixels, and wrapped there", g_Left | g_VCenter)
        ->SetMaxTextWidth(ToDevicePixels(90));
    Add(grid, "Transparent", g_HCenter | g_VCenter, 0)->SetTransparent(true);

    auto* const links = new CCaption(parent, {0, 30}, alTop);
    links->SetBkColor(ISysPalette::scWindow);
    links->SetFgColor(ISysPalette::scWindowText);
    links->SetTextAlign(g_Left | g_Top);
    links->UseHTML(true);
    links->SetCaption(g_Links);
    links->AdjustHeight(true);
    links->SetAutoSize(true);
    new CPanel(parent, {0, 6}, alTop);

    auto* const pane = new CPanel(parent, {0, 0}, alClient);
    struct SEdge
    {
        Alignment alignment;
        char const* text;
    };
    static SEdge const edges[] = {
        {alTop, "Docked to the top"}, {alBottom, "the bottom"}, {alLeft, "the left side"}, {alRight, "the right side"}};
    for (SEdge const& edge : edges)
    {
        auto* const caption = Add(pane, edge.text, g_HCenter | g_VCenter, 0, edge.alignment, {10, 10});
        caption->SetBkColor(color_table[24 + edge.alignment % 4]);
        caption->SetFgColor(color_table[1]);  // the ground is light in every theme
        caption->SetTextLayout(true);
        caption->SetAutoSize(true);
        ReportMouse(caption, edge.text);
    }
    auto* const inside = new CPanel(pane, {0, 0}, alClient);
    auto* const turned = Add(inside, "Left side, at the start", g_Left | g_VCenter, 1, alLeft, {40, 0});
    turned->SetTextLayout(true);
    Add(inside, "Docked to the left without turning the text: only the image goes above it.", g_Left | g_Top, 2, alLeft,
        {220, 0});

    ReportMouse(plain, "centred");
    Report(links->m_LinkClicked, "link");
    ReportMouse(links, "links");
}

}  // namespace gallery
