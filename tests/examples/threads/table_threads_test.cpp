// A table file that is indexed on one thread, read on another and sorted on a third.

#include "examples/table/row_sort.h"
#include "tests/examples/table_files.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

using namespace table;
using namespace table_test;

namespace
{

TEST(TableThreads, RowsAreReadWhileTheIndexGrowsAndIsThinned)
{
    constexpr std::uint64_t rows = 200000;
    CTestFile const file(NumberedRows(rows));
    CTableFile table(file.GetPath(), {.step = 1, .maxEntries = 128, .firstBlock = 4096});
    std::thread indexing([&] { IndexAll(table); });
    CRowReader reader(table);
    std::vector<std::string> fields;
    std::uint64_t seen = 0;
    while (seen <= rows)
    {
        CTableFile::SState const state = table.GetState();
        EXPECT_GE(state.rows, seen);
        seen = state.rows;
        for (std::uint64_t const row : {seen / 3, seen / 2, seen - 1})
        {
            if (row == 0 || row >= seen)
                continue;
            EXPECT_TRUE(reader.Read(row, fields));
            EXPECT_EQ(fields, std::vector<std::string>{std::to_string(row)});
        }
    }
    indexing.join();
    EXPECT_TRUE(table.GetState().done);
}

TEST(TableThreads, AFileMayBeCutWhileAllReadIt)
{
    CTestFile file(NumberedRows(200000));
    CTableFile table(file.GetPath());
    std::thread indexing([&] { IndexAll(table); });
    CRowSort sort(table, 0, 100000, std::size_t{16} << 20);
    std::thread sorting([&] {
        while (sort.Step())
            continue;
    });
    file.Cut(5000);
    CRowReader reader(table);
    std::vector<std::string> fields;
    for (std::uint64_t row = 100000; row > 0; row -= 1000)
        reader.Read(row, fields);
    indexing.join();
    sorting.join();
    EXPECT_EQ(table.GetState().size, 5000u);
    EXPECT_TRUE(table.GetState().problems.truncated);
    EXPECT_TRUE(sort.IsDone());
    EXPECT_EQ(sort.TakeOrder().size(), 100000u);
}

TEST(TableThreads, ASortStopsWhenItIsToldTo)
{
    CTestFile const file(NumberedRows(200000));
    CTableFile table(file.GetPath());
    IndexAll(table);
    CRowSort sort(table, 0, 200000, std::size_t{16} << 20);
    std::atomic<bool> running{false};
    std::thread sorting([&] {
        while (sort.Step())
            running = true;
        running = true;
    });
    while (!running)
        std::this_thread::yield();
    sort.Stop();
    sorting.join();
    EXPECT_FALSE(sort.Step());
}

}  // namespace
