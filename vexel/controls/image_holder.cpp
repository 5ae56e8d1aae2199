#include "vexel/controls/image_holder.h"

#include "vexel/core/dpi.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/painter.h"

namespace vexel
{

size<int> CImageHolder::GetSize(IImageList* list) const
{
    if (m_Index >= 0 && list)
        return list->GetSize(m_Index);
    if (m_Picture)
        return m_Picture->GetSize();
    size<int> extent{m_Xpm.GetWidth(), m_Xpm.GetHeight()};
    ApplyDPIScale(extent);
    return extent;
}

bool CImageHolder::IsAssigned(IImageList* list) const
{
    size<int> const extent = GetSize(list);
    return extent.width > 0 && extent.height > 0;
}

void CImageHolder::DrawImage(IPainter* painter, IImageList* list, int x, int y) const
{
    if (m_Index >= 0 && list)
    {
        if (!m_Disabled)
        {
            list->Draw(painter, m_Index, x, y);
            return;
        }
        size<int> const extent = list->GetSize(m_Index);
        if (extent.width > 0 && extent.height > 0)
            painter->FillRect(x, y, AddSaturated(x, extent.width - 1), AddSaturated(y, extent.height - 1));
        list->DrawDisabled(painter, m_Index, x, y);
    }
    else if (m_Picture)
    {
        size<int> const extent = m_Picture->GetSize();
        painter->DrawRasterPicture(m_Picture.get(), x, y, AddSaturated(x, extent.width), AddSaturated(y, extent.height),
                                   IPainter::roCopy);
    }
    else
        painter->DrawXPM(m_Xpm, x, y, 0, 0, -1, -1, IPainter::roCopy);
}

}  // namespace vexel
