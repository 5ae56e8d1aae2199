#include "tests/support/monkey.h"

#include "tests/support/monkey_checks.h"
#include "vexel/platform/memory/memory_system.h"
#include "vexel/testing/census.h"
#include "vexel/testing/failure.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <set>

namespace vexel::test
{

using namespace vexelbase;

IMonkeyScene::~IMonkeyScene() = default;

void IMonkeyScene::Paint()
{
    CTestHost& host = Host();
    host.Paint();
    // A frame may close popups and open others.
    std::vector<memory::CMemoryWindow*> const windows = CTestHost::System().GetWindows();
    for (memory::CMemoryWindow* const window : windows)
    {
        std::vector<memory::CMemoryWindow*> const& now = CTestHost::System().GetWindows();
        if (window != &host.Window() && std::find(now.begin(), now.end(), window) != now.end())
            host.Paint(*window);
    }
}

namespace
{

// Failures of the kit during a game ------------------------------------------------------------------------------------

std::string* g_Failure = nullptr;

void KeepFirst(std::string const& message)
{
    if (g_Failure->empty())
        *g_Failure = message;
}

/// The kit's failures go into the text while this stands.
class CFailureScope
{
public:
    explicit CFailureScope(std::string& failure) : m_Before(SetFailureReporter(&KeepFirst)), m_Text(g_Failure)
    {
        g_Failure = &failure;
    }
    ~CFailureScope()
    {
        g_Failure = m_Text;
        SetFailureReporter(m_Before);
    }
    CFailureScope(CFailureScope const&) = delete;
    CFailureScope& operator=(CFailureScope const&) = delete;

private:
    FailureReporter const m_Before;
    std::string* const m_Text;
};

std::string Verb(std::string const& line)
{
    return line.substr(0, line.find(' '));
}

bool IsEvent(std::string const& line)
{
    static std::set<std::string> const others = {"paint",   "fullpaint", "pending", "background", "step",
                                                 "advance", "hold",      "change",  "lost",       "compare"};
    return !others.count(Verb(line));
}

// One game -------------------------------------------------------------------------------------------------------------

class CPlay
{
public:
    CPlay(std::string const& name, MonkeyScenes const& scenes)
    {
        CCensus::Begin();
        m_Scene = scenes(name);
        if (!m_Scene)
        {
            Fail("There is no scene " + name);
            return;
        }
        m_Scene->Paint();
        Fail(m_Checks.FindPending());
        Fail(m_Checks.FindStray(true));
    }
    ~CPlay() { End(); }
    CPlay(CPlay const&) = delete;
    CPlay& operator=(CPlay const&) = delete;

    bool IsGood() const { return m_Result.failure.empty(); }
    IMonkeyScene& Scene() { return *m_Scene; }

    void Do(std::string const& line)
    {
        ++m_Result.lines;
        m_Result.events += IsEvent(line) ? 1 : 0;
        CTestHost& host = m_Scene->Host();
        std::string const verb = Verb(line);
        if (verb == "paint")
        {
            m_Scene->Paint();
            Fail(m_Checks.FindPending());
        }
        else if (verb == "change")
            m_Scene->Change(std::strtoull(line.c_str() + verb.size(), nullptr, 10));
        else if (verb == "lost")
            host.Window().LoseSurface();
        else if (verb == "compare")
            Fail(m_Scene->Compare());
        else
            CEventScript::Replay(host, line);
        host.Script().Clear();
        Fail(m_Checks.FindStray(verb == "change"));
    }

    SMonkeyResult End()
    {
        if (m_Scene)
            m_Scene.reset();
        if (!m_Ended)
            for (std::string const& left : CCensus::End())
                Fail(left);
        m_Ended = true;
        return m_Result;
    }

private:
    void Fail(std::string const& failure)
    {
        if (m_Result.failure.empty())
            m_Result.failure = failure;
    }

    SMonkeyResult m_Result;
    CFailureScope const m_Failures{m_Result.failure};
    std::unique_ptr<IMonkeyScene> m_Scene;
    CMonkeyChecks m_Checks;
    bool m_Ended = false;
};

// What a user, the desktop and the program do ----------------------------------------------------------------------------

class CAnything
{
public:
    CAnything(IMonkeyScene& scene, std::uint64_t seed)
        : m_Scene(scene), m_Random(seed), m_Resizes(seed % 2 == 1), m_Frames(m_Random.Pick(std::array{3, 10, 30}))
    {}

