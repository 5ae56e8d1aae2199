#pragma once

#include "vexel/controls/bevel.h"
#include "vexel/core/transparent_flavor.h"

namespace vexel
{

/// A frame that leaves the area of its children alone: neither ground nor frame is painted inside. Transparent it draws
/// nothing at all.
class VEXEL_API CBorder : public CTransparentFlavor<CBevel>
{
public:
    using CTransparentFlavor<CBevel>::CTransparentFlavor;

    void DrawContent(IPainter* painter) override;
};

}  // namespace vexel
