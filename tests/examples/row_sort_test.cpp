// Sorting the rows of a table file.

#include "examples/table/row_sort.h"
#include "tests/examples/table_files.h"
#include "vexel/testing/random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

using namespace table;
using namespace table_test;

namespace
{

using COrder = std::vector<std::uint32_t>;

constexpr std::size_t s_Enough = std::size_t{16} << 20;

COrder Sort(std::string const& content, std::size_t column = 0)
{
    CTestFile const file(content);
    CTableFile table(file.GetPath());
    IndexAll(table);
    CRowSort sort(table, column, table.GetState().rows - 1, s_Enough);
    while (sort.Step())
        continue;
    EXPECT_TRUE(sort.IsDone());
    EXPECT_FALSE(sort.IsLimited());
    return sort.TakeOrder();
}

TEST(RowSort, NumbersAreNumbersInTheUsualNotations)
{
    for (char const* const text : {"0", "12", "-0.5", "+7", ".5", "1.", "1e3", "-2E-5", " 3 ", "007"})
    {
        double number = 0;
        EXPECT_TRUE(ReadNumber(text, number)) << text;
    }
    for (char const* const text :
         {"", " ", "-", "+", ".", "1x", "0x10", "1,5", "inf", "-nan", "1 2", "+-1", "--1", "1e999"})
    {
        double number = 0;
        EXPECT_FALSE(ReadNumber(text, number)) << text;
    }
    double number = 0;
    ReadNumber(" -12.25 ", number);
    EXPECT_EQ(number, -12.25);
}

TEST(RowSort, NumbersGoByValue)
{
    EXPECT_EQ(Sort("n\n10\n9\n-1\n-20\n0.5\n1e1\n0\n-0\n"), (COrder{4, 3, 7, 8, 5, 2, 1, 6}));
}

TEST(RowSort, OtherTextsGoByTheirBytesBehindTheNumbers)
{
    // Empty before all, capitals before small letters, those before what isn't ASCII.
    EXPECT_EQ(Sort("n\nb\nB\n5\n\xC3\xA4\n\"\"\nab\na\n"), (COrder{3, 5, 2, 7, 6, 1, 4}));
}

TEST(RowSort, TextsThatBeginAlikeGoByTheRest)
{
    EXPECT_EQ(Sort("n\ncustomer 10\ncustomer 1\ncustomer\ncustomer 09\ncustomes\n"), (COrder{3, 4, 2, 1, 5}));
    EXPECT_EQ(Sort("n\n12345678x\n12345678\n1234567\n1234567x\n12345678w\n"), (COrder{3, 2, 5, 1, 4}));
}

TEST(RowSort, EqualOnesStayInTheirOrder)
{
    EXPECT_EQ(Sort("n\nx\n1\nx\n1.0\nx\n"), (COrder{2, 4, 1, 3, 5}));
}

TEST(RowSort, AnyColumnCanBeSortedByAndMissingFieldsAreEmpty)
{
    EXPECT_EQ(Sort("a,b\n1,z\n2\n3,\"a,a\"\n4,\"a\"\n", 1), (COrder{2, 4, 3, 1}));
    EXPECT_EQ(Sort("a,b\n1,z\n2,y\n", 7), (COrder{1, 2}));
}

TEST(RowSort, AFileWithoutRowsHasAnEmptyOrder)
{
    EXPECT_EQ(Sort("a,b\n"), COrder());
}

TEST(RowSort, ManyRowsAreInOrder)
{
    vexel::test::CTestRandom random;
    std::string content = "n\n";
    std::vector<std::string> values{""};
    for (int i = 0; i < 50000; ++i)
    {
        values.push_back("some text " + std::to_string(random.Int(0, 20000)) + "!");
        content += values.back() + "\n";
    }
    COrder expected(50000);
    std::iota(expected.begin(), expected.end(), 1u);
    std::stable_sort(expected.begin(), expected.end(),
                     [&](std::uint32_t a, std::uint32_t b) { return values[a] < values[b]; });
    EXPECT_EQ(Sort(content), expected);
}

TEST(RowSort, LittleMemoryIsForTheFirstRows)
{
    CTestFile const file("n\n5\n4\n3\n2\n1\n");
    CTableFile table(file.GetPath());
    IndexAll(table);
    CRowSort sort(table, 0, 5, 20 * 3 + 5);  // a number takes 20 bytes
    while (sort.Step())
        continue;
    EXPECT_TRUE(sort.IsDone());
    EXPECT_TRUE(sort.IsLimited());
    EXPECT_EQ(sort.TakeOrder(), (COrder{3, 2, 1}));
}

TEST(RowSort, TextsNeedMemoryForTheirBytes)
{
    CTestFile const file("n\ncccccccccc\nbbbbbbbbbb\naaaaaaaaaa\n");
    CTableFile table(file.GetPath());
    IndexAll(table);
    CRowSort sort(table, 0, 3, 2 * 31 + 1);  // 20 bytes, ten characters and their end each; one for all
    while (sort.Step())
        continue;
    EXPECT_TRUE(sort.IsLimited());
    EXPECT_EQ(sort.TakeOrder(), (COrder{2, 1}));
}

TEST(RowSort, AStoppedSortHasNoOrder)
{
    CTestFile const file("n\n2\n1\n");
    CTableFile table(file.GetPath());
    IndexAll(table);
    CRowSort sort(table, 0, 2, s_Enough);
    sort.Stop();
    EXPECT_FALSE(sort.Step());
    EXPECT_FALSE(sort.IsDone());
}

TEST(RowSort, RowsThatWereCutOffMeanwhileCountAsEmpty)
{
    CTestFile file("n\nb\na\n7\n");
    CTableFile table(file.GetPath());
    IndexAll(table);
    file.Cut(4);  // behind row 1
    CRowSort sort(table, 0, 3, s_Enough);
    while (sort.Step())
        continue;
    EXPECT_EQ(sort.TakeOrder(), (COrder{2, 3, 1}));
}

}  // namespace