    /// The lines of one action.
    std::vector<std::string> Next()
    {
        m_Lines.clear();
        int const what = m_Random.Index(100);
        if (m_Scene.CanChange() && m_Random.Chance(12))
            Say("change " + std::to_string(m_Random.Next() >> 16));
        else if (what < 60)
            UseMouse();
        else if (what < 85)
            UseKeys();
        else
            UseDesktop();
        if (m_Random.Chance(m_Frames))
            Say("paint");
        if ((!m_Resizes || m_Scene.CanCompareAlways()) && m_Random.Index(200) == 0)
            Say("compare");
        return m_Lines;
    }
    /// How a game ends, in two of three: the tree goes while nothing is held.
    std::vector<std::string> Last()
    {
        m_Lines.clear();
        if (m_Random.Index(3) > 0)
            for (int const button : {mbLeft, mbRight, mbMiddle})
                Say("release " + std::to_string(button));
        if (m_Random.Bool())
            Say("paint");
        return m_Lines;
    }

private:
    void Say(std::string const& line) { m_Lines.push_back(line); }
    void Say(char const* verb, int first) { Say(std::string(verb) + " " + std::to_string(first)); }
    void Say(char const* verb, int first, int second)
    {
        Say(std::string(verb) + " " + std::to_string(first) + " " + std::to_string(second));
    }
    rectangle<int> Window() { return m_Scene.Host().Window().GetRect(); }

    // Mostly where something is, often near the last place, sometimes outside.
    void Move()
    {
        rectangle<int> area = Window();
        int const where = m_Random.Index(10);
        if (where < 3)
            area = {m_At.x - 12, m_At.y - 12, m_At.x + 12, m_At.y + 12};
        else if (where < 8)
            area = m_Scene.GetBusyArea();
        else if (where == 9)
            area = {area.left - 20, area.top - 20, area.right + 20, area.bottom + 20};
        m_At = {m_Random.Int(area.left, area.right), m_Random.Int(area.top, area.bottom)};
        Say("move", m_At.x, m_At.y);
    }
    void Press(int button)
    {
        Move();
        Say("press", button);
    }
    void UseMouse()
    {
        int const button = m_Random.Pick(std::array{mbLeft, mbLeft, mbLeft, mbLeft, mbRight, mbMiddle});
        switch (m_Random.Index(12))
        {
        case 0:
        case 1:
            return Press(button);
        case 2:
        case 3:
            return Say("release", button);
        case 4:
        case 5:
            Press(button);
            return Say("release", button);
        case 6:
            Press(button);
            Say("release", button);
            Say("press", button);
            Say("double", button);
            return Say("release", button);
        case 7:
            Move();
            return Say("wheel", m_Random.Int(-3, 3));
        case 8:
            Move();
            return Say("hover");
        case 9:
            return Say(m_Random.Bool() ? std::string("leave") : "lose " + std::to_string(button));
        default:
            return Move();
        }
    }
    void UseKeys()
    {
        static int const keys[] = {vkTab,      vkTab,       vkTab,    vkReturn, vkEscape, vkSpace, vkPageUp,
                                   vkPageDown, vkEnd,       vkHome,   vkLeft,   vkUp,     vkRight, vkDown,
                                   vkDelete,   vkBackspace, vkF1 + 1, 'A',      'C',      'X',     '7'};
        static std::array<std::string, 4> const texts = {"a", "\xC3\xA4", "\xE2\x82\xAC", "\xC3"};
        int const held = m_Random.Pick(std::array<int, 7>{0, 0, 0, 0, ksShift, ksControl, ksAlt});
        int const key = m_Random.Pick(keys);
        switch (m_Random.Index(6))
        {
        case 0:
            // The bytes of a character may come apart.
            for (char const c : m_Random.Pick(texts))
                Say("char", static_cast<unsigned char>(c));
            return;
        case 1:
            return Say("down", key, held);
        case 2:
            return Say("up", key, held);
        default:
            Say("down", key, held);
            return Say("up", key, held);
        }
    }
    void UseDesktop()
    {
        size<int> const least = m_Scene.GetSmallest();
        size<int> const most = m_Scene.GetLargest();
        switch (m_Random.Index(14))
        {
        case 0:
        {
            size<int> const extent{m_Random.Int(least.width, most.width), m_Random.Int(least.height, most.height)};
            return m_Resizes ? Say("resize", extent.width, extent.height) : Say("focus");
        }
        case 1:
            return m_Resizes ? Say("resize", most.width, most.height) : Say("focus");
        case 2:
            return Say("focus");
        case 3:
            return Say("unfocus");
        case 4:
            return Say("tab", m_Random.Index(2));
        case 5:
            Move();
            return Say("tooltip");
        case 6:
            Move();
            return Say("menu");
        case 7:
            return Say("colors");
        case 8:
            return Say("lost");
        case 9:
            return Say("pending");
        case 10:
            return Say("background");
        default:
            return Say("advance", m_Random.Int(1, 700));
        }
    }

