#pragma once

#include "vexel/export.h"
#include "vexel/platform/color.h"
#include "vexel/platform/font.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/palette.h"
#include "vexel/platform/pen.h"
#include "vexel/platform/raster_picture.h"
#include "vexel/platform/ref_ptr.h"

#include <string>

namespace vexelbase
{

class IPixelEditor;
class XPMImage;

/// Draws on a window's surface or on a picture. Coordinates are logical unless a group says otherwise: they go through
/// the mapping set by SetCoordSystem and then fall into device pixels by rounding down. Shapes include their right and
/// bottom edge and are never antialiased; corners may come in any order. The surface keeps what was painted.
class VEXEL_API IPainter
{
public:
    /// How logical coordinates become device pixels.
    enum MapMode : int
    {
        mmDevice = 0,  ///< One to one.
        mmCustom = 3   ///< By the CoordInfo; any other number means the same.
    };

    /// device = device origin + (logical - logical origin) * device extent / logical extent, on each axis.
    /// A negative extent turns the axis round; where an extent is 0 or no number the ratio is 1.
    struct CoordInfo
    {
        bool m_Flag1 = false;
        bool m_Flag2 = false;
        point<double> m_LogicalOrigin;
        size<double> m_LogicalExtent;
        point<int> m_DeviceOrigin;
        size<int> m_DeviceExtent;
        double m_Scale = 1.0;
        bool m_Flag3 = false;

        friend bool operator==(CoordInfo const&, CoordInfo const&) = default;
    };

    /// What a paint bracket is for.
    enum StdSettings : int
    {
        ssPaint =
            2,  ///< Painting: starts with the identity mapping and no clip; its end answers the full-paint question.
        ssMeasure = 3  ///< Measuring only; leaves the surface and the full-paint question alone.
    };

    /// How drawn pixels meet those on the surface: on the 24 colour bits, exactly.
    enum RasterOperation : int
    {
        roCopy = 0,
        roXor = 2,
        roAnd = 7
    };

    /// Native-looking parts.
    enum ControlElement : int
    {
        ceHeaderSection = 0,
        ceCheckChecked = 1,
        ceCheckUnchecked = 2,
        cePushButton = 7,
        ceComboArrow = 8,
        ceDropArrow = 9,
        ceRadioChecked = 10,
        ceRadioUnchecked = 11
    };

    /// The state word of native-looking parts. Pressed excludes hot.
    enum ElementState : int
    {
        esDisabled = 1,
        esFocused = 2,
        esHot = 4,
        esPressed = 8
    };

    /// Where a text stands in its rectangle and how it is treated. Where two of an axis are set, centre wins over
    /// right or bottom, and these over left or top; with none the text stands left, top.
    enum AlignmentFlags : int
    {
        AlignLeft = 0x1,
        AlignRight = 0x2,
        AlignHCenter = 0x4,
        AlignTop = 0x8,
        AlignBottom = 0x10,
        AlignVCenter = 0x20,
        AlignSingleLine = 0x40,     ///< Neither wrapped nor cut at the rectangle.
        AlignFitText = 0x100,       ///< What does not fit ends in "..." when it is really drawn.
        AlignMeasureOnly = 0x1000,  ///< Nothing is painted; the size is returned.
        AlignDisabled = 0x2000      ///< The look of something disabled.
    };

    class ITextFormatter;

    virtual ~IPainter();

    // Bracket -----------------------------------------------------------------------------------------------------
    /// Every use stands between these two; they may nest. Each end puts back mapping, clip and font as they were at its
    /// beginning. The outermost ssPaint also starts with all tools and modes at their defaults.
    virtual void BeginPaint(StdSettings settings) = 0;
    virtual void EndPaint() = 0;
    /// True if what the surface shows is not what was last painted (new, resized, content lost), so that everything
    /// must be painted. The end of the window's own ssPaint bracket settles it. Always true for pictures.
    virtual bool IsFullPaint() = 0;

    // Mapping -----------------------------------------------------------------------------------------------------
    virtual void SetCoordSystem(MapMode mode, CoordInfo const* info) = 0;
    virtual void GetCoordSystem(MapMode& mode, CoordInfo* info) const = 0;
    /// Logical to device, without rounding. `extent`: the value is a distance, origins are left out.
    virtual void ConvertCoord1(point<double>* value, bool extent) const = 0;
    /// Device to logical.
    virtual void DeconvertCoord1(point<double>* value, bool extent) const = 0;
    /// The same for two consecutive points. Corners are not reordered: a turned axis yields right below left.
    virtual void ConvertCoord2(point<double>* values, bool extent) const = 0;
    virtual void DeconvertCoord2(point<double>* values, bool extent) const = 0;
    void ConvertCoord2(rectangle<double>* value, bool extent) const;
    void DeconvertCoord2(rectangle<double>* value, bool extent) const;

