#pragma once

#include "vexel/signals/assertion.h"

/// Takes the assertion reports of a scope and counts them.
class CAssertionCount
{
public:
    CAssertionCount() : m_Before(plinth::SetAssertionReporter(&Report)) { s_Count = 0; }
    ~CAssertionCount() { plinth::SetAssertionReporter(m_Before); }
    CAssertionCount(CAssertionCount const&) = delete;
    CAssertionCount& operator=(CAssertionCount const&) = delete;

    int Get() const { return s_Count; }

private:
    static void Report(char const*, char const*, int, char const*) { ++s_Count; }

    static inline int s_Count = 0;

    plinth::assertion_reporter_t m_Before;
};
