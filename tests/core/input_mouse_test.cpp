// Who hears the mouse, in what order, and where a chain stops.

#include "tests/support/hearing_element.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A window of 100 x 60 with one docked box that has an inner one at its left:
// box (0, 0, 80, 59), inner (0, 0, 30, 59) of it, the root's rest at x = 81 to 99.
class MouseInput : public testing::Test
{
protected:
    MouseInput()
    {
        m_Box.HearMouse();
        m_Inner.HearMouse();
        m_Host.Paint();
    }

    CTestHost m_Host{100, 60};
    CSignalLog m_Log;
    CHearing& m_Box = *new CHearing(m_Log, "box", m_Host.Root(), {80, 0}, alLeft);
    CHearing& m_Inner = *new CHearing(m_Log, "inner", &m_Box, {30, 0}, alLeft);
};

}  // namespace

TEST_F(MouseInput, APressAndAReleaseOnOneElementAreDownClickUpDeepestFirst)
{
    m_Host.Mouse().Press(m_Inner, 3, 4);
    EXPECT_EQ(m_Log.Take(), "inner.down(3, 4, 1, 1) inner:Down box.down(3, 4, 1, 1) box:Down");

    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "inner.click(3, 4, 0, 1) inner.up(3, 4, 0, 1) inner:Click inner:Up "
                            "box.click(3, 4, 0, 1) box.up(3, 4, 0, 1) box:Click box:Up");
}

TEST_F(MouseInput, CoordinatesAreThoseOfEachElement)
{
    CHearing deep(m_Log, "deep", &m_Inner, {10, 20}, alBottom);
    deep.SetDynamic(false);
    m_Log.Add(deep.m_SigButtonDown, "deep.down");
    m_Host.Paint();  // deep stands at (0, 39, 30, 59)

    m_Host.Mouse().Press(5, 50);

    EXPECT_EQ(m_Log.Text(), "deep.down(5, 11, 1, 1) deep:Down inner.down(5, 50, 1, 1) inner:Down box.down(5, 50, 1, 1) "
                            "box:Down");
}

TEST_F(MouseInput, APressThatIsConsumedStillFiresTheSignalsAbove)
{
    m_Inner.m_Consumes = {"Down"};

    m_Host.Mouse().Press(m_Inner, 1, 1);

    EXPECT_EQ(m_Log.Text(), "inner.down(1, 1, 1, 1) inner:Down box.down(1, 1, 1, 1)");
}

TEST_F(MouseInput, AConsumedReleaseFiresClickAndUpAboveButCallsNoHandlerThere)
{
    m_Inner.m_Consumes = {"Up"};
    m_Host.Mouse().Press(m_Inner, 1, 1);
    m_Log.Clear();

    m_Host.Mouse().Release();

    EXPECT_EQ(m_Log.Text(), "inner.click(1, 1, 0, 1) inner.up(1, 1, 0, 1) inner:Click inner:Up box.click(1, 1, 0, 1) "
                            "box.up(1, 1, 0, 1)");
    EXPECT_FALSE(m_Box.IsPressed());
}

TEST_F(MouseInput, AConsumedClickDoesNotStopTheRelease)
{
    m_Inner.m_Consumes = {"Click"};
    m_Host.Mouse().Press(m_Inner, 1, 1);
    m_Log.Clear();

    m_Host.Mouse().Release();

    EXPECT_EQ(m_Log.Text(), "inner.click(1, 1, 0, 1) inner.up(1, 1, 0, 1) inner:Click inner:Up box.click(1, 1, 0, 1) "
                            "box.up(1, 1, 0, 1) box:Click box:Up");
}

TEST_F(MouseInput, AReleaseAfterThePointerHasLeftTheElementIsNoClickThere)
{
    m_Host.Mouse().Press(m_Inner, 3, 4);
    m_Host.Mouse().Move(50, 4);
    m_Log.Clear();

    m_Host.Mouse().Release();

    // The box was pressed too, and the pointer entered it only now, so its flag stands.
    EXPECT_EQ(m_Log.Text(), "box.click(50, 4, 0, 1) box.up(50, 4, 0, 1) box:Click box:Up");
    EXPECT_FALSE(m_Inner.IsPressed());
}

