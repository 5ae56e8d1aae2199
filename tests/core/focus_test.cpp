// The focus: who hears of it, the walk of the tab key, and the native focus.

#include "tests/support/hearing_element.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

// root > box > (one, two)
class Focus : public testing::Test
{
protected:
    Focus()
    {
        m_Box.HearFocusOfChildren();
        m_One.HearFocus();
        m_Two.HearFocus();
        m_Host.Paint();
    }
    IControl& Control() { return *m_Host.Control().GetControl(); }

    CTestHost m_Host{100, 60};
    CSignalLog m_Log;
    CHearing& m_Box = *new CHearing(m_Log, "box", m_Host.Root(), {80, 0}, alLeft);
    CHearing& m_One = *new CHearing(m_Log, "one", &m_Box, {20, 0}, alLeft);
    CHearing& m_Two = *new CHearing(m_Log, "two", &m_Box, {20, 0}, alLeft);
};

} // namespace

TEST_F(Focus, TakingItTellsTheElementAndThenAllAbove)
{
    m_One.SetFocus(false);

    EXPECT_EQ(m_Log.Text(), "one.get() one:GetFocus(null, true) one.childget(one) one:ChildFocus(one, null, true) "
                            "box.childget(one, box) box:ChildFocus(one, null, true)");
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_One);
}

TEST_F(Focus, MovingItTellsTheOldOneFirst)
{
    m_Host.Focus();
    m_One.SetFocus(true);
    m_Log.Clear();

    m_Two.SetFocus(true);

    EXPECT_EQ(m_Log.Text(),
              "one.lost() one:LostFocus(two) one.childlost(one) one:ChildFocus(one, two, false) "
              "box.childlost(one, box) box:ChildFocus(one, two, false) "
              "two.get() two:GetFocus(one, true) two.childget(two) two:ChildFocus(two, one, true) "
              "box.childget(two, box) box:ChildFocus(two, one, true)");
}

TEST_F(Focus, BothTheOldAndTheNewOneAreRepainted)
{
    m_Host.Focus();
    m_One.SetFocus(true);
    m_Host.Paint();

    m_Two.SetFocus(true);

    EXPECT_EQ(m_Host.Paint().Elements(), "one two");
}

TEST_F(Focus, TheHostTellsOfEachMove)
{
    CSignalLog log(m_Host.Control().m_SigFocusedElement, "focused");
    log.Name(m_One, "one");

    m_One.SetFocus(true);
    m_One.SetFocus(true);
    Control().SetFocusedElement(nullptr, false);

    EXPECT_EQ(log.Text(), "focused(one) focused(null)");
}

TEST_F(Focus, TakingItBringsTheNativeFocusOnlyIfAskedTo)
{
    Control().SetFocusedElement(&m_One, false);
    EXPECT_FALSE(m_Host.Window().HasFocus());
    EXPECT_FALSE(m_One.IsFocused());

    Control().SetFocusedElement(&m_Two, true);
    EXPECT_TRUE(m_Host.Window().HasFocus());
    EXPECT_TRUE(m_Two.IsFocused());
}

TEST_F(Focus, AnElementThatCannotHaveItHandsItToItsKeyDelegate)
{
    m_Host.Focus();
    m_Box.SetKeyDelegate(&m_Two);
    m_Log.Clear();

    m_Box.SetFocus(true);

    EXPECT_EQ(m_Log.Entries().front(), "box:GetFocus(null, false)");
    EXPECT_EQ(m_Log.Entries()[1], "two:GetFocus(null, false)");
}

TEST_F(Focus, OnlyAVisibleEnabledElementOfAControlThatWantsItCanHaveIt)
{
    EXPECT_TRUE(CanHaveFocus(&m_One));
    EXPECT_FALSE(CanHaveFocus(nullptr));
    EXPECT_FALSE(CanHaveFocus(&m_Box));
    m_Box.SetVisible(false);
    EXPECT_FALSE(CanHaveFocus(&m_One));
    m_Box.SetVisible(true);
    m_One.SetEnabled(false);
    EXPECT_FALSE(CanHaveFocus(&m_One));
    CVisualElement alone(nullptr, {1, 1}, alNone);
    alone.SetDynamic(false);
    alone.SetCanHaveFocus(true);
    EXPECT_FALSE(CanHaveFocus(&alone));
}

TEST_F(Focus, ItIsKeptWhileAnotherWindowHasTheNativeFocusAndComesBack)
{
    m_Host.Focus();
    m_One.SetFocus(true);
    m_Log.Clear();

    m_Host.Unfocus();
    EXPECT_EQ(m_Log.Take(), "one.lost() one:LostFocus(null) one.childlost(one) one:ChildFocus(one, null, false) "
                            "box.childlost(one, box) box:ChildFocus(one, null, false) "
                            "box:ControlFocus(false) one:ControlFocus(false) two:ControlFocus(false)");
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_One);

    m_Host.Focus();
    EXPECT_EQ(m_Log.Take(), "one.get() one:GetFocus(null, true) one.childget(one) one:ChildFocus(one, null, true) "
                            "box.childget(one, box) box:ChildFocus(one, null, true) "
                            "box:ControlFocus(true) one:ControlFocus(true) two:ControlFocus(true)");
}

