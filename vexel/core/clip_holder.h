#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"

namespace vexel
{

/// Narrows the painter's clip for a scope. A null painter is legal: nothing happens.
class VEXEL_API CClipHolder
{
public:
    /// `clip`: logical coordinates, edges included; the mapping must be installed already. `margins`: added to the edges
    /// where a clip stands already, right and bottom at least 1. A clip that would leave nothing is not set.
    CClipHolder(IPainter* painter, rectangle<double> const& clip, rectangle<double> const& margins = {});
    ~CClipHolder();
    CClipHolder(CClipHolder const&) = delete;
    CClipHolder& operator=(CClipHolder const&) = delete;

private:
    rectangle<double> m_SavedClip;  // device; all zero: none
    IPainter* m_Painter;
};

}  // namespace vexel
