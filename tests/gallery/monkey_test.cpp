// A user who does anything at all to every page, to random trees and to random controls: nothing breaks, nothing is left,
// what is remembered is there, and what is shown is what a full paint shows. VEXEL_MONKEY_EVENTS tells the number of events
// per scene. A game that fails is kept as a file, which `./dev monkey FILE` plays again.

#include "gallery/pages.h"
#include "tests/gallery/monkey_scenes.h"
#include "vexel/testing/test_kit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

using namespace vexel::test;

namespace gallery
{

namespace
{

int EventCount()
{
    char const* const text = std::getenv("VEXEL_MONKEY_EVENTS");
    return text ? std::atoi(text) : 1500;
}

std::vector<std::string> AllScenes()
{
    std::vector<std::string> scenes;
    for (SPage const& page : GetPages())
        scenes.push_back(std::string("page ") + page.name + " 1 light");
    for (char const* const other : {"page grid 1.5 dark", "tree 1 1", "tree 1.25 2", "tree 1.5 3", "tree 2 4",
                                    "controls 1", "controls 2", "controls 3"})
        scenes.push_back(other);
    return scenes;
}

std::string TestName(testing::TestParamInfo<std::string> const& info)
{
    std::string name = info.param;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == ' ' || c == '.'; }, '_');
    return name;
}

class Monkey : public testing::TestWithParam<std::string>
{
protected:
    void Play(std::uint64_t seed, std::string const& kind)
    {
        std::filesystem::path const folder = VEXEL_FAILED_GAMES;
        std::filesystem::create_directories(folder);
        std::string name = GetParam() + " " + kind + ".txt";
        std::replace(name.begin(), name.end(), ' ', '_');
        std::string const file = (folder / name).string();
        SMonkeyResult const result = PlayAtRandom(GetParam(), seed, EventCount() / 2, &MakeMonkeyScene, file);
        EXPECT_TRUE(result.IsGood()) << result.failure << "\nThe game is in " << file
                                     << "\nPlay it again with ./dev monkey " << file;
        EXPECT_GE(result.events, EventCount() / 2);
    }

    CTestRandom m_Random;
};

}  // namespace

TEST_P(Monkey, BreaksNothing)
{
    Play(m_Random.Next() | 1u, "resized");
}

TEST_P(Monkey, SeesWhatAFullPaintShows)
{
    Play(m_Random.Next() & ~std::uint64_t{1}, "fixed");
}

INSTANTIATE_TEST_SUITE_P(All, Monkey, testing::ValuesIn(AllScenes()), TestName);

// Games that failed once -----------------------------------------------------------------------------------------------

TEST(MonkeyGames, AListBoxShowsItsLastLines)
{
    // Their numbers times what the page multiplies them by are beyond an int, which the sanitizers tell of.
    SMonkeyGame const game{"page listboxes 1.25 light",
                           {"move 698 367", "press 1", "down 9 0", "down 35 256", "paint"}};
    EXPECT_EQ(PlayGame(game, &MakeMonkeyScene).failure, "");
}

// The scenes -----------------------------------------------------------------------------------------------------------

TEST(MonkeyScenes, AreKnownByTheirNames)
{
    EXPECT_TRUE(MakeMonkeyScene("page grid 1.5 dark"));
    EXPECT_TRUE(MakeMonkeyScene("tree 1 17"));
    EXPECT_TRUE(MakeMonkeyScene("controls 17"));
    EXPECT_FALSE(MakeMonkeyScene("page nowhere 1 dark"));
    EXPECT_FALSE(MakeMonkeyScene("page grid"));
    EXPECT_FALSE(MakeMonkeyScene("tree"));
    EXPECT_FALSE(MakeMonkeyScene(""));
}

TEST(MonkeyScenes, OfALongRunAreAllPagesAndAsManyOthers)
{
    std::vector<std::string> pages;
    int others = 0;
    int const count = static_cast<int>(GetPages().size());
    for (int i = 0; i < 2 * count; ++i)
    {
        std::string const name = NameMonkeyScene(i, static_cast<std::uint64_t>(i));
        EXPECT_TRUE(MakeMonkeyScene(name)) << name;
        if (name.substr(0, 5) == "page ")
            pages.push_back(name.substr(5, name.find(' ', 5) - 5));
        else
            ++others;
    }
    std::sort(pages.begin(), pages.end());
    pages.erase(std::unique(pages.begin(), pages.end()), pages.end());
    EXPECT_GE(static_cast<int>(pages.size()), count - 1);  // the last one may come with the next number
    EXPECT_GE(others, count - 1);
}

}  // namespace gallery
