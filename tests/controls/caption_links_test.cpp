// Links in captions: where they stand, what the pointer shows, what a click does.

#include "tests/support/slot.h"
#include "vexel/controls/caption.h"
#include "vexel/core/base_control.h"
#include "vexel/signals/cancel_processing.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <memory>

using namespace vexel;
using namespace vexel::test;

namespace
{

// A caption at (0, 10, 199, 50), its text from (1, 10) on.
class CaptionLinks : public testing::Test
{
protected:
    CaptionLinks()
    {
        m_Caption.SetTextAlign(IPainter::AlignLeft | IPainter::AlignTop);
        m_Caption.UseHTML(true);
        m_Log.Add(m_Caption.m_LinkClicked, "link").Add(m_Host.Control().m_SigHelp, "help");
    }
    void Show(std::string const& text)
    {
        m_Caption.SetCaption(text);
        m_Host.Paint();
    }

    CTestHost m_Host{200, 100};
    CVisualElement& m_Above = *new CVisualElement(m_Host.Root(), {0, 9}, alTop);
    CCaption& m_Caption = *new CCaption(m_Host.Root(), {0, 40}, alTop);
    CSignalLog m_Log;
};

}  // namespace

TEST_F(CaptionLinks, AClickOnALinkIsToldAndThenAsksForHelp)
{
    Show("go <a href=\"there\">on</a> now");  // "on": x 25 to 40 of the element, y 0 to 7

    m_Host.Mouse().Click(m_Caption, 30, 4);

    EXPECT_EQ(m_Log.Text(), "link(\"there\", false) help(\"there\")");
}

TEST_F(CaptionLinks, ASlotThatTakesCareOfTheLinkKeepsTheHelpFromBeingAsked)
{
    auto const care = Listen(m_Caption.m_LinkClicked, [](std::string const&, bool& handled) { handled = true; });
    Show("go <a href=\"there\">on</a> now");

    m_Host.Mouse().Click(m_Caption, 30, 4);

    EXPECT_EQ(m_Log.Text(), "link(\"there\", false)");
}

TEST_F(CaptionLinks, OnlyTheLeftButtonOnALinkIsConsumed)
{
    Show("go <a href=\"there\">on</a> now");
    EXPECT_TRUE(m_Caption.HandleButtonDown(30, 4, 1, mbLeft));
    EXPECT_FALSE(m_Caption.HandleButtonDown(30, 4, 0, mbRight));
    EXPECT_FALSE(m_Caption.HandleButtonDown(10, 4, 1, mbLeft));
    m_Caption.UseHTML(false);
    EXPECT_FALSE(m_Caption.HandleButtonDown(30, 4, 1, mbLeft));
    EXPECT_EQ(m_Log.Text(), "link(\"there\", false) help(\"there\")");
}

TEST_F(CaptionLinks, ALinkInATextThatWasNeverDrawnIsNotFound)
{
    m_Caption.SetCaption("<a href=\"there\">on</a>");
    EXPECT_FALSE(m_Caption.HandleButtonDown(5, 4, 1, mbLeft));
    EXPECT_FALSE(m_Caption.HandleMouseMove(5, 4, 0, mbNone));
    EXPECT_EQ(m_Log.Text(), "");
}

TEST_F(CaptionLinks, ARecalculationForgetsTheLinksUntilTheNextDrawing)
{
    Show("<a href=\"there\">on</a>");
    m_Caption.RecalculateSize();
    EXPECT_FALSE(m_Caption.HandleButtonDown(5, 4, 1, mbLeft));
    m_Host.FullPaint();
    EXPECT_TRUE(m_Caption.HandleButtonDown(5, 4, 1, mbLeft));
}

TEST_F(CaptionLinks, MeasuringAddsNoLinks)
{
    m_Caption.SetAutoSize(true);
    m_Caption.SetCaption("<a href=\"there\">on</a>");
    EXPECT_FALSE(m_Caption.HandleButtonDown(5, 4, 1, mbLeft));
}

