// In what order a button's events come, and what each of them leaves alone.

#include "tests/support/hearing_element.h"
#include "tests/support/slot.h"
#include "vexel/controls/button.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

/// Notes each change of its stage and each click as "stage(2)" and "click@2".
class CTelling : public CButton
{
public:
    CTelling(CSignalLog& log, CVisualElement* parent, size<int> const& extent, Alignment alignment)
        : CButton(parent, extent, alignment), m_Log(log)
    {}

    bool IsMouseOverButton(int x, int y) const override
    {
        m_Asked = {x, y};
        return m_Sensitive;
    }
    void ProcessStageChange(ClickStage stage) override
    {
        m_Log.Note("stage(" + std::to_string(stage) + ")");
        CButton::ProcessStageChange(stage);
    }
    void ProcessClick() override
    {
        m_Log.Note("click@" + std::to_string(GetClickStage()));
        CButton::ProcessClick();
    }

    bool m_Sensitive = true;
    mutable point<int> m_Asked;

private:
    CSignalLog& m_Log;
};

// A pane at (0, 0, 199, 60) with a button at (10, 5, 90, 35) on it, and another button below the pane.
class ButtonEvents : public testing::Test
{
protected:
    ButtonEvents()
    {
        m_Button.SetPos({10, 5, 90, 35}, true);
        m_Host.Focus();
        m_Host.Paint();
        m_Log.Clear();
    }
    void Hover()
    {
        m_Host.Mouse().Move(m_Button, 5, 5);
        m_Host.Paint();
        m_Log.Clear();
    }

    CTestHost m_Host{200, 100};
    CSignalLog m_Log;
    CHearing& m_Pane = *new CHearing(m_Log, "pane", m_Host.Root(), {0, 60}, alTop);
    CTelling& m_Button = *new CTelling(m_Log, &m_Pane, {0, 0}, alNone);
    CButton& m_Other = *new CButton(m_Host.Root(), {0, 20}, alTop);
};

}  // namespace

// Mouse -------------------------------------------------------------------------------------------------------------------

TEST_F(ButtonEvents, TheSignalsOfTheElementComeBeforeThePressAndTheClickBeforeTheStage)
{
    m_Log.Add(m_Button.m_SigButtonDown, "down").Add(m_Button.m_SigButtonUp, "up").Add(m_Button.m_SigClick, "sigclick");
    m_Log.Add(m_Button.m_Clicked, "clicked").Add(m_Button.m_SigMouseHover, "hover");
    m_Log.Add(m_Button.m_SigMouseLeave, "leave");
    m_Host.Mouse().Move(m_Button, 5, 6);
    m_Host.Mouse().Press();
    m_Host.Mouse().Release();
    m_Host.Mouse().Move(m_Other, 5, 5);
    EXPECT_EQ(m_Log.Text(), "hover() stage(1) down(5, 6, 1, 1) stage(2) sigclick(5, 6, 0, 1) up(5, 6, 0, 1) click@2 "
                            "clicked() stage(1) leave() stage(0)");
}

TEST_F(ButtonEvents, EachStageIsShown)
{
    m_Host.Mouse().Move(m_Button, 5, 5);
    EXPECT_EQ(m_Host.Paint().Elements(), "CTelling");
    m_Host.Mouse().Press();
    m_Host.Paint();  // the focus as well
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Host.Paint().Elements(), "CTelling");
    m_Host.Mouse().Move(195, 95);
    EXPECT_EQ(m_Host.Paint().Elements(), "CTelling");
}

TEST_F(ButtonEvents, ASensitivePressIsConsumedAndAnotherGoesOnToTheParent)
{
    Hover();
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Log.Take(), "stage(2)");
    EXPECT_EQ(m_Button.m_Asked, (point<int>{5, 5}));
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Count("pane:Up"), 0);
    m_Log.Clear();

    m_Button.m_Sensitive = false;
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Log.Take(), "pane:Down");
}

TEST_F(ButtonEvents, AnotherButtonGoesOnToTheParent)
{
    Hover();
    m_Host.Mouse().Press(mbRight);
    EXPECT_EQ(m_Log.Take(), "pane:Down");
    m_Host.Mouse().Release(mbRight);
    EXPECT_EQ(m_Log.Take(), "pane:Click pane:Up");
}

TEST_F(ButtonEvents, AReleaseCountsAlsoOutsideTheSensitiveArea)
{
    Hover();
    m_Host.Mouse().Press();
    m_Button.m_Sensitive = false;
    m_Log.Clear();
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "click@2 stage(1)");
}

