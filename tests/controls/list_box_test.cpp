// The list box: what the pointer and the keys choose in it, how its rows look, what scrolls.

#include "vexel/controls/list_box.h"

#include "tests/support/lines_model.h"
#include "tests/support/slot.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <string>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

using Size = size<int>;
using Rect = rectangle<int>;

namespace
{

/// Writes down what it is asked for, and keeps the text from being drawn if told so.
class CRowDrawing : public IListBoxItemDrawing
{
public:
    void DrawItem(IPainter* painter, int item, int state, rectangle<double> const& rect, bool* drawDefault) override
    {
        m_Log += (m_Log.empty() ? "" : "; ") + std::to_string(item) + " state " + std::to_string(state) + " " +
                 Describe(rect) + " " + Describe(*drawDefault);
        painter->MoveTo(item, 77);
        *drawDefault = m_Default;
    }

    std::string m_Log;
    bool m_Default = true;
};

// Eight rows of 10 pixels on a window of 100 x 51 that has the focus: the rows 0 to 4 show, and a line of row 5. Behind
// the list another element is 20 pixels high.
class ListBoxViewer : public testing::Test
{
protected:
    ListBoxViewer()
    {
        NameElement(m_Rows, "rows");
        auto& palette = CTestHost::System().GetMemoryPalette();
        palette.SetColor(ISysPalette::scHighlight, color_table[13]);     // green
        palette.SetColor(ISysPalette::scHighlightText, color_table[4]);  // blue
        m_Rows.SetBkColor(color_table[3]);                               // yellow
        m_Rows.SetFgColor(color_table[6]);                               // red
        m_Rows.SetAutoRowHeight(false);
        m_Rows.GetRowViewModel()->SetDefaultItemSize(10);
        m_Rows.SetModel(&m_Model);
        m_Rows.GetRowHandler().SetNotifySelection(true);
        m_Log.Add(m_Rows.m_SigItemActivated, "activated");
        m_Log.Add(m_Rows.m_SigSelectionChanged, "selection");
        m_Host.Focus();
        m_Rows.SetFocus(true);
        m_Host.Paint();
        m_Host.RunPending();
        m_Log.Clear();
    }
    PaintLog Draw()
    {
        m_Rows.GetRowViewModel()->AddDirtyItems(0, 100);
        m_Rows.Update(utElement);
        return m_Host.Paint().Of("rows");
    }
    void Move(int y) { m_Host.Mouse().Move(m_Rows, 30, y); }
    void Leave() { m_Host.Mouse().Move(30, 65); }
    std::string Selected()
    {
        std::string text;
        for (int i = -1; m_Rows.GetRowSelectionModel()->GetNextSelectedItem(i);)
            text += (text.empty() ? "" : " ") + std::to_string(i);
        return text;
    }
    // The rows of which a text was drawn.
    static std::string Texts(PaintLog const& log)
    {
        std::string text;
        for (std::string const& call : log.Calls())
        {
            if (call.starts_with("DrawString \""))
                text += (text.empty() ? "" : " ") + call.substr(12, call.find('"', 12) - 12);
        }
        return text;
    }

    CLinesModel m_Model{NumberedLines(8)};
    CRowDrawing m_Drawing;
    CTestHost m_Host{100, 71};
    CVisualElement& m_Below = *new CVisualElement(m_Host.Root(), {0, 19}, alBottom);  // a pixel lies between
    CListBoxViewer& m_Rows = *new CListBoxViewer(m_Host.Root(), {10, 10}, alClient);
    CSignalLog m_Log;
};

}  // namespace

// Its parts -----------------------------------------------------------------------------------------------------------------

TEST_F(ListBoxViewer, StartsEmptyWithNothingCurrentOrHot)
{
    CListBoxViewer rows(nullptr, {10, 10}, alClient);
    rows.SetDynamic(false);
    EXPECT_EQ(rows.GetModel(), nullptr);
    EXPECT_EQ(rows.GetHotItem(), -1);
    EXPECT_EQ(rows.GetCurrentItem(), -1);
    EXPECT_EQ(rows.GetRowViewModel()->GetCount(), 0);
    EXPECT_EQ(rows.GetHorzViewModel().GetItemSize(0), 0);
}

