#pragma once

#include "vexel/export.h"

#include <map>
#include <string>

namespace vexel
{

/// The captions of standard buttons by their bit, for the whole process. Empty at first; the application fills it in.
VEXEL_API std::map<int, std::string>& GetButtonCaptions();

}  // namespace vexel
