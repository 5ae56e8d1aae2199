#include "vexel/platform/memory/line_text.h"

#include "vexel/platform/memory/detail/square_font.h"

#include <algorithm>

namespace vexelbase::memory
{

namespace
{

std::vector<std::string> Split(std::string const& text)
{
    std::vector<std::string> characters;
    char const* at = text.data();
    char const* const end = at + text.size();
    while (at < end)
    {
        char const* const start = at;
        TakeCharacter(at, end);
        characters.emplace_back(start, at);
    }
    return characters;
}

// How many bytes the character needs that begins with this one.
std::size_t LengthOf(char first)
{
    unsigned const byte = static_cast<unsigned char>(first);
    return byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
}

}  // namespace

std::string CLineText::GetText() const
{
    std::string text;
    for (std::string const& character : m_Characters)
        text += character;
    return text;
}

bool CLineText::SetText(std::string const& text)
{
    bool const differs = text != GetText();
    m_Characters = Split(text);
    m_Partial.clear();
    m_Anchor = m_Caret = GetLength();
    return differs;
}

int CLineText::GetSelectionStart() const
{
    return std::min(m_Anchor, m_Caret);
}

int CLineText::GetSelectionLength() const
{
    return std::abs(m_Caret - m_Anchor);
}

std::string CLineText::GetSelectedText() const
{
    std::string text;
    int const end = GetSelectionStart() + GetSelectionLength();
    for (int i = GetSelectionStart(); i < end; ++i)
        text += m_Characters[static_cast<std::size_t>(i)];
    return text;
}

void CLineText::Select(int start, int length)
{
    m_Anchor = std::clamp(start, 0, GetLength());
    m_Caret = m_Anchor + std::clamp(length, 0, GetLength() - m_Anchor);
}

void CLineText::MoveCaret(int position, bool extend)
{
    m_Caret = std::clamp(position, 0, GetLength());
    if (!extend)
        m_Anchor = m_Caret;
}

bool CLineText::EraseSelection()
{
    if (GetSelectionLength() == 0)
        return false;
    auto const start = m_Characters.begin() + GetSelectionStart();
    m_Characters.erase(start, start + GetSelectionLength());
    m_Anchor = m_Caret = GetSelectionStart();
    return true;
}

bool CLineText::Insert(std::string const& bytes)
{
    m_Partial += bytes;
    std::size_t complete = 0;
    while (complete < m_Partial.size() && complete + LengthOf(m_Partial[complete]) <= m_Partial.size())
        complete += LengthOf(m_Partial[complete]);
    std::vector<std::string> added = Split(m_Partial.substr(0, complete));
    m_Partial.erase(0, complete);
    if (added.empty())
        return false;

    bool const erased = EraseSelection();
    if (m_MaxLength > 0)
    {
        int const room = std::max(m_MaxLength - GetLength(), 0);
        if (static_cast<int>(added.size()) > room)
            added.resize(static_cast<std::size_t>(room));
    }
    m_Characters.insert(m_Characters.begin() + m_Caret, added.begin(), added.end());
    m_Anchor = m_Caret = m_Caret + static_cast<int>(added.size());
    return erased || !added.empty();
}

bool CLineText::Erase(int direction)
{
    if (EraseSelection())
        return true;
    int const index = direction < 0 ? m_Caret - 1 : m_Caret;
    if (index < 0 || index >= GetLength())
        return false;
    m_Characters.erase(m_Characters.begin() + index);
    m_Anchor = m_Caret = index;
    return true;
}

}  // namespace vexelbase::memory