TEST_F(ListBoxViewer, ItsOwnHandlerComesFirstThenTheRowsThenTheOffset)
{
    CEventHandler* const first = m_Rows.GetEventHandlers();
    EXPECT_EQ(first, static_cast<CDefListBoxHandler*>(&m_Rows));
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->GetNext(), &m_Rows.GetRowHandler());
    auto* const third = dynamic_cast<CContinuousItemEventHandler*>(m_Rows.GetRowHandler().GetNext());
    ASSERT_NE(third, nullptr);
    EXPECT_EQ(third->GetNext(), nullptr);
    EXPECT_EQ(third->GetDirection(), idHorizontal);
    EXPECT_EQ(third->GetViewer(), &m_Rows);
    EXPECT_EQ(third->GetViewModel(), &m_Rows.GetHorzViewModel());
    auto* const scroll = dynamic_cast<CContinuousItemScrollModel*>(m_Rows.GetHorzScroll());
    ASSERT_NE(scroll, nullptr);
    EXPECT_EQ(scroll->GetViewModel(), &m_Rows.GetHorzViewModel());
}

// Its model -----------------------------------------------------------------------------------------------------------------

TEST_F(ListBoxViewer, HasAsManyRowsAsItsModel)
{
    EXPECT_EQ(m_Rows.GetRowViewModel()->GetCount(), 8);
    m_Model.Set(NumberedLines(3));
    EXPECT_EQ(m_Rows.GetRowViewModel()->GetCount(), 3);
    CLinesModel other(NumberedLines(5));
    m_Rows.SetModel(&other);
    EXPECT_EQ(m_Rows.GetRowViewModel()->GetCount(), 5);
    m_Model.Set(NumberedLines(7));
    EXPECT_EQ(m_Rows.GetRowViewModel()->GetCount(), 5) << "the former model is heard no more";
    other.Set(NumberedLines(6));
    EXPECT_EQ(m_Rows.GetRowViewModel()->GetCount(), 6);
    m_Rows.SetModel(nullptr);
    EXPECT_EQ(m_Rows.GetRowViewModel()->GetCount(), 0);
    other.Set(NumberedLines(2));
    EXPECT_EQ(m_Rows.GetRowViewModel()->GetCount(), 0);
    m_Rows.SetModel(&m_Model);
    m_Rows.SetModel(&m_Model);
    EXPECT_EQ(m_Rows.GetRowViewModel()->GetCount(), 7);
}

TEST_F(ListBoxViewer, ARowThatHasGoneIsNotHotAnyMore)
{
    Move(45);
    m_Model.Set(NumberedLines(5));
    EXPECT_EQ(m_Rows.GetHotItem(), 4);
    m_Model.Set(NumberedLines(4));
    EXPECT_EQ(m_Rows.GetHotItem(), -1);
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Log.Count("activated"), 0);
}

TEST_F(ListBoxViewer, AModelThatDiesLeavesNoRows)
{
    {
        CLinesModel other(NumberedLines(5));
        m_Rows.SetModel(&other);
    }
    EXPECT_EQ(m_Rows.GetModel(), nullptr);
    EXPECT_EQ(m_Rows.GetRowViewModel()->GetCount(), 0);
    EXPECT_EQ(Texts(Draw()), "");
}

TEST_F(ListBoxViewer, ModelChangedTakesTheNumberOfRows)
{
    m_Rows.GetRowViewModel()->SetCount(2);
    m_Rows.ModelChanged();
    EXPECT_EQ(m_Rows.GetRowViewModel()->GetCount(), 8);
}

TEST_F(ListBoxViewer, ANewContentIsPainted)
{
    m_Model.Set({"x", "y"});
    EXPECT_EQ(Texts(m_Host.Paint().Of("rows")), "x y");
}

// The current item ----------------------------------------------------------------------------------------------------------

TEST_F(ListBoxViewer, TheCurrentItemAloneIsSelectedAndTheAnchor)
{
    m_Rows.GetRowSelectionModel()->SetSelectionRange(0, 3);
    m_Host.RunPending();
    m_Log.Clear();
    m_Rows.SetCurrentItem(2);
    EXPECT_EQ(m_Rows.GetCurrentItem(), 2);
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(m_Rows.GetRowHandler().GetAnchor(), 2);
    EXPECT_EQ(m_Log.Text(), "selection()") << "at once";
    m_Host.RunPending();
    EXPECT_EQ(m_Log.Text(), "selection()") << "and only once";
}

