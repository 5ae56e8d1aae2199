// What is read of a file of numbers that is to be plotted.

#include "examples/chart/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <sstream>
#include <string>

using namespace chart;

namespace
{

// "a: 1 2 -; b: 3 4 5", with "-" for a gap.
std::string Text(SNumbers const& numbers)
{
    std::string text;
    for (std::size_t i = 0; i < numbers.columns.size(); ++i)
    {
        text += (i ? "; " : "") + numbers.names[i] + ":";
        for (double const number : numbers.columns[i])
        {
            char digits[32];
            std::snprintf(digits, sizeof digits, " %g", number);
            text += std::isnan(number) ? " -" : digits;
        }
    }
    return text;
}

SNumbers Read(std::string const& text)
{
    std::istringstream stream(text);
    return ReadNumbers(stream);
}

std::string Sorted(std::string const& text)
{
    SNumbers numbers = Read(text);
    SortByFirst(numbers);
    return Text(numbers);
}

TEST(ChartNumbers, AreReadBelowTheirNames)
{
    EXPECT_EQ(Text(Read("time,speed\n1,2.5\n2,-3e2\n")), "time: 1 2; speed: 2.5 -300");
    EXPECT_EQ(Text(Read("time,speed\r\n1,2\r\n")), "time: 1; speed: 2");
}

TEST(ChartNumbers, AreCalledByTheirPlaceWithoutNames)
{
    EXPECT_EQ(Text(Read("1,2\n3,4")), "column 1: 1 3; column 2: 2 4");
}

TEST(ChartNumbers, MayBePartedBySemicolonsOrTabs)
{
    EXPECT_EQ(Text(Read("a;b\n1,5;2\n")), "a: 1.5; b: 2");
    EXPECT_EQ(Text(Read("a\tb\n+1\t2\n")), "a: 1; b: 2");
}

TEST(ChartNumbers, MayStandInQuotes)
{
    EXPECT_EQ(Text(Read("\"a, in m\",\"b\"\n\"1\", \"2\"\n")), "a, in m: 1; b: 2");
}

TEST(ChartNumbers, WhatIsNoNumberIsAGapAndIsCounted)
{
    SNumbers const numbers = Read("a,b\n1,x\n2,\n3,1x\n4,inf\n5,nan\n");
    EXPECT_EQ(Text(numbers), "a: 1 2 3 4 5; b: - - - - -");
    EXPECT_EQ(numbers.unreadable, 4u);  // an empty field is a gap only
}

TEST(ChartNumbers, ShortLinesHaveGapsAndLongOnesLoseTheirEnd)
{
    SNumbers const numbers = Read("a,b\n1\n2,3,4\n\n5,6\n");
    EXPECT_EQ(Text(numbers), "a: 1 2 5; b: - 3 6");
    EXPECT_EQ(numbers.unreadable, 1u);
}

TEST(ChartNumbers, OfNothingAreNone)
{
    EXPECT_EQ(Text(Read("")), "");
    EXPECT_EQ(Text(Read("a,b\n")), "a:; b:");
    EXPECT_EQ(Text(Read("\xEF\xBB\xBF"
                        "a,b\n1,2")),
              "a: 1; b: 2");
}

TEST(ChartNumbers, AreSortedByTheFirstColumn)
{
    EXPECT_EQ(Sorted("a,b\n3,1\n1,2\n,9\n3,4\n"), "a: 1 3 3; b: 2 1 4");
}

TEST(ChartNumbers, OfOneColumnGetTheRowBeforeThem)
{
    EXPECT_EQ(Sorted("a\n7\n5\n"), "row: 1 2; a: 7 5");
    EXPECT_EQ(Sorted(""), "");
}

}  // namespace
