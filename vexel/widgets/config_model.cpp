#include "vexel/widgets/config_model.h"

namespace vexel
{

ICategorySet::~ICategorySet() = default;

IConfigItem::~IConfigItem() = default;

IItem::~IItem() = default;

}  // namespace vexel
