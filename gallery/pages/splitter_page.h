#pragma once

#include "gallery/frame/page.h"

namespace gallery
{

class CSplitterPage : public CPage
{
public:
    void Build(CVisualElement* parent) override;
};

}  // namespace gallery
