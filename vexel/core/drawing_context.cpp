#include "vexel/core/drawing_context.h"

#include "vexel/platform/painter.h"

#include <cstdint>

namespace vexel
{

unsigned long CDrawingContext::GetPixel(long x, long y)
{
    return m_Painter
               ->GetPixel(static_cast<double>(x) * m_ScaleX + m_OriginX, static_cast<double>(y) * m_ScaleY + m_OriginY)
               .m_Value &
           0xFFFFFFu;
}

void CDrawingContext::SetPixel(long x, long y, unsigned long value)
{
    m_Painter->SetPixel(static_cast<double>(x) * m_ScaleX + m_OriginX, static_cast<double>(y) * m_ScaleY + m_OriginY,
                        _color(static_cast<std::uint32_t>(value)));
}

}  // namespace vexel
