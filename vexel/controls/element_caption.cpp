#include "vexel/controls/element_caption.h"

#include "vexel/controls/detail/painter_colors.h"
#include "vexel/core/control.h"

namespace vexel
{

namespace
{

size<int> const g_HelpButtonSize{14, 14};
size<int> const g_TextSize{420, 420};  // more than there is: it takes all that is left
_color const g_OverImage{0xFFFFFF};
int const g_BlendAlpha = 100;

bool IsEdge(Alignment alignment)
{
    return alignment >= alLeft && alignment <= alBottom;
}

}  // namespace

CElementCaption::CElementCaption(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CTransparentFlavor<CBevel>(parent, extent, alignment), m_HelpButton(this, g_HelpButtonSize, alRight),
      m_Text(this, g_TextSize, alLeft)
{
    m_Transparent = true;
    m_HelpButton.SetDynamic(false);
    m_Text.SetDynamic(false);
    for (CVisualElement* const element : {static_cast<CVisualElement*>(this), static_cast<CVisualElement*>(&m_Text)})
    {
        element->SetBkColor(ISysPalette::scShadow);
        element->SetFgColor(ISysPalette::scFace);
    }
    CElementCaption::AfterSetControl();
    CElementCaption::AttributeChanged();
    m_HelpButton.SetVisible(false);
    m_HelpButton.m_Clicked.connect(this, &CElementCaption::OnHelpButtonClick);
    m_Text.SetTransparent(true);
    m_Text.SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter);
    m_Text.SetTextLayout(true);
    Layout();
}

void CElementCaption::Layout()
{
    if (IsEdge(GetAlignment()))
        m_Text.SetAlignment(GetAlignment());
}

void CElementCaption::SetAlignment(Alignment alignment)
{
    CAliveGuard const alive(this);
    CTransparentFlavor<CBevel>::SetAlignment(alignment);
    if (alive)
        Layout();
}

void CElementCaption::SetHelpId(std::string const& id)
{
    CTransparentFlavor<CBevel>::SetHelpId(id);
    m_HelpButton.SetVisible(!id.empty());
}

void CElementCaption::OnHelpButtonClick(CButton*)
{
    if (GetControl())
        GetControl()->ActivateHelp(std::string(GetHelpId()));
}

void CElementCaption::AfterSetControl()
{
    if (IsBkImagePresented())
        m_Text.SetFgColor(g_OverImage);
    else
        m_Text.SetFgColor(ISysPalette::scFace);
}

void CElementCaption::AttributeChanged()
{
    CAliveGuard const alive(this);
    CTransparentFlavor<CBevel>::AttributeChanged();
    if (!alive || !GetControl())
        return;
    double const scale = GetSizeScale();
    int const height = GetTextLineHeight() + ToInt(scale * 3.0);
    if (height != GetSize().height)
        SetHeight(height, false);
    if (!alive)
        return;
    int const side = ToInt(scale);
    SetContentOffset({3 * side, 0, side, 0});
}

// The look ----------------------------------------------------------------------------------------------------------------

bool CElementCaption::IsActive() const
{
    ISysPalette const* const palette = GetSysPalette();
    return palette && GetBkColor().m_Value == palette->GetColor(ISysPalette::scHighlight).m_Value;
}

void CElementCaption::SetColors(CVisualElement& element, bool active, bool overImage)
{
    CAliveGuard const alive(&element);
    element.SetBkColor(active ? ISysPalette::scHighlight : ISysPalette::scShadow);
    if (!alive)
        return;
    if (active)
        element.SetFgColor(ISysPalette::scHighlightText);
    else if (overImage)
        element.SetFgColor(g_OverImage);
    else
        element.SetFgColor(ISysPalette::scFace);
}

void CElementCaption::SetActive(bool active)
{
    if (IsActive() == active)
        return;
    CAliveGuard const alive(this);
    bool const overImage = !active && IsBkImagePresented();
    SetColors(*this, active, overImage);
    for (int i = 0; alive && i < GetChildren()->GetCount(); ++i)
        SetColors(*GetChildren()->GetItem(i), active, overImage);
}

void CElementCaption::DrawBackground(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    _color const ground = GetBkColor();
    if (IsTransparent() && DrawBkImage(painter, bounds, {}))
    {
        DrawBlendBk(painter, bounds, {ground, brush::bsSolid}, g_BlendAlpha);
        return;
    }
    painter->SetBrush({detail::MixColors(ground, m_Text.GetFgColor(), 0.4f), brush::bsSolid});
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

}  // namespace vexel
