#include "tests/support/call_log.h"

#include <algorithm>

void CCallLog::Add(std::string const& who, std::string const& what, std::string const& arguments)
{
    m_Calls.push_back({who, what, arguments});
}

std::string CCallLog::Take()
{
    std::string text;
    for (SCall const& call : m_Calls)
        text += (text.empty() ? "" : " ") + call.who + "." + call.what + "(" + call.arguments + ")";
    m_Calls.clear();
    return text;
}

std::string CCallLog::Take(std::initializer_list<char const*> operations)
{
    std::erase_if(m_Calls, [&](SCall const& call) {
        return std::find(operations.begin(), operations.end(), call.what) == operations.end();
    });
    return Take();
}

std::string CCallLog::NameOf(vexel::CVisualElement const* element) const
{
    if (!element)
        return "null";
    auto const found = m_Names.find(element);
    return found == m_Names.end() ? "new" : found->second;
}

std::string Text(vexelbase::rectangle<int> const& rect)
{
    return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) + " " +
           std::to_string(rect.bottom);
}
