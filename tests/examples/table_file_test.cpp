// The index of a table file, and what is told of files that are not as they should be.

#include "tests/examples/table_files.h"
#include "vexel/testing/random.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <sys/stat.h>

using namespace table;
using namespace table_test;
using namespace std::string_literals;

namespace
{

std::string ProblemsOf(std::string const& content)
{
    CTestFile const file(content);
    CTableFile table(file.GetPath());
    IndexAll(table);
    return Problems(table);
}

/// Bytes are rows as the rules say, found with as little cleverness as possible.
std::vector<std::vector<std::string>> ReadPlainly(std::string const& bytes)
{
    std::vector<std::vector<std::string>> rows;
    std::size_t at = 0;
    while (at < bytes.size())
    {
        rows.emplace_back();
        for (bool more = true; more;)
        {
            std::string raw;
            std::size_t i = at;
            if (i < bytes.size() && bytes[i] == '"')
            {
                std::string inner;
                std::size_t j = i + 1;
                bool closed = false;
                while (j < bytes.size() && !closed)
                {
                    if (bytes[j] != '"')
                        inner += bytes[j++];
                    else if (j + 1 < bytes.size() && bytes[j + 1] == '"')
                        inner += '"', j += 2;
                    else
                        closed = true;
                }
                if (closed)
                    raw = inner, i = j + 1;
                else
                    raw = "\"", i = i + 1;
            }
            std::string rest;
            while (i < bytes.size() && bytes[i] != ',' && bytes[i] != '\n')
                rest += bytes[i++];
            more = i < bytes.size() && bytes[i] == ',';
            if (!more && !rest.empty() && rest.back() == '\r')
                rest.pop_back();
            rows.back().push_back(raw + rest);
            at = i < bytes.size() ? i + 1 : i;
        }
    }
    return rows;
}

// The index ----------------------------------------------------------------------------------------------------------

TEST(TableFile, RowsAreFoundAroundTheStepsOfTheIndex)
{
    for (int const count : {1, 2, 62, 63, 64, 65, 127, 128, 129, 1000})
    {
        CTestFile const file(NumberedRows(count));
        CTableFile table(file.GetPath());
        IndexAll(table);
        ASSERT_EQ(table.GetState().rows, static_cast<std::uint64_t>(count) + 1);
        CRowReader reader(table);
        std::vector<std::string> fields;
        for (int row = count; row >= 1; --row)  // against the order, so that each one is looked for
        {
            ASSERT_TRUE(reader.Read(static_cast<std::uint64_t>(row), fields));
            ASSERT_EQ(fields, std::vector<std::string>{std::to_string(row)});
        }
        EXPECT_FALSE(reader.Read(static_cast<std::uint64_t>(count) + 1, fields));
    }
}

TEST(TableFile, TheIndexHoldsEachStepsFirstRow)
{
    CTestFile const file(NumberedRows(1000));  // 1001 rows with the header: 0, 64, ... 960 have an entry
    CTableFile table(file.GetPath());
    IndexAll(table);
    EXPECT_EQ(table.GetEntryCount(), 16u);
    EXPECT_EQ(table.FindEntry(63).row, 0u);
    EXPECT_EQ(table.FindEntry(64).row, 64u);
    EXPECT_EQ(table.FindEntry(1000).row, 960u);
    // "number\n", nine rows of 2 bytes, 54 of 3 bytes come before row 64.
    EXPECT_EQ(table.FindEntry(64).offset, 7u + 18 + 162);
}

TEST(TableFile, AFullIndexDropsEverySecondEntry)
{
    CTestFile const file(NumberedRows(1000));
    CTableFile table(file.GetPath(), {.step = 1, .maxEntries = 8});
    IndexAll(table);
    EXPECT_LT(table.GetEntryCount(), 8u);
    CRowReader reader(table);
    std::vector<std::string> fields;
    for (int const row : {1000, 513, 512, 511, 1})
    {
        ASSERT_TRUE(reader.Read(static_cast<std::uint64_t>(row), fields));
        EXPECT_EQ(fields[0], std::to_string(row));
    }
}

TEST(TableFile, TheRowBehindALongOneIsInTheIndex)
{
    std::string const giant(300000, 'x');
    CTestFile const file("a\n" + giant + "\nb\nc\n");
    CTableFile table(file.GetPath());
    IndexAll(table);
    EXPECT_EQ(table.FindEntry(2).row, 2u);
    EXPECT_EQ(table.FindEntry(2).offset, 300003u);
    EXPECT_EQ(AllRows(table), "[a] [" + giant + "] [b] [c]");
}

TEST(TableFile, OfFieldsAndRowsBeyondAllMeasureTheBeginningIsRead)
{
    std::string const giant(CRowReader::s_LongestField + 5000, 'x');
    std::string const wide(CRowReader::s_MostFields + 50, ',');
    CTestFile const file("a,b\n" + giant + ",tail\n" + wide + "\nc,d\n");
    CTableFile table(file.GetPath());
    IndexAll(table);
    CRowReader reader(table);
    std::vector<std::string> fields;
    ASSERT_TRUE(reader.Read(1, fields));
    ASSERT_EQ(fields.size(), 2u);
    EXPECT_EQ(fields[0].size(), CRowReader::s_LongestField);
    EXPECT_EQ(fields[1], "tail");
    ASSERT_TRUE(reader.Read(2, fields));
    EXPECT_EQ(fields.size(), CRowReader::s_MostFields);
    ASSERT_TRUE(reader.Read(3, fields));
    EXPECT_EQ(fields, (std::vector<std::string>{"c", "d"}));
    EXPECT_EQ(table.GetState().columns, CRowReader::s_MostFields + 51);
}

TEST(TableFile, AnyBytesAreReadAsAPlainReaderReadsThem)
{
    vexel::test::CTestRandom random;
    // Lengths around one and several blocks, the smallest of which is 64 bytes here.
    for (int const length : {1, 63, 64, 65, 1000, 30000, 400000})
    {
        for (int const quoteIn : {3, 40, 100000})
        {
            std::string content = "h";  // no byte order mark, and a delimiter that is a comma
            while (static_cast<int>(content.size()) < length)
            {
                int const choice = random.Int(0, 19);
                if (random.Int(1, quoteIn) == 1)
                    content += '"';
                else if (choice < 4)
                    content += ',';
                else if (choice < 6)
                    content += '\n';
                else if (choice < 7)
                    content += "\r\n";
                else
                    content += static_cast<char>('a' + choice);
            }
            CTestFile const file(content);
            CTableFile table(file.GetPath(), {.step = 8, .maxEntries = 64, .firstBlock = 64});
            IndexAll(table);
            std::vector<std::vector<std::string>> const expected = ReadPlainly(content);
            ASSERT_EQ(table.GetState().rows, expected.size()) << length << " bytes, a quote in " << quoteIn;
            CRowReader forward(table);
            CRowReader anywhere(table);
            std::vector<std::string> fields;
            for (std::size_t row = 0; row < expected.size(); ++row)
            {
                ASSERT_TRUE(forward.Read(row, fields));
                ASSERT_EQ(fields, expected[row]) << "row " << row;
            }
            for (int i = 0; i < 300; ++i)
            {
                auto const row = static_cast<std::size_t>(random.Int(0, static_cast<int>(expected.size()) - 1));
                ASSERT_TRUE(anywhere.Read(row, fields));
                ASSERT_EQ(fields, expected[row]) << "row " << row;
                std::string last;
                ASSERT_TRUE(anywhere.ReadField(row, expected[row].size() - 1, last));
                ASSERT_EQ(last, expected[row].back()) << "row " << row;
            }
        }
    }
}

// Files that are not as they should be ---------------------------------------------------------------------------------

TEST(TableFile, NothingIsToldOfAGoodFile)
{
    EXPECT_EQ(ProblemsOf("a,b\n1,2\n\"3\n\",\"4\"\"\"\n"), "");
}

TEST(TableFile, AMissingFileADirectoryAPipeAndAnEmptyFileHaveNothingToShow)
{
    CTestFile const empty("");
    CTestFile const mark("\xEF\xBB\xBF");
    CTestFile const pipe("");
    std::string const folder = empty.GetPath().substr(0, empty.GetPath().rfind('/'));
    std::remove(pipe.GetPath().c_str());
    ASSERT_EQ(mkfifo(pipe.GetPath().c_str(), 0600), 0);
    std::vector<std::pair<std::string, std::string>> const expected{
        {folder + "/no-such-file.csv", folder + "/no-such-file.csv can't be opened: No such file or directory."},
        {empty.GetPath() + "/x", empty.GetPath() + "/x can't be opened: Not a directory."},
        {folder, folder + " is a directory."},
        {pipe.GetPath(), pipe.GetPath() + " is no regular file."},
        {empty.GetPath(), empty.GetPath() + " is empty."},
        {mark.GetPath(), mark.GetPath() + " is empty."},
        {"", " can't be opened: No such file or directory."}};
    for (auto const& [path, problem] : expected)
    {
        CTableFile table(path);
        EXPECT_FALSE(table.IndexMore());
        EXPECT_EQ(Problems(table), problem);
        EXPECT_EQ(table.GetState().rows, 0u);
        EXPECT_TRUE(table.GetState().done);
        EXPECT_EQ(AllRows(table), "");
    }
}

TEST(TableFile, AFileThatMayNotBeReadSaysSo)
{
    CTestFile const file("a\n");
    ASSERT_EQ(chmod(file.GetPath().c_str(), 0), 0);
    bool const root = geteuid() == 0;  // whom no mode of a file stops
    ASSERT_EQ(root ? seteuid(65534) : 0, 0);
    CTableFile table(file.GetPath());
    ASSERT_EQ(root ? seteuid(0) : 0, 0);
    EXPECT_EQ(Problems(table), file.GetPath() + " can't be opened: Permission denied.");
}

TEST(TableFile, AnUnclosedQuoteIsToldWithItsRow)
{
    EXPECT_EQ(ProblemsOf("a,b\n1,2\n3,\"4\n5,6\n"),
              "1 quote is never closed, or only after more than 1 MiB, and taken as written, first in row 2.");
    EXPECT_EQ(ProblemsOf("a,\"b\n1,2\n"),
              "1 quote is never closed, or only after more than 1 MiB, and taken as written, first in the header.");
}

TEST(TableFile, AnUnclosedQuoteInTheMiddleCostsOneField)
{
    std::string content = "a,b\n1,\"lost\n";
    int rows = 1;
    while (content.size() < (std::size_t{3} << 20))
        content += "plain," + std::to_string(++rows) + "\n";
    CTestFile const file(content);
    CTableFile table(file.GetPath());
    IndexAll(table);
    EXPECT_EQ(table.GetState().rows, static_cast<std::uint64_t>(rows) + 1);
    EXPECT_EQ(Problems(table),
              "1 quote is never closed, or only after more than 1 MiB, and taken as written, first in row 1.");
    CRowReader reader(table);
    std::vector<std::string> fields;
    ASSERT_TRUE(reader.Read(1, fields));
    EXPECT_EQ(fields, (std::vector<std::string>{"1", "\"lost"}));
    ASSERT_TRUE(reader.Read(2, fields));
    EXPECT_EQ(fields, (std::vector<std::string>{"plain", "2"}));
}

TEST(TableFile, AForgottenQuoteEndsAtTheNextOneWhichIsTold)
{
    // The quote behind 2 ends the field that 1 begins, and x follows; the next field is read as ever.
    CTestFile const file("a,b\n1,\"lost\n2,\"x\",3\n4,\"5\"\n");
    CTableFile table(file.GetPath());
    IndexAll(table);
    EXPECT_EQ(AllRows(table), "[a][b] [1][lost\n2,x\"][3] [4][5]");
    EXPECT_EQ(Problems(table), "1 field goes on behind the closing quote, as after a forgotten one, first in row 1. "
                               "1 row has another number of fields than the header, first row 1.");
    EXPECT_EQ(ProblemsOf("\"a\",\"b\"\r\n\"c\",\"d\"\r\n"), "");
    EXPECT_EQ(ProblemsOf("a,\"b\""), "");
}

TEST(TableFile, RowsWithAnotherNumberOfFieldsAreToldAndShown)
{
    CTestFile const file("a,b\n1,2\n3\n4,5,6\n7,8\n");
    CTableFile table(file.GetPath());
    IndexAll(table);
    EXPECT_EQ(Problems(table), "2 rows have another number of fields than the header, first row 2.");
    EXPECT_EQ(AllRows(table), "[a][b] [1][2] [3] [4][5][6] [7][8]");
    EXPECT_EQ(table.GetState().columns, 3u);
    EXPECT_EQ(ProblemsOf("a,b\n1,2\n\n"), "1 row has another number of fields than the header, first row 2.");
}

TEST(TableFile, BytesThatAreNoTextAreToldOnce)
{
    EXPECT_EQ(ProblemsOf("a\n\xFF\xFE\n"), "2 bytes are no UTF-8.");
    EXPECT_EQ(ProblemsOf("a\n\xE2\x82"), "2 bytes are no UTF-8.");
    EXPECT_EQ(ProblemsOf("a\n\0\n"s), "1 byte is NUL.");
    // Each of the blocks, whose first one has 64 bytes, begins or ends somewhere in a character.
    std::string content = "a\n";
    for (int i = 0; i < 1000; ++i)
        content += "\xF0\x9F\x98\x80";
    CTestFile const file(content + "\xFF");
    CTableFile table(file.GetPath(), {.firstBlock = 64});
    IndexAll(table);
    EXPECT_EQ(Problems(table), "1 byte is no UTF-8.");
}

TEST(TableFile, AFileThatIsCutWhileItIsIndexedEndsThere)
{
    CTestFile file(NumberedRows(100000));
    CTableFile table(file.GetPath());
    ASSERT_TRUE(table.IndexMore());  // 64 KiB
    file.Cut(7 + 18 + 2);            // the header, nine rows of 2 bytes, and two bytes of row 10
    IndexAll(table);
    EXPECT_EQ(Problems(table), "The file became shorter while it was open; what lay behind its new end is lost.");
    CRowReader reader(table);
    std::vector<std::string> fields;
    ASSERT_TRUE(reader.Read(9, fields));
    EXPECT_EQ(fields, std::vector<std::string>{"9"});
    ASSERT_TRUE(reader.Read(10, fields));
    EXPECT_EQ(fields, std::vector<std::string>{"10"});
    EXPECT_FALSE(reader.Read(11, fields));
    EXPECT_TRUE(fields.empty());
    EXPECT_FALSE(reader.Read(5000, fields));
}

TEST(TableFile, AFileThatIsCutAfterIndexingIsNoticedWhenItIsRead)
{
    CTestFile file(NumberedRows(100000));
    CTableFile table(file.GetPath());
    IndexAll(table);
    EXPECT_EQ(Problems(table), "");
    file.Cut(7 + 18 + 3);
    CRowReader reader(table);
    std::vector<std::string> fields;
    EXPECT_FALSE(reader.Read(90000, fields));
    EXPECT_EQ(Problems(table), "The file became shorter while it was open; what lay behind its new end is lost.");
    EXPECT_EQ(table.GetState().rows, 100001u);
    EXPECT_TRUE(reader.Read(10, fields));
    file.Cut(0);
    EXPECT_FALSE(reader.Read(1, fields));
}

TEST(TableFile, AFileThatIsCutIsNoticedWithoutReadingToo)
{
    CTestFile file("a\n1\n2\n");
    CTableFile table(file.GetPath());
    IndexAll(table);
    EXPECT_EQ(table.GetState().size, 6u);
    file.Cut(5);
    EXPECT_EQ(table.GetState().size, 5u);
    EXPECT_EQ(Problems(table), "The file became shorter while it was open; what lay behind its new end is lost.");
}

TEST(TableFile, WhatIsAppendedLaterIsNotLookedAt)
{
    CTestFile const file("a\n1\n2");
    CTableFile table(file.GetPath());
    std::ofstream(file.GetPath(), std::ios::app) << "3\n4\n";
    IndexAll(table);
    EXPECT_EQ(AllRows(table), "[a] [1] [2]");
    EXPECT_EQ(Problems(table), "");
}

}  // namespace
