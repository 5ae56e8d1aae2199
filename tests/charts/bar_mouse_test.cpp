// A user at a bar: hover, press, select, resize sections and the bar, move a section.

#include "tests/charts/bar_bench.h"
#include "tests/support/slot.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/signals/cancel_processing.h"

#include <limits>

using namespace vexel;
using namespace vexel::test;

namespace
{

// Sections 0 to 50, 50 to 110, 110 to 150; the strip ends at 199. Both styles are on.
template <class Bench> class CMouseBench : public Bench
{
protected:
    template <class... A> explicit CMouseBench(A... arguments) : Bench(arguments...)
    {
        this->HearAll(m_Log);
        this->KeepFromDragging();
        this->m_Bar.SetStyle(CBar::bsResizeSections | CBar::bsResizeBar);
    }

    static auto Refuse(signal_t<int, bool*>& signal)
    {
        return Listen(signal, [](int, bool* allow) { *allow = false; });
    }

    CSignalLog m_Log;
};

using BarMouse = CMouseBench<CBarBench>;
using BarMouseOnSide = CMouseBench<CBarOnSide>;
INSTANTIATE_TEST_SUITE_P(AtEdge, BarMouseOnSide, testing::Values(alTop, alBottom, alLeft, alRight));

class BarMouseOnLeft : public CMouseBench<CBarBench>
{
protected:
    BarMouseOnLeft() : CMouseBench<CBarBench>(alLeft) {}
};

}  // namespace

// Every state and every event ---------------------------------------------------------------------------------------------------

namespace
{

// What a state answers to an event: the state after it and what was told.
struct SCell
{
    int state;
    char const* told;
};
struct SRow
{
    char const* event;
    SCell cells[5];  // idle, resizing a section, resizing the bar, dragging, pressed
};
SRow const g_Rows[] = {
    {"move far", {{0, ""}, {1, "resizing(0, 30.5)"}, {2, ""}, {3, ""}, {3, "dragAllowed(1, true)"}}},
    {"move 5", {{0, ""}, {1, "resizing(0, 13.75)"}, {2, ""}, {3, ""}, {4, ""}}},
    {"move 6", {{0, ""}, {1, "resizing(0, 14)"}, {2, ""}, {3, ""}, {3, "dragAllowed(1, true)"}}},
    {"leave", {{0, ""}, {1, ""}, {2, ""}, {3, ""}, {0, ""}}},
    {"release", {{0, ""}, {0, "resized(0, 50)"}, {0, "barResized((20, 20))"}, {0, "moved(1, 1)"}, {0, "clicked(1)"}}},
    {"right press", {{0, ""}, {1, ""}, {2, ""}, {3, ""}, {4, ""}}},
    {"right release", {{0, ""}, {1, ""}, {2, ""}, {3, ""}, {4, ""}}},
    {"press on a section",
     {{4, "pressAllowed(2, true)"},
      {4, "pressAllowed(2, true)"},
      {4, "pressAllowed(2, true)"},
      {4, "pressAllowed(2, true)"},
      {4, "pressAllowed(2, true)"}}},
    {"press on a divider",
     {{1, "resizeAllowed(1, true)"},
      {1, "resizeAllowed(1, true)"},
      {1, "resizeAllowed(1, true)"},
      {1, "resizeAllowed(1, true)"},
      {1, "resizeAllowed(1, true)"}}},
    {"press on the free edge",
     {{2, "barResizeAllowed(true)"},
      {2, "barResizeAllowed(true)"},
      {2, "barResizeAllowed(true)"},
      {2, "barResizeAllowed(true)"},
      {2, "barResizeAllowed(true)"}}},
    {"press behind", {{0, ""}, {1, ""}, {2, ""}, {3, ""}, {4, ""}}},
};

}  // namespace

class BarStates : public CMouseBench<CBarBench>, public testing::WithParamInterface<int>
{
protected:
    BarStates() : CMouseBench<CBarBench>(alLeft) {}

