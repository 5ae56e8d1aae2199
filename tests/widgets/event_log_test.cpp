// The column of messages: its parts, what it asks of its model, how large it gets and what it draws.

#include "vexel/widgets/event_log.h"

#include "tests/support/paint_calls.h"
#include "tests/support/slot.h"
#include "tests/widgets/log_lines.h"
#include "vexel/controls/caption.h"
#include "vexel/core/base_control.h"
#include "vexel/scroll/scroll_container.h"
#include "vexel/testing/test_kit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

using Rect = rectangle<int>;
using Size = size<int>;

namespace
{

// A log in a view 200 wide and 60 high; at first 50 wide and without a model. A line is 13 high, and what stands above
// the lines 31, of which the first is the log's own.
class EventLog : public testing::Test
{
protected:
    EventLog()
    {
        NameElement(m_Log, "log");
        NameElement(m_Log.GetList(), "list");
        m_Container->SetScrolled(&m_Log);
    }
    void Use(CLogLines& lines)
    {
        m_Log.SetModel(&lines);
        m_Host.Paint();
        lines.TakeAsked();
        lines.TakeAskedCount();
    }
    CEventLog::CLogList& List() { return m_Log.GetList(); }
    CEventLog::CTitledLogList& Titled() { return m_Log.GetTitledList(); }
    void ScrollTo(int top)
    {
        m_Container->GetCentralPart().SetVertStart(top);
        m_Host.Paint();
        ASSERT_EQ(m_Log.GetPos().top, -top);
    }

    CLogLines m_Lines;
    CTestHost m_Host{200, 60};
    CScrollContainer* m_Container = new CScrollContainer(m_Host.Root(), {10, 10}, alClient);
    CEventLog& m_Log = *new CEventLog(nullptr, {50, 10}, alNone);
};

}  // namespace

// What it starts with -------------------------------------------------------------------------------------------------------

TEST_F(EventLog, StartsWithAHiddenListAndNothingElse)
{
    CEventLog log(nullptr, {50, 10}, alTop);
    EXPECT_EQ(log.GetSize(), (Size{50, 10}));
    EXPECT_EQ(log.GetInitialWidth(), 0);
    EXPECT_FALSE(log.IsAutoScroll());
    EXPECT_FALSE(log.IsScrollPending());
    EXPECT_TRUE(log.GetCanHaveFocus());
    EXPECT_TRUE(log.IsCopyToClipboardEnabled());
    EXPECT_FALSE(CEventLog::s_UseAsyncAutoScroll);
    ASSERT_EQ(log.GetChildren()->GetCount(), 1);
    EXPECT_EQ(log.GetChildren()->GetItem(0), &log.GetTitledList());
    EXPECT_EQ(log.GetList().GetModel(), nullptr);
    EXPECT_EQ(log.GetList().GetMeasuredCount(), 0);
}

TEST_F(EventLog, ItsTitledListStandsAtTheBottomAndIsHidden)
{
    CEventLog log(nullptr, {50, 10}, alTop);
    CEventLog::CTitledLogList& titled = log.GetTitledList();
    EXPECT_EQ(titled.GetAlignment(), alBottom);
    EXPECT_FALSE(titled.IsVisible());
    EXPECT_FALSE(titled.IsDynamic());
    EXPECT_FALSE(Titled().IsDynamic());
    EXPECT_EQ(titled.GetSize(), (Size{10, 5})) << "five wide, until it finds that its list asks for ten";
}

TEST_F(EventLog, ItsTextStandsBelowTheTitleAndWraps)
{
    CEventLog log(nullptr, {50, 10}, alTop);
    CCaption& text = log.GetText();
    EXPECT_EQ(text.GetParent(), &log.GetTitledList());
    EXPECT_EQ(text.GetAlignment(), alTop);
    EXPECT_FALSE(text.IsDynamic());
    EXPECT_TRUE(text.IsAutoSize());
    EXPECT_TRUE(text.IsAdjustHeight());
    EXPECT_EQ(text.GetTextAlign(), IPainter::AlignLeft);
    EXPECT_FALSE(text.IsTransparent());
    EXPECT_EQ(text.GetSize(), (Size{5, 5}));
}

