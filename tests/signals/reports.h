#pragma once

#include "vexel/signals/assertion.h"

#include <string>
#include <vector>

namespace signals_test
{

struct SReport
{
    std::string expression;
    std::string source;
    int line = 0;
    std::string function;
};

/// Takes the assertion reports while it stands; one at a time.
class CReports
{
public:
    CReports() : m_Previous(plinth::SetAssertionReporter(&Take)) { s_Reports.clear(); }
    ~CReports()
    {
        plinth::SetAssertionReporter(m_Previous);
        s_Throws = false;
        s_OnReport = nullptr;
    }
    CReports(CReports const&) = delete;
    CReports& operator=(CReports const&) = delete;

    /// From now on each report throws an int, 299 for line 299.
    void Throw() { s_Throws = true; }
    /// Is called with each report, before it throws.
    void OnReport(void (*action)(int line)) { s_OnReport = action; }

    std::vector<SReport> const& All() const { return s_Reports; }
    std::size_t Count() const { return s_Reports.size(); }

private:
    static void Take(char const* expression, char const* source, int line, char const* function)
    {
        s_Reports.push_back({expression, source, line, function});
        if (s_OnReport)
            s_OnReport(line);
        if (s_Throws)
            throw line;
    }

    inline static std::vector<SReport> s_Reports;
    inline static bool s_Throws = false;
    inline static void (*s_OnReport)(int line) = nullptr;

    plinth::assertion_reporter_t m_Previous;
};

}  // namespace signals_test
