// A row of buttons.

#include "vexel/controls/button_set.h"

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/scripted_system.h"
#include "tests/support/slot.h"
#include "vexel/controls/button.h"
#include "vexel/controls/button_captions.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

using Size = size<int>;

namespace
{

class ButtonSet : public testing::Test
{
protected:
    ButtonSet() { m_Log.Add(m_Set.m_ButtonPressed, "pressed"); }
    ~ButtonSet() override { GetButtonCaptions().clear(); }

    CButton& GetButton(int index, CButtonSet& set)
    {
        return dynamic_cast<CButton&>(*set.GetContainer()->GetChildren()->GetItem(2 * index));
    }
    CButton& GetButton(int index) { return GetButton(index, m_Set); }
    int CountChildren() { return m_Set.GetContainer() ? m_Set.GetContainer()->GetChildren()->GetCount() : 0; }

    CTestHost m_Host{300, 100};
    CButtonSet& m_Set = *new CButtonSet(m_Host.Root(), {0, 30}, alTop);
    CSignalLog m_Log;
};

}  // namespace

TEST_F(ButtonSet, ItStartsInvisibleAndEmpty)
{
    EXPECT_FALSE(m_Set.IsVisible());
    EXPECT_EQ(m_Set.GetContainer(), nullptr);
    EXPECT_EQ(m_Set.GetButtonCount(), 0u);
}

TEST_F(ButtonSet, NoBitAndBitsAboveTheSeventhAddNothing)
{
    m_Set.SetButtons(0);
    EXPECT_FALSE(m_Set.IsVisible());
    m_Set.SetButtons(128);
    EXPECT_FALSE(m_Set.IsVisible());
    EXPECT_EQ(m_Set.GetButtonCount(), 0u);
}

TEST_F(ButtonSet, EachBitIsAButtonFromTheLowestUp)
{
    GetButtonCaptions() = {{1, "Yes"}, {64, "Help"}};
    m_Set.SetButtons(64 + 4 + 1 + 256);

    EXPECT_TRUE(m_Set.IsVisible());
    EXPECT_EQ(m_Set.GetButtonCount(), 3u);
    EXPECT_EQ(GetButton(0).GetCaption(), "Yes");
    EXPECT_EQ(GetButton(1).GetCaption(), "<Unassigned>");
    EXPECT_EQ(GetButton(2).GetCaption(), "Help");
    EXPECT_EQ(GetButton(0).GetButtonId(), 1);
    EXPECT_EQ(GetButton(1).GetButtonId(), 4);
    EXPECT_EQ(GetButton(2).GetButtonId(), 64);
}

TEST_F(ButtonSet, AllSevenBits)
{
    m_Set.SetButtons(0xFFFFFFFFu);
    EXPECT_EQ(m_Set.GetButtonCount(), 7u);
    EXPECT_EQ(CountChildren(), 13);
}

TEST_F(ButtonSet, FurtherButtonsAreAdded)
{
    m_Set.SetButtons(1);
    m_Set.SetButtons(1);
    EXPECT_EQ(m_Set.GetButtonCount(), 2u);
}

TEST_F(ButtonSet, AButtonIsNumberedAndSizesItselfBehindAGap)
{
    m_Set.AddButton("ab", 7);
    m_Set.AddButton("abcd", -3);

    EXPECT_EQ(GetButton(0).GetId(), 1u);
    EXPECT_EQ(GetButton(1).GetId(), 2u);
    EXPECT_EQ(GetButton(1).GetButtonId(), -3);
    EXPECT_EQ(GetButton(0).GetSize(), (Size{38, 17}));
    EXPECT_EQ(GetButton(1).GetSize(), (Size{54, 17}));
    CVisualElement const* const gap = m_Set.GetContainer()->GetChildren()->GetItem(1);
    EXPECT_EQ(gap->GetSize(), (Size{6, 6}));
    EXPECT_EQ(gap->GetAlignment(), alLeft);
    EXPECT_EQ(m_Set.GetContainer()->GetAlignment(), alLeft);
}

TEST_F(ButtonSet, TheSetIsAsHighAsItsFirstButtonAndTheRowAsWideAsAll)
{
    m_Set.AddButton("ab", 1);
    m_Set.AddButton("abcd", 2);
    EXPECT_EQ(m_Set.GetSize().height, 17);
    EXPECT_EQ(m_Set.GetContainer()->GetSize().width, 38 + 6 + 54);
}

