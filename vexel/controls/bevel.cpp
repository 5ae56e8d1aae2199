#include "vexel/controls/bevel.h"

#include "vexel/platform/border.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/palette.h"

namespace vexel
{

namespace
{

rectangle<int> Inset(rectangle<int> const& rect, rectangle<int> const& by)
{
    return {AddSaturated(rect.left, by.left), AddSaturated(rect.top, by.top), SubtractSaturated(rect.right, by.right),
            SubtractSaturated(rect.bottom, by.bottom)};
}

// The colour of ordinary faces; frames of elements that have it need no palette of their own.
bool IsFaceColor(_color const& color)
{
    ISysPalette const* const palette = GetSysPalette();
    return palette && palette->GetColor(ISysPalette::scFace).m_Value == color.m_Value;
}

}  // namespace

void CBevel::SetStyle(BorderStyle style)
{
    if (style == m_Style)
        return;
    m_Style = style;
    OnChange(this, utElement);
}

void CBevel::SetShape(BorderShape shape)
{
    if (shape == m_Shape)
        return;
    m_Shape = shape;
    OnChange(this, utElement);
}

void CBevel::SetOffset(rectangle<int> const& offset)
{
    if (offset == m_Offset)
        return;
    m_Offset = offset;
    OnChange(this, utElement);
}

void CBevel::SetContentOffset(rectangle<int> offset)
{
    if (offset == m_ContentOffset)
        return;
    m_ContentOffset = offset;
    OnChange(this, utElement);
}

rectangle<int> CBevel::GetFrame() const
{
    rectangle<int> bounds = GetBounds();
    bounds.Normalize();
    return Inset(bounds, m_Offset);
}

rectangle<double> CBevel::GetBevelRect() const
{
    rectangle<int> const frame = GetFrame();
    return {static_cast<double>(frame.left), static_cast<double>(frame.top), static_cast<double>(frame.right),
            static_cast<double>(frame.bottom)};
}

rectangle<int> CBevel::GetContentRect() const
{
    rectangle<int> frame = GetFrame();
    frame.Normalize();
    return Inset(frame, m_ContentOffset);
}

void CBevel::DrawBackground(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

void CBevel::DrawContent(IPainter* painter)
{
    CAliveGuard const alive(this);
    DrawBackground(painter);
    if (!alive || m_Shape >= ShapeNoFrame)
        return;
    if (_color const background = GetBkColor(); !IsFaceColor(background))
    {
        if (!m_EdgePalette)
            m_EdgePalette = CreateCustomPalette();
        m_EdgePalette->SetBaseColor(background);
        painter->m_Palette = m_EdgePalette;
    }
    DrawBorder(painter, GetBevelRect(), static_cast<vexelbase::BorderShape>(m_Shape),
               static_cast<vexelbase::BorderStyle>(m_Style), true);
    painter->m_Palette = nullptr;
}

}  // namespace vexel
