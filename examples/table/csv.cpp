#include "csv.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace table
{

namespace
{

constexpr std::size_t s_None = std::string_view::npos;

/// The first quote from `from` on that is not doubled, or none. A quote at the very end counts as closing.
std::size_t FindClosingQuote(std::string_view bytes, std::size_t from)
{
    for (;;)
    {
        std::size_t const quote = bytes.find('"', from);
        if (quote == s_None || quote + 1 >= bytes.size() || bytes[quote + 1] != '"')
            return quote;
        from = quote + 2;
    }
}

bool IsContinuation(unsigned char byte)
{
    return (byte & 0xC0u) == 0x80u;
}

/// The length of the valid character that begins the bytes, of which there is at least one; 0 if there is none.
std::size_t CharacterLength(std::string_view bytes)
{
    auto const byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    unsigned char const first = byte(0);
    if (first < 0x80)
        return 1;
    std::size_t const length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < length)
        return 0;
    // The second byte rules out long forms, halves of surrogate pairs, and what lies beyond U+10FFFF.
    unsigned char const low = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    unsigned char const high = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    if (byte(1) < low || byte(1) > high)
        return 0;
    for (std::size_t i = 2; i < length; ++i)
        if (!IsContinuation(byte(i)))
            return 0;
    return length;
}

/// How many bytes at the front are plain ASCII without NULs; eight are looked at in one step.
std::size_t PlainLength(std::string_view bytes)
{
    constexpr std::uint64_t ones = 0x0101010101010101u, highs = 0x8080808080808080u;
    std::size_t at = 0;
    for (; at + 8 <= bytes.size(); at += 8)
    {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data() + at, 8);
        if ((word | (word - ones)) & highs)  // a byte from 0x80 on, or one that borrows
            break;
    }
    while (at < bytes.size() && bytes[at] != '\0' && static_cast<unsigned char>(bytes[at]) < 0x80)
        ++at;
    return at;
}

}  // namespace

SField NextField(std::string_view bytes, bool last, char delimiter, bool inside)
{
    SField field;
    std::size_t at = 0;
    if (!inside && !bytes.empty() && bytes[0] == '"')
    {
        std::size_t const farthest = 1 + s_QuotedLimit;  // where the closing quote may stand
        std::size_t const quote = FindClosingQuote(bytes.substr(0, farthest + 2), 1);
        bool const decided = last || bytes.size() >= farthest + 2;
        if (quote <= farthest && (quote + 1 < bytes.size() || last))
        {
            field.quoted = true;
            at = quote + 1;
            field.tail = at < bytes.size() && bytes[at] != delimiter && bytes[at] != '\n' && bytes[at] != '\r';
        }
        else if (decided)
        {
            field.unclosed = true;
            at = 1;
        }
        else
            return field;
    }

    char const* const begin = bytes.data();
    char const* const end = begin + bytes.size();
    char const* place = begin + at;
    while (place < end && *place != delimiter && *place != '\n')
        ++place;
    at = static_cast<std::size_t>(place - begin);
    field.content = at;
    if (place == end)
    {
        field.kind = last ? SField::Last : SField::Incomplete;
        field.length = at;
    }
    else
    {
        field.kind = *place == delimiter ? SField::Inner : SField::Last;
        field.length = at + 1;
    }
    if (field.kind == SField::Last && at > 0 && bytes[at - 1] == '\r')
        --field.content;
    return field;
}

void AppendField(std::string_view content, bool quoted, std::string& text)
{
    if (!quoted)
        return AppendText(content, text);
    std::size_t from = 1;
    for (;;)
    {
        std::size_t const quote = content.find('"', from);
        if (quote == s_None)  // it was cut
            return AppendText(content.substr(from), text);
        AppendText(content.substr(from, quote - from), text);
        if (quote + 1 >= content.size() || content[quote + 1] != '"')
            return AppendText(content.substr(quote + 1), text);
        text += '"';
        from = quote + 2;
    }
}

void AppendText(std::string_view bytes, std::string& text)
{
    while (!bytes.empty())
    {
        std::size_t const plain = PlainLength(bytes);
        text.append(bytes, 0, plain);
        bytes.remove_prefix(plain);
        if (bytes.empty())
            return;
        std::size_t const length = bytes[0] == '\0' ? 0 : CharacterLength(bytes);
        if (length == 0)
            text += "\xEF\xBF\xBD";
        else
            text.append(bytes, 0, length);
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
}

std::size_t CheckBytes(std::string_view bytes, bool last, SByteFaults& faults)
{
    std::size_t at = 0;
    for (;;)
    {
        at += PlainLength(bytes.substr(at));
        if (at >= bytes.size() || (!last && bytes.size() - at < 4))
            return at;
        if (bytes[at] == '\0')
        {
            ++faults.nuls;
            ++at;
            continue;
        }
        std::size_t const length = CharacterLength(bytes.substr(at));
        if (length == 0)
            ++faults.invalid;
        at += std::max<std::size_t>(length, 1);
    }
}

char GuessDelimiter(std::string_view path, std::string_view begin)
{
    if (path.ends_with(".tsv") || path.ends_with(".tab"))
        return '\t';
    std::array<char, 3> const candidates{',', ';', '\t'};
    std::array<int, 3> counts{};
    bool quoted = false;
    for (char const c : begin)
    {
        if (c == '"')
            quoted = !quoted;
        if (quoted)
            continue;
        if (c == '\n')
            break;
        for (std::size_t i = 0; i < candidates.size(); ++i)
            counts[i] += c == candidates[i];
    }
    return candidates[static_cast<std::size_t>(std::max_element(counts.begin(), counts.end()) - counts.begin())];
}

}  // namespace table