TEST_F(EventLog, ItsListHasNoMargins)
{
    CEventLog log(nullptr, {50, 10}, alTop);
    EXPECT_EQ(log.GetList().GetOffset(), (Rect{0, 0, 0, 0}));
    EXPECT_EQ(log.GetList().GetParent(), &log.GetTitledList());
    EXPECT_EQ(log.GetList().GetAlignment(), alBottom);
    EXPECT_FALSE(log.GetList().IsDynamic());
    EXPECT_EQ(log.GetList().GetSize(), (Size{10, 10}));
}

// Its model -----------------------------------------------------------------------------------------------------------------

TEST_F(EventLog, TheListShowsExactlyWhileThereIsAModel)
{
    m_Log.SetModel(&m_Lines);
    EXPECT_TRUE(Titled().IsVisible());
    EXPECT_EQ(List().GetModel(), &m_Lines);
    m_Log.SetModel(nullptr);
    EXPECT_FALSE(Titled().IsVisible());
    EXPECT_EQ(List().GetModel(), nullptr);
}

TEST_F(EventLog, WithoutAModelTheListAndItsBoxGoBackToFive)
{
    CLogLines lines(20);
    lines.Append("a line that is much wider than five pixels");
    Use(lines);
    EXPECT_EQ(List().GetSize(), (Size{336, 273}));
    m_Log.SetModel(nullptr);
    EXPECT_EQ(List().GetSize(), (Size{5, 5}));
    EXPECT_EQ(Titled().GetSize().width, 26) << "five, and then as wide as its list needs beside the image";
}

TEST_F(EventLog, WithoutAModelThatComesLaterTheWidthIsFiveAtOnce)
{
    CEventLog log(nullptr, {50, 10}, alTop);
    log.SetModel(nullptr);
    EXPECT_EQ(log.GetList().GetSize(), (Size{5, 5}));
    EXPECT_EQ(log.GetTitledList().GetSize().width, 5);
}

TEST_F(EventLog, AnEmptyModelShowsNoLine)
{
    Use(m_Lines);
    EXPECT_EQ(List().GetEndDrawingLine(), 0);
    EXPECT_EQ(List().GetMeasuredCount(), 0);
    m_Log.Update(utElement);
    EXPECT_THAT(m_Host.FullPaint(), Not(Draws("DrawString*")));
    EXPECT_EQ(m_Lines.TakeAskedCount(), 0);
}

