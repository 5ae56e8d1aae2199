#include "vexel/views/item_positions.h"

namespace vexel
{

IItemPositions::~IItemPositions() = default;

}  // namespace vexel
