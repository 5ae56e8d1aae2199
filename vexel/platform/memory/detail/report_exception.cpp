#include "vexel/platform/memory/detail/report_exception.h"

#include "vexel/signals/cancel_processing.h"
#include "vexel/signals/event.h"

#include <cstdio>
#include <exception>

namespace vexelbase::memory
{

void ReportException(char const* where)
{
    try
    {
        throw;
    }
    catch (vexel::cancel_processing const&)
    {
    }
    catch (cancel_processing const&)
    {
    }
    catch (std::exception const& error)
    {
        std::fprintf(stderr, "vexel: an exception left %s: %s\n", where, error.what());
    }
    catch (...)
    {
        std::fprintf(stderr, "vexel: an exception left %s\n", where);
    }
}

} // namespace vexelbase::memory
