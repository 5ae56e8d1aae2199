#pragma once

#include "gallery/frame/page.h"

namespace gallery
{

/// Round buttons in several sizes, over a plain ground and over a picture.
class CRoundButtonsPage : public CPage
{
public:
    void Build(CVisualElement* parent) override;

private:
    void AddSeeThrough(CVisualElement* pane);
};

}  // namespace gallery
