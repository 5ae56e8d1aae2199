// A user at a header: hover, resize, press, double click, tip.

#include "tests/headers/header_bench.h"
#include "tests/support/slot.h"
#include "vexel/platform/memory/memory_window.h"
#include "vexel/platform/sys_window.h"
#include "vexel/views/continuous_item_view_model.h"

using namespace vexel;
using namespace vexel::test;

namespace
{

// Sections 0 to 49, 50 to 109, 110 to 149; the strip ends at 199.
class SimpleHeaderMouse : public CHeaderOnSide
{
protected:
    SimpleHeaderMouse()
    {
        HearAll(m_Log);
        m_Header.SetMinimalSectionWidth(20);
    }
    int ResizeCursor() const { return IsUpright() ? 7 : 9; }
    static auto Refuse(signal_t<CSimpleHeader*, int, bool*>& signal)
    {
        return Listen(signal, [](CSimpleHeader*, int, bool* allow) { *allow = false; });
    }

    CSignalLog m_Log;
};
INSTANTIATE_TEST_SUITE_P(AtEdge, SimpleHeaderMouse, testing::Values(alTop, alBottom, alLeft, alRight));

}  // namespace

// Sections that go ------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderMouse, APressedSectionThatGoesIsNotClicked)
{
    Press(120);
    EXPECT_EQ(m_Header.GetActiveSection(), 2);
    m_Log.Clear();

    m_Sections.m_Widths.pop_back();
    m_Sections.SetCount(2);
    m_Sections.m_SigChanged();

    EXPECT_EQ(m_Header.GetActiveSection(), -1);
    EXPECT_EQ(m_Header.GetHotSection(), -1);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    Release();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_P(SimpleHeaderMouse, ADraggedSectionThatGoesIsDroppedNowhere)
{
    Press(120);
    Move(80);
    ASSERT_EQ(m_Header.GetState(), CSimpleHeader::stDragging);

    m_Sections.m_Widths.pop_back();
    m_Sections.SetCount(2);
    m_Sections.m_SigChanged();
    m_Host.Paint();
    m_Log.Clear();
    Release();

    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Sections.Order(), "AB");
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
}

// Hover --------------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderMouse, TheSectionUnderThePointerIsHot)
{
    Move(10);
    EXPECT_EQ(m_Log.Take(), "canPress(0, true)");
    EXPECT_EQ(m_Header.GetHotSection(), 0);
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
    Move(20);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_FALSE(m_Host.IsFramePending());
    Move(80);
    EXPECT_EQ(m_Log.Take(), "canPress(1, true)");
    EXPECT_EQ(m_Header.GetHotSection(), 1);
    EXPECT_TRUE(IsRepaintPending(m_Host));
    EXPECT_EQ(m_Header.GetCursor(), 1);

    Move(170);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Header.GetHotSection(), -1);
    EXPECT_TRUE(IsRepaintPending(m_Host));
    Move(175);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_P(SimpleHeaderMouse, ASectionThatMustNotBePressedIsNotHot)
{
    Move(80);
    auto const no = Refuse(m_Header.m_SigCanPress);
    m_Log.Clear();
    m_Host.Paint();
    Move(10);
    Move(11);
    EXPECT_EQ(m_Log.Count("canPress"), 2);
    EXPECT_EQ(m_Header.GetHotSection(), -1);
    EXPECT_TRUE(IsRepaintPending(m_Host));
}

TEST_P(SimpleHeaderMouse, WithoutTheStyleNoSectionIsHot)
{
    Move(80);
    m_Header.SetStyle(CSimpleHeader::hsResize);
    m_Log.Clear();
    m_Host.Paint();
    Move(10);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Header.GetHotSection(), -1);
    EXPECT_TRUE(IsRepaintPending(m_Host));
}

