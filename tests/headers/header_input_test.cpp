// A user at a multi-level header: hover, resize, press, expand, double click, tip.

#include "tests/headers/tree_bench.h"
#include "tests/support/slot.h"
#include "vexel/platform/memory/memory_window.h"

using namespace vexel;
using namespace vexel::test;

namespace
{

// A from 0 to 99 with a to 39 and b to 99, that one with x to 69 and y; B from 100 to the end, 199. A's button from 85 to 95,
// 4 to 14, b's from 24 to 34.
class HeaderInput : public CTreeBench
{
protected:
    HeaderInput() : m_Log(m_Header) {}
    static auto Refuse(signal_t<CHeader*, IHeaderItem*, bool*>& signal)
    {
        return Listen(signal, [](CHeader*, IHeaderItem*, bool* allow) { *allow = false; });
    }

    CHeaderLog m_Log;
};

}  // namespace

// Hover -------------------------------------------------------------------------------------------------------------------

TEST_F(HeaderInput, TheSectionUnderThePointerIsHot)
{
    Move(10, 10);
    EXPECT_EQ(m_Log.Take(), "canPress(A)");
    EXPECT_EQ(Doing(), "0 A -1 1");
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
    Move(15, 12);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_FALSE(m_Host.IsFramePending());
    Move(15, 30);
    EXPECT_EQ(m_Log.Take(), "canPress(a)");
    EXPECT_EQ(Doing(), "0 a -1 1");
    EXPECT_TRUE(IsRepaintPending(m_Host));
    EXPECT_EQ(m_Header.GetVisualisationState(&m_Tree["a"]), 1);
    EXPECT_EQ(m_Header.GetVisualisationState(&m_Tree["A"]), 0);
    EXPECT_EQ(m_Header.GetVisualisationState(nullptr), 0);
}

TEST_F(HeaderInput, ASectionThatMustNotBePressedIsNotHot)
{
    auto const no = Refuse(m_Header.m_SigCanPress);
    Move(10, 10);
    Move(11, 10);
    EXPECT_EQ(m_Log.Take(), "canPress(A) canPress(A)");
    EXPECT_EQ(Doing(), "0 - -1 0");
}

TEST_F(HeaderInput, WithoutTheStyleNoSectionIsHot)
{
    m_Header.SetStyle(CHeader::hsResize | CHeader::hsDrag);
    Move(10, 10);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(Doing(), "0 - -1 0");
}

TEST_F(HeaderInput, AButtonIsHotByItself)
{
    Move(90, 10);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(Doing(), "0 A -1 2");
    EXPECT_EQ(m_Header.GetCursor(), 1);
    EXPECT_TRUE(IsRepaintPending(m_Host));
}

TEST_F(HeaderInput, AGripMakesItsColumnHotAndArmsTheCursor)
{
    Move(36, 30);
    EXPECT_EQ(m_Log.Take(), "canResize(a) canResize(a)");
    EXPECT_EQ(Doing(), "0 a -1 1");
    EXPECT_EQ(m_Header.GetCursor(), 9);
    EXPECT_EQ(m_Host.Window().GetCursor(), 9);
    Move(42, 30);
    EXPECT_EQ(m_Log.Take(), "canResize(a)");
    Move(20, 30);
    EXPECT_EQ(m_Header.GetCursor(), 1);
    EXPECT_EQ(Doing(), "0 a -1 1");
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(HeaderInput, TheGripOfAParentIsThatOfItsLastVisualLeaf)
{
    Move(98, 17);  // of A: below the button
    EXPECT_EQ(m_Log.Take(), "canResize(y) canResize(y)");
    EXPECT_EQ(Doing(), "0 y -1 1");
}

TEST_F(HeaderInput, AGripThatWasRefusedHasTheArrowAndNothingIsHot)
{
    Move(20, 30);
    auto const no = Refuse(m_Header.m_SigCanResize);
    m_Log.Clear();
    m_Host.Paint();
    Move(36, 30);
    EXPECT_EQ(m_Log.Take(), "canResize(a)");
    EXPECT_EQ(m_Header.GetCursor(), 1);
    EXPECT_EQ(Doing(), "0 - -1 0");
    EXPECT_TRUE(IsRepaintPending(m_Host));
    m_Host.Mouse().Drag(m_Header, 36, 30, 60, 30);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Tree["a"].m_Width, 40);
}

