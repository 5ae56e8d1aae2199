// Random steps on a selection: within its terms against a plain set of indices, and without any terms against its rules
// written out once more on a sorted map.

#include "vexel/testing/random.h"
#include "vexel/views/selection.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <set>

using namespace vexel;
using vexel::test::CTestRandom;

namespace
{

using Selection = CSelectionTmpl<int>;

// The rules ------------------------------------------------------------------------------------------------------------
class CRules
{
public:
    enum Kind
    {
        one,
        begin,
        end
    };
    using Map = std::map<long long, Kind>;
    Map m_Map;

    bool IsSelected(long long i) const
    {
        auto const n = m_Map.lower_bound(i);
        if (n == m_Map.end())
            return false;
        return n->first == i || n->second == end;
    }

    long long GetSelectedItems() const
    {
        long long count = 0;
        for (auto n = m_Map.begin(); n != m_Map.end(); ++n)
        {
            if (n->second == one)
                count += 1;
            if (n->second != begin)
                continue;
            long long const from = n->first;
            while (n != m_Map.end() && n->second != end)
                ++n;
            if (n == m_Map.end())
                return count;
            count += n->first - from + 1;
        }
        return count;
    }

    void SelectRun(long long lo, long long hi)
    {
        if (m_Map.empty())
        {
            m_Map.insert({lo, begin});
            m_Map.insert({hi, end});
            return;
        }
        auto first = m_Map.lower_bound(lo - 1);
        if (first == m_Map.end())
        {
            m_Map.insert({lo, begin});
            m_Map.insert({hi, end});
            return;
        }
        auto it = first;
        while (it != m_Map.end() && it->first <= lo)
            ++it;
        if (first->first > lo)
        {
            if (first == m_Map.begin())
                first = m_Map.insert({lo, begin}).first;
            else
                --first;
        }
        while (it != m_Map.end() && it->first < hi)
            it = m_Map.erase(it);
        if (first->first == lo || first->first == lo - 1)
        {
            if (first->second == end)
                m_Map.erase(first);
            else if (first->second == one)
                first->second = begin;
        }
        else
            m_Map.insert({lo, begin});
        if (it != m_Map.end() && (it->first == hi || it->first == hi + 1))
        {
            if (it->second == begin)
                m_Map.erase(it);
            else if (it->second == one)
                it->second = end;
        }
        else
            m_Map.insert({hi, end});
    }

    void SelectOne(long long i)
    {
        if (m_Map.empty())
        {
            m_Map.insert({i, one});
            return;
        }
        auto const n = m_Map.lower_bound(i - 1);
        if (n == m_Map.end())
        {
            m_Map.insert({i, one});
            return;
        }
        if (n->first == i || (n->second == begin && n->first == i - 1) || (n->second == end && n->first > i))
            return;
        if (n->first > i + 1)
        {
            m_Map.insert({i, one});
            return;
        }
        auto m = m_Map.upper_bound(i);
        if (m == m_Map.end())
            m = m_Map.insert({i, end}).first;
        if (n->first == i - 1)
        {
            if (n->second == one)
                n->second = begin;
            if (m->first == i + 1)
            {
                if (m->second == one)
                    m->second = end;
            }
            else
                m_Map.insert({i, end});
        }
        else if (m->first == i + 1)
        {
            if (m->second == one)
                m->second = end;
            m_Map.insert({i, begin});
        }
        bool const eraseRight = m->second == begin && m->first == i + 1;
        if (n->second == end && n->first == i - 1)
            m_Map.erase(n);
        if (eraseRight)
            m_Map.erase(m);
    }

