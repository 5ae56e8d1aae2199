#include "vexel/controls/control_caption.h"

namespace vexel
{

namespace
{

size<int> const g_ArrowSize{18, 18};

}  // namespace

CControlCaption::CControlCaption(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CElementCaption(parent, extent, alignment), m_Arrow(this, g_ArrowSize, alTop)
{
    GetChildren()->MoveItem(GetChildren()->GetIndex(&m_Arrow), 0);
    m_Arrow.SetDynamic(false);
    m_Arrow.SetNativeDrawing(false);
    m_Arrow.SetStyle(CButton::BorderFlat);
    m_Arrow.SetBkColor(ISysPalette::scShadow);
    m_Arrow.SetFgColor(ISysPalette::scFace);
    m_Arrow.SetCanHaveFocus(false);
    m_SigClick.connect(this, &CControlCaption::ProcessClick);
    Layout();
}

void CControlCaption::Layout()
{
    struct SPlace
    {
        Alignment alignment;
        CArrowButton::ArrowType type;
    };
    static SPlace const places[] = {{alTop, CArrowButton::ArrowRight},  // left
                                    {alTop, CArrowButton::ArrowLeft},   // right
                                    {alRight, CArrowButton::ArrowTop},  // top
                                    {alRight, CArrowButton::ArrowBottom}};
    Alignment const edge = GetAlignment();
    if (edge < alLeft || edge > alBottom)
        return;
    m_Arrow.SetAlignment(places[edge - alLeft].alignment);
    m_Arrow.SetArrowType(places[edge - alLeft].type);
}

void CControlCaption::ProcessClick(CVisualElement*, int, int, int, MouseButton button)
{
    if (button == mbLeft)
        m_Clicked(this);
}

void CControlCaption::SetAlignment(Alignment alignment)
{
    CAliveGuard const alive(this);
    Layout();
    CVisualElement::SetAlignment(alignment);
    if (alive)
        CElementCaption::Layout();
}

void CControlCaption::SetActive(bool active)
{
    CAliveGuard const alive(this);
    CElementCaption::SetActive(active);
    if (alive)
        m_Arrow.SetStyle(active ? CButton::BorderRaised : CButton::BorderFlat);
}

void CControlCaption::HandleChildrenMouseHover(CVisualElement* previous)
{
    if (!IsAncestor(previous, this))
        SetActive(true);
}

void CControlCaption::HandleChildrenMouseLeave(CVisualElement* next)
{
    if (!IsAncestor(next, this))
        SetActive(false);
}

}  // namespace vexel