TEST_P(SimpleHeaderMouse, WithNeitherStyleTheHotSectionStays)
{
    Move(80);
    m_Header.SetStyle(CSimpleHeader::hsDrag);
    m_Log.Clear();
    m_Host.Paint();
    Move(10);
    Move(170);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Header.GetHotSection(), 1);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_P(SimpleHeaderMouse, ADividerUnderThePointerIsArmedAndItsSectionHot)
{
    Move(48);
    EXPECT_EQ(m_Log.Take(), "canResize(0, true) canResize(0, true)");
    EXPECT_EQ(m_Header.GetCursor(), ResizeCursor());
    EXPECT_EQ(m_Host.Window().GetCursor(), ResizeCursor());
    EXPECT_EQ(m_Header.GetHotSection(), 0);
    EXPECT_TRUE(IsRepaintPending(m_Host));
    Move(52);
    EXPECT_EQ(m_Log.Take(), "canResize(0, true)");
    EXPECT_FALSE(m_Host.IsFramePending());
    Move(20);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Header.GetCursor(), 1);
    EXPECT_EQ(m_Header.GetHotSection(), 0);
}

TEST_P(SimpleHeaderMouse, ADividerThatWasRefusedLeavesTheCursorAlone)
{
    auto const no = Refuse(m_Header.m_SigCanResize);
    m_Header.SetCursor(5);
    Move(48);
    EXPECT_EQ(m_Log.Count("canResize"), 2);
    EXPECT_EQ(m_Header.GetCursor(), 5);
    EXPECT_EQ(m_Header.GetHotSection(), -1);
    Move(170);
    EXPECT_EQ(m_Header.GetCursor(), 1);
}

TEST_P(SimpleHeaderMouse, WithoutTheStyleADividerIsNotArmed)
{
    m_Header.SetStyle(CSimpleHeader::hsPress | CSimpleHeader::hsDrag);
    m_Header.SetCursor(5);
    Move(10);
    Move(48);
    EXPECT_EQ(m_Log.Take(), "canPress(0, true)");
    EXPECT_EQ(m_Header.GetCursor(), 1);
    EXPECT_EQ(m_Header.GetHotSection(), -1);
}

TEST_P(SimpleHeaderMouse, ThePointerLeavesAndNothingIsHot)
{
    Move(10);
    m_Host.Paint();
    m_Host.Mouse().Leave();
    EXPECT_EQ(m_Header.GetHotSection(), -1);
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
    m_Header.HandleMouseLeave(nullptr);
    EXPECT_FALSE(m_Host.IsFramePending());
}

// Resize ---------------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderMouse, ADraggedDividerOffersWidthsFromTheSectionsBeginning)
{
    Press(150);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stResizing);
    EXPECT_EQ(m_Header.GetActiveSection(), 2);
    EXPECT_EQ(Captured(), &m_Header);
    m_Log.Clear();
    m_Host.Paint();

    Move(180);
    EXPECT_EQ(m_Log.Take(), "resizing(2, 70, true) resized(2, 70)");
    EXPECT_TRUE(IsRepaintPending(m_Host));
    EXPECT_EQ(m_Header.GetItemWidth(2), 40);  // the owner's business
    Move(150);
    EXPECT_EQ(m_Log.Take(), "");
    Move(151, 90);
    EXPECT_EQ(m_Log.Take(), "resizing(2, 41, true) resized(2, 41)");

    Release();
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(m_Header.GetActiveSection(), -1);
    EXPECT_EQ(Captured(), nullptr);
}

TEST_P(SimpleHeaderMouse, TheViewModelTakesTheWidth)
{
    CDefaultColumnViewModel columns;
    columns.SetCount(3);
    columns.SetDefaultItemSize(50);
    m_Header.SetViewModel(&columns);
    std::string order;
    auto const before = Listen(m_Header.m_SigResizing, [&](CSimpleHeader*, int section, int, bool*) {
        order += "asked at " + std::to_string(columns.GetItemSize(section)) + " ";
    });
    auto const after = Listen(m_Header.m_SigResized, [&](CSimpleHeader*, int section, int) {
        order += "told at " + std::to_string(columns.GetItemSize(section)) + " ";
    });
    Press(48);
    Move(70);
    Release();
    EXPECT_EQ(order, "asked at 50 told at 70 ");
    EXPECT_EQ(columns.GetItemSize(0), 70);
    EXPECT_EQ(columns.GetItemSize(1), 50);
    m_Header.SetViewModel(nullptr);
}