TEST_F(ButtonEvents, APressThatNoPointerPrecededIsUsedButNotShown)
{
    m_Button.SetAutoRepeat(true);
    EXPECT_TRUE(m_Button.HandleButtonDown(5, 5, 1, mbLeft));
    EXPECT_EQ(m_Button.GetClickStage(), 0);
    EXPECT_TRUE(m_Button.IsRepeating());
    EXPECT_TRUE(m_Button.HandleButtonUp(5, 5, 0, mbLeft));
    EXPECT_FALSE(m_Button.IsRepeating());
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ButtonEvents, TheOtherButtonPressedMeanwhileLeavesThePressAlone)
{
    Hover();
    m_Host.Mouse().Press();
    m_Host.Mouse().Press(mbRight);
    m_Host.Mouse().Release(mbRight);
    EXPECT_EQ(m_Button.GetClickStage(), 2);
    m_Log.Clear();
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "click@2 stage(1)");
}

TEST_F(ButtonEvents, AClickMayComeFromTheApplicationAtAnyTime)
{
    CSignalLog clicked(m_Button.m_Clicked, "clicked");
    m_Button.SetEnabled(false);
    m_Log.Clear();
    m_Button.CButton::ProcessClick();
    EXPECT_EQ(clicked.Text(), "clicked()");
    EXPECT_EQ(m_Log.Text(), "");
}

// Keyboard ----------------------------------------------------------------------------------------------------------------

TEST_F(ButtonEvents, SpaceGoesThroughHotAndNeverRepeats)
{
    m_Button.SetAutoRepeat(true);
    m_Button.SetFocus(true);
    m_Host.Keyboard().Down(vkSpace);
    EXPECT_EQ(m_Log.Take(), "stage(1) stage(2) pane:Char");
    EXPECT_FALSE(m_Button.IsRepeating());
    m_Host.Keyboard().Up(vkSpace);
    EXPECT_EQ(m_Log.Take(), "click@2 stage(1)");
}

TEST_F(ButtonEvents, SpaceDuringAMousePressStartsItAnewAndOneReleaseClicks)
{
    Hover();
    m_Host.Mouse().Press();
    m_Log.Clear();
    m_Host.Keyboard().Down(vkSpace);
    EXPECT_EQ(m_Log.Take(), "stage(1) stage(2) pane:Char");
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "click@2 stage(1)");
    m_Host.Keyboard().Up(vkSpace);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ButtonEvents, APointerThatLeavesEndsThePressByKeyToo)
{
    Hover();
    m_Button.SetFocus(true);
    m_Host.Keyboard().Down(vkSpace);
    m_Log.Clear();
    m_Host.Mouse().Move(m_Other, 5, 5);
    EXPECT_EQ(m_Log.Take(), "stage(0)");
    m_Host.Keyboard().Up(vkSpace);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ButtonEvents, ReturnClicksEachTimeItRepeatsAndIsUsed)
{
    m_Button.SetFocus(true);
    m_Log.Clear();
    m_Host.Keyboard().Down(vkReturn);
    m_Host.Keyboard().Down(vkReturn);
    EXPECT_EQ(m_Log.Take(), "click@0 click@0");
    m_Host.Keyboard().Up(vkReturn);
    EXPECT_EQ(m_Log.Take(), "pane:KeyUp");
}

TEST_F(ButtonEvents, OnlyTheKeysItUsesEndWithIt)
{
    m_Button.SetFocus(true);
    m_Log.Clear();
    m_Host.Keyboard().Down(vkSpace);
    m_Host.Keyboard().Up(vkSpace);
    EXPECT_EQ(m_Log.Count("pane:KeyDown") + m_Log.Count("pane:KeyUp"), 0);
    m_Log.Clear();
    m_Host.Keyboard().Down('A');
    m_Host.Keyboard().Up('A');
    EXPECT_EQ(m_Log.Take(), "pane:KeyDown pane:Char pane:KeyUp");
}

// Enabling and showing ----------------------------------------------------------------------------------------------------

TEST_F(ButtonEvents, BeingDisabledOrHiddenEndsThePressWithoutAWord)
{
    m_Button.HandleKeyDown(0, vkSpace);
    m_Log.Clear();
    m_Button.SetEnabled(false);
    EXPECT_EQ(m_Button.GetClickStage(), 0);
    m_Button.SetEnabled(true);
    m_Button.HandleKeyDown(0, vkSpace);
    EXPECT_EQ(m_Log.Take(), "stage(1) stage(2)");
    m_Button.SetVisible(false);
    EXPECT_EQ(m_Button.GetClickStage(), 0);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ButtonEvents, BeingDisabledOnceMoreEndsAPressByKeyToo)
{
    m_Button.SetEnabled(false);
    m_Button.HandleKeyDown(0, vkSpace);
    m_Button.StartRepeating();
    m_Button.SetEnabled(false);
    EXPECT_EQ(m_Button.GetClickStage(), 0);
    EXPECT_FALSE(m_Button.IsRepeating());
}

