// How a request for a layout travels up the parents to the control.

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

// root > middle > child, and an aunt beside middle.
class RearrangeChain : public testing::Test
{
protected:
    RearrangeChain()
    {
        m_Root.SetControl(&m_Control);
        m_Log.Clear();
    }

    std::string TakeChain() { return m_Log.Take({"ProcessRearrange", "RearrangeElement"}); }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingControl m_Control{m_Log};
    CRecordingElement m_Root{m_Log, "root"};
    CRecordingElement m_Middle{m_Log, "middle", &m_Root, {10, 10}, alLeft};
    CRecordingElement m_Child{m_Log, "child", &m_Middle, {10, 10}, alLeft};
    CRecordingElement m_Aunt{m_Log, "aunt", &m_Root, {10, 10}, alLeft};
};

TEST_F(RearrangeChain, AsksTheElementThenItsAncestorsThenTheControl)
{
    m_Child.OnRearrange(&m_Child);

    EXPECT_EQ(m_Log.Take(), "child.ProcessRearrange(child) middle.ProcessRearrange(child) root.ProcessRearrange(child) "
                            "control.RearrangeElement(child)");
}

TEST_F(RearrangeChain, ANullElementEndsItAtOnce)
{
    m_Child.OnRearrange(nullptr);

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(RearrangeChain, TheElementItselfCanSwallowIt)
{
    m_Child.m_OnRearrange = [](CVisualElement** element) { *element = nullptr; };

    m_Child.OnRearrange(&m_Child);

    EXPECT_EQ(TakeChain(), "child.ProcessRearrange(child)");
}

TEST_F(RearrangeChain, AnAncestorCanSwallowItAndNobodyAboveHears)
{
    m_Middle.m_OnRearrange = [](CVisualElement** element) { *element = nullptr; };

    m_Child.OnRearrange(&m_Child);

    EXPECT_EQ(TakeChain(), "child.ProcessRearrange(child) middle.ProcessRearrange(child)");
}

TEST_F(RearrangeChain, TheRootCanSwallowItBeforeTheControl)
{
    m_Root.m_OnRearrange = [](CVisualElement** element) { *element = nullptr; };

    m_Child.OnRearrange(&m_Child);

    EXPECT_EQ(m_Log.Take({"RearrangeElement"}), "");
}

TEST_F(RearrangeChain, AnAncestorCanPutItselfInThePlaceOfTheElement)
{
    m_Middle.m_OnRearrange = [&](CVisualElement** element) { *element = &m_Middle; };

    m_Child.OnRearrange(&m_Child);

    EXPECT_EQ(TakeChain(), "child.ProcessRearrange(child) middle.ProcessRearrange(child) "
                           "root.ProcessRearrange(middle) control.RearrangeElement(middle)");
}

TEST_F(RearrangeChain, TheWalkKeepsToTheParentsOfTheReportingElement)
{
    m_Child.m_OnRearrange = [&](CVisualElement** element) { *element = &m_Aunt; };

    m_Child.OnRearrange(&m_Child);

    EXPECT_EQ(TakeChain(), "child.ProcessRearrange(child) middle.ProcessRearrange(aunt) root.ProcessRearrange(aunt) "
                           "control.RearrangeElement(aunt)");
}

TEST_F(RearrangeChain, AnElementCanAskForAnother)
{
    m_Aunt.OnRearrange(&m_Child);

    EXPECT_EQ(TakeChain(), "aunt.ProcessRearrange(child) root.ProcessRearrange(child) control.RearrangeElement(child)");
}

TEST_F(RearrangeChain, WithoutAControlItRunsToTheRootAndEnds)
{
    CRecordingElement loose(m_Log, "loose");
    CRecordingElement leaf(m_Log, "leaf", &loose);
    m_Log.Clear();

    leaf.OnRearrange(&leaf);

    EXPECT_EQ(m_Log.Take(), "leaf.ProcessRearrange(leaf) loose.ProcessRearrange(leaf)");
}

TEST_F(RearrangeChain, ItEmptiesNoValidRectangleAndAsksForNoRepaint)
{
    m_Child.SetValidRect({0, 0, 5, 5});

    m_Child.OnRearrange(&m_Child);

    EXPECT_EQ(m_Child.GetValidRect(), (rectangle<int>{0, 0, 5, 5}));
    EXPECT_EQ(m_Log.Take({"UpdateElement", "ProcessChange"}), "");
}

TEST_F(RearrangeChain, SizeAlignmentVisibilityAndParentAllRunIt)
{
    std::string const chain = "child.ProcessRearrange(child) middle.ProcessRearrange(child) "
                              "root.ProcessRearrange(child) control.RearrangeElement(child)";

    m_Child.SetSize({20, 20}, false);
    EXPECT_EQ(TakeChain(), chain);

    m_Child.SetAlignment(alTop);
    EXPECT_EQ(TakeChain(), chain);

    m_Child.SetVisible(false);
    EXPECT_EQ(TakeChain(), chain);
    m_Child.SetVisible(true);
    EXPECT_EQ(TakeChain(), chain);

    m_Child.ReParent(&m_Aunt, true);
    EXPECT_EQ(TakeChain(), chain + " child.ProcessRearrange(child) aunt.ProcessRearrange(child) "
                                   "root.ProcessRearrange(child) control.RearrangeElement(child)");
}

TEST_F(RearrangeChain, ForcingItGoesToTheControl)
{
    m_Child.ForceRearrange();

    EXPECT_EQ(m_Log.Take(), "control.ForceRearrange()");
}

TEST_F(RearrangeChain, ForcingItWithoutAControlDoesNothing)
{
    CRecordingElement loose(m_Log, "loose");
    m_Log.Clear();

    loose.ForceRearrange();

    EXPECT_EQ(m_Log.Take(), "");
}

// The end of a layout -----------------------------------------------------------------------------------------------------

TEST_F(RearrangeChain, RefreshPosReachesTheElementThenItsChildrenDepthFirst)
{
    m_Root.RefreshPos();

    EXPECT_EQ(m_Log.Take(), "root.HandleRefreshPos() middle.HandleRefreshPos() child.HandleRefreshPos() "
                            "aunt.HandleRefreshPos()");
}

TEST_F(RearrangeChain, RefreshPosReachesAChildThatComesDuringIt)
{
    std::unique_ptr<CRecordingElement> late;
    m_Aunt.m_OnRefreshPos = [&] { late = std::make_unique<CRecordingElement>(m_Log, "late", &m_Root); };

    m_Root.RefreshPos();

    EXPECT_EQ(m_Log.Take({"HandleRefreshPos"}), "root.HandleRefreshPos() middle.HandleRefreshPos() "
                                                "child.HandleRefreshPos() aunt.HandleRefreshPos() "
                                                "late.HandleRefreshPos()");
}

TEST_F(RearrangeChain, RefreshPosSurvivesAChildThatLeavesDuringIt)
{
    m_Middle.m_OnRefreshPos = [&] { m_Aunt.ReParent(nullptr, false); };

    m_Root.RefreshPos();

    EXPECT_EQ(m_Log.Take({"HandleRefreshPos"}), "root.HandleRefreshPos() middle.HandleRefreshPos() "
                                                "child.HandleRefreshPos()");
}

} // namespace
