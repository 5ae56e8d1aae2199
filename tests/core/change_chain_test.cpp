// How a change travels up the parents to the control.

#include "tests/support/call_log.h"
#include "tests/support/recording_control.h"
#include "tests/support/recording_element.h"
#include "tests/support/recording_painter.h"
#include "tests/support/scripted_system.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

// root > middle > child, and an aunt beside middle.
class ChangeChain : public testing::Test
{
protected:
    ChangeChain()
    {
        m_Root.SetControl(&m_Control);
        m_Log.Clear();
    }

    // What a test hung onto them ends with its body; the elements still change when they die.
    void TearDown() override
    {
        for (CRecordingElement* const element : {&m_Root, &m_Middle, &m_Child, &m_Aunt})
        {
            element->m_OnChange = nullptr;
            element->m_BeforeChange = nullptr;
        }
    }

    std::string TakeChain() { return m_Log.Take({"BeforeProcessChange", "ProcessChange", "UpdateElement"}); }

    CScriptedSystem m_System;
    CCallLog m_Log;
    CRecordingControl m_Control{m_Log};
    CRecordingElement m_Root{m_Log, "root"};
    CRecordingElement m_Middle{m_Log, "middle", &m_Root};
    CRecordingElement m_Child{m_Log, "child", &m_Middle};
    CRecordingElement m_Aunt{m_Log, "aunt", &m_Root};
};

TEST_F(ChangeChain, AsksTheElementThenItsAncestorsThenTheControl)
{
    m_Child.OnChange(&m_Child, utElement);

    EXPECT_EQ(TakeChain(), "child.BeforeProcessChange(child, 2) child.ProcessChange(child) "
                           "middle.BeforeProcessChange(child, 2) middle.ProcessChange(child) "
                           "root.BeforeProcessChange(child, 2) root.ProcessChange(child) "
                           "control.UpdateElement(child, 2)");
}

TEST_F(ChangeChain, EveryTypeReachesTheControlAsItIs)
{
    for (int const type : {0, 1, 2, 3, 4, 5, 16, 18})
    {
        m_Root.Update(static_cast<UpdateType>(type));
        std::string const number = std::to_string(type);
        EXPECT_EQ(TakeChain(), "root.BeforeProcessChange(root, " + number +
                                   ") root.ProcessChange(root) control.UpdateElement(root, " + number + ")");
    }
}

TEST_F(ChangeChain, UpdateIsAChangeOfTheElementItself)
{
    m_Middle.Update(utGlobal);

    EXPECT_EQ(TakeChain(), "middle.BeforeProcessChange(middle, 1) middle.ProcessChange(middle) "
                           "root.BeforeProcessChange(middle, 1) root.ProcessChange(middle) "
                           "control.UpdateElement(middle, 1)");
}

TEST_F(ChangeChain, ANullElementEndsItAtOnce)
{
    m_Child.OnChange(nullptr, utElement);

    EXPECT_EQ(m_Log.Take(), "");
}

TEST_F(ChangeChain, AFalseBeforehandSkipsOnlyTheElementThatSaidIt)
{
    m_Child.m_BeforeChange = [](CVisualElement*, UpdateType) { return false; };

    m_Child.Update(utElement);

    EXPECT_EQ(TakeChain(), "child.BeforeProcessChange(child, 2) "
                           "middle.BeforeProcessChange(child, 2) middle.ProcessChange(child) "
                           "root.BeforeProcessChange(child, 2) root.ProcessChange(child) "
                           "control.UpdateElement(child, 2)");
}

TEST_F(ChangeChain, AFalseBeforehandOfAnAncestorSkipsOnlyThatAncestor)
{
    m_Middle.m_BeforeChange = [](CVisualElement*, UpdateType) { return false; };
    m_Middle.m_OnChange = [](CVisualElement** element) { *element = nullptr; };

    m_Child.Update(utElement);

    EXPECT_EQ(TakeChain(), "child.BeforeProcessChange(child, 2) child.ProcessChange(child) "
                           "middle.BeforeProcessChange(child, 2) "
                           "root.BeforeProcessChange(child, 2) root.ProcessChange(child) "
                           "control.UpdateElement(child, 2)");
}