TEST_F(ListBoxViewer, TheSameCurrentItemChangesNothing)
{
    m_Rows.SetCurrentItem(2);
    m_Rows.GetRowSelectionModel()->SelectItem(4, true);
    m_Rows.GetRowHandler().SetAnchor(4);
    m_Host.RunPending();
    m_Log.Clear();
    m_Rows.SetCurrentItem(2);
    EXPECT_EQ(Selected(), "2 4");
    EXPECT_EQ(m_Rows.GetRowHandler().GetAnchor(), 4);
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(ListBoxViewer, NoCurrentItemSelectsNone)
{
    m_Rows.SetCurrentItem(2);
    m_Rows.SetCurrentItem(-1);
    EXPECT_EQ(m_Rows.GetCurrentItem(), -1);
    EXPECT_EQ(Selected(), "");
    EXPECT_EQ(m_Rows.GetRowHandler().GetAnchor(), -1);
}

TEST_F(ListBoxViewer, AnActivationTellsInEveryCase)
{
    m_Rows.GetRowHandler().SetNotifySelection(false);
    m_Rows.SetCurrentItemEx(3);
    EXPECT_EQ(m_Log.Take(), "activated(3)");
    EXPECT_EQ(m_Rows.GetCurrentItem(), 3);
    EXPECT_EQ(Selected(), "3");
    m_Rows.GetRowSelectionModel()->SelectItem(4, true);
    m_Rows.SetCurrentItemEx(3);
    EXPECT_EQ(m_Log.Take(), "activated(3)");
    EXPECT_EQ(Selected(), "3 4");
    m_Rows.SetCurrentItemEx(-1);
    EXPECT_EQ(m_Log.Take(), "activated(-1)");
    EXPECT_EQ(Selected(), "");
}

TEST_F(ListBoxViewer, WhoHearsOfAnActivationSeesItDone)
{
    std::string seen;
    auto const slot = Listen(m_Rows.m_SigItemActivated, [&](int item) {
        seen = std::to_string(item) + " " + std::to_string(m_Rows.GetCurrentItem()) + " " + Selected() + " " +
               std::to_string(m_Log.Count("selection"));
    });
    m_Rows.SetCurrentItemEx(3);
    EXPECT_EQ(seen, "3 3 3 1");
}

// Mouse ---------------------------------------------------------------------------------------------------------------------

TEST_F(ListBoxViewer, TheRowUnderThePointerIsHot)
{
    Move(25);
    EXPECT_EQ(m_Rows.GetHotItem(), 2);
    Move(29);
    EXPECT_EQ(m_Rows.GetHotItem(), 2);
    Move(30);
    EXPECT_EQ(m_Rows.GetHotItem(), 3);
    Leave();
    EXPECT_EQ(m_Rows.GetHotItem(), -1);
    m_Model.Set(NumberedLines(2));
    Move(35);
    EXPECT_EQ(m_Rows.GetHotItem(), -1) << "there is no row";
}

TEST_F(ListBoxViewer, OnlyTheRowsThatChangeAreRepainted)
{
    Move(25);
    EXPECT_EQ(Texts(m_Host.Paint().Of("rows")), "2");
    Move(26);
    EXPECT_FALSE(m_Host.IsFramePending());
    Move(45);
    EXPECT_EQ(Texts(m_Host.Paint().Of("rows")), "2 4");
    Leave();
    EXPECT_EQ(Texts(m_Host.Paint().Of("rows")), "4");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ListBoxViewer, WithTheFirstHotRowTheSelectedOnesLoseTheirLook)
{
    m_Rows.SetCurrentItem(1);
    m_Host.Paint();
    Move(35);
    EXPECT_EQ(Texts(m_Host.Paint().Of("rows")), "1 3");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    Move(5);
    EXPECT_EQ(Texts(m_Host.Paint().Of("rows")), "0 3");
    Leave();
    EXPECT_EQ(Texts(m_Host.Paint().Of("rows")), "0 1");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(ListBoxViewer, APressChoosesTheHotRow)
{
    m_Host.Mouse().Press(m_Rows, 30, 25);
    EXPECT_EQ(m_Rows.GetCurrentItem(), 2);
    EXPECT_EQ(Selected(), "2");
    EXPECT_EQ(m_Log.Count("activated"), 1);
    m_Host.Mouse().Release();
    m_Host.Mouse().Click(m_Rows, 30, 25);
    EXPECT_EQ(m_Log.Count("activated"), 2);
    EXPECT_EQ(Selected(), "2");
}

TEST_F(ListBoxViewer, TheHighlightDecidesNotThePointOfThePress)
{
    Move(25);
    m_Rows.CViewerBase::HandleButtonDown(30, 45, ksLeft, mbLeft);
    EXPECT_EQ(m_Rows.GetCurrentItem(), 2);
    Leave();
    m_Rows.CViewerBase::HandleButtonDown(30, 45, ksLeft, mbLeft);
    EXPECT_EQ(m_Rows.GetCurrentItem(), 2) << "nothing is hot, and the rows' own handler isn't asked";
    EXPECT_EQ(m_Log.Count("activated"), 1);
}

TEST_F(ListBoxViewer, ShiftAndControlMakeNoDifferenceToAPress)
{
    m_Host.Mouse().Click(m_Rows, 30, 5);
    CHoldKeys const hold(m_Host, ksShift | ksControl);
    m_Host.Mouse().Click(m_Rows, 30, 35);
    EXPECT_EQ(Selected(), "3");
    EXPECT_EQ(m_Rows.GetRowHandler().GetAnchor(), 3);
}

TEST_F(ListBoxViewer, OtherButtonsChooseNothing)
{
    m_Host.Mouse().Click(m_Rows, 30, 25, mbRight);
    m_Host.Mouse().Click(m_Rows, 30, 25, mbMiddle);
    EXPECT_EQ(m_Rows.GetCurrentItem(), -1);
    EXPECT_EQ(m_Log.Text(), "");
    Move(25);
    bool handled = false;
    EXPECT_FALSE(m_Rows.SetCurProcessButtonDown(30, 25, ksLeft | ksRight, mbRight, &handled));
    EXPECT_EQ(m_Log.Text(), "");
    EXPECT_TRUE(m_Rows.SetCurProcessButtonDown(30, 25, ksLeft, mbLeft, &handled));
    EXPECT_TRUE(handled);
    EXPECT_EQ(m_Log.Count("activated"), 1);
}

TEST_F(ListBoxViewer, ADragMovesNeitherTheHighlightNorTheChoice)
{
    m_Host.Mouse().Press(m_Rows, 30, 5);
    m_Log.Clear();
    for (int y = 10; y < 50; y += 5)
        Move(y);
    EXPECT_EQ(m_Rows.GetHotItem(), 0);
    EXPECT_EQ(Selected(), "0");
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Text(), "");
    Move(46);
    EXPECT_EQ(m_Rows.GetHotItem(), 4);
}

TEST_F(ListBoxViewer, WhatItsHandlerAnswersToMovesAndPressesFollowsTheButtonsHeld)
{
    CDefListBoxHandler& handler = m_Rows;
    bool handled = false;
    EXPECT_TRUE(handler.ProcessMouseMove(30, 25, ksLeft, mbLeft, &handled));
    EXPECT_TRUE(handled);
    EXPECT_EQ(m_Rows.GetHotItem(), -1);
    handled = false;
    EXPECT_FALSE(handler.ProcessMouseMove(30, 25, ksRight, mbRight, &handled));
    EXPECT_FALSE(handler.ProcessMouseMove(30, 25, ksMiddle, mbMiddle, &handled));
    EXPECT_FALSE(handled);
    EXPECT_EQ(m_Rows.GetHotItem(), -1);
    EXPECT_TRUE(handler.ProcessMouseMove(30, 25, ksShift, mbNone, &handled));
    EXPECT_EQ(m_Rows.GetHotItem(), 2);
    EXPECT_TRUE(handler.ProcessMouseMove(30, 25, 0, mbNone, &handled)) << "also on the same row";
    handled = false;
    EXPECT_FALSE(handler.ProcessButtonDown(30, 25, ksShift, mbLeft, &handled)) << "as a drag makes it";
    EXPECT_TRUE(handled);
    EXPECT_EQ(m_Rows.GetCurrentItem(), -1);
    handled = false;
    EXPECT_TRUE(handler.ProcessButtonDown(30, 25, ksLeft | ksShift, mbLeft, &handled));
    EXPECT_TRUE(handled);
    EXPECT_EQ(m_Rows.GetCurrentItem(), 2);
}

// Keys ----------------------------------------------------------------------------------------------------------------------

TEST_F(ListBoxViewer, SpaceAndReturnActivateTheHotRow)
{
    m_Rows.SetCurrentItem(1);
    m_Log.Clear();
    Move(35);
    m_Host.Keyboard().Press(vkSpace);
    EXPECT_EQ(m_Log.Count("activated"), 1);
    EXPECT_EQ(m_Rows.GetCurrentItem(), 3);
    EXPECT_EQ(Selected(), "3");
    Move(5);
    m_Host.Keyboard().Press(vkReturn);
    EXPECT_EQ(m_Log.Count("activated"), 2);
    EXPECT_EQ(m_Rows.GetCurrentItem(), 0);
}

TEST_F(ListBoxViewer, WithoutAHotRowTheyActivateTheCurrentOneAsItIs)
{
    m_Rows.GetRowHandler().SetNotifySelection(false);
    m_Host.Keyboard().Press(vkReturn);
    EXPECT_EQ(m_Log.Take(), "activated(-1)");
    m_Rows.SetCurrentItem(1);
    m_Rows.GetRowSelectionModel()->SelectItem(4, true);
    m_Host.Keyboard().Press(vkSpace);
    EXPECT_EQ(m_Log.Take(), "activated(1)");
    EXPECT_EQ(Selected(), "1 4") << "space does not turn the selection";
}

TEST_F(ListBoxViewer, OtherKeysAreTheRows)
{
    m_Rows.SetCurrentItem(1);
    m_Host.Keyboard().Press(vkDown);
    EXPECT_EQ(m_Rows.GetCurrentItem(), 2);
    m_Host.Keyboard().Press(vkEnd);
    EXPECT_EQ(m_Rows.GetCurrentItem(), 7);
    EXPECT_EQ(m_Log.Count("activated"), 0);
    EXPECT_FALSE(m_Rows.SetCurProcessKeyDown(vkDown));
    EXPECT_TRUE(m_Rows.SetCurProcessKeyDown(vkReturn));
    EXPECT_TRUE(m_Rows.SetCurProcessKeyDown(vkSpace));
    CDefListBoxHandler& handler = m_Rows;
    bool handled = true;
    EXPECT_FALSE(handler.ProcessKeyDown(0, 'A', &handled));
    EXPECT_FALSE(handled);
    EXPECT_TRUE(handler.ProcessKeyDown(0, vkReturn, &handled));
    EXPECT_TRUE(handled);
}

// Drawing -------------------------------------------------------------------------------------------------------------------

TEST_F(ListBoxViewer, ARowIsItsGroundAndItsTextThreePixelsIn)
{
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetTextColor red")
                         .Then("SetBrush yellow")
                         .Then("FillRect 0 0 99 9")
                         .Then("DrawString \"0\" 3 0 99 9 0x20*"));
    EXPECT_THAT(log, Draws("FillRect 0 10 99 19").Then("DrawString \"1\" 3 10 99 19 0x20*"));
    EXPECT_EQ(Texts(log), "0 1 2 3 4 5");
    EXPECT_EQ(log.Count("FocusRect*"), 0);
}

