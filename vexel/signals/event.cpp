#include "vexel/signals/event.h"

namespace vexelbase
{

CEvent::~CEvent() = default;

}  // namespace vexelbase
