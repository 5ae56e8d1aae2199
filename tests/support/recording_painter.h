#pragma once

#include "tests/support/call_log.h"
#include "vexel/platform/painter.h"

/// A painter that draws nothing. It writes down brackets, coordinate conversions and measuring; a logical unit of it is
/// four pixels, and a line of text 6 + 2 + 1 pixels high.
class CRecordingPainter : public vexelbase::IPainter
{
public:
    explicit CRecordingPainter(CCallLog& log) : m_Log(log) {}

    bool m_FullPaint = false;  ///< What IsFullPaint answers until the end of the next paint.

    void BeginPaint(StdSettings settings) override;
    void EndPaint() override;
    bool IsFullPaint() override { return m_FullPaint; }
    void ConvertCoord1(vexelbase::point<double>* value, bool extent) const override;
    void DeconvertCoord1(vexelbase::point<double>* value, bool extent) const override;
    void SetFont(vexelbase::font const& value) override;
    vexelbase::font GetFont() const override { return m_Font; }
    void GetFontMetrics(vexelbase::fontmetrics* metrics) override;

    // What the tests don't look at
    using IPainter::ConvertCoord2;
    using IPainter::DeconvertCoord2;
    using IPainter::DrawString;
    void SetCoordSystem(MapMode, CoordInfo const*) override {}
    void GetCoordSystem(MapMode&, CoordInfo*) const override {}
    void ConvertCoord2(vexelbase::point<double>*, bool) const override {}
    void DeconvertCoord2(vexelbase::point<double>*, bool) const override {}
    vexelbase::rectangle<double> GetClipRect() const override { return {}; }
    void SetClipRect(double, double, double, double, bool) override {}
    void SimpleSetClipRect(vexelbase::rectangle<double> const&, bool) override {}
    void ResetClip() override {}
    void SetPen(vexelbase::pen const&) override {}
    vexelbase::pen GetPen() const override { return {}; }
    void SetBrush(vexelbase::brush const&) override {}
    vexelbase::brush GetBrush() const override { return {}; }
    void SetTextColor(vexelbase::_color const&) override {}
    vexelbase::_color GetTextColor() const override { return {}; }
    void SetBkColor(vexelbase::_color const&) override {}
    vexelbase::_color GetBkColor() const override { return {}; }
    void SetDrawMode(RasterOperation) override {}
    RasterOperation GetDrawMode() const override { return roCopy; }
    void MoveTo(double, double) override {}
    void LineTo(double, double) override {}
    void Rectangle(double, double, double, double) override {}
    void FillRect(double, double, double, double) override {}
    void RoundRect(double, double, double, double, double, double) override {}
    void Polygon(vexelbase::point<double> const*, int) override {}
    void FocusRect(double, double, double, double) override {}
    void SetPixel(double, double, vexelbase::_color) override {}
    vexelbase::_color GetPixel(double, double) const override { return {}; }
    vexelbase::size<double> DrawString(vexelbase::rectangle<double> const&, char const*, int, int) override { return {}; }
    vexelbase::size<double> DrawStringEx(vexelbase::rectangle<double> const&, char const*, int, int, char const*,
                                         ITextFormatter*) override
    {
        return {};
    }
    vexelbase::size<double> GetTextSize(std::string const&, vexelbase::font const*, int, bool, bool) override
    {
        return {};
    }
    vexelbase::rectangle<double> GetTextRect(vexelbase::rectangle<double> const&, vexelbase::size<double> const&,
                                             int) override
    {
        return {};
    }
    int MeasureRun(char const*, int) override { return 0; }
    void DrawRun(int, int, char const*, int) override {}
    vexelbase::rectangle<int> RunToDevice(vexelbase::rectangle<int> const& rect) const override { return rect; }
    void DrawControlElement(ControlElement, double, double, double, double, int) override {}
    void DrawRasterPicture(vexelbase::IRasterPicture*, double, double, double, double, RasterOperation) override {}
    void DrawRasterPictureEx(vexelbase::IRasterPicture*, double, double, double, double, double, double, double, double,
                             RasterOperation) override
    {
    }
    void ExtractRasterPicture(vexelbase::IRasterPicture*, double, double, double, double) override {}
    void ExtractRasterPictureEx(vexelbase::IRasterPicture*, double, double, double, double, double, double, double,
                                double) override
    {
    }
    void AlphaBlend(double, double, double, double, vexelbase::IRasterPicture*, int) override {}
    void DrawXPM(vexelbase::XPMImage const&, double, double, int, int, int, int, RasterOperation) override {}
    double GetDPIScale() const override { return 1.0; }

private:
    CCallLog& m_Log;
    vexelbase::font m_Font;
};
