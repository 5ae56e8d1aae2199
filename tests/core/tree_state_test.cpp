// Visible, enabled, cursor: the flags of an element and what a change of them tells the tree.

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/recording_window.h"
#include "tests/support/scripted_system.h"
#include "tests/support/slot.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

// root > middle > (first > leaf, second)
class TreeState : public testing::Test
{
protected:
    TreeState()
    {
        m_Control.m_Window = &m_Window;
        m_Root.SetControl(&m_Control);
        m_Log.Clear();
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingControl m_Control{m_Log};
    CRecordingWindow m_Window{m_Log, 100, 50};
    CRecordingElement m_Root{m_Log, "root", nullptr, {0, 0}, alClient};
    CRecordingElement m_Middle{m_Log, "middle", &m_Root, {10, 10}, alLeft};
    CRecordingElement m_First{m_Log, "first", &m_Middle, {10, 10}, alNone};
    CRecordingElement m_Leaf{m_Log, "leaf", &m_First, {10, 10}, alNone};
    CRecordingElement m_Second{m_Log, "second", &m_Middle, {10, 10}, alNone};
};

// Visible ----------------------------------------------------------------------------------------------------------------

TEST_F(TreeState, HidingTellsTheSignalTheElementItsDescendantsFromBelowAndThenAsksForALayout)
{
    auto const slot = Listen(m_Middle.m_SigVisible, [&](CVisualElement* element, bool visible) {
        EXPECT_EQ(element, &m_Middle);
        EXPECT_FALSE(element->IsVisible());
        m_Log.Add("slot", "SigVisible", visible ? "true" : "false");
    });

    m_Middle.SetVisible(false);

    EXPECT_EQ(m_Log.Take(), "slot.SigVisible(false) middle.ProcessSetVisible(false) "
                            "leaf.ProcessSetParentVisible(false) first.ProcessSetParentVisible(false) "
                            "second.ProcessSetParentVisible(false) middle.ProcessSetParentVisible(false) "
                            "middle.ProcessRearrange(middle) root.ProcessRearrange(middle) "
                            "control.RearrangeElement(middle)");
    EXPECT_FALSE(m_Middle.IsVisible());
}

TEST_F(TreeState, ShowingDoesTheSameWithTrue)
{
    m_Middle.SetVisible(false);
    m_Log.Clear();

    m_Middle.SetVisible(true);

    EXPECT_EQ(m_Log.Take(), "middle.ProcessSetVisible(true) "
                            "leaf.ProcessSetParentVisible(true) first.ProcessSetParentVisible(true) "
                            "second.ProcessSetParentVisible(true) middle.ProcessSetParentVisible(true) "
                            "middle.ProcessRearrange(middle) root.ProcessRearrange(middle) "
                            "control.RearrangeElement(middle)");
}

TEST_F(TreeState, TheSameVisibilityDoesNothing)
{
    int fired = 0;
    auto const slot = Listen(m_Middle.m_SigVisible, [&](CVisualElement*, bool) { ++fired; });

    m_Middle.SetVisible(true);

    EXPECT_EQ(fired, 0);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(TreeState, AnElementThatIsNotDockedAsksForNeitherLayoutNorRepaint)
{
    m_First.SetVisible(false);

    EXPECT_EQ(m_Log.Take(), "first.ProcessSetVisible(false) leaf.ProcessSetParentVisible(false) "
                            "first.ProcessSetParentVisible(false)");
}

TEST_F(TreeState, TheParentsVisibilityIsPassedOnWhateverTheChildsOwnIs)
{
    m_First.SetVisible(false);
    m_Middle.SetVisible(false);
    m_Log.Clear();

    m_Middle.SetVisible(true);

    EXPECT_EQ(m_Log.Take({"ProcessSetParentVisible"}),
              "leaf.ProcessSetParentVisible(true) first.ProcessSetParentVisible(true) "
              "second.ProcessSetParentVisible(true) middle.ProcessSetParentVisible(true)");
    EXPECT_FALSE(m_First.IsVisible());
}

TEST_F(TreeState, SetParentVisibleChangesNoFlag)
{
    m_Middle.SetParentVisible(false);

    EXPECT_TRUE(m_Middle.IsVisible());
    EXPECT_TRUE(m_Leaf.IsVisible());
    EXPECT_EQ(m_Log.Take(), "leaf.ProcessSetParentVisible(false) first.ProcessSetParentVisible(false) "
                            "second.ProcessSetParentVisible(false) middle.ProcessSetParentVisible(false)");
}

TEST_F(TreeState, AnElementIsDisplayableIfItAndAllItsAncestorsAreVisible)
{
    EXPECT_TRUE(m_Leaf.IsDisplayable());

    m_Middle.SetVisible(false);
    EXPECT_FALSE(m_Leaf.IsDisplayable());
    EXPECT_FALSE(m_Middle.IsDisplayable());
    EXPECT_TRUE(m_Root.IsDisplayable());

    m_Middle.SetVisible(true);
    m_Leaf.SetVisible(false);
    EXPECT_FALSE(m_Leaf.IsDisplayable());
    EXPECT_TRUE(m_First.IsDisplayable());

    m_Leaf.SetVisible(true);
    m_Root.SetVisible(false);
    EXPECT_FALSE(m_Leaf.IsDisplayable());
}

// Enabled ----------------------------------------------------------------------------------------------------------------

TEST_F(TreeState, DisablingRepaintsTheElementOnlyAndItsChildrenStayEnabled)
{
    m_Middle.SetEnabled(false);

    EXPECT_FALSE(m_Middle.IsEnabled());
    EXPECT_TRUE(m_First.IsEnabled());
    EXPECT_EQ(m_Log.Take({"AttributeChanged", "UpdateElement"}),
              "middle.AttributeChanged() control.UpdateElement(middle, 2)");
}

TEST_F(TreeState, TheSameEnabledStateDoesNothing)
{
    m_Middle.SetEnabled(true);

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(TreeState, TheFlagIsStoredBeforeTheAttributeChanges)
{
    bool seen = true;
    m_Middle.m_BeforeChange = [&](CVisualElement*, UpdateType) {
        seen = m_Middle.IsEnabled();
        return true;
    };

    m_Middle.SetEnabled(false);

    EXPECT_FALSE(seen);
    m_Middle.m_BeforeChange = nullptr;
}

// Cursor -----------------------------------------------------------------------------------------------------------------

TEST_F(TreeState, TheCursorOfTheElementUnderTheMouseShowsAtOnce)
{
    m_Control.m_MouseElement = &m_Leaf;

    m_Leaf.SetCursor(12);

    EXPECT_EQ(m_Leaf.GetCursor(), 12);
    EXPECT_EQ(m_Log.Take(), "window.SetCursor(12)");
}

TEST_F(TreeState, TheCursorOfAnotherElementIsOnlyStored)
{
    m_Control.m_MouseElement = &m_Leaf;

    m_First.SetCursor(12);

    EXPECT_EQ(m_First.GetCursor(), 12);
    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(TreeState, TheSameCursorDoesNothing)
{
    m_Control.m_MouseElement = &m_Leaf;

    m_Leaf.SetCursor(1);

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(TreeState, ACursorWithoutAControlIsOnlyStored)
{
    CVisualElement loose(nullptr, {0, 0}, alNone);

    loose.SetCursor(7);

    EXPECT_EQ(loose.GetCursor(), 7);
}

// Capture ----------------------------------------------------------------------------------------------------------------

TEST_F(TreeState, CapturingAndReleasingTheMouseGoToTheControl)
{
    m_Leaf.CaptureMouse();
    EXPECT_EQ(m_Log.Take(), "control.SetCapture(leaf)");

    m_Leaf.ReleaseMouse();
    EXPECT_EQ(m_Log.Take(), "control.SetCapture(null)");
}

TEST_F(TreeState, CapturingWithoutAControlDoesNothing)
{
    CRecordingElement loose(m_Log, "loose");
    m_Log.Clear();

    loose.CaptureMouse();
    loose.ReleaseMouse();

    EXPECT_EQ(m_Log.Take(), "");
}

// Scrolling --------------------------------------------------------------------------------------------------------------

TEST_F(TreeState, ScrollingTellsTheElementAndItsVisibleDescendants)
{
    m_First.SetVisible(false);
    m_Log.Clear();

    m_Middle.Scroll(3, -4, false);

    EXPECT_EQ(m_Log.Take(), "middle.ScrollContent(3, -4) second.ScrollContent(3, -4)");
}

TEST_F(TreeState, AnElementThatAsksForItIsRepaintedAndSoIsAllBelowIt)
{
    m_First.m_ScrollAnswer = true;

    m_Middle.Scroll(3, -4, false);

    EXPECT_EQ(m_Log.Take({"ScrollContent", "UpdateElement"}),
              "middle.ScrollContent(3, -4) "
              "first.ScrollContent(3, -4) control.UpdateElement(first, 2) "
              "leaf.ScrollContent(3, -4) control.UpdateElement(leaf, 2) "
              "second.ScrollContent(3, -4)");
}

TEST_F(TreeState, WithTheFlagAllAreRepaintedAndStillAsked)
{
    m_First.Scroll(1, 2, true);

    EXPECT_EQ(m_Log.Take({"ScrollContent", "UpdateElement"}),
              "first.ScrollContent(1, 2) control.UpdateElement(first, 2) "
              "leaf.ScrollContent(1, 2) control.UpdateElement(leaf, 2)");
}

TEST_F(TreeState, ScrollingAHiddenElementItselfTellsItAllTheSame)
{
    m_First.SetVisible(false);
    m_Log.Clear();

    m_First.Scroll(1, 2, false);

    EXPECT_EQ(m_Log.Take(), "first.ScrollContent(1, 2) leaf.ScrollContent(1, 2)");
}

TEST_F(TreeState, ScrollingDoesNotReachAChildThatComesDuringIt)
{
    std::unique_ptr<CRecordingElement> late;
    m_Second.m_OnScrollContent = [&] { late = std::make_unique<CRecordingElement>(m_Log, "late", &m_Middle); };

    m_Middle.Scroll(1, 2, false);

    EXPECT_EQ(m_Log.Take({"ScrollContent"}), "middle.ScrollContent(1, 2) first.ScrollContent(1, 2) "
                                             "leaf.ScrollContent(1, 2) second.ScrollContent(1, 2)");
}

TEST_F(TreeState, ScrollingSurvivesAChildThatLeavesDuringIt)
{
    m_First.m_OnScrollContent = [&] { m_Second.ReParent(nullptr, false); };

    m_Middle.Scroll(1, 2, false);

    EXPECT_EQ(m_Log.Take({"ScrollContent"}), "middle.ScrollContent(1, 2) first.ScrollContent(1, 2) "
                                             "leaf.ScrollContent(1, 2)");
}

}  // namespace
