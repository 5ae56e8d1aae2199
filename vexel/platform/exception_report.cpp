#include "vexel/platform/exception_report.h"

#include "vexel/signals/cancel_processing.h"
#include "vexel/signals/event.h"

#include <atomic>
#include <cstdio>
#include <exception>

namespace vexelbase
{

namespace
{

void Print(char const* where, char const* what)
{
    std::fprintf(stderr, "vexel: %s has thrown: %s\n", where, what);
}

std::atomic<ExceptionReporter> g_Reporter{nullptr};

void Report(char const* where, char const* what)
{
    ExceptionReporter const reporter = g_Reporter.load();
    (reporter ? reporter : &Print)(where, what);
}

}  // namespace

ExceptionReporter SetExceptionReporter(ExceptionReporter reporter)
{
    return g_Reporter.exchange(reporter);
}

void ReportException(char const* where)
{
    try
    {
        throw;
    }
    catch (vexel::cancel_processing const&)
    {}
    catch (cancel_processing const&)
    {}
    catch (std::exception const& exception)
    {
        Report(where, exception.what());
    }
    catch (...)
    {
        Report(where, "something");
    }
}

}  // namespace vexelbase
