// Stages that poll their check by a timer, that are run several times, and that stand in a chain.

#include "tests/support/leaf.h"
#include "tests/widgets/stage_bench.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

using Rect = rectangle<int>;
using CheckStageRuns = CStageBench;

}  // namespace

// The timer ---------------------------------------------------------------------------------------------------------------------

TEST_F(CheckStageRuns, TheTimerPollsAsLongAsTheBoxWaits)
{
    GiveTimer();
    EXPECT_FALSE(m_Stage->GetTimer()->IsRunning());
    Process();
    EXPECT_TRUE(m_Stage->GetTimer()->IsRunning());
    m_Log.Clear();
    m_Host.Clock().Advance(300);
    EXPECT_EQ(m_Log.Take(), "check(true) check(true) check(true)");
    EXPECT_TRUE(Box().IsVisible());

    m_Stage->m_Fails = false;
    m_Host.Clock().Advance(100);
    m_Host.Paint();
    EXPECT_EQ(m_Log.Take(), "check(true) focus() complete(true) told(true)");
    EXPECT_FALSE(Box().IsVisible());
    EXPECT_FALSE(m_Stage->GetTimer()->IsRunning());
    EXPECT_EQ(Focused(), &m_Pane);
    m_Host.Clock().Advance(500);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(CheckStageRuns, APressStopsTheTimerAndChecksAgain)
{
    m_Stage->SetWaitMessage(0, "Wait", "");
    GiveTimer();
    Process();
    m_Log.Clear();
    bool running = true;
    auto const slot =
        Listen(m_Stage->m_Result, [&](CCheckStageGui*, int) { running = m_Stage->GetTimer()->IsRunning(); });
    Press(0);
    EXPECT_EQ(m_Log.Take(), "check(true) result(1) focus() complete(true) told(true)");
    EXPECT_FALSE(running);
    EXPECT_TRUE(Box().IsVisible());  // it waits, though nobody looks any more
    m_Stage->m_Fails = false;
    m_Host.Clock().Advance(500);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_TRUE(Box().IsVisible());
}

TEST_F(CheckStageRuns, ACheckByCodeHidesABoxThatWaitsAndTellsNobodyAgain)
{
    m_Stage->SetWaitMessage(0, "Wait", "");
    Process();
    Press(0);
    m_Log.Clear();
    m_Stage->OnTimer(nullptr);
    EXPECT_EQ(m_Log.Take(), "check(true)");
    EXPECT_TRUE(Box().IsVisible());
    m_Stage->m_Fails = false;
    m_Stage->OnTimer(nullptr);
    EXPECT_EQ(m_Log.Take(), "check(true)");
    EXPECT_FALSE(Box().IsVisible());
    m_Stage->OnTimer(nullptr);
    EXPECT_EQ(m_Log.Take(), "check(true)");
}

TEST_F(CheckStageRuns, ACheckThatClearsWithoutANotifyOnlyHidesTheBox)
{
    GiveTimer();
    m_Stage->Process(nullptr);
    m_Log.Clear();
    m_Stage->m_Fails = false;
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Log.Take(), "check(true)");
    EXPECT_FALSE(Box().IsVisible());
    EXPECT_FALSE(m_Stage->GetTimer()->IsRunning());
}

TEST_F(CheckStageRuns, AHiddenBoxTellsNobodyAndTheTimerStops)
{
    GiveTimer();
    Process();
    Box().SetVisible(false);
    m_Stage->m_Fails = false;
    m_Log.Clear();
    m_Host.Clock().Advance(200);
    EXPECT_EQ(m_Log.Take(), "check(true)");
    EXPECT_FALSE(m_Stage->GetTimer()->IsRunning());
}

TEST_F(CheckStageRuns, ABoxThatWasDeletedIsForgotten)
{
    GiveTimer();
    Process();
    delete m_Stage->GetBox();
    EXPECT_EQ(m_Stage->GetBox(), nullptr);
    m_Stage->m_Fails = false;
    m_Log.Clear();
    m_Host.Clock().Advance(200);
    EXPECT_EQ(m_Log.Take(), "check(true)");
    EXPECT_FALSE(m_Stage->GetTimer()->IsRunning());
}

TEST_F(CheckStageRuns, ABoxThatIsDeletedAsItsCheckClearsLeavesNoTimerRunning)
{
    GiveTimer();
    Process();
    m_Notify.m_Deed = [this](bool) { delete m_Stage->GetBox(); };
    m_Stage->m_Fails = false;
    m_Log.Clear();
    m_Host.Clock().Advance(300);
    EXPECT_EQ(m_Log.Take(), "check(true) focus() complete(true) told(true)");
    EXPECT_FALSE(m_Stage->GetTimer()->IsRunning());
}

