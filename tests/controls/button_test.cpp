// The push button: what presses and releases it, when it clicks, and what may happen in a click.

#include "vexel/controls/button.h"

#include "tests/support/slot.h"
#include "tests/support/test_images.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

using Size = size<int>;

namespace
{

/// Presses count in its left half only, if told so.
class CHalf : public CButton
{
public:
    using CButton::CButton;

    bool IsMouseOverButton(int x, int) const override { return !m_Narrow || x < 50; }

    bool m_Narrow = false;
};

// A button at (0, 0, 199, 40), another at (0, 41, 199, 60).
class Button : public testing::Test
{
protected:
    Button()
    {
        m_Log.Add(m_Button.m_Clicked, "click");
        m_Button.SetTextAlign(IPainter::AlignLeft | IPainter::AlignTop);
        m_Host.Focus();
        m_Host.Paint();
    }
    void Repeat(int milliseconds)
    {
        m_Button.SetAutoRepeat(true);
        m_Host.Mouse().Press(m_Button, 5, 5);
        m_Host.Clock().Advance(milliseconds);
    }

    CTestHost m_Host{200, 100};
    CHalf& m_Button = *new CHalf(m_Host.Root(), {0, 40}, alTop);
    CButton& m_Other = *new CButton(m_Host.Root(), {0, 19}, alTop);
    CSignalLog m_Log;
};

}  // namespace

TEST_F(Button, ItStartsRaisedInABoxNativeAndAbleToTakeTheFocus)
{
    EXPECT_EQ(m_Other.GetStyle(), CButton::BorderRaised);
    EXPECT_EQ(m_Other.GetStyle(), 1);
    EXPECT_EQ(m_Other.GetShape(), 0);
    EXPECT_FALSE(m_Other.IsAutoRepeat());
    EXPECT_EQ(m_Other.GetButtonId(), 0);
    EXPECT_EQ(m_Other.GetRepeatInterval(), 200);
    EXPECT_TRUE(m_Other.IsNativeDrawing());
    EXPECT_TRUE(m_Other.GetCanHaveFocus());
    EXPECT_FALSE(m_Other.IsTextConverted());
    EXPECT_EQ(m_Other.GetClickStage(), 0);
    EXPECT_EQ(m_Other.GetAlignment(), alTop);
    EXPECT_TRUE(m_Other.CButton::IsMouseOverButton(-5, 1000));
}

TEST_F(Button, ItsTextNeverTurnsWithTheSide)
{
    m_Other.SetAlignment(alLeft);
    EXPECT_EQ(m_Other.GetAlignment(), alLeft);
    EXPECT_EQ(m_Other.GetAlong(1, 2), 1);
}

TEST_F(Button, StyleAndShapeRepaintOnAChange)
{
    m_Button.SetStyle(CButton::BorderRaised);
    m_Button.SetShape(CButton::ShapeBox);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Button.SetStyle(CButton::BorderFlat);
    EXPECT_FALSE(m_Host.Paint().IsEmpty());
    m_Button.SetShape(CButton::ShapeNoFrame);
    EXPECT_FALSE(m_Host.Paint().IsEmpty());
}

TEST_F(Button, AutomaticSizeHasRoomForTheFrameAndLessWidthWithAnImage)
{
    EXPECT_EQ(m_Other.GetAutoSizeAdditionalExtent(), (Size{22, 9}));
    m_Other.SetImageIndex(3);
    EXPECT_EQ(m_Other.GetAutoSizeAdditionalExtent(), (Size{9, 9}));
    m_Host.SetScale(1.5);
    EXPECT_EQ(m_Other.GetAutoSizeAdditionalExtent(), (Size{13, 13}));  // 13.5
    m_Other.SetImageIndex(-1);
    EXPECT_EQ(m_Other.GetAutoSizeAdditionalExtent(), (Size{33, 13}));
}

TEST_F(Button, AutomaticSizeIsTheTextAndThatRoom)
{
    m_Other.SetAutoSize(true);
    m_Other.SetCaption("abc");
    EXPECT_EQ(m_Other.GetSize(), (Size{46, 17}));
}

// Mouse -------------------------------------------------------------------------------------------------------------------

TEST_F(Button, PressAndReleaseIsAClick)
{
    m_Host.Mouse().Move(m_Button, 5, 5);
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageHot);
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StagePressed);
    EXPECT_EQ(m_Log.Text(), "");
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Text(), "click()");
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageHot);
    EXPECT_TRUE(m_Button.IsFocused());
}

TEST_F(Button, PressLeaveReleaseIsNoClickAndNormal)
{
    m_Host.Mouse().Press(m_Button, 5, 5);
    m_Host.Mouse().Move(m_Other, 5, 5);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageNormal);
}