TEST_F(ChangeChain, TheElementItselfCanSwallowIt)
{
    m_Child.m_Transparent = true;
    m_Child.m_OnChange = [](CVisualElement** element) { *element = nullptr; };

    m_Child.Update(utElement);

    EXPECT_EQ(TakeChain(), "child.BeforeProcessChange(child, 2) child.ProcessChange(child)");
}

TEST_F(ChangeChain, AnAncestorCanSwallowItAndNobodyAboveHears)
{
    m_Middle.m_OnChange = [](CVisualElement** element) { *element = nullptr; };

    m_Child.Update(utElement);

    EXPECT_EQ(TakeChain(), "child.BeforeProcessChange(child, 2) child.ProcessChange(child) "
                           "middle.BeforeProcessChange(child, 2) middle.ProcessChange(child)");
}

TEST_F(ChangeChain, TheRootCanSwallowItBeforeTheControl)
{
    m_Root.m_OnChange = [](CVisualElement** element) { *element = nullptr; };

    m_Child.Update(utElement);

    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "");
}

TEST_F(ChangeChain, AnAncestorCanPutItselfInThePlaceOfTheElement)
{
    m_Middle.m_OnChange = [&](CVisualElement** element) { *element = &m_Middle; };

    m_Child.Update(utElement);

    EXPECT_EQ(TakeChain(), "child.BeforeProcessChange(child, 2) child.ProcessChange(child) "
                           "middle.BeforeProcessChange(child, 2) middle.ProcessChange(child) "
                           "root.BeforeProcessChange(middle, 2) root.ProcessChange(middle) "
                           "control.UpdateElement(middle, 2)");
}

TEST_F(ChangeChain, TheWalkGoesOnFromTheParentOfWhatTheElementPutInItsPlace)
{
    m_Child.m_OnChange = [&](CVisualElement** element) { *element = &m_Aunt; };

    m_Child.Update(utElement);

    // The aunt itself is not asked, and neither is middle, which is no parent of hers.
    EXPECT_EQ(TakeChain(), "child.BeforeProcessChange(child, 2) child.ProcessChange(child) "
                           "root.BeforeProcessChange(aunt, 2) root.ProcessChange(aunt) "
                           "control.UpdateElement(aunt, 2)");
}

TEST_F(ChangeChain, AnElementCanReportTheChangeOfAnother)
{
    m_Aunt.OnChange(&m_Child, utElement);

    EXPECT_EQ(TakeChain(), "aunt.BeforeProcessChange(child, 2) aunt.ProcessChange(child) "
                           "middle.BeforeProcessChange(child, 2) middle.ProcessChange(child) "
                           "root.BeforeProcessChange(child, 2) root.ProcessChange(child) "
                           "control.UpdateElement(child, 2)");
}

TEST_F(ChangeChain, WhatShinesThroughATransparentElementIsRequestedFirst)
{
    m_Child.m_Transparent = true;

    m_Child.Update(utElement);

    EXPECT_EQ(TakeChain(), "child.BeforeProcessChange(child, 2) child.ProcessChange(child) "
                           "middle.BeforeProcessChange(middle, 2) middle.ProcessChange(middle) "
                           "root.BeforeProcessChange(middle, 2) root.ProcessChange(middle) "
                           "control.UpdateElement(middle, 2) "
                           "middle.BeforeProcessChange(child, 2) middle.ProcessChange(child) "
                           "root.BeforeProcessChange(child, 2) root.ProcessChange(child) "
                           "control.UpdateElement(child, 2)");
}

TEST_F(ChangeChain, TransparentAncestorsAreRequestedFromTheTopDown)
{
    m_Child.m_Transparent = true;
    m_Middle.m_Transparent = true;

    m_Child.Update(utElement);

    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(root, 2) control.UpdateElement(middle, 2) "
                                             "control.UpdateElement(child, 2)");
}

TEST_F(ChangeChain, ATransparentElementPassesItsTypeToItsParent)
{
    m_Child.m_Transparent = true;

    m_Child.Update(utGlobal);

    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(middle, 1) control.UpdateElement(child, 1)");
}

TEST_F(ChangeChain, TheTransparencyOfTheReplacementDecides)
{
    m_Child.m_Transparent = true;
    m_Child.m_OnChange = [&](CVisualElement** element) { *element = &m_Aunt; };

    m_Child.Update(utElement);
    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(aunt, 2)");

    m_Child.m_Transparent = false;
    m_Aunt.m_Transparent = true;
    m_Child.Update(utElement);
    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(root, 2) control.UpdateElement(aunt, 2)");
}

