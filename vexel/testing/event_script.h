#pragma once

#include "vexel/export.h"

#include <string>
#include <vector>

namespace vexel::test
{

class CTestHost;

/// The events that a host was given, as text, so that what a random test did can be printed and played again.
/// One event a line; mouse positions are control pixels, numbers decimal:
///
///     move 10 20 | press 1 | release 1 | lose 1 | double 1 | wheel -1 | hover | leave
///     down 65 0 | up 65 0 | char 228 | hold 256 | focus | unfocus | tab 1 | resize 100 40 | advance 200
///     paint | fullpaint | pending | background | step | tooltip | menu | colors
class VEXEL_TESTING_API CEventScript
{
public:
    std::string Text() const;  ///< One line an event.
    void Clear() { m_Lines.clear(); }

    /// Gives the events of the text to the host, which records them anew. An unknown line fails the test and ends it.
    static void Replay(CTestHost& host, std::string const& text);

private:
    friend class CTestHost;
    friend class CTestClock;
    friend class CMouse;
    friend class CKeyboard;

    void Add(std::string line) { m_Lines.push_back(std::move(line)); }

    std::vector<std::string> m_Lines;
};

} // namespace vexel::test
