#pragma once

#include "vexel/antialiasing/color_info.h"
#include "vexel/antialiasing/double_map.h"
#include "vexel/antialiasing/point.h"
#include "vexel/export.h"

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <utility>

namespace vexel
{
class IDrawingContext;
}

namespace antialiasing
{

/// Turns sample points into antialiased pixels. Each sample spreads a share of coverage and of colour over the four pixels
/// around it. What is covered fully then becomes solid (Normalize), the rest is blended over what the surface holds (Draw).
///
/// Only pixels that were touched take memory. Colours are 0x00BBGGRR, NoColor where there is none. Shares are truncated
/// to whole numbers one by one; a pixel of coverage a and background b becomes b * (255 - a) / 255, rounded down, plus
/// what was gathered, cut to eight bits and never clamped.
///
/// Belongs to one thread, and so do all contours that share an ambient area.
class VEXEL_API CContour
{
public:
    using Map = std::map<tagPOINT, CColorInfo>;

    /// What AddPoint does besides.
    enum StampFlags : unsigned long
    {
        sfLast = 8,     ///< Stamps m_Last too.
        sfGuarded = 16  ///< Stamps by AddLastPoint instead.
    };

    CContour() = default;
    CContour(CContour const&) = default;
    CContour& operator=(CContour const&) = default;
    virtual ~CContour();
    /// Empties everything but m_Mode. Contours that share this one's ambient area aren't told; see double_map::clear.
    virtual void Clear();

    void Copy(CContour const& other);       ///< All of it; the ambient area as double_map does it.
    void SetParams(CContour const& other);  ///< m_Mode and m_Bounds alone.

    // Gathering -----------------------------------------------------------------------------------------------------
    /// Stamps one sample and widens m_Bounds to the pixels around it. `flags`: StampFlags. A sample on a pixel counts
    /// fully there, whatever `alpha`, `flags` and m_Mode are; with the law 3 all others stamp nothing and leave m_Bounds.
    void AddPoint(double x, double y, CColorInfo& colour, unsigned long flags, double alpha);
    /// Adds one share to one pixel of `map`: colour and 255 times the weight, each truncated.
    void AddPoint(Map& map, int x, int y, CColorInfo& colour, double weight);
    /// A share for a pixel that m_Last doesn't have. If it has it, the share is given only to a pixel of m_Contour with a
    /// coverage below 255, and with a weight of at most what is missing to 255; that compares a weight with a coverage,
    /// so only a coverage of 255 or more keeps the share off.
    void AddLastPoint(int x, int y, CColorInfo& colour, double weight);
    /// Hands the pixels of m_Contour that others have too to these: to m_Contour of `first`, whose channels take them on
    /// but never fall below 0, or to nobody if it lies in its m_Solid; failing that to m_Contour of `second`. What was
    /// handed over goes to m_Overlaid. Null contours have no pixels.
    void Overlay(CContour* first, CContour* second);
    /// Moves all pixels, those of the ambient area included. m_Bounds and m_Last stay.
    void Offset(int dx, int dy);

    // Finishing -----------------------------------------------------------------------------------------------------
    /// Moves what has more coverage than `limit`, and the points of m_Forced, to m_Solid, in the mean of the gathered
    /// colours; then empties m_Forced. Without any coverage the mean counts as black.
    void Normalize(unsigned long limit);
    void ScaleAlpha(double factor);  ///< All four channels of m_Contour, truncated.
    /// The pixel as it looks over `background`, whichever of the maps has it; NoColor if none.
    unsigned long GetColor(tagPOINT const& position, unsigned long background) const;
    void PaintContour(unsigned long colour);  ///< Recolours every pixel; coverage stays.
    /// Finishes all pixels: those of m_Contour go to m_Solid, blended over `colour`. With an ambient area they are
    /// blended over its colours, or where these aren't known over a grey of 128, and what it has no colour for stays.
    void MixWithBackground(unsigned long colour);

