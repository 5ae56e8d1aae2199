// Painting: the strip, its sections, what is dragged.

#include "vexel/controls/label.h"
#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/headers/detail/header_drawing.h"
#include "vexel/headers/simple_header.h"
#include "vexel/platform/border.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/system.h"

#include <algorithm>
#include <cmath>

namespace vexel
{

namespace
{

constexpr double s_MarkRoom = 15.0;  // of a sort mark; times the display scale, as the next one
constexpr double s_LabelSpace = 3.0;
constexpr int s_TextInset = 4;  // pixels at any scale, as all below
constexpr int s_DragAlpha = 70;
constexpr int s_NativeOverhang = 10;
constexpr int s_PointerHalf = 6;
constexpr int s_PointerHeight = 6;
_color const g_PointerColor{0xFF0000FF};

}  // namespace

using detail::FillTriangle;
using detail::GetSystemColor;
using detail::Truncate;

bool CSimpleHeader::IsNativeLook() const
{
    return GetAlignment() == alTop && IsNativeDrawing();
}

void CSimpleHeader::DrawContent(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
    if (!GetScrollModel() || !IsModelAvailable())
        return;
    rectangle<double> const strip = GetHeaderRect(painter);
    CClipHolder const clip(painter, strip);
    double const end = GetAlong(strip.right, strip.bottom);
    point<double> position = MakePoint(GetAlong(strip.left, strip.top), 0);

    int first = -1;
    int offset = 0;
    CalcFirstSection(&first, &offset);
    int const count = GetSectionCount();
    if (first >= 0)
    {
        IncAlong(&position, -offset);
        font const before = painter->GetFont();
        font turned = before;
        ConvFont(&turned);
        painter->SetFont(turned);
        for (int i = first; i < count && GetAlong(position.x, position.y) <= end; ++i)
        {
            DrawSection(painter, position, i);
            IncAlong(&position, GetItemWidth(i));
        }
        painter->SetFont(before);
    }
    double const along = GetAlong(position.x, position.y);
    if (IsLastSectionExpanded() && count > 0)
        return;
    if (along <= end)
    {
        rectangle<double> const rect = MakeRect(along, 0, end, GetAcrossExtent());
        DrawEmptyArea(painter, rect.left, rect.top, rect.right, rect.bottom);
    }
}

void CSimpleHeader::DrawSection(IPainter* painter, point<double> const& position, int section)
{
    double const along = GetAlong(position.x, position.y);
    rectangle<double> const strip = GetHeaderRect(painter);
    int const width = CalcItemWidth(section, along, GetAlong(strip.right, strip.bottom));
    DrawSectionRect(painter, MakeRect(along, 0, along + width, GetAcrossExtent()), section);
}

void CSimpleHeader::DrawSectionRect(IPainter* painter, rectangle<double> const& section, int index)
{
    rectangle<double> rect = section;
    if (GetSectionCount() == 1)
    {
        rectangle<int> cut = Truncate(rect);
        CutRect(&cut, GetBounds());
        rect = {static_cast<double>(cut.left), static_cast<double>(cut.top), static_cast<double>(cut.right),
                static_cast<double>(cut.bottom)};
    }
    bool const native = IsNativeLook();
    bool const pressed = m_State == stPressed && index == m_ActiveSection;
    if (native)
    {
        int const hot = index == m_HotSection ? int{IPainter::esHot} : 0;
        int const state = (IsEnabled() ? hot : int{IPainter::esDisabled}) | (pressed ? int{IPainter::esPressed} : 0);
        painter->DrawControlElement(IPainter::ceHeaderSection, rect.left, rect.top, rect.right, rect.bottom, state);
    }
    else if (pressed)
    {
        DrawBorder(painter, rect, bsBox, bsSunken, false);
    }
    else
    {
        DrawEdge(painter, rect);
    }

    double const scale = GetSystemScale();
    int const direction = GetSortingDirection(index);
    point<double> from{rect.left, rect.top};
    point<double> to{rect.right, rect.bottom};
    IncAlong(&from, s_TextInset + (pressed ? 1 : 0));
    IncAlong(&to, -s_TextInset + (pressed ? 1 : 0));
    if (pressed)
    {
        IncAcross(&from, 1);
        IncAcross(&to, 1);
    }
    if (direction != 0)
        IncAlong(&to, -scale * s_MarkRoom);
    rectangle<int> const label =
        DrawLabel(painter, Truncate({from.x, from.y, to.x, to.y}), GetItemCaption(index), GetItemTextAlign(index),
                  ToInt(scale * s_LabelSpace), GetControl() ? GetControl()->GetImageList() : nullptr,
                  GetItemImageIndex(index), this, DefaultDelimiters, nullptr);
    if (direction != 0)
        DrawSortMark(painter, rect, label, direction);
}

// Flat ones share a line with what stands before them.
void CSimpleHeader::DrawEdge(IPainter* painter, rectangle<double> rect)
{
    bool const flat = (m_Style & hsFlat) != 0;
    if (flat)
        GetAlongRef(rect.left, rect.top) -= 1;
    DrawBorder(painter, rect, bsBox, flat ? bsFlat : bsRaised, false);
}

// Behind the label, or at the section's end.
void CSimpleHeader::DrawSortMark(IPainter* painter, rectangle<double> const& section, rectangle<int> const& label,
                                 int direction)
{
    double const scale = GetSystemScale();
    double const room = scale * s_MarkRoom;
    double const gap = scale * s_LabelSpace;
    double const begin = GetAlong(section.left, section.top);
    double const end = GetAlong(section.right, section.bottom);
    double const along = std::max(begin, std::min(GetAlong(label.right, label.bottom), end - room)) + gap;
    point<double> const place = MakePoint(along, GetAcross(label.left, label.top));
    detail::DrawSortTriangle(painter, direction == 1, ToInt(place.x), ToInt(place.y), ToInt(room - 2 * gap),
                             GetSystemColor(ISysPalette::scDarkShadow));
}

void CSimpleHeader::DrawEmptyArea(IPainter* painter, double left, double top, double right, double bottom)
{
    if (IsNativeLook())
    {
        painter->DrawControlElement(IPainter::ceHeaderSection, left, top, right + s_NativeOverhang, bottom,
                                    IPainter::esDisabled);
        return;
    }
    DrawEdge(painter, {left, top, right, bottom});
}

// What is dragged -----------------------------------------------------------------------------------------------------------

void CSimpleHeader::HandleDrawDragItem(IPainter* painter, DragInfo& info, bool, CVisualElement*)
{
    rectangle<int> rect = info.m_Rect;
    ControlToElement(&rect);
    ISystem* const system = GetCurrentSystem();
    bool const isGone = m_State == stDragging && m_ActiveSection < 0;
    if (!rect.IsEmpty() && system && !isGone)
    {
        int const width = rect.Width();
        int const height = rect.Height();
        vexel_ptr<IRasterPicture> const picture = system->CreateRasterPicture({width + 1, height + 1});
        IPainter* const canvas = picture->GetPainter();
        canvas->BeginPaint(IPainter::ssPaint);
        canvas->SetBrush({GetSystemColor(ISysPalette::scFace), brush::bsSolid});
        canvas->FillRect(0, 0, width, height);
        canvas->SetFont(GetFont());
        canvas->SetTextColor(GetFgColor());
        DrawSectionRect(
            canvas,
            {1.0, 1.0, static_cast<double>(std::max(width - 1, 0)), static_cast<double>(std::max(height - 1, 0))},
            m_ActiveSection);
        canvas->EndPaint();
        painter->AlphaBlend(rect.left, rect.top, rect.right, rect.bottom, picture.get(), s_DragAlpha);
    }
    if (!m_ShowDragPointer)
        return;
    point<int> const mouse = GetMousePos();
    point<double> const where = MakePoint(AlongOf(mouse), 2);
    HitTestResult const result = HitTest({ToInt(where.x), ToInt(where.y)});
    if (result.m_Area != htNothing)
        DrawDraggingPointer(painter, result.m_Section);
}

void CSimpleHeader::DrawDraggingPointer(IPainter* painter, int section)
{
    rectangle<int> const rect = GetSectionRect(section);
    int const begin = AlongOf(rect.left, rect.top);
    int const a = begin < 0 ? -s_PointerHeight : begin - s_PointerHeight;
    double const h = GetAcrossExtent() - 8;
    FillTriangle(
        painter,
        {MakePoint(a, h), MakePoint(a + 2 * s_PointerHalf, h), MakePoint(a + s_PointerHalf, h + s_PointerHeight)},
        g_PointerColor);
}

}  // namespace vexel