TEST_F(ListBoxViewer, WithNothingHotTheSelectedRowsAreHighlighted)
{
    m_Rows.SetCurrentItem(1);
    m_Rows.GetRowSelectionModel()->SelectItem(3, true);
    m_Rows.GetRowSelectionModel()->SetCurrent(2);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("SetTextColor red")
                         .Then("SetBrush yellow")
                         .Then("FillRect 0 0 99 9")
                         .Then("SetTextColor blue")
                         .Then("SetBrush green")
                         .Then("FillRect 0 10 99 19")
                         .Then("DrawString \"1\"*")
                         .Then("SetTextColor red")
                         .Then("SetBrush yellow")
                         .Then("FillRect 0 20 99 29")
                         .Then("SetTextColor blue")
                         .Then("FillRect 0 30 99 39"));
    EXPECT_EQ(log.Count("SetBrush green"), 2);
}

TEST_F(ListBoxViewer, AHotRowAloneIsHighlighted)
{
    m_Rows.SetCurrentItem(1);
    Move(35);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("FillRect 0 20 99 29")
                         .Then("SetTextColor blue")
                         .Then("SetBrush green")
                         .Then("FillRect 0 30 99 39")
                         .Then("SetTextColor red"));
    EXPECT_EQ(log.Count("SetBrush green"), 1);
}

