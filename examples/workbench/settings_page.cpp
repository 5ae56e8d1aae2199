#include "settings_page.h"

#include "vexel/controls/check_box.h"
#include "vexel/controls/combo_box_button.h"
#include "vexel/scroll/scroll_box.h"
#include "vexel/widgets/configuration_viewer.h"

namespace workbench
{

std::string CSettingsPage::CThemes::GetItemCaption(int index) const
{
    static char const* const themes[] = {"As the desktop", "Light", "Dark"};
    return themes[index];
}

CSettingsPage::CSettingsPage(SState const& state) : CVisualElement(nullptr, {0, 0}, alClient), m_Theme(state.theme)
{
    CConfigCategory& look = m_Tree.AddCategory("Appearance", "Colours of the whole program");
    m_ThemeBox = look.AddItem("Theme", MakeEditor<CComboBoxButton>(150));
    m_ThemeBox->GetList()->GetViewer().SetModel(&m_Themes);
    m_ThemeBox->GetList()->GetViewer().SetCurrentItem(m_Theme);
    m_ThemeBox->UpdateCaption(m_Theme);
    m_ThemeBox->GetList()->GetViewer().m_SigItemActivated.connect(this, &CSettingsPage::ThemeChosen);

    CConfigCategory& log = m_Tree.AddCategory("Event log", "What is told, and how it shows");
    m_Follow = log.AddItem("Follow the end", MakeEditor<CCheckBox>(60));
    m_Follow->SetChecked(state.follow);
    m_Follow->m_CheckChanged.connect(this, &CSettingsPage::FollowChanged);
    CConfigCategory& source = log.AddCategory("Source", "Where lines come from");
    m_Live = source.AddItem("Live", MakeEditor<CCheckBox>(60));
    m_Live->SetChecked(state.live);
    m_Live->m_CheckChanged.connect(this, &CSettingsPage::LiveChanged);
    auto* const clear = source.AddItem("All of it", MakeEditor<CButton>(90));
    clear->SetCaption("Clear");
    clear->m_Clicked.connect(this, &CSettingsPage::ClearClicked);
    m_Tree.AddCategory("About", "A thousand million readings of a machine\nthat doesn't exist; none of them is kept");

    auto* const box = new CScrollBox(this, {0, 0}, alClient);
    auto* const viewer = new CConfigurationViewer(box, {0, 0}, alClient);
    box->ConnectElement(viewer, CScrollBox::ctVertical, true);
    box->m_SigGetWheelStep.connect(this, &CSettingsPage::GetWheelStep);
    viewer->SetModel(&m_Tree);
    viewer->GetRowSelectionModel()->SetCurrent(0);
}

void CSettingsPage::Save(SState& state) const
{
    state.theme = m_Theme;
    state.live = m_Live->IsChecked();
    state.follow = m_Follow->IsChecked();
}

// The page scrolls by pixels.
void CSettingsPage::GetWheelStep(CVisualElement* box, int& step)
{
    step = 3 * box->GetTextLineHeight();
}

void CSettingsPage::ThemeChosen(int theme)
{
    if (theme < 0)
        return;
    m_Theme = static_cast<SState::Theme>(theme);
    m_SigTheme(m_Theme);
}

void CSettingsPage::LiveChanged(CCheckBox*)
{
    m_SigLive(m_Live->IsChecked());
}

void CSettingsPage::FollowChanged(CCheckBox*)
{
    m_SigFollow(m_Follow->IsChecked());
}

void CSettingsPage::ClearClicked(CButton*)
{
    m_SigClearLog();
}

}  // namespace workbench
