#include "vexel/core/selection_drawers.h"

#include "vexel/platform/painter.h"

namespace vexel
{

void FocusRectDrawer::DrawRect(IPainter* painter, double left, double top, double right, double bottom)
{
    point<double> leftTop{left, top};
    point<double> rightBottom{right, bottom};
    painter->DeconvertCoord1(&leftTop, false);
    painter->DeconvertCoord1(&rightBottom, false);
    painter->FocusRect(leftTop.x, leftTop.y, rightBottom.x, rightBottom.y);
}

void FocusRectDrawer::DrawSelection(IPainter* painter, double oldLeft, double oldTop, double oldRight, double oldBottom,
                                    double newLeft, double newTop, double newRight, double newBottom)
{
    DrawRect(painter, oldLeft, oldTop, oldRight, oldBottom);
    DrawRect(painter, newLeft, newTop, newRight, newBottom);
}

void XORRectDrawer::DrawRect(IPainter* painter, double left, double top, double right, double bottom)
{
    IPainter::RasterOperation const mode = painter->GetDrawMode();
    painter->SetDrawMode(IPainter::roXor);
    painter->SetBrush({color_table[9], brush::bsNone});
    painter->SetPen({color_table[9], pen::psSolid, 1});  // white inverts what it meets
    painter->Rectangle(left, top, right, bottom);
    painter->SetDrawMode(mode);
}

void XORRectDrawer::DrawSelection(IPainter* painter, double oldLeft, double oldTop, double oldRight, double oldBottom,
                                  double newLeft, double newTop, double newRight, double newBottom)
{
    DrawRect(painter, oldLeft, oldTop, oldRight, oldBottom);
    DrawRect(painter, newLeft, newTop, newRight, newBottom);
}

}  // namespace vexel
