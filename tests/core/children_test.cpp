// The list of an element's children, and its bookkeeping alone.

#include "tests/support/assertion_count.h"
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

// A list of five elements that belong to nobody, named by their place at the start.
class Children : public testing::Test
{
protected:
    Children()
    {
        for (int i = 0; i < 5; ++i)
        {
            m_Elements.emplace_back(nullptr, size<int>{0, 0}, alNone);
            m_Owner.GetChildren()->AddItem(&m_Elements.back());
        }
    }
    ~Children() override
    {
        while (m_List->GetCount() > 0)
            m_List->RemoveItem(m_List->GetItem(0));
    }

    std::string Order() const
    {
        std::string text;
        for (int i = 0; i < m_List->GetCount(); ++i)
        {
            for (int e = 0; e < 5; ++e)
            {
                if (m_List->GetItem(i) == &m_Elements[static_cast<std::size_t>(e)])
                    text += static_cast<char>('a' + e);
            }
        }
        return text;
    }

    CScriptedSystem m_System;
    std::deque<CVisualElement> m_Elements;
    CVisualElement m_Owner{nullptr, {0, 0}, alNone};
    IChildren* m_List = m_Owner.GetChildren();
};

TEST_F(Children, ItemsStandInTheOrderInWhichTheyWereAdded)
{
    EXPECT_EQ(m_List->GetCount(), 5);
    EXPECT_EQ(Order(), "abcde");
    EXPECT_EQ(m_List->GetItem(0), &m_Elements[0]);
    EXPECT_EQ(m_List->GetItem(4), &m_Elements[4]);
}

TEST_F(Children, TheIndexOfAnItemIsFoundAndThatOfAStrangerIsMinusOne)
{
    CVisualElement stranger(nullptr, {0, 0}, alNone);

    EXPECT_EQ(m_List->GetIndex(&m_Elements[0]), 0);
    EXPECT_EQ(m_List->GetIndex(&m_Elements[3]), 3);
    EXPECT_EQ(m_List->GetIndex(&stranger), -1);
    EXPECT_EQ(m_List->GetIndex(nullptr), -1);
}

TEST_F(Children, RemovingKeepsTheOrderOfTheRest)
{
    m_List->RemoveItem(&m_Elements[1]);
    EXPECT_EQ(Order(), "acde");

    m_List->RemoveItem(&m_Elements[4]);
    EXPECT_EQ(Order(), "acd");

    m_List->RemoveItem(&m_Elements[0]);
    EXPECT_EQ(Order(), "cd");
}

TEST_F(Children, RemovingAStrangerDoesNothing)
{
    CVisualElement stranger(nullptr, {0, 0}, alNone);

    m_List->RemoveItem(&stranger);

    EXPECT_EQ(Order(), "abcde");
}

TEST_F(Children, AddingAndRemovingAloneSetNoParentAndNoControl)
{
    EXPECT_EQ(m_Elements[0].GetParent(), nullptr);

    m_List->RemoveItem(&m_Elements[0]);

    EXPECT_EQ(m_Elements[0].GetParent(), nullptr);
}

TEST_F(Children, MovingForwardCountsInTheShortenedList)
{
    m_List->MoveItem(1, 3);
    EXPECT_EQ(Order(), "acdbe");
}

TEST_F(Children, MovingBackward)
{
    m_List->MoveItem(3, 1);
    EXPECT_EQ(Order(), "adbce");
}

TEST_F(Children, MovingToTheFront)
{
    m_List->MoveItem(4, 0);
    EXPECT_EQ(Order(), "eabcd");
}

TEST_F(Children, MovingToTheLastPlace)
{
    m_List->MoveItem(0, 4);
    EXPECT_EQ(Order(), "bcdea");
}

TEST_F(Children, MovingBeyondTheEndGoesToTheEnd)
{
    m_List->MoveItem(1, 5);
    EXPECT_EQ(Order(), "acdeb");

    m_List->MoveItem(0, 1000);
    EXPECT_EQ(Order(), "cdeba");
}

