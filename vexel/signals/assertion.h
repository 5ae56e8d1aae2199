#pragma once

#include "vexel/export.h"

namespace plinth
{

/// Takes the four values of an assertion that did not hold. May be called on any thread. The code that asserted goes on
/// when it returns; it may throw, and the exception then leaves the operation that asserted.
using assertion_reporter_t = void (*)(char const* expression, char const* source, int line, char const* function);

/// Takes the process-wide reporter; null means the built-in one, which prints one line to the standard error stream.
/// Returns the one that was in use, null for the built-in one.
VEXEL_API assertion_reporter_t SetAssertionReporter(assertion_reporter_t reporter) noexcept;

/// Hands the four values to the reporter in use.
VEXEL_API void ReportAssertion(char const* expression, char const* source, int line, char const* function);

}  // namespace plinth
