// Painting: the strip, its sections, what is dragged.

#include "vexel/charts/bar.h"
#include "vexel/core/clip_holder.h"
#include "vexel/platform/border.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

#include <algorithm>
#include <array>

namespace vexel
{

namespace
{

constexpr int s_TextAlign = IPainter::AlignHCenter | IPainter::AlignVCenter;
constexpr int s_TextFlags = IPainter::AlignSingleLine | IPainter::AlignFitText;  // of any edge
constexpr int s_PointerLength = 15;                                              // pixels at any scale, as the next two
constexpr int s_PointerHead = 8;
constexpr int s_PointerHalf = 4;
_color const g_PointerColor{0xFF0000FF};
_color const g_DragTextColor{0xFFFF0000};

// A palette that shows the selection.
vexel_ptr<ICustomPaletteEx> MakeSelectionPalette()
{
    vexel_ptr<ICustomPaletteEx> palette = CreateCustomPalette();
    palette->SetColor(ISysPalette::scHighlight, GetDefaultPalette()->GetColor(ISysPalette::scHighlight));
    return palette;
}

// Moves a span into the limits; one that is longer is cut.
void KeepWithin(int& low, int& high, int limitLow, int limitHigh)
{
    if (high > limitHigh)
    {
        low = SubtractSaturated(low, SubtractSaturated(high, limitHigh));
        high = limitHigh;
    }
    if (low < limitLow)
    {
        high = std::min(AddSaturated(high, SubtractSaturated(limitLow, low)), limitHigh);
        low = limitLow;
    }
}

}  // namespace

// The mapping: pixels, with the strip's beginning as their origin ---------------------------------------------------------------

namespace
{

// Along, from `low` to `high`; a reversed model runs backwards.
void MapAlong(IScrollModel const& model, int low, int high, double& logicalExtent, int& deviceOrigin, int& deviceExtent)
{
    int const extent = SubtractSaturated(high, low);
    bool const reversed = model.GetFrom() > model.GetTo();
    logicalExtent = extent;
    deviceExtent = reversed ? SubtractSaturated(0, extent) : extent;
    deviceOrigin = reversed ? AddSaturated(low, extent) : low;
}

// Across; turned round where the bar lies before the view.
void MapAcross(bool turned, int low, int high, double& logicalExtent, int& deviceOrigin, int& deviceExtent)
{
    int const extent = SubtractSaturated(high, low);
    logicalExtent = extent;
    deviceExtent = turned ? SubtractSaturated(0, extent) : extent;
    deviceOrigin = turned ? high : low;
}

rectangle<int> Truncate(rectangle<double> const& rect)
{
    return {ToInt(rect.left), ToInt(rect.top), ToInt(rect.right), ToInt(rect.bottom)};
}

}  // namespace

void CBar::FillHorizontal(IPainter::CoordInfo* info, IScrollModel* model)
{
    if (!model)
        return;
    rectangle<int> const axis = Truncate(GetAxisRect(nullptr));
    info->m_LogicalOrigin = {0.0, 0.0};
    MapAlong(*model, axis.left, axis.right, info->m_LogicalExtent.width, info->m_DeviceOrigin.x,
             info->m_DeviceExtent.width);
    MapAcross(GetAlignment() == alTop, axis.top, axis.bottom, info->m_LogicalExtent.height, info->m_DeviceOrigin.y,
              info->m_DeviceExtent.height);
}

void CBar::FillVertical(IPainter::CoordInfo* info, IScrollModel* model)
{
    if (!model)
        return;
    rectangle<int> const axis = Truncate(GetAxisRect(nullptr));
    info->m_LogicalOrigin = {0.0, 0.0};
    MapAlong(*model, axis.top, axis.bottom, info->m_LogicalExtent.height, info->m_DeviceOrigin.y,
             info->m_DeviceExtent.height);
    MapAcross(GetAlignment() == alLeft, axis.left, axis.right, info->m_LogicalExtent.width, info->m_DeviceOrigin.x,
              info->m_DeviceExtent.width);
}

// The strip -----------------------------------------------------------------------------------------------------------------

void CBar::DrawContent(IPainter* painter)
{
    m_TargetChanged = false;
    IScrollModel* const model = GetScrollModel();
    if (!model || !GetCategoryModel())
        return;
    CAliveGuard const alive(this);
    DrawBackground(painter);
    if (!alive)
        return;
    SetCoordSystem(painter);
    CClipHolder const clip(painter, GetDrawRect(painter));
    font const before = painter->GetFont();
    painter->SetFont(TurnFont(before));

    bool const equal = model->IsFixedStepSize() || model->IsInseparableStep();
    int const count = GetSectionCount();
    int i = std::max(ToInt(model->GetStart()), 0);
    rectangle<double> rect = GetSectionRect(i);
    double start = std::max<double>(GetAlong(rect.left, rect.top), m_ViewStart);
    while (start < m_ViewEnd && i < count)
    {
        double const end = GetAlong(rect.right, rect.bottom);
        if (equal && !(end > GetAlong(rect.left, rect.top)))
            break;  // they would all stand here
        double& cut = GetAlongRef(rect.right, rect.bottom);
        cut = std::min<double>(end, m_ViewEnd);
        start = cut;
        if (i != m_DragSection)
            DrawSection(painter, ToPixels(rect), i, IsSelected(i));
        if (!alive)
            return;
        rect = GetSectionRect(++i);
    }
    painter->SetFont(before);
}

void CBar::DrawSection(IPainter* painter, rectangle<int> const& whole, int section, bool selected)
{
    rectangle<double> rect{static_cast<double>(whole.left), static_cast<double>(whole.top),
                           static_cast<double>(whole.right), static_cast<double>(whole.bottom)};
    GetAcrossRef(rect.right, rect.bottom) -= 1;
    _color const textColor = painter->GetTextColor();
    std::string const text = GetCategoryModel() ? getCaption(section) : std::to_string(section);
    vexel_ptr<ICustomPaletteEx> const paletteBefore = painter->m_Palette;
    if (selected)
    {
        if (!painter->m_Palette)
            painter->m_Palette = MakeSelectionPalette();
        brush const before = painter->GetBrush();
        painter->SetBrush({painter->m_Palette->GetColor(ISysPalette::scHighlight), brush::bsSolid});
        painter->FillRect(rect.left, rect.top, rect.right, rect.bottom);
        painter->SetBrush(before);
        painter->SetTextColor(painter->m_Palette->GetColor(ISysPalette::scHighlightText));
    }
    DrawBorder(painter, rect, bsFrame, bsRaised, true);
    painter->DrawString(rect, text.c_str(), ConvTextAlign(s_TextAlign) | s_TextFlags, -1);
    painter->SetTextColor(textColor);
    painter->m_Palette = paletteBefore;
}

void CBar::DrawSpace(IPainter* painter, rectangle<int> const& rect)
{
    DrawBorder(painter,
               {static_cast<double>(rect.left), static_cast<double>(rect.top), static_cast<double>(rect.right),
                static_cast<double>(rect.bottom)},
               bsTopLine, bsRaised, true);
}

// What is dragged -----------------------------------------------------------------------------------------------------------

// In own pixels, inside the view.
rectangle<int> CBar::GetShownDragRect(DragInfo const& info) const
{
    rectangle<int> rect = info.m_Rect;
    ControlToElement(&rect);
    KeepWithin(GetAlongRef(rect.left, rect.top), GetAlongRef(rect.right, rect.bottom), m_ViewStart, m_ViewEnd);
    KeepWithin(GetAcrossRef(rect.left, rect.top), GetAcrossRef(rect.right, rect.bottom), m_ViewTop, m_ViewBottom);
    return rect;
}

void CBar::DrawDragItem(IPainter* painter, DragInfo& info, bool, CVisualElement*)
{
    CAliveGuard const alive(this);
    rectangle<int> const rect = GetShownDragRect(info);
    if (IsSection(m_DragSection) && !rect.IsEmpty())
        DrawDraggedSection(painter, rect);
    if (alive && m_DropTarget >= 0)
        DrawDropPointer(painter);
}

void CBar::DrawDraggedSection(IPainter* painter, rectangle<int> const& rect)
{
    ISystem* const system = GetCurrentSystem();
    if (!system)
        return;
    int const width = rect.Width();
    int const height = rect.Height();
    vexel_ptr<IRasterPicture> const picture = system->CreateRasterPicture({width, height});
    IPainter* const canvas = picture->GetPainter();
    canvas->BeginPaint(IPainter::ssPaint);
    canvas->SetBrush({GetBkColor(), brush::bsSolid});
    canvas->FillRect(0, 0, width, height);
    canvas->SetFont(TurnFont(GetFont()));
    canvas->SetTextColor(g_DragTextColor);
    CAliveGuard const alive(this);
    DrawSection(canvas, {0, 0, width, height}, m_DragSection, false);
    canvas->EndPaint();
    if (alive)
        painter->AlphaBlend(rect.left, rect.top, rect.right, rect.bottom, picture.get(), 255 - m_DragTransparency);
}

// Beyond the bar, with its tip where the section would go.
void CBar::DrawDropPointer(IPainter* painter) const
{
    rectangle<double> const section = GetSectionRect(m_DropTarget);
    rectangle<int> const bounds = GetBounds();
    int const along = AddSaturated(FloorToInt(GetAlong(section.left, section.top) + 1e-08), GetStripOrigin());
    int const across = AcrossOf(bounds.right, bounds.bottom);
    pen const penBefore = painter->GetPen();
    brush const brushBefore = painter->GetBrush();
    painter->SetPen({g_PointerColor, pen::psSolid, 1});
    painter->SetBrush({g_PointerColor, brush::bsSolid});
    point<double> const tip = MakePoint(along, across);
    point<double> const end = MakePoint(along, across + s_PointerLength);
    painter->MoveTo(tip.x, tip.y);
    painter->LineTo(end.x, end.y);
    std::array<point<double>, 3> const head{tip, MakePoint(along - s_PointerHalf, across + s_PointerHead),
                                            MakePoint(along + s_PointerHalf, across + s_PointerHead)};
    painter->Polygon(head.data(), static_cast<int>(head.size()));
    painter->SetPen(penBefore);
    painter->SetBrush(brushBefore);
}

}  // namespace vexel
