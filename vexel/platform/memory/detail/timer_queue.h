#pragma once

#include "vexel/platform/system.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vexelbase::memory
{

class CMemoryTimer;

/// The running timers of one system, on its virtual clock.
class CTimerQueue
{
public:
    std::int64_t Now() const { return m_Now; }
    void Advance(int milliseconds);
    void Reset();
    std::vector<int> GetRunningPeriods() const;

    void Start(CMemoryTimer& timer, int period);  ///< The wait starts anew.
    void Stop(CMemoryTimer& timer);
    bool IsRunning(CMemoryTimer const& timer) const;

private:
    struct SEntry
    {
        CMemoryTimer* timer;
        int period;
        std::int64_t due;
        std::uint64_t number;  // in the order they began to wait
    };
    std::vector<SEntry>::iterator FindNext();

    std::int64_t m_Now = 0;
    std::uint64_t m_LastNumber = 0;
    std::vector<SEntry> m_Entries;
};

class CMemoryTimer final : public CImplEventSender<ISysTimer>
{
public:
    CMemoryTimer(std::shared_ptr<CTimerQueue> queue, int period);
    ~CMemoryTimer() override;

    bool IsRunning() const override { return m_Queue->IsRunning(*this); }
    void SetPeriod(int milliseconds) override;
    void SetRunning(bool running) override;

    void Tick();

    static int GetCount();
    static int GetRunningCount();
    static int GetSubscriptionCount();

private:
    std::shared_ptr<CTimerQueue> m_Queue;  // may outlive the system
    int m_Period;
};

}  // namespace vexelbase::memory
