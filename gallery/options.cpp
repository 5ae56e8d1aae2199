#include "gallery/options.h"

#include <cstdlib>

namespace gallery
{

char const* GetUsage()
{
    return "usage: vexel-gallery [OPTION]...\n"
           "\n"
           "  --list             print the names of the pages\n"
           "  --page NAME        start with this page; with --screenshots, paint only this one\n"
           "  --screenshots DIR  paint the pages into DIR/NAME.png and end; needs no display\n"
           "  --scale FACTOR     how large everything is, 0.5 to 4\n"
           "  --dark             in dark colours\n"
           "  --log              print each signal and native event as a line\n"
           "  --help             this text\n";
}

SOptions ReadOptions(int argc, char const* const* argv)
{
    SOptions options;
    for (int i = 1; i < argc; ++i)
    {
        std::string const argument = argv[i];
        auto const value = [&]() -> std::string {
            if (i + 1 < argc)
                return argv[++i];
            options.error = argument + " needs a value";
            return {};
        };
        if (argument == "--help")
            options.help = true;
        else if (argument == "--list")
            options.list = true;
        else if (argument == "--log")
            options.log = true;
        else if (argument == "--dark")
            options.dark = true;
        else if (argument == "--page")
            options.page = value();
        else if (argument == "--screenshots")
            options.screenshots = value();
        else if (argument == "--scale")
        {
            std::string const text = value();
            char* end = nullptr;
            options.scale = std::strtod(text.c_str(), &end);
            if (options.error.empty() && (text.empty() || *end || !(options.scale >= 0.5 && options.scale <= 4)))
                options.error = "--scale takes a number from 0.5 to 4, not " + text;
        }
        else
            options.error = "unknown option " + argument;
        if (!options.error.empty())
            break;
    }
    return options;
}

}  // namespace gallery
