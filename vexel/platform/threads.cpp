#include "vexel/platform/threads.h"

namespace vexelbase
{

IRunnable::~IRunnable() = default;
ISynchronizer::~ISynchronizer() = default;

}  // namespace vexelbase
