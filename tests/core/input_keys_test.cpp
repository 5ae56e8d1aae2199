// Who hears a key, and in what order.

#include "tests/support/hearing_element.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

// box > inner; inner has the focus.
class KeyInput : public testing::Test
{
protected:
    KeyInput()
    {
        m_Box.HearKeys();
        m_Inner.HearKeys();
        m_Inner.SetCanHaveFocus(true);
        m_Host.Paint();
        m_Host.Focus();
        m_Inner.SetFocus(true);
        m_Log.Clear();
    }

    CTestHost m_Host{100, 60};
    CSignalLog m_Log;
    CHearing& m_Box = *new CHearing(m_Log, "box", m_Host.Root(), {80, 0}, alLeft);
    CHearing& m_Inner = *new CHearing(m_Log, "inner", &m_Box, {30, 0}, alLeft);
    CHearing& m_Other = *new CHearing(m_Log, "other", &m_Box, {30, 0}, alLeft);
};

} // namespace

TEST_F(KeyInput, AKeyBubblesFromTheFocusedElementToTheRoot)
{
    m_Host.Keyboard().Press('A');

    EXPECT_EQ(m_Log.Text(), "inner.keydown(0, 65) inner:KeyDown box.keydown(0, 65) box:KeyDown "
                            "inner.char('a') inner:Char box.char('a') box:Char "
                            "inner.keyup(0, 65) inner:KeyUp box.keyup(0, 65) box:KeyUp");
}

TEST_F(KeyInput, AConsumedKeyStillFiresTheSignalsOfAllAncestors)
{
    m_Inner.m_Consumes = {"KeyDown"};

    m_Host.Keyboard().Down(vkDown);

    EXPECT_EQ(m_Log.Text(), "inner.keydown(0, 40) inner:KeyDown box.keydown(0, 40)");
}

TEST_F(KeyInput, ADisabledElementEndsTheBubbling)
{
    m_Box.SetEnabled(false);

    m_Host.Keyboard().Down(vkDown);

    EXPECT_EQ(m_Log.Text(), "inner.keydown(0, 40) inner:KeyDown");
}

TEST_F(KeyInput, ADisabledFocusedElementHearsNothing)
{
    m_Inner.SetEnabled(false);

    m_Host.Keyboard().Down(vkDown);

    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(KeyInput, WithoutFocusTheRootHearsTheKey)
{
    m_Host.Control().GetControl()->SetFocusedElement(nullptr, false);
    CSignalLog root(m_Host.Root()->m_SigKeyDown, "root.keydown");

    m_Host.Keyboard().Down(vkDown);

    EXPECT_EQ(root.Text(), "root.keydown(0, 40)");
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(KeyInput, TheKeyDelegateOfAnAncestorIsAskedBeforeTheAncestor)
{
    m_Box.SetKeyDelegate(&m_Other);
    m_Other.HearKeys();

    m_Host.Keyboard().Down(vkDown);

    EXPECT_EQ(m_Log.Text(), "inner.keydown(0, 40) inner:KeyDown other.keydown(0, 40) other:KeyDown "
                            "box.keydown(0, 40) box:KeyDown");
}

TEST_F(KeyInput, ADelegateThatConsumesSparesItsOwnerTheHandlerButNotTheSignal)
{
    m_Box.SetKeyDelegate(&m_Other);
    m_Other.HearKeys();
    m_Other.m_Consumes = {"KeyDown"};

    m_Host.Keyboard().Down(vkDown);

    EXPECT_EQ(m_Log.Text(), "inner.keydown(0, 40) inner:KeyDown other.keydown(0, 40) other:KeyDown box.keydown(0, 40)");
}

TEST_F(KeyInput, AConsumedKeyReachesNoDelegateAnyMore)
{
    m_Box.SetKeyDelegate(&m_Other);
    m_Other.HearKeys();
    m_Inner.m_Consumes = {"KeyDown"};

    m_Host.Keyboard().Down(vkDown);

    EXPECT_EQ(m_Log.Text(), "inner.keydown(0, 40) inner:KeyDown box.keydown(0, 40)");
}

TEST_F(KeyInput, AFocusedDelegateIsAskedOnce)
{
    m_Box.SetKeyDelegate(&m_Inner);

    m_Host.Keyboard().Down(vkDown);

    // From the delegate itself the key stops below its owner.
    EXPECT_EQ(m_Log.Text(), "inner.keydown(0, 40) inner:KeyDown");
}

TEST_F(KeyInput, HandledAsArgumentMeansSignalsOnly)
{
    EXPECT_TRUE(m_Inner.ProcessKeyDown(0, 40, true));

    EXPECT_EQ(m_Log.Text(), "inner.keydown(0, 40) box.keydown(0, 40)");
}

TEST_F(KeyInput, CtrlCWithoutTheShortcutIsAnOrdinaryKey)
{
    m_Host.Keyboard().Down('C', ksControl);

    EXPECT_EQ(m_Log.Text(), "inner.keydown(512, 67) inner:KeyDown box.keydown(512, 67) box:KeyDown");
}

TEST_F(KeyInput, TheDelegateOfAnElementThatDiesIsForgotten)
{
    m_Box.SetKeyDelegate(&m_Other);
    delete &m_Other;

    EXPECT_EQ(m_Box.GetKeyDelegate(), nullptr);
    m_Host.Keyboard().Down(vkDown);
    EXPECT_EQ(m_Log.Text(), "inner.keydown(0, 40) inner:KeyDown box.keydown(0, 40) box:KeyDown");
}
