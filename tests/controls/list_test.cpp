// The short list that is drawn as a whole: its lines, the height it asks for, what the pointer does to it.

#include "vexel/controls/list.h"

#include "tests/support/lines_model.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace vexel;
using namespace vexel::test;
using testing::Not;

using Size = size<int>;
using Rect = rectangle<int>;

namespace
{

class CCountedList : public CList
{
public:
    using CList::CList;

    void RecalcSize() override
    {
        ++m_Recalculated;
        CList::RecalcSize();
    }
    void AfterSetModel(IItemsModel* old) override
    {
        m_Old = old;
        CList::AfterSetModel(old);
    }
    void SizeUpdated() override { ++m_SizeUpdates; }
    int GetStartDrawingLine() const override { return m_First; }
    int GetEndDrawingLine() const override { return m_End < 0 ? CList::GetEndDrawingLine() : m_End; }

    int m_Recalculated = 0;
    int m_SizeUpdates = 0;
    int m_First = 0;
    int m_End = -1;
    IItemsModel* m_Old = nullptr;
};

/// Writes down what it is asked for, and keeps the text from being drawn if told so.
class CDrawing : public IItemDrawing
{
public:
    void DrawItem(IPainter* painter, int item, Rect const& rect, bool* drawDefault) override
    {
        m_Log +=
            (m_Log.empty() ? "" : "; ") + std::to_string(item) + " " + Describe(rect) + " " + Describe(*drawDefault);
        painter->MoveTo(item, 77);
        *drawDefault = m_Default;
    }

    std::string m_Log;
    bool m_Default = true;
};

// A list at (0, 0, 99, 60) with three lines; each is 14 high, and 5 are between them and at all edges.
class List : public testing::Test
{
protected:
    List()
    {
        NameElement(m_List, "list");
        m_List.SetModel(&m_Model);
        m_Log.Add(m_List.m_SigItemClicked, "clicked");
        m_Host.Paint();
    }
    PaintLog Draw()
    {
        m_List.Update(utElement);
        return m_Host.Paint().Of("list");
    }
    int Height() const { return m_List.GetBounds().bottom; }

    CLinesModel m_Model{{"one", "two", "three"}};
    CDrawing m_Drawing;
    CTestHost m_Host{100, 100};
    CCountedList& m_List = *new CCountedList(m_Host.Root(), {0, 60}, alTop);
    CSignalLog m_Log;
};

}  // namespace

// What it starts with -------------------------------------------------------------------------------------------------------

TEST_F(List, StartsWithMarginsOfFiveLinesOfFourteenAndNothingHot)
{
    CList const list(nullptr, {10, 10}, alNone);
    EXPECT_EQ(list.GetModel(), nullptr);
    EXPECT_EQ(list.GetLineSpacing(), 5);
    EXPECT_EQ(list.GetOffset(), (Rect{5, 5, 5, 5}));
    EXPECT_EQ(list.GetLineHeight(), 14);
    EXPECT_EQ(list.GetMinLineHeight(), 0);
    EXPECT_EQ(list.GetHotItem(), -1);
    EXPECT_FALSE(list.IsHotTrack());
    EXPECT_EQ(list.GetStartDrawingLine(), 0);
    EXPECT_EQ(list.GetEndDrawingLine(), 0);
}

TEST_F(List, SpacingAndLineHeightScaleWithTheDisplayTheMarginsDoNot)
{
    m_Host.SetScale(1.5);
    CList const list(nullptr, {10, 10}, alNone);
    EXPECT_EQ(list.GetLineSpacing(), 7);  // 7.5
    EXPECT_EQ(list.GetLineHeight(), 21);
    EXPECT_EQ(list.GetOffset(), (Rect{5, 5, 5, 5}));
}

// Its model -----------------------------------------------------------------------------------------------------------------

