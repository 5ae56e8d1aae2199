#pragma once

#include "vexel/export.h"
#include "vexel/platform/clip_region.h"
#include "vexel/platform/paint_device.h"
#include "vexel/platform/painter.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vexelbase
{

/// The painter of all backends: mapping, rounding, clip, bracket, shapes and text layout on an IPaintDevice.
class VEXEL_API CBasePainter : public IPainter
{
public:
    /// `device` must outlive the painter. `picture`: every paint is a full one.
    CBasePainter(IPaintDevice& device, bool picture);
    ~CBasePainter() override;

    /// The next ssPaint bracket is a full paint: the surface is new, resized or lost content. Asked for within a
    /// bracket, it holds for the rest of that and for the next one.
    void RequestFullPaint();
    IPaintDevice& GetDevice() { return m_Device; }
    int GetBracketDepth() const { return m_Depth; }
    /// Ends the brackets above this depth, which an exception has left open. A paint so ended is not a full one: the
    /// full-paint question stays as it was.
    void AbandonBrackets(int depth);

    // From IPainter -----------------------------------------------------------------------------------------------
    void BeginPaint(StdSettings settings) override;
    void EndPaint() override;
    bool IsFullPaint() override { return m_Picture || m_FullPaint; }
    void SetCoordSystem(MapMode mode, CoordInfo const* info) override;
    void GetCoordSystem(MapMode& mode, CoordInfo* info) const override;
    void ConvertCoord1(point<double>* value, bool extent) const override;
    void DeconvertCoord1(point<double>* value, bool extent) const override;
    void ConvertCoord2(point<double>* values, bool extent) const override;
    void DeconvertCoord2(point<double>* values, bool extent) const override;
    rectangle<double> GetClipRect() const override;
    void SetClipRect(double left, double top, double right, double bottom, bool exclude) override;
    void SimpleSetClipRect(rectangle<double> const& rect, bool exclude) override;
    void ResetClip() override;
    void SetPen(pen const& value) override { m_Pen = value; }
    pen GetPen() const override { return m_Pen; }
    void SetBrush(brush const& value) override { m_Brush = value; }
    brush GetBrush() const override { return m_Brush; }
    void SetFont(font const& value) override;
    font GetFont() const override { return m_Font; }
    void SetTextColor(_color const& color) override { m_TextColor = color; }
    _color GetTextColor() const override { return m_TextColor; }
    void SetBkColor(_color const& color) override { m_BkColor = color; }
    _color GetBkColor() const override { return m_BkColor; }
    void SetDrawMode(RasterOperation mode) override { m_DrawMode = mode; }
    RasterOperation GetDrawMode() const override { return m_DrawMode; }
    void MoveTo(double x, double y) override;
    void LineTo(double x, double y) override;
    void Rectangle(double left, double top, double right, double bottom) override;
    void FillRect(double left, double top, double right, double bottom) override;
    void RoundRect(double left, double top, double right, double bottom, double radiusX, double radiusY) override;
    void Polygon(point<double> const* points, int count) override;
    void FocusRect(double left, double top, double right, double bottom) override;
    void SetPixel(double x, double y, _color color) override;
    _color GetPixel(double x, double y) const override;
    using IPainter::DrawString;
    size<double> DrawString(rectangle<double> const& rect, char const* text, int flags, int count) override;
    size<double> DrawStringEx(rectangle<double> const& rect, char const* text, int flags, int count,
                              char const* delimiters, ITextFormatter* formatter) override;
    size<double> GetTextSize(std::string const& text, font const* textFont, int count, bool logical,
                             bool rotated) override;
    rectangle<double> GetTextRect(rectangle<double> const& rect, size<double> const& textSize, int flags) override;
    void GetFontMetrics(fontmetrics* metrics) override;
    int MeasureRun(char const* text, int length) override;
    void DrawRun(int x, int y, char const* text, int length) override;
    rectangle<int> RunToDevice(rectangle<int> const& rect) const override;
    void DrawControlElement(ControlElement element, double left, double top, double right, double bottom,
                            int state) override;
    void DrawRasterPicture(IRasterPicture* picture, double left, double top, double right, double bottom,
                           RasterOperation operation) override;
    void DrawRasterPictureEx(IRasterPicture* picture, double left, double top, double right, double bottom,
                             double sourceLeft, double sourceTop, double sourceRight, double sourceBottom,
                             RasterOperation operation) override;
    void ExtractRasterPicture(IRasterPicture* picture, double left, double top, double right, double bottom) override;
    void ExtractRasterPictureEx(IRasterPicture* picture, double left, double top, double right, double bottom,
                                double targetLeft, double targetTop, double targetRight, double targetBottom) override;
    void AlphaBlend(double left, double top, double right, double bottom, IRasterPicture* picture, int alpha) override;
    void DrawXPM(XPMImage const& image, double x, double y, int sourceX, int sourceY, int sourceWidth, int sourceHeight,
                 RasterOperation operation) override;
    double GetDPIScale() const override;
    void EditPixels(rectangle<int> const& area, IPixelEditor& editor) override;

    using IPainter::ConvertCoord2;
    using IPainter::DeconvertCoord2;

protected:
    /// The device rectangle (half-open) of an inclusive logical one: corners mapped, ordered, rounded down.
    rectangle<int> ToDevice(double left, double top, double right, double bottom) const;
    point<int> ToDevice(double x, double y) const;
    /// Fills what the clip leaves of the area.
    void FillDevice(rectangle<int> const& area, std::uint32_t pixel, RasterOperation operation)
    {
        m_Clip.ForEach(area, [&](rectangle<int> const& part) { m_Device.Fill(part, pixel, operation); });
    }

private:
    // One axis of the mapping: device = device origin + (logical - logical origin) * device extent / logical extent.
    // The division comes last, so that whole pixels stay whole.
    struct SAxis
    {
        double logicalOrigin = 0;
        double deviceOrigin = 0;
        double logicalExtent = 1;
        double deviceExtent = 1;
        bool oneToOne = true;

        double Map(double value) const
        {
            double const distance = value - logicalOrigin;
            return deviceOrigin + (oneToOne ? distance : distance * deviceExtent / logicalExtent);
        }
        double MapExtent(double value) const { return oneToOne ? value : value * deviceExtent / logicalExtent; }
        double Unmap(double value) const
        {
            double const distance = value - deviceOrigin;
            return logicalOrigin + (oneToOne ? distance : distance * logicalExtent / deviceExtent);
        }
        double UnmapExtent(double value) const { return oneToOne ? value : value * logicalExtent / deviceExtent; }
    };
    // What a bracket keeps to put back at its end.
    struct SSaved
    {
        MapMode mode = mmDevice;
        CoordInfo info;
        CClipRegion clip;
        font textFont;
        StdSettings settings = ssMeasure;
    };
    // Memory of the shapes, kept from one to the next.
    struct SScratch;
    class CFillSink;
    class CUnionSink;
    // How the frame of the text under way lies on the device: turned about a pivot, which both have in common.
    struct STextFrame
    {
        point<int> pivot;
        int rotation = 0;  // 0 to 3599
        double cosine = 1;
        double sine = 0;
        bool cut = false;  // to the half-open rectangle `limit`
        rectangle<int> limit;
        bool ownColor = false;  // what formatters set doesn't count
        _color color;

        point<int> ToDevice(int x, int y) const;
    };
    // One line of the text being laid out.
    struct STextLine
    {
        int start = 0;  // from the text's begin
        int length = 0;
        int width = 0;
    };
    // The lines of one text: a part of m_TextLines, which nested texts use as a stack.
    struct STextLayout
    {
        std::size_t first = 0;
        int lineCount = 0;  // all lines
        int keptCount = 0;  // those that are in m_TextLines
        int width = 0;      // of the widest line, unshortened
        int lineHeight = 0;
    };
    struct STextPlace;
    class CTextScope;

    void UpdateMapping();
    void ResetTools();
    void CloseBracket(bool completed);
    SScratch& Scratch();
    template <class Draw> void DrawOutline(bool overlaps, Draw draw);
    rectangle<int> GetVisible() const;
    bool HasBrush() const { return m_Brush.style != brush::bsNone && !m_Brush.color.m_None; }
    bool HasPen() const { return m_Pen.style != pen::psNone && !m_Pen.color.m_None; }
    CPixelBuffer const& PrepareSource(CPixelBuffer const& pixels, rectangle<int>& source);
    font const& EffectiveFont() const;
    fontmetrics const& EffectiveMetrics() const;
    rectangle<double> ToDeviceBox(rectangle<double> const& rect) const;
    size<double> DeviceTextSize(int width, double height, bool rotated) const;
    size<double> ToLogicalSize(size<double> const& extent) const;
    size<double> LayOutAndDraw(rectangle<double> const& rect, char const* text, int length, int flags,
                               char const* delimiters, ITextFormatter& formatter);
    STextLayout LayOut(char const* text, int length, int maxWidth, char const* delimiters, ITextFormatter& formatter,
                       int kept);
    void DrawLines(STextLayout const& layout, STextPlace const& place, char const* text, int flags,
                   ITextFormatter& formatter);

    IPaintDevice& m_Device;
    bool const m_Picture;
    bool m_FullPaint = true;
    bool m_FullPaintAnew = false;  // asked for since the outermost ssPaint bracket began
    int m_Depth = 0;
    int m_PaintDepth = 0;            // ssPaint brackets among them
    std::vector<SSaved> m_Brackets;  // at least m_Depth; those above keep their memory

    MapMode m_Mode = mmDevice;
    CoordInfo m_Info;
    SAxis m_AxisX;
    SAxis m_AxisY;
    CClipRegion m_Clip;

    pen m_Pen;
    brush m_Brush;
    font m_Font;
    _color m_TextColor = color_table[1];
    _color m_BkColor = color_table[9];
    RasterOperation m_DrawMode = roCopy;
    point<double> m_Position;
    STextFrame m_Frame;
    std::unique_ptr<SScratch> m_Scratch;
    std::vector<STextLine> m_TextLines;
    font m_MeasuredFont;           // memory of GetTextSize
    mutable font m_EffectiveFont;  // valid while m_EffectiveStamp is the present stamp
    mutable fontmetrics m_EffectiveMetrics;
    mutable unsigned m_EffectiveStamp = 0;  // 0: to be found anew
    mutable unsigned m_MetricsStamp = 0;
};

}  // namespace vexelbase
