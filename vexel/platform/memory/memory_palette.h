#pragma once

#include "vexel/export.h"
#include "vexel/platform/palette.h"

#include <array>

namespace vexelbase::memory
{

/// The memory backend's colours, the same on every machine:
///
///     1 window       FFFFFF    5 half light    E0E0E0     9 highlight       3060C0   13 link  0000FF
///     2 window text  000000    6 shadow        808080    10 highlight text  FFFFFF
///     3 face         C0C0C0    7 dark shadow   404040    11 tooltip         FFFFE0
///     4 light        F0F0F0    8 control text  101010    12 tooltip text    202020
///
/// No two of them are equal but for the two whites, so that a picture tells which one was taken. Other numbers are
/// black.
class VEXEL_MEMORY_API CMemoryPalette : public ISysPalette
{
public:
    CMemoryPalette() { Reset(); }

    _color GetColor(SysColor number) const override;
    void SetColor(SysColor number, _color const& color);  ///< As if the user had chosen another theme; tells nobody.
    void Reset();                                         ///< The colours above.
    /// To those of a dark theme: light texts on dark grounds; no two of them are equal.
    void SetDark();

private:
    std::array<_color, 14> m_Colors;
};

}  // namespace vexelbase::memory
