#include "tests/platform/contract_bench.h"

// What the user does, as the control of a window hears of it.

namespace vexelbase::tests
{

namespace
{

/// With a second window of 60 x 60 pixels at (300, 240).
class ContractInput : public CContractWindowTest
{
protected:
    ContractInput()
    {
        m_OtherWindow = Bench().MakeWindow({300, 240}, {60, 60});
        m_Other = std::make_unique<CEar>(m_OtherWindow.get());
        Bench().MovePointer({70, 40});
        Window().SetFocus();
        Bench().Settle();
        Ear().Take();
        m_Other->Take();
    }
    ~ContractInput() override
    {
        Bench().HoldKeys(0);
        Bench().MovePointer({700, 700});
    }

    std::unique_ptr<ISysWindow> m_OtherWindow;
    std::unique_ptr<CEar> m_Other;
};

}  // namespace

// Mouse ------------------------------------------------------------------------------------------------------------

TEST_F(ContractInput, APressAndAReleaseCarryTheirButtonAndTheStateAfterIt)
{
    Bench().Press(mbLeft);
    Bench().Press(mbRight);
    Bench().Release(mbLeft);
    Bench().Release(mbRight);
    Bench().Press(mbMiddle);
    Bench().Release(mbMiddle);
    EXPECT_EQ(Ear().Take(), "down(10,10,0x1,1) down(10,10,0x3,3) up(10,10,0x2,1) up(10,10,0x0,3) "
                            "down(10,10,0x4,2) up(10,10,0x0,2)");
}

TEST_F(ContractInput, TheStateTellsTheHeldKeys)
{
    Bench().HoldKeys(ksShift);
    Bench().Press(mbLeft);
    Bench().HoldKeys(ksControl | ksAlt);
    Bench().Release(mbLeft);
    EXPECT_EQ(Ear().Take(), "down(10,10,0x101,1) up(10,10,0x600,1)");
}

TEST_F(ContractInput, AMoveCarriesTheHeldButton)
{
    Bench().MovePointer({80, 50});
    Bench().Press(mbRight);
    Bench().MovePointer({81, 52});
    Bench().Release(mbRight);
    Bench().MovePointer({60, 30});    // the first pixel
    Bench().MovePointer({179, 149});  // and the last one
    EXPECT_EQ(Ear().Take(), "move(20,20,0x0,0) down(20,20,0x2,3) move(21,22,0x2,3) up(21,22,0x0,3) "
                            "move(0,0,0x0,0) move(119,119,0x0,0)");
}

TEST_F(ContractInput, TheSecondPressOfADoubleClickIsAPressToo)
{
    Bench().PressTwice(mbLeft);
    Bench().Release(mbLeft);
    EXPECT_EQ(Ear().Take(), "down(10,10,0x1,1) up(10,10,0x0,1) down(10,10,0x1,1) double(10,10,0x1,1) up(10,10,0x0,1)");
}

TEST_F(ContractInput, TheWheelCountsNotchesAwayFromTheUser)
{
    Bench().TurnWheel(1);
    Bench().TurnWheel(-3);
    EXPECT_EQ(Ear().Take(), "wheel(10,10,1) wheel(10,10,-3)");
}

TEST_F(ContractInput, ATrackedPointerIsToldToLeave)
{
    Window().TrackPointer();
    Bench().MovePointer({310, 250});
    EXPECT_EQ(Ear().Take(), "leave");
    EXPECT_EQ(m_Other->Take(), "move(10,10,0x0,0)");
    Bench().MovePointer({320, 250});
    EXPECT_EQ(Ear().Take(), "");
}

TEST_F(ContractInput, OutsideTheWindowNothingIsTold)
{
    Bench().MovePointer({180, 40});  // the first pixel beside it
    Bench().Press(mbLeft);
    Bench().Release(mbLeft);
    std::string const told = Ear().Take();
    EXPECT_TRUE(told.empty() || told == "leave") << told;
    EXPECT_EQ(m_Other->Take(), "");
}

TEST_F(ContractInput, TheCaptureTakesThePointerWhereverItIs)
{
    Window().TrackPointer();
    Window().CaptureMouse();
    Window().CaptureMouse();  // not counted
    Bench().MovePointer({310, 250});
    Bench().MovePointer({50, 20});
    EXPECT_EQ(Ear().Take(), "move(250,220,0x0,0) move(-10,-10,0x0,0)");
    Bench().Press(mbLeft);
    Bench().Release(mbLeft);
    EXPECT_EQ(Ear().Take(), "down(-10,-10,0x1,1) up(-10,-10,0x0,1)");
    EXPECT_EQ(m_Other->Take(), "");
    Window().ReleaseMouse();
    Window().ReleaseMouse();
    Bench().MovePointer({312, 252});
    EXPECT_EQ(m_Other->Take(), "move(12,12,0x0,0)");
    Bench().MovePointer({313, 252});
    std::string const told = Ear().Take();
    EXPECT_EQ(told, "leave");
}

TEST_F(ContractInput, TheCaptureEndsWithTheWindowOrItsShowing)
{
    Window().CaptureMouse();
    Bench().Show(Window(), false);
    Bench().MovePointer({310, 250});
    EXPECT_EQ(m_Other->Take(), "move(10,10,0x0,0)");
    Bench().Show(Window(), true);
    m_Other->Take();
    Bench().MovePointer({311, 250});
    EXPECT_EQ(m_Other->Take(), "move(11,10,0x0,0)");
    Window().CaptureMouse();
    m_Window.reset();
    Bench().Settle();
    m_Other->Take();
    Bench().MovePointer({312, 250});
    EXPECT_EQ(m_Other->Take(), "move(12,10,0x0,0)");
}

TEST_F(ContractInput, ThePointerTellsItsScreenPosition)
{
    Bench().MovePointer({330, 270});
    for (double const scale : {1.0, 1.5, 2.0})
    {
        Bench().SetScale(scale);
        EXPECT_EQ(System().GetPointer()->GetPos(), (point<int>{330, 270})) << scale;
    }
}

// Focus ------------------------------------------------------------------------------------------------------------

TEST_F(ContractInput, TheFocusIsToldOnceAndHadByOne)
{
    EXPECT_TRUE(Window().HasFocus());
    Window().SetFocus();
    Bench().Settle();
    EXPECT_EQ(Ear().Take(), "");
    m_OtherWindow->SetFocus();
    Bench().Settle();
    EXPECT_EQ(Ear().Take(), "nofocus");
    EXPECT_EQ(m_Other->Take(), "focus");
    EXPECT_FALSE(Window().HasFocus());
    EXPECT_TRUE(m_OtherWindow->HasFocus());
}

TEST_F(ContractInput, AHiddenWindowHasNoFocus)
{
    Bench().Show(Window(), false);
    Bench().Settle();
    EXPECT_FALSE(Window().HasFocus());
}

// Keys -------------------------------------------------------------------------------------------------------------

TEST_F(ContractInput, AKeyGoesDownBringsItsCharacterAndGoesUp)
{
    Bench().KeyDown('A', "a");
    Bench().KeyUp('A');
    EXPECT_EQ(Ear().Take(), "keydown(65,0x0) char(61) keyup(65,0x0)");
    Bench().HoldKeys(ksShift);
    Bench().KeyDown('A', "A");
    Bench().KeyUp('A');
    EXPECT_EQ(Ear().Take(), "keydown(65,0x100) char(41) keyup(65,0x100)");
    EXPECT_EQ(m_Other->Take(), "");
}

TEST_F(ContractInput, ALongCharacterComesAsItsBytes)
{
    Bench().KeyDown('A', "\xC3\xA4");          // a umlaut
    Bench().KeyDown('E', "\xE2\x82\xAC");      // euro
    Bench().KeyDown('Z', "\xF0\x9F\x98\x80");  // beyond the first plane
    EXPECT_EQ(Ear().Take(), "keydown(65,0x0) char(c3) char(a4) keydown(69,0x0) char(e2) char(82) char(ac) "
                            "keydown(90,0x0) char(f0) char(9f) char(98) char(80)");
}

TEST_F(ContractInput, KeysHaveTheirNumbers)
{
    Bench().KeyDown(vkEscape);
    Bench().KeyDown(vkLeft);
    Bench().KeyDown(vkDown);
    Bench().KeyDown(vkReturn);
    Bench().HoldKeys(ksControl);
    Bench().KeyDown('C');
    EXPECT_EQ(Ear().Take(), "keydown(27,0x0) keydown(37,0x0) keydown(40,0x0) keydown(13,0x0) keydown(67,0x200)");
}

TEST_F(ContractInput, AKeyThatIsNotPassedOnBringsNoCharacter)
{
    Ear().m_KeyDown = [](CKeyboardEvent& event) { event.m_PassOn = false; };
    Bench().KeyDown('A', "a");
    EXPECT_EQ(Ear().Take(), "keydown(65,0x0)");
    Ear().m_KeyDown = [](CKeyboardEvent& event) { event.SetContinue(false); };
    Bench().KeyDown('A', "a");
    EXPECT_EQ(Ear().Take(), "keydown(65,0x0) char(61)");
}

TEST_F(ContractInput, ATabThatMovedTheFocusInsideStays)
{
    Ear().m_KeyDown = [](CKeyboardEvent& event) { event.m_PassOn = false; };
    Bench().KeyDown(vkTab);
    EXPECT_EQ(Ear().Take(), "keydown(9,0x0)");
    EXPECT_TRUE(Window().HasFocus());
}

}  // namespace vexelbase::tests
