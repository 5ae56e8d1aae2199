// Painting what waits gives the picture that painting everything gives: played with random trees.

#include "tests/support/tree_game.h"

#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel;
using namespace vexel::test;

namespace
{

class IncrementalPaint : public testing::TestWithParam<double>
{};

constexpr int g_Steps = 26000;

}  // namespace

TEST_P(IncrementalPaint, GivesTheSamePixelsAsPaintingEverything)
{
    CTestRandom random;
    int steps = 0;
    while (steps < g_Steps)
    {
        CTestHost host(random.Int(130, 200), random.Int(50, 110), GetParam());
        host.Focus();
        CTreeGame game(host.Control(), host.Window(), random);
        for (int round = 0; round < 200; ++round)
        {
            for (int paints = random.Int(1, 3); paints > 0; --paints)
            {
                for (int changes = random.Int(1, 5); changes > 0; --changes)
                    game.Step();
                game.Paint();
            }
            std::string const difference = game.CompareWithFullPaint();
            ASSERT_EQ(difference, "");
            if (random.Chance(2))
                host.Resize(random.Int(130, 200), random.Int(50, 110));
        }
        steps += game.GetSteps();
    }
}

INSTANTIATE_TEST_SUITE_P(AtScale, IncrementalPaint, testing::Values(1.0, 1.25, 1.5, 2.0));