TEST_F(EventLog, AModelThatDiesIsForgotten)
{
    {
        CLogLines lines(20);
        Use(lines);
    }
    EXPECT_EQ(List().GetModel(), nullptr);
    EXPECT_EQ(List().GetEndDrawingLine(), 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    EXPECT_THAT(m_Host.FullPaint(), Not(Draws("DrawString*")));
    Use(m_Lines);
    m_Lines.Append("next");
    m_Host.Paint();
    EXPECT_EQ(List().GetMeasuredCount(), 1);
}

TEST_F(EventLog, AModelThatItHadBeforeIsNotHeardAnyMore)
{
    auto old = std::make_unique<CLogLines>(3);
    Use(*old);
    CLogLines now(2);
    Use(now);
    now.TakeAsked();
    old->Append("x");
    EXPECT_EQ(now.TakeAsked(), "");
    EXPECT_EQ(old->TakeAsked(), "");
    EXPECT_EQ(List().GetMeasuredCount(), 2);
    old.reset();
    EXPECT_EQ(List().GetModel(), &now);
    m_Log.SetModel(nullptr);
    now.Append("y");
    EXPECT_EQ(List().GetMeasuredCount(), 0);
}

// What it measures ----------------------------------------------------------------------------------------------------------

TEST_F(EventLog, ANewModelIsMeasuredFromItsFirstLine)
{
    CLogLines lines(3);
    m_Log.SetModel(&lines);
    EXPECT_EQ(List().GetMeasuredCount(), 3);
    EXPECT_EQ(lines.TakeAsked(), "0 0 1 2");  // the height of a line, then the widths
    CLogLines other(2);
    m_Log.SetModel(&other);
    EXPECT_EQ(List().GetMeasuredCount(), 2);
    EXPECT_EQ(other.TakeAsked(), "0 0 1");
}

TEST_F(EventLog, LinesThatAreAppendedAreMeasuredAlone)
{
    CLogLines lines(3);
    Use(lines);
    lines.Append("one more");
    EXPECT_EQ(lines.TakeAsked(), "0 3");
    EXPECT_EQ(List().GetMeasuredCount(), 4);
    lines.AppendNumbers(3);
    EXPECT_EQ(lines.TakeAsked(), "0 4 5 6");
    EXPECT_EQ(List().GetMeasuredCount(), 7);
}

TEST_F(EventLog, AChangeWithoutNewLinesMeasuresNone)
{
    CLogLines lines(3);
    Use(lines);
    lines.AppendNumbers(0);
    EXPECT_EQ(lines.TakeAsked(), "0");
    EXPECT_EQ(List().GetMeasuredCount(), 3);
    EXPECT_TRUE(m_Host.IsFramePending());
}

TEST_F(EventLog, LinesThatAreTakenAwayAreNewWhenTheyComeBack)
{
    CLogLines lines(5);
    Use(lines);
    lines.Shrink(2);
    m_Host.Paint();
    EXPECT_EQ(List().GetMeasuredCount(), 2);
    EXPECT_EQ(List().GetSize(), (Size{10, 26}));
    lines.TakeAsked();
    lines.Append("12345");
    EXPECT_EQ(lines.TakeAsked(), "0 2");
    m_Host.Paint();
    EXPECT_EQ(List().GetSize(), (Size{40, 39}));
    EXPECT_EQ(List().GetMeasuredCount(), 3);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLog, WithoutItsLastLineItKeepsItsHeightAndShowsNone)
{
    CLogLines lines(3);
    Use(lines);
    lines.Shrink(0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    EXPECT_EQ(List().GetSize().height, 39);
    EXPECT_EQ(List().GetMeasuredCount(), 0);
    lines.Append("first");
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    EXPECT_EQ(List().GetSize(), (Size{40, 13}));
}

TEST_F(EventLog, AMillionLinesCostNothingExtraPerLine)
{
    CLogLines lines(0);
    lines.NoteAsked(false);
    Use(lines);
    lines.AppendNumbers(1000000);
    EXPECT_EQ(lines.TakeAskedCount(), 1000001);
    m_Host.Paint();
    EXPECT_EQ(List().GetSize().height, 13000000);
    lines.TakeAskedCount();
    lines.NoteAsked(true);
    lines.Append("last");
    EXPECT_EQ(lines.TakeAsked(), "0 1000000");
    m_Host.Paint();
    lines.TakeAsked();
    m_Host.FullPaint();
    EXPECT_EQ(lines.TakeAsked(), "0 1 2");
    m_Container->GetCentralPart().SetVertStart(6500032);
    m_Host.Paint();
    lines.TakeAsked();
    m_Host.FullPaint();
    EXPECT_EQ(lines.TakeAsked(), "500000 500001 500002 500003 500004");
}

TEST_F(EventLog, MeasuringLeavesAPaintThatIsUnderWayOpenAndEndsItsOwn)
{
    CLogLines lines(3);
    IPainter& painter = *m_Host.Window().GetPainter();
    Use(lines);
    EXPECT_FALSE(painter.m_Painting);
    painter.BeginPaint(IPainter::ssMeasure);
    lines.Append("12345678");
    EXPECT_TRUE(painter.m_Painting);
    painter.EndPaint();
    EXPECT_EQ(List().GetSize().width, 64);
    lines.Append("1234567890");
    EXPECT_FALSE(painter.m_Painting);
    EXPECT_EQ(List().GetSize().width, 80);
}

TEST_F(EventLog, WithoutAWindowNothingIsMeasured)
{
    CEventLog log(nullptr, {50, 10}, alTop);
    CLogLines lines(3);
    log.SetModel(&lines);
    EXPECT_EQ(log.GetList().GetMeasuredCount(), 0);
    EXPECT_EQ(log.GetList().GetSize(), (Size{10, 10}));
    EXPECT_TRUE(log.GetTitledList().IsVisible());
    lines.Append("x");
    EXPECT_EQ(log.GetList().GetMeasuredCount(), 0);
    EXPECT_EQ(lines.TakeAsked(), "");
}

TEST_F(EventLog, LinesThatCameBeforeTheWindowAreMeasuredWithIt)
{
    auto& log = *new CEventLog(nullptr, {50, 10}, alNone);
    CLogLines lines(3);
    lines.Append("a wider line");
    log.SetModel(&lines);
    m_Container->SetScrolled(&log);
    m_Host.Paint();
    EXPECT_EQ(log.GetList().GetMeasuredCount(), 4);
    EXPECT_EQ(log.GetList().GetSize(), (Size{96, 52}));
    EXPECT_EQ(log.GetSize(), (Size{117, 84}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    delete &m_Log;
    log.SetModel(nullptr);
}

// Its size ------------------------------------------------------------------------------------------------------------------

TEST_F(EventLog, IsAsHighAsItsListWithWhatStandsAboveIt)
{
    CLogLines lines({"one", "two", "three"});
    Use(lines);
    EXPECT_EQ(List().GetSize(), (Size{40, 39}));    // 5 x 8, 3 x 13
    EXPECT_EQ(Titled().GetSize(), (Size{61, 70}));  // beside the image, 20; 13 + 3 + 11 + 3 + 40
    EXPECT_EQ(m_Log.GetSize(), (Size{61, 71}));
    EXPECT_EQ(m_Log.GetPos(), (Rect{0, 0, 61, 71}));
    EXPECT_EQ(Titled().GetPos(), (Rect{0, 1, 61, 71}));
    EXPECT_EQ(List().GetPos(), (Rect{21, 31, 61, 70}));
    EXPECT_EQ(m_Log.GetText().GetPos(), (Rect{21, 27, 61, 29}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLog, GrowsFromNothingInAViewThatWasLaidOutWithoutIt)
{
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize(), (Size{50, 0}));
    CLogLines lines({"one", "two", "three"});
    Use(lines);
    EXPECT_EQ(m_Log.GetPos(), (Rect{0, 0, 61, 71}));
    EXPECT_EQ(List().GetPos(), (Rect{21, 31, 61, 70}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLog, GrowsAnewAfterItWasCleared)
{
    CLogLines lines(5);
    Use(lines);
    m_Log.Clear();
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize().height, 0);
    Use(lines);
    EXPECT_EQ(m_Log.GetSize().height, 97);
    EXPECT_EQ(m_Log.GetPos().Height(), 97);
    lines.Append("more");
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetPos().Height(), 110);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLog, GrowsWithEachLine)
{
    CLogLines lines(3);
    Use(lines);
    EXPECT_EQ(m_Log.GetSize(), (Size{50, 71}));
    lines.Append("x");
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize(), (Size{50, 84}));
    EXPECT_EQ(m_Log.GetPos(), (Rect{0, 0, 50, 84}));
    lines.AppendNumbers(10);
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize(), (Size{50, 214}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    lines.Shrink(1);
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize(), (Size{50, 45}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLog, AWiderLineWidensTheListItsBoxAndTheLogAndANarrowerOneLeavesThem)
{
    CLogLines lines(3);
    Use(lines);
    EXPECT_EQ(List().GetSize().width, 10) << "no line is wider than the list asks for at first";
    lines.Append("12345678");
    m_Host.Paint();
    EXPECT_EQ(List().GetSize().width, 64);
    EXPECT_EQ(Titled().GetSize().width, 85);
    EXPECT_EQ(m_Log.GetSize().width, 85);
    EXPECT_EQ(m_Log.GetPos().Width(), 85);
    lines.Append("1234567");
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize().width, 85);
    lines.Append("123456789");
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize().width, 93);
    lines.Shrink(1);
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize().width, 93) << "as wide as the widest ever was";
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLog, ALineInTheMiddleOfABunchWidensItToo)
{
    CLogLines lines;
    Use(lines);
    lines.AppendNumbers(2);
    CLogLines bunch({"a", "the widest one", "c"});
    Use(bunch);
    EXPECT_EQ(List().GetSize().width, 112);
    EXPECT_EQ(m_Log.GetSize().width, 133);
}

TEST_F(EventLog, ItsTextAddsToTheHeight)
{
    CLogLines lines(3);
    m_Log.GetText().SetCaption("some");
    Use(lines);
    EXPECT_EQ(m_Log.GetText().GetSize().height, 10);
    EXPECT_EQ(m_Log.GetSize().height, 79);
    EXPECT_EQ(List().GetPos().top, 39);
    EXPECT_EQ(m_Log.GetText().GetPos().top, 27);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLog, LargerDisplaysHaveLargerLines)
{
    m_Host.SetScale(2.0);
    auto& log = *new CEventLog(nullptr, {50, 10}, alNone);
    m_Container->SetScrolled(&log);
    CLogLines lines({"one", "two", "three"});
    log.SetModel(&lines);
    m_Host.Paint();
    EXPECT_EQ(log.GetList().GetSize(), (Size{80, 78}));  // 5 x 16, 3 x (16 + 10)
    log.SetModel(nullptr);
    delete &m_Log;
}

// The width at first --------------------------------------------------------------------------------------------------------

TEST_F(EventLog, AWidthAtFirstScalesWithTheFontWhileThereIsNoList)
{
    m_Log.SetInitialWidth(100, false);
    EXPECT_EQ(m_Log.GetInitialWidth(), 100);
    EXPECT_EQ(m_Log.GetSize().width, 100);
    font large = m_Log.GetFont();
    large.size = 12;
    m_Log.SetFont(large);
    EXPECT_EQ(m_Log.GetSize().width, 150);
    m_Log.SetInitialWidth(33, false);
    EXPECT_EQ(m_Log.GetSize().width, 49);  // 49.5
    m_Log.SetInitialWidth(0, false);
    EXPECT_EQ(m_Log.GetInitialWidth(), 0);
    EXPECT_EQ(m_Log.GetSize().width, 49);
}

TEST_F(EventLog, TheSameWidthAtFirstIsNoChange)
{
    m_Log.SetInitialWidth(100, false);
    m_Log.SetWidth(70, false);
    m_Host.Paint();
    m_Log.SetInitialWidth(100, false);
    EXPECT_EQ(m_Log.GetSize().width, 70);
    EXPECT_FALSE(m_Host.IsFramePending());
}

TEST_F(EventLog, AWidthAtFirstIsKeptForLaterWhileTheListShows)
{
    CLogLines lines(3);
    Use(lines);
    m_Log.SetInitialWidth(100, false);
    EXPECT_EQ(m_Log.GetInitialWidth(), 100);
    EXPECT_EQ(m_Log.GetSize().width, 50);
    m_Log.SetInitialWidth(90, true);
    EXPECT_EQ(m_Log.GetSize().width, 50);
    m_Log.SetModel(nullptr);
    EXPECT_EQ(m_Log.GetSize().width, 50) << "not before the next change of an attribute";
    m_Log.AttributeChanged();
    EXPECT_EQ(m_Log.GetSize().width, 100);
}

TEST_F(EventLog, AWidthThatIsTakenOverAtOnceIsNotKept)
{
    m_Log.SetInitialWidth(80, true);
    EXPECT_EQ(m_Log.GetSize().width, 80);
    EXPECT_EQ(m_Log.GetInitialWidth(), 0);
    m_Log.AttributeChanged();
    EXPECT_EQ(m_Log.GetSize().width, 80);
}

TEST_F(EventLog, AWidthThatIsTakenOverAtOnceScalesWithTheDisplay)
{
    m_Host.SetScale(1.5);
    m_Log.SetInitialWidth(81, true);
    EXPECT_EQ(m_Log.GetSize().width, 121);  // 121.5
}

TEST_F(EventLog, AChangeOfAnAttributeRepaintsIt)
{
    CLogLines lines(3);
    Use(lines);
    m_Log.AttributeChanged();
    EXPECT_FALSE(m_Host.Paint().Of("log").IsEmpty());
}

// Further elements ----------------------------------------------------------------------------------------------------------

TEST_F(EventLog, FurtherElementsAddToTheHeight)
{
    CLogLines lines(3);
    Use(lines);
    new CVisualElement(&m_Log, {30, 20}, alBottom);
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize().height, 92);
    new CVisualElement(&m_Log, {30, 9}, alTop);
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize().height, 102);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLog, WithoutAModelItIsAsHighAsThose)
{
    new CVisualElement(&m_Log, {30, 20}, alBottom);
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize(), (Size{50, 21}));
    EXPECT_EQ(m_Log.GetPos(), (Rect{0, 0, 50, 21}));
}

