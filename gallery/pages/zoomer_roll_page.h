#pragma once

#include "gallery/frame/page.h"

namespace gallery
{

class CPanel;

class CZoomerRollPage : public CPage, public subscriber_base_t
{
public:
    void Build(CVisualElement* parent) override;

private:
    void Zoom(double position);

    CPanel* m_Shown = nullptr;
};

}  // namespace gallery
