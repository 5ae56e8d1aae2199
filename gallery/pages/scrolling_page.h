#pragma once

#include "gallery/frame/page.h"

namespace gallery
{

class CScrollingPage : public CPage
{
public:
    void Build(CVisualElement* parent) override;
};

}  // namespace gallery