TEST_F(CheckStageRuns, ARunThatBeginsAsTheCheckClearsPollsOn)
{
    GiveTimer();
    Process();
    m_Notify.m_Deed = [this](bool) {
        m_Notify.m_Deed = nullptr;
        m_Stage->m_Fails = true;
        m_Stage->Process(&m_Notify);
    };
    m_Stage->m_Fails = false;
    m_Log.Clear();
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Log.Take(), "check(true) focus() complete(true) told(true) check(false) created");
    EXPECT_TRUE(Box().IsVisible());
    EXPECT_TRUE(m_Stage->GetTimer()->IsRunning());
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Log.Take(), "check(true)");
}

TEST_F(CheckStageRuns, ATimerThatIsReplacedIsNotHeardAnyMore)
{
    vexel_ptr<ISysTimer> const first = CTestHost::System().CreateTimer(100, 0);
    m_Stage->SetTimer(first);
    m_Stage->SetTimer(CTestHost::System().CreateTimer(1000, 0));
    Process();
    m_Log.Clear();
    first->SetRunning(true);
    m_Host.Clock().Advance(500);
    EXPECT_EQ(m_Log.Take(), "");
    m_Host.Clock().Advance(500);
    EXPECT_EQ(m_Log.Take(), "check(true)");
    m_Stage->SetTimer(nullptr);
    m_Host.Clock().Advance(3000);
    EXPECT_EQ(m_Log.Take(), "");
    first->SetRunning(false);
}

TEST_F(CheckStageRuns, TheSameTimerGivenTwiceTicksOnce)
{
    vexel_ptr<ISysTimer> const timer = CTestHost::System().CreateTimer(100, 0);
    m_Stage->SetTimer(timer);
    m_Stage->SetTimer(timer);
    Process();
    m_Log.Clear();
    m_Host.Clock().Advance(100);
    EXPECT_EQ(m_Log.Take(), "check(true)");
    m_Stage->SetTimer(timer);
    EXPECT_TRUE(timer->IsRunning());
}

// Several runs ------------------------------------------------------------------------------------------------------------------

TEST_F(CheckStageRuns, AFurtherRunReplacesTheBox)
{
    Process();
    CElementPtr<CMessageBox> const first(m_Stage->GetBox());
    m_Stage->SetMessage(1, "Other", "text");
    Process();
    EXPECT_EQ(first.get(), nullptr);
    EXPECT_EQ(BoxCount(), 1);
    EXPECT_EQ(Box().GetTitle().GetCaption(), "Other");
    EXPECT_EQ(Focused(), &ButtonOf(Box(), 0));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    Press(0);
    Process();
    EXPECT_EQ(BoxCount(), 1);
    EXPECT_TRUE(Box().IsVisible());
}

TEST_F(CheckStageRuns, APressMayRunTheStageAgain)
{
    m_Notify.m_Deed = [this](bool ok) {
        if (!ok)
            m_Stage->Process(&m_Notify);
    };
    Process();
    m_Log.Clear();
    Press(1);
    EXPECT_EQ(m_Log.Take(), "result(2) focus() complete(false) told(false) check(false) created");
    EXPECT_TRUE(Box().IsVisible());
    EXPECT_EQ(BoxCount(), 1);
    Press(0);
    EXPECT_EQ(m_Log.Take(), "result(1) focus() complete(true) told(true)");
    EXPECT_FALSE(Box().IsVisible());
}

