#include "work.h"

#include <algorithm>

namespace workbench
{

namespace
{

int const g_RowsOfRound = 100000;

}  // namespace

CSearch::CSearch(ISysWindow& window, int rows) : m_Rows(rows), m_Thread(GetCurrentSystem()->GetRunner())
{
    for (int sensor = 0; sensor < g_SensorCount; ++sensor)
    {
        double const first = Read(0, sensor);
        m_Extremes[static_cast<std::size_t>(sensor)] = {first, first};
    }
    SetSynchronizer(&window);
    SetRunner(m_Thread.get());
}

bool CSearch::InternalProcessData()
{
    int const from = m_Done;
    int const to = std::min(from + g_RowsOfRound, m_Rows);
    for (int row = from; row < to; ++row)
        for (int sensor = 0; sensor < g_SensorCount; ++sensor)
        {
            SExtremes& extremes = m_Extremes[static_cast<std::size_t>(sensor)];
            double const value = Read(row, sensor);
            extremes.least = std::min(extremes.least, value);
            extremes.most = std::max(extremes.most, value);
        }
    m_Done = to;
    return to < m_Rows;
}

}  // namespace workbench
