#include "vexel/layout/element_layout.h"

namespace vexel
{

IElementLayout::~IElementLayout() = default;

}  // namespace vexel