    // By gestures; the pointer's along place is the answer.
    int Enter(int state)
    {
        switch (state)
        {
        case CBar::stResizingSection:
            Press(48);
            return 48;
        case CBar::stResizingBar:
            m_Host.Mouse().Press(m_Bar, 19, 70);
            return 70;
        case CBar::stDragging:
            Press(70);
            Move(80);
            return 80;
        case CBar::stPressed:
            Press(70);
            return 70;
        default:
            Move(70);
            return 70;
        }
    }
    void Do(std::string const& event, int along)
    {
        int const across = m_Bar.GetState() == CBar::stResizingBar ? 19 : 10;
        auto const down = [&](int x, int y) { m_Bar.HandleButtonDown(x, y, 0, mbLeft); };
        if (event == "move far")
            Move(120, across);
        else if (event == "move 5")
            Move(along + 5, across);
        else if (event == "move 6")
            Move(along + 6, across);
        else if (event == "leave")
            m_Bar.HandleMouseLeave(nullptr);
        else if (event == "release")
            m_Bar.HandleButtonUp(across, along, 0, mbLeft);
        else if (event == "right press")
            EXPECT_FALSE(m_Bar.HandleButtonDown(10, along, 0, mbRight));
        else if (event == "right release")
            EXPECT_FALSE(m_Bar.HandleButtonUp(10, along, 0, mbRight));
        else if (event == "press on a section")
            down(10, 120);
        else if (event == "press on a divider")
            down(10, 110);
        else if (event == "press on the free edge")
            down(19, 120);
        else
            down(10, 170);
    }
};
INSTANTIATE_TEST_SUITE_P(From, BarStates, testing::Range(0, 5));

TEST_P(BarStates, AnswerEachEvent)
{
    for (SRow const& row : g_Rows)
    {
        SCOPED_TRACE(row.event);
        int const along = Enter(GetParam());
        ASSERT_EQ(m_Bar.GetState(), GetParam());
        m_Log.Clear();
        Do(row.event, along);
        EXPECT_EQ(m_Bar.GetState(), row.cells[GetParam()].state);
        EXPECT_EQ(m_Log.Take(), row.cells[GetParam()].told);
        m_Bar.HandleButtonUp(0, 0, 0, mbLeft);
        EXPECT_EQ(m_Bar.GetState(), 0);
        Release();
        m_Host.Mouse().Leave();
        m_Log.Clear();
        m_Bar.SetSize({20, 20}, false);
        m_Host.Paint();
    }
}

// Hover --------------------------------------------------------------------------------------------------------------------

TEST_P(BarMouseOnSide, EveryMoveTellsTheSectionUnderThePointer)
{
    CSignalLog log(m_Bar.m_SigHover, "hover");
    m_Bar.SetStyle(0);
    for (int const along : {10, 11, 48, 50, 120, 160})
        Move(along);
    EXPECT_EQ(log.Take(), "hover(0) hover(0) hover(0) hover(1) hover(2) hover(3)");
    m_Bar.SetStyle(CBar::bsResizeSections);
    Press(48);
    log.Clear();
    Move(60);
    EXPECT_EQ(log.Take(), "hover(1)");
    m_Host.Mouse().Move(195, 195);  // captured: far off
    EXPECT_EQ(log.Take(), GetParam() == alBottom || GetParam() == alRight ? "hover(3)" : "hover(-1)");
    Release();
}

TEST_P(BarMouseOnSide, TheCursorTellsWhatCanBeDragged)
{
    int const across = IsUpright() ? 7 : 9;
    Move(48);
    EXPECT_EQ(m_Bar.GetCursor(), across);
    EXPECT_EQ(m_Host.Window().GetCursor(), across);
    Move(20);
    EXPECT_EQ(m_Bar.GetCursor(), 1);
    m_Bar.SetStyle(CBar::bsResizeBar);
    Move(48);
    EXPECT_EQ(m_Bar.GetCursor(), 1);
    Move(51);
    EXPECT_EQ(m_Bar.GetCursor(), 1);
}

TEST_F(BarMouseOnLeft, TheCursorAtTheFreeEdgeGoesLeftAndRight)
{
    Move(70, 19);
    EXPECT_EQ(m_Bar.GetCursor(), 9);
    Move(70, 10);
    EXPECT_EQ(m_Bar.GetCursor(), 1);
    m_Bar.SetStyle(CBar::bsResizeSections);
    Move(70, 19);
    EXPECT_EQ(m_Bar.GetCursor(), 1);
}

TEST_F(BarMouse, TheCursorAtTheFreeEdgeOfATopBarGoesUpAndDown)
{
    Move(198);
    EXPECT_EQ(m_Bar.GetCursor(), 7);
}

