#pragma once

#include "gallery/frame/page.h"
#include "gallery/pages/list_boxes_page.h"

#include <memory>

namespace gallery
{

/// Drop buttons, combo buttons, and fields that are edited in place.
class CDropdownsPage : public CPage
{
public:
    CDropdownsPage();
    ~CDropdownsPage() override;

    void Build(CVisualElement* parent) override;

private:
    CLines m_Seasons{{"Spring", "Summer", "Autumn", "Winter"}};
    CNumberedLines m_Numbered;
};

}  // namespace gallery
