#include "vexel/antialiasing/drawing_context.h"

namespace vexel
{

IDrawingContext::~IDrawingContext() = default;

}  // namespace vexel