    // Clip --------------------------------------------------------------------------------------------------------
    /// The bounds of what may be painted: device, right and bottom excluded. All zero: no clip.
    virtual rectangle<double> GetClipRect() const = 0;
    /// Logical, edges included. Narrows the present clip to the rectangle, or takes the rectangle out of it (`exclude`).
    virtual void SetClipRect(double left, double top, double right, double bottom, bool exclude) = 0;
    /// Device, right and bottom excluded; fractions round outward. Replaces the present clip, or takes the rectangle out
    /// of it (`exclude`). What GetClipRect returned is put back faithfully: all zero means no clip, any other rectangle
    /// without area that nothing may be painted.
    virtual void SimpleSetClipRect(rectangle<double> const& rect, bool exclude) = 0;
    /// Drops the clip. Whoever calls it clears m_ClipCache right after.
    virtual void ResetClip() = 0;

    // Tools -------------------------------------------------------------------------------------------------------
    virtual void SetPen(pen const& value) = 0;
    virtual pen GetPen() const = 0;
    virtual void SetBrush(brush const& value) = 0;
    virtual brush GetBrush() const = 0;
    virtual void SetFont(font const& value) = 0;
    virtual font GetFont() const = 0;
    virtual void SetTextColor(_color const& color) = 0;
    virtual _color GetTextColor() const = 0;
    virtual void SetBkColor(_color const& color) = 0;  ///< Kept only: text never fills its background.
    virtual _color GetBkColor() const = 0;
    /// How pen output meets the surface; roCopy by default.
    virtual void SetDrawMode(RasterOperation mode) = 0;
    virtual RasterOperation GetDrawMode() const = 0;

    // Shapes: inclusive edges; brush inside, pen outline over it. One outline draws each of its pixels once, so that
    // inverting it twice restores what was there -------------------------------------------------------------------
    virtual void MoveTo(double x, double y) = 0;
    /// Pen line from the last position. Both ends are drawn, and the same pixels whichever end it starts from: of two
    /// pixels that are equally near, the lower or the right one.
    virtual void LineTo(double x, double y) = 0;
    virtual void Rectangle(double left, double top, double right, double bottom) = 0;
    virtual void FillRect(double left, double top, double right, double bottom) = 0;  ///< Brush only; no pen.
    /// Corners are quarters of an ellipse; radii are cut to half of the extents. Without a radius it is a Rectangle.
    virtual void RoundRect(double left, double top, double right, double bottom, double radiusX, double radiusY) = 0;
    /// Closed. Inside is what the even-odd rule says, and the edges themselves.
    virtual void Polygon(point<double> const* points, int count) = 0;
    /// Inverts every second pixel of the outline, beginning with the left-top: twice is never. Without pen and brush.
    virtual void FocusRect(double left, double top, double right, double bottom) = 0;
    virtual void SetPixel(double x, double y, _color color) = 0;
    virtual _color GetPixel(double x, double y) const = 0;  ///< Value 0x??BBGGRR; white outside the surface.

    // Text --------------------------------------------------------------------------------------------------------
    /// Draws lines parted by "\n". `count`: bytes, -1 for all; a character that it cuts in two is left out. Null draws
    /// nothing. Returns the unshortened size in logical units. Without AlignSingleLine the output is cut to the rectangle.
    /// Alignment reckons with right - left and bottom - top; each line begins at a whole pixel, rounded down. A rotated
    /// text is laid out upright, with the extents that the rectangle has in its reading direction, and aligned as a box.
    /// With rotations that are no quarter turns, lines are neither wrapped nor shortened.
    virtual size<double> DrawString(rectangle<double> const& rect, char const* text, int flags, int count) = 0;
    size<double> DrawString(rectangle<double> const& rect, std::string const& text, int flags, int count);
    /// The same, wrapped behind delimiters and laid out by the formatter (null: plain text).
    virtual size<double> DrawStringEx(rectangle<double> const& rect, char const* text, int flags, int count,
                                      char const* delimiters, ITextFormatter* formatter) = 0;
    /// The size of a text in logical units, never negative: the bounding box where the font is rotated.
    /// `textFont`: null for the current one. `logical` false: device pixels. `rotated` false: as if upright.
    virtual size<double> GetTextSize(std::string const& text, font const* textFont, int count = -1, bool logical = true,
                                     bool rotated = true) = 0;
    /// Where a text of this size stands in the rectangle with these flags; with AlignFitText it is no larger than the
    /// rectangle. From left and top it reaches to left + width and top + height.
    virtual rectangle<double> GetTextRect(rectangle<double> const& rect, size<double> const& textSize, int flags) = 0;
    virtual void GetFontMetrics(fontmetrics* metrics) = 0;  ///< Current font, device pixels.

    // Text runs, for formatters: pixels of the upright text frame, which DrawStringEx turns with the font ----------
    /// Width of one unbroken run in the current font.
    virtual int MeasureRun(char const* text, int length) = 0;
    /// Draws one run with its left-top at (x, y) in the current font and text colour.
    virtual void DrawRun(int x, int y, char const* text, int length) = 0;
    /// The device box of a frame rectangle; the same unless the font is rotated.
    virtual rectangle<int> RunToDevice(rectangle<int> const& rect) const = 0;

