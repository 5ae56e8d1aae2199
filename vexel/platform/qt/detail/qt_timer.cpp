#include "vexel/platform/qt/detail/qt_timer.h"

#include "vexel/platform/events.h"
#include "vexel/platform/qt/detail/guard.h"
#include "vexel/signals/notify.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <vector>

namespace vexelbase::qt
{

namespace
{

std::vector<CQtTimer*>& AllTimers()
{
    static auto* const timers = new std::vector<CQtTimer*>;  // outlives every static timer
    return *timers;
}

}  // namespace

CQtTimer::CQtTimer(int period) : m_Period(std::max(1, period))
{
    SetSupportedEvent(typeid(ITimerNotify));
    AllTimers().push_back(this);
}

CQtTimer::~CQtTimer()
{
    std::vector<CQtTimer*>& timers = AllTimers();
    timers.erase(std::find(timers.begin(), timers.end(), this));
    // The last reference may go inside the tick, when the Qt timer stands on the stack.
    if (m_Timer)
    {
        m_Timer->stop();
        m_Timer.release()->deleteLater();
    }
}

void CQtTimer::SetPeriod(int milliseconds)
{
    m_Period = std::max(1, milliseconds);
    if (m_Running)
        SetRunning(true);
}

void CQtTimer::SetRunning(bool running)
{
    if (running && !m_Timer && QCoreApplication::instance())
    {
        m_Timer = std::make_unique<QTimer>();
        m_Timer->setTimerType(Qt::PreciseTimer);
        QObject::connect(m_Timer.get(), &QTimer::timeout, m_Timer.get(), [this] { Fire(); });
    }
    m_Running = running && m_Timer;
    if (m_Running)
        m_Timer->start(m_Period);
    else if (m_Timer)
        m_Timer->stop();
}

void CQtTimer::Fire()
{
    vexel_ptr<CQtTimer> const self(this);  // a subscriber may drop the last reference
    Guarded([this] {
        CTimerEvent event;
        vexelbase::Fire<&ITimerNotify::OnTimer>(*this, &event, true);
    });
}

void CQtTimer::StopAll()
{
    for (CQtTimer* const timer : AllTimers())
    {
        timer->m_Running = false;
        timer->m_Timer.reset();
    }
}

}  // namespace vexelbase::qt