TEST_F(HeaderInput, WithoutTheStyleAGripIsNotArmed)
{
    m_Header.SetStyle(CHeader::hsPress);
    Move(36, 30);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Header.GetCursor(), 1);
    EXPECT_EQ(Doing(), "0 - -1 0");
}

TEST_F(HeaderInput, WhereNothingIsHitNothingIsHot)
{
    m_Header.SetStretchLastItem(false);  // B ends at 149
    Move(120, 30);
    EXPECT_EQ(Doing(), "0 B -1 1");
    Move(170, 30);
    EXPECT_EQ(Doing(), "0 - -1 0");
}

TEST_F(HeaderInput, AMouseThatLeavesTakesTheHotSectionAlong)
{
    Move(10, 10);
    m_Host.Paint();
    m_Host.Mouse().Leave();
    EXPECT_EQ(Doing(), "0 - -1 0");
    EXPECT_EQ(m_Host.Paint().Elements(), "header");
}

TEST_F(HeaderInput, ADisabledHeaderIgnoresThePointer)
{
    m_Header.SetEnabled(false);
    EXPECT_FALSE(m_Header.HandleMouseMove(10, 10, 0, mbNone));
    Move(10, 10);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(Doing(), "0 - -1 0");
}

TEST_F(HeaderInput, DisablingEndsAPressAndAResize)
{
    Press(10, 30);
    m_Header.SetEnabled(false);
    EXPECT_EQ(Doing(), "0 - -1 0");
    EXPECT_EQ(Captured(), nullptr);
    m_Header.SetEnabled(true);
    m_Log.Clear();
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "");
    Press(36, 30);
    EXPECT_EQ(m_Header.GetProcessing().m_State, 1);
    m_Header.SetEnabled(false);
    m_Header.SetEnabled(true);
    Move(80, 30);
    EXPECT_EQ(m_Tree["a"].m_Width, 40);
    m_Host.Mouse().Release();
}

TEST_F(HeaderInput, OnlyWhatIsUnderThePointerIsHot)
{
    m_Host.Mouse().Move(m_Pane, 10, 10);
    m_Header.HandleMouseMove(10, 10, 0, mbNone);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(Doing(), "0 - -1 0");
}

// Resizing ----------------------------------------------------------------------------------------------------------------

TEST_F(HeaderInput, ADraggedGripResizesItsColumn)
{
    Move(36, 30);
    m_Log.Clear();
    m_Host.Mouse().Press();
    EXPECT_EQ(Doing(), "1 a 0 1");
    EXPECT_EQ(m_Header.GetProcessing().m_Anchor, 0);
    EXPECT_EQ(Captured(), &m_Header);
    m_Host.Paint();
    Move(55, 30);
    EXPECT_EQ(m_Log.Take(), "resizing(a 55) resized(a 55)");
    EXPECT_EQ(m_Tree["a"].m_Width, 55);
    EXPECT_TRUE(m_Host.IsFramePending());
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["b"]).left, 55);
    m_Host.Mouse().Release();
    EXPECT_EQ(Doing(), "0 a -1 1");
    EXPECT_EQ(m_Header.GetProcessing().m_Anchor, 0);
    EXPECT_EQ(Captured(), nullptr);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(HeaderInput, AColumnThatIsResizedLooksHotWithoutAMoveBefore)
{
    m_Header.SetCursor(9);
    m_Header.HandleButtonDown(36, 30, ksLeft, mbLeft);
    EXPECT_EQ(Doing(), "1 a 0 0");
    EXPECT_EQ(m_Header.GetVisualisationState(&m_Tree["a"]), 1);
    m_Header.HandleButtonUp(36, 30, 0, mbLeft);
    EXPECT_EQ(m_Header.GetVisualisationState(&m_Tree["a"]), 0);
}

TEST_F(HeaderInput, AColumnInTheMiddleIsMeasuredFromItsLeft)
{
    Move(69, 50);  // x, 40 to 69
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Header.GetProcessing().m_Anchor, 40);
    Move(90, 50);
    EXPECT_EQ(m_Tree["x"].m_Width, 50);
}

TEST_F(HeaderInput, TheGripOfAParentResizesItsLastVisualLeaf)
{
    Move(98, 17);
    m_Log.Clear();
    m_Host.Mouse().Press();
    EXPECT_EQ(Doing(), "1 y 2 1");
    EXPECT_EQ(m_Header.GetProcessing().m_Anchor, 70);
    Move(120, 17);
    EXPECT_EQ(m_Log.Take(), "resizing(y 50) resized(y 50)");
    EXPECT_EQ(m_Tree["y"].m_Width, 50);
    EXPECT_EQ(m_Header.GetItemRect(&m_Tree["A"]), (rectangle<double>{0, 0, 119, 19}));
}

