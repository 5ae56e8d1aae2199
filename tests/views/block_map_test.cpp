// The sorted map in blocks, against std::map.

#include "vexel/testing/random.h"
#include "vexel/views/block_map.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <vector>

using namespace vexel;
using vexel::test::CTestRandom;

namespace
{

struct SProduct
{
    static std::int64_t Of(int key, int value) { return std::int64_t{key} * value; }
};
using Map = CBlockMap<int, SProduct>;
using Pairs = std::vector<std::pair<int, int>>;

Pairs Read(Map const& map)
{
    Pairs pairs;
    for (auto const& [key, value] : map)
        pairs.emplace_back(key, value);
    return pairs;
}

Pairs ReadBackwards(Map const& map)
{
    Pairs pairs;
    for (auto place = map.end(); place != map.begin();)
    {
        --place;
        pairs.insert(pairs.begin(), {place->key, place->value});
    }
    return pairs;
}

TEST(BlockMap, IsEmptyAtFirst)
{
    Map const map;
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(map.GetCount(), 0);
    EXPECT_EQ(map.GetWeight(), 0);
    EXPECT_EQ(map.begin(), map.end());
    EXPECT_EQ(map.LowerBound(-5), map.end());
    EXPECT_EQ(map.Find(0), map.end());
    EXPECT_EQ(map.SumBelow(5).count, 0);
}

TEST(BlockMap, KeepsTheNodesInOrder)
{
    Map map;
    map.Insert(5, 1);
    map.Insert(-3, 2);
    map.Insert(INT_MAX, 3);
    map.Insert(INT_MIN, 4);
    EXPECT_EQ(Read(map), (Pairs{{INT_MIN, 4}, {-3, 2}, {5, 1}, {INT_MAX, 3}}));
    EXPECT_EQ(ReadBackwards(map), Read(map));
    EXPECT_EQ(map.LowerBound(std::int64_t{INT_MIN} - 1)->key, INT_MIN);
    EXPECT_EQ(map.LowerBound(-2)->key, 5);
    EXPECT_EQ(map.LowerBound(std::int64_t{INT_MAX} + 1), map.end());
    auto place = map.Find(5);
    EXPECT_EQ((place++)->key, 5);
    EXPECT_EQ((place--)->key, INT_MAX);
    EXPECT_EQ(place->key, 5);
}

TEST(BlockMap, InsertsOnlyWhatIsNotThere)
{
    Map map;
    map.Insert(5, 1);
    EXPECT_EQ(map.Insert(5, 2)->value, 1);
    EXPECT_EQ(map.Assign(5, 3)->value, 3);
    EXPECT_EQ(map.GetCount(), 1);
    EXPECT_EQ(map.GetWeight(), 15);
}

TEST(BlockMap, ErasesAndGivesBackTheNextPlace)
{
    Map map;
    for (int i = 0; i < 1000; ++i)
        map.Insert(i, 1);
    EXPECT_EQ(map.Erase(map.Find(300))->key, 301);
    EXPECT_EQ(map.Erase(map.LowerBound(250), map.LowerBound(900))->key, 900);
    EXPECT_EQ(map.GetCount(), 350);
    auto next = map.Erase(map.Find(999));
    EXPECT_EQ(next, map.end());
    next = map.Erase(map.begin(), map.end());
    EXPECT_EQ(next, map.end());
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(map.GetWeight(), 0);
}

TEST(BlockMap, AgreesWithASortedMap)
{
    CTestRandom random;
    for (int round = 0; round < 10; ++round)
    {
        Map map;
        std::map<int, int> model;
        int const span = round % 2 ? 4000 : 300;
        for (int step = 0; step < 4000; ++step)
        {
            int const key = random.Int(-span, span);
            int const value = random.Int(-9, 9);
            int const what = random.Int(0, 99);
            if (what < 70)
            {
                model.emplace(key, value);
                ASSERT_EQ(map.Insert(key, value)->key, key);
            }
            else if (what < 80)
            {
                model[key] = value;
                ASSERT_EQ(map.Assign(key, value)->value, value);
            }
            else if (what < 98)
            {
                model.erase(key);
                if (auto const place = map.Find(key); place != map.end())
                    map.Erase(place);
            }
            else
            {
                int const to = key + random.Int(0, 600);
                model.erase(model.lower_bound(key), model.lower_bound(to));
                auto const next = map.Erase(map.LowerBound(key), map.LowerBound(to));
                ASSERT_EQ(next, map.LowerBound(to));
            }

            int const asked = random.Int(-span - 1, span + 1);
            auto const expected = model.lower_bound(asked);
            auto const found = map.LowerBound(asked);
            ASSERT_EQ(found == map.end(), expected == model.end());
            if (expected != model.end())
            {
                ASSERT_EQ(found->key, expected->first);
                ASSERT_EQ(found->value, expected->second);
            }
            if (step % 97)
                continue;
            ASSERT_EQ(Read(map), Pairs(model.begin(), model.end()));
            ASSERT_EQ(ReadBackwards(map), Read(map));
            ASSERT_EQ(map.GetCount(), static_cast<int>(model.size()));
            std::int64_t weight = 0, all = 0;
            int count = 0;
            for (auto const& [k, v] : model)
            {
                std::int64_t const product = static_cast<std::int64_t>(k) * v;
                all += product;
                weight += k < asked ? product : 0;
                count += k < asked;
            }
            ASSERT_EQ(map.GetWeight(), all);
            ASSERT_EQ(map.SumBelow(asked).weight, weight);
            ASSERT_EQ(map.SumBelow(asked).count, count);
            int last = INT_MIN;
            Map::SSum skipped;
            auto const place = map.SkipBlocks(
                [&](int lastKey, Map::SSum const&) {
                    if (lastKey >= asked)
                        return false;
                    last = lastKey;
                    return true;
                },
                skipped);
            ASSERT_EQ(skipped.count, map.SumBelow(std::int64_t{last} + 1).count);
            ASSERT_EQ(skipped.weight, map.SumBelow(std::int64_t{last} + 1).weight);
            ASSERT_EQ(place, map.LowerBound(std::int64_t{last} + 1));
        }
    }
}

}  // namespace
