#pragma once

#include <array>
#include <string>

namespace workbench
{

/// What the program remembers between its runs.
struct SState
{
    enum Theme : int
    {
        ThemeDesktop = 0,
        ThemeLight = 1,
        ThemeDark = 2
    };
    struct SColumn
    {
        int number = 0;  // of the column that stands at this place
        int width = 96;  // unscaled pixels
    };

    Theme theme = ThemeDesktop;
    int page = 0;
    int logHeight = 170;  // unscaled pixels
    int detailsWidth = 220;
    bool live = false;
    bool follow = true;
    int span = 1;  // of the chart: one of its choices
    std::array<SColumn, 7> columns{{{0, 150}, {1}, {2}, {3}, {4}, {5}, {6}}};
};

enum class ReadResult
{
    Read,
    Absent,  ///< There is no such file: the first run.
    Damaged  ///< It is there and can't be understood.
};

/// `*state` is changed only where all of the file could be read. Unknown names are left out, for later versions' sake.
ReadResult ReadState(std::string const& path, SState* state);
bool WriteState(std::string const& path, SState const& state);

}  // namespace workbench
