// The monkey itself: with a scene that breaks in a known way, it finds it, keeps it, plays it again and makes it shorter.

#include "tests/support/monkey.h"
#include "vexel/core/base_control.h"
#include "vexel/core/control.h"
#include "vexel/core/visual_element.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/failure.h"
#include "vexel/testing/test_kit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

using namespace vexel;
using namespace vexel::test;
using testing::ElementsAre;
using testing::HasSubstr;

namespace
{

// What a broken element leaves behind.
std::unique_ptr<CVisualElement> g_Left;

/// Breaks in one of several ways.
class CBrokenElement : public CVisualElement
{
public:
    CBrokenElement(CVisualElement* parent, std::string const& fault)
        : CVisualElement(parent, {0, 0}, alClient), m_Fault(fault)
    {}

protected:
    bool HandleButtonDown(int, int, int, MouseButton button) override
    {
        if (m_Fault == "press" && button == mbRight && ++m_Presses == 2)
            ReportFailure("the second press at " + std::to_string(GetMousePos().x));
        if (m_Fault == "death" && button == mbMiddle)
            std::abort();
        if (m_Fault == "left")
            g_Left = std::make_unique<CVisualElement>(nullptr, size<int>{0, 0}, alNone);
        return false;
    }
    bool HandleWheel(int, int, int, MouseButton, int) override
    {
        m_Dark = !m_Dark;  // without asking for a repaint
        return false;
    }
    void DrawContent(IPainter* painter) override
    {
        brush fill;
        fill.color = color_table[m_Fault == "paint" && m_Dark ? 1 : 9];
        painter->SetBrush(fill);
        painter->FillRect(0, 0, GetBounds().right, GetBounds().bottom);
    }

private:
    std::string const m_Fault;
    int m_Presses = 0;
    bool m_Dark = false;
};

class CBrokenScene : public IMonkeyScene, public subscriber_base_t
{
public:
    explicit CBrokenScene(std::string const& fault)
    {
        m_Element = new CBrokenElement(m_Host.Root(), fault);
        if (fault == "endless")
            m_Host.Control().GetControl()->m_SigAfterDraw.connect(this, &CBrokenScene::AskAgain);
    }

    CTestHost& Host() override { return m_Host; }
    std::string Compare() override { return m_Host.CompareWithFullPaint(); }
    size<int> GetLargest() const override { return {60, 40}; }
    rectangle<int> GetBusyArea() const override { return {0, 0, 59, 39}; }

private:
    void AskAgain() { m_Element->Update(utElement); }

    CTestHost m_Host{60, 40};
    CVisualElement* m_Element;
};

std::unique_ptr<IMonkeyScene> MakeScene(std::string const& name)
{
    return std::make_unique<CBrokenScene>(name);
}

class MonkeyTest : public testing::Test
{
protected:
    ~MonkeyTest() override { std::filesystem::remove(m_File); }

    std::string const m_File =
        testing::TempDir() + "vexel_" + testing::UnitTest::GetInstance()->current_test_info()->name() + ".txt";
};

}  // namespace

TEST_F(MonkeyTest, FindsNothingWhereNothingIsBroken)
{
    SMonkeyResult const result = PlayAtRandom("none", 1, 500, &MakeScene, m_File);

    EXPECT_EQ(result.failure, "");
    EXPECT_GE(result.events, 500);
    EXPECT_FALSE(std::filesystem::exists(m_File));
}

TEST_F(MonkeyTest, KeepsTheGameThatFails)
{
    SMonkeyResult const result = PlayAtRandom("press", 1, 500, &MakeScene, m_File);

    EXPECT_THAT(result.failure, HasSubstr("the second press at "));
    SMonkeyGame game;
    ASSERT_TRUE(game.Load(m_File));
    EXPECT_EQ(game.scene, "press");
    EXPECT_EQ(static_cast<int>(game.lines.size()), result.lines);
    SMonkeyResult const again = PlayGame(game, &MakeScene);
    EXPECT_EQ(again.failure, result.failure);
    EXPECT_EQ(again.events, result.events);
}

