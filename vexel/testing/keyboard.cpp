#include "vexel/testing/keyboard.h"

#include "vexel/testing/test_host.h"

#include "vexel/platform/memory/memory_system.h"

namespace vexel::test
{

namespace
{

bool IsDigit(int key)
{
    return key >= '0' && key <= '9';
}

bool IsLetter(int key)
{
    return key >= 'A' && key <= 'Z';
}

// The character of a key, 0 if it has none.
char CharacterOf(int key, int keys)
{
    if (keys & (ksControl | ksAlt))
        return 0;
    if (IsLetter(key))
        return static_cast<char>(keys & ksShift ? key : key - 'A' + 'a');
    if (key == vkSpace || (IsDigit(key) && !(keys & ksShift)))
        return static_cast<char>(key);
    return 0;
}

// Keys held for one event besides those that are held anyway.
struct SHeld
{
    vexelbase::memory::CMemorySystem& system;
    int const before;

    SHeld(vexelbase::memory::CMemorySystem& s, int keys) : system(s), before(s.GetKeyState())
    {
        system.SetHeldKeys(before | keys);
    }
    ~SHeld() { system.SetHeldKeys(before); }
};

std::string Line(char const* verb, int key, int keys)
{
    return std::string(verb) + " " + std::to_string(key) + " " + std::to_string(keys);
}

} // namespace

void CKeyboard::Press(int key, int keys)
{
    Down(key, keys);
    Up(key, keys);
}

void CKeyboard::Down(int key, int keys)
{
    m_Host.Script().Add(Line("down", key, keys));
    SHeld const held(m_Host.System(), keys);
    char const character = CharacterOf(key, GetHeld());
    bool passOn = true;
    m_Host.System().KeyDown(key, m_Host.KeyTarget(), &passOn);
    if (passOn && character)
        m_Host.System().Character(character, m_Host.KeyTarget());
}

void CKeyboard::Up(int key, int keys)
{
    m_Host.Script().Add(Line("up", key, keys));
    SHeld const held(m_Host.System(), keys);
    m_Host.System().KeyUp(key, m_Host.KeyTarget());
}

void CKeyboard::Character(char byte)
{
    m_Host.Script().Add("char " + std::to_string(static_cast<unsigned char>(byte)));
    m_Host.System().Character(byte, m_Host.KeyTarget());
}

void CKeyboard::Type(std::string const& text)
{
    for (char const c : text)
    {
        bool const lower = c >= 'a' && c <= 'z';
        if (lower || IsLetter(c))
            Press(lower ? c - 'a' + 'A' : c, lower ? 0 : ksShift);
        else if (IsDigit(c) || c == ' ')
            Press(c);
        else
            Character(c);
    }
}

void CKeyboard::Tab(bool forward)
{
    Press(vkTab, forward ? 0 : ksShift);
}

void CKeyboard::Hold(int keys)
{
    m_Host.Script().Add("hold " + std::to_string(keys));
    m_Host.System().SetHeldKeys(keys);
}

int CKeyboard::GetHeld() const
{
    return m_Host.System().GetKeyState() & (ksShift | ksControl | ksAlt);
}

CHoldKeys::CHoldKeys(CTestHost& host, int keys) : m_Host(host), m_Before(host.Keyboard().GetHeld())
{
    m_Host.Keyboard().Hold(m_Before | keys);
}

CHoldKeys::~CHoldKeys()
{
    m_Host.Keyboard().Hold(m_Before);
}

} // namespace vexel::test
