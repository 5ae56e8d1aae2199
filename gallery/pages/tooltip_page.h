#pragma once

#include "gallery/frame/page.h"
#include "vexel/core/context_menu.h"

namespace gallery
{

class CTooltipPage : public CPage, public IContextMenu  // the menu of its own panels
{
public:
    void Build(CVisualElement* parent) override;

    void Show(int x, int y, CVisualElement* element) override;

private:
    CVisualElement* m_Menu = nullptr;
};

}  // namespace gallery