TEST_F(MouseInput, ADisabledParentKeepsAPressFromItsChild)
{
    m_Box.SetEnabled(false);

    m_Host.Mouse().Click(m_Inner, 3, 4);
    m_Host.Mouse().Wheel(m_Inner, 3, 4, 1);

    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(MouseInput, ADisabledChildLeavesThePressToItsParent)
{
    m_Inner.SetEnabled(false);

    m_Host.Mouse().Press(m_Inner, 3, 4);

    EXPECT_EQ(m_Log.Text(), "box.down(3, 4, 1, 1) box:Down");
}

TEST_F(MouseInput, APressOutsideAllChildrenIsTheRoots)
{
    CSignalLog root(m_Host.Root()->m_SigButtonDown, "root.down");

    m_Host.Mouse().Press(90, 10);

    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(root.Text(), "root.down(90, 10, 1, 1)");
}

TEST_F(MouseInput, TheFirstOfOverlappingChildrenTakesThePress)
{
    CHearing over(m_Log, "over", &m_Box, {0, 0}, alNone);
    over.SetDynamic(false);
    over.SetPos({0, 0, 60, 59}, true);
    m_Log.Clear();

    m_Host.Mouse().Press(10, 10);

    EXPECT_EQ(m_Log.Text(), "inner.down(10, 10, 1, 1) inner:Down box.down(10, 10, 1, 1) box:Down");
}

TEST_F(MouseInput, TheRightAndBottomEdgeBelongToAnElement)
{
    m_Host.Mouse().Press(30, 59);
    EXPECT_EQ(m_Log.Take(), "inner.down(30, 59, 1, 1) inner:Down box.down(30, 59, 1, 1) box:Down");
    m_Host.Mouse().Release();
    m_Log.Clear();

    m_Host.Mouse().Press(31, 59);
    EXPECT_EQ(m_Log.Take(), "box.down(31, 59, 1, 1) box:Down");
}

TEST_F(MouseInput, AnInvisibleChildIsPassedOver)
{
    m_Inner.SetVisible(false);
    m_Host.Paint();

    m_Host.Mouse().Press(3, 4);

    EXPECT_EQ(m_Log.Text(), "box.down(3, 4, 1, 1) box:Down");
}

TEST_F(MouseInput, TheWheelComesFromTheTopDown)
{
    m_Host.Mouse().Wheel(m_Inner, 3, 4, -2);

    EXPECT_EQ(m_Log.Text(), "box.wheel(3, 4, 0, 0, -2) box:Wheel inner.wheel(3, 4, 0, 0, -2) inner:Wheel");
}

TEST_F(MouseInput, AParentThatConsumesTheWheelKeepsItFromItsChild)
{
    m_Box.m_Consumes = {"Wheel"};

    m_Host.Mouse().Wheel(m_Inner, 3, 4, 1);

    EXPECT_EQ(m_Log.Text(), "box.wheel(3, 4, 0, 0, 1) box:Wheel");
}

TEST_F(MouseInput, ADoubleClickIsAPressAndThenTheDoubleClickDeepestFirst)
{
    m_Host.Mouse().Click(m_Inner, 3, 4);
    m_Log.Clear();

    m_Host.Mouse().PressAgain();

    EXPECT_EQ(m_Log.Text(), "inner.down(3, 4, 1, 1) inner:Down box.down(3, 4, 1, 1) box:Down "
                            "inner.double(3, 4, 1, 1) inner:Double box.double(3, 4, 1, 1) box:Double");
}

TEST_F(MouseInput, AConsumedDoubleClickFiresTheSignalAboveOnly)
{
    m_Inner.m_Consumes = {"Double"};
    m_Host.Mouse().Click(m_Inner, 3, 4);
    m_Log.Clear();
    m_Host.Mouse().PressAgain();

    EXPECT_EQ(m_Log.Text(), "inner.down(3, 4, 1, 1) inner:Down box.down(3, 4, 1, 1) box:Down "
                            "inner.double(3, 4, 1, 1) inner:Double box.double(3, 4, 1, 1)");
}

TEST_F(MouseInput, OtherButtonsArePassedAlong)
{
    m_Host.Mouse().Click(m_Inner, 3, 4, mbRight);

    EXPECT_EQ(m_Log.Text(), "inner.down(3, 4, 2, 3) inner:Down box.down(3, 4, 2, 3) box:Down "
                            "inner.click(3, 4, 0, 3) inner.up(3, 4, 0, 3) inner:Click inner:Up "
                            "box.click(3, 4, 0, 3) box.up(3, 4, 0, 3) box:Click box:Up");
}

TEST_F(MouseInput, ALeftPressGivesTheFocusToTheElementUnderThePointer)
{
    m_Inner.SetCanHaveFocus(true);

    m_Host.Mouse().Press(m_Inner, 3, 4);

    EXPECT_EQ(m_Host.Control().GetFocusedElement(), &m_Inner);
    EXPECT_TRUE(m_Host.Window().HasFocus());
}

TEST_F(MouseInput, ARightPressLeavesTheFocusAlone)
{
    m_Inner.SetCanHaveFocus(true);

    m_Host.Mouse().Press(m_Inner, 3, 4, mbRight);

    EXPECT_EQ(m_Host.Control().GetFocusedElement(), nullptr);
}

TEST_F(MouseInput, ACancellationInASlotEndsTheEventButNotTheControl)
{
    class CCanceller : public subscriber_base_t
    {
    public:
        void Cancel(CVisualElement*, int, int, int, MouseButton) { throw vexel::cancel_processing(); }
    } canceller;
    m_Inner.m_SigButtonDown.connect(&canceller, &CCanceller::Cancel);

    m_Host.Mouse().Press(m_Inner, 3, 4);

    EXPECT_EQ(m_Log.Take(), "inner.down(3, 4, 1, 1)");
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "inner.click(3, 4, 0, 1) inner.up(3, 4, 0, 1) inner:Click inner:Up "
                            "box.click(3, 4, 0, 1) box.up(3, 4, 0, 1) box:Click box:Up");
}

