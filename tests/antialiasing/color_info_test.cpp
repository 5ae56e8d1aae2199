#include "vexel/antialiasing/color_info.h"

#include <gtest/gtest.h>

namespace antialiasing
{

namespace
{

TEST(ColorInfo, BeginsEmpty)
{
    EXPECT_EQ(CColorInfo(), (CColorInfo{0, 0, 0, 0, 0}));
}

TEST(ColorInfo, AStepOfAGradientLosesNoFraction)
{
    CColorInfo colour{10, 100, 200, 255, 2};
    CColorInfoR step{0.25, 1.5, -0.25, -1.5};

    colour += step;
    EXPECT_EQ(colour, (CColorInfo{10, 101, 199, 253, 2}));  // whole parts 0, 1, -1, -2
    EXPECT_EQ(step.m_RedCarry, 0.25);
    EXPECT_EQ(step.m_GreenCarry, 0.5);
    EXPECT_EQ(step.m_BlueCarry, 0.75);
    EXPECT_EQ(step.m_AlphaCarry, 0.5);

    colour += step;
    EXPECT_EQ(colour, (CColorInfo{10, 103, 199, 252, 2}));  // sums 0.5, 2.0, 0.5, -1.0
    EXPECT_EQ(step.m_GreenCarry, 0.0);
    EXPECT_EQ(step.m_AlphaCarry, 0.0);

    colour += step;
    colour += step;
    EXPECT_EQ(colour, (CColorInfo{11, 106, 199, 249, 2}));  // 4 steps: +1, +6, -1, -6
    EXPECT_EQ(step.m_RedCarry, 0.0);
}

TEST(ColorInfo, AChannelBelowZeroWrapsAndComesBack)
{
    CColorInfo colour{1, 0, 0, 0, 0};
    CColorInfoR down{-3, 0, 0, 0};

    colour += down;
    EXPECT_EQ(colour.m_Red, 0ul - 2ul);

    // As a double the wrapped channel is far beyond 32 bits, where it stops.
    CColorInfoR up{5, 0, 0, 0};
    colour += up;
    EXPECT_EQ(colour.m_Red, 2147483647ul);
}

}  // namespace

}  // namespace antialiasing
