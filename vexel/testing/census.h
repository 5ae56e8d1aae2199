#pragma once

#include "vexel/export.h"

#include <string>
#include <vector>

namespace vexel::test
{

/// Counts what a test leaves behind: elements, windows, timers, pictures, native controls, locks, runners, posted
/// runnables, the mouse capture, subscriptions to timers and bars. With "vexel/testing/google_test.h" every test is
/// counted, from before its fixture is made until after it has gone, and fails for each thing that is left.
///
/// Things that live as long as the process, such as a class's shared pictures, are made before the first test by a
/// CWarmUp, so that no test is the one that made them.
class VEXEL_TESTING_API CCensus
{
public:
    /// Starts counting: what lives now doesn't count. Puts the memory system back to its start state.
    static void Begin();
    /// One line for each kind that was left, such as "2 elements left: CButton, CCaption". Then puts everything back
    /// that would disturb the next test: stops timers, drops the capture and what is posted, makes the system that was
    /// the current one at the start the current one again.
    static std::vector<std::string> End();
    /// The same lines for now, without putting anything back.
    static std::vector<std::string> Look();
};

/// Makes things that stay for the whole process. Define one at namespace scope of a test source; the function runs once,
/// before the first test, with the memory system installed.
class VEXEL_TESTING_API CWarmUp
{
public:
    explicit CWarmUp(void (*function)());
};

/// Installs the kit: hears of elements, assertions and exceptions from now on, and runs the warm-ups. A memory system is
/// made the current one by the first CTestHost of a test, until the test ends; before, there is none.
/// "vexel/testing/google_test.h" does it by itself. Once is enough, further calls do nothing.
VEXEL_TESTING_API void InstallKit();

} // namespace vexel::test