TEST_F(ButtonSet, APressTellsTheNumber)
{
    m_Set.AddButton("ab", 7);
    m_Set.AddButton("abcd", -3);
    m_Host.Paint();
    m_Host.Mouse().Click(GetButton(1), 5, 5);
    m_Host.Mouse().Click(GetButton(0), 5, 5);
    EXPECT_EQ(m_Log.Text(), "pressed(-3) pressed(7)");
    m_Set.ButtonPressed(nullptr);
    EXPECT_EQ(m_Log.Count(), 2);
}

TEST_F(ButtonSet, WithoutAControlItGetsNoSizeAndThenWhenTheControlArrives)
{
    CButtonSet alone(nullptr, {10, 10}, alTop);
    alone.AddButton("ab", 1);
    alone.AddButton("abcd", 2);
    EXPECT_EQ(alone.GetSize(), (Size{10, 10}));
    EXPECT_EQ(GetButton(0, alone).GetSize(), (Size{12, 12}));

    alone.ReParent(m_Host.Root(), true);

    EXPECT_EQ(alone.GetSize().height, 17);
    EXPECT_EQ(alone.GetContainer()->GetSize().width, 98);
}

TEST_F(ButtonSet, ClearingDeletesTheButtonsAndHidesTheSet)
{
    m_Set.SetButtons(3);
    m_Host.Paint();
    m_Set.ClearButtons();
    EXPECT_EQ(m_Set.GetContainer(), nullptr);
    EXPECT_EQ(m_Set.GetButtonCount(), 0u);
    EXPECT_FALSE(m_Set.IsVisible());
    EXPECT_EQ(m_Set.GetChildren()->GetCount(), 0);
    m_Set.ClearButtons();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");

    m_Set.SetButtons(1);
    EXPECT_TRUE(m_Set.IsVisible());
    EXPECT_EQ(GetButton(0).GetId(), 1u);
}

TEST_F(ButtonSet, AButtonMayClearTheSetItIsIn)
{
    m_Set.SetButtons(3);
    m_Host.Paint();
    auto const clear = Listen(m_Set.m_ButtonPressed, [&](int) { m_Set.ClearButtons(); });
    m_Host.Mouse().Click(GetButton(1), 5, 5);
    EXPECT_EQ(m_Log.Text(), "pressed(2)");
    EXPECT_FALSE(m_Set.IsVisible());
    m_Host.Paint();
}

TEST_F(ButtonSet, AButtonMayExchangeTheButtonsItIsAmong)
{
    m_Set.SetButtons(3);
    m_Host.Paint();
    auto const exchange = Listen(m_Set.m_ButtonPressed, [&](int) {
        m_Set.ClearButtons();
        m_Set.SetButtons(4);
    });
    m_Host.Mouse().Click(GetButton(0), 5, 5);
    EXPECT_EQ(m_Set.GetButtonCount(), 1u);
    m_Host.Paint();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ButtonSet, AButtonMayDeleteTheSetItIsIn)
{
    m_Set.SetButtons(3);
    m_Host.Paint();
    auto const end = Listen(m_Set.m_ButtonPressed, [&](int) { delete &m_Set; });
    m_Host.Mouse().Click(GetButton(0), 5, 5);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 0);
}

TEST_F(ButtonSet, TheCaptionsAreEmptyAtFirst)
{
    EXPECT_TRUE(GetButtonCaptions().empty());
    m_Set.SetButtons(127);
    for (int i = 0; i < 7; ++i)
    {
        EXPECT_EQ(GetButton(i).GetCaption(), "<Unassigned>");
        EXPECT_EQ(GetButton(i).GetButtonId(), 1 << i);
        EXPECT_EQ(GetButton(i).GetId(), static_cast<unsigned long>(i + 1));
    }
}

TEST_F(ButtonSet, AnEmptyCaptionOfTheTableIsACaption)
{
    GetButtonCaptions() = {{2, ""}};
    m_Set.SetButtons(2);
    EXPECT_EQ(GetButton(0).GetCaption(), "");
}

TEST_F(ButtonSet, WhatIsAddedHasTheButtonsOwnLook)
{
    CButton* const button = m_Set.AddButton("ab", 7);
    EXPECT_EQ(button, &GetButton(0));
    EXPECT_TRUE(button->IsAutoSize());
    EXPECT_EQ(button->GetAlignment(), alLeft);
    EXPECT_TRUE(button->IsNativeDrawing());
    EXPECT_EQ(button->GetCaption(), "ab");
    EXPECT_TRUE(m_Set.IsVisible());
}

