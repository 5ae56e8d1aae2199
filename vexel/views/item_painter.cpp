#include "vexel/views/item_painter.h"

namespace vexel
{

IItemPainter::~IItemPainter() = default;
ICellPainter::~ICellPainter() = default;

}  // namespace vexel
