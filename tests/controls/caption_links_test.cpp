// Links in captions: where they stand, what the pointer shows, what a click does.

#include "tests/support/slot.h"
#include "vexel/controls/caption.h"
#include "vexel/core/base_control.h"
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
