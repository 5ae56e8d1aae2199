#pragma once

#include "vexel/export.h"
#include "vexel/platform/base_painter.h"
#include "vexel/platform/paint_device.h"
#include "vexel/platform/pixel_buffer.h"
#include "vexel/platform/raster_picture.h"

#include <memory>

namespace vexelbase
{

/// The raster picture of all backends. A backend derives from it to say what device paints on its pixels.
class VEXEL_API CBasePicture : public IRasterPicture
{
public:
    explicit CBasePicture(size<int> const& extent);
    ~CBasePicture() override;

    size<int> GetSize() const override { return m_Pixels.GetSize(); }
    IPainter* GetPainter() override;  ///< Device and painter are made at the first call.
    vexel_ptr<IRasterPicture> Copy() const override;
    vexel_ptr<IRasterPicture> Scale(size<int> const& target) const override;
    CPixelBuffer& GetPixels() override { return m_Pixels; }
    CPixelBuffer const& GetPixels() const override { return m_Pixels; }

protected:
    virtual std::unique_ptr<IPaintDevice> CreateDevice(CPixelBuffer& pixels) const = 0;
    virtual vexel_ptr<IRasterPicture> CreateSame(size<int> const& extent) const = 0;
    /// Makes the painter on the device; a backend may give one of its own.
    virtual std::unique_ptr<CBasePainter> CreatePainter(IPaintDevice& device) const
    {
        return std::make_unique<CBasePainter>(device, true);
    }

private:
    CPixelBuffer m_Pixels;
    std::unique_ptr<IPaintDevice> m_Device;
    std::unique_ptr<CBasePainter> m_Painter;
};

}  // namespace vexelbase
