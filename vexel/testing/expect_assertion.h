#pragma once

#include "vexel/export.h"

#include <string>

namespace vexel::test
{

/// Expects assertion reports while it stands. A report that no expectation takes fails the test.
///
///     CExpectAssertion twice("this connection is already exists");
///     lamp.m_SigLit.connect(&room, &CRoom::LampLit);
class VEXEL_TESTING_API CExpectAssertion
{
public:
    /// Takes the reports whose expression contains `text`; exactly `count` of them must come. The innermost expectation
    /// is asked first; one that has had its reports takes no more.
    explicit CExpectAssertion(std::string const& text, int count = 1);
    ~CExpectAssertion();  ///< Fails the test if fewer came.
    CExpectAssertion(CExpectAssertion const&) = delete;
    CExpectAssertion& operator=(CExpectAssertion const&) = delete;

    int GetSeen() const { return m_Seen; }

private:
    friend class CAssertionWatch;

    std::string m_Text;
    int m_Count;
    int m_Seen = 0;
    CExpectAssertion* m_Outer;
};

} // namespace vexel::test
