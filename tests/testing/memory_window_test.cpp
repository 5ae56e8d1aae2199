#include "vexel/platform/memory/memory_window.h"

#include "tests/testing/event_control.h"
#include "vexel/testing/test_kit.h"

#include <memory>
#include <stdexcept>
#include <thread>

namespace vexel
{
namespace
{

using namespace vexel::test;
using vexelbase::memory::CMemorySystem;
using vexelbase::memory::CMemoryWindow;

// Two windows of 100 x 50 pixels side by side: at (10, 20) and at (210, 20) of the screen.
class MemoryWindow : public ::testing::Test
{
protected:
    MemoryWindow()
    {
        // What a first paint needs is done, so that tests begin quietly.
        m_Window->RunFrame();
        m_Other->RunFrame();
        m_Control.Take();
        m_OtherControl.Take();
    }

    CMemorySystem m_System;
    std::unique_ptr<CMemoryWindow> m_Window =
        std::make_unique<CMemoryWindow>(m_System, point<int>{10, 20}, size<int>{100, 50});
    std::unique_ptr<CMemoryWindow> m_Other =
        std::make_unique<CMemoryWindow>(m_System, point<int>{210, 20}, size<int>{100, 50});
    CEventControl m_Control{*m_Window};
    CEventControl m_OtherControl{*m_Other};
};

// Mouse ------------------------------------------------------------------------------------------------------------

TEST_F(MemoryWindow, AMoveGoesToTheWindowUnderThePointerInItsOwnPixels)
{
    m_System.MovePointer({13, 24});
    EXPECT_EQ(m_Control.Take(), "move 3 4 0 0");
    m_System.MovePointer({309, 69});
    EXPECT_EQ(m_Control.Take(), "");
    EXPECT_EQ(m_OtherControl.Take(), "move 99 49 0 0");
    m_System.MovePointer({310, 69});  // just right of the last pixel
    EXPECT_EQ(m_OtherControl.Take(), "");
}

TEST_F(MemoryWindow, AMoveToTheSamePlaceIsNoEvent)
{
    m_System.MovePointer({13, 24});
    m_Control.Take();
    m_System.MovePointer({13, 24});
    EXPECT_EQ(m_Control.Take(), "");
}

TEST_F(MemoryWindow, EventsCarryTheStateAfterThemAndMovesTheHeldButton)
{
    m_System.MovePointer({13, 24});
    m_System.SetHeldKeys(ksShift | ksAlt);
    m_System.PressButton(mbLeft);
    m_System.PressButton(mbRight);
    m_System.MovePointer({14, 24});
    m_System.ReleaseButton(mbLeft);
    m_System.MovePointer({15, 24});
    m_System.ReleaseButton(mbRight);
    EXPECT_EQ(m_Control.Take(), "move 3 4 0 0, down 3 4 1281 1, down 3 4 1283 3, move 4 4 1283 1, up 4 4 1282 1, "
                                "move 5 4 1282 3, up 5 4 1280 3");
}

TEST_F(MemoryWindow, TheMiddleButtonIsTwoAndItsBitFour)
{
    m_System.MovePointer({13, 24});
    m_Control.Take();
    m_System.PressButton(mbMiddle);
    m_System.ReleaseButton(mbMiddle);
    EXPECT_EQ(m_Control.Take(), "down 3 4 4 2, up 3 4 0 2");
}

TEST_F(MemoryWindow, TheSecondPressOfADoubleClickIsAPressAndThenADoubleClick)
{
    m_System.MovePointer({13, 24});
    m_Control.Take();
    m_System.PressButton(mbLeft, true);
    EXPECT_EQ(m_Control.Take(), "down 3 4 1 1, double 3 4 1 1");
}

TEST_F(MemoryWindow, TheWheelGoesToTheWindowUnderThePointer)
{
    m_System.MovePointer({213, 24});
    m_OtherControl.Take();
    m_System.TurnWheel(-2);
    EXPECT_EQ(m_OtherControl.Take(), "wheel -2 3 4 0 0");
    EXPECT_EQ(m_Control.Take(), "");
}

TEST_F(MemoryWindow, LeavingIsToldOnceToAWindowThatAskedForIt)
{
    m_System.MovePointer({13, 24});
    m_Window->TrackPointer();
    m_System.MovePointer({150, 24});
    EXPECT_EQ(m_Control.Take(), "move 3 4 0 0, leave 140 4 0 0");
    m_System.MovePointer({13, 24});
    m_System.MovePointer({150, 24});
    EXPECT_EQ(m_Control.Take(), "move 3 4 0 0");
}

TEST_F(MemoryWindow, HoveringIsToldToAWindowThatAskedForIt)
{
    m_System.MovePointer({13, 24});
    m_Control.Take();
    m_System.RestPointer();
    EXPECT_EQ(m_Control.Take(), "");
    m_Window->TrackPointer();
    m_System.RestPointer();
    EXPECT_EQ(m_Control.Take(), "hover 3 4 0 0");
}

TEST_F(MemoryWindow, TheCaptureTakesAllMouseEventsAndPutsLeavingOff)
{
    m_System.MovePointer({13, 24});
    m_Window->TrackPointer();
    m_System.PressButton(mbLeft);
    m_Window->CaptureMouse();
    m_System.MovePointer({215, 25});
    EXPECT_EQ(m_OtherControl.Take(), "");
    EXPECT_EQ(m_Control.Take(), "move 3 4 0 0, down 3 4 1 1, move 205 5 1 1");
    m_Control.m_Do = [&](std::string const& name) {
        if (name == "up")
            m_Window->ReleaseMouse();
    };
    m_System.ReleaseButton(mbLeft);
    EXPECT_EQ(m_Control.Take(), "up 205 5 0 1, leave 205 5 0 0");
    EXPECT_EQ(m_System.GetCaptureNode(), nullptr);
}

TEST_F(MemoryWindow, TheCaptureIsNotCountedAndReleasingWithoutItDoesNothing)
{
    m_Window->CaptureMouse();
    m_Window->CaptureMouse();
    EXPECT_TRUE(m_Window->HasCapture());
    m_Other->ReleaseMouse();
    EXPECT_TRUE(m_Window->HasCapture());
    m_Window->ReleaseMouse();
    EXPECT_FALSE(m_Window->HasCapture());
}

TEST_F(MemoryWindow, AButtonThatComesUpUnnoticedLeavesMovesWithoutAButton)
{
    m_System.MovePointer({13, 24});
    m_System.PressButton(mbLeft);
    m_Control.Take();
    m_System.DropButton(mbLeft);
    EXPECT_EQ(m_Control.Take(), "");
    m_System.MovePointer({14, 24});
    EXPECT_EQ(m_Control.Take(), "move 4 4 0 0");
}

TEST_F(MemoryWindow, AHiddenWindowGetsNoMouse)
{
    m_Window->Show(false);
    EXPECT_EQ(m_Control.Take(), "hide");
    m_System.MovePointer({13, 24});
    EXPECT_EQ(m_Control.Take(), "");
    m_Window->Show(true);
    EXPECT_EQ(m_Control.Take(), "show");
}

TEST_F(MemoryWindow, AHandlerOfTheMouseMayDestroyTheWindow)
{
    m_Window->TrackPointer();
    m_Control.m_Do = [&](std::string const& name) {
        if (name == "down")
            m_Window.reset();
    };
    m_System.MovePointer({13, 24});
    m_System.PressButton(mbLeft, true);
    m_System.ReleaseButton(mbLeft);
    EXPECT_EQ(m_Control.Take(), "move 3 4 0 0, down 3 4 1 1, destroy");
    EXPECT_EQ(m_Control.GetWindow(), nullptr);
}

// Keyboard and focus -----------------------------------------------------------------------------------------------

TEST_F(MemoryWindow, KeysGoToTheWindowWithTheFocus)
{
    m_System.KeyDown(vkReturn);
    m_Other->SetFocus();
    m_System.SetHeldKeys(ksControl);
    m_System.KeyDown('A');
    m_System.KeyUp('A');
    m_System.Character('x');
    EXPECT_EQ(m_Control.Take(), "");
    EXPECT_EQ(m_OtherControl.Take(), "focus, key 65 512, keyup 65 512, char 120");
}

TEST_F(MemoryWindow, TheFocusIsTakenFromTheFormerWindowFirst)
{
    std::string log;
    m_Control.m_Do = [&](std::string const& name) { log += "first " + name + (m_Window->HasFocus() ? "+ " : "- "); };
    m_OtherControl.m_Do = [&](std::string const& name) { log += "second " + name + (m_Other->HasFocus() ? "+ " : "- "); };
    m_Window->SetFocus();
    m_Other->SetFocus();
    m_Other->SetFocus();
    EXPECT_EQ(log, "first focus+ first blur- second focus+ ");
}

TEST_F(MemoryWindow, AHandlerMayGiveTheFocusBackAtOnce)
{
    m_Window->SetFocus();
    m_Control.m_Do = [&](std::string const& name) {
        if (name == "blur")
            m_Window->SetFocus();
    };
    m_Control.Take();
    m_Other->SetFocus();
    EXPECT_TRUE(m_Window->HasFocus());
    EXPECT_FALSE(m_Other->HasFocus());
    EXPECT_EQ(m_Control.Take(), "blur, focus");
    EXPECT_EQ(m_OtherControl.Take(), "");
}

TEST_F(MemoryWindow, HidingTheWindowTakesItsFocusAndCapture)
{
    m_Window->SetFocus();
    m_Window->CaptureMouse();
    m_Control.Take();
    m_Window->Show(false);
    EXPECT_EQ(m_Control.Take(), "blur, hide");
    EXPECT_EQ(m_System.GetFocusNode(), nullptr);
    EXPECT_EQ(m_System.GetCaptureNode(), nullptr);
}

TEST_F(MemoryWindow, ATabThatNobodyDealtWithMovesTheFocusOnAndComesInAtTheFirstElement)
{
    m_Window->SetFocus();
    m_System.KeyDown(vkTab);
    EXPECT_EQ(m_Control.Take(), "focus, key 9 0, blur");
    EXPECT_EQ(m_OtherControl.Take(), "focus, custom 0");
    m_System.KeyDown(vkTab);  // a ring
    EXPECT_EQ(m_Control.Take(), "focus, custom 0");
}

TEST_F(MemoryWindow, ShiftTabComesInAtTheLastElement)
{
    m_Window->SetFocus();
    m_System.SetHeldKeys(ksShift);
    m_System.KeyDown(vkTab);
    EXPECT_EQ(m_OtherControl.Take(), "focus, custom 1");
}

TEST_F(MemoryWindow, ATabThatWasDealtWithStays)
{
    m_Window->SetFocus();
    m_Control.m_ConsumeKeys = true;
    EXPECT_TRUE(m_System.KeyDown(vkTab));
    EXPECT_TRUE(m_Window->HasFocus());
    m_Control.m_ConsumeKeys = false;
    m_Control.m_StopKeys = true;
    bool passOn = true;
    EXPECT_TRUE(m_System.KeyDown(vkTab, nullptr, &passOn));
    EXPECT_FALSE(passOn);
    EXPECT_TRUE(m_Window->HasFocus());
}

TEST_F(MemoryWindow, ATabWithControlOrAltStays)
{
    m_Window->SetFocus();
    m_System.SetHeldKeys(ksControl);
    m_System.KeyDown(vkTab);
    EXPECT_TRUE(m_Window->HasFocus());
}

TEST_F(MemoryWindow, ATabWithNobodyElseStays)
{
    m_Other->Show(false);
    m_Window->SetFocus();
    m_Control.Take();
    m_System.KeyDown(vkTab);
    EXPECT_EQ(m_Control.Take(), "key 9 0");
    EXPECT_TRUE(m_Window->HasFocus());
}

// Tips, menus ------------------------------------------------------------------------------------------------------

TEST_F(MemoryWindow, ATipIsAskedForAtThePointerAndStandsWhileThePointerIsInItsHotRectangle)
{
    m_Control.m_TipText = "help";
    m_Control.m_TipHotRect = {0, 0, 20, 10};
    m_System.MovePointer({13, 24});
    EXPECT_TRUE(m_Window->AskTooltip());
    EXPECT_EQ(m_Control.Take(), "move 3 4 0 0, tip 3 4");
    EXPECT_TRUE(m_Window->GetTooltip().shown);
    EXPECT_EQ(m_Window->GetTooltip().text, "help");
    EXPECT_EQ(m_Window->GetTooltip().position, (point<int>{3, 4}));
    m_System.MovePointer({30, 30});  // its right-bottom corner belongs to it
    EXPECT_EQ(m_Control.Take(), "move 20 10 0 0, track 20 10");
    EXPECT_TRUE(m_Window->GetTooltip().shown);
    m_System.MovePointer({31, 30});
    EXPECT_EQ(m_Control.Take(), "move 21 10 0 0");
    EXPECT_FALSE(m_Window->GetTooltip().shown);
}

TEST_F(MemoryWindow, AnEmptyTextIsNoTip)
{
    m_System.MovePointer({13, 24});
    EXPECT_FALSE(m_Window->AskTooltip());
    EXPECT_FALSE(m_Window->GetTooltip().shown);
}

TEST_F(MemoryWindow, PressesKeysAndTheWindowItselfHideTheTip)
{
    m_Control.m_TipText = "help";
    m_System.MovePointer({13, 24});
    m_Window->SetFocus();
    m_Window->AskTooltip();
    m_System.PressButton(mbLeft);
    EXPECT_FALSE(m_Window->GetTooltip().shown);
    m_Window->AskTooltip();
    m_System.KeyDown(vkReturn);
    EXPECT_FALSE(m_Window->GetTooltip().shown);
    m_Window->AskTooltip();
    m_Window->HideTooltip();
    EXPECT_FALSE(m_Window->GetTooltip().shown);
}

TEST_F(MemoryWindow, TheMenuIsAskedForAtThePointer)
{
    m_System.MovePointer({13, 24});
    m_Control.Take();
    m_Window->AskContextMenu();
    EXPECT_EQ(m_Control.Take(), "menu 3 4");
}

TEST_F(MemoryWindow, ColoursThatChangedAreTold)
{
    m_Window->TellSysColorChange();
    EXPECT_EQ(m_Control.Take(), "colors");
}

// Place, frames, queue ---------------------------------------------------------------------------------------------

TEST_F(MemoryWindow, ScreenAndClientPixelsDifferByTheWindowsPlace)
{
    point<int> position{13, 24};
    m_Window->ScreenToClient(&position);
    EXPECT_EQ(position, (point<int>{3, 4}));
    m_Window->ClientToScreen(&position);
    EXPECT_EQ(position, (point<int>{13, 24}));
    m_Window->MoveTo({0, 100});
    m_Window->MoveTo({0, 100});
    EXPECT_EQ(m_Control.Take(), "moved");
    m_Window->ClientToScreen(&position);
    EXPECT_EQ(position, (point<int>{13, 124}));
}

TEST_F(MemoryWindow, OneFrameServesAllRequests)
{
    EXPECT_FALSE(m_Window->RunFrame());
    m_Window->InvalidateRect(0, 0, 100, 50);
    m_Window->InvalidateRect(0, 0, 100, 50);
    EXPECT_EQ(m_Control.Take(), "");
    EXPECT_TRUE(m_Window->RunFrame());
    EXPECT_FALSE(m_Window->RunFrame());
    EXPECT_EQ(m_Control.Take(), "draw");
}

TEST_F(MemoryWindow, ALockedOrHiddenWindowKeepsItsFrameForLater)
{
    m_Window->InvalidateRect(0, 0, 100, 50);
    m_Window->LockDrawing(true);
    EXPECT_FALSE(m_Window->RunFrame());
    m_Window->LockDrawing(false);
    m_Window->Show(false);
    EXPECT_FALSE(m_Window->RunFrame());
    m_Window->Show(true);
    EXPECT_TRUE(m_Window->RunFrame());
}

TEST_F(MemoryWindow, ANewSizeKeepsThePixelsAndAsksForAFullPaint)
{
    m_Window->GetPixels().Row(0)[0] = 0xFF0000FFu;
    m_Window->Resize({100, 50});
    EXPECT_EQ(m_Control.Take(), "");
    m_Window->Resize({60, 70});
    EXPECT_EQ(m_Control.Take(), "resize");
    EXPECT_EQ(m_Window->GetRect(), (rectangle<int>{0, 0, 60, 70}));
    EXPECT_EQ(m_Window->GetPixels().Row(0)[0], 0xFF0000FFu);
    m_Window->RunFrame();
    EXPECT_EQ(m_Control.Take(), "draw full");
}

TEST_F(MemoryWindow, ALostSurfaceIsPaintedInFull)
{
    m_Window->LoseSurface();
    m_Window->RunFrame();
    m_Window->InvalidateRect(0, 0, 100, 50);
    m_Window->RunFrame();
    EXPECT_EQ(m_Control.Take(), "draw full, draw");
}

class CNote : public IRunnable
{
public:
    CNote(std::string& log, std::string const& text, ISynchronizer* next = nullptr)
        : m_Log(log), m_Text(text), m_Next(next)
    {
    }
    ~CNote() override { m_Log += "~" + m_Text + " "; }
    bool Run() override
    {
        m_Log += m_Text + " ";
        if (m_Next)
            m_Next->Post(new CNote(m_Log, "next"));
        return true;
    }

private:
    std::string& m_Log;
    std::string m_Text;
    ISynchronizer* m_Next;
};

TEST_F(MemoryWindow, PostedWorkRunsInOrderWhenAskedToAndIsDeleted)
{
    std::string log;
    m_Window->Post(new CNote(log, "a"));
    m_Window->Post(new CNote(log, "b", m_Window.get()));
    EXPECT_EQ(m_Window->GetPostedCount(), 2);
    EXPECT_EQ(m_Window->RunPosted(), 2);
    EXPECT_EQ(log, "a ~a b ~b ");
    EXPECT_EQ(m_Window->GetPostedCount(), 1);
    EXPECT_EQ(m_System.RunQueues(), 1);
    EXPECT_EQ(log, "a ~a b ~b next ~next ");
    EXPECT_EQ(m_Window->GetPostedCount(), 0);
}

TEST_F(MemoryWindow, WhatIsPostedDiesUnrunWithItsWindow)
{
    std::string log;
    m_Window->Post(new CNote(log, "a"));
    m_Window->Destroy();
    EXPECT_EQ(log, "~a ");
    m_Window->Post(new CNote(log, "b"));
    EXPECT_EQ(log, "~a ~b ");
    EXPECT_EQ(m_System.RunQueues(), 0);
}

TEST_F(MemoryWindow, PostedWorkCanBeDroppedUnrun)
{
    std::string log;
    m_Window->Post(new CNote(log, "a"));
    m_Window->DropPosted();
    EXPECT_EQ(log, "~a ");
    m_Window->Post(new CNote(log, "b"));
    EXPECT_EQ(m_Window->RunPosted(), 1);
    EXPECT_EQ(log, "~a b ~b ");
}

TEST_F(MemoryWindow, DestructionIsToldOnceAndTheControlForgetsTheWindow)
{
    m_Window->SetFocus();
    m_Window->CaptureMouse();
    m_Control.Take();
    m_Window->Destroy();
    m_Window->Destroy();
    EXPECT_EQ(m_Control.Take(), "destroy");
    EXPECT_EQ(m_Control.GetWindow(), nullptr);
    EXPECT_TRUE(m_Window->IsDestroying());
    EXPECT_EQ(m_System.GetFocusNode(), nullptr);
    EXPECT_EQ(m_System.GetCaptureNode(), nullptr);
    m_Window->SetFocus();
    m_Window->CaptureMouse();
    EXPECT_EQ(m_System.GetFocusNode(), nullptr);
    EXPECT_EQ(m_System.GetCaptureNode(), nullptr);
    m_Window.reset();
    EXPECT_EQ(m_Control.Take(), "");
}

TEST_F(MemoryWindow, AnExceptionOfAHandlerStopsAtTheWindowAndIsReported)
{
    m_Control.m_Do = [](std::string const&) { throw std::runtime_error("handler failed"); };
    CExpectException once("handler failed");
    m_System.MovePointer({13, 24});
    EXPECT_EQ(once.GetSeen(), 1);
}

TEST_F(MemoryWindow, TheUpperOfTwoWindowsGetsTheMouse)
{
    CMemoryWindow upper(m_System, {20, 30}, {10, 10});
    CEventControl control(upper);
    m_System.MovePointer({25, 35});
    EXPECT_EQ(control.Take(), "move 5 5 0 0");
    EXPECT_EQ(m_Control.Take(), "");
}

} // namespace
} // namespace vexel