TEST_F(ChangeChain, ATransparentRootHasNobodyBelowIt)
{
    m_Root.m_Transparent = true;

    m_Root.Update(utElement);

    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(root, 2)");
}

TEST_F(ChangeChain, ARemovalToldByATransparentElementIsToldOfItsParentToo)
{
    m_Child.m_Transparent = true;

    m_Child.Update(utRemoved);

    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(middle, 16) control.UpdateElement(child, 16)");
}

TEST_F(ChangeChain, WithoutAControlItRunsToTheRootAndEnds)
{
    CRecordingElement loose(m_Log, "loose");
    CRecordingElement leaf(m_Log, "leaf", &loose);
    m_Log.Clear();

    leaf.Update(utElement);

    EXPECT_EQ(TakeChain(), "leaf.BeforeProcessChange(leaf, 2) leaf.ProcessChange(leaf) "
                           "loose.BeforeProcessChange(leaf, 2) loose.ProcessChange(leaf)");
}

TEST_F(ChangeChain, TheControlOfTheReportingElementIsTold)
{
    CRecordingElement loose(m_Log, "loose");
    m_Log.Clear();

    loose.OnChange(&m_Child, utElement);  // has no control itself
    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "");

    m_Child.OnChange(&loose, utElement);
    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(loose, 2)");
}

// The picture that stands -------------------------------------------------------------------------------------------------

TEST_F(ChangeChain, WhatAnElementDeletesInsteadOfReportingItGoesNoFurther)
{
    auto* const victim = new CRecordingElement(m_Log, "victim", &m_Aunt);
    m_Child.m_OnChange = [&](CVisualElement**) { delete victim; };
    m_Log.Clear();

    m_Child.OnChange(victim, utElement);

    EXPECT_EQ(m_Log.Take({"UpdateElement"}), "control.UpdateElement(victim, 16) control.UpdateElement(victim, 16)");
}

TEST_F(ChangeChain, ATransparentElementThatDiesOfItsParentsRequestGoesNoFurther)
{
    auto* const victim = new CRecordingElement(m_Log, "victim", &m_Middle);
    victim->m_Transparent = true;
    auto* doomed = victim;
    m_Middle.m_OnChange = [&](CVisualElement**) { delete std::exchange(doomed, nullptr); };
    int asked = 0;
    m_Middle.m_BeforeChange = [&](CVisualElement*, UpdateType type) {
        asked += type == utElement;
        return true;
    };

    victim->Update(utElement);

    EXPECT_EQ(asked, 1);
}

