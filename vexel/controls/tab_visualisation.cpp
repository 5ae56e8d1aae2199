#include "vexel/controls/tab_visualisation.h"

namespace vexel
{

ITabVisualisation::~ITabVisualisation()
{
    m_SigVisualisationDestroy(this);
}

}  // namespace vexel
