#include "gallery/pages/dropdowns_page.h"

#include "examples/settings/field.h"
#include "gallery/frame/panel.h"
#include "vexel/controls/combo_box_button.h"
#include "vexel/core/control.h"

namespace gallery
{

namespace
{

CPanel* AddRow(CVisualElement* parent, std::string const& caption)
{
    new CPanel(parent, {0, 8}, alTop);
    auto* const row = new CPanel(parent, {0, 26}, alTop);
    new CLabel(row, {190, 0}, alLeft, caption);
    return row;
}

}  // namespace

CDropdownsPage::CDropdownsPage() = default;
CDropdownsPage::~CDropdownsPage() = default;

void CDropdownsPage::Build(CVisualElement* parent)
{
    CPanel* row = AddRow(parent, "Drop buttons");
    auto* const drop = new CDropButton(row, {130, 0}, alLeft);
    drop->SetCaption("Alt and down");
    Report(drop->m_SigDropDown, "drop");
    Report(drop->m_Clicked, "drop.clicked");
    new CPanel(row, {8, 0}, alLeft);
    auto* const image = new CDropButton(row, {130, 0}, alLeft);
    image->SetImageIndex(1);
    image->SetCaption("With an image");
    new CPanel(row, {8, 0}, alLeft);
    auto* const disabled = new CDropButton(row, {130, 0}, alLeft);
    disabled->SetCaption("Disabled");
    disabled->SetEnabled(false);

    row = AddRow(parent, "A list in a popup");
    auto* const seasons = new CComboBoxButton(row, {180, 0}, alLeft);
    seasons->GetList()->GetViewer().SetModel(&m_Seasons);
    seasons->UpdateCaption(1);
    seasons->GetList()->GetViewer().SetCurrentItem(1);
    Report(seasons->GetList()->GetViewer().m_SigItemActivated, "season");
    row = AddRow(parent, "A long one");
    auto* const numbered = new CComboBoxButton(row, {180, 0}, alLeft);
    numbered->GetList()->GetViewer().SetModel(&m_Numbered);
    numbered->SetVisibleDropWidth(260);
    numbered->UpdateCaption(0);
    Report(numbered->GetList()->GetViewer().m_SigItemActivated, "number");

    ISysWindow* const window = parent->GetControl() ? parent->GetControl()->GetWindow() : nullptr;
    auto* const line = new settings::CLineField(AddRow(parent, "A line, edited in place"));
    line->Init(window);
    line->SetText("Click to edit; Return keeps it, Escape drops it");
    Report(line->m_SigEditFinished, "line.finished");
    for (bool const editable : {false, true})
    {
        auto* const box =
            new settings::CBoxField(AddRow(parent, editable ? "A box with a line" : "A box to choose from"));
        box->Init(window, editable);
        if (IComboBox* const native = box->GetComboBox())
            for (char const* item : {"Spring", "Summer", "Autumn", "Winter"})
                native->AddItem(item);
        box->SetText("Summer");
        Report(box->m_SigEditFinished, editable ? "editable box.finished" : "box.finished");
    }
    new CPanel(parent, {0, 0}, alClient);
}

}  // namespace gallery