TEST_F(CaptionLinks, TheGapBetweenTwoLinksOfALineBelongsToNeither)
{
    Show("<a href=\"a\">aa</a>   <a href=\"b\">bb</a>");  // 1 to 16, 41 to 56
    m_Host.Mouse().Press(m_Caption, 10, 4);
    m_Host.Mouse().Press(m_Caption, 28, 4);
    m_Host.Mouse().Press(m_Caption, 50, 4);
    EXPECT_EQ(m_Log.Text(), "link(\"a\", false) help(\"a\") link(\"b\", false) help(\"b\")");
}

TEST_F(CaptionLinks, TheSecondLineOfALinkHasTheTargetOfTheFirst)
{
    m_Host.Resize(60, 100);  // 7 characters a line
    Show("x <a href=\"there\">aaaa bbbb</a> <a href=\"other\">cc</a>");
    EXPECT_TRUE(m_Caption.HandleButtonDown(4, 12, 1, mbLeft));   // "bbbb"
    EXPECT_TRUE(m_Caption.HandleButtonDown(20, 4, 1, mbLeft));   // "aaaa"
    EXPECT_TRUE(m_Caption.HandleButtonDown(45, 12, 1, mbLeft));  // "cc"
    EXPECT_EQ(m_Log.Text(), "link(\"there\", false) help(\"there\") link(\"there\", false) help(\"there\") "
                            "link(\"other\", false) help(\"other\")");
}

TEST_F(CaptionLinks, ThePointerIsAHandOverALinkAndAnArrowElsewhere)
{
    Show("go <a href=\"there\">on</a> now");
    m_Host.Mouse().Move(m_Caption, 30, 4);
    EXPECT_EQ(m_Host.Window().GetCursor(), 12);
    m_Host.Mouse().Move(m_Caption, 10, 4);
    EXPECT_EQ(m_Host.Window().GetCursor(), 1);
    EXPECT_TRUE(m_Caption.HandleMouseMove(30, 4, 0, mbNone));
    EXPECT_EQ(m_Caption.GetCursor(), 12);
    EXPECT_FALSE(m_Caption.HandleMouseMove(10, 4, 1, mbLeft));  // with a button or a key held nothing changes
    EXPECT_EQ(m_Caption.GetCursor(), 12);
}

TEST_F(CaptionLinks, WithoutMarkupThePointerIsLeftAlone)
{
    m_Caption.UseHTML(false);
    Show("plain");
    EXPECT_FALSE(m_Caption.HandleMouseMove(3, 3, 0, mbNone));
}

TEST_F(CaptionLinks, ACaptionMayBeDeletedByTheClickOnItsLink)
{
    Show("<a href=\"there\">on</a>");
    auto const end = Listen(m_Caption.m_LinkClicked, [&](std::string const&, bool&) { delete &m_Caption; });
    m_Host.Mouse().Click(m_Caption, 5, 4);
    EXPECT_EQ(m_Log.Count("help"), 0);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
}

TEST_F(CaptionLinks, ACaptionWhoseParentDiesInTheClickDiesWithIt)
{
    auto* const pane = new CVisualElement(m_Host.Root(), {0, 30}, alTop);
    auto* const caption = new CCaption(pane, {0, 20}, alTop);
    caption->SetTextAlign(IPainter::AlignLeft | IPainter::AlignTop);
    caption->UseHTML(true);
    caption->SetCaption("<a href=\"there\">on</a>");
    m_Host.Paint();
    auto const end = Listen(caption->m_LinkClicked, [&](std::string const&, bool&) { delete pane; });
    m_Host.Mouse().Click(*caption, 5, 4);
    EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 2);
}

TEST_F(CaptionLinks, TheTextMayBeReplacedInTheClick)
{
    auto const next = Listen(m_Caption.m_LinkClicked, [&](std::string const& target, bool& handled) {
        m_Caption.SetCaption("now");
        m_Log.Note("still " + target);
        handled = true;
    });
    Show("<a href=\"there\">on</a>");
    m_Host.Mouse().Click(m_Caption, 5, 4);
    EXPECT_EQ(m_Log.Text(), "link(\"there\", false) still there");
}