TEST_F(Button, PressLeaveComeBackReleaseIsNoClickAndHot)
{
    m_Host.Mouse().Press(m_Button, 5, 5);
    m_Host.Mouse().Move(m_Other, 5, 5);
    m_Host.Mouse().Move(m_Button, 5, 5);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageHot);
}

TEST_F(Button, TheSecondOfTwoQuickClicksCountsToo)
{
    m_Host.Mouse().DoubleClick(m_Button, 5, 5);
    EXPECT_EQ(m_Log.Text(), "click() click()");
}

TEST_F(Button, OutsideTheSensitiveAreaAPressGoesOnToTheParent)
{
    m_Button.m_Narrow = true;
    m_Button.SetAutoRepeat(true);
    CSignalLog root(m_Host.Root()->m_SigButtonDown, "root.down");
    m_Host.Mouse().Press(m_Button, 60, 5);
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageHot);
    EXPECT_FALSE(m_Button.IsRepeating());
    EXPECT_FALSE(m_Button.HandleButtonDown(60, 5, 1, mbLeft));
    EXPECT_TRUE(m_Button.HandleButtonDown(40, 5, 1, mbLeft));
    m_Button.StopRepeating();
}

TEST_F(Button, OtherButtonsAreNotUsed)
{
    m_Host.Mouse().Click(m_Button, 5, 5, mbRight);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_FALSE(m_Button.HandleButtonDown(5, 5, 2, mbRight));
    EXPECT_FALSE(m_Button.HandleButtonUp(5, 5, 0, mbRight));
    EXPECT_TRUE(m_Button.HandleButtonUp(5, 5, 0, mbLeft));
}

TEST_F(Button, AClickOnALinkInTheCaptionDoesNotPressTheButton)
{
    m_Button.UseHTML(true);
    m_Button.SetCaption("<a href=\"there\">on</a>");
    m_Host.Paint();  // the link begins at (11, 0)
    m_Log.Add(m_Button.m_LinkClicked, "link");
    m_Host.Mouse().Press(m_Button, 15, 4);
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageHot);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Text(), "link(\"there\", false)");
}

TEST_F(Button, ADisabledButtonIsNotPressed)
{
    m_Button.SetEnabled(false);
    m_Host.Mouse().Click(m_Button, 5, 5);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(Button, BeingDisabledEndsAPressWithoutAClick)
{
    m_Host.Mouse().Press(m_Button, 5, 5);
    m_Button.SetEnabled(false);
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageNormal);
    m_Button.SetEnabled(true);
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageNormal);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(Button, BeingHiddenOrShownEndsAPressButLeavesTheTimer)
{
    Repeat(0);
    m_Button.SetVisible(false);
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageNormal);
    EXPECT_TRUE(m_Button.IsRepeating());
    m_Button.HandleKeyDown(0, vkSpace);
    m_Button.SetVisible(true);
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageNormal);
    m_Button.StopRepeating();
}

// Keyboard ----------------------------------------------------------------------------------------------------------------

TEST_F(Button, SpaceWithThePointerElsewhereShowsPressedAndClicksOnReleaseDrawnAsNormal)
{
    m_Button.SetFocus(true);
    m_Host.Mouse().Move(m_Other, 5, 5);
    m_Host.Keyboard().Down(vkSpace);
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StagePressed);
    EXPECT_EQ(m_Button.GetNativeState(), 2 + 8);
    m_Host.Keyboard().Down(vkSpace);
    EXPECT_EQ(m_Log.Text(), "");

    m_Host.Keyboard().Up(vkSpace);

    EXPECT_EQ(m_Log.Text(), "click()");
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageHot);
    EXPECT_EQ(m_Button.GetNativeState(), 2);
}

TEST_F(Button, ReturnClicksWithNoPressedLook)
{
    m_Button.SetFocus(true);
    m_Host.Paint();
    m_Host.Keyboard().Down(vkReturn);
    EXPECT_EQ(m_Log.Text(), "click()");
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageNormal);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Host.Keyboard().Up(vkReturn);
    EXPECT_EQ(m_Log.Text(), "click()");
}

TEST_F(Button, OtherKeysGoOn)
{
    EXPECT_FALSE(m_Button.HandleKeyDown(0, 'A'));
    EXPECT_FALSE(m_Button.HandleKeyUp(0, 'A'));
    EXPECT_TRUE(m_Button.HandleKeyUp(0, vkSpace));
    EXPECT_EQ(m_Log.Text(), "");
}

// Repeating ---------------------------------------------------------------------------------------------------------------

TEST_F(Button, HeldForThreeTicksARepeatingButtonClicksFourTimesInAll)
{
    Repeat(650);  // ticks at 200, 400, 600
    EXPECT_EQ(m_Log.Text(), "click() click() click()");
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Count("click"), 4);
    m_Host.Clock().Advance(1000);
    EXPECT_EQ(m_Log.Count("click"), 4);
    EXPECT_FALSE(m_Button.IsRepeating());
}

