// A user who does anything at all to every page: nothing breaks, nothing is left, and in a window that is large enough for
// the page, what is shown is what a full paint shows. VEXEL_MONKEY_EVENTS tells the number of events per page.

#include "gallery/frame/frame.h"
#include "gallery/pages.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <string>

using namespace vexel;
using namespace vexel::test;

namespace gallery
{

namespace
{

int EventCount()
{
    char const* const text = std::getenv("VEXEL_MONKEY_EVENTS");
    return text ? std::atoi(text) : 1500;
}

char const* NameOf(int page)
{
    return GetPages()[static_cast<std::size_t>(page)].name;
}

class Monkey : public testing::TestWithParam<int>
{
protected:
    Monkey() : m_Frame(m_Host.Control(), {}, {.page = GetParam()}) { m_Host.Paint(); }

    void DoAnything(bool desktop);
    void Play(int events, bool desktop);
    void UseMouse();
    void UseKeys();
    void UseDesktop();
    MouseButton AnyButton() { return m_Random.Pick(std::array{mbLeft, mbLeft, mbLeft, mbRight, mbMiddle}); }
    bool IsRemembered(CVisualElement* element)
    {
        return !element || element->GetControl() == m_Host.Control().GetControl();
    }
    void ExpectOrder();

    CTestHost m_Host{1000, 700};
    CFrame m_Frame;
    CTestRandom m_Random;
};

void Monkey::UseMouse()
{
    CMouse& mouse = m_Host.Mouse();
    rectangle<int> const window = m_Host.Window().GetRect();
    int const x = m_Random.Int(-20, window.right + 20);
    int const y = m_Random.Int(-20, window.bottom + 20);
    MouseButton const button = AnyButton();
    switch (m_Random.Index(10))
    {
    case 0:
        return mouse.Press(x, y, button);
    case 1:
    case 2:
        return mouse.Release(button);
    case 3:
        return mouse.Click(x, y, button);
    case 4:
        return mouse.DoubleClick(x, y, button);
    case 5:
        return mouse.Wheel(x, y, m_Random.Int(-3, 3));
    case 6:
        return mouse.Hover(x, y);
    case 7:
        return mouse.Leave();
    case 8:
        return mouse.LoseRelease(button);
    default:
        return mouse.Move(x, y);
    }
}

void Monkey::UseKeys()
{
    static int const keys[] = {9, 9, 9, 13, 27, 32, 33, 34, 35, 36, 37, 38, 39, 40, 'A', 'C', 'X', '7'};
    int const held[] = {0, 0, 0, ksShift, ksControl, ksAlt};
    CKeyboard& keyboard = m_Host.Keyboard();
    switch (m_Random.Index(5))
    {
    case 0:
        return keyboard.Type(m_Random.Pick(std::array<std::string, 4>{"a", "Zz 1", "\xC3\xA4", "\xE2\x82\xAC"}));
    case 1:
        return keyboard.Down(m_Random.Pick(keys), m_Random.Pick(held));
    case 2:
        return keyboard.Up(m_Random.Pick(keys), m_Random.Pick(held));
    default:
        return keyboard.Press(m_Random.Pick(keys), m_Random.Pick(held));
    }
}

void Monkey::UseDesktop()
{
    rectangle<int> const window = m_Host.Window().GetRect();
    int const x = m_Random.Index(window.right);
    int const y = m_Random.Index(window.bottom);
    switch (m_Random.Index(12))
    {
    case 0:
        return m_Host.Resize(m_Random.Int(1, 1100), m_Random.Int(1, 800));
    case 1:
        return m_Host.Resize(1000, 700);
    case 2:
        return m_Host.Focus();
    case 3:
        return m_Host.Unfocus();
    case 4:
        return m_Host.TabInto(m_Random.Bool());
    case 5:
        static_cast<void>(m_Host.Tooltip(x, y));
        return;
    case 6:
        return m_Host.ContextMenu(x, y);
    case 7:
        return m_Host.SysColorChange();
    case 8:
        return m_Host.Window().LoseSurface();
    default:
        m_Host.Clock().Advance(m_Random.Int(1, 700));
        m_Host.RunPending();
        m_Host.RunBackground();
    }
}

// `desktop`: the window may be resized, too.
void Monkey::DoAnything(bool desktop)
{
    int const what = m_Random.Index(100);
    if (what < 60)
        UseMouse();
    else if (what < 85)
        UseKeys();
    else if (desktop)
        UseDesktop();
    else
        m_Host.Clock().Advance(m_Random.Int(1, 700));
    if (m_Random.Chance(40))
        m_Host.Paint();
}

// What holds whatever was done.
void Monkey::ExpectOrder()
{
    IControl& control = *m_Host.Control().GetControl();
    EXPECT_TRUE(IsRemembered(control.GetCapture()));
    EXPECT_TRUE(IsRemembered(control.GetFocusedElement()));
    EXPECT_TRUE(IsRemembered(control.GetMouseElement()));
    EXPECT_TRUE(IsRemembered(control.GetDraggedElement()));
    EXPECT_TRUE(IsRemembered(control.GetDragTarget()));
}

void Monkey::Play(int events, bool desktop)
{
    for (int i = 0; i < events; ++i)
    {
        DoAnything(desktop);
        if (i % 50 == 0)
            ExpectOrder();
        if (HasFailure())
            FAIL() << "at event " << i;
    }
    for (MouseButton const button : {mbLeft, mbRight, mbMiddle})
        m_Host.Mouse().Release(button);
}

}  // namespace

TEST_P(Monkey, BreaksNothing)
{
    Play(EventCount(), true);
}

TEST_P(Monkey, SeesWhatAFullPaintShows)
{
    for (int i = 0; i < 5 && !HasFailure(); ++i)
    {
        Play(EventCount() / 15, false);
        m_Host.Paint();
        if (NameOf(m_Frame.GetState().page) != std::string("repaint"))  // counts its paints
        {
            EXPECT_EQ(m_Host.CompareWithFullPaint(), "") << "on the page " << NameOf(m_Frame.GetState().page);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(All, Monkey, testing::Range(0, static_cast<int>(GetPages().size())),
                         [](auto const& page) { return std::string(NameOf(page.param)); });

}  // namespace gallery