TEST_P(SimpleHeaderMouse, AWidthDoesNotGoBelowTheMinimum)
{
    Press(48);
    m_Log.Clear();
    Move(21);
    EXPECT_EQ(m_Log.Take(), "resizing(0, 21, true) resized(0, 21)");
    Move(19);
    EXPECT_EQ(m_Log.Take(), "resizing(0, 20, true) resized(0, 20)");
    Move(-30);
    EXPECT_EQ(m_Log.Take(), "resizing(0, 20, true) resized(0, 20)");
    m_Sections.m_Widths = {20, 60, 40};
    Move(3);
    EXPECT_EQ(m_Log.Take(), "");
    Release();
}

TEST_P(SimpleHeaderMouse, AScrolledSectionIsResizedFromItsBeginningBeforeTheStrip)
{
    m_Scroll.m_Start = 20;
    Press(30);
    m_Log.Clear();
    Move(40);
    EXPECT_EQ(m_Log.Take(), "resizing(0, 60, true) resized(0, 60)");
    Release();
}

TEST_P(SimpleHeaderMouse, ARefusedWidthEndsTheResize)
{
    Press(48);
    auto const no = Listen(m_Header.m_SigResizing, [](CSimpleHeader*, int, int, bool* allow) { *allow = false; });
    m_Log.Clear();
    Move(70);
    EXPECT_EQ(m_Log.Take(), "resizing(0, 70, true)");
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(m_Header.GetActiveSection(), -1);
    EXPECT_EQ(m_Header.GetCursor(), 1);
    EXPECT_EQ(Captured(), nullptr);
    Release();
    EXPECT_EQ(m_Log.Count("resized"), 0);
}

TEST_P(SimpleHeaderMouse, ARefusedDividerCannotBeDragged)
{
    auto const no = Refuse(m_Header.m_SigCanResize);
    Press(48);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(m_Header.GetActiveSection(), -1);
    EXPECT_EQ(Captured(), &m_Header);
    m_Log.Clear();
    Move(70);
    Release();
    EXPECT_EQ(m_Log.Count("resizing"), 0);
    EXPECT_EQ(Captured(), nullptr);
}

TEST_P(SimpleHeaderMouse, ALostReleaseEndsTheResizeWithTheNextMove)
{
    Press(48);
    m_Log.Clear();
    m_Host.Mouse().LoseRelease();
    Move(70);
    EXPECT_EQ(m_Log.Count("resizing"), 0);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(m_Header.GetActiveSection(), -1);
    EXPECT_EQ(m_Header.GetHotSection(), 1);  // the move goes on as any other
    EXPECT_EQ(Captured(), nullptr);
}

TEST_P(SimpleHeaderMouse, AnotherButtonDoesNotResize)
{
    Press(48, mbRight);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(Captured(), nullptr);
    Release(mbRight);
}

TEST_P(SimpleHeaderMouse, AnotherButtonsReleaseLeavesTheResizeWithoutTheCapture)
{
    Press(48);
    m_Host.Mouse().Press(mbRight);
    Release(mbRight);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stResizing);
    EXPECT_EQ(Captured(), nullptr);
    Release();
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
}

// Press ----------------------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderMouse, ASectionIsPressedAndClicked)
{
    Move(10);
    m_Host.Paint();
    m_Log.Clear();
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Log.Take(), "canPress(0, true)");
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stPressed);
    EXPECT_EQ(m_Header.GetActiveSection(), 0);
    EXPECT_EQ(Captured(), &m_Header);
    EXPECT_EQ(m_Host.Paint().Elements(), "header");

    int active = -2;
    auto const clicked =
        Listen(m_Header.m_SigSectionClicked, [&](CSimpleHeader* header, int) { active = header->GetActiveSection(); });
    Release();
    EXPECT_EQ(m_Log.Take(), "clicked(0)");
    EXPECT_EQ(active, 0);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(m_Header.GetActiveSection(), -1);
    EXPECT_EQ(Captured(), nullptr);
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
}

TEST_P(SimpleHeaderMouse, ARefusedPressIsNoClick)
{
    auto const no = Refuse(m_Header.m_SigCanPress);
    Move(10);
    m_Host.Paint();
    m_Log.Clear();
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Log.Count("canPress"), 1);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(m_Header.GetActiveSection(), -1);
    EXPECT_EQ(Captured(), &m_Header);
    EXPECT_TRUE(IsRepaintPending(m_Host));
    Release();
    EXPECT_EQ(m_Log.Count("clicked"), 0);
    EXPECT_EQ(Captured(), nullptr);
}

