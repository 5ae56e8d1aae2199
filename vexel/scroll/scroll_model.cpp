#include "vexel/scroll/scroll_model.h"

namespace vexel
{

IScrollModel::~IScrollModel() = default;

}  // namespace vexel
