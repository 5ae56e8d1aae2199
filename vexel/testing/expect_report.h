#pragma once

#include "vexel/export.h"

#include <string>

namespace vexel::test
{

class CAssertionWatch;

/// Expects reports while it stands: of assertions, and of exceptions that left a handler and were stopped before they
/// reached a native loop. A report that no expectation takes fails the test.
///
///     CExpectAssertion twice("this connection is already exists");
///     lamp.m_SigLit.connect(&room, &CRoom::LampLit);
class VEXEL_TESTING_API CExpectReport
{
public:
    CExpectReport(CExpectReport const&) = delete;
    CExpectReport& operator=(CExpectReport const&) = delete;

    int GetSeen() const { return m_Seen; }  ///< Reports taken so far.

protected:
    enum class Kind { Assertion, Exception };

    CExpectReport(Kind kind, std::string const& text, int count);
    ~CExpectReport();  ///< Fails the test if fewer came.

private:
    friend class CAssertionWatch;

    Kind m_Kind;
    std::string m_Text;
    int m_Count;
    int m_Seen = 0;
    CExpectReport* m_Outer;
};

/// Expects assertion reports; exactly `count` whose expression contains `text` must come. The innermost expectation is
/// asked first; one that has had its reports takes no more.
class VEXEL_TESTING_API CExpectAssertion : public CExpectReport
{
public:
    explicit CExpectAssertion(std::string const& text, int count = 1) : CExpectReport(Kind::Assertion, text, count) {}
};

/// Expects exceptions of handlers; exactly `count` whose text contains `text` must come. One that is no std::exception
/// has the text "something". The cancellation types are never reported.
class VEXEL_TESTING_API CExpectException : public CExpectReport
{
public:
    explicit CExpectException(std::string const& text, int count = 1) : CExpectReport(Kind::Exception, text, count) {}
};

} // namespace vexel::test
