#include "state.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <tuple>
#include <type_traits>

namespace workbench
{

namespace
{

char const* const g_FirstLine = "workbench 1";
int const g_LargestExtent = 10000;

bool ReadNumber(std::string const& text, int least, int most, int& number)
{
    int value = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < least || value > most)
        return false;
    number = value;
    return true;
}

// "number:width" for each place; every column once.
bool ReadColumns(std::string const& text, SState& state)
{
    std::istringstream in(text);
    std::array<bool, std::tuple_size_v<decltype(state.columns)>> seen{};
    std::string one;
    for (SState::SColumn& column : state.columns)
    {
        if (!(in >> one))
            return false;
        std::size_t const colon = one.find(':');
        if (colon == std::string::npos ||
            !ReadNumber(one.substr(0, colon), 0, static_cast<int>(seen.size()) - 1, column.number) ||
            !ReadNumber(one.substr(colon + 1), 1, g_LargestExtent, column.width))
            return false;
        bool& known = seen[static_cast<std::size_t>(column.number)];
        if (known)
            return false;
        known = true;
    }
    return !(in >> one);
}

bool ReadLine(std::string const& line, SState& state)
{
    std::size_t const equals = line.find('=');
    if (equals == std::string::npos)
        return false;
    std::string const name = line.substr(0, equals);
    std::string const value = line.substr(equals + 1);
    int number = 0;
    auto const take = [&](int least, int most, auto& target) {
        if (!ReadNumber(value, least, most, number))
            return false;
        target = static_cast<std::remove_reference_t<decltype(target)>>(number);
        return true;
    };
    if (name == "theme")
        return take(0, 2, state.theme);
    if (name == "page")
        return take(0, 2, state.page);
    if (name == "log height")
        return take(0, g_LargestExtent, state.logHeight);
    if (name == "details width")
        return take(0, g_LargestExtent, state.detailsWidth);
    if (name == "live")
        return take(0, 1, state.live);
    if (name == "follow")
        return take(0, 1, state.follow);
    if (name == "span")
        return take(0, 3, state.span);
    if (name == "columns")
        return ReadColumns(value, state);
    return true;
}

}  // namespace

ReadResult ReadState(std::string const& path, SState* state)
{
    std::error_code error;
    if (!std::filesystem::exists(path, error))
        return ReadResult::Absent;
    std::ifstream in(path);
    std::string line;
    if (!std::getline(in, line) || line != g_FirstLine)
        return ReadResult::Damaged;
    SState read;
    while (std::getline(in, line))
        if (!line.empty() && !ReadLine(line, read))
            return ReadResult::Damaged;
    *state = read;
    return ReadResult::Read;
}

bool WriteState(std::string const& path, SState const& state)
{
    std::ostringstream out;
    out << g_FirstLine << "\ntheme=" << state.theme << "\npage=" << state.page << "\nlog height=" << state.logHeight
        << "\ndetails width=" << state.detailsWidth << "\nlive=" << state.live << "\nfollow=" << state.follow
        << "\nspan=" << state.span << "\ncolumns=";
    char const* separator = "";
    for (SState::SColumn const& column : state.columns)
    {
        out << separator << column.number << ':' << column.width;
        separator = " ";
    }
    // Beside the old one first, so that a full disk leaves that.
    std::string const draft = path + ".new";
    {
        std::ofstream file(draft);
        file << out.str() << '\n';
        if (!file.flush())
            return false;
    }
    std::error_code error;
    std::filesystem::rename(draft, path, error);
    return !error;
}

}  // namespace workbench
