#pragma once

namespace vexelbase::detail
{

/// A tag of marked-up text.
struct STag
{
    enum Kind
    {
        tkNone,
        tkUnknown,
        tkBold,
        tkItalic,
        tkUnderline,
        tkBreak,
        tkLink
    };

    Kind kind = tkNone;
    bool closing = false;
    int length = 0;  ///< In the source, brackets included; 0: there is no tag.
    char const* target =
        nullptr;  ///< Of a link: the text of href in the source, entities unresolved; null without one.
    int targetLength = 0;
};

/// Reads the tag that begins with the "<" at `text`. A tag is "<", perhaps "/", a name of letters and digits and
/// attributes, quoted or not, up to ">"; or anything that begins with "<!" or "<?", up to ">". A further "<" outside
/// quotes or the end of the text before the ">" make it none.
STag ReadTag(char const* text, char const* end);

/// A character written as an entity.
struct SEntity
{
    int length = 0;  ///< In the source; 0: there is no entity.
    char bytes[4] = {};
    int byteCount = 0;
};

/// Reads the entity that begins with the "&" at `text`: lt gt amp quot apos nbsp in any case, or a number, "#65" or
/// "#x41", up to 10FFFF and no surrogate; ";" ends it. Tab and line ends by number become blanks; other control
/// characters and anything else are none.
SEntity ReadEntity(char const* text, char const* end);

}  // namespace vexelbase::detail
