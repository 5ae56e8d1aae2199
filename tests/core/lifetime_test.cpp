// How elements die, alone, with their children and with their parent.

#include "tests/support/assertion_count.h"
#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/scripted_system.h"
#include "tests/support/slot.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

class Lifetime : public testing::Test
{
protected:
    Lifetime()
    {
        m_Root.SetControl(&m_Control);
        m_Log.Clear();
    }

    auto NoteDestroy(CVisualElement& element)
    {
        return Listen(element.m_SigDestroy, [this](CVisualElement* dying) {
            m_Log.Add(m_Log.NameOf(dying), "SigDestroy");
        });
    }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingControl m_Control{m_Log};
    CRecordingElement m_Root{m_Log, "root", nullptr, {0, 0}, alClient};
};

// The destructor, in its order ---------------------------------------------------------------------------------------------

TEST_F(Lifetime, ADyingElementTellsItsSignalThenIsRemovedThenLeavesItsParent)
{
    auto* const child = new CRecordingElement(m_Log, "child", &m_Root, {10, 10}, alLeft);
    auto const slot = NoteDestroy(*child);
    m_Log.Clear();

    delete child;

    // The removal is reported through the parent, and once more when the control goes.
    EXPECT_EQ(m_Log.Take(), "child.SigDestroy() "
                            "root.BeforeProcessChange(child, 16) root.ProcessChange(child) "
                            "control.UpdateElement(child, 16) control.UpdateElement(child, 16)");
    EXPECT_EQ(m_Root.GetChildren()->GetCount(), 0);
}

TEST_F(Lifetime, TheElementIsWholeInTheTreeWhenItsSignalFires)
{
    auto* const child = new CRecordingElement(m_Log, "child", &m_Root);
    new CRecordingElement(m_Log, "leaf", child);
    bool called = false;
    auto const slot = Listen(child->m_SigDestroy, [&](CVisualElement* dying) {
        called = true;
        EXPECT_EQ(dying->GetParent(), &m_Root);
        EXPECT_EQ(dying->GetControl(), &m_Control);
        EXPECT_EQ(dying->GetChildren()->GetCount(), 1);
        EXPECT_EQ(m_Root.GetChildren()->GetCount(), 1);
    });

    delete child;

    EXPECT_TRUE(called);
}

TEST_F(Lifetime, TheRemovalIsReportedBeforeTheChildrenDie)
{
    auto* const child = new CRecordingElement(m_Log, "child", &m_Root);
    auto* const leaf = new CRecordingElement(m_Log, "leaf", child);
    auto const a = NoteDestroy(*child);
    auto const b = NoteDestroy(*leaf);
    m_Log.Clear();

    delete child;

    EXPECT_EQ(m_Log.Take({"SigDestroy", "UpdateElement"}),
              "child.SigDestroy() control.UpdateElement(child, 16) "
              "leaf.SigDestroy() control.UpdateElement(leaf, 16) control.UpdateElement(leaf, 16) "
              "control.UpdateElement(child, 16)");
}

TEST_F(Lifetime, AnElementWithoutAParentReportsItsRemovalOnce)
{
    auto* const loose = new CRecordingElement(m_Log, "loose");
    loose->SetControl(&m_Control);
    m_Log.Clear();

    delete loose;

    EXPECT_EQ(m_Log.Take(), "control.UpdateElement(loose, 16)");
}

TEST_F(Lifetime, AnElementWithoutAControlDiesQuietly)
{
    CRecordingElement loose(m_Log, "loose");
    auto* const leaf = new CRecordingElement(m_Log, "leaf", &loose);
    m_Log.Clear();

    delete leaf;

    EXPECT_EQ(m_Log.Take(), "loose.BeforeProcessChange(leaf, 16) loose.ProcessChange(leaf)");
    EXPECT_EQ(loose.GetChildren()->GetCount(), 0);
}

TEST_F(Lifetime, ADyingElementAsksForNoLayout)
{
    auto* const child = new CRecordingElement(m_Log, "child", &m_Root, {10, 10}, alLeft);
    m_Log.Clear();

    delete child;

    EXPECT_EQ(m_Log.Take({"ProcessRearrange", "RearrangeElement"}), "");
}

TEST_F(Lifetime, AnAncestorCanSwallowTheFirstReportOfARemovalButNotTheSecond)
{
    auto* const child = new CRecordingElement(m_Log, "child", &m_Root);
    m_Root.m_OnChange = [](CVisualElement** element) { *element = nullptr; };
    m_Log.Clear();

    delete child;

    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(child, 16)");
    m_Root.m_OnChange = nullptr;
}

TEST_F(Lifetime, ADyingKeyDelegateIsForgotten)
{
    auto* const child = new CRecordingElement(m_Log, "child", &m_Root);
    m_Root.SetKeyDelegate(child);

    delete child;

    EXPECT_EQ(m_Root.GetKeyDelegate(), nullptr);
}

