#pragma once

#include "vexel/platform/base_painter.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/pixel_buffer.h"
#include "vexel/platform/raster_device.h"

#include <string>
#include <vector>

namespace vexel::test
{

using namespace vexelbase;

/// A run that was handed to the device.
struct SDrawnRun
{
    std::string text;
    int x = 0;
    int y = 0;
    int style = 0;
    int rotation = 0;
    std::uint32_t pixel = 0;
    rectangle<int> clip;
};

/// A device with a square font and an ear for text: every character is as wide as the font's size, one more if bold;
/// ascent and descent are three quarters and one quarter of the size. Continuation bytes of UTF-8 have no width.
class CTextDevice : public CRasterDevice
{
public:
    explicit CTextDevice(CPixelBuffer& pixels) : CRasterDevice(pixels) {}

    size<int> GetSize() const override
    {
        return m_PretendedSize.width > 0 ? m_PretendedSize : CRasterDevice::GetSize();
    }
    int MeasureRun(font const& textFont, char const* text, int length) override
    {
        ++m_Measured;
        m_MeasuredBytes += length;
        m_LastFont = textFont;
        int const advance = textFont.size + (textFont.style & font::fsBold ? 1 : 0) + m_ExtraAdvance;
        int count = 0;
        for (int i = 0; i < length; ++i)
            count += (static_cast<unsigned char>(text[i]) & 0xC0u) != 0x80u ? 1 : 0;
        return count * advance - (length > m_TightenAbove ? 1 : 0);
    }
    void DrawRun(SRun const& run) override
    {
        ++m_Drawn;
        m_LastFont = *run.textFont;
        if (m_Keeps)
            m_Runs.push_back({std::string(run.text, static_cast<std::size_t>(run.length)), run.x, run.y,
                              run.textFont->style, run.textFont->rotation, run.pixel, run.clip});
    }
    void GetMetrics(font const& textFont, fontmetrics& metrics) override
    {
        metrics.ascent = textFont.size * 3 / 4;
        metrics.descent = textFont.size - metrics.ascent;
        metrics.leading = m_Leading;
    }
    void DrawControlElement(IPainter::ControlElement, rectangle<int> const&, rectangle<int> const&, int) override {}

    size<int> m_PretendedSize;  ///< Of the surface, for texts alone.
    std::vector<SDrawnRun> m_Runs;
    bool m_Keeps = true;
    int m_Drawn = 0;
    int m_Measured = 0;
    long m_MeasuredBytes = 0;
    int m_Leading = 0;
    int m_ExtraAdvance = 0;
    int m_TightenAbove = 1 << 30;  // longer runs are one pixel narrower than their characters
    font m_LastFont;
};

/// A painter on such a device, with the plain font of size 8: characters of 8 by 8 pixels.
struct STextBench
{
    STextBench() { UseFont(0, 0); }

    void UseFont(int style, int rotation)
    {
        font value;
        value.name = "Square";
        value.family = font::ffSans;
        value.size = 8;
        value.style = style;
        value.rotation = rotation;
        painter.SetFont(value);
    }

    /// The runs drawn since the last call, such as "Hello@10,20", and a style in brackets: "b i u" for bold, italic,
    /// underlined.
    std::string Runs()
    {
        std::string result;
        for (SDrawnRun const& run : device.m_Runs)
        {
            if (!result.empty())
                result += ' ';
            result += run.text + '@' + std::to_string(run.x) + ',' + std::to_string(run.y);
            if (run.style != 0)
                result += std::string("[") + (run.style & font::fsBold ? "b" : "") +
                          (run.style & font::fsItalic ? "i" : "") + (run.style & font::fsUnderline ? "u" : "") + "]";
        }
        device.m_Runs.clear();
        return result;
    }

    CPixelBuffer pixels{size<int>{200, 100}};
    CTextDevice device{pixels};
    CBasePainter basePainter{device, true};
    IPainter& painter = basePainter;
};

}  // namespace vexel::test
