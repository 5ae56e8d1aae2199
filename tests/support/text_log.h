#pragma once

#include <string>
#include <utility>

namespace vexel::test
{

/// What was done, one entry after the other.
class CTextLog
{
public:
    explicit CTextLog(std::string separator = " ") : m_Separator(std::move(separator)) {}

    void Add(std::string const& entry) { m_Text += (m_Text.empty() ? "" : m_Separator) + entry; }
    std::string Take() { return std::exchange(m_Text, {}); }  ///< All since the last time.

private:
    std::string const m_Separator;
    std::string m_Text;
};

}  // namespace vexel::test
