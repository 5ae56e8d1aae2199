// An element as text, and the way of that text to the clipboard.

#include "tests/support/call_log.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"
#include "tests/support/slot.h"

#include <gtest/gtest.h>

#include <deque>

using namespace vexel;

namespace
{

class AsString : public testing::Test
{
protected:
    // A child with its left-top at (left, top).
    CRecordingElement& Child(int left, int top, std::string const& text)
    {
        CRecordingElement& child = m_Children.emplace_back(m_Log, "child", &m_Parent);
        child.SetPos({left, top, left + 10, top + 10}, false);
        child.m_Text = text;
        return child;
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingElement m_Parent{m_Log, "parent"};
    std::deque<CRecordingElement> m_Children;
};

TEST_F(AsString, OfAnElementWithoutTextAndChildrenIsEmpty)
{
    EXPECT_EQ(m_Parent.AsString(), "");
}

TEST_F(AsString, TheSignalIsAskedFirstAndItsTextIsTheAnswer)
{
    m_Parent.m_Text = "own";
    std::string given = "?";
    auto const slot = Listen(m_Parent.m_SigAsString, [&](CVisualElement* element, std::string& text) {
        EXPECT_EQ(element, &m_Parent);
        given = text;
        text = "from the slot";
    });
    m_Log.Clear();

    EXPECT_EQ(m_Parent.AsString(), "from the slot");

    EXPECT_EQ(given, "");
    EXPECT_EQ(m_Log.Take(), "");  // the element itself isn't asked
}

TEST_F(AsString, ASlotThatGivesNothingLeavesTheAnswerToTheElement)
{
    m_Parent.m_Text = "own";
    auto const slot = Listen(m_Parent.m_SigAsString, [](CVisualElement*, std::string&) {});

    EXPECT_EQ(m_Parent.AsString(), "own");
}

TEST_F(AsString, AnElementWithTextDoesNotLookAtItsChildren)
{
    m_Parent.m_Text = "own";
    Child(0, 0, "child");
    m_Log.Clear();

    EXPECT_EQ(m_Parent.AsString(), "own");

    EXPECT_EQ(m_Log.Take(), "parent.HandleAsString()");
}

TEST_F(AsString, ChildrenOfOneRowAreSeparatedByATab)
{
    Child(0, 5, "a");
    Child(20, 5, "b");
    Child(40, 5, "c");

    EXPECT_EQ(m_Parent.AsString(), "a\tb\tc");
}

TEST_F(AsString, RowsAreSeparatedByAnEmptyLine)
{
    Child(0, 0, "a");
    Child(0, 1, "b");

    EXPECT_EQ(m_Parent.AsString(), "a\n\nb");
}

TEST_F(AsString, ChildrenAreSortedByTopThenByLeft)
{
    Child(0, 20, "d");
    Child(30, 0, "b");
    Child(-5, 0, "a");
    Child(90, -3, "first");
    Child(40, 0, "c");

    EXPECT_EQ(m_Parent.AsString(), "first\n\na\tb\tc\n\nd");
}

TEST_F(AsString, SortingLeavesTheChildrenInTheirOrder)
{
    CRecordingElement& lower = Child(0, 20, "b");
    CRecordingElement& upper = Child(0, 0, "a");

    m_Parent.AsString();

    EXPECT_EQ(m_Parent.GetChildren()->GetItem(0), &lower);
    EXPECT_EQ(m_Parent.GetChildren()->GetItem(1), &upper);
}

TEST_F(AsString, ATextWithALineFeedIsFollowedByAnEmptyLine)
{
    Child(0, 0, "a\nb");
    Child(20, 0, "c");
    Child(40, 0, "d");

    EXPECT_EQ(m_Parent.AsString(), "a\nb\n\nc\td");
}

TEST_F(AsString, ALineFeedInTheNextTextDoesNotMatter)
{
    Child(0, 0, "a");
    Child(20, 0, "b\nc");

    EXPECT_EQ(m_Parent.AsString(), "a\tb\nc");
}

TEST_F(AsString, HiddenChildrenAreLeftOut)
{
    Child(0, 0, "a");
    Child(20, 0, "b").SetVisible(false);
    Child(40, 0, "c");

    EXPECT_EQ(m_Parent.AsString(), "a\tc");
}

TEST_F(AsString, DisabledChildrenAreNot)
{
    Child(0, 0, "a");
    Child(20, 0, "b").SetEnabled(false);

    EXPECT_EQ(m_Parent.AsString(), "a\tb");
}

TEST_F(AsString, AnEmptyTextLeavesNoSeparator)
{
    Child(0, 0, "");
    Child(20, 0, "a");
    Child(40, 0, "");
    Child(60, 0, "b");
    Child(80, 0, "");

    EXPECT_EQ(m_Parent.AsString(), "a\tb");
}

TEST_F(AsString, AnEmptyTextIsNotTheLastOneWhoseRowCounts)
{
    Child(0, 0, "a");
    Child(0, 10, "");
    Child(20, 10, "b");

    EXPECT_EQ(m_Parent.AsString(), "a\n\nb");
}

TEST_F(AsString, AnEmptyTextDoesNotHideTheLineFeedBeforeIt)
{
    Child(0, 0, "a\nb");
    Child(10, 0, "");
    Child(20, 0, "c");

    EXPECT_EQ(m_Parent.AsString(), "a\nb\n\nc");
}

TEST_F(AsString, AChildAnswersWithItsOwnChildren)
{
    CRecordingElement& left = Child(0, 0, "");
    CRecordingElement inner(m_Log, "inner", &left);
    inner.m_Text = "x";
    CRecordingElement lower(m_Log, "lower", &left);
    lower.SetPos({0, 5, 1, 6}, false);
    lower.m_Text = "y";
    Child(20, 0, "b");

    EXPECT_EQ(m_Parent.AsString(), "x\n\ny\n\nb");
}

TEST_F(AsString, TheSignalOfAChildIsAskedToo)
{
    CRecordingElement& child = Child(0, 0, "own");
    Child(20, 0, "b");
    auto const slot = Listen(child.m_SigAsString, [](CVisualElement*, std::string& text) { text = "slot"; });

    EXPECT_EQ(m_Parent.AsString(), "slot\tb");
}

TEST_F(AsString, PositionsAreComparedByTopThenByLeft)
{
    CRecordingElement& a = Child(10, 5, "");
    CRecordingElement& b = Child(20, 5, "");
    CRecordingElement& c = Child(0, 6, "");
    PositionComparer const before;

    EXPECT_TRUE(before(&a, &b));
    EXPECT_FALSE(before(&b, &a));
    EXPECT_TRUE(before(&b, &c));
    EXPECT_FALSE(before(&c, &b));
    EXPECT_FALSE(before(&a, &a));
}

// To the clipboard -----------------------------------------------------------------------------------------------------------

TEST_F(AsString, TheFreeCopyHandsTheTextToTheClipboard)
{
    Child(0, 0, "a");
    Child(20, 0, "b");

    EXPECT_TRUE(CopyToClipboard(&m_Parent));

    EXPECT_EQ(m_System.m_Clipboard, "a\tb");
}

TEST_F(AsString, TheFreeCopyOfNoTextLeavesTheClipboardAsItIs)
{
    m_System.m_Clipboard = "before";

    EXPECT_FALSE(CopyToClipboard(&m_Parent));

    EXPECT_EQ(m_System.m_Clipboard, "before");
}

TEST_F(AsString, AnElementDoesNotCopyItselfByDefault)
{
    m_Parent.m_Text = "own";
    m_System.m_Clipboard = "before";
    m_Log.Clear();

    EXPECT_FALSE(m_Parent.CopyToClipboard());

    EXPECT_EQ(m_System.m_Clipboard, "before");
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(AsString, AnElementThatAllowsItCopiesItself)
{
    m_Parent.m_Text = "own";
    m_Parent.m_CopyEnabled = true;

    EXPECT_TRUE(m_Parent.CopyToClipboard());

    EXPECT_EQ(m_System.m_Clipboard, "own");
}

TEST_F(AsString, AnElementThatAllowsItButHasNoTextCopiesNothing)
{
    m_Parent.m_CopyEnabled = true;

    EXPECT_FALSE(m_Parent.CopyToClipboard());
}

TEST_F(AsString, ASlotMayAllowCopying)
{
    m_Parent.m_Text = "own";
    bool given = true;
    auto const slot = Listen(m_Parent.m_SigCopyToClipboard, [&](CVisualElement* element, bool& allowed) {
        EXPECT_EQ(element, &m_Parent);
        given = allowed;
        allowed = true;
    });

    EXPECT_TRUE(m_Parent.CopyToClipboard());

    EXPECT_FALSE(given);
    EXPECT_EQ(m_System.m_Clipboard, "own");
}

TEST_F(AsString, ASlotMayForbidCopying)
{
    m_Parent.m_Text = "own";
    m_Parent.m_CopyEnabled = true;
    bool given = false;
    auto const slot = Listen(m_Parent.m_SigCopyToClipboard, [&](CVisualElement*, bool& allowed) {
        given = allowed;
        allowed = false;
    });
    m_Log.Clear();

    EXPECT_FALSE(m_Parent.CopyToClipboard());

    EXPECT_TRUE(given);
    EXPECT_EQ(m_System.m_Clipboard, "");
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(AsString, TheHandlersAnswerIsTheAnswer)
{
    m_Parent.m_CopyEnabled = true;
    m_Parent.m_CopyAnswer = true;
    EXPECT_TRUE(m_Parent.CopyToClipboard());

    m_Parent.m_Text = "own";
    m_Parent.m_CopyAnswer = false;
    EXPECT_FALSE(m_Parent.CopyToClipboard());
    EXPECT_EQ(m_System.m_Clipboard, "");
}

} // namespace
