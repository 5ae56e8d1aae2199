#pragma once

#include "vexel/export.h"
#include "vexel/platform/painter.h"

#include <cstddef>
#include <string>
#include <utility>

namespace vexelbase
{

/// Delimiters behind which a plain text may be wrapped, and those for text with mark-up.
inline constexpr char const* TextDelimiters = " .\\/\n";
inline constexpr char const* MarkupDelimiters = " <.\\/\n";

/// Plain text: lines end at "\n" and behind delimiters.
class VEXEL_API CDefTextFormatter : public IPainter::ITextFormatter
{
public:
    void BeforeFormatting(IPainter* painter) override;
    bool GetTextLine(IPainter* painter, char const*& text, int& length, int& width, int maxWidth,
                     char const* delimiters) override;
    void DrawTextLine(IPainter* painter, int x, int y, char const* text, int length) override;
    int FitTextLine(IPainter* painter, char const* text, int length, int maxWidth, int& width) override;

protected:
    /// Finds the next word of at most `count` characters: it ends behind a delimiter, and further blanks if that was a
    /// blank, at "\n" or at something special. Sets its length and its width in frame pixels. Null or empty
    /// delimiters: there are none.
    virtual void GetNextWord(IPainter* painter, char const* text, int& length, int& width, int count,
                             char const* delimiters);
    /// True where the text is mark-up, which has no width and is no word.
    virtual bool IsSpecial(char const* text) const;

    // The word that had no room in the line before: it begins the next one.
    struct SWord
    {
        char const* text = nullptr;
        int length = 0;
        int width = 0;
    };
    /// Gives the pending word and forgets it.
    SWord TakePendingWord() { return std::exchange(m_Pending, SWord()); }
    void SetPendingWord(SWord const& word) { m_Pending = word; }

private:
    SWord m_Pending;
};

/// Text with mark-up: `<b>`, `<i>`, `<u>`, `<br>`, `<a href="target">`, and the entities `&lt;` `&gt;` `&amp;` `&quot;`
/// `&apos;` `&nbsp;` and `&#...;`. Names in any case. Unknown tags are dropped, a `<` that begins no tag and an unknown
/// `&` stand for themselves. Tags of one kind nest; a link ends the link around it, and so does an `<a>` without target.
/// Mark-up at the end makes no line of its own. Takes time in proportion to the text, however it is nested; tags that were never opened or closed
/// do no harm.
class VEXEL_API CHTMLTextFormatter : public CDefTextFormatter
{
public:
    void BeforeFormatting(IPainter* painter) override;
    void AfterFormatting(IPainter* painter) override;
    void Clear() override;
    bool GetTextLine(IPainter* painter, char const*& text, int& length, int& width, int maxWidth,
                     char const* delimiters) override;
    void DrawTextLine(IPainter* painter, int x, int y, char const* text, int length) override;
    int FitTextLine(IPainter* painter, char const* text, int length, int maxWidth, int& width) override;
    void SkipText(char const* text, int length) override;

    /// A part of a link was drawn. `target`: the link's target, `length` characters, not terminated; null for the
    /// further parts of a link that is spread over several lines or styles, which stand behind or below the first one.
    /// In a turned text each part has the target. `rect`: device pixels of the window, edges included. Never called
    /// while a text is only measured.
    virtual void OnDrawLink(char const* target, int length, rectangle<int> const& rect);

protected:
    /// At mark-up the word is the mark-up, of width 0.
    void GetNextWord(IPainter* painter, char const* text, int& length, int& width, int count,
                     char const* delimiters) override;
    bool IsSpecial(char const* text) const override;
    /// Offers a part of a link to be drawn by the owner at (x, y) of the text frame; true: it was. The text has its
    /// entities resolved. Otherwise it is drawn underlined in the link colour.
    virtual bool OwnerDrawLink(IPainter* painter, int x, int y, char const* text, int length);

private:
    // What mark-up read so far says of the text that follows.
    struct SState
    {
        int bold = 0;
        int italic = 0;
        int underline = 0;
        char const* target = nullptr;  // null: no link
        int targetLength = 0;
        bool told = false;  // the target was handed to OnDrawLink

        int GetStyle() const;
    };
    // A place where a line may end.
    struct SBreak
    {
        char const* lineEnd = nullptr;  // null: there is none
        char const* next = nullptr;
        int width = 0;
        SState state;
    };

    /// Applies the tag at `text`, if there is one, to the state; returns its length. Sets `lineBreak` for <br>.
    static int ReadTag(char const* text, char const* end, SState& state, bool& lineBreak);
    /// Resolves the text, which begins with no tag, up to the next word end, tag or line feed into m_Run, at most `limit`
    /// characters of it. Returns its length in the source.
    int ReadRun(char const* text, char const* end, char const* delimiters, std::size_t limit);
    int MeasureRun(IPainter* painter);
    int MeasureLine(IPainter* painter, char const* text, char const* end, SState state);
    void ApplyStyle(IPainter* painter, int style);
    int GetBaselineShift(IPainter* painter) const;
    void DrawLinkPart(IPainter* painter, int x, int y);

    SState m_State;
    bool m_Active = false;  // between BeforeFormatting and AfterFormatting
    font m_BaseFont;
    fontmetrics m_BaseMetrics;
    font m_StyledFont;
    int m_Style = 0;  // what the painter's font has beyond the base font
    _color m_BaseColor;
    char const* m_End = nullptr;  // of the text under way
    std::string m_Run;
    std::string m_Target;
};

/// The text without link mark-up; all other mark-up stays.
VEXEL_API std::string RemoveLinks(std::string const& text);

}  // namespace vexelbase