TEST_F(List, ANewModelLeavesTheHeightAndTellsThatTheSizeIsAnother)
{
    CLinesModel other(NumberedLines(20));
    m_List.m_SizeUpdates = 0;
    m_List.SetModel(&other);
    EXPECT_EQ(m_List.m_Old, &m_Model);
    EXPECT_EQ(m_List.GetModel(), &other);
    EXPECT_EQ(m_List.m_SizeUpdates, 1);
    EXPECT_EQ(m_List.m_Recalculated, 0);
    EXPECT_EQ(Height(), 60);
    EXPECT_EQ(m_List.GetEndDrawingLine() + 0, 20);
    m_List.SetModel(nullptr);
    EXPECT_EQ(m_List.m_Old, &other);
    EXPECT_EQ(m_List.m_SizeUpdates, 2);
    EXPECT_EQ(m_List.GetEndDrawingLine(), 0);
}

TEST_F(List, AModelThatDiesIsForgotten)
{
    {
        CLinesModel other({"x"});
        m_List.SetModel(&other);
    }
    EXPECT_EQ(m_List.GetModel(), nullptr);
    EXPECT_EQ(m_List.GetEndDrawingLine(), 0);
    EXPECT_THAT(Draw(), Not(Draws("DrawString*")));
}

TEST_F(List, AModelThatItHadBeforeMayDieUnheard)
{
    auto other = std::make_unique<CLinesModel>(NumberedLines(1));
    m_List.SetModel(other.get());
    m_List.SetModel(&m_Model);
    other.reset();
    EXPECT_EQ(m_List.GetModel(), &m_Model);
}

TEST_F(List, AsAStringItIsItsLines)
{
    EXPECT_EQ(m_List.HandleAsString(), "one\ntwo\nthree");
    m_Model.Set({"one"});
    EXPECT_EQ(m_List.HandleAsString(), "one");
    m_Model.Set({"", ""});
    EXPECT_EQ(m_List.HandleAsString(), "\n");
    m_List.SetModel(nullptr);
    EXPECT_EQ(m_List.HandleAsString(), "");
}

// Sizes ---------------------------------------------------------------------------------------------------------------------

TEST_F(List, AnItemIsItsTextAndTheMarginsAtTheSides)
{
    EXPECT_EQ(m_List.GetItemSize(0), (Size{34, 8}));
    EXPECT_EQ(m_List.GetItemSize(2), (Size{50, 8}));
    m_List.SetOffset({1, 20, 3, 30});
    EXPECT_EQ(m_List.GetItemSize(0), (Size{28, 8}));
    font large = m_List.GetFont();
    large.size = 16;
    m_List.SetFont(large);
    EXPECT_EQ(m_List.GetItemSize(0), (Size{52, 16}));
}

TEST_F(List, WithoutAWindowAnItemHasNoSize)
{
    CList list(nullptr, {10, 10}, alNone);
    list.SetModel(&m_Model);
    EXPECT_EQ(list.GetItemSize(0), Size());
    m_Host.DestroyWindow();
    EXPECT_EQ(m_List.GetItemSize(0), Size());
}

TEST_F(List, MeasuringLeavesAPaintThatIsUnderWayOpenAndEndsItsOwn)
{
    IPainter& painter = *m_Host.Window().GetPainter();
    m_List.GetItemSize(0);
    EXPECT_FALSE(painter.m_Painting);
    painter.BeginPaint(IPainter::ssMeasure);
    EXPECT_EQ(m_List.GetItemSize(0), (Size{34, 8}));
    EXPECT_TRUE(painter.m_Painting);
    painter.EndPaint();
    EXPECT_FALSE(painter.m_Painting);
}

TEST_F(List, ItsHeightIsThatOfItsLinesWithTheSpacingAndTheMargins)
{
    m_List.RecalcSize();
    m_Host.Paint();
    EXPECT_EQ(m_List.GetLineHeight(), 8);
    EXPECT_EQ(Height(), 49);  // 3 x 13 + 10
    m_List.SetOffset({0, 1, 0, 3});
    m_Host.Paint();
    EXPECT_EQ(Height(), 43);
}

TEST_F(List, ALineIsAtLeastAsHighAsAsked)
{
    m_List.SetMinLineHeight(11);
    EXPECT_EQ(m_List.GetMinLineHeight(), 11);
    EXPECT_EQ(m_List.GetLineHeight(), 11);
    m_Host.Paint();
    EXPECT_EQ(Height(), 58);  // 3 x 16 + 10
    m_List.SetMinLineHeight(7);
    EXPECT_EQ(m_List.GetLineHeight(), 8);
}

