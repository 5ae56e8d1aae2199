#include "vexel/testing/clock.h"

#include "vexel/testing/detail/kit_system.h"
#include "vexel/testing/event_script.h"

namespace vexel::test
{

std::int64_t CTestClock::Now() const
{
    return detail::KitSystem().GetTime();
}

void CTestClock::Advance(int milliseconds)
{
    m_Script.Add("advance " + std::to_string(milliseconds));
    detail::KitSystem().Advance(milliseconds);
}

int CTestClock::GetRunningTimers() const
{
    return static_cast<int>(detail::KitSystem().GetRunningPeriods().size());
}

} // namespace vexel::test
