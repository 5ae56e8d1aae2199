// The settings example's values: what is valid, and what of a file is taken, refused and kept.

#include "examples/settings/values.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

using namespace settings;

namespace
{

std::string Complain(std::string const& key, std::string const& value)
{
    SSetting const* const setting = FindSetting(key);
    return setting ? GetComplaint(*setting, value) : "no such setting";
}

TEST(SettingsValues, EachSettingHasAKeyOfItsOwnAndAValueThatIsValid)
{
    std::set<std::string> keys;
    for (SSetting const& setting : GetSettings())
    {
        EXPECT_TRUE(keys.insert(setting.key).second) << setting.key;
        EXPECT_EQ(GetComplaint(setting, setting.value), "") << setting.key;
    }
}

TEST(SettingsValues, AreAsAtFirstUntilTheyAreSet)
{
    CValues values;
    EXPECT_EQ(values.Get("tab"), "4");
    values.Set("tab", "8");
    EXPECT_EQ(values.Get("tab"), "8");
    EXPECT_EQ(values.Get("nothing"), "");
}

TEST(SettingsValues, AreCheckedByTheirKind)
{
    EXPECT_EQ(Complain("wrap", "off"), "");
    EXPECT_EQ(Complain("wrap", "yes"), "Wrap long lines: it is on or off");
    EXPECT_EQ(Complain("theme", "Dark"), "");
    EXPECT_EQ(Complain("theme", "dark"), "Theme: there is no dark");
    EXPECT_EQ(Complain("port", "1"), "");
    EXPECT_EQ(Complain("port", "65535"), "");
    for (char const* const wrong : {"0", "65536", "", "80x", "x80", "99999999999"})
        EXPECT_EQ(Complain("port", wrong), "Port: a number from 1 to 65535") << wrong;
    EXPECT_EQ(Complain("host", "any text"), "");
    EXPECT_EQ(Complain("font", "not among the offers"), "");
}

TEST(SettingsValues, AFileIsTakenAsFarAsItIsValid)
{
    std::istringstream file("wrap = off\n port=99999\n\ttheme = Dark \r\nhost = a=b\nsize = \n");
    CValues values;
    std::vector<std::string> const complaints = values.Load(file);
    EXPECT_EQ(complaints,
              (std::vector<std::string>{"Port: a number from 1 to 65535", "Size in points: a number from 6 to 72"}));
    EXPECT_EQ(values.Get("wrap"), "off");
    EXPECT_EQ(values.Get("theme"), "Dark");
    EXPECT_EQ(values.Get("host"), "a=b");
    EXPECT_EQ(values.Get("port"), "8080");
}

TEST(SettingsValues, LinesThatAreNoSettingsAreWrittenBack)
{
    std::istringstream file("# mine\nlater = 1\nwrap = off\nno sign\n");
    CValues values;
    EXPECT_TRUE(values.Load(file).empty());
    std::ostringstream saved;
    values.Save(saved);
    EXPECT_EQ(saved.str().rfind("# mine\nlater = 1\nno sign\nwrap = off\nnumbers = off\n", 0), 0u) << saved.str();

    std::istringstream again(saved.str());
    CValues other;
    EXPECT_TRUE(other.Load(again).empty());
    std::ostringstream twice;
    other.Save(twice);
    EXPECT_EQ(twice.str(), saved.str());
}

}  // namespace
