#pragma once

#include "vexel/export.h"
#include "vexel/platform/painter.h"

#include <string>
#include <string_view>
#include <vector>

namespace vexelbase
{

/// Delimiters behind which a plain text may be wrapped, and those for text with mark-up.
inline constexpr char const* TextDelimiters = " .\\/\n";
inline constexpr char const* MarkupDelimiters = " <.\\/\n";

/// Plain text: lines end at "\n" and behind delimiters.
class VEXEL_API CDefTextFormatter : public IPainter::ITextFormatter
{
public:
    bool GetTextLine(IPainter* painter, char const*& text, int& length, int& width, int maxWidth,
                     char const* delimiters) override;
    void DrawTextLine(IPainter* painter, int x, int y, char const* text, int length) override;

protected:
    /// Finds the next word of at most `count` characters: it ends behind a delimiter, at "\n" or at something special.
    /// Sets its length and its width in frame pixels.
    virtual void GetNextWord(IPainter* painter, char const* text, int& length, int& width, int count,
                             char const* delimiters);
    /// True where the text is mark-up, which has no width and is no word.
    virtual bool IsSpecial(char const* text) const;
};

/// Text with mark-up: <b>, <i>, <u>, <br>, <a href="target">, and the entities &lt; &gt; &amp; &quot; &apos; &nbsp; and
/// &#...;. Names in any case. Unknown tags are dropped, a "<" that begins no tag and an unknown "&" stand for themselves.
/// Takes time in proportion to the text, however it is nested; tags that were never opened or closed do no harm.
class VEXEL_API CHTMLTextFormatter : public CDefTextFormatter
{
public:
    void BeforeFormatting(IPainter* painter) override;
    void AfterFormatting(IPainter* painter) override;
    void Clear() override;
    bool GetTextLine(IPainter* painter, char const*& text, int& length, int& width, int maxWidth,
                     char const* delimiters) override;
    void DrawTextLine(IPainter* painter, int x, int y, char const* text, int length) override;

    /// A part of a link was drawn. `target`: the link's target, `length` characters, not terminated; null for the
    /// further parts of a link that is spread over several lines or styles. `rect`: device pixels of the window, edges
    /// included. Never called while a text is only measured.
    virtual void OnDrawLink(char const* target, int length, rectangle<int> const& rect);

protected:
    void GetNextWord(IPainter* painter, char const* text, int& length, int& width, int count,
                     char const* delimiters) override;
    bool IsSpecial(char const* text) const override;
    /// Offers a part of a link to be drawn by the owner at (x, y) of the text frame; true: it was.
    /// Otherwise it is drawn underlined in the link colour.
    virtual bool OwnerDrawLink(IPainter* painter, int x, int y, char const* text, int length);
};

/// The text without link mark-up; all other mark-up stays.
VEXEL_API std::string RemoveLinks(std::string const& text);

} // namespace vexelbase
