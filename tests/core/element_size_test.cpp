// What an element asks its parent for: size and alignment.

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

// A root with one docked child of 10 x 10, quiet so far.
class ElementSize : public testing::Test
{
protected:
    ElementSize()
    {
        m_Root.SetControl(&m_Control);
        m_Log.Clear();
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingControl m_Control{m_Log};
    CRecordingElement m_Root{m_Log, "root"};
    CRecordingElement m_Child{m_Log, "child", &m_Root, {10, 10}, alLeft};

    static constexpr char const* s_Chain = "child.ProcessRearrange(child) root.ProcessRearrange(child) "
                                           "control.RearrangeElement(child)";

    std::string TakeChain() { return m_Log.Take({"ProcessRearrange", "RearrangeElement"}); }
};

TEST_F(ElementSize, AnotherSizeIsStoredAndRunsTheRearrangeChain)
{
    m_Child.SetSize({20, 30}, false);

    EXPECT_EQ(m_Child.GetSize(), (size<int>{20, 30}));
    EXPECT_EQ(TakeChain(), s_Chain);
}

TEST_F(ElementSize, OneOtherMemberIsEnough)
{
    m_Child.SetSize({10, 11}, false);
    EXPECT_EQ(TakeChain(), s_Chain);

    m_Child.SetSize({9, 11}, false);
    EXPECT_EQ(TakeChain(), s_Chain);
}

TEST_F(ElementSize, TheSameSizeDoesNothing)
{
    m_Child.SetSize({10, 10}, false);

    EXPECT_EQ(TakeChain(), "");
}

TEST_F(ElementSize, ANegativeMemberIsStoredAsZero)
{
    m_Child.SetSize({-1, 30}, false);
    EXPECT_EQ(m_Child.GetSize(), (size<int>{0, 30}));

    m_Child.SetSize({20, -5}, false);
    EXPECT_EQ(m_Child.GetSize(), (size<int>{20, 0}));
}

TEST_F(ElementSize, ANegativeMemberEqualsZero)
{
    m_Child.SetSize({0, 0}, false);
    m_Log.Clear();

    m_Child.SetSize({-3, -4}, false);

    EXPECT_EQ(TakeChain(), "");
}

TEST_F(ElementSize, ASizeChangesNoPosition)
{
    m_Child.SetPos({0, 0, 10, 10}, false);

    m_Child.SetSize({20, 30}, false);

    EXPECT_EQ(m_Child.GetPos(), (rectangle<int>{0, 0, 10, 10}));
}

TEST_F(ElementSize, AnElementThatIsNotDockedRunsTheChainToo)
{
    m_Child.SetAlignment(alNone);
    m_Log.Clear();

    m_Child.SetSize({20, 30}, false);

    EXPECT_EQ(TakeChain(), s_Chain);
}

TEST_F(ElementSize, WithTheFlagBothMembersAreScaledAndTruncated)
{
    m_System.SetScale(1.25);

    m_Child.SetSize({5, 6}, true);

    EXPECT_EQ(m_Child.GetSize(), (size<int>{6, 7}));  // 6.25, 7.5
}

TEST_F(ElementSize, WithoutTheFlagNothingIsScaled)
{
    m_System.SetScale(2.0);

    m_Child.SetSize({5, 6}, false);

    EXPECT_EQ(m_Child.GetSize(), (size<int>{5, 6}));
}

TEST_F(ElementSize, TheFlagDoesNothingWithoutAutomaticScaling)
{
    m_System.SetScale(2.0);
    CAutoScaleScope off(false);

    m_Child.SetSize({5, 6}, true);

    EXPECT_EQ(m_Child.GetSize(), (size<int>{5, 6}));
}

TEST_F(ElementSize, TheScaledSizeIsWhatIsCompared)
{
    m_System.SetScale(2.0);

    m_Child.SetSize({5, 5}, true);  // 10 x 10, as it is

    EXPECT_EQ(TakeChain(), "");
}

TEST_F(ElementSize, AScaledNegativeMemberIsStoredAsZeroToo)
{
    m_System.SetScale(2.0);

    m_Child.SetSize({-5, 6}, true);

    EXPECT_EQ(m_Child.GetSize(), (size<int>{0, 12}));
}

TEST_F(ElementSize, WidthAndHeightReplaceOneMemberThroughTheOverridableSetSize)
{
    m_Child.SetWidth(25, false);
    EXPECT_EQ(m_Log.Take({"SetSize"}), "child.SetSize(25 10, false)");
    EXPECT_EQ(m_Child.GetSize(), (size<int>{25, 10}));

    m_Child.SetHeight(35, true);
    EXPECT_EQ(m_Log.Take({"SetSize"}), "child.SetSize(25 35, true)");
    EXPECT_EQ(m_Child.GetSize(), (size<int>{25, 35}));
}

TEST_F(ElementSize, AScaledWidthScalesTheStoredHeightOnceMore)
{
    m_System.SetScale(2.0);
    m_Child.SetSize({10, 20}, true);
    ASSERT_EQ(m_Child.GetSize(), (size<int>{20, 40}));

    m_Child.SetWidth(15, true);

    EXPECT_EQ(m_Child.GetSize(), (size<int>{30, 80}));
}

TEST_F(ElementSize, AScaledHeightScalesTheStoredWidthOnceMore)
{
    m_System.SetScale(2.0);
    m_Child.SetSize({10, 20}, true);

    m_Child.SetHeight(15, true);

    EXPECT_EQ(m_Child.GetSize(), (size<int>{40, 30}));
}

TEST_F(ElementSize, AnotherAlignmentIsStoredAndRunsTheRearrangeChain)
{
    m_Child.SetAlignment(alBottom);

    EXPECT_EQ(m_Child.GetAlignment(), alBottom);
    EXPECT_EQ(TakeChain(), s_Chain);
}

TEST_F(ElementSize, TheSameAlignmentDoesNothing)
{
    m_Child.SetAlignment(alLeft);

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ElementSize, LeavingTheDockRunsTheRearrangeChainToo)
{
    m_Child.SetAlignment(alNone);

    EXPECT_EQ(TakeChain(), s_Chain);
}

} // namespace