TEST_F(CheckStageRuns, ARunThatPassesTakesTheBoxOfTheLastRunAway)
{
    GiveTimer();
    Process();
    m_Stage->m_Fails = false;
    m_Log.Clear();
    Process();
    EXPECT_EQ(m_Log.Take(), "check(false) focus() complete(true) told(true)");
    EXPECT_EQ(BoxCount(), 0);
    EXPECT_EQ(m_Stage->GetBox(), nullptr);
    EXPECT_FALSE(m_Stage->GetTimer()->IsRunning());
    m_Host.Clock().Advance(300);
    EXPECT_EQ(m_Log.Take(), "");  // the chain is told once
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(CheckStageRuns, ARunThatCannotAskTakesTheBoxOfTheLastRunAway)
{
    Process();
    m_Stage->SetMessage(1, "", "");
    m_Log.Clear();
    Process();
    EXPECT_EQ(m_Log.Take(), "check(false) focus() complete(false) told(false)");
    EXPECT_EQ(BoxCount(), 0);
}

TEST_F(CheckStageRuns, ARunInTheSlotOfTheResultTakesOver)
{
    Process();
    auto const slot = Listen(m_Stage->m_Result, [this](CCheckStageGui* stage, int) { stage->Process(&m_Notify); });
    m_Log.Clear();
    Press(0);
    EXPECT_EQ(m_Log.Take(), "result(1) check(false) created");
    EXPECT_EQ(BoxCount(), 1);
    EXPECT_TRUE(Box().IsVisible());
}

TEST_F(CheckStageRuns, ARunThatPassesInTheSlotOfTheResultIsToldOnce)
{
    Process();
    auto const slot = Listen(m_Stage->m_Result, [this](CCheckStageGui* stage, int) {
        m_Stage->m_Fails = false;
        stage->Process(&m_Notify);
    });
    m_Log.Clear();
    Press(1);
    EXPECT_EQ(m_Log.Take(), "result(2) check(false) focus() complete(true) told(true)");
    EXPECT_EQ(BoxCount(), 0);
}

TEST_F(CheckStageRuns, ARunThatPassesInTheSlotOfTheNewBoxIsToldOnce)
{
    auto const slot = Listen(m_Stage->m_BoxCreated, [this](CMessageBox*) {
        m_Stage->m_Fails = false;
        m_Stage->Process(&m_Notify);
    });
    Process();
    EXPECT_EQ(m_Log.Take(), "check(false) created check(false) focus() complete(true) told(true)");
    EXPECT_EQ(BoxCount(), 0);
}

TEST_F(CheckStageRuns, ARunInTheSlotOfTheParentsFocusTakesOver)
{
    m_Stage->m_Fails = false;
    bool done = false;
    auto const slot = Listen(m_Pane.m_SigGetFocus, [&](CVisualElement*) {
        m_Stage->m_Fails = true;
        if (!std::exchange(done, true))
            m_Stage->Process(&m_Notify);
    });
    Process();
    EXPECT_EQ(m_Log.Take(), "check(false) focus() check(false) created");
    EXPECT_EQ(BoxCount(), 1);
    Press(0);
    EXPECT_EQ(m_Log.Take(), "result(1) focus() complete(true) told(true)");
}

TEST_F(CheckStageRuns, AStageThatDiesTakesItsBoxAlong)
{
    vexel_ptr<ISysTimer> const timer = CTestHost::System().CreateTimer(100, 0);
    m_Stage->SetTimer(timer);
    auto* const leaf = new CLeaf(&m_Pane, {0, 0}, alClient, 3);
    Process();
    EXPECT_EQ(leaf->GetPos(), (Rect{0, 71, 299, 278}));
    m_Log.Clear();
    m_Stage.reset();
    EXPECT_EQ(BoxCount(), 1);
    EXPECT_FALSE(timer->IsRunning());
    m_Host.Paint();
    EXPECT_EQ(leaf->GetPos(), (Rect{0, 0, 299, 278}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    timer->SetRunning(true);
    m_Host.Clock().Advance(300);
    EXPECT_EQ(m_Log.Text(), "");
    timer->SetRunning(false);
}

TEST_F(CheckStageRuns, AChainGoesFromBoxToBox)
{
    CCheckStages chain;
    CNotedStage second(m_Log);
    second.SetParent(&m_Pane);
    second.SetMessage(1, "Second", "");
    second.SetButtons(4, 4);
    chain.AddStage(m_Stage.get());
    chain.AddStage(&second);
    m_Log.Add(chain.m_StageStarting, "starting").Add(chain.m_Finished, "finished").Add(chain.m_Aborted, "aborted");
    chain.StartProcessing();
    m_Host.Paint();
    EXPECT_EQ(m_Log.Take(), "starting(0) check(false) created");
    Press(0);
    EXPECT_EQ(m_Log.Take(), "result(1) focus() complete(true) starting(1) check(false)");
    ASSERT_NE(second.GetBox(), nullptr);
    EXPECT_TRUE(second.GetBox()->IsVisible());
    EXPECT_EQ(Focused(), &ButtonOf(*second.GetBox(), 0));
    m_Host.Mouse().Click(ButtonOf(*second.GetBox(), 0), 5, 5);
    EXPECT_EQ(m_Log.Take(), "focus() complete(true) finished()");
    chain.StartProcessing();
    m_Host.Paint();
    Press(1);
    EXPECT_EQ(m_Log.Take(), "starting(0) check(false) created result(2) focus() complete(false) aborted()");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(CheckStageRuns, AStageMayDieInTheCheckThatClears)
{
    auto stage = std::make_unique<CCheckStageGui>();
    bool fails = true;
    auto const check = Listen(stage->m_Check, [&](bool& failed) {
        failed = fails;
        if (!fails)
            stage.reset();
    });
    stage->SetParent(&m_Pane);
    stage->SetMessage(0, "Disk", "About");
    stage->SetButtons(1, 1);
    stage->SetTimer(CTestHost::System().CreateTimer(100, 0));
    stage->Process(&m_Notify);
    EXPECT_EQ(BoxCount(), 1);
    fails = false;
    m_Host.Clock().Advance(300);
    EXPECT_EQ(stage, nullptr);
    EXPECT_EQ(BoxCount(), 0);
    EXPECT_EQ(m_Log.Text(), "");
}
