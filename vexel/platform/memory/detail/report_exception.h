#pragma once

namespace vexelbase::memory
{

/// Inside a catch block: one line on stderr that names where the exception came from; nothing for the cancellation types.
void ReportException(char const* where);

} // namespace vexelbase::memory