TEST_F(List, WithoutLinesNothingIsMeasured)
{
    m_Model.Set({});
    m_List.RecalcSize();
    m_List.SetModel(nullptr);
    m_List.RecalcSize();
    m_Host.Paint();
    EXPECT_EQ(m_List.GetLineHeight(), 14);
    EXPECT_EQ(Height(), 60);
}

TEST_F(List, EachMetricMeasuresAgainOnAChangeOnly)
{
    m_List.SetLineSpacing(5);
    m_List.SetLineHeight(14);
    m_List.SetMinLineHeight(0);
    m_List.SetOffset({5, 5, 5, 5});
    EXPECT_EQ(m_List.m_Recalculated, 0);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_List.SetLineSpacing(2);
    EXPECT_EQ(m_List.m_Recalculated, 1);
    m_Host.Paint();
    EXPECT_EQ(Height(), 40);  // 3 x 10 + 10
    m_List.SetLineHeight(30);
    EXPECT_EQ(m_List.m_Recalculated, 2);
    EXPECT_EQ(m_List.GetLineHeight(), 8) << "until the first line is measured";
    m_List.SetMinLineHeight(9);
    EXPECT_EQ(m_List.m_Recalculated, 3);
    m_List.SetOffset({5, 5, 5, 6});
    EXPECT_EQ(m_List.m_Recalculated, 4);
    EXPECT_EQ(m_List.GetOffset(), (Rect{5, 5, 5, 6}));
}

TEST_F(List, ALineHeightHoldsWhileThereIsNoLine)
{
    m_List.SetModel(nullptr);
    m_List.SetLineHeight(30);
    EXPECT_EQ(m_List.GetLineHeight(), 30);
}

TEST_F(List, NewMarginsRepaintIt)
{
    m_List.SetModel(nullptr);
    m_Host.Paint();
    m_List.SetOffset({1, 1, 1, 1});
    EXPECT_EQ(m_Host.Paint().Elements(), "list");
}

TEST_F(List, LinesThatMoveAreRepaintedWhereTheyWereAndAre)
{
    m_List.RecalcSize();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_List.SetLineSpacing(9);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_List.SetMinLineHeight(15);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
    m_List.SetAlignment(alLeft);
    m_List.SetWidth(80, false);
    m_Host.Paint();
    m_List.SetLineSpacing(2);
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "") << "the height of one that is docked there stays";
    m_Model.Set({});
    m_List.SetModel(nullptr);
    CLinesModel other({"x"});
    m_List.SetLineHeight(30);
    m_List.SetModel(&other);
    m_Host.Paint();
    m_List.RecalcSize();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(List, AModelThatDiesIsNotSeenAnyMore)
{
    auto other = std::make_unique<CLinesModel>(NumberedLines(3));
    m_List.SetModel(other.get());
    m_Host.Paint();
    other.reset();
    EXPECT_EQ(m_Host.CompareWithFullPaint(), "");
}

TEST_F(List, WithoutAWindowTheHeightIsMadeUpForWhenThereIsOne)
{
    CList& list = *new CList(nullptr, {50, 20}, alLeft);
    list.SetModel(&m_Model);
    list.RecalcSize();
    EXPECT_EQ(list.GetSize(), (Size{50, 20}));
    EXPECT_EQ(list.GetLineHeight(), 14);
    list.SetAlignment(alBottom);
    list.ReParent(m_Host.Root(), true);
    m_Host.Paint();
    EXPECT_EQ(list.GetLineHeight(), 8);
    EXPECT_EQ(list.GetSize().height, 49);
    CList& plain = *new CList(nullptr, {50, 20}, alBottom);
    plain.SetModel(&m_Model);
    plain.ReParent(m_Host.Root(), true);
    m_Host.Paint();
    EXPECT_EQ(plain.GetLineHeight(), 14);
    EXPECT_EQ(plain.GetSize().height, 20);
}

// Drawing -------------------------------------------------------------------------------------------------------------------