TEST_F(ListBoxViewer, TheCurrentRowHasTheFocusMarkWhileTheListHasTheFocus)
{
    m_Rows.GetRowSelectionModel()->SetCurrent(2);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("DrawString \"2\"*").Then("FocusRect 0 20 99 29").Then("DrawString \"3\"*"));
    EXPECT_EQ(log.Count("FocusRect*"), 1);
    m_Rows.SetFocus(false);
    m_Host.Unfocus();
    EXPECT_EQ(Draw().Count("FocusRect*"), 0);
}

TEST_F(ListBoxViewer, AnOwnDrawingComesOnTheGroundAndMayTakeTheRest)
{
    m_Rows.SetCurrentItem(1);
    m_Rows.SetItemDrawing(&m_Drawing);
    m_Drawing.m_Log.clear();
    PaintLog log = Draw();
    EXPECT_THAT(log, Draws("FillRect 0 0 99 9").Then("MoveTo 0 77").Then("DrawString \"0\"*"));
    EXPECT_EQ(m_Drawing.m_Log.substr(0, 58), "0 state 0 (0, 0, 99, 9) true; 1 state 3 (0, 10, 99, 19) tr");
    m_Drawing.m_Default = false;
    log = Draw();
    EXPECT_THAT(log, Draws("FillRect 0 10 99 19").Then("MoveTo 1 77"));
    EXPECT_EQ(Texts(log), "");
    EXPECT_EQ(log.Count("FocusRect*"), 0);
    m_Rows.SetItemDrawing(nullptr);
    EXPECT_EQ(Texts(Draw()), "0 1 2 3 4 5");
}

