// The rows of a table file as they are shown and copied.

#include "examples/table/shown_rows.h"
#include "tests/examples/table_files.h"

#include <gtest/gtest.h>

#include <string>

using namespace table;
using namespace table_test;

namespace
{

TEST(ShownRows, AreCopiedWithTabsInTheColumnsOfTheScreen)
{
    CTestFile const file("a,b,c\n1,\"x\ty\",\"say \"\"hi\"\"\"\n2,,\n3\n");
    CTableFile table(file.GetPath());
    IndexAll(table);
    CShownRows rows(table);
    std::string text;
    rows.AppendAsText(0, {2, 0, 1}, text);
    rows.AppendAsText(1, {0, 1, 2}, text);
    rows.AppendAsText(2, {1, 0}, text);
    EXPECT_EQ(text, "\"say \"\"hi\"\"\"\t1\t\"x\ty\"\n2\t\t\n\t3\n");
}

TEST(ShownRows, StandInTheirOrderFollowedByTheOthers)
{
    CTestFile const file("n\na\nb\nc\nd\n");
    CTableFile table(file.GetPath());
    IndexAll(table);
    CShownRows rows(table);
    auto const shown = [&] {
        std::string all;
        for (std::size_t row = 0; row < 4; ++row)
            all += rows.GetFields(row)[0];
        return all;
    };
    EXPECT_EQ(shown(), "abcd");
    rows.SetOrder({3, 1, 2});
    EXPECT_EQ(shown(), "cabd");
    rows.SetDescending(true);
    EXPECT_EQ(shown(), "bacd");
    rows.SetOrder({});
    EXPECT_EQ(shown(), "abcd");
}

TEST(ShownRows, ControlCharactersAreDrawnAsSymbols)
{
    EXPECT_EQ(MakeDrawable("a\nb\tc\r\nd\r\x1B"), "a\u21B5b c\u21B5d\u00B7\u00B7");
    EXPECT_EQ(MakeDrawable(std::string(5000, 'x')).size(), 1000u);
    std::string euros;
    for (int i = 0; i < 1000; ++i)
        euros += "\xE2\x82\xAC";
    EXPECT_EQ(MakeDrawable(euros).size(), 1002u);  // 334 whole ones
}

}  // namespace
