#include "vexel/platform/convert.h"
#include "vexel/platform/detail/delimiters.h"
#include "vexel/platform/detail/fit_run.h"
#include "vexel/platform/detail/markup.h"
#include "vexel/platform/text_formatter.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>

namespace vexelbase
{

namespace
{

constexpr std::size_t NoLimit = std::numeric_limits<std::size_t>::max();
constexpr std::size_t KeptCapacity = 0x10000;  // of the buffers, from one text to the next

// Appends the text with its entities resolved.
void AppendResolved(std::string& target, char const* text, char const* end)
{
    while (text < end)
    {
        if (*text == '&')
        {
            detail::SEntity const entity = detail::ReadEntity(text, end);
            if (entity.length > 0)
            {
                target.append(entity.bytes, static_cast<std::size_t>(entity.byteCount));
                text += entity.length;
                continue;
            }
        }
        char const* const start = text++;
        while (text < end && *text != '&')
            ++text;
        target.append(start, text);
    }
}

void Count(int& nesting, bool closing)
{
    if (!closing)
        ++nesting;
    else if (nesting > 0)
        --nesting;
}

}  // namespace

int CHTMLTextFormatter::SState::GetStyle() const
{
    return (bold > 0 ? font::fsBold : 0) | (italic > 0 ? font::fsItalic : 0) | (underline > 0 ? font::fsUnderline : 0);
}

// Around a text -------------------------------------------------------------------------------------------------------

void CHTMLTextFormatter::BeforeFormatting(IPainter* painter)
{
    CDefTextFormatter::BeforeFormatting(painter);
    m_State = SState();
    m_BaseFont = painter->GetFont();
    m_StyledFont = m_BaseFont;
    m_Style = 0;
    m_BaseColor = painter->GetTextColor();
    painter->GetFontMetrics(&m_BaseMetrics);
    m_Active = true;
}

void CHTMLTextFormatter::AfterFormatting(IPainter* painter)
{
    ApplyStyle(painter, 0);
    m_Active = false;
    m_State = SState();
    if (m_Run.capacity() > KeptCapacity)
        std::string().swap(m_Run);
    if (m_Target.capacity() > KeptCapacity)
        std::string().swap(m_Target);
}

void CHTMLTextFormatter::Clear()
{
    m_State = SState();
}

// Lines ---------------------------------------------------------------------------------------------------------------

bool CHTMLTextFormatter::GetTextLine(IPainter* painter, char const*& text, int& length, int& width, int maxWidth,
                                     char const* delimiters)
{
    if (length <= 0)
        return false;
    char const* const begin = text;
    char const* const end = begin + length;
    bool const wraps = maxWidth >= 0 && delimiters && *delimiters;
    char const* const wordEnds = wraps ? delimiters : nullptr;

    SWord const pending = TakePendingWord();
    m_End = end;
    SState state = m_State;
    SBreak line;     // where the line ends in the end
    SBreak last;     // behind the last delimiter
    SBreak earlier;  // behind the one before
    char const* cursor = begin;
    bool anything = false;  // a line break or a word, so there is a line
    int words = 0;
    int total = 0;       // with the blanks behind the last word
    int shownWidth = 0;  // without them
    char const* shownEnd = begin;
    int blankStyle = -1;  // whose blank was measured
    int blankWidth = 0;
    bool wrapped = false;
    while (!line.lineEnd && cursor < end)
    {
        if (*cursor == '\n')
        {
            anything = true;
            line = {cursor, cursor + 1, total, state};
            break;
        }
        bool lineBreak = false;
        if (cursor != pending.text && IsSpecial(cursor))
        {
            int const tagLength = ReadTag(cursor, end, state, lineBreak);
            if (lineBreak)
            {
                anything = true;
                line = {cursor, cursor + tagLength, total, state};
            }
            cursor += std::max(tagLength, 1);
            continue;
        }

        int const style = state.GetStyle();
        SWord word = pending;
        if (word.text != cursor)
        {
            word.text = cursor;
            ApplyStyle(painter, style);
            GetNextWord(painter, cursor, word.length, word.width, static_cast<int>(end - cursor), wordEnds);
            word.length = std::clamp(word.length, 1, static_cast<int>(end - cursor));
        }
        anything = true;
        int const blanks = wraps ? detail::CountTrailingBlanks(cursor, word.length) : 0;
        if (blanks > 0 && blankStyle != style)
        {
            ApplyStyle(painter, style);
            blankStyle = style;
            blankWidth = painter->MeasureRun(" ", 1);
        }
        int const trimmed = std::max(0, word.width - SaturateToInt(std::int64_t{blanks} * blankWidth));
        bool const onlyBlanks = blanks == word.length;
        if (wraps && !onlyBlanks && last.lineEnd && AddSaturated(total, trimmed) > maxWidth)
        {
            line = last;
            wrapped = true;
            SetPendingWord(word);
            break;
        }
        cursor += word.length;
        if (!onlyBlanks)
        {
            shownWidth = AddSaturated(total, trimmed);
            shownEnd = cursor - blanks;
        }
        total = AddSaturated(total, word.width);
        ++words;
        if (wraps && detail::IsDelimiter(cursor[-1], delimiters))
        {
            earlier = last;
            last = {cursor - blanks, cursor, shownWidth, state};
        }
    }
    if (!line.lineEnd)
        line = {end, end, total, state};

    if (anything)
    {
        bool const hangs = !wrapped && wraps && total > maxWidth;  // of the blanks at the end at least one does
        if (hangs)
            line.width = shownWidth;
        bool const carriageReturn = !wrapped && line.lineEnd > begin && line.next > line.lineEnd &&
                                    *line.lineEnd == '\n' && line.lineEnd[-1] == '\r';
        if (carriageReturn)
            --line.lineEnd;
        // What is drawn in one run may be as wide as its words together, or a little more or less.
        if (carriageReturn || (wraps && words > 1))
        {
            int const runWidth = MeasureLine(painter, begin, hangs ? shownEnd : line.lineEnd, m_State);
            bool const sticksOut = wraps && runWidth > maxWidth && line.width <= maxWidth;
            SBreak const& shorter = wrapped ? earlier : last;
            if (sticksOut && shorter.lineEnd && shorter.lineEnd > begin && shorter.next < line.next)
                line = shorter;
            else
                line.width = runWidth;
        }
        text = line.next;
        length = static_cast<int>(line.lineEnd - begin);
        width = line.width;
        m_State = line.state;
    }
    ApplyStyle(painter, 0);
    m_End = nullptr;
    return anything;
}

int CHTMLTextFormatter::MeasureLine(IPainter* painter, char const* text, char const* end, SState state)
{
    int total = 0;
    while (text < end)
    {
        bool lineBreak = false;
        if (IsSpecial(text))
        {
            text += std::max(ReadTag(text, end, state, lineBreak), 1);
            continue;
        }
        text += std::max(ReadRun(text, end, nullptr, NoLimit), 1);
        ApplyStyle(painter, state.GetStyle());
        total = AddSaturated(total, MeasureRun(painter));
    }
    return total;
}

int CHTMLTextFormatter::FitTextLine(IPainter* painter, char const* text, int length, int maxWidth, int& width)
{
    char const* const end = text + length;
    char const* cursor = text;
    SState state = m_State;
    m_End = end;
    width = 0;
    while (cursor < end)
    {
        bool lineBreak = false;
        if (IsSpecial(cursor))
        {
            cursor += std::max(ReadTag(cursor, end, state, lineBreak), 1);
            continue;
        }
        int const runLength = std::max(ReadRun(cursor, end, nullptr, NoLimit), 1);
        ApplyStyle(painter, state.GetStyle());
        int const runWidth = MeasureRun(painter);
        if (AddSaturated(width, runWidth) <= maxWidth)
        {
            width = AddSaturated(width, runWidth);
            cursor += runLength;
            continue;
        }
        int partWidth = 0;
        int const part = detail::FitRun(painter, m_Run.data(), static_cast<int>(m_Run.size()),
                                        SubtractSaturated(maxWidth, width), partWidth);
        width += partWidth;
        cursor += ReadRun(cursor, end, nullptr, static_cast<std::size_t>(part));
        break;
    }
    ApplyStyle(painter, 0);
    m_End = nullptr;
    return static_cast<int>(cursor - text);
}

void CHTMLTextFormatter::SkipText(char const* text, int length)
{
    char const* const end = text + std::max(length, 0);
    m_End = end;
    while (text < end)
    {
        auto const* const tag = static_cast<char const*>(std::memchr(text, '<', static_cast<std::size_t>(end - text)));
        if (!tag)
            break;
        bool lineBreak = false;
        text = tag + std::max(IsSpecial(tag) ? ReadTag(tag, end, m_State, lineBreak) : 0, 1);
    }
    m_End = nullptr;
}

void CHTMLTextFormatter::DrawTextLine(IPainter* painter, int x, int y, char const* text, int length)
{
    char const* const end = text + std::max(length, 0);
    m_End = end;
    while (text < end)
    {
        bool lineBreak = false;
        if (IsSpecial(text))
        {
            text += std::max(ReadTag(text, end, m_State, lineBreak), 1);
            continue;
        }
        text += std::max(ReadRun(text, end, nullptr, NoLimit), 1);
        if (m_Run.empty())
            continue;
        ApplyStyle(painter, m_State.GetStyle());
        int const width = text < end || m_State.target ? MeasureRun(painter) : 0;
        if (m_State.target)
            DrawLinkPart(painter, x, y);
        else
            painter->DrawRun(x, y + GetBaselineShift(painter), m_Run.data(), static_cast<int>(m_Run.size()));
        x = AddSaturated(x, width);
    }
    ApplyStyle(painter, 0);
    m_End = nullptr;
}

void CHTMLTextFormatter::DrawLinkPart(IPainter* painter, int x, int y)
{
    int const width = MeasureRun(painter);
    int const length = static_cast<int>(m_Run.size());
    if (!OwnerDrawLink(painter, x, y, m_Run.data(), length))
    {
        ApplyStyle(painter, m_State.GetStyle() | font::fsUnderline);
        painter->SetTextColor(GetDefaultPalette()->GetColor(ISysPalette::scLink));
        painter->DrawRun(x, y + GetBaselineShift(painter), m_Run.data(), length);
        painter->SetTextColor(m_BaseColor);
    }

    int const height = m_BaseMetrics.ascent + m_BaseMetrics.descent + m_BaseMetrics.leading;
    rectangle<int> rect = painter->RunToDevice({x, y, AddSaturated(x, width), AddSaturated(y, height)});
    rect.right = SubtractSaturated(rect.right, 1);
    rect.bottom = SubtractSaturated(rect.bottom, 1);
    // In a turned text further parts may stand anywhere beside the first one.
    if (m_State.told && m_BaseFont.rotation % 3600 == 0)
    {
        OnDrawLink(nullptr, 0, rect);
        return;
    }
    m_State.told = true;
    m_Target.clear();
    AppendResolved(m_Target, m_State.target, m_State.target + m_State.targetLength);
    OnDrawLink(m_Target.data(), static_cast<int>(m_Target.size()), rect);
}

// Words and tags ------------------------------------------------------------------------------------------------------

void CHTMLTextFormatter::GetNextWord(IPainter* painter, char const* text, int& length, int& width, int count,
                                     char const* delimiters)
{
    if (IsSpecial(text))
    {
        length = detail::ReadTag(text, text + count).length;
        width = 0;
        return;
    }
    length = ReadRun(text, text + count, delimiters, NoLimit);
    width = MeasureRun(painter);
}

bool CHTMLTextFormatter::IsSpecial(char const* text) const
{
    if (*text != '<')
        return false;
    char const* const end = m_End ? m_End : text + std::strlen(text);
    return detail::ReadTag(text, end).length > 0;
}

int CHTMLTextFormatter::ReadTag(char const* text, char const* end, SState& state, bool& lineBreak)
{
    detail::STag const tag = detail::ReadTag(text, end);
    switch (tag.kind)
    {
    case detail::STag::tkBold:
        Count(state.bold, tag.closing);
        break;
    case detail::STag::tkItalic:
        Count(state.italic, tag.closing);
        break;
    case detail::STag::tkUnderline:
        Count(state.underline, tag.closing);
        break;
    case detail::STag::tkBreak:
        lineBreak = true;
        break;
    case detail::STag::tkLink:
        state.target = tag.closing ? nullptr : tag.target;
        state.targetLength = tag.closing ? 0 : tag.targetLength;
        state.told = false;
        break;
    case detail::STag::tkUnknown:
    case detail::STag::tkNone:
        break;
    }
    return tag.length;
}

int CHTMLTextFormatter::ReadRun(char const* text, char const* end, char const* delimiters, std::size_t limit)
{
    m_Run.clear();
    char const* p = text;
    while (p < end && *p != '\n' && m_Run.size() < limit)
    {
        if (*p == '<' && p != text && IsSpecial(p))
            break;
        if (*p == '&')
        {
            detail::SEntity const entity = detail::ReadEntity(p, end);
            if (entity.length > 0)
            {
                if (m_Run.size() + static_cast<std::size_t>(entity.byteCount) > limit)
                    break;
                m_Run.append(entity.bytes, static_cast<std::size_t>(entity.byteCount));
                p += entity.length;
                continue;
            }
        }
        // A stretch that stands for itself: its first character does in any case.
        char const* const start = p;
        std::size_t const room = limit - m_Run.size();
        bool wordEnds = false;
        do
        {
            char const c = *p++;
            wordEnds = detail::IsDelimiter(c, delimiters);
            if (wordEnds && c == ' ')
                while (p < end && *p == ' ')
                    ++p;
        } while (!wordEnds && p < end && *p != '\n' && *p != '<' && *p != '&' &&
                 static_cast<std::size_t>(p - start) < room);
        m_Run.append(start, p);
        if (wordEnds)
            break;
    }
    return static_cast<int>(p - text);
}

int CHTMLTextFormatter::MeasureRun(IPainter* painter)
{
    return painter->MeasureRun(m_Run.data(), static_cast<int>(m_Run.size()));
}

void CHTMLTextFormatter::ApplyStyle(IPainter* painter, int style)
{
    if (!m_Active || style == m_Style)
        return;
    m_Style = style;
    m_StyledFont.style = m_BaseFont.style | style;
    painter->SetFont(m_StyledFont);
}

// Styles may differ in ascent; their base lines must meet.
int CHTMLTextFormatter::GetBaselineShift(IPainter* painter) const
{
    if (m_Style == 0)
        return 0;
    fontmetrics metrics;
    painter->GetFontMetrics(&metrics);
    return m_BaseMetrics.ascent - metrics.ascent;
}

// Links ---------------------------------------------------------------------------------------------------------------

void CHTMLTextFormatter::OnDrawLink(char const*, int, rectangle<int> const&) {}

bool CHTMLTextFormatter::OwnerDrawLink(IPainter*, int, int, char const*, int)
{
    return false;
}

std::string RemoveLinks(std::string const& text)
{
    std::string result;
    result.reserve(text.size());
    char const* p = text.data();
    char const* const end = p + text.size();
    while (p < end)
    {
        char const* const start = p;
        detail::STag const tag = *p == '<' ? detail::ReadTag(p, end) : detail::STag();
        if (tag.length > 0)
        {
            p += tag.length;
            if (tag.kind == detail::STag::tkLink)
                continue;
        }
        else
        {
            ++p;
            while (p < end && *p != '<')
                ++p;
        }
        result.append(start, p);
    }
    return result;
}

}  // namespace vexelbase
