#include "vexel/widgets/slider_model.h"

namespace vexel
{

ISliderModel::~ISliderModel()
{
    m_SigDestroy(this);
}

CDefSliderModel s_DefSliderModel;

}  // namespace vexel
