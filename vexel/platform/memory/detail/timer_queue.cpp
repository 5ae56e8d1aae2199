#include "vexel/platform/memory/detail/timer_queue.h"

#include "vexel/platform/events.h"
#include "vexel/platform/exception_report.h"
#include "vexel/signals/notify.h"

#include <algorithm>

namespace vexelbase::memory
{

namespace
{

std::vector<CMemoryTimer*>& AllTimers()
{
    static std::vector<CMemoryTimer*>* const timers = new std::vector<CMemoryTimer*>;  // for static timers to leave
    return *timers;
}

}  // namespace

// CTimerQueue ------------------------------------------------------------------------------------------------------

std::vector<CTimerQueue::SEntry>::iterator CTimerQueue::FindNext()
{
    return std::min_element(m_Entries.begin(), m_Entries.end(), [](SEntry const& a, SEntry const& b) {
        return a.due != b.due ? a.due < b.due : a.number < b.number;
    });
}

void CTimerQueue::Advance(int milliseconds)
{
    std::int64_t const end = m_Now + std::max(milliseconds, 0);
    for (;;)
    {
        auto const next = FindNext();
        if (next == m_Entries.end() || next->due > end)
            break;
        m_Now = std::max(m_Now, next->due);
        next->due += next->period;
        next->number = ++m_LastNumber;
        next->timer->Tick();
    }
    m_Now = std::max(m_Now, end);
}

void CTimerQueue::Reset()
{
    m_Entries.clear();
    m_Now = 0;
}

std::vector<int> CTimerQueue::GetRunningPeriods() const
{
    std::vector<SEntry> entries = m_Entries;
    std::sort(entries.begin(), entries.end(),
              [](SEntry const& a, SEntry const& b) { return a.due != b.due ? a.due < b.due : a.number < b.number; });
    std::vector<int> periods;
    periods.reserve(entries.size());
    for (SEntry const& entry : entries)
        periods.push_back(entry.period);
    return periods;
}

void CTimerQueue::Start(CMemoryTimer& timer, int period)
{
    Stop(timer);
    m_Entries.push_back({&timer, period, m_Now + period, ++m_LastNumber});
}

void CTimerQueue::Stop(CMemoryTimer& timer)
{
    std::erase_if(m_Entries, [&](SEntry const& entry) { return entry.timer == &timer; });
}

bool CTimerQueue::IsRunning(CMemoryTimer const& timer) const
{
    return std::any_of(m_Entries.begin(), m_Entries.end(), [&](SEntry const& entry) { return entry.timer == &timer; });
}

// CMemoryTimer -----------------------------------------------------------------------------------------------------

CMemoryTimer::CMemoryTimer(std::shared_ptr<CTimerQueue> queue, int period)
    : m_Queue(std::move(queue)), m_Period(std::max(period, 1))
{
    SetSupportedEvent(typeid(ITimerNotify));
    AllTimers().push_back(this);
}

CMemoryTimer::~CMemoryTimer()
{
    m_Queue->Stop(*this);
    std::erase(AllTimers(), this);
}

void CMemoryTimer::SetPeriod(int milliseconds)
{
    m_Period = std::max(milliseconds, 1);
    if (IsRunning())
        m_Queue->Start(*this, m_Period);
}

void CMemoryTimer::SetRunning(bool running)
{
    if (running)
        m_Queue->Start(*this, m_Period);
    else
        m_Queue->Stop(*this);
}

void CMemoryTimer::Tick()
{
    vexel_ptr<CMemoryTimer> const self(this);  // a handler may drop the last reference
    CTimerEvent event;
    try
    {
        Fire<&ITimerNotify::OnTimer>(*this, &event, true);
    }
    catch (...)
    {
        ReportException("a timer");
    }
}

int CMemoryTimer::GetCount()
{
    return static_cast<int>(AllTimers().size());
}

int CMemoryTimer::GetRunningCount()
{
    auto const running = [](CMemoryTimer const* timer) { return timer->IsRunning(); };
    return static_cast<int>(std::count_if(AllTimers().begin(), AllTimers().end(), running));
}

int CMemoryTimer::GetSubscriptionCount()
{
    int count = 0;
    for (CMemoryTimer* timer : AllTimers())
        count += timer->GetSubscribersCount(typeid(ITimerNotify));
    return count;
}

}  // namespace vexelbase::memory
