#pragma once

#include "vexel/antialiasing/drawing_context.h"
#include "vexel/core/fwd.h"
#include "vexel/export.h"

namespace vexel
{

/// A drawing context on a painter: a pixel stands at its position times scale plus origin, in the painter's logical units.
class VEXEL_API CDrawingContext : public IDrawingContext
{
public:
    explicit CDrawingContext(IPainter* painter, double originX = 0, double originY = 0, double scaleX = 1,
                             double scaleY = 1)
        : m_Painter(painter), m_OriginX(originX), m_OriginY(originY), m_ScaleX(scaleX), m_ScaleY(scaleY)
    {}

    unsigned long GetPixel(long x, long y) override;  ///< The top byte is cleared.
    void SetPixel(long x, long y, unsigned long value) override;

private:
    IPainter* m_Painter;
    double m_OriginX;
    double m_OriginY;
    double m_ScaleX;
    double m_ScaleY;
};

}  // namespace vexel