    void DeselectOne(long long i)
    {
        auto const none = m_Map.end();
        auto const n = m_Map.lower_bound(i);
        if (n == none)
            return;
        if (n->second != one)
        {
            auto p = n, q = n;
            if (n->second == begin)
                ++q;
            else if (p == m_Map.begin())
                p = none;
            else
                --p;
            bool const cutLeft = p != none && p->first < i - 1;
            if (q != none && q->first == i + 1)
                q->second = one;
            if (p != none && p->first == i - 1)
                p->second = one;
            if (q != none && q->first > i + 1)
            {
                m_Map.insert({i + 1, begin});
                if (cutLeft)
                    m_Map.insert({i - 1, end});
            }
            else if (cutLeft)
                m_Map.insert({i - 1, end});
        }
        if (n->first == i)
            m_Map.erase(n);
    }
};

::testing::AssertionResult AreSame(Selection const& selection, CRules const& rules)
{
    auto node = rules.m_Map.begin();
    for (auto const& [index, type] : selection.GetNodes())
    {
        if (node == rules.m_Map.end() || node->first != index ||
            static_cast<int>(node->second) != static_cast<int>(type))
            return ::testing::AssertionFailure() << "at node " << index << ", kind " << type;
        ++node;
    }
    if (node != rules.m_Map.end())
        return ::testing::AssertionFailure() << "without node " << node->first;
    long long const count = std::min<long long>(rules.GetSelectedItems(), INT_MAX);
    if (selection.GetSelectedItems() != count)
        return ::testing::AssertionFailure() << selection.GetSelectedItems() << " selected, not " << count;
    return ::testing::AssertionSuccess();
}

// Where the indices lie: in the middle, or at an end of int.
int At(int place, int index)
{
    return place == 0 ? index : place == 1 ? INT_MAX - 40 + index : INT_MIN + index;
}

TEST(RandomSelection, FollowsItsRulesWithoutAnyTerms)
{
    CTestRandom random;
    int step = 0;
    for (int round = 0; step < 1000000; ++round)
    {
        Selection selection;
        CRules rules;
        int const place = round % 3;
        int const runs = random.Int(0, 60);
        for (int i = 0; i < 200; ++i, ++step)
        {
            int const a = At(place, random.Int(0, 40));
            int const b = At(place, random.Int(0, 40));
            bool const select = random.Bool();
            if (random.Chance(1))
            {
                selection.Clear();
                rules.m_Map.clear();
            }
            else if (random.Chance(runs))
            {
                selection.SetItemsSelection(a, b, select);
                if (a == b)
                    select ? rules.SelectOne(a) : rules.DeselectOne(a);
                else if (select)
                    rules.SelectRun(std::min(a, b), std::max(a, b));
            }
            else
            {
                selection.SetItemsSelection(a, a, select);
                select ? rules.SelectOne(a) : rules.DeselectOne(a);
            }
            ASSERT_TRUE(AreSame(selection, rules)) << "round " << round << ", step " << i;
            ASSERT_EQ(selection.IsSelected(b), rules.IsSelected(b)) << "round " << round << ", step " << i;
        }
    }
}

TEST(RandomSelection, IsASetOfIndicesWithinItsTerms)
{
    CTestRandom random;
    int step = 0;
    for (int round = 0; step < 1000000; ++round)
    {
        Selection selection;
        std::set<int> model;
        int const place = round % 3;
        int const high = round % 10 ? 40 : 1500;  // the larger ones fill several blocks
        for (int i = 0; i < (high > 40 ? 4000 : 200); ++i, ++step)
        {
            int const a = At(place == 1 && high > 40 ? 0 : place, random.Int(0, high));
            if (random.Chance(1) && random.Chance(high > 40 ? 3 : 100))  // a run only where all is cleared
            {
                int const b = At(place == 1 && high > 40 ? 0 : place, random.Int(0, high));
                selection.Clear();
                model.clear();
                selection.SetItemsSelection(a, b, true);
                for (long long k = std::min(a, b); k <= std::max(a, b); ++k)
                    model.insert(static_cast<int>(k));
            }
            else if (model.count(a))
            {
                selection.SetItemsSelection(a, a, false);
                model.erase(a);
            }
            else
            {
                selection.SetItemsSelection(a, a, true);
                model.insert(a);
            }
            int const asked = At(place == 1 && high > 40 ? 0 : place, random.Int(0, high));
            ASSERT_EQ(selection.IsSelected(asked), model.count(asked) > 0) << "round " << round << ", step " << i;
            ASSERT_EQ(selection.GetSelectedItems(), static_cast<int>(model.size()));
        }
        // The nodes are the runs of the set, each as short as can be.
        auto node = selection.GetNodes().begin();
        for (auto index = model.begin(); index != model.end();)
        {
            int const first = *index;
            int last = first;
            while (++index != model.end() && *index == static_cast<long long>(last) + 1)
                last = *index;
            ASSERT_NE(node, selection.GetNodes().end());
            ASSERT_EQ(node->key, first);
            ASSERT_EQ(node->value, first == last ? Selection::selOne : Selection::selBegin);
            ++node;
            if (first == last)
                continue;
            ASSERT_NE(node, selection.GetNodes().end());
            ASSERT_EQ(node->key, last);
            ASSERT_EQ(node->value, Selection::selEnd);
            ++node;
        }
        ASSERT_EQ(node, selection.GetNodes().end());
    }
}

}  // namespace
