// Painting: the strip, its sections and their parts.

#include "vexel/controls/label.h"
#include "vexel/core/clip_holder.h"
#include "vexel/core/control.h"
#include "vexel/core/measure_bracket.h"
#include "vexel/headers/detail/header_drawing.h"
#include "vexel/headers/detail/header_index.h"
#include "vexel/headers/header.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/native_controls.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"

#include <algorithm>

namespace vexel
{

namespace
{

using detail::GetSystemColor;

constexpr double s_MarkRoom = 15.0;  // of a sort mark; times the display scale, as the next ones
constexpr double s_LabelSpace = 3.0;
constexpr double s_ButtonMargin = 4.0;  // of an expand button, from the section's right top
constexpr double s_ButtonSide = 10.0;
constexpr int s_TextInset = 4;  // pixels at any scale, as all below
constexpr int s_NativeOverhang = 4;
constexpr int s_RestOverhang = 20;
constexpr int s_OptimalSpace = 2;
constexpr int s_TextRoom = 6;  // beside an element in the middle; what there must be at least
constexpr int s_ImageRoom = 2;
rectangle<double> const g_Probe{0.0, 0.0, 200.0, 20.0};

int MixChannel(int a, int b, float fraction)
{
    return static_cast<int>(static_cast<float>(a) + static_cast<float>(b - a) * fraction);
}

// From `a` to `b`; opaque.
_color Mix(_color const& a, _color const& b, float fraction)
{
    return _color::FromRgb(MixChannel(a.Red(), b.Red(), fraction), MixChannel(a.Green(), b.Green(), fraction),
                           MixChannel(a.Blue(), b.Blue(), fraction));
}

int GetMarkSide()
{
    double const scale = GetSystemScale();
    return ToInt(scale * s_MarkRoom - 2 * (scale * s_LabelSpace));
}

void DrawChevron(IPainter* painter, double x, double y, double half, bool left)
{
    double const tip = left ? x - half : x + half;
    painter->MoveTo(x, y);
    painter->LineTo(tip, y + half);
    painter->LineTo(x, y + 2 * half);
}

}  // namespace

// The strip -----------------------------------------------------------------------------------------------------------------

// As what is disabled, or stands in a window without the focus.
bool CHeader::IsDimmed() const
{
    ISysWindow const* const window = GetControl() ? GetControl()->GetWindow() : nullptr;
    return !IsEnabled() || !window || !window->HasFocus();
}

_color CHeader::GetSectionTextColor() const
{
    return IsDimmed() ? GetSystemColor(ISysPalette::scShadow) : GetFgColor();
}

void CHeader::DrawContent(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
    if (!GetScrollModel())
        return;
    painter->SetTextColor(GetSectionTextColor());
    CClipHolder const clip(painter, ToDouble(bounds));
    detail::CHeaderGeometry const geometry = GetGeometry();
    unsigned long const version = m_Index->GetVersion();
    geometry.ForEachBetween(bounds.left, bounds.right, [&](int node, rectangle<double> const& rect) {
        if (m_Index->GetVersion() == version)
            static_cast<IHeaderItemDrawing*>(this)->DrawSection(painter, m_Index->GetItem(node), rect);
    });
    if (m_StretchLastItem)
        return;
    rectangle<double> rest = geometry.GetRest();
    rest.right += s_RestOverhang;
    if (!rest.IsEmpty())
        m_Visualisation->DrawSectionBackground(painter, rest, nullptr);
}

void CHeader::DrawSection(IPainter* painter, IHeaderItem* item, rectangle<double> const& rect)
{
    rectangle<double> cut = rect;
    CutRectByBounds(cut);
    DrawSection(painter, item, cut, m_Visualisation);
}

void CHeader::DrawSection(IPainter* painter, IHeaderItem* item, rectangle<double> const& rect,
                          IHeaderItemVisualisation* visualisation)
{
    visualisation->DrawSectionBackground(painter, rect, item);
    rectangle<double> const button = visualisation->GetExpandBtnRect(rect, item);
    visualisation->DrawExpandButton(painter, button, item);
    rectangle<double> const content = visualisation->GetSectionContentRect(rect, item);
    visualisation->DrawSectionContent(painter, content, item);
}

// Parts of a section --------------------------------------------------------------------------------------------------------

int CHeader::GetVisualisationState(IHeaderItem const* item) const
{
    if (!item || item != m_Processing.m_Item)
        return vsNormal;
    if (m_Processing.m_HotState != vsNormal)
        return m_Processing.m_HotState;
    if (m_Processing.m_State == Processing::stResizing)
        return vsHot;
    return m_Processing.m_State == Processing::stPressed ? vsPressed : vsNormal;
}

rectangle<double> CHeader::GetExpandBtnRect(rectangle<double> const& section, IHeaderItem const* item) const
{
    if (m_Visualisation->GetItemState(item) == 0)
        return {};
    rectangle<double> rect = section;
    CutRectByBounds(rect);
    int const margin = ToDevicePixels(s_ButtonMargin);
    int const side = ToDevicePixels(s_ButtonSide);
    rectangle<double> button;
    button.right = rect.right - margin;
    button.left = button.right - side;
    button.top = rect.top + margin;
    button.bottom = button.top + side;
    if (m_Visualisation->GetVisualisationState(item) == vsPressed)
        button.Offset(1, 1);
    if (!(button.left > rect.left) || !(button.bottom < rect.bottom))
        return {};
    return button;
}

rectangle<double> CHeader::GetSectionContentRect(rectangle<double> const& section, IHeaderItem const* item) const
{
    rectangle<double> rect = section;
    if (m_Visualisation->GetVisualisationState(item) == vsPressed)
        rect.Offset(1, 1);
    if (m_Visualisation->GetItemState(item) != 0)
        if (rectangle<double> const button = m_Visualisation->GetExpandBtnRect(section, item); !button.IsEmpty())
            rect.right = button.left - 1;
    rect.left += s_TextInset;
    rect.right -= s_TextInset;
    return rect;
}

void CHeader::DrawSectionBackground(IPainter* painter, rectangle<double> const& section, IHeaderItem const* item)
{
    int const state = m_Visualisation->GetVisualisationState(item);
    if (IsNativeDrawing())
    {
        int const look = (IsEnabled() ? 0 : int{IPainter::esDisabled}) |
                         (state == vsPressed ? int{IPainter::esPressed} : 0) |
                         (state == vsHot ? int{IPainter::esHot} : 0);
        double const left = std::max(section.left, -static_cast<double>(s_NativeOverhang));
        double const right = std::min(section.right, static_cast<double>(GetBounds().right) + s_NativeOverhang);
        painter->DrawControlElement(IPainter::ceHeaderSection, left, section.top, right, section.bottom, look);
        return;
    }
    bool const marked = state == vsPressed || state == vsHot;
    _color const from = GetSystemColor(ISysPalette::scWindow);
    _color const to = GetSystemColor(marked ? ISysPalette::scHighlight : ISysPalette::scWindowText);
    float const fill = state == vsPressed ? 0.3F : state == vsHot ? 0.2F : 0.02F;
    float const line = state == vsPressed ? 0.9F : state == vsHot ? 0.7F : 0.4F;
    detail::CToolsHolder const holder(painter);
    painter->SetBrush({Mix(from, to, fill), brush::bsSolid});
    painter->FillRect(section.left, section.top, section.right, section.bottom);
    painter->SetPen({Mix(from, to, line), pen::psSolid, 1});
    painter->MoveTo(section.left, section.bottom);
    painter->LineTo(section.right, section.bottom);
    painter->LineTo(section.right, section.top);
    if (section.top == 0)
        painter->LineTo(section.left, section.top);
}

void CHeader::DrawSectionContent(IPainter* painter, rectangle<double> const& content, IHeaderItem const* item)
{
    if (!item)
        return;
    int const direction = item->GetSortingDirection();
    ContentParts parts{content, true, true, direction != 0 ? ToDevicePixels(s_MarkRoom) : 0};
    double const end = parts.rect.right;
    parts.rect.right -= parts.markWidth;
    Prepare2DrawSectionContent(item, &parts);

    IImageList* const images = GetControl() ? GetControl()->GetImageList() : nullptr;
    rectangle<int> label;
    if (parts.text || parts.image)
        label = DrawLabel(painter, detail::Truncate(parts.rect), parts.text ? item->GetText() : std::string(),
                          item->GetTextAlign(), ToDevicePixels(s_LabelSpace), images,
                          parts.image ? item->GetImageIndex() : -1, CLayoutManager::GetLayout(alTop), DefaultDelimiters,
                          nullptr);
    if (parts.markWidth <= 0 || direction == 0)
        return;
    double const gap = GetSystemScale() * s_LabelSpace;
    double x = parts.rect.left + 1;
    double middle = (parts.rect.top + parts.rect.bottom) / 2;
    if (!label.IsZero())
    {
        double const room = std::min(parts.rect.right, end - parts.markWidth);
        x = std::max(std::min(static_cast<double>(label.right), room), parts.rect.left) + gap;
        middle = (static_cast<double>(label.top) + label.bottom) / 2;
    }
    m_Visualisation->DrawSortingMarker(painter, direction == 1, {x, middle - GetMarkSide() / 2.0});
}

// Makes room for the element that the section carries. False: it carries none.
bool CHeader::Prepare2DrawSectionContent(IHeaderItem const* item, ContentParts* parts) const
{
    ElementAnchor const* const anchor = FindAnchor(item);
    if (!anchor || !anchor->m_Element || !anchor->m_Element->IsVisible())
        return false;
    int const width = anchor->m_Element->GetPos().Width();
    rectangle<double>& rect = parts->rect;
    if (anchor->m_Alignment == alLeft)
    {
        rect.left += width;
        return true;
    }
    if (anchor->m_Alignment == alRight)
    {
        rect.right -= width;
        return true;
    }
    if (anchor->m_Alignment != alClient)
        return false;
    // Text goes to the side that its style names, by default the left.
    rectangle<int> const pos = anchor->m_Element->GetPos();
    if (item->GetTextAlign() & IPainter::AlignRight)
        rect.left = std::max(rect.left, static_cast<double>(pos.right));
    else
        rect.right = std::min(rect.right, static_cast<double>(pos.left));
    double const room = rect.Width();
    int const image = GetImageSize(item).width;
    if (room - s_TextRoom < image)
        parts->text = false;
    if (room - s_ImageRoom < image)
        parts->image = false;
    if (room + parts->markWidth < parts->markWidth)
        parts->markWidth = 0;
    return true;
}

void CHeader::DrawExpandButton(IPainter* painter, rectangle<double> const& button, IHeaderItem const* item)
{
    if (button.IsEmpty())
        return;
    double const scale = painter->GetDPIScale();
    int const margin = ToInt(2 * scale);
    double const gap = 3 * scale;
    double const half = (button.Height() - 2 * margin) * 0.5;
    bool const hot = m_Visualisation->GetVisualisationState(item) == vsButtonHot;
    _color const face = GetSystemColor(ISysPalette::scFace);
    _color const shadow = GetSystemColor(ISysPalette::scShadow);
    _color line = IsDimmed() ? shadow : GetSystemColor(ISysPalette::scDarkShadow);
    if (hot)
        line = GetSystemColor(ISysPalette::scControlText);
    detail::CToolsHolder const holder(painter);
    painter->SetPen({line, pen::psSolid, 1});
    painter->SetBrush({hot ? Mix(face, GetSystemColor(ISysPalette::scHighlight), 0.25F) : face, brush::bsSolid});
    painter->Rectangle(button.left, button.top, button.right, button.bottom);

    bool const left = m_Visualisation->GetItemState(item) == IHeaderItem::esExpanded;
    double const x = left ? button.right - margin : button.left + margin;
    double const onward = left ? -1 : 1;
    double const y = button.top + margin;
    DrawChevron(painter, x, y, half, left);
    DrawChevron(painter, x + onward * gap, y, half, left);
    // Once more beside it, so that it looks twice as thick.
    painter->SetPen({shadow, pen::psSolid, 1});
    DrawChevron(painter, x + onward, y, half, left);
    DrawChevron(painter, x + onward * (gap + 1), y, half, left);
}

void CHeader::DrawSortingMarker(IPainter* painter, bool up, point<double> const& position)
{
    detail::DrawSortTriangle(painter, up, ToInt(position.x), ToInt(position.y), GetMarkSide(),
                             GetSystemColor(ISysPalette::scDarkShadow));
}

// Widths --------------------------------------------------------------------------------------------------------------------

int CHeader::ContentWidth2SectionWidth(IHeaderItem const* item, int width,
                                       IHeaderItemVisualisation const* visualisation) const
{
    rectangle<double> const content = visualisation->GetSectionContentRect(g_Probe, item);
    return ToInt(width + content.left + g_Probe.right - content.right);
}

size<int> CHeader::GetImageSize(IHeaderItem const* item) const
{
    IImageList* const images = GetControl() ? GetControl()->GetImageList() : nullptr;
    int const index = item->GetImageIndex();
    return images && index >= 0 ? images->GetSize(index) : size<int>();
}

int CHeader::GetItemOptimalWidth(IHeaderItem const* item) const
{
    return AddSaturated(GetItemOptimalWidthInt(item), ToDevicePixels(s_MarkRoom) + s_OptimalSpace);
}

int CHeader::GetItemOptimalWidthInt(IHeaderItem const* item) const
{
    ISysWindow* const window = GetControl() ? GetControl()->GetWindow() : nullptr;
    IPainter* const painter = window ? window->GetPainter() : nullptr;
    if (!painter || !item)
        return 0;
    constexpr int flags = IPainter::AlignMeasureOnly | IPainter::AlignTop | IPainter::AlignLeft;
    CMeasureBracket const measuring(painter, GetFont());
    int width = ToInt(painter->DrawString({0, 0, 10000, 0}, item->GetText(), flags, -1).width);
    if (int const image = GetImageSize(item).width; image > 0)
        width = AddSaturated(width, image + ToDevicePixels(s_LabelSpace));
    if (item->GetSortingDirection() != 0)
        width = AddSaturated(width, ToDevicePixels(s_MarkRoom));
    return ContentWidth2SectionWidth(item, width, m_Visualisation);
}

}  // namespace vexel
