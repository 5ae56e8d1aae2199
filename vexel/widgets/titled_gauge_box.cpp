#include "vexel/widgets/titled_gauge_box.h"

namespace vexel
{

CTitledGaugeBox::~CTitledGaugeBox() = default;

}  // namespace vexel
