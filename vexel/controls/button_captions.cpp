#include "vexel/controls/button_captions.h"

namespace vexel
{

std::map<int, std::string>& GetButtonCaptions()
{
    static auto* const captions = new std::map<int, std::string>;  // outlives static elements
    return *captions;
}

}  // namespace vexel
