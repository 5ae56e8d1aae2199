#include "vexel/scroll/scroller.h"

#include "vexel/core/clip_scope.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"

#include <algorithm>
#include <optional>

namespace vexel
{

// The central part --------------------------------------------------------------------------------------------------------

CScroller::CCentralPart::CCentralPart(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment)
{}

void CScroller::CCentralPart::OnTopButtonClick(CButton*)
{
    Move(m_Step);
}

void CScroller::CCentralPart::OnBottomButtonClick(CButton*)
{
    Move(SubtractSaturated(0, m_Step));
}

// The next SetPos brings the offset into its bounds.
void CScroller::CCentralPart::Move(int distance)
{
    m_Offset = AddSaturated(m_Offset, distance);
    CAliveGuard const alive(this);
    OnRearrange(this);
    if (alive)
        OnChange(this, utElement);
}

CVisualElement* CScroller::CCentralPart::GetScrolled() const
{
    return m_Scrolled && m_Scrolled->GetParent() == this ? m_Scrolled.get() : nullptr;
}

void CScroller::CCentralPart::SetPos(rectangle<int> const& rect, bool force)
{
    CAliveGuard const alive(this);
    CVisualElement::SetPos(rect, force);
    if (!alive || !GetScrolled())
        return;
    int const height = m_Scrolled->GetSize().height;
    rectangle<int> const bounds = GetBounds();
    bool const overflows = bounds.bottom < height;
    m_TopButton->SetVisible(overflows);
    if (!alive)
        return;
    m_BottomButton->SetVisible(overflows);
    if (!alive)
        return;
    if (overflows)
    {
        if (std::int64_t{m_Offset} + height < bounds.bottom)
            m_Offset = SubtractSaturated(bounds.bottom, height);
        m_Offset = std::min(m_Offset, 0);
        m_TopButton->SetEnabled(m_Offset < 0);
        if (!alive)
            return;
        m_BottomButton->SetEnabled(std::int64_t{m_Offset} + height > bounds.bottom);
    }
    else
    {
        m_Offset = 0;
    }
    if (alive && GetScrolled())
        m_Scrolled->SetPos({bounds.left, m_Offset, bounds.right, AddSaturated(height, m_Offset)}, force);
}

void CScroller::CCentralPart::OnDraw(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    if (bounds.IsEmpty() || !IsVisible())
        return;
    CAlivePtr<IPainter> const surface(painter);
    std::optional<CClipScope> clip;
    if (GetScrolled())
        clip.emplace(surface, bounds);
    CVisualElement::OnDraw(painter);
}

void CScroller::CCentralPart::DrawContent(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
}

// A removal is told of what is removed: this part stays.
bool CScroller::CCentralPart::BeforeProcessChange(CVisualElement*, UpdateType type)
{
    return type != utRemoved;
}

// The scroller --------------------------------------------------------------------------------------------------------------

CScroller::CScroller(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment), m_TopButton(this, {12, 12}, alTop),
      m_BottomButton(this, {12, 12}, alBottom), m_CentralPart(this, {12, 12}, alClient)
{
    CBase* const parts[] = {&m_TopButton, &m_BottomButton, &m_CentralPart};
    for (CBase* const part : parts)
        part->SetDynamic(false);
    m_TopButton.SetArrowType(CArrowButton::ArrowTop);
    m_BottomButton.SetArrowType(CArrowButton::ArrowBottom);
    for (CArrowButton* const button : {&m_TopButton, &m_BottomButton})
    {
        button->SetAutoRepeat(true);
        button->SetCanHaveFocus(false);
        button->SetArrowSize(6);
        button->SetStyle(CButton::BorderFlat);
        button->SetShape(CButton::ShapeNoFrame);
        button->SetVisible(false);
    }
    m_CentralPart.m_TopButton = &m_TopButton;
    m_CentralPart.m_BottomButton = &m_BottomButton;
    m_TopButton.m_Clicked.connect(&m_CentralPart, &CCentralPart::OnTopButtonClick);
    m_BottomButton.m_Clicked.connect(&m_CentralPart, &CCentralPart::OnBottomButtonClick);
}

void CScroller::SetScrolled(CVisualElement* element)
{
    CVisualElement* const old = GetScrolled();
    if (element == old)
        return;
    CAliveGuard const alive(this);
    m_CentralPart.m_Scrolled.Watch(nullptr);
    if (old)
        old->ReParent(nullptr, true);
    if (!alive || !element)
        return;
    CAliveGuard const child(element);
    m_CentralPart.m_Scrolled.Watch(element);
    element->SetAlignment(alNone);
    if (alive && child)
        element->ReParent(&m_CentralPart, true);
    if (alive)
        m_CentralPart.Move(0);  // an element that is docked nowhere asks for no layout
}

// Buttons that come or go change the room of the view. A control that is laying out ends where the same is asked for
// again: the panel lays out itself.
void CScroller::SetPos(rectangle<int> const& rect, bool force)
{
    CAliveGuard const alive(this);
    bool const before = m_TopButton.IsVisible();
    CVisualElement::SetPos(rect, force);
    if (alive && m_TopButton.IsVisible() != before)
        CVisualElement::SetPos(GetPos(), true);
}

bool CScroller::IsFullRepainted() const
{
    CVisualElement const* const scrolled = GetScrolled();
    return scrolled && scrolled->IsFullRepainted();
}

}  // namespace vexel
