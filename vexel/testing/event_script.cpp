#include "vexel/testing/event_script.h"

#include "vexel/testing/failure.h"
#include "vexel/testing/test_host.h"

#include <functional>
#include <map>
#include <sstream>

namespace vexel::test
{

namespace
{

// One line being read: a verb, then numbers.
struct SLine
{
    std::string verb;
    std::vector<int> numbers;

    int Number(std::size_t index, int otherwise = 0) const { return index < numbers.size() ? numbers[index] : otherwise; }
    vexelbase::MouseButton Button() const { return static_cast<vexelbase::MouseButton>(Number(0, vexelbase::mbLeft)); }
};

using Player = std::function<void(CTestHost&, SLine const&)>;

std::map<std::string, Player> const& Players()
{
    static std::map<std::string, Player> const players = {
        {"move", [](CTestHost& h, SLine const& l) { h.Mouse().Move(l.Number(0), l.Number(1)); }},
        {"leave", [](CTestHost& h, SLine const&) { h.Mouse().Leave(); }},
        {"press", [](CTestHost& h, SLine const& l) { h.Mouse().Press(l.Button()); }},
        {"release", [](CTestHost& h, SLine const& l) { h.Mouse().Release(l.Button()); }},
        {"lose", [](CTestHost& h, SLine const& l) { h.Mouse().LoseRelease(l.Button()); }},
        {"double", [](CTestHost& h, SLine const& l) { h.Mouse().PressAgain(l.Button()); }},
        {"wheel", [](CTestHost& h, SLine const& l) { h.Mouse().Wheel(l.Number(0)); }},
        {"hover", [](CTestHost& h, SLine const&) { h.Mouse().Hover(); }},
        {"down", [](CTestHost& h, SLine const& l) { h.Keyboard().Down(l.Number(0), l.Number(1)); }},
        {"up", [](CTestHost& h, SLine const& l) { h.Keyboard().Up(l.Number(0), l.Number(1)); }},
        {"char", [](CTestHost& h, SLine const& l) { h.Keyboard().Character(static_cast<char>(l.Number(0))); }},
        {"hold", [](CTestHost& h, SLine const& l) { h.Keyboard().Hold(l.Number(0)); }},
        {"focus", [](CTestHost& h, SLine const&) { h.Focus(); }},
        {"unfocus", [](CTestHost& h, SLine const&) { h.Unfocus(); }},
        {"tab", [](CTestHost& h, SLine const& l) { h.TabInto(l.Number(0, 1) != 0); }},
        {"resize", [](CTestHost& h, SLine const& l) { h.Resize(l.Number(0), l.Number(1)); }},
        {"advance", [](CTestHost& h, SLine const& l) { h.Clock().Advance(l.Number(0)); }},
        {"paint", [](CTestHost& h, SLine const&) { h.Paint(); }},
        {"fullpaint", [](CTestHost& h, SLine const&) { h.FullPaint(); }},
        {"pending", [](CTestHost& h, SLine const&) { h.RunPending(); }},
        {"background", [](CTestHost& h, SLine const&) { h.RunBackground(); }},
        {"step", [](CTestHost& h, SLine const&) { h.StepBackground(); }},
        {"tooltip",
         [](CTestHost& h, SLine const&) { h.Tooltip(h.Mouse().GetPos().x, h.Mouse().GetPos().y); }},
        {"menu", [](CTestHost& h, SLine const&) { h.ContextMenu(h.Mouse().GetPos().x, h.Mouse().GetPos().y); }},
        {"colors", [](CTestHost& h, SLine const&) { h.SysColorChange(); }},
    };
    return players;
}

} // namespace

std::string CEventScript::Text() const
{
    std::string text;
    for (std::string const& line : m_Lines)
        text += line + "\n";
    return text;
}

void CEventScript::Replay(CTestHost& host, std::string const& text)
{
    std::istringstream lines(text);
    std::string whole;
    while (std::getline(lines, whole))
    {
        std::istringstream words(whole);
        SLine line;
        if (!(words >> line.verb))
            continue;
        for (int number = 0; words >> number;)
            line.numbers.push_back(number);
        auto const player = Players().find(line.verb);
        if (player == Players().end() || !words.eof())
        {
            ReportFailure("No event of a script: \"" + whole + "\"");
            return;
        }
        player->second(host, line);
    }
}

} // namespace vexel::test
