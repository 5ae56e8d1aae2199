#pragma once

#include "vexel/antialiasing/contour.h"
#include "vexel/export.h"
#include "vexel/platform/geometry.h"

namespace antialiasing
{

/// What ends a line. A cap lies within the line; its length shrinks to 0.4 of a short one's.
enum CapStyle : int
{
    CapNone = 0,
    CapArrowNarrow = 1,  ///< A triangle of 3 widths + 4 pixels.
    CapArrowWide = 2,    ///< As long, half as wide again.
    CapCircle = 3,       ///< A disc; its diameter is the width.
    CapCircle5 = 4,      ///< A disc of 5 pixels, and so is every style that isn't listed.
    CapCircle7 = 5,
    CapCircle10 = 6
};

/// A line, without defaults: all is zero.
struct LINE_CONTOUR_PARAMS
{
    vexelbase::point<double> m_Start;
    vexelbase::point<double> m_End;
    unsigned long m_Width = 0;    ///< Samples across the line.
    unsigned long m_Density = 0;  ///< Samples for 100 pixels of length.
    /// The numbers of vexelbase::pen: 1 solid, 2 dash, 3 dot, 4 dash dot, 5 dash dot dot. Of others only the caps are
    /// stamped, where they are with a body.
    int m_PenStyle = 0;
    CapStyle m_StartCap = CapNone;
    CapStyle m_EndCap = CapNone;
    int m_Intensity = 0;  ///< Opacity of one sample, in 255ths.
    CColorInfo m_StartColor;
    /// Another colour than at the start makes a gradient. The rows of a disc that lie before the start take steps of it too,
    /// so the far end goes beyond this colour by as many; a channel that gets above 255 wraps there.
    CColorInfo m_EndColor;
    double m_StartCapOffset = 0;  ///< How much of the cap's length is cut off.
    double m_EndCapOffset = 0;
};

/// The same with the usual values: one wide, 100 samples for 100 pixels, solid, without caps, opaque black.
struct VEXEL_API LineContourParams : LINE_CONTOUR_PARAMS
{
    LineContourParams();
};

/// Strokes a straight line with samples: walks it in steps of about one pixel and stamps at each a row across. Caps are
/// the same walk with rows that grow or shrink. Samples are set off the pixel grid by a quarter of a step or of a pixel,
/// so that they spread over their neighbours in a steady proportion.
///
/// On an exactly horizontal line a disc has no width: its rows are single samples.
class VEXEL_API CLineContour : public CContour, public LineContourParams
{
public:
    /// How one cap lies on the line.
    struct VEXEL_API CapParams
    {
        CapStyle m_Style = CapNone;
        double m_Length = 0;            ///< Along the line.
        double m_Offset = 0;            ///< How much of it is cut off.
        double m_Radius = 0;            ///< Of discs; 0 else.
        double m_HalfWidth = 0;         ///< Of arrows; 0 else.
        unsigned long m_ExtraArea = 0;  ///< How far it may reach beyond the box of the segment.

        /// For a line of this width and length, whose other cap has `otherOffset` cut off. A style that isn't listed
        /// takes m_Length as it stands for the length that it would like.
        void Set(CapStyle style, unsigned long width, double length, double offset, double otherOffset);
    };

    /// Stamps the line: start cap, body, end cap. Then hands over what it shares with `first` and `second`, if `first`
    /// isn't null; see Overlay.
    virtual void Generate(CContour* first, CContour* second);
    void GenerateCaptionsOnly();  ///< Stamps the caps where they would be, without the body.

    /// Stamps one cap from (x, y) on, in steps of (dx, dy), and leaves (x, y) behind it. With `gradient` the colour goes on
    /// by `step` at each step.
    void DrawCaption(CapParams cap, bool atStart, double& x, double& y, double dx, double dy, CColorInfo& colour,
                     CColorInfoR& step, bool gradient);

    using CContour::AddPoint;
    /// Stamps a row of `count` samples: one at (x, y) itself, more from m_HalfSpan before it on, m_CrossStep apart.
    void AddPoint(double x, double y, CColorInfo& colour, unsigned long count);

    /// How far the cap of a long line reaches beyond the box of the segment, in pixels.
    static unsigned long GetExtraArea(CapStyle style, unsigned long width);

    bool m_CaptionsOnly = false;           ///< Generate leaves the body out.
    double m_Opacity = 0;                  ///< Of each stamp; set by Generate from m_Intensity.
    vexelbase::point<double> m_CrossStep;  ///< From one sample of a row to the next.
    vexelbase::point<double> m_HalfSpan;   ///< From the first sample of a row to its middle.
};

}  // namespace antialiasing
