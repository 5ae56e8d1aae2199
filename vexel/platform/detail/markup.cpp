#include "vexel/platform/detail/markup.h"

#include "vexel/platform/detail/utf8.h"

#include <cstdint>
#include <cstring>
#include <string_view>

namespace vexelbase::detail
{

namespace
{

constexpr bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool EqualAnyCase(char const* text, int length, std::string_view name)
{
    if (static_cast<std::size_t>(length) != name.size())
        return false;
    for (std::size_t i = 0; i < name.size(); ++i)
        if (Lower(text[i]) != name[i])
            return false;
    return true;
}

STag::Kind KindOf(char const* name, int length)
{
    if (EqualAnyCase(name, length, "b") || EqualAnyCase(name, length, "strong"))
        return STag::tkBold;
    if (EqualAnyCase(name, length, "i") || EqualAnyCase(name, length, "em"))
        return STag::tkItalic;
    if (EqualAnyCase(name, length, "u"))
        return STag::tkUnderline;
    if (EqualAnyCase(name, length, "br"))
        return STag::tkBreak;
    if (EqualAnyCase(name, length, "a"))
        return STag::tkLink;
    return STag::tkUnknown;
}

// Goes through the attributes from `p` to behind the ">"; null if there is none. Notes the value of href.
char const* ReadAttributes(char const* p, char const* end, STag& tag)
{
    while (true)
    {
        while (p < end && (IsSpace(*p) || *p == '/'))
            ++p;
        if (p == end || *p == '<')
            return nullptr;
        if (*p == '>')
            return p + 1;

        char const* const name = p;
        while (p < end && !IsSpace(*p) && *p != '=' && *p != '>' && *p != '<' && *p != '/')
            ++p;
        int const nameLength = static_cast<int>(p - name);
        while (p < end && IsSpace(*p))
            ++p;
        if (p == end || *p != '=')
            continue;
        ++p;
        while (p < end && IsSpace(*p))
            ++p;
        if (p == end)
            return nullptr;

        char const* value = p;
        char const* valueEnd = nullptr;
        if (*p == '"' || *p == '\'')
        {
            ++value;
            valueEnd = static_cast<char const*>(std::memchr(value, *p, static_cast<std::size_t>(end - value)));
            if (!valueEnd)
                return nullptr;
            p = valueEnd + 1;
        }
        else
        {
            while (p < end && !IsSpace(*p) && *p != '>' && *p != '<')
                ++p;
            valueEnd = p;
        }
        if (!tag.target && EqualAnyCase(name, nameLength, "href"))
        {
            tag.target = value;
            tag.targetLength = static_cast<int>(valueEnd - value);
        }
    }
}

// The number of "#65" or "#x41" behind `p`, which stands behind the "#"; -1 if there is none. `p` goes to its end.
std::int64_t ReadNumber(char const*& p, char const* end)
{
    constexpr int MaxDigits = 12;  // leading zeros included
    bool const hexadecimal = p < end && (*p == 'x' || *p == 'X');
    if (hexadecimal)
        ++p;
    std::int64_t number = 0;
    int digits = 0;
    for (; p < end && digits < MaxDigits; ++p, ++digits)
    {
        char const c = Lower(*p);
        if (IsDigit(c))
            number = number * (hexadecimal ? 16 : 10) + (c - '0');
        else if (hexadecimal && c >= 'a' && c <= 'f')
            number = number * 16 + (c - 'a' + 10);
        else
            break;
    }
    return digits > 0 ? number : -1;
}

bool IsWritable(std::int64_t code)
{
    return code >= 32 && code <= 0x10FFFF && !(code >= 0xD800 && code <= 0xDFFF) && !(code >= 0x7F && code < 0xA0);
}

}  // namespace

STag ReadTag(char const* text, char const* end)
{
    STag tag;
    char const* p = text + 1;
    if (p >= end)
        return tag;

    if (*p == '!' || *p == '?')
    {
        while (p < end && *p != '>' && *p != '<')
            ++p;
        if (p == end || *p != '>')
            return tag;
        tag.kind = STag::tkUnknown;
        tag.length = static_cast<int>(p + 1 - text);
        return tag;
    }

    tag.closing = *p == '/';
    if (tag.closing)
        ++p;
    char const* const name = p;
    if (p >= end || !IsLetter(*p))
        return STag();
    while (p < end && (IsLetter(*p) || IsDigit(*p)))
        ++p;
    int const nameLength = static_cast<int>(p - name);
    if (p == end || (!IsSpace(*p) && *p != '/' && *p != '>'))
        return STag();
    char const* const behind = ReadAttributes(p, end, tag);
    if (!behind)
        return STag();
    tag.kind = KindOf(name, nameLength);
    tag.length = static_cast<int>(behind - text);
    return tag;
}

SEntity ReadEntity(char const* text, char const* end)
{
    SEntity entity;
    char const* p = text + 1;
    std::int64_t code = -1;
    if (p < end && *p == '#')
    {
        ++p;
        code = ReadNumber(p, end);
        if (code == '\t' || code == '\n' || code == '\r')
            code = ' ';
    }
    else
    {
        struct SName
        {
            std::string_view name;
            int code;
        };
        static constexpr SName names[] = {{"lt", '<'},   {"gt", '>'},    {"amp", '&'},
                                          {"quot", '"'}, {"apos", '\''}, {"nbsp", 0xA0}};
        char const* const name = p;
        while (p < end && p - name < 5 && IsLetter(*p))
            ++p;
        for (SName const& known : names)
            if (EqualAnyCase(name, static_cast<int>(p - name), known.name))
                code = known.code;
    }
    if (p >= end || *p != ';' || !IsWritable(code))
        return entity;
    entity.length = static_cast<int>(p + 1 - text);
    entity.byteCount = EncodeUtf8(static_cast<std::uint32_t>(code), entity.bytes);
    return entity;
}

}  // namespace vexelbase::detail