TEST_P(BarMouseOnSide, ADraggedSectionShowsTheCursorsOfWhatIsUnderIt)
{
    Press(70);
    Move(80);
    EXPECT_EQ(m_Bar.GetState(), CBar::stDragging);
    Move(110);
    EXPECT_EQ(m_Bar.GetCursor(), IsUpright() ? 7 : 9);
    Move(120);
    EXPECT_EQ(m_Bar.GetCursor(), 1);
}

// Pressing ------------------------------------------------------------------------------------------------------------------

TEST_P(BarMouseOnSide, APressedSectionIsClickedWhereItIsReleased)
{
    Press(70);
    EXPECT_EQ(m_Log.Take(), "pressAllowed(1, true)");
    EXPECT_EQ(m_Bar.GetActiveSection(), 1);
    EXPECT_EQ(m_Bar.GetState(), CBar::stPressed);
    EXPECT_EQ(Captured(), &m_Bar);
    EXPECT_TRUE(IsRepainted());
    Move(75);
    EXPECT_FALSE(IsRepainted());
    Release();
    EXPECT_EQ(m_Log.Take(), "clicked(1)");
    EXPECT_EQ(m_Bar.GetActiveSection(), -1);
    EXPECT_EQ(Captured(), nullptr);
    EXPECT_TRUE(IsRepainted());
}

TEST_P(BarMouseOnSide, APressElsewhereOnlyCaptures)
{
    Press(170);
    EXPECT_EQ(Captured(), &m_Bar);
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
    EXPECT_EQ(Selected(), "");
    Release();
    EXPECT_EQ(Captured(), nullptr);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_FALSE(IsRepainted());
}

TEST_P(BarMouseOnSide, APressWithAnotherButtonDoesNothing)
{
    Press(70, 0, mbRight);
    EXPECT_EQ(Captured(), nullptr);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Selected(), "");
    Release(mbRight);
}

TEST_P(BarMouseOnSide, ADividerWithoutTheStyleIsNoPlaceToPress)
{
    m_Bar.SetStyle(CBar::bsResizeBar);
    Click(48);
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Selected(), "");
}

TEST_P(BarMouseOnSide, APressThatIsRefusedStillChangesTheSelection)
{
    auto const no = Refuse(m_Bar.m_SigPressAllowed);
    Press(70);
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
    EXPECT_EQ(m_Bar.GetActiveSection(), -1);
    EXPECT_EQ(Selected(), "1");
    EXPECT_EQ(m_Bar.GetSelAnchor(), 1);
    EXPECT_TRUE(IsRepainted());
    Release();
    EXPECT_EQ(m_Log.Text(), "pressAllowed(1, true)");
    EXPECT_EQ(Captured(), nullptr);
}

TEST_P(BarMouseOnSide, LeavingEndsAPress)
{
    Press(70);
    m_Host.Paint();
    m_Bar.HandleMouseLeave(nullptr);
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
    EXPECT_TRUE(IsRepainted());
    m_Bar.HandleMouseLeave(nullptr);
    EXPECT_FALSE(IsRepainted());
    m_Log.Clear();
    Release();
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(Captured(), nullptr);
}

TEST_P(BarMouseOnSide, ASectionThatGoesUnderAPressIsNotClicked)
{
    Press(120);
    m_Log.Clear();
    m_Names.m_Count = 2;
    m_Names.m_SigChanged();
    Release();
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Bar.GetActiveSection(), -1);
}

TEST_P(BarMouseOnSide, AControlThatIsLeftEndsWhatAUserWasDoing)
{
    Press(70);
    Move(80);
    m_Bar.ReParent(nullptr, true);
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
    EXPECT_EQ(m_Bar.GetActiveSection(), -1);
    m_Bar.ReParent(m_Host.Root(), true);
    m_Log.Clear();
    Release();
    EXPECT_EQ(m_Log.Text(), "");
}

// Selecting -----------------------------------------------------------------------------------------------------------------

TEST_P(BarMouseOnSide, APlainClickSelectsOneSectionAtThePress)
{
    m_Bar.SetSelectedSections({0, 1});
    Press(70);
    EXPECT_EQ(Selected(), "1");  // the others go at the press, not at the release
    EXPECT_EQ(m_Bar.GetState(), CBar::stPressed);
    Release();
    EXPECT_EQ(Selected(), "1");
    Click(120);
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(m_Bar.GetSelAnchor(), 2);
}