    IMonkeyScene& m_Scene;
    CTestRandom m_Random;
    bool const m_Resizes;
    int const m_Frames;  // percent
    point<int> m_At;
    std::vector<std::string> m_Lines;
};

}  // namespace

// Games ----------------------------------------------------------------------------------------------------------------

int SMonkeyGame::CountEvents() const
{
    return static_cast<int>(std::count_if(lines.begin(), lines.end(), &IsEvent));
}

std::string SMonkeyGame::Text() const
{
    std::string text = "scene " + scene + "\n";
    for (std::string const& line : lines)
        text += line + "\n";
    return text;
}

bool SMonkeyGame::Save(std::string const& path) const
{
    std::ofstream file(path);
    file << Text();
    return file.flush().good();
}

bool SMonkeyGame::Load(std::string const& path)
{
    std::ifstream file(path);
    std::string line;
    if (!std::getline(file, line) || Verb(line) != "scene" || line.size() < 7)
        return false;
    scene = line.substr(6);
    lines.clear();
    while (std::getline(file, line))
        if (!line.empty())
            lines.push_back(line);
    return true;
}

SMonkeyResult PlayGame(SMonkeyGame const& game, MonkeyScenes const& scenes)
{
    CPlay play(game.scene, scenes);
    for (auto line = game.lines.begin(); line != game.lines.end() && play.IsGood(); ++line)
        play.Do(*line);
    return play.End();
}

SMonkeyResult PlayAtRandom(std::string const& scene, std::uint64_t seed, int events, MonkeyScenes const& scenes,
                           std::string const& file)
{
    std::ofstream record;
    if (!file.empty())
        record.open(file);
    record << "scene " << scene << std::endl;
    SMonkeyResult result;
    {
        CPlay play(scene, scenes);
        if (play.IsGood())
        {
            CAnything anything(play.Scene(), seed);
            int done = 0;
            auto const doAll = [&](std::vector<std::string> const& lines) {
                for (std::string const& line : lines)
                {
                    if (!play.IsGood())
                        return;
                    record << line << std::endl;  // it is in the file before it is done
                    play.Do(line);
                    done += IsEvent(line) ? 1 : 0;
                }
            };
            while (done < events && play.IsGood())
                doAll(anything.Next());
            doAll(anything.Last());
        }
        result = play.End();
    }
    record.close();
    if (result.IsGood() && !file.empty())
        std::remove(file.c_str());
    return result;
}

std::string KindOfFailure(std::string const& failure)
{
    std::string kind;
    for (char const c : failure.substr(0, failure.find('\n')))
    {
        bool const digit = std::isdigit(static_cast<unsigned char>(c)) != 0;
        if (!digit)
            kind += c;
        else if (kind.empty() || kind.back() != '#')
            kind += '#';
    }
    return kind;
}

SMonkeyGame Shorten(SMonkeyGame game, std::string const& failure,
                    std::function<std::string(SMonkeyGame const&)> const& play, int attempts)
{
    std::string const kind = KindOfFailure(failure);
    auto const failsWithout = [&](std::size_t first, std::size_t count) {
        if (--attempts < 0)
            return false;
        SMonkeyGame less{game.scene, game.lines};
        auto const from = less.lines.begin() + static_cast<std::ptrdiff_t>(first);
        less.lines.erase(from, from + static_cast<std::ptrdiff_t>(count));
        if (KindOfFailure(play(less)) != kind)
            return false;
        game = std::move(less);
        return true;
    };
    for (std::size_t piece = game.lines.size() / 2; piece > 0 && attempts > 0;)
    {
        bool shorter = false;
        // From the end: what came last has less that depends on it.
        for (std::size_t end = game.lines.size(); end > 0 && attempts > 0;)
        {
            std::size_t const first = end > piece ? end - piece : 0;
            shorter = failsWithout(first, end - first) || shorter;
            end = first;
        }
        if (piece > 1)
            piece /= 2;
        else if (!shorter)
            break;
    }
    return game;
}

}  // namespace vexel::test
