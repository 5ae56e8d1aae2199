#pragma once

#include "vexel/platform/qt/detail/coverage.h"
#include "vexel/platform/raster_device.h"

#include <cstdint>
#include <string_view>
#include <vector>

class QImage;

namespace vexelbase::qt
{

class CFontFace;
struct SGlyph;

/// Text in the desktop's fonts and parts in the desktop's style, painted straight into the pixels.
/// Letters stand at whole pixels and are smoothed in grey. Plain runs are put together from the face's glyphs; all
/// others are shaped by Qt and kept.
class CQtDevice final : public CRasterDevice
{
public:
    CQtDevice(CPixelBuffer& pixels, double ratio) : CRasterDevice(pixels), m_Ratio(ratio) {}

    double GetRatio() const { return m_Ratio; }
    void SetRatio(double ratio) { m_Ratio = ratio; }  ///< Device pixels for one of Qt's.

    int MeasureRun(font const& textFont, char const* text, int length) override;
    void DrawRun(SRun const& run) override;
    void GetMetrics(font const& textFont, fontmetrics& metrics) override;
    void DrawControlElement(IPainter::ControlElement element, rectangle<int> const& area, rectangle<int> const& clip,
                            int state) override;

private:
    /// The glyphs of a run, or false if it must be shaped.
    bool Collect(CFontFace& face, std::string_view text, int& width);
    void DrawPlain(SRun const& run, CFontFace const& face, int width, rectangle<int> const& clip);
    void DrawShaped(SRun const& run, CFontFace const& face, rectangle<int> const& clip);
    void DrawTurned(SRun const& run, CFontFace const& face, rectangle<int> const& clip);
    void DrawDecoration(SRun const& run, CFontFace const& face, int width, rectangle<int> const& clip);

    double m_Ratio;
    std::vector<SGlyph const*> m_Glyphs;  // of the run under way
};

/// A Qt image on the buffer's pixels; it must not outlive them.
QImage ViewPixels(CPixelBuffer& pixels);

}  // namespace vexelbase::qt