TEST_P(BarMouseOnSide, AControlClickTurnsOneOver)
{
    Click(10, ksControl);
    EXPECT_EQ(Selected(), "0");
    EXPECT_EQ(m_Bar.GetSelAnchor(), 0);
    Click(120, ksControl);
    EXPECT_EQ(Selected(), "02");
    EXPECT_EQ(m_Bar.GetSelAnchor(), 2);
    Click(10, ksControl);
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(m_Bar.GetSelAnchor(), 0);
    EXPECT_TRUE(m_Bar.GetRangeSelection().IsEmpty());
}

TEST_P(BarMouseOnSide, AShiftClickSelectsFromTheAnchor)
{
    Click(70);
    Click(120, ksShift);
    EXPECT_EQ(Selected(), "12");
    EXPECT_EQ(m_Bar.GetRangeSelection().GetSelectedItems(), 2);
    EXPECT_EQ(m_Bar.GetSelection().GetSelectedItems(), 1);
    EXPECT_EQ(m_Bar.GetSelAnchor(), 1);
    EXPECT_EQ(m_Bar.GetSelLast(), 2);
    Click(10, ksShift);
    EXPECT_EQ(Selected(), "01");
    EXPECT_EQ(m_Bar.GetSelLast(), 0);
    EXPECT_EQ(m_Bar.GetRangeSelection().GetSelectedItems(), 2);
    Click(70, ksShift);
    EXPECT_EQ(m_Bar.GetRangeSelection().GetSelectedItems(), 1);
    EXPECT_EQ(Selected(), "1");
}

TEST_P(BarMouseOnSide, AShiftClickWithoutAnAnchorBeginsThere)
{
    Click(70, ksShift);
    EXPECT_EQ(Selected(), "1");
    EXPECT_TRUE(m_Bar.GetSelection().IsEmpty());
    EXPECT_EQ(m_Bar.GetSelAnchor(), 1);
    EXPECT_EQ(m_Bar.GetSelLast(), 1);
    Click(120, ksShift | ksControl);  // shift goes first
    EXPECT_EQ(Selected(), "12");
    EXPECT_TRUE(m_Bar.GetSelection().IsEmpty());
}

TEST_P(BarMouseOnSide, APlainClickEndsAShiftSelection)
{
    Click(10);
    Click(120, ksShift);
    Click(70);
    EXPECT_EQ(Selected(), "1");
    EXPECT_TRUE(m_Bar.GetRangeSelection().IsEmpty());
}

TEST_P(BarMouseOnSide, AControlClickKeepsTheShiftSelectionBeforeIt)
{
    Click(10);
    Click(70, ksShift);
    Click(120, ksControl);
    EXPECT_EQ(Selected(), "012");
    EXPECT_EQ(m_Bar.GetSelection().GetSelectedItems(), 3);
    EXPECT_TRUE(m_Bar.GetRangeSelection().IsEmpty());
    EXPECT_EQ(m_Bar.GetSelAnchor(), 2);
    Click(70, ksControl);
    EXPECT_EQ(Selected(), "02");
}

namespace
{

// Ten sections of 20 pixels.
class BarSelection : public CMouseBench<CBarBench>
{
protected:
    BarSelection()
    {
        m_Names.m_Count = 10;
        m_Steps.m_Steps.assign(10, 5.0);
        m_Steps.m_To = 10;
    }
    void ClickOn(int section, int keys = 0) { Click(section * 20 + 10, keys); }
    // By a control click on section 9, there and back.
    void Fold()
    {
        ClickOn(9, ksControl);
        ClickOn(9, ksControl);
        EXPECT_TRUE(m_Bar.GetRangeSelection().IsEmpty());
    }
};

}  // namespace

TEST_F(BarSelection, ARangeThatBeginsAndEndsInOthersIsKeptWithThem)
{
    m_Bar.SetSelectedSections({0, 1, 2, 3, 6, 7});
    ClickOn(2, ksControl);
    ClickOn(2, ksControl);  // the anchor
    ClickOn(6, ksShift);
    Fold();
    EXPECT_EQ(Selected(), "01234567");
    EXPECT_EQ(m_Bar.GetSelection().GetSelectedItems(), 8);
    EXPECT_EQ(m_Bar.GetSelection().GetNodes().GetCount(), 2);
}