TEST_P(SimpleHeaderMouse, WithoutTheStyleAPressIsNoClick)
{
    m_Header.SetStyle(CSimpleHeader::hsResize);
    Press(10);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(Captured(), &m_Header);
    Release();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_P(SimpleHeaderMouse, AnotherButtonOrAnotherPlaceIsNoPress)
{
    Press(10, mbRight);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(Captured(), nullptr);
    Release(mbRight);
    Press(170);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(Captured(), &m_Header);  // the empty end is a place, too
    Release();
    EXPECT_EQ(m_Log.Count("clicked"), 0);
}

TEST_P(SimpleHeaderMouse, APressThatWentElsewhereOnTheHeaderAndBackIsAClick)
{
    m_Header.SetStyle(CSimpleHeader::hsPress);
    Press(10);
    m_Log.Clear();
    Move(80);
    Move(170);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stPressed);
    EXPECT_EQ(m_Header.GetHotSection(), 0);
    Move(12);
    Release();
    EXPECT_EQ(m_Log.Take(), "clicked(0)");
}

TEST_P(SimpleHeaderMouse, AReleaseOverAnotherSectionClicksThePressedOne)
{
    m_Header.SetStyle(CSimpleHeader::hsPress);
    Press(10);
    Move(80);
    m_Log.Clear();
    Release();
    EXPECT_EQ(m_Log.Count("clicked"), 1);
    EXPECT_EQ(m_Log.Entries().at(0), "clicked(0)");
}

TEST_P(SimpleHeaderMouse, ThePointerLeavesAndThePressIsOver)
{
    m_Header.SetStyle(CSimpleHeader::hsPress);
    Press(10);
    m_Host.Paint();
    m_Header.HandleMouseLeave(nullptr);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_TRUE(IsRepaintPending(m_Host));
    Release();
    EXPECT_EQ(m_Log.Count("clicked"), 0);
}

TEST_P(SimpleHeaderMouse, APressThatIsOverRepaintsAlsoWithoutAHotSection)
{
    m_Header.SetStyle(CSimpleHeader::hsPress);
    Press(10);
    m_Header.ProcessHotSection({});
    EXPECT_EQ(m_Header.GetHotSection(), -1);
    m_Host.Paint();
    m_Header.HandleMouseLeave(nullptr);
    EXPECT_TRUE(IsRepaintPending(m_Host));
    Release();
}

TEST_P(SimpleHeaderMouse, TheEndOfAResizeIsNotTheLeavingPointer)
{
    Press(48);
    m_Header.HandleMouseLeave(nullptr);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stResizing);
    Release();
}

TEST_P(SimpleHeaderMouse, ALostReleaseIsNoClick)
{
    m_Header.SetStyle(CSimpleHeader::hsPress);
    Press(10);
    m_Log.Clear();
    m_Host.Paint();
    m_Host.Mouse().LoseRelease();
    Move(12);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(m_Log.Count("clicked"), 0);
    EXPECT_TRUE(IsRepaintPending(m_Host));  // it no longer looks pressed
    EXPECT_EQ(Captured(), nullptr);
}

TEST_P(SimpleHeaderMouse, HandlersTakeTheEventsForThemselves)
{
    point<int> const place = At(10);
    EXPECT_TRUE(m_Header.HandleButtonDown(place.x, place.y, 0, mbRight));
    EXPECT_TRUE(m_Header.HandleButtonDown(-5, -5, 0, mbLeft));
    EXPECT_EQ(Captured(), nullptr);
    EXPECT_TRUE(m_Header.HandleButtonDown(place.x, place.y, ksLeft, mbLeft));
    EXPECT_TRUE(m_Header.HandleMouseMove(place.x, place.y, ksLeft, mbLeft));
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stPressed);
    m_Header.HandleButtonUp(place.x, place.y, 0, mbRight);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stPressed);
    EXPECT_EQ(Captured(), nullptr);
    m_Header.HandleButtonUp(place.x, place.y, 0, mbLeft);
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
}

