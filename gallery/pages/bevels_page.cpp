#include "gallery/pages/bevels_page.h"

#include "gallery/frame/panel.h"
#include "vexel/controls/border.h"
#include "vexel/controls/caption.h"

namespace gallery
{

namespace
{

char const* const g_Shapes[] = {"box", "thin box", "top", "bottom", "left", "right", "nothing", "no frame"};
char const* const g_Styles[] = {"flat", "raised", "sunken"};

void AddText(CVisualElement* parent, std::string const& text)
{
    auto* const caption = new CCaption(parent, {0, 0}, alClient);
    caption->SetTransparent(true);
    caption->SetFgColor(parent->GetFgSysColor());
    caption->SetCaption(text);
}

}  // namespace

void CBevelsPage::Build(CVisualElement* parent)
{
    auto* const shapes = new CGrid(parent, {0, 200}, alTop, {90, 40}, 7);
    for (int style = 0; style < 3; ++style)
    {
        for (int shape = 0; shape < 8; ++shape)
        {
            auto* const bevel = new CBevel(shapes, {0, 0}, alNone);
            bevel->SetStyle(static_cast<CBevel::BorderStyle>(style));
            bevel->SetShape(static_cast<CBevel::BorderShape>(shape));
            AddText(bevel, std::string(g_Shapes[shape]) + "\n" + g_Styles[style]);
            ReportMouse(bevel, g_Shapes[shape]);
        }
    }
    for (int style = 0; style < 3; ++style)
    {
        auto* const bevel = new CBevel(shapes, {0, 0}, alNone);
        bevel->SetBkColor(color_table[27]);
        bevel->SetStyle(static_cast<CBevel::BorderStyle>(style));
        bevel->SetShape(CBevel::ShapeBox);
        bevel->SetOffset({4, 4, 4, 4});
        AddText(bevel, "coloured");
    }

    auto* const borders = new CGrid(parent, {0, 0}, alClient, {180, 80}, 7);
    for (int style = 0; style < 4; ++style)
    {
        auto* const border = new CBorder(borders, {0, 0}, alNone);
        border->SetStyle(static_cast<CBevel::BorderStyle>(style % 3));
        border->SetShape(style == 3 ? CBevel::ShapeNoFrame : CBevel::ShapeBox);
        border->SetBkColor(color_table[26]);
        border->SetContentOffset({8, 8, 8, 8});
        auto* const panel = new CPanel(border, {0, 0}, alClient);
        panel->SetBkColor(ISysPalette::scWindow);
        panel->SetFgColor(ISysPalette::scWindowText);
        panel->SetText(style == 3 ? "no frame" : std::string("border, ") + g_Styles[style]);
        ReportMouse(panel, "inside");
    }
}

}  // namespace gallery
