// Logical positions to physical ones and back.

#include "tests/scroll/scroll_support.h"
#include "vexel/scroll/scroll_converter.h"
#include "vexel/testing/random.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace vexel;
using namespace vexel::test;
using namespace scroll_test;

namespace
{

CTestModel Unequal(std::vector<double> const& steps)
{
    CTestModel model(0, static_cast<double>(steps.size()));
    model.m_Fixed = false;
    model.m_Steps = steps;
    return model;
}

TEST(ScrollConverter, WithoutAModelEverythingIsZero)
{
    CScrollConverter const none;
    EXPECT_EQ(none.L2P(12.5), 0.0);
    EXPECT_EQ(none.P2L(12), 0.0);
    EXPECT_EQ(none.GetModel(), nullptr);
    CScrollConverter const null(nullptr);
    EXPECT_EQ(null.L2P(12.5), 0.0);
    EXPECT_EQ(null.P2L(12), 0.0);
}

TEST(ScrollConverter, FixedStepsCountFromTheLowerEndByTheMeasure)
{
    CTestModel model(10, 110);
    model.m_Measure = {2.0, 5};  // 2 units are 5 pixels
    CScrollConverter const converter(&model);
    EXPECT_EQ(converter.GetModel(), &model);
    EXPECT_EQ(converter.L2P(10), 0.0);
    EXPECT_EQ(converter.L2P(12), 5.0);
    EXPECT_EQ(converter.L2P(11), 2.5);  // not rounded
    EXPECT_EQ(converter.L2P(6), -10.0);
    EXPECT_EQ(converter.L2P(110), 250.0);
    EXPECT_EQ(converter.P2L(0), 10.0);
    EXPECT_EQ(converter.P2L(5), 12.0);
    EXPECT_EQ(converter.P2L(1), 10.4);
    EXPECT_EQ(converter.P2L(-5), 8.0);
    EXPECT_EQ(converter.P2L(250), 110.0);
}

TEST(ScrollConverter, OnAReversedAxisTooPhysicalZeroIsTheLowerEnd)
{
    CTestModel model(100, 20);
    CScrollConverter const converter(&model);
    EXPECT_EQ(converter.L2P(20), 0.0);
    EXPECT_EQ(converter.L2P(100), 80.0);
    EXPECT_EQ(converter.P2L(80), 100.0);
    EXPECT_EQ(converter.P2L(0), 20.0);
}

TEST(ScrollConverter, APositionInsideAnUnequalStepIsProportional)
{
    CTestModel model = Unequal({10, 20, 30});
    CScrollConverter const converter(&model);
    EXPECT_EQ(converter.L2P(0), 0.0);
    EXPECT_EQ(converter.L2P(0.5), 5.0);
    EXPECT_EQ(converter.L2P(1), 10.0);
    EXPECT_EQ(converter.L2P(2.5), 45.0);
    EXPECT_EQ(converter.L2P(3), 60.0);
    EXPECT_EQ(converter.P2L(0), 0.0);
    EXPECT_EQ(converter.P2L(5), 0.5);
    EXPECT_EQ(converter.P2L(9), 0.9);
    EXPECT_EQ(converter.P2L(10), 1.0);  // a step that is just filled is past
    EXPECT_EQ(converter.P2L(45), 2.5);
}

TEST(ScrollConverter, UnequalStepsGoThroughTheMeasureToo)
{
    CTestModel model = Unequal({10, 20, 30});
    model.m_Measure = {2.0, 3};
    CScrollConverter const converter(&model);
    EXPECT_EQ(converter.L2P(1.5), 30.0);  // (10 + 10) * 3 / 2
    EXPECT_EQ(converter.P2L(30), 1.5);
}

TEST(ScrollConverter, BeforeTheFirstStepThereIsTheFirstStepsScale)
{
    CTestModel model = Unequal({10, 20, 30});
    CScrollConverter const converter(&model);
    // -0.5 lies in step 0 still: half of it backwards.
    EXPECT_EQ(converter.L2P(-0.5), -5.0);
    // -1.5 is in step -1, which is 1 long: nothing is summed up.
    EXPECT_EQ(converter.L2P(-1.5), -0.5);
    // 10 is more than -5: step 0 holds it.
    EXPECT_EQ(converter.P2L(-5), -0.5);
}

TEST(ScrollConverter, UnequalStepsAreWalkedFromStepZeroWhereverTheRangeBegins)
{
    CTestModel model = Unequal({10, 20, 30, 40});
    model.m_From = 2;
    CScrollConverter const converter(&model);
    EXPECT_EQ(converter.L2P(2), 30.0);
    EXPECT_EQ(converter.L2P(3), 60.0);
    EXPECT_EQ(converter.P2L(30), 2.0);
}

TEST(ScrollConverter, PastTheLastStepTheWayBackEndsAtTheFirstWholeStepAboveTheRange)
{
    CTestModel model = Unequal({10, 20, 30});
    CScrollConverter const converter(&model);
    // 60 is filled by the steps 0 to 2; step 3, at the end itself, is 1 long and is walked too.
    EXPECT_EQ(converter.P2L(60), 3.0);
    EXPECT_EQ(converter.P2L(61), 4.0);
    EXPECT_EQ(converter.P2L(1000000), 4.0);
    model.m_To = 2.5;
    EXPECT_EQ(converter.P2L(1000000), 3.0);
    model.m_From = 2.5;  // reversed: the larger end counts
    model.m_To = 0;
    EXPECT_EQ(converter.P2L(1000000), 3.0);
}

TEST(ScrollConverter, StepsOfNoSizeAreSkipped)
{
    CTestModel model = Unequal({10, 0, 0, 20});
    CScrollConverter const converter(&model);
    EXPECT_EQ(converter.P2L(9), 0.9);
    EXPECT_EQ(converter.P2L(10), 3.0);
    EXPECT_EQ(converter.P2L(15), 3.25);
    EXPECT_EQ(converter.L2P(1.5), 10.0);
    EXPECT_EQ(converter.L2P(3), 10.0);
    model.m_Steps = {0, 0, 0, 0};
    EXPECT_EQ(converter.P2L(0), 4.0);  // steps 0 to 3 hold nothing, step 4 is 1 long
}

TEST(ScrollConverter, WhereStepsAreInseparableItTakesNoWalk)
{
    CTestModel model(0, 1e9);
    model.m_Fixed = false;
    model.m_Inseparable = true;
    model.m_Measure = {1.0, 1};
    CScrollConverter const converter(&model);
    EXPECT_EQ(converter.L2P(1e9 - 0.5), 999999999.5);
    EXPECT_EQ(converter.P2L(999999999), 999999999.0);
    EXPECT_EQ(model.m_StepsAsked, 0);
}

// Scale --------------------------------------------------------------------------------------------------------------

TEST(ScrollConverter, ARangeFitsABarBelowTwoToTheThirtyOneLessOne)
{
    CTestModel model(0, 2147483646.0);
    CScrollConverter converter(&model);
    EXPECT_TRUE(converter.IsNormalScale());
    EXPECT_FALSE(converter.NormalizeScale());
    EXPECT_EQ(model.m_Calls.Take(), "");
    model.m_To = 2147483647.0;
    EXPECT_FALSE(converter.IsNormalScale());
    EXPECT_TRUE(converter.NormalizeScale());
    EXPECT_EQ(model.m_Measure.second, 1);
    EXPECT_DOUBLE_EQ(model.m_Measure.first, 2147483647.0 / 2147483646.0);
    EXPECT_TRUE(converter.IsNormalScale());
    EXPECT_FALSE(converter.NormalizeScale());
}

TEST(ScrollConverter, TheMeasureCountsForWhatFits)
{
    CTestModel model(0, 1000000000.0);
    model.m_Measure = {1.0, 3};
    CScrollConverter converter(&model);
    EXPECT_FALSE(converter.IsNormalScale());
    model.m_Measure = {2.0, 3};  // 1.5e9
    EXPECT_TRUE(converter.IsNormalScale());
    model.m_Measure = {1.0, 3};
    EXPECT_TRUE(converter.NormalizeScale());
    EXPECT_EQ(model.m_Measure.second, 3);  // stays
    EXPECT_DOUBLE_EQ(model.m_Measure.first, 3000000000.0 / 2147483646.0);
}

TEST(ScrollConverter, ThreeBillionPixelsAreSpreadOverExactlyWhatABarCanHold)
{
    CTestModel model(0, 3000000000.0);
    CScrollConverter converter(&model);
    ASSERT_TRUE(converter.NormalizeScale());
    EXPECT_EQ(std::lround(converter.L2P(3000000000.0)), 2147483646);
    EXPECT_NEAR(converter.L2P(3000000000.0), 2147483646.0, 1e-6);
    EXPECT_NEAR(converter.P2L(2147483646), 3000000000.0, 1e-6);
    EXPECT_EQ(converter.P2L(0), 0.0);
}

TEST(ScrollConverter, AReversedRangeIsSpreadByItsLength)
{
    CTestModel model(5e17, -5e17);
    CScrollConverter converter(&model);
    ASSERT_TRUE(converter.NormalizeScale());
    EXPECT_DOUBLE_EQ(model.m_Measure.first, 1e18 / 2147483646.0);
    EXPECT_NEAR(converter.L2P(5e17), 2147483646.0, 1e-5);
    EXPECT_NEAR(converter.L2P(-5e17), 0.0, 1e-5);
    EXPECT_NEAR(converter.P2L(2147483646), 5e17, 256.0);
}

TEST(ScrollConverter, AModelThatKeepsItsMeasureOverflows)
{
    CTestModel model(0, 3000000000.0);
    model.m_TakesMeasure = false;
    CScrollConverter converter(&model);
    EXPECT_TRUE(converter.NormalizeScale());
    EXPECT_FALSE(converter.IsNormalScale());
    EXPECT_EQ(converter.L2P(3000000000.0), 3000000000.0);
    EXPECT_EQ(converter.P2L(2147483647), 2147483647.0);
}

TEST(ScrollConverter, AMeasureOfNothingOrStepsOfNothingHarmNobody)
{
    CTestModel model(0, 100);
    model.m_Measure = {0.0, 0};
    CScrollConverter converter(&model);
    static_cast<void>(converter.L2P(50));
    static_cast<void>(converter.P2L(50));
    static_cast<void>(converter.NormalizeScale());
    model.m_Fixed = false;
    model.m_Steps = {-3, 0, std::nan(""), -1e300};
    static_cast<void>(converter.L2P(3.5));
    static_cast<void>(converter.P2L(50));
    static_cast<void>(converter.L2P(std::nan("")));
}

// Random ranges --------------------------------------------------------------------------------------------------------

// With a measure whose two sides are powers of two and ends that are whole, nothing is rounded: exact.
TEST(ScrollConverterGame, PixelsComeBackExactlyFromFixedAndInseparableSteps)
{
    CTestRandom random;
    for (int i = 0; i < 20000; ++i)
    {
        CTestModel model;
        model.m_From = std::floor(random.Real(-1e15, 1e15));
        model.m_To = random.Chance(10) ? model.m_From : std::floor(model.m_From + random.Real(-2e9, 2e9));
        model.m_Fixed = random.Bool();
        model.m_Inseparable = !model.m_Fixed || random.Bool();
        int const shift = random.Int(0, 3);
        model.m_Measure =
            random.Bool() ? std::pair<double, int>{std::ldexp(1.0, shift), 1} : std::pair<double, int>{1.0, 1 << shift};
        CScrollConverter const converter(&model);
        int const length = static_cast<int>(std::min(2147483646.0, std::abs(model.m_To - model.m_From)));
        int const position = random.Int(-1, length);
        double const logical = converter.P2L(position);
        ASSERT_EQ(converter.L2P(logical), position) << model.m_From << " to " << model.m_To;
    }
}

// The whole range of a bar, over ranges up to 1e18: each of its positions comes back.
TEST(ScrollConverterGame, EveryPositionOfANormalizedBarComesBack)
{
    CTestRandom random;
    for (int i = 0; i < 20000; ++i)
    {
        CTestModel model;
        double const length = std::pow(10.0, random.Real(9.4, 18));
        model.m_From = random.Bool() ? 0.0 : std::floor(random.Real(-1, 1) * length * 0.5);
        model.m_To = random.Bool() ? model.m_From + length : model.m_From - length;
        model.m_Inseparable = random.Bool();
        model.m_Fixed = !model.m_Inseparable;
        model.m_Measure.second = random.Int(1, 40);
        CScrollConverter converter(&model);
        ASSERT_TRUE(converter.NormalizeScale());
        ASSERT_TRUE(converter.IsNormalScale());
        ASSERT_FALSE(converter.NormalizeScale());
        int const position = random.Int(0, 2147483646);
        // The lower end is subtracted from a value of its own size, so a bit of 1e18 is about a ten-millionth of a pixel.
        ASSERT_NEAR(converter.L2P(converter.P2L(position)), position, 1e-3);
        double const upper = std::max(model.m_From, model.m_To);
        ASSERT_NEAR(converter.L2P(upper), 2147483646.0, 1e-3);
        ASSERT_NEAR(converter.P2L(2147483646), upper, length * 1e-12);
    }
}

TEST(ScrollConverterGame, ThroughUnequalStepsTheWayBackFindsTheSamePlace)
{
    CTestRandom random;
    for (int i = 0; i < 3000; ++i)
    {
        CTestModel model;
        model.m_Fixed = false;
        double total = 0;
        for (int steps = random.Int(1, 30); steps > 0; --steps)
        {
            model.m_Steps.push_back(random.Chance(20) ? 0 : random.Int(1, 50));
            total += model.m_Steps.back();
        }
        model.m_To = static_cast<double>(model.m_Steps.size());
        if (random.Bool())
            std::swap(model.m_From, model.m_To);
        CScrollConverter const converter(&model);
        if (total == 0)
            continue;
        // Each pixel of the range is the place where it began, to a rounding of the proportion.
        int const position = random.Int(0, static_cast<int>(total) - 1);
        double const logical = converter.P2L(position);
        ASSERT_NEAR(converter.L2P(logical), position, 1e-9);
        // And it lies in the step that covers this pixel: by a walk of our own.
        double begin = 0;
        std::size_t step = 0;
        while (begin + model.m_Steps[step] <= position)
            begin += model.m_Steps[step++];
        ASSERT_EQ(std::floor(logical), static_cast<double>(step));
    }
}

}  // namespace