TEST_F(Children, MovingToItsOwnPlaceChangesNothing)
{
    m_List->MoveItem(2, 2);
    EXPECT_EQ(Order(), "abcde");
}

TEST_F(Children, MovingToTheNextPlacesExchangesNeighbours)
{
    m_List->MoveItem(0, 1);
    EXPECT_EQ(Order(), "bacde");
}

TEST_F(Children, MovingFromOutsideChangesNothing)
{
    m_List->MoveItem(-1, 0);
    m_List->MoveItem(5, 0);
    m_List->MoveItem(1000, 2);

    EXPECT_EQ(Order(), "abcde");
}

TEST_F(Children, ClearingAnEmptyListDoesNothing)
{
    CVisualElement empty(nullptr, {0, 0}, alNone);

    empty.GetChildren()->Clear();

    EXPECT_EQ(empty.GetChildren()->GetCount(), 0);
}

TEST(ChildrenOfAnElement, ClearingLetsGoOfAStrangerThatHasAnotherParent)
{
    CScriptedSystem system;
    CVisualElement owner(nullptr, {0, 0}, alNone);
    CVisualElement parent(nullptr, {0, 0}, alNone);
    CVisualElement child(&parent, {0, 0}, alNone);
    owner.GetChildren()->AddItem(&child);

    owner.GetChildren()->Clear();

    EXPECT_EQ(owner.GetChildren()->GetCount(), 0);
    EXPECT_EQ(child.GetParent(), &parent);
}

TEST(ChildrenOfAnElement, AChildIsNotAddedASecondTime)
{
    CScriptedSystem system;
    CVisualElement owner(nullptr, {0, 0}, alNone);
    auto* const child = new CVisualElement(&owner, {0, 0}, alNone);
    CAssertionCount assertions;

    owner.GetChildren()->AddItem(child);

    EXPECT_EQ(owner.GetChildren()->GetCount(), 1);
    EXPECT_EQ(assertions.Get(), 1);
}

TEST(ChildrenOfAnElement, BehaveLikeAVectorWhateverIsDone)
{
    CScriptedSystem system;
    EXPECT_TRUE(rc::check("children against a vector", [] {
        std::deque<CVisualElement> elements;
        for (int i = 0; i < 12; ++i)
            elements.emplace_back(nullptr, size<int>{0, 0}, alNone);
        CVisualElement owner(nullptr, {0, 0}, alNone);
        IChildren& list = *owner.GetChildren();
        std::vector<CVisualElement*> model;

        int const steps = *rc::gen::inRange(0, 60);
        for (int step = 0; step < steps; ++step)
        {
            CVisualElement* const element = &elements[*rc::gen::inRange<std::size_t>(0, 12)];
            auto const place = std::find(model.begin(), model.end(), element);
            int const operation = *rc::gen::inRange(0, 4);
            if (operation == 0 || operation == 1)
            {
                if (place == model.end())
                {
                    list.AddItem(element);
                    model.push_back(element);
                }
            }
            else if (operation == 2)
            {
                list.RemoveItem(element);
                if (place != model.end())
                    model.erase(place);
            }
            else if (!model.empty())
            {
                int const from = *rc::gen::inRange(0, static_cast<int>(model.size()));
                int const to = *rc::gen::inRange(0, static_cast<int>(model.size()) + 2);
                list.MoveItem(from, to);
                CVisualElement* const moved = model[static_cast<std::size_t>(from)];
                model.erase(model.begin() + from);
                model.insert(to < static_cast<int>(model.size()) ? model.begin() + to : model.end(), moved);
            }

            RC_ASSERT(list.GetCount() == static_cast<int>(model.size()));
            for (std::size_t i = 0; i < model.size(); ++i)
                RC_ASSERT(list.GetItem(static_cast<int>(i)) == model[i]);
            for (CVisualElement& each : elements)
            {
                auto const found = std::find(model.begin(), model.end(), &each);
                int const index = found == model.end() ? -1 : static_cast<int>(found - model.begin());
                RC_ASSERT(list.GetIndex(&each) == index);
            }
        }
        while (list.GetCount() > 0)
            list.RemoveItem(list.GetItem(0));
    }));
}

}  // namespace
