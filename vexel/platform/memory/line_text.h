#pragma once

#include "vexel/export.h"

#include <string>
#include <vector>

namespace vexelbase::memory
{

/// A line of UTF-8 text with a caret and a selection, counted in characters.
class VEXEL_MEMORY_API CLineText
{
public:
    std::string GetText() const;
    int GetLength() const { return static_cast<int>(m_Characters.size()); }
    /// Replaces all, caret at the end. Returns whether the text differs.
    bool SetText(std::string const& text);

    int GetCaret() const { return m_Caret; }
    int GetSelectionStart() const;
    int GetSelectionLength() const;
    std::string GetSelectedText() const;
    void Select(int start, int length);          ///< Cut to the text; the caret stands at its end.
    /// Moves the caret, cut to the text; `extend` keeps the other end of the selection.
    void MoveCaret(int position, bool extend);

    void SetMaxLength(int characters) { m_MaxLength = characters; }  ///< Below 1: no limit. What stands is not cut.
    /// Takes the bytes in the selection's place; a character counts when its last byte is there. As much as the limit
    /// allows. Each returns whether the text changed.
    bool Insert(std::string const& bytes);
    bool Erase(int direction);                   ///< The selection, else the character before (-1) or behind (1) the caret.

private:
    bool EraseSelection();

    std::vector<std::string> m_Characters;
    std::string m_Partial;  // the bytes of a character that has not ended
    int m_Anchor = 0;
    int m_Caret = 0;
    int m_MaxLength = 0;
};

} // namespace vexelbase::memory
