#pragma once

// The rules by which bytes become rows and fields. Nothing here knows files or windows.
//
// - A row ends at "\n"; a "\r" right before that, or as the last byte of the file, belongs to the line end. The last row
//   needs no line end. An empty line is a row with one empty field.
// - A field that begins with a quote goes on to its closing quote, over delimiters and line ends; a doubled quote inside is
//   one quote. What stands between the closing quote and the next delimiter is taken as it is.
// - A quote elsewhere is an ordinary character. So is an opening quote that finds no closing one within s_QuotedLimit bytes
//   or before the end of the file: one forgotten quote costs one field and not the rest of the file.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace table
{

constexpr std::size_t s_QuotedLimit = std::size_t{1} << 20;  ///< The most bytes between two quotes.

/// What NextField found.
struct SField
{
    enum Kind
    {
        Incomplete,  ///< The bytes end before the field does.
        Inner,       ///< Another field follows.
        Last         ///< The row ends with it.
    };
    Kind kind = Incomplete;
    /// So many bytes are done with, the delimiter or line end included. Of an incomplete field: so many may be dropped by
    /// who only looks for its end and goes on with `inside`; 0 as long as its quote isn't decided on.
    std::size_t length = 0;
    std::size_t content = 0;  ///< So many of them are the field's, its quotes included.
    bool quoted = false;      ///< It begins with a quote that is closed.
    bool unclosed = false;    ///< It begins with a quote that is not.
    bool tail = false;        ///< It goes on behind its closing quote.
};

/// Finds the end of the field that begins at the front of `bytes`.
/// `last`: the file ends with these bytes. `inside`: they begin within a field, behind what was dropped of it. With
/// s_QuotedLimit + 3 bytes or more, something can always be dropped.
SField NextField(std::string_view bytes, bool last, char delimiter, bool inside = false);

/// Appends the text of a field: its first `content` bytes without the quotes. Always UTF-8 without NULs, see AppendText.
void AppendField(std::string_view content, bool quoted, std::string& text);

/// Appends bytes as UTF-8. A byte that belongs to no valid character, and a NUL, each become U+FFFD.
void AppendText(std::string_view bytes, std::string& text);

/// Bytes that no text has.
struct SByteFaults
{
    std::uint64_t invalid = 0;  ///< Those that belong to no valid character of UTF-8.
    std::uint64_t nuls = 0;
};

/// Counts the faults among the bytes; returns how many bytes were judged. Up to 3 at the end are left if the file goes on,
/// as a character may begin there.
std::size_t CheckBytes(std::string_view bytes, bool last, SByteFaults& faults);

/// The delimiter of a file: a tab if its name ends in .tsv or .tab, else the one of comma, semicolon and tab that the first
/// row has most of outside of quotes; a comma if it has none.
char GuessDelimiter(std::string_view path, std::string_view begin);

}  // namespace table
