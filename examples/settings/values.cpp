#include "values.h"

#include <algorithm>
#include <charconv>
#include <istream>
#include <ostream>

namespace settings
{

namespace
{

std::vector<SSetting> const g_Settings{
    {"Editor", "Text", "wrap", "Wrap long lines", Kind::check, "on", {}},
    {"Editor", "Text", "numbers", "Show line numbers", Kind::check, "off", {}},
    {"Editor", "Text", "indent", "Indent by", Kind::radio, "Spaces", {"Spaces", "Tabs"}},
    {"Editor", "Text", "tab", "Width of a tab", Kind::choice, "4", {"2", "4", "8"}},
    {"Editor", "Files", "backup", "Keep a copy of what was there before", Kind::check, "on", {}},
    {"Editor", "Files", "extension", "Extension of copies", Kind::line, "bak", {}},
    {"Editor", "Files", "encoding", "Encoding", Kind::choice, "UTF-8", {"UTF-8", "Latin 1", "UTF-16"}},
    {"Appearance", "Colours", "theme", "Theme", Kind::radio, "As the desktop", {"As the desktop", "Light", "Dark"}},
    {"Appearance", "Colours", "current", "Light up the current line", Kind::check, "on", {}},
    {"Appearance", "Font", "size", "Size in points", Kind::number, "10", {"6", "72"}},
    {"Appearance", "Font", "font", "Font", Kind::box, "Monospace", {"Monospace", "Serif", "Sans"}},
    {"Network", "Proxy", "proxy", "Use a proxy", Kind::check, "off", {}},
    {"Network", "Proxy", "host", "Host", Kind::line, "", {}},
    {"Network", "Proxy", "port", "Port", Kind::number, "8080", {"1", "65535"}},
};

std::string Trim(std::string const& text)
{
    char const* const blanks = " \t\r";
    std::size_t const first = text.find_first_not_of(blanks);
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool ToNumber(std::string const& text, int& number)
{
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

}  // namespace

std::span<SSetting const> GetSettings()
{
    return g_Settings;
}

SSetting const* FindSetting(std::string_view key)
{
    auto const found =
        std::find_if(g_Settings.begin(), g_Settings.end(), [&](SSetting const& each) { return each.key == key; });
    return found != g_Settings.end() ? &*found : nullptr;
}

std::string GetComplaint(SSetting const& setting, std::string const& value)
{
    bool const offered = std::find(setting.choices.begin(), setting.choices.end(), value) != setting.choices.end();
    int number = 0, low = 0, high = 0;
    switch (setting.kind)
    {
    case Kind::check:
        return value == "on" || value == "off" ? "" : setting.label + ": it is on or off";
    case Kind::radio:
    case Kind::choice:
        return offered ? "" : setting.label + ": there is no " + value;
    case Kind::number:
        if (ToNumber(value, number) && ToNumber(setting.choices.at(0), low) && ToNumber(setting.choices.at(1), high) &&
            number >= low && number <= high)
            return "";
        return setting.label + ": a number from " + setting.choices.at(0) + " to " + setting.choices.at(1);
    case Kind::line:
    case Kind::box:
        return "";
    }
    return "";
}

std::string CValues::Get(std::string const& key) const
{
    auto const found = m_Values.find(key);
    if (found != m_Values.end())
        return found->second;
    SSetting const* const setting = FindSetting(key);
    return setting ? setting->value : std::string();
}

std::vector<std::string> CValues::Load(std::istream& file)
{
    std::vector<std::string> complaints;
    m_Others.clear();
    for (std::string line; std::getline(file, line);)
    {
        std::size_t const sign = line.find('=');
        SSetting const* const setting = sign != std::string::npos ? FindSetting(Trim(line.substr(0, sign))) : nullptr;
        if (!setting)
        {
            m_Others.push_back(line);
            continue;
        }
        std::string const value = Trim(line.substr(sign + 1));
        std::string const complaint = GetComplaint(*setting, value);
        if (complaint.empty())
            Set(setting->key, value);
        else
            complaints.push_back(complaint);
    }
    return complaints;
}

void CValues::Save(std::ostream& file) const
{
    for (std::string const& line : m_Others)
        file << line << '\n';
    for (SSetting const& setting : g_Settings)
        file << setting.key << " = " << Get(setting.key) << '\n';
}

}  // namespace settings
