#pragma once

#include "examples/workbench/config_tree.h"
#include "gallery/frame/page.h"
#include "vexel/headers/items_model.h"

namespace gallery
{

class CConfigurationPage : public CPage, public subscriber_base_t
{
public:
    CConfigurationPage();
    void Build(CVisualElement* parent) override;

private:
    class CThemes : public IItemsModel
    {
    public:
        int GetItemCount() const override { return 3; }
        std::string GetItemCaption(int index) const override;
    };

    void GetWheelStep(CVisualElement* box, int& step);

    CThemes m_Themes;
    workbench::CConfigTree m_Tree;
};

}  // namespace gallery
