#include "vexel/headers/items_model.h"

namespace vexel
{

IItemsModel::~IItemsModel() = default;

}  // namespace vexel
