#include "vexel/scroll/scrollable_element_ex.h"

#include "vexel/platform/convert.h"
#include "vexel/scroll/detail/model_mapping.h"

namespace vexel
{

namespace
{

rectangle<int> Truncate(rectangle<double> const& rect)
{
    return {ToInt(rect.left), ToInt(rect.top), ToInt(rect.right), ToInt(rect.bottom)};
}

bool IsHorizontal(Alignment alignment)
{
    return alignment == alTop || alignment == alBottom;
}

bool IsVertical(Alignment alignment)
{
    return alignment == alLeft || alignment == alRight;
}

// Across, from `low` to `high`; turned round where the element lies before the view.
void MapAcross(int low, int high, bool turned, double& logicalExtent, int& deviceOrigin, int& deviceExtent)
{
    int const extent = SubtractSaturated(high, low);
    logicalExtent = extent;
    deviceExtent = turned ? SubtractSaturated(0, extent) : extent;
    deviceOrigin = deviceExtent < 0 ? high : low;
}

}  // namespace

CScrollableElementEx::CScrollableElementEx(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CScrollableElement(parent, extent, alignment)
{
    ChangeLayout(alignment);
}

IScrollModel* CScrollableElementEx::GetScrollModel() const
{
    if (IsVertical(GetAlignment()))
        return GetVertScroll();
    return IsHorizontal(GetAlignment()) ? GetHorzScroll() : nullptr;
}

void CScrollableElementEx::SetAlignment(Alignment alignment)
{
    if (ChangeLayout(alignment))
        CScrollableElement::SetAlignment(alignment);
}

rectangle<double> CScrollableElementEx::GetAxisRect(IPainter* painter) const
{
    rectangle<int> rect = GetContentRect();
    rectangle<int> central = GetCentralRect();
    ControlToElement(&central);
    CutRect(&rect, central);
    ElementToControl(&rect);
    rectangle<double> result{static_cast<double>(rect.left), static_cast<double>(rect.top),
                             static_cast<double>(rect.right), static_cast<double>(rect.bottom)};
    if (painter)
        painter->DeconvertCoord2(&result, false);
    return result;
}

void CScrollableElementEx::SetCoordSystem(IPainter* painter)
{
    IPainter::MapMode mode = IPainter::mmDevice;
    IPainter::CoordInfo info;
    painter->GetCoordSystem(mode, &info);
    IScrollModel* const model = GetControl() ? GetScrollModel() : nullptr;
    if (model && IsHorizontal(GetAlignment()))
        FillHorizontal(&info, model);
    else if (model)
        FillVertical(&info, model);
    painter->SetCoordSystem(mode, &info);
}

void CScrollableElementEx::FillHorizontal(IPainter::CoordInfo* info, IScrollModel* model)
{
    if (!model)
        return;
    rectangle<int> const axis = Truncate(GetAxisRect(nullptr));
    detail::SModelMapping const along = detail::MapModel(*model, axis.left, axis.right);
    info->m_LogicalOrigin = {along.logicalOrigin, 0.0};
    info->m_LogicalExtent.width = along.logicalExtent;
    info->m_DeviceOrigin.x = along.deviceOrigin;
    info->m_DeviceExtent.width = along.deviceExtent;
    MapAcross(axis.top, axis.bottom, GetAlignment() == alTop, info->m_LogicalExtent.height, info->m_DeviceOrigin.y,
              info->m_DeviceExtent.height);
}

void CScrollableElementEx::FillVertical(IPainter::CoordInfo* info, IScrollModel* model)
{
    if (!model)
        return;
    rectangle<int> const axis = Truncate(GetAxisRect(nullptr));
    detail::SModelMapping const along = detail::MapModel(*model, axis.top, axis.bottom);
    info->m_LogicalOrigin = {0.0, along.logicalOrigin};
    info->m_LogicalExtent.height = along.logicalExtent;
    info->m_DeviceOrigin.y = along.deviceOrigin;
    info->m_DeviceExtent.height = along.deviceExtent;
    MapAcross(axis.left, axis.right, GetAlignment() == alLeft, info->m_LogicalExtent.width, info->m_DeviceOrigin.x,
              info->m_DeviceExtent.width);
}

}  // namespace vexel