TEST_F(ButtonSet, OnlyTheFirstButtonShowsTheSet)
{
    m_Set.AddButton("ab", 1);
    m_Set.SetVisible(false);
    m_Set.AddButton("cd", 2);
    EXPECT_FALSE(m_Set.IsVisible());
    EXPECT_EQ(m_Set.GetButtonCount(), 2u);
}

TEST_F(ButtonSet, WithoutAutomaticScalingTheFirstSizesAreTheSameAtAnyScale)
{
    CAutoScaleScope const off(false);
    m_Host.SetScale(2);
    CButtonSet alone(nullptr, {10, 10}, alTop);
    alone.AddButton("ab", 1);
    alone.AddButton("cd", 2);
    EXPECT_EQ(alone.GetContainer()->GetSize(), (Size{12, 12}));
    EXPECT_EQ(GetButton(0, alone).GetSize(), (Size{12, 12}));
    EXPECT_EQ(alone.GetContainer()->GetChildren()->GetItem(1)->GetSize(), (Size{6, 6}));
}

TEST_F(ButtonSet, TheSetFollowsItsFirstButtonWhenAskedTo)
{
    m_Set.AddButton("ab", 1);
    m_Set.AddButton("abcd", 2);
    GetButton(0).SetSize({50, 25}, false);
    EXPECT_EQ(m_Set.GetSize().height, 17);
    m_Set.UpdateContainerSize();
    EXPECT_EQ(m_Set.GetSize().height, 25);
    EXPECT_EQ(m_Set.GetContainer()->GetSize().width, 50 + 6 + 54);
    EXPECT_EQ(m_Set.GetContainer()->GetSize().height, 12);
    EXPECT_EQ(m_Set.GetSize().width, 0);
}

TEST_F(ButtonSet, ARowThatLostAllItsButtonsIsNoPixelWideAndTheHeightStays)
{
    m_Set.AddButton("ab", 1);
    delete &GetButton(0);
    m_Set.UpdateContainerSize();
    EXPECT_EQ(m_Set.GetContainer()->GetSize().width, 0);
    EXPECT_EQ(m_Set.GetSize().height, 17);
}

TEST_F(ButtonSet, WithoutARowThereIsNoSizeToBeTaken)
{
    m_Set.UpdateContainerSize();
    EXPECT_EQ(m_Set.GetSize(), (Size{0, 30}));
}

TEST_F(ButtonSet, WhicheverButtonItIsHandedItTellsItsNumber)
{
    CButton alone(nullptr, {0, 0}, alNone);
    alone.SetButtonId(99);
    m_Set.ButtonPressed(&alone);
    EXPECT_EQ(m_Log.Text(), "pressed(99)");
}

TEST_F(ButtonSet, AButtonClicksBeforeTheSetTells)
{
    m_Set.AddButton("ab", 7);
    m_Log.Add(GetButton(0).m_SigButtonUp, "up").Add(GetButton(0).m_Clicked, "clicked");
    m_Host.Paint();
    m_Host.Mouse().Click(GetButton(0), 5, 5);
    EXPECT_EQ(m_Log.Text(), "up(5, 5, 0, 1) pressed(7) clicked()");  // the set listens first
}

TEST(ButtonSetWithoutWindow, ClearingWithdrawsEachChildBeforeTheRowGoes)
{
    CTestHost::System();  // fonts and metrics
    CCallLog log;
    CRecordingControl control(log);
    auto* const set = new CButtonSet(nullptr, {10, 10}, alTop);
    log.Name(set, "set");
    CButton* const first = set->AddButton("ab", 1);
    CButton* const second = set->AddButton("cd", 2);
    log.Name(set->GetContainer(), "row");
    log.Name(first, "first");
    log.Name(set->GetContainer()->GetChildren()->GetItem(1), "gap");
    log.Name(second, "second");
    set->SetControl(&control);
    log.Clear();

    set->ClearButtons();

    std::string const calls = log.Take({"UpdateElement"});
    EXPECT_EQ(calls.substr(0, calls.find("second") + 11),
              "control.UpdateElement(first, 16) control.UpdateElement(gap, 16) control.UpdateElement(second, 16)");
    delete set;
}