TEST_F(MonkeyTest, KeepsTheGameThatEndsTheProcess)
{
    EXPECT_DEATH(PlayAtRandom("death", 1, 500, &MakeScene, m_File), "");

    SMonkeyGame game;
    ASSERT_TRUE(game.Load(m_File));
    EXPECT_EQ(game.lines.back(), "press 2");
    EXPECT_DEATH(PlayGame(game, &MakeScene), "");
    game.lines.pop_back();
    EXPECT_EQ(PlayGame(game, &MakeScene).failure, "");
}

TEST_F(MonkeyTest, MakesAGameShorterAsLongAsItFailsInTheSameWay)
{
    SMonkeyResult const result = PlayAtRandom("press", 1, 500, &MakeScene, m_File);
    SMonkeyGame game;
    ASSERT_TRUE(game.Load(m_File));

    SMonkeyGame const shorter = Shorten(
        game, result.failure, [](SMonkeyGame const& less) { return PlayGame(less, &MakeScene).failure; }, 1000);

    // Into the window, and the two presses.
    ASSERT_EQ(shorter.lines.size(), 3u) << shorter.Text();
    EXPECT_EQ(shorter.lines[0].substr(0, 5), "move ");
    EXPECT_EQ(shorter.lines[1], "press 3");
    EXPECT_EQ(shorter.lines[2], "press 3");
}

TEST_F(MonkeyTest, FindsARepaintThatIsLeftOut)
{
    EXPECT_THAT(PlayGame({"paint", {"move 5 5", "wheel 1", "paint", "compare"}}, &MakeScene).failure,
                HasSubstr("(0, 0)"));
    EXPECT_NE(PlayAtRandom("paint", 2, 3000, &MakeScene, "").failure, "");
}

TEST_F(MonkeyTest, FindsFramesWithoutAnEnd)
{
    EXPECT_EQ(PlayGame({"endless", {"focus", "paint"}}, &MakeScene).failure,
              "A window asks for frames without an end.");
}

TEST_F(MonkeyTest, FindsWhatIsLeft)
{
    EXPECT_EQ(PlayGame({"left", {"move 5 5", "press 1"}}, &MakeScene).failure, "1 element left: CVisualElement");
    g_Left.reset();
}

TEST_F(MonkeyTest, SaysWhatItCannotPlay)
{
    EXPECT_EQ(PlayGame({"none", {"jump 5 5"}}, &MakeScene).failure, "No event of a script: \"jump 5 5\"");
    EXPECT_EQ(PlayGame({"none", {}}, [](std::string const&) { return nullptr; }).failure, "There is no scene none");
}

TEST_F(MonkeyTest, CountsWhatComesFromOutside)
{
    SMonkeyGame const game{"none", {"move 1 2", "press 1", "paint", "advance 100", "change 5", "lost", "down 9 0"}};
    EXPECT_EQ(game.CountEvents(), 3);
}

TEST_F(MonkeyTest, ReadsAndWritesGames)
{
    SMonkeyGame const game{"tree 1.5 7", {"move 1 2", "press 1"}};
    EXPECT_EQ(game.Text(), "scene tree 1.5 7\nmove 1 2\npress 1\n");
    ASSERT_TRUE(game.Save(m_File));
    SMonkeyGame read;
    ASSERT_TRUE(read.Load(m_File));
    EXPECT_EQ(read.scene, "tree 1.5 7");
    EXPECT_THAT(read.lines, ElementsAre("move 1 2", "press 1"));
    std::ofstream(m_File) << "move 1 2\n";
    EXPECT_FALSE(read.Load(m_File));
    EXPECT_FALSE(read.Load(m_File + ".not"));
}

TEST_F(MonkeyTest, TellsKindsOfFailuresApart)
{
    EXPECT_EQ(KindOfFailure("first at (12, 7)\nmore 3"), "first at (#, #)");
    EXPECT_EQ(KindOfFailure(""), "");
}