TEST_F(CaptionLinks, WithoutMarkupTheLinksOfTheLastDrawingAreNoMore)
{
    Show("<a href=\"there\">on</a>");
    m_Caption.UseHTML(false);
    EXPECT_FALSE(m_Caption.HandleMouseMove(5, 4, 0, mbNone));
    EXPECT_FALSE(m_Caption.HandleButtonDown(5, 4, 1, mbLeft));
    EXPECT_EQ(m_Caption.GetCursor(), 1);
}

TEST_F(CaptionLinks, TheEventEndsWithTheCaption)
{
    Show("<a href=\"there\">on</a>");
    auto const end = Listen(m_Caption.m_LinkClicked, [&](std::string const&, bool&) { delete &m_Caption; });
    EXPECT_THROW(m_Caption.HandleButtonDown(5, 4, 1, mbLeft), vexel::cancel_processing);
}

TEST_F(CaptionLinks, TheControlMayBeDeletedByTheClickOnALink)
{
    CSignalLog log(m_Caption.m_LinkClicked, "link");
    Show("<a href=\"there\">on</a>");
    auto const end = Listen(m_Caption.m_LinkClicked, [&](std::string const&, bool&) { m_Host.DestroyControl(); });
    m_Host.Mouse().Press(m_Caption, 5, 4);
    EXPECT_FALSE(m_Host.HasControl());
    EXPECT_EQ(log.Text(), "link(\"there\", false)");
    EXPECT_EQ(m_Log.Count("help"), 0);
}

TEST_F(CaptionLinks, CaptionOrControlMayBeDeletedByTheHelpThatALinkAsksFor)
{
    Show("<a href=\"there\">on</a>");
    {
        auto const end =
            Listen(m_Host.Control().m_SigHelp, [&](CBaseControl*, std::string const&) { delete &m_Caption; });
        m_Host.Mouse().Click(m_Caption, 5, 4);
        EXPECT_EQ(m_Host.Root()->GetChildren()->GetCount(), 1);
    }
    auto* const next = new CCaption(m_Host.Root(), {0, 20}, alTop);
    next->UseHTML(true);
    next->SetTextAlign(IPainter::AlignLeft | IPainter::AlignTop);
    next->SetCaption("<a href=\"there\">on</a>");
    m_Host.Paint();
    auto const end =
        Listen(m_Host.Control().m_SigHelp, [&](CBaseControl*, std::string const&) { m_Host.DestroyControl(); });
    m_Host.Mouse().Press(*next, 5, 4);
    EXPECT_FALSE(m_Host.HasControl());
}

TEST_F(CaptionLinks, ALinkOfACaptionWithoutAControlIsTold)
{
    CCaption alone(nullptr, {0, 0}, alNone);
    alone.SetPos({0, 0, 100, 20}, true);
    alone.SetTextAlign(IPainter::AlignLeft | IPainter::AlignTop);
    alone.UseHTML(true);
    alone.SetCaption("<a href=\"there\">on</a>");
    CSignalLog log(alone.m_LinkClicked, "link");
    IPainter& painter = *m_Host.Window().GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    font square;
    square.size = 8;
    painter.SetFont(square);
    alone.DrawContent(&painter);
    painter.EndPaint();

    EXPECT_TRUE(alone.HandleButtonDown(5, 4, 1, mbLeft));
    EXPECT_EQ(log.Text(), "link(\"there\", false)");
}

