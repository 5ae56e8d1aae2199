#include "vexel/testing/expect_report.h"

#include "vexel/platform/exception_report.h"
#include "vexel/signals/assertion.h"
#include "vexel/testing/detail/assertion_watch.h"
#include "vexel/testing/failure.h"

#include <mutex>

namespace vexel::test
{

namespace
{

std::mutex g_Mutex;  // reports may come from any thread
CExpectReport* g_Innermost = nullptr;

} // namespace

CExpectReport::CExpectReport(Kind kind, std::string const& text, int count)
    : m_Kind(kind), m_Text(text), m_Count(count)
{
    std::lock_guard const lock(g_Mutex);
    m_Outer = g_Innermost;
    g_Innermost = this;
}

CExpectReport::~CExpectReport()
{
    {
        std::lock_guard const lock(g_Mutex);
        for (CExpectReport** place = &g_Innermost; *place; place = &(*place)->m_Outer)
        {
            if (*place == this)
            {
                *place = m_Outer;
                break;
            }
        }
    }
    if (m_Seen < m_Count)
        ReportFailure(std::string("Expected ") + (m_Kind == Kind::Assertion ? "an assertion" : "an exception") +
                      " with the text \"" + m_Text + "\" " + std::to_string(m_Count) + " times, but it came " +
                      std::to_string(m_Seen) + " times.");
}

void CAssertionWatch::Install()
{
    plinth::SetAssertionReporter(&CAssertionWatch::AssertionReported);
    vexelbase::SetExceptionReporter(&CAssertionWatch::ExceptionReported);
}

bool CAssertionWatch::Take(bool exception, std::string const& text)
{
    auto const kind = exception ? CExpectReport::Kind::Exception : CExpectReport::Kind::Assertion;
    std::lock_guard const lock(g_Mutex);
    for (CExpectReport* expected = g_Innermost; expected; expected = expected->m_Outer)
    {
        if (expected->m_Kind == kind && expected->m_Seen < expected->m_Count &&
            text.find(expected->m_Text) != std::string::npos)
        {
            ++expected->m_Seen;
            return true;
        }
    }
    return false;
}

void CAssertionWatch::AssertionReported(char const* expression, char const* source, int line, char const* function)
{
    if (!Take(false, expression))
        ReportFailure(std::string("An assertion was reported: ") + expression + "\n  " + source + ":" +
                      std::to_string(line) + ", in " + function);
}

void CAssertionWatch::ExceptionReported(char const* where, char const* what)
{
    if (!Take(true, what))
        ReportFailure(std::string("An exception left ") + where + ": " + what);
}

} // namespace vexel::test
