#pragma once

namespace vexelbase::detail
{

/// True for a character behind which a line may be wrapped. Null delimiters: there are none. Only ASCII counts.
inline bool IsDelimiter(char c, char const* delimiters)
{
    if (!delimiters || static_cast<signed char>(c) <= 0)
        return false;
    for (char const* p = delimiters; *p; ++p)
        if (*p == c)
            return true;
    return false;
}

inline int CountTrailingBlanks(char const* text, int length)
{
    int count = 0;
    while (count < length && text[length - 1 - count] == ' ')
        ++count;
    return count;
}

}  // namespace vexelbase::detail
