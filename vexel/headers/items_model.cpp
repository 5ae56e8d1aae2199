#include "vexel/headers/items_model.h"

namespace vexel
{

IItemsModel::~IItemsModel()
{
    m_SigDestroy(this);
}

}  // namespace vexel
