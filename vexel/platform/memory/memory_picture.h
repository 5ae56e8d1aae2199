#pragma once

#include "vexel/export.h"
#include "vexel/platform/base_picture.h"

namespace vexelbase::memory
{

/// A picture of the memory backend.
class VEXEL_MEMORY_API CMemoryPicture : public CBasePicture
{
public:
    explicit CMemoryPicture(size<int> const& extent);
    ~CMemoryPicture() override;

    static int GetCount();  ///< Living pictures of the process.

protected:  // From CBasePicture
    std::unique_ptr<IPaintDevice> CreateDevice(CPixelBuffer& pixels) const override;
    vexel_ptr<IRasterPicture> CreateSame(size<int> const& extent) const override;
    std::unique_ptr<CBasePainter> CreatePainter(IPaintDevice& device) const override;
};

}  // namespace vexelbase::memory