TEST_F(EventLog, AChildThatIsMovedBackBecomesTheLast)
{
    auto* const a = new CVisualElement(&m_Log, {30, 20}, alBottom);
    auto* const b = new CVisualElement(&m_Log, {30, 10}, alBottom);
    m_Host.Paint();
    EXPECT_EQ(a->GetPos(), (Rect{0, 12, 50, 32}));
    EXPECT_EQ(b->GetPos(), (Rect{0, 1, 50, 11}));
    m_Log.MoveElementBack(a);
    EXPECT_EQ(m_Log.GetChildren()->GetIndex(a), 2);
    EXPECT_EQ(m_Log.GetChildren()->GetIndex(b), 1);
    m_Host.Paint();
    EXPECT_EQ(b->GetPos(), (Rect{0, 22, 50, 32}));
    EXPECT_EQ(a->GetPos(), (Rect{0, 1, 50, 21}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLog, WhatIsNoChildIsNotMoved)
{
    m_Host.Paint();
    CVisualElement stranger(m_Host.Root(), {10, 10}, alNone);
    stranger.SetDynamic(false);
    m_Host.Paint();
    m_Log.MoveElementBack(&stranger);
    m_Log.MoveElementBack(&List());
    m_Log.MoveElementBack(nullptr);
    EXPECT_FALSE(m_Host.IsFramePending());
    EXPECT_EQ(m_Log.GetChildren()->GetCount(), 1);
}

TEST_F(EventLog, ItsListCanBeMovedBackToo)
{
    CLogLines lines(3);
    Use(lines);
    auto* const box = new CVisualElement(&m_Log, {30, 20}, alBottom);
    m_Host.Paint();
    EXPECT_EQ(Titled().GetPos(), (Rect{0, 22, 50, 92}));
    EXPECT_EQ(box->GetPos(), (Rect{0, 1, 50, 21}));
    m_Log.MoveElementBack(&Titled());
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetChildren()->GetIndex(&Titled()), 1);
    EXPECT_EQ(Titled().GetPos(), (Rect{0, 1, 50, 71}));
    EXPECT_EQ(box->GetPos(), (Rect{0, 72, 50, 92}));
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

// Clearing ------------------------------------------------------------------------------------------------------------------

TEST_F(EventLog, ClearingKeepsTheFirstChildAndDeletesAllOthers)
{
    CLogLines lines(3);
    Use(lines);
    CSignalLog log;
    for (char const* const name : {"a", "b", "c"})
        log.Add((new CVisualElement(&m_Log, {30, 20}, alBottom))->m_SigDestroy, name);
    m_Host.Paint();
    m_Log.Clear();
    EXPECT_EQ(log.Count(), 3);
    ASSERT_EQ(m_Log.GetChildren()->GetCount(), 1);
    EXPECT_EQ(m_Log.GetChildren()->GetItem(0), &Titled());
    EXPECT_FALSE(Titled().IsVisible());
    EXPECT_EQ(List().GetModel(), nullptr);
    EXPECT_EQ(List().GetSize(), (Size{5, 5}));
    m_Host.Paint();
    EXPECT_EQ(m_Log.GetSize().height, 0);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    lines.Append("unheard");
    EXPECT_EQ(List().GetMeasuredCount(), 0);
}

TEST_F(EventLog, ClearingWithTheListMovedBackKeepsTheFirstAndTheList)
{
    CSignalLog log;
    auto* const first = new CVisualElement(&m_Log, {30, 20}, alBottom);
    log.Add(first->m_SigDestroy, "first");
    log.Add((new CVisualElement(&m_Log, {30, 20}, alBottom))->m_SigDestroy, "second");
    m_Log.MoveElementBack(&Titled());
    m_Log.Clear();
    EXPECT_EQ(log.Text(), "second()");
    EXPECT_EQ(m_Log.GetChildren()->GetItem(0), first);
    CLogLines lines(3);
    Use(lines);
    EXPECT_EQ(Titled().GetParent(), &m_Log);
    EXPECT_EQ(m_Log.GetSize().height, 92);
    m_Log.SetModel(nullptr);
}

TEST_F(EventLog, ClearingAnEmptyLogChangesNothing)
{
    m_Log.Clear();
    m_Log.Clear();
    EXPECT_EQ(m_Log.GetChildren()->GetCount(), 1);
}

// Drawing -------------------------------------------------------------------------------------------------------------------

TEST_F(EventLog, FillsWhatShowsOfItWithinItsBounds)
{
    CLogLines lines(20);
    Use(lines);
    ScrollTo(100);
    PaintLog const log = m_Host.FullPaint().Of("log");
    EXPECT_THAT(log, Draws("SimpleSetClipRect 0 0 51 60").Then("FillRect 0 100 50 159"));
}

TEST_F(EventLog, ATransparentLogFillsNothing)
{
    CLogLines lines(3);
    Use(lines);
    m_Log.SetTransparent(true);
    EXPECT_THAT(m_Host.FullPaint().Of("log"), Not(Draws("FillRect*")));
}

TEST_F(EventLog, OnlyLinesInViewAreDrawn)
{
    CLogLines lines(20);
    Use(lines);
    m_Host.FullPaint();
    EXPECT_EQ(lines.TakeAsked(), "0 1 2");
    ScrollTo(100);
    lines.TakeAsked();
    PaintLog const log = m_Host.FullPaint().Of("list");
    EXPECT_EQ(lines.TakeAsked(), "5 6 7 8 9");
    EXPECT_EQ(log.Count("DrawString*"), 5);
    EXPECT_THAT(log, Draws("DrawString \"5\" 0 65 29 73 0x21*").Then("DrawString \"9\" 0 117 29 125 0x21*"));
    ScrollTo(234);
    lines.TakeAsked();
    m_Host.FullPaint();
    EXPECT_EQ(lines.TakeAsked(), "15 16 17 18 19");
}

TEST_F(EventLog, TheListKnowsWhatTheLogShowsOfIt)
{
    CLogLines lines(20);
    Use(lines);
    EXPECT_EQ(List().GetVisualisationRect(), (Rect{0, -32, 182, 27}));
    EXPECT_EQ(List().GetStartDrawingLine(), 0);
    EXPECT_EQ(List().GetEndDrawingLine(), 3);  // 27 is in the third
    ScrollTo(32);
    EXPECT_EQ(List().GetVisualisationRect(), (Rect{0, 0, 182, 59}));
    EXPECT_EQ(List().GetStartDrawingLine(), 0);
    EXPECT_EQ(List().GetEndDrawingLine(), 5);
    ScrollTo(44);
    EXPECT_EQ(List().GetStartDrawingLine(), 0);
    ScrollTo(45);
    EXPECT_EQ(List().GetStartDrawingLine(), 1);
    EXPECT_EQ(List().GetEndDrawingLine(), 6);  // 72
    ScrollTo(234);
    EXPECT_EQ(List().GetVisualisationRect(), (Rect{0, 202, 182, 261}));
    EXPECT_EQ(List().GetStartDrawingLine(), 15);
    EXPECT_EQ(List().GetEndDrawingLine(), 20) << "no further than the last";
}

TEST_F(EventLog, WhatTheLogShowsGoesByTheLogsOwnSides)
{
    CLogLines lines({"a line that is wider than the view of the log"});
    Use(lines);
    m_Container->GetCentralPart().SetHorzStart(50);
    m_Host.Paint();
    EXPECT_EQ(List().GetVisualisationRect().left, 50);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(EventLog, WithoutAModelNoLineIsDrawnWhateverShows)
{
    EXPECT_EQ(List().GetEndDrawingLine(), 0);
    CLogLines lines(20);
    Use(lines);
    ScrollTo(100);
    m_Log.SetModel(nullptr);
    EXPECT_EQ(List().GetEndDrawingLine(), 0);
}

TEST_F(EventLog, AListThatIsAloneShowsItsBoundsAndOneWhoseLogIsAloneAll)
{
    CLogLines lines(20);
    CEventLog::CLogList alone(m_Host.Root(), {40, 50}, alNone);
    alone.SetDynamic(false);
    alone.SetPos({5, 5, 45, 55}, false);
    EXPECT_EQ(alone.GetVisualisationRect(), (Rect{0, 0, 40, 50}));
    alone.SetModel(&lines);
    EXPECT_EQ(alone.GetStartDrawingLine(), 0);
    alone.ReParent(nullptr, true);
    alone.SetPos({0, 0, 0, 0}, false);
    EXPECT_EQ(alone.GetVisualisationRect(), (Rect{0, 0, 0, 0}));
    EXPECT_EQ(alone.GetEndDrawingLine(), 20) << "nothing is known of a view";
    CEventLog log(nullptr, {50, 10}, alTop);
    log.SetModel(&lines);
    EXPECT_EQ(log.GetList().GetVisualisationRect(), (Rect{0, 0, 0, 0}));
    EXPECT_EQ(log.GetList().GetStartDrawingLine(), 0);
    EXPECT_EQ(log.GetList().GetEndDrawingLine(), 20);
}

TEST_F(EventLog, DockedInAPlaceThatIsTooLowItShowsTheLinesThatFit)
{
    CLogLines lines(20);
    CVisualElement pane(m_Host.Root(), {10, 10}, alTop);
    pane.SetDynamic(false);
    pane.SetHeight(80, false);
    auto& log = *new CEventLog(&pane, {50, 10}, alClient);
    NameElement(log.GetList(), "small");
    delete m_Container;
    m_Host.Resize(200, 81);
    log.SetModel(&lines);
    m_Host.Paint();
    lines.TakeAsked();
    EXPECT_EQ(log.GetPos(), (Rect{0, 0, 199, 80}));
    PaintLog const painted = m_Host.FullPaint().Of("small");
    int const drawn = painted.Count("DrawString*");
    EXPECT_EQ(drawn, (log.GetList().GetBounds().bottom + 5) / 13);
    EXPECT_THAT(painted, Draws("DrawString \"0\"*"));
    delete &log;
}