TEST_F(CaptionLinks, LinksAreFoundInACaptionDeepInTheTree)
{
    auto* const left = new CVisualElement(m_Host.Root(), {29, 0}, alLeft);   // to y 51
    auto* const pane = new CVisualElement(m_Host.Root(), {0, 0}, alClient);  // (30, 51, 199, 99)
    new CVisualElement(pane, {0, 6}, alTop);
    auto* const deep = new CCaption(pane, {0, 20}, alTop);  // (0, 7, 169, 27) of the pane
    deep->SetTextAlign(IPainter::AlignLeft | IPainter::AlignTop);
    deep->UseHTML(true);
    deep->SetCaption("go <a href=\"deep\">on</a>");
    CSignalLog log(deep->m_LinkClicked, "link");
    m_Host.Paint();
    ASSERT_EQ(left->GetPos().right, 29);
    EXPECT_FALSE(deep->HandleButtonDown(24, 4, 1, mbLeft));
    EXPECT_TRUE(deep->HandleButtonDown(25, 0, 1, mbLeft));
    EXPECT_TRUE(deep->HandleButtonDown(40, 7, 1, mbLeft));
    EXPECT_FALSE(deep->HandleButtonDown(41, 7, 1, mbLeft));
    EXPECT_FALSE(deep->HandleButtonDown(40, 8, 1, mbLeft));
    EXPECT_EQ(log.Count(), 2);
    deep->HandleMouseMove(30, 4, 0, mbNone);
    EXPECT_EQ(deep->GetCursor(), 12);
    deep->HandleMouseMove(42, 4, 0, mbNone);
    EXPECT_EQ(deep->GetCursor(), 1);
}

TEST_F(CaptionLinks, ThePointerLosesTheHandBesideLinksAndWithANewText)
{
    Show("<a href=\"there\">on</a>");
    m_Caption.HandleMouseMove(5, 4, 0, mbNone);
    EXPECT_EQ(m_Caption.GetCursor(), 12);
    EXPECT_TRUE(m_Caption.HandleMouseMove(50, 4, 0, mbNone));
    EXPECT_EQ(m_Caption.GetCursor(), 1);
    m_Caption.HandleMouseMove(5, 4, 0, mbNone);
    m_Caption.SetCaption("");
    EXPECT_EQ(m_Caption.GetCursor(), 1);
    EXPECT_FALSE(m_Caption.HandleMouseMove(5, 4, 0, mbNone));
}

TEST_F(CaptionLinks, PiecesAreTakenUpFromTheRecalculationToTheEndOfTheDrawing)
{
    Show("plain");
    m_Caption.OnDrawLink("late", 4, {0, 0, 199, 99});
    EXPECT_FALSE(m_Caption.HandleButtonDown(5, 4, 1, mbLeft)) << "the drawing is over";
    m_Caption.RecalculateSize();
    m_Caption.OnDrawLink("later", 4, {0, 0, 199, 99});
    EXPECT_TRUE(m_Caption.HandleButtonDown(5, 4, 1, mbLeft));
    EXPECT_EQ(m_Log.Text(), "link(\"late\", false) help(\"late\")");
    m_Host.FullPaint();
    EXPECT_FALSE(m_Caption.HandleButtonDown(5, 4, 1, mbLeft)) << "a drawing begins anew";
}

TEST_F(CaptionLinks, WithoutAControlARecalculationKeepsTheLinks)
{
    CCaption alone(nullptr, {0, 0}, alNone);
    alone.UseHTML(true);
    alone.OnDrawLink("there", 5, {0, 0, 10, 10});
    alone.RecalculateSize();
    EXPECT_TRUE(alone.HandleButtonDown(5, 4, 1, mbLeft));
}

TEST_F(CaptionLinks, ALinkIsFoundWhereItsCaptionWasMovedTo)
{
    auto& free = *new CCaption(m_Host.Root(), {80, 20}, alNone);
    free.SetPos({10, 60, 90, 80}, true);
    free.SetTextAlign(IPainter::AlignLeft | IPainter::AlignTop);
    free.UseHTML(true);
    free.SetCaption("<a href=\"there\">on</a>");
    m_Host.Paint();
    EXPECT_TRUE(free.HandleButtonDown(5, 4, 1, mbLeft));
    free.SetPos({40, 70, 120, 90}, false);
    m_Host.Paint();
    EXPECT_TRUE(free.HandleButtonDown(5, 4, 1, mbLeft));
}

