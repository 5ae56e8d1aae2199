#include "vexel/antialiasing/double_map.h"

#include "vexel/testing/random.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace antialiasing
{

namespace
{

using IntMap = double_map<int, int, int>;

struct SAdd
{
    int distance;
    int operator()(int key) const { return key + distance; }
};

void Share(IntMap& map, IntMap& owner)
{
    map.m_Saved = std::make_unique<IntMap::secondary_map>(std::move(map.m_Secondary));
    map.m_Secondary.clear();
    map.m_Owner = &owner;
    owner.m_Sharers.insert(&map);
}

void Point(IntMap& map, int key, int primary)
{
    map.m_Secondary[key] = &map.m_Owner->m_Primary.at(primary);
}

TEST(DoubleMap, BeginsEmptyAndItsOwnOwner)
{
    IntMap const map;

    EXPECT_TRUE(map.m_Primary.empty());
    EXPECT_TRUE(map.m_Secondary.empty());
    EXPECT_EQ(map.m_Owner, &map);
    EXPECT_EQ(map.m_Saved, nullptr);
    EXPECT_TRUE(map.m_Sharers.empty());
}

TEST(DoubleMap, ACopyPointsAtItsOwnValues)
{
    IntMap from;
    from.m_Primary = {{1, 10}, {2, 20}};
    Point(from, 5, 2);
    Point(from, 6, 2);

    IntMap copy;
    copy.m_Primary[9] = 90;
    copy = from;

    EXPECT_EQ(copy.m_Primary, from.m_Primary);
    ASSERT_EQ(copy.m_Secondary.size(), 2u);
    EXPECT_EQ(copy.m_Secondary[5], &copy.m_Primary[2]);
    EXPECT_EQ(copy.m_Secondary[6], &copy.m_Primary[2]);
    copy.m_Primary[2] = 21;
    EXPECT_EQ(from.m_Primary[2], 20);
}

TEST(DoubleMap, ACopyWithoutAnIndexHasTheValues)
{
    IntMap from;
    from.m_Primary = {{1, 10}};

    IntMap const copy(from);

    EXPECT_EQ(copy.m_Primary, from.m_Primary);
    EXPECT_EQ(copy.m_Owner, &copy);
}

TEST(DoubleMap, ACopyDropsPointersIntoOtherMaps)
{
    int elsewhere = 0;
    IntMap from;
    from.m_Primary = {{1, 10}};
    Point(from, 5, 1);
    from.m_Secondary[6] = &elsewhere;

    IntMap const copy(from);

    EXPECT_EQ(copy.m_Secondary.size(), 1u);
    EXPECT_EQ(copy.m_Secondary.count(5), 1u);
}

TEST(DoubleMap, AssignedToItselfItStays)
{
    IntMap map;
    map.m_Primary = {{1, 10}};
    Point(map, 5, 1);

    IntMap const& same = map;
    map = same;

    EXPECT_EQ(map.m_Primary.size(), 1u);
    EXPECT_EQ(map.m_Secondary[5], &map.m_Primary[1]);
}

TEST(DoubleMap, ACopyOfASharerSharesToo)
{
    IntMap owner, sharer, copy;
    owner.m_Primary = {{1, 10}};
    sharer.m_Primary = {{3, 30}};
    Point(sharer, 7, 3);
    Share(sharer, owner);
    Point(sharer, 5, 1);

    copy = sharer;

    EXPECT_EQ(copy.m_Owner, &owner);
    EXPECT_EQ(owner.m_Sharers, (std::set<IntMap*>{&sharer, &copy}));
    EXPECT_TRUE(copy.m_Secondary.empty());
    ASSERT_NE(copy.m_Saved, nullptr);
    EXPECT_EQ(copy.m_Saved->at(7), &copy.m_Primary.at(3));
}

TEST(DoubleMap, ACopyOfASharerWithNothingSavedHasNothingSaved)
{
    IntMap owner, sharer, copy;
    Share(sharer, owner);
    copy = sharer;
    ASSERT_NE(copy.m_Saved, nullptr);
    EXPECT_TRUE(copy.m_Saved->empty());

    sharer.m_Saved.reset();
    copy = sharer;
    EXPECT_EQ(copy.m_Saved, nullptr);
    EXPECT_EQ(copy.m_Owner, &owner);
}

TEST(DoubleMap, AnOwnerThatIsAssignedItsSharerStaysItsOwnOwner)
{
    IntMap owner, sharer;
    owner.m_Primary = {{1, 10}};
    sharer.m_Primary = {{3, 30}};
    Point(sharer, 7, 3);
    Share(sharer, owner);

    owner = sharer;

    EXPECT_EQ(owner.m_Owner, &owner);
    EXPECT_EQ(owner.m_Sharers, std::set<IntMap*>{&sharer});
    EXPECT_EQ(owner.m_Primary, sharer.m_Primary);
    EXPECT_EQ(owner.m_Secondary.at(7), &owner.m_Primary.at(3));
}

TEST(DoubleMap, ClearForgetsTheSavedIndex)
{
    IntMap owner, sharer;
    owner.m_Primary = {{1, 10}};
    sharer.m_Primary = {{3, 30}};
    Point(sharer, 7, 3);
    Share(sharer, owner);
    Point(sharer, 5, 1);

    sharer.clear();

    EXPECT_EQ(sharer.m_Owner, &sharer);
    EXPECT_EQ(sharer.m_Saved, nullptr);
    EXPECT_TRUE(sharer.m_Primary.empty());
    EXPECT_TRUE(sharer.m_Secondary.empty());
    EXPECT_TRUE(owner.m_Sharers.empty());
    EXPECT_EQ(owner.m_Primary.size(), 1u);
}

TEST(DoubleMap, ClearForgetsASavedIndexOfAMapThatDoesNotShareToo)
{
    IntMap map;
    map.m_Primary = {{1, 10}};
    map.m_Saved = std::make_unique<IntMap::secondary_map>();
    (*map.m_Saved)[7] = &map.m_Primary.at(1);

    map.clear();

    EXPECT_EQ(map.m_Saved, nullptr);
}

TEST(DoubleMap, ClearDoesNotTellTheSharers)
{
    IntMap owner, sharer;
    owner.m_Primary = {{1, 10}};
    Share(sharer, owner);
    Point(sharer, 5, 1);

    owner.clear();

    EXPECT_EQ(owner.m_Sharers, std::set<IntMap*>{&sharer});
    EXPECT_EQ(sharer.m_Owner, &owner);
    EXPECT_EQ(sharer.m_Secondary.size(), 1u);
}

TEST(DoubleMap, DetachBringsTheSavedIndexBack)
{
    IntMap owner, sharer;
    owner.m_Primary = {{1, 10}};
    sharer.m_Primary = {{3, 30}};
    Point(sharer, 7, 3);
    Share(sharer, owner);
    Point(sharer, 5, 1);

    EXPECT_EQ(sharer.detach(), &owner);

    EXPECT_EQ(sharer.m_Owner, &sharer);
    EXPECT_EQ(sharer.m_Saved, nullptr);
    ASSERT_EQ(sharer.m_Secondary.size(), 1u);
    EXPECT_EQ(sharer.m_Secondary[7], &sharer.m_Primary[3]);
    EXPECT_TRUE(owner.m_Sharers.empty());
    EXPECT_EQ(sharer.detach(), nullptr);
    EXPECT_EQ(sharer.m_Secondary.size(), 1u);
}

TEST(DoubleMap, DetachWithoutASavedIndexLeavesNone)
{
    IntMap owner, sharer;
    owner.m_Primary = {{1, 10}};
    Share(sharer, owner);
    sharer.m_Saved.reset();
    Point(sharer, 5, 1);

    sharer.detach();

    EXPECT_TRUE(sharer.m_Secondary.empty());
}

TEST(DoubleMap, WhenTheOwnerDiesTheSharersGetTheirIndexBack)
{
    IntMap first, second;
    first.m_Primary = {{3, 30}};
    Point(first, 7, 3);
    {
        IntMap owner;
        owner.m_Primary = {{1, 10}};
        Share(first, owner);
        Share(second, owner);
        Point(first, 5, 1);
        Point(second, 5, 1);
    }

    EXPECT_EQ(first.m_Owner, &first);
    EXPECT_EQ(second.m_Owner, &second);
    EXPECT_EQ(first.m_Secondary.at(7), &first.m_Primary.at(3));
    EXPECT_EQ(first.m_Secondary.size(), 1u);
    EXPECT_TRUE(second.m_Secondary.empty());
}

TEST(DoubleMap, WhenASharerDiesTheOwnerForgetsIt)
{
    IntMap owner;
    {
        IntMap sharer;
        Share(sharer, owner);
    }

    EXPECT_TRUE(owner.m_Sharers.empty());
}

TEST(DoubleMap, NewPrimaryKeysKeepPointersAndSecondaryKeys)
{
    IntMap owner, sharer;
    owner.m_Primary = {{1, 10}, {2, 20}};
    Point(owner, 5, 1);
    Share(sharer, owner);
    Point(sharer, 6, 2);

    owner.modify_primary_keys(SAdd{1});

    EXPECT_EQ(owner.m_Primary, (IntMap::primary_map{{2, 10}, {3, 20}}));
    EXPECT_EQ(owner.m_Secondary.at(5), &owner.m_Primary.at(2));
    EXPECT_EQ(sharer.m_Secondary.at(6), &owner.m_Primary.at(3));
}

TEST(DoubleMap, NewPrimaryKeysOfASharerMoveItsSavedIndexAlone)
{
    IntMap owner, sharer;
    owner.m_Primary = {{1, 10}};
    sharer.m_Primary = {{3, 30}};
    Point(sharer, 7, 3);
    Share(sharer, owner);
    Point(sharer, 5, 1);

    sharer.modify_primary_keys(SAdd{-1});

    EXPECT_EQ(sharer.m_Primary, (IntMap::primary_map{{2, 30}}));
    EXPECT_EQ(sharer.m_Saved->at(7), &sharer.m_Primary.at(2));
    EXPECT_EQ(sharer.m_Secondary.at(5), &owner.m_Primary.at(1));
}

TEST(DoubleMap, NewPrimaryKeysWithoutAnyIndex)
{
    IntMap map;
    map.m_Primary = {{1, 10}, {2, 20}};

    map.modify_primary_keys(SAdd{10});

    EXPECT_EQ(map.m_Primary, (IntMap::primary_map{{11, 10}, {12, 20}}));
}

TEST(DoubleMap, OfValuesThatGetOneKeyTheFirstStays)
{
    IntMap map;
    map.m_Primary = {{1, 10}, {2, 20}};
    Point(map, 5, 1);
    Point(map, 6, 2);

    map.modify_primary_keys([](int) { return 0; });

    EXPECT_EQ(map.m_Primary, (IntMap::primary_map{{0, 10}}));
    EXPECT_EQ(map.m_Secondary.at(5), &map.m_Primary.at(0));
    EXPECT_EQ(map.m_Secondary.at(6), &map.m_Primary.at(0));
}

TEST(DoubleMap, NewSecondaryKeysKeepTheirPointers)
{
    IntMap map;
    map.m_Primary = {{1, 10}, {2, 20}};
    Point(map, 5, 1);
    Point(map, 6, 2);

    map._modify_secondary_map(map.m_Secondary, SAdd{1});

    EXPECT_EQ(map.m_Secondary, (IntMap::secondary_map{{6, &map.m_Primary[1]}, {7, &map.m_Primary[2]}}));
}

// A twin that knows no pointers: its indices name the primary key of what they point at -------------------------------

struct STwin
{
    std::map<int, int> primary;
    std::map<int, int> secondary;
    std::optional<std::map<int, int>> saved;
    int owner = 0;
};

constexpr int Maps = 4;

class CGame
{
public:
    explicit CGame(vexel::test::CTestRandom& random) : m_Random(random)
    {
        for (int i = 0; i < Maps; ++i)
        {
            m_Maps[i] = std::make_unique<IntMap>();
            m_Twins[i].owner = i;
        }
    }

    void Step()
    {
        int const i = m_Random.Index(Maps), j = m_Random.Index(Maps);
        int const key = m_Random.Int(0, 9);
        IntMap& map = *m_Maps[i];
        STwin& twin = m_Twins[i];
        switch (m_Random.Int(0, 15))
        {
        case 0:
            Unshare(i);
            map.clear();
            ClearTwin(i);
            break;
        case 1:
            if (i != j)
                Unshare(i);
            map = *m_Maps[j];
            AssignTwin(i, j);
            break;
        case 2:
            EXPECT_EQ(map.detach() != nullptr, twin.owner != i);
            DetachTwin(i);
            break;
        case 3:
            if (i != j && twin.owner == i)
            {
                Share(map, *m_Maps[j]);
                twin.saved = std::exchange(twin.secondary, {});
                twin.owner = j;
            }
            break;
        case 4:
            m_Maps[i] = std::make_unique<IntMap>();  // the new one is made before the old one dies
            for (int k = 0; k < Maps; ++k)
                if (k != i && m_Twins[k].owner == i)
                    DetachTwin(k);
            twin = {};
            twin.owner = i;
            break;
        case 5:
        case 6:
        {
            int const distance = m_Random.Int(-2, 2);
            map.modify_primary_keys(SAdd{distance});
            MoveTwin(i, distance);
            break;
        }
        case 7:
        {
            int const distance = m_Random.Int(-2, 2);
            map._modify_secondary_map(map.m_Secondary, SAdd{distance});
            std::map<int, int> moved;
            for (auto const& [from, to] : twin.secondary)
                moved[from + distance] = to;
            twin.secondary = moved;
            break;
        }
        case 8:
        case 9:
        case 10:
        case 11:
            if (map.m_Primary.size() < 8)
            {
                map.m_Primary.insert({key, m_Next});
                twin.primary.insert({key, m_Next});
                ++m_Next;
            }
            break;
        default:
            if (auto const& values = m_Twins[twin.owner].primary; !values.empty() && twin.secondary.size() < 8)
            {
                int const to = m_Random.Pick(values).first;
                Point(map, key, to);
                twin.secondary[key] = to;
            }
        }
    }

    std::string Compare(int i) const
    {
        IntMap const& map = *m_Maps[i];
        STwin const& twin = m_Twins[i];
        if (map.m_Primary != twin.primary)
            return "values";
        if (map.m_Owner != m_Maps[twin.owner].get())
            return "owner";
        if (!IsSame(map.m_Secondary, twin.secondary, *map.m_Owner))
            return "index";
        if ((map.m_Saved != nullptr) != twin.saved.has_value())
            return "saved";
        if (twin.saved && !IsSame(*map.m_Saved, *twin.saved, map))
            return "saved index";
        std::size_t sharers = 0;
        for (int k = 0; k < Maps; ++k)
            if (k != i && m_Twins[k].owner == i)
                sharers += map.m_Sharers.count(m_Maps[k].get());
            else if (map.m_Sharers.count(m_Maps[k].get()) != 0)
                return "a sharer too many";
        return sharers == map.m_Sharers.size() ? "" : "sharers";
    }

private:
    static bool IsSame(IntMap::secondary_map const& index, std::map<int, int> const& twin, IntMap const& values)
    {
        if (index.size() != twin.size())
            return false;
        auto other = twin.begin();
        for (auto const& [key, value] : index)
        {
            auto const found = values.m_Primary.find(other->second);
            if (key != other->first || found == values.m_Primary.end() || value != &found->second)
                return false;
            ++other;
        }
        return true;
    }
    // What clear() leaves to its caller.
    void Unshare(int i)
    {
        for (int k = 0; k < Maps; ++k)
            if (k != i && m_Twins[k].owner == i)
            {
                m_Maps[k]->detach();
                DetachTwin(k);
            }
    }
    void DetachTwin(int i)
    {
        STwin& twin = m_Twins[i];
        if (twin.owner == i)
            return;
        twin.owner = i;
        twin.secondary = twin.saved.value_or(std::map<int, int>());
        twin.saved.reset();
    }
    void ClearTwin(int i)
    {
        m_Twins[i] = {};
        m_Twins[i].owner = i;
    }
    void AssignTwin(int i, int j)
    {
        if (i == j)
            return;
        STwin const from = m_Twins[j];
        ClearTwin(i);
        STwin& twin = m_Twins[i];
        twin.primary = from.primary;
        if (from.owner == j)
        {
            twin.secondary = from.secondary;
            return;
        }
        twin.owner = from.owner;
        twin.saved = from.saved;
    }
    void MoveTwin(int i, int distance)
    {
        STwin& twin = m_Twins[i];
        auto const moved = [distance](std::map<int, int> const& old, bool keys) {
            std::map<int, int> result;
            for (auto const& [key, value] : old)
                result[keys ? key + distance : key] = keys ? value : value + distance;
            return result;
        };
        twin.primary = moved(twin.primary, true);
        if (twin.saved)
            twin.saved = moved(*twin.saved, false);
        for (STwin& other : m_Twins)
            if (other.owner == i)
                other.secondary = moved(other.secondary, false);
    }

    vexel::test::CTestRandom& m_Random;
    std::unique_ptr<IntMap> m_Maps[Maps];
    STwin m_Twins[Maps];
    int m_Next = 1;
};

TEST(DoubleMap, AMillionRandomOperationsAgreeWithANaiveTwin)
{
    vexel::test::CTestRandom random;
    CGame game(random);
    for (int step = 0; step < 1000000; ++step)
    {
        game.Step();
        std::string const difference = game.Compare(step % Maps);
        if (!difference.empty())
            FAIL() << difference << " of map " << step % Maps << " differs after step " << step;
    }
}

}  // namespace

}  // namespace antialiasing
