#include "vexel/platform/text_formatter.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/detail/delimiters.h"
#include "vexel/platform/detail/fit_run.h"
#include "vexel/platform/detail/utf8.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace vexelbase
{

namespace detail
{

int FitRun(IPainter* painter, char const* text, int length, int maxWidth, int& width)
{
    width = 0;
    if (maxWidth < 0)
        return 0;
    int good = 0;
    int goodWidth = 0;
    int bad = length + 1;  // as if one byte more than all were too wide
    // Prefixes grow twofold until one is too wide; then the end is looked for between the last two.
    for (int tried = 8; good<length; tried = tried> length / 2 ? length : tried * 2)
    {
        int const end = Utf8Boundary(text, length, std::min(tried, length));
        int const endWidth = painter->MeasureRun(text, end);
        if (endWidth > maxWidth)
        {
            bad = end;
            break;
        }
        good = end;
        goodWidth = endWidth;
    }
    while (bad - good > 1)
    {
        int const end = Utf8Boundary(text, length, good + (bad - good) / 2);
        if (end <= good)
        {
            // The middle lies in the character behind the good end: that one is the only one left to try.
            int const next = std::min(good + Utf8Length(text[good]), length);
            if (next >= bad)
                break;
            int const nextWidth = painter->MeasureRun(text, next);
            if (nextWidth > maxWidth)
                break;
            good = next;
            goodWidth = nextWidth;
            continue;
        }
        int const endWidth = painter->MeasureRun(text, end);
        if (endWidth > maxWidth)
        {
            bad = end;
        }
        else
        {
            good = end;
            goodWidth = endWidth;
        }
    }
    width = goodWidth;
    return good;
}

}  // namespace detail

namespace
{

// So many bytes may fit into the width at all, if characters are not very narrow for their height.
int GuessCapacity(IPainter* painter, int maxWidth)
{
    fontmetrics metrics;
    painter->GetFontMetrics(&metrics);
    int const height = std::max(1, metrics.ascent + metrics.descent);
    return SaturateToInt(std::int64_t{maxWidth} * 4 / height);
}

}  // namespace

// ITextFormatter ------------------------------------------------------------------------------------------------------

IPainter::ITextFormatter::~ITextFormatter() = default;

void IPainter::ITextFormatter::BeforeFormatting(IPainter*) {}

void IPainter::ITextFormatter::AfterFormatting(IPainter*) {}

void IPainter::ITextFormatter::Clear() {}

int IPainter::ITextFormatter::FitTextLine(IPainter* painter, char const*, int length, int, int& width)
{
    static_cast<void>(painter);
    static_cast<void>(width);
    return length;
}

void IPainter::ITextFormatter::SkipText(char const*, int) {}

// Plain text ----------------------------------------------------------------------------------------------------------

void CDefTextFormatter::BeforeFormatting(IPainter*) { m_Pending = SWord(); }

bool CDefTextFormatter::GetTextLine(IPainter* painter, char const*& text, int& length, int& width, int maxWidth,
                                    char const* delimiters)
{
    if (length <= 0)
        return false;
    char const* const begin = text;
    int const count = length;
    bool const wraps = maxWidth >= 0 && delimiters && *delimiters;
    SWord const pending = TakePendingWord();

    // All that is left of the paragraph, if that needs but one measuring.
    int const looked = wraps ? std::min(count, AddSaturated(GuessCapacity(painter, maxWidth), 1)) : count;
    auto const* const lineFeed = static_cast<char const*>(std::memchr(begin, '\n', static_cast<std::size_t>(looked)));
    int const whole = lineFeed ? static_cast<int>(lineFeed - begin) : count;
    if (!wraps || lineFeed || looked == count)
    {
        int const shown = whole > 0 && lineFeed && begin[whole - 1] == '\r' ? whole - 1 : whole;
        int const wholeWidth = painter->MeasureRun(begin, shown);
        if (!wraps || wholeWidth <= maxWidth)
        {
            text = begin + whole + (lineFeed ? 1 : 0);
            length = shown;
            width = wholeWidth;
            return true;
        }
    }

    // Word by word. `total` ends with the blanks behind the last word, `shownWidth` before them.
    int blankWidth = -1;
    int cursor = 0;
    int words = 0;
    int total = 0;
    int shown = 0;
    int shownWidth = 0;
    int earlierCursor = 0;  // the same for the line without its last word
    int earlierShown = 0;
    int earlierWidth = 0;
    bool wrapped = false;
    while (cursor < count && begin[cursor] != '\n')
    {
        SWord word = pending;
        if (word.text != begin + cursor)
        {
            word.text = begin + cursor;
            GetNextWord(painter, word.text, word.length, word.width, count - cursor, delimiters);
            word.length = std::clamp(word.length, 1, count - cursor);
        }
        int const blanks = detail::CountTrailingBlanks(word.text, word.length);
        if (blanks > 0 && blankWidth < 0)
            blankWidth = painter->MeasureRun(" ", 1);
        int const trimmed = std::max(0, word.width - SaturateToInt(std::int64_t{blanks} * blankWidth));
        bool const onlyBlanks = blanks == word.length;
        if (words > 0 && !onlyBlanks && AddSaturated(total, trimmed) > maxWidth)
        {
            wrapped = true;
            SetPendingWord(word);
            break;
        }
        if (!onlyBlanks)
        {
            earlierCursor = cursor;
            earlierShown = shown;
            earlierWidth = shownWidth;
            shownWidth = AddSaturated(total, trimmed);
            shown = cursor + word.length - blanks;
        }
        total = AddSaturated(total, word.width);
        cursor += word.length;
        ++words;
    }
    if (!wrapped)
    {
        if (total <= maxWidth)
        {
            shown = cursor;
            shownWidth = total;
        }
        if (shown > 0 && cursor < count && begin[shown - 1] == '\r')
            --shown;
        if (cursor < count)
            ++cursor;  // the line feed
    }

    // A line is drawn in one run, whose width may be another than that of its words.
    if (words > 1)
    {
        int const runWidth = painter->MeasureRun(begin, shown);
        if (runWidth > maxWidth && shownWidth <= maxWidth && earlierShown > 0)
        {
            cursor = earlierCursor;
            shown = earlierShown;
            shownWidth = std::min(earlierWidth, maxWidth);
        }
        else
        {
            shownWidth = runWidth;
        }
    }
    text = begin + cursor;
    length = shown;
    width = shownWidth;
    return true;
}

void CDefTextFormatter::DrawTextLine(IPainter* painter, int x, int y, char const* text, int length)
{
    painter->DrawRun(x, y, text, length);
}

int CDefTextFormatter::FitTextLine(IPainter* painter, char const* text, int length, int maxWidth, int& width)
{
    return detail::FitRun(painter, text, length, maxWidth, width);
}

void CDefTextFormatter::GetNextWord(IPainter* painter, char const* text, int& length, int& width, int count,
                                    char const* delimiters)
{
    int end = 0;
    while (end < count && text[end] != '\n' && !IsSpecial(text + end))
    {
        char const c = text[end++];
        if (!detail::IsDelimiter(c, delimiters))
            continue;
        if (c == ' ')
            while (end < count && text[end] == ' ')
                ++end;
        break;
    }
    length = end;
    width = painter->MeasureRun(text, end);
}

bool CDefTextFormatter::IsSpecial(char const*) const { return false; }

}  // namespace vexelbase
