#pragma once

#include "gallery/frame/page.h"

namespace gallery
{

class CNativeControlsPage : public CPage
{
public:
    CNativeControlsPage();
    ~CNativeControlsPage() override;

    void Build(CVisualElement* parent) override;

private:
    class CImp;

    std::unique_ptr<CImp> m_Imp;
};

}  // namespace gallery
