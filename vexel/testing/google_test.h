#pragma once

// What ties the kit to GoogleTest: including this (or "vexel/testing/test_kit.h") in one source of a test program makes
// every test of it end with the census, turns the kit's failures into failures of the running test, and prints the seed
// of a test that failed. All of it stands in this header, so the program's own GoogleTest is used.

#include "vexel/testing/census.h"
#include "vexel/testing/failure.h"
#include "vexel/testing/pixels.h"
#include "vexel/testing/random.h"

#include <gtest/gtest.h>

#include <iostream>
#include <string>

namespace vexel::test
{

/// Compares two pictures; on failure prints the first differing pixel and both pictures there as text.
#define EXPECT_EQ_PIXELS(expected, actual) EXPECT_PRED_FORMAT2(::vexel::test::PixelsAreEqual, expected, actual)
#define ASSERT_EQ_PIXELS(expected, actual) ASSERT_PRED_FORMAT2(::vexel::test::PixelsAreEqual, expected, actual)

inline ::testing::AssertionResult PixelsAreEqual(char const* expectedText, char const* actualText,
                                                 vexelbase::CPixelBuffer const& expected,
                                                 vexelbase::CPixelBuffer const& actual)
{
    std::string const difference = ComparePixels(expected, actual);
    if (difference.empty())
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "expected: " << expectedText << "\n  actual: " << actualText << "\n"
                                         << difference;
}

namespace detail
{

class CKitListener : public ::testing::EmptyTestEventListener
{
public:
    void OnTestProgramStart(::testing::UnitTest const&) override
    {
        SetFailureReporter([](std::string const& message) { ADD_FAILURE() << message; });
        InstallKit();
    }
    void OnTestStart(::testing::TestInfo const& info) override
    {
        SetRunningTest(std::string(info.test_suite_name()) + "." + info.name());
        CCensus::Begin();
    }
    void OnTestEnd(::testing::TestInfo const& info) override
    {
        for (std::string const& line : CCensus::End())
            ADD_FAILURE() << line;
        if (info.result()->Failed())
            std::cout << "To repeat: VEXEL_SEED=" << GetSeed() << "\n";
        SetRunningTest("");
    }
};

inline bool AppendKitListener()
{
    ::testing::UnitTest::GetInstance()->listeners().Append(new CKitListener);
    return true;
}

inline bool const g_KitListener = AppendKitListener();

} // namespace detail

} // namespace vexel::test