TEST_F(Focus, IfTheElementWasDisabledMeanwhileItsNearestAncestorThatCanHasItAfterwards)
{
    m_Box.SetCanHaveFocus(true);
    m_Host.Focus();
    m_One.SetFocus(true);
    m_Host.Unfocus();
    m_One.SetEnabled(false);

    m_Host.Focus();

    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_Box);
}

TEST_F(Focus, TheFirstNativeFocusGoesToTheFirstTabElement)
{
    m_Host.Focus();

    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_One);
}

TEST_F(Focus, ARemovedElementIsNotRemembered)
{
    m_Host.Focus();
    m_One.SetFocus(true);

    delete &m_One;

    EXPECT_EQ(m_Host.Control().GetFocusedElement(), nullptr);
    EXPECT_EQ(Control().GetFocussingElement(), nullptr);
}

// Tab ---------------------------------------------------------------------------------------------------------------------

TEST_F(Focus, TabGoesFromOneToTheNextAndStaysAtTheLast)
{
    m_Host.Focus();
    m_One.SetFocus(true);

    m_Host.Keyboard().Tab();
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_Two);

    m_Host.Keyboard().Tab();
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_Two);
}

TEST_F(Focus, TabOnTheLastElementIsLeftToTheDesktop)
{
    m_Host.Focus();
    m_Two.SetFocus(true);
    CKeyboardEvent last(0, vkTab);
    m_Host.Control().OnKeyDown(&last);
    EXPECT_TRUE(last.m_PassOn);

    m_One.SetFocus(true);
    CKeyboardEvent moving(0, vkTab);
    m_Host.Control().OnKeyDown(&moving);
    EXPECT_FALSE(moving.m_PassOn);
}

TEST_F(Focus, ShiftTabGoesBackAndStaysAtTheFirst)
{
    m_Host.Focus();
    m_Two.SetFocus(true);

    m_Host.Keyboard().Tab(false);
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_One);

    m_Host.Keyboard().Tab(false);
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_One);
}

TEST_F(Focus, TheTabKeyIsTellingOfItselfWhileItMovesTheFocus)
{
    class CWatch : public subscriber_base_t
    {
    public:
        explicit CWatch(IControl& control) : m_Control(control) {}
        void Got(CVisualElement*) { m_Tabbing = m_Control.IsTabKeyProcessing(); }
        IControl& m_Control;
        bool m_Tabbing = false;
    } watch(Control());
    m_Two.m_SigGetFocus.connect(&watch, &CWatch::Got);
    m_Host.Focus();
    m_One.SetFocus(true);

    m_Host.Keyboard().Tab();
    EXPECT_TRUE(watch.m_Tabbing);
    EXPECT_FALSE(Control().IsTabKeyProcessing());

    m_One.SetFocus(true);
    m_Two.SetFocus(true);
    EXPECT_FALSE(watch.m_Tabbing);
}

TEST_F(Focus, ForwardAContainerComesBeforeItsInnerElementsBackwardAfterThem)
{
    m_Box.SetCanHaveFocus(true);
    CVisualElement* const root = m_Host.Root();

    EXPECT_EQ(root->GetFirstTabElement(), &m_Box);
    EXPECT_EQ(root->GetNextTabElement(&m_Box), &m_One);
    EXPECT_EQ(m_Box.GetNextTabElement(&m_One), &m_Two);
    EXPECT_EQ(root->GetLastTabElement(), &m_Box);

    CHearing& last = *new CHearing(m_Log, "last", root, {10, 0}, alLeft);
    last.SetCanHaveFocus(true);
    EXPECT_EQ(root->GetPrevTabElement(&last), &m_Two);
}

TEST_F(Focus, TheWalkPassesOverWhatIsHiddenOrDisabled)
{
    m_One.SetVisible(false);
    EXPECT_EQ(m_Host.Root()->GetFirstTabElement(), &m_Two);
    m_One.SetVisible(true);
    m_One.SetEnabled(false);
    EXPECT_EQ(m_Host.Root()->GetFirstTabElement(), &m_Two);
    m_Box.SetEnabled(false);
    EXPECT_EQ(m_Host.Root()->GetFirstTabElement(), nullptr);
}

TEST_F(Focus, TheTabHandlersWalkIsUsedUntilTheFocusMoves)
{
    CHearing& far = *new CHearing(m_Log, "far", m_Host.Root(), {10, 0}, alLeft);
    far.SetCanHaveFocus(true);
    m_Host.Paint();
    m_Host.Focus();
    m_One.SetFocus(true);
    Control().SetTabHandler(m_Host.Root());

    m_Host.Keyboard().Tab();

    // The root does not hold the focused element, so its walk ends where it is.
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_One);
    m_Two.SetFocus(true);
    m_One.SetFocus(true);
    m_Host.Keyboard().Tab();
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_Two);
}

TEST_F(Focus, ComingInByTabGoesToTheFirstOrTheLastElement)
{
    m_Host.TabInto(true);
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_One);

    m_Host.Unfocus();
    m_Host.TabInto(false);
    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_Two);
}
