#pragma once

#include "readings.h"

#include "vexel/platform/sys_window.h"
#include "vexel/platform/system.h"
#include "vexel/tasks/gui_task.h"

#include <array>
#include <atomic>
#include <cstdint>

namespace workbench
{

using namespace vexel;

/// Looks for the extremes of all sensors, on a thread of its own. Going, it waits for the end of a round.
class CSearch : public subscriber_base_t, public CGUITask
{
public:
    struct SExtremes
    {
        double least = 0;
        double most = 0;
    };

    /// `rows`: how many readings to look at. The window takes the results to the GUI thread.
    CSearch(ISysWindow& window, int rows);
    ~CSearch() override { Stop(); }

    signal_t<> m_SigRound;  ///< On the GUI thread: there is progress, or the end.

    int GetDone() const { return m_Done; }  ///< Readings; from any thread.
    int GetCount() const { return m_Rows; }
    bool IsDone() const { return m_Done >= m_Rows; }
    /// When it is done.
    SExtremes GetExtremes(int sensor) const { return m_Extremes[static_cast<std::size_t>(sensor)]; }

protected:  // From CGUITask
    bool InternalProcessData() override;
    void InitUpdater(CRunnableProxy* proxy) override { proxy->m_SigRun.connect(this, &CSearch::RoundEnded); }

private:
    void RoundEnded() { m_SigRound(); }

    int const m_Rows;
    vexel_ptr<IRunner> const m_Thread;
    std::atomic<int> m_Done{0};
    std::array<SExtremes, g_SensorCount> m_Extremes;  // the thread's until it is done
};

}  // namespace workbench
