// Stages that show a message where their check fails, and wait for a button or for the check to pass by itself.

#include "vexel/widgets/check_stage_gui.h"

#include "tests/support/scripted_system.h"
#include "tests/support/virtual_order.h"
#include "tests/widgets/stage_bench.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

using namespace vexel;
using namespace vexel::test;

namespace
{

using Size = size<int>;
using Rect = rectangle<int>;
using CheckStageGui = CStageBench;

}  // namespace

// Settings ----------------------------------------------------------------------------------------------------------------------

TEST(CheckStageGuiDefaults, AFreshOneHasNothingToShow)
{
    CCheckStageGui const stage;
    EXPECT_EQ(stage.GetParent(), nullptr);
    EXPECT_EQ(stage.GetNotify(), nullptr);
    EXPECT_EQ(stage.GetBox(), nullptr);
    EXPECT_EQ(stage.GetTimer(), nullptr);
    EXPECT_EQ(stage.GetImageType(), 0);
    EXPECT_EQ(stage.GetTitle(), "");
    EXPECT_EQ(stage.GetText(), "");
    EXPECT_EQ(stage.GetButtonMask(), 0u);
    EXPECT_EQ(stage.GetAcceptValue(), 0);
    EXPECT_EQ(stage.GetWaitImageType(), 0);
    EXPECT_EQ(stage.GetWaitTitle(), "");
    EXPECT_EQ(stage.GetWaitText(), "");
    EXPECT_FALSE(stage.IsRecheckOnButton());
}

