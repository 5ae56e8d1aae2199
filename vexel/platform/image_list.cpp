#include "vexel/platform/image_list.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

#include <utility>

namespace vexelbase
{

int CImageList::Add(vexel_ptr<IRasterPicture> picture)
{
    m_Images.emplace_back(std::move(picture));
    return GetCount() - 1;
}

int CImageList::Add(XPMImage const& image)
{
    m_Images.emplace_back(image);
    return GetCount() - 1;
}

CImageList::Image const* CImageList::Find(int index) const
{
    return index >= 0 && index < GetCount() ? &m_Images[static_cast<std::size_t>(index)] : nullptr;
}

size<int> CImageList::GetSize(int index) const
{
    Image const* const image = Find(index);
    if (!image)
        return {0, 0};
    if (auto const* const picture = std::get_if<vexel_ptr<IRasterPicture>>(image))
        return *picture ? (*picture)->GetSize() : size<int>{0, 0};
    ISystem* const system = GetCurrentSystem();
    double const scale = system ? system->GetScale() : 1.0;
    XPMImage const& xpm = std::get<XPMImage>(*image);
    return {ToInt(xpm.GetWidth() * scale), ToInt(xpm.GetHeight() * scale)};
}

void CImageList::Draw(IPainter* painter, int index, double x, double y)
{
    Image const* const image = Find(index);
    size<int> const extent = GetSize(index);
    if (!painter || !image || extent.width <= 0 || extent.height <= 0)
        return;
    if (auto const* const picture = std::get_if<vexel_ptr<IRasterPicture>>(image))
        painter->DrawRasterPicture(picture->get(), x, y, x + extent.width - 1, y + extent.height - 1, IPainter::roCopy);
    else
        painter->DrawXPM(std::get<XPMImage>(*image), x, y, 0, 0, -1, -1, IPainter::roCopy);
}

void CImageList::DrawDisabled(IPainter* painter, int index, double x, double y)
{
    if (!painter)
        return;
    bool const before = std::exchange(painter->m_DisabledMode, true);
    Draw(painter, index, x, y);
    painter->m_DisabledMode = before;
}

}  // namespace vexelbase
