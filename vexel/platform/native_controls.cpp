#include "vexel/platform/native_controls.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"

#include <algorithm>

namespace vexelbase
{

IImageList::~IImageList() = default;

void PositionPopup(vexel_ptr<IPopup> popup, screen_rectangle<int> const& owner)
{
    ISysWindow* const ownerWindow = popup ? popup->GetOwner() : nullptr;
    if (!ownerWindow)
        return;

    point<int> leftTop{owner.left, owner.top};
    point<int> rightBottom{owner.right, owner.bottom};
    ownerWindow->ClientToScreen(&leftTop);
    ownerWindow->ClientToScreen(&rightBottom);

    point<int> place{leftTop.x, rightBottom.y};
    ISystem* const system = GetCurrentSystem();
    ISysWindow* const window = popup->GetWindow();
    rectangle<int> const area = system ? system->GetWorkArea(leftTop) : rectangle<int>();
    if (window && !area.IsZero())
    {
        int const width = window->GetRect().Width();
        int const height = window->GetRect().Height();
        int const below = SubtractSaturated(area.bottom, rightBottom.y);
        int const above = SubtractSaturated(leftTop.y, area.top);
        if (height > below && above > below)
            place.y = SubtractSaturated(leftTop.y, height);
        place.x = std::max(std::min(place.x, SubtractSaturated(area.right, width)), area.left);
    }
    popup->Show(place);
}

}  // namespace vexelbase
