#pragma once

#include "gallery/frame/page.h"

namespace gallery
{

class CFlowGridPage : public CPage
{
public:
    void Build(CVisualElement* parent) override;
};

}  // namespace gallery
