#pragma once

#include <string>

namespace gallery
{

/// What the command line asks for.
struct SOptions
{
    bool help = false;
    bool list = false;
    bool log = false;
    bool dark = false;        ///< Light texts on dark grounds, whatever the desktop says.
    std::string page;         ///< Empty: the first.
    std::string screenshots;  ///< A folder; empty: show a window.
    double scale = 1.0;
    std::string error;  ///< Not empty: the command line is wrong, and this says how.
};

SOptions ReadOptions(int argc, char const* const* argv);
char const* GetUsage();

}  // namespace gallery
