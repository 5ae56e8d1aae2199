#pragma once

#include "vexel/core/fwd.h"
#include "vexel/export.h"
#include "vexel/platform/events.h"

#include <string>

namespace vexel::test
{

class CTestHost;

/// The user's keyboard. Keys go to the window or native control that has the native focus; while nothing has it, to the
/// host's window.
///
/// `key`: a VirtualKey; letters and digits are their upper-case characters. `keys`: ksShift, ksControl, ksAlt, held for
/// this one key in addition to those held by Hold.
class VEXEL_TESTING_API CKeyboard
{
public:
    explicit CKeyboard(CTestHost& host) : m_Host(host) {}

    /// Down, then up. A letter, a digit or a space without control or alt brings OnChar between the two, unless the
    /// down moved the focus (its pass-on flag was cleared). A Tab that nobody dealt with moves the native focus on.
    void Press(int key, int keys = 0);
    void Down(int key, int keys = 0);  ///< Brings the OnChar too, again each time it repeats.
    void Up(int key, int keys = 0);
    /// UTF-8 text: one Press for each letter, digit and space, with shift for upper case; OnChar alone for every other
    /// byte.
    void Type(std::string const& text);
    void Character(char byte);  ///< OnChar alone.
    void Tab(bool forward = true);  ///< Press(vkTab), with shift for backward.

    void Hold(int keys);  ///< These of shift, control and alt are held from now on, for mouse events too; 0: none.
    int GetHeld() const;

private:
    CTestHost& m_Host;
};

/// Holds keys for a scope: `CHoldKeys shift(host, ksShift);`
class VEXEL_TESTING_API CHoldKeys
{
public:
    CHoldKeys(CTestHost& host, int keys);
    ~CHoldKeys();
    CHoldKeys(CHoldKeys const&) = delete;
    CHoldKeys& operator=(CHoldKeys const&) = delete;

private:
    CTestHost& m_Host;
    int m_Before;
};

} // namespace vexel::test
