#include "vexel/widgets/slider_drawing_model.h"

#include "vexel/core/types.h"
#include "vexel/platform/border.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/painter.h"

namespace vexel
{

namespace
{

// Unscaled.
size<double> const g_PointerSize{10, 22};
double const g_SlotThickness = 2;
double const g_SlotMargin = 2;  // at its ends, beside the pointer
double const g_CaptionGap = 2;  // before the place of a caption
double const g_TextGap = 4;     // within it, before the text
double const g_FocusDistance = 4;
int const g_TextFlags = IPainter::AlignHCenter | IPainter::AlignTop;

ILayout& OrDefault(ILayout* layout)
{
    return layout ? *layout : *CLayoutManager::GetLayout(alLeft);
}

void MoveAcrossStart(rectangle<double>& rect, ILayout const& layout, double distance)
{
    layout.GetAcrossRef(rect.left, rect.top) += distance;
}

}  // namespace

ISliderDrawingModel::~ISliderDrawingModel() = default;

CDefSliderDrawingModel s_DefSliderDrawingModel;

void CDefSliderDrawingModel::GetContentRect(int, int, rectangle<double>& rect, ILayout* layout) const
{
    MoveAcrossStart(rect, OrDefault(layout), ToDevicePixels(g_CaptionGap));
}

void CDefSliderDrawingModel::OnDrawPointCaption(IPainter* painter, rectangle<double> const& rect, int, int,
                                                std::string const& caption, ILayout* layout) const
{
    if (!painter)
        return;
    painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
    rectangle<double> place = rect;
    MoveAcrossStart(place, OrDefault(layout), ToDevicePixels(g_TextGap));
    int const flags = OrDefault(layout).ConvTextAlign(g_TextFlags) | IPainter::AlignFitText;
    painter->DrawStringEx(place, caption.c_str(), flags, -1, " \n", nullptr);
}

size<int> CDefSliderDrawingModel::GetPointerSize(ILayout* layout) const
{
    double const width = ToDevicePixels(g_PointerSize.width);
    double const height = ToDevicePixels(g_PointerSize.height);
    ILayout const& used = OrDefault(layout);
    return {ToInt(used.GetAlong(width, height)), ToInt(used.GetAcross(width, height))};
}

void CDefSliderDrawingModel::OnDrawPointer(IPainter* painter, rectangle<double> const& rect, int, ILayout*) const
{
    if (painter)
        DrawBorder(painter, rect, bsThinBox, bsRaised, true);
}

rectangle<int> CDefSliderDrawingModel::GetSlotRect(rectangle<double> const& bounds, ILayout* layout) const
{
    ILayout const& used = OrDefault(layout);
    size<int> const pointer = GetPointerSize(&OrDefault(layout));
    int const along = ToInt(used.GetAlong(pointer.width, pointer.height));
    int const across = ToInt(used.GetAcross(pointer.width, pointer.height));
    int const thickness = ToDevicePixels(g_SlotThickness);
    double const end = static_cast<double>(ToDevicePixels(g_SlotMargin)) + along;

    rectangle<double> slot = bounds;
    used.GetAlongRef(slot.left, slot.top) += end;
    used.GetAlongRef(slot.right, slot.bottom) -= end;
    double& start = used.GetAcrossRef(slot.left, slot.top);
    int const above = SubtractSaturated(across, thickness) / 2;
    start += above;
    used.GetAcrossRef(slot.right, slot.bottom) = start + thickness;
    return {ToInt(slot.left), ToInt(slot.top), ToInt(slot.right), ToInt(slot.bottom)};
}

void CDefSliderDrawingModel::OnDrawSlot(IPainter* painter, rectangle<double> const& rect, int state, ILayout*) const
{
    if (!painter)
        return;
    DrawBorder(painter, rect, bsBox, bsSunken, true);
    if (!(state & IPainter::esFocused))
        return;
    rectangle<double> ring = rect;
    ring.Normalize();
    double const distance = g_FocusDistance * GetSystemScale();
    painter->FocusRect(ring.left - distance, ring.top - distance, ring.right + distance, ring.bottom + distance);
}

}  // namespace vexel
