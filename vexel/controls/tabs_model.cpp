#include "vexel/controls/tabs_model.h"

namespace vexel
{

ITabsModel::~ITabsModel()
{
    m_SigDestroy(this);
}

}  // namespace vexel