TEST_F(HeaderInput, AColumnStopsAtTheLeastWidth)
{
    Move(36, 30);
    m_Host.Mouse().Press();
    Move(5, 30);
    EXPECT_EQ(m_Tree["a"].m_Width, 30);
    m_Header.SetMinWidth(12);
    Move(6, 30);
    EXPECT_EQ(m_Tree["a"].m_Width, 12);
    m_Log.Clear();
    Move(7, 30);
    EXPECT_EQ(m_Log.Take(), "");  // as wide as it is
}

TEST_F(HeaderInput, ARefusedWidthEndsTheResize)
{
    Move(36, 30);
    m_Host.Mouse().Press();
    auto const no = Listen(m_Header.m_SigResizing, [](CHeader*, IHeaderItem*, int, bool* allow) { *allow = false; });
    Move(55, 30);
    EXPECT_EQ(m_Tree["a"].m_Width, 40);
    EXPECT_EQ(Doing(), "0 a -1 1");
    EXPECT_EQ(m_Header.GetCursor(), 1);
    EXPECT_EQ(Captured(), nullptr);
    m_Host.Mouse().Release();
}

TEST_F(HeaderInput, AResizeWhoseReleaseWasLostEndsWithTheNextMove)
{
    Move(36, 30);
    m_Host.Mouse().Press();
    m_Host.Mouse().LoseRelease();
    Move(60, 30);
    EXPECT_EQ(m_Tree["a"].m_Width, 40);
    EXPECT_EQ(m_Header.GetProcessing().m_State, 0);
}

TEST_F(HeaderInput, AResizedItemThatGoesIsResizedNoMore)
{
    Move(69, 50);
    m_Host.Mouse().Press();
    m_Tree.Remove(&m_Tree["x"]);
    m_Tree.m_SigChanged();
    EXPECT_EQ(Doing(), "0 - -1 0");
    m_Log.Clear();
    Move(95, 50);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take().find("resiz"), std::string::npos);
}

TEST_F(HeaderInput, AColumnThatMovesUnderAResizeKeepsIt)
{
    Move(69, 50);
    m_Host.Mouse().Press();
    CItemTree::Move(&m_Tree["B"], 0);
    m_Tree.m_SigChanged();
    EXPECT_EQ(Doing(), "1 x 2 1");
    Move(95, 50);
    EXPECT_EQ(m_Tree["x"].m_Width, 55);
}

// Pressing ----------------------------------------------------------------------------------------------------------------

TEST_F(HeaderInput, APressedSectionIsClickedByItsRelease)
{
    Move(10, 30);
    m_Log.Clear();
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Log.Take(), "canPress(a)");
    EXPECT_EQ(Doing(), "3 a 0 3");
    EXPECT_EQ(m_Header.GetProcessing().m_Anchor, 10);
    EXPECT_EQ(m_Header.GetVisualisationState(&m_Tree["a"]), 3);
    EXPECT_EQ(Captured(), &m_Header);
    m_Host.Paint();
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "clicked(a)");
    EXPECT_EQ(Doing(), "0 a -1 1");
    EXPECT_EQ(Captured(), nullptr);
    EXPECT_TRUE(IsRepaintPending(m_Host));
}

TEST_F(HeaderInput, AParentIsClickedToo)
{
    m_Host.Mouse().Click(m_Header, 10, 10);
    EXPECT_EQ(m_Log.Take(), "canPress(A) canPress(A) clicked(A)");
}

TEST_F(HeaderInput, ASmallMoveKeepsThePress)
{
    Press(10, 30);
    m_Log.Clear();
    m_Header.HandleMouseMove(12, 31, 0, mbLeft);
    EXPECT_EQ(m_Header.GetProcessing().m_Anchor, 12);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "clicked(a)");
}

