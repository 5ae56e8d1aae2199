#include "vexel/testing/names.h"

#include "vexel/core/visual_element.h"
#include "vexel/testing/detail/element_names.h"

#include <cstdlib>
#include <cxxabi.h>
#include <map>

namespace vexel::test
{

namespace
{

std::map<CVisualElement const*, std::string>& Names()
{
    static std::map<CVisualElement const*, std::string> names;
    return names;
}

bool IsNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

// Where the bracket that ends before `end` begins.
std::size_t SkipBack(std::string const& text, std::size_t end)
{
    int depth = 0;
    while (end > 0)
    {
        char const c = text[--end];
        if (c == ')' || c == '>' || c == '}')
            ++depth;
        else if ((c == '(' || c == '<' || c == '{') && --depth == 0)
            return end;
    }
    return 0;
}

} // namespace

std::string StripNamespaces(std::string const& demangled)
{
    std::string result;
    for (std::size_t i = 0; i < demangled.size(); ++i)
    {
        if (demangled.compare(i, 2, "::") != 0)
        {
            result += demangled[i];
            continue;
        }
        ++i;
        // Takes back what was written of the scope: a name, a function with its arguments, "(anonymous namespace)".
        std::size_t start = result.size();
        if (result.ends_with(" const"))
            start -= 6;
        if (start > 0 && (result[start - 1] == ')' || result[start - 1] == '}'))
            start = SkipBack(result, start);
        if (start > 0 && result[start - 1] == '>')
            start = SkipBack(result, start);
        while (start > 0 && (IsNameCharacter(result[start - 1]) || result[start - 1] == '~'))
            --start;
        result.erase(start);
    }
    return result;
}

std::string TypeName(std::type_info const& type)
{
    int status = 0;
    char* const demangled = abi::__cxa_demangle(type.name(), nullptr, nullptr, &status);
    std::string const name = status == 0 && demangled ? demangled : type.name();
    std::free(demangled);
    return StripNamespaces(name);
}

void NameElement(CVisualElement const& element, std::string const& name)
{
    Names()[&element] = name;
}

std::string ElementName(CVisualElement const* element)
{
    if (!element)
        return "null";
    auto const found = Names().find(element);
    return found != Names().end() ? found->second : TypeName(typeid(*element));
}

namespace detail
{

void ForgetElementName(CVisualElement const* element)
{
    if (!Names().empty())
        Names().erase(element);
}

void ForgetElementNames()
{
    Names().clear();
}

} // namespace detail

} // namespace vexel::test
