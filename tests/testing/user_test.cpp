#include "tests/testing/lamp.h"

#include <gmock/gmock.h>

namespace vexel
{
namespace
{

using namespace vexel::test;

// A lamp on the left, (0, 0, 20, 39), and one on the right, (79, 0, 99, 39), of a control of 100 x 40 pixels.
class User : public ::testing::Test
{
protected:
    User()
    {
        m_Host.Name(m_Left, "left");
        m_Host.Name(m_Right, "right");
        m_Host.Paint();
    }

    CTestHost m_Host{100, 40};
    CLamp m_Left{m_Host.Root(), {20, 20}, alLeft};
    CLamp m_Right{m_Host.Root(), {20, 20}, alRight};
    CSignalLog m_Log;
};

// Mouse ------------------------------------------------------------------------------------------------------------

TEST_F(User, PositionsAreThoseOfTheElementOrOfTheControl)
{
    m_Log.Add(m_Right.m_SigMouseMove, "move");
    m_Host.Mouse().Move(m_Right, 3, 4);
    EXPECT_EQ(m_Host.Mouse().GetPos(), (point<int>{82, 4}));
    m_Host.Mouse().Move(83, 4);
    EXPECT_EQ(m_Log.Text(), "move(3, 4, 0, 0) move(4, 4, 0, 0)");
    EXPECT_EQ(CTestHost::System().GetPointerPos(), (point<int>{283, 104}));
}

TEST_F(User, AMoveToWhereThePointerStandsIsNoEvent)
{
    m_Host.Mouse().Move(m_Left, 3, 4);
    m_Log.Add(m_Left.m_SigMouseMove, "move");
    m_Log.Add(m_Left.m_SigButtonDown, "down");
    m_Host.Mouse().Press(m_Left, 3, 4);
    EXPECT_EQ(m_Log.Text(), "down(3, 4, 1, 1)");
}

TEST_F(User, APressMovesThereFirst)
{
    m_Log.Add(m_Left.m_SigMouseHover, "hover");
    m_Log.Add(m_Left.m_SigMouseMove, "move");
    m_Log.Add(m_Left.m_SigButtonDown, "down");
    m_Host.Mouse().Press(m_Left, 3, 4);
    EXPECT_EQ(m_Log.Text(), "hover() move(3, 4, 0, 0) down(3, 4, 1, 1)");
    EXPECT_TRUE(m_Host.Mouse().IsHeld(mbLeft));
}

TEST_F(User, AClickIsPressAndRelease)
{
    m_Log.Add(m_Left.m_SigButtonDown, "down").Add(m_Left.m_SigClick, "click").Add(m_Left.m_SigButtonUp, "up");
    m_Host.Mouse().Click(m_Left, 3, 4);
    EXPECT_EQ(m_Log.Take(), "down(3, 4, 1, 1) click(3, 4, 0, 1) up(3, 4, 0, 1)");
    m_Host.Mouse().Click(m_Left, 3, 4, mbRight);
    EXPECT_EQ(m_Log.Take(), "down(3, 4, 2, 3) click(3, 4, 0, 3) up(3, 4, 0, 3)");
    EXPECT_FALSE(m_Host.Mouse().IsHeld(mbLeft));
}

TEST_F(User, ADoubleClickIsTwoClicksWithADoubleClickInTheSecondPress)
{
    m_Log.Add(m_Left.m_SigButtonDown, "down").Add(m_Left.m_SigClick, "click").Add(m_Left.m_SigDoubleClick, "double");
    m_Host.Mouse().DoubleClick(m_Left, 3, 4);
    EXPECT_EQ(m_Log.Text(), "down(3, 4, 1, 1) click(3, 4, 0, 1) down(3, 4, 1, 1) double(3, 4, 1, 1) click(3, 4, 0, 1)");
}

TEST_F(User, AReleaseElsewhereIsNoClick)
{
    m_Log.Add(m_Left.m_SigClick, "left").Add(m_Right.m_SigClick, "right");
    m_Host.Mouse().Press(m_Left, 3, 4);
    m_Host.Mouse().Release(m_Right, 3, 4);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(User, LeavingTheWindowLeavesTheElement)
{
    m_Log.Add(m_Left.m_SigMouseHover, "hover").Add(m_Left.m_SigMouseLeave, "leave");
    m_Host.Mouse().Move(m_Left, 3, 4);
    EXPECT_EQ(m_Host.Control().GetMouseElement(), &m_Left);
    m_Host.Mouse().Leave();
    EXPECT_EQ(m_Log.Text(), "hover() leave()");
    EXPECT_EQ(m_Host.Control().GetMouseElement(), nullptr);
}

TEST_F(User, TheCursorFollowsTheElementUnderThePointer)
{
    m_Left.SetCursor(12);
    m_Host.Mouse().Move(m_Left, 3, 4);
    EXPECT_EQ(m_Host.Window().GetCursor(), 12);
    m_Host.Mouse().Move(50, 20);
    EXPECT_EQ(m_Host.Window().GetCursor(), 1);
}

TEST_F(User, TheWheelTurnsByNotches)
{
    m_Log.Add(m_Left.m_SigWheel, "wheel");
    m_Host.Mouse().Wheel(m_Left, 3, 4, -2);
    m_Host.Mouse().Wheel(1);
    EXPECT_EQ(m_Log.Text(), "wheel(3, 4, 0, 0, -2) wheel(3, 4, 0, 0, 1)");
}

TEST_F(User, ADragMovesInStepsWithTheButtonHeld)
{
    m_Log.Add(m_Left.m_SigButtonDown, "down").Add(m_Left.m_SigMouseMove, "move").Add(m_Left.m_SigButtonUp, "up");
    m_Host.Mouse().Drag(m_Left, 2, 2, 12, 7, 2);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Text(), "move(2, 2, 0, 0) down(2, 2, 1, 1) move(7, 4, 1, 1) move(12, 7, 1, 1) up(12, 7, 0, 1)");
}

TEST_F(User, ACaptureTakesThePointerEverywhere)
{
    m_Log.Add(m_Left.m_SigMouseMove, "move");
    m_Host.Mouse().Press(m_Left, 3, 4);
    m_Left.CaptureMouse();
    EXPECT_TRUE(m_Host.Window().HasCapture());
    m_Host.Mouse().Move(500, -300);
    m_Left.ReleaseMouse();
    m_Host.Mouse().Move(501, -300);
    EXPECT_EQ(m_Log.Text(), "move(3, 4, 0, 0) move(500, -300, 1, 1)");
    m_Host.Mouse().Release();
}

TEST_F(User, ALostReleaseLeavesThePressWithoutItsEnd)
{
    m_Log.Add(m_Left.m_SigButtonUp, "up").Add(m_Left.m_SigMouseMove, "move");
    m_Host.Mouse().Press(m_Left, 3, 4);
    m_Host.Mouse().LoseRelease();
    m_Host.Mouse().Move(m_Left, 4, 4);
    EXPECT_EQ(m_Log.Text(), "move(3, 4, 0, 0) move(4, 4, 0, 0)");
}

TEST_F(User, HeldKeysAreInTheStateOfMouseEvents)
{
    m_Log.Add(m_Left.m_SigButtonDown, "down");
    {
        CHoldKeys const shift(m_Host, ksShift);
        CHoldKeys const control(m_Host, ksControl);
        EXPECT_EQ(m_Host.Keyboard().GetHeld(), 0x300);
        m_Host.Mouse().Click(m_Left, 3, 4);
    }
    EXPECT_EQ(m_Host.Keyboard().GetHeld(), 0);
    m_Host.Mouse().Click(m_Left, 3, 4);
    EXPECT_EQ(m_Log.Text(), "down(3, 4, 769, 1) down(3, 4, 1, 1)");
}

// Keyboard ---------------------------------------------------------------------------------------------------------

class UserWithKeys : public User
{
protected:
    UserWithKeys()
    {
        m_Left.SetCanHaveFocus(true);
        m_Right.SetCanHaveFocus(true);
        m_Left.SetFocus(true);
        m_Log.Add(m_Left.m_SigKeyDown, "down").Add(m_Left.m_SigKeyUp, "up").Add(m_Left.m_SigChar, "char");
    }
};

TEST_F(UserWithKeys, AKeyGoesDownBringsItsCharacterAndComesUp)
{
    m_Host.Keyboard().Press('A');
    EXPECT_EQ(m_Log.Take(), "down(0, 65) char('a') up(0, 65)");
    m_Host.Keyboard().Press('A', ksShift);
    EXPECT_EQ(m_Log.Take(), "down(256, 65) char('A') up(256, 65)");
    m_Host.Keyboard().Press(vkSpace);
    EXPECT_EQ(m_Log.Take(), "down(0, 32) char(' ') up(0, 32)");
    m_Host.Keyboard().Press('7');
    EXPECT_EQ(m_Log.Take(), "down(0, 55) char('7') up(0, 55)");
}

TEST_F(UserWithKeys, KeysWithControlOrAltAndKeysWithoutACharacterBringNone)
{
    m_Host.Keyboard().Press('A', ksControl);
    m_Host.Keyboard().Press('A', ksAlt);
    m_Host.Keyboard().Press(vkLeft);
    m_Host.Keyboard().Press(vkReturn);
    EXPECT_EQ(m_Log.Count("down"), 4);
    EXPECT_EQ(m_Log.Count("char"), 0);
    EXPECT_EQ(m_Log.Count("up"), 4);
}

TEST_F(UserWithKeys, TextIsTypedByteByByte)
{
    m_Host.Keyboard().Type("bC 1\xC3\xA4!");
    EXPECT_EQ(m_Log.Text(), "down(0, 66) char('b') up(0, 66) down(256, 67) char('C') up(256, 67) down(0, 32) char(' ') "
                            "up(0, 32) down(0, 49) char('1') up(0, 49) char('\\xC3') char('\\xA4') char('!')");
}

TEST_F(UserWithKeys, TabMovesTheFocusThroughTheElements)
{
    m_Host.Keyboard().Tab();
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_Right);
    m_Host.Keyboard().Tab();
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_Right);
    m_Host.Keyboard().Tab(false);
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_Left);
}

