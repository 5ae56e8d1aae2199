#pragma once

#include "vexel/export.h"

#include <string>

namespace vexel::test
{

/// Where the kit's own failures go: what the census finds, assertion reports, expectations that were not met.
/// "vexel/testing/google_test.h" makes them failures of the running test.
using FailureReporter = void (*)(std::string const& message);

/// Takes the reporter; null means the built-in one, which prints to the standard error stream and ends the process.
/// Returns the one in use before.
VEXEL_TESTING_API FailureReporter SetFailureReporter(FailureReporter reporter);

VEXEL_TESTING_API void ReportFailure(std::string const& message);

}  // namespace vexel::test
