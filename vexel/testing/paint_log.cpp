#include "vexel/testing/paint_log.h"

#include <ostream>

namespace vexel::test
{

namespace
{
constexpr char const* PicturePrefix = "picture ";
}

bool MatchesPattern(std::string const& text, std::string const& pattern)
{
    // Where the last star stood, and how far the text behind it has been tried.
    std::size_t t = 0, p = 0;
    std::size_t star = std::string::npos, tried = 0;
    while (t < text.size())
    {
        bool const escaped = p + 1 < pattern.size() && pattern[p] == '\\' && pattern[p + 1] == '*';
        if (p < pattern.size() && pattern[p] == '*')
        {
            star = p++;
            tried = t;
        }
        else if (p < pattern.size() && pattern[escaped ? p + 1 : p] == text[t])
        {
            p += escaped ? 2 : 1;
            ++t;
        }
        else if (star != std::string::npos)
        {
            p = star + 1;
            t = ++tried;
        }
        else
            return false;
    }
    while (p < pattern.size() && pattern[p] == '*')
        ++p;
    return p == pattern.size();
}

// PaintLog ---------------------------------------------------------------------------------------------------------

std::string PaintLog::ListElements(bool picture) const
{
    std::string text;
    for (SEntry const& entry : m_Entries)
    {
        if (entry.element && entry.picture == picture)
            text += (text.empty() ? "" : " ") + entry.text;
    }
    return text;
}

std::string PaintLog::Elements() const
{
    return ListElements(false);
}

std::string PaintLog::PictureElements() const
{
    return ListElements(true);
}

std::vector<std::string> PaintLog::Calls() const
{
    std::vector<std::string> calls;
    for (SEntry const& entry : m_Entries)
    {
        if (!entry.element)
            calls.push_back((entry.picture ? PicturePrefix : "") + entry.text);
    }
    return calls;
}

int PaintLog::Count(std::string const& pattern) const
{
    int count = 0;
    for (std::string const& call : Calls())
        count += MatchesPattern(call, pattern) ? 1 : 0;
    return count;
}

PaintLog PaintLog::Of(std::string const& name) const
{
    PaintLog part;
    part.m_Frames = m_Frames;
    bool inside = false;
    for (SEntry const& entry : m_Entries)
    {
        if (entry.element)
            inside = entry.text == name;
        if (inside)
            part.m_Entries.push_back(entry);
    }
    return part;
}

std::string PaintLog::Text() const
{
    std::string text;
    for (SEntry const& entry : m_Entries)
    {
        if (!entry.element)
            text += entry.depth > 0 ? "    " : "  ";
        text += (entry.picture ? PicturePrefix : "") + entry.text + "\n";
    }
    return text;
}

void PrintTo(PaintLog const& log, std::ostream* out)
{
    *out << "a paint of " << log.m_Frames << (log.m_Frames == 1 ? " frame" : " frames");
    if (log.IsEmpty())
        *out << " that drew nothing";
    else
        *out << ":\n" << log.Text();
}

// CDraws -----------------------------------------------------------------------------------------------------------

CDraws& CDraws::Then(std::string const& pattern)
{
    m_Patterns.push_back(pattern);
    return *this;
}

bool CDraws::MatchAndExplain(PaintLog const& log, std::ostream* out) const
{
    std::vector<std::string> const calls = log.Calls();
    std::size_t next = 0;
    for (std::size_t i = 0; i < m_Patterns.size(); ++i)
    {
        while (next < calls.size() && !MatchesPattern(calls[next], m_Patterns[i]))
            ++next;
        if (next == calls.size())
        {
            if (out)
            {
                *out << "which has no \"" << m_Patterns[i] << "\"";
                if (i > 0)
                    *out << " behind the \"" << m_Patterns[i - 1] << "\"";
            }
            return false;
        }
        ++next;
    }
    return true;
}

void CDraws::DescribeTo(std::ostream* out) const
{
    *out << "draws \"" << m_Patterns.front() << "\"";
    for (std::size_t i = 1; i < m_Patterns.size(); ++i)
        *out << ", then \"" << m_Patterns[i] << "\"";
}

void CDraws::DescribeNegationTo(std::ostream* out) const
{
    *out << "does not draw \"" << m_Patterns.front() << "\"";
    for (std::size_t i = 1; i < m_Patterns.size(); ++i)
        *out << ", then \"" << m_Patterns[i] << "\"";
}

} // namespace vexel::test
