#include "vexel/signals/assertion.h"

#include <atomic>
#include <cstdio>

namespace plinth
{

namespace
{

constinit std::atomic<assertion_reporter_t> s_reporter{nullptr};

}  // namespace

assertion_reporter_t SetAssertionReporter(assertion_reporter_t reporter) noexcept
{
    return s_reporter.exchange(reporter);
}

void ReportAssertion(char const* expression, char const* source, int line, char const* function)
{
    if (assertion_reporter_t const reporter = s_reporter.load())
        reporter(expression, source, line, function);
    else
        std::fprintf(stderr, "%s:%d: assertion failed: %s, in %s\n", source, line, expression, function);
}

}  // namespace plinth
