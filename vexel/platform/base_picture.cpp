#include "vexel/platform/base_picture.h"

#include "vexel/platform/base_painter.h"
#include "vexel/platform/detail/pixel_transfer.h"

namespace vexelbase
{

CBasePicture::CBasePicture(size<int> const& extent) : m_Pixels(extent) {}

CBasePicture::~CBasePicture() = default;

IPainter* CBasePicture::GetPainter()
{
    if (!m_Painter)
    {
        m_Device = CreateDevice(m_Pixels);
        m_Painter = CreatePainter(*m_Device);
    }
    return m_Painter.get();
}

vexel_ptr<IRasterPicture> CBasePicture::Copy() const
{
    vexel_ptr<IRasterPicture> copy = CreateSame(GetSize());
    copy->GetPixels() = m_Pixels;
    return copy;
}

vexel_ptr<IRasterPicture> CBasePicture::Scale(size<int> const& target) const
{
    vexel_ptr<IRasterPicture> scaled = CreateSame(target.width > 0 && target.height > 0 ? target : size<int>());
    CPixelBuffer& pixels = scaled->GetPixels();
    detail::StretchPixels(pixels, pixels.GetRect(), pixels.GetRect(), m_Pixels, m_Pixels.GetRect(), IPainter::roCopy);
    return scaled;
}

}  // namespace vexelbase
