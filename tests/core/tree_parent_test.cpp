// How elements change their parent and their control.

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

font BigFont()
{
    font value;
    value.size = 20;
    return value;
}

// root > (old > child > leaf, next)
class TreeParent : public testing::Test
{
protected:
    TreeParent()
    {
        m_Root.SetControl(&m_Control);
        m_Log.Clear();
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingControl m_Control{m_Log};
    CRecordingControl m_OtherControl{m_Log};
    CRecordingElement m_Root{m_Log, "root", nullptr, {0, 0}, alClient};
    CRecordingElement m_Old{m_Log, "old", &m_Root, {10, 10}, alLeft};
    CRecordingElement m_Next{m_Log, "next", &m_Root, {10, 10}, alLeft};
    CRecordingElement m_Child{m_Log, "child", &m_Old, {10, 10}, alLeft};
    CRecordingElement m_Leaf{m_Log, "leaf", &m_Child, {10, 10}, alNone};

    static constexpr char const* s_OldChain = "child.ProcessRearrange(child) old.ProcessRearrange(child) "
                                              "root.ProcessRearrange(child) control.RearrangeElement(child)";
    static constexpr char const* s_NewChain = "child.ProcessRearrange(child) next.ProcessRearrange(child) "
                                              "root.ProcessRearrange(child) control.RearrangeElement(child)";
};

// ReParent ---------------------------------------------------------------------------------------------------------------

TEST_F(TreeParent, TheSameParentDoesNothing)
{
    m_Child.ReParent(&m_Old, true);

    EXPECT_EQ(m_Log.Take(), "");
    EXPECT_EQ(m_Old.GetChildren()->GetCount(), 1);
}

TEST_F(TreeParent, WithinOneControlTheOldParentLaysOutThenTheNewOneIsToldAndLaysOutAndThenTheChild)
{
    m_Child.ReParent(&m_Next, true);

    EXPECT_EQ(m_Log.Take(),
              std::string(s_OldChain) + " next.AddNewChild(child) " + s_NewChain + " child.ChangeParent(old)");
    EXPECT_EQ(m_Child.GetParent(), &m_Next);
    EXPECT_EQ(m_Old.GetChildren()->GetCount(), 0);
    ASSERT_EQ(m_Next.GetChildren()->GetCount(), 1);
    EXPECT_EQ(m_Next.GetChildren()->GetItem(0), &m_Child);
}

TEST_F(TreeParent, TheElementBecomesTheLastChild)
{
    CRecordingElement present(m_Log, "present", &m_Next);

    m_Child.ReParent(&m_Next, true);

    EXPECT_EQ(m_Next.GetChildren()->GetItem(0), &present);
    EXPECT_EQ(m_Next.GetChildren()->GetItem(1), &m_Child);
}

TEST_F(TreeParent, WithoutTheFlagNobodyLaysOut)
{
    m_Child.ReParent(&m_Next, false);

    EXPECT_EQ(m_Log.Take(), "next.AddNewChild(child) child.ChangeParent(old)");
}

TEST_F(TreeParent, AHiddenElementAsksForNoLayout)
{
    m_Child.SetVisible(false);
    m_Log.Clear();

    m_Child.ReParent(&m_Next, true);

    EXPECT_EQ(m_Log.Take(), "next.AddNewChild(child) child.ChangeParent(old)");
}

TEST_F(TreeParent, AnElementThatIsNotDockedAsksForNoLayout)
{
    m_Child.SetAlignment(alNone);
    m_Log.Clear();

    m_Child.ReParent(&m_Next, true);

    EXPECT_EQ(m_Log.Take(), "next.AddNewChild(child) child.ChangeParent(old)");
}

TEST_F(TreeParent, TheOldParentIsAskedWhileTheElementIsStillItsChild)
{
    int count = -1;
    bool once = true;
    m_Old.m_OnRearrange = [&](CVisualElement**) {
        if (once)
            count = m_Old.GetChildren()->GetCount();
        once = false;
    };

    m_Child.ReParent(&m_Next, true);

    EXPECT_EQ(count, 1);
}

TEST_F(TreeParent, WithoutAParentTheElementLosesItsControl)
{
    m_Child.ReParent(nullptr, true);

    EXPECT_EQ(m_Child.GetParent(), nullptr);
    EXPECT_EQ(m_Child.GetControl(), nullptr);
    EXPECT_EQ(m_Leaf.GetControl(), nullptr);
    EXPECT_EQ(m_Old.GetChildren()->GetCount(), 0);
    // The removal doesn't run through the old parent any more.
    EXPECT_EQ(m_Log.Take(), std::string(s_OldChain) +
                                " child.ProcessSetControl(null) child.BeforeProcessChange(child, 16) "
                                "child.ProcessChange(child) control.UpdateElement(child, 16) "
                                "leaf.ProcessSetControl(null) leaf.BeforeProcessChange(leaf, 16) "
                                "leaf.ProcessChange(leaf) child.BeforeProcessChange(leaf, 16) "
                                "child.ProcessChange(leaf) control.UpdateElement(leaf, 16) "
                                "child.ChangeParent(old)");
}

TEST_F(TreeParent, AParentlessElementAsksForNoLayoutWithoutTheFlag)
{
    m_Child.ReParent(nullptr, false);

    EXPECT_EQ(m_Log.Take({"ProcessRearrange", "RearrangeElement", "ChangeParent"}), "child.ChangeParent(old)");
}

TEST_F(TreeParent, ANewParentBringsItsControl)
{
    CRecordingElement loose(m_Log, "loose", nullptr, {10, 10}, alTop);
    CRecordingElement inner(m_Log, "inner", &loose, {10, 10}, alNone);
    m_Log.Clear();

    loose.ReParent(&m_Next, true);

    EXPECT_EQ(loose.GetControl(), &m_Control);
    EXPECT_EQ(inner.GetControl(), &m_Control);
    EXPECT_EQ(m_Log.Take({"ProcessSetControl", "AttributeChanged", "AfterSetControl", "AddNewChild", "RearrangeElement",
                          "ChangeParent"}),
              "loose.ProcessSetControl(control) inner.ProcessSetControl(control) "
              "inner.AttributeChanged() inner.AfterSetControl() loose.AttributeChanged() loose.AfterSetControl() "
              "next.AddNewChild(loose) control.RearrangeElement(loose) loose.ChangeParent(null)");
}

TEST_F(TreeParent, TheNewParentIsKnownWhenTheControlChanges)
{
    CRecordingElement loose(m_Log, "loose", nullptr, {10, 10}, alTop);
    m_Log.Clear();

    loose.ReParent(&m_Next, false);

    EXPECT_EQ(m_Log.Take({"ProcessChange", "UpdateElement"}),
              "loose.ProcessChange(loose) next.ProcessChange(loose) root.ProcessChange(loose) "
              "control.UpdateElement(loose, 2)");
}

TEST_F(TreeParent, AParentWithAnotherControlMovesTheWholeBranchToIt)
{
    CRecordingElement otherRoot(m_Log, "otherRoot", nullptr, {0, 0}, alClient);
    otherRoot.SetControl(&m_OtherControl);

    m_Child.ReParent(&otherRoot, true);

    EXPECT_EQ(m_Child.GetControl(), &m_OtherControl);
    EXPECT_EQ(m_Leaf.GetControl(), &m_OtherControl);
    m_Child.ReParent(nullptr, false);
}

TEST_F(TreeParent, AnElementWithAnotherFontTakesTheParentsAndChangesItsAttributes)
{
    m_Next.SetFont(BigFont());
    m_Log.Clear();

    m_Child.ReParent(&m_Next, true);

    EXPECT_EQ(m_Child.GetOwnFont().size, 20);
    EXPECT_EQ(m_Leaf.GetOwnFont().size, 0);
    EXPECT_EQ(m_Log.Take({"AttributeChanged", "AddNewChild"}), "child.AttributeChanged() next.AddNewChild(child)");
}

TEST_F(TreeParent, AnyDifferenceOfTheFontsIsEnough)
{
    font name, family, style, rotation, factor;
    name.name = "Other";
    family.family = 2;
    style.style = 1;
    rotation.rotation = 900;
    factor.factor = 1.3;
    for (font const& value : {name, family, style, rotation, factor})
    {
        m_Next.SetFont(value);
        CRecordingElement loose(m_Log, "loose");
        m_Log.Clear();

        loose.ReParent(&m_Next, false);

        EXPECT_EQ(loose.GetOwnFont(), value);
        EXPECT_EQ(m_Log.Take({"AttributeChanged"}), "loose.AttributeChanged() loose.AttributeChanged()");
    }
}

TEST_F(TreeParent, AnEqualFontChangesNoAttribute)
{
    m_Next.SetFont(BigFont());
    m_Child.SetFont(BigFont());
    m_Log.Clear();

    m_Child.ReParent(&m_Next, true);

    EXPECT_EQ(m_Log.Take({"AttributeChanged"}), "");
}

TEST_F(TreeParent, AFontOfItsOwnIsLostToTheNewParents)
{
    m_Child.SetFont(BigFont());

    m_Child.ReParent(&m_Next, true);

    EXPECT_EQ(m_Child.GetOwnFont(), font());
}

TEST_F(TreeParent, LeavingAParentKeepsTheFont)
{
    m_Child.SetFont(BigFont());

    m_Child.ReParent(nullptr, true);

    EXPECT_EQ(m_Child.GetOwnFont(), BigFont());
}

TEST_F(TreeParent, AChildThatLeavesIsNoKeyDelegateAnyMore)
{
    m_Old.SetKeyDelegate(&m_Child);
    ASSERT_EQ(m_Old.GetKeyDelegate(), &m_Child);

    m_Child.ReParent(&m_Next, true);

    EXPECT_EQ(m_Old.GetKeyDelegate(), nullptr);
}

// SetControl ---------------------------------------------------------------------------------------------------------------

TEST_F(TreeParent, AParentThatDiesWhileItIsLeftIsSurvived)
{
    for (bool const toAnother : {false, true})
    {
        CRecordingElement kept(m_Log, "kept");
        kept.SetDynamic(false);
        kept.SetAlignment(alTop);
        auto* const parent = new CRecordingElement(m_Log, "parent", &m_Old);
        kept.ReParent(parent, false);
        parent->m_OnRearrange = [parent](CVisualElement**) { delete parent; };
        kept.ReParent(toAnother ? &m_Next : nullptr, true);
        EXPECT_EQ(kept.GetParent(), toAnother ? &m_Next : nullptr);
    }
}

TEST_F(TreeParent, TheSameControlDoesNothing)
{
    m_Child.SetControl(&m_Control);

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(TreeParent, AControlIsGivenToTheChildrenBeforeTheElementIsTold)
{
    CRecordingElement loose(m_Log, "loose");
    CRecordingElement first(m_Log, "first", &loose);
    CRecordingElement second(m_Log, "second", &loose);
    m_Log.Clear();

    loose.SetControl(&m_Control);

    EXPECT_EQ(m_Log.Take({"ProcessSetControl", "AttributeChanged", "AfterSetControl", "UpdateElement"}),
              "loose.ProcessSetControl(control) "
              "first.ProcessSetControl(control) first.AttributeChanged() control.UpdateElement(first, 2) "
              "first.AfterSetControl() "
              "second.ProcessSetControl(control) second.AttributeChanged() control.UpdateElement(second, 2) "
              "second.AfterSetControl() "
              "loose.AttributeChanged() control.UpdateElement(loose, 2) loose.AfterSetControl()");
}

TEST_F(TreeParent, LosingTheControlRemovesTheElementThenItsChildrenWhileTheOldControlIsKnown)
{
    m_Root.SetControl(nullptr);

    EXPECT_EQ(m_Log.Take({"ProcessSetControl", "AttributeChanged", "AfterSetControl", "UpdateElement"}),
              "root.ProcessSetControl(null) control.UpdateElement(root, 16) "
              "old.ProcessSetControl(null) control.UpdateElement(old, 16) "
              "child.ProcessSetControl(null) control.UpdateElement(child, 16) "
              "leaf.ProcessSetControl(null) control.UpdateElement(leaf, 16) "
              "next.ProcessSetControl(null) control.UpdateElement(next, 16)");
    EXPECT_EQ(m_Leaf.GetControl(), nullptr);
}

TEST_F(TreeParent, TheOldControlIsStillThereWhenTheChangeIsAnnounced)
{
    class CAsking : public CVisualElement
    {
    public:
        using CVisualElement::CVisualElement;
        void ProcessSetControl(IControl*) override { m_Seen = GetControl(); }
        void AfterSetControl() override { m_After = GetControl(); }
        IControl* m_Seen = nullptr;
        IControl* m_After = nullptr;
    };
    CAsking element(nullptr, {0, 0}, alNone);
    element.SetControl(&m_Control);
    EXPECT_EQ(element.m_Seen, nullptr);
    EXPECT_EQ(element.m_After, &m_Control);

    element.SetControl(&m_OtherControl);

    EXPECT_EQ(element.m_Seen, &m_Control);
    EXPECT_EQ(element.m_After, &m_OtherControl);
}

// The children of a parent ------------------------------------------------------------------------------------------------

TEST_F(TreeParent, IsChildrenAvailableAsksForAnyChildOrForAnExactCount)
{
    EXPECT_TRUE(m_Root.IsChildrenAvailable(0));
    EXPECT_TRUE(m_Root.IsChildrenAvailable(-1));
    EXPECT_TRUE(m_Root.IsChildrenAvailable(2));
    EXPECT_FALSE(m_Root.IsChildrenAvailable(1));
    EXPECT_FALSE(m_Root.IsChildrenAvailable(3));

    EXPECT_FALSE(m_Leaf.IsChildrenAvailable(0));
    EXPECT_FALSE(m_Leaf.IsChildrenAvailable(-1));
    EXPECT_FALSE(m_Leaf.IsChildrenAvailable(1));
}

TEST_F(TreeParent, AnAncestorIsTheElementItselfOrOneOfItsParents)
{
    EXPECT_TRUE(IsAncestor(&m_Leaf, &m_Leaf));
    EXPECT_TRUE(IsAncestor(&m_Leaf, &m_Child));
    EXPECT_TRUE(IsAncestor(&m_Leaf, &m_Root));
    EXPECT_FALSE(IsAncestor(&m_Root, &m_Leaf));
    EXPECT_FALSE(IsAncestor(&m_Leaf, &m_Next));
    EXPECT_FALSE(IsAncestor(nullptr, &m_Root));
    EXPECT_FALSE(IsAncestor(&m_Root, nullptr));
    EXPECT_FALSE(IsAncestor(nullptr, nullptr));
}

TEST_F(TreeParent, FocusNeedsTheWishAVisibleBranchAnEnabledElementAndAControl)
{
    m_Child.SetCanHaveFocus(true);
    EXPECT_TRUE(CanHaveFocus(&m_Child));
    EXPECT_FALSE(CanHaveFocus(&m_Leaf));
    EXPECT_FALSE(CanHaveFocus(nullptr));

    m_Child.SetEnabled(false);
    EXPECT_FALSE(CanHaveFocus(&m_Child));
    m_Child.SetEnabled(true);

    m_Old.SetVisible(false);
    EXPECT_FALSE(CanHaveFocus(&m_Child));
    m_Old.SetVisible(true);

    m_Old.SetEnabled(false);
    EXPECT_TRUE(CanHaveFocus(&m_Child));

    m_Child.ReParent(nullptr, false);
    EXPECT_FALSE(CanHaveFocus(&m_Child));
}

}  // namespace
