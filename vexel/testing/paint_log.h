#pragma once

#include "vexel/export.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace vexel::test
{

/// What one call of CTestHost::Paint drew: which elements, and the painter calls with copies of their arguments.
///
/// A call is the operation's name and its arguments, parted by blanks:
///
///     SetBrush yellow                     SetBrush none                 (style none)
///     SetPen grey                         SetPen red dash 3             (style if not solid, width if not 1)
///     SetFont "Square" 8 bold italic      SetFont "" 0 rotation 2700 factor 1.3 family 2   (family if not 1 or 4)
///     SetTextColor #1E90FF                SetTextColor none
///     FillRect 0 0 99 19                  RoundRect 0 9 20 29 20 20     FocusRect 1.5 2 18 9
///     MoveTo 0 4                          LineTo 9 4                    Polygon 0 0 4 4 8 0
///     DrawString "Caption" 0 0 99 19 0x121            (count after the flags if not -1)
///     DrawStringEx "<b>x</b>" 0 0 99 19 0x121         DrawRun 0 6 "x"   (what a formatter draws)
///     DrawControlElement 7 0 0 79 23 0x8              DrawXPM 16x16 2 2
///     DrawRasterPicture 16x16 0 0 15 15               DrawRasterPicture 16x16 0 0 15 15 xor
///     DrawRasterPictureEx 16x16 0 0 31 31 from 0 0 15 15
///     AlphaBlend 16x16 0 0 15 15 127                  ExtractRasterPicture 16x16 0 0 15 15
///     SetClipRect 0 0 9 9                 SetClipRect 2 2 7 7 exclude   SimpleSetClipRect 0 0 10 10
///     ResetClip                           SetDrawMode xor               SetPixel 3 4 red
///     SetCoordSystem 3 0 0 20 40 10 5 20 40    (mode, logical origin and extent, device origin and extent)
///     BeginPaint 2                        EndPaint
///
/// Coordinates are those of the call: an element's own pixels as a rule. Numbers are as short as they can be. A colour
/// is a name of the colour table (none black yellow blue magenta red darkgrey grey white orange cyan green brown
/// midnightblue turquoise limegreen paleyellow lightgrey palepink palegreen sand) or `#RRGGBB`, followed by "/AA" where
/// its top byte isn't FF. Texts are quoted, and escaped as in C++ where they would be hard to read.
/// Queries and texts that are only measured are left out, and so are the calls that the painter makes itself.
/// A call on the painter of a picture begins with "picture ".
class VEXEL_TESTING_API PaintLog
{
public:
    /// The elements that were painted on the window, in order, parted by blanks: their given names, else their classes.
    std::string Elements() const;
    /// The same for elements that were painted on pictures.
    std::string PictureElements() const;

    std::vector<std::string> Calls() const;       ///< In order.
    int Count(std::string const& pattern) const;  ///< How many calls match; see Draws.
    /// The part that elements of this name drew themselves, without their children.
    PaintLog Of(std::string const& name) const;
    int GetFrames() const { return m_Frames; }  ///< Native paints that ran.
    bool IsEmpty() const { return m_Entries.empty(); }

    /// All of it: elements stand alone on a line, their calls indented below.
    std::string Text() const;
    friend VEXEL_TESTING_API void PrintTo(PaintLog const& log, std::ostream* out);

private:
    friend class CPaintRecording;
    friend class CDraws;

    struct SEntry
    {
        std::string text;
        bool element = false;
        bool picture = false;
        int depth = 0;  // 1 inside a formatter
    };
    std::string ListElements(bool picture) const;

    std::vector<SEntry> m_Entries;
    int m_Frames = 0;
};

VEXEL_TESTING_API void PrintTo(PaintLog const& log, std::ostream* out);

/// Whether a text has the pattern's form: '*' stands for any characters, "\*" for a star.
VEXEL_TESTING_API bool MatchesPattern(std::string const& text, std::string const& pattern);

/// A matcher for EXPECT_THAT. See Draws.
class VEXEL_TESTING_API CDraws
{
public:
    using is_gtest_matcher = void;

    explicit CDraws(std::string const& pattern) : m_Patterns{pattern} {}
    CDraws& Then(std::string const& pattern);

    bool MatchAndExplain(PaintLog const& log, std::ostream* out) const;
    void DescribeTo(std::ostream* out) const;
    void DescribeNegationTo(std::ostream* out) const;

private:
    std::vector<std::string> m_Patterns;
};

/// Matches a log that has a call of this form, and behind it one of each further form, in order; what stands between is
/// skipped. On failure the whole log is printed, with the form that was not found.
///
///     EXPECT_THAT(host.Paint(), Draws("SetBrush yellow").Then("RoundRect 0 9 20 29 20 20"));
///     EXPECT_THAT(host.Paint(), Not(Draws("DrawString*")));
inline CDraws Draws(std::string const& pattern)
{
    return CDraws(pattern);
}

}  // namespace vexel::test