TEST_F(ButtonEvents, BeingEnabledOnceMoreLeavesThePressAndTheRepeatingAlone)
{
    m_Button.SetAutoRepeat(true);
    Hover();
    m_Host.Mouse().Press();
    m_Button.SetEnabled(true);
    EXPECT_EQ(m_Button.GetClickStage(), 2);
    EXPECT_TRUE(m_Button.IsRepeating());
    m_Host.Mouse().Release();
}

TEST_F(ButtonEvents, AHiddenButtonThatIsHeldGoesOnRepeating)
{
    m_Button.SetAutoRepeat(true);
    CSignalLog clicked(m_Button.m_Clicked, "clicked");
    Hover();
    m_Host.Mouse().Press();
    m_Button.ProcessSetVisible(false);  // what hiding tells it, with the pointer still there
    m_Host.Clock().Advance(400);
    EXPECT_EQ(clicked.Count(), 2);
    m_Button.ProcessSetVisible(true);
    m_Host.Mouse().Release();
    EXPECT_EQ(clicked.Count(), 2);
    EXPECT_FALSE(m_Button.IsRepeating());
}

// Repeating ---------------------------------------------------------------------------------------------------------------

TEST_F(ButtonEvents, ARepetitionIsNoClickOfTheMachineButTheReleaseIs)
{
    m_Button.SetAutoRepeat(true);
    m_Log.Add(m_Button.m_Clicked, "clicked");
    Hover();
    m_Host.Mouse().Press();
    m_Host.Clock().Advance(200);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "stage(2) clicked() click@2 clicked() stage(1)");
}

TEST_F(ButtonEvents, AReleaseStopsTheRepeatingBeforeItsClick)
{
    m_Button.SetAutoRepeat(true);
    bool repeating = true;
    auto const look = Listen(m_Button.m_Clicked, [&](CButton* button) { repeating = button->IsRepeating(); });
    Hover();
    m_Host.Mouse().Press();
    m_Host.Mouse().Release();
    EXPECT_FALSE(repeating);
}

TEST_F(ButtonEvents, ThePointerThatLeavesStopsTheRepeatingBeforeTheStageChanges)
{
    m_Button.SetAutoRepeat(true);
    Hover();
    m_Host.Mouse().Press();
    bool repeating = true;
    auto const look = Listen(m_Button.m_SigMouseLeave, [&](CVisualElement*) { repeating = m_Button.IsRepeating(); });
    m_Host.Mouse().Move(m_Other, 5, 5);
    EXPECT_TRUE(repeating);  // the signal is the element's, and comes first
    EXPECT_FALSE(m_Button.IsRepeating());
    EXPECT_EQ(m_Button.GetClickStage(), 0);
}

TEST_F(ButtonEvents, AutoRepeatIsAskedForAtThePressAlone)
{
    Hover();
    m_Host.Mouse().Press();
    m_Button.SetAutoRepeat(true);
    EXPECT_FALSE(m_Button.IsRepeating());
    m_Host.Mouse().Release();
    m_Host.Mouse().Press();
    m_Button.SetAutoRepeat(false);
    EXPECT_TRUE(m_Button.IsRepeating());
    m_Host.Mouse().Release();
    EXPECT_FALSE(m_Button.IsRepeating());
}

TEST_F(ButtonEvents, AnIntervalOfNothingRepeatsNothing)
{
    m_Button.SetAutoRepeat(true);
    m_Button.SetRepeatInterval(0);
    EXPECT_EQ(m_Button.GetRepeatInterval(), 0);
    Hover();
    m_Host.Mouse().Press();
    EXPECT_FALSE(m_Button.IsRepeating());
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "stage(2) click@2 stage(1)");
}

// Construction ------------------------------------------------------------------------------------------------------------

TEST_F(ButtonEvents, ItIsDockedWhereItWasToldAndItsTextRunsOnWhicheverSide)
{
    for (Alignment const side : {alNone, alLeft, alRight, alTop, alBottom, alClient})
    {
        CButton button(nullptr, {10, 20}, side);
        EXPECT_EQ(button.GetAlignment(), side);
        EXPECT_EQ(button.GetSize(), (size<int>{10, 20}));
        EXPECT_EQ(button.GetAlong(1, 2), 1);
        EXPECT_EQ(button.GetAcross(1, 2), 2);
    }
}

TEST_F(ButtonEvents, ItsTextStandsAsAtTheTopAtFirstAndAsAtNoEdgeOnceItIsDockedAnew)
{
    // Both leave texts alone; they can be told apart only where somebody has them converted.
    m_Other.SetTextConversion(true);
    EXPECT_EQ(m_Other.ConvTextAlign(IPainter::AlignTop), IPainter::AlignTop | IPainter::AlignBottom);
    m_Other.SetAlignment(alTop);
    EXPECT_EQ(m_Other.ConvTextAlign(IPainter::AlignTop), IPainter::AlignTop);
}