TEST_F(Lifetime, ADyingKeyDelegateThatIsNoChildIsForgottenToo)
{
    CRecordingElement middle(m_Log, "middle", &m_Root);
    auto* const leaf = new CRecordingElement(m_Log, "leaf", &middle);
    m_Root.SetKeyDelegate(leaf);

    delete leaf;

    EXPECT_EQ(m_Root.GetKeyDelegate(), nullptr);
}

// The children ---------------------------------------------------------------------------------------------------------------

TEST_F(Lifetime, DynamicChildrenAreDeletedFromTheFirstToTheLast)
{
    auto* const parent = new CRecordingElement(m_Log, "parent", &m_Root);
    auto* const first = new CRecordingElement(m_Log, "first", parent);
    auto* const second = new CRecordingElement(m_Log, "second", parent);
    auto* const third = new CRecordingElement(m_Log, "third", parent);
    auto const a = NoteDestroy(*first);
    auto const b = NoteDestroy(*second);
    auto const c = NoteDestroy(*third);
    m_Log.Clear();

    delete parent;

    EXPECT_EQ(m_Log.Take({"SigDestroy"}), "first.SigDestroy() second.SigDestroy() third.SigDestroy()");
}

TEST_F(Lifetime, AChildByValueSurvivesItsParentUnparented)
{
    auto* const parent = new CRecordingElement(m_Log, "parent", &m_Root);
    CRecordingElement child(m_Log, "child", parent);
    CRecordingElement leaf(m_Log, "leaf", &child);
    m_Log.Clear();

    delete parent;

    EXPECT_EQ(child.GetParent(), nullptr);
    EXPECT_EQ(child.GetControl(), nullptr);
    EXPECT_EQ(leaf.GetParent(), &child);
    EXPECT_EQ(leaf.GetControl(), nullptr);
    EXPECT_EQ(m_Log.Take({"ProcessSetControl", "UpdateElement", "ChangeParent"}),
              "control.UpdateElement(parent, 16) "
              "child.ProcessSetControl(null) control.UpdateElement(child, 16) "
              "leaf.ProcessSetControl(null) control.UpdateElement(leaf, 16) "
              "child.ChangeParent(parent) "
              "control.UpdateElement(parent, 16)");
}

TEST_F(Lifetime, ADynamicChildBehindOneByValueIsStillDeleted)
{
    auto* const parent = new CRecordingElement(m_Log, "parent", &m_Root);
    CRecordingElement byValue(m_Log, "byValue", parent);
    auto* const dynamic = new CRecordingElement(m_Log, "dynamic", parent);
    auto const slot = NoteDestroy(*dynamic);
    m_Log.Clear();

    delete parent;

    EXPECT_EQ(m_Log.Take({"SigDestroy", "ChangeParent"}), "byValue.ChangeParent(parent) dynamic.SigDestroy()");
}

TEST_F(Lifetime, AnElementOnTheHeapThatWasDeclaredNotDynamicIsOnlyDetached)
{
    auto const child = std::make_unique<CRecordingElement>(m_Log, "child");
    {
        CRecordingElement parent(m_Log, "parent");
        child->ReParent(&parent, false);
        child->SetDynamic(false);
    }
    EXPECT_EQ(child->GetParent(), nullptr);
}

TEST_F(Lifetime, ClearingTheChildrenDeletesAndDetachesLikeADyingParent)
{
    auto* const dynamic = new CRecordingElement(m_Log, "dynamic", &m_Root);
    CRecordingElement byValue(m_Log, "byValue", &m_Root);
    auto const slot = NoteDestroy(*dynamic);
    m_Log.Clear();

    m_Root.GetChildren()->Clear();

    EXPECT_EQ(m_Root.GetChildren()->GetCount(), 0);
    EXPECT_EQ(byValue.GetParent(), nullptr);
    EXPECT_EQ(byValue.GetControl(), nullptr);
    EXPECT_EQ(m_Log.Take({"SigDestroy", "ChangeParent"}), "dynamic.SigDestroy() byValue.ChangeParent(root)");
}

TEST_F(Lifetime, AKeyDelegateByValueIsForgottenWhenTheChildrenAreCleared)
{
    CRecordingElement byValue(m_Log, "byValue", &m_Root);
    m_Root.SetKeyDelegate(&byValue);

    m_Root.GetChildren()->Clear();

    EXPECT_EQ(m_Root.GetKeyDelegate(), nullptr);
}

TEST_F(Lifetime, AChildsDeathMayDeleteItsSibling)
{
    auto* const parent = new CRecordingElement(m_Log, "parent", &m_Root);
    auto* const first = new CRecordingElement(m_Log, "first", parent);
    auto* const second = new CRecordingElement(m_Log, "second", parent);
    auto* const third = new CRecordingElement(m_Log, "third", parent);
    auto const deletes = Listen(first->m_SigDestroy, [&](CVisualElement*) { delete second; });
    auto const b = NoteDestroy(*second);
    auto const c = NoteDestroy(*third);
    m_Log.Clear();

    delete parent;

    EXPECT_EQ(m_Log.Take({"SigDestroy"}), "second.SigDestroy() third.SigDestroy()");
}

