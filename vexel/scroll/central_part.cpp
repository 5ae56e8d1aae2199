#include "vexel/scroll/central_part.h"

#include "vexel/core/control.h"
#include "vexel/core/scroll_on_set_pos.h"
#include "vexel/platform/convert.h"
#include "vexel/scroll/detail/model_mapping.h"

#include <cstdlib>

namespace vexel
{

namespace
{

// What stays of a span of pixels that moves by `delta`: where it comes from, and where it stands then.
void ShrinkSource(int& low, int& high, int delta)
{
    if (delta < 0)
        low = SubtractSaturated(low, delta);
    else
        high = SubtractSaturated(high, delta);
}

void ShrinkTarget(int& low, int& high, int delta)
{
    if (delta < 0)
        high = AddSaturated(high, delta);
    else
        low = AddSaturated(low, delta);
}

bool IsBelow(int delta, int extent)
{
    return std::abs(std::int64_t{delta}) < extent;
}

}  // namespace

CCentralPart::CCentralPart(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CScrollableElement(parent, extent, alignment)
{
    CScrollableElement::SetCentralPane(this);
    SetBkColor(ISysPalette::scWindow);
    SetFgColor(ISysPalette::scWindowText);
    if (IControl* const control = GetControl())
        control->m_SigBeforeRearrange.connect(this, &CCentralPart::StartRearrange);
}

void CCentralPart::ProcessSetControl(IControl* control)
{
    IControl* const old = GetControl();
    if (control == old)
        return;
    if (old)
        old->m_SigBeforeRearrange.disconnect(this, &CCentralPart::StartRearrange);
    if (control)
        control->m_SigBeforeRearrange.connect(this, &CCentralPart::StartRearrange);
}

void CCentralPart::StartRearrange()
{
    rectangle<int> rect = GetBounds();
    ElementToControl(&rect);
    m_RearrangeRect = rect;
}

void CCentralPart::SetPos(rectangle<int> const& rect, bool force)
{
    CScrollableElement::SetPos(rect, force);
}

bool CCentralPart::ScrollContent(int dx, int dy)
{
    if (dx == 0 && dy == 0)
        return false;
    rectangle<int> const& pos = GetPos();
    rectangle<int> valid = GetValidRect();
    valid = {AddSaturated(valid.left, pos.left), AddSaturated(valid.top, pos.top), AddSaturated(valid.right, pos.left),
             AddSaturated(valid.bottom, pos.top)};
    rectangle<int> area = GetContentRect();
    if (!IsBelow(dx, SubtractSaturated(valid.right, valid.left)) ||
        !IsBelow(dy, SubtractSaturated(valid.bottom, valid.top)) || !CanMovePixels(this, area))
    {
        SetValidRect({valid.left, valid.top, valid.left, valid.top});
        return true;
    }
    ShrinkSource(area.left, area.right, dx);
    ShrinkSource(area.top, area.bottom, dy);
    ShrinkTarget(valid.left, valid.right, dx);
    ShrinkTarget(valid.top, valid.bottom, dy);
    ElementToControl(&area);
    area.Normalize();
    if (IControl* const control = GetControl())
        control->ScrollContent(dx, dy, {area.left, area.top, area.right, area.bottom});
    SetValidRect(valid);
    return true;
}

void CCentralPart::SetCoordSystem(IPainter* painter)
{
    IPainter::MapMode mode = IPainter::mmDevice;
    IPainter::CoordInfo info;
    painter->GetCoordSystem(mode, &info);
    if (GetControl() && GetHorzScroll() && GetVertScroll())
    {
        mode = IPainter::mmCustom;
        FillCoordInfo(&info);
    }
    painter->SetCoordSystem(mode, &info);
}

void CCentralPart::FillCoordInfo(IPainter::CoordInfo* info)
{
    rectangle<double> const draw = GetDrawRect(nullptr);
    if (IScrollModel const* const model = GetHorzScroll())
    {
        detail::SModelMapping const axis = detail::MapModel(*model, ToInt(draw.left), ToInt(draw.right));
        info->m_LogicalOrigin.x = axis.logicalOrigin;
        info->m_LogicalExtent.width = axis.logicalExtent;
        info->m_DeviceOrigin.x = axis.deviceOrigin;
        info->m_DeviceExtent.width = axis.deviceExtent;
    }
    if (IScrollModel const* const model = GetVertScroll())
    {
        detail::SModelMapping const axis = detail::MapModel(*model, ToInt(draw.top), ToInt(draw.bottom));
        info->m_LogicalOrigin.y = axis.logicalOrigin;
        info->m_LogicalExtent.height = axis.logicalExtent;
        info->m_DeviceOrigin.y = axis.deviceOrigin;
        info->m_DeviceExtent.height = axis.deviceExtent;
    }
}

}  // namespace vexel
