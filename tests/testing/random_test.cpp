#include "vexel/testing/random.h"

#include "vexel/testing/test_kit.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <string>
#include <vector>

namespace vexel
{
namespace
{

using namespace vexel::test;

TEST(Random, ASeedGivesTheSameNumbersOnEveryMachine)
{
    CTestRandom random(1);
    // The generator's published first values for the seed 1.
    EXPECT_EQ(random.Next(), 0x910A2DEC89025CC1u);
    EXPECT_EQ(random.Next(), 0xBEEB8DA1658EEC67u);
}

TEST(Random, AGeneratorOfTheTestRepeatsWithTheTestAndNotWithItself)
{
    SetRunningTest("Suite.Case");
    CTestRandom first;
    CTestRandom second;
    SetRunningTest("Suite.Case");
    CTestRandom again;
    SetRunningTest("Suite.Other");
    CTestRandom other;
    std::uint64_t const number = first.Next();
    EXPECT_EQ(again.Next(), number);
    EXPECT_NE(second.Next(), number);
    EXPECT_NE(other.Next(), number);
}

TEST(Random, IntsReachBothEndsAndNothingBeyond)
{
    CTestRandom random(7);
    std::set<int> seen;
    for (int i = 0; i < 200; ++i)
        seen.insert(random.Int(-2, 2));
    EXPECT_EQ(seen, (std::set<int>{-2, -1, 0, 1, 2}));
    EXPECT_EQ(random.Int(5, 5), 5);
    int const reversed = random.Int(3, 1);
    EXPECT_TRUE(reversed >= 1 && reversed <= 3);
    random.Int(-2147483647 - 1, 2147483647);
}

TEST(Random, RealsStayBelowTheUpperEnd)
{
    CTestRandom random(7);
    for (int i = 0; i < 200; ++i)
    {
        double const value = random.Real(-1.0, 0.5);
        EXPECT_TRUE(value >= -1.0 && value < 0.5) << value;
    }
}

TEST(Random, ChancesOfNoneAndAllAreCertain)
{
    CTestRandom random(7);
    for (int i = 0; i < 50; ++i)
    {
        EXPECT_FALSE(random.Chance(0));
        EXPECT_TRUE(random.Chance(100));
    }
}

TEST(Random, PicksAndShufflesWithoutLosingAnything)
{
    CTestRandom random(7);
    std::vector<std::string> items{"a", "b", "c", "d"};
    std::set<std::string> picked;
    for (int i = 0; i < 100; ++i)
        picked.insert(random.Pick(items));
    EXPECT_EQ(picked.size(), 4u);

    random.Pick(items) = "x";
    EXPECT_EQ(std::count(items.begin(), items.end(), "x"), 1);

    std::vector<int> numbers{1, 2, 3, 4, 5, 6, 7, 8};
    std::vector<int> shuffled = numbers;
    random.Shuffle(shuffled);
    EXPECT_NE(shuffled, numbers);
    std::sort(shuffled.begin(), shuffled.end());
    EXPECT_EQ(shuffled, numbers);
}

TEST(Random, TheSeedOfTheRunIsTheEnvironments)
{
    char const* const text = std::getenv("VEXEL_SEED");
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(std::to_string(GetSeed()), text);
}

} // namespace
} // namespace vexel