TEST_P(SimpleHeaderMouse, AnyButtonBringsTheFocus)
{
    m_Host.Focus();
    m_Header.SetCanHaveFocus(true);
    Press(170, mbRight);
    EXPECT_TRUE(m_Header.IsFocused());
    Release(mbRight);
}

TEST_P(SimpleHeaderMouse, ADisabledHeaderHearsNothing)
{
    m_Header.SetEnabled(false);
    m_Host.Mouse().DoubleClick(m_Header, At(10).x, At(10).y);
    m_Host.Mouse().DoubleClick(m_Header, At(48).x, At(48).y);
    EXPECT_EQ(m_Log.Count("clicked"), 0);
    EXPECT_EQ(m_Log.Count("double"), 0);
}

// Double click and tip ---------------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderMouse, ADoubleClickOnADividerTellsTheSectionBeforeIt)
{
    for (int along : {48, 52})
    {
        m_Host.Mouse().DoubleClick(m_Header, At(along).x, At(along).y);
        EXPECT_EQ(m_Log.Count("double"), 1);
        EXPECT_NE(m_Log.Take().find("double(0)"), std::string::npos);
    }
    EXPECT_EQ(m_Header.GetState(), CSimpleHeader::stIdle);
    EXPECT_EQ(Captured(), nullptr);
}

TEST_P(SimpleHeaderMouse, OtherDoubleClicksTellNothing)
{
    m_Host.Mouse().DoubleClick(m_Header, At(10).x, At(10).y);
    m_Host.Mouse().DoubleClick(m_Header, At(170).x, At(170).y);
    m_Host.Mouse().DoubleClick(m_Header, At(48).x, At(48).y, mbRight);
    EXPECT_EQ(m_Log.Count("double"), 0);
}

TEST_P(SimpleHeaderMouse, ASectionHasATip)
{
    EXPECT_EQ(m_Host.Tooltip(m_Header, At(80).x, At(80).y), "About B");
    rectangle<int> expected = Span(50, 109);
    m_Header.ElementToControl(&expected);
    EXPECT_EQ(m_Host.Window().GetTooltip().hotRect, expected);
    EXPECT_EQ(m_Host.Tooltip(m_Header, At(48).x, At(48).y), "");
    EXPECT_EQ(m_Host.Tooltip(m_Header, At(170).x, At(170).y), "");
}

TEST_P(SimpleHeaderMouse, TheTipsPlaceEndsWithTheHeader)
{
    m_Sections.m_Widths = {50, 300};
    EXPECT_EQ(m_Host.Tooltip(m_Header, At(80).x, At(80).y), "About B");
    rectangle<int> expected = Span(50, 199);
    m_Header.ElementToControl(&expected);
    EXPECT_EQ(m_Host.Window().GetTooltip().hotRect, expected);
}

// The scroll that a drag began ------------------------------------------------------------------------------------------------

TEST_P(SimpleHeaderMouse, ScrollingEndsWhereThePointerIsBack)
{
    auto const goesOn = [&](int position, CSimpleHeader::HitTestArea area) {
        m_Header.StartScrolling(ISysWindow::stHorizontal, sdForward, false);
        m_Header.CheckScrolling(position, 100, area);
        bool const scrolling = m_Header.IsScrolling();
        m_Header.StopScrolling(ISysWindow::stHorizontal);
        return scrolling;
    };
    EXPECT_FALSE(goesOn(-50, CSimpleHeader::htSection));
    EXPECT_FALSE(goesOn(-50, CSimpleHeader::htDivider));
    EXPECT_FALSE(goesOn(0, CSimpleHeader::htNothing));
    EXPECT_FALSE(goesOn(100, CSimpleHeader::htNothing));
    EXPECT_TRUE(goesOn(-1, CSimpleHeader::htNothing));
    EXPECT_TRUE(goesOn(101, CSimpleHeader::htNothing));
    EXPECT_TRUE(goesOn(50, CSimpleHeader::htEmptyEnd));
    EXPECT_TRUE(goesOn(50, CSimpleHeader::htBefore));
    EXPECT_TRUE(goesOn(50, CSimpleHeader::htBehind));
}
