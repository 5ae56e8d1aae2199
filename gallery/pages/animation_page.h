#pragma once

#include "gallery/frame/page.h"
#include "vexel/platform/animation.h"

#include <cstddef>
#include <functional>

namespace gallery
{

class CAnimationPage : public CPage
{
public:
    /// Makes an animation of an image file in memory, which only a backend can read.
    using Reader = std::function<vexel_ptr<IAnimation>(unsigned char const* data, std::size_t bytes)>;
    static void SetReader(Reader reader);

    void Build(CVisualElement* parent) override;
};

}  // namespace gallery
