#include "vexel/controls/button.h"

#include "vexel/controls/detail/focus_frame.h"
#include "vexel/controls/detail/painter_colors.h"
#include "vexel/core/control.h"
#include "vexel/platform/border.h"
#include "vexel/platform/device_pixels.h"

namespace vexel
{

namespace
{

int const g_RepeatInterval = 200;  // milliseconds

}  // namespace

CButton::CButton(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CCaption(parent, extent, alignment), CRepeatableOperation(g_RepeatInterval)
{
    CButton::SetAlignment(alignment);
    SetTextLayout(false);
    SetCanHaveFocus(true);
}

void CButton::SetStyle(BorderStyle style)
{
    if (style == m_Style)
        return;
    m_Style = style;
    OnChange(this, utElement);
}

void CButton::SetShape(BorderShape shape)
{
    if (shape == m_Shape)
        return;
    m_Shape = shape;
    OnChange(this, utElement);
}

void CButton::SetAlignment(Alignment alignment)
{
    ChangeLayout(alNone);
    CVisualElement::SetAlignment(alignment);
}

void CButton::SetEnabled(bool enabled)
{
    if (!enabled)
    {
        StopRepeating();
        ResetClickStage();
    }
    CCaption::SetEnabled(enabled);
}

void CButton::ProcessSetVisible(bool visible)
{
    ResetClickStage();
    CCaption::ProcessSetVisible(visible);
}

bool CButton::IsUnderMouse() const
{
    return GetControl() && GetControl()->GetMouseElement() == this;
}

int CButton::GetNativeState() const
{
    int state = 0;
    if (!IsEnabled())
        state |= IPainter::esDisabled;
    if (IsFocused())
        state |= IPainter::esFocused;
    if (GetClickStage() == StagePressed)
        state |= IPainter::esPressed;
    else if (IsEnabled() && IsUnderMouse())
        state |= IPainter::esHot;
    return state;
}

// Metrics -----------------------------------------------------------------------------------------------------------------

rectangle<int> CButton::GetInternalRect() const
{
    rectangle<int> rect = GetBounds();
    rect.Normalize();
    int const shift = GetClickStage() == StagePressed ? 1 : 0;  // a pixel at any scale
    return {AddSaturated(rect.left, shift), AddSaturated(rect.top, shift), AddSaturated(rect.right, shift),
            AddSaturated(rect.bottom, shift)};
}

size<int> CButton::GetAutoSizeAdditionalExtent() const
{
    return {ToDevicePixels(GetImageIndex() != -1 ? 9.0 : 22.0), ToDevicePixels(9.0)};
}

// Drawing -----------------------------------------------------------------------------------------------------------------

void CButton::DrawContent(IPainter* painter)
{
    if (IsNativeDrawing() && IsEnabled())
        painter->SetTextColor(detail::GetPainterColor(*painter, ISysPalette::scControlText));
    if (GetClickStage() == StagePressed && m_Style == BorderFlat)
        painter->SetTextColor(detail::GetPainterColor(*painter, ISysPalette::scHighlightText));
    CAliveGuard const alive(this);
    CCaption::DrawContent(painter);
    if (!alive || !IsFocused())
        return;
    int inset = ToInt(painter->GetDPIScale() * 3.0);
    if (m_Style == BorderFlat && !IsNativeDrawing())
        --inset;
    rectangle<double> rect = ToDouble(GetBounds());
    rect.Normalize();
    detail::DrawFocusFrame(painter, rect, inset);
}

void CButton::DrawBackground(IPainter* painter)
{
    painter->m_PenDirty = false;
    if (IsNativeDrawing())
    {
        rectangle<int> const bounds = GetBounds();
        painter->DrawControlElement(IPainter::cePushButton, bounds.left, bounds.top, bounds.right, bounds.bottom,
                                    GetNativeState());
    }
    else if (m_Style != BorderFlat)
        DrawEdged(painter);
    else
        DrawFlat(painter);
}

void CButton::DrawEdged(IPainter* painter)
{
    vexel_ptr<ICustomPaletteEx> palette = painter->m_Palette;
    if (!palette)
    {
        if (!m_EdgePalette)
            m_EdgePalette = CreateCustomPalette();
        m_EdgePalette->SetBaseColor(GetBkColor());
        palette = m_EdgePalette;
    }
    detail::CPaletteHolder const holder(painter, palette);
    rectangle<double> const bounds = ToDouble(GetBounds());
    if (GetClickStage() == StagePressed)
        DrawBorder(painter, bounds, bsBox, bsSunken, true);
    else if (m_Shape < ShapeNoFrame)
        DrawBorder(painter, bounds, static_cast<vexelbase::BorderShape>(m_Shape),
                   static_cast<vexelbase::BorderStyle>(m_Style), true);
    else
        painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

void CButton::DrawFlat(IPainter* painter)
{
    _color const background = GetBkColor();
    rectangle<int> const bounds = GetBounds();
    brush fill{background, brush::bsSolid};
    bool const overImage = IsTransparent() && IsBkImagePresented() && DrawBkImage(painter, bounds, {});
    if (!overImage)
    {
        painter->SetBrush(fill);
        painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
    }

    bool const underMouse = IsUnderMouse();
    bool const hot = underMouse && IsEnabled();
    _color const base = detail::GetPainterColor(*painter, ISysPalette::scHighlight);
    pen frame{base, pen::psSolid, 1};
    if (GetClickStage() == StagePressed)
    {
        fill.color = detail::MixColors(base, background, overImage ? 0.0f : 0.6f);
        if (!underMouse)
            frame.color = detail::GetPainterColor(*painter, ISysPalette::scDarkShadow);
    }
    else if (hot)
        fill.color = detail::MixColors(base, background, overImage ? 0.5f : 0.85f);
    else
        frame.color = detail::GetPainterColor(*painter, ISysPalette::scShadow);
    if (m_Shape >= ShapeNoFrame && !hot)
        return;

    if (overImage)
    {
        DrawBlendBk(painter, bounds, fill, 0x7F);
        fill.style = brush::bsNone;
    }
    painter->SetBrush(fill);
    painter->SetPen(frame);
    painter->Rectangle(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

// Input -------------------------------------------------------------------------------------------------------------------

bool CButton::HandleButtonDown(int x, int y, int keys, MouseButton button)
{
    CAliveGuard const alive(this);
    if (CCaption::HandleButtonDown(x, y, keys, button))
        return true;
    if (button != mbLeft || !IsMouseOverButton(x, y))
        return false;
    CClickHandler::HandleButtonDown(keys, button);
    alive.Check();
    if (m_AutoRepeat)
        StartRepeating();
    return true;
}

bool CButton::HandleButtonUp(int, int, int keys, MouseButton button)
{
    StopRepeating();
    return CClickHandler::HandleButtonUp(keys, button);
}

// The look goes by the pointer, too: it changes also where the stage, which was reset meanwhile, does not.
void CButton::HandleMouseHover(CVisualElement*)
{
    ClickStage const before = GetClickStage();
    CAliveGuard const alive(this);
    CClickHandler::HandleMouseHover();
    if (alive && GetClickStage() == before)
        Update(utElement);
}

void CButton::HandleMouseLeave(CVisualElement*)
{
    StopRepeating();
    ClickStage const before = GetClickStage();
    CAliveGuard const alive(this);
    CClickHandler::HandleMouseLeave();
    if (alive && GetClickStage() == before)
        Update(utElement);
}

bool CButton::HandleKeyDown(int keys, int key)
{
    return CClickHandler::HandleKeyDown(keys, key);
}

bool CButton::HandleKeyUp(int keys, int key)
{
    return CClickHandler::HandleKeyUp(keys, key);
}

void CButton::ProcessStageChange(ClickStage)
{
    OnChange(this, utElement);
}

void CButton::ProcessClick()
{
    m_Clicked(this);
}

void CButton::ProcessRepeatOperation()
{
    if (IsEnabled())
        m_Clicked(this);
    else
        StopRepeating();
}

}  // namespace vexel
