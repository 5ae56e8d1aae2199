#pragma once

#include "vexel/platform/system.h"
#include "vexel/scroll/scrollable_element_ex.h"

namespace vexel
{

/// Scrolls an element along its edge on a timer, faster and faster. Steps are physical units.
class VEXEL_API CScrollTimer : public CTimerNotify
{
public:
    /// The first step is `initialStep`; every `ticksPerIncrement` ticks it grows by `stepIncrement`, up to `maxStep`.
    /// The element is not owned; one that dies is forgotten. Without a system the timer never runs.
    CScrollTimer(CScrollableElementEx* element, int intervalMs, int initialStep, int maxStep, int stepIncrement,
                 int ticksPerIncrement);
    ~CScrollTimer() override;

    signal_t<CScrollTimer*> m_SigTimerTick;  ///< After each tick that found a model. A slot may delete the timer.

    /// Begins with the first step; during a run only the direction changes. False: no element, or none with a model.
    bool Start(bool forward);
    void Stop();
    bool IsRunning() const { return m_Timer && m_Timer->IsRunning(); }

    void OnTimer(CTimerEvent* event) override;  ///< One step. At the end of the range the timer stops.

private:
    CElementPtr<CScrollableElementEx> m_Element;
    bool m_Forward = false;
    int m_InitialStep;
    int m_MaxStep;
    int m_StepIncrement;
    int m_TicksPerIncrement;
    vexel_ptr<ISysTimer> m_Timer;
    int m_CurrentStep = 0;
    int m_TickCount = 0;
};

}  // namespace vexel
