#pragma once

#include "vexel/export.h"

namespace vexelbase
{

/// Hears of exceptions that would leave the framework into a native loop. `where`: what threw, such as "an event
/// handler"; `what`: the exception's text, or "something" where it has none. Called inside the catch block, on the GUI
/// thread or, for background work, on another one. Must not throw.
using ExceptionReporter = void (*)(char const* where, char const* what);

/// Takes the process-wide reporter; null means the built-in one, which prints one line to the standard error stream.
/// Returns the one in use before, null for the built-in one.
VEXEL_API ExceptionReporter SetExceptionReporter(ExceptionReporter reporter);

/// To be called inside a catch block: hands the exception to the reporter. The cancellation types are no errors and go
/// unreported.
VEXEL_API void ReportException(char const* where);

}  // namespace vexelbase
