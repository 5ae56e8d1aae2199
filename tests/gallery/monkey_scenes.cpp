#include "tests/gallery/monkey_scenes.h"

#include "gallery/frame/frame.h"
#include "gallery/pages.h"
#include "tests/support/controls_game.h"
#include "tests/support/nested_game.h"
#include "tests/support/tree_game.h"
#include "vexel/controls/round_bg_button.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/testing/census.h"
#include "vexel/testing/test_host.h"

#include <sstream>

namespace gallery
{

using namespace vexel;
using namespace vexel::test;

namespace
{

// They stay for the whole process.
CWarmUp const g_SharedPictures(&CRoundBgButton::InitStaticBgPictures);

class CPageScene : public IMonkeyScene
{
public:
    CPageScene(int page, double scale) : m_Scale(scale), m_Frame(m_Host.Control(), {}, {.page = page}) {}

    CTestHost& Host() override { return m_Host; }
    std::string Compare() override
    {
        Paint();
        std::string const name = GetPages()[static_cast<std::size_t>(m_Frame.GetState().page)].name;
        if (name == "repaint")  // counts its paints
            return {};
        std::string const difference = m_Host.CompareWithFullPaint();
        return difference.empty() ? "" : "The page " + name + " doesn't look as if painted at once.\n" + difference;
    }
    size<int> GetLargest() const override { return {Pixels(1000), Pixels(700)}; }
    rectangle<int> GetBusyArea() const override { return {Pixels(212), Pixels(88), Pixels(990), Pixels(670)}; }

private:
    int Pixels(int unscaled) const { return ToInt(unscaled * m_Scale); }

    double const m_Scale;
    CTestHost m_Host{Pixels(1000), Pixels(700), m_Scale};
    CFrame m_Frame;
};

class CTreeScene : public IMonkeyScene
{
public:
    CTreeScene(double scale, std::uint64_t seed)
        : m_Random(seed), m_Host(m_Random.Int(130, 200), m_Random.Int(50, 110), scale),
          m_Game(m_Host.Control(), m_Host.Window(), m_Random)
    {
        for (int i = 0; i < 60; ++i)
        {
            m_Game.Step();
            if (i % 4 == 0)
                m_Game.Paint();
        }
    }

    CTestHost& Host() override { return m_Host; }
    bool CanChange() const override { return true; }
    void Change(std::uint64_t seed) override
    {
        m_Random = CTestRandom(seed);
        m_Game.Step();
    }
    // The game takes out first what finds no room.
    void Paint() override
    {
        m_Game.Paint();
        m_Host.Paint();
    }
    std::string Compare() override
    {
        Paint();
        std::string const difference = m_Game.CompareWithFullPaint();
        return difference.empty() ? "" : "The tree doesn't look as if painted at once.\n" + difference;
    }
    bool CanCompareAlways() const override { return true; }
    size<int> GetSmallest() const override { return {130, 50}; }
    size<int> GetLargest() const override { return {200, 110}; }
    rectangle<int> GetBusyArea() const override { return m_Host.Window().GetRect(); }

private:
    CTestRandom m_Random;
    CTestHost m_Host;
    CTreeGame m_Game;
};

class CControlsScene : public IMonkeyScene
{
public:
    explicit CControlsScene(std::uint64_t seed) : m_Game(seed) {}

    CTestHost& Host() override { return m_Game.Host(); }
    bool CanChange() const override { return true; }
    void Change(std::uint64_t seed) override
    {
        m_Game.Reseed(seed);
        m_Game.Step();
    }
    size<int> GetLargest() const override { return {500, 500}; }
    rectangle<int> GetBusyArea() const override { return {0, 0, 400, 400}; }

private:
    CControlsGame m_Game;
};

class CNestedScene : public IMonkeyScene
{
public:
    CNestedScene(double scale, std::uint64_t seed) : m_Game(seed, scale) {}

    CTestHost& Host() override { return m_Game.Host(); }
    bool CanChange() const override { return true; }
    void Change(std::uint64_t seed) override
    {
        m_Game.Reseed(seed);
        m_Game.Step();
    }
    void Paint() override { m_Game.Paint(); }
    std::string Compare() override
    {
        Paint();
        std::string const difference = m_Game.Compare();
        return difference.empty() ? "" : "The widgets don't look as if painted at once.\n" + difference;
    }
    size<int> GetSmallest() const override { return {250, 250}; }
    size<int> GetLargest() const override { return {400, 400}; }
    rectangle<int> GetBusyArea() const override { return {0, 0, 400, 400}; }

private:
    CNestedGame m_Game;
};

}  // namespace

std::unique_ptr<IMonkeyScene> MakeMonkeyScene(std::string const& name)
{
    std::istringstream words(name);
    std::string kind, page, theme;
    double scale = 0;
    std::uint64_t seed = 0;
    words >> kind;
    if (kind == "page" && words >> page >> scale >> theme && FindPage(page) >= 0)
    {
        if (theme == "dark")
            CTestHost::System().GetMemoryPalette().SetDark();
        return std::make_unique<CPageScene>(FindPage(page), scale);
    }
    if (kind == "tree" && words >> scale >> seed)
        return std::make_unique<CTreeScene>(scale, seed);
    if (kind == "nested" && words >> scale >> seed)
        return std::make_unique<CNestedScene>(scale, seed);
    if (kind == "controls" && words >> seed)
        return std::make_unique<CControlsScene>(seed);
    return nullptr;
}

std::string NameMonkeyScene(int number, std::uint64_t seed)
{
    static char const* const scales[] = {"1", "1", "1.25", "1.5", "2"};
    CTestRandom random(seed);
    std::string const tail = std::to_string(random.Next() >> 32);
    std::string const scale = random.Pick(scales);
    if (number % 4 == 2)
        return (number % 8 == 2 ? "tree " : "nested ") + scale + " " + tail;
    if (number % 4 == 3)
        return "controls " + tail;
    int const pages = static_cast<int>(GetPages().size());
    SPage const& page = GetPages()[static_cast<std::size_t>((number / 4 * 2 + number % 4) % pages)];
    return std::string("page ") + page.name + " " + scale + (random.Bool() ? " dark" : " light");
}

}  // namespace gallery