// Capture ---------------------------------------------------------------------------------------------------------------

TEST_F(MouseInput, ACapturingElementHearsEventsFromEverywhere)
{
    m_Host.Mouse().Move(m_Inner, 3, 4);
    m_Inner.CaptureMouse();
    EXPECT_TRUE(m_Host.Window().HasCapture());

    m_Host.Mouse().Press(90, 10);
    EXPECT_EQ(m_Log.Take(), "inner.down(90, 10, 1, 1) inner:Down");
    m_Host.Mouse().Wheel(1);
    EXPECT_EQ(m_Log.Take(), "inner.wheel(90, 10, 1, 1, 1) inner:Wheel");

    m_Inner.ReleaseMouse();
    EXPECT_FALSE(m_Host.Window().HasCapture());
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(MouseInput, APressOutsideOfACapturingElementIsLostWhileNoElementIsUnderThePointer)
{
    m_Inner.CaptureMouse();

    m_Host.Mouse().Press(90, 10);

    EXPECT_EQ(m_Log.Text(), "");
    m_Inner.ReleaseMouse();
}

TEST_F(MouseInput, ACapturingElementThatThePointerHasLeftIsNotTheMouseElement)
{
    m_Host.Mouse().Move(m_Inner, 3, 4);
    EXPECT_EQ(m_Host.Control().GetMouseElement(), &m_Inner);
    m_Inner.CaptureMouse();
    m_Host.Mouse().Move(90, 10);
    EXPECT_EQ(m_Host.Control().GetMouseElement(), &m_Inner);  // nobody else was asked
    m_Inner.ReleaseMouse();

    m_Host.Mouse().Move(91, 10);

    EXPECT_EQ(m_Host.Control().GetMouseElement(), m_Host.Root());
}

// Moving ------------------------------------------------------------------------------------------------------------------

namespace
{

class PointerInput : public testing::Test
{
protected:
    PointerInput()
    {
        m_Box.HearPointer();
        m_Inner.HearPointer();
        m_Host.Paint();
    }

    CTestHost m_Host{100, 60};
    CSignalLog m_Log;
    CHearing& m_Box = *new CHearing(m_Log, "box", m_Host.Root(), {80, 0}, alLeft);
    CHearing& m_Inner = *new CHearing(m_Log, "inner", &m_Box, {30, 0}, alLeft);
};

}  // namespace

TEST_F(PointerInput, AMoveOntoAnElementIsHoveringAndThenTheMoveDeepestFirst)
{
    m_Host.Mouse().Move(m_Inner, 3, 4);

    EXPECT_EQ(m_Log.Text(), "inner.hover() inner:Hover(null) inner:ChildrenHover(null) box:ChildrenHover(null) "
                            "inner.move(3, 4, 0, 0) inner:Move box.move(3, 4, 0, 0) box:Move");
}

TEST_F(PointerInput, GoingOverFromOneToAnotherTellsBoth)
{
    m_Host.Mouse().Move(m_Inner, 3, 4);
    m_Log.Clear();

    m_Host.Mouse().Move(50, 4);

    EXPECT_EQ(m_Log.Text(), "inner.leave() inner:Leave(box) inner:ChildrenLeave(box) box:ChildrenLeave(box) "
                            "box.hover() box:Hover(inner) box:ChildrenHover(inner) box.move(50, 4, 0, 0) box:Move");
}

TEST_F(PointerInput, LeavingTheWindowTellsTheLastElement)
{
    m_Inner.SetCursor(12);
    m_Host.Mouse().Move(m_Inner, 3, 4);
    EXPECT_EQ(m_Host.Window().GetCursor(), 12);
    m_Log.Clear();

    m_Host.Mouse().Leave();

    EXPECT_EQ(m_Log.Text(), "inner.leave() inner:Leave(null) inner:ChildrenLeave(null) box:ChildrenLeave(null)");
    EXPECT_EQ(m_Host.Control().GetMouseElement(), nullptr);
    EXPECT_EQ(m_Host.Window().GetCursor(), 1);
}

TEST_F(PointerInput, ADisabledElementHearsThePointerButDoesNotShowItsCursor)
{
    m_Inner.SetEnabled(false);
    m_Inner.SetCursor(12);

    m_Host.Mouse().Move(m_Inner, 3, 4);

    EXPECT_EQ(m_Log.Text(), "inner.hover() inner:Hover(null) inner:ChildrenHover(null) box:ChildrenHover(null) "
                            "inner.move(3, 4, 0, 0) inner:Move box.move(3, 4, 0, 0) box:Move");
    EXPECT_EQ(m_Host.Control().GetMouseElement(), &m_Inner);
    EXPECT_EQ(m_Host.Window().GetCursor(), 1);
}

TEST_F(PointerInput, AConsumedMoveFiresTheSignalAboveOnly)
{
    m_Host.Mouse().Move(m_Inner, 3, 4);
    m_Inner.m_Consumes = {"Move"};
    m_Log.Clear();

    m_Host.Mouse().Move(m_Inner, 4, 4);

    EXPECT_EQ(m_Log.Text(), "inner.move(4, 4, 0, 0) inner:Move box.move(4, 4, 0, 0)");
}

TEST_F(PointerInput, AMoveCarriesTheHeldButtonAndTheKeyState)
{
    m_Host.Mouse().Press(m_Inner, 3, 4);
    m_Host.Keyboard().Hold(ksControl);
    m_Log.Clear();

    m_Host.Mouse().Move(m_Inner, 5, 6);

    EXPECT_EQ(m_Log.Text(), "inner.move(5, 6, 513, 1) inner:Move box.move(5, 6, 513, 1) box:Move");
}

TEST_F(PointerInput, TheCursorOfTheElementUnderThePointerIsShown)
{
    m_Inner.SetCursor(9);
    m_Host.Mouse().Move(m_Inner, 3, 4);
    EXPECT_EQ(m_Host.Window().GetCursor(), 9);

    m_Inner.SetCursor(7);
    EXPECT_EQ(m_Host.Window().GetCursor(), 7);
    m_Box.SetCursor(12);
    EXPECT_EQ(m_Host.Window().GetCursor(), 7);

    m_Host.Mouse().Move(50, 4);
    EXPECT_EQ(m_Host.Window().GetCursor(), 12);
}

TEST_F(PointerInput, AResumedHoverShowsTheCursorOfTheCapturingElement)
{
    m_Inner.SetCursor(9);
    m_Host.Mouse().Move(m_Inner, 3, 4);
    m_Inner.CaptureMouse();
    m_Host.Mouse().Move(90, 10);
    m_Host.Window().SetCursor(1);

    m_Host.Mouse().Hover();

    EXPECT_EQ(m_Host.Window().GetCursor(), 9);
    m_Inner.ReleaseMouse();
}

TEST_F(PointerInput, AnElementThatLeavesWhileThePointerGoesOverToItIsNotRemembered)
{
    auto* const other = new CHearing(m_Log, "other", &m_Box, {20, 0}, alLeft);
    m_Host.Paint();
    m_Host.Mouse().Move(m_Inner, 3, 4);
    {
        auto const slot = Listen(m_Inner.m_SigMouseLeave, [&](CVisualElement*) { other->ReParent(nullptr, false); });

        m_Host.Mouse().Move(40, 4);
    }

    EXPECT_EQ(m_Host.Control().GetMouseElement(), nullptr);
    delete other;
    m_Host.Mouse().Move(40, 5);
    EXPECT_EQ(m_Host.Control().GetMouseElement(), &m_Box);
}
