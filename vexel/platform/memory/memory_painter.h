#pragma once

#include "vexel/export.h"
#include "vexel/platform/base_painter.h"

#include <string>

namespace vexelbase::memory
{

class CMemoryPainter;

/// Hears every call that is made on a painter of the memory backend.
class VEXEL_MEMORY_API IPaintRecorder
{
public:
    virtual ~IPaintRecorder();
    /// `call`: the operation and its arguments, copied; see the test kit's PaintLog. `depth`: 1 for what a formatter
    /// draws inside a DrawStringEx, else 0.
    virtual void PainterCalled(CMemoryPainter& painter, int depth, std::string const& call) = 0;
};

/// Takes the recorder of all painters of the backend; not owned, null: nobody. Returns the one before.
VEXEL_MEMORY_API IPaintRecorder* SetPaintRecorder(IPaintRecorder* recorder);

/// The painter of windows and pictures in memory. Tells the recorder, if there is one, of each call before it is
/// carried out; calls that the painter makes on itself are left out, and so are queries and texts that are only
/// measured.
class VEXEL_MEMORY_API CMemoryPainter : public CBasePainter
{
public:
    CMemoryPainter(IPaintDevice& device, bool picture) : CBasePainter(device, picture), m_Picture(picture) {}

    bool IsPicturePainter() const { return m_Picture; }

    // From IPainter -----------------------------------------------------------------------------------------------
    void BeginPaint(StdSettings settings) override;
    void EndPaint() override;
    void SetCoordSystem(MapMode mode, CoordInfo const* info) override;
    void SetClipRect(double left, double top, double right, double bottom, bool exclude) override;
    void SimpleSetClipRect(rectangle<double> const& rect, bool exclude) override;
    void ResetClip() override;
    void SetPen(pen const& value) override;
    void SetBrush(brush const& value) override;
    void SetFont(font const& value) override;
    void SetTextColor(_color const& color) override;
    void SetBkColor(_color const& color) override;
    void SetDrawMode(RasterOperation mode) override;
    void MoveTo(double x, double y) override;
    void LineTo(double x, double y) override;
    void Rectangle(double left, double top, double right, double bottom) override;
    void FillRect(double left, double top, double right, double bottom) override;
    void RoundRect(double left, double top, double right, double bottom, double radiusX, double radiusY) override;
    void Polygon(point<double> const* points, int count) override;
    void FocusRect(double left, double top, double right, double bottom) override;
    void SetPixel(double x, double y, _color color) override;
    using CBasePainter::DrawString;
    size<double> DrawString(rectangle<double> const& rect, char const* text, int flags, int count) override;
    size<double> DrawStringEx(rectangle<double> const& rect, char const* text, int flags, int count,
                              char const* delimiters, ITextFormatter* formatter) override;
    size<double> GetTextSize(std::string const& text, font const* textFont, int count, bool logical,
                             bool rotated) override;
    void DrawRun(int x, int y, char const* text, int length) override;
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
    /// Told to a recorder as the SetPixel calls that it amounts to, of the pixels that change.
    void EditPixels(rectangle<int> const& area, IPixelEditor& editor) override;

private:
    class CCall;

    bool const m_Picture;
    int m_Silent = 0;      // inside calls whose own calls are left out
    int m_Formatting = 0;  // inside a DrawStringEx with a formatter
};

}  // namespace vexelbase::memory
