#pragma once

#include "vexel/core/alive_guard.h"
#include "vexel/platform/painter.h"

namespace vexel
{

/// The painter's clip, narrowed for a scope to a rectangle (logical coordinates, edges included), also to nothing.
class CClipScope
{
public:
    /// `painter`: outlives the scope; it may become null meanwhile.
    CClipScope(CAlivePtr<IPainter> const& painter, rectangle<int> const& rect)
        : m_Painter(painter), m_Saved(painter->GetClipRect())
    {
        painter->SetClipRect(rect.left, rect.top, rect.right, rect.bottom, false);
    }
    ~CClipScope()
    {
        if (m_Painter)
            m_Painter->SimpleSetClipRect(m_Saved, false);
    }
    CClipScope(CClipScope const&) = delete;
    CClipScope& operator=(CClipScope const&) = delete;

private:
    CAlivePtr<IPainter> const& m_Painter;
    rectangle<double> const m_Saved;
};

}  // namespace vexel
