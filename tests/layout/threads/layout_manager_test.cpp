// The shared layouts are made on first use, by whatever thread comes first.

#include "vexel/layout/layout.h"

#include <gtest/gtest.h>

#include <array>
#include <barrier>
#include <thread>
#include <vector>

using namespace vexel;

TEST(LayoutManager, ThreadsThatComeFirstTogetherGetTheSameLayouts)
{
    constexpr int count = 8;
    std::barrier start(count);
    std::array<std::array<ILayout*, 4>, count> seen{};
    std::vector<std::thread> threads;
    for (auto& mine : seen)
    {
        threads.emplace_back([&] {
            start.arrive_and_wait();
            mine = {CLayoutManager::GetLayout(alLeft), CLayoutManager::GetLayout(alRight),
                    CLayoutManager::GetLayout(alTop), CLayoutManager::GetLayout(alBottom)};
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (auto const& mine : seen)
        EXPECT_EQ(mine, seen[0]);
    EXPECT_TRUE(dynamic_cast<CLeftLayout*>(seen[0][0]));
    EXPECT_TRUE(dynamic_cast<CBottomLayout*>(seen[0][3]));
}
