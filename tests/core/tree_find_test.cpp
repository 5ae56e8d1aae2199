// Finding an element by position or by id.

#include "tests/support/scripted_system.h"
#include "vexel/core/visual_element.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace
{

class Find : public testing::Test
{
protected:
    Find() { m_Root.SetPos({1000, 2000, 1100, 2100}, false); }

    CScriptedSystem m_System;
    CVisualElement m_Root{nullptr, {0, 0}, alNone};
};

// By position: pixels of the element that is asked ---------------------------------------------------------------------------

TEST_F(Find, TheElementItselfIsNeverFound)
{
    EXPECT_EQ(m_Root.FindVisualElement(50, 50), nullptr);
}

TEST_F(Find, TheChildUnderThePointIsFound)
{
    CVisualElement left(&m_Root, {0, 0}, alNone);
    CVisualElement right(&m_Root, {0, 0}, alNone);
    left.SetPos({10, 10, 20, 20}, false);
    right.SetPos({30, 10, 40, 20}, false);

    EXPECT_EQ(m_Root.FindVisualElement(15, 15), &left);
    EXPECT_EQ(m_Root.FindVisualElement(35, 15), &right);
    EXPECT_EQ(m_Root.FindVisualElement(25, 15), nullptr);
    EXPECT_EQ(m_Root.FindVisualElement(15, 25), nullptr);
}

TEST_F(Find, AllFourEdgesBelongToTheChild)
{
    CVisualElement child(&m_Root, {0, 0}, alNone);
    child.SetPos({10, 12, 20, 24}, false);

    EXPECT_EQ(m_Root.FindVisualElement(10, 12), &child);
    EXPECT_EQ(m_Root.FindVisualElement(20, 24), &child);
    EXPECT_EQ(m_Root.FindVisualElement(10, 24), &child);
    EXPECT_EQ(m_Root.FindVisualElement(20, 12), &child);

    EXPECT_EQ(m_Root.FindVisualElement(9, 12), nullptr);
    EXPECT_EQ(m_Root.FindVisualElement(10, 11), nullptr);
    EXPECT_EQ(m_Root.FindVisualElement(21, 24), nullptr);
    EXPECT_EQ(m_Root.FindVisualElement(20, 25), nullptr);
}

TEST_F(Find, AChildWithEqualEndsContainsNothing)
{
    CVisualElement narrow(&m_Root, {0, 0}, alNone);
    CVisualElement flat(&m_Root, {0, 0}, alNone);
    narrow.SetPos({10, 10, 10, 20}, false);
    flat.SetPos({30, 10, 40, 10}, false);

    EXPECT_EQ(m_Root.FindVisualElement(10, 15), nullptr);
    EXPECT_EQ(m_Root.FindVisualElement(35, 10), nullptr);
}

TEST_F(Find, AReversedChildContainsWhatLiesBetweenItsEnds)
{
    CVisualElement child(&m_Root, {0, 0}, alNone);
    child.SetPos({20, 24, 10, 12}, false);

    EXPECT_EQ(m_Root.FindVisualElement(15, 18), &child);
    EXPECT_EQ(m_Root.FindVisualElement(10, 12), &child);
    EXPECT_EQ(m_Root.FindVisualElement(20, 24), &child);
    EXPECT_EQ(m_Root.FindVisualElement(9, 18), nullptr);
    EXPECT_EQ(m_Root.FindVisualElement(15, 25), nullptr);
}

TEST_F(Find, OfOverlappingChildrenTheFirstIsFound)
{
    CVisualElement first(&m_Root, {0, 0}, alNone);
    CVisualElement second(&m_Root, {0, 0}, alNone);
    first.SetPos({10, 10, 30, 30}, false);
    second.SetPos({0, 0, 100, 100}, false);

    EXPECT_EQ(m_Root.FindVisualElement(20, 20), &first);
    EXPECT_EQ(m_Root.FindVisualElement(5, 5), &second);
}

TEST_F(Find, AHiddenChildLetsThePointThrough)
{
    CVisualElement first(&m_Root, {0, 0}, alNone);
    CVisualElement second(&m_Root, {0, 0}, alNone);
    first.SetPos({10, 10, 30, 30}, false);
    second.SetPos({0, 0, 100, 100}, false);
    first.SetVisible(false);

    EXPECT_EQ(m_Root.FindVisualElement(20, 20), &second);
}

TEST_F(Find, ADisabledChildIsFound)
{
    CVisualElement child(&m_Root, {0, 0}, alNone);
    child.SetPos({10, 10, 30, 30}, false);
    child.SetEnabled(false);

    EXPECT_EQ(m_Root.FindVisualElement(20, 20), &child);
}

TEST_F(Find, TheDeepestElementIsFound)
{
    CVisualElement middle(&m_Root, {0, 0}, alNone);
    CVisualElement leaf(&middle, {0, 0}, alNone);
    middle.SetPos({10, 20, 60, 70}, false);
    leaf.SetPos({5, 6, 15, 16}, false);

    EXPECT_EQ(m_Root.FindVisualElement(15, 26), &leaf);
    EXPECT_EQ(m_Root.FindVisualElement(25, 36), &leaf);
    EXPECT_EQ(m_Root.FindVisualElement(26, 36), &middle);
    EXPECT_EQ(middle.FindVisualElement(5, 6), &leaf);
    EXPECT_EQ(middle.FindVisualElement(4, 6), nullptr);
}

TEST_F(Find, TheFirstChildThatContainsThePointKeepsItEvenIfNothingBelowItDoes)
{
    CVisualElement first(&m_Root, {0, 0}, alNone);
    CVisualElement second(&m_Root, {0, 0}, alNone);
    CVisualElement belowSecond(&second, {0, 0}, alNone);
    first.SetPos({0, 0, 50, 50}, false);
    second.SetPos({0, 0, 50, 50}, false);
    belowSecond.SetPos({0, 0, 50, 50}, false);

    EXPECT_EQ(m_Root.FindVisualElement(20, 20), &first);
}

TEST_F(Find, AChildOutsideOfItsParentIsNotReached)
{
    CVisualElement middle(&m_Root, {0, 0}, alNone);
    CVisualElement leaf(&middle, {0, 0}, alNone);
    middle.SetPos({10, 10, 20, 20}, false);
    leaf.SetPos({50, 50, 60, 60}, false);

    EXPECT_EQ(m_Root.FindVisualElement(65, 65), nullptr);
}

TEST_F(Find, AHiddenElementStillFindsItsChildren)
{
    CVisualElement child(&m_Root, {0, 0}, alNone);
    child.SetPos({10, 10, 30, 30}, false);
    m_Root.SetVisible(false);

    EXPECT_EQ(m_Root.FindVisualElement(20, 20), &child);
}

// By id -----------------------------------------------------------------------------------------------------------------------

class FindById : public testing::Test
{
protected:
    FindById()
    {
        m_First.SetId(1);
        m_BelowFirst.SetId(2);
        m_Second.SetId(2);
        m_BelowSecond.SetId(3);
    }

    CScriptedSystem m_System;
    CVisualElement m_Root{nullptr, {0, 0}, alNone};
    CVisualElement m_First{&m_Root, {0, 0}, alNone};
    CVisualElement m_BelowFirst{&m_First, {0, 0}, alNone};
    CVisualElement m_Second{&m_Root, {0, 0}, alNone};
    CVisualElement m_BelowSecond{&m_Second, {0, 0}, alNone};
};

TEST_F(FindById, TheElementItselfComesFirst)
{
    EXPECT_EQ(m_Root.FindVisualElement(0ul, false), &m_Root);
    EXPECT_EQ(m_First.FindVisualElement(1ul, false), &m_First);
}

TEST_F(FindById, ChildrenAreSearchedDepthFirst)
{
    EXPECT_EQ(m_Root.FindVisualElement(2ul, false), &m_BelowFirst);
    EXPECT_EQ(m_Root.FindVisualElement(3ul, false), &m_BelowSecond);
}

TEST_F(FindById, AnUnknownIdFindsNothing)
{
    EXPECT_EQ(m_Root.FindVisualElement(77ul, false), nullptr);
    EXPECT_EQ(m_First.FindVisualElement(3ul, false), nullptr);
}

TEST_F(FindById, AmongVisibleOnesAHiddenElementIsPassedOver)
{
    m_BelowFirst.SetVisible(false);

    EXPECT_EQ(m_Root.FindVisualElement(2ul, true), &m_Second);
    EXPECT_EQ(m_Root.FindVisualElement(2ul, false), &m_BelowFirst);
}

TEST_F(FindById, AmongVisibleOnesAnElementUnderAHiddenAncestorIsPassedOver)
{
    m_First.SetVisible(false);

    EXPECT_EQ(m_Root.FindVisualElement(2ul, true), &m_Second);
    EXPECT_EQ(m_First.FindVisualElement(2ul, true), nullptr);
}

TEST_F(FindById, AmongVisibleOnesNothingIsFoundUnderAHiddenRoot)
{
    m_Root.SetVisible(false);

    EXPECT_EQ(m_Root.FindVisualElement(3ul, true), nullptr);
    EXPECT_EQ(m_Root.FindVisualElement(3ul, false), &m_BelowSecond);
}

} // namespace
