#include "vexel/testing/signal_log.h"

#include <algorithm>
#include <utility>

namespace vexel::test
{

CSignalLog::CSignalLog() = default;
CSignalLog::~CSignalLog() = default;

CSignalLog::CListener::~CListener() = default;

void CSignalLog::CListener::Write(std::vector<std::string> const& arguments)
{
    std::string entry = m_Name + "(";
    for (std::size_t i = 0; i < arguments.size(); ++i)
        entry += (i > 0 ? ", " : "") + arguments[i];
    m_Log.m_Entries.push_back(entry + ")");
}

CSignalLog& CSignalLog::Name(CVisualElement const& element, std::string const& name)
{
    NameElement(element, name);
    return *this;
}

std::string CSignalLog::Text() const
{
    std::string text;
    for (std::string const& entry : m_Entries)
        text += (text.empty() ? "" : " ") + entry;
    return text;
}

std::string CSignalLog::Take()
{
    std::string text = Text();
    Clear();
    return text;
}

int CSignalLog::Count(std::string const& name) const
{
    return static_cast<int>(std::count_if(m_Entries.begin(), m_Entries.end(), [&](std::string const& entry) {
        return entry.size() > name.size() && entry.starts_with(name) && entry[name.size()] == '(';
    }));
}

} // namespace vexel::test
