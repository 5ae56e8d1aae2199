#include "vexel/controls/list.h"

#include "vexel/controls/detail/painter_colors.h"
#include "vexel/controls/label.h"
#include "vexel/core/control.h"
#include "vexel/core/measure_bracket.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/sys_window.h"

#include <algorithm>

namespace vexel
{

namespace
{

}  // namespace

IItemDrawing::~IItemDrawing() = default;

CList::CList(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment), m_LineSpacing(ToDevicePixels(5.0)), m_LineHeight(ToDevicePixels(14.0))
{}

// Model -------------------------------------------------------------------------------------------------------------------

void CList::SetModel(IItemsModel* model)
{
    IItemsModel* const old = m_Model;
    if (old != model)
    {
        if (old)
            old->m_SigDestroy.disconnect(this, &CList::ModelDies);
        m_Model = model;
        if (model)
            model->m_SigDestroy.connect(this, &CList::ModelDies);
    }
    CAliveGuard const alive(this);
    AfterSetModel(old);
    if (alive)
        Update(utElement);
}

void CList::ModelDies(IItemsModel*)
{
    m_Model = nullptr;
    Update(utElement);
}

void CList::AfterSetModel(IItemsModel*)
{
    SizeUpdated();
}

int CList::GetEndDrawingLine() const
{
    return m_Model ? m_Model->GetItemCount() : 0;
}

// Metrics -----------------------------------------------------------------------------------------------------------------

void CList::SetMetric(int& metric, int value)
{
    if (value == metric)
        return;
    metric = value;
    CAliveGuard const alive(this);
    RecalcSize();
    if (alive)
        Update(utElement);  // the lines have moved, whether the height is another or not
}

void CList::SetLineSpacing(int spacing)
{
    SetMetric(m_LineSpacing, spacing);
}

void CList::SetLineHeight(int height)
{
    SetMetric(m_LineHeight, height);
}

void CList::SetMinLineHeight(int height)
{
    SetMetric(m_MinLineHeight, height);
}

void CList::SetOffset(rectangle<int> const& offset)
{
    if (offset == m_Offset)
        return;
    m_Offset = offset;
    CAliveGuard const alive(this);
    RecalcSize();
    if (alive)
        OnChange(this, utElement);
}

ISysWindow* CList::GetWindow() const
{
    return GetControl() ? GetControl()->GetWindow() : nullptr;
}

size<int> CList::GetItemSize(int item) const
{
    ISysWindow* const window = GetWindow();
    IPainter* const painter = window ? window->GetPainter() : nullptr;
    if (!painter || !m_Model)
        return {};
    CMeasureBracket const bracket(painter, GetFont());
    size<double> const text =
        painter->DrawString({0.0, 0.0, CMeasureBracket::s_Unlimited, CMeasureBracket::s_Unlimited},
                            m_Model->GetItemCaption(item), IPainter::AlignLeft | IPainter::AlignMeasureOnly, -1);
    return {AddSaturated(ToInt(text.width), AddSaturated(m_Offset.left, m_Offset.right)), ToInt(text.height)};
}

void CList::RecalcSize()
{
    int const count = m_Model ? m_Model->GetItemCount() : 0;
    if (count <= 0)
        return;
    m_RecalcPending = !GetWindow();
    if (m_RecalcPending)
        return;
    int const lineHeight = std::max(GetItemSize(0).height, m_MinLineHeight);
    if (lineHeight != m_LineHeight)
    {
        m_LineHeight = lineHeight;
        Update(utElement);
    }
    double const lines = static_cast<double>(GetLinePitch()) * count;
    SetHeight(ToInt(lines + m_Offset.top + m_Offset.bottom), false);
}

void CList::AfterSetControl()
{
    CAliveGuard const alive(this);
    CVisualElement::AfterSetControl();
    if (alive && m_RecalcPending)
        RecalcSize();
}

// Lines -------------------------------------------------------------------------------------------------------------------

int CList::HitTest(point<int> const& position) const
{
    int const pitch = GetLinePitch();
    return pitch == 0 ? 0 : std::max(SubtractSaturated(position.y, m_Offset.top) / pitch, 0);
}

rectangle<int> CList::GetTextArea() const
{
    rectangle<int> const bounds = GetBounds();
    return {AddSaturated(bounds.left, m_Offset.left), AddSaturated(bounds.top, m_Offset.top),
            SubtractSaturated(bounds.right, m_Offset.right), SubtractSaturated(bounds.bottom, m_Offset.bottom)};
}

rectangle<int> CList::GetItemRect(int item) const
{
    rectangle<int> rect = GetTextArea();
    rect.top = AddSaturated(rect.top, ToInt(static_cast<double>(item) * GetLinePitch()));
    rect.bottom = AddSaturated(rect.top, GetLinePitch());
    return rect;
}

std::string CList::HandleAsString() const
{
    std::string text;
    int const count = m_Model ? m_Model->GetItemCount() : 0;
    for (int i = 0; i < count; ++i)
    {
        if (i > 0)
            text += '\n';
        text += m_Model->GetItemCaption(i);
    }
    return text;
}

// Drawing -----------------------------------------------------------------------------------------------------------------

void CList::DrawContent(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
    if (!m_Model)
        return;
    CAliveGuard const alive(this);
    rectangle<int> const area = GetTextArea();
    int const last = GetEndDrawingLine();
    rectangle<int> rect = area;
    for (int line = GetStartDrawingLine(); line < last; ++line)
    {
        rect.top = AddSaturated(area.top, ToInt(static_cast<double>(line) * GetLinePitch()));
        rect.bottom = AddSaturated(rect.top, m_LineHeight);
        if (rect.bottom > area.bottom)
            return;
        bool const hot = line == m_HotItem && m_HotTrack;
        font const textFont = hot ? painter->GetFont() : font();
        _color const color = painter->GetTextColor();
        if (hot)
        {
            font underlined = textFont;
            underlined.style |= font::fsUnderline;
            painter->SetFont(underlined);
            painter->SetTextColor(detail::GetPainterColor(*painter, ISysPalette::scHighlight));
        }
        DrawItem(painter, line, rect);
        if (!alive)
            return;
        if (hot)
        {
            painter->SetFont(textFont);
            painter->SetTextColor(color);
        }
    }
}

bool CList::AsksDrawing(IPainter* painter, int item, rectangle<int> const& rect)
{
    bool drawDefault = true;
    CAliveGuard const alive(this);
    if (m_ItemDrawing)
        m_ItemDrawing->DrawItem(painter, item, rect, &drawDefault);
    return alive && drawDefault && m_Model;
}

void CList::DrawItem(IPainter* painter, int item, rectangle<int> const& rect)
{
    if (AsksDrawing(painter, item, rect))
        painter->DrawString(ToDouble(rect), m_Model->GetItemCaption(item), IPainter::AlignLeft | IPainter::AlignVCenter,
                            -1);
}

// Mouse -------------------------------------------------------------------------------------------------------------------

bool CList::HandleMouseMove(int x, int y, int, MouseButton)
{
    int const item = HitTest({x, y});
    if (item == m_HotItem)
        return false;
    m_HotItem = item;
    m_PressedItem = -1;
    if (m_HotTrack)
        Update(utElement);
    return false;
}

bool CList::HandleButtonDown(int, int, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    m_PressedItem = m_HotItem;
    return true;
}

bool CList::HandleButtonUp(int, int, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    if (m_PressedItem == m_HotItem)
        m_SigItemClicked(this, m_HotItem);
    return true;
}

void CList::HandleMouseLeave(CVisualElement*)
{
    m_HotItem = -1;
    m_PressedItem = -1;
    if (m_HotTrack)
        Update(utElement);
}

// Pictured list -----------------------------------------------------------------------------------------------------------

void CPicturedList::SetImageSpace(int pixels)
{
    if (pixels == m_ImageSpace)
        return;
    m_ImageSpace = pixels;
    Update(utElement);
}

void CPicturedList::DrawItem(IPainter* painter, int item, rectangle<int> const& rect)
{
    if (!GetControl() || !AsksDrawing(painter, item, rect))
        return;
    rectangle<int> place = rect;
    place.bottom = AddSaturated(place.bottom, GetLineSpacing());
    auto const* const pictured = dynamic_cast<IPicturedItemsModel const*>(GetModel());
    DrawLabel(painter, place, GetModel()->GetItemCaption(item),
              IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText, m_ImageSpace,
              GetControl()->GetImageList(), pictured ? pictured->GetItemImageIndex(item) : -1, nullptr,
              DefaultDelimiters, nullptr);
}

}  // namespace vexel
