#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"

namespace vexel
{

/// Shows the context menu of the elements it was given to (CVisualElement::SetContextMenu).
class VEXEL_API IContextMenu
{
public:
    virtual ~IContextMenu();

    /// `x`, `y`: control pixels, where the menu was asked for. `element`: the one whose menu this is.
    virtual void Show(int x, int y, CVisualElement* element) = 0;
};

}  // namespace vexel
