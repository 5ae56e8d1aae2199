// Radio buttons, and the group that keeps one of several on.

#include "tests/support/slot.h"
#include "vexel/controls/radio_button.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using namespace vexel;
using namespace vexel::test;

using Size = size<int>;

namespace
{

// Three buttons, 20 high each, at the top of a window; none is in a group yet.
class Radio : public testing::Test
{
protected:
    Radio()
    {
        for (int i = 0; i < 3; ++i)
        {
            m_Buttons[i] = new CRadioButton(m_Host.Root(), {0, 20}, alTop);
            m_Buttons[i]->SetCaption("abc");
        }
        NameElement(*m_Buttons[0], "button");
        m_Host.Paint();
    }
    void Group()
    {
        for (CRadioButton* const button : m_Buttons)
            m_Group->Add(button);
        Hear();
    }
    void Hear()
    {
        m_Log.Add(m_Group->m_CurrentChanged, "current");
        m_Log.Add(m_Buttons[0]->m_CheckChanged, "a");
        m_Log.Add(m_Buttons[1]->m_CheckChanged, "b");
        m_Log.Add(m_Buttons[2]->m_CheckChanged, "c");
    }
    std::string On() const
    {
        std::string text;
        for (int i = 0; i < m_Group->GetCount(); ++i)
            text += m_Group->GetButton(i)->IsChecked() ? "x" : "-";
        return text + " " + std::to_string(m_Group->GetCurrent());
    }
    void Click(int button) { m_Host.Mouse().Click(*m_Buttons[button], 5, 5); }

    CTestHost m_Host{200, 100};
    CRadioButton* m_Buttons[3];
    std::unique_ptr<CRadioGroup> m_Group = std::make_unique<CRadioGroup>();
    CSignalLog m_Log;
};

using RadioButton = Radio;
using RadioGroup = Radio;

}  // namespace

// A button ------------------------------------------------------------------------------------------------------------------

TEST_F(RadioButton, AClickOnlySwitchesItOn)
{
    CRadioButton& button = *m_Buttons[0];
    CSignalLog const log(button.m_CheckChanged, "changed");
    EXPECT_TRUE(button.ChangeAllowed());
    Click(0);
    EXPECT_TRUE(button.IsChecked());
    EXPECT_FALSE(button.ChangeAllowed());
    Click(0);
    EXPECT_TRUE(button.IsChecked());
    EXPECT_EQ(log.Text(), "changed()");
    button.SetChecked(false);
    EXPECT_FALSE(button.IsChecked());
    EXPECT_EQ(log.Text(), "changed() changed()");
}

TEST_F(RadioButton, ItHasTheRoundMark)
{
    m_Buttons[0]->Update(utElement);
    EXPECT_THAT(m_Host.Paint().Of("button"),
                Draws("DrawControlElement 11 0 2 16 18 0x0").Then("DrawStringEx \"abc\" 21 0 199 20 0x121"));
    m_Buttons[0]->SetChecked(true);
    EXPECT_THAT(m_Host.Paint().Of("button"), Draws("DrawControlElement 10 0 2 16 18 0x0"));
    EXPECT_EQ(m_Buttons[0]->GetImageSize(), (Size{16, 16}));
}

TEST_F(RadioButton, AsAStringItShowsItsState)
{
    EXPECT_EQ(m_Buttons[0]->HandleAsString(), "( ) abc");
    m_Buttons[0]->SetChecked(true);
    EXPECT_EQ(m_Buttons[0]->HandleAsString(), "(*) abc");
}

// What a group takes --------------------------------------------------------------------------------------------------------

TEST_F(RadioGroup, StartsEmptyWithNothingCurrent)
{
    EXPECT_EQ(m_Group->GetCount(), 0);
    EXPECT_EQ(m_Group->GetCurrent(), -1);
    EXPECT_EQ(m_Group->GetButton(0), nullptr);
    EXPECT_EQ(m_Group->GetButton(-1), nullptr);
    m_Group->Add(nullptr);
    EXPECT_EQ(m_Group->GetCount(), 0);
}

TEST_F(RadioGroup, TheFirstThatIsOnIsTheCurrentOneTheOthersGoOff)
{
    m_Buttons[1]->SetChecked(true);
    m_Buttons[2]->SetChecked(true);
    Hear();
    m_Group->Add(m_Buttons[0]);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(On(), "- -1");
    m_Group->Add(m_Buttons[1]);
    EXPECT_EQ(m_Log.Take(), "current(1)");
    EXPECT_EQ(On(), "-x 1");
    m_Group->Add(m_Buttons[2]);
    EXPECT_EQ(m_Log.Take(), "c()");
    EXPECT_EQ(On(), "-x- 1");
    EXPECT_EQ(m_Group->GetButton(2), m_Buttons[2]);
    EXPECT_EQ(m_Group->GetButton(3), nullptr);
}

