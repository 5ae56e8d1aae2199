#include "vexel/core/transparent_painter.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

#include <algorithm>

namespace vexel
{

CTransparentPainter::CTransparentPainter(IPainter* target, rectangle<int> const& rect, int alpha)
    : m_Target(target), m_Rect(rect), m_Picture(GetCurrentSystem()->CreateRasterPicture(
                                          {AddSaturated(std::max(SubtractSaturated(rect.right, rect.left), -1), 1),
                                           AddSaturated(std::max(SubtractSaturated(rect.bottom, rect.top), -1), 1)})),
      m_Painter(m_Picture->GetPainter()), m_Alpha(alpha)
{
    m_Painter->BeginPaint(IPainter::ssPaint);
}

CTransparentPainter::~CTransparentPainter()
{
    m_Painter->EndPaint();
    m_Target->AlphaBlend(m_Rect.left, m_Rect.top, m_Rect.right, m_Rect.bottom, m_Picture.get(), m_Alpha);
}

}  // namespace vexel
