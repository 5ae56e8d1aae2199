#pragma once

#include "gallery/frame/page.h"
#include "vexel/controls/radio_button.h"

namespace gallery
{

/// Check boxes with the platform's marks and with images, and a group of radio buttons.
class CChoicesPage : public CPage
{
public:
    void Build(CVisualElement* parent) override;

private:
    CRadioGroup m_Seasons;
    CRadioGroup m_Sizes;
};

}  // namespace gallery