    // Parts and pictures. A picture may be drawn onto itself. In disabled mode pictures are drawn in shades of grey,
    // (77 red + 150 green + 29 blue) / 256, where black and white stay; the picture itself keeps its colours ---------
    /// Covers its whole rectangle.
    virtual void DrawControlElement(ControlElement element, double left, double top, double right, double bottom,
                                    int state) = 0;
    /// One to one from the left-top; the inclusive rectangle only limits.
    virtual void DrawRasterPicture(IRasterPicture* picture, double left, double top, double right, double bottom,
                                   RasterOperation operation) = 0;
    /// Both rectangles inclusive, destination first; stretched by the ratio of their pixel counts, never mirrored.
    /// Each pixel takes the one under its centre. What lies beyond the picture draws nothing.
    virtual void DrawRasterPictureEx(IRasterPicture* picture, double left, double top, double right, double bottom,
                                     double sourceLeft, double sourceTop, double sourceRight, double sourceBottom,
                                     RasterOperation operation) = 0;
    /// Surface to picture, one to one, to the picture's left-top, whatever the clip. What would come from outside the
    /// surface leaves the picture's pixels.
    virtual void ExtractRasterPicture(IRasterPicture* picture, double left, double top, double right,
                                      double bottom) = 0;
    /// Surface rectangle first, then the picture's.
    virtual void ExtractRasterPictureEx(IRasterPicture* picture, double left, double top, double right, double bottom,
                                        double targetLeft, double targetTop, double targetRight,
                                        double targetBottom) = 0;
    /// One to one; every channel becomes (picture * alpha + surface * (255 - alpha)) / 255, rounded down. `alpha` is
    /// brought into 0 to 255.
    virtual void AlphaBlend(double left, double top, double right, double bottom, IRasterPicture* picture,
                            int alpha) = 0;
    /// `sourceWidth`, `sourceHeight`: -1 for all. Drawn at the device scale, if automatic scaling is on and it is above 1.
    virtual void DrawXPM(XPMImage const& image, double x, double y, int sourceX, int sourceY, int sourceWidth,
                         int sourceHeight, RasterOperation operation) = 0;

    virtual double GetDPIScale() const = 0;  ///< Widgets multiply their pixel constants by it.

    // Pixels in bulk ----------------------------------------------------------------------------------------------
    /// Lets the editor change what the clip leaves of an area of device pixels (half-open), in as many parts as that
    /// takes; none twice. Only with the mapping mmDevice. By default it is done by GetPixel and SetPixel, a pixel at a
    /// time, of which the latter keeps to the clip.
    virtual void EditPixels(rectangle<int> const& area, IPixelEditor& editor);

    // State that the framework reads and writes -------------------------------------------------------------------
    bool m_Painting = false;  ///< A bracket is open.
    bool m_DisabledMode =
        false;  ///< The element being drawn is disabled: pictures are grey, text keeps the one colour.
    _color m_DisabledBkColor{0, true};
    bool m_PenDirty = false;
    rectangle<double> m_ClipCache;
    bool m_TextShortened = false;           ///< Whether the last text that was really drawn ended in "...".
    vexel_ptr<ICustomPaletteEx> m_Palette;  ///< Installed for borders and buttons; put back by who installed it.

    // Control-wide background: on the window's painter -------------------------------------------------------------
    vexel_ptr<IRasterPicture> m_BkImage;
    _color m_BkImageColor;
    rectangle<int> m_BkImagePlacement;  ///< Negative left or top: anchored to the window's right or bottom.
};

/// Cuts a text into lines and draws them. One object formats one text at a time.
class VEXEL_API IPainter::ITextFormatter
{
public:
    virtual ~ITextFormatter();

    /// Once around each DrawStringEx pass: resets, and then restores, what mark-up changed.
    virtual void BeforeFormatting(IPainter* painter);
    virtual void AfterFormatting(IPainter* painter);
    /// Forgets what earlier drawing gathered.
    virtual void Clear();

    /// Cuts off the next line. On entry `text` is where it begins and `length` how many characters are left.
    /// On return `text` is where the line after it begins, `length` how many characters belong to this line
    /// (from the old `text` on) and `width` its width in frame pixels. False: no line left.
    /// A line ends at "\n", or behind the last delimiter before `maxWidth` (below 0: no limit); a word wider than that
    /// stays whole. Blanks at which a line is wrapped don't count.
    virtual bool GetTextLine(IPainter* painter, char const*& text, int& length, int& width, int maxWidth,
                             char const* delimiters) = 0;
    /// Draws one line with its left-top at (x, y) of the text frame.
    virtual void DrawTextLine(IPainter* painter, int x, int y, char const* text, int length) = 0;

    /// How many characters from the start of the line fit into `maxWidth`, and their width. By default all of them.
    virtual int FitTextLine(IPainter* painter, char const* text, int length, int maxWidth, int& width);
    /// Goes past a part of a line that is not drawn, for the sake of the mark-up in it.
    virtual void SkipText(char const* text, int length);
};

}  // namespace vexelbase