TEST_F(ChangeChain, AChangeEmptiesTheValidRectangleOfTheReportingElement)
{
    CRecordingPainter painter(m_Log);
    m_Child.SetPos({5, 6, 25, 16}, false);
    m_Aunt.SetPos({1, 2, 3, 4}, false);
    m_Child.OnDraw(&painter);
    m_Aunt.OnDraw(&painter);
    ASSERT_EQ(m_Child.GetValidRect(), (rectangle<int>{0, 0, 20, 10}));

    m_Aunt.OnChange(&m_Child, utElement);
    EXPECT_EQ(m_Child.GetValidRect(), (rectangle<int>{0, 0, 20, 10}));
    EXPECT_EQ(m_Aunt.GetValidRect(), (rectangle<int>{0, 0, 0, 0}));

    m_Child.Update(utElement);
    EXPECT_EQ(m_Child.GetValidRect(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(ChangeChain, AChangeOfNothingKeepsTheValidRectangle)
{
    CRecordingPainter painter(m_Log);
    m_Child.SetPos({5, 6, 25, 16}, false);
    m_Child.OnDraw(&painter);

    m_Child.OnChange(nullptr, utElement);

    EXPECT_EQ(m_Child.GetValidRect(), (rectangle<int>{0, 0, 20, 10}));
}

TEST_F(ChangeChain, ASwallowedChangeEmptiesTheValidRectangleAllTheSame)
{
    CRecordingPainter painter(m_Log);
    m_Child.SetPos({5, 6, 25, 16}, false);
    m_Child.OnDraw(&painter);
    m_Child.m_OnChange = [](CVisualElement** element) { *element = nullptr; };

    m_Child.Update(utElement);

    EXPECT_EQ(m_Child.GetValidRect(), (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(ChangeChain, TheValidRectangleIsEmptyAlreadyWhenTheElementIsAsked)
{
    CRecordingPainter painter(m_Log);
    m_Child.SetPos({5, 6, 25, 16}, false);
    m_Child.OnDraw(&painter);
    rectangle<int> seen{1, 1, 1, 1};
    m_Child.m_BeforeChange = [&](CVisualElement*, UpdateType) {
        seen = m_Child.GetValidRect();
        return true;
    };

    m_Child.Update(utElement);

    EXPECT_EQ(seen, (rectangle<int>{0, 0, 0, 0}));
}

TEST_F(ChangeChain, InvalidateEmptiesTheValidRectangleAndDoesNothingElse)
{
    CRecordingPainter painter(m_Log);
    m_Child.SetPos({5, 6, 25, 16}, false);
    m_Child.OnDraw(&painter);
    m_Log.Clear();

    m_Child.Invalidate();

    EXPECT_EQ(m_Child.GetValidRect(), (rectangle<int>{0, 0, 0, 0}));
    EXPECT_EQ(m_Log.Take(), "");
}

// The global update ----------------------------------------------------------------------------------------------------------

TEST_F(ChangeChain, AGlobalUpdateReachesTheElementThenItsChildrenDepthFirst)
{
    m_Root.OnGlobalUpdate();

    EXPECT_EQ(m_Log.Take(), "root.UpdateElement() middle.UpdateElement() child.UpdateElement() aunt.UpdateElement()");
}

TEST_F(ChangeChain, AGlobalUpdateReachesHiddenAndDisabledElements)
{
    m_Middle.SetVisible(false);
    m_Aunt.SetEnabled(false);
    m_Log.Clear();

    m_Root.OnGlobalUpdate();

    EXPECT_EQ(m_Log.Take(), "root.UpdateElement() middle.UpdateElement() child.UpdateElement() aunt.UpdateElement()");
}

TEST_F(ChangeChain, AGlobalUpdateDoesNotReachAChildThatComesDuringIt)
{
    std::unique_ptr<CRecordingElement> late;
    m_Aunt.m_OnUpdateElement = [&] { late = std::make_unique<CRecordingElement>(m_Log, "late", &m_Root); };

    m_Root.OnGlobalUpdate();

    EXPECT_EQ(m_Log.Take({"UpdateElement"}).find("late.UpdateElement()"), std::string::npos);
    EXPECT_EQ(m_Root.GetChildren()->GetCount(), 3);
}

TEST_F(ChangeChain, AGlobalUpdateSurvivesAChildThatLeavesDuringIt)
{
    m_Middle.m_OnUpdateElement = [&] { m_Aunt.ReParent(nullptr, false); };

    m_Root.OnGlobalUpdate();

    EXPECT_EQ(m_Log.Take({"UpdateElement"}).find("aunt.UpdateElement()"), std::string::npos);
}

}  // namespace

// Loops over children --------------------------------------------------------------------------------------------------------

namespace
{

// Gets a new sibling whenever the control tells it something, up to a limit that no loop may come to.
class CBreeding : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

protected:
    void HandleControlDestroy() override { Breed(); }
    void HandleControlChangeFocus(bool) override { Breed(); }
    void SysColorsChanged() override { Breed(); }

private:
    void Breed()
    {
        if (GetParent()->GetChildren()->GetCount() < 100)
            new CBreeding(GetParent(), {5, 5}, alNone);
    }
};

}  // namespace

TEST(ChildrenAddedMeanwhile, AreNotReachedByTheLoopThatIsUnderWay)
{
    CVisualElement parent(nullptr, {50, 50}, alNone);
    new CBreeding(&parent, {5, 5}, alNone);

    parent.ProcessControlDestroy();
    EXPECT_EQ(parent.GetChildren()->GetCount(), 2);
    parent.ProcessControlChangeFocus(true);
    EXPECT_EQ(parent.GetChildren()->GetCount(), 4);
    parent.ProcessSysColorChanged();
    EXPECT_EQ(parent.GetChildren()->GetCount(), 8);
}
