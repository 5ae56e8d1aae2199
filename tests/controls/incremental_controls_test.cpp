// Random controls, docked at random, set and used at random: what is painted bit by bit looks as if painted at once, and
// nothing breaks when a click deletes something.

#include "tests/support/controls_game.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

using namespace vexel::test;

// The games are always the same ones: a control that is too small for what it shows, such as a text that moves with the
// press, lets it stick out by a pixel, which may stay on its neighbour. About one game in a thousand comes to that.
TEST(IncrementalControls, LookAsIfPaintedAtOnce)
{
    int clicks = 0;
    int chosen = 0;
    for (int game = 0; game < 40 && !testing::Test::HasFailure(); ++game)
    {
        CControlsGame play(static_cast<std::uint64_t>(game));
        for (int step = 0; step < 60; ++step)
        {
            play.Step();
            ASSERT_EQ(play.Host().CompareWithFullPaint(), "") << "after step " << step << ": " << play.Describe();
        }
        clicks += play.GetClicks();
        chosen += play.GetChosen();
    }
    EXPECT_GT(clicks, 20);
    EXPECT_GT(chosen, 20);
}
