#include "vexel/widgets/gauge_box.h"

#include "vexel/platform/painter.h"
#include "vexel/widgets/detail/message_metrics.h"

namespace vexel
{

namespace
{

size<int> const g_StripSize{20, 20};
size<int> const g_PartSize{5, 5};  // of what the layout stretches
int const g_HeightWithoutButton = 20;

}  // namespace

CGaugeBox::CGaugeBox(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CBevel(parent, extent, alignment), m_Frame(this, g_StripSize, alTop),
      m_GaugeBevel(&m_Frame, g_PartSize, alClient), m_Gauge(&m_GaugeBevel, g_PartSize, alClient),
      m_Button(&m_Frame, g_PartSize, alRight)
{
    SetContentOffset({0, 0, 0, 0});
    SetOffset({0, 0, 0, 0});
    for (CVisualElement* const part : {&m_Frame, static_cast<CVisualElement*>(&m_GaugeBevel),
                                       static_cast<CVisualElement*>(&m_Gauge), static_cast<CVisualElement*>(&m_Button)})
        part->SetDynamic(false);
    m_GaugeBevel.SetShape(ShapeBox);
    m_GaugeBevel.SetOffset({0, 3, 6, 3});
    m_GaugeBevel.SetContentOffset({3, 3, 3, 3});
    m_Button.SetTransparent(true);
    m_Button.SetAutoSize(true);
    m_Button.SetVisible(false);
    m_ButtonWaits = true;
    m_Button.m_SigVisible.connect(this, &CGaugeBox::ButtonVisible);
}

CGaugeBox::~CGaugeBox()
{
    m_ButtonWaits = false;
}

void CGaugeBox::SetMaxWidth(int width)
{
    if (width == m_MaxWidth)
        return;
    m_MaxWidth = width;
    OnRearrange(this);
}

void CGaugeBox::SetPos(rectangle<int> const& rect, bool force)
{
    int const excess = SubtractSaturated(SubtractSaturated(rect.right, rect.left), m_MaxWidth);
    if (m_MaxWidth > 0 && excess > 0 && excess != GetOffset().right)
    {
        CAliveGuard const alive(this);
        SetOffset({0, 0, excess, 0});
        if (!alive)
            return;
    }
    CBevel::SetPos(rect, force);
}

void CGaugeBox::ProcessRearrange(CVisualElement** element)
{
    if (IsChildrenAvailable(0) && *element == &m_Button)
        m_GaugeBevel.SetHeight(m_Button.IsVisible() ? m_Button.GetSize().height : g_HeightWithoutButton, false);
}

// A button with a caption is worth showing, once.
void CGaugeBox::ProcessChange(CVisualElement**)
{
    if (m_ButtonWaits && !m_Button.GetCaption().empty())
        m_Button.SetVisible(true);
}

void CGaugeBox::ButtonVisible(CVisualElement*, bool)
{
    m_ButtonWaits = false;
}

CGaugeBoxEx::CGaugeBoxEx(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CGaugeBox(parent, extent, alignment), m_Text(this, g_PartSize, alBottom),
      m_TextSpacer(this, {g_PartSize.width, 0}, alBottom)
{
    m_Text.SetDynamic(false);
    m_TextSpacer.SetDynamic(false);
    // In device pixels already.
    m_TextSpacer.SetHeight(SubtractSaturated(detail::GetBaseOffset(), detail::GetTextSizeCorrection()), false);
    m_Text.SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter);
    m_Built = true;
    m_Text.SetAutoSize(true);
    OnRearrange(this);
}

CGaugeBoxEx::~CGaugeBoxEx()
{
    m_Built = false;
}

void CGaugeBoxEx::ProcessRearrange(CVisualElement** element)
{
    CAliveGuard const alive(this);
    CGaugeBox::ProcessRearrange(element);
    if (!alive || !m_Built || !IsChildrenAvailable(0))
        return;
    int const height =
        AddSaturated(AddSaturated(m_TextSpacer.GetSize().height, GetStrip().GetSize().height), m_Text.GetSize().height);
    SetHeight(height, false);
}

}  // namespace vexel
