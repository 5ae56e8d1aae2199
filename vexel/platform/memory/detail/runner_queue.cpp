#include "vexel/platform/memory/detail/runner_queue.h"

#include "vexel/platform/exception_report.h"

#include <algorithm>
#include <atomic>

namespace vexelbase::memory
{

namespace
{
std::atomic<int> g_Count{0};
}

int GetScriptedRunnerCount()
{
    return g_Count;
}

// CRunnerQueue -----------------------------------------------------------------------------------------------------

int CRunnerQueue::Step()
{
    std::vector<vexel_ptr<CScriptedRunner>> due;
    for (CScriptedRunner* runner : m_Runners)
    {
        if (runner->IsDue())
            due.emplace_back(runner);
    }
    int rounds = 0;
    for (vexel_ptr<CScriptedRunner> const& runner : due)
    {
        if (!runner->IsDue())
            continue;  // another one's round has stopped it
        runner->Round();
        ++rounds;
    }
    return rounds;
}

void CRunnerQueue::Reset()
{
    while (!m_Runners.empty())
        m_Runners.back()->Stop();
}

// CScriptedRunner --------------------------------------------------------------------------------------------------

CScriptedRunner::CScriptedRunner(std::shared_ptr<CRunnerQueue> queue) : m_Queue(std::move(queue))
{
    ++g_Count;
}

CScriptedRunner::~CScriptedRunner()
{
    CScriptedRunner::Stop();
    --g_Count;
}

void CScriptedRunner::Run(IRunnable* runnable)
{
    if (!runnable || m_Runnable)
        return;
    m_Runnable = runnable;
    m_Due = m_Queue->Now() + m_Wait;
    ++m_Start;
    m_Queue->Add(*this);
}

void CScriptedRunner::Stop()
{
    if (!m_Runnable)
        return;
    m_Runnable = nullptr;
    m_Queue->Remove(*this);
}

void CScriptedRunner::SetWait(int milliseconds)
{
    m_Wait = std::max(milliseconds, 0);
}

void CScriptedRunner::Round()
{
    unsigned const start = m_Start;
    bool goOn = false;
    try
    {
        goOn = m_Runnable->Run();
    }
    catch (...)
    {
        ReportException("background work");
    }
    if (!m_Runnable || start != m_Start)
        return;
    if (goOn)
        m_Due = m_Queue->Now() + m_Wait;
    else
        Stop();
}

}  // namespace vexelbase::memory
