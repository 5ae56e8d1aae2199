// The list of elements that a control gathers between two paints or layouts.

#include "tests/support/scripted_system.h"
#include "vexel/core/element_list.h"
#include "vexel/core/visual_element.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <deque>
#include <vector>

using namespace vexel;

namespace
{

// root > middle > leaf, and an aunt beside middle.
class ElementList : public testing::Test
{
protected:
    // "leaf - aunt": the names in order, "-" for null.
    std::string Text()
    {
        std::string text;
        for (int i = 0; i < m_List.GetCount(); ++i)
        {
            CVisualElement* const e = m_List.GetItem(i);
            char const* const name = !e              ? "-"
                                     : e == &m_Root   ? "root"
                                     : e == &m_Middle ? "middle"
                                     : e == &m_Leaf   ? "leaf"
                                     : e == &m_Aunt   ? "aunt"
                                                      : "?";
            text += (text.empty() ? "" : " ") + std::string(name);
        }
        return text;
    }

    CScriptedSystem m_System;
    CVisualElement m_Root{nullptr, {0, 0}, alNone};
    CVisualElement m_Middle{&m_Root, {0, 0}, alNone};
    CVisualElement m_Leaf{&m_Middle, {0, 0}, alNone};
    CVisualElement m_Aunt{&m_Root, {0, 0}, alNone};
    CElementList m_List;
};

TEST_F(ElementList, StartsEmpty)
{
    EXPECT_EQ(m_List.GetCount(), 0);
    EXPECT_EQ(m_List.GetItem(0), nullptr);
}

TEST_F(ElementList, AppendsElementsInOrder)
{
    m_List.AddElement(&m_Leaf);
    m_List.AddElement(&m_Root);

    EXPECT_EQ(Text(), "leaf root");
}

TEST_F(ElementList, TakesAnElementOnlyOnce)
{
    m_List.AddElement(&m_Leaf);
    m_List.AddElement(&m_Root);
    m_List.AddElement(&m_Leaf);

    EXPECT_EQ(Text(), "leaf root");
}

TEST_F(ElementList, TakesNoHiddenElement)
{
    m_Leaf.SetVisible(false);

    m_List.AddElement(&m_Leaf);

    EXPECT_EQ(m_List.GetCount(), 0);
}

TEST_F(ElementList, TakesNoElementUnderAHiddenAncestor)
{
    m_Root.SetVisible(false);

    m_List.AddElement(&m_Leaf);

    EXPECT_EQ(m_List.GetCount(), 0);
}

TEST_F(ElementList, AnElementThatIsHiddenLaterStays)
{
    m_List.AddElement(&m_Leaf);

    m_Leaf.SetVisible(false);

    EXPECT_EQ(Text(), "leaf");
}

TEST_F(ElementList, ItemsOutsideAreNull)
{
    m_List.AddElement(&m_Leaf);

    EXPECT_EQ(m_List.GetItem(-1), nullptr);
    EXPECT_EQ(m_List.GetItem(1), nullptr);
    EXPECT_EQ(m_List.GetItem(1000), nullptr);
    EXPECT_EQ(m_List.GetItem(0), &m_Leaf);
}

TEST_F(ElementList, RemovingMovesTheRestUp)
{
    m_List.AddElement(&m_Leaf);
    m_List.AddElement(&m_Root);
    m_List.AddElement(&m_Aunt);

    m_List.RemoveElement(&m_Root);

    EXPECT_EQ(Text(), "leaf aunt");
    EXPECT_EQ(m_List.GetCount(), 2);
}

TEST_F(ElementList, RemovingAStrangerDoesNothing)
{
    m_List.AddElement(&m_Leaf);

    m_List.RemoveElement(&m_Root);

    EXPECT_EQ(Text(), "leaf");
}

TEST_F(ElementList, ARemovedElementCanComeBackAtTheEnd)
{
    m_List.AddElement(&m_Leaf);
    m_List.AddElement(&m_Aunt);

    m_List.RemoveElement(&m_Leaf);
    m_List.AddElement(&m_Leaf);

    EXPECT_EQ(Text(), "aunt leaf");
}

TEST_F(ElementList, ReducingLeavesNullsInPlaceOfDescendantsAndKeepsTheCount)
{
    m_List.AddElement(&m_Leaf);
    m_List.AddElement(&m_Aunt);
    m_List.AddElement(&m_Middle);

    m_List.Reduce();

    EXPECT_EQ(Text(), "- aunt middle");
    EXPECT_EQ(m_List.GetCount(), 3);
}

TEST_F(ElementList, ReducingLooksAtAllAncestors)
{
    m_List.AddElement(&m_Root);
    m_List.AddElement(&m_Leaf);

    m_List.Reduce();

    EXPECT_EQ(Text(), "root -");
}

TEST_F(ElementList, ReducingLeavesTheTopmostOfAWholeBranch)
{
    m_List.AddElement(&m_Leaf);
    m_List.AddElement(&m_Middle);
    m_List.AddElement(&m_Root);
    m_List.AddElement(&m_Aunt);

    m_List.Reduce();

    EXPECT_EQ(Text(), "- - root -");
}

TEST_F(ElementList, ReducingKeepsSiblings)
{
    m_List.AddElement(&m_Middle);
    m_List.AddElement(&m_Aunt);

    m_List.Reduce();

    EXPECT_EQ(Text(), "middle aunt");
}

TEST_F(ElementList, ReducingTwiceChangesNothingMore)
{
    m_List.AddElement(&m_Leaf);
    m_List.AddElement(&m_Middle);

    m_List.Reduce();
    m_List.Reduce();

    EXPECT_EQ(Text(), "- middle");
}

TEST_F(ElementList, ClearingWithLessThanOneEmptiesIt)
{
    for (int const keep : {0, -1, -1000})
    {
        m_List.AddElement(&m_Leaf);
        m_List.AddElement(&m_Aunt);

        m_List.Clear(keep);

        EXPECT_EQ(m_List.GetCount(), 0);
    }
}

TEST_F(ElementList, ClearingKeepsTheFirstEntries)
{
    m_List.AddElement(&m_Leaf);
    m_List.AddElement(&m_Aunt);
    m_List.AddElement(&m_Root);

    m_List.Clear(2);
    EXPECT_EQ(Text(), "leaf aunt");

    m_List.Clear(1);
    EXPECT_EQ(Text(), "leaf");
}

TEST_F(ElementList, ClearingBehindTheEndKeepsAll)
{
    m_List.AddElement(&m_Leaf);

    m_List.Clear(1);
    m_List.Clear(7);

    EXPECT_EQ(Text(), "leaf");
}

TEST_F(ElementList, WhatWasClearedCanComeBack)
{
    m_List.AddElement(&m_Leaf);
    m_List.AddElement(&m_Aunt);

    m_List.Clear(1);
    m_List.AddElement(&m_Aunt);
    EXPECT_EQ(Text(), "leaf aunt");

    m_List.Clear(0);
    m_List.AddElement(&m_Aunt);
    m_List.AddElement(&m_Leaf);
    EXPECT_EQ(Text(), "aunt leaf");
}

TEST_F(ElementList, WhileItIsWalkedARemovalLeavesANull)
{
    m_List.AddElement(&m_Leaf);
    m_List.AddElement(&m_Aunt);
    m_List.AddElement(&m_Root);
    CElementList::CWalk const walk(m_List);

    m_List.RemoveElement(&m_Leaf);

    EXPECT_EQ(m_List.GetItem(0), nullptr);
    EXPECT_EQ(m_List.GetItem(1), &m_Aunt);
    EXPECT_EQ(m_List.GetItem(2), &m_Root);
}

TEST_F(ElementList, TakesOverTheEntriesOfAnother)
{
    CElementList other;
    other.AddElement(&m_Leaf);
    other.AddElement(&m_Aunt);
    m_List.AddElement(&m_Root);

    m_List.TakeFrom(other);

    EXPECT_EQ(Text(), "leaf aunt");
    EXPECT_EQ(other.GetCount(), 0);
    other.AddElement(&m_Leaf);
    EXPECT_EQ(other.GetItem(0), &m_Leaf);
}

TEST_F(ElementList, EqualsAListOfTheSameEntriesInTheSameOrder)
{
    CElementList other;
    EXPECT_TRUE(m_List.IsEqual(other));

    m_List.AddElement(&m_Leaf);
    EXPECT_FALSE(m_List.IsEqual(other));

    other.AddElement(&m_Leaf);
    EXPECT_TRUE(m_List.IsEqual(other));

    m_List.AddElement(&m_Aunt);
    m_List.AddElement(&m_Middle);
    other.AddElement(&m_Middle);
    other.AddElement(&m_Aunt);
    EXPECT_FALSE(m_List.IsEqual(other));
}

TEST_F(ElementList, EqualsOnlyAListWithTheSameNulls)
{
    CElementList other;
    m_List.AddElement(&m_Leaf);
    m_List.AddElement(&m_Middle);
    other.AddElement(&m_Leaf);
    other.AddElement(&m_Middle);

    m_List.Reduce();
    EXPECT_FALSE(m_List.IsEqual(other));

    other.Reduce();
    EXPECT_TRUE(m_List.IsEqual(other));
}

// Against a plain vector ----------------------------------------------------------------------------------------------------

bool IsBelow(CVisualElement const* element, CVisualElement const* above)
{
    for (CVisualElement const* parent = element->GetParent(); parent; parent = parent->GetParent())
    {
        if (parent == above)
            return true;
    }
    return false;
}

TEST(ElementListModel, BehavesLikeAPlainVectorWhateverIsDone)
{
    CScriptedSystem system;
    EXPECT_TRUE(rc::check("element list against a vector", [] {
        // A forest of elements, each under an earlier one or alone.
        constexpr int count = 40;
        std::deque<CVisualElement> elements;
        for (int i = 0; i < count; ++i)
        {
            int const parent = *rc::gen::inRange(-1, i);
            elements.emplace_back(parent < 0 ? nullptr : &elements[static_cast<std::size_t>(parent)], size<int>{0, 0},
                                  alNone);
        }
        CElementList list;
        std::vector<CVisualElement*> model;

        int const steps = *rc::gen::inRange(0, 150);
        for (int step = 0; step < steps; ++step)
        {
            CVisualElement* const element = &elements[*rc::gen::inRange<std::size_t>(0, count)];
            int const operation = *rc::gen::inRange(0, 20);
            if (operation < 11)
            {
                list.AddElement(element);
                bool shown = true;
                for (CVisualElement* e = element; e; e = e->GetParent())
                    shown = shown && e->IsVisible();
                if (shown && std::find(model.begin(), model.end(), element) == model.end())
                    model.push_back(element);
            }
            else if (operation < 15)
            {
                list.RemoveElement(element);
                auto const found = std::find(model.begin(), model.end(), element);
                if (found != model.end())
                    model.erase(found);
            }
            else if (operation < 17)
            {
                element->SetVisible(!element->IsVisible());
            }
            else if (operation < 18)
            {
                list.Reduce();
                std::vector<CVisualElement*> const before = model;
                for (CVisualElement*& entry : model)
                {
                    bool covered = false;
                    for (CVisualElement* other : before)
                        covered = covered || (entry && other && IsBelow(entry, other));
                    if (covered)
                        entry = nullptr;
                }
            }
            else
            {
                int const keep = *rc::gen::inRange(-1, static_cast<int>(model.size()) + 2);
                list.Clear(keep);
                if (keep < static_cast<int>(model.size()))
                    model.resize(static_cast<std::size_t>(std::max(keep, 0)));
            }

            RC_ASSERT(list.GetCount() == static_cast<int>(model.size()));
            for (std::size_t i = 0; i < model.size(); ++i)
                RC_ASSERT(list.GetItem(static_cast<int>(i)) == model[i]);
            RC_ASSERT(list.GetItem(-1) == nullptr);
            RC_ASSERT(list.GetItem(static_cast<int>(model.size())) == nullptr);
        }
    }));
}

} // namespace