TEST_F(CaptionLinks, EachStyleOfALinkThatReadsUpwardHasItsTarget)
{
    font upward;
    upward.size = 8;  // a font without a size is the default one, upright
    upward.rotation = 900;
    m_Caption.SetFont(upward);
    Show("go <a href=\"there\">aa<b>bb</b></a>");  // the second line, x 9 to 16: "aa" at y 18 to 33, "bb" above
    m_Caption.HandleButtonDown(12, 5, 1, mbLeft);
    m_Caption.HandleButtonDown(12, 25, 1, mbLeft);
    EXPECT_EQ(m_Log.Text(), "link(\"there\", false) help(\"there\") link(\"there\", false) help(\"there\")");
    EXPECT_FALSE(m_Caption.HandleButtonDown(5, 5, 1, mbLeft)) << "beside the first line";
    EXPECT_FALSE(m_Caption.HandleButtonDown(12, 34, 1, mbLeft));
}

// Turned text ---------------------------------------------------------------------------------------------------------------

namespace
{

// A caption at the left edge whose text runs downward, each line to the left of the one before: 100 wide, so that the
// first line has x 91 to 98, and 60 high, which is room for 7 characters.
class TurnedLinks : public testing::Test
{
protected:
    TurnedLinks()
    {
        m_Caption.SetTextAlign(IPainter::AlignLeft | IPainter::AlignTop);
        m_Caption.UseHTML(true);
        m_Caption.SetTextLayout(true);
        m_Log.Add(m_Caption.m_LinkClicked, "link");
    }
    void Show(std::string const& text)
    {
        m_Caption.SetCaption(text);
        m_Host.Paint();
    }

    CTestHost m_Host{200, 60};
    CCaption& m_Caption = *new CCaption(m_Host.Root(), {100, 0}, alLeft);
    CSignalLog m_Log;
};

}  // namespace

TEST_F(TurnedLinks, ALinkStandsWhereItIsDrawn)
{
    Show("x <a href=\"there\">on</a>");  // from 16 to 31
    EXPECT_TRUE(m_Caption.HandleButtonDown(91, 16, 1, mbLeft));
    EXPECT_TRUE(m_Caption.HandleButtonDown(98, 31, 1, mbLeft));
    EXPECT_FALSE(m_Caption.HandleButtonDown(90, 20, 1, mbLeft));
    EXPECT_FALSE(m_Caption.HandleButtonDown(99, 20, 1, mbLeft));
    EXPECT_FALSE(m_Caption.HandleButtonDown(95, 15, 1, mbLeft));
    EXPECT_FALSE(m_Caption.HandleButtonDown(95, 32, 1, mbLeft));
}

TEST_F(TurnedLinks, TheSecondLineOfALinkHasTheTargetOfTheFirst)
{
    Show("x <a href=\"there\">aaaa bbbb</a> <a href=\"other\">cc</a>");
    m_Caption.HandleButtonDown(95, 20, 1, mbLeft);  // "aaaa"
    m_Caption.HandleButtonDown(86, 10, 1, mbLeft);  // "bbbb"
    m_Caption.HandleButtonDown(86, 44, 1, mbLeft);  // "cc"
    EXPECT_EQ(m_Log.Text(), "link(\"there\", false) link(\"there\", false) link(\"other\", false)");
}

TEST_F(TurnedLinks, ALinkOverThreeLinesHasOneTarget)
{
    Show("<a href=\"a\">a</a> <a href=\"there\">bbbb ccccccc ddddd</a>");
    m_Caption.HandleButtonDown(95, 3, 1, mbLeft);   // "a"
    m_Caption.HandleButtonDown(95, 20, 1, mbLeft);  // "bbbb"
    m_Caption.HandleButtonDown(86, 3, 1, mbLeft);   // "ccccccc"
    m_Caption.HandleButtonDown(78, 3, 1, mbLeft);   // "ddddd"
    EXPECT_EQ(m_Log.Text(), "link(\"a\", false) link(\"there\", false) link(\"there\", false) link(\"there\", false)");
}

// The holder --------------------------------------------------------------------------------------------------------------