TEST_F(BarSelection, ARangeThatEndsWhereAnotherBeginsIsKeptWithIt)
{
    m_Bar.SetSelectedSections({5, 6, 7});
    ClickOn(2, ksControl);
    ClickOn(5, ksShift);
    Fold();
    EXPECT_EQ(Selected(), "234567");
    EXPECT_EQ(m_Bar.GetSelection().GetSelectedItems(), 6);
}

TEST_F(BarSelection, ARangeBetweenOthersLeavesThem)
{
    m_Bar.SetSelectedSections({0, 7, 8});
    ClickOn(5, ksControl);
    ClickOn(3, ksShift);
    Fold();
    EXPECT_EQ(Selected(), "034578");
    ClickOn(4, ksControl);
    EXPECT_EQ(Selected(), "03578");
}

TEST_F(BarSelection, ARangeInsideAnotherChangesNothing)
{
    m_Bar.SetSelectedSections({1, 2, 3, 4, 5, 6});
    ClickOn(3, ksControl);
    ClickOn(3, ksControl);
    ClickOn(4, ksShift);
    Fold();
    EXPECT_EQ(Selected(), "123456");
    EXPECT_EQ(m_Bar.GetSelection().GetSelectedItems(), 6);
}

TEST_F(BarSelection, ARangeOfOneIsKept)
{
    ClickOn(4, ksShift);
    Fold();
    EXPECT_EQ(Selected(), "4");
}

// Resizing a section -----------------------------------------------------------------------------------------------------------

TEST_P(BarMouseOnSide, ADraggedDividerAsksForAStep)
{
    Press(48);
    EXPECT_EQ(m_Log.Take(), "resizeAllowed(0, true)");
    EXPECT_EQ(m_Bar.GetState(), CBar::stResizingSection);
    EXPECT_EQ(m_Bar.GetActiveSection(), 0);
    EXPECT_EQ(Selected(), "");
    Move(48, 12);
    EXPECT_EQ(m_Log.Text(), "");
    m_Host.Paint();
    Move(68);
    EXPECT_EQ(m_Log.Take(), "resizing(0, 17.5)");  // 70 pixels
    EXPECT_TRUE(IsRepainted());
    Move(69);
    EXPECT_EQ(m_Log.Take(), "resizing(0, 12.75)");  // nobody took the step: 51
    m_Steps.m_Steps[0] = 20;
    Move(71);
    EXPECT_EQ(m_Log.Take(), "resizing(0, 20.5)");  // 80 + 2
    Release();
    EXPECT_EQ(m_Log.Take(), "resized(0, 80)");
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
    EXPECT_EQ(m_Bar.GetActiveSection(), -1);
    EXPECT_EQ(Captured(), nullptr);
}

TEST_P(BarMouseOnSide, TheDividerIsMetFromBothSections)
{
    Press(50);
    EXPECT_EQ(m_Log.Take(), "resizeAllowed(0, true)");
    Release();
    Press(149);
    EXPECT_EQ(m_Log.Take(), "resized(0, 50) resizeAllowed(2, true)");
    Release();
}

TEST_P(BarMouseOnSide, ASectionDoesNotBecomeSmallerThanTheMinimum)
{
    Press(48);
    Move(2);
    Move(-200);
    Move(-199);
    EXPECT_EQ(m_Log.Take(), "resizeAllowed(0, true) resizing(0, 1) resizing(0, 0.25) resizing(0, 12.75)");
    m_Bar.SetMinSectionSize(20);
    Move(-300);
    EXPECT_EQ(m_Log.Take(), "resizing(0, 5)");
}

TEST_P(BarMouseOnSide, AResizeThatIsRefusedDoesNotBegin)
{
    auto const no = Refuse(m_Bar.m_SigSectionResizeAllowed);
    Press(48);
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
    EXPECT_EQ(m_Bar.GetActiveSection(), -1);
    Move(60);
    Release();
    EXPECT_EQ(m_Log.Text(), "resizeAllowed(0, true)");
}

TEST_P(BarMouseOnSide, AResizeWithoutAScrollModelEndsWithTheWidthOne)
{
    Press(48);
    m_Log.Clear();
    m_Bar.SetHorzScroll(nullptr);
    m_Bar.SetVertScroll(nullptr);
    Move(60);
    Release();
    EXPECT_EQ(m_Log.Text(), "resized(0, 1)");
}

