#include "vexel/views/item_view_model.h"

#include "vexel/platform/painter.h"

#include <algorithm>

namespace vexel
{

void IBaseItemViewModel::SetStretchLastItem(bool stretch)
{
    if (stretch == m_StretchLastItem)
        return;
    m_StretchLastItem = stretch;
    int const count = GetCount();
    if (count > 0)
        AddDirtyItems(count - 1, count);
    m_SigChanged();
}

IDirtyItemSet::DirtyType GetCellUpdateType(IPainter* painter, IDirtyItemSet::DirtyType a, IDirtyItemSet::DirtyType b)
{
    if (painter && painter->IsFullPaint())
        return IDirtyItemSet::dirtyItem;
    return std::min(a, b);
}

}  // namespace vexel
