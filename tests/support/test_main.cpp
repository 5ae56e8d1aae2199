// The main function of the test programs.
//
// Random tests start from a fixed seed, so that a run tells of the change under test and not of luck. VEXEL_SEED=<number>
// takes another one, VEXEL_SEED=random a new one each time. The seed is printed: the same seed gives the same run.

#include "vexel/testing/google_test.h"  // the census at the end of each test

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <random>
#include <string>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);

    char const* const wanted = std::getenv("VEXEL_SEED");
    std::string seed = wanted ? wanted : "1";
    if (seed == "random")
        seed = std::to_string(std::random_device{}());
    // RapidCheck reads its settings from here; settings given by hand stay as they are.
    setenv("RC_PARAMS", ("seed=" + seed).c_str(), 0);
    setenv("VEXEL_SEED", seed.c_str(), 1);
    std::cout << "VEXEL_SEED=" << seed << " RC_PARAMS=\"" << std::getenv("RC_PARAMS") << "\"\n";

    int const result = RUN_ALL_TESTS();

    // A program without tests proves nothing, unless the tests went to the other shards or were not asked for.
    testing::UnitTest const& all = *testing::UnitTest::GetInstance();
    if (all.total_test_count() == 0)
    {
        std::cerr << "This program contains no test.\n";
        return 1;
    }
    return result;
}
