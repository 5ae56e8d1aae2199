#include "vexel/charts/unit_converter.h"

namespace vexel
{

IUnitConverter::~IUnitConverter() = default;

}  // namespace vexel