TEST_F(UserWithKeys, TabBeyondTheLastElementGoesOnToTheNextWindow)
{
    CTestHost next(100, 40);
    CLamp lamp(next.Root(), {20, 20}, alLeft);
    lamp.SetCanHaveFocus(true);
    next.Paint();
    m_Right.SetFocus(true);
    m_Host.Keyboard().Tab();
    EXPECT_TRUE(next.Window().HasFocus());
    EXPECT_EQ(next.Control().GetFocusedElement(), &lamp);
    // Keys follow the focus, whichever keyboard is used.
    CSignalLog log(lamp.m_SigKeyDown, "down");
    m_Host.Keyboard().Press(vkHome);
    EXPECT_EQ(log.Text(), "down(0, 36)");
}

TEST_F(UserWithKeys, WithoutFocusKeysGoToTheHostsOwnWindow)
{
    m_Host.Unfocus();
    m_Host.Keyboard().Press(vkHome);
    EXPECT_EQ(m_Log.Text(), "down(0, 36) up(0, 36)");
}

// Scripts ----------------------------------------------------------------------------------------------------------

TEST_F(User, WhatWasDoneCanBePlayedAgain)
{
    m_Left.SetCanHaveFocus(true);
    m_Host.Script().Clear();
    m_Host.Focus();
    m_Host.Keyboard().Hold(ksControl);
    m_Host.Mouse().DoubleClick(m_Left, 3, 4);
    m_Host.Keyboard().Hold(0);
    m_Host.Mouse().Drag(1, 1, 5, 5, 2);
    m_Host.Mouse().LoseRelease();
    m_Host.Mouse().Wheel(-1);
    m_Host.Mouse().Hover();
    m_Host.Keyboard().Type("x!");
    m_Host.Tooltip(6, 6);
    m_Host.ContextMenu(7, 7);
    m_Host.Clock().Advance(50);
    m_Host.RunPending();
    m_Host.RunBackground();
    m_Host.StepBackground();
    m_Host.SysColorChange();
    m_Host.Resize(90, 40);
    m_Host.Paint();
    m_Host.FullPaint();
    m_Host.Unfocus();
    m_Host.TabInto(false);
    m_Host.Mouse().Leave();
    std::string const script = m_Host.Script().Text();
    EXPECT_EQ(script, "focus\nhold 512\nmove 3 4\npress 1\nrelease 1\ndouble 1\nrelease 1\nhold 0\nmove 1 1\npress 1\n"
                      "move 3 3\nmove 5 5\nlose 1\nwheel -1\nhover\ndown 88 0\nup 88 0\nchar 33\nmove 6 6\ntooltip\n"
                      "move 7 7\nmenu\nadvance 50\npending\nbackground\nstep\ncolors\nresize 90 40\npaint\nfullpaint\n"
                      "unfocus\ntab 0\nleave\n");

    CTestHost second(100, 40);
    CLamp left(second.Root(), {20, 20}, alLeft);
    left.SetCanHaveFocus(true);
    second.Paint();
    second.Script().Clear();
    CSignalLog log(left.m_SigKeyDown, "down");
    log.Add(left.m_SigDoubleClick, "double").Add(left.m_SigWheel, "wheel");
    second.Replay(script);
    EXPECT_EQ(second.Script().Text(), script);
    EXPECT_EQ(log.Text(), "double(3, 4, 513, 1) wheel(5, 5, 0, 0, -1) down(0, 88)");
    EXPECT_EQ(second.Clock().Now(), 100);
}

TEST_F(User, AnUnknownLineOfAScriptFailsTheTest)
{
    static std::string failure;
    failure.clear();
    FailureReporter const before = SetFailureReporter([](std::string const& message) { failure = message; });
    m_Host.Replay("\n  \nmove 3 4\ndance 1\nmove 5 5\n");
    EXPECT_EQ(failure, "No event of a script: \"dance 1\"");
    EXPECT_EQ(m_Host.Mouse().GetPos(), (point<int>{3, 4}));
    m_Host.Replay("move 5 x");
    EXPECT_EQ(failure, "No event of a script: \"move 5 x\"");
    SetFailureReporter(before);
}

} // namespace
} // namespace vexel
