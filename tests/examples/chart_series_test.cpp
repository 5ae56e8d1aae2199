// Bands of many points, told at once.

#include "examples/chart/series.h"
#include "vexel/testing/random.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

using namespace chart;
using vexel::test::CTestRandom;

namespace
{

CSeries Make(std::vector<double> y)
{
    std::vector<double> x;
    for (std::size_t i = 0; i < y.size(); ++i)
        x.push_back(static_cast<double>(i) * 2);
    return CSeries("name", {}, std::move(x), std::move(y));
}

TEST(ChartSeries, FindsTheFirstPointAtAPlaceOrBehind)
{
    CSeries const series = Make({5, 6, 7});  // at 0, 2, 4
    EXPECT_EQ(series.Find(-1), 0u);
    EXPECT_EQ(series.Find(0), 0u);
    EXPECT_EQ(series.Find(0.5), 1u);
    EXPECT_EQ(series.Find(4), 2u);
    EXPECT_EQ(series.Find(4.5), 3u);
}

TEST(ChartSeries, HasNoBandOfNothing)
{
    EXPECT_TRUE(CSeries().GetBand().IsEmpty());
    EXPECT_TRUE(Make({1, 2}).GetBand(1, 1).IsEmpty());
    EXPECT_TRUE(Make({std::nan(""), std::nan("")}).GetBand().IsEmpty());
}

TEST(ChartSeries, LeavesGapsOutOfABand)
{
    SBand const band = Make({3, std::nan(""), -1}).GetBand();
    EXPECT_EQ(band.low, -1);
    EXPECT_EQ(band.high, 3);
}

TEST(ChartSeries, TellsTheBandOfAnyStretchAsAWalkDoes)
{
    CTestRandom random;
    for (int const count : {1, 63, 64, 65, 4096, 4097, 300000})
    {
        std::vector<double> y;
        for (int i = 0; i < count; ++i)
            y.push_back(random.Chance(3) ? std::nan("") : random.Int(-1000000, 1000000));
        std::vector<double> const copy = y;
        CSeries const series = Make(std::move(y));
        for (int i = 0; i < 60; ++i)
        {
            int const first = random.Int(0, count), end = random.Int(first, count);
            SBand walked;
            for (int k = first; k < end; ++k)
                walked.Add(copy[static_cast<std::size_t>(k)]);
            SBand const band = series.GetBand(static_cast<std::size_t>(first), static_cast<std::size_t>(end));
            ASSERT_EQ(band.low, walked.low) << count << ": " << first << " to " << end;
            ASSERT_EQ(band.high, walked.high) << count << ": " << first << " to " << end;
        }
    }
}

}  // namespace
