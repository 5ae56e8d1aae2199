#include "vexel/views/dirty_item_set.h"

namespace vexel
{

IDirtyItemSet::~IDirtyItemSet() = default;

}  // namespace vexel
