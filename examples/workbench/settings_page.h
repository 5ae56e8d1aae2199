#pragma once

#include "config_tree.h"
#include "state.h"

#include "vexel/headers/items_model.h"

namespace vexel
{
class CButton;
class CCheckBox;
class CComboBoxButton;
}  // namespace vexel

namespace workbench
{

/// What can be set, as a page of categories.
class CSettingsPage : public CVisualElement
{
public:
    explicit CSettingsPage(SState const& state);

    signal_t<SState::Theme> m_SigTheme;
    signal_t<bool> m_SigLive;    ///< Lines come by themselves.
    signal_t<bool> m_SigFollow;  ///< The log follows its end.
    signal_t<> m_SigClearLog;

    void Save(SState& state) const;

private:
    class CThemes : public IItemsModel
    {
    public:
        int GetItemCount() const override { return 3; }
        std::string GetItemCaption(int index) const override;
    };

    void GetWheelStep(CVisualElement* box, int& step);
    void ThemeChosen(int theme);
    void LiveChanged(CCheckBox*);
    void FollowChanged(CCheckBox*);
    void ClearClicked(CButton*);

    SState::Theme m_Theme;
    CThemes m_Themes;
    CConfigTree m_Tree;  // owns the editors
    CComboBoxButton* m_ThemeBox = nullptr;
    CCheckBox* m_Live = nullptr;
    CCheckBox* m_Follow = nullptr;
};

}  // namespace workbench