TEST(LinkHolder, StartsEmptyAndNotValid)
{
    CCaption::LinkHolder holder;
    EXPECT_FALSE(holder.IsValid());
    EXPECT_TRUE(holder.IsEmpty());
    EXPECT_FALSE(holder.IsLink({0, 0}));
    EXPECT_EQ(holder.GetLink({0, 0}), "");
}

TEST(LinkHolder, LinksAreSortedAgainstReadingOrder)
{
    CCaption::SLinkComparer const comparer;
    CCaption::Link const first{"a", {0, 0, 5, 5}};
    CCaption::Link const second{"b", {6, 0, 9, 5}};
    CCaption::Link const third{"c", {0, 6, 5, 9}};
    EXPECT_TRUE(comparer(third, second));
    EXPECT_TRUE(comparer(second, first));
    EXPECT_FALSE(comparer(first, second));
    EXPECT_FALSE(comparer(first, first));
}

TEST(LinkHolder, ALaterPieceFindsTheTargetBeforeIt)
{
    CCaption::LinkHolder holder;
    holder.AddLink("first link", 5, {10, 0, 20, 8});
    holder.AddLink(nullptr, 0, {0, 9, 20, 17});
    holder.AddLink("second", 6, {30, 9, 40, 17});
    holder.SetValid(true);
    EXPECT_EQ(holder.GetLink({0, 17}), "first");
    EXPECT_EQ(holder.GetLink({20, 0}), "first");
    EXPECT_EQ(holder.GetLink({35, 10}), "second");
    EXPECT_EQ(holder.GetLink({25, 10}), "");
    EXPECT_TRUE(holder.IsLink({5, 12}));
    EXPECT_FALSE(holder.IsLink({5, 4}));
}

TEST(LinkHolder, APieceWithoutAnyTargetBeforeItHasNone)
{
    CCaption::LinkHolder holder;
    holder.AddLink(nullptr, 0, {0, 0, 5, 5});
    holder.AddLink("late", 4, {6, 0, 9, 5});
    holder.SetValid(true);
    EXPECT_EQ(holder.GetLink({2, 2}), "");
    EXPECT_TRUE(holder.IsLink({2, 2}));
}

TEST(LinkHolder, BecomingInvalidForgetsAll)
{
    CCaption::LinkHolder holder;
    holder.AddLink("a", 1, {0, 0, 5, 5});
    holder.SetValid(true);
    EXPECT_TRUE(holder.IsValid());
    holder.SetValid(false);
    EXPECT_TRUE(holder.IsEmpty());
    EXPECT_FALSE(holder.IsValid());
}

TEST(LinkHolder, OnlyKnownLinksAreInOrder)
{
    CCaption::LinkHolder holder;
    holder.AddLink("first", 5, {0, 0, 20, 8});
    holder.AddLink(nullptr, 7, {0, 9, 20, 17});
    EXPECT_EQ(holder.GetLink({5, 12}), "");
    EXPECT_TRUE(holder.IsLink({5, 12}));
    holder.SetValid(true);
    EXPECT_EQ(holder.GetLink({5, 12}), "first");
}

TEST(LinkHolder, OfTwoLinksUnderAPointTheLowerThenTheRighterWins)
{
    CCaption::LinkHolder holder;
    holder.AddLink("upper", 5, {0, 0, 20, 8});
    holder.AddLink("left", 4, {0, 2, 20, 8});
    holder.AddLink("right", 5, {3, 2, 20, 8});
    holder.SetValid(true);
    EXPECT_EQ(holder.GetLink({10, 5}), "right");
    EXPECT_EQ(holder.GetLink({2, 5}), "left");
    EXPECT_EQ(holder.GetLink({2, 1}), "upper");
}

TEST(LinkHolder, AnEmptyTargetIsNone)
{
    CCaption::LinkHolder holder;
    holder.AddLink("x", 0, {0, 0, 20, 8});
    holder.SetValid(true);
    EXPECT_TRUE(holder.IsLink({5, 5}));
    EXPECT_EQ(holder.GetLink({5, 5}), "");
}
