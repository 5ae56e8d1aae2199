#include "vexel/controls/border.h"

#include "vexel/platform/painter.h"

namespace vexel
{

namespace
{

/// Takes a rectangle out of the clip for a scope.
class CExcludedRect
{
public:
    CExcludedRect(IPainter* painter, rectangle<int> const& rect) : m_Painter(painter), m_Kept(painter->GetClipRect())
    {
        painter->SetClipRect(rect.left, rect.top, rect.right, rect.bottom, true);
    }
    ~CExcludedRect()
    {
        m_Painter->ResetClip();
        m_Painter->m_ClipCache = {};
        if (!m_Kept.IsZero())
            m_Painter->SimpleSetClipRect(m_Kept, false);
    }
    CExcludedRect(CExcludedRect const&) = delete;
    CExcludedRect& operator=(CExcludedRect const&) = delete;

private:
    IPainter* const m_Painter;
    rectangle<double> const m_Kept;
};

}  // namespace

void CBorder::DrawContent(IPainter* painter)
{
    if (IsTransparent())
        return;
    CExcludedRect const children(painter, GetContentRect());
    CBevel::DrawContent(painter);
}

}  // namespace vexel
