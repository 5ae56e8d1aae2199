#include "vexel/platform/memory/memory_picture.h"

#include "vexel/platform/memory/memory_device.h"
#include "vexel/platform/memory/memory_painter.h"

namespace vexelbase::memory
{

namespace
{
int g_Count = 0;
}

CMemoryPicture::CMemoryPicture(size<int> const& extent) : CBasePicture(extent)
{
    ++g_Count;
}

CMemoryPicture::~CMemoryPicture()
{
    --g_Count;
}

int CMemoryPicture::GetCount()
{
    return g_Count;
}

std::unique_ptr<IPaintDevice> CMemoryPicture::CreateDevice(CPixelBuffer& pixels) const
{
    return std::make_unique<CMemoryDevice>(pixels);
}

vexel_ptr<IRasterPicture> CMemoryPicture::CreateSame(size<int> const& extent) const
{
    return MakeRef<CMemoryPicture>(extent);
}

std::unique_ptr<CBasePainter> CMemoryPicture::CreatePainter(IPaintDevice& device) const
{
    return std::make_unique<CMemoryPainter>(device, true);
}

}  // namespace vexelbase::memory
