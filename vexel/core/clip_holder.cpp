#include "vexel/core/clip_holder.h"

#include "vexel/platform/painter.h"

#include <algorithm>

namespace vexel
{

CClipHolder::CClipHolder(IPainter* painter, rectangle<double> const& clip, rectangle<double> const& margins)
    : m_Painter(painter)
{
    if (!painter)
        return;
    m_SavedClip = painter->GetClipRect();
    if (m_SavedClip.IsZero())
    {
        painter->SetClipRect(clip.left, clip.top, clip.right, clip.bottom, false);
        return;
    }
    rectangle<double> device{clip.left + margins.left, clip.top + margins.top,
                             clip.right + std::max(margins.right, 1.0), clip.bottom + std::max(margins.bottom, 1.0)};
    painter->ConvertCoord2(&device, false);
    device.Intersect(m_SavedClip);
    if (!(device.Width() > 1.0 && device.Height() > 1.0))
        return;
    painter->ResetClip();
    painter->m_ClipCache = {};
    painter->SimpleSetClipRect(device, false);
}

CClipHolder::~CClipHolder()
{
    if (!m_Painter)
        return;
    m_Painter->ResetClip();
    m_Painter->m_ClipCache = {};
    if (!m_SavedClip.IsZero())
        m_Painter->SimpleSetClipRect(m_SavedClip, false);
}

}  // namespace vexel
