#include "vexel/scroll/scroll_timer.h"

#include "vexel/platform/convert.h"
#include "vexel/scroll/scroll_converter.h"

#include <algorithm>
#include <cmath>

namespace vexel
{

CScrollTimer::CScrollTimer(CScrollableElementEx* element, int intervalMs, int initialStep, int maxStep,
                           int stepIncrement, int ticksPerIncrement)
    : m_Element(element), m_InitialStep(initialStep), m_MaxStep(maxStep), m_StepIncrement(stepIncrement),
      m_TicksPerIncrement(ticksPerIncrement)
{
    ISystem* const system = GetCurrentSystem();
    if (!system)
        return;
    m_Timer = system->CreateTimer(intervalMs, 0);
    if (m_Timer)
        m_Timer->Subscribe(this, typeid(ITimerNotify), true);
}

CScrollTimer::~CScrollTimer()
{
    CAliveLink::Forget(this);
    if (!m_Timer)
        return;
    m_Timer->Unsubscribe(this, typeid(ITimerNotify), true);
    m_Timer->SetRunning(false);
}

bool CScrollTimer::Start(bool forward)
{
    if (!m_Element || !m_Element->GetScrollModel())
        return false;
    m_Forward = forward;
    if (m_Timer && !m_Timer->IsRunning())
    {
        m_Timer->SetRunning(true);
        m_CurrentStep = m_InitialStep;
        m_TickCount = 0;
    }
    return true;
}

void CScrollTimer::Stop()
{
    if (m_Timer)
        m_Timer->SetRunning(false);
}

void CScrollTimer::OnTimer(CTimerEvent*)
{
    IScrollModel* const model = m_Element ? m_Element->GetScrollModel() : nullptr;
    if (!model)
        return;
    CAlivePtr<CScrollTimer> const alive(this);
    CScrollConverter const converter(model);
    double position = std::trunc(converter.L2P(model->GetStart()));
    if (m_Forward)
    {
        rectangle<int> const content = m_Element->GetContentRect();
        double const along = m_Element->GetAlong(SubtractSaturated(content.right, content.left),
                                                 SubtractSaturated(content.bottom, content.top));
        double const limit = std::trunc(converter.L2P(model->GetTo()) - along);  // the element is still filled
        position += m_CurrentStep;
        if (position > limit)
        {
            position = limit;
            Stop();
        }
    }
    else
    {
        position -= m_CurrentStep;
        double const limit = converter.L2P(model->GetFrom());
        if (limit > position)
        {
            position = std::trunc(limit);
            Stop();
        }
    }
    model->SetStart(converter.P2L(position));
    if (alive && m_Element)
        m_Element->OnChange(m_Element.get(), utGlobal);
    if (!alive)
        return;
    m_TickCount = AddSaturated(m_TickCount, 1);
    if (m_TickCount == m_TicksPerIncrement && m_CurrentStep < m_MaxStep)
    {
        m_CurrentStep = std::min(AddSaturated(m_CurrentStep, m_StepIncrement), m_MaxStep);
        m_TickCount = 0;
    }
    m_SigTimerTick(this);
}

}  // namespace vexel
