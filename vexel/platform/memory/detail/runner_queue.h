#pragma once

#include "vexel/platform/memory/detail/timer_queue.h"
#include "vexel/platform/threads.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace vexelbase::memory
{

class CScriptedRunner;

/// The scripted runners that are running, in the order they were started. Their waits pass on the virtual clock.
class CRunnerQueue
{
public:
    explicit CRunnerQueue(std::shared_ptr<CTimerQueue> clock) : m_Clock(std::move(clock)) {}

    std::int64_t Now() const { return m_Clock->Now(); }
    int Step();
    int GetRunning() const { return static_cast<int>(m_Runners.size()); }
    void Reset();

    void Add(CScriptedRunner& runner) { m_Runners.push_back(&runner); }
    void Remove(CScriptedRunner& runner) { std::erase(m_Runners, &runner); }

private:
    std::shared_ptr<CTimerQueue> m_Clock;
    std::vector<CScriptedRunner*> m_Runners;
};

/// A runner whose rounds are run by hand, on the caller's thread.
class CScriptedRunner final : public IRunner
{
public:
    explicit CScriptedRunner(std::shared_ptr<CRunnerQueue> queue);
    ~CScriptedRunner() override;

    void Run(IRunnable* runnable) override;
    void Stop() override;
    bool IsRunning() const override { return m_Runnable != nullptr; }
    void SetWait(int milliseconds) override;

    bool IsDue() const { return m_Runnable && m_Due <= m_Queue->Now(); }
    void Round();

private:
    std::shared_ptr<CRunnerQueue> m_Queue;
    IRunnable* m_Runnable = nullptr;
    int m_Wait = 0;
    std::int64_t m_Due = 0;
    unsigned m_Start = 0;  // counts the starts, so that a round knows whether its loop is still the one
};

/// The living scripted runners of the process.
int GetScriptedRunnerCount();

}  // namespace vexelbase::memory
