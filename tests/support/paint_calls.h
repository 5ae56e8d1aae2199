#pragma once

#include "vexel/testing/paint_log.h"

#include <string>

namespace vexel::test
{

/// What follows the prefix in each call that begins with it, in order.
inline std::string CallsFrom(PaintLog const& log, std::string const& prefix)
{
    std::string text;
    for (std::string const& call : log.Calls())
        if (call.starts_with(prefix))
            text += (text.empty() ? "" : "; ") + call.substr(prefix.size() + 1);
    return text;
}

}  // namespace vexel::test