TEST_P(BarMouseOnSide, AResizeWithoutAScaleTellsNoStep)
{
    Press(48);
    m_Log.Clear();
    m_Steps.m_Measure = {0.5, 0};
    Move(60);
    EXPECT_EQ(m_Log.Text(), "");
    m_Steps.m_Measure = {std::numeric_limits<double>::quiet_NaN(), 2};
    Move(61);
    EXPECT_EQ(m_Log.Text(), "");
    Release();
}

TEST_P(BarMouseOnSide, ASectionThatGoesIsNotResizedAnyMore)
{
    Press(149);
    m_Log.Clear();
    m_Names.m_Count = 2;
    Move(160);
    Release();
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
}

// Resizing the bar -------------------------------------------------------------------------------------------------------------

TEST_F(BarMouseOnLeft, ADraggedFreeEdgeMakesTheBarThicker)
{
    m_Host.Mouse().Press(m_Bar, 19, 70);
    EXPECT_EQ(m_Log.Take(), "barResizeAllowed(true)");
    EXPECT_EQ(m_Bar.GetState(), CBar::stResizingBar);
    EXPECT_EQ(m_Bar.GetActiveSection(), -1);
    m_Host.Mouse().Move(m_Bar, 19, 100);
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{20, 20}));
    m_Host.Mouse().Move(m_Bar, 49, 100);
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{50, 20}));
    EXPECT_EQ(m_Bar.GetCursor(), 9);
    m_Host.Paint();
    EXPECT_EQ(m_Bar.GetPos(), (rectangle<int>{0, 0, 50, 199}));
    m_Host.Mouse().Move(m_Bar, 39, 100);
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{40, 20}));
    EXPECT_EQ(m_Log.Text(), "");
    Release();
    EXPECT_EQ(m_Log.Text(), "barResized((40, 20))");
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
    EXPECT_EQ(Captured(), nullptr);
}

TEST_F(BarMouseOnLeft, AResizeOfTheBarIsOverWhenItIsTold)
{
    int state = -1;
    auto const slot = Listen(m_Bar.m_SigBarResized, [&](size<int>&) { state = m_Bar.GetState(); });
    m_Host.Mouse().Press(m_Bar, 19, 70);
    Release();
    EXPECT_EQ(state, CBar::stIdle);
}

TEST_F(BarMouseOnLeft, OnALargerDisplayTheBarStillFollowsPixelByPixel)
{
    CTestHost host(200, 200, 2.0);
    auto& bar = *new CBar(host.Root(), {20, 20}, alLeft);
    auto& pane = *new CBarPane(host.Root(), {0, 0}, alClient);
    host.Control().GetControl()->SetDragStartSensitivity({10000, 10000});
    bar.SetCentralPane(&pane);
    bar.SetCategoryModel(&m_Names);
    bar.SetVertScroll(&m_Steps);
    bar.SetStyle(CBar::bsResizeBar);
    bar.SetSize({20, 20}, false);
    host.Paint();
    host.Mouse().Press(bar, 19, 70);
    host.Mouse().Move(bar, 29, 70);
    EXPECT_EQ(bar.GetSize(), (size<int>{30, 20}));
    host.Mouse().Release();
}

TEST_F(BarMouseOnLeft, BeyondALimitThePointerIsWaitedFor)
{
    m_Bar.SetMinBarSize(10);
    m_Bar.SetMaxBarSize(30);
    m_Host.Mouse().Press(m_Bar, 19, 70);
    m_Host.Mouse().Move(m_Bar, 29, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 30);
    m_Host.Mouse().Move(m_Bar, 80, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 30);
    m_Host.Mouse().Move(m_Bar, 30, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 30);
    m_Host.Mouse().Move(m_Bar, 28, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 29);
    m_Host.Mouse().Move(m_Bar, 9, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 10);
    m_Host.Mouse().Move(m_Bar, 3, 70);
    m_Host.Mouse().Move(m_Bar, 8, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 10);
    m_Host.Mouse().Move(m_Bar, 11, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 12);
}

TEST_F(BarMouseOnLeft, TheBarIsNeverLessThanNothing)
{
    m_Bar.SetMinBarSize(-100);
    m_Host.Mouse().Press(m_Bar, 19, 70);
    m_Host.Mouse().Move(m_Bar, -2, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 20);
    m_Host.Mouse().Move(m_Bar, -1, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 0);
}

