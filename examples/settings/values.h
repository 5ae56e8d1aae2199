#pragma once

#include <iosfwd>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace settings
{

enum class Kind
{
    check,   // "on" or "off"
    radio,   // one of the choices, all in sight
    choice,  // one of the choices, in a popup
    line,    // any text
    box,     // any text; the choices are offers
    number   // a whole number in the range of the two choices
};

struct SSetting
{
    std::string category;
    std::string tab;
    std::string key;
    std::string label;
    Kind kind;
    std::string value;  // at first
    std::vector<std::string> choices;
};

/// All there are, those of a category and of a tab side by side.
std::span<SSetting const> GetSettings();
SSetting const* FindSetting(std::string_view key);
/// What is wrong with a value, empty if nothing is.
std::string GetComplaint(SSetting const& setting, std::string const& value);

/// The values of the settings, and the file that they are kept in: lines "key = value". Lines that it doesn't know are
/// written back as they were.
class CValues
{
public:
    std::string Get(std::string const& key) const;
    void Set(std::string const& key, std::string const& value) { m_Values[key] = value; }

    /// Takes what is valid; the rest keeps its value. Gives back a line for each that was refused.
    std::vector<std::string> Load(std::istream& file);
    void Save(std::ostream& file) const;

private:
    std::map<std::string, std::string> m_Values;
    std::vector<std::string> m_Others;
};

}  // namespace settings