TEST_F(List, FillsItselfAndDrawsTheLinesThatFitEntirely)
{
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("FillRect 0 0 99 60")
                         .Then("DrawString \"one\" 5 5 94 19 0x21*")
                         .Then("DrawString \"two\" 5 24 94 38 0x21*"));
    EXPECT_EQ(log.Count("DrawString*"), 2);
    m_List.SetHeight(61, false);
    EXPECT_EQ(m_Host.Paint().Of("list").Count("DrawString*"), 2);
    m_List.SetHeight(62, false);  // the last pixel of the third line is that of the area
    EXPECT_THAT(m_Host.Paint().Of("list"), Draws("DrawString \"three\" 5 43 94 57 0x21*"));
}

TEST_F(List, WithoutAModelItOnlyFillsItself)
{
    m_List.SetModel(nullptr);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("FillRect 0 0 99 60"));
    EXPECT_THAT(log, Not(Draws("DrawString*")));
}

TEST_F(List, ASubclassSaysWhichLinesAreDrawnAndTheyKeepTheirPlace)
{
    m_List.m_First = 1;
    m_List.m_End = 2;
    PaintLog const log = Draw();
    EXPECT_EQ(log.Count("DrawString*"), 1);
    EXPECT_THAT(log, Draws("DrawString \"two\" 5 24 94 38 0x21*"));
}

TEST_F(List, TheHotLineLooksLikeALinkIfItIsTracked)
{
    m_Host.Mouse().Move(m_List, 10, 25);
    EXPECT_THAT(Draw(), Not(Draws("SetFont*underline*")));
    m_List.SetHotTrack(true);
    PaintLog const log = Draw();
    EXPECT_THAT(log, Draws("DrawString \"one\"*")
                         .Then("SetFont \"Square\" 8 underline")
                         .Then("SetTextColor #3060C0")
                         .Then("DrawString \"two\"*"));
    EXPECT_EQ(log.Count("SetFont*underline*"), 1);
    m_Host.Mouse().Move(m_List, 10, 10);
    EXPECT_THAT(m_Host.Paint().Of("list"), Draws("SetFont*underline*")
                                               .Then("SetTextColor #3060C0")
                                               .Then("DrawString \"one\"*")
                                               .Then("SetFont \"Square\" 8")
                                               .Then("DrawString \"two\"*"));
}

TEST_F(List, TheColourOfTheHotLineEndsWithIt)
{
    m_List.SetFgColor(color_table[6]);
    m_List.SetHotTrack(true);
    m_Host.Mouse().Move(m_List, 10, 10);
    EXPECT_THAT(
        Draw(),
        Draws("SetTextColor #3060C0").Then("DrawString \"one\"*").Then("SetTextColor red").Then("DrawString \"two\"*"));
}

TEST_F(List, AnOwnDrawingComesFirstAndMayKeepTheTextAway)
{
    m_List.SetItemDrawing(&m_Drawing);
    EXPECT_THAT(Draw(), Draws("MoveTo 0 77").Then("DrawString \"one\"*").Then("MoveTo 1 77").Then("DrawString*"));
    EXPECT_EQ(m_Drawing.m_Log, "0 (5, 5, 94, 19) true; 1 (5, 24, 94, 38) true");
    m_Drawing.m_Default = false;
    EXPECT_THAT(Draw(), Not(Draws("DrawString*")));
    m_List.SetItemDrawing(nullptr);
    EXPECT_THAT(Draw(), Draws("DrawString \"one\"*"));
}

// Places --------------------------------------------------------------------------------------------------------------------

TEST_F(List, AHitIsTheLineWithTheSpacingBehindIt)
{
    EXPECT_EQ(m_List.HitTest({0, 5}), 0);
    EXPECT_EQ(m_List.HitTest({50, 23}), 0);
    EXPECT_EQ(m_List.HitTest({50, 24}), 1);
    EXPECT_EQ(m_List.HitTest({50, 42}), 1);
    EXPECT_EQ(m_List.HitTest({50, 43}), 2);
    EXPECT_EQ(m_List.HitTest({50, 4}), 0);
    EXPECT_EQ(m_List.HitTest({50, -100}), 0);
    EXPECT_EQ(m_List.HitTest({-50, 195}), 10);
}

TEST_F(List, LinesWithoutAHeightAreAllTheFirst)
{
    m_List.SetModel(nullptr);
    m_List.SetLineHeight(3);
    m_List.SetLineSpacing(-3);
    EXPECT_EQ(m_List.HitTest({5, 50}), 0);
}