TEST_F(HeaderInput, ARefusedPressIsNone)
{
    Move(10, 30);
    auto const no = Refuse(m_Header.m_SigCanPress);
    m_Host.Mouse().Press();
    EXPECT_EQ(Doing(), "0 - -1 0");
    m_Log.Clear();
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(HeaderInput, WithoutTheStyleThereIsNoPress)
{
    m_Header.SetStyle(CHeader::hsResize);
    m_Host.Mouse().Click(m_Header, 10, 30);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Header.GetVisualisationState(&m_Tree["a"]), 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(HeaderInput, OtherButtonsPressNothing)
{
    m_Header.SetCanHaveFocus(true);
    Press(10, 30, mbRight);
    EXPECT_EQ(m_Header.GetProcessing().m_State, 0);
    EXPECT_EQ(Captured(), nullptr);
    EXPECT_EQ(m_Host.Control().GetControl()->GetFocusedElement(), &m_Header);
    m_Host.Mouse().Release(mbRight);
    EXPECT_EQ(m_Log.Take(), "canPress(a)");
}

TEST_F(HeaderInput, TheReleaseOfAnotherButtonGivesTheMouseBackAndClicksNothing)
{
    Press(10, 30);
    m_Log.Clear();
    EXPECT_EQ(Captured(), &m_Header);
    m_Header.HandleButtonUp(10, 30, ksLeft, mbRight);
    EXPECT_EQ(Captured(), nullptr);
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(Doing(), "3 a 0 3");
    m_Host.Mouse().Release();
}

TEST_F(HeaderInput, APressThatLeavesTheHeaderIsForgotten)
{
    Press(10, 30);
    m_Log.Clear();
    m_Header.HandleMouseLeave(nullptr);
    EXPECT_EQ(Doing(), "0 - -1 0");
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(HeaderInput, APressWhoseReleaseWasLostIsNoClick)
{
    Press(10, 30);
    m_Log.Clear();
    m_Host.Mouse().LoseRelease();
    Move(12, 30);
    EXPECT_EQ(m_Log.Take().find("clicked"), std::string::npos);
    EXPECT_EQ(m_Header.GetProcessing().m_State, 0);
}

TEST_F(HeaderInput, APressedItemThatGoesIsNotClicked)
{
    Press(60, 50);
    m_Log.Clear();
    m_Tree.Remove(&m_Tree["b"]);  // nobody was told
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Header.GetProcessing().m_State, 0);
    m_Tree.m_SigChanged();
}

// Expanding ---------------------------------------------------------------------------------------------------------------

TEST_F(HeaderInput, AButtonCollapsesAndExpands)
{
    m_Tree["b"].m_Width = 60;
    Move(90, 30);
    m_Log.Clear();
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Log.Take(), "expanded(b no)");
    EXPECT_EQ(Columns(), "a:40 b:60 B:50");
    EXPECT_EQ(Doing(), "0 b -1 2");  // the button is where it was
    m_Host.Mouse().Release();
    EXPECT_EQ(Doing(), "0 b -1 1");
    EXPECT_EQ(m_Log.Take(), "");
    m_Host.Mouse().Click(m_Header, 90, 30);
    EXPECT_EQ(m_Log.Take(), "expanded(b)");
    EXPECT_EQ(Columns(), "a:40 x:30 y:30 B:50");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(HeaderInput, WhatComesUnderThePointerByACollapseIsHot)
{
    m_Tree["A"].m_Width = 40;
    Move(90, 10);
    m_Log.Clear();
    m_Host.Mouse().Press();  // B begins at 40 now
    EXPECT_EQ(m_Log.Take(), "expanded(A no) canPress(B)");
    EXPECT_EQ(Doing(), "0 B -1 1");
    m_Host.Mouse().Release();
}

TEST_F(HeaderInput, AnItemWithNothingToExpandIsToldAllTheSame)
{
    m_Header.ExpandItem(&m_Tree["B"], true);
    EXPECT_EQ(m_Log.Take(), "expanded(B)");
}

TEST_F(HeaderInput, AButtonWorksWithoutAnyStyle)
{
    m_Header.SetStyle(0);
    m_Host.Mouse().Click(m_Header, 90, 10);
    EXPECT_EQ(m_Log.Take(), "expanded(A no)");
}

// Double click ------------------------------------------------------------------------------------------------------------

TEST_F(HeaderInput, ADoubleClickOnAGripIsTold)
{
    m_Host.Mouse().DoubleClick(m_Header, 36, 30);
    EXPECT_NE(m_Log.Take().find("double(a)"), std::string::npos);
    m_Host.Mouse().DoubleClick(m_Header, 98, 17);
    EXPECT_NE(m_Log.Take().find("double(y)"), std::string::npos);
}

TEST_F(HeaderInput, ADoubleClickElsewhereOrByAnotherButtonIsNone)
{
    m_Host.Mouse().DoubleClick(m_Header, 10, 30);
    EXPECT_FALSE(m_Header.HandleDoubleClick(36, 30, 0, mbRight));
    EXPECT_EQ(m_Log.Take().find("double"), std::string::npos);
}

// Tips --------------------------------------------------------------------------------------------------------------------

TEST_F(HeaderInput, ATipIsTheDescriptionElseTheCaption)
{
    m_Tree["a"].m_Description = "About a";
    EXPECT_EQ(m_Host.Tooltip(m_Header, 10, 30), "About a");
    EXPECT_EQ(m_Host.Tooltip(m_Header, 50, 50), "x");  // wider wanted than 29
}

TEST_F(HeaderInput, ACaptionThatFitsInASectionOfTwoLinesIsNoTip)
{
    CItem& item = m_Tree["B"];
    EXPECT_EQ(m_Host.Tooltip(m_Header, 150, 30), "");  // 99 wide, 60 high
    item.m_Name = "A name that is longer than that";
    EXPECT_EQ(m_Host.Tooltip(m_Header, 151, 30), "A name that is longer than that");
    item.m_Name = "B";
    m_Header.SetSize({60, 15}, false);  // lines of 8
    m_Host.Paint();
    EXPECT_EQ(m_Host.Tooltip(m_Header, 152, 10), "B");
}

TEST_F(HeaderInput, ASectionIsTooNarrowForItsCaptionByMoreThanAPixel)
{
    // The caption wants 33 pixels.
    m_Header.SetStretchLastItem(false);
    m_Tree["a"].m_Width = 33;
    m_Tree.m_SigChanged();
    ASSERT_EQ(m_Header.GetItemOptimalWidth(&m_Tree["a"]), 33);
    EXPECT_EQ(m_Host.Tooltip(m_Header, 10, 30), "");  // 0 to 32
    m_Tree["a"].m_Width = 32;
    m_Tree.m_SigChanged();
    EXPECT_EQ(m_Host.Tooltip(m_Header, 11, 31), "a");
}

TEST_F(HeaderInput, ASectionLowerThanTwoLinesShowsItsCaption)
{
    m_Header.SetSize({60, 16}, false);  // 0 to 16; lines of 8
    m_Host.Paint();
    EXPECT_EQ(m_Host.Tooltip(m_Header, 150, 10), "");
    m_Header.SetSize({60, 15}, false);
    m_Host.Paint();
    EXPECT_EQ(m_Host.Tooltip(m_Header, 151, 10), "B");
    m_Tree["B"].m_Description = "About B";
    EXPECT_EQ(m_Host.Tooltip(m_Header, 152, 10), "About B");
}

TEST_F(HeaderInput, ATipMayBeFilledInByASubclass)
{
    class CTelling : public CHeader
    {
    public:
        using CHeader::CHeader;
        void SetHeaderTooltip(int x, int y, IHeaderItem* item, screen_rectangle<int> const& rect,
                              std::string* text) override
        {
            *text = NameOf(item) + " at " + std::to_string(x) + " " + std::to_string(y) + " of " +
                    std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) +
                    " " + std::to_string(rect.bottom);
        }
    };
    auto& header = *new CTelling(m_Host.Root(), {30, 60}, alTop);  // below the other one and its pane's top
    header.SetHorzScroll(&m_Scroll);
    header.SetModel(&m_Tree);
    m_Host.Paint();
    EXPECT_EQ(header.GetPos(), (rectangle<int>{0, 61, 199, 121}));
    EXPECT_EQ(m_Host.Tooltip(header, 10, 30), "a at 10 30 of 0 81 39 121");
}

TEST_F(HeaderInput, GripsAndButtonsHaveNoTip)
{
    m_Tree["a"].m_Description = "About a";
    m_Tree["A"].m_Description = "About A";
    EXPECT_EQ(m_Host.Tooltip(m_Header, 36, 30), "");
    EXPECT_EQ(m_Host.Tooltip(m_Header, 90, 10), "");
}

TEST_F(HeaderInput, ATipBelongsToItsSectionCutToTheHeader)
{
    m_Tree["B"].m_Description = "About B";
    m_Scroll.m_Start = 10;
    CTooltipEvent event;
    event.m_X = 10;
    event.m_Y = 30;
    EXPECT_TRUE(m_Header.HandleOnTooltip(&event));
    EXPECT_EQ(event.m_HotRect, (rectangle<int>{0, 20, 29, 60}));
    event.m_X = 150;
    EXPECT_TRUE(m_Header.HandleOnTooltip(&event));
    EXPECT_EQ(event.m_HotRect, (rectangle<int>{90, 0, 199, 60}));
    EXPECT_EQ(event.m_Text, "About B");
}
