// Mouse, and the dragging of sections.

#include "vexel/charts/bar.h"
#include "vexel/core/control.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/events.h"
#include "vexel/scroll/scroll_converter.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>

namespace vexel
{

namespace
{

constexpr int s_Arrow = 1;  // cursors
constexpr int s_UpDown = 7;
constexpr int s_LeftRight = 9;
constexpr std::int64_t s_DragDistance = 6;  // pixels at any scale, as the next one
constexpr int s_NoDragMargin = 4;           // at the right of the element

using Selection = CSelectionTmpl<int>;

// Selects a run, together with the runs that it begins or ends in.
void SelectOver(Selection& selection, int a, int b)
{
    int low = std::min(a, b);
    int high = std::max(a, b);
    auto const& nodes = selection.GetNodes();
    auto const first = nodes.LowerBound(low);
    if (first != nodes.end() && first->value == Selection::selEnd)
        low = std::prev(first)->key;
    auto const last = nodes.LowerBound(high);
    if (last != nodes.end() && last->value == Selection::selEnd)
        high = last->key;
    selection.SetItemsSelection(low, high, true);
}

}  // namespace

// Pressing ------------------------------------------------------------------------------------------------------------------

// True: allowed. Slots may delete the bar; the event ends then.
template <class... Index> bool CBar::Ask(signal_t<Index..., bool*>& signal, Index... index)
{
    CAliveGuard const alive(this);
    bool allow = true;
    signal(index..., &allow);
    alive.Check();
    return allow;
}

// Where the pointer stands in the direction that a drag of the free edge goes.
int CBar::BarResizePosition(int x, int y) const
{
    return IsUpright() ? AcrossOf(x, y) : AlongOf(x, y);
}

bool CBar::HandleButtonDown(int x, int y, int keys, MouseButton button)
{
    HitTestResult const hit = HitTest({x, y});
    if (button != mbLeft)
        return false;
    CAliveGuard const alive(this);
    CaptureMouse();
    alive.Check();
    Press(hit, x, y);
    if (hit.m_Area == htSection)
    {
        Select(hit.m_Section, keys);
        OnChange(this, utElement);
    }
    return true;
}

void CBar::Press(HitTestResult const& hit, int x, int y)
{
    if (hit.m_Area == htDivider && (m_Style & bsResizeSections))
    {
        if (!Ask<int>(m_SigSectionResizeAllowed, hit.m_Section))
            return;
        m_State = stResizingSection;
        m_ActiveSection = hit.m_Section;
        m_Anchor = AlongOf(x, y);
    }
    else if (hit.m_Area == htFreeEdge)  // which takes the style
    {
        if (!Ask<>(m_SigBarResizeAllowed))
            return;
        m_State = stResizingBar;
        m_Anchor = BarResizePosition(x, y);
    }
    else if (hit.m_Area == htSection)
    {
        if (!Ask<int>(m_SigPressAllowed, hit.m_Section))
            return;
        m_State = stPressed;
        m_ActiveSection = hit.m_Section;
        m_Anchor = AlongOf(x, y);
    }
}

void CBar::Select(int section, int keys)
{
    if (keys & ksShift)
    {
        if (m_SelAnchor == -1)
            m_SelAnchor = section;
        m_RangeSelection.Clear();
        m_RangeSelection.SetItemsSelection(m_SelAnchor, section, true);
        m_SelLast = section;
        return;
    }
    if (keys & ksControl)
    {
        if (!m_RangeSelection.IsEmpty())
        {
            SelectOver(m_Selection, m_SelAnchor, m_SelLast);
            m_RangeSelection.Clear();
        }
        m_Selection.SetItemsSelection(section, section, !m_Selection.IsSelected(section));
    }
    else
    {
        m_Selection.Clear();
        m_RangeSelection.Clear();
        m_Selection.SetItemsSelection(section, section, true);
    }
    m_SelAnchor = section;
}

// Moving --------------------------------------------------------------------------------------------------------------------

bool CBar::HandleMouseMove(int x, int y, int, MouseButton)
{
    CAliveGuard const alive(this);
    HitTestResult const hit = HitTest({x, y});
    m_SigHover(hit.m_Hover);
    alive.Check();
    switch (m_State)
    {
    case stResizingSection:
        ResizeSection(AlongOf(x, y));
        return true;
    case stResizingBar:
        ResizeBar(BarResizePosition(x, y));
        return true;
    case stPressed:
        DragPressed(AlongOf(x, y));
        return true;
    case stDragging:
        ShowCursor(hit);
        return true;
    case stIdle:
        break;
    }
    ShowCursor(hit);
    return false;
}

void CBar::ShowCursor(HitTestResult const& hit)
{
    if (hit.m_Area == htDivider && (m_Style & bsResizeSections))
        SetCursor(IsUpright() ? s_UpDown : s_LeftRight);
    else if (hit.m_Area == htFreeEdge)
        SetCursor(IsUpright() ? s_LeftRight : s_UpDown);
    else
        SetCursor(s_Arrow);
}

void CBar::ResizeSection(int along)
{
    IScrollModel* const model = GetScrollModel();
    if (along == m_Anchor || !model || !IsSection(m_ActiveSection))
        return;
    int const moved = SubtractSaturated(along, m_Anchor);
    int const width = std::max(AddSaturated(ToInt(GetPixelWidth(*model, m_ActiveSection)), moved), m_MinSectionSize);
    auto const [logical, physical] = model->GetMeasure();
    double const step = logical * width / physical;
    m_Anchor = along;
    CAliveGuard const alive(this);
    if (std::isfinite(step))
        m_SigSectionResizing(m_ActiveSection, step);
    alive.Check();
    OnChange(this, utElement);
}

void CBar::ResizeBar(int position)
{
    CAliveGuard const alive(this);
    size<int> extent = GetSize();
    int& part = IsUpright() ? GetAcrossRef(extent.width, extent.height) : GetAlongRef(extent.width, extent.height);
    int const wanted = AddSaturated(part, SubtractSaturated(position, m_Anchor));
    if (wanted != part && wanted >= std::max(m_MinBarSize, 0) && wanted <= m_MaxBarSize)
    {
        part = wanted;
        m_Anchor = position;
        SetSize(extent, false);
        alive.Check();
    }
    SetCursor(IsUpright() ? s_LeftRight : s_UpDown);
}

void CBar::DragPressed(int along)
{
    if (std::abs(std::int64_t{along} - m_Anchor) < s_DragDistance)
        return;
    if (!Ask<int>(m_SigDragAllowed, m_ActiveSection))
        return;
    m_State = stDragging;
    m_Anchor = along;
    OnChange(this, utElement);
}

void CBar::HandleMouseLeave(CVisualElement*)
{
    if (m_State != stPressed)
        return;
    m_State = stIdle;
    OnChange(this, utElement);
}

void CBar::ProcessSetControl(IControl* control)
{
    m_State = stIdle;
    m_ActiveSection = -1;
    m_Anchor = 0;
    m_DragSection = -1;
    m_DropTarget = -1;
    m_Timer.Stop();
    CCategoricalAxis::ProcessSetControl(control);
}

// Releasing -----------------------------------------------------------------------------------------------------------------

bool CBar::HandleButtonUp(int x, int y, int, MouseButton button)
{
    if (button != mbLeft)
        return false;
    CAliveGuard const alive(this);
    auto const reset = [this] {
        m_State = stIdle;
        m_ActiveSection = -1;
        m_Anchor = 0;
        ReleaseMouse();
    };
    try
    {
        EndPress(x, y);
    }
    catch (...)
    {
        if (alive)
            reset();
        throw;
    }
    reset();
    return true;
}

void CBar::EndPress(int x, int y)
{
    CAliveGuard const alive(this);
    int const section = m_ActiveSection;
    switch (m_State)
    {
    case stResizingSection:
    {
        if (IScrollModel* const model = GetScrollModel(); IsSection(section))
            m_SigSectionResized(section, model ? GetPixelWidth(*model, section) : 1.0);
        break;
    }
    case stResizingBar:
    {
        m_State = stIdle;
        size<int> extent = GetSize();
        m_SigBarResized(extent);
        break;
    }
    case stDragging:
    {
        HitTestResult const hit = HitTest({x, y});
        if ((hit.m_Area != htSection && hit.m_Area != htDivider) || !IsSection(section))
            break;
        m_SigSectionMoved(section, hit.m_Section);
        alive.Check();
        OnChange(this, utElement);
        break;
    }
    case stPressed:
        if (IsSection(section))
            m_SigSectionClicked(section);
        alive.Check();
        OnChange(this, utElement);
        break;
    case stIdle:
        break;
    }
    alive.Check();
}

// Dragging through the control ------------------------------------------------------------------------------------------------

bool CBar::HandleStartDragging(int x, int y, DragInfo& info)
{
    return CanStartDragging(x, y, info);
}

void CBar::HandleDragFinished(CVisualElement* target, DragInfo& info)
{
    DragFinished(target, info);
}

void CBar::HandleDrawDragItem(IPainter* painter, DragInfo& info, bool accepted, CVisualElement* under)
{
    DrawDragItem(painter, info, accepted, under);
}

bool CBar::HandleDragOver(CVisualElement* source, int x, int y, DragInfo& info)
{
    return DragOver(source, x, y, info);
}

void CBar::HandleDropDone(CVisualElement* source, int x, int y, DragInfo& info)
{
    DropDone(source, x, y, info);
}

bool CBar::CanStartDragging(int x, int y, DragInfo& info)
{
    if (!(m_Style & (bsResizeSections | bsResizeBar)) || m_State == stResizingSection || m_State == stResizingBar)
        return false;
    if (AddSaturated(m_Selection.GetSelectedItems(), m_RangeSelection.GetSelectedItems()) >= 2)
        return false;
    if (x > SubtractSaturated(GetBounds().right, s_NoDragMargin))
        return false;
    int const section = HitTest({x, y}).m_Section;
    if (!IsSection(section))
        return false;
    m_DragSection = section;
    rectangle<double> rect = GetSectionRect(section);
    point<double> const origin = MakePoint(GetStripOrigin(), 0);
    rect.Offset(origin.x, origin.y);
    info.m_Rect = ToPixels(rect);
    ElementToControl(&info.m_Rect);
    return true;
}

void CBar::DragFinished(CVisualElement*, DragInfo&)
{
    m_DragSection = -1;
    m_DropTarget = -1;
    m_Timer.Stop();
}

bool CBar::DragOver(CVisualElement* source, int x, int y, DragInfo&)
{
    if (source != this)
        return false;
    m_DragPos = AlongOf(x, y);
    m_DropTarget = std::clamp(FindTarget(m_DragPos), 0, GetSectionCount());
    ScrollWhileDragging();
    return true;
}

int CBar::FindTarget(int position) const
{
    point<double> const place = MakePoint(position, 0);
    HitTestResult hit = HitTest({ToInt(place.x), ToInt(place.y)});
    if (hit.m_Area == htFreeEdge)
        hit = HitTestStrip(position);
    if (hit.m_Area == htBefore || (hit.m_Area == htNothing && position <= m_ViewStart))
        return 0;
    if (hit.m_Area == htBehind || hit.m_Area == htNothing)
        return GetSectionCount();
    return hit.m_FirstHalf ? hit.m_Hover : AddSaturated(hit.m_Hover, 1);
}

// As long as the pointer or the place of a drop is not inside.
void CBar::ScrollWhileDragging()
{
    IScrollModel* const model = GetScrollModel();
    if (!model)
    {
        m_Timer.Stop();
        return;
    }
    rectangle<double> const section = GetSectionRect(m_DropTarget);
    double const place = GetAlong(section.left, section.top) + GetStripOrigin();
    if (m_DragPos <= m_ViewStart || place <= m_ViewStart)
    {
        m_Timer.Start(false);
        return;
    }
    CScrollConverter const converter(model);
    bool const beyond = m_DragPos > m_ViewEnd || place > m_ViewEnd;
    // The timer keeps the whole element filled, also where the strip begins later.
    if (beyond && converter.L2P(model->GetTo()) > converter.L2P(model->GetStart()) + m_ViewEnd)
        m_Timer.Start(true);
    else
        m_Timer.Stop();
}

void CBar::OnSigTimerTick(CScrollTimer*)
{
    IScrollModel* const model = GetScrollModel();
    if (!model)
        return;
    CScrollConverter const converter(model);
    double const start = model->GetStart();
    int const origin = GetStripOrigin();
    double target = 0;
    if (m_DragPos >= m_ViewEnd)
        target = std::floor(start + converter.P2L(SubtractSaturated(m_ViewEnd, origin)));
    else if (m_DragPos > m_ViewStart)
        target = std::trunc(start + converter.P2L(SubtractSaturated(m_DragPos, origin)) + 0.5);
    else
        target = std::ceil(start);
    m_DropTarget = std::clamp(ToInt(target), 0, GetSectionCount());
    m_TargetChanged = true;
}

void CBar::DropDone(CVisualElement*, int, int, DragInfo&)
{
    if (!IsSection(m_DragSection) || m_DropTarget < 0)
        return;
    if (m_DragSection < m_DropTarget)
        --m_DropTarget;
    if (m_DragSection == m_DropTarget)
        return;
    if (IsSelected(m_DragSection))
    {
        m_Selection.Clear();
        m_RangeSelection.Clear();
        m_Selection.SetItemsSelection(m_DropTarget, m_DropTarget, true);
        m_SelAnchor = -1;
    }
    m_SigSectionDropped(this, m_DragSection, m_DropTarget);
}

}  // namespace vexel
