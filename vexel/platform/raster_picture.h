#pragma once

#include "vexel/export.h"
#include "vexel/platform/geometry.h"
#include "vexel/platform/ref_ptr.h"

namespace vexelbase
{

class CPixelBuffer;
class IPainter;

/// An opaque pixel image, made by the system object. Starts white.
class VEXEL_API IRasterPicture : public CBase
{
public:
    virtual size<int> GetSize() const = 0;
    /// Paints on the picture; every paint on it is a full one. Owned by the picture.
    virtual IPainter* GetPainter() = 0;
    virtual vexel_ptr<IRasterPicture> Copy() const = 0;
    /// A copy stretched to `target` (nearest pixel); a size without area gives an empty picture.
    virtual vexel_ptr<IRasterPicture> Scale(size<int> const& target) const = 0;

    virtual CPixelBuffer& GetPixels() = 0;
    virtual CPixelBuffer const& GetPixels() const = 0;
};

}  // namespace vexelbase
