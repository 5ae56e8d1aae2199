#include "vexel/layout/layout_flavor.h"

namespace vexel
{

bool CLayoutFlavor::ChangeLayout(Alignment alignment)
{
    m_Layout = CLayoutManager::GetLayout(alignment);
    return true;
}

void CLayoutFlavor::ConvFont(font* value) const
{
    if (m_ConvertText)
        m_Layout->ConvFont(value);
}

int CLayoutFlavor::ConvTextAlign(int flags) const
{
    return m_ConvertText ? m_Layout->ConvTextAlign(flags) : flags;
}

}  // namespace vexel
