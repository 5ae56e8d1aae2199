#pragma once

#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"
#include "vexel/tasks/gui_task.h"

#include <functional>
#include <utility>

namespace table
{

using namespace vexel;

/// Runs a piece of work on a thread of its own, again and again until it answers false, and tells the GUI thread after each
/// round. Going, it waits for the end of the round.
class CBackground : public subscriber_base_t, public CGUITask
{
public:
    /// `work`: called on the other thread. `window`: takes the results to the GUI thread.
    CBackground(ISysWindow& window, std::function<bool()> work)
        : m_Work(std::move(work)), m_Thread(GetCurrentSystem()->GetRunner())
    {
        SetSynchronizer(&window);
        SetRunner(m_Thread.get());
    }
    ~CBackground() override { Stop(); }

    signal_t<> m_SigRound;  ///< On the GUI thread.

protected:
    bool InternalProcessData() override { return m_Work(); }
    void InitUpdater(CRunnableProxy* proxy) override { proxy->m_SigRun.connect(this, &CBackground::RoundEnded); }

private:
    void RoundEnded() { m_SigRound(); }

    std::function<bool()> const m_Work;
    vexel_ptr<IRunner> const m_Thread;
};

}  // namespace table
