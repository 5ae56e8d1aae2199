#pragma once

namespace vexel::detail
{

inline constexpr int g_KeyEscape = 27;
inline constexpr int g_KeyDown = 40;
inline constexpr int g_AltAlone = 0x400;  // the whole word of keys: alt is held, nothing else

/// Opens what drops down.
inline bool IsDropKey(int keys, int key)
{
    return key == g_KeyDown && keys == g_AltAlone;
}

}  // namespace vexel::detail