TEST_F(Lifetime, AChildsDeathMayMoveItsSiblingAway)
{
    auto* const parent = new CRecordingElement(m_Log, "parent", &m_Root);
    auto* const first = new CRecordingElement(m_Log, "first", parent);
    auto* const second = new CRecordingElement(m_Log, "second", parent);
    auto const moves = Listen(first->m_SigDestroy, [&](CVisualElement*) { second->ReParent(&m_Root, false); });

    delete parent;

    ASSERT_EQ(m_Root.GetChildren()->GetCount(), 1);
    EXPECT_EQ(m_Root.GetChildren()->GetItem(0), second);
    EXPECT_EQ(second->GetControl(), &m_Control);
}

TEST_F(Lifetime, MembersOfAnElementDieWithoutBeingDeletedByIt)
{
    class CHolder : public CRecordingElement
    {
    public:
        CHolder(CCallLog& log, CVisualElement* parent)
            : CRecordingElement(log, "holder", parent), m_Member(log, "member", this)
        {
            m_Member.SetDynamic(false);
        }
        CRecordingElement m_Member;
    };
    auto* const holder = new CHolder(m_Log, &m_Root);
    auto const a = NoteDestroy(*holder);
    auto const b = NoteDestroy(holder->m_Member);
    m_Log.Clear();

    delete holder;

    EXPECT_EQ(m_Log.Take({"SigDestroy"}), "member.SigDestroy() holder.SigDestroy()");
}

TEST_F(Lifetime, AMemberOfADeletedElementLeavesItsListInTime)
{
    class CHolder : public CVisualElement
    {
    public:
        explicit CHolder(CVisualElement* parent)
            : CVisualElement(parent, {0, 0}, alNone), m_First(this, {0, 0}, alNone), m_Second(this, {0, 0}, alNone)
        {
        }
        CVisualElement m_First;
        CVisualElement m_Second;
    };
    auto* const holder = new CHolder(&m_Root);
    int left = -1;
    auto const slot = Listen(holder->m_SigDestroy,
                             [&](CVisualElement* dying) { left = dying->GetChildren()->GetCount(); });

    m_Root.GetChildren()->Clear();

    EXPECT_EQ(left, 0);
    EXPECT_EQ(m_Root.GetChildren()->GetCount(), 0);
}

// What is refused -----------------------------------------------------------------------------------------------------------

TEST_F(Lifetime, AnElementCannotBecomeItsOwnParent)
{
    CRecordingElement child(m_Log, "child", &m_Root);
    CAssertionCount assertions;

    child.ReParent(&child, false);

    EXPECT_EQ(assertions.Get(), 1);
    EXPECT_EQ(child.GetParent(), &m_Root);
    EXPECT_EQ(m_Root.GetChildren()->GetCount(), 1);
}

TEST_F(Lifetime, AnElementCannotBecomeTheChildOfItsDescendant)
{
    CRecordingElement child(m_Log, "child", &m_Root);
    CRecordingElement leaf(m_Log, "leaf", &child);
    CAssertionCount assertions;

    child.ReParent(&leaf, false);

    EXPECT_EQ(assertions.Get(), 1);
    EXPECT_EQ(child.GetParent(), &m_Root);
    EXPECT_EQ(leaf.GetParent(), &child);
    EXPECT_EQ(leaf.GetChildren()->GetCount(), 0);
}

// Many -----------------------------------------------------------------------------------------------------------------------

TEST(LifetimeOfMany, AHundredThousandSiblingsDieWithTheirParent)
{
    CScriptedSystem system;
    int died = 0;
    auto* const parent = new CVisualElement(nullptr, {0, 0}, alNone);
    std::vector<std::unique_ptr<CSlot<CVisualElement*>>> slots;
    for (int i = 0; i < 100000; ++i)
    {
        auto* const child = new CVisualElement(parent, {0, 0}, alNone);
        if (i % 1000 == 0)
            slots.push_back(Listen(child->m_SigDestroy, [&](CVisualElement*) { ++died; }));
    }
    ASSERT_EQ(parent->GetChildren()->GetCount(), 100000);

    delete parent;

    EXPECT_EQ(died, 100);
}

TEST(LifetimeOfMany, AHundredThousandSiblingsMayDieFromTheLastToTheFirst)
{
    CScriptedSystem system;
    CVisualElement parent(nullptr, {0, 0}, alNone);
    std::vector<CVisualElement*> children;
    for (int i = 0; i < 100000; ++i)
        children.push_back(new CVisualElement(&parent, {0, 0}, alNone));

    for (auto child = children.rbegin(); child != children.rend(); ++child)
        delete *child;

    EXPECT_EQ(parent.GetChildren()->GetCount(), 0);
}

} // namespace
