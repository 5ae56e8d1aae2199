#pragma once

#include "vexel/platform/geometry.h"

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

namespace vexel
{
class CVisualElement;
}

/// Calls in the order in which they came, as "who.what(arguments)" parted by blanks.
///
///     EXPECT_EQ(log.Take(), "child.ProcessChange(child) control.UpdateElement(child, 2)");
class CCallLog
{
public:
    void Add(std::string const& who, std::string const& what, std::string const& arguments = "");

    /// All that was called since the last time.
    std::string Take();
    /// The same, but of these operations only; what else was called is forgotten too.
    std::string Take(std::initializer_list<char const*> operations);
    void Clear() { m_Calls.clear(); }

    /// Names stay until another element at the same address gets one, so that dying elements are still called by theirs.
    void Name(vexel::CVisualElement const* element, std::string const& name) { m_Names[element] = name; }
    std::string NameOf(vexel::CVisualElement const* element) const;  ///< "null", or "new" for one without a name.

private:
    struct SCall
    {
        std::string who;
        std::string what;
        std::string arguments;
    };

    std::vector<SCall> m_Calls;
    std::map<vexel::CVisualElement const*, std::string> m_Names;
};

/// "left top right bottom".
std::string Text(vexelbase::rectangle<int> const& rect);
