#pragma once

#include <string>

namespace vexel::test
{

/// Takes the reports of assertions and of exceptions that handlers threw.
class CAssertionWatch
{
public:
    static void Install();

private:
    static bool Take(bool exception, std::string const& text);
    static void AssertionReported(char const* expression, char const* source, int line, char const* function);
    static void ExceptionReported(char const* where, char const* what);
};

} // namespace vexel::test
