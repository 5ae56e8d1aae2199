// The press machine alone: every stage with every event, and what its two operations may do.

#include "vexel/controls/click_handler.h"

#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

using namespace vexel;

namespace
{

class CMachine final : public CClickHandler
{
public:
    void ProcessClick() override
    {
        m_Log += "click@" + std::to_string(GetClickStage()) + " ";
        if (m_OnClick)
            m_OnClick();
    }
    void ProcessStageChange(ClickStage stage) override
    {
        EXPECT_EQ(stage, GetClickStage());
        m_Log += std::to_string(stage) + " ";
        if (m_OnStage)
            m_OnStage(stage);
    }
    void BringTo(ClickStage stage)
    {
        ResetClickStage();
        if (stage != StageNormal)
            ProcessEvent(EventMouseEnter);
        if (stage == StagePressed)
            ProcessEvent(EventDown);
        m_Log.clear();
    }
    std::string Take() { return std::exchange(m_Log, {}); }

    using CClickHandler::ResetClickStage;

    std::string m_Log;
    std::function<void()> m_OnClick;
    std::function<void(ClickStage)> m_OnStage;
};

}  // namespace

TEST(ClickHandler, TheTableIsExactlyFiveRows)
{
    int const expected[5][3] = {{0, 0, 1}, {1, 2, 2}, {2, 3, 1}, {1, 1, 0}, {2, 1, 0}};
    for (int row = 0; row < 5; ++row)
        for (int column = 0; column < 3; ++column)
            EXPECT_EQ(CClickHandler::s_Transitions[row][column], expected[row][column]) << row << " " << column;
}

TEST(ClickHandler, ItStartsNormal)
{
    EXPECT_EQ(CMachine().GetClickStage(), CClickHandler::StageNormal);
}

TEST(ClickHandler, EveryStageWithEveryEvent)
{
    struct SCase
    {
        int stage;
        int event;
        int next;
        char const* log;
    };
    SCase const cases[] = {
        // enter, leave, down, up
        {0, 0, 1, "1 "}, {0, 1, 0, ""}, {0, 2, 0, ""}, {0, 3, 0, ""},   {1, 0, 1, ""}, {1, 1, 0, "0 "},
        {1, 2, 2, "2 "}, {1, 3, 1, ""}, {2, 0, 2, ""}, {2, 1, 0, "0 "}, {2, 2, 2, ""}, {2, 3, 1, "click@2 1 "},
    };
    for (SCase const& each : cases)
    {
        CMachine machine;
        machine.BringTo(static_cast<CClickHandler::ClickStage>(each.stage));
        machine.ProcessEvent(static_cast<CClickHandler::ClickEvent>(each.event));
        EXPECT_EQ(machine.GetClickStage(), each.next) << each.stage << " " << each.event;
        EXPECT_EQ(machine.Take(), each.log) << each.stage << " " << each.event;
    }
}

TEST(ClickHandler, OnlyTheLeftButtonCounts)
{
    CMachine machine;
    machine.BringTo(CClickHandler::StageHot);
    EXPECT_FALSE(machine.HandleButtonDown(0, mbRight));
    EXPECT_EQ(machine.Take(), "");
    EXPECT_TRUE(machine.HandleButtonDown(1, mbLeft));
    EXPECT_FALSE(machine.HandleButtonUp(1, mbRight));
    EXPECT_EQ(machine.Take(), "2 ");
    EXPECT_TRUE(machine.HandleButtonUp(0, mbLeft));
    EXPECT_EQ(machine.Take(), "click@2 1 ");
}

TEST(ClickHandler, APressThatLeavesAndComesBackIsNoClick)
{
    CMachine machine;
    machine.HandleMouseHover();
    machine.HandleButtonDown(1, mbLeft);
    machine.HandleMouseLeave();
    machine.HandleMouseHover();
    machine.HandleButtonUp(0, mbLeft);
    EXPECT_EQ(machine.Take(), "1 2 0 1 ");
    EXPECT_EQ(machine.GetClickStage(), CClickHandler::StageHot);
}

TEST(ClickHandler, SpacePressesFromAnyStageAndReleasesWithAClick)
{
    for (int stage = 0; stage < 3; ++stage)
    {
        CMachine machine;
        machine.BringTo(static_cast<CClickHandler::ClickStage>(stage));
        EXPECT_TRUE(machine.HandleKeyDown(0, 32));
        EXPECT_EQ(machine.Take(), "1 2 ") << stage;  // the way back to normal is silent
        EXPECT_TRUE(machine.HandleKeyDown(0, 32));   // repeats
        EXPECT_EQ(machine.Take(), "1 2 ") << stage;
        EXPECT_TRUE(machine.HandleKeyUp(0, 32));
        EXPECT_EQ(machine.Take(), "click@2 1 ") << stage;
        EXPECT_EQ(machine.GetClickStage(), CClickHandler::StageHot);
    }
}

TEST(ClickHandler, ReturnClicksWithoutAnyStage)
{
    for (int stage = 0; stage < 3; ++stage)
    {
        CMachine machine;
        machine.BringTo(static_cast<CClickHandler::ClickStage>(stage));
        EXPECT_TRUE(machine.HandleKeyDown(0, 13));
        EXPECT_EQ(machine.Take(), "click@" + std::to_string(stage) + " ");
        EXPECT_FALSE(machine.HandleKeyUp(0, 13));
        EXPECT_EQ(machine.GetClickStage(), stage);
    }
}

TEST(ClickHandler, OtherKeysAreNotUsed)
{
    CMachine machine;
    EXPECT_FALSE(machine.HandleKeyDown(0, 9));
    EXPECT_FALSE(machine.HandleKeyUp(0, 65));
    EXPECT_EQ(machine.Take(), "");
}

TEST(ClickHandler, AClickMaySettleTheStageItself)
{
    CMachine machine;
    machine.BringTo(CClickHandler::StagePressed);
    machine.m_OnClick = [&] { machine.ResetClickStage(); };
    machine.ProcessEvent(CClickHandler::EventUp);
    EXPECT_EQ(machine.Take(), "click@2 ");
    EXPECT_EQ(machine.GetClickStage(), CClickHandler::StageNormal);
}

TEST(ClickHandler, TheWalkOverTheTableGoesOnWithTheNewStage)
{
    CMachine machine;
    machine.BringTo(CClickHandler::StageHot);
    bool once = true;
    machine.m_OnStage = [&](CClickHandler::ClickStage) {
        if (!std::exchange(once, false))
            return;
        machine.ProcessEvent(CClickHandler::EventMouseEnter);
        machine.ProcessEvent(CClickHandler::EventDown);
    };
    machine.ProcessEvent(CClickHandler::EventMouseLeave);
    // Row four makes it normal; meanwhile it is pressed again; row five, still ahead, makes that normal too.
    EXPECT_EQ(machine.Take(), "0 1 2 0 ");
}

TEST(ClickHandler, ItMayDieInTheClickWhichEndsTheEvent)
{
    auto* const machine = new CMachine;
    machine->BringTo(CClickHandler::StagePressed);
    machine->m_OnClick = [&] { delete machine; };
    EXPECT_THROW(machine->HandleButtonUp(0, mbLeft), vexel::cancel_processing);
}

TEST(ClickHandler, ItMayDieInAStageChangeWhichEndsTheEvent)
{
    auto* const machine = new CMachine;
    machine->m_OnStage = [&](CClickHandler::ClickStage) { delete machine; };
    EXPECT_THROW(machine->HandleKeyDown(0, 32), vexel::cancel_processing);
}