TEST_F(ListBoxViewer, BehindTheLastRowItIsItsBackground)
{
    m_Model.Set(NumberedLines(2));
    EXPECT_THAT(m_Host.Paint().Of("rows"), Draws("SetBrush yellow").Then("FillRect 0 20 99 *"));
    m_Rows.SetModel(nullptr);
    PaintLog const log = m_Host.Paint().Of("rows");
    EXPECT_THAT(log, Draws("SetBrush yellow").Then("FillRect 0 0 99 *"));
    EXPECT_EQ(m_Host.PixelAt(50, 30), color_table[3]);
}

// The offset ----------------------------------------------------------------------------------------------------------------

TEST_F(ListBoxViewer, AScrolledRowBeginsLeftOfTheViewAndEndsAtItsRightEdge)
{
    m_Rows.SetLineWidth(300);
    EXPECT_EQ(m_Rows.GetHorzViewModel().GetItemSize(0), 300);
    m_Rows.GetHorzScroll()->SetStart(40);
    m_Rows.GetRowSelectionModel()->SetCurrent(0);
    PaintLog const log = Draw();
    EXPECT_THAT(log,
                Draws("FillRect -40 0 99 9").Then("DrawString \"0\" -37 0 99 9 0x20*").Then("FocusRect -40 0 99 9"));
}

