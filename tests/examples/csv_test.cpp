// The rules by which bytes become rows and fields, each as a small table.

#include "examples/table/csv.h"
#include "tests/examples/table_files.h"

#include <gtest/gtest.h>

#include <string>

using namespace table;
using namespace table_test;
using namespace std::string_literals;

namespace
{

std::string Rows(std::string const& content)
{
    CTestFile const file(content);
    CTableFile table(file.GetPath());
    IndexAll(table);
    return AllRows(table);
}

std::string Text(std::string const& bytes)
{
    std::string text;
    AppendText(bytes, text);
    return text;
}

std::string const g_Bad = "\xEF\xBF\xBD";

TEST(Csv, RowsEndAtLineFeedsWithOrWithoutCarriageReturn)
{
    EXPECT_EQ(Rows("a,b\nc,d\n"), "[a][b] [c][d]");
    EXPECT_EQ(Rows("a,b\r\nc,d\r\n"), "[a][b] [c][d]");
    EXPECT_EQ(Rows("a,b\r\nc,d\ne,f\r\n"), "[a][b] [c][d] [e][f]");
}

TEST(Csv, TheLastRowNeedsNoLineEnd)
{
    EXPECT_EQ(Rows("a,b\nc,d"), "[a][b] [c][d]");
    EXPECT_EQ(Rows("a,b\nc,"), "[a][b] [c][]");
    EXPECT_EQ(Rows("a,b\nc,d\r"), "[a][b] [c][d]");
    EXPECT_EQ(Rows("a"), "[a]");
}

TEST(Csv, AnEmptyLineIsARowWithOneEmptyField)
{
    EXPECT_EQ(Rows("a\n\nb\n"), "[a] [] [b]");
    EXPECT_EQ(Rows("a\r\n\r\nb"), "[a] [] [b]");
    EXPECT_EQ(Rows("\n"), "[]");
    EXPECT_EQ(Rows("\n\n"), "[] []");
}

TEST(Csv, FieldsMayBeEmpty)
{
    EXPECT_EQ(Rows(",\n,,"), "[][] [][][]");
    EXPECT_EQ(Rows("\"\",\"\"\n"), "[][]");
}

TEST(Csv, ACarriageReturnElsewhereIsACharacter)
{
    EXPECT_EQ(Rows("a\rb,c\r,d\n"), "[a\rb][c\r][d]");
    EXPECT_EQ(Rows("a\r\r\n"), "[a\r]");
}

TEST(Csv, QuotedFieldsHoldDelimitersAndLineEnds)
{
    EXPECT_EQ(Rows("\"a,b\",c\n\"d\ne\",f\n"), "[a,b][c] [d\ne][f]");
    EXPECT_EQ(Rows("\"a\r\nb\"\r\nc\r\n"), "[a\r\nb] [c]");
}

TEST(Csv, ADoubledQuoteInAQuotedFieldIsOneQuote)
{
    EXPECT_EQ(Rows("\"a \"\"b\"\" c\"\n"), "[a \"b\" c]");
    EXPECT_EQ(Rows("\"\"\"\"\n"), "[\"]");
    EXPECT_EQ(Rows("\"\"\"a\"\"\",b"), "[\"a\"][b]");
}

TEST(Csv, AQuoteWithinAFieldIsACharacter)
{
    EXPECT_EQ(Rows("5\" pipe,a\"b\"\n"), "[5\" pipe][a\"b\"]");
    EXPECT_EQ(Rows(" \"a\",b\n"), "[ \"a\"][b]");
}

TEST(Csv, WhatFollowsAClosingQuoteIsTakenAsItIs)
{
    EXPECT_EQ(Rows("\"a\"b,c\n"), "[ab][c]");
    EXPECT_EQ(Rows("\"a\" \"b\",c\n"), "[a \"b\"][c]");
}

TEST(Csv, AQuoteThatIsNeverClosedIsTakenAsWritten)
{
    EXPECT_EQ(Rows("a,\"b\nc,d\n"), "[a][\"b] [c][d]");
    EXPECT_EQ(Rows("a,\""), "[a][\"]");
    EXPECT_EQ(Rows("\"a\"\"\nb"), "[\"a\"\"] [b]");
}

TEST(Csv, AQuoteMayBeClosedWithinItsLimitAndNotBehind)
{
    // Not EXPECT_EQ, which would print megabytes.
    std::string const longest(s_QuotedLimit - 1, 'x');
    std::string const within = "\n" + longest;  // as many bytes as may stand between quotes
    EXPECT_TRUE(Rows("a\n\"" + within + "\"\nb\n") == "[a] [" + within + "] [b]");
    EXPECT_TRUE(Rows("a\n\"x" + within + "\"\nb\n") == "[a] [\"x] [" + longest + "\"] [b]");
    // The closing quote is the last byte of the file.
    EXPECT_TRUE(Rows("a\n\"" + within + "\"") == "[a] [" + within + "]");
}

TEST(Csv, AByteOrderMarkIsSkipped)
{
    EXPECT_EQ(Rows("\xEF\xBB\xBFid,name\n1,Ada\n"), "[id][name] [1][Ada]");
    EXPECT_EQ(Rows("\xEF\xBB\xBF\"a,b\"\n"), "[a,b]");
    EXPECT_EQ(Rows("\xEF\xBB,b\n"), "[" + g_Bad + g_Bad + "][b]");
}

TEST(Csv, TextIsKeptIfItIsUtf8)
{
    EXPECT_EQ(Text("plain text of some length"), "plain text of some length");
    EXPECT_EQ(Text("\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80"), "\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x98\x80");
    EXPECT_EQ(Text("\xED\x9F\xBF\xEE\x80\x80\xF4\x8F\xBF\xBF"), "\xED\x9F\xBF\xEE\x80\x80\xF4\x8F\xBF\xBF");
}

TEST(Csv, EachByteThatIsNoUtf8BecomesAReplacement)
{
    EXPECT_EQ(Text("a\xFFz"), "a" + g_Bad + "z");
    EXPECT_EQ(Text("\x80"), g_Bad);              // nothing to go on with
    EXPECT_EQ(Text("\xE2\x82"), g_Bad + g_Bad);  // a character cut short
    EXPECT_EQ(Text("\xC3("), g_Bad + "(");
    EXPECT_EQ(Text("\xC0\xAF"), g_Bad + g_Bad);                          // longer than needed
    EXPECT_EQ(Text("\xE0\x9F\xBF"), g_Bad + g_Bad + g_Bad);              // likewise
    EXPECT_EQ(Text("\xED\xA0\x80"), g_Bad + g_Bad + g_Bad);              // half of a pair
    EXPECT_EQ(Text("\xF4\x90\x80\x80"), g_Bad + g_Bad + g_Bad + g_Bad);  // beyond the last character
    EXPECT_EQ(Text("12345678\xFF"
                   "12345678"),
              "12345678" + g_Bad + "12345678");
}

TEST(Csv, NulsBecomeReplacementsToo)
{
    EXPECT_EQ(Text("a\0b"s), "a" + g_Bad + "b");
    EXPECT_EQ(Text("1234567\0"
                   "1234567\0"s),
              "1234567" + g_Bad + "1234567" + g_Bad);
    EXPECT_EQ(Text("\x01\0\x01"s), "\x01" + g_Bad + "\x01");
}

TEST(Csv, FaultsAreCountedByteByByte)
{
    SByteFaults faults;
    EXPECT_EQ(CheckBytes("ab\0c\xFF\xE2\x82"s, true, faults), 7u);
    EXPECT_EQ(faults.nuls, 1u);
    EXPECT_EQ(faults.invalid, 3u);
}

TEST(Csv, ACharacterThatMayGoOnIsLeftForTheNextBytes)
{
    SByteFaults faults;
    EXPECT_EQ(CheckBytes("abc\xE2\x82", false, faults), 3u);
    EXPECT_EQ(CheckBytes("\xE2\x82\xACxyz", false, faults), 6u);
    EXPECT_EQ(faults.invalid, 0u);
}

TEST(Csv, TheDelimiterIsWhatTheFirstRowHasMostOf)
{
    EXPECT_EQ(GuessDelimiter("x.csv", "a,b;c,d\n;;;;\n"), ',');
    EXPECT_EQ(GuessDelimiter("x.csv", "a;b;c,d\n"), ';');
    EXPECT_EQ(GuessDelimiter("x.csv", "\"a,b,c\";d\n"), ';');
    EXPECT_EQ(GuessDelimiter("x", "a\tb"), '\t');
    EXPECT_EQ(GuessDelimiter("x.tsv", "a,b,c\n"), '\t');
    EXPECT_EQ(GuessDelimiter("x.csv", "a"), ',');
}

TEST(Csv, ATabSeparatedFileIsReadByTheSameRules)
{
    CTestFile const file("a\tb,c\n\"1\t2\"\t3\n", ".tsv");
    CTableFile table(file.GetPath());
    IndexAll(table);
    EXPECT_EQ(AllRows(table), "[a][b,c] [1\t2][3]");
}

}  // namespace