TEST_F(RadioGroup, AButtonIsInItOnce)
{
    Group();
    m_Group->Add(m_Buttons[1]);
    EXPECT_EQ(m_Group->GetCount(), 3);
    Click(1);
    m_Group->Add(m_Buttons[1]);
    EXPECT_EQ(On(), "-x- 1");
    EXPECT_EQ(m_Log.Count("current"), 1);
}

// The current one -----------------------------------------------------------------------------------------------------------

TEST_F(RadioGroup, AClickMakesAButtonTheCurrentOneAndTheOthersGoOff)
{
    Group();
    Click(1);
    EXPECT_EQ(On(), "-x- 1");
    EXPECT_EQ(m_Log.Take(), "current(1) b()");
    Click(1);
    EXPECT_EQ(m_Log.Take(), "");
    Click(2);
    EXPECT_EQ(On(), "--x 2");
    EXPECT_EQ(m_Log.Take(), "b() current(2) c()");
    Click(0);
    EXPECT_EQ(On(), "x-- 0");
    EXPECT_EQ(m_Log.Take(), "current(0) c() a()");
}

TEST_F(RadioGroup, SoDoesAChangeByProgram)
{
    Group();
    m_Buttons[2]->SetChecked(true);
    EXPECT_EQ(On(), "--x 2");
    EXPECT_EQ(m_Log.Take(), "current(2) c()");
    m_Buttons[0]->SetChecked(true);
    EXPECT_EQ(On(), "x-- 0");
    EXPECT_EQ(m_Log.Count("current"), 1);
}

TEST_F(RadioGroup, TheCurrentOneCanBeSetAndIsToldOnce)
{
    Group();
    m_Group->SetCurrent(1);
    EXPECT_EQ(On(), "-x- 1");
    EXPECT_EQ(m_Log.Count("current"), 1);
    EXPECT_EQ(m_Log.Count("b"), 1);
    m_Log.Clear();
    m_Group->SetCurrent(1);
    EXPECT_EQ(m_Log.Text(), "");
    m_Group->SetCurrent(0);
    EXPECT_EQ(On(), "x-- 0");
    EXPECT_EQ(m_Log.Count("current"), 1);
    EXPECT_EQ(m_Log.Count("a"), 1);
    EXPECT_EQ(m_Log.Count("b"), 1);
}

TEST_F(RadioGroup, AnIndexOutsideMeansNone)
{
    Group();
    m_Group->SetCurrent(-1);
    m_Group->SetCurrent(3);
    EXPECT_EQ(m_Log.Text(), "") << "nothing was current";
    m_Group->SetCurrent(2);
    m_Log.Clear();
    m_Group->SetCurrent(3);
    EXPECT_EQ(On(), "--- -1");
    EXPECT_EQ(m_Log.Take(), "c() current(-1)");
    m_Group->SetCurrent(0);
    m_Log.Clear();
    m_Group->SetCurrent(-7);
    EXPECT_EQ(On(), "--- -1");
    EXPECT_EQ(m_Log.Take(), "a() current(-1)");
}

TEST_F(RadioGroup, AButtonThatGoesOffByProgramIsNotTakenForAChange)
{
    Group();
    Click(1);
    m_Log.Clear();
    m_Buttons[1]->SetChecked(false);
    EXPECT_EQ(m_Log.Take(), "b()");
    EXPECT_EQ(m_Group->GetCurrent(), 1);
    m_Group->SetCurrent(1);
    EXPECT_EQ(On(), "-x- 1");
    EXPECT_EQ(m_Log.Take(), "b()");
}