TEST_F(ListBoxViewer, AScrolledListRepaintsAllItsRows)
{
    m_Rows.SetLineWidth(300);
    Move(15);
    m_Host.Paint();
    Move(25);
    EXPECT_EQ(Texts(m_Host.Paint().Of("rows")), "1 2");
    m_Rows.GetHorzScroll()->SetStart(1);
    EXPECT_EQ(Texts(m_Host.Paint().Of("rows")), "0 1 2 3 4 5");
    Move(35);
    EXPECT_EQ(Texts(m_Host.Paint().Of("rows")), "0 1 2 3 4 5");
    m_Rows.GetHorzScroll()->SetStart(0);
    m_Host.Paint();
    Move(45);
    EXPECT_EQ(Texts(m_Host.Paint().Of("rows")), "3 4");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// In its box ----------------------------------------------------------------------------------------------------------------

TEST(ListBox, IsAViewerInAScrollBoxInABorder)
{
    CTestHost host(100, 100);
    CListBox& box = *new CListBox(host.Root(), {60, 50}, alLeft);
    EXPECT_EQ(box.GetSize(), (Size{60, 50}));
    EXPECT_EQ(box.GetAlignment(), alLeft);
    EXPECT_EQ(box.GetShape(), 0);
    CScrollBox& scroll = box.GetScrollBox();
    CListBoxViewer& rows = box.GetViewer();
    EXPECT_EQ(scroll.GetParent(), &box);
    EXPECT_EQ(rows.GetParent(), &scroll);
    EXPECT_EQ(scroll.GetAlignment(), alClient);
    EXPECT_EQ(rows.GetAlignment(), alClient);
    EXPECT_EQ(scroll.GetSize(), (Size{200, 100}));
    EXPECT_EQ(rows.GetSize(), (Size{200, 100}));
    EXPECT_FALSE(scroll.IsDynamic());
    EXPECT_FALSE(rows.IsDynamic());
    EXPECT_EQ(rows.GetVertScroll(), scroll.GetWrappedVertScroll());
    EXPECT_EQ(rows.GetHorzScroll(), scroll.GetWrappedHorzScroll());
    EXPECT_EQ(scroll.GetCentralPane(), &rows);
}

TEST(ListBox, WithoutAModelItIsAnEmptyAreaOfItsBackground)
{
    CTestHost host(100, 100);
    CListBox& box = *new CListBox(host.Root(), {0, 0}, alClient);
    NameElement(box.GetViewer(), "rows");
    box.GetViewer().SetBkColor(color_table[3]);
    PaintLog const log = host.Paint().Of("rows");
    EXPECT_THAT(log, Draws("SetBrush yellow").Then("FillRect 0 0 *"));
    EXPECT_THAT(log, Not(Draws("DrawString*")));
    EXPECT_EQ(host.PixelAt(50, 50), color_table[3]);
}

// Thirty lines of 10 pixels each in a box that fills a window of 100 x 100.
class LongListBox : public testing::Test
{
protected:
    LongListBox()
    {
        m_Rows.SetAutoRowHeight(false);
        m_Rows.GetRowViewModel()->SetDefaultItemSize(10);
        m_Rows.SetModel(&m_Model);
        m_Host.Paint();
    }
    bool HasVertBar() { return m_Box.GetScrollBox().GetVertElement().IsScrollBarVisible(); }
    bool HasHorzBar() { return m_Box.GetScrollBox().GetHorzElement().IsScrollBarVisible(); }

    CLinesModel m_Model{NumberedLines(30)};
    CTestHost m_Host{100, 100};
    CListBox& m_Box = *new CListBox(m_Host.Root(), {0, 0}, alClient);
    CListBoxViewer& m_Rows = m_Box.GetViewer();
};

TEST_F(LongListBox, ScrollsWhatDoesNotFit)
{
    EXPECT_TRUE(HasVertBar());
    EXPECT_FALSE(HasHorzBar());
    m_Rows.SetLineWidth(300);
    m_Host.Paint();
    EXPECT_TRUE(HasHorzBar());
    m_Rows.SetLineWidth(30);
    m_Model.Set(NumberedLines(3));
    m_Host.Paint();
    EXPECT_FALSE(HasVertBar());
    EXPECT_FALSE(HasHorzBar());
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(LongListBox, TheRowUnderThePointerIsFoundInAScrolledListToo)
{
    CSignalLog log(m_Rows.m_SigItemActivated, "activated");
    m_Rows.GetVertScroll()->SetStart(4);
    m_Host.Paint();
    m_Host.Mouse().Click(m_Rows, 20, 15);
    EXPECT_EQ(log.Text(), "activated(5)");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}
