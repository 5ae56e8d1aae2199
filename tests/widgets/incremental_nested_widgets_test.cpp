// Splitters, expanders, gauges and notebooks in each other, rebuilt and used at random: what is painted bit by bit looks as
// if painted at once, and a thread runs only for an expander whose steps are under way.

#include "tests/support/nested_game.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/testing/random.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

class IncrementalNestedWidgets : public testing::TestWithParam<double>
{};

TEST_P(IncrementalNestedWidgets, LookAsIfPaintedAtOnce)
{
    CTestRandom random;
    int moves = 0;
    int steps = 0;
    int turned = 0;
    int compared = 0;
    for (int game = 0; game < 25; ++game)
    {
        {
            CNestedGame play(random.Next(), GetParam());
            for (int round = 0; round < 50; ++round)
            {
                if (round % 10 == 9)
                    play.ShowAll();
                for (int i = random.Int(1, 3); i > 0; --i)
                    play.Step();
                compared += play.Paint();
                ASSERT_EQ(play.Compare(), "") << play.Tell();
                ASSERT_EQ(play.CheckThreads(), "");
            }
            moves += play.GetMoves();
            steps += play.GetAnimatedSteps();
            turned += play.GetTurned();
        }
        ASSERT_EQ(CTestHost::System().GetRunningRunners(), 0);
    }
    EXPECT_GT(compared, 500);
    EXPECT_GT(moves, 20);
    EXPECT_GT(steps, 50);
    EXPECT_GT(turned, 50);
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalNestedWidgets, testing::Values(1.0, 1.5));

}  // namespace
