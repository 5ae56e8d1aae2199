#pragma once

#include "vexel/export.h"

#include <cstdint>

namespace vexelbase::memory
{
class CMemorySystem;
}

namespace vexel::test
{

class CEventScript;

/// The virtual clock, which stands still but for Advance.
class VEXEL_TESTING_API CTestClock
{
public:
    explicit CTestClock(CEventScript& script) : m_Script(script) {}

    /// Milliseconds since the test began.
    std::int64_t Now() const;
    /// Lets time pass: every timer that falls due on the way fires at its own moment, earlier ones first, of the same
    /// moment the one first that began to wait first. A timer with a period of 100 fires twice in Advance(200).
    /// Timers that are stopped, restarted or deleted by a tick are heeded. Nothing is painted or taken from the queue.
    void Advance(int milliseconds);
    /// How many timers are running.
    int GetRunningTimers() const;

private:
    CEventScript& m_Script;
};

}  // namespace vexel::test