    // Ambient area: the pixels around, whose colours are read once for many repaints ---------------------------------
    /// Makes the area from the contour moved by (dx, dy), and with `both` from that moved the other way too. Nothing
    /// without pixels in m_Contour.
    void BuildAmbientArea(int dx, int dy, bool both);
    /// The same, but moved away from a centre: by -dx left of it and by dx right of it, and so for dy. What lies on a line
    /// through the centre lands on coordinate 0 there.
    void BuildAmbientArea(int cx, int cy, int dx, int dy, bool both);
    void AddAmbientPoints(Map const& map);  ///< What isn't of the contour itself, as pixels of unknown colour.
    void IndexAmbientPoints();              ///< Finds the nearest ambient pixel for each of m_Contour.
    /// From now on the colours are those of `other`, if that has an area. The own index comes back when the sharing ends.
    void ShareAmbientArea(CContour& other);
    void UpdateAmbientColors(vexel::IDrawingContext* context);           ///< Reads the colours of the own area.
    unsigned long GetAmbientColorForPt(tagPOINT const& position) const;  ///< NoColor if there is none.

    // Output --------------------------------------------------------------------------------------------------------
    void DrawSolidContour(vexel::IDrawingContext* context) const;
    /// Blends over what the surface holds, column by column, then writes the solid pixels. Where the surface answers
    /// NoColor the last known colour stands in, at first 0x808080. With an ambient area nothing is read: its index is
    /// walked beside m_Contour, and the first pixel that it lacks ends the blending.
    void Draw(vexel::IDrawingContext* context) const;
    void Draw(vexel::IDrawingContext* context, unsigned long background) const;  ///< Blends over one colour.
    /// Blends over `inner`, over `outer` where m_Kind says outer side only, over the mean of both where it says both.
    void Draw(vexel::IDrawingContext* context, unsigned long inner, unsigned long outer) const;
    /// Writes how much of the background remains into a mask of `height` rows of `stride` bytes: 0 for solid pixels, for
    /// the others the complement of the coverage's low byte. `flip`: row y is row height - 1 - y. What lies outside is
    /// left out; a negative height has as many rows as its magnitude.
    void FillAlphaMask(unsigned char* mask, long stride, long height, bool flip) const;
    /// Writes 255 for the same pixels, but with `flip` to row height - y, one lower, and of m_Contour only for those from
    /// row 1 and column 1 on.
    void ClearAlphaMask(unsigned char* mask, long stride, long height, bool flip) const;

    // Sides ---------------------------------------------------------------------------------------------------------
    /// Sets m_Kind of each entry: which side of the contour it is on, seen from the centre. Its neighbours towards and
    /// away from it are looked for in m_Contour and m_Solid.
    void Classify(Map& map, int cx, int cy);
    /// Erases what has a bit of `mask` in its m_Kind and none of `keep`.
    void RemoveContourPart(Map& map, unsigned long mask, unsigned long keep);
    /// Takes the first row out of `a` and `b` and returns its utmost pixel: the row of the first entry of `a`, else of
    /// `b`, else of `c`, which loses no more than that. Its column is moved by `offset`; if it isn't then from
    /// limit.left to below limit.right and below limit.bottom as well, or the row is above limit.top, it is 0x7FFFFFFF.
    static tagPOINT FindUtmostHorzPoint(std::map<tagPOINT, unsigned long>& a, Map& b, Map& c, bool leftmost, int offset,
                                        tagRECT const& limit);

    unsigned long m_Mode = 0;  ///< The low two bits: the law of the shares, see AddPoint.
    tagRECT m_Bounds;          ///< Around all samples and, unless it was set, the origin; right and bottom included.
    Map m_Contour;             ///< Pixels covered in part.
    std::map<tagPOINT, unsigned long> m_Solid;  ///< Finished pixels with their colour.
    Map m_Overlaid;                             ///< What Overlay handed over.
    /// Ambient pixels with their colour, and for each pixel of m_Contour the colour of the nearest.
    double_map<tagPOINT, tagPOINT, unsigned long, std::less<tagPOINT>, std::less<tagPOINT>,
               std::allocator<std::pair<tagPOINT const, unsigned long>>>
        m_Ambient;
    std::set<tagPOINT> m_Forced;  ///< Become solid at the next Normalize, whatever their coverage; it must be above 0.
    Map m_Last;                   ///< Stamps made with sfLast.

private:
    using AmbientIndex = std::map<tagPOINT, unsigned long*>;

    bool HasAmbientArea() const { return !m_Ambient.m_Owner->m_Primary.empty(); }
    template <class Move> void BuildAmbientAreaBy(Move const& move, bool both);
};

}  // namespace antialiasing