TEST_F(RadioGroup, OfABoxThatIsOffOrNoneItHearsNothing)
{
    Group();
    Click(1);
    m_Log.Clear();
    m_Group->HandleChecked(nullptr);
    m_Group->HandleChecked(m_Buttons[0]);
    EXPECT_EQ(On(), "-x- 1");
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(RadioGroup, WhoHearsOfANewCurrentOneSeesIt)
{
    Group();
    Click(0);
    std::string seen;
    auto const slot = Listen(m_Group->m_CurrentChanged, [&](CRadioGroup* group, int index) {
        seen += std::to_string(index) + std::to_string(group->GetCurrent()) +
                (m_Buttons[index]->IsChecked() ? " on" : " off");
    });
    Click(2);
    EXPECT_EQ(seen, "22 on");
}

TEST_F(RadioGroup, ASlotMaySetAnotherCurrentOne)
{
    Group();
    auto const slot = Listen(m_Group->m_CurrentChanged, [&](CRadioGroup* group, int index) {
        if (index == 1)
            group->SetCurrent(2);
    });
    Click(1);
    EXPECT_EQ(On(), "--x 2");
    m_Group->SetCurrent(0);
    EXPECT_EQ(On(), "x-- 0");
    m_Group->SetCurrent(1);
    EXPECT_EQ(On(), "--x 2");
}

TEST_F(RadioGroup, ASlotMayPutTheOldOneBack)
{
    Group();
    Click(0);
    auto const slot = Listen(m_Group->m_CurrentChanged, [&](CRadioGroup* group, int index) {
        if (index == 1)
            group->SetCurrent(0);
    });
    Click(1);
    EXPECT_EQ(On(), "x-- 0");
    m_Buttons[1]->SetChecked(true);
    EXPECT_EQ(On(), "x-- 0");
}

// What dies -----------------------------------------------------------------------------------------------------------------

TEST_F(RadioGroup, AButtonThatDiesLeavesInSilence)
{
    Group();
    Click(1);
    m_Log.Clear();
    delete m_Buttons[0];
    EXPECT_EQ(On(), "x- 0");
    EXPECT_EQ(m_Group->GetButton(0), m_Buttons[1]);
    delete m_Buttons[2];
    EXPECT_EQ(On(), "x 0");
    delete m_Buttons[1];
    EXPECT_EQ(On(), " -1");
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(RadioGroup, OneThatDiesWhenItGoesOffDoesNotKeepTheOtherFromBecomingTheCurrentOne)
{
    Group();
    Click(0);
    auto const slot = Listen(m_Buttons[0]->m_CheckChanged, [](CCheckBox* box) { delete box; });
    m_Log.Clear();
    Click(1);
    EXPECT_EQ(On(), "x- 0");
    EXPECT_EQ(m_Log.Count("current"), 1);
}

TEST_F(RadioGroup, AGroupThatDiesLeavesItsButtonsAsTheyAre)
{
    Group();
    Click(1);
    m_Group.reset();
    m_Log.Clear();
    EXPECT_TRUE(m_Buttons[1]->IsChecked());
    Click(2);
    EXPECT_TRUE(m_Buttons[1]->IsChecked());
    EXPECT_TRUE(m_Buttons[2]->IsChecked());
    EXPECT_EQ(m_Log.Text(), "c()");
}

TEST_F(RadioGroup, AnyOfItsButtonsAndTheGroupMayDieInEachSignal)
{
    // victims: 0 to 2 a button, 3 the group, 4 the control; signals: 0 the group's, 1 to 3 a button's
    for (int victim = 0; victim < 5; ++victim)
    {
        for (int signal = 0; signal < 4; ++signal)
        {
            for (int way = 0; way < 3; ++way)
            {
                SCOPED_TRACE(std::to_string(victim) + " " + std::to_string(signal) + " " + std::to_string(way));
                CTestHost host(200, 100);
                auto group = std::make_unique<CRadioGroup>();
                CRadioButton* buttons[3];
                for (CRadioButton*& button : buttons)
                {
                    button = new CRadioButton(host.Root(), {0, 20}, alTop);
                    group->Add(button);
                }
                host.Paint();
                group->SetCurrent(0);
                bool dead = false;
                auto const kill = [&] {
                    if (dead)
                        return;
                    dead = true;
                    if (victim < 3)
                        delete buttons[victim];
                    else if (victim == 3)
                        group.reset();
                    else
                        host.DestroyControl();
                };
                std::unique_ptr<subscriber_base_t> slot;
                if (signal == 0)
                    slot = Listen(group->m_CurrentChanged, [&](CRadioGroup*, int) { kill(); });
                else
                    slot = Listen(buttons[signal - 1]->m_CheckChanged, [&](CCheckBox*) { kill(); });
                if (way == 0)
                    host.Mouse().Click(5, 30);
                else if (way == 1)
                    group->SetCurrent(1);
                else
                    group->SetCurrent(-1);
                bool const fires = signal == 0 || signal == 1 || (signal == 2 && way != 2);
                EXPECT_EQ(dead, fires);
                int const left = !dead || victim == 3 ? 3 : victim < 3 ? 2 : 0;
                EXPECT_EQ(group ? group->GetCount() : 3, left);
                if (host.HasControl())
                    host.Mouse().Click(5, 10);
            }
        }
    }
}