TEST_F(List, ALineReachesFromMarginToMarginWithTheSpacingBehindIt)
{
    EXPECT_EQ(m_List.GetItemRect(0), (Rect{5, 5, 94, 24}));
    EXPECT_EQ(m_List.GetItemRect(2), (Rect{5, 43, 94, 62}));
    m_List.SetModel(nullptr);
    m_List.SetOffset({1, 2, 3, 4});
    EXPECT_EQ(m_List.GetItemRect(1), (Rect{1, 21, 96, 40}));
}

// Mouse ---------------------------------------------------------------------------------------------------------------------

TEST_F(List, APressAndAReleaseOnOneLineAreAClick)
{
    m_Host.Mouse().Move(m_List, 10, 25);
    EXPECT_EQ(m_List.GetHotItem(), 1);
    m_Host.Mouse().Press();
    EXPECT_EQ(m_Log.Text(), "");
    m_Host.Mouse().Move(m_List, 80, 41);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Text(), "clicked(1)");
}

TEST_F(List, APressThatLeavesItsLineIsNoClickEvenIfItComesBack)
{
    m_Host.Mouse().Press(m_List, 10, 10);
    m_Host.Mouse().Move(m_List, 10, 30);
    m_Host.Mouse().Release();
    m_Host.Mouse().Press(m_List, 10, 10);
    m_Host.Mouse().Move(m_List, 10, 30);
    m_Host.Mouse().Move(m_List, 10, 10);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(List, OnlyTheLeftButtonClicks)
{
    m_Host.Mouse().Click(m_List, 10, 10, mbRight);
    m_Host.Mouse().Click(m_List, 10, 10, mbMiddle);
    EXPECT_EQ(m_Log.Text(), "");
    m_Host.Mouse().Press(m_List, 10, 10, mbLeft);
    m_Host.Mouse().Press(m_List, 10, 10, mbRight);
    m_Host.Mouse().Release(mbRight);
    EXPECT_EQ(m_Log.Text(), "");
    m_Host.Mouse().Release(mbLeft);
    EXPECT_EQ(m_Log.Text(), "clicked(0)");
}

TEST_F(List, AHotLineBehindTheLastReportsAClickToo)
{
    m_Model.Set({"one"});
    m_Host.Mouse().Click(m_List, 10, 50);
    EXPECT_EQ(m_Log.Text(), "clicked(2)");
    EXPECT_EQ(m_List.GetHotItem(), 2);
}

TEST_F(List, AnotherHotLineRepaintsItIfItIsTracked)
{
    m_Host.Mouse().Move(m_List, 10, 10);
    m_Host.Mouse().Move(m_List, 10, 30);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_List.SetHotTrack(true);
    m_Host.Mouse().Move(m_List, 10, 31);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Host.Mouse().Move(m_List, 10, 10);
    EXPECT_EQ(m_Host.Paint().Elements(), "list");
}

TEST_F(List, ThePointerLeavesNothingHotBehind)
{
    m_Host.Mouse().Press(m_List, 10, 10);
    m_Host.Mouse().Move(10, 90);
    EXPECT_EQ(m_List.GetHotItem(), -1);
    EXPECT_FALSE(m_Host.IsFramePending());
    m_Host.Mouse().Move(m_List, 10, 10);
    m_Host.Mouse().Release();
    EXPECT_EQ(m_Log.Text(), "");
    m_List.SetHotTrack(true);
    m_Host.Paint();
    m_Host.Mouse().Move(10, 90);
    EXPECT_EQ(m_Host.Paint().Elements(), "list");
}

TEST_F(List, AReleaseByAnotherButtonKeepsThePressedLine)
{
    m_List.HandleMouseMove(10, 10, 0, mbNone);
    m_List.HandleButtonDown(10, 10, ksLeft, mbLeft);
    m_List.HandleButtonDown(10, 10, ksLeft | ksMiddle, mbMiddle);
    m_List.HandleButtonUp(10, 10, ksLeft, mbMiddle);
    m_List.HandleButtonUp(10, 10, 0, mbLeft);
    EXPECT_EQ(m_Log.Text(), "clicked(0)");
}
