#include "gallery/pages/configuration_page.h"

#include "vexel/controls/check_box.h"
#include "vexel/controls/combo_box_button.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/system.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/widgets/configuration_viewer.h"
#include "vexel/widgets/slider.h"

namespace gallery
{

namespace
{

using workbench::MakeEditor;

std::unique_ptr<CCheckBox> MakeSwitch(bool on)
{
    auto box = MakeEditor<CCheckBox>(60);
    box->SetChecked(on);
    return box;
}

std::unique_ptr<CSlider> MakeSlider(int position)
{
    auto slider = MakeEditor<CSlider>(150);
    slider->SetDirection(CSlider::SliderHorizontal);
    slider->SetPos({0, 0, ToDevicePixels(150), 20}, true);  // only what has a length has positions
    slider->SetSliderPos(position);
    return slider;
}

}  // namespace

std::string CConfigurationPage::CThemes::GetItemCaption(int index) const
{
    static char const* const themes[] = {"As the desktop", "Light", "Dark"};
    return themes[index];
}

CConfigurationPage::CConfigurationPage()
{
    using workbench::CConfigCategory;
    CConfigCategory& look = m_Tree.AddCategory("Appearance", "Colours and sizes of everything");
    auto* const theme = look.AddItem("Theme", MakeEditor<CComboBoxButton>(150));
    theme->GetList()->GetViewer().SetModel(&m_Themes);
    theme->UpdateCaption(0);
    look.AddItem("Large text", MakeSwitch(false));
    look.AddItem("Contrast", MakeSlider(40));
    CConfigCategory& lists = look.AddCategory("Lists", "How rows are told apart");
    lists.AddItem("Tint every second row", MakeSwitch(true));
    lists.AddItem("Lines between rows", MakeSwitch(true));
    CConfigCategory& network = m_Tree.AddCategory("Network", "Where data come from,\nand how long to wait for them");
    network.AddItem("Compress", MakeSwitch(true));
    network.AddItem("Patience", MakeSlider(80));
    network.AddLabel("The proxy is the system's");
    network.AddCategory("Cache", "Kept between runs").AddItem("Keep it", MakeSwitch(true));
    m_Tree.AddCategory("About", "A category without settings");
    for (int i = 1; i <= 14; ++i)
        m_Tree.AddCategory("Plugin " + std::to_string(i), "Loaded at start").AddItem("Active", MakeSwitch(i % 2 == 0));
}

void CConfigurationPage::Build(CVisualElement* parent)
{
    auto* const box = new CScrollBox(parent, {0, 0}, alClient);
    auto* const viewer = new CConfigurationViewer(box, {0, 0}, alClient);
    box->ConnectElement(viewer, CScrollBox::ctVertical, true);
    box->m_SigGetWheelStep.connect(this, &CConfigurationPage::GetWheelStep);
    viewer->SetModel(&m_Tree);
    viewer->GetRowSelectionModel()->SetCurrent(0);
    Report(viewer->GetRowSelectionModel()->m_SigCurrentChanged, "category");
}

// The page scrolls by pixels.
void CConfigurationPage::GetWheelStep(CVisualElement* box, int& step)
{
    step = 3 * box->GetTextLineHeight();
}

}  // namespace gallery
