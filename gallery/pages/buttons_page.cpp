#include "gallery/pages/buttons_page.h"

#include "gallery/frame/panel.h"
#include "vexel/controls/arrow_button.h"
#include "vexel/controls/button.h"
#include "vexel/controls/button_captions.h"
#include "vexel/controls/button_set.h"

namespace gallery
{

namespace
{

enum Look
{
    lkNative,
    lkRaised,
    lkThin,
    lkNoFrame,
    lkFlat,
    lkFlatNoFrame
};

template <class Button> void SetLook(Button* button, Look look)
{
    button->SetNativeDrawing(look == lkNative);
    if (look == lkFlat || look == lkFlatNoFrame)
        button->SetStyle(CButton::BorderFlat);
    if (look == lkThin)
        button->SetShape(CButton::ShapeThinBox);
    if (look == lkNoFrame || look == lkFlatNoFrame)
        button->SetShape(CButton::ShapeNoFrame);
}

CButton* Add(CVisualElement* parent, std::string const& text, Look look, int image = -1)
{
    auto* const button = new CButton(parent, {0, 0}, alNone);
    SetLook(button, look);
    button->SetImageIndex(image);
    button->SetCaption(text);
    return button;
}

}  // namespace

void CButtonsPage::Build(CVisualElement* parent)
{
    auto* const grid = new CGrid(parent, {0, 172}, alTop, {146, 34}, 8);
    struct SKind
    {
        char const* text;
        Look look;
    };
    static SKind const kinds[] = {{"Native", lkNative},   {"Raised", lkRaised}, {"Thin edge", lkThin},
                                  {"No edge", lkNoFrame}, {"Flat", lkFlat},     {"Flat, no frame", lkFlatNoFrame}};
    for (SKind const& kind : kinds)
        Report(Add(grid, kind.text, kind.look)->m_Clicked, std::string(kind.text) + ".clicked");
    for (SKind const& kind : kinds)
    {
        if (kind.look == lkNative || kind.look == lkRaised || kind.look == lkFlat)
            Add(grid, "Disabled", kind.look)->SetEnabled(false);
    }
    Report(Add(grid, "With an image", lkNative, 0)->m_Clicked, "image.clicked");
    Report(Add(grid, "With an image", lkFlat, 1)->m_Clicked, "flat image.clicked");
    Add(grid, "Disabled", lkNative, 2)->SetEnabled(false);
    auto* const repeating = Add(grid, "Hold me", lkNative);
    repeating->SetAutoRepeat(true);
    Report(repeating->m_Clicked, "repeating.clicked");
    auto* const link = Add(grid, "A button, a <a href=\"there\">link</a>", lkNative);
    link->UseHTML(true);
    Report(link->m_Clicked, "link button.clicked");
    Report(link->m_LinkClicked, "link");
    auto* const coloured = Add(grid, "Coloured", lkRaised);
    coloured->SetBkColor(color_table[24]);
    coloured->SetFgColor(color_table[1]);  // the ground is light in every theme
    Report(coloured->m_Clicked, "coloured.clicked");
    auto* const flat = Add(grid, "Coloured, flat", lkFlat);
    flat->SetBkColor(color_table[26]);
    flat->SetFgColor(color_table[1]);  // the ground is light in every theme
    Report(flat->m_Clicked, "coloured flat.clicked");

    auto* const arrows = new CGrid(parent, {0, 52}, alTop, {36, 36}, 8);
    for (Look const look : {lkNative, lkRaised, lkFlat})
    {
        for (int type = CArrowButton::ArrowLeft; type <= CArrowButton::ArrowBottom; ++type)
        {
            auto* const arrow = new CArrowButton(arrows, {0, 0}, alNone);
            SetLook(arrow, look);
            arrow->SetArrowType(static_cast<CArrowButton::ArrowType>(type));
            Report(arrow->m_Clicked, "arrow.clicked");
        }
    }
    auto* const large = new CArrowButton(arrows, {0, 0}, alNone);
    large->SetArrowSize(14);
    large->SetArrowType(CArrowButton::ArrowRight);
    auto* const disabled = new CArrowButton(arrows, {0, 0}, alNone);
    disabled->SetEnabled(false);

    GetButtonCaptions() = {{1, "Yes"}, {2, "No"}, {4, "Cancel"}, {8, "Try again, please"}};
    auto* const pane = new CPanel(parent, {0, 40}, alTop);
    new CPanel(pane, {8, 0}, alLeft);
    auto* const row = new CButtonSet(pane, {0, 20}, alTop);
    row->SetButtons(1 + 2 + 4 + 8 + 16);
    Report(row->m_ButtonPressed, "row.pressed");

    new CPanel(parent, {0, 0}, alClient);
}

}  // namespace gallery