TEST_F(BarMouseOnLeft, NoSectionIsDraggedWhileTheBarIsResized)
{
    DragInfo info;
    EXPECT_TRUE(m_Bar.HandleStartDragging(10, 70, info));
    m_Bar.HandleDragFinished(nullptr, info);
    m_Host.Mouse().Press(m_Bar, 19, 70);
    ASSERT_EQ(m_Bar.GetState(), CBar::stResizingBar);
    EXPECT_FALSE(m_Bar.HandleStartDragging(10, 70, info));
    EXPECT_EQ(m_Bar.GetDragSection(), -1);
    Release();
}

TEST_F(BarMouseOnLeft, AResizeOfTheBarThatIsRefusedDoesNotBegin)
{
    auto const no = Listen(m_Bar.m_SigBarResizeAllowed, [](bool* allow) { *allow = false; });
    m_Host.Mouse().Press(m_Bar, 19, 70);
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
    m_Host.Mouse().Move(m_Bar, 40, 70);
    EXPECT_EQ(m_Bar.GetSize().width, 20);
    Release();
    EXPECT_EQ(m_Log.Text(), "barResizeAllowed(true)");
}

TEST_F(BarMouse, ATopBarIsResizedAlong)
{
    m_Host.Mouse().Press(m_Bar, 198, 10);
    EXPECT_EQ(m_Bar.GetState(), CBar::stResizingBar);
    m_Host.Mouse().Move(m_Bar, 190, 15);
    EXPECT_EQ(m_Bar.GetSize(), (size<int>{12, 20}));
    EXPECT_EQ(m_Bar.GetCursor(), 7);
    Release();
    EXPECT_EQ(m_Log.Text(), "barResizeAllowed(true) barResized((12, 20))");
}

// Moving a section -------------------------------------------------------------------------------------------------------------

TEST_P(BarMouseOnSide, APressedSectionThatTravelsSixPixelsIsMoved)
{
    Press(70);
    m_Log.Clear();
    Move(64 + 1);
    EXPECT_EQ(m_Log.Text(), "");
    m_Host.Paint();
    Move(64);
    EXPECT_EQ(m_Log.Take(), "dragAllowed(1, true)");
    EXPECT_EQ(m_Bar.GetState(), CBar::stDragging);
    EXPECT_TRUE(IsRepainted());
    Move(120);
    Release();
    EXPECT_EQ(m_Log.Take(), "moved(1, 2)");
    EXPECT_TRUE(IsRepainted());
    EXPECT_EQ(m_Bar.GetActiveSection(), -1);
}

TEST_P(BarMouseOnSide, AMoveEndsOverASectionOrDividerOrNowhere)
{
    struct SEnd
    {
        int along;
        char const* told;
    };
    for (SEnd const& end : {SEnd{10, "moved(1, 0)"}, SEnd{48, "moved(1, 0)"}, SEnd{51, "moved(1, 0)"},
                            SEnd{149, "moved(1, 2)"}, SEnd{170, ""}, SEnd{-20, ""}})
    {
        Press(70);
        Move(80);
        Move(end.along);
        m_Log.Clear();
        Release();
        EXPECT_EQ(m_Log.Text(), end.told) << end.along;
        EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
        EXPECT_EQ(Captured(), nullptr);
    }
}

TEST_P(BarMouseOnSide, AMoveThatIsRefusedIsAskedForAgain)
{
    auto const no = Refuse(m_Bar.m_SigDragAllowed);
    Press(70);
    m_Log.Clear();
    Move(80);
    Move(81);
    EXPECT_EQ(m_Log.Take(), "dragAllowed(1, true) dragAllowed(1, true)");
    EXPECT_EQ(m_Bar.GetState(), CBar::stPressed);
    Release();
    EXPECT_EQ(m_Log.Take(), "clicked(1)");
}

// Whoever ends an event in a slot leaves no press behind.
TEST_P(BarMouseOnSide, AnEventEndedInASlotEndsThePress)
{
    auto const end = Listen(m_Bar.m_SigSectionClicked, [](int) { throw vexel::cancel_processing(); });
    Press(70);
    Release();
    EXPECT_EQ(m_Bar.GetState(), CBar::stIdle);
    EXPECT_EQ(m_Bar.GetActiveSection(), -1);
    EXPECT_EQ(Captured(), nullptr);
}