TEST_F(Button, IfThePointerLeavesMeanwhileARepeatingButtonClicksOnlyTheThreeTimes)
{
    Repeat(650);
    m_Host.Mouse().Move(m_Other, 5, 5);
    m_Host.Clock().Advance(1000);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Count("click"), 3);
}

TEST_F(Button, TheRepeatIntervalCanBeChanged)
{
    m_Button.SetRepeatInterval(50);
    Repeat(120);
    EXPECT_EQ(m_Log.Count("click"), 2);
    m_Host.Mouse().Release();
}

TEST_F(Button, WithoutAutoRepeatNothingRepeats)
{
    m_Host.Mouse().Press(m_Button, 5, 5);
    m_Host.Clock().Advance(1000);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(Button, AnyReleaseStopsTheRepeating)
{
    Repeat(0);
    m_Button.HandleButtonUp(5, 5, 1, mbRight);
    EXPECT_FALSE(m_Button.IsRepeating());
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StagePressed);
}

TEST_F(Button, DisablingStopsTheRepeating)
{
    Repeat(250);
    m_Button.SetEnabled(false);
    EXPECT_FALSE(m_Button.IsRepeating());
    EXPECT_EQ(m_Log.Count("click"), 1);
}

TEST_F(Button, ATickOfAButtonThatIsDisabledStopsTheRepeatingWithoutAClick)
{
    m_Button.SetEnabled(false);
    m_Button.StartRepeating();
    m_Host.Clock().Advance(200);
    EXPECT_FALSE(m_Button.IsRepeating());
    EXPECT_EQ(m_Log.Text(), "");
}

// A click in which something dies -----------------------------------------------------------------------------------------

TEST_F(Button, TheButtonMayBeDeletedInItsClick)
{
    auto const end = Listen(m_Button.m_Clicked, [&](CButton*) { delete &m_Button; });
    m_Host.Mouse().Click(m_Button, 5, 5);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
    m_Host.Mouse().Click(m_Other, 5, 5);
}

TEST_F(Button, TheButtonMayBeDeletedInAClickByKey)
{
    for (int const key : {int(vkSpace), int(vkReturn)})
    {
        auto* const button = new CButton(m_Host.Root(), {0, 20}, alTop);
        m_Host.Paint();
        auto const end = Listen(button->m_Clicked, [&](CButton*) { delete button; });
        button->SetFocus(true);
        m_Host.Keyboard().Press(key);
        EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 2);
    }
}

TEST_F(Button, TheButtonMayBeDeletedInARepetition)
{
    auto const end = Listen(m_Button.m_Clicked, [&](CButton*) { delete &m_Button; });
    Repeat(500);
    EXPECT_EQ(m_Log.Count("click"), 1);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
}

TEST_F(Button, TheParentMayBeDeletedInAClick)
{
    auto* const pane = new CVisualElement(m_Host.Root(), {0, 30}, alTop);
    auto* const button = new CButton(pane, {0, 20}, alTop);
    m_Host.Paint();
    auto const end = Listen(button->m_Clicked, [&](CButton*) { delete pane; });
    m_Host.Mouse().Click(*button, 5, 5);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 2);
}

TEST_F(Button, TheControlMayBeDeletedInAClick)
{
    auto const end = Listen(m_Button.m_Clicked, [&](CButton*) { m_Host.DestroyControl(); });
    m_Host.Mouse().Press(m_Button, 5, 5);
    m_Host.Mouse().Release();
    EXPECT_FALSE(m_Host.HasControl());
}

TEST_F(Button, TheControlMayBeDeletedInARepetition)
{
    auto const end = Listen(m_Button.m_Clicked, [&](CButton*) { m_Host.DestroyControl(); });
    Repeat(500);
    EXPECT_FALSE(m_Host.HasControl());
}

TEST_F(Button, TheButtonMayBeDisabledHiddenOrMovedInItsClick)
{
    auto const act = Listen(m_Button.m_Clicked, [&](CButton* button) {
        button->SetEnabled(false);
        button->SetVisible(false);
        button->ReParent(&m_Other, true);
    });
    m_Host.Mouse().Click(m_Button, 5, 5);
    EXPECT_EQ(m_Button.GetClickStage(), CClickHandler::StageNormal);
    EXPECT_EQ(m_Button.GetParent(), &m_Other);
}

TEST_F(Button, TheButtonMayBeDeletedByAClickOnItsLink)
{
    m_Button.UseHTML(true);
    m_Button.SetAutoRepeat(true);
    m_Button.SetCaption("<a href=\"there\">on</a>");
    m_Host.Paint();
    auto const end = Listen(m_Button.m_LinkClicked, [&](std::string const&, bool&) { delete &m_Button; });
    m_Host.Mouse().Click(m_Button, 15, 4);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
}