TEST_F(CheckStageGui, ItKeepsWhatItIsGiven)
{
    m_Stage->SetMessage(4, "title", "text");
    m_Stage->SetWaitMessage(5, "wait", "for it");
    m_Stage->SetButtons(12, 8);
    m_Stage->SetRecheckOnButton(true);
    vexel_ptr<ISysTimer> const timer = CTestHost::System().CreateTimer(100, 0);
    m_Stage->SetTimer(timer);
    EXPECT_EQ(m_Stage->GetParent(), &m_Pane);
    EXPECT_EQ(m_Stage->GetImageType(), 4);
    EXPECT_EQ(m_Stage->GetTitle(), "title");
    EXPECT_EQ(m_Stage->GetText(), "text");
    EXPECT_EQ(m_Stage->GetWaitImageType(), 5);
    EXPECT_EQ(m_Stage->GetWaitTitle(), "wait");
    EXPECT_EQ(m_Stage->GetWaitText(), "for it");
    EXPECT_EQ(m_Stage->GetButtonMask(), 12u);
    EXPECT_EQ(m_Stage->GetAcceptValue(), 8);
    EXPECT_TRUE(m_Stage->IsRecheckOnButton());
    EXPECT_EQ(m_Stage->GetTimer(), timer.get());
    EXPECT_FALSE(timer->IsRunning());
    m_Stage->SetTimer(nullptr);
    EXPECT_EQ(m_Stage->GetTimer(), nullptr);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST(CheckStageGuiVirtualOrder, ItsOperationsStandInTheirOrder)
{
    EXPECT_EQ(Place(&CCheckStageGui::Process), Place(&ICheckStage::Process));
    ExpectOrder(2, &CCheckStageGui::Process, &CCheckStageGui::DoCheck, &CCheckStageGui::OnComplete,
                &CCheckStageGui::OnTimer);
}

TEST(CheckStageGuiSignals, TheCheckAsksItsSlots)
{
    CCheckStageGui stage;
    bool failed = false;
    stage.DoCheck(failed);
    EXPECT_FALSE(failed);
    failed = true;
    stage.DoCheck(failed);
    EXPECT_TRUE(failed);
    bool seen = false;
    auto const slot = Listen(stage.m_Check, [&](bool& fails) {
        seen = fails;
        fails = !fails;
    });
    stage.DoCheck(failed);
    EXPECT_FALSE(failed);
    EXPECT_TRUE(seen);
    stage.DoCheck(failed);
    EXPECT_TRUE(failed);
    EXPECT_FALSE(seen);
}

// The check passes or has no message --------------------------------------------------------------------------------------------

TEST_F(CheckStageGui, ACheckThatPassesGivesTheFocusAndGoesOn)
{
    m_Stage->m_Fails = false;
    Process();
    EXPECT_EQ(m_Log.Text(), "check(false) focus() complete(true) told(true)");
    EXPECT_EQ(m_Stage->GetNotify(), &m_Notify);
    EXPECT_EQ(Focused(), &m_Pane);
    EXPECT_EQ(m_Stage->GetBox(), nullptr);
    EXPECT_EQ(BoxCount(), 0);
}

TEST_F(CheckStageGui, ACheckThatPassesWithoutParentOrNotifyIsSurvived)
{
    m_Stage->m_Fails = false;
    m_Stage->Process(nullptr);
    EXPECT_EQ(m_Log.Take(), "check(false) focus() complete(true)");
    m_Stage->SetParent(nullptr);
    Process();
    EXPECT_EQ(m_Log.Take(), "check(false) complete(true) told(true)");
    m_Stage->Process(nullptr);
    EXPECT_EQ(m_Log.Take(), "check(false) complete(true)");
    EXPECT_EQ(m_Stage->GetNotify(), nullptr);
}

TEST_F(CheckStageGui, ACheckThatFailsWithoutTextsAbortsTheChainWithNoBox)
{
    m_Stage->SetMessage(1, "", "");
    GiveTimer();
    Process();
    EXPECT_EQ(m_Log.Text(), "check(false) focus() complete(false) told(false)");
    EXPECT_EQ(m_Stage->GetBox(), nullptr);
    EXPECT_EQ(BoxCount(), 0);
    EXPECT_FALSE(m_Stage->GetTimer()->IsRunning());
    EXPECT_EQ(Focused(), &m_Pane);
}

TEST_F(CheckStageGui, ACheckThatFailsWithoutAParentAborts)
{
    m_Stage->SetParent(nullptr);
    Process();
    EXPECT_EQ(m_Log.Take(), "check(false) complete(false) told(false)");
    EXPECT_EQ(m_Stage->GetBox(), nullptr);
    m_Stage->Process(nullptr);
    EXPECT_EQ(m_Log.Take(), "check(false) complete(false)");
    EXPECT_EQ(Focused(), &m_Other);
}

TEST_F(CheckStageGui, AParentThatHasDiedIsNone)
{
    delete &m_Pane;
    EXPECT_EQ(m_Stage->GetParent(), nullptr);
    m_Stage->Process(&m_Notify);
    EXPECT_EQ(m_Log.Text(), "check(false) complete(false) told(false)");
}

TEST_F(CheckStageGui, ATitleOrATextIsEnoughForABox)
{
    m_Stage->SetMessage(1, "Disk", "");
    Process();
    EXPECT_EQ(BoxCount(), 1);
    m_Stage->SetMessage(1, "", "About");
    Process();
    EXPECT_EQ(Box().GetTitle().GetCaption(), "");
    EXPECT_EQ(Box().GetText().GetCaption(), "About");
    EXPECT_EQ(m_Log.Count(), 4);  // two checks, two boxes
}

// The box -----------------------------------------------------------------------------------------------------------------------

TEST_F(CheckStageGui, ACheckThatFailsShowsItsBox)
{
    auto const picture = m_Looks.NewPicture(1, {32, 32});
    m_Pane.SetBkColor(color_table[9]);
    m_Pane.SetFgColor(color_table[4]);
    Process();
    EXPECT_EQ(m_Log.Text(), "check(false) created");
    ASSERT_EQ(BoxCount(), 1);
    EXPECT_EQ(m_Pane.GetChildren()->GetItem(0), &Box());
    EXPECT_EQ(Box().GetAlignment(), alTop);
    EXPECT_EQ(Box().GetTitle().GetCaption(), "Disk");
    EXPECT_EQ(Box().GetText().GetCaption(), "About");
    EXPECT_TRUE(Box().GetText().IsAdjustHeight());
    EXPECT_FALSE(Box().GetTitle().IsAdjustHeight());
    EXPECT_EQ(Box().GetImage().GetRasterPicture(), picture);
    EXPECT_EQ(Box().GetButtons().GetButtonCount(), 2u);
    EXPECT_EQ(Box().GetBkColor(), color_table[9]);
    EXPECT_EQ(Box().GetTitle().GetFgColor(), color_table[4]);
    EXPECT_EQ(Box().GetText().GetFgColor(), color_table[4]);
    EXPECT_TRUE(Box().IsVisible());
    EXPECT_EQ(Focused(), &ButtonOf(Box(), 0));
    EXPECT_EQ(m_Host.PixelAt(290, 5), color_table[9]);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(CheckStageGui, ABoxInTheDesktopsColoursGoesOnFollowingThem)
{
    Process();
    EXPECT_EQ(m_Host.PixelAt(290, 5), _color(0xFFC0C0C0u));
    CTestHost::System().GetMemoryPalette().SetColor(ISysPalette::scFace, color_table[13]);
    CTestHost::System().GetMemoryPalette().SetColor(ISysPalette::scControlText, color_table[4]);
    m_Host.SysColorChange();
    m_Host.Paint();
    EXPECT_EQ(m_Host.PixelAt(290, 5), color_table[13]);
    EXPECT_EQ(Box().GetTitle().GetFgColor(), color_table[4]);
    EXPECT_EQ(Box().GetText().GetFgColor(), color_table[4]);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(CheckStageGui, ABoxHasTheColoursThatItsParentAnswers)
{
    class CColouredPane : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        _color GetBkColor() const override { return color_table[6]; }
        _color GetFgColor() const override { return color_table[9]; }
    };
    CColouredPane pane(m_Host.Root(), {0, 100}, alTop);
    m_Stage->SetParent(&pane);
    Process();
    EXPECT_EQ(Box().GetBkColor(), color_table[6]);
    EXPECT_EQ(Box().GetTitle().GetFgColor(), color_table[9]);
    EXPECT_EQ(Box().GetText().GetFgColor(), color_table[9]);
}

TEST_F(CheckStageGui, TheBoxHasRoomBelowItsButtons)
{
    Process();
    // 12, 12, 10, 10 and 17, one more for each, and 10 less 6 below.
    EXPECT_EQ(Box().GetPos(), (Rect{0, 0, 299, 70}));
}

TEST(CheckStageGuiScaled, AtTwoTheRoomBelowTheButtonsIsScaled)
{
    CTestHost host(400, 300, 2);
    CCheckStageGui stage;
    auto const fails = Listen(stage.m_Check, [](bool& failed) { failed = true; });
    stage.SetParent(host.Root());
    stage.SetMessage(0, "Disk", "About");
    stage.SetButtons(1, 1);
    stage.Process(nullptr);
    host.Paint();
    // 24, 24, 20, 20 and 34, one more for each, and 20 less 12 below.
    EXPECT_EQ(stage.GetBox()->GetPos(), (Rect{0, 0, 399, 135}));
    EXPECT_EQ(host.CompareWithFullPaint(), "");
}

TEST_F(CheckStageGui, TheParentsFontDoesNotChangeTheRoomBelowTheButtons)
{
    font large;
    large.size = 16;
    m_Pane.SetFont(large);
    Process();
    EXPECT_EQ(Box().GetPos().bottom, 70);
    EXPECT_EQ(Box().GetFont().size, 16);
}

TEST_F(CheckStageGui, ALargerDefaultFontMakesMoreRoomBelowTheButtons)
{
    CVisualElement pane(nullptr, {100, 100}, alClient);
    m_Stage->SetParent(&pane);
    {
        CScriptedSystem system;
        font large = system.GetDefaultFont();
        large.size = 16;
        system.SetDefaultFont(large);
        m_Stage->Process(nullptr);
    }
    pane.ReParent(m_Host.Root(), true);
    EXPECT_EQ(Box().GetSize().height, 80);  // 20 less 6 below
}

TEST_F(CheckStageGui, ALongTextWrapsInTheBox)
{
    m_Stage->SetMessage(1, "Disk", "aaaaaaaa bbbbbbbb cccccccc dddddddd eeeeeeee");
    Process();
    EXPECT_EQ(Box().GetText().GetSize().height, 18);
    EXPECT_EQ(Box().GetPos().bottom, 78);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(CheckStageGui, TheSignalOfTheBoxComesBeforeItIsDocked)
{
    m_Looks.NewPicture(1, {4, 4});
    CMessageBox* told = nullptr;
    auto const slot = Listen(m_Stage->m_BoxCreated, [&](CMessageBox* box) {
        told = box;
        EXPECT_EQ(box, m_Stage->GetBox());
        EXPECT_EQ(box->GetParent(), nullptr);
        EXPECT_EQ(BoxCount(), 0);
        EXPECT_EQ(box->GetSize(), (Size{10, 10}));
        EXPECT_EQ(box->GetTitle().GetCaption(), "Disk");
        EXPECT_EQ(box->GetText().GetCaption(), "About");
        EXPECT_TRUE(box->GetText().IsAdjustHeight());
        EXPECT_TRUE(box->GetImage().IsAssigned());
        EXPECT_EQ(box->GetButtons().GetButtonCount(), 2u);
        EXPECT_EQ(box->GetBkColor(), m_Pane.GetBkColor());
        box->GetTitle().SetCaption("Other");
        box->GetButtons().SetButtons(4);
    });
    Process();
    EXPECT_EQ(told, m_Stage->GetBox());
    EXPECT_EQ(Box().GetTitle().GetCaption(), "Other");
    EXPECT_EQ(Box().GetButtons().GetButtonCount(), 3u);
}

TEST_F(CheckStageGui, APressInTheSlotOfTheNewBoxCounts)
{
    auto const slot = Listen(m_Stage->m_BoxCreated, [](CMessageBox* box) { box->ButtonPressed(2); });
    Process();
    EXPECT_THAT(m_Log.Text(), testing::HasSubstr("result(2) focus() complete(false) told(false)"));
    EXPECT_FALSE(Box().IsVisible());
}

TEST_F(CheckStageGui, ARunInTheSlotOfTheNewBoxTakesOver)
{
    bool first = true;
    auto const slot = Listen(m_Stage->m_BoxCreated, [&](CMessageBox*) {
        if (std::exchange(first, false))
            m_Stage->Process(&m_Notify);
    });
    GiveTimer();
    Process();
    EXPECT_EQ(m_Log.Take(), "check(false) created check(false) created");
    EXPECT_EQ(BoxCount(), 1);
    EXPECT_TRUE(m_Stage->GetTimer()->IsRunning());
    Press(0);
    EXPECT_EQ(m_Log.Take(), "check(true) result(1) focus() complete(true) told(true)");
}

TEST_F(CheckStageGui, ARunInTheSlotOfTheFocusTakesOver)
{
    m_Stage->SetButtons(0, 0);
    bool first = true;
    auto const slot = Listen(m_Pane.m_SigGetFocus, [&](CVisualElement*) {
        if (!std::exchange(first, false))
            return;
        m_Stage->SetButtons(3, 1);
        m_Stage->Process(&m_Notify);
    });
    Process();
    EXPECT_EQ(BoxCount(), 1);
    EXPECT_EQ(Box().GetButtons().GetButtonCount(), 2u);
    EXPECT_TRUE(Box().IsVisible());
}

TEST_F(CheckStageGui, ABoxThatIsDeletedInTheSlotOfTheNewBoxFailsTheStage)
{
    auto const slot = Listen(m_Stage->m_BoxCreated, [](CMessageBox* box) { delete box; });
    GiveTimer();
    Process();
    EXPECT_EQ(m_Log.Take(), "check(false) created focus() complete(false) told(false)");
    EXPECT_EQ(m_Stage->GetBox(), nullptr);
    EXPECT_FALSE(m_Stage->GetTimer()->IsRunning());
}

TEST_F(CheckStageGui, AParentThatIsTakenAwayInTheSlotOfTheNewBoxFailsTheStage)
{
    auto const slot = Listen(m_Stage->m_BoxCreated, [this](CMessageBox*) { m_Stage->SetParent(nullptr); });
    Process();
    EXPECT_EQ(m_Log.Take(), "check(false) created complete(false) told(false)");
    EXPECT_EQ(BoxCount(), 0);
}

TEST_F(CheckStageGui, AParentThatCannotHaveTheFocusIsSurvived)
{
    m_Pane.SetCanHaveFocus(false);
    Process();
    Press(0);
    EXPECT_EQ(m_Log.Text(), "check(false) created result(1) complete(true) told(true)");
}

TEST_F(CheckStageGui, WithoutAControlTheBoxWaitsAllTheSame)
{
    CVisualElement alone(nullptr, {100, 100}, alClient);
    m_Stage->SetParent(&alone);
    m_Stage->Process(&m_Notify);
    ASSERT_NE(m_Stage->GetBox(), nullptr);
    EXPECT_EQ(Box().GetParent(), &alone);
    EXPECT_EQ(m_Log.Take(), "check(false) created");
    Box().ButtonPressed(1);
    EXPECT_EQ(m_Log.Take(), "result(1) complete(true) told(true)");
    EXPECT_FALSE(Box().IsVisible());
}

TEST_F(CheckStageGui, WithoutAWindowTheBoxWaitsAllTheSame)
{
    m_Host.DestroyWindow();
    m_Stage->Process(&m_Notify);
    ASSERT_NE(m_Stage->GetBox(), nullptr);
    Box().ButtonPressed(2);
    EXPECT_FALSE(Box().IsVisible());
    EXPECT_EQ(m_Log.Count("result"), 1);
}

// Without buttons ---------------------------------------------------------------------------------------------------------------

TEST_F(CheckStageGui, WithoutButtonsTheStagePassesAtOnceAndTheBoxStays)
{
    m_Stage->SetButtons(0, 0);
    GiveTimer();
    Process();
    EXPECT_EQ(m_Log.Take(), "check(false) created focus() complete(true) told(true)");
    EXPECT_TRUE(Box().IsVisible());
    EXPECT_FALSE(Box().IsButtonsVisible());
    EXPECT_EQ(Focused(), &m_Pane);
    EXPECT_TRUE(m_Stage->GetTimer()->IsRunning());
    EXPECT_EQ(Box().GetPos().bottom, 52);  // 12, 12, 10 and 10, one more for each, and 4

    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Log.Take(), "check(true)");
    EXPECT_TRUE(Box().IsVisible());
    m_Stage->m_Fails = false;
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Log.Take(), "check(true)");  // it has passed before
    EXPECT_FALSE(Box().IsVisible());
    EXPECT_FALSE(m_Stage->GetTimer()->IsRunning());
}

TEST_F(CheckStageGui, BitsThatNoButtonHasLeaveTheStageWaiting)
{
    m_Stage->SetButtons(128, 128);
    Process();
    EXPECT_EQ(m_Log.Take(), "check(false) created");
    EXPECT_FALSE(Box().IsButtonsVisible());
    EXPECT_EQ(Focused(), &m_Other);
}

// A button is pressed -----------------------------------------------------------------------------------------------------------

TEST_F(CheckStageGui, TheAcceptingButtonPassesTheStage)
{
    Process();
    m_Log.Clear();
    Press(0);
    EXPECT_EQ(m_Log.Text(), "result(1) focus() complete(true) told(true)");
    EXPECT_FALSE(Box().IsVisible());
    EXPECT_EQ(Focused(), &m_Pane);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(CheckStageGui, AnyOtherButtonFailsTheStage)
{
    m_Stage->SetWaitMessage(0, "Wait", "");
    Process();
    m_Log.Clear();
    Press(1);
    EXPECT_EQ(m_Log.Text(), "result(2) focus() complete(false) told(false)");
    EXPECT_FALSE(Box().IsVisible());
    EXPECT_EQ(Box().GetTitle().GetCaption(), "Disk");
}

TEST_F(CheckStageGui, APressWithoutANotifyTellsNobody)
{
    m_Stage->Process(nullptr);
    m_Host.Paint();
    Press(0);
    EXPECT_EQ(m_Log.Text(), "check(false) created result(1) focus() complete(true)");
}

TEST_F(CheckStageGui, TheResultIsToldWhileTheBoxStillShows)
{
    bool visible = false;
    auto const slot = Listen(m_Stage->m_Result, [&](CCheckStageGui*, int) { visible = Box().IsVisible(); });
    Process();
    Press(0);
    EXPECT_TRUE(visible);
}

TEST_F(CheckStageGui, AnAcceptedBoxThatShallWaitShowsOnWithoutButtons)
{
    m_Looks.NewPicture(1, {4, 4});
    auto const waiting = m_Looks.NewPicture(2, {32, 32});
    m_Stage->SetWaitMessage(2, "Wait", "aaaaaaaa bbbbbbbb cccccccc dddddddd eeeeeeee");
    Process();
    m_Log.Clear();
    Press(0);
    EXPECT_EQ(m_Log.Text(), "result(1) focus() complete(true) told(true)");
    EXPECT_TRUE(Box().IsVisible());
    EXPECT_FALSE(Box().IsButtonsVisible());
    EXPECT_EQ(Box().GetTitle().GetCaption(), "Wait");
    EXPECT_EQ(Box().GetText().GetCaption(), "aaaaaaaa bbbbbbbb cccccccc dddddddd eeeeeeee");
    EXPECT_EQ(Box().GetText().GetMaxTextWidth(), 273);  // 299 - 25 - 1: the width beside the first picture
    EXPECT_EQ(Box().GetImage().GetRasterPicture(), waiting);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(CheckStageGui, AWaitTitleOrAWaitTextIsEnoughToWait)
{
    m_Stage->SetWaitMessage(7, "", "Soon");
    Process();
    Press(0);
    EXPECT_TRUE(Box().IsVisible());
    EXPECT_EQ(Box().GetTitle().GetCaption(), "");
    EXPECT_EQ(Box().GetText().GetCaption(), "Soon");
    m_Stage->SetWaitMessage(7, "Wait", "");
    Process();
    Press(0);
    EXPECT_TRUE(Box().IsVisible());
    EXPECT_EQ(Box().GetTitle().GetCaption(), "Wait");
    EXPECT_EQ(Box().GetText().GetCaption(), "");
}

TEST_F(CheckStageGui, AWaitingBoxKeepsThePictureThatItsTypeDoesNotReplace)
{
    auto const first = m_Looks.NewPicture(1, {4, 4});
    m_Stage->SetWaitMessage(7, "Wait", "");
    Process();
    Press(0);
    EXPECT_EQ(Box().GetImage().GetRasterPicture(), first);
}

TEST_F(CheckStageGui, WithoutARecheckOrATimerTheCheckCountsAsFailed)
{
    m_Stage->SetWaitMessage(0, "Wait", "");
    Process();
    m_Stage->m_Fails = false;
    m_Log.Clear();
    Press(0);
    EXPECT_EQ(m_Log.Text(), "result(1) focus() complete(true) told(true)");
    EXPECT_TRUE(Box().IsVisible());
}

TEST_F(CheckStageGui, ARecheckThatPassesLetsTheBoxGo)
{
    m_Stage->SetWaitMessage(0, "Wait", "");
    m_Stage->SetRecheckOnButton(true);
    Process();
    m_Stage->m_Fails = false;
    m_Log.Clear();
    Press(0);
    EXPECT_EQ(m_Log.Text(), "check(true) result(1) focus() complete(true) told(true)");
    EXPECT_FALSE(Box().IsVisible());
}

TEST_F(CheckStageGui, ARecheckThatFailsHasTheBoxWait)
{
    m_Stage->SetWaitMessage(0, "Wait", "");
    m_Stage->SetRecheckOnButton(true);
    Process();
    m_Log.Clear();
    Press(0);
    EXPECT_EQ(m_Log.Text(), "check(true) result(1) focus() complete(true) told(true)");
    EXPECT_TRUE(Box().IsVisible());
}

TEST_F(CheckStageGui, ARecheckThatPassesDoesNotTurnTheWrongButtonRight)
{
    m_Stage->SetRecheckOnButton(true);
    Process();
    m_Stage->m_Fails = false;
    m_Log.Clear();
    Press(1);
    EXPECT_EQ(m_Log.Text(), "check(true) result(2) focus() complete(false) told(false)");
    EXPECT_FALSE(Box().IsVisible());
}

TEST_F(CheckStageGui, AFreshMessageCountsFromTheNextRunAndAnAcceptedBitAtOnce)
{
    Process();
    m_Stage->SetMessage(1, "Other", "text");
    EXPECT_EQ(Box().GetTitle().GetCaption(), "Disk");
    m_Stage->SetButtons(3, 2);
    Press(1);
    EXPECT_EQ(m_Log.Text(), "check(false) created result(2) focus() complete(true) told(true)");
}
