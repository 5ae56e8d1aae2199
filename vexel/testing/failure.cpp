#include "vexel/testing/failure.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace vexel::test
{

namespace
{

void PrintAndEnd(std::string const& message)
{
    std::fprintf(stderr, "%s\n", message.c_str());
    std::abort();
}

FailureReporter g_Reporter = &PrintAndEnd;

} // namespace

FailureReporter SetFailureReporter(FailureReporter reporter)
{
    return std::exchange(g_Reporter, reporter ? reporter : &PrintAndEnd);
}

void ReportFailure(std::string const& message)
{
    g_Reporter(message);
}

} // namespace vexel::test
