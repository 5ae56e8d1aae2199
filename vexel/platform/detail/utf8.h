#pragma once

#include <cstddef>
#include <cstdint>

namespace vexelbase::detail
{

/// True for a byte that goes on with a character begun before it.
constexpr bool IsUtf8Continuation(char c) { return (static_cast<unsigned char>(c) & 0xC0u) == 0x80u; }

/// How many bytes a character has that begins with this one; 1 where none can begin.
constexpr int Utf8Length(char first)
{
    auto const c = static_cast<unsigned char>(first);
    if (c >= 0xC2u && c < 0xE0u)
        return 2;
    if (c >= 0xE0u && c < 0xF0u)
        return 3;
    if (c >= 0xF0u && c < 0xF5u)
        return 4;
    return 1;
}

/// `length`, less the bytes of a character at the end that is not whole.
constexpr int WithoutPartialUtf8(char const* text, int length)
{
    for (int back = 1; back <= 3 && back <= length; ++back)
    {
        char const c = text[length - back];
        if (!IsUtf8Continuation(c))
            return Utf8Length(c) > back ? length - back : length;
    }
    return length;
}

/// The largest end not above `position` that parts no character. `position`: 0 to `length`.
constexpr int Utf8Boundary(char const* text, int length, int position)
{
    if (position >= length)
        return length;
    int start = position;
    while (start > 0 && position - start < 3 && IsUtf8Continuation(text[start]))
        --start;
    return start + Utf8Length(text[start]) > position ? start : position;
}

/// Writes a code point to `out`, of at least 4 bytes; returns how many it took. Not for surrogates.
constexpr int EncodeUtf8(std::uint32_t code, char* out)
{
    auto const byte = [](std::uint32_t value) { return static_cast<char>(static_cast<unsigned char>(value)); };
    if (code < 0x80u)
    {
        out[0] = byte(code);
        return 1;
    }
    if (code < 0x800u)
    {
        out[0] = byte(0xC0u | code >> 6);
        out[1] = byte(0x80u | (code & 0x3Fu));
        return 2;
    }
    if (code < 0x10000u)
    {
        out[0] = byte(0xE0u | code >> 12);
        out[1] = byte(0x80u | (code >> 6 & 0x3Fu));
        out[2] = byte(0x80u | (code & 0x3Fu));
        return 3;
    }
    out[0] = byte(0xF0u | code >> 18);
    out[1] = byte(0x80u | (code >> 12 & 0x3Fu));
    out[2] = byte(0x80u | (code >> 6 & 0x3Fu));
    out[3] = byte(0x80u | (code & 0x3Fu));
    return 4;
}

}  // namespace vexelbase::detail
