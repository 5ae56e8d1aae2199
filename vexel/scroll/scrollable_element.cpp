#include "vexel/scroll/scrollable_element.h"

#include "vexel/platform/system.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace vexel
{

namespace
{

constexpr int s_Interval = 100;           // milliseconds between two steps
constexpr double s_Step = 8.0;            // logical units, whatever the scale
constexpr std::int64_t s_MouseSlack = 2;  // pixels

point<int> GetPointerPos()
{
    ISystem* const system = GetCurrentSystem();
    IPointer* const pointer = system ? system->GetPointer() : nullptr;
    return pointer ? pointer->GetPos() : point<int>();
}

bool IsNear(int a, int b)
{
    return std::abs(std::int64_t{a} - b) <= s_MouseSlack;
}

}  // namespace

void CScrollableElement::ScrollCondition::Init(ScrollDirection direction, bool checkMouse)
{
    m_Direction = direction;
    m_CheckMouse = checkMouse;
    if (checkMouse)
        m_MousePos = GetPointerPos();
}

void CScrollableElement::ScrollCondition::Clear()
{
    m_Direction = sdNone;
    m_CheckMouse = false;
}

bool CScrollableElement::ScrollCondition::ScrollIsPossible() const
{
    if (!m_CheckMouse)
        return true;
    point<int> const now = GetPointerPos();
    return IsNear(now.x, m_MousePos.x) && IsNear(now.y, m_MousePos.y);
}

CScrollableElement::CScrollableElement(CVisualElement* parent, size<int> const& extent, Alignment alignment)
    : CVisualElement(parent, extent, alignment), CRepeatableOperation(s_Interval)
{}

CScrollableElement::~CScrollableElement() = default;

void CScrollableElement::SetCentralPane(CVisualElement* pane)
{
    m_CentralPane.Watch(pane);
}

void CScrollableElement::SetVertScroll(IScrollModel* model)
{
    m_VertScroll = model;
}

void CScrollableElement::SetHorzScroll(IScrollModel* model)
{
    m_HorzScroll = model;
}

rectangle<int> CScrollableElement::GetCentralRect() const
{
    if (!m_CentralPane)
        return {};
    rectangle<int> rect = m_CentralPane->GetContentRect();
    m_CentralPane->ElementToControl(&rect);
    return rect;
}

// Automatic scrolling -------------------------------------------------------------------------------------------------------

CScrollableElement::ScrollCondition* CScrollableElement::GetCondition(int type)
{
    if (type == ISysWindow::stVertical)
        return &m_VertCondition;
    return type == ISysWindow::stHorizontal ? &m_HorzCondition : nullptr;
}

void CScrollableElement::StartScrolling(ISysWindow::ScrollType type, ScrollDirection direction, bool checkMouse)
{
    // The bit of the horizontal axis decides for both: scrolling by dragging exists along headers only.
    if ((type & ISysWindow::stHorizontal) && m_ScrollType == 0)
    {
        m_ScrollType = type;
        if (ScrollCondition* const condition = GetCondition(type))
            condition->Init(direction, checkMouse);
    }
    StartRepeating();
}

void CScrollableElement::StopScrolling(ISysWindow::ScrollType type)
{
    if (m_ScrollType & type)
        Disarm(type);
}

void CScrollableElement::Disarm(int type)
{
    m_ScrollType &= ~type;
    StopRepeating();
    if (ScrollCondition* const condition = GetCondition(type))
        condition->Clear();
}

void CScrollableElement::ProcessRepeatOperation()
{
    CAliveGuard const alive(this);
    DoScroll(static_cast<ISysWindow::ScrollType>(m_ScrollType & ISysWindow::stHorizontal),
             m_HorzCondition.GetDirection());
    if (alive)
        DoScroll(static_cast<ISysWindow::ScrollType>(m_ScrollType & ISysWindow::stVertical),
                 m_VertCondition.GetDirection());
}

void CScrollableElement::DoScroll(ISysWindow::ScrollType type, ScrollDirection direction)
{
    ScrollCondition const* const condition = GetCondition(type);
    IScrollModel* const model = type == ISysWindow::stVertical ? m_VertScroll : m_HorzScroll;
    if (!condition || !condition->ScrollIsPossible() || !model)
    {
        StopScrolling(type);
        return;
    }
    double start = model->GetStart();
    double end = 0;
    bool stop = false;
    if (direction == sdForward)
    {
        start += s_Step;
        end = model->GetTo();
        stop = start > end;
    }
    else
    {
        start -= s_Step;
        end = model->GetFrom();
        stop = end > start;
    }
    if (stop)
    {
        start = end;
        StopScrolling(type);
    }
    model->SetStart(start);
}

// Values of unequal steps -----------------------------------------------------------------------------------------------------

double CScrollableElement::AddStepsInfo(double value, IScrollModel* model) const
{
    if (!model || model->IsFixedStepSize())
        return value;
    double const base = std::trunc(model->GetFrom());
    if (!(base <= value))
        return value;
    double rest = value - base;
    double sum = base;
    double index = base;
    for (int count = std::numeric_limits<int>::max(); ToInt(rest) > 0 && count > 0; --count)
    {
        sum += model->GetStepSize(index);
        index += 1;
        rest -= 1;
    }
    return rest + sum;
}

double CScrollableElement::DelStepsInfo(double value, IScrollModel* model) const
{
    if (!model || model->IsFixedStepSize())
        return value;
    double const base = std::trunc(model->GetStart());
    if (!(base <= value))
        return value;
    double rest = value - base;
    double sum = base;
    double index = base;
    double const last = std::max(model->GetFrom(), model->GetTo());
    for (int count = std::numeric_limits<int>::max(); ToInt(rest) > 0 && count > 0; --count)
    {
        double const step = model->GetStepSize(index);
        if (!(step > 0) && !(index < last))  // behind the range, nothing without size comes to an end
            break;
        rest -= step;
        sum += 1;
        index += 1;
    }
    return rest + sum;
}

bool CScrollableElement::ScrollContent(int dx, int dy)
{
    switch (GetAlignment())
    {
    case alTop:
    case alBottom:
        return dx != 0;
    case alLeft:
    case alRight:
        return dy != 0;
    case alNone:
    case alClient:
        return dx != 0 || dy != 0;
    }
    return false;
}

}  // namespace vexel
