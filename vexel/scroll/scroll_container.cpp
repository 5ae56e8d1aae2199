#include "vexel/scroll/scroll_container.h"

#include "vexel/core/clip_scope.h"
#include "vexel/core/control.h"
#include "vexel/core/draw_elements.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/sys_window.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace vexel
{

namespace
{

// Where a view of `view` pixels on `full` of them may begin.
double CutStart(double value, double full, int view)
{
    if (view > full - value)
        value = full > view ? std::trunc(full - view) : 0.0;
    return value > 0 ? value : 0.0;  // also for what is no number
}

// How far a span moves, the shortest way, to lie in a view that begins at 0; edges included.
int GetWayIn(int low, int high, int view)
{
    if (std::int64_t{high} - low > view)
        return 0;
    if (low < 0)
        return SubtractSaturated(0, low);
    return high > view ? SubtractSaturated(view, high) : 0;
}

}  // namespace

// The central part --------------------------------------------------------------------------------------------------------

CScrollContainer::CCentralPart::CCentralPart(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CScrollableElement(parent, extent, alignment)
{}

CVisualElement* CScrollContainer::CCentralPart::GetScrolled() const
{
    return m_Scrolled && m_Scrolled->GetParent() == this ? m_Scrolled : nullptr;
}

void CScrollContainer::CCentralPart::SetScrolled(CVisualElement* element)
{
    m_Scrolled = element;
    m_FittedChild = nullptr;
}

void CScrollContainer::CCentralPart::SetSteps(int horizontal, int vertical)
{
    m_HorzStep = horizontal;
    m_VertStep = vertical;
    OnRearrange(this);
}

void CScrollContainer::CCentralPart::SetFitMode(FitMode mode)
{
    if (mode == m_FitMode)
        return;
    m_FitMode = mode;
    m_FittedChild = nullptr;
    OnRearrange(this);
}

void CScrollContainer::CCentralPart::SetFillAroundChild(bool around)
{
    if (around == m_FillAroundChild)
        return;
    m_FillAroundChild = around;
    OnChange(this, utElement);
}

double CScrollContainer::CCentralPart::GetHorzTo() const
{
    CVisualElement const* const child = GetScrolled();
    return child && m_HorzStep != 0 ? child->GetSize().width + 1.0 : 0.0;
}

double CScrollContainer::CCentralPart::GetVertTo() const
{
    CVisualElement const* const child = GetScrolled();
    return child && m_VertStep != 0 ? child->GetSize().height + 1.0 : 0.0;
}

double CScrollContainer::CCentralPart::GetHorzStart() const
{
    CVisualElement const* const child = GetScrolled();
    return child ? -static_cast<double>(child->GetPos().left) : 0.0;
}

double CScrollContainer::CCentralPart::GetVertStart() const
{
    CVisualElement const* const child = GetScrolled();
    return child ? -static_cast<double>(child->GetPos().top) : 0.0;
}

void CScrollContainer::CCentralPart::SetHorzStart(double value)
{
    CVisualElement* const child = GetScrolled();
    double const start = CutStart(value, GetHorzTo(), GetBounds().right);
    if (!child || GetHorzStart() == start)
        return;
    rectangle<int> rect = child->GetPos();
    rect.left = ToInt(-start);
    rect.right = ToInt(child->GetSize().width - start);
    MoveChild(rect);
}

void CScrollContainer::CCentralPart::SetVertStart(double value)
{
    CVisualElement* const child = GetScrolled();
    double const start = CutStart(value, GetVertTo(), GetBounds().bottom);
    if (!child || GetVertStart() == start)
        return;
    rectangle<int> rect = child->GetPos();
    rect.top = ToInt(-start);
    rect.bottom = ToInt(child->GetSize().height - start);
    MoveChild(rect);
}

// All of the view is painted anew: what moves into it is not on the screen, and the element may uncover its background.
void CScrollContainer::CCentralPart::MoveChild(rectangle<int> const& rect)
{
    CAliveGuard const alive(this);
    m_Scrolled->SetPos(rect, true);
    if (alive)
        RefreshPos();  // native controls that are docked nowhere follow, too
    if (alive)
        OnChange(this, utElement);
    ISysWindow* const window = alive && GetControl() ? GetControl()->GetWindow() : nullptr;
    if (window)
        window->UpdateNow();
}

void CScrollContainer::CCentralPart::SetPos(rectangle<int> const& rect, bool force)
{
    CAliveGuard const alive(this);
    CScrollableElement::SetPos(rect, force);
    CVisualElement* const child = alive ? GetScrolled() : nullptr;
    if (!child)
        return;
    rectangle<int> const bounds = GetBounds();
    CAliveGuard const childAlive(child);
    if (m_FitMode != fmNone)
        FitChild(*child);
    if (!alive || !childAlive)
        return;
    int const left = ToInt(-CutStart(GetHorzStart(), GetHorzTo(), bounds.right));
    int const top = ToInt(-CutStart(GetVertStart(), GetVertTo(), bounds.bottom));
    size<int> const extent = child->GetSize();
    child->SetPos({left, top, AddSaturated(left, extent.width), AddSaturated(top, extent.height)}, force);
}

// An element that insists on a larger extent, or on a smaller one, is not given any other that it would refuse as well:
// both would go on laying out.
void CScrollContainer::CCentralPart::FitChild(CVisualElement& child)
{
    bool const high = m_FitMode == fmHeight;
    int const given = SubtractSaturated(high ? GetBounds().bottom : GetBounds().right, 1);
    int const present = high ? child.GetSize().height : child.GetSize().width;
    if (&child == m_FittedChild && present == m_WantedExtent &&
        ((m_WantedExtent > m_GivenExtent && present >= given) || (m_WantedExtent < m_GivenExtent && present <= given)))
        return;
    CAliveGuard const alive(this);
    CAliveGuard const childAlive(&child);
    if (high)
        child.SetHeight(given, false);
    else
        child.SetWidth(given, false);
    if (!alive || !childAlive)
        return;
    m_FittedChild = &child;
    m_GivenExtent = given;
    m_WantedExtent = high ? child.GetSize().height : child.GetSize().width;
}

// Native controls in the tree below follow.
bool CScrollContainer::CCentralPart::ScrollContent(int, int)
{
    RefreshPos();
    return false;
}

// Painting ------------------------------------------------------------------------------------------------------------------

// A removed element may be gone by the next paint: it is taken off the list at once, and does not take this part with it.
bool CScrollContainer::CCentralPart::BeforeProcessChange(CVisualElement* element, UpdateType type)
{
    if (type != utRemoved)
        return true;
    m_Changed.RemoveElement(element);
    return false;
}

void CScrollContainer::CCentralPart::ProcessChange(CVisualElement** element)
{
    if (*element == this || m_ChangedAt != GetDestroyCount())
        m_FullRepaint = m_FullRepaint || *element == this || m_Changed.GetCount() > 0;  // an entry may have died
    m_ChangedAt = GetDestroyCount();
    if (m_FullRepaint)
        m_Changed.Clear(0);
    else
        m_Changed.AddElement(*element);
    *element = this;
}

bool CScrollContainer::CCentralPart::DrawsOnlyChanges(IPainter* painter) const
{
    return !m_FullRepaint && m_Changed.GetCount() > 0 && m_ChangedAt == GetDestroyCount() && !IsDrawnWithParent() &&
           !painter->IsFullPaint();
}

void CScrollContainer::CCentralPart::OnDraw(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    if (bounds.IsEmpty() || !IsVisible())
        return;
    CAliveGuard const alive(this);
    CAlivePtr<IPainter> const surface(painter);
    std::optional<CClipScope> clip;
    if (GetScrolled())
        clip.emplace(surface, bounds);
    if (DrawsOnlyChanges(painter))
    {
        m_Changed.Reduce();
        m_Changed.DropHidden();
        CElementList::CWalk const walk(m_Changed);
        for (int i = 0; i < m_Changed.GetCount(); ++i)
            if (CVisualElement* const element = m_Changed.GetItem(i); element && !IsAncestor(element, this))
                m_Changed.RemoveElement(element);  // it stands elsewhere by now
        DrawElements(&m_Changed, painter, {});
    }
    else
    {
        CScrollableElement::OnDraw(painter);
    }
    if (!alive)
        return;
    m_Changed.Clear(0);
    m_FullRepaint = false;
}

void CScrollContainer::CCentralPart::DrawContent(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    CVisualElement const* const child = m_FillAroundChild ? GetScrolled() : nullptr;
    if (!child)
    {
        painter->FillRect(bounds.left, bounds.top, bounds.right, bounds.bottom);
        return;
    }
    rectangle<int> inner = child->GetPos();
    inner.Intersect(bounds);
    auto const fill = [painter](int left, int top, int right, int bottom) {
        if (left <= right && top <= bottom)
            painter->FillRect(left, top, right, bottom);
    };
    fill(0, 0, inner.left - 1, bounds.bottom);
    fill(inner.right + 1, 0, bounds.right, bounds.bottom);
    fill(inner.left, 0, inner.right, inner.top - 1);
    fill(inner.left, inner.bottom + 1, inner.right, bounds.bottom);
}

// Focus ---------------------------------------------------------------------------------------------------------------------

void CScrollContainer::CCentralPart::ChildToParentView(CVisualElement* child)
{
    if (!child || !GetControl() || child->GetControl() != GetControl())
        return;
    rectangle<int> rect = child->GetBounds();
    child->ElementToControl(&rect);
    ControlToElement(&rect);
    rectangle<int> const view = GetBounds();
    if (rect.Width() > view.right && rect.Height() > view.bottom)
        return;
    int const dx = GetWayIn(rect.left, rect.right, view.right);
    int const dy = GetWayIn(rect.top, rect.bottom, view.bottom);
    CAliveGuard const alive(this);
    if (IScrollModel* const model = GetHorzScroll(); model && dx != 0)
        model->SetStart(model->GetStart() - dx);
    if (!alive)
        return;
    if (IScrollModel* const model = GetVertScroll(); model && dy != 0)
        model->SetStart(model->GetStart() - dy);
}

void CScrollContainer::CCentralPart::HandleChildFocusChanged(CVisualElement* element, CVisualElement*, bool got)
{
    if (got)
        ChildToParentView(element);
}

void CScrollContainer::CCentralPart::HandlePaneButtonDown(CVisualElement*, int, int, int, MouseButton button)
{
    if (button != mbLeft || !GetControl() || IsAncestor(GetControl()->GetFocusedElement(), this))
        return;
    CVisualElement* last = this;
    for (CVisualElement* next = GetFirstTabElement(); next && next != last && IsAncestor(next, last);
         next = next->GetFirstTabElement())
        last = next;
    last->SetFocus(true);
}

// The container -------------------------------------------------------------------------------------------------------------

CScrollContainer::CScrollContainer(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CScrollBox(parent, extent, alignment), m_CentralPart(nullptr, {12, 12}, alClient)
{
    m_CentralPart.SetDynamic(false);
    m_CentralPart.ReParent(this, true);
    SetPaneMovesItself(true);
    m_CentralPart.m_SigButtonDown.connect(&m_CentralPart, &CCentralPart::HandlePaneButtonDown);
    m_SigGetWheelStep.connect(this, &CScrollContainer::GetWheelStepSize);
    SetHorzScroll(static_cast<IHorzPhysicalScrollModel*>(&m_CentralPart));
    SetVertScroll(static_cast<IVertPhysicalScrollModel*>(&m_CentralPart));
    m_CentralPart.SetHorzScroll(GetWrappedHorzScroll());
    m_CentralPart.SetVertScroll(GetWrappedVertScroll());
    SetCentralPane(&m_CentralPart);
}

CScrollContainer::~CScrollContainer()
{
    LetGo();
    SetHorzScroll(nullptr);
    SetVertScroll(nullptr);
}

void CScrollContainer::SetScrolled(CVisualElement* element)
{
    CAliveGuard const alive(this);
    if (CVisualElement* const old = m_Scrolled)
    {
        LetGo();
        if (old != element && old->GetParent() == &m_CentralPart)
            old->ReParent(nullptr, true);
        if (!alive)
            return;
    }
    m_Scrolled = element;
    m_CentralPart.SetScrolled(element);
    if (element)
    {
        CAliveGuard const child(element);
        element->m_SigSize.connect(this, &CScrollContainer::OnScrolledResized);
        element->m_SigDestroy.connect(this, &CScrollContainer::ScrolledDies);
        element->ReParent(&m_CentralPart, true);
        if (!alive || !child)
            return;
        element->SetAlignment(alNone);
        if (!alive || !child)
            return;
    }
    m_CentralPart.SetVertStart(0);
    if (!alive)
        return;
    m_CentralPart.SetHorzStart(0);
    if (alive)
        m_CentralPart.OnRearrange(&m_CentralPart);  // an element that is docked nowhere asks for no layout
    if (alive)
        m_CentralPart.Update(utElement);
    if (alive)
        RefreshScroll();
}

// The element stays where it is in the tree.
void CScrollContainer::LetGo()
{
    if (m_Scrolled)
    {
        m_Scrolled->m_SigSize.disconnect(this, &CScrollContainer::OnScrolledResized);
        m_Scrolled->m_SigDestroy.disconnect(this, &CScrollContainer::ScrolledDies);
    }
    m_Scrolled = nullptr;
    m_CentralPart.SetScrolled(nullptr);
}

void CScrollContainer::ScrolledDies(CVisualElement*)
{
    m_Scrolled = nullptr;
    m_CentralPart.SetScrolled(nullptr);
    RefreshScroll();
}

void CScrollContainer::GetWheelStepSize(CVisualElement* element, int& step)
{
    step = element->GetTextLineHeight();
}

void CScrollContainer::OnScrolledResized(CVisualElement* element)
{
    // One that moves by itself may uncover what it has not to paint.
    CAliveGuard const alive(this);
    if (element->GetPos() != m_ScrolledPos)
    {
        m_ScrolledPos = element->GetPos();
        m_CentralPart.Update(utElement);
    }
    if (alive)
        RefreshScroll();
}

}  // namespace vexel
